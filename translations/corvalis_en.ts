<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en_GB">
<context>
    <name>ActivityLog</name>
    <message numerus="yes">
        <source>
(%n more bytes of output are not kept)
</source>
        <translation>
            <numerusform>
(%n more byte of output is not kept)
</numerusform>
            <numerusform>
(%n more bytes of output are not kept)
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AppDelegate</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) cannot be listed</source>
        <translation>
            <numerusform>%n file cannot be listed</numerusform>
            <numerusform>%n files cannot be listed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s)</source>
        <translation>
            <numerusform>%Ln file</numerusform>
            <numerusform>%Ln files</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln track(s)</source>
        <translation>
            <numerusform>%Ln track</numerusform>
            <numerusform>%Ln tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln files or folders did not fit where the disc is gathered.</source>
        <translation>
            <numerusform>%Ln file or folder did not fit where the disc is gathered.</numerusform>
            <numerusform>%Ln files or folders did not fit where the disc is gathered.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n entry(s) of the list cannot be found</source>
        <translation>
            <numerusform>%n entry of the list cannot be found</numerusform>
            <numerusform>%n entries of the list cannot be found</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>A DVD for players has room for 99 titles, and there are %Ln clip(s) on the list. Take some off and try again.</source>
        <translation>
            <numerusform>A DVD for players has room for 99 titles, and there is %Ln clip on the list. Take some off and try again.</numerusform>
            <numerusform>A DVD for players has room for 99 titles, and there are %Ln clips on the list. Take some off and try again.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln title(s)</source>
        <translation>
            <numerusform>%Ln title</numerusform>
            <numerusform>%Ln titles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ListTableView</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln row</numerusform>
            <numerusform>%Ln rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Outcome</name>
    <message numerus="yes">
        <source>and %Ln more</source>
        <translation>
            <numerusform>and %Ln more</numerusform>
            <numerusform>and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TimeLeft</name>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>About %n minute left</numerusform>
            <numerusform>About %n minutes left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>About %n hour left</numerusform>
            <numerusform>About %n hours left</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Window_Open_Panel</name>
    <message numerus="yes">
        <source>%n folder(s) cannot be shown here: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n folder cannot be shown here: its name is not valid UTF-8 text. Rename it to choose it.</numerusform>
            <numerusform>%n folders cannot be shown here: the names are not valid UTF-8 text. Rename them to choose them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. Rename them to choose them.</source>
        <translation>
            <numerusform>%n file of this folder cannot be shown: its name is not valid UTF-8 text. Rename it to choose it.</numerusform>
            <numerusform>%n files of this folder cannot be shown: the names are not valid UTF-8 text. Rename them to choose them.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>desktop::Opening</name>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>and %n more</numerusform>
            <numerusform>and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
</TS>
