<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_GB">
<context>
    <name>AVSPDocument</name>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>The file is being opened</source>
        <translation>Ouverture du fichier en cours</translation>
    </message>
    <message>
        <source>This file cannot be played.</source>
        <translation>Ce fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Sound only, no picture</source>
        <translation>Son seulement, pas d’image</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retour rapide</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avance rapide</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume (Up and Down)</source>
        <translation>Volume (Haut et Bas)</translation>
    </message>
    <message>
        <source>The file cannot be played</source>
        <translation>Le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>Video could not be played.</source>
        <translation>La vidéo n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The file could not be played</source>
        <translation>Le fichier n’a pas pu être lu</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>Lecture ou pause (Espace)</translation>
    </message>
    <message>
        <source>Fast forward; each press is faster</source>
        <translation>Avance rapide&#xa0;; plus rapide à chaque appui</translation>
    </message>
    <message>
        <source>Rewind; each press is faster</source>
        <translation>Retour rapide&#xa0;; plus rapide à chaque appui</translation>
    </message>
    <message>
        <source>Position (Left and Right: five seconds)</source>
        <translation>Position (Gauche et Droite&#xa0;: cinq secondes)</translation>
    </message>
</context>
<context>
    <name>Acceptance</name>
    <message>
        <source>These are not files of this computer. Copy them into a folder of it, and add them from there.</source>
        <translation>Ce ne sont pas des fichiers de cet ordinateur. Copiez-les dans un de ses dossiers et ajoutez-les à partir de là.</translation>
    </message>
    <message>
        <source>There are no files of these names any more. They may have been moved or renamed.</source>
        <translation>Il n’y a plus de fichiers portant ces noms. Ils ont peut-être été déplacés ou renommés.</translation>
    </message>
    <message>
        <source>These are links, and what they lead to is not there.</source>
        <translation>Ce sont des liens vers des fichiers qui n’existent pas.</translation>
    </message>
    <message>
        <source>You have no permission to look into these folders. Their owner can give it to you.</source>
        <translation>Vous n’avez pas le droit d’ouvrir ces dossiers. Leur propriétaire peut vous le donner.</translation>
    </message>
    <message>
        <source>These are pipes or devices and not files, whatever their names end in. They have no length.</source>
        <translation>Ce sont des tubes ou des périphériques et non des fichiers, quelle que soit la fin de leur nom. Ils n’ont pas de durée.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and folders with such files in them.</source>
        <translation>Cette liste accepte les fichiers qui se terminent par %1 et les dossiers qui en contiennent.</translation>
    </message>
    <message>
        <source>No file directly in these folders ends in %1. Folders in them are not looked into.</source>
        <translation>Aucun fichier placé directement dans ces dossiers ne se termine par %1. Les dossiers qu’ils contiennent ne sont pas parcourus.</translation>
    </message>
    <message>
        <source>The files in these folders have their endings in capital letters, and of a folder only those in small letters are taken. Add the files themselves.</source>
        <translation>Les extensions des fichiers de ces dossiers sont en majuscules, et d’un dossier on ne prend que celles en minuscules. Ajoutez les fichiers eux-mêmes.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with sound in them. ffmpeg finds none in these.</source>
        <translation>Cette liste accepte les fichiers qui se terminent par %1 et tous ceux qui contiennent du son. ffmpeg n’en trouve pas dans ceux-ci.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with a film in them. ffmpeg finds none in these.</source>
        <translation>Cette liste accepte les fichiers qui se terminent par %1 et tous ceux qui contiennent un film. ffmpeg n’en trouve pas dans ceux-ci.</translation>
    </message>
    <message>
        <source>ffmpeg finds no sound in any file in these folders or below.</source>
        <translation>ffmpeg ne trouve de son dans aucun fichier de ces dossiers ni de leurs sous-dossiers.</translation>
    </message>
    <message>
        <source>ffmpeg finds no film in any file in these folders or below.</source>
        <translation>ffmpeg ne trouve de film dans aucun fichier de ces dossiers ni de leurs sous-dossiers.</translation>
    </message>
    <message>
        <source>These are playlists and folders that a playlist names, and those are not followed. Add them themselves.</source>
        <translation>Ce sont des listes de lecture et des dossiers cités par une liste de lecture, et ceux-là ne sont pas suivis. Ajoutez-les eux-mêmes.</translation>
    </message>
    <message>
        <source>These playlists name no files, or they are damaged.</source>
        <translation>Ces listes de lecture ne citent aucun fichier, ou elles sont endommagées.</translation>
    </message>
    <message>
        <source>These playlists name more than 100,000 files. Only so many were taken, the first ones.</source>
        <translation>Ces listes de lecture citent plus de 100 000 fichiers. Seuls les premiers, jusqu’à ce nombre, ont été pris.</translation>
    </message>
    <message>
        <source>These files are too large for playlists, which have up to 32 MB.</source>
        <translation>Ces fichiers sont trop grands pour des listes de lecture, qui font au plus 32 MB.</translation>
    </message>
    <message>
        <source>There are more than 100,000 files below these folders. Only so many were taken, the first ones.</source>
        <translation>Il y a plus de 100 000 fichiers sous ces dossiers. Seuls les premiers, jusqu’à ce nombre, ont été pris.</translation>
    </message>
</context>
<context>
    <name>ActivityLog</name>
    <message>
        <source>is running</source>
        <translation>en cours</translation>
    </message>
    <message numerus="yes">
        <source>
(%n more bytes of output are not kept)
</source>
        <translation>
            <numerusform>
(%n octet de plus de la sortie n’a pas été conservé)
</numerusform>
            <numerusform>
(%n octets de plus de la sortie n’ont pas été conservés)
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The settings could not be saved</source>
        <translation>Les réglages n’ont pas pu être enregistrés</translation>
    </message>
    <message>
        <source>Error #0008. Application will exit.</source>
        <translation>Erreur #0008. L’application va se fermer.</translation>
    </message>
    <message>
        <source>Error #0009. Application will exit.</source>
        <translation>Erreur #0009. L’application va se fermer.</translation>
    </message>
    <message>
        <source>Error #000a. Application will exit.</source>
        <translation>Erreur #000a. L’application va se fermer.</translation>
    </message>
    <message>
        <source>Error #000b. Application will exit.</source>
        <translation>Erreur #000b. L’application va se fermer.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>A working folder was not emptied, as another Corvalis prepares a disc in it</source>
        <translation>Un dossier de travail n’a pas été vidé, car un autre Corvalis y prépare un disque</translation>
    </message>
    <message>
        <source>A file in a working folder could not be removed</source>
        <translation>Un fichier d’un dossier de travail n’a pas pu être supprimé</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The page could not be opened</source>
        <translation>La page n’a pas pu être ouverte</translation>
    </message>
    <message>
        <source>Open it in a browser: %1</source>
        <translation>Ouvrez-la dans un navigateur&#xa0;: %1</translation>
    </message>
    <message>
        <source>Corvalis %1</source>
        <translation>Corvalis %1</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Free software under the GNU General Public License, version 2 or later.
Built on Qt %1, libburn, libisofs, ffmpeg and mpv.</source>
        <translation>Prépare et grave des disques optiques.

Logiciel libre sous la licence publique générale GNU, version 2 ou ultérieure.
Construit avec Qt %1, libburn, libisofs, ffmpeg et mpv.</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>Ajouter un d&amp;ossier…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>D&amp;ossier</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Durée</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Taille</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln de plus</numerusform>
            <numerusform>et %Ln de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation>Ajouter des fichiers audio à la liste</translation>
    </message>
    <message>
        <source>Add video files to the list</source>
        <translation>Ajouter des fichiers vidéo à la liste</translation>
    </message>
    <message>
        <source>Add the audio files of a folder to the list</source>
        <translation>Ajouter à la liste les fichiers audio d’un dossier</translation>
    </message>
    <message>
        <source>Add the video files of a folder to the list</source>
        <translation>Ajouter à la liste les fichiers vidéo d’un dossier</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) cannot be listed</source>
        <translation>
            <numerusform>%n fichier ne peut pas être ajouté à la liste</numerusform>
            <numerusform>%n fichiers ne peuvent pas être ajoutés à la liste</numerusform>
        </translation>
    </message>
    <message>
        <source>Their names in the folder “%1” are not valid UTF-8 text. Rename them and add the folder again.</source>
        <translation>Leurs noms dans le dossier «&#xa0;%1&#xa0;» ne sont pas du texte UTF-8 valide. Renommez-les et ajoutez de nouveau le dossier.</translation>
    </message>
    <message>
        <source>Add a folder to the list</source>
        <translation>Ajouter un dossier à la liste</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Ajouter des fichiers à la liste</translation>
    </message>
    <message>
        <source>Not everything can go on this list</source>
        <translation>Tout ne peut pas aller dans cette liste</translation>
    </message>
    <message>
        <source>There is no file selected.</source>
        <translation>Aucun fichier n’est sélectionné.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file cannot be played.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The program ffmpeg, which measures files, is missing.</source>
        <translation>Le programme ffmpeg, qui mesure les fichiers, est absent.</translation>
    </message>
    <message>
        <source>Measuring the file took too long and was given up.</source>
        <translation>La mesure du fichier a pris trop de temps et a été abandonnée.</translation>
    </message>
    <message>
        <source>Files cannot be measured</source>
        <translation>Les fichiers ne peuvent pas être mesurés</translation>
    </message>
    <message>
        <source>The program ffmpeg is missing. Install the package “ffmpeg” and add the files again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Le programme ffmpeg est absent. Installez le paquet «&#xa0;ffmpeg&#xa0;» et ajoutez de nouveau les fichiers. Sans lui, les listes n’indiquent aucune durée, et aucun disque audio ou vidéo ne peut être créé.</translation>
    </message>
    <message>
        <source>A part of Corvalis is missing: %1. Install Corvalis again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Une partie de Corvalis est absente&#xa0;: %1. Réinstallez Corvalis. Sans elle, les listes n’indiquent aucune durée, et aucun disque audio ou vidéo ne peut être créé.</translation>
    </message>
    <message>
        <source>Save the list first?</source>
        <translation>Enregistrer d’abord la liste&#xa0;?</translation>
    </message>
    <message>
        <source>The list that is shown has changes that are not saved. What is opened now takes its place.</source>
        <translation>La liste affichée contient des modifications qui ne sont pas enregistrées. Ce qui s’ouvre maintenant prend sa place.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Do Not Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save the list as</source>
        <translation>Enregistrer la liste sous</translation>
    </message>
    <message>
        <source>My disc</source>
        <translation>Mon disque</translation>
    </message>
    <message>
        <source>The list could not be saved</source>
        <translation>La liste n’a pas pu être enregistrée</translation>
    </message>
    <message>
        <source>%1

%2</source>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>Open a saved list</source>
        <translation>Ouvrir une liste enregistrée</translation>
    </message>
    <message>
        <source>It is for a kind of disc that this Corvalis does not know: %1.</source>
        <translation>Elle est destinée à un type de disque que ce Corvalis ne connaît pas&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The list cannot be opened</source>
        <translation>La liste ne peut pas être ouverte</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) of the list cannot be found</source>
        <translation>
            <numerusform>%n élément de la liste est introuvable</numerusform>
            <numerusform>%n éléments de la liste sont introuvables</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in a Folder…</source>
        <translation>Chercher dans un dossier…</translation>
    </message>
    <message>
        <source>A folder in which the missing files are now</source>
        <translation>Un dossier où se trouvent maintenant les fichiers manquants</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Rien n’a été trouvé</translation>
    </message>
    <message>
        <source>No file or folder below %1 has one of the names that are missing.</source>
        <translation>Aucun fichier ni dossier sous %1 ne porte l’un des noms manquants.</translation>
    </message>
    <message>
        <source>&amp;Clear This Menu</source>
        <translation>&amp;Effacer ce menu</translation>
    </message>
    <message>
        <source>The disc could not be changed</source>
        <translation>Le disque n’a pas pu être changé</translation>
    </message>
    <message>
        <source>The folder of written discs could not be opened</source>
        <translation>Le dossier des disques gravés n’a pas pu être ouvert</translation>
    </message>
    <message>
        <source>Warning 0030.</source>
        <translation>Avertissement 0030.</translation>
    </message>
    <message>
        <source>Warning 0040.</source>
        <translation>Avertissement 0040.</translation>
    </message>
    <message>
        <source>No disc</source>
        <translation>Pas de disque</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a rewritable media on the drive and try again.</source>
        <translation>Il n’y a pas de disque dans le lecteur. Insérez un disque réinscriptible et réessayez.</translation>
    </message>
    <message>
        <source>Media not rewritable</source>
        <translation>Disque non réinscriptible</translation>
    </message>
    <message>
        <source>The media on the drive is not rewritable. insert a rewritable media on the drive and try again.</source>
        <translation>Le disque qui est dans le lecteur n’est pas réinscriptible. Insérez un disque réinscriptible et réessayez.</translation>
    </message>
    <message>
        <source>Full erase</source>
        <translation>Effacement complet</translation>
    </message>
    <message>
        <source>Quick erase</source>
        <translation>Effacement rapide</translation>
    </message>
    <message>
        <source>The disc utility cannot be used</source>
        <translation>L’utilitaire de disques ne peut pas être utilisé</translation>
    </message>
    <message>
        <source>There is no disc on the drive. Insert a media on the drive and try again.</source>
        <translation>Il n’y a pas de disque dans le lecteur. Insérez un disque et réessayez.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Informations sur le disque</translation>
    </message>
    <message>
        <source>No audio files on the list</source>
        <translation>Aucun fichier audio dans la liste</translation>
    </message>
    <message>
        <source>There are no audio files on the list. Add audio files to the list and try again.</source>
        <translation>Il n’y a pas de fichiers audio dans la liste. Ajoutez des fichiers audio à la liste et réessayez.</translation>
    </message>
    <message>
        <source>Warning 0060.</source>
        <translation>Avertissement 0060.</translation>
    </message>
    <message>
        <source>Warning 0050.</source>
        <translation>Avertissement 0050.</translation>
    </message>
    <message>
        <source>Warning 0010.</source>
        <translation>Avertissement 0010.</translation>
    </message>
    <message>
        <source>No folders on the list</source>
        <translation>Aucun dossier dans la liste</translation>
    </message>
    <message>
        <source>There are no folders on the list. Add folders to the list and try again.</source>
        <translation>Il n’y a pas de dossiers dans la liste. Ajoutez des dossiers à la liste et réessayez.</translation>
    </message>
    <message>
        <source>Warning 0070.</source>
        <translation>Avertissement 0070.</translation>
    </message>
    <message>
        <source>Warning 0020.</source>
        <translation>Avertissement 0020.</translation>
    </message>
    <message>
        <source>Warning 0090.</source>
        <translation>Avertissement 0090.</translation>
    </message>
    <message>
        <source>There is not enough room to gather the folders</source>
        <translation>Il n’y a pas assez de place pour rassembler les dossiers</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1, and its file system has %2 too little for that. Free some room and try again, or go on: what does not fit will not be on the disc.</source>
        <translation>Le disque est préparé dans le dossier %1, et il manque %2 sur son système de fichiers. Libérez de la place et réessayez, ou continuez&#xa0;: ce qui n’y tient pas ne sera pas sur le disque.</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>The disc is written before the copying of a folder has ended.</source>
        <translation>Le disque est gravé avant la fin de la copie d’un dossier.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>The copying of a folder does not end.</source>
        <translation>La copie d’un dossier ne se termine pas.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a media on the drive to copy and try again.</source>
        <translation>Il n’y a pas de disque dans le lecteur. Insérez le disque à copier et réessayez.</translation>
    </message>
    <message>
        <source>Select a volume to duplicate.</source>
        <translation>Choisissez le volume à copier.</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Copie de %1</translation>
    </message>
    <message>
        <source>Insert a writable media and click OK or click Cancel to stop the media duplication.</source>
        <translation>Insérez un disque vierge et cliquez sur OK, ou sur Annuler pour arrêter la copie du disque.</translation>
    </message>
    <message>
        <source>Media not CD</source>
        <translation>Ce n’est pas un CD</translation>
    </message>
    <message>
        <source>The media on the drive is not a CD. insert a writable CD on the drive and try again.</source>
        <translation>Le disque qui est dans le lecteur n’est pas un CD. Insérez un CD inscriptible et réessayez.</translation>
    </message>
    <message>
        <source>Media not DVD</source>
        <translation>Ce n’est pas un DVD</translation>
    </message>
    <message>
        <source>The media on the drive is not a DVD. insert a writable DVD on the drive and try again.</source>
        <translation>Le disque qui est dans le lecteur n’est pas un DVD. Insérez un DVD inscriptible et réessayez.</translation>
    </message>
    <message>
        <source>Media not Blu-ray</source>
        <translation>Ce n’est pas un Blu-ray</translation>
    </message>
    <message>
        <source>The media on the drive is not a Blu-ray. insert a writable Blu-ray on the drive and try again.</source>
        <translation>Le disque qui est dans le lecteur n’est pas un Blu-ray. Insérez un Blu-ray inscriptible et réessayez.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a writable media on the drive and try again.</source>
        <translation>Il n’y a pas de disque dans le lecteur. Insérez un disque inscriptible et réessayez.</translation>
    </message>
    <message>
        <source>Media not writable</source>
        <translation>Disque non inscriptible</translation>
    </message>
    <message>
        <source>The media on the drive is not writable. insert a writable media on the drive and try again.</source>
        <translation>Le disque qui est dans le lecteur n’est pas inscriptible. Insérez un disque inscriptible et réessayez.</translation>
    </message>
    <message>
        <source>Select a folder to export to ISO format.</source>
        <translation>Choisissez un dossier à exporter au format ISO.</translation>
    </message>
    <message>
        <source>Disc image</source>
        <translation>Image disque</translation>
    </message>
    <message>
        <source>Select a folder to save the Image.iso file.</source>
        <translation>Choisissez le dossier où enregistrer le fichier image.iso.</translation>
    </message>
    <message>
        <source>Select a ISO image to burn to media.</source>
        <translation>Choisissez une image ISO à graver.</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Image %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln track(s)</source>
        <translation>
            <numerusform>%Ln piste</numerusform>
            <numerusform>%Ln pistes</numerusform>
        </translation>
    </message>
    <message>
        <source>Another Corvalis is at work</source>
        <translation>Un autre Corvalis est au travail</translation>
    </message>
    <message>
        <source>It prepares a disc in the folder %1. Wait until that disc is done and try again.</source>
        <translation>Il prépare un disque dans le dossier %1. Attendez que ce disque soit terminé et réessayez.</translation>
    </message>
    <message>
        <source>“%1” was left out: another entry of the list is converted to “%2” too. Rename one of the files and try again.</source>
        <translation>«&#xa0;%1&#xa0;» a été omis&#xa0;: un autre élément de la liste est lui aussi converti en «&#xa0;%2&#xa0;». Renommez l’un des fichiers et réessayez.</translation>
    </message>
    <message>
        <source>A file was left out</source>
        <translation>Un fichier a été omis</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files or folders did not fit where the disc is gathered.</source>
        <translation>
            <numerusform>%Ln fichier ou dossier n’a pas pu tenir là où le disque est rassemblé.</numerusform>
            <numerusform>%Ln fichiers ou dossiers n’ont pas pu tenir là où le disque est rassemblé.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not copied</source>
        <translation>Non copié</translation>
    </message>
    <message>
        <source>No video files on the list</source>
        <translation>Aucun fichier vidéo dans la liste</translation>
    </message>
    <message>
        <source>There are no video files on the list. Add video files to the list and try again.</source>
        <translation>Il n’y a pas de fichiers vidéo dans la liste. Ajoutez des fichiers vidéo à la liste et réessayez.</translation>
    </message>
    <message>
        <source>Warning 0000.</source>
        <translation>Avertissement 0000.</translation>
    </message>
    <message>
        <source>What is missing stays on the list, marked. If it was moved, show a folder in which it is now, at any depth: it is found there by its name.</source>
        <translation>Ce qui manque reste dans la liste, marqué. Si cela a été déplacé, indiquez un dossier où cela se trouve maintenant, à n’importe quel niveau&#xa0;: c’est là qu’on le retrouve par son nom.</translation>
    </message>
    <message>
        <source>Add any files with sound, and playlists, to the list</source>
        <translation>Ajouter à la liste tout fichier contenant du son, et des listes de lecture</translation>
    </message>
    <message>
        <source>Add any films, and playlists, to the list</source>
        <translation>Ajouter à la liste tout film, et des listes de lecture</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Not all of these files can be on one disc</source>
        <translation>Ces fichiers ne peuvent pas tous être sur un même disque</translation>
    </message>
    <message>
        <source>Their names differ in the folder or the ending only. The first of each name on the list is written and the others are left out. Rename them, or take them off the list.</source>
        <translation>Leurs noms ne diffèrent que par le dossier ou l’extension. Le premier de chaque nom dans la liste est gravé et les autres sont omis. Renommez-les, ou retirez-les de la liste.</translation>
    </message>
    <message>
        <source>The title and the performer of “%1” are not on the disc as they are on the list: %2.</source>
        <translation>Le titre et l’interprète de «&#xa0;%1&#xa0;» ne sont pas sur le disque tels qu’ils sont dans la liste&#xa0;: %2.</translation>
    </message>
    <message>
        <source>The names of a track could not be written</source>
        <translation>Les noms d’une piste n’ont pas pu être écrits</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing</source>
        <translation>Le programme dvdauthor est absent</translation>
    </message>
    <message>
        <source>It makes the titles of a DVD for players. Install the package “dvdauthor” and try again, or switch “For DVD players” off in the video settings; the disc then holds files.</source>
        <translation>Il crée les titres d’un DVD pour lecteurs. Installez le paquet «&#xa0;dvdauthor&#xa0;» et réessayez, ou désactivez «&#xa0;Pour lecteurs de DVD&#xa0;» dans les réglages vidéo&#xa0;; le disque contient alors des fichiers.</translation>
    </message>
    <message>
        <source>Too many clips for one DVD</source>
        <translation>Trop de clips pour un seul DVD</translation>
    </message>
    <message numerus="yes">
        <source>A DVD for players has room for 99 titles, and there are %Ln clip(s) on the list. Take some off and try again.</source>
        <translation>
            <numerusform>Un DVD pour lecteurs peut contenir 99 titres, et la liste compte %Ln clip. Retirez-en et réessayez.</numerusform>
            <numerusform>Un DVD pour lecteurs peut contenir 99 titres, et la liste compte %Ln clips. Retirez-en et réessayez.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough room to make the titles</source>
        <translation>Il n’y a pas assez de place pour créer les titres</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1. That may take %2 for these clips, and its file system has %3 left. Free some room and try again, or go on: a clip that finds no room will not be on the disc.</source>
        <translation>Le disque est préparé dans le dossier %1. Ces clips peuvent demander %2, et il reste %3 sur son système de fichiers. Libérez de la place et réessayez, ou continuez&#xa0;: un clip qui ne trouve pas de place ne sera pas sur le disque.</translation>
    </message>
    <message>
        <source>%1: there is no picture in it.</source>
        <translation>%1&#xa0;: il ne contient pas d’image.</translation>
    </message>
    <message>
        <source>%1: its picture could not be read.</source>
        <translation>%1&#xa0;: son image n’a pas pu être lue.</translation>
    </message>
    <message>
        <source>The titles could not be described: %1. The disc is as it was.</source>
        <translation>Les titres n’ont pas pu être décrits&#xa0;: %1. Le disque est tel qu’il était.</translation>
    </message>
    <message>
        <source>dvdauthor told nothing for a long time and was ended.</source>
        <translation>dvdauthor n’a rien dit pendant longtemps et a été interrompu.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln title(s)</source>
        <translation>
            <numerusform>%Ln titre</numerusform>
            <numerusform>%Ln titres</numerusform>
        </translation>
    </message>
    <message>
        <source>The file system of the folder %1 is full.</source>
        <translation>Le système de fichiers du dossier %1 est plein.</translation>
    </message>
    <message>
        <source>The drives could not be listed</source>
        <translation>Les lecteurs n’ont pas pu être listés</translation>
    </message>
    <message>
        <source>The drive is not there any more</source>
        <translation>Le lecteur n’est plus là</translation>
    </message>
    <message>
        <source>“%1” is not connected. Connect it again, or choose another drive in the Drive menu.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas connecté. Reconnectez-le, ou choisissez un autre lecteur dans le menu Lecteur.</translation>
    </message>
    <message>
        <source>The disc cannot have this name</source>
        <translation>Le disque ne peut pas porter ce nom</translation>
    </message>
    <message>
        <source>%1 Change the name and try again.</source>
        <translation>%1 Changez le nom et réessayez.</translation>
    </message>
</context>
<context>
    <name>BatchMedia</name>
    <message>
        <source>%1: the name is not valid UTF-8 text. Rename the file and try again.</source>
        <translation>%1&#xa0;: le nom n’est pas du texte UTF-8 valide. Renommez le fichier et réessayez.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1&#xa0;: aucun fichier ni dossier de ce nom.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no sound in it.</source>
        <translation>%1 n’est pas un fichier que ce disque peut recevoir. Sont acceptés&#xa0;: %2. ffmpeg n’y trouve pas de son.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no film in it.</source>
        <translation>%1 n’est pas un fichier que ce disque peut recevoir. Sont acceptés&#xa0;: %2. ffmpeg n’y trouve pas de film.</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1&#xa0;: aucun fichier ni dossier de ce nom.</translation>
    </message>
    <message>
        <source>%1 is no file or folder, and a data disc is made of these.</source>
        <translation>%1 n’est ni un fichier ni un dossier, et un disque de données ne contient rien d’autre.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2.</source>
        <translation>%1 n’est pas un fichier que ce disque peut recevoir. Sont acceptés&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Adding files: %1 of %2</source>
        <translation>Ajout des fichiers&#xa0;: %1 sur %2</translation>
    </message>
    <message>
        <source>Converting: file %1 of %2, %3 %</source>
        <translation>Conversion&#xa0;: fichier %1 sur %2, %3 %</translation>
    </message>
    <message>
        <source>Gathering the folders</source>
        <translation>Rassemblement des dossiers</translation>
    </message>
    <message>
        <source>--for-players goes with --burn &quot;Video DVD&quot;.</source>
        <translation>--for-players ne va qu’avec --burn &quot;Video DVD&quot;.</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Création des titres et des chapitres</translation>
    </message>
</context>
<context>
    <name>ColourWell</name>
    <message>
        <source>No colour</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>%1: press to choose another colour</source>
        <translation>%1&#xa0;: cliquez pour choisir une autre couleur</translation>
    </message>
    <message>
        <source>No colour: press to choose one</source>
        <translation>Aucune couleur&#xa0;: cliquez pour en choisir une</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Try &apos;corvalis --help&apos;.</source>
        <translation>Essayez «&#xa0;corvalis --help&#xa0;».</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, is not valid UTF-8 text; rename the file and try again.</source>
        <translation>l’argument %1, &quot;%2&quot;, n’est pas du texte UTF-8 valide&#xa0;; renommez le fichier et réessayez.</translation>
    </message>
    <message>
        <source>there is no project &quot;%1&quot;; it is one of %2.</source>
        <translation>il n’y a pas de projet &quot;%1&quot;&#xa0;; choisissez parmi %2.</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Exit status with --burn: 0 the disc was written and everything is on it, 1 it was not written, 2 wrong arguments, 3 it was written but something is not on it; stopped by a signal, it ends by that signal.
A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>Prépare et grave des disques optiques.

Code de sortie avec --burn&#xa0;: 0 le disque a été gravé et tout y est, 1 il n’a pas été gravé, 2 arguments incorrects, 3 il a été gravé mais quelque chose n’y est pas&#xa0;; arrêté par un signal, le programme se termine par ce signal.
Un fichier dont le nom commence par un tiret se place après &quot;--&quot;.</translation>
    </message>
    <message>
        <source>Make a disc of kind &lt;project&gt; from the files and end: %1.</source>
        <translation>Faire des fichiers un disque du type &lt;project&gt;, puis quitter&#xa0;: %1.</translation>
    </message>
    <message>
        <source>project</source>
        <translation>project</translation>
    </message>
    <message>
        <source>Do so in the window, which stays.</source>
        <translation>Le faire dans la fenêtre, qui reste ouverte.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[FICHIER...]</translation>
    </message>
    <message>
        <source>%1 A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>%1 Un fichier dont le nom commence par un tiret se place après &quot;--&quot;.</translation>
    </message>
    <message>
        <source>--burn is there more than once.</source>
        <translation>--burn est donné plus d’une fois.</translation>
    </message>
    <message>
        <source>--show goes with --burn.</source>
        <translation>--show ne va qu’avec --burn.</translation>
    </message>
    <message>
        <source>there is no action &quot;%1&quot;; it is one of %2.</source>
        <translation>il n’y a pas d’action &quot;%1&quot;&#xa0;; choisissez parmi %2.</translation>
    </message>
    <message>
        <source>--action goes without files.</source>
        <translation>--action se donne sans fichiers.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1&#xa0;: aucun fichier ni dossier de ce nom.</translation>
    </message>
    <message>
        <source>Open the files in a window of their own, not in the one that runs.</source>
        <translation>Ouvrir les fichiers dans leur propre fenêtre, et non dans celle qui est déjà ouverte.</translation>
    </message>
    <message>
        <source>Begin &lt;what&gt; in the window: %1.</source>
        <translation>Commencer &lt;what&gt; dans la fenêtre&#xa0;: %1.</translation>
    </message>
    <message>
        <source>what</source>
        <translation>what</translation>
    </message>
    <message>
        <source>--new-window and --action go without --burn.</source>
        <translation>--new-window et --action ne vont pas avec --burn.</translation>
    </message>
    <message>
        <source>Make a Video DVD for DVD players, with titles and chapters, whatever the video settings say.</source>
        <translation>Créer un DVD vidéo pour lecteurs de DVD, avec titres et chapitres, quels que soient les réglages vidéo.</translation>
    </message>
    <message>
        <source>Files, for a data disc also folders; the tracks of an audio CD keep their order. Without --burn they are opened in the window: music, films, folders, a disc image or a saved list.</source>
        <translation>Fichiers, ou aussi dossiers pour un disque de données&#xa0;; les pistes d’un CD audio gardent leur ordre. Sans --burn, ils sont ouverts dans la fenêtre&#xa0;: musique, films, dossiers, une image disque ou une liste enregistrée.</translation>
    </message>
</context>
<context>
    <name>DiscName</name>
    <message>
        <source>Where only plain letters are known, “%1” becomes “_”.</source>
        <translation>Là où seules les lettres simples sont connues, «&#xa0;%1&#xa0;» devient «&#xa0;_&#xa0;».</translation>
    </message>
    <message>
        <source>On Windows “%1” becomes “_”.</source>
        <translation>Sous Windows, «&#xa0;%1&#xa0;» devient «&#xa0;_&#xa0;».</translation>
    </message>
    <message>
        <source>Windows shows “%1”.</source>
        <translation>Windows affiche «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>Le nom contient un caractère qu’on ne peut pas voir.</translation>
    </message>
    <message>
        <source>The name has %1 characters; a disc takes %2.</source>
        <translation>Le nom a %1 caractères&#xa0;; un disque en accepte %2.</translation>
    </message>
</context>
<context>
    <name>DiscNameField</name>
    <message>
        <source>Disc name</source>
        <translation>Nom du disque</translation>
    </message>
    <message>
        <source>Chosen for you</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Name of the disc</source>
        <translation>Nom du disque</translation>
    </message>
    <message>
        <source>What the disc is called where it is put in</source>
        <translation>Le nom que porte le disque là où on l’insère</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>characters</comment>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>DiscRoom</name>
    <message>
        <source>The %1 in the drive holds about %2.</source>
        <translation>Le %1 qui est dans le lecteur contient environ %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive holds %2.</source>
        <translation>Le %1 qui est dans le lecteur contient %2.</translation>
    </message>
    <message>
        <source>The list is too long by %1.</source>
        <translation>La liste est trop longue de %1.</translation>
    </message>
    <message>
        <source>The list is too large by %1.</source>
        <translation>La liste dépasse de %1.</translation>
    </message>
    <message>
        <source>The list just about fits.</source>
        <translation>La liste tient tout juste.</translation>
    </message>
    <message>
        <source>The list fits.</source>
        <translation>La liste tient.</translation>
    </message>
    <message>
        <source>The %1 in the drive cannot be written.</source>
        <translation>Le %1 qui est dans le lecteur ne peut pas être gravé.</translation>
    </message>
    <message>
        <source>In the drive is a %1; this list needs a %2.</source>
        <translation>Il y a un %1 dans le lecteur&#xa0;; cette liste demande un %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive is erased before it is written.</source>
        <translation>Le %1 qui est dans le lecteur est effacé avant d’être gravé.</translation>
    </message>
</context>
<context>
    <name>DriveNews</name>
    <message>
        <source>The drive “%1” is connected.</source>
        <translation>Le lecteur «&#xa0;%1&#xa0;» est connecté.</translation>
    </message>
    <message>
        <source>A drive was plugged in: “%1”.</source>
        <translation>Un lecteur a été branché&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <translation>Utiliser ce lecteur</translation>
    </message>
    <message>
        <source>Write discs with this drive from now on</source>
        <translation>Graver désormais les disques avec ce lecteur</translation>
    </message>
    <message>
        <source>No other drive was found.</source>
        <translation>Aucun autre lecteur n’a été trouvé.</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non connecté)</translation>
    </message>
    <message>
        <source>The drive “%1” is not connected any more. Connect it again, or choose another one in the Drive menu.</source>
        <translation>Le lecteur «&#xa0;%1&#xa0;» n’est plus connecté. Reconnectez-le, ou choisissez-en un autre dans le menu Lecteur.</translation>
    </message>
    <message>
        <source>You may not use this drive</source>
        <translation>Vous n’avez pas le droit d’utiliser ce lecteur</translation>
    </message>
    <message>
        <source>Wh&amp;y…</source>
        <translation>Po&amp;urquoi…</translation>
    </message>
    <message>
        <source>Tell why, and how to change it</source>
        <translation>Dire pourquoi, et comment y remédier</translation>
    </message>
    <message>
        <source>You may not use the drive “%1”.</source>
        <translation>Vous n’avez pas le droit d’utiliser le lecteur «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Why…</source>
        <translation>Pourquoi…</translation>
    </message>
</context>
<context>
    <name>DriveNotice</name>
    <message>
        <source>Close this notice</source>
        <translation>Fermer cet avis</translation>
    </message>
</context>
<context>
    <name>FolderStaging</name>
    <message>
        <source>is the folder in which the disc is gathered, and is left out</source>
        <translation>est le dossier où le disque est rassemblé, et est omis</translation>
    </message>
    <message>
        <source>is no file, folder or link, and is left out</source>
        <translation>n’est ni un fichier, ni un dossier, ni un lien, et est omis</translation>
    </message>
    <message>
        <source>its copy was moved while it was being made</source>
        <translation>sa copie a été déplacée pendant qu’elle se faisait</translation>
    </message>
    <message>
        <source>has no name under which it could be copied</source>
        <translation>n’a pas de nom sous lequel être copié</translation>
    </message>
    <message>
        <source>was moved while it was being copied</source>
        <translation>a été déplacé pendant sa copie</translation>
    </message>
</context>
<context>
    <name>FolderTree</name>
    <message>
        <source>was moved while it was being emptied</source>
        <translation>a été déplacé pendant qu’il était vidé</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too large by %4</source>
        <translation>Espace occupé&#xa0;: %1 sur %2 (%3&#xa0;%), %4 de trop</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too long by %4</source>
        <translation>Espace occupé&#xa0;: %1 sur %2 (%3&#xa0;%), trop long de %4</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), nearly full</source>
        <translation>Espace occupé&#xa0;: %1 sur %2 (%3&#xa0;%), presque plein</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %)</source>
        <translation>Espace occupé&#xa0;: %1 sur %2 (%3&#xa0;%)</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>It is damaged, or no list of Corvalis: %1.</source>
        <translation>Elle est endommagée, ou n’est pas une liste de Corvalis&#xa0;: %1.</translation>
    </message>
    <message>
        <source>entry %1 has no full path</source>
        <translation>l’élément %1 n’a pas de chemin complet</translation>
    </message>
    <message>
        <source>entry %1 has characters that no name can have</source>
        <translation>l’élément %1 contient des caractères qu’aucun nom ne peut avoir</translation>
    </message>
    <message>
        <source>the relative path of entry %1 is none</source>
        <translation>le chemin relatif de l’élément %1 n’en est pas un</translation>
    </message>
    <message>
        <source>It has %1 entries, and a list may have %2.</source>
        <translation>Elle compte %1 éléments, et une liste peut en avoir %2.</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 à l’octet %2</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>elle ne dit pas ce qu’elle est</translation>
    </message>
    <message>
        <source>It was saved by a newer version of Corvalis. Bring this one up to date to open it.</source>
        <translation>Elle a été enregistrée par une version plus récente de Corvalis. Mettez celle-ci à jour pour l’ouvrir.</translation>
    </message>
    <message>
        <source>the kind or the entries are missing</source>
        <translation>le type ou les éléments sont absents</translation>
    </message>
    <message>
        <source>There is no such file any more.</source>
        <translation>Ce fichier n’existe plus.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is far too large for a list.</source>
        <translation>Il est beaucoup trop grand pour une liste.</translation>
    </message>
</context>
<context>
    <name>ListTableModel</name>
    <message>
        <source>not measured</source>
        <translation>non mesuré</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Performer</source>
        <translation>Interprète</translation>
    </message>
</context>
<context>
    <name>ListTableView</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln ligne</numerusform>
            <numerusform>%Ln lignes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Corvalis</source>
        <translation>Corvalis</translation>
    </message>
    <message>
        <source>Kinds of disc and tools</source>
        <translation>Types de disque et outils</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Add music files to the list (Ctrl+O)</source>
        <translation>Ajouter des fichiers de musique à la liste (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Add the music files that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Ajouter les fichiers de musique placés directement dans un dossier (Ctrl+Maj+O)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Take the selected rows off the list (Del)</source>
        <translation>Retirer de la liste les lignes sélectionnées (Suppr)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Empty the list (Ctrl+Shift+Del)</source>
        <translation>Vider la liste (Ctrl+Maj+Suppr)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Play the selected file (Ctrl+P)</source>
        <translation>Lire le fichier sélectionné (Ctrl+P)</translation>
    </message>
    <message>
        <source>New Disc</source>
        <translation>Nouveau disque</translation>
    </message>
    <message>
        <source>Choose another kind of disc and begin with an empty list (Ctrl+N)</source>
        <translation>Choisir un autre type de disque et commencer avec une liste vide (Ctrl+N)</translation>
    </message>
    <message>
        <source>Copy Disc</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy a disc onto a blank one with this drive (Ctrl+D)</source>
        <translation>Copier un disque sur un disque vierge avec ce lecteur (Ctrl+D)</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD audio</translation>
    </message>
    <message>
        <source>A disc for every CD player: 74 minutes of sound (Alt+1)</source>
        <translation>Un disque pour tout lecteur de CD&#xa0;: 74 minutes de son (Alt+1)</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>CD MP3</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours (Alt+2)</source>
        <translation>Des fichiers MP3 sur un CD&#xa0;: neuf heures et demie (Alt+2)</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>DVD MP3</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours (Alt+3)</source>
        <translation>Des fichiers MP3 sur un DVD&#xa0;: 38 heures (Alt+3)</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Fichiers audio</translation>
    </message>
    <message>
        <source>Add music with “Add Files”, or drop it here.
The order of the list is the order on the disc.</source>
        <translation>Ajoutez de la musique avec «&#xa0;Fichiers&#xa0;», ou déposez-la ici.
L’ordre de la liste est l’ordre sur le disque.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Add video clips to the list (Ctrl+O)</source>
        <translation>Ajouter des clips vidéo à la liste (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add the video clips that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Ajouter les clips vidéo placés directement dans un dossier (Ctrl+Maj+O)</translation>
    </message>
    <message>
        <source>Video Settings</source>
        <translation>Réglages vidéo</translation>
    </message>
    <message>
        <source>Choose the TV standard and the audio format of video discs (Ctrl+,)</source>
        <translation>Choisir la norme TV et le format audio des disques vidéo (Ctrl+,)</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD vidéo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours (Alt+1)</source>
        <translation>Des clips MPEG-2 sur un DVD&#xa0;: deux heures et demie (Alt+1)</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Blu-ray vidéo</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Fichiers vidéo</translation>
    </message>
    <message>
        <source>Add clips with “Add Files”, or drop them here.</source>
        <translation>Ajoutez des clips avec «&#xa0;Fichiers&#xa0;», ou déposez-les ici.</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Add single files to the list (Ctrl+Shift+F)</source>
        <translation>Ajouter des fichiers isolés à la liste (Ctrl+Maj+F)</translation>
    </message>
    <message>
        <source>Add a folder to the list (Ctrl+O)</source>
        <translation>Ajouter un dossier à la liste (Ctrl+O)</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de données</translation>
    </message>
    <message>
        <source>Folders on a CD: 667 MB (Alt+1)</source>
        <translation>Des dossiers sur un CD&#xa0;: 667 MB (Alt+1)</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>DVD de données</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB (Alt+2)</source>
        <translation>Des dossiers sur un DVD&#xa0;: 4,7 GB (Alt+2)</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Blu-ray de données</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB (Alt+3)</source>
        <translation>Des dossiers sur un disque Blu-ray&#xa0;: 25 GB (Alt+3)</translation>
    </message>
    <message>
        <source>Data folders</source>
        <translation>Dossiers de données</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Make an ISO Image</source>
        <translation>Créer une image ISO</translation>
    </message>
    <message>
        <source>Choose a folder and where its image is saved (Ctrl+M)</source>
        <translation>Choisir un dossier et l’endroit où enregistrer son image (Ctrl+M)</translation>
    </message>
    <message>
        <source>Turn a folder into an image file that can be kept, sent and written later.</source>
        <translation>Faites d’un dossier un fichier image à conserver, à envoyer et à graver plus tard.</translation>
    </message>
    <message>
        <source>Write an ISO Image</source>
        <translation>Graver une image ISO</translation>
    </message>
    <message>
        <source>Choose an image file and write it (Ctrl+Shift+B)</source>
        <translation>Choisir un fichier image et le graver (Ctrl+Maj+B)</translation>
    </message>
    <message>
        <source>Write an .iso, .img or .dmg file to the disc in the drive.</source>
        <translation>Gravez un fichier .iso, .img ou .dmg sur le disque qui est dans le lecteur.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Erase Disc</source>
        <translation>Effacer le disque</translation>
    </message>
    <message>
        <source>Erase the rewritable disc in the drive</source>
        <translation>Effacer le disque réinscriptible qui est dans le lecteur</translation>
    </message>
    <message>
        <source>Destroys everything on the rewritable disc in the drive. It does not ask again.</source>
        <translation>Détruit tout ce que contient le disque réinscriptible du lecteur. Sans autre question.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Informations sur le disque</translation>
    </message>
    <message>
        <source>Show the state of the disc (Ctrl+I)</source>
        <translation>Afficher l’état du disque (Ctrl+I)</translation>
    </message>
    <message>
        <source>Shows what kind of disc is in the drive, how full it is and whether it can be written.</source>
        <translation>Indique le type du disque qui est dans le lecteur, son remplissage et s’il peut être gravé.</translation>
    </message>
    <message>
        <source>Eject Disc</source>
        <translation>Éjecter le disque</translation>
    </message>
    <message>
        <source>Open the tray (Ctrl+E)</source>
        <translation>Ouvrir le tiroir (Ctrl+E)</translation>
    </message>
    <message>
        <source>Opens the tray of the selected drive.</source>
        <translation>Ouvre le tiroir du lecteur choisi.</translation>
    </message>
    <message>
        <source>Load Disc</source>
        <translation>Charger le disque</translation>
    </message>
    <message>
        <source>Close the tray (Ctrl+Shift+E)</source>
        <translation>Fermer le tiroir (Ctrl+Maj+E)</translation>
    </message>
    <message>
        <source>Closes the tray of the selected drive.</source>
        <translation>Ferme le tiroir du lecteur choisi.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Choose the colours of this window (Ctrl+Shift+C)</source>
        <translation>Choisir les couleurs de cette fenêtre (Ctrl+Maj+C)</translation>
    </message>
    <message>
        <source>Choose the colours of this window and its lists.</source>
        <translation>Choisissez les couleurs de cette fenêtre et de ses listes.</translation>
    </message>
    <message>
        <source>Activity Log</source>
        <translation>Journal d’activité</translation>
    </message>
    <message>
        <source>Show what was run and how it ended (Ctrl+L)</source>
        <translation>Afficher ce qui a été exécuté et comment cela s’est terminé (Ctrl+L)</translation>
    </message>
    <message>
        <source>Every command that was run, with all that it said.</source>
        <translation>Chaque commande exécutée, avec tout ce qu’elle a affiché.</translation>
    </message>
    <message>
        <source>Space occupied</source>
        <translation>Espace occupé</translation>
    </message>
    <message>
        <source>Space occupied on the disc</source>
        <translation>Espace occupé sur le disque</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Graver un CD audio</translation>
    </message>
    <message>
        <source>Write the list to the disc in the drive (Ctrl+B)</source>
        <translation>Graver la liste sur le disque qui est dans le lecteur (Ctrl+B)</translation>
    </message>
    <message>
        <source>&amp;Disc</source>
        <translation>&amp;Disque</translation>
    </message>
    <message>
        <source>&amp;Kind of Disc</source>
        <translation>&amp;Type de disque</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Listes &amp;récentes</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Édi&amp;tion</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>Trier &amp;par</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>D&amp;rive</source>
        <translation>&amp;Lecteur</translation>
    </message>
    <message>
        <source>&amp;Insert Blank Disc</source>
        <translation>&amp;Insérer un disque vierge</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Erase Disc</source>
        <translation>&amp;Effacer le disque</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;New Disc…</source>
        <translation>&amp;Nouveau disque…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>O&amp;uvrir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Sa&amp;ve As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Find &amp;Missing Files…</source>
        <translation>Chercher les fichiers &amp;manquants…</translation>
    </message>
    <message>
        <source>Add F&amp;iles…</source>
        <translation>Ajouter des &amp;fichiers…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>Ajouter un d&amp;ossier…</translation>
    </message>
    <message>
        <source>&amp;Copy Disc…</source>
        <translation>&amp;Copier un disque…</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Graver</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Durée</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Taille</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Chemin</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Ret&amp;irer</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Vider la li&amp;ste</translation>
    </message>
    <message>
        <source>Select A&amp;ll</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Déplacer vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Déplacer vers le &amp;bas</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Lire</translation>
    </message>
    <message>
        <source>&amp;Video Settings…</source>
        <translation>Réglages &amp;vidéo…</translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation>&amp;Audio</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Vidéo</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Données</translation>
    </message>
    <message>
        <source>&amp;ISO</source>
        <translation>&amp;ISO</translation>
    </message>
    <message>
        <source>&amp;CD-R</source>
        <translation>&amp;CD-R</translation>
    </message>
    <message>
        <source>CD-R&amp;W</source>
        <translation>CD-R&amp;W</translation>
    </message>
    <message>
        <source>&amp;DVD-R</source>
        <translation>&amp;DVD-R</translation>
    </message>
    <message>
        <source>D&amp;VD+R</source>
        <translation>D&amp;VD+R</translation>
    </message>
    <message>
        <source>DVD-&amp;RW</source>
        <translation>DVD-&amp;RW</translation>
    </message>
    <message>
        <source>DVD&amp;+RW</source>
        <translation>DVD&amp;+RW</translation>
    </message>
    <message>
        <source>&amp;BD-R</source>
        <translation>&amp;BD-R</translation>
    </message>
    <message>
        <source>BD-R&amp;E</source>
        <translation>BD-R&amp;E</translation>
    </message>
    <message>
        <source>No Drive Found</source>
        <translation>Aucun lecteur trouvé</translation>
    </message>
    <message>
        <source>Drive 2</source>
        <translation>Lecteur 2</translation>
    </message>
    <message>
        <source>Drive 3</source>
        <translation>Lecteur 3</translation>
    </message>
    <message>
        <source>Drive 4</source>
        <translation>Lecteur 4</translation>
    </message>
    <message>
        <source>Drive 5</source>
        <translation>Lecteur 5</translation>
    </message>
    <message>
        <source>Drive 6</source>
        <translation>Lecteur 6</translation>
    </message>
    <message>
        <source>&amp;Remove Disc</source>
        <translation>&amp;Retirer le disque</translation>
    </message>
    <message>
        <source>Show &amp;Written Discs</source>
        <translation>Afficher les disques &amp;gravés</translation>
    </message>
    <message>
        <source>Erase &amp;Completely: overwrite everything on the disc</source>
        <translation>Effacer &amp;complètement&#xa0;: écraser tout ce que contient le disque</translation>
    </message>
    <message>
        <source>Erase &amp;Quickly: make everything on the disc unreachable</source>
        <translation>Effacer &amp;rapidement&#xa0;: rendre tout ce que contient le disque inaccessible</translation>
    </message>
    <message>
        <source>&amp;Make an ISO Image…</source>
        <translation>&amp;Créer une image ISO…</translation>
    </message>
    <message>
        <source>&amp;Write an ISO Image…</source>
        <translation>&amp;Graver une image ISO…</translation>
    </message>
    <message>
        <source>E&amp;ject Disc</source>
        <translation>É&amp;jecter le disque</translation>
    </message>
    <message>
        <source>&amp;Load Disc</source>
        <translation>C&amp;harger le disque</translation>
    </message>
    <message>
        <source>Disc &amp;Information</source>
        <translation>&amp;Informations sur le disque</translation>
    </message>
    <message>
        <source>C&amp;olours…</source>
        <translation>Coule&amp;urs…</translation>
    </message>
    <message>
        <source>&amp;Activity Log</source>
        <translation>Journal d’&amp;activité</translation>
    </message>
    <message>
        <source>Corvalis &amp;Home Page</source>
        <translation>&amp;Site de Corvalis</translation>
    </message>
    <message>
        <source>&amp;Makers’ Home Page</source>
        <translation>Site de l’é&amp;diteur</translation>
    </message>
    <message>
        <source>As&amp;k for Support</source>
        <translation>Demander de l’&amp;aide</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Politique de confidentialité</translation>
    </message>
    <message>
        <source>&amp;Debug Mode</source>
        <translation>Mode de dé&amp;bogage</translation>
    </message>
    <message>
        <source>&amp;About Corvalis</source>
        <translation>À pr&amp;opos de Corvalis</translation>
    </message>
    <message>
        <source>Add folders and files with the buttons above, or drop them here.</source>
        <translation>Ajoutez des dossiers et des fichiers avec les boutons du haut, ou déposez-les ici.</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>&amp;Guide de l’utilisateur</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc, as files for computers and for players that play files: 23 hours (Alt+2)</source>
        <translation>Des clips MPEG-2 sur un disque Blu-ray, en fichiers pour ordinateurs et lecteurs qui lisent des fichiers&#xa0;: 23 heures (Alt+2)</translation>
    </message>
    <message>
        <source>Add O&amp;ther Files…</source>
        <translation>Ajouter d’autres fic&amp;hiers…</translation>
    </message>
    <message>
        <source>Add files of any ending with sound, or with a film, in them, and playlists</source>
        <translation>Ajouter des fichiers de toute extension contenant du son ou un film, et des listes de lecture</translation>
    </message>
    <message>
        <source>&amp;Write Titles on Audio CDs</source>
        <translation>Écrire &amp;les titres sur les CD audio</translation>
    </message>
    <message>
        <source>Audio CDs get the titles and performers of their tracks as CD-TEXT</source>
        <translation>Les CD audio reçoivent les titres et les interprètes de leurs pistes en CD-TEXT</translation>
    </message>
    <message>
        <source>&amp;Edit Title</source>
        <translation>Modifier le titr&amp;e</translation>
    </message>
    <message>
        <source>Type another title for the row; Tab goes on to the performer</source>
        <translation>Saisir un autre titre pour la ligne&#xa0;; Tab passe à l’interprète</translation>
    </message>
    <message>
        <source>Title and &amp;Performer</source>
        <translation>Titre et inter&amp;prète</translation>
    </message>
    <message>
        <source>Show the titles and performers of audio files on the list</source>
        <translation>Afficher dans la liste les titres et interprètes des fichiers audio</translation>
    </message>
    <message>
        <source>Writing &amp;Speed</source>
        <translation>&amp;Vitesse de gravure</translation>
    </message>
    <message>
        <source>&amp;Look for Drives</source>
        <translation>Chercher les &amp;lecteurs</translation>
    </message>
    <message>
        <source>Ask which drives there are now</source>
        <translation>Voir quels lecteurs sont là maintenant</translation>
    </message>
</context>
<context>
    <name>Measuring</name>
    <message>
        <source>There is no such file any more.</source>
        <translation>Ce fichier n’existe plus.</translation>
    </message>
    <message>
        <source>You have no permission to read this file.</source>
        <translation>Vous n’avez pas le droit de lire ce fichier.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>What the file says of itself is not valid UTF-8 text.</source>
        <translation>Ce que le fichier dit de lui-même n’est pas du texte UTF-8 valide.</translation>
    </message>
    <message>
        <source>The file does not say how long it is.</source>
        <translation>Le fichier ne dit pas combien de temps il dure.</translation>
    </message>
    <message>
        <source>The file cannot be read as sound or film: %1.</source>
        <translation>Le fichier ne peut être lu ni comme son ni comme film&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>The file is not there.</source>
        <translation>Le fichier n’est pas là.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>You have no permission to read the file.</source>
        <translation>Vous n’avez pas le droit de lire le fichier.</translation>
    </message>
    <message>
        <source>The media library could not be started.</source>
        <translation>La bibliothèque multimédia n’a pas pu être démarrée.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Le fichier n’a pas pu être ouvert.</translation>
    </message>
</context>
<context>
    <name>NameColumns</name>
    <message>
        <source>Return keeps what was typed, Escape what was there before</source>
        <translation>Entrée garde ce qui a été saisi, Échap ce qu’il y avait avant</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>et %Ln de plus</numerusform>
            <numerusform>et %Ln de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Operation complete</source>
        <translation>Opération terminée</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>The disc was written, but some things are not on it</source>
        <translation>Le disque a été gravé, mais il y manque quelque chose</translation>
    </message>
    <message>
        <source>The image was made, but some things are not in it</source>
        <translation>L’image a été créée, mais il y manque quelque chose</translation>
    </message>
    <message>
        <source>The disc was erased, but not everything went well</source>
        <translation>Le disque a été effacé, mais tout ne s’est pas bien passé</translation>
    </message>
    <message>
        <source>The disc was not written</source>
        <translation>Le disque n’a pas été gravé</translation>
    </message>
    <message>
        <source>The image was not made</source>
        <translation>L’image n’a pas été créée</translation>
    </message>
    <message>
        <source>The disc was not erased</source>
        <translation>Le disque n’a pas été effacé</translation>
    </message>
</context>
<context>
    <name>PreviewPlayer</name>
    <message>
        <source>The preview player is not installed completely: %1. Install Corvalis again together with its preview player.</source>
        <translation>Le lecteur d’aperçu n’est pas complètement installé&#xa0;: %1. Réinstallez Corvalis avec son lecteur d’aperçu.</translation>
    </message>
</context>
<context>
    <name>ProjectType</name>
    <message>
        <source>Audio CD</source>
        <translation>CD audio</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Graver un CD audio</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>CD MP3</translation>
    </message>
    <message>
        <source>Burn MP3 CD</source>
        <translation>Graver un CD MP3</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>DVD MP3</translation>
    </message>
    <message>
        <source>Burn MP3 DVD</source>
        <translation>Graver un DVD MP3</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD vidéo</translation>
    </message>
    <message>
        <source>Burn Video DVD</source>
        <translation>Graver un DVD vidéo</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Blu-ray vidéo</translation>
    </message>
    <message>
        <source>Burn Video Blu-ray</source>
        <translation>Graver un Blu-ray vidéo</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de données</translation>
    </message>
    <message>
        <source>Burn Data CD</source>
        <translation>Graver un CD de données</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>DVD de données</translation>
    </message>
    <message>
        <source>Burn Data DVD</source>
        <translation>Graver un DVD de données</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Blu-ray de données</translation>
    </message>
    <message>
        <source>Burn Data Blu-ray</source>
        <translation>Graver un Blu-ray de données</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Some files cannot be used</source>
        <translation>Certains fichiers ne peuvent pas être utilisés</translation>
    </message>
    <message>
        <source>Only files with these extensions can: .%1</source>
        <translation>Seuls les fichiers portant ces extensions le peuvent&#xa0;: .%1</translation>
    </message>
    <message>
        <source>Their names are not valid UTF-8 text. Rename them and try again.</source>
        <translation>Leurs noms ne sont pas du texte UTF-8 valide. Renommez-les et réessayez.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>SpaceOccupiedView</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>SpeedMenu</name>
    <message>
        <source>&amp;Fastest</source>
        <translation>Le plus &amp;rapide possible</translation>
    </message>
    <message>
        <source>%1×</source>
        <comment>a factor of the speed, as in 16×</comment>
        <translation>%1×</translation>
    </message>
    <message>
        <source>The drive does not answer</source>
        <translation>Le lecteur ne répond pas</translation>
    </message>
    <message>
        <source>The drive is being asked…</source>
        <translation>Le lecteur est interrogé…</translation>
    </message>
    <message>
        <source>There is no disc in the drive</source>
        <translation>Il n’y a pas de disque dans le lecteur</translation>
    </message>
    <message>
        <source>The drive names no speeds for its disc</source>
        <translation>Le lecteur n’indique aucune vitesse pour son disque</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
</context>
<context>
    <name>StatusSheets</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>StopBar</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>Stop &amp;Now</source>
        <translation>Arrêter &amp;maintenant</translation>
    </message>
    <message>
        <source>Asks before it stops (Escape)</source>
        <translation>Demande confirmation avant d’arrêter (Échap)</translation>
    </message>
    <message>
        <source>Takes the question back; the work has gone on meanwhile (Escape)</source>
        <translation>Annule la question&#xa0;; le travail a continué entre-temps (Échap)</translation>
    </message>
    <message>
        <source>Ends the work at once</source>
        <translation>Met fin au travail immédiatement</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
    <message>
        <source>Stop now?</source>
        <translation>Arrêter maintenant&#xa0;?</translation>
    </message>
</context>
<context>
    <name>Surface</name>
    <message>
        <source>corvalis: there is no display for the window. Start it on a desktop, or use --burn, which needs none.</source>
        <translation>corvalis&#xa0;: il n’y a pas d’écran pour la fenêtre. Lancez-le sur un bureau, ou utilisez --burn, qui n’en a pas besoin.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>Less than a minute left</source>
        <translation>Moins d’une minute restante</translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Environ une minute restante</translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Environ %n minute restante</numerusform>
            <numerusform>Environ %n minutes restantes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Environ %n heure restante</numerusform>
            <numerusform>Environ %n heures restantes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimeSlider</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>TrackNames</name>
    <message>
        <source>The converted file is not complete</source>
        <translation>Le fichier converti n’est pas complet</translation>
    </message>
</context>
<context>
    <name>Window_Activity_Log</name>
    <message>
        <source>Activity Log</source>
        <translation>Journal d’activité</translation>
    </message>
    <message>
        <source>Commands that were run</source>
        <translation>Commandes exécutées</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>What the command said</source>
        <translation>Ce que la commande a affiché</translation>
    </message>
    <message>
        <source>Choose a command to see what it said.</source>
        <translation>Choisissez une commande pour voir ce qu’elle a affiché.</translation>
    </message>
    <message>
        <source>Everything that was run since the program started.</source>
        <translation>Tout ce qui a été exécuté depuis le démarrage du programme.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the selected entries, or the whole log</source>
        <translation>Copier les entrées sélectionnées, ou tout le journal</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Enregistrer…</translation>
    </message>
    <message>
        <source>Save the whole log as a text file</source>
        <translation>Enregistrer tout le journal dans un fichier texte</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>en cours</translation>
    </message>
    <message>
        <source>Save the activity log</source>
        <translation>Enregistrer le journal d’activité</translation>
    </message>
    <message>
        <source>The log could not be saved</source>
        <translation>Le journal n’a pas pu être enregistré</translation>
    </message>
</context>
<context>
    <name>Window_Alert</name>
    <message>
        <source>Note</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
</context>
<context>
    <name>Window_Colors</name>
    <message>
        <source>Which colours should the window have?</source>
        <translation>Quelles couleurs la fenêtre doit-elle avoir&#xa0;?</translation>
    </message>
    <message>
        <source>List &amp;background</source>
        <translation>&amp;Fond des listes</translation>
    </message>
    <message>
        <source>List background</source>
        <translation>Fond des listes</translation>
    </message>
    <message>
        <source>List te&amp;xt</source>
        <translation>&amp;Texte des listes</translation>
    </message>
    <message>
        <source>List text</source>
        <translation>Texte des listes</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Barres d’outils</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barres d’outils</translation>
    </message>
    <message>
        <source>Bottom b&amp;ar</source>
        <translation>Barre du b&amp;as</translation>
    </message>
    <message>
        <source>Bottom bar</source>
        <translation>Barre du bas</translation>
    </message>
    <message>
        <source>Occupied &amp;space</source>
        <translation>&amp;Espace occupé</translation>
    </message>
    <message>
        <source>Occupied space</source>
        <translation>Espace occupé</translation>
    </message>
    <message>
        <source>A&amp;lternate the colours of the rows</source>
        <translation>A&amp;lterner la couleur des lignes</translation>
    </message>
    <message>
        <source>Make every other row of the lists a little lighter or darker</source>
        <translation>Rendre une ligne sur deux des listes un peu plus claire ou plus sombre</translation>
    </message>
    <message>
        <source>While the rows alternate, the lists are white on a light desktop and black on a dark one.</source>
        <translation>Quand les lignes alternent, les listes sont blanches sur un bureau clair et noires sur un bureau sombre.</translation>
    </message>
    <message>
        <source>Use these colours</source>
        <translation>Utiliser ces couleurs</translation>
    </message>
    <message>
        <source>Close and leave the window as it is (Escape)</source>
        <translation>Fermer et laisser la fenêtre telle quelle (Échap)</translation>
    </message>
    <message>
        <source>Original Colo&amp;urs</source>
        <translation>Couleurs d’o&amp;rigine</translation>
    </message>
    <message>
        <source>Bring back the colours that Corvalis came with, and keep them even if you cancel</source>
        <translation>Rétablir les couleurs d’origine de Corvalis et les garder même si vous annulez</translation>
    </message>
</context>
<context>
    <name>Window_Data_Copy_Folders</name>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Copying the folders</source>
        <translation>Copie des dossiers</translation>
    </message>
    <message>
        <source>They are gathered in one place before the disc is written. This takes a minute or more for each folder.</source>
        <translation>Ils sont rassemblés en un seul endroit avant que le disque soit gravé. Cela prend une minute ou plus pour chaque dossier.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 sur %3)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2)</source>
        <translation>Fichiers copiés&#xa0;: %1 (%2)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2 of %3)</source>
        <translation>Fichiers copiés&#xa0;: %1 (%2 sur %3)</translation>
    </message>
</context>
<context>
    <name>Window_New_Disc</name>
    <message>
        <source>What kind of disc do you want to make?</source>
        <translation>Quel type de disque voulez-vous créer&#xa0;?</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>&amp;Audio CD</source>
        <translation>CD &amp;audio</translation>
    </message>
    <message>
        <source>Plays in every CD player: 74 minutes</source>
        <translation>Se lit dans tout lecteur de CD&#xa0;: 74 minutes</translation>
    </message>
    <message>
        <source>&amp;MP3 CD</source>
        <translation>CD &amp;MP3</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours</source>
        <translation>Des fichiers MP3 sur un CD&#xa0;: neuf heures et demie</translation>
    </message>
    <message>
        <source>MP&amp;3 DVD</source>
        <translation>DVD MP&amp;3</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours</source>
        <translation>Des fichiers MP3 sur un DVD&#xa0;: 38 heures</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>&amp;Video DVD</source>
        <translation>DVD &amp;vidéo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours</source>
        <translation>Des clips MPEG-2 sur un DVD&#xa0;: deux heures et demie</translation>
    </message>
    <message>
        <source>Vid&amp;eo Blu-ray</source>
        <translation>Blu-ray vid&amp;éo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc: 23 hours</source>
        <translation>Des clips MPEG-2 sur un disque Blu-ray&#xa0;: 23 heures</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Data &amp;CD</source>
        <translation>&amp;CD de données</translation>
    </message>
    <message>
        <source>Folders on a CD: 700 MB</source>
        <translation>Des dossiers sur un CD&#xa0;: 700 MB</translation>
    </message>
    <message>
        <source>&amp;Data DVD</source>
        <translation>&amp;DVD de données</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB</source>
        <translation>Des dossiers sur un DVD&#xa0;: 4,7 GB</translation>
    </message>
    <message>
        <source>Data &amp;Blu-ray</source>
        <translation>&amp;Blu-ray de données</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB</source>
        <translation>Des dossiers sur un disque Blu-ray&#xa0;: 25 GB</translation>
    </message>
    <message>
        <source>OK empties the list.</source>
        <translation>OK vide la liste.</translation>
    </message>
</context>
<context>
    <name>Window_Open_Panel</name>
    <message>
        <source>Accepted files (%1)</source>
        <translation>Fichiers acceptés (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message numerus="yes">
        <source>%n folder(s) cannot be shown here: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n dossier ne peut pas être affiché ici&#xa0;: son nom n’est pas du texte UTF-8 valide. Renommez-le pour le choisir.</numerusform>
            <numerusform>%n dossiers ne peuvent pas être affichés ici&#xa0;: leurs noms ne sont pas du texte UTF-8 valide. Renommez-les pour les choisir.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n fichier de ce dossier ne peut pas être affiché&#xa0;: son nom n’est pas du texte UTF-8 valide. Renommez-le pour le choisir.</numerusform>
            <numerusform>%n fichiers de ce dossier ne peuvent pas être affichés&#xa0;: leurs noms ne sont pas du texte UTF-8 valide. Renommez-les pour les choisir.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Window_Operation_Terminated</name>
    <message>
        <source>Operation complete</source>
        <translation>Opération terminée</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Activity Log…</source>
        <translation>Journal d’activité…</translation>
    </message>
    <message>
        <source>Show in its folder what was made</source>
        <translation>Afficher le résultat dans son dossier</translation>
    </message>
    <message>
        <source>Show the command that decided, and all it said</source>
        <translation>Afficher la commande décisive et tout ce qu’elle a affiché</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>É&amp;jecter</translation>
    </message>
    <message>
        <source>Open the tray of the drive</source>
        <translation>Ouvrir le tiroir du lecteur</translation>
    </message>
    <message>
        <source>&amp;Burn Another</source>
        <translation>En &amp;graver un autre</translation>
    </message>
    <message>
        <source>Do the same once more, with the disc that is in the drive then</source>
        <translation>Refaire la même chose, avec le disque qui sera alors dans le lecteur</translation>
    </message>
</context>
<context>
    <name>Window_Performing_Operation</name>
    <message>
        <source>Working</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>This can take several minutes. Please leave the disc in the drive.</source>
        <translation>Cela peut prendre plusieurs minutes. Veuillez laisser le disque dans le lecteur.</translation>
    </message>
    <message>
        <source>Progress of the disc</source>
        <translation>Avancement du disque</translation>
    </message>
    <message>
        <source>Making the image</source>
        <translation>Création de l’image</translation>
    </message>
    <message>
        <source>This can take several minutes.</source>
        <translation>Cela peut prendre plusieurs minutes.</translation>
    </message>
    <message>
        <source>Erasing the disc</source>
        <translation>Effacement du disque</translation>
    </message>
    <message>
        <source>Writing the disc</source>
        <translation>Gravure du disque</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Création des titres et des chapitres</translation>
    </message>
</context>
<context>
    <name>Window_Progress</name>
    <message>
        <source>Preparing the files</source>
        <translation>Préparation des fichiers</translation>
    </message>
    <message>
        <source>Each file is converted to the format of the disc. Then the disc is written.</source>
        <translation>Chaque fichier est converti au format du disque. Puis le disque est gravé.</translation>
    </message>
    <message>
        <source>This file</source>
        <translation>Ce fichier</translation>
    </message>
    <message>
        <source>Progress of this file</source>
        <translation>Avancement de ce fichier</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>Progress of all files</source>
        <translation>Avancement de tous les fichiers</translation>
    </message>
</context>
<context>
    <name>Window_Unique_Progress</name>
    <message>
        <source>Adding files</source>
        <translation>Ajout des fichiers</translation>
    </message>
    <message>
        <source>The running time of each file is measured.</source>
        <translation>La durée de chaque fichier est mesurée.</translation>
    </message>
    <message>
        <source>Files measured so far</source>
        <translation>Fichiers mesurés jusqu’ici</translation>
    </message>
    <message>
        <source>The files that were measured so far are added to the list.</source>
        <translation>Les fichiers mesurés jusqu’ici sont ajoutés à la liste.</translation>
    </message>
</context>
<context>
    <name>Window_Video_Settings</name>
    <message>
        <source>How are clips converted for video discs?</source>
        <translation>Comment convertir les clips pour les disques vidéo&#xa0;?</translation>
    </message>
    <message>
        <source>TV standard</source>
        <translation>Norme TV</translation>
    </message>
    <message>
        <source>&amp;NTSC (720 × 480, 29.97 frames per second)</source>
        <translation>&amp;NTSC (720 × 480, 29,97 images par seconde)</translation>
    </message>
    <message>
        <source>For players in North America, Japan and parts of South America</source>
        <translation>Pour les lecteurs d’Amérique du Nord, du Japon et d’une partie de l’Amérique du Sud</translation>
    </message>
    <message>
        <source>&amp;PAL (720 × 576, 25 frames per second)</source>
        <translation>&amp;PAL (720 × 576, 25 images par seconde)</translation>
    </message>
    <message>
        <source>For players in Europe, Africa, Australia and most of Asia</source>
        <translation>Pour les lecteurs d’Europe, d’Afrique, d’Australie et de la plus grande partie de l’Asie</translation>
    </message>
    <message>
        <source>Audio format</source>
        <translation>Format audio</translation>
    </message>
    <message>
        <source>&amp;Dolby Digital (AC-3)</source>
        <translation>&amp;Dolby Digital (AC-3)</translation>
    </message>
    <message>
        <source>&amp;MPEG-2 audio (MP2)</source>
        <translation>Audio &amp;MPEG-2 (MP2)</translation>
    </message>
    <message>
        <source>&amp;For DVD players (titles and chapters)</source>
        <translation>Pour &amp;lecteurs de DVD (titres et chapitres)</translation>
    </message>
    <message>
        <source>Video DVDs play in the player below a television, one clip after the other; without this, video discs hold files</source>
        <translation>Les DVD vidéo se lisent dans le lecteur de salon, un clip après l’autre&#xa0;; sinon, les disques vidéo contiennent des fichiers</translation>
    </message>
    <message>
        <source>Concerns Video DVDs. Video Blu-ray discs always hold files.</source>
        <translation>Concerne les DVD vidéo. Les disques Blu-ray vidéo contiennent toujours des fichiers.</translation>
    </message>
</context>
<context>
    <name>desktop::JobPresence</name>
    <message>
        <source>A disc image is being made.</source>
        <translation>Une image disque est en cours de création.</translation>
    </message>
    <message>
        <source>A disc is being erased.</source>
        <translation>Un disque est en cours d’effacement.</translation>
    </message>
    <message>
        <source>A disc is being made.</source>
        <translation>Un disque est en cours de création.</translation>
    </message>
    <message>
        <source>%1 % – Corvalis</source>
        <translation>%1 % – Corvalis</translation>
    </message>
    <message>
        <source>Show Corvalis</source>
        <translation>Afficher Corvalis</translation>
    </message>
</context>
<context>
    <name>desktop::Opening</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n de plus</numerusform>
            <numerusform>et %n de plus</numerusform>
        </translation>
    </message>
    <message>
        <source>New Audio CD</source>
        <translation>Nouveau CD audio</translation>
    </message>
    <message>
        <source>New Data Disc</source>
        <translation>Nouveau disque de données</translation>
    </message>
    <message>
        <source>Write an Image</source>
        <translation>Graver une image</translation>
    </message>
    <message>
        <source>Copy a Disc</source>
        <translation>Copier un disque</translation>
    </message>
    <message>
        <source>Not everything can be opened</source>
        <translation>Tout ne peut pas être ouvert</translation>
    </message>
    <message>
        <source>Files of this computer can be opened: music, films, folders, one disc image or one saved list.</source>
        <translation>On peut ouvrir des fichiers de cet ordinateur&#xa0;: musique, films, dossiers, une image disque ou une liste enregistrée.</translation>
    </message>
    <message>
        <source>One disc image or one saved list can be opened at a time.</source>
        <translation>On ne peut ouvrir qu’une image disque ou qu’une liste enregistrée à la fois.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Opened when the job has ended: %1</source>
        <translation>Sera ouvert à la fin du travail&#xa0;: %1</translation>
    </message>
    <message>
        <source>Opened when this is answered: %1</source>
        <translation>Sera ouvert après votre réponse&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Window_Opened_Image</name>
    <message>
        <source>Write this image to the disc in the drive?</source>
        <translation>Graver cette image sur le disque qui est dans le lecteur&#xa0;?</translation>
    </message>
    <message>
        <source>%1 in the folder %2</source>
        <translation>%1 dans le dossier %2</translation>
    </message>
    <message>
        <source>&amp;Write Image</source>
        <translation>&amp;Graver l’image</translation>
    </message>
    <message>
        <source>Write Image</source>
        <translation>Graver l’image</translation>
    </message>
    <message>
        <source>Look at the disc in the drive, and write the image to it</source>
        <translation>Examiner le disque qui est dans le lecteur et y graver l’image</translation>
    </message>
</context>
<context>
    <name>runner::ToolRun</name>
    <message>
        <source>ended without an error</source>
        <translation>terminé sans erreur</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>terminé avec le code %1</translation>
    </message>
    <message>
        <source>could not be started: %1</source>
        <translation>n’a pas pu démarrer&#xa0;: %1</translation>
    </message>
    <message>
        <source>crashed (signal %1)</source>
        <translation>s’est interrompu brutalement (signal %1)</translation>
    </message>
    <message>
        <source>was ended because it gave no answer in time</source>
        <translation>interrompu faute de réponse à temps</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>a été arrêté</translation>
    </message>
    <message>
        <source>%1 ended without an error</source>
        <translation>%1 s’est terminé sans erreur</translation>
    </message>
    <message>
        <source>%1 ended with status %2</source>
        <translation>%1 s’est terminé avec le code %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 n’a pas pu démarrer&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 crashed (signal %2)</source>
        <translation>%1 s’est interrompu brutalement (signal %2)</translation>
    </message>
    <message>
        <source>%1 was ended because it gave no answer in time</source>
        <translation>%1 a été interrompu faute de réponse à temps</translation>
    </message>
    <message>
        <source>%1 was stopped</source>
        <translation>%1 a été arrêté</translation>
    </message>
    <message>
        <source>%1, as expected</source>
        <translation>%1, comme prévu</translation>
    </message>
</context>
<context>
    <name>writing::Job</name>
    <message>
        <source>There was nothing left to write. The disc is as it was.</source>
        <translation>Il ne restait rien à graver. Le disque est tel qu’il était.</translation>
    </message>
    <message>
        <source>The disc is as it was.</source>
        <translation>Le disque est tel qu’il était.</translation>
    </message>
    <message>
        <source>There is no usable image.</source>
        <translation>Il n’y a pas d’image utilisable.</translation>
    </message>
    <message>
        <source>The disc has to be erased again before it can be used.</source>
        <translation>Le disque doit être effacé de nouveau avant de pouvoir être utilisé.</translation>
    </message>
    <message>
        <source>The disc is written, but was not compared.</source>
        <translation>Le disque est gravé, mais n’a pas été comparé.</translation>
    </message>
    <message>
        <source>The disc is incomplete: erase it before you use it again.</source>
        <translation>Le disque est incomplet&#xa0;: effacez-le avant de le réutiliser.</translation>
    </message>
    <message>
        <source>The disc is incomplete and cannot be used any more.</source>
        <translation>Le disque est incomplet et ne peut plus être utilisé.</translation>
    </message>
    <message>
        <source>What was converted so far is thrown away. The disc stays as it is.</source>
        <translation>Ce qui a été converti jusqu’ici est perdu. Le disque reste tel quel.</translation>
    </message>
    <message>
        <source>What was copied so far is thrown away. The disc and your folders stay as they are.</source>
        <translation>Ce qui a été copié jusqu’ici est perdu. Le disque et vos dossiers restent tels quels.</translation>
    </message>
    <message>
        <source>The image made so far is deleted.</source>
        <translation>L’image créée jusqu’ici est supprimée.</translation>
    </message>
    <message>
        <source>Nothing is written yet. The disc stays as it is.</source>
        <translation>Rien n’est encore gravé. Le disque reste tel quel.</translation>
    </message>
    <message>
        <source>The disc is written. It is not compared to the end.</source>
        <translation>Le disque est gravé. Il n’est pas comparé jusqu’au bout.</translation>
    </message>
    <message>
        <source>What was written so far is lost. The disc has to be erased before it is used again.</source>
        <translation>Ce qui a été gravé jusqu’ici est perdu. Le disque doit être effacé avant de resservir.</translation>
    </message>
    <message>
        <source>This disc is lost: it cannot be written a second time.</source>
        <translation>Ce disque est perdu&#xa0;: il ne peut pas être gravé une seconde fois.</translation>
    </message>
    <message>
        <source>No image was made.</source>
        <translation>Aucune image n’a été créée.</translation>
    </message>
    <message>
        <source>Nothing was written. The disc is as it was.</source>
        <translation>Rien n’a été gravé. Le disque est tel qu’il était.</translation>
    </message>
    <message>
        <source>the working folder</source>
        <translation>le dossier de travail</translation>
    </message>
    <message>
        <source>%1 could not make the titles: %2. The disc is as it was.</source>
        <translation>%1 n’a pas pu créer les titres&#xa0;: %2. Le disque est tel qu’il était.</translation>
    </message>
</context>
</TS>
