<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_GB">
<context>
    <name>AVSPDocument</name>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>The file is being opened</source>
        <translation>Se está abriendo el archivo</translation>
    </message>
    <message>
        <source>This file cannot be played.</source>
        <translation>Este archivo no se puede reproducir.</translation>
    </message>
    <message>
        <source>Sound only, no picture</source>
        <translation>Solo sonido, sin imagen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Rebobinar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avance rápido</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Volume (Up and Down)</source>
        <translation>Volumen (Arriba y Abajo)</translation>
    </message>
    <message>
        <source>The file cannot be played</source>
        <translation>El archivo no se puede reproducir</translation>
    </message>
    <message>
        <source>Video could not be played.</source>
        <translation>No se pudo reproducir el vídeo.</translation>
    </message>
    <message>
        <source>The file could not be played</source>
        <translation>No se pudo reproducir el archivo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>Reproducir o pausar (Espacio)</translation>
    </message>
    <message>
        <source>Fast forward; each press is faster</source>
        <translation>Avance rápido; más rápido con cada pulsación</translation>
    </message>
    <message>
        <source>Rewind; each press is faster</source>
        <translation>Rebobinar; más rápido con cada pulsación</translation>
    </message>
    <message>
        <source>Position (Left and Right: five seconds)</source>
        <translation>Posición (Izquierda y Derecha: cinco segundos)</translation>
    </message>
</context>
<context>
    <name>Acceptance</name>
    <message>
        <source>These are not files of this computer. Copy them into a folder of it, and add them from there.</source>
        <translation>No son archivos de este equipo. Cópielos en una de sus carpetas y añádalos desde allí.</translation>
    </message>
    <message>
        <source>There are no files of these names any more. They may have been moved or renamed.</source>
        <translation>Ya no hay archivos con estos nombres. Puede que se hayan movido o cambiado de nombre.</translation>
    </message>
    <message>
        <source>These are links, and what they lead to is not there.</source>
        <translation>Son enlaces, y aquello a lo que llevan no existe.</translation>
    </message>
    <message>
        <source>You have no permission to look into these folders. Their owner can give it to you.</source>
        <translation>No tiene permiso para ver estas carpetas. Su propietario puede dárselo.</translation>
    </message>
    <message>
        <source>These are pipes or devices and not files, whatever their names end in. They have no length.</source>
        <translation>Son tuberías o dispositivos y no archivos, terminen como terminen sus nombres. No tienen duración.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and folders with such files in them.</source>
        <translation>Esta lista admite archivos que terminan en %1 y carpetas que los contienen.</translation>
    </message>
    <message>
        <source>No file directly in these folders ends in %1. Folders in them are not looked into.</source>
        <translation>Ningún archivo situado directamente en estas carpetas termina en %1. No se mira en las carpetas que contienen.</translation>
    </message>
    <message>
        <source>The files in these folders have their endings in capital letters, and of a folder only those in small letters are taken. Add the files themselves.</source>
        <translation>Los archivos de estas carpetas tienen la extensión en mayúsculas, y de una carpeta solo se toman los que la tienen en minúsculas. Añada los propios archivos.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with sound in them. ffmpeg finds none in these.</source>
        <translation>Esta lista admite archivos que terminan en %1 y cualquier otro que tenga sonido. En estos ffmpeg no lo encuentra.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with a film in them. ffmpeg finds none in these.</source>
        <translation>Esta lista admite archivos que terminan en %1 y cualquier otro que tenga una película. En estos ffmpeg no la encuentra.</translation>
    </message>
    <message>
        <source>ffmpeg finds no sound in any file in these folders or below.</source>
        <translation>ffmpeg no encuentra sonido en ningún archivo de estas carpetas ni de sus subcarpetas.</translation>
    </message>
    <message>
        <source>ffmpeg finds no film in any file in these folders or below.</source>
        <translation>ffmpeg no encuentra ninguna película en los archivos de estas carpetas ni de sus subcarpetas.</translation>
    </message>
    <message>
        <source>These are playlists and folders that a playlist names, and those are not followed. Add them themselves.</source>
        <translation>Son listas de reproducción y carpetas nombradas en una lista de reproducción, y esas no se siguen. Añádalas directamente.</translation>
    </message>
    <message>
        <source>These playlists name no files, or they are damaged.</source>
        <translation>Estas listas de reproducción no nombran ningún archivo o están dañadas.</translation>
    </message>
    <message>
        <source>These playlists name more than 100,000 files. Only so many were taken, the first ones.</source>
        <translation>Estas listas de reproducción nombran más de 100.000 archivos. Solo se tomaron los primeros, hasta ese número.</translation>
    </message>
    <message>
        <source>These files are too large for playlists, which have up to 32 MB.</source>
        <translation>Estos archivos son demasiado grandes para ser listas de reproducción, que tienen hasta 32 MB.</translation>
    </message>
    <message>
        <source>There are more than 100,000 files below these folders. Only so many were taken, the first ones.</source>
        <translation>Hay más de 100.000 archivos dentro de estas carpetas. Solo se tomaron los primeros, hasta ese número.</translation>
    </message>
</context>
<context>
    <name>ActivityLog</name>
    <message>
        <source>is running</source>
        <translation>en curso</translation>
    </message>
    <message numerus="yes">
        <source>
(%n more bytes of output are not kept)
</source>
        <translation>
            <numerusform>
(no se conserva %n byte más de la salida)
</numerusform>
            <numerusform>
(no se conservan %n bytes más de la salida)
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The settings could not be saved</source>
        <translation>No se pudieron guardar los ajustes</translation>
    </message>
    <message>
        <source>Error #0008. Application will exit.</source>
        <translation>Error #0008. La aplicación se cerrará.</translation>
    </message>
    <message>
        <source>Error #0009. Application will exit.</source>
        <translation>Error #0009. La aplicación se cerrará.</translation>
    </message>
    <message>
        <source>Error #000a. Application will exit.</source>
        <translation>Error #000a. La aplicación se cerrará.</translation>
    </message>
    <message>
        <source>Error #000b. Application will exit.</source>
        <translation>Error #000b. La aplicación se cerrará.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>A working folder was not emptied, as another Corvalis prepares a disc in it</source>
        <translation>No se vació una carpeta de trabajo porque otro Corvalis prepara un disco en ella</translation>
    </message>
    <message>
        <source>A file in a working folder could not be removed</source>
        <translation>No se pudo eliminar un archivo de una carpeta de trabajo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The page could not be opened</source>
        <translation>No se pudo abrir la página</translation>
    </message>
    <message>
        <source>Open it in a browser: %1</source>
        <translation>Ábrala en un navegador: %1</translation>
    </message>
    <message>
        <source>Corvalis %1</source>
        <translation>Corvalis %1</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Free software under the GNU General Public License, version 2 or later.
Built on Qt %1, libburn, libisofs, ffmpeg and mpv.</source>
        <translation>Prepara y graba discos ópticos.

Software libre con la Licencia Pública General de GNU, versión 2 o posterior.
Hecho con Qt %1, libburn, libisofs, ffmpeg y mpv.</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>Añadir &amp;carpeta…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Duración</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Tamaño</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation>Añadir archivos de audio a la lista</translation>
    </message>
    <message>
        <source>Add video files to the list</source>
        <translation>Añadir archivos de vídeo a la lista</translation>
    </message>
    <message>
        <source>Add the audio files of a folder to the list</source>
        <translation>Añadir a la lista los archivos de audio de una carpeta</translation>
    </message>
    <message>
        <source>Add the video files of a folder to the list</source>
        <translation>Añadir a la lista los archivos de vídeo de una carpeta</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) cannot be listed</source>
        <translation>
            <numerusform>%n archivo no se puede añadir a la lista</numerusform>
            <numerusform>%n archivos no se pueden añadir a la lista</numerusform>
        </translation>
    </message>
    <message>
        <source>Their names in the folder “%1” are not valid UTF-8 text. Rename them and add the folder again.</source>
        <translation>Sus nombres en la carpeta «%1» no son texto UTF-8 válido. Cámbieles el nombre y vuelva a añadir la carpeta.</translation>
    </message>
    <message>
        <source>Add a folder to the list</source>
        <translation>Añadir una carpeta a la lista</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Añadir archivos a la lista</translation>
    </message>
    <message>
        <source>Not everything can go on this list</source>
        <translation>No todo puede ir en esta lista</translation>
    </message>
    <message>
        <source>There is no file selected.</source>
        <translation>No hay ningún archivo seleccionado.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The file cannot be played.</source>
        <translation>El archivo no se puede reproducir.</translation>
    </message>
    <message>
        <source>The program ffmpeg, which measures files, is missing.</source>
        <translation>Falta el programa ffmpeg, que mide los archivos.</translation>
    </message>
    <message>
        <source>Measuring the file took too long and was given up.</source>
        <translation>Medir el archivo tardó demasiado y se abandonó.</translation>
    </message>
    <message>
        <source>Files cannot be measured</source>
        <translation>No se pueden medir los archivos</translation>
    </message>
    <message>
        <source>The program ffmpeg is missing. Install the package “ffmpeg” and add the files again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Falta el programa ffmpeg. Instale el paquete «ffmpeg» y añada los archivos de nuevo. Sin él las listas no muestran duraciones y no se puede crear ningún disco de audio ni de vídeo.</translation>
    </message>
    <message>
        <source>A part of Corvalis is missing: %1. Install Corvalis again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Falta una parte de Corvalis: %1. Vuelva a instalar Corvalis. Sin ella las listas no muestran duraciones y no se puede crear ningún disco de audio ni de vídeo.</translation>
    </message>
    <message>
        <source>Save the list first?</source>
        <translation>¿Guardar antes la lista?</translation>
    </message>
    <message>
        <source>The list that is shown has changes that are not saved. What is opened now takes its place.</source>
        <translation>La lista que se muestra tiene cambios sin guardar. Lo que se abra ahora ocupará su lugar.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Do Not Save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save the list as</source>
        <translation>Guardar la lista como</translation>
    </message>
    <message>
        <source>My disc</source>
        <translation>Mi disco</translation>
    </message>
    <message>
        <source>The list could not be saved</source>
        <translation>No se pudo guardar la lista</translation>
    </message>
    <message>
        <source>%1

%2</source>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>Open a saved list</source>
        <translation>Abrir una lista guardada</translation>
    </message>
    <message>
        <source>It is for a kind of disc that this Corvalis does not know: %1.</source>
        <translation>Es para un tipo de disco que este Corvalis no conoce: %1.</translation>
    </message>
    <message>
        <source>The list cannot be opened</source>
        <translation>No se puede abrir la lista</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) of the list cannot be found</source>
        <translation>
            <numerusform>No se encuentra %n entrada de la lista</numerusform>
            <numerusform>No se encuentran %n entradas de la lista</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in a Folder…</source>
        <translation>Buscar en una carpeta…</translation>
    </message>
    <message>
        <source>A folder in which the missing files are now</source>
        <translation>Una carpeta en la que están ahora los archivos que faltan</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>No file or folder below %1 has one of the names that are missing.</source>
        <translation>Ningún archivo ni carpeta dentro de %1 tiene uno de los nombres que faltan.</translation>
    </message>
    <message>
        <source>&amp;Clear This Menu</source>
        <translation>&amp;Borrar este menú</translation>
    </message>
    <message>
        <source>The disc could not be changed</source>
        <translation>No se pudo cambiar el disco</translation>
    </message>
    <message>
        <source>The folder of written discs could not be opened</source>
        <translation>No se pudo abrir la carpeta de los discos grabados</translation>
    </message>
    <message>
        <source>Warning 0030.</source>
        <translation>Aviso 0030.</translation>
    </message>
    <message>
        <source>Warning 0040.</source>
        <translation>Aviso 0040.</translation>
    </message>
    <message>
        <source>No disc</source>
        <translation>No hay disco</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a rewritable media on the drive and try again.</source>
        <translation>No hay ningún disco en la unidad. Inserte un disco regrabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Media not rewritable</source>
        <translation>El disco no es regrabable</translation>
    </message>
    <message>
        <source>The media on the drive is not rewritable. insert a rewritable media on the drive and try again.</source>
        <translation>El disco de la unidad no es regrabable. Inserte un disco regrabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Full erase</source>
        <translation>Borrado completo</translation>
    </message>
    <message>
        <source>Quick erase</source>
        <translation>Borrado rápido</translation>
    </message>
    <message>
        <source>The disc utility cannot be used</source>
        <translation>No se puede usar la utilidad de discos</translation>
    </message>
    <message>
        <source>There is no disc on the drive. Insert a media on the drive and try again.</source>
        <translation>No hay ningún disco en la unidad. Inserte un disco y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Información del disco</translation>
    </message>
    <message>
        <source>No audio files on the list</source>
        <translation>No hay archivos de audio en la lista</translation>
    </message>
    <message>
        <source>There are no audio files on the list. Add audio files to the list and try again.</source>
        <translation>No hay archivos de audio en la lista. Añada archivos de audio a la lista y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Warning 0060.</source>
        <translation>Aviso 0060.</translation>
    </message>
    <message>
        <source>Warning 0050.</source>
        <translation>Aviso 0050.</translation>
    </message>
    <message>
        <source>Warning 0010.</source>
        <translation>Aviso 0010.</translation>
    </message>
    <message>
        <source>No folders on the list</source>
        <translation>No hay carpetas en la lista</translation>
    </message>
    <message>
        <source>There are no folders on the list. Add folders to the list and try again.</source>
        <translation>No hay carpetas en la lista. Añada carpetas a la lista y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Warning 0070.</source>
        <translation>Aviso 0070.</translation>
    </message>
    <message>
        <source>Warning 0020.</source>
        <translation>Aviso 0020.</translation>
    </message>
    <message>
        <source>Warning 0090.</source>
        <translation>Aviso 0090.</translation>
    </message>
    <message>
        <source>There is not enough room to gather the folders</source>
        <translation>No hay espacio suficiente para reunir las carpetas</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1, and its file system has %2 too little for that. Free some room and try again, or go on: what does not fit will not be on the disc.</source>
        <translation>El disco se prepara en la carpeta %1, y a su sistema de archivos le faltan %2. Libere espacio y vuelva a intentarlo, o continúe: lo que no quepa no estará en el disco.</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>The disc is written before the copying of a folder has ended.</source>
        <translation>El disco se graba antes de que termine la copia de una carpeta.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln archivo</numerusform>
            <numerusform>%Ln archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>The copying of a folder does not end.</source>
        <translation>La copia de una carpeta no termina.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a media on the drive to copy and try again.</source>
        <translation>No hay ningún disco en la unidad. Inserte el disco que quiere copiar y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Select a volume to duplicate.</source>
        <translation>Elija el volumen que quiere duplicar.</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Copia de %1</translation>
    </message>
    <message>
        <source>Insert a writable media and click OK or click Cancel to stop the media duplication.</source>
        <translation>Inserte un disco virgen y pulse Aceptar, o pulse Cancelar para detener la copia del disco.</translation>
    </message>
    <message>
        <source>Media not CD</source>
        <translation>El disco no es un CD</translation>
    </message>
    <message>
        <source>The media on the drive is not a CD. insert a writable CD on the drive and try again.</source>
        <translation>El disco de la unidad no es un CD. Inserte un CD grabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Media not DVD</source>
        <translation>El disco no es un DVD</translation>
    </message>
    <message>
        <source>The media on the drive is not a DVD. insert a writable DVD on the drive and try again.</source>
        <translation>El disco de la unidad no es un DVD. Inserte un DVD grabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Media not Blu-ray</source>
        <translation>El disco no es un Blu-ray</translation>
    </message>
    <message>
        <source>The media on the drive is not a Blu-ray. insert a writable Blu-ray on the drive and try again.</source>
        <translation>El disco de la unidad no es un Blu-ray. Inserte un Blu-ray grabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a writable media on the drive and try again.</source>
        <translation>No hay ningún disco en la unidad. Inserte un disco grabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Media not writable</source>
        <translation>El disco no es grabable</translation>
    </message>
    <message>
        <source>The media on the drive is not writable. insert a writable media on the drive and try again.</source>
        <translation>El disco de la unidad no es grabable. Inserte un disco grabable y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Select a folder to export to ISO format.</source>
        <translation>Elija una carpeta para exportarla al formato ISO.</translation>
    </message>
    <message>
        <source>Disc image</source>
        <translation>Imagen de disco</translation>
    </message>
    <message>
        <source>Select a folder to save the Image.iso file.</source>
        <translation>Elija una carpeta donde guardar el archivo image.iso.</translation>
    </message>
    <message>
        <source>Select a ISO image to burn to media.</source>
        <translation>Elija una imagen ISO para grabarla en el disco.</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Imagen %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln track(s)</source>
        <translation>
            <numerusform>%Ln pista</numerusform>
            <numerusform>%Ln pistas</numerusform>
        </translation>
    </message>
    <message>
        <source>Another Corvalis is at work</source>
        <translation>Otro Corvalis está trabajando</translation>
    </message>
    <message>
        <source>It prepares a disc in the folder %1. Wait until that disc is done and try again.</source>
        <translation>Prepara un disco en la carpeta %1. Espere a que ese disco esté listo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>“%1” was left out: another entry of the list is converted to “%2” too. Rename one of the files and try again.</source>
        <translation>Se omitió «%1»: otra entrada de la lista también se convierte en «%2». Cambie el nombre de uno de los archivos y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>A file was left out</source>
        <translation>Se omitió un archivo</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files or folders did not fit where the disc is gathered.</source>
        <translation>
            <numerusform>%Ln archivo o carpeta no cupo donde se reúne el disco.</numerusform>
            <numerusform>%Ln archivos o carpetas no cupieron donde se reúne el disco.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not copied</source>
        <translation>No copiado</translation>
    </message>
    <message>
        <source>No video files on the list</source>
        <translation>No hay archivos de vídeo en la lista</translation>
    </message>
    <message>
        <source>There are no video files on the list. Add video files to the list and try again.</source>
        <translation>No hay archivos de vídeo en la lista. Añada archivos de vídeo a la lista y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Warning 0000.</source>
        <translation>Aviso 0000.</translation>
    </message>
    <message>
        <source>What is missing stays on the list, marked. If it was moved, show a folder in which it is now, at any depth: it is found there by its name.</source>
        <translation>Lo que falta sigue en la lista, marcado. Si se movió, indique una carpeta en la que esté ahora, a cualquier nivel: allí se encuentra por su nombre.</translation>
    </message>
    <message>
        <source>Add any files with sound, and playlists, to the list</source>
        <translation>Añadir a la lista cualquier archivo con sonido y listas de reproducción</translation>
    </message>
    <message>
        <source>Add any films, and playlists, to the list</source>
        <translation>Añadir a la lista cualquier película y listas de reproducción</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Not all of these files can be on one disc</source>
        <translation>No todos estos archivos pueden estar en un mismo disco</translation>
    </message>
    <message>
        <source>Their names differ in the folder or the ending only. The first of each name on the list is written and the others are left out. Rename them, or take them off the list.</source>
        <translation>Sus nombres solo se distinguen en la carpeta o en la extensión. Se graba el primero de cada nombre en la lista y se omiten los demás. Cámbieles el nombre o quítelos de la lista.</translation>
    </message>
    <message>
        <source>The title and the performer of “%1” are not on the disc as they are on the list: %2.</source>
        <translation>El título y el intérprete de «%1» no están en el disco como en la lista: %2.</translation>
    </message>
    <message>
        <source>The names of a track could not be written</source>
        <translation>No se pudieron escribir los nombres de una pista</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing</source>
        <translation>Falta el programa dvdauthor</translation>
    </message>
    <message>
        <source>It makes the titles of a DVD for players. Install the package “dvdauthor” and try again, or switch “For DVD players” off in the video settings; the disc then holds files.</source>
        <translation>Crea los títulos de un DVD para reproductores. Instale el paquete «dvdauthor» y vuelva a intentarlo, o desactive «Para reproductores de DVD» en los ajustes de vídeo; el disco contendrá entonces archivos.</translation>
    </message>
    <message>
        <source>Too many clips for one DVD</source>
        <translation>Demasiados clips para un DVD</translation>
    </message>
    <message numerus="yes">
        <source>A DVD for players has room for 99 titles, and there are %Ln clip(s) on the list. Take some off and try again.</source>
        <translation>
            <numerusform>En un DVD para reproductores caben 99 títulos, y en la lista hay %Ln clip. Quite algunos y vuelva a intentarlo.</numerusform>
            <numerusform>En un DVD para reproductores caben 99 títulos, y en la lista hay %Ln clips. Quite algunos y vuelva a intentarlo.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough room to make the titles</source>
        <translation>No hay espacio suficiente para crear los títulos</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1. That may take %2 for these clips, and its file system has %3 left. Free some room and try again, or go on: a clip that finds no room will not be on the disc.</source>
        <translation>El disco se prepara en la carpeta %1. Estos clips pueden necesitar %2, y en su sistema de archivos quedan %3. Libere espacio y vuelva a intentarlo, o continúe: un clip que no quepa no estará en el disco.</translation>
    </message>
    <message>
        <source>%1: there is no picture in it.</source>
        <translation>%1: no contiene ninguna imagen.</translation>
    </message>
    <message>
        <source>%1: its picture could not be read.</source>
        <translation>%1: no se pudo leer su imagen.</translation>
    </message>
    <message>
        <source>The titles could not be described: %1. The disc is as it was.</source>
        <translation>No se pudieron describir los títulos: %1. El disco está como estaba.</translation>
    </message>
    <message>
        <source>dvdauthor told nothing for a long time and was ended.</source>
        <translation>dvdauthor no dijo nada durante mucho tiempo y se terminó.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln title(s)</source>
        <translation>
            <numerusform>%Ln título</numerusform>
            <numerusform>%Ln títulos</numerusform>
        </translation>
    </message>
    <message>
        <source>The file system of the folder %1 is full.</source>
        <translation>El sistema de archivos de la carpeta %1 está lleno.</translation>
    </message>
    <message>
        <source>The drives could not be listed</source>
        <translation>No se pudieron enumerar las unidades</translation>
    </message>
    <message>
        <source>The drive is not there any more</source>
        <translation>La unidad ya no está</translation>
    </message>
    <message>
        <source>“%1” is not connected. Connect it again, or choose another drive in the Drive menu.</source>
        <translation>«%1» no está conectada. Vuelva a conectarla o elija otra unidad en el menú Unidad.</translation>
    </message>
    <message>
        <source>The disc cannot have this name</source>
        <translation>El disco no puede tener este nombre</translation>
    </message>
    <message>
        <source>%1 Change the name and try again.</source>
        <translation>%1 Cambie el nombre y vuelva a intentarlo.</translation>
    </message>
</context>
<context>
    <name>BatchMedia</name>
    <message>
        <source>%1: the name is not valid UTF-8 text. Rename the file and try again.</source>
        <translation>%1: el nombre no es texto UTF-8 válido. Cambie el nombre del archivo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: no existe tal archivo o carpeta.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no sound in it.</source>
        <translation>%1 no es un archivo que este disco pueda llevar. Se admiten: %2. ffmpeg no encuentra sonido en él.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no film in it.</source>
        <translation>%1 no es un archivo que este disco pueda llevar. Se admiten: %2. ffmpeg no encuentra ninguna película en él.</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: no existe tal archivo o carpeta.</translation>
    </message>
    <message>
        <source>%1 is no file or folder, and a data disc is made of these.</source>
        <translation>%1 no es un archivo ni una carpeta, y un disco de datos solo contiene eso.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2.</source>
        <translation>%1 no es un archivo que este disco pueda llevar. Se admiten: %2.</translation>
    </message>
    <message>
        <source>Adding files: %1 of %2</source>
        <translation>Añadiendo archivos: %1 de %2</translation>
    </message>
    <message>
        <source>Converting: file %1 of %2, %3 %</source>
        <translation>Convirtiendo: archivo %1 de %2, %3 %</translation>
    </message>
    <message>
        <source>Gathering the folders</source>
        <translation>Reuniendo las carpetas</translation>
    </message>
    <message>
        <source>--for-players goes with --burn &quot;Video DVD&quot;.</source>
        <translation>--for-players va con --burn &quot;Video DVD&quot;.</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Creando los títulos y capítulos</translation>
    </message>
</context>
<context>
    <name>ColourWell</name>
    <message>
        <source>No colour</source>
        <translation>Ningún color</translation>
    </message>
    <message>
        <source>%1: press to choose another colour</source>
        <translation>%1: pulse para elegir otro color</translation>
    </message>
    <message>
        <source>No colour: press to choose one</source>
        <translation>Ningún color: pulse para elegir uno</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Try &apos;corvalis --help&apos;.</source>
        <translation>Pruebe «corvalis --help».</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, is not valid UTF-8 text; rename the file and try again.</source>
        <translation>el argumento %1, &quot;%2&quot;, no es texto UTF-8 válido; cambie el nombre del archivo y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>there is no project &quot;%1&quot;; it is one of %2.</source>
        <translation>no hay ningún proyecto &quot;%1&quot;; puede ser %2.</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Exit status with --burn: 0 the disc was written and everything is on it, 1 it was not written, 2 wrong arguments, 3 it was written but something is not on it; stopped by a signal, it ends by that signal.
A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>Prepara y graba discos ópticos.

Estado de salida con --burn: 0 el disco se grabó y todo está en él, 1 no se grabó, 2 argumentos incorrectos, 3 se grabó pero falta algo en él; si una señal lo detiene, termina con esa señal.
Un archivo cuyo nombre empieza por un guion va detrás de &quot;--&quot;.</translation>
    </message>
    <message>
        <source>Make a disc of kind &lt;project&gt; from the files and end: %1.</source>
        <translation>Hacer con los archivos un disco del tipo &lt;project&gt; y terminar: %1.</translation>
    </message>
    <message>
        <source>project</source>
        <translation>project</translation>
    </message>
    <message>
        <source>Do so in the window, which stays.</source>
        <translation>Hacerlo en la ventana, que permanece.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARCHIVO</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[ARCHIVO...]</translation>
    </message>
    <message>
        <source>%1 A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>%1 Un archivo cuyo nombre empieza por un guion va detrás de &quot;--&quot;.</translation>
    </message>
    <message>
        <source>--burn is there more than once.</source>
        <translation>--burn aparece más de una vez.</translation>
    </message>
    <message>
        <source>--show goes with --burn.</source>
        <translation>--show va con --burn.</translation>
    </message>
    <message>
        <source>there is no action &quot;%1&quot;; it is one of %2.</source>
        <translation>no hay ninguna acción &quot;%1&quot;; puede ser %2.</translation>
    </message>
    <message>
        <source>--action goes without files.</source>
        <translation>--action va sin archivos.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: no existe tal archivo o carpeta.</translation>
    </message>
    <message>
        <source>Open the files in a window of their own, not in the one that runs.</source>
        <translation>Abrir los archivos en una ventana propia, no en la que ya está abierta.</translation>
    </message>
    <message>
        <source>Begin &lt;what&gt; in the window: %1.</source>
        <translation>Empezar &lt;what&gt; en la ventana: %1.</translation>
    </message>
    <message>
        <source>what</source>
        <translation>what</translation>
    </message>
    <message>
        <source>--new-window and --action go without --burn.</source>
        <translation>--new-window y --action van sin --burn.</translation>
    </message>
    <message>
        <source>Make a Video DVD for DVD players, with titles and chapters, whatever the video settings say.</source>
        <translation>Crear un DVD de vídeo para reproductores de DVD, con títulos y capítulos, digan lo que digan los ajustes de vídeo.</translation>
    </message>
    <message>
        <source>Files, for a data disc also folders; the tracks of an audio CD keep their order. Without --burn they are opened in the window: music, films, folders, a disc image or a saved list.</source>
        <translation>Archivos, o también carpetas para un disco de datos; las pistas de un CD de audio conservan su orden. Sin --burn se abren en la ventana: música, películas, carpetas, una imagen de disco o una lista guardada.</translation>
    </message>
</context>
<context>
    <name>DiscName</name>
    <message>
        <source>Where only plain letters are known, “%1” becomes “_”.</source>
        <translation>Donde solo se conocen letras simples, «%1» se convierte en «_».</translation>
    </message>
    <message>
        <source>On Windows “%1” becomes “_”.</source>
        <translation>En Windows, «%1» se convierte en «_».</translation>
    </message>
    <message>
        <source>Windows shows “%1”.</source>
        <translation>Windows muestra «%1».</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>El nombre contiene un carácter que no se puede ver.</translation>
    </message>
    <message>
        <source>The name has %1 characters; a disc takes %2.</source>
        <translation>El nombre tiene %1 caracteres; un disco admite %2.</translation>
    </message>
</context>
<context>
    <name>DiscNameField</name>
    <message>
        <source>Disc name</source>
        <translation>Nombre del disco</translation>
    </message>
    <message>
        <source>Chosen for you</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Name of the disc</source>
        <translation>Nombre del disco</translation>
    </message>
    <message>
        <source>What the disc is called where it is put in</source>
        <translation>Cómo se llama el disco donde se inserta</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>characters</comment>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>DiscRoom</name>
    <message>
        <source>The %1 in the drive holds about %2.</source>
        <translation>En el %1 de la unidad caben unos %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive holds %2.</source>
        <translation>En el %1 de la unidad caben %2.</translation>
    </message>
    <message>
        <source>The list is too long by %1.</source>
        <translation>La lista dura %1 de más.</translation>
    </message>
    <message>
        <source>The list is too large by %1.</source>
        <translation>La lista ocupa %1 de más.</translation>
    </message>
    <message>
        <source>The list just about fits.</source>
        <translation>La lista cabe justo.</translation>
    </message>
    <message>
        <source>The list fits.</source>
        <translation>La lista cabe.</translation>
    </message>
    <message>
        <source>The %1 in the drive cannot be written.</source>
        <translation>El %1 de la unidad no se puede grabar.</translation>
    </message>
    <message>
        <source>In the drive is a %1; this list needs a %2.</source>
        <translation>En la unidad hay un %1; esta lista necesita un %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive is erased before it is written.</source>
        <translation>El %1 de la unidad se borra antes de grabarlo.</translation>
    </message>
</context>
<context>
    <name>DriveNews</name>
    <message>
        <source>The drive “%1” is connected.</source>
        <translation>La unidad «%1» está conectada.</translation>
    </message>
    <message>
        <source>A drive was plugged in: “%1”.</source>
        <translation>Se ha conectado una unidad: «%1».</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <translation>Usar esta unidad</translation>
    </message>
    <message>
        <source>Write discs with this drive from now on</source>
        <translation>Grabar los discos con esta unidad a partir de ahora</translation>
    </message>
    <message>
        <source>No other drive was found.</source>
        <translation>No se encontró ninguna otra unidad.</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (no conectada)</translation>
    </message>
    <message>
        <source>The drive “%1” is not connected any more. Connect it again, or choose another one in the Drive menu.</source>
        <translation>La unidad «%1» ya no está conectada. Vuelva a conectarla o elija otra en el menú Unidad.</translation>
    </message>
    <message>
        <source>You may not use this drive</source>
        <translation>No tiene permiso para usar esta unidad</translation>
    </message>
    <message>
        <source>Wh&amp;y…</source>
        <translation>¿Por &amp;qué?…</translation>
    </message>
    <message>
        <source>Tell why, and how to change it</source>
        <translation>Explicar por qué y cómo cambiarlo</translation>
    </message>
    <message>
        <source>You may not use the drive “%1”.</source>
        <translation>No tiene permiso para usar la unidad «%1».</translation>
    </message>
    <message>
        <source>Why…</source>
        <translation>¿Por qué?…</translation>
    </message>
</context>
<context>
    <name>DriveNotice</name>
    <message>
        <source>Close this notice</source>
        <translation>Cerrar este aviso</translation>
    </message>
</context>
<context>
    <name>FolderStaging</name>
    <message>
        <source>is the folder in which the disc is gathered, and is left out</source>
        <translation>es la carpeta en la que se reúne el disco, y se omite</translation>
    </message>
    <message>
        <source>is no file, folder or link, and is left out</source>
        <translation>no es un archivo, una carpeta ni un enlace, y se omite</translation>
    </message>
    <message>
        <source>its copy was moved while it was being made</source>
        <translation>su copia se movió mientras se hacía</translation>
    </message>
    <message>
        <source>has no name under which it could be copied</source>
        <translation>no tiene un nombre con el que copiarlo</translation>
    </message>
    <message>
        <source>was moved while it was being copied</source>
        <translation>se movió mientras se copiaba</translation>
    </message>
</context>
<context>
    <name>FolderTree</name>
    <message>
        <source>was moved while it was being emptied</source>
        <translation>se movió mientras se vaciaba</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too large by %4</source>
        <translation>Espacio ocupado: %1 de %2 (%3 %), sobran %4</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too long by %4</source>
        <translation>Espacio ocupado: %1 de %2 (%3 %), dura %4 de más</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), nearly full</source>
        <translation>Espacio ocupado: %1 de %2 (%3 %), casi lleno</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %)</source>
        <translation>Espacio ocupado: %1 de %2 (%3 %)</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>It is damaged, or no list of Corvalis: %1.</source>
        <translation>Está dañada o no es una lista de Corvalis: %1.</translation>
    </message>
    <message>
        <source>entry %1 has no full path</source>
        <translation>la entrada %1 no tiene una ruta completa</translation>
    </message>
    <message>
        <source>entry %1 has characters that no name can have</source>
        <translation>la entrada %1 tiene caracteres que ningún nombre puede tener</translation>
    </message>
    <message>
        <source>the relative path of entry %1 is none</source>
        <translation>la ruta relativa de la entrada %1 no lo es</translation>
    </message>
    <message>
        <source>It has %1 entries, and a list may have %2.</source>
        <translation>Tiene %1 entradas, y una lista puede tener %2.</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 en el byte %2</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>no dice qué es</translation>
    </message>
    <message>
        <source>It was saved by a newer version of Corvalis. Bring this one up to date to open it.</source>
        <translation>La guardó una versión más reciente de Corvalis. Actualice esta para abrirla.</translation>
    </message>
    <message>
        <source>the kind or the entries are missing</source>
        <translation>faltan el tipo o las entradas</translation>
    </message>
    <message>
        <source>There is no such file any more.</source>
        <translation>Ya no existe tal archivo.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>It is far too large for a list.</source>
        <translation>Es demasiado grande para ser una lista.</translation>
    </message>
</context>
<context>
    <name>ListTableModel</name>
    <message>
        <source>not measured</source>
        <translation>sin medir</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Ruta</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Performer</source>
        <translation>Intérprete</translation>
    </message>
</context>
<context>
    <name>ListTableView</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln fila</numerusform>
            <numerusform>%Ln filas</numerusform>
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
        <translation>Tipos de disco y herramientas</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Add music files to the list (Ctrl+O)</source>
        <translation>Añadir archivos de música a la lista (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Add the music files that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Añadir los archivos de música situados directamente en una carpeta (Ctrl+Mayús+O)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Take the selected rows off the list (Del)</source>
        <translation>Quitar de la lista las filas seleccionadas (Supr)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Empty the list (Ctrl+Shift+Del)</source>
        <translation>Vaciar la lista (Ctrl+Mayús+Supr)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Play the selected file (Ctrl+P)</source>
        <translation>Reproducir el archivo seleccionado (Ctrl+P)</translation>
    </message>
    <message>
        <source>New Disc</source>
        <translation>Disco nuevo</translation>
    </message>
    <message>
        <source>Choose another kind of disc and begin with an empty list (Ctrl+N)</source>
        <translation>Elegir otro tipo de disco y empezar con una lista vacía (Ctrl+N)</translation>
    </message>
    <message>
        <source>Copy Disc</source>
        <translation>Copiar disco</translation>
    </message>
    <message>
        <source>Copy a disc onto a blank one with this drive (Ctrl+D)</source>
        <translation>Copiar un disco en uno virgen con esta unidad (Ctrl+D)</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD de audio</translation>
    </message>
    <message>
        <source>A disc for every CD player: 74 minutes of sound (Alt+1)</source>
        <translation>Un disco para cualquier reproductor de CD: 74 minutos de sonido (Alt+1)</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>CD de MP3</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours (Alt+2)</source>
        <translation>Archivos MP3 en un CD: nueve horas y media (Alt+2)</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>DVD de MP3</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours (Alt+3)</source>
        <translation>Archivos MP3 en un DVD: 38 horas (Alt+3)</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Archivos de audio</translation>
    </message>
    <message>
        <source>Add music with “Add Files”, or drop it here.
The order of the list is the order on the disc.</source>
        <translation>Añada música con «Archivos» o suéltela aquí.
El orden de la lista es el orden en el disco.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Add video clips to the list (Ctrl+O)</source>
        <translation>Añadir clips de vídeo a la lista (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add the video clips that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Añadir los clips de vídeo situados directamente en una carpeta (Ctrl+Mayús+O)</translation>
    </message>
    <message>
        <source>Video Settings</source>
        <translation>Ajustes de vídeo</translation>
    </message>
    <message>
        <source>Choose the TV standard and the audio format of video discs (Ctrl+,)</source>
        <translation>Elegir la norma de TV y el formato de audio de los discos de vídeo (Ctrl+,)</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD de vídeo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours (Alt+1)</source>
        <translation>Clips MPEG-2 en un DVD: dos horas y media (Alt+1)</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Blu-ray de vídeo</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Archivos de vídeo</translation>
    </message>
    <message>
        <source>Add clips with “Add Files”, or drop them here.</source>
        <translation>Añada clips con «Archivos» o suéltelos aquí.</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Add single files to the list (Ctrl+Shift+F)</source>
        <translation>Añadir archivos sueltos a la lista (Ctrl+Mayús+F)</translation>
    </message>
    <message>
        <source>Add a folder to the list (Ctrl+O)</source>
        <translation>Añadir una carpeta a la lista (Ctrl+O)</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de datos</translation>
    </message>
    <message>
        <source>Folders on a CD: 667 MB (Alt+1)</source>
        <translation>Carpetas en un CD: 667 MB (Alt+1)</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>DVD de datos</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB (Alt+2)</source>
        <translation>Carpetas en un DVD: 4,7 GB (Alt+2)</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Blu-ray de datos</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB (Alt+3)</source>
        <translation>Carpetas en un disco Blu-ray: 25 GB (Alt+3)</translation>
    </message>
    <message>
        <source>Data folders</source>
        <translation>Carpetas de datos</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Make an ISO Image</source>
        <translation>Crear una imagen ISO</translation>
    </message>
    <message>
        <source>Choose a folder and where its image is saved (Ctrl+M)</source>
        <translation>Elegir una carpeta y dónde se guarda su imagen (Ctrl+M)</translation>
    </message>
    <message>
        <source>Turn a folder into an image file that can be kept, sent and written later.</source>
        <translation>Convierta una carpeta en un archivo de imagen que se puede guardar, enviar y grabar más tarde.</translation>
    </message>
    <message>
        <source>Write an ISO Image</source>
        <translation>Grabar una imagen ISO</translation>
    </message>
    <message>
        <source>Choose an image file and write it (Ctrl+Shift+B)</source>
        <translation>Elegir un archivo de imagen y grabarlo (Ctrl+Mayús+B)</translation>
    </message>
    <message>
        <source>Write an .iso, .img or .dmg file to the disc in the drive.</source>
        <translation>Grabe un archivo .iso, .img o .dmg en el disco de la unidad.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Erase Disc</source>
        <translation>Borrar disco</translation>
    </message>
    <message>
        <source>Erase the rewritable disc in the drive</source>
        <translation>Borrar el disco regrabable de la unidad</translation>
    </message>
    <message>
        <source>Destroys everything on the rewritable disc in the drive. It does not ask again.</source>
        <translation>Destruye todo el contenido del disco regrabable de la unidad. No vuelve a preguntar.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Información del disco</translation>
    </message>
    <message>
        <source>Show the state of the disc (Ctrl+I)</source>
        <translation>Mostrar el estado del disco (Ctrl+I)</translation>
    </message>
    <message>
        <source>Shows what kind of disc is in the drive, how full it is and whether it can be written.</source>
        <translation>Muestra qué tipo de disco hay en la unidad, cuánto ocupa y si se puede grabar.</translation>
    </message>
    <message>
        <source>Eject Disc</source>
        <translation>Expulsar disco</translation>
    </message>
    <message>
        <source>Open the tray (Ctrl+E)</source>
        <translation>Abrir la bandeja (Ctrl+E)</translation>
    </message>
    <message>
        <source>Opens the tray of the selected drive.</source>
        <translation>Abre la bandeja de la unidad elegida.</translation>
    </message>
    <message>
        <source>Load Disc</source>
        <translation>Cargar disco</translation>
    </message>
    <message>
        <source>Close the tray (Ctrl+Shift+E)</source>
        <translation>Cerrar la bandeja (Ctrl+Mayús+E)</translation>
    </message>
    <message>
        <source>Closes the tray of the selected drive.</source>
        <translation>Cierra la bandeja de la unidad elegida.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Choose the colours of this window (Ctrl+Shift+C)</source>
        <translation>Elegir los colores de esta ventana (Ctrl+Mayús+C)</translation>
    </message>
    <message>
        <source>Choose the colours of this window and its lists.</source>
        <translation>Elija los colores de esta ventana y de sus listas.</translation>
    </message>
    <message>
        <source>Activity Log</source>
        <translation>Registro de actividad</translation>
    </message>
    <message>
        <source>Show what was run and how it ended (Ctrl+L)</source>
        <translation>Mostrar qué se ejecutó y cómo terminó (Ctrl+L)</translation>
    </message>
    <message>
        <source>Every command that was run, with all that it said.</source>
        <translation>Cada orden que se ejecutó, con todo lo que mostró.</translation>
    </message>
    <message>
        <source>Space occupied</source>
        <translation>Espacio ocupado</translation>
    </message>
    <message>
        <source>Space occupied on the disc</source>
        <translation>Espacio ocupado en el disco</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Grabar CD de audio</translation>
    </message>
    <message>
        <source>Write the list to the disc in the drive (Ctrl+B)</source>
        <translation>Grabar la lista en el disco de la unidad (Ctrl+B)</translation>
    </message>
    <message>
        <source>&amp;Disc</source>
        <translation>&amp;Disco</translation>
    </message>
    <message>
        <source>&amp;Kind of Disc</source>
        <translation>&amp;Tipo de disco</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>D&amp;rive</source>
        <translation>&amp;Unidad</translation>
    </message>
    <message>
        <source>&amp;Insert Blank Disc</source>
        <translation>&amp;Insertar disco virgen</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>&amp;Erase Disc</source>
        <translation>&amp;Borrar disco</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;New Disc…</source>
        <translation>Disco &amp;nuevo…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>G&amp;uardar</translation>
    </message>
    <message>
        <source>Sa&amp;ve As…</source>
        <translation>Guardar c&amp;omo…</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Find &amp;Missing Files…</source>
        <translation>Buscar archivos que &amp;faltan…</translation>
    </message>
    <message>
        <source>Add F&amp;iles…</source>
        <translation>Añadir arch&amp;ivos…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Añadir archivos…</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>Añadir &amp;carpeta…</translation>
    </message>
    <message>
        <source>&amp;Copy Disc…</source>
        <translation>Co&amp;piar disco…</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Grabar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Duración</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Tamaño</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Ruta</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vaciar la lista</translation>
    </message>
    <message>
        <source>Select A&amp;ll</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Re&amp;producir</translation>
    </message>
    <message>
        <source>&amp;Video Settings…</source>
        <translation>Aj&amp;ustes de vídeo…</translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation>&amp;Audio</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Vídeo</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Datos</translation>
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
        <translation>No se encontró ninguna unidad</translation>
    </message>
    <message>
        <source>Drive 2</source>
        <translation>Unidad 2</translation>
    </message>
    <message>
        <source>Drive 3</source>
        <translation>Unidad 3</translation>
    </message>
    <message>
        <source>Drive 4</source>
        <translation>Unidad 4</translation>
    </message>
    <message>
        <source>Drive 5</source>
        <translation>Unidad 5</translation>
    </message>
    <message>
        <source>Drive 6</source>
        <translation>Unidad 6</translation>
    </message>
    <message>
        <source>&amp;Remove Disc</source>
        <translation>&amp;Retirar el disco</translation>
    </message>
    <message>
        <source>Show &amp;Written Discs</source>
        <translation>Mostrar los discos &amp;grabados</translation>
    </message>
    <message>
        <source>Erase &amp;Completely: overwrite everything on the disc</source>
        <translation>Borrar por &amp;completo: sobrescribir todo el disco</translation>
    </message>
    <message>
        <source>Erase &amp;Quickly: make everything on the disc unreachable</source>
        <translation>Borrado &amp;rápido: hacer inaccesible todo el contenido del disco</translation>
    </message>
    <message>
        <source>&amp;Make an ISO Image…</source>
        <translation>&amp;Crear una imagen ISO…</translation>
    </message>
    <message>
        <source>&amp;Write an ISO Image…</source>
        <translation>&amp;Grabar una imagen ISO…</translation>
    </message>
    <message>
        <source>E&amp;ject Disc</source>
        <translation>&amp;Expulsar disco</translation>
    </message>
    <message>
        <source>&amp;Load Disc</source>
        <translation>Cargar di&amp;sco</translation>
    </message>
    <message>
        <source>Disc &amp;Information</source>
        <translation>&amp;Información del disco</translation>
    </message>
    <message>
        <source>C&amp;olours…</source>
        <translation>C&amp;olores…</translation>
    </message>
    <message>
        <source>&amp;Activity Log</source>
        <translation>Registro de &amp;actividad</translation>
    </message>
    <message>
        <source>Corvalis &amp;Home Page</source>
        <translation>&amp;Página de Corvalis</translation>
    </message>
    <message>
        <source>&amp;Makers’ Home Page</source>
        <translation>Página del &amp;fabricante</translation>
    </message>
    <message>
        <source>As&amp;k for Support</source>
        <translation>Pedir a&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>P&amp;olítica de privacidad</translation>
    </message>
    <message>
        <source>&amp;Debug Mode</source>
        <translation>Modo de &amp;depuración</translation>
    </message>
    <message>
        <source>&amp;About Corvalis</source>
        <translation>&amp;Acerca de Corvalis</translation>
    </message>
    <message>
        <source>Add folders and files with the buttons above, or drop them here.</source>
        <translation>Añada carpetas y archivos con los botones de arriba o suéltelos aquí.</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>&amp;Guía del usuario</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc, as files for computers and for players that play files: 23 hours (Alt+2)</source>
        <translation>Clips MPEG-2 en un disco Blu-ray, como archivos para equipos y reproductores que leen archivos: 23 horas (Alt+2)</translation>
    </message>
    <message>
        <source>Add O&amp;ther Files…</source>
        <translation>Aña&amp;dir otros archivos…</translation>
    </message>
    <message>
        <source>Add files of any ending with sound, or with a film, in them, and playlists</source>
        <translation>Añadir archivos de cualquier extensión con sonido o una película y listas de reproducción</translation>
    </message>
    <message>
        <source>&amp;Write Titles on Audio CDs</source>
        <translation>&amp;Escribir los títulos en los CD de audio</translation>
    </message>
    <message>
        <source>Audio CDs get the titles and performers of their tracks as CD-TEXT</source>
        <translation>Los CD de audio reciben los títulos e intérpretes de sus pistas como CD-TEXT</translation>
    </message>
    <message>
        <source>&amp;Edit Title</source>
        <translation>Editar títu&amp;lo</translation>
    </message>
    <message>
        <source>Type another title for the row; Tab goes on to the performer</source>
        <translation>Escribir otro título para la fila; Tab pasa al intérprete</translation>
    </message>
    <message>
        <source>Title and &amp;Performer</source>
        <translation>Título e intér&amp;prete</translation>
    </message>
    <message>
        <source>Show the titles and performers of audio files on the list</source>
        <translation>Mostrar en la lista los títulos e intérpretes de los archivos de audio</translation>
    </message>
    <message>
        <source>Writing &amp;Speed</source>
        <translation>&amp;Velocidad de grabación</translation>
    </message>
    <message>
        <source>&amp;Look for Drives</source>
        <translation>&amp;Buscar unidades</translation>
    </message>
    <message>
        <source>Ask which drives there are now</source>
        <translation>Ver qué unidades hay ahora</translation>
    </message>
</context>
<context>
    <name>Measuring</name>
    <message>
        <source>There is no such file any more.</source>
        <translation>Ya no existe tal archivo.</translation>
    </message>
    <message>
        <source>You have no permission to read this file.</source>
        <translation>No tiene permiso para leer este archivo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>What the file says of itself is not valid UTF-8 text.</source>
        <translation>Lo que el archivo dice de sí mismo no es texto UTF-8 válido.</translation>
    </message>
    <message>
        <source>The file does not say how long it is.</source>
        <translation>El archivo no dice cuánto dura.</translation>
    </message>
    <message>
        <source>The file cannot be read as sound or film: %1.</source>
        <translation>El archivo no se puede leer como sonido ni como película: %1.</translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>The file is not there.</source>
        <translation>El archivo no está.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Esto no es un archivo.</translation>
    </message>
    <message>
        <source>You have no permission to read the file.</source>
        <translation>No tiene permiso para leer el archivo.</translation>
    </message>
    <message>
        <source>The media library could not be started.</source>
        <translation>No se pudo iniciar la biblioteca multimedia.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>No se pudo abrir el archivo.</translation>
    </message>
</context>
<context>
    <name>NameColumns</name>
    <message>
        <source>Return keeps what was typed, Escape what was there before</source>
        <translation>Intro conserva lo escrito, Esc lo que había antes</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>y %Ln más</numerusform>
            <numerusform>y %Ln más</numerusform>
        </translation>
    </message>
    <message>
        <source>Operation complete</source>
        <translation>Operación completada</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>The disc was written, but some things are not on it</source>
        <translation>El disco se grabó, pero le faltan algunas cosas</translation>
    </message>
    <message>
        <source>The image was made, but some things are not in it</source>
        <translation>La imagen se creó, pero le faltan algunas cosas</translation>
    </message>
    <message>
        <source>The disc was erased, but not everything went well</source>
        <translation>El disco se borró, pero no todo fue bien</translation>
    </message>
    <message>
        <source>The disc was not written</source>
        <translation>El disco no se grabó</translation>
    </message>
    <message>
        <source>The image was not made</source>
        <translation>La imagen no se creó</translation>
    </message>
    <message>
        <source>The disc was not erased</source>
        <translation>El disco no se borró</translation>
    </message>
</context>
<context>
    <name>PreviewPlayer</name>
    <message>
        <source>The preview player is not installed completely: %1. Install Corvalis again together with its preview player.</source>
        <translation>El reproductor de vista previa no está instalado por completo: %1. Vuelva a instalar Corvalis junto con su reproductor.</translation>
    </message>
</context>
<context>
    <name>ProjectType</name>
    <message>
        <source>Audio CD</source>
        <translation>CD de audio</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Grabar CD de audio</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>CD de MP3</translation>
    </message>
    <message>
        <source>Burn MP3 CD</source>
        <translation>Grabar CD de MP3</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>DVD de MP3</translation>
    </message>
    <message>
        <source>Burn MP3 DVD</source>
        <translation>Grabar DVD de MP3</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD de vídeo</translation>
    </message>
    <message>
        <source>Burn Video DVD</source>
        <translation>Grabar DVD de vídeo</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Blu-ray de vídeo</translation>
    </message>
    <message>
        <source>Burn Video Blu-ray</source>
        <translation>Grabar Blu-ray de vídeo</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de datos</translation>
    </message>
    <message>
        <source>Burn Data CD</source>
        <translation>Grabar CD de datos</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>DVD de datos</translation>
    </message>
    <message>
        <source>Burn Data DVD</source>
        <translation>Grabar DVD de datos</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Blu-ray de datos</translation>
    </message>
    <message>
        <source>Burn Data Blu-ray</source>
        <translation>Grabar Blu-ray de datos</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Some files cannot be used</source>
        <translation>Algunos archivos no se pueden usar</translation>
    </message>
    <message>
        <source>Only files with these extensions can: .%1</source>
        <translation>Solo se pueden usar archivos con estas extensiones: .%1</translation>
    </message>
    <message>
        <source>Their names are not valid UTF-8 text. Rename them and try again.</source>
        <translation>Sus nombres no son texto UTF-8 válido. Cámbieles el nombre y vuelva a intentarlo.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
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
        <translation>La más &amp;rápida</translation>
    </message>
    <message>
        <source>%1×</source>
        <comment>a factor of the speed, as in 16×</comment>
        <translation>%1×</translation>
    </message>
    <message>
        <source>The drive does not answer</source>
        <translation>La unidad no responde</translation>
    </message>
    <message>
        <source>The drive is being asked…</source>
        <translation>Consultando la unidad…</translation>
    </message>
    <message>
        <source>There is no disc in the drive</source>
        <translation>No hay ningún disco en la unidad</translation>
    </message>
    <message>
        <source>The drive names no speeds for its disc</source>
        <translation>La unidad no indica velocidades para su disco</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
</context>
<context>
    <name>StatusSheets</name>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
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
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Stop &amp;Now</source>
        <translation>Detener &amp;ahora</translation>
    </message>
    <message>
        <source>Asks before it stops (Escape)</source>
        <translation>Pregunta antes de detener (Esc)</translation>
    </message>
    <message>
        <source>Takes the question back; the work has gone on meanwhile (Escape)</source>
        <translation>Retira la pregunta; el trabajo ha seguido mientras tanto (Esc)</translation>
    </message>
    <message>
        <source>Ends the work at once</source>
        <translation>Termina el trabajo de inmediato</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
    <message>
        <source>Stop now?</source>
        <translation>¿Detener ahora?</translation>
    </message>
</context>
<context>
    <name>Surface</name>
    <message>
        <source>corvalis: there is no display for the window. Start it on a desktop, or use --burn, which needs none.</source>
        <translation>corvalis: no hay pantalla para la ventana. Inícielo en un escritorio o use --burn, que no la necesita.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>Less than a minute left</source>
        <translation>Queda menos de un minuto</translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Queda cerca de un minuto</translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Queda cerca de %n minuto</numerusform>
            <numerusform>Quedan unos %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Queda cerca de %n hora</numerusform>
            <numerusform>Quedan unas %n horas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimeSlider</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
<context>
    <name>TrackNames</name>
    <message>
        <source>The converted file is not complete</source>
        <translation>El archivo convertido no está completo</translation>
    </message>
</context>
<context>
    <name>Window_Activity_Log</name>
    <message>
        <source>Activity Log</source>
        <translation>Registro de actividad</translation>
    </message>
    <message>
        <source>Commands that were run</source>
        <translation>Órdenes ejecutadas</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Cómo terminó</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>What the command said</source>
        <translation>Lo que mostró la orden</translation>
    </message>
    <message>
        <source>Choose a command to see what it said.</source>
        <translation>Elija una orden para ver lo que mostró.</translation>
    </message>
    <message>
        <source>Everything that was run since the program started.</source>
        <translation>Todo lo que se ejecutó desde que se inició el programa.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the selected entries, or the whole log</source>
        <translation>Copiar las entradas seleccionadas o todo el registro</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Guardar…</translation>
    </message>
    <message>
        <source>Save the whole log as a text file</source>
        <translation>Guardar todo el registro en un archivo de texto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>Save the activity log</source>
        <translation>Guardar el registro de actividad</translation>
    </message>
    <message>
        <source>The log could not be saved</source>
        <translation>No se pudo guardar el registro</translation>
    </message>
</context>
<context>
    <name>Window_Alert</name>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
</context>
<context>
    <name>Window_Colors</name>
    <message>
        <source>Which colours should the window have?</source>
        <translation>¿Qué colores debe tener la ventana?</translation>
    </message>
    <message>
        <source>List &amp;background</source>
        <translation>&amp;Fondo de las listas</translation>
    </message>
    <message>
        <source>List background</source>
        <translation>Fondo de las listas</translation>
    </message>
    <message>
        <source>List te&amp;xt</source>
        <translation>&amp;Texto de las listas</translation>
    </message>
    <message>
        <source>List text</source>
        <translation>Texto de las listas</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Barras de herramientas</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de herramientas</translation>
    </message>
    <message>
        <source>Bottom b&amp;ar</source>
        <translation>Barra &amp;inferior</translation>
    </message>
    <message>
        <source>Bottom bar</source>
        <translation>Barra inferior</translation>
    </message>
    <message>
        <source>Occupied &amp;space</source>
        <translation>&amp;Espacio ocupado</translation>
    </message>
    <message>
        <source>Occupied space</source>
        <translation>Espacio ocupado</translation>
    </message>
    <message>
        <source>A&amp;lternate the colours of the rows</source>
        <translation>A&amp;lternar los colores de las filas</translation>
    </message>
    <message>
        <source>Make every other row of the lists a little lighter or darker</source>
        <translation>Hacer una de cada dos filas de las listas un poco más clara o más oscura</translation>
    </message>
    <message>
        <source>While the rows alternate, the lists are white on a light desktop and black on a dark one.</source>
        <translation>Mientras las filas se alternan, las listas son blancas en un escritorio claro y negras en uno oscuro.</translation>
    </message>
    <message>
        <source>Use these colours</source>
        <translation>Usar estos colores</translation>
    </message>
    <message>
        <source>Close and leave the window as it is (Escape)</source>
        <translation>Cerrar y dejar la ventana como está (Esc)</translation>
    </message>
    <message>
        <source>Original Colo&amp;urs</source>
        <translation>Colores &amp;originales</translation>
    </message>
    <message>
        <source>Bring back the colours that Corvalis came with, and keep them even if you cancel</source>
        <translation>Recuperar los colores con los que venía Corvalis y conservarlos aunque cancele</translation>
    </message>
</context>
<context>
    <name>Window_Data_Copy_Folders</name>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
    <message>
        <source>Copying the folders</source>
        <translation>Copiando las carpetas</translation>
    </message>
    <message>
        <source>They are gathered in one place before the disc is written. This takes a minute or more for each folder.</source>
        <translation>Se reúnen en un solo lugar antes de grabar el disco. Tarda un minuto o más por cada carpeta.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2)</source>
        <translation>Archivos copiados: %1 (%2)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2 of %3)</source>
        <translation>Archivos copiados: %1 (%2 de %3)</translation>
    </message>
</context>
<context>
    <name>Window_New_Disc</name>
    <message>
        <source>What kind of disc do you want to make?</source>
        <translation>¿Qué tipo de disco quiere hacer?</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>&amp;Audio CD</source>
        <translation>CD de &amp;audio</translation>
    </message>
    <message>
        <source>Plays in every CD player: 74 minutes</source>
        <translation>Suena en cualquier reproductor de CD: 74 minutos</translation>
    </message>
    <message>
        <source>&amp;MP3 CD</source>
        <translation>CD de &amp;MP3</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours</source>
        <translation>Archivos MP3 en un CD: nueve horas y media</translation>
    </message>
    <message>
        <source>MP&amp;3 DVD</source>
        <translation>DVD de MP&amp;3</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours</source>
        <translation>Archivos MP3 en un DVD: 38 horas</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>&amp;Video DVD</source>
        <translation>DVD de &amp;vídeo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours</source>
        <translation>Clips MPEG-2 en un DVD: dos horas y media</translation>
    </message>
    <message>
        <source>Vid&amp;eo Blu-ray</source>
        <translation>Blu-ray de víd&amp;eo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc: 23 hours</source>
        <translation>Clips MPEG-2 en un disco Blu-ray: 23 horas</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Data &amp;CD</source>
        <translation>&amp;CD de datos</translation>
    </message>
    <message>
        <source>Folders on a CD: 700 MB</source>
        <translation>Carpetas en un CD: 700 MB</translation>
    </message>
    <message>
        <source>&amp;Data DVD</source>
        <translation>&amp;DVD de datos</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB</source>
        <translation>Carpetas en un DVD: 4,7 GB</translation>
    </message>
    <message>
        <source>Data &amp;Blu-ray</source>
        <translation>&amp;Blu-ray de datos</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB</source>
        <translation>Carpetas en un disco Blu-ray: 25 GB</translation>
    </message>
    <message>
        <source>OK empties the list.</source>
        <translation>Al aceptar se vacía la lista.</translation>
    </message>
</context>
<context>
    <name>Window_Open_Panel</name>
    <message>
        <source>Accepted files (%1)</source>
        <translation>Archivos admitidos (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message numerus="yes">
        <source>%n folder(s) cannot be shown here: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n carpeta no se puede mostrar aquí: su nombre no es texto UTF-8 válido. Cámbiele el nombre para elegirla.</numerusform>
            <numerusform>%n carpetas no se pueden mostrar aquí: sus nombres no son texto UTF-8 válido. Cámbieles el nombre para elegirlas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n archivo de esta carpeta no se puede mostrar: su nombre no es texto UTF-8 válido. Cámbiele el nombre para elegirlo.</numerusform>
            <numerusform>%n archivos de esta carpeta no se pueden mostrar: sus nombres no son texto UTF-8 válido. Cámbieles el nombre para elegirlos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Window_Operation_Terminated</name>
    <message>
        <source>Operation complete</source>
        <translation>Operación completada</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Activity Log…</source>
        <translation>Registro de actividad…</translation>
    </message>
    <message>
        <source>Show in its folder what was made</source>
        <translation>Mostrar en su carpeta lo que se hizo</translation>
    </message>
    <message>
        <source>Show the command that decided, and all it said</source>
        <translation>Mostrar la orden decisiva y todo lo que mostró</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>&amp;Expulsar</translation>
    </message>
    <message>
        <source>Open the tray of the drive</source>
        <translation>Abrir la bandeja de la unidad</translation>
    </message>
    <message>
        <source>&amp;Burn Another</source>
        <translation>&amp;Grabar otro</translation>
    </message>
    <message>
        <source>Do the same once more, with the disc that is in the drive then</source>
        <translation>Hacer lo mismo otra vez, con el disco que haya entonces en la unidad</translation>
    </message>
</context>
<context>
    <name>Window_Performing_Operation</name>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
    <message>
        <source>This can take several minutes. Please leave the disc in the drive.</source>
        <translation>Puede tardar varios minutos. Deje el disco en la unidad, por favor.</translation>
    </message>
    <message>
        <source>Progress of the disc</source>
        <translation>Progreso del disco</translation>
    </message>
    <message>
        <source>Making the image</source>
        <translation>Creando la imagen</translation>
    </message>
    <message>
        <source>This can take several minutes.</source>
        <translation>Puede tardar varios minutos.</translation>
    </message>
    <message>
        <source>Erasing the disc</source>
        <translation>Borrando el disco</translation>
    </message>
    <message>
        <source>Writing the disc</source>
        <translation>Grabando el disco</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Creando los títulos y capítulos</translation>
    </message>
</context>
<context>
    <name>Window_Progress</name>
    <message>
        <source>Preparing the files</source>
        <translation>Preparando los archivos</translation>
    </message>
    <message>
        <source>Each file is converted to the format of the disc. Then the disc is written.</source>
        <translation>Cada archivo se convierte al formato del disco. Después se graba el disco.</translation>
    </message>
    <message>
        <source>This file</source>
        <translation>Este archivo</translation>
    </message>
    <message>
        <source>Progress of this file</source>
        <translation>Progreso de este archivo</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>Progress of all files</source>
        <translation>Progreso de todos los archivos</translation>
    </message>
</context>
<context>
    <name>Window_Unique_Progress</name>
    <message>
        <source>Adding files</source>
        <translation>Añadiendo archivos</translation>
    </message>
    <message>
        <source>The running time of each file is measured.</source>
        <translation>Se mide la duración de cada archivo.</translation>
    </message>
    <message>
        <source>Files measured so far</source>
        <translation>Archivos medidos hasta ahora</translation>
    </message>
    <message>
        <source>The files that were measured so far are added to the list.</source>
        <translation>Los archivos medidos hasta ahora se añaden a la lista.</translation>
    </message>
</context>
<context>
    <name>Window_Video_Settings</name>
    <message>
        <source>How are clips converted for video discs?</source>
        <translation>¿Cómo se convierten los clips para los discos de vídeo?</translation>
    </message>
    <message>
        <source>TV standard</source>
        <translation>Norma de TV</translation>
    </message>
    <message>
        <source>&amp;NTSC (720 × 480, 29.97 frames per second)</source>
        <translation>&amp;NTSC (720 × 480, 29,97 imágenes por segundo)</translation>
    </message>
    <message>
        <source>For players in North America, Japan and parts of South America</source>
        <translation>Para reproductores de Norteamérica, Japón y parte de Sudamérica</translation>
    </message>
    <message>
        <source>&amp;PAL (720 × 576, 25 frames per second)</source>
        <translation>&amp;PAL (720 × 576, 25 imágenes por segundo)</translation>
    </message>
    <message>
        <source>For players in Europe, Africa, Australia and most of Asia</source>
        <translation>Para reproductores de Europa, África, Australia y la mayor parte de Asia</translation>
    </message>
    <message>
        <source>Audio format</source>
        <translation>Formato de audio</translation>
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
        <translation>Pa&amp;ra reproductores de DVD (títulos y capítulos)</translation>
    </message>
    <message>
        <source>Video DVDs play in the player below a television, one clip after the other; without this, video discs hold files</source>
        <translation>Los DVD de vídeo se reproducen en el reproductor del televisor, un clip tras otro; sin esto, los discos de vídeo contienen archivos</translation>
    </message>
    <message>
        <source>Concerns Video DVDs. Video Blu-ray discs always hold files.</source>
        <translation>Se refiere a los DVD de vídeo. Los discos Blu-ray de vídeo contienen siempre archivos.</translation>
    </message>
</context>
<context>
    <name>desktop::JobPresence</name>
    <message>
        <source>A disc image is being made.</source>
        <translation>Se está creando una imagen de disco.</translation>
    </message>
    <message>
        <source>A disc is being erased.</source>
        <translation>Se está borrando un disco.</translation>
    </message>
    <message>
        <source>A disc is being made.</source>
        <translation>Se está creando un disco.</translation>
    </message>
    <message>
        <source>%1 % – Corvalis</source>
        <translation>%1 % – Corvalis</translation>
    </message>
    <message>
        <source>Show Corvalis</source>
        <translation>Mostrar Corvalis</translation>
    </message>
</context>
<context>
    <name>desktop::Opening</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>y %n más</numerusform>
            <numerusform>y %n más</numerusform>
        </translation>
    </message>
    <message>
        <source>New Audio CD</source>
        <translation>CD de audio nuevo</translation>
    </message>
    <message>
        <source>New Data Disc</source>
        <translation>Disco de datos nuevo</translation>
    </message>
    <message>
        <source>Write an Image</source>
        <translation>Grabar una imagen</translation>
    </message>
    <message>
        <source>Copy a Disc</source>
        <translation>Copiar un disco</translation>
    </message>
    <message>
        <source>Not everything can be opened</source>
        <translation>No se puede abrir todo</translation>
    </message>
    <message>
        <source>Files of this computer can be opened: music, films, folders, one disc image or one saved list.</source>
        <translation>Se pueden abrir archivos de este equipo: música, películas, carpetas, una imagen de disco o una lista guardada.</translation>
    </message>
    <message>
        <source>One disc image or one saved list can be opened at a time.</source>
        <translation>Solo se puede abrir una imagen de disco o una lista guardada a la vez.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Opened when the job has ended: %1</source>
        <translation>Se abrirá cuando termine el trabajo: %1</translation>
    </message>
    <message>
        <source>Opened when this is answered: %1</source>
        <translation>Se abrirá cuando responda a esto: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Window_Opened_Image</name>
    <message>
        <source>Write this image to the disc in the drive?</source>
        <translation>¿Grabar esta imagen en el disco de la unidad?</translation>
    </message>
    <message>
        <source>%1 in the folder %2</source>
        <translation>%1 en la carpeta %2</translation>
    </message>
    <message>
        <source>&amp;Write Image</source>
        <translation>&amp;Grabar imagen</translation>
    </message>
    <message>
        <source>Write Image</source>
        <translation>Grabar imagen</translation>
    </message>
    <message>
        <source>Look at the disc in the drive, and write the image to it</source>
        <translation>Examinar el disco de la unidad y grabar en él la imagen</translation>
    </message>
</context>
<context>
    <name>runner::ToolRun</name>
    <message>
        <source>ended without an error</source>
        <translation>terminó sin errores</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>terminó con el estado %1</translation>
    </message>
    <message>
        <source>could not be started: %1</source>
        <translation>no se pudo iniciar: %1</translation>
    </message>
    <message>
        <source>crashed (signal %1)</source>
        <translation>falló (señal %1)</translation>
    </message>
    <message>
        <source>was ended because it gave no answer in time</source>
        <translation>se terminó porque no respondió a tiempo</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>se detuvo</translation>
    </message>
    <message>
        <source>%1 ended without an error</source>
        <translation>%1 terminó sin errores</translation>
    </message>
    <message>
        <source>%1 ended with status %2</source>
        <translation>%1 terminó con el estado %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>no se pudo iniciar %1: %2</translation>
    </message>
    <message>
        <source>%1 crashed (signal %2)</source>
        <translation>%1 falló (señal %2)</translation>
    </message>
    <message>
        <source>%1 was ended because it gave no answer in time</source>
        <translation>%1 se terminó porque no respondió a tiempo</translation>
    </message>
    <message>
        <source>%1 was stopped</source>
        <translation>%1 se detuvo</translation>
    </message>
    <message>
        <source>%1, as expected</source>
        <translation>%1, como se esperaba</translation>
    </message>
</context>
<context>
    <name>writing::Job</name>
    <message>
        <source>There was nothing left to write. The disc is as it was.</source>
        <translation>No quedaba nada que grabar. El disco está como estaba.</translation>
    </message>
    <message>
        <source>The disc is as it was.</source>
        <translation>El disco está como estaba.</translation>
    </message>
    <message>
        <source>There is no usable image.</source>
        <translation>No hay ninguna imagen utilizable.</translation>
    </message>
    <message>
        <source>The disc has to be erased again before it can be used.</source>
        <translation>Hay que volver a borrar el disco antes de poder usarlo.</translation>
    </message>
    <message>
        <source>The disc is written, but was not compared.</source>
        <translation>El disco está grabado, pero no se comparó.</translation>
    </message>
    <message>
        <source>The disc is incomplete: erase it before you use it again.</source>
        <translation>El disco está incompleto: bórrelo antes de volver a usarlo.</translation>
    </message>
    <message>
        <source>The disc is incomplete and cannot be used any more.</source>
        <translation>El disco está incompleto y ya no se puede usar.</translation>
    </message>
    <message>
        <source>What was converted so far is thrown away. The disc stays as it is.</source>
        <translation>Lo convertido hasta ahora se descarta. El disco queda como está.</translation>
    </message>
    <message>
        <source>What was copied so far is thrown away. The disc and your folders stay as they are.</source>
        <translation>Lo copiado hasta ahora se descarta. El disco y sus carpetas quedan como están.</translation>
    </message>
    <message>
        <source>The image made so far is deleted.</source>
        <translation>La imagen creada hasta ahora se elimina.</translation>
    </message>
    <message>
        <source>Nothing is written yet. The disc stays as it is.</source>
        <translation>Todavía no se ha grabado nada. El disco queda como está.</translation>
    </message>
    <message>
        <source>The disc is written. It is not compared to the end.</source>
        <translation>El disco está grabado. No se compara hasta el final.</translation>
    </message>
    <message>
        <source>What was written so far is lost. The disc has to be erased before it is used again.</source>
        <translation>Lo grabado hasta ahora se pierde. Hay que borrar el disco antes de volver a usarlo.</translation>
    </message>
    <message>
        <source>This disc is lost: it cannot be written a second time.</source>
        <translation>Este disco se pierde: no se puede grabar por segunda vez.</translation>
    </message>
    <message>
        <source>No image was made.</source>
        <translation>No se creó ninguna imagen.</translation>
    </message>
    <message>
        <source>Nothing was written. The disc is as it was.</source>
        <translation>No se grabó nada. El disco está como estaba.</translation>
    </message>
    <message>
        <source>the working folder</source>
        <translation>la carpeta de trabajo</translation>
    </message>
    <message>
        <source>%1 could not make the titles: %2. The disc is as it was.</source>
        <translation>%1 no pudo crear los títulos: %2. El disco está como estaba.</translation>
    </message>
</context>
</TS>
