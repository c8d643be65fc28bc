#include "compilation/MediaReport.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace compilation {
namespace {

/// As ffmpeg prints a path: control characters but those that move the cursor are question marks.
QString printed(QString path)
{
    for (QChar &character : path) {
        if (character < u'\x08' || (character > u'\x0d' && character < u' '))
            character = u'?';
    }
    return path;
}

/// "mp3" of "Input #0, mp3, from 'song.mp3':", and where the lines below it begin.
struct Heading {
    QString format; ///< null: there is none
    qsizetype end = 0;
};
Heading headingOf(const QString &text, const QString &path)
{
    constexpr auto mark = "Input #0, "_L1;
    const QString from = u", from '"_s + printed(path) + u"':\n"_s;
    const qsizetype at = text.indexOf(from);
    const qsizetype begin = at < 0 ? -1 : text.lastIndexOf(mark, at);
    if (begin < 0)
        return {};
    const qsizetype format = begin + mark.size();
    return { text.mid(format, at - format), at + from.size() };
}

/// Formats whose only picture stands still, and texts that ffmpeg would draw as on a terminal.
bool isStill(const QString &format)
{
    return format == "image2"_L1 || format == "tty"_L1 || format == "ico"_L1 || format.endsWith("_pipe"_L1);
}

/// A film's own pictures: no cover and no thumbnail.
bool isMoving(const QString &stream)
{
    constexpr std::array marks{ "(attached pic)"_L1, "(timed thumbnails)"_L1, "(still image)"_L1 };
    return std::ranges::none_of(marks, [&stream](QLatin1StringView mark) { return stream.contains(mark); });
}

/// The lines of a report one by one. How far a line is moved in tells what it belongs to.
class Reader {
public:
    explicit Reader(const QString &format)
        : m_format(format)
    {
    }

    void read(const QString &line)
    {
        static const QRegularExpression stream(
            u"^ +Stream #0:\\d+(?:\\[0x[0-9a-fA-F]+\\])?(?:\\([^)]*\\))?: (Audio|Video): (.*)$"_s);
        const qsizetype depth = std::ranges::find_if(line, [](QChar c) { return c != u' '; }) - line.begin();
        if (depth < m_tagDepth)
            m_names = nullptr;
        if (const auto match = stream.match(line); !m_names && match.hasMatch())
            return beginStream(match.captured(1), match.captured(2), depth);
        if (!m_names && line.trimmed() == "Metadata:"_L1)
            return beginTags(depth);
        if (m_names)
            readTag(line.sliced(m_tagDepth));
        else if (depth <= m_ownerDepth)
            m_owner = nullptr;
    }

    MediaReport found() const
    {
        MediaReport report = m_report;
        for (const auto part : { &TrackNames::title, &TrackNames::performer }) {
            report.carried.*part = (m_whole.*part).simplified();
            const QString &name = (m_whole.*part).isEmpty() ? m_stream.*part : m_whole.*part;
            report.names.*part = name.simplified();
        }
        return report;
    }

private:
    void beginStream(const QString &kind, const QString &what, qsizetype depth)
    {
        const bool isFirstSound = kind == "Audio"_L1 && !m_report.hasSound;
        const bool isKnown = !what.startsWith("none"_L1);
        if (kind == "Audio"_L1)
            m_report.hasSound = m_report.hasSound || isKnown;
        else
            m_report.hasFilm = m_report.hasFilm || (isKnown && !isStill(m_format) && isMoving(what));
        m_owner = isFirstSound ? &m_stream : nullptr;
        m_ownerDepth = depth;
    }

    void beginTags(qsizetype depth)
    {
        constexpr qsizetype step = 2;
        TrackNames *const owner = depth == step ? &m_whole : depth == m_ownerDepth + step ? m_owner : nullptr;
        m_names = owner ? owner : &m_others;
        m_tagDepth = depth + step;
        m_tag = nullptr;
    }

    /// "title           : First", or ": " and a further line of the same name.
    void readTag(const QString &line)
    {
        const qsizetype colon = line.indexOf(": "_L1);
        if (colon < 0)
            return;
        const QString key = line.first(colon).trimmed();
        const QString text = line.sliced(colon + 2);
        if (key.isEmpty()) {
            if (m_tag)
                *m_tag += u' ' + text;
            return;
        }
        m_tag = key.compare("title"_L1, Qt::CaseInsensitive) == 0 ? &m_names->title
            : key.compare("artist"_L1, Qt::CaseInsensitive) == 0  ? &m_names->performer
                                                                  : nullptr;
        if (m_tag)
            *m_tag = text;
    }

    const QString m_format;
    MediaReport m_report;
    TrackNames m_whole, m_stream, m_others;
    TrackNames *m_owner = nullptr; ///< whose tags may follow; null: nobody's that matters
    qsizetype m_ownerDepth = 0;
    TrackNames *m_names = nullptr; ///< while tags are read
    QString *m_tag = nullptr; ///< the one that a further line belongs to
    qsizetype m_tagDepth = 0;
};

} // namespace

MediaReport mediaReport(const QByteArray &report, const QString &path)
{
    const QString text = QString::fromUtf8(report);
    const Heading heading = headingOf(text, path);
    if (heading.format.isNull())
        return {};
    Reader reader(heading.format);
    const QStringList lines = text.sliced(heading.end).split(u'\n');
    for (const QString &line : lines)
        reader.read(line);
    return reader.found();
}

} // namespace compilation
