// The file in which a list is saved: JSON, so that other programs and people can read it.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace compilation {

/// What a saved list holds. Its first key is "corvalis-list", the version of the form.
struct ListFile {
    struct Entry {
        QString path; ///< full
        QString relative; ///< the same place as seen from the folder of the list; may be empty
        std::optional<QString> title,
            performer; ///< as typed by the person, where they differ from the file's own
        bool operator==(const Entry &) const = default;
    };
    QString kind; ///< of disc, by its English name
    QString discName; ///< empty: the engine chooses
    QList<Entry> entries; ///< in their order

    static constexpr int version = 1;
    static constexpr qint64 mostBytes = 64 << 20; ///< larger files are refused unread
    static constexpr qsizetype mostEntries = 100'000;
};

/// The bytes of the file.
QByteArray written(const ListFile &list);

/// What reading a list came to: the list, or a sentence for a person.
struct ListFileRead {
    ListFile list;
    QString error; ///< empty: it was read
};

/// Reads the bytes of a file. Everything in them is foreign: of another form, a newer version, or made to do harm.
ListFileRead parsedListFile(const QByteArray &content);
/// Reads the file at `path`. Devices, pipes and files beyond the limit are refused without being opened.
ListFileRead readListFile(const QString &path);
/// Writes the file whole or not at all. Empty, or a sentence for a person.
QString saveListFile(const QString &path, const ListFile &list);

/// Where the entry of a list in `folder` is now: beside the list where something is there, else at its full path.
QString placeOf(const ListFile::Entry &entry, const QString &folder);

} // namespace compilation
