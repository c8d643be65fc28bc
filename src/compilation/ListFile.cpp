#include "compilation/ListFile.h"

#include "compilation/Acceptance.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace compilation {
namespace {

constexpr auto versionKey = "corvalis-list"_L1;
constexpr auto kindKey = "kind"_L1;
constexpr auto nameKey = "name"_L1;
constexpr auto entriesKey = "entries"_L1;
constexpr auto pathKey = "path"_L1;
constexpr auto relativeKey = "relative"_L1;

/// What was typed of an entry, by its keys.
struct NameRow {
    QLatin1StringView key;
    std::optional<QString> ListFile::Entry::*name;
};
const NameRow names[] = {
    { "title"_L1, &ListFile::Entry::title },
    { "performer"_L1, &ListFile::Entry::performer },
};

QString say(const char *sentence)
{
    return QCoreApplication::translate("ListFile", sentence);
}

QString damaged(const QString &where)
{
    return say(QT_TRANSLATE_NOOP("ListFile", "It is damaged, or no list of Corvalis: %1.")).arg(where);
}

/// What makes an entry unusable; empty: nothing.
QString objectionTo(const ListFile::Entry &entry, qsizetype number)
{
    const auto tell = [number](const char *sentence) { return say(sentence).arg(number); };
    // Not as the toolkit sees it, to which ":" is the root of what is compiled in.
    if (!entry.path.startsWith(u'/'))
        return tell(QT_TRANSLATE_NOOP("ListFile", "entry %1 has no full path"));
    for (const QString &text : { entry.path, entry.relative, entry.title.value_or(QString()),
             entry.performer.value_or(QString()) }) {
        if (text.contains(QChar(u'\0')) || !text.isValidUtf16())
            return tell(QT_TRANSLATE_NOOP("ListFile", "entry %1 has characters that no name can have"));
    }
    return entry.relative.startsWith(u'/')
        ? tell(QT_TRANSLATE_NOOP("ListFile", "the relative path of entry %1 is none"))
        : QString();
}

QString takeEntries(const QJsonArray &array, QList<ListFile::Entry> &entries)
{
    if (array.size() > ListFile::mostEntries) {
        return say(QT_TRANSLATE_NOOP("ListFile", "It has %1 entries, and a list may have %2."))
            .arg(array.size())
            .arg(ListFile::mostEntries);
    }
    for (const QJsonValue &value : array) {
        ListFile::Entry entry;
        entry.path = value[pathKey].toString();
        entry.relative = value[relativeKey].toString();
        for (const NameRow &row : names) {
            if (value[row.key].isString())
                entry.*row.name = value[row.key].toString();
        }
        if (const QString why = objectionTo(entry, entries.size() + 1); !why.isEmpty())
            return damaged(why);
        entry.path = QDir::cleanPath(entry.path);
        entries.append(entry);
    }
    return {};
}

} // namespace

QByteArray written(const ListFile &list)
{
    QJsonArray entries;
    for (const ListFile::Entry &entry : list.entries) {
        QJsonObject object{ { pathKey, entry.path } };
        if (!entry.relative.isEmpty())
            object[relativeKey] = entry.relative;
        for (const NameRow &row : names) {
            if (entry.*row.name)
                object[row.key] = *(entry.*row.name);
        }
        entries.append(object);
    }
    QJsonObject object{ { versionKey, ListFile::version }, { kindKey, list.kind }, { entriesKey, entries } };
    if (!list.discName.isEmpty())
        object[nameKey] = list.discName;
    return QJsonDocument(object).toJson();
}

ListFileRead parsedListFile(const QByteArray &content)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (document.isNull()) {
        const char *const where = QT_TRANSLATE_NOOP("ListFile", "%1 at byte %2");
        return { {}, damaged(say(where).arg(error.errorString()).arg(error.offset)) };
    }
    const QJsonValue version = document[versionKey];
    if (!version.isDouble() || version.toDouble() < 1)
        return { {}, damaged(say(QT_TRANSLATE_NOOP("ListFile", "it does not say what it is"))) };
    if (version.toDouble() >= ListFile::version + 1) {
        return { {},
            say(QT_TRANSLATE_NOOP("ListFile",
                "It was saved by a newer version of Corvalis. Bring this one up to date to open it.")) };
    }
    if (!document[kindKey].isString() || !document[entriesKey].isArray())
        return { {}, damaged(say(QT_TRANSLATE_NOOP("ListFile", "the kind or the entries are missing"))) };
    ListFileRead read;
    read.list.kind = document[kindKey].toString();
    read.list.discName = document[nameKey].toString();
    read.error = takeEntries(document[entriesKey].toArray(), read.list.entries);
    return read;
}

ListFileRead readListFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return { {}, say(QT_TRANSLATE_NOOP("ListFile", "There is no such file any more.")) };
    if (info.isDir() || isNoFile(path))
        return { {}, say(QT_TRANSLATE_NOOP("ListFile", "It is no file.")) };
    if (info.size() > ListFile::mostBytes)
        return { {}, say(QT_TRANSLATE_NOOP("ListFile", "It is far too large for a list.")) };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { {}, file.errorString() };
    // One byte more than allowed: the file may have grown meanwhile.
    const QByteArray content = file.read(ListFile::mostBytes + 1);
    return parsedListFile(content);
}

QString saveListFile(const QString &path, const ListFile &list)
{
    QSaveFile file(path);
    const QByteArray content = written(list);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.commit())
        return file.errorString();
    return {};
}

QString placeOf(const ListFile::Entry &entry, const QString &folder)
{
    if (!entry.relative.isEmpty()) {
        const QString beside = QDir::cleanPath(folder + u'/' + entry.relative);
        if (QFileInfo::exists(beside))
            return beside;
    }
    return entry.path;
}

} // namespace compilation
