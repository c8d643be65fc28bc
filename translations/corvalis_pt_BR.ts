<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_GB">
<context>
    <name>AVSPDocument</name>
    <message>
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>The file is being opened</source>
        <translation>O arquivo está sendo aberto</translation>
    </message>
    <message>
        <source>This file cannot be played.</source>
        <translation>Este arquivo não pode ser reproduzido.</translation>
    </message>
    <message>
        <source>Sound only, no picture</source>
        <translation>Somente som, sem imagem</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Rewind</source>
        <translation>Retroceder</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Volume (Up and Down)</source>
        <translation>Volume (Para cima e Para baixo)</translation>
    </message>
    <message>
        <source>The file cannot be played</source>
        <translation>O arquivo não pode ser reproduzido</translation>
    </message>
    <message>
        <source>Video could not be played.</source>
        <translation>Não foi possível reproduzir o vídeo.</translation>
    </message>
    <message>
        <source>The file could not be played</source>
        <translation>Não foi possível reproduzir o arquivo</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play or pause (Space)</source>
        <translation>Reproduzir ou pausar (Espaço)</translation>
    </message>
    <message>
        <source>Fast forward; each press is faster</source>
        <translation>Avançar; mais rápido a cada toque</translation>
    </message>
    <message>
        <source>Rewind; each press is faster</source>
        <translation>Retroceder; mais rápido a cada toque</translation>
    </message>
    <message>
        <source>Position (Left and Right: five seconds)</source>
        <translation>Posição (Esquerda e Direita: cinco segundos)</translation>
    </message>
</context>
<context>
    <name>Acceptance</name>
    <message>
        <source>These are not files of this computer. Copy them into a folder of it, and add them from there.</source>
        <translation>Estes não são arquivos deste computador. Copie-os para uma pasta dele e adicione-os de lá.</translation>
    </message>
    <message>
        <source>There are no files of these names any more. They may have been moved or renamed.</source>
        <translation>Não há mais arquivos com estes nomes. Talvez tenham sido movidos ou renomeados.</translation>
    </message>
    <message>
        <source>These are links, and what they lead to is not there.</source>
        <translation>São links, e aquilo a que levam não existe.</translation>
    </message>
    <message>
        <source>You have no permission to look into these folders. Their owner can give it to you.</source>
        <translation>Você não tem permissão para ver estas pastas. O dono delas pode concedê-la.</translation>
    </message>
    <message>
        <source>These are pipes or devices and not files, whatever their names end in. They have no length.</source>
        <translation>São pipes ou dispositivos e não arquivos, seja qual for o final dos nomes. Eles não têm duração.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and folders with such files in them.</source>
        <translation>Esta lista aceita arquivos que terminam em %1 e pastas que os contenham.</translation>
    </message>
    <message>
        <source>No file directly in these folders ends in %1. Folders in them are not looked into.</source>
        <translation>Nenhum arquivo diretamente nestas pastas termina em %1. As pastas dentro delas não são examinadas.</translation>
    </message>
    <message>
        <source>The files in these folders have their endings in capital letters, and of a folder only those in small letters are taken. Add the files themselves.</source>
        <translation>Os arquivos destas pastas têm a extensão em letras maiúsculas, e de uma pasta só são aceitos os que a têm em minúsculas. Adicione os próprios arquivos.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with sound in them. ffmpeg finds none in these.</source>
        <translation>Esta lista aceita arquivos que terminam em %1 e quaisquer outros que tenham som. Nestes o ffmpeg não o encontra.</translation>
    </message>
    <message>
        <source>This list takes files that end in %1, and any others with a film in them. ffmpeg finds none in these.</source>
        <translation>Esta lista aceita arquivos que terminam em %1 e quaisquer outros que tenham um filme. Nestes o ffmpeg não o encontra.</translation>
    </message>
    <message>
        <source>ffmpeg finds no sound in any file in these folders or below.</source>
        <translation>O ffmpeg não encontra som em nenhum arquivo destas pastas nem abaixo delas.</translation>
    </message>
    <message>
        <source>ffmpeg finds no film in any file in these folders or below.</source>
        <translation>O ffmpeg não encontra filme em nenhum arquivo destas pastas nem abaixo delas.</translation>
    </message>
    <message>
        <source>These are playlists and folders that a playlist names, and those are not followed. Add them themselves.</source>
        <translation>São listas de reprodução e pastas que uma lista de reprodução cita, e essas não são seguidas. Adicione-as diretamente.</translation>
    </message>
    <message>
        <source>These playlists name no files, or they are damaged.</source>
        <translation>Estas listas de reprodução não citam nenhum arquivo ou estão danificadas.</translation>
    </message>
    <message>
        <source>These playlists name more than 100,000 files. Only so many were taken, the first ones.</source>
        <translation>Estas listas de reprodução citam mais de 100.000 arquivos. Só foram aceitos os primeiros, até esse número.</translation>
    </message>
    <message>
        <source>These files are too large for playlists, which have up to 32 MB.</source>
        <translation>Estes arquivos são grandes demais para listas de reprodução, que têm até 32 MB.</translation>
    </message>
    <message>
        <source>There are more than 100,000 files below these folders. Only so many were taken, the first ones.</source>
        <translation>Há mais de 100.000 arquivos abaixo destas pastas. Só foram aceitos os primeiros, até esse número.</translation>
    </message>
</context>
<context>
    <name>ActivityLog</name>
    <message>
        <source>is running</source>
        <translation>em andamento</translation>
    </message>
    <message numerus="yes">
        <source>
(%n more bytes of output are not kept)
</source>
        <translation>
            <numerusform>
(%n byte a mais da saída não foi guardado)
</numerusform>
            <numerusform>
(%n bytes a mais da saída não foram guardados)
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message>
        <source>The settings could not be saved</source>
        <translation>Não foi possível salvar as configurações</translation>
    </message>
    <message>
        <source>Error #0008. Application will exit.</source>
        <translation>Erro #0008. O aplicativo será encerrado.</translation>
    </message>
    <message>
        <source>Error #0009. Application will exit.</source>
        <translation>Erro #0009. O aplicativo será encerrado.</translation>
    </message>
    <message>
        <source>Error #000a. Application will exit.</source>
        <translation>Erro #000a. O aplicativo será encerrado.</translation>
    </message>
    <message>
        <source>Error #000b. Application will exit.</source>
        <translation>Erro #000b. O aplicativo será encerrado.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>A working folder was not emptied, as another Corvalis prepares a disc in it</source>
        <translation>Uma pasta de trabalho não foi esvaziada porque outro Corvalis prepara um disco nela</translation>
    </message>
    <message>
        <source>A file in a working folder could not be removed</source>
        <translation>Não foi possível remover um arquivo de uma pasta de trabalho</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>The page could not be opened</source>
        <translation>Não foi possível abrir a página</translation>
    </message>
    <message>
        <source>Open it in a browser: %1</source>
        <translation>Abra-a em um navegador: %1</translation>
    </message>
    <message>
        <source>Corvalis %1</source>
        <translation>Corvalis %1</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Free software under the GNU General Public License, version 2 or later.
Built on Qt %1, libburn, libisofs, ffmpeg and mpv.</source>
        <translation>Prepara e grava discos ópticos.

Software livre sob a Licença Pública Geral GNU, versão 2 ou posterior.
Feito com Qt %1, libburn, libisofs, ffmpeg e mpv.</translation>
    </message>
    <message>
        <source>&amp;Add Folder…</source>
        <translation>Adicionar &amp;pasta…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Adicionar arquivos…</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Pasta</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Duração</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Tamanho</translation>
    </message>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Add audio files to the list</source>
        <translation>Adicionar arquivos de áudio à lista</translation>
    </message>
    <message>
        <source>Add video files to the list</source>
        <translation>Adicionar arquivos de vídeo à lista</translation>
    </message>
    <message>
        <source>Add the audio files of a folder to the list</source>
        <translation>Adicionar à lista os arquivos de áudio de uma pasta</translation>
    </message>
    <message>
        <source>Add the video files of a folder to the list</source>
        <translation>Adicionar à lista os arquivos de vídeo de uma pasta</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) cannot be listed</source>
        <translation>
            <numerusform>%n arquivo não pode ser adicionado à lista</numerusform>
            <numerusform>%n arquivos não podem ser adicionados à lista</numerusform>
        </translation>
    </message>
    <message>
        <source>Their names in the folder “%1” are not valid UTF-8 text. Rename them and add the folder again.</source>
        <translation>Os nomes deles na pasta “%1” não são texto UTF-8 válido. Renomeie-os e adicione a pasta novamente.</translation>
    </message>
    <message>
        <source>Add a folder to the list</source>
        <translation>Adicionar uma pasta à lista</translation>
    </message>
    <message>
        <source>Add files to the list</source>
        <translation>Adicionar arquivos à lista</translation>
    </message>
    <message>
        <source>Not everything can go on this list</source>
        <translation>Nem tudo pode entrar nesta lista</translation>
    </message>
    <message>
        <source>There is no file selected.</source>
        <translation>Nenhum arquivo está selecionado.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The file cannot be played.</source>
        <translation>O arquivo não pode ser reproduzido.</translation>
    </message>
    <message>
        <source>The program ffmpeg, which measures files, is missing.</source>
        <translation>O programa ffmpeg, que mede os arquivos, não foi encontrado.</translation>
    </message>
    <message>
        <source>Measuring the file took too long and was given up.</source>
        <translation>A medição do arquivo demorou demais e foi abandonada.</translation>
    </message>
    <message>
        <source>Files cannot be measured</source>
        <translation>Não é possível medir os arquivos</translation>
    </message>
    <message>
        <source>The program ffmpeg is missing. Install the package “ffmpeg” and add the files again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>O programa ffmpeg não foi encontrado. Instale o pacote “ffmpeg” e adicione os arquivos novamente. Sem ele as listas não mostram durações, e nenhum disco de áudio ou vídeo pode ser criado.</translation>
    </message>
    <message>
        <source>A part of Corvalis is missing: %1. Install Corvalis again. Without it the lists show no durations, and no audio or video disc can be made.</source>
        <translation>Uma parte do Corvalis não foi encontrada: %1. Instale o Corvalis novamente. Sem ela as listas não mostram durações, e nenhum disco de áudio ou vídeo pode ser criado.</translation>
    </message>
    <message>
        <source>Save the list first?</source>
        <translation>Salvar a lista antes?</translation>
    </message>
    <message>
        <source>The list that is shown has changes that are not saved. What is opened now takes its place.</source>
        <translation>A lista exibida tem alterações que não foram salvas. O que for aberto agora toma o lugar dela.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Do Not Save</source>
        <translation>Não salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save the list as</source>
        <translation>Salvar a lista como</translation>
    </message>
    <message>
        <source>My disc</source>
        <translation>Meu disco</translation>
    </message>
    <message>
        <source>The list could not be saved</source>
        <translation>Não foi possível salvar a lista</translation>
    </message>
    <message>
        <source>%1

%2</source>
        <translation>%1

%2</translation>
    </message>
    <message>
        <source>Open a saved list</source>
        <translation>Abrir uma lista salva</translation>
    </message>
    <message>
        <source>It is for a kind of disc that this Corvalis does not know: %1.</source>
        <translation>Ela é para um tipo de disco que este Corvalis não conhece: %1.</translation>
    </message>
    <message>
        <source>The list cannot be opened</source>
        <translation>Não é possível abrir a lista</translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) of the list cannot be found</source>
        <translation>
            <numerusform>%n item da lista não foi encontrado</numerusform>
            <numerusform>%n itens da lista não foram encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Find in a Folder…</source>
        <translation>Procurar em uma pasta…</translation>
    </message>
    <message>
        <source>A folder in which the missing files are now</source>
        <translation>Uma pasta em que agora estão os arquivos que faltam</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Nada foi encontrado</translation>
    </message>
    <message>
        <source>No file or folder below %1 has one of the names that are missing.</source>
        <translation>Nenhum arquivo ou pasta abaixo de %1 tem um dos nomes que faltam.</translation>
    </message>
    <message>
        <source>&amp;Clear This Menu</source>
        <translation>&amp;Limpar este menu</translation>
    </message>
    <message>
        <source>The disc could not be changed</source>
        <translation>Não foi possível trocar o disco</translation>
    </message>
    <message>
        <source>The folder of written discs could not be opened</source>
        <translation>Não foi possível abrir a pasta dos discos gravados</translation>
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
        <translation>Nenhum disco</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a rewritable media on the drive and try again.</source>
        <translation>Não há disco na unidade. Insira um disco regravável e tente novamente.</translation>
    </message>
    <message>
        <source>Media not rewritable</source>
        <translation>O disco não é regravável</translation>
    </message>
    <message>
        <source>The media on the drive is not rewritable. insert a rewritable media on the drive and try again.</source>
        <translation>O disco na unidade não é regravável. Insira um disco regravável e tente novamente.</translation>
    </message>
    <message>
        <source>Full erase</source>
        <translation>Apagamento completo</translation>
    </message>
    <message>
        <source>Quick erase</source>
        <translation>Apagamento rápido</translation>
    </message>
    <message>
        <source>The disc utility cannot be used</source>
        <translation>O utilitário de discos não pode ser usado</translation>
    </message>
    <message>
        <source>There is no disc on the drive. Insert a media on the drive and try again.</source>
        <translation>Não há disco na unidade. Insira um disco e tente novamente.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Informações do disco</translation>
    </message>
    <message>
        <source>No audio files on the list</source>
        <translation>Nenhum arquivo de áudio na lista</translation>
    </message>
    <message>
        <source>There are no audio files on the list. Add audio files to the list and try again.</source>
        <translation>Não há arquivos de áudio na lista. Adicione arquivos de áudio à lista e tente novamente.</translation>
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
        <translation>Nenhuma pasta na lista</translation>
    </message>
    <message>
        <source>There are no folders on the list. Add folders to the list and try again.</source>
        <translation>Não há pastas na lista. Adicione pastas à lista e tente novamente.</translation>
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
        <translation>Não há espaço suficiente para reunir as pastas</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1, and its file system has %2 too little for that. Free some room and try again, or go on: what does not fit will not be on the disc.</source>
        <translation>O disco é preparado na pasta %1, e no sistema de arquivos dela faltam %2 para isso. Libere espaço e tente novamente, ou continue: o que não couber não estará no disco.</translation>
    </message>
    <message>
        <source>Go On</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>The disc is written before the copying of a folder has ended.</source>
        <translation>O disco é gravado antes que a cópia de uma pasta tenha terminado.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln arquivo</numerusform>
            <numerusform>%Ln arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>The copying of a folder does not end.</source>
        <translation>A cópia de uma pasta não termina.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a media on the drive to copy and try again.</source>
        <translation>Não há disco na unidade. Insira o disco que deseja copiar e tente novamente.</translation>
    </message>
    <message>
        <source>Select a volume to duplicate.</source>
        <translation>Escolha o volume que deseja duplicar.</translation>
    </message>
    <message>
        <source>Copy of %1</source>
        <translation>Cópia de %1</translation>
    </message>
    <message>
        <source>Insert a writable media and click OK or click Cancel to stop the media duplication.</source>
        <translation>Insira um disco virgem e clique em OK, ou clique em Cancelar para interromper a cópia do disco.</translation>
    </message>
    <message>
        <source>Media not CD</source>
        <translation>O disco não é um CD</translation>
    </message>
    <message>
        <source>The media on the drive is not a CD. insert a writable CD on the drive and try again.</source>
        <translation>O disco na unidade não é um CD. Insira um CD gravável e tente novamente.</translation>
    </message>
    <message>
        <source>Media not DVD</source>
        <translation>O disco não é um DVD</translation>
    </message>
    <message>
        <source>The media on the drive is not a DVD. insert a writable DVD on the drive and try again.</source>
        <translation>O disco na unidade não é um DVD. Insira um DVD gravável e tente novamente.</translation>
    </message>
    <message>
        <source>Media not Blu-ray</source>
        <translation>O disco não é um Blu-ray</translation>
    </message>
    <message>
        <source>The media on the drive is not a Blu-ray. insert a writable Blu-ray on the drive and try again.</source>
        <translation>O disco na unidade não é um Blu-ray. Insira um Blu-ray gravável e tente novamente.</translation>
    </message>
    <message>
        <source>There is no disc on the drive. insert a writable media on the drive and try again.</source>
        <translation>Não há disco na unidade. Insira um disco gravável e tente novamente.</translation>
    </message>
    <message>
        <source>Media not writable</source>
        <translation>O disco não é gravável</translation>
    </message>
    <message>
        <source>The media on the drive is not writable. insert a writable media on the drive and try again.</source>
        <translation>O disco na unidade não é gravável. Insira um disco gravável e tente novamente.</translation>
    </message>
    <message>
        <source>Select a folder to export to ISO format.</source>
        <translation>Escolha uma pasta para exportar para o formato ISO.</translation>
    </message>
    <message>
        <source>Disc image</source>
        <translation>Imagem de disco</translation>
    </message>
    <message>
        <source>Select a folder to save the Image.iso file.</source>
        <translation>Escolha uma pasta para salvar o arquivo image.iso.</translation>
    </message>
    <message>
        <source>Select a ISO image to burn to media.</source>
        <translation>Escolha uma imagem ISO para gravar no disco.</translation>
    </message>
    <message>
        <source>Image %1</source>
        <translation>Imagem %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln track(s)</source>
        <translation>
            <numerusform>%Ln faixa</numerusform>
            <numerusform>%Ln faixas</numerusform>
        </translation>
    </message>
    <message>
        <source>Another Corvalis is at work</source>
        <translation>Outro Corvalis está trabalhando</translation>
    </message>
    <message>
        <source>It prepares a disc in the folder %1. Wait until that disc is done and try again.</source>
        <translation>Ele prepara um disco na pasta %1. Espere até que esse disco esteja pronto e tente novamente.</translation>
    </message>
    <message>
        <source>“%1” was left out: another entry of the list is converted to “%2” too. Rename one of the files and try again.</source>
        <translation>“%1” foi omitido: outro item da lista também é convertido em “%2”. Renomeie um dos arquivos e tente novamente.</translation>
    </message>
    <message>
        <source>A file was left out</source>
        <translation>Um arquivo foi omitido</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files or folders did not fit where the disc is gathered.</source>
        <translation>
            <numerusform>%Ln arquivo ou pasta não coube onde o disco é reunido.</numerusform>
            <numerusform>%Ln arquivos ou pastas não couberam onde o disco é reunido.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not copied</source>
        <translation>Não copiado</translation>
    </message>
    <message>
        <source>No video files on the list</source>
        <translation>Nenhum arquivo de vídeo na lista</translation>
    </message>
    <message>
        <source>There are no video files on the list. Add video files to the list and try again.</source>
        <translation>Não há arquivos de vídeo na lista. Adicione arquivos de vídeo à lista e tente novamente.</translation>
    </message>
    <message>
        <source>Warning 0000.</source>
        <translation>Aviso 0000.</translation>
    </message>
    <message>
        <source>What is missing stays on the list, marked. If it was moved, show a folder in which it is now, at any depth: it is found there by its name.</source>
        <translation>O que falta continua na lista, marcado. Se foi movido, indique uma pasta em que esteja agora, em qualquer nível: lá é encontrado pelo nome.</translation>
    </message>
    <message>
        <source>Add any files with sound, and playlists, to the list</source>
        <translation>Adicionar à lista quaisquer arquivos com som e listas de reprodução</translation>
    </message>
    <message>
        <source>Add any films, and playlists, to the list</source>
        <translation>Adicionar à lista quaisquer filmes e listas de reprodução</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Not all of these files can be on one disc</source>
        <translation>Nem todos estes arquivos podem estar em um mesmo disco</translation>
    </message>
    <message>
        <source>Their names differ in the folder or the ending only. The first of each name on the list is written and the others are left out. Rename them, or take them off the list.</source>
        <translation>Os nomes deles só diferem na pasta ou na extensão. O primeiro de cada nome na lista é gravado e os outros são omitidos. Renomeie-os ou remova-os da lista.</translation>
    </message>
    <message>
        <source>The title and the performer of “%1” are not on the disc as they are on the list: %2.</source>
        <translation>O título e o intérprete de “%1” não estão no disco como estão na lista: %2.</translation>
    </message>
    <message>
        <source>The names of a track could not be written</source>
        <translation>Não foi possível gravar os nomes de uma faixa</translation>
    </message>
    <message>
        <source>The program dvdauthor is missing</source>
        <translation>O programa dvdauthor não foi encontrado</translation>
    </message>
    <message>
        <source>It makes the titles of a DVD for players. Install the package “dvdauthor” and try again, or switch “For DVD players” off in the video settings; the disc then holds files.</source>
        <translation>Ele cria os títulos de um DVD para aparelhos. Instale o pacote “dvdauthor” e tente novamente, ou desligue “Para aparelhos de DVD” nos ajustes de vídeo; o disco então contém arquivos.</translation>
    </message>
    <message>
        <source>Too many clips for one DVD</source>
        <translation>Clipes demais para um DVD</translation>
    </message>
    <message numerus="yes">
        <source>A DVD for players has room for 99 titles, and there are %Ln clip(s) on the list. Take some off and try again.</source>
        <translation>
            <numerusform>Em um DVD para aparelhos cabem 99 títulos, e há %Ln clipe na lista. Remova alguns e tente novamente.</numerusform>
            <numerusform>Em um DVD para aparelhos cabem 99 títulos, e há %Ln clipes na lista. Remova alguns e tente novamente.</numerusform>
        </translation>
    </message>
    <message>
        <source>There is not enough room to make the titles</source>
        <translation>Não há espaço suficiente para criar os títulos</translation>
    </message>
    <message>
        <source>A disc is prepared in the folder %1. That may take %2 for these clips, and its file system has %3 left. Free some room and try again, or go on: a clip that finds no room will not be on the disc.</source>
        <translation>O disco é preparado na pasta %1. Estes clipes podem precisar de %2, e no sistema de arquivos dela restam %3. Libere espaço e tente novamente, ou continue: um clipe que não couber não estará no disco.</translation>
    </message>
    <message>
        <source>%1: there is no picture in it.</source>
        <translation>%1: não contém imagem.</translation>
    </message>
    <message>
        <source>%1: its picture could not be read.</source>
        <translation>%1: não foi possível ler sua imagem.</translation>
    </message>
    <message>
        <source>The titles could not be described: %1. The disc is as it was.</source>
        <translation>Não foi possível descrever os títulos: %1. O disco está como estava.</translation>
    </message>
    <message>
        <source>dvdauthor told nothing for a long time and was ended.</source>
        <translation>O dvdauthor não disse nada por muito tempo e foi encerrado.</translation>
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
        <translation>O sistema de arquivos da pasta %1 está cheio.</translation>
    </message>
    <message>
        <source>The drives could not be listed</source>
        <translation>Não foi possível listar as unidades</translation>
    </message>
    <message>
        <source>The drive is not there any more</source>
        <translation>A unidade não está mais lá</translation>
    </message>
    <message>
        <source>“%1” is not connected. Connect it again, or choose another drive in the Drive menu.</source>
        <translation>“%1” não está conectada. Conecte-a novamente ou escolha outra unidade no menu Unidade.</translation>
    </message>
    <message>
        <source>The disc cannot have this name</source>
        <translation>O disco não pode ter este nome</translation>
    </message>
    <message>
        <source>%1 Change the name and try again.</source>
        <translation>%1 Mude o nome e tente novamente.</translation>
    </message>
</context>
<context>
    <name>BatchMedia</name>
    <message>
        <source>%1: the name is not valid UTF-8 text. Rename the file and try again.</source>
        <translation>%1: o nome não é texto UTF-8 válido. Renomeie o arquivo e tente novamente.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: não existe tal arquivo ou pasta.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no sound in it.</source>
        <translation>%1 não é um arquivo que este disco possa receber. São aceitos: %2. O ffmpeg não encontra som nele.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no film in it.</source>
        <translation>%1 não é um arquivo que este disco possa receber. São aceitos: %2. O ffmpeg não encontra filme nele.</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: não existe tal arquivo ou pasta.</translation>
    </message>
    <message>
        <source>%1 is no file or folder, and a data disc is made of these.</source>
        <translation>%1 não é arquivo nem pasta, e um disco de dados é feito deles.</translation>
    </message>
    <message>
        <source>%1 is not a file that this disc can take. Accepted are: %2.</source>
        <translation>%1 não é um arquivo que este disco possa receber. São aceitos: %2.</translation>
    </message>
    <message>
        <source>Adding files: %1 of %2</source>
        <translation>Adicionando arquivos: %1 de %2</translation>
    </message>
    <message>
        <source>Converting: file %1 of %2, %3 %</source>
        <translation>Convertendo: arquivo %1 de %2, %3%</translation>
    </message>
    <message>
        <source>Gathering the folders</source>
        <translation>Reunindo as pastas</translation>
    </message>
    <message>
        <source>--for-players goes with --burn &quot;Video DVD&quot;.</source>
        <translation>--for-players só acompanha --burn &quot;Video DVD&quot;.</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Criando os títulos e capítulos</translation>
    </message>
</context>
<context>
    <name>ColourWell</name>
    <message>
        <source>No colour</source>
        <translation>Nenhuma cor</translation>
    </message>
    <message>
        <source>%1: press to choose another colour</source>
        <translation>%1: pressione para escolher outra cor</translation>
    </message>
    <message>
        <source>No colour: press to choose one</source>
        <translation>Nenhuma cor: pressione para escolher uma</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Try &apos;corvalis --help&apos;.</source>
        <translation>Experimente “corvalis --help”.</translation>
    </message>
    <message>
        <source>argument %1, &quot;%2&quot;, is not valid UTF-8 text; rename the file and try again.</source>
        <translation>o argumento %1, &quot;%2&quot;, não é texto UTF-8 válido; renomeie o arquivo e tente novamente.</translation>
    </message>
    <message>
        <source>there is no project &quot;%1&quot;; it is one of %2.</source>
        <translation>não há projeto &quot;%1&quot;; ele é um de %2.</translation>
    </message>
    <message>
        <source>Prepares and writes optical discs.

Exit status with --burn: 0 the disc was written and everything is on it, 1 it was not written, 2 wrong arguments, 3 it was written but something is not on it; stopped by a signal, it ends by that signal.
A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>Prepara e grava discos ópticos.

Status de saída com --burn: 0 o disco foi gravado e tudo está nele, 1 não foi gravado, 2 argumentos errados, 3 foi gravado, mas falta algo nele; interrompido por um sinal, o programa termina com esse sinal.
Um arquivo cujo nome começa com um hífen vai depois de &quot;--&quot;.</translation>
    </message>
    <message>
        <source>Make a disc of kind &lt;project&gt; from the files and end: %1.</source>
        <translation>Fazer dos arquivos um disco do tipo &lt;project&gt; e terminar: %1.</translation>
    </message>
    <message>
        <source>project</source>
        <translation>project</translation>
    </message>
    <message>
        <source>Do so in the window, which stays.</source>
        <translation>Fazer isso na janela, que permanece.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>ARQUIVO</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[ARQUIVO...]</translation>
    </message>
    <message>
        <source>%1 A file whose name begins with a dash goes behind &quot;--&quot;.</source>
        <translation>%1 Um arquivo cujo nome começa com um hífen vai depois de &quot;--&quot;.</translation>
    </message>
    <message>
        <source>--burn is there more than once.</source>
        <translation>--burn aparece mais de uma vez.</translation>
    </message>
    <message>
        <source>--show goes with --burn.</source>
        <translation>--show só acompanha --burn.</translation>
    </message>
    <message>
        <source>there is no action &quot;%1&quot;; it is one of %2.</source>
        <translation>não há ação &quot;%1&quot;; ela é uma de %2.</translation>
    </message>
    <message>
        <source>--action goes without files.</source>
        <translation>--action vai sem arquivos.</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder.</source>
        <translation>%1: não existe tal arquivo ou pasta.</translation>
    </message>
    <message>
        <source>Open the files in a window of their own, not in the one that runs.</source>
        <translation>Abrir os arquivos em uma janela própria, não na que já está aberta.</translation>
    </message>
    <message>
        <source>Begin &lt;what&gt; in the window: %1.</source>
        <translation>Começar &lt;what&gt; na janela: %1.</translation>
    </message>
    <message>
        <source>what</source>
        <translation>what</translation>
    </message>
    <message>
        <source>--new-window and --action go without --burn.</source>
        <translation>--new-window e --action não acompanham --burn.</translation>
    </message>
    <message>
        <source>Make a Video DVD for DVD players, with titles and chapters, whatever the video settings say.</source>
        <translation>Criar um DVD de vídeo para aparelhos de DVD, com títulos e capítulos, sejam quais forem os ajustes de vídeo.</translation>
    </message>
    <message>
        <source>Files, for a data disc also folders; the tracks of an audio CD keep their order. Without --burn they are opened in the window: music, films, folders, a disc image or a saved list.</source>
        <translation>Arquivos, ou também pastas para um disco de dados; as faixas de um CD de áudio mantêm a ordem. Sem --burn eles são abertos na janela: músicas, filmes, pastas, uma imagem de disco ou uma lista salva.</translation>
    </message>
</context>
<context>
    <name>DiscName</name>
    <message>
        <source>Where only plain letters are known, “%1” becomes “_”.</source>
        <translation>Onde só se conhecem letras simples, “%1” vira “_”.</translation>
    </message>
    <message>
        <source>On Windows “%1” becomes “_”.</source>
        <translation>No Windows, “%1” vira “_”.</translation>
    </message>
    <message>
        <source>Windows shows “%1”.</source>
        <translation>O Windows mostra “%1”.</translation>
    </message>
    <message>
        <source>The name holds a character that cannot be seen.</source>
        <translation>O nome contém um caractere que não pode ser visto.</translation>
    </message>
    <message>
        <source>The name has %1 characters; a disc takes %2.</source>
        <translation>O nome tem %1 caracteres; um disco aceita %2.</translation>
    </message>
</context>
<context>
    <name>DiscNameField</name>
    <message>
        <source>Disc name</source>
        <translation>Nome do disco</translation>
    </message>
    <message>
        <source>Chosen for you</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Name of the disc</source>
        <translation>Nome do disco</translation>
    </message>
    <message>
        <source>What the disc is called where it is put in</source>
        <translation>Como o disco se chama onde é inserido</translation>
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
        <translation>No %1 que está na unidade cabem cerca de %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive holds %2.</source>
        <translation>No %1 que está na unidade cabem %2.</translation>
    </message>
    <message>
        <source>The list is too long by %1.</source>
        <translation>A lista é %1 longa demais.</translation>
    </message>
    <message>
        <source>The list is too large by %1.</source>
        <translation>A lista passa %1 do tamanho.</translation>
    </message>
    <message>
        <source>The list just about fits.</source>
        <translation>A lista cabe por pouco.</translation>
    </message>
    <message>
        <source>The list fits.</source>
        <translation>A lista cabe.</translation>
    </message>
    <message>
        <source>The %1 in the drive cannot be written.</source>
        <translation>O %1 que está na unidade não pode ser gravado.</translation>
    </message>
    <message>
        <source>In the drive is a %1; this list needs a %2.</source>
        <translation>Na unidade há um %1; esta lista precisa de um %2.</translation>
    </message>
    <message>
        <source>The %1 in the drive is erased before it is written.</source>
        <translation>O %1 que está na unidade é apagado antes de ser gravado.</translation>
    </message>
</context>
<context>
    <name>DriveNews</name>
    <message>
        <source>The drive “%1” is connected.</source>
        <translation>A unidade “%1” está conectada.</translation>
    </message>
    <message>
        <source>A drive was plugged in: “%1”.</source>
        <translation>Uma unidade foi conectada: “%1”.</translation>
    </message>
    <message>
        <source>Use This Drive</source>
        <translation>Usar esta unidade</translation>
    </message>
    <message>
        <source>Write discs with this drive from now on</source>
        <translation>Gravar os discos com esta unidade a partir de agora</translation>
    </message>
    <message>
        <source>No other drive was found.</source>
        <translation>Nenhuma outra unidade foi encontrada.</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (não conectada)</translation>
    </message>
    <message>
        <source>The drive “%1” is not connected any more. Connect it again, or choose another one in the Drive menu.</source>
        <translation>A unidade “%1” não está mais conectada. Conecte-a novamente ou escolha outra no menu Unidade.</translation>
    </message>
    <message>
        <source>You may not use this drive</source>
        <translation>Você não tem permissão para usar esta unidade</translation>
    </message>
    <message>
        <source>Wh&amp;y…</source>
        <translation>Por &amp;quê…</translation>
    </message>
    <message>
        <source>Tell why, and how to change it</source>
        <translation>Dizer por quê e como mudar isso</translation>
    </message>
    <message>
        <source>You may not use the drive “%1”.</source>
        <translation>Você não tem permissão para usar a unidade “%1”.</translation>
    </message>
    <message>
        <source>Why…</source>
        <translation>Por quê…</translation>
    </message>
</context>
<context>
    <name>DriveNotice</name>
    <message>
        <source>Close this notice</source>
        <translation>Fechar este aviso</translation>
    </message>
</context>
<context>
    <name>FolderStaging</name>
    <message>
        <source>is the folder in which the disc is gathered, and is left out</source>
        <translation>é a pasta em que o disco é reunido, e foi omitida</translation>
    </message>
    <message>
        <source>is no file, folder or link, and is left out</source>
        <translation>não é arquivo, pasta nem link, e foi omitido</translation>
    </message>
    <message>
        <source>its copy was moved while it was being made</source>
        <translation>a cópia foi movida enquanto era feita</translation>
    </message>
    <message>
        <source>has no name under which it could be copied</source>
        <translation>não tem nome com que possa ser copiado</translation>
    </message>
    <message>
        <source>was moved while it was being copied</source>
        <translation>foi movido enquanto era copiado</translation>
    </message>
</context>
<context>
    <name>FolderTree</name>
    <message>
        <source>was moved while it was being emptied</source>
        <translation>foi movido enquanto era esvaziado</translation>
    </message>
</context>
<context>
    <name>Gauge</name>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too large by %4</source>
        <translation>Espaço ocupado: %1 de %2 (%3%), %4 a mais</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), too long by %4</source>
        <translation>Espaço ocupado: %1 de %2 (%3%), %4 longo demais</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %), nearly full</source>
        <translation>Espaço ocupado: %1 de %2 (%3%), quase cheio</translation>
    </message>
    <message>
        <source>Space occupied: %1 of %2 (%3 %)</source>
        <translation>Espaço ocupado: %1 de %2 (%3%)</translation>
    </message>
</context>
<context>
    <name>ListFile</name>
    <message>
        <source>It is damaged, or no list of Corvalis: %1.</source>
        <translation>Está danificada ou não é uma lista do Corvalis: %1.</translation>
    </message>
    <message>
        <source>entry %1 has no full path</source>
        <translation>o item %1 não tem caminho completo</translation>
    </message>
    <message>
        <source>entry %1 has characters that no name can have</source>
        <translation>o item %1 tem caracteres que nenhum nome pode ter</translation>
    </message>
    <message>
        <source>the relative path of entry %1 is none</source>
        <translation>o caminho relativo do item %1 não é relativo</translation>
    </message>
    <message>
        <source>It has %1 entries, and a list may have %2.</source>
        <translation>Ela tem %1 itens, e uma lista pode ter %2.</translation>
    </message>
    <message>
        <source>%1 at byte %2</source>
        <translation>%1 no byte %2</translation>
    </message>
    <message>
        <source>it does not say what it is</source>
        <translation>ela não diz o que é</translation>
    </message>
    <message>
        <source>It was saved by a newer version of Corvalis. Bring this one up to date to open it.</source>
        <translation>Ela foi salva por uma versão mais nova do Corvalis. Atualize esta para abri-la.</translation>
    </message>
    <message>
        <source>the kind or the entries are missing</source>
        <translation>faltam o tipo ou os itens</translation>
    </message>
    <message>
        <source>There is no such file any more.</source>
        <translation>Este arquivo não existe mais.</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Não é um arquivo.</translation>
    </message>
    <message>
        <source>It is far too large for a list.</source>
        <translation>É grande demais para uma lista.</translation>
    </message>
</context>
<context>
    <name>ListTableModel</name>
    <message>
        <source>not measured</source>
        <translation>não medido</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Caminho</translation>
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
            <numerusform>%Ln linha</numerusform>
            <numerusform>%Ln linhas</numerusform>
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
        <translation>Tipos de disco e ferramentas</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Add Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>Add music files to the list (Ctrl+O)</source>
        <translation>Adicionar arquivos de música à lista (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Add the music files that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Adicionar os arquivos de música que estão diretamente em uma pasta (Ctrl+Shift+O)</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Take the selected rows off the list (Del)</source>
        <translation>Remover da lista as linhas selecionadas (Del)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Empty the list (Ctrl+Shift+Del)</source>
        <translation>Esvaziar a lista (Ctrl+Shift+Del)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Play the selected file (Ctrl+P)</source>
        <translation>Reproduzir o arquivo selecionado (Ctrl+P)</translation>
    </message>
    <message>
        <source>New Disc</source>
        <translation>Novo disco</translation>
    </message>
    <message>
        <source>Choose another kind of disc and begin with an empty list (Ctrl+N)</source>
        <translation>Escolher outro tipo de disco e começar com uma lista vazia (Ctrl+N)</translation>
    </message>
    <message>
        <source>Copy Disc</source>
        <translation>Copiar disco</translation>
    </message>
    <message>
        <source>Copy a disc onto a blank one with this drive (Ctrl+D)</source>
        <translation>Copiar um disco para um virgem com esta unidade (Ctrl+D)</translation>
    </message>
    <message>
        <source>Audio CD</source>
        <translation>CD de áudio</translation>
    </message>
    <message>
        <source>A disc for every CD player: 74 minutes of sound (Alt+1)</source>
        <translation>Um disco para qualquer tocador de CD: 74 minutos de som (Alt+1)</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>CD de MP3</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours (Alt+2)</source>
        <translation>Arquivos MP3 em um CD: nove horas e meia (Alt+2)</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>DVD de MP3</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours (Alt+3)</source>
        <translation>Arquivos MP3 em um DVD: 38 horas (Alt+3)</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Arquivos de áudio</translation>
    </message>
    <message>
        <source>Add music with “Add Files”, or drop it here.
The order of the list is the order on the disc.</source>
        <translation>Adicione música com “Arquivos” ou solte-a aqui.
A ordem da lista é a ordem no disco.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Add video clips to the list (Ctrl+O)</source>
        <translation>Adicionar clipes de vídeo à lista (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add the video clips that lie directly in a folder (Ctrl+Shift+O)</source>
        <translation>Adicionar os clipes de vídeo que estão diretamente em uma pasta (Ctrl+Shift+O)</translation>
    </message>
    <message>
        <source>Video Settings</source>
        <translation>Ajustes de vídeo</translation>
    </message>
    <message>
        <source>Choose the TV standard and the audio format of video discs (Ctrl+,)</source>
        <translation>Escolher o padrão de TV e o formato de áudio dos discos de vídeo (Ctrl+,)</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD de vídeo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a DVD: 2 and a half hours (Alt+1)</source>
        <translation>Clipes MPEG-2 em um DVD: duas horas e meia (Alt+1)</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Blu-ray de vídeo</translation>
    </message>
    <message>
        <source>Video files</source>
        <translation>Arquivos de vídeo</translation>
    </message>
    <message>
        <source>Add clips with “Add Files”, or drop them here.</source>
        <translation>Adicione clipes com “Arquivos” ou solte-os aqui.</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Add single files to the list (Ctrl+Shift+F)</source>
        <translation>Adicionar arquivos avulsos à lista (Ctrl+Shift+F)</translation>
    </message>
    <message>
        <source>Add a folder to the list (Ctrl+O)</source>
        <translation>Adicionar uma pasta à lista (Ctrl+O)</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de dados</translation>
    </message>
    <message>
        <source>Folders on a CD: 667 MB (Alt+1)</source>
        <translation>Pastas em um CD: 667 MB (Alt+1)</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>DVD de dados</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB (Alt+2)</source>
        <translation>Pastas em um DVD: 4,7 GB (Alt+2)</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Blu-ray de dados</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB (Alt+3)</source>
        <translation>Pastas em um disco Blu-ray: 25 GB (Alt+3)</translation>
    </message>
    <message>
        <source>Data folders</source>
        <translation>Pastas de dados</translation>
    </message>
    <message>
        <source>ISO</source>
        <translation>ISO</translation>
    </message>
    <message>
        <source>Make an ISO Image</source>
        <translation>Criar uma imagem ISO</translation>
    </message>
    <message>
        <source>Choose a folder and where its image is saved (Ctrl+M)</source>
        <translation>Escolher uma pasta e onde salvar a imagem dela (Ctrl+M)</translation>
    </message>
    <message>
        <source>Turn a folder into an image file that can be kept, sent and written later.</source>
        <translation>Transforme uma pasta em um arquivo de imagem que pode ser guardado, enviado e gravado depois.</translation>
    </message>
    <message>
        <source>Write an ISO Image</source>
        <translation>Gravar uma imagem ISO</translation>
    </message>
    <message>
        <source>Choose an image file and write it (Ctrl+Shift+B)</source>
        <translation>Escolher um arquivo de imagem e gravá-lo (Ctrl+Shift+B)</translation>
    </message>
    <message>
        <source>Write an .iso, .img or .dmg file to the disc in the drive.</source>
        <translation>Grave um arquivo .iso, .img ou .dmg no disco que está na unidade.</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Erase Disc</source>
        <translation>Apagar disco</translation>
    </message>
    <message>
        <source>Erase the rewritable disc in the drive</source>
        <translation>Apagar o disco regravável que está na unidade</translation>
    </message>
    <message>
        <source>Destroys everything on the rewritable disc in the drive. It does not ask again.</source>
        <translation>Destrói tudo no disco regravável que está na unidade. Não pergunta outra vez.</translation>
    </message>
    <message>
        <source>Disc Information</source>
        <translation>Informações do disco</translation>
    </message>
    <message>
        <source>Show the state of the disc (Ctrl+I)</source>
        <translation>Mostrar o estado do disco (Ctrl+I)</translation>
    </message>
    <message>
        <source>Shows what kind of disc is in the drive, how full it is and whether it can be written.</source>
        <translation>Mostra que tipo de disco está na unidade, quanto está ocupado e se pode ser gravado.</translation>
    </message>
    <message>
        <source>Eject Disc</source>
        <translation>Ejetar disco</translation>
    </message>
    <message>
        <source>Open the tray (Ctrl+E)</source>
        <translation>Abrir a bandeja (Ctrl+E)</translation>
    </message>
    <message>
        <source>Opens the tray of the selected drive.</source>
        <translation>Abre a bandeja da unidade escolhida.</translation>
    </message>
    <message>
        <source>Load Disc</source>
        <translation>Carregar disco</translation>
    </message>
    <message>
        <source>Close the tray (Ctrl+Shift+E)</source>
        <translation>Fechar a bandeja (Ctrl+Shift+E)</translation>
    </message>
    <message>
        <source>Closes the tray of the selected drive.</source>
        <translation>Fecha a bandeja da unidade escolhida.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Choose the colours of this window (Ctrl+Shift+C)</source>
        <translation>Escolher as cores desta janela (Ctrl+Shift+C)</translation>
    </message>
    <message>
        <source>Choose the colours of this window and its lists.</source>
        <translation>Escolha as cores desta janela e de suas listas.</translation>
    </message>
    <message>
        <source>Activity Log</source>
        <translation>Registro de atividades</translation>
    </message>
    <message>
        <source>Show what was run and how it ended (Ctrl+L)</source>
        <translation>Mostrar o que foi executado e como terminou (Ctrl+L)</translation>
    </message>
    <message>
        <source>Every command that was run, with all that it said.</source>
        <translation>Cada comando executado, com tudo o que ele exibiu.</translation>
    </message>
    <message>
        <source>Space occupied</source>
        <translation>Espaço ocupado</translation>
    </message>
    <message>
        <source>Space occupied on the disc</source>
        <translation>Espaço ocupado no disco</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Gravar CD de áudio</translation>
    </message>
    <message>
        <source>Write the list to the disc in the drive (Ctrl+B)</source>
        <translation>Gravar a lista no disco que está na unidade (Ctrl+B)</translation>
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
        <translation>Abrir &amp;recente</translation>
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
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>D&amp;rive</source>
        <translation>&amp;Unidade</translation>
    </message>
    <message>
        <source>&amp;Insert Blank Disc</source>
        <translation>&amp;Inserir disco virgem</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Ferramentas</translation>
    </message>
    <message>
        <source>&amp;Erase Disc</source>
        <translation>&amp;Apagar disco</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;New Disc…</source>
        <translation>&amp;Novo disco…</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Sa&amp;ve As…</source>
        <translation>Salvar co&amp;mo…</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Find &amp;Missing Files…</source>
        <translation>Procurar arquivos que &amp;faltam…</translation>
    </message>
    <message>
        <source>Add F&amp;iles…</source>
        <translation>Adicionar arq&amp;uivos…</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Adicionar arquivos…</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>Adicionar &amp;pasta…</translation>
    </message>
    <message>
        <source>&amp;Copy Disc…</source>
        <translation>&amp;Copiar disco…</translation>
    </message>
    <message>
        <source>&amp;Burn</source>
        <translation>&amp;Gravar</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sa&amp;ir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Duration</source>
        <translation>&amp;Duração</translation>
    </message>
    <message>
        <source>&amp;Size</source>
        <translation>&amp;Tamanho</translation>
    </message>
    <message>
        <source>&amp;Path</source>
        <translation>&amp;Caminho</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Re&amp;mover</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Limpar a lista</translation>
    </message>
    <message>
        <source>Select A&amp;ll</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>&amp;Play</source>
        <translation>Re&amp;produzir</translation>
    </message>
    <message>
        <source>&amp;Video Settings…</source>
        <translation>Ajustes de &amp;vídeo…</translation>
    </message>
    <message>
        <source>&amp;Audio</source>
        <translation>&amp;Áudio</translation>
    </message>
    <message>
        <source>&amp;Video</source>
        <translation>&amp;Vídeo</translation>
    </message>
    <message>
        <source>&amp;Data</source>
        <translation>&amp;Dados</translation>
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
        <translation>Nenhuma unidade encontrada</translation>
    </message>
    <message>
        <source>Drive 2</source>
        <translation>Unidade 2</translation>
    </message>
    <message>
        <source>Drive 3</source>
        <translation>Unidade 3</translation>
    </message>
    <message>
        <source>Drive 4</source>
        <translation>Unidade 4</translation>
    </message>
    <message>
        <source>Drive 5</source>
        <translation>Unidade 5</translation>
    </message>
    <message>
        <source>Drive 6</source>
        <translation>Unidade 6</translation>
    </message>
    <message>
        <source>&amp;Remove Disc</source>
        <translation>&amp;Retirar o disco</translation>
    </message>
    <message>
        <source>Show &amp;Written Discs</source>
        <translation>Mostrar os discos &amp;gravados</translation>
    </message>
    <message>
        <source>Erase &amp;Completely: overwrite everything on the disc</source>
        <translation>Apagar por &amp;completo: sobrescrever tudo no disco</translation>
    </message>
    <message>
        <source>Erase &amp;Quickly: make everything on the disc unreachable</source>
        <translation>Apagar &amp;rapidamente: tornar inacessível tudo no disco</translation>
    </message>
    <message>
        <source>&amp;Make an ISO Image…</source>
        <translation>&amp;Criar uma imagem ISO…</translation>
    </message>
    <message>
        <source>&amp;Write an ISO Image…</source>
        <translation>&amp;Gravar uma imagem ISO…</translation>
    </message>
    <message>
        <source>E&amp;ject Disc</source>
        <translation>&amp;Ejetar disco</translation>
    </message>
    <message>
        <source>&amp;Load Disc</source>
        <translation>Ca&amp;rregar disco</translation>
    </message>
    <message>
        <source>Disc &amp;Information</source>
        <translation>&amp;Informações do disco</translation>
    </message>
    <message>
        <source>C&amp;olours…</source>
        <translation>C&amp;ores…</translation>
    </message>
    <message>
        <source>&amp;Activity Log</source>
        <translation>Registro de ati&amp;vidades</translation>
    </message>
    <message>
        <source>Corvalis &amp;Home Page</source>
        <translation>&amp;Página do Corvalis</translation>
    </message>
    <message>
        <source>&amp;Makers’ Home Page</source>
        <translation>Página do &amp;fabricante</translation>
    </message>
    <message>
        <source>As&amp;k for Support</source>
        <translation>Pedir s&amp;uporte</translation>
    </message>
    <message>
        <source>&amp;Privacy Policy</source>
        <translation>Política de pri&amp;vacidade</translation>
    </message>
    <message>
        <source>&amp;Debug Mode</source>
        <translation>Modo de &amp;depuração</translation>
    </message>
    <message>
        <source>&amp;About Corvalis</source>
        <translation>&amp;Sobre o Corvalis</translation>
    </message>
    <message>
        <source>Add folders and files with the buttons above, or drop them here.</source>
        <translation>Adicione pastas e arquivos com os botões acima ou solte-os aqui.</translation>
    </message>
    <message>
        <source>User &amp;Guide</source>
        <translation>&amp;Guia do usuário</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc, as files for computers and for players that play files: 23 hours (Alt+2)</source>
        <translation>Clipes MPEG-2 em um disco Blu-ray, como arquivos para computadores e aparelhos que reproduzem arquivos: 23 horas (Alt+2)</translation>
    </message>
    <message>
        <source>Add O&amp;ther Files…</source>
        <translation>Adicionar &amp;outros arquivos…</translation>
    </message>
    <message>
        <source>Add files of any ending with sound, or with a film, in them, and playlists</source>
        <translation>Adicionar arquivos de qualquer extensão com som ou um filme e listas de reprodução</translation>
    </message>
    <message>
        <source>&amp;Write Titles on Audio CDs</source>
        <translation>Gra&amp;var títulos nos CDs de áudio</translation>
    </message>
    <message>
        <source>Audio CDs get the titles and performers of their tracks as CD-TEXT</source>
        <translation>Os CDs de áudio recebem os títulos e intérpretes de suas faixas como CD-TEXT</translation>
    </message>
    <message>
        <source>&amp;Edit Title</source>
        <translation>&amp;Editar título</translation>
    </message>
    <message>
        <source>Type another title for the row; Tab goes on to the performer</source>
        <translation>Digitar outro título para a linha; Tab passa para o intérprete</translation>
    </message>
    <message>
        <source>Title and &amp;Performer</source>
        <translation>Título e inté&amp;rprete</translation>
    </message>
    <message>
        <source>Show the titles and performers of audio files on the list</source>
        <translation>Mostrar na lista os títulos e intérpretes dos arquivos de áudio</translation>
    </message>
    <message>
        <source>Writing &amp;Speed</source>
        <translation>&amp;Velocidade de gravação</translation>
    </message>
    <message>
        <source>&amp;Look for Drives</source>
        <translation>&amp;Procurar unidades</translation>
    </message>
    <message>
        <source>Ask which drives there are now</source>
        <translation>Ver que unidades há agora</translation>
    </message>
</context>
<context>
    <name>Measuring</name>
    <message>
        <source>There is no such file any more.</source>
        <translation>Este arquivo não existe mais.</translation>
    </message>
    <message>
        <source>You have no permission to read this file.</source>
        <translation>Você não tem permissão para ler este arquivo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>What the file says of itself is not valid UTF-8 text.</source>
        <translation>O que o arquivo diz de si mesmo não é texto UTF-8 válido.</translation>
    </message>
    <message>
        <source>The file does not say how long it is.</source>
        <translation>O arquivo não diz quanto tempo dura.</translation>
    </message>
    <message>
        <source>The file cannot be read as sound or film: %1.</source>
        <translation>O arquivo não pode ser lido como som nem como filme: %1.</translation>
    </message>
</context>
<context>
    <name>MediaPlayer</name>
    <message>
        <source>The file is not there.</source>
        <translation>O arquivo não está lá.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Isto não é um arquivo.</translation>
    </message>
    <message>
        <source>You have no permission to read the file.</source>
        <translation>Você não tem permissão para ler o arquivo.</translation>
    </message>
    <message>
        <source>The media library could not be started.</source>
        <translation>Não foi possível iniciar a biblioteca de mídia.</translation>
    </message>
    <message>
        <source>The file could not be opened.</source>
        <translation>Não foi possível abrir o arquivo.</translation>
    </message>
</context>
<context>
    <name>NameColumns</name>
    <message>
        <source>Return keeps what was typed, Escape what was there before</source>
        <translation>Enter mantém o que foi digitado, Esc o que havia antes</translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>e mais %Ln</numerusform>
            <numerusform>e mais %Ln</numerusform>
        </translation>
    </message>
    <message>
        <source>Operation complete</source>
        <translation>Operação concluída</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Interrompido</translation>
    </message>
    <message>
        <source>The disc was written, but some things are not on it</source>
        <translation>O disco foi gravado, mas faltam algumas coisas nele</translation>
    </message>
    <message>
        <source>The image was made, but some things are not in it</source>
        <translation>A imagem foi criada, mas faltam algumas coisas nela</translation>
    </message>
    <message>
        <source>The disc was erased, but not everything went well</source>
        <translation>O disco foi apagado, mas nem tudo correu bem</translation>
    </message>
    <message>
        <source>The disc was not written</source>
        <translation>O disco não foi gravado</translation>
    </message>
    <message>
        <source>The image was not made</source>
        <translation>A imagem não foi criada</translation>
    </message>
    <message>
        <source>The disc was not erased</source>
        <translation>O disco não foi apagado</translation>
    </message>
</context>
<context>
    <name>PreviewPlayer</name>
    <message>
        <source>The preview player is not installed completely: %1. Install Corvalis again together with its preview player.</source>
        <translation>O reprodutor de prévias não está instalado por completo: %1. Instale o Corvalis novamente junto com o reprodutor.</translation>
    </message>
</context>
<context>
    <name>ProjectType</name>
    <message>
        <source>Audio CD</source>
        <translation>CD de áudio</translation>
    </message>
    <message>
        <source>Burn Audio CD</source>
        <translation>Gravar CD de áudio</translation>
    </message>
    <message>
        <source>MP3 CD</source>
        <translation>CD de MP3</translation>
    </message>
    <message>
        <source>Burn MP3 CD</source>
        <translation>Gravar CD de MP3</translation>
    </message>
    <message>
        <source>MP3 DVD</source>
        <translation>DVD de MP3</translation>
    </message>
    <message>
        <source>Burn MP3 DVD</source>
        <translation>Gravar DVD de MP3</translation>
    </message>
    <message>
        <source>Video DVD</source>
        <translation>DVD de vídeo</translation>
    </message>
    <message>
        <source>Burn Video DVD</source>
        <translation>Gravar DVD de vídeo</translation>
    </message>
    <message>
        <source>Video Blu-ray</source>
        <translation>Blu-ray de vídeo</translation>
    </message>
    <message>
        <source>Burn Video Blu-ray</source>
        <translation>Gravar Blu-ray de vídeo</translation>
    </message>
    <message>
        <source>Data CD</source>
        <translation>CD de dados</translation>
    </message>
    <message>
        <source>Burn Data CD</source>
        <translation>Gravar CD de dados</translation>
    </message>
    <message>
        <source>Data DVD</source>
        <translation>DVD de dados</translation>
    </message>
    <message>
        <source>Burn Data DVD</source>
        <translation>Gravar DVD de dados</translation>
    </message>
    <message>
        <source>Data Blu-ray</source>
        <translation>Blu-ray de dados</translation>
    </message>
    <message>
        <source>Burn Data Blu-ray</source>
        <translation>Gravar Blu-ray de dados</translation>
    </message>
</context>
<context>
    <name>Questions</name>
    <message>
        <source>Some files cannot be used</source>
        <translation>Alguns arquivos não podem ser usados</translation>
    </message>
    <message>
        <source>Only files with these extensions can: .%1</source>
        <translation>Somente arquivos com estas extensões podem ser usados: .%1</translation>
    </message>
    <message>
        <source>Their names are not valid UTF-8 text. Rename them and try again.</source>
        <translation>Os nomes deles não são texto UTF-8 válido. Renomeie-os e tente novamente.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>SpaceOccupiedView</name>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>SpeedMenu</name>
    <message>
        <source>&amp;Fastest</source>
        <translation>A mais &amp;rápida</translation>
    </message>
    <message>
        <source>%1×</source>
        <comment>a factor of the speed, as in 16×</comment>
        <translation>%1×</translation>
    </message>
    <message>
        <source>The drive does not answer</source>
        <translation>A unidade não responde</translation>
    </message>
    <message>
        <source>The drive is being asked…</source>
        <translation>Consultando a unidade…</translation>
    </message>
    <message>
        <source>There is no disc in the drive</source>
        <translation>Não há disco na unidade</translation>
    </message>
    <message>
        <source>The drive names no speeds for its disc</source>
        <translation>A unidade não informa velocidades para o seu disco</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Working</source>
        <translation>Trabalhando</translation>
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
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>StopBar</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Stop &amp;Now</source>
        <translation>Parar &amp;agora</translation>
    </message>
    <message>
        <source>Asks before it stops (Escape)</source>
        <translation>Pergunta antes de parar (Esc)</translation>
    </message>
    <message>
        <source>Takes the question back; the work has gone on meanwhile (Escape)</source>
        <translation>Retira a pergunta; o trabalho continuou enquanto isso (Esc)</translation>
    </message>
    <message>
        <source>Ends the work at once</source>
        <translation>Encerra o trabalho imediatamente</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Parando…</translation>
    </message>
    <message>
        <source>Stop now?</source>
        <translation>Parar agora?</translation>
    </message>
</context>
<context>
    <name>Surface</name>
    <message>
        <source>corvalis: there is no display for the window. Start it on a desktop, or use --burn, which needs none.</source>
        <translation>corvalis: não há tela para a janela. Inicie-o em uma área de trabalho ou use --burn, que não precisa de nenhuma.</translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message>
        <source>Less than a minute left</source>
        <translation>Falta menos de um minuto</translation>
    </message>
    <message>
        <source>About a minute left</source>
        <translation>Falta cerca de um minuto</translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>Falta cerca de %n minuto</numerusform>
            <numerusform>Faltam cerca de %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>Falta cerca de %n hora</numerusform>
            <numerusform>Faltam cerca de %n horas</numerusform>
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
        <translation>O arquivo convertido não está completo</translation>
    </message>
</context>
<context>
    <name>Window_Activity_Log</name>
    <message>
        <source>Activity Log</source>
        <translation>Registro de atividades</translation>
    </message>
    <message>
        <source>Commands that were run</source>
        <translation>Comandos executados</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>How it ended</source>
        <translation>Como terminou</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message>
        <source>What the command said</source>
        <translation>O que o comando exibiu</translation>
    </message>
    <message>
        <source>Choose a command to see what it said.</source>
        <translation>Escolha um comando para ver o que ele exibiu.</translation>
    </message>
    <message>
        <source>Everything that was run since the program started.</source>
        <translation>Tudo o que foi executado desde o início do programa.</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy the selected entries, or the whole log</source>
        <translation>Copiar os itens selecionados ou todo o registro</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Salvar…</translation>
    </message>
    <message>
        <source>Save the whole log as a text file</source>
        <translation>Salvar todo o registro em um arquivo de texto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>is running</source>
        <translation>em andamento</translation>
    </message>
    <message>
        <source>Save the activity log</source>
        <translation>Salvar o registro de atividades</translation>
    </message>
    <message>
        <source>The log could not be saved</source>
        <translation>Não foi possível salvar o registro</translation>
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
        <translation>Erro</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
</context>
<context>
    <name>Window_Colors</name>
    <message>
        <source>Which colours should the window have?</source>
        <translation>Que cores a janela deve ter?</translation>
    </message>
    <message>
        <source>List &amp;background</source>
        <translation>&amp;Fundo das listas</translation>
    </message>
    <message>
        <source>List background</source>
        <translation>Fundo das listas</translation>
    </message>
    <message>
        <source>List te&amp;xt</source>
        <translation>&amp;Texto das listas</translation>
    </message>
    <message>
        <source>List text</source>
        <translation>Texto das listas</translation>
    </message>
    <message>
        <source>&amp;Toolbars</source>
        <translation>&amp;Barras de ferramentas</translation>
    </message>
    <message>
        <source>Toolbars</source>
        <translation>Barras de ferramentas</translation>
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
        <translation>&amp;Espaço ocupado</translation>
    </message>
    <message>
        <source>Occupied space</source>
        <translation>Espaço ocupado</translation>
    </message>
    <message>
        <source>A&amp;lternate the colours of the rows</source>
        <translation>A&amp;lternar as cores das linhas</translation>
    </message>
    <message>
        <source>Make every other row of the lists a little lighter or darker</source>
        <translation>Deixar cada segunda linha das listas um pouco mais clara ou mais escura</translation>
    </message>
    <message>
        <source>While the rows alternate, the lists are white on a light desktop and black on a dark one.</source>
        <translation>Enquanto as linhas se alternam, as listas são brancas em uma área de trabalho clara e pretas em uma escura.</translation>
    </message>
    <message>
        <source>Use these colours</source>
        <translation>Usar estas cores</translation>
    </message>
    <message>
        <source>Close and leave the window as it is (Escape)</source>
        <translation>Fechar e deixar a janela como está (Esc)</translation>
    </message>
    <message>
        <source>Original Colo&amp;urs</source>
        <translation>Cores &amp;originais</translation>
    </message>
    <message>
        <source>Bring back the colours that Corvalis came with, and keep them even if you cancel</source>
        <translation>Trazer de volta as cores com que o Corvalis veio e mantê-las mesmo se você cancelar</translation>
    </message>
</context>
<context>
    <name>Window_Data_Copy_Folders</name>
    <message>
        <source>Working</source>
        <translation>Trabalhando</translation>
    </message>
    <message>
        <source>Copying the folders</source>
        <translation>Copiando as pastas</translation>
    </message>
    <message>
        <source>They are gathered in one place before the disc is written. This takes a minute or more for each folder.</source>
        <translation>Elas são reunidas em um só lugar antes de o disco ser gravado. Isso leva um minuto ou mais para cada pasta.</translation>
    </message>
    <message>
        <source>%1 (%2 of %3)</source>
        <translation>%1 (%2 de %3)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2)</source>
        <translation>Arquivos copiados: %1 (%2)</translation>
    </message>
    <message>
        <source>Files copied: %1 (%2 of %3)</source>
        <translation>Arquivos copiados: %1 (%2 de %3)</translation>
    </message>
</context>
<context>
    <name>Window_New_Disc</name>
    <message>
        <source>What kind of disc do you want to make?</source>
        <translation>Que tipo de disco você quer fazer?</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>&amp;Audio CD</source>
        <translation>CD de &amp;áudio</translation>
    </message>
    <message>
        <source>Plays in every CD player: 74 minutes</source>
        <translation>Toca em qualquer tocador de CD: 74 minutos</translation>
    </message>
    <message>
        <source>&amp;MP3 CD</source>
        <translation>CD de &amp;MP3</translation>
    </message>
    <message>
        <source>MP3 files on a CD: 9 and a half hours</source>
        <translation>Arquivos MP3 em um CD: nove horas e meia</translation>
    </message>
    <message>
        <source>MP&amp;3 DVD</source>
        <translation>DVD de MP&amp;3</translation>
    </message>
    <message>
        <source>MP3 files on a DVD: 38 hours</source>
        <translation>Arquivos MP3 em um DVD: 38 horas</translation>
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
        <translation>Clipes MPEG-2 em um DVD: duas horas e meia</translation>
    </message>
    <message>
        <source>Vid&amp;eo Blu-ray</source>
        <translation>Blu-ray de víd&amp;eo</translation>
    </message>
    <message>
        <source>MPEG-2 clips on a Blu-ray disc: 23 hours</source>
        <translation>Clipes MPEG-2 em um disco Blu-ray: 23 horas</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Data &amp;CD</source>
        <translation>&amp;CD de dados</translation>
    </message>
    <message>
        <source>Folders on a CD: 700 MB</source>
        <translation>Pastas em um CD: 700 MB</translation>
    </message>
    <message>
        <source>&amp;Data DVD</source>
        <translation>&amp;DVD de dados</translation>
    </message>
    <message>
        <source>Folders on a DVD: 4.7 GB</source>
        <translation>Pastas em um DVD: 4,7 GB</translation>
    </message>
    <message>
        <source>Data &amp;Blu-ray</source>
        <translation>&amp;Blu-ray de dados</translation>
    </message>
    <message>
        <source>Folders on a Blu-ray disc: 25 GB</source>
        <translation>Pastas em um disco Blu-ray: 25 GB</translation>
    </message>
    <message>
        <source>OK empties the list.</source>
        <translation>OK esvazia a lista.</translation>
    </message>
</context>
<context>
    <name>Window_Open_Panel</name>
    <message>
        <source>Accepted files (%1)</source>
        <translation>Arquivos aceitos (%1)</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Escolher</translation>
    </message>
    <message numerus="yes">
        <source>%n folder(s) cannot be shown here: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n pasta não pode ser mostrada aqui: o nome dela não é texto UTF-8 válido. Renomeie-a para escolhê-la.</numerusform>
            <numerusform>%n pastas não podem ser mostradas aqui: os nomes delas não são texto UTF-8 válido. Renomeie-as para escolhê-las.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n arquivo desta pasta não pode ser mostrado: o nome dele não é texto UTF-8 válido. Renomeie-o para escolhê-lo.</numerusform>
            <numerusform>%n arquivos desta pasta não podem ser mostrados: os nomes deles não são texto UTF-8 válido. Renomeie-os para escolhê-los.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Window_Operation_Terminated</name>
    <message>
        <source>Operation complete</source>
        <translation>Operação concluída</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Mostrar na pasta</translation>
    </message>
    <message>
        <source>Activity Log…</source>
        <translation>Registro de atividades…</translation>
    </message>
    <message>
        <source>Show in its folder what was made</source>
        <translation>Mostrar na pasta o que foi feito</translation>
    </message>
    <message>
        <source>Show the command that decided, and all it said</source>
        <translation>Mostrar o comando decisivo e tudo o que ele exibiu</translation>
    </message>
    <message>
        <source>&amp;Eject</source>
        <translation>&amp;Ejetar</translation>
    </message>
    <message>
        <source>Open the tray of the drive</source>
        <translation>Abrir a bandeja da unidade</translation>
    </message>
    <message>
        <source>&amp;Burn Another</source>
        <translation>&amp;Gravar outro</translation>
    </message>
    <message>
        <source>Do the same once more, with the disc that is in the drive then</source>
        <translation>Fazer o mesmo outra vez, com o disco que então estiver na unidade</translation>
    </message>
</context>
<context>
    <name>Window_Performing_Operation</name>
    <message>
        <source>Working</source>
        <translation>Trabalhando</translation>
    </message>
    <message>
        <source>This can take several minutes. Please leave the disc in the drive.</source>
        <translation>Isso pode levar vários minutos. Deixe o disco na unidade, por favor.</translation>
    </message>
    <message>
        <source>Progress of the disc</source>
        <translation>Progresso do disco</translation>
    </message>
    <message>
        <source>Making the image</source>
        <translation>Criando a imagem</translation>
    </message>
    <message>
        <source>This can take several minutes.</source>
        <translation>Isso pode levar vários minutos.</translation>
    </message>
    <message>
        <source>Erasing the disc</source>
        <translation>Apagando o disco</translation>
    </message>
    <message>
        <source>Writing the disc</source>
        <translation>Gravando o disco</translation>
    </message>
    <message>
        <source>Making the titles and chapters</source>
        <translation>Criando os títulos e capítulos</translation>
    </message>
</context>
<context>
    <name>Window_Progress</name>
    <message>
        <source>Preparing the files</source>
        <translation>Preparando os arquivos</translation>
    </message>
    <message>
        <source>Each file is converted to the format of the disc. Then the disc is written.</source>
        <translation>Cada arquivo é convertido para o formato do disco. Depois o disco é gravado.</translation>
    </message>
    <message>
        <source>This file</source>
        <translation>Este arquivo</translation>
    </message>
    <message>
        <source>Progress of this file</source>
        <translation>Progresso deste arquivo</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message>
        <source>Progress of all files</source>
        <translation>Progresso de todos os arquivos</translation>
    </message>
</context>
<context>
    <name>Window_Unique_Progress</name>
    <message>
        <source>Adding files</source>
        <translation>Adicionando arquivos</translation>
    </message>
    <message>
        <source>The running time of each file is measured.</source>
        <translation>A duração de cada arquivo é medida.</translation>
    </message>
    <message>
        <source>Files measured so far</source>
        <translation>Arquivos medidos até agora</translation>
    </message>
    <message>
        <source>The files that were measured so far are added to the list.</source>
        <translation>Os arquivos medidos até agora são adicionados à lista.</translation>
    </message>
</context>
<context>
    <name>Window_Video_Settings</name>
    <message>
        <source>How are clips converted for video discs?</source>
        <translation>Como os clipes são convertidos para discos de vídeo?</translation>
    </message>
    <message>
        <source>TV standard</source>
        <translation>Padrão de TV</translation>
    </message>
    <message>
        <source>&amp;NTSC (720 × 480, 29.97 frames per second)</source>
        <translation>&amp;NTSC (720 × 480, 29,97 quadros por segundo)</translation>
    </message>
    <message>
        <source>For players in North America, Japan and parts of South America</source>
        <translation>Para aparelhos da América do Norte, do Japão e de parte da América do Sul</translation>
    </message>
    <message>
        <source>&amp;PAL (720 × 576, 25 frames per second)</source>
        <translation>&amp;PAL (720 × 576, 25 quadros por segundo)</translation>
    </message>
    <message>
        <source>For players in Europe, Africa, Australia and most of Asia</source>
        <translation>Para aparelhos da Europa, da África, da Austrália e da maior parte da Ásia</translation>
    </message>
    <message>
        <source>Audio format</source>
        <translation>Formato de áudio</translation>
    </message>
    <message>
        <source>&amp;Dolby Digital (AC-3)</source>
        <translation>&amp;Dolby Digital (AC-3)</translation>
    </message>
    <message>
        <source>&amp;MPEG-2 audio (MP2)</source>
        <translation>Áudio &amp;MPEG-2 (MP2)</translation>
    </message>
    <message>
        <source>&amp;For DVD players (titles and chapters)</source>
        <translation>Pa&amp;ra aparelhos de DVD (títulos e capítulos)</translation>
    </message>
    <message>
        <source>Video DVDs play in the player below a television, one clip after the other; without this, video discs hold files</source>
        <translation>Os DVDs de vídeo tocam no aparelho da TV, um clipe depois do outro; sem isto, os discos de vídeo contêm arquivos</translation>
    </message>
    <message>
        <source>Concerns Video DVDs. Video Blu-ray discs always hold files.</source>
        <translation>Vale para DVDs de vídeo. Discos Blu-ray de vídeo sempre contêm arquivos.</translation>
    </message>
</context>
<context>
    <name>desktop::JobPresence</name>
    <message>
        <source>A disc image is being made.</source>
        <translation>Uma imagem de disco está sendo criada.</translation>
    </message>
    <message>
        <source>A disc is being erased.</source>
        <translation>Um disco está sendo apagado.</translation>
    </message>
    <message>
        <source>A disc is being made.</source>
        <translation>Um disco está sendo criado.</translation>
    </message>
    <message>
        <source>%1 % – Corvalis</source>
        <translation>%1% – Corvalis</translation>
    </message>
    <message>
        <source>Show Corvalis</source>
        <translation>Mostrar o Corvalis</translation>
    </message>
</context>
<context>
    <name>desktop::Opening</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
    <message>
        <source>New Audio CD</source>
        <translation>Novo CD de áudio</translation>
    </message>
    <message>
        <source>New Data Disc</source>
        <translation>Novo disco de dados</translation>
    </message>
    <message>
        <source>Write an Image</source>
        <translation>Gravar uma imagem</translation>
    </message>
    <message>
        <source>Copy a Disc</source>
        <translation>Copiar um disco</translation>
    </message>
    <message>
        <source>Not everything can be opened</source>
        <translation>Nem tudo pode ser aberto</translation>
    </message>
    <message>
        <source>Files of this computer can be opened: music, films, folders, one disc image or one saved list.</source>
        <translation>Arquivos deste computador podem ser abertos: músicas, filmes, pastas, uma imagem de disco ou uma lista salva.</translation>
    </message>
    <message>
        <source>One disc image or one saved list can be opened at a time.</source>
        <translation>Só é possível abrir uma imagem de disco ou uma lista salva por vez.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n arquivo</numerusform>
            <numerusform>%n arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Opened when the job has ended: %1</source>
        <translation>Será aberto quando o trabalho terminar: %1</translation>
    </message>
    <message>
        <source>Opened when this is answered: %1</source>
        <translation>Será aberto quando isto for respondido: %1</translation>
    </message>
</context>
<context>
    <name>desktop::Window_Opened_Image</name>
    <message>
        <source>Write this image to the disc in the drive?</source>
        <translation>Gravar esta imagem no disco que está na unidade?</translation>
    </message>
    <message>
        <source>%1 in the folder %2</source>
        <translation>%1 na pasta %2</translation>
    </message>
    <message>
        <source>&amp;Write Image</source>
        <translation>&amp;Gravar imagem</translation>
    </message>
    <message>
        <source>Write Image</source>
        <translation>Gravar imagem</translation>
    </message>
    <message>
        <source>Look at the disc in the drive, and write the image to it</source>
        <translation>Examinar o disco que está na unidade e gravar nele a imagem</translation>
    </message>
</context>
<context>
    <name>runner::ToolRun</name>
    <message>
        <source>ended without an error</source>
        <translation>terminou sem erros</translation>
    </message>
    <message>
        <source>ended with status %1</source>
        <translation>terminou com o status %1</translation>
    </message>
    <message>
        <source>could not be started: %1</source>
        <translation>não pôde ser iniciado: %1</translation>
    </message>
    <message>
        <source>crashed (signal %1)</source>
        <translation>falhou (sinal %1)</translation>
    </message>
    <message>
        <source>was ended because it gave no answer in time</source>
        <translation>foi encerrado porque não respondeu a tempo</translation>
    </message>
    <message>
        <source>was stopped</source>
        <translation>foi interrompido</translation>
    </message>
    <message>
        <source>%1 ended without an error</source>
        <translation>%1 terminou sem erros</translation>
    </message>
    <message>
        <source>%1 ended with status %2</source>
        <translation>%1 terminou com o status %2</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 não pôde ser iniciado: %2</translation>
    </message>
    <message>
        <source>%1 crashed (signal %2)</source>
        <translation>%1 falhou (sinal %2)</translation>
    </message>
    <message>
        <source>%1 was ended because it gave no answer in time</source>
        <translation>%1 foi encerrado porque não respondeu a tempo</translation>
    </message>
    <message>
        <source>%1 was stopped</source>
        <translation>%1 foi interrompido</translation>
    </message>
    <message>
        <source>%1, as expected</source>
        <translation>%1, como esperado</translation>
    </message>
</context>
<context>
    <name>writing::Job</name>
    <message>
        <source>There was nothing left to write. The disc is as it was.</source>
        <translation>Não restava nada para gravar. O disco está como estava.</translation>
    </message>
    <message>
        <source>The disc is as it was.</source>
        <translation>O disco está como estava.</translation>
    </message>
    <message>
        <source>There is no usable image.</source>
        <translation>Não há imagem utilizável.</translation>
    </message>
    <message>
        <source>The disc has to be erased again before it can be used.</source>
        <translation>O disco precisa ser apagado novamente antes de poder ser usado.</translation>
    </message>
    <message>
        <source>The disc is written, but was not compared.</source>
        <translation>O disco está gravado, mas não foi comparado.</translation>
    </message>
    <message>
        <source>The disc is incomplete: erase it before you use it again.</source>
        <translation>O disco está incompleto: apague-o antes de usá-lo novamente.</translation>
    </message>
    <message>
        <source>The disc is incomplete and cannot be used any more.</source>
        <translation>O disco está incompleto e não pode mais ser usado.</translation>
    </message>
    <message>
        <source>What was converted so far is thrown away. The disc stays as it is.</source>
        <translation>O que foi convertido até agora é descartado. O disco fica como está.</translation>
    </message>
    <message>
        <source>What was copied so far is thrown away. The disc and your folders stay as they are.</source>
        <translation>O que foi copiado até agora é descartado. O disco e suas pastas ficam como estão.</translation>
    </message>
    <message>
        <source>The image made so far is deleted.</source>
        <translation>A imagem criada até agora é excluída.</translation>
    </message>
    <message>
        <source>Nothing is written yet. The disc stays as it is.</source>
        <translation>Nada foi gravado ainda. O disco fica como está.</translation>
    </message>
    <message>
        <source>The disc is written. It is not compared to the end.</source>
        <translation>O disco está gravado. Ele não é comparado até o fim.</translation>
    </message>
    <message>
        <source>What was written so far is lost. The disc has to be erased before it is used again.</source>
        <translation>O que foi gravado até agora se perde. O disco precisa ser apagado antes de ser usado novamente.</translation>
    </message>
    <message>
        <source>This disc is lost: it cannot be written a second time.</source>
        <translation>Este disco está perdido: ele não pode ser gravado uma segunda vez.</translation>
    </message>
    <message>
        <source>No image was made.</source>
        <translation>Nenhuma imagem foi criada.</translation>
    </message>
    <message>
        <source>Nothing was written. The disc is as it was.</source>
        <translation>Nada foi gravado. O disco está como estava.</translation>
    </message>
    <message>
        <source>the working folder</source>
        <translation>a pasta de trabalho</translation>
    </message>
    <message>
        <source>%1 could not make the titles: %2. The disc is as it was.</source>
        <translation>%1 não conseguiu criar os títulos: %2. O disco está como estava.</translation>
    </message>
</context>
</TS>
