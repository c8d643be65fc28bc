<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_GB">
<context>
    <name>AVSPDocument</name>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>The file is being opened</source>
        <translation>Die Datei wird geöffnet</translation>
    </message>
    <message>
        <source>This file cannot be played.</source>
        <translation>Diese Datei kann nicht wiedergegeben werden.</translation>
    </message>
    <message>
        <source>Sound only, no picture</source>
        <translation>Nur Ton, kein Bild</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Zurückspulen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Vorspulen</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Volume (Up and Down)</source>
        <translation>Lautstärke (Auf und Ab)</translation>
    </message>
    <message>
        <source>The file cannot be played</source>
        <translation>Die Datei kann nicht wiedergegeben werden</translation>
    </message>
    <message>
        <source>Video could not be played.</source>
        <translation>Das Video konnte nicht wiedergegeben werden.</translation>
    </message>
    <message>
        <source>The file could not be played</source>
        <translation>Die Datei konnte nicht wiedergegeben werden</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>Wiedergabe oder Pause (Leertaste)</translation>
    </message>
    <message>
        <source>Fast forward; each press is faster</source>
        <translation>Vorspulen; mit jedem Druck schneller</translation>
    </message>
    <message>
        <source>Rewind; each press is faster</source>
        <translation>Zurückspulen; mit jedem Druck schneller</translation>
    </message>
    <message>
        <source>Position (Left and Right: five seconds)</source>
        <translation>Position (Links und Rechts: fünf Sekunden)</translation>
    </message>
</context>
<context>
    <name>Acceptance</name>
    <message>
        <source>These are not files of this computer. Copy them into a folder of it, and add them from there.</source>
        <translation>Das sind keine Dateien dieses Rechners. Kopieren Sie sie in einen Ordner auf diesem Rechner und fügen Sie sie von dort hinzu.</translation>
    </message>
    <message>
        <source>There are no files of these names any more. They may have been moved or renamed.</source>
        <translation>Dateien mit diesen Namen gibt es nicht mehr. Vielleicht wurden sie verschoben oder umbenannt.</translation>
    </message>
    <message>
        <source>These are links, and what they lead to is not there.</source>
        <translation>Das sind Verknüpfungen, deren Ziel es nicht gibt.</translation>
    </message>
    <message>
        <source>You have no permission to look into these folders. Their owner can give it to you.</source>
        <translation>Sie haben keine Berechtigung, in diese Ordner hineinzusehen. Ihr Besitzer kann sie Ihnen geben.</translation>
    </message>
    <message>
        <source>These are pipes or devices and not files, whatever their names end in. They have no length.</source>
        <translation>Das sind Pipes oder Geräte und keine Dateien, wie auch immer ihre Namen enden. Sie haben keine Länge.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and folders with such files in them.</source>
        <translation>Diese Liste nimmt Dateien auf, die auf %1 enden, und Ordner mit solchen Dateien.</translation>
    </message>
    <message>
        <source>No file directly in these folders ends in %1. Folders in them are not looked into.</source>
        <translation>Keine Datei unmittelbar in diesen Ordnern endet auf %1. In Ordnern darin wird nicht gesucht.</translation>
    </message>
    <message>
        <source>The files in these folders have their endings in capital letters, and of a folder only those in small letters are taken. Add the files themselves.</source>
        <translation>Die Dateien in diesen Ordnern haben ihre Endungen in Großbuchstaben, und aus einem Ordner werden nur solche in Kleinbuchstaben genommen. Fügen Sie die Dateien selbst hinzu.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with sound in them. ffmpeg finds none in these.</source>
        <translation>Diese Liste nimmt Dateien auf, die auf %1 enden, und alle anderen, in denen Ton ist. In diesen findet ffmpeg keinen.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with a film in them. ffmpeg finds none in these.</source>
        <translation>Diese Liste nimmt Dateien auf, die auf %1 enden, und alle anderen, in denen ein Film ist. In diesen findet ffmpeg keinen.</translation>
    </message>
    <message>
        <source>ffmpeg finds no sound in any file in these folders or below.</source>
        <translation>In keiner Datei in diesen Ordnern oder darunter findet ffmpeg Ton.</translation>
    </message>
    <message>
        <source>ffmpeg finds no film in any file in these folders or below.</source>
        <translation>In keiner Datei in diesen Ordnern oder darunter findet ffmpeg einen Film.</translation>
    </message>
    <message>
        <source>These are playlists and folders that a playlist names, and those are not followed. Add them themselves.</source>
        <translation>Das sind Wiedergabelisten und Ordner, die eine Wiedergabeliste nennt, und denen wird nicht gefolgt. Fügen Sie sie selbst hinzu.</translation>
    </message>
    <message>
        <source>These playlists name no files, or they are damaged.</source>
        <translation>Diese Wiedergabelisten nennen keine Dateien oder sind beschädigt.</translation>
    </message>
    <message>
        <source>These playlists name more than 100,000 files. Only so many were taken, the first ones.</source>
        <translation>Diese Wiedergabelisten nennen mehr als 100.000 Dateien. Nur so viele wurden genommen, die ersten.</translation>
    </message>
    <message>
        <source>These files are too large for playlists, which have up to 32 MB.</source>
        <translation>Diese Dateien sind zu groß für Wiedergabelisten, die bis zu 32 MB haben.</translation>
    </message>
    <message>
        <source>There are more than 100,000 files below these folders. Only so many were taken, the first ones.</source>
        <translation>Unterhalb dieser Ordner liegen mehr als 100.000 Dateien. Nur so viele wurden genommen, die ersten.</translation>
    </message>
</context>
<context>
    <name>ActivityLog</name>
    <message>
        <source>is running</source>
        <translation>läuft</translation>
    </message>
    <message numerus="yes">
        <source>
(%n more bytes of output are not kept)
</source>
        <translation>
            <numerusform>
(%n weiteres Byte der Ausgabe wurde nicht aufbewahrt)
</numerusform>
            <numerusform>
(%n weitere Bytes der Ausgabe wurden nicht aufbewahrt)
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The settings could not be saved</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Error #0008. Application will exit.</source>
        <translation>Fehler #0008. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Error #0009. Application will exit.</source>
        <translation>Fehler #0009. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Error #000a. Application will exit.</source>
        <translation>Fehler #000a. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Error #000b. Application will exit.</source>
        <translation>Fehler #000b. Das Programm wird beendet.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>A working folder was not emptied, as another Corvalis prepares a disc in it</source>
        <translation>Ein Arbeitsordner wurde nicht geleert, weil ein anderes Corvalis darin eine Disc vorbereitet</translation>
    </message>
    <message>
        <source>A file in a working folder could not be removed</source>
        <translation>Eine Datei in einem Arbeitsordner konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The page could not be opened</source>
        <translation>Die Seite konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Open it in a browser: %1</source>
        <translation>Öffnen Sie sie in einem Browser: %1</translation>
    </message>
    <message>
        <source>Corvalis %1</source>
        <translation>Corvalis %1</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Free software under the GNU General Public License, version 2 or later.
Built on Qt %1, libburn, libisofs, ffmpeg and mpv.</source>
        <translation>Bereitet optische Discs vor und brennt sie.

Freie Software unter der GNU General Public License, Version 2 oder neuer.
Erstellt mit Qt %1, libburn, libisofs, ffmpeg und mpv.</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Dateien hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>D&amp;auer</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation>Audiodateien zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add video files to the list</source>
        <translation>Videodateien zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add the audio files of a folder to the list</source>
        <translation>Die Audiodateien eines Ordners zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add the video files of a folder to the list</source>
        <translation>Die Videodateien eines Ordners zur Liste hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) cannot be listed</source>
        <translation>
            <numerusform>%n Datei kann nicht in die Liste aufgenommen werden</numerusform>
            <numerusform>%n Dateien können nicht in die Liste aufgenommen werden</numerusform>
        </translation>
    </message>
    <message>
        <source>Their names in the folder “%1” are not valid UTF-8 text. Rename them and add the folder again.</source>
        <translation>Ihre Namen im Ordner „%1“ sind kein gültiger UTF-8-Text. Benennen Sie sie um und fügen Sie den Ordner noch einmal hinzu.</translation>
    </message>
    <message>
        <source>Add a folder to the list</source>
        <translation>Einen Ordner zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Dateien zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Not everything can go on this list</source>
        <translation>Nicht alles kann in diese Liste aufgenommen werden</translation>
    </message>
    <message>
        <source>There is no file selected.</source>
        <translation>Es ist keine Datei ausgewählt.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file cannot be played.</source>
        <translation>Die Datei kann nicht wiedergegeben werden.</translation>
    </message>
    <message>
        <source>The program ffmpeg, which measures files, is missing.</source>
        <translation>Das Programm ffmpeg, das Dateien misst, fehlt.</translation>
    </message>
    <message>
        <source>Measuring the file took too long and was given up.</source>
        <translation>Das Messen der Datei hat zu lange gedauert und wurde aufgegeben.</translation>
    </message>
    <message>
        <source>Files cannot be measured</source>
        <translation>Dateien können nicht gemessen werden</translation>
    </message>
    <message>
        <source>The program ffmpeg is missing. Install the package “ffmpeg” and add the files again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Das Programm ffmpeg fehlt. Installieren Sie das Paket „ffmpeg“ und fügen Sie die Dateien noch einmal hinzu. Ohne das Programm zeigen die Listen keine Dauern, und es können keine Audio- und Video-Discs erstellt werden.</translation>
    </message>
    <message>
        <source>A part of Corvalis is missing: %1. Install Corvalis again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Ein Teil von Corvalis fehlt: %1. Installieren Sie Corvalis neu. Ohne diesen Teil zeigen die Listen keine Dauern, und es können keine Audio- und Video-Discs erstellt werden.</translation>
    </message>
    <message>
        <source>Save the list first?</source>
        <translation>Die Liste zuerst speichern?</translation>
    </message>
    <message>
        <source>The list that is shown has changes that are not saved. What is opened now takes its place.</source>
        <translation>Die angezeigte Liste enthält Änderungen, die nicht gespeichert sind. Was jetzt geöffnet wird, tritt an ihre Stelle.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Do Not Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save the list as</source>
        <translation>Liste speichern unter</translation>
    </message>
    <message>
        <source>My disc</source>
        <translation>Meine Disc</translation>
    </message>
    <message>
        <source>The list could not be saved</source>
        <translation>Die Liste konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>%1

%2</source>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>Open a saved list</source>
        <translation>Eine gespeicherte Liste öffnen</translation>
    </message>
    <message>
        <source>It is for a kind of disc that this Corvalis does not know: %1.</source>
        <translation>Sie ist für eine Art von Disc, die dieses Corvalis nicht kennt: %1.</translation>
    </message>
    <message>
        <source>The list cannot be opened</source>
        <translation>Die Liste kann nicht geöffnet werden</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) of the list cannot be found</source>
        <translation>
            <numerusform>%n Eintrag der Liste wurde nicht gefunden</numerusform>
            <numerusform>%n Einträge der Liste wurden nicht gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in a Folder…</source>
        <translation>In einem Ordner suchen…</translation>
    </message>
    <message>
        <source>A folder in which the missing files are now</source>
        <translation>Ein Ordner, in dem die fehlenden Dateien jetzt liegen</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>No file or folder below %1 has one of the names that are missing.</source>
        <translation>Keine Datei und kein Ordner unterhalb von %1 hat einen der fehlenden Namen.</translation>
    </message>
    <message>
        <source>&amp;Clear This Menu</source>
        <translation>Dieses Menü &amp;leeren</translation>
    </message>
    <message>
        <source>The disc could not be changed</source>
        <translation>Die Disc konnte nicht gewechselt werden</translation>
    </message>
    <message>
        <source>The folder of written discs could not be opened</source>
        <translation>Der Ordner mit den gebrannten Discs konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Warning 0030.</source>
        <translation>Warnung 0030.</translation>
    </message>
    <message>
        <source>Warning 0040.</source>
        <translation>Warnung 0040.</translation>
    </message>
    <message>
        <source>No disc</source>
        <translation>Keine Disc</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a rewritable media on the drive and try again.</source>
        <translation>Im Laufwerk liegt keine Disc. Legen Sie eine wiederbeschreibbare Disc ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Media not rewritable</source>
        <translation>Die Disc ist nicht wiederbeschreibbar</translation>
    </message>
    <message>
        <source>The media on the drive is not rewritable. insert a rewritable media on the drive and try again.</source>
        <translation>Die Disc im Laufwerk ist nicht wiederbeschreibbar. Legen Sie eine wiederbeschreibbare Disc ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Full erase</source>
        <translation>Vollständiges Löschen</translation>
    </message>
    <message>
        <source>Quick erase</source>
        <translation>Schnelles Löschen</translation>
    </message>
    <message>
        <source>The disc utility cannot be used</source>
        <translation>Das Disc-Dienstprogramm kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>There is no disc on the drive. Insert a media on the drive and try again.</source>
        <translation>Im Laufwerk liegt keine Disc. Legen Sie eine Disc ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Disc-Informationen</translation>
    </message>
    <message>
        <source>No audio files on the list</source>
        <translation>Keine Audiodateien in der Liste</translation>
    </message>
    <message>
        <source>There are no audio files on the list. Add audio files to the list and try again.</source>
        <translation>In der Liste stehen keine Audiodateien. Fügen Sie Audiodateien hinzu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Warning 0060.</source>
        <translation>Warnung 0060.</translation>
    </message>
    <message>
        <source>Warning 0050.</source>
        <translation>Warnung 0050.</translation>
    </message>
    <message>
        <source>Warning 0010.</source>
        <translation>Warnung 0010.</translation>
    </message>
    <message>
        <source>No folders on the list</source>
        <translation>Keine Ordner in der Liste</translation>
    </message>
    <message>
        <source>There are no folders on the list. Add folders to the list and try again.</source>
        <translation>In der Liste stehen keine Ordner. Fügen Sie Ordner hinzu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Warning 0070.</source>
        <translation>Warnung 0070.</translation>
    </message>
    <message>
        <source>Warning 0020.</source>
        <translation>Warnung 0020.</translation>
    </message>
    <message>
        <source>Warning 0090.</source>
        <translation>Warnung 0090.</translation>
    </message>
    <message>
        <source>There is not enough room to gather the folders</source>
        <translation>Der Platz reicht nicht, um die Ordner zusammenzustellen</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1, and its file system has %2 too little for that. Free some room and try again, or go on: what does not fit will not be on the disc.</source>
        <translation>Die Disc wird im Ordner %1 vorbereitet, und auf dessen Dateisystem fehlen dafür %2. Schaffen Sie Platz und versuchen Sie es erneut, oder fahren Sie fort: Was nicht hineinpasst, kommt nicht auf die Disc.</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>The disc is written before the copying of a folder has ended.</source>
        <translation>Die Disc wird gebrannt, bevor das Kopieren eines Ordners abgeschlossen ist.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>The copying of a folder does not end.</source>
        <translation>Das Kopieren eines Ordners endet nicht.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a media on the drive to copy and try again.</source>
        <translation>Im Laufwerk liegt keine Disc. Legen Sie die Disc ein, die kopiert werden soll, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Select a volume to duplicate.</source>
        <translation>Wählen Sie den Datenträger, der kopiert werden soll.</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Kopie von %1</translation>
    </message>
    <message>
        <source>Insert a writable media and click OK or click Cancel to stop the media duplication.</source>
        <translation>Legen Sie einen Rohling ein und klicken Sie auf „OK“, oder brechen Sie die Disc-Kopie mit „Abbrechen“ ab.</translation>
    </message>
    <message>
        <source>Media not CD</source>
        <translation>Die Disc ist keine CD</translation>
    </message>
    <message>
        <source>The media on the drive is not a CD. insert a writable CD on the drive and try again.</source>
        <translation>Die Disc im Laufwerk ist keine CD. Legen Sie eine beschreibbare CD ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Media not DVD</source>
        <translation>Die Disc ist keine DVD</translation>
    </message>
    <message>
        <source>The media on the drive is not a DVD. insert a writable DVD on the drive and try again.</source>
        <translation>Die Disc im Laufwerk ist keine DVD. Legen Sie eine beschreibbare DVD ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Media not Blu-ray</source>
        <translation>Die Disc ist keine Blu-ray-Disc</translation>
    </message>
    <message>
        <source>The media on the drive is not a Blu-ray. insert a writable Blu-ray on the drive and try again.</source>
        <translation>Die Disc im Laufwerk ist keine Blu-ray-Disc. Legen Sie eine beschreibbare Blu-ray-Disc ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a writable media on the drive and try again.</source>
        <translation>Im Laufwerk liegt keine Disc. Legen Sie eine beschreibbare Disc ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Media not writable</source>
        <translation>Die Disc ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>The media on the drive is not writable. insert a writable media on the drive and try again.</source>
        <translation>Die Disc im Laufwerk ist nicht beschreibbar. Legen Sie eine beschreibbare Disc ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Select a folder to export to ISO format.</source>
        <translation>Wählen Sie einen Ordner, aus dem ein ISO-Abbild werden soll.</translation>
    </message>
    <message>
        <source>Disc image</source>
        <translation>Disc-Abbild</translation>
    </message>
    <message>
        <source>Select a folder to save the Image.iso file.</source>
        <translation>Wählen Sie einen Ordner, in dem die Datei image.iso gespeichert wird.</translation>
    </message>
    <message>
        <source>Select a ISO image to burn to media.</source>
        <translation>Wählen Sie ein ISO-Abbild, das auf die Disc gebrannt wird.</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Abbild %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln track(s)</source>
        <translation>
            <numerusform>%Ln Titel</numerusform>
            <numerusform>%Ln Titel</numerusform>
        </translation>
    </message>
    <message>
        <source>Another Corvalis is at work</source>
        <translation>Ein anderes Corvalis arbeitet</translation>
    </message>
    <message>
        <source>It prepares a disc in the folder %1. Wait until that disc is done and try again.</source>
        <translation>Es bereitet eine Disc im Ordner %1 vor. Warten Sie, bis diese Disc fertig ist, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>“%1” was left out: another entry of the list is converted to “%2” too. Rename one of the files and try again.</source>
        <translation>„%1“ wurde ausgelassen: Ein anderer Eintrag der Liste wird ebenfalls in „%2“ umgewandelt. Benennen Sie eine der Dateien um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>A file was left out</source>
        <translation>Eine Datei wurde ausgelassen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files or folders did not fit where the disc is gathered.</source>
        <translation>
            <numerusform>%Ln Datei oder Ordner passte nicht dorthin, wo die Disc zusammengestellt wird.</numerusform>
            <numerusform>%Ln Dateien oder Ordner passten nicht dorthin, wo die Disc zusammengestellt wird.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not copied</source>
        <translation>Nicht kopiert</translation>
    </message>
    <message>
        <source>No video files on the list</source>
        <translation>Keine Videodateien in der Liste</translation>
    </message>
    <message>
        <source>There are no video files on the list. Add video files to the list and try again.</source>
        <translation>In der Liste stehen keine Videodateien. Fügen Sie Videodateien hinzu und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Warning 0000.</source>
        <translation>Warnung 0000.</translation>
    </message>
    <message>
        <source>What is missing stays on the list, marked. If it was moved, show a folder in which it is now, at any depth: it is found there by its name.</source>
        <translation>Was fehlt, bleibt markiert in der Liste. Wurde es verschoben, so wählen Sie einen Ordner, in dem es jetzt liegt, gleich wie tief: Dort wird es an seinem Namen erkannt.</translation>
    </message>
    <message>
        <source>Add any files with sound, and playlists, to the list</source>
        <translation>Beliebige Dateien mit Ton und Wiedergabelisten zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>Add any films, and playlists, to the list</source>
        <translation>Beliebige Filme und Wiedergabelisten zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Not all of these files can be on one disc</source>
        <translation>Nicht alle diese Dateien können auf einer Disc sein</translation>
    </message>
    <message>
        <source>Their names differ in the folder or the ending only. The first of each name on the list is written and the others are left out. Rename them, or take them off the list.</source>
        <translation>Ihre Namen unterscheiden sich nur im Ordner oder in der Endung. Von jedem Namen wird der erste in der Liste gebrannt, die anderen werden ausgelassen. Benennen Sie sie um oder nehmen Sie sie aus der Liste.</translation>
    </message>
    <message>
        <source>The title and the performer of “%1” are not on the disc as they are on the list: %2.</source>
        <translation>Titel und Interpret von „%1“ stehen nicht so auf der Disc wie in der Liste: %2.</translation>
    </message>
    <message>
        <source>The names of a track could not be written</source>
        <translation>Die Namen eines Titels konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing</source>
        <translation>Das Programm dvdauthor fehlt</translation>
    </message>
    <message>
        <source>It makes the titles of a DVD for players. Install the package “dvdauthor” and try again, or switch “For DVD players” off in the video settings; the disc then holds files.</source>
        <translation>Es erstellt die Titel einer DVD für Player. Installieren Sie das Paket „dvdauthor“ und versuchen Sie es erneut, oder schalten Sie „Für DVD-Player“ in den Videoeinstellungen aus; die Disc enthält dann Dateien.</translation>
    </message>
    <message>
        <source>Too many clips for one DVD</source>
        <translation>Zu viele Clips für eine DVD</translation>
    </message>
    <message numerus="yes">
        <source>A DVD for players has room for 99 titles, and there are %Ln clip(s) on the list. Take some off and try again.</source>
        <translation>
            <numerusform>Eine DVD für Player hat Platz für 99 Titel, und in der Liste steht %Ln Clip. Nehmen Sie einige heraus und versuchen Sie es erneut.</numerusform>
            <numerusform>Eine DVD für Player hat Platz für 99 Titel, und in der Liste stehen %Ln Clips. Nehmen Sie einige heraus und versuchen Sie es erneut.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough room to make the titles</source>
        <translation>Der Platz reicht nicht, um die Titel zu erstellen</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1. That may take %2 for these clips, and its file system has %3 left. Free some room and try again, or go on: a clip that finds no room will not be on the disc.</source>
        <translation>Die Disc wird im Ordner %1 vorbereitet. Für diese Clips kann das %2 brauchen, und auf seinem Dateisystem sind noch %3 frei. Schaffen Sie Platz und versuchen Sie es erneut, oder fahren Sie fort: Ein Clip, der keinen Platz findet, kommt nicht auf die Disc.</translation>
    </message>
    <message>
        <source>%1: there is no picture in it.</source>
        <translation>%1: Es enthält kein Bild.</translation>
    </message>
    <message>
        <source>%1: its picture could not be read.</source>
        <translation>%1: Das Bild konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The titles could not be described: %1. The disc is as it was.</source>
        <translation>Die Titel konnten nicht beschrieben werden: %1. Die Disc ist, wie sie war.</translation>
    </message>
    <message>
        <source>dvdauthor told nothing for a long time and was ended.</source>
        <translation>dvdauthor meldete lange nichts und wurde beendet.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln title(s)</source>
        <translation>
            <numerusform>%Ln DVD-Titel</numerusform>
            <numerusform>%Ln DVD-Titel</numerusform>
        </translation>
    </message>
    <message>
        <source>The file system of the folder %1 is full.</source>
        <translation>Das Dateisystem des Ordners %1 ist voll.</translation>
    </message>
    <message>
        <source>The drives could not be listed</source>
        <translation>Die Laufwerke konnten nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>The drive is not there any more</source>
        <translation>Das Laufwerk ist nicht mehr da</translation>
    </message>
    <message>
        <source>“%1” is not connected. Connect it again, or choose another drive in the Drive menu.</source>
        <translation>„%1“ ist nicht angeschlossen. Schließen Sie es wieder an oder wählen Sie im Menü „Laufwerk“ ein anderes.</translation>
    </message>
    <message>
        <source>The disc cannot have this name</source>
        <translation>Die Disc kann diesen Namen nicht haben</translation>
    </message>
    <message>
        <source>%1 Change the name and try again.</source>
        <translation>%1 Ändern Sie den Namen und versuchen Sie es erneut.</translation>
    </message>
</context>
<context>
    <name>BatchMedia</name>
    <message>
        <source>%1: the name is not valid UTF-8 text. Rename the file and try again.</source>
        <translation>%1: Der Name ist kein gültiger UTF-8-Text. Benennen Sie die Datei um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: Eine solche Datei oder einen solchen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no sound in it.</source>
        <translation>%1 ist keine Datei, die auf diese Disc kommen kann. Möglich sind: %2. ffmpeg findet keinen Ton darin.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no film in it.</source>
        <translation>%1 ist keine Datei, die auf diese Disc kommen kann. Möglich sind: %2. ffmpeg findet keinen Film darin.</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: Eine solche Datei oder einen solchen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is no file or folder, and a data disc is made of these.</source>
        <translation>%1 ist weder Datei noch Ordner, und nur diese kommen auf eine Daten-Disc.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2.</source>
        <translation>%1 ist keine Datei, die auf diese Disc kommen kann. Möglich sind: %2.</translation>
    </message>
    <message>
        <source>Adding files: %1 of %2</source>
        <translation>Dateien werden hinzugefügt: %1 von %2</translation>
    </message>
    <message>
        <source>Converting: file %1 of %2, %3 %</source>
        <translation>Umwandeln: Datei %1 von %2, %3 %</translation>
    </message>
    <message>
        <source>Gathering the folders</source>
        <translation>Die Ordner werden zusammengestellt</translation>
    </message>
    <message>
        <source>--for-players goes with --burn &quot;Video DVD&quot;.</source>
        <translation>--for-players gibt es nur mit --burn &quot;Video DVD&quot;.</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Titel und Kapitel werden erstellt</translation>
    </message>
</context>
<context>
    <name>ColourWell</name>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>%1: press to choose another colour</source>
        <translation>%1: drücken, um eine andere Farbe zu wählen</translation>
    </message>
    <message>
        <source>No colour: press to choose one</source>
        <translation>Keine Farbe: drücken, um eine zu wählen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Try &apos;corvalis --help&apos;.</source>
        <translation>„corvalis --help“ hilft weiter.</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, is not valid UTF-8 text; rename the file and try again.</source>
        <translation>Argument %1, &quot;%2&quot;, ist kein gültiger UTF-8-Text; benennen Sie die Datei um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>there is no project &quot;%1&quot;; it is one of %2.</source>
        <translation>es gibt kein Projekt &quot;%1&quot;; möglich sind %2.</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Exit status with --burn: 0 the disc was written and everything is on it, 1 it was not written, 2 wrong arguments, 3 it was written but something is not on it; stopped by a signal, it ends by that signal.
A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>Bereitet optische Discs vor und brennt sie.

Rückgabewert mit --burn: 0 die Disc wurde gebrannt und alles ist darauf, 1 sie wurde nicht gebrannt, 2 falsche Argumente, 3 sie wurde gebrannt, aber etwas fehlt darauf; wird das Programm durch ein Signal angehalten, endet es mit diesem Signal.
Eine Datei, deren Name mit einem Strich beginnt, steht hinter &quot;--&quot;.</translation>
    </message>
    <message>
        <source>Make a disc of kind &lt;project&gt; from the files and end: %1.</source>
        <translation>Aus den Dateien eine Disc der Art &lt;project&gt; machen und enden: %1.</translation>
    </message>
    <message>
        <source>project</source>
        <translation>project</translation>
    </message>
    <message>
        <source>Do so in the window, which stays.</source>
        <translation>Dies im Fenster tun, das stehen bleibt.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>DATEI</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[DATEI...]</translation>
    </message>
    <message>
        <source>%1 A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>%1 Eine Datei, deren Name mit einem Strich beginnt, steht hinter &quot;--&quot;.</translation>
    </message>
    <message>
        <source>--burn is there more than once.</source>
        <translation>--burn steht mehr als einmal da.</translation>
    </message>
    <message>
        <source>--show goes with --burn.</source>
        <translation>--show gibt es nur mit --burn.</translation>
    </message>
    <message>
        <source>there is no action &quot;%1&quot;; it is one of %2.</source>
        <translation>es gibt keine Aktion &quot;%1&quot;; möglich sind %2.</translation>
    </message>
    <message>
        <source>--action goes without files.</source>
        <translation>--action steht ohne Dateien.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: Eine solche Datei oder einen solchen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>Open the files in a window of their own, not in the one that runs.</source>
        <translation>Die Dateien in einem eigenen Fenster öffnen, nicht in dem, das schon läuft.</translation>
    </message>
    <message>
        <source>Begin &lt;what&gt; in the window: %1.</source>
        <translation>Im Fenster mit &lt;what&gt; beginnen: %1.</translation>
    </message>
    <message>
        <source>what</source>
        <translation>what</translation>
    </message>
    <message>
        <source>--new-window and --action go without --burn.</source>
        <translation>--new-window und --action gibt es nur ohne --burn.</translation>
    </message>
    <message>
        <source>Make a Video DVD for DVD players, with titles and chapters, whatever the video settings say.</source>
        <translation>Eine Video-DVD für DVD-Player mit Titeln und Kapiteln erstellen, was immer die Videoeinstellungen sagen.</translation>
    </message>
    <message>
        <source>Files, for a data disc also folders; the tracks of an audio CD keep their order. Without --burn they are opened in the window: music, films, folders, a disc image or a saved list.</source>
        <translation>Dateien, für eine Daten-Disc auch Ordner; die Titel einer Audio-CD behalten ihre Reihenfolge. Ohne --burn werden sie im Fenster geöffnet: Musik, Filme, Ordner, ein Disc-Abbild oder eine gespeicherte Liste.</translation>
    </message>
</context>
<context>
    <name>DiscName</name>
    <message>
        <source>Where only plain letters are known, “%1” becomes “_”.</source>
        <translation>Wo nur einfache Buchstaben bekannt sind, wird „%1“ zu „_“.</translation>
    </message>
    <message>
        <source>On Windows “%1” becomes “_”.</source>
        <translation>Unter Windows wird „%1“ zu „_“.</translation>
    </message>
    <message>
        <source>Windows shows “%1”.</source>
        <translation>Windows zeigt „%1“.</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>Der Name enthält ein Zeichen, das man nicht sehen kann.</translation>
    </message>
    <message>
        <source>The name has %1 characters; a disc takes %2.</source>
        <translation>Der Name hat %1 Zeichen; auf eine Disc passen %2.</translation>
    </message>
</context>
<context>
    <name>DiscNameField</name>
    <message>
        <source>Disc name</source>
        <translation>Disc-Name</translation>
    </message>
    <message>
        <source>Chosen for you</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Name of the disc</source>
        <translation>Name der Disc</translation>
    </message>
    <message>
        <source>What the disc is called where it is put in</source>
        <translation>Wie die Disc heißt, wo sie eingelegt wird</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>characters</comment>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>DiscRoom</name>
    <message>
        <source>The %1 in the drive holds about %2.</source>
        <translation>Die %1 im Laufwerk fasst etwa %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive holds %2.</source>
        <translation>Die %1 im Laufwerk fasst %2.</translation>
    </message>
    <message>
        <source>The list is too long by %1.</source>
        <translation>Die Liste ist um %1 zu lang.</translation>
    </message>
    <message>
        <source>The list is too large by %1.</source>
        <translation>Die Liste ist um %1 zu groß.</translation>
    </message>
    <message>
        <source>The list just about fits.</source>
        <translation>Die Liste passt gerade noch.</translation>
    </message>
    <message>
        <source>The list fits.</source>
        <translation>Die Liste passt.</translation>
    </message>
    <message>
        <source>The %1 in the drive cannot be written.</source>
        <translation>Die %1 im Laufwerk kann nicht beschrieben werden.</translation>
    </message>
    <message>
        <source>In the drive is a %1; this list needs a %2.</source>
        <translation>Im Laufwerk liegt eine %1; diese Liste braucht eine %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive is erased before it is written.</source>
        <translation>Die %1 im Laufwerk wird vor dem Brennen gelöscht.</translation>
    </message>
</context>
<context>
    <name>DriveNews</name>
    <message>
        <source>The drive “%1” is connected.</source>
        <translation>Das Laufwerk „%1“ ist angeschlossen.</translation>
    </message>
    <message>
        <source>A drive was plugged in: “%1”.</source>
        <translation>Ein Laufwerk wurde angeschlossen: „%1“.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <translation>Dieses Laufwerk verwenden</translation>
    </message>
    <message>
        <source>Write discs with this drive from now on</source>
        <translation>Discs ab jetzt mit diesem Laufwerk brennen</translation>
    </message>
    <message>
        <source>No other drive was found.</source>
        <translation>Es wurde kein anderes Laufwerk gefunden.</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>The drive “%1” is not connected any more. Connect it again, or choose another one in the Drive menu.</source>
        <translation>Das Laufwerk „%1“ ist nicht mehr angeschlossen. Schließen Sie es wieder an oder wählen Sie im Menü „Laufwerk“ ein anderes.</translation>
    </message>
    <message>
        <source>You may not use this drive</source>
        <translation>Sie haben keine Berechtigung für dieses Laufwerk</translation>
    </message>
    <message>
        <source>Wh&amp;y…</source>
        <translation>War&amp;um…</translation>
    </message>
    <message>
        <source>Tell why, and how to change it</source>
        <translation>Sagen, warum, und wie es sich ändern lässt</translation>
    </message>
    <message>
        <source>You may not use the drive “%1”.</source>
        <translation>Sie haben keine Berechtigung für das Laufwerk „%1“.</translation>
    </message>
    <message>
        <source>Why…</source>
        <translation>Warum…</translation>
    </message>
</context>
<context>
    <name>DriveNotice</name>
    <message>
        <source>Close this notice</source>
        <translation>Diesen Hinweis schließen</translation>
    </message>
</context>
<context>
    <name>FolderStaging</name>
    <message>
        <source>is the folder in which the disc is gathered, and is left out</source>
        <translation>ist der Ordner, in dem die Disc zusammengestellt wird, und wird ausgelassen</translation>
    </message>
    <message>
        <source>is no file, folder or link, and is left out</source>
        <translation>ist weder Datei noch Ordner noch Verknüpfung und wird ausgelassen</translation>
    </message>
    <message>
        <source>its copy was moved while it was being made</source>
        <translation>die Kopie wurde verschoben, während sie entstand</translation>
    </message>
    <message>
        <source>has no name under which it could be copied</source>
        <translation>hat keinen Namen, unter dem es kopiert werden könnte</translation>
    </message>
    <message>
        <source>was moved while it was being copied</source>
        <translation>wurde verschoben, während es kopiert wurde</translation>
    </message>
</context>
<context>
    <name>FolderTree</name>
    <message>
        <source>was moved while it was being emptied</source>
        <translation>wurde verschoben, während es geleert wurde</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too large by %4</source>
        <translation>Belegt: %1 von %2 (%3 %), um %4 zu groß</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too long by %4</source>
        <translation>Belegt: %1 von %2 (%3 %), um %4 zu lang</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), nearly full</source>
        <translation>Belegt: %1 von %2 (%3 %), fast voll</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %)</source>
        <translation>Belegt: %1 von %2 (%3 %)</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>It is damaged, or no list of Corvalis: %1.</source>
        <translation>Sie ist beschädigt oder keine Liste von Corvalis: %1.</translation>
    </message>
    <message>
        <source>entry %1 has no full path</source>
        <translation>Eintrag %1 hat keinen vollständigen Pfad</translation>
    </message>
    <message>
        <source>entry %1 has characters that no name can have</source>
        <translation>Eintrag %1 enthält Zeichen, die in keinem Namen vorkommen</translation>
    </message>
    <message>
        <source>the relative path of entry %1 is none</source>
        <translation>der relative Pfad von Eintrag %1 ist keiner</translation>
    </message>
    <message>
        <source>It has %1 entries, and a list may have %2.</source>
        <translation>Sie hat %1 Einträge, und eine Liste darf %2 haben.</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 bei Byte %2</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>sie sagt nicht, was sie ist</translation>
    </message>
    <message>
        <source>It was saved by a newer version of Corvalis. Bring this one up to date to open it.</source>
        <translation>Sie wurde von einer neueren Version von Corvalis gespeichert. Aktualisieren Sie dieses Corvalis, um sie zu öffnen.</translation>
    </message>
    <message>
        <source>the kind or the entries are missing</source>
        <translation>die Art oder die Einträge fehlen</translation>
    </message>
    <message>
        <source>There is no such file any more.</source>
        <translation>Die Datei gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>It is far too large for a list.</source>
        <translation>Für eine Liste ist sie viel zu groß.</translation>
    </message>
</context>
<context>
    <name>ListTableModel</name>
    <message>
        <source>not measured</source>
        <translation>nicht gemessen</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Performer</source>
        <translation>Interpret</translation>
    </message>
</context>
<context>
    <name>ListTableView</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
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
        <translation>Arten von Discs und Werkzeuge</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Add music files to the list (Ctrl+O)</source>
        <translation>Musikdateien zur Liste hinzufügen (Strg+O)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Add the music files that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Die Musikdateien hinzufügen, die unmittelbar in einem Ordner liegen (Strg+Umschalt+O)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Take the selected rows off the list (Del)</source>
        <translation>Die ausgewählten Zeilen aus der Liste nehmen (Entf)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empty the list (Ctrl+Shift+Del)</source>
        <translation>Die Liste leeren (Strg+Umschalt+Entf)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Play the selected file (Ctrl+P)</source>
        <translation>Die ausgewählte Datei wiedergeben (Strg+P)</translation>
    </message>
    <message>
        <source>New Disc</source>
        <translation>Neue Disc</translation>
    </message>
    <message>
        <source>Choose another kind of disc and begin with an empty list (Ctrl+N)</source>
        <translation>Eine andere Art von Disc wählen und mit leerer Liste beginnen (Strg+N)</translation>
    </message>
    <message>
        <source>Copy Disc</source>
        <translation>Disc kopieren</translation>
    </message>
    <message>
        <source>Copy a disc onto a blank one with this drive (Ctrl+D)</source>
        <translation>Eine Disc mit diesem Laufwerk auf einen Rohling kopieren (Strg+D)</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>Audio-CD</translation>
    </message>
    <message>
        <source>A disc for every CD player: 74 minutes of sound (Alt+1)</source>
        <translation>Eine Disc für jeden CD-Spieler: 74 Minuten Ton (Alt+1)</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>MP3-CD</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours (Alt+2)</source>
        <translation>MP3-Dateien auf einer CD: neuneinhalb Stunden (Alt+2)</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>MP3-DVD</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours (Alt+3)</source>
        <translation>MP3-Dateien auf einer DVD: 38 Stunden (Alt+3)</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Audiodateien</translation>
    </message>
    <message>
        <source>Add music with “Add Files”, or drop it here.
The order of the list is the order on the disc.</source>
        <translation>Fügen Sie Musik mit „Dateien“ hinzu oder ziehen Sie sie hierher.
Die Reihenfolge der Liste ist die Reihenfolge auf der Disc.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Add video clips to the list (Ctrl+O)</source>
        <translation>Videoclips zur Liste hinzufügen (Strg+O)</translation>
    </message>
    <message>
        <source>Add the video clips that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Die Videoclips hinzufügen, die unmittelbar in einem Ordner liegen (Strg+Umschalt+O)</translation>
    </message>
    <message>
        <source>Video Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Choose the TV standard and the audio format of video discs (Ctrl+,)</source>
        <translation>Die Fernsehnorm und das Audioformat der Video-Discs wählen (Strg+,)</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>Video-DVD</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours (Alt+1)</source>
        <translation>MPEG-2-Clips auf einer DVD: zweieinhalb Stunden (Alt+1)</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Video-Blu-ray</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Videodateien</translation>
    </message>
    <message>
        <source>Add clips with “Add Files”, or drop them here.</source>
        <translation>Fügen Sie Clips mit „Dateien“ hinzu oder ziehen Sie sie hierher.</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Add single files to the list (Ctrl+Shift+F)</source>
        <translation>Einzelne Dateien zur Liste hinzufügen (Strg+Umschalt+F)</translation>
    </message>
    <message>
        <source>Add a folder to the list (Ctrl+O)</source>
        <translation>Einen Ordner zur Liste hinzufügen (Strg+O)</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>Daten-CD</translation>
    </message>
    <message>
        <source>Folders on a CD: 667 MB (Alt+1)</source>
        <translation>Ordner auf einer CD: 667 MB (Alt+1)</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>Daten-DVD</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB (Alt+2)</source>
        <translation>Ordner auf einer DVD: 4,7 GB (Alt+2)</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Daten-Blu-ray</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB (Alt+3)</source>
        <translation>Ordner auf einer Blu-ray-Disc: 25 GB (Alt+3)</translation>
    </message>
    <message>
        <source>Data folders</source>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Make an ISO Image</source>
        <translation>ISO-Abbild erstellen</translation>
    </message>
    <message>
        <source>Choose a folder and where its image is saved (Ctrl+M)</source>
        <translation>Einen Ordner wählen und wo sein Abbild gespeichert wird (Strg+M)</translation>
    </message>
    <message>
        <source>Turn a folder into an image file that can be kept, sent and written later.</source>
        <translation>Macht aus einem Ordner eine Abbilddatei, die Sie aufheben, verschicken und später brennen können.</translation>
    </message>
    <message>
        <source>Write an ISO Image</source>
        <translation>ISO-Abbild brennen</translation>
    </message>
    <message>
        <source>Choose an image file and write it (Ctrl+Shift+B)</source>
        <translation>Eine Abbilddatei wählen und brennen (Strg+Umschalt+B)</translation>
    </message>
    <message>
        <source>Write an .iso, .img or .dmg file to the disc in the drive.</source>
        <translation>Brennt eine .iso-, .img- oder .dmg-Datei auf die Disc im Laufwerk.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Erase Disc</source>
        <translation>Disc löschen</translation>
    </message>
    <message>
        <source>Erase the rewritable disc in the drive</source>
        <translation>Die wiederbeschreibbare Disc im Laufwerk löschen</translation>
    </message>
    <message>
        <source>Destroys everything on the rewritable disc in the drive. It does not ask again.</source>
        <translation>Vernichtet alles auf der Disc im Laufwerk. Es wird nicht noch einmal gefragt.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Disc-Informationen</translation>
    </message>
    <message>
        <source>Show the state of the disc (Ctrl+I)</source>
        <translation>Den Zustand der Disc zeigen (Strg+I)</translation>
    </message>
    <message>
        <source>Shows what kind of disc is in the drive, how full it is and whether it can be written.</source>
        <translation>Zeigt, was für eine Disc im Laufwerk liegt, wie voll sie ist und ob sie beschrieben werden kann.</translation>
    </message>
    <message>
        <source>Eject Disc</source>
        <translation>Disc auswerfen</translation>
    </message>
    <message>
        <source>Open the tray (Ctrl+E)</source>
        <translation>Die Schublade öffnen (Strg+E)</translation>
    </message>
    <message>
        <source>Opens the tray of the selected drive.</source>
        <translation>Öffnet die Schublade des gewählten Laufwerks.</translation>
    </message>
    <message>
        <source>Load Disc</source>
        <translation>Disc einziehen</translation>
    </message>
    <message>
        <source>Close the tray (Ctrl+Shift+E)</source>
        <translation>Die Schublade schließen (Strg+Umschalt+E)</translation>
    </message>
    <message>
        <source>Closes the tray of the selected drive.</source>
        <translation>Schließt die Schublade des gewählten Laufwerks.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Choose the colours of this window (Ctrl+Shift+C)</source>
        <translation>Die Farben dieses Fensters wählen (Strg+Umschalt+C)</translation>
    </message>
    <message>
        <source>Choose the colours of this window and its lists.</source>
        <translation>Die Farben dieses Fensters und seiner Listen wählen.</translation>
    </message>
    <message>
        <source>Activity Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Show what was run and how it ended (Ctrl+L)</source>
        <translation>Zeigen, was ausgeführt wurde und wie es ausging (Strg+L)</translation>
    </message>
    <message>
        <source>Every command that was run, with all that it said.</source>
        <translation>Jeder Befehl, der ausgeführt wurde, mit allem, was er gemeldet hat.</translation>
    </message>
    <message>
        <source>Space occupied</source>
        <translation>Belegt</translation>
    </message>
    <message>
        <source>Space occupied on the disc</source>
        <translation>Belegter Platz auf der Disc</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Audio-CD brennen</translation>
    </message>
    <message>
        <source>Write the list to the disc in the drive (Ctrl+B)</source>
        <translation>Die Liste auf die Disc im Laufwerk brennen (Strg+B)</translation>
    </message>
    <message>
        <source>&amp;Disc</source>
        <translation>&amp;Disc</translation>
    </message>
    <message>
        <source>&amp;Kind of Disc</source>
        <translation>Ar&amp;t der Disc</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt verwendet</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>Sortieren na&amp;ch</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>D&amp;rive</source>
        <translation>&amp;Laufwerk</translation>
    </message>
    <message>
        <source>&amp;Insert Blank Disc</source>
        <translation>&amp;Rohling einlegen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>&amp;Erase Disc</source>
        <translation>Disc &amp;löschen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;New Disc…</source>
        <translation>&amp;Neue Disc…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Sa&amp;ve As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Find &amp;Missing Files…</source>
        <translation>&amp;Fehlende Dateien suchen…</translation>
    </message>
    <message>
        <source>Add F&amp;iles…</source>
        <translation>Date&amp;ien hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Dateien hinzufügen…</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <source>&amp;Copy Disc…</source>
        <translation>Disc &amp;kopieren…</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Brennen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Be&amp;enden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>D&amp;auer</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Größe</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Pfad</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Liste leeren</translation>
    </message>
    <message>
        <source>Select A&amp;ll</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Wieder&amp;gabe</translation>
    </message>
    <message>
        <source>&amp;Video Settings…</source>
        <translation>&amp;Videoeinstellungen…</translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation>&amp;Audio</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Video</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Daten</translation>
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
        <translation>Kein Laufwerk gefunden</translation>
    </message>
    <message>
        <source>Drive 2</source>
        <translation>Laufwerk 2</translation>
    </message>
    <message>
        <source>Drive 3</source>
        <translation>Laufwerk 3</translation>
    </message>
    <message>
        <source>Drive 4</source>
        <translation>Laufwerk 4</translation>
    </message>
    <message>
        <source>Drive 5</source>
        <translation>Laufwerk 5</translation>
    </message>
    <message>
        <source>Drive 6</source>
        <translation>Laufwerk 6</translation>
    </message>
    <message>
        <source>&amp;Remove Disc</source>
        <translation>Disc &amp;herausnehmen</translation>
    </message>
    <message>
        <source>Show &amp;Written Discs</source>
        <translation>&amp;Gebrannte Discs zeigen</translation>
    </message>
    <message>
        <source>Erase &amp;Completely: overwrite everything on the disc</source>
        <translation>&amp;Vollständig löschen: alles auf der Disc überschreiben</translation>
    </message>
    <message>
        <source>Erase &amp;Quickly: make everything on the disc unreachable</source>
        <translation>&amp;Schnell löschen: alles auf der Disc unerreichbar machen</translation>
    </message>
    <message>
        <source>&amp;Make an ISO Image…</source>
        <translation>ISO-Abbild &amp;erstellen…</translation>
    </message>
    <message>
        <source>&amp;Write an ISO Image…</source>
        <translation>ISO-Abbild &amp;brennen…</translation>
    </message>
    <message>
        <source>E&amp;ject Disc</source>
        <translation>Disc &amp;auswerfen</translation>
    </message>
    <message>
        <source>&amp;Load Disc</source>
        <translation>Disc ein&amp;ziehen</translation>
    </message>
    <message>
        <source>Disc &amp;Information</source>
        <translation>Disc-&amp;Informationen</translation>
    </message>
    <message>
        <source>C&amp;olours…</source>
        <translation>&amp;Farben…</translation>
    </message>
    <message>
        <source>&amp;Activity Log</source>
        <translation>&amp;Protokoll</translation>
    </message>
    <message>
        <source>Corvalis &amp;Home Page</source>
        <translation>&amp;Webseite von Corvalis</translation>
    </message>
    <message>
        <source>&amp;Makers’ Home Page</source>
        <translation>Webseite des &amp;Herstellers</translation>
    </message>
    <message>
        <source>As&amp;k for Support</source>
        <translation>&amp;Unterstützung anfragen</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>&amp;Datenschutzerklärung</translation>
    </message>
    <message>
        <source>&amp;Debug Mode</source>
        <translation>D&amp;ebug-Modus</translation>
    </message>
    <message>
        <source>&amp;About Corvalis</source>
        <translation>&amp;Über Corvalis</translation>
    </message>
    <message>
        <source>Add folders and files with the buttons above, or drop them here.</source>
        <translation>Fügen Sie Ordner und Dateien mit den Knöpfen oben hinzu oder ziehen Sie sie hierher.</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>&amp;Benutzerhandbuch</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc, as files for computers and for players that play files: 23 hours (Alt+2)</source>
        <translation>MPEG-2-Clips auf einer Blu-ray-Disc, als Dateien für Rechner und für Player, die Dateien abspielen: 23 Stunden (Alt+2)</translation>
    </message>
    <message>
        <source>Add O&amp;ther Files…</source>
        <translation>Andere Dateien &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Add files of any ending with sound, or with a film, in them, and playlists</source>
        <translation>Dateien jeder Endung mit Ton oder einem Film darin und Wiedergabelisten hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Write Titles on Audio CDs</source>
        <translation>Titel auf Audio-&amp;CDs schreiben</translation>
    </message>
    <message>
        <source>Audio CDs get the titles and performers of their tracks as CD-TEXT</source>
        <translation>Audio-CDs erhalten Titel und Interpreten ihrer Stücke als CD-TEXT</translation>
    </message>
    <message>
        <source>&amp;Edit Title</source>
        <translation>&amp;Titel bearbeiten</translation>
    </message>
    <message>
        <source>Type another title for the row; Tab goes on to the performer</source>
        <translation>Einen anderen Titel für die Zeile eingeben; Tab führt weiter zum Interpreten</translation>
    </message>
    <message>
        <source>Title and &amp;Performer</source>
        <translation>Titel und Inter&amp;pret</translation>
    </message>
    <message>
        <source>Show the titles and performers of audio files on the list</source>
        <translation>Titel und Interpreten der Audiodateien in der Liste zeigen</translation>
    </message>
    <message>
        <source>Writing &amp;Speed</source>
        <translation>Brenngesch&amp;windigkeit</translation>
    </message>
    <message>
        <source>&amp;Look for Drives</source>
        <translation>Laufwerke &amp;suchen</translation>
    </message>
    <message>
        <source>Ask which drives there are now</source>
        <translation>Nachsehen, welche Laufwerke es jetzt gibt</translation>
    </message>
</context>
<context>
    <name>Measuring</name>
    <message>
        <source>There is no such file any more.</source>
        <translation>Die Datei gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>You have no permission to read this file.</source>
        <translation>Sie haben keine Berechtigung, diese Datei zu lesen.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>What the file says of itself is not valid UTF-8 text.</source>
        <translation>Was die Datei über sich sagt, ist kein gültiger UTF-8-Text.</translation>
    </message>
    <message>
        <source>The file does not say how long it is.</source>
        <translation>Die Datei sagt nicht, wie lang sie ist.</translation>
    </message>
    <message>
        <source>The file cannot be read as sound or film: %1.</source>
        <translation>Die Datei kann nicht als Ton oder Film gelesen werden: %1.</translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>The file is not there.</source>
        <translation>Die Datei ist nicht da.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>You have no permission to read the file.</source>
        <translation>Sie haben keine Berechtigung, die Datei zu lesen.</translation>
    </message>
    <message>
        <source>The media library could not be started.</source>
        <translation>Die Medienbibliothek konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Die Datei konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>NameColumns</name>
    <message>
        <source>Return keeps what was typed, Escape what was there before</source>
        <translation>Die Eingabetaste behält das Eingegebene, Esc das Vorherige</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>und %Ln weitere</numerusform>
            <numerusform>und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Operation complete</source>
        <translation>Vorgang abgeschlossen</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>The disc was written, but some things are not on it</source>
        <translation>Die Disc wurde gebrannt, aber nicht alles ist darauf</translation>
    </message>
    <message>
        <source>The image was made, but some things are not in it</source>
        <translation>Das Abbild wurde erstellt, aber nicht alles ist darin</translation>
    </message>
    <message>
        <source>The disc was erased, but not everything went well</source>
        <translation>Die Disc wurde gelöscht, aber nicht alles ging gut</translation>
    </message>
    <message>
        <source>The disc was not written</source>
        <translation>Die Disc wurde nicht gebrannt</translation>
    </message>
    <message>
        <source>The image was not made</source>
        <translation>Das Abbild wurde nicht erstellt</translation>
    </message>
    <message>
        <source>The disc was not erased</source>
        <translation>Die Disc wurde nicht gelöscht</translation>
    </message>
</context>
<context>
    <name>PreviewPlayer</name>
    <message>
        <source>The preview player is not installed completely: %1. Install Corvalis again together with its preview player.</source>
        <translation>Der Vorschau-Player ist nicht vollständig installiert: %1. Installieren Sie Corvalis zusammen mit seinem Vorschau-Player neu.</translation>
    </message>
</context>
<context>
    <name>ProjectType</name>
    <message>
        <source>Audio CD</source>
        <translation>Audio-CD</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Audio-CD brennen</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>MP3-CD</translation>
    </message>
    <message>
        <source>Burn MP3 CD</source>
        <translation>MP3-CD brennen</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>MP3-DVD</translation>
    </message>
    <message>
        <source>Burn MP3 DVD</source>
        <translation>MP3-DVD brennen</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>Video-DVD</translation>
    </message>
    <message>
        <source>Burn Video DVD</source>
        <translation>Video-DVD brennen</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Video-Blu-ray</translation>
    </message>
    <message>
        <source>Burn Video Blu-ray</source>
        <translation>Video-Blu-ray brennen</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>Daten-CD</translation>
    </message>
    <message>
        <source>Burn Data CD</source>
        <translation>Daten-CD brennen</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>Daten-DVD</translation>
    </message>
    <message>
        <source>Burn Data DVD</source>
        <translation>Daten-DVD brennen</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Daten-Blu-ray</translation>
    </message>
    <message>
        <source>Burn Data Blu-ray</source>
        <translation>Daten-Blu-ray brennen</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Some files cannot be used</source>
        <translation>Einige Dateien können nicht verwendet werden</translation>
    </message>
    <message>
        <source>Only files with these extensions can: .%1</source>
        <translation>Nur Dateien mit diesen Endungen können verwendet werden: .%1</translation>
    </message>
    <message>
        <source>Their names are not valid UTF-8 text. Rename them and try again.</source>
        <translation>Ihre Namen sind kein gültiger UTF-8-Text. Benennen Sie sie um und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>&amp;So schnell wie möglich</translation>
    </message>
    <message>
        <source>%1×</source>
        <comment>a factor of the speed, as in 16×</comment>
        <translation>%1×</translation>
    </message>
    <message>
        <source>The drive does not answer</source>
        <translation>Das Laufwerk antwortet nicht</translation>
    </message>
    <message>
        <source>The drive is being asked…</source>
        <translation>Das Laufwerk wird gefragt…</translation>
    </message>
    <message>
        <source>There is no disc in the drive</source>
        <translation>Im Laufwerk liegt keine Disc</translation>
    </message>
    <message>
        <source>The drive names no speeds for its disc</source>
        <translation>Das Laufwerk nennt keine Geschwindigkeiten für seine Disc</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
</context>
<context>
    <name>StatusSheets</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
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
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Weitermachen</translation>
    </message>
    <message>
        <source>Stop &amp;Now</source>
        <translation>&amp;Jetzt abbrechen</translation>
    </message>
    <message>
        <source>Asks before it stops (Escape)</source>
        <translation>Fragt nach, bevor abgebrochen wird (Esc)</translation>
    </message>
    <message>
        <source>Takes the question back; the work has gone on meanwhile (Escape)</source>
        <translation>Nimmt die Frage zurück; die Arbeit ging inzwischen weiter (Esc)</translation>
    </message>
    <message>
        <source>Ends the work at once</source>
        <translation>Beendet die Arbeit sofort</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird abgebrochen…</translation>
    </message>
    <message>
        <source>Stop now?</source>
        <translation>Jetzt abbrechen?</translation>
    </message>
</context>
<context>
    <name>Surface</name>
    <message>
        <source>corvalis: there is no display for the window. Start it on a desktop, or use --burn, which needs none.</source>
        <translation>corvalis: Für das Fenster gibt es keinen Bildschirm. Starten Sie es auf einem Desktop oder verwenden Sie --burn, das keinen braucht.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>Less than a minute left</source>
        <translation>Noch weniger als eine Minute</translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Noch etwa eine Minute</translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Noch etwa %n Minute</numerusform>
            <numerusform>Noch etwa %n Minuten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Noch etwa %n Stunde</numerusform>
            <numerusform>Noch etwa %n Stunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimeSlider</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>TrackNames</name>
    <message>
        <source>The converted file is not complete</source>
        <translation>Die umgewandelte Datei ist nicht vollständig</translation>
    </message>
</context>
<context>
    <name>Window_Activity_Log</name>
    <message>
        <source>Activity Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Commands that were run</source>
        <translation>Ausgeführte Befehle</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Ausgang</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>What the command said</source>
        <translation>Was der Befehl gemeldet hat</translation>
    </message>
    <message>
        <source>Choose a command to see what it said.</source>
        <translation>Wählen Sie einen Befehl, um zu sehen, was er gemeldet hat.</translation>
    </message>
    <message>
        <source>Everything that was run since the program started.</source>
        <translation>Alles, was seit dem Start des Programms ausgeführt wurde.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected entries, or the whole log</source>
        <translation>Die ausgewählten Einträge oder das ganze Protokoll kopieren</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Save the whole log as a text file</source>
        <translation>Das ganze Protokoll als Textdatei speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <source>Save the activity log</source>
        <translation>Das Protokoll speichern</translation>
    </message>
    <message>
        <source>The log could not be saved</source>
        <translation>Das Protokoll konnte nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>Window_Alert</name>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
</context>
<context>
    <name>Window_Colors</name>
    <message>
        <source>Which colours should the window have?</source>
        <translation>Welche Farben soll das Fenster haben?</translation>
    </message>
    <message>
        <source>List &amp;background</source>
        <translation>&amp;Hintergrund der Listen</translation>
    </message>
    <message>
        <source>List background</source>
        <translation>Hintergrund der Listen</translation>
    </message>
    <message>
        <source>List te&amp;xt</source>
        <translation>&amp;Text der Listen</translation>
    </message>
    <message>
        <source>List text</source>
        <translation>Text der Listen</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Symbolleisten</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Symbolleisten</translation>
    </message>
    <message>
        <source>Bottom b&amp;ar</source>
        <translation>&amp;Untere Leiste</translation>
    </message>
    <message>
        <source>Bottom bar</source>
        <translation>Untere Leiste</translation>
    </message>
    <message>
        <source>Occupied &amp;space</source>
        <translation>&amp;Belegter Platz</translation>
    </message>
    <message>
        <source>Occupied space</source>
        <translation>Belegter Platz</translation>
    </message>
    <message>
        <source>A&amp;lternate the colours of the rows</source>
        <translation>&amp;Zeilen abwechselnd färben</translation>
    </message>
    <message>
        <source>Make every other row of the lists a little lighter or darker</source>
        <translation>Jede zweite Zeile der Listen etwas heller oder dunkler machen</translation>
    </message>
    <message>
        <source>While the rows alternate, the lists are white on a light desktop and black on a dark one.</source>
        <translation>Während die Zeilen sich abwechseln, sind die Listen auf einem hellen Desktop weiß und auf einem dunklen schwarz.</translation>
    </message>
    <message>
        <source>Use these colours</source>
        <translation>Diese Farben verwenden</translation>
    </message>
    <message>
        <source>Close and leave the window as it is (Escape)</source>
        <translation>Schließen und das Fenster lassen, wie es ist (Esc)</translation>
    </message>
    <message>
        <source>Original Colo&amp;urs</source>
        <translation>Ursprüngliche &amp;Farben</translation>
    </message>
    <message>
        <source>Bring back the colours that Corvalis came with, and keep them even if you cancel</source>
        <translation>Die mitgelieferten Farben von Corvalis zurückholen und behalten, auch wenn Sie abbrechen</translation>
    </message>
</context>
<context>
    <name>Window_Data_Copy_Folders</name>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
    <message>
        <source>Copying the folders</source>
        <translation>Die Ordner werden kopiert</translation>
    </message>
    <message>
        <source>They are gathered in one place before the disc is written. This takes a minute or more for each folder.</source>
        <translation>Sie werden an einem Ort zusammengestellt, bevor die Disc gebrannt wird. Das dauert für jeden Ordner eine Minute oder länger.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 von %3)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2)</source>
        <translation>Kopierte Dateien: %1 (%2)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2 of %3)</source>
        <translation>Kopierte Dateien: %1 (%2 von %3)</translation>
    </message>
</context>
<context>
    <name>Window_New_Disc</name>
    <message>
        <source>What kind of disc do you want to make?</source>
        <translation>Was für eine Disc möchten Sie machen?</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>&amp;Audio CD</source>
        <translation>&amp;Audio-CD</translation>
    </message>
    <message>
        <source>Plays in every CD player: 74 minutes</source>
        <translation>Läuft in jedem CD-Spieler: 74 Minuten</translation>
    </message>
    <message>
        <source>&amp;MP3 CD</source>
        <translation>&amp;MP3-CD</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours</source>
        <translation>MP3-Dateien auf einer CD: neuneinhalb Stunden</translation>
    </message>
    <message>
        <source>MP&amp;3 DVD</source>
        <translation>MP&amp;3-DVD</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours</source>
        <translation>MP3-Dateien auf einer DVD: 38 Stunden</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>&amp;Video DVD</source>
        <translation>&amp;Video-DVD</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours</source>
        <translation>MPEG-2-Clips auf einer DVD: zweieinhalb Stunden</translation>
    </message>
    <message>
        <source>Vid&amp;eo Blu-ray</source>
        <translation>Vid&amp;eo-Blu-ray</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc: 23 hours</source>
        <translation>MPEG-2-Clips auf einer Blu-ray-Disc: 23 Stunden</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Data &amp;CD</source>
        <translation>Daten-&amp;CD</translation>
    </message>
    <message>
        <source>Folders on a CD: 700 MB</source>
        <translation>Ordner auf einer CD: 700 MB</translation>
    </message>
    <message>
        <source>&amp;Data DVD</source>
        <translation>&amp;Daten-DVD</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB</source>
        <translation>Ordner auf einer DVD: 4,7 GB</translation>
    </message>
    <message>
        <source>Data &amp;Blu-ray</source>
        <translation>Daten-&amp;Blu-ray</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB</source>
        <translation>Ordner auf einer Blu-ray-Disc: 25 GB</translation>
    </message>
    <message>
        <source>OK empties the list.</source>
        <translation>OK leert die Liste.</translation>
    </message>
</context>
<context>
    <name>Window_Open_Panel</name>
    <message>
        <source>Accepted files (%1)</source>
        <translation>Mögliche Dateien (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message numerus="yes">
        <source>%n folder(s) cannot be shown here: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n Ordner kann hier nicht gezeigt werden: Sein Name ist kein gültiger UTF-8-Text. Benennen Sie ihn um, um ihn zu wählen.</numerusform>
            <numerusform>%n Ordner können hier nicht gezeigt werden: Ihre Namen sind kein gültiger UTF-8-Text. Benennen Sie sie um, um sie zu wählen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n Datei dieses Ordners kann nicht gezeigt werden: Ihr Name ist kein gültiger UTF-8-Text. Benennen Sie sie um, um sie zu wählen.</numerusform>
            <numerusform>%n Dateien dieses Ordners können nicht gezeigt werden: Ihre Namen sind kein gültiger UTF-8-Text. Benennen Sie sie um, um sie zu wählen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Window_Operation_Terminated</name>
    <message>
        <source>Operation complete</source>
        <translation>Vorgang abgeschlossen</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Activity Log…</source>
        <translation>Protokoll…</translation>
    </message>
    <message>
        <source>Show in its folder what was made</source>
        <translation>Das Ergebnis in seinem Ordner zeigen</translation>
    </message>
    <message>
        <source>Show the command that decided, and all it said</source>
        <translation>Den entscheidenden Befehl zeigen und alles, was er gemeldet hat</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>Aus&amp;werfen</translation>
    </message>
    <message>
        <source>Open the tray of the drive</source>
        <translation>Die Schublade des Laufwerks öffnen</translation>
    </message>
    <message>
        <source>&amp;Burn Another</source>
        <translation>Noch eine &amp;brennen</translation>
    </message>
    <message>
        <source>Do the same once more, with the disc that is in the drive then</source>
        <translation>Dasselbe noch einmal tun, mit der Disc, die dann im Laufwerk liegt</translation>
    </message>
</context>
<context>
    <name>Window_Performing_Operation</name>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
    <message>
        <source>This can take several minutes. Please leave the disc in the drive.</source>
        <translation>Das kann einige Minuten dauern. Bitte lassen Sie die Disc im Laufwerk.</translation>
    </message>
    <message>
        <source>Progress of the disc</source>
        <translation>Fortschritt der Disc</translation>
    </message>
    <message>
        <source>Making the image</source>
        <translation>Das Abbild wird erstellt</translation>
    </message>
    <message>
        <source>This can take several minutes.</source>
        <translation>Das kann einige Minuten dauern.</translation>
    </message>
    <message>
        <source>Erasing the disc</source>
        <translation>Die Disc wird gelöscht</translation>
    </message>
    <message>
        <source>Writing the disc</source>
        <translation>Die Disc wird gebrannt</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Titel und Kapitel werden erstellt</translation>
    </message>
</context>
<context>
    <name>Window_Progress</name>
    <message>
        <source>Preparing the files</source>
        <translation>Die Dateien werden vorbereitet</translation>
    </message>
    <message>
        <source>Each file is converted to the format of the disc. Then the disc is written.</source>
        <translation>Jede Datei wird in das Format der Disc umgewandelt. Dann wird die Disc gebrannt.</translation>
    </message>
    <message>
        <source>This file</source>
        <translation>Diese Datei</translation>
    </message>
    <message>
        <source>Progress of this file</source>
        <translation>Fortschritt dieser Datei</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Progress of all files</source>
        <translation>Fortschritt aller Dateien</translation>
    </message>
</context>
<context>
    <name>Window_Unique_Progress</name>
    <message>
        <source>Adding files</source>
        <translation>Dateien werden hinzugefügt</translation>
    </message>
    <message>
        <source>The running time of each file is measured.</source>
        <translation>Die Laufzeit jeder Datei wird gemessen.</translation>
    </message>
    <message>
        <source>Files measured so far</source>
        <translation>Bisher gemessene Dateien</translation>
    </message>
    <message>
        <source>The files that were measured so far are added to the list.</source>
        <translation>Die bisher gemessenen Dateien werden in die Liste aufgenommen.</translation>
    </message>
</context>
<context>
    <name>Window_Video_Settings</name>
    <message>
        <source>How are clips converted for video discs?</source>
        <translation>Wie werden Clips für Video-Discs umgewandelt?</translation>
    </message>
    <message>
        <source>TV standard</source>
        <translation>Fernsehnorm</translation>
    </message>
    <message>
        <source>&amp;NTSC (720 × 480, 29.97 frames per second)</source>
        <translation>&amp;NTSC (720 × 480, 29,97 Bilder pro Sekunde)</translation>
    </message>
    <message>
        <source>For players in North America, Japan and parts of South America</source>
        <translation>Für Player in Nordamerika, Japan und Teilen Südamerikas</translation>
    </message>
    <message>
        <source>&amp;PAL (720 × 576, 25 frames per second)</source>
        <translation>&amp;PAL (720 × 576, 25 Bilder pro Sekunde)</translation>
    </message>
    <message>
        <source>For players in Europe, Africa, Australia and most of Asia</source>
        <translation>Für Player in Europa, Afrika, Australien und den meisten Ländern Asiens</translation>
    </message>
    <message>
        <source>Audio format</source>
        <translation>Audioformat</translation>
    </message>
    <message>
        <source>&amp;Dolby Digital (AC-3)</source>
        <translation>&amp;Dolby Digital (AC-3)</translation>
    </message>
    <message>
        <source>&amp;MPEG-2 audio (MP2)</source>
        <translation>&amp;MPEG-2-Audio (MP2)</translation>
    </message>
    <message>
        <source>&amp;For DVD players (titles and chapters)</source>
        <translation>&amp;Für DVD-Player (Titel und Kapitel)</translation>
    </message>
    <message>
        <source>Video DVDs play in the player below a television, one clip after the other; without this, video discs hold files</source>
        <translation>Video-DVDs laufen im Player unter dem Fernseher, ein Clip nach dem anderen; ohne dies enthalten Video-Discs Dateien</translation>
    </message>
    <message>
        <source>Concerns Video DVDs. Video Blu-ray discs always hold files.</source>
        <translation>Betrifft Video-DVDs. Video-Blu-ray-Discs enthalten immer Dateien.</translation>
    </message>
</context>
<context>
    <name>desktop::JobPresence</name>
    <message>
        <source>A disc image is being made.</source>
        <translation>Ein Disc-Abbild wird erstellt.</translation>
    </message>
    <message>
        <source>A disc is being erased.</source>
        <translation>Eine Disc wird gelöscht.</translation>
    </message>
    <message>
        <source>A disc is being made.</source>
        <translation>Eine Disc wird erstellt.</translation>
    </message>
    <message>
        <source>%1 % – Corvalis</source>
        <translation>%1 % – Corvalis</translation>
    </message>
    <message>
        <source>Show Corvalis</source>
        <translation>Corvalis zeigen</translation>
    </message>
</context>
<context>
    <name>desktop::Opening</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>New Audio CD</source>
        <translation>Neue Audio-CD</translation>
    </message>
    <message>
        <source>New Data Disc</source>
        <translation>Neue Daten-Disc</translation>
    </message>
    <message>
        <source>Write an Image</source>
        <translation>Abbild brennen</translation>
    </message>
    <message>
        <source>Copy a Disc</source>
        <translation>Disc kopieren</translation>
    </message>
    <message>
        <source>Not everything can be opened</source>
        <translation>Nicht alles kann geöffnet werden</translation>
    </message>
    <message>
        <source>Files of this computer can be opened: music, films, folders, one disc image or one saved list.</source>
        <translation>Dateien dieses Rechners können geöffnet werden: Musik, Filme, Ordner, ein Disc-Abbild oder eine gespeicherte Liste.</translation>
    </message>
    <message>
        <source>One disc image or one saved list can be opened at a time.</source>
        <translation>Nur ein Disc-Abbild oder eine gespeicherte Liste kann auf einmal geöffnet werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Opened when the job has ended: %1</source>
        <translation>Wird geöffnet, wenn der Auftrag beendet ist: %1</translation>
    </message>
    <message>
        <source>Opened when this is answered: %1</source>
        <translation>Wird geöffnet, wenn dies beantwortet ist: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Window_Opened_Image</name>
    <message>
        <source>Write this image to the disc in the drive?</source>
        <translation>Dieses Abbild auf die Disc im Laufwerk brennen?</translation>
    </message>
    <message>
        <source>%1 in the folder %2</source>
        <translation>%1 im Ordner %2</translation>
    </message>
    <message>
        <source>&amp;Write Image</source>
        <translation>Abbild &amp;brennen</translation>
    </message>
    <message>
        <source>Write Image</source>
        <translation>Abbild brennen</translation>
    </message>
    <message>
        <source>Look at the disc in the drive, and write the image to it</source>
        <translation>Die Disc im Laufwerk prüfen und das Abbild darauf brennen</translation>
    </message>
</context>
<context>
    <name>runner::ToolRun</name>
    <message>
        <source>ended without an error</source>
        <translation>endete ohne Fehler</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>endete mit Status %1</translation>
    </message>
    <message>
        <source>could not be started: %1</source>
        <translation>konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>crashed (signal %1)</source>
        <translation>abgestürzt (Signal %1)</translation>
    </message>
    <message>
        <source>was ended because it gave no answer in time</source>
        <translation>wurde beendet, weil keine Antwort kam</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1 ended without an error</source>
        <translation>%1 endete ohne Fehler</translation>
    </message>
    <message>
        <source>%1 ended with status %2</source>
        <translation>%1 endete mit Status %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>%1 crashed (signal %2)</source>
        <translation>%1 ist abgestürzt (Signal %2)</translation>
    </message>
    <message>
        <source>%1 was ended because it gave no answer in time</source>
        <translation>%1 wurde beendet, weil rechtzeitig keine Antwort kam</translation>
    </message>
    <message>
        <source>%1 was stopped</source>
        <translation>%1 wurde abgebrochen</translation>
    </message>
    <message>
        <source>%1, as expected</source>
        <translation>%1, wie erwartet</translation>
    </message>
</context>
<context>
    <name>writing::Job</name>
    <message>
        <source>There was nothing left to write. The disc is as it was.</source>
        <translation>Es war nichts mehr zu brennen. Die Disc ist, wie sie war.</translation>
    </message>
    <message>
        <source>The disc is as it was.</source>
        <translation>Die Disc ist, wie sie war.</translation>
    </message>
    <message>
        <source>There is no usable image.</source>
        <translation>Es gibt kein brauchbares Abbild.</translation>
    </message>
    <message>
        <source>The disc has to be erased again before it can be used.</source>
        <translation>Die Disc muss noch einmal gelöscht werden, bevor sie verwendet werden kann.</translation>
    </message>
    <message>
        <source>The disc is written, but was not compared.</source>
        <translation>Die Disc ist gebrannt, wurde aber nicht verglichen.</translation>
    </message>
    <message>
        <source>The disc is incomplete: erase it before you use it again.</source>
        <translation>Die Disc ist unvollständig: Löschen Sie sie, bevor Sie sie wieder verwenden.</translation>
    </message>
    <message>
        <source>The disc is incomplete and cannot be used any more.</source>
        <translation>Die Disc ist unvollständig und kann nicht mehr verwendet werden.</translation>
    </message>
    <message>
        <source>What was converted so far is thrown away. The disc stays as it is.</source>
        <translation>Was bisher umgewandelt wurde, wird verworfen. Die Disc bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>What was copied so far is thrown away. The disc and your folders stay as they are.</source>
        <translation>Was bisher kopiert wurde, wird verworfen. Die Disc und Ihre Ordner bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>The image made so far is deleted.</source>
        <translation>Das bisher erstellte Abbild wird gelöscht.</translation>
    </message>
    <message>
        <source>Nothing is written yet. The disc stays as it is.</source>
        <translation>Noch ist nichts gebrannt. Die Disc bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>The disc is written. It is not compared to the end.</source>
        <translation>Die Disc ist gebrannt. Sie wird nicht zu Ende verglichen.</translation>
    </message>
    <message>
        <source>What was written so far is lost. The disc has to be erased before it is used again.</source>
        <translation>Was bisher gebrannt wurde, ist verloren. Die Disc muss gelöscht werden, bevor sie wieder verwendet wird.</translation>
    </message>
    <message>
        <source>This disc is lost: it cannot be written a second time.</source>
        <translation>Diese Disc ist verloren: Sie kann nicht ein zweites Mal beschrieben werden.</translation>
    </message>
    <message>
        <source>No image was made.</source>
        <translation>Es wurde kein Abbild erstellt.</translation>
    </message>
    <message>
        <source>Nothing was written. The disc is as it was.</source>
        <translation>Es wurde nichts gebrannt. Die Disc ist, wie sie war.</translation>
    </message>
    <message>
        <source>the working folder</source>
        <translation>der Arbeitsordner</translation>
    </message>
    <message>
        <source>%1 could not make the titles: %2. The disc is as it was.</source>
        <translation>%1 konnte die Titel nicht erstellen: %2. Die Disc ist, wie sie war.</translation>
    </message>
</context>
</TS>
