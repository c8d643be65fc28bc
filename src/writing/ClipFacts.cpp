#include "writing/ClipFacts.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace writing {

namespace {

/// Seconds from "hh:mm:ss.cc".
double secondsFrom(const QRegularExpressionMatch &time)
{
    return time.captured(1).toDouble() * 3600 + time.captured(2).toDouble() * 60
        + time.captured(3).toDouble();
}

/// How much ffmpeg prefers a picture: the one that is marked as the default, else the largest.
qint64 preference(const QString &line, const QSize &size)
{
    constexpr qint64 asDefault = 5'000'000;
    return qint64{ size.width() } * size.height() + (line.contains("(default)"_L1) ? asDefault : 0);
}

/// Reads the report line by line: what follows a stream's line belongs to that stream.
class Reader {
public:
    ClipFacts facts;

    void read(const QString &line)
    {
        // A line of the report itself; what tags hold stands further to the right.
        static const QRegularExpression stream(u"^  Stream #0:\\d+\\S*: (Video|Audio): "_s);
        static const QRegularExpression duration(
            u"^  Duration: (\\d+):(\\d\\d):(\\d\\d\\.\\d+), start: (-?\\d+\\.\\d+)"_s);
        static const QRegularExpression chapter(u"^    Chapter #0:\\d+: start (-?\\d+\\.\\d+), end "_s);
        static const QRegularExpression turn(
            u"^      displaymatrix: rotation of (-?\\d+(?:\\.\\d+)?) degrees"_s);
        if (line.startsWith("  Stream #"_L1))
            m_ofPicture = false;
        if (const auto found = stream.match(line); found.hasMatch()) {
            if (found.capturedView(1) == "Audio"_L1)
                facts.hasSound = true;
            else
                readPicture(line);
        } else if (const auto length = duration.match(line); length.hasMatch()) {
            facts.seconds = secondsFrom(length);
            m_start = length.captured(4).toDouble();
        } else if (const auto mark = chapter.match(line); mark.hasMatch()) {
            facts.chapters.append(qMax(0.0, mark.captured(1).toDouble() - m_start));
        } else if (const auto angle = turn.match(line); angle.hasMatch() && m_ofPicture) {
            facts.upended = isQuarter(angle.captured(1).toDouble());
        }
    }

private:
    /// ffmpeg turns by quarters what is within a degree of one.
    static bool isQuarter(double degrees)
    {
        constexpr double tolerance = 1;
        return std::abs(std::abs(std::remainder(degrees, 180)) - 90) < tolerance;
    }

    void readPicture(const QString &line)
    {
        static const QRegularExpression dimensions(u", (\\d{1,5})x(\\d{1,5})(?=[ ,]|$)"_s);
        const QRegularExpressionMatch found = dimensions.match(line);
        const QSize size(found.captured(1).toInt(), found.captured(2).toInt());
        // The cover of an album is a picture, but not one to be watched.
        if (size.isEmpty() || line.contains("(attached pic)"_L1) || preference(line, size) <= m_preference)
            return;
        m_preference = preference(line, size);
        m_ofPicture = true;
        facts.picture = size;
        facts.upended = false;
        facts.pixelAspect = pixelAspectIn(line);
    }

    /// Where the file and the stream in it tell different ones, the file's comes last, and holds.
    static double pixelAspectIn(const QString &line)
    {
        static const QRegularExpression ratio(u"[ \\[]SAR (\\d+):(\\d+) "_s);
        double aspect = 1;
        for (auto found = ratio.globalMatch(line); found.hasNext();) {
            const QRegularExpressionMatch one = found.next();
            const double width = one.captured(1).toDouble(), height = one.captured(2).toDouble();
            if (width > 0 && height > 0)
                aspect = width / height;
        }
        return aspect;
    }

    double m_start = 0; ///< of the file's clock
    qint64 m_preference = -1; ///< of the picture that was taken
    bool m_ofPicture = false; ///< the stream at hand is that one
};

} // namespace

double ClipFacts::displayAspect() const
{
    const double aspect = picture.width() * pixelAspect / picture.height();
    return upended ? 1 / aspect : aspect;
}

ClipFacts clipFacts(const QByteArray &report, const QString &path)
{
    QString text = QString::fromUtf8(report);
    // The report quotes the path, which may hold lines that look like the report's own.
    if (const QString quoted = u" from '%1':"_s.arg(path); text.contains(quoted))
        text = text.mid(text.indexOf(quoted) + quoted.size());
    Reader reader;
    for (const QString &line : text.split(u'\n'))
        reader.read(line);
    std::sort(reader.facts.chapters.begin(), reader.facts.chapters.end());
    return reader.facts;
}

} // namespace writing
