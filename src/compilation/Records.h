// The records that a compilation is made of.
#pragma once

#include <QString>
#include <QUrl>

/// One audio or video file on the media list. Complete when it is listed and not changed afterwards.
struct NodeMediaFile {
    QUrl s_File_URL; ///< what the preview player opens
    QString s_File_Path; ///< full path
    QString s_Folder_Path; ///< the folder that holds the file, without a trailing slash but for the root
    QString s_File_Name_With_Extension; ///< last path component
    QString s_File_Extension; ///< without the dot, in the case in which it stands in the name
    QString s_File_Size; ///< size text
    qint64 i_Duration_in_Seconds = 0; ///< whole seconds, from s_Duration
    QString s_Duration; ///< the 11 characters after "Duration:" in ffmpeg's report
    QString whyNotMeasured; ///< a sentence; empty where the duration is known
    QString title, performer; ///< as a player shows them: from the file's tags, or as typed on the list
    QString carriedTitle, carriedPerformer; ///< those of the tags that a converted file gets by itself

    bool operator==(const NodeMediaFile &) const = default;
};

/// One folder, or one file, on the data list.
struct NodeDataFolder {
    QString s_Path; ///< full path
    qint64 i_Size_in_KBytes = 0; ///< everything below it, in units of 1024 bytes, rounded down
    QString s_Size; ///< size text
    QString whyNotMeasured{}; ///< a sentence; empty where the size is known

    bool operator==(const NodeDataFolder &) const = default;
};
