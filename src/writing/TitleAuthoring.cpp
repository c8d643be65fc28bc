#include "writing/TitleAuthoring.h"

#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace writing {

namespace {

/// "1:02:03.500".
QString timeText(double seconds)
{
    const auto all = static_cast<qint64>(seconds * 1000 + 0.5);
    return u"%1:%2:%3.%4"_s.arg(all / 3'600'000)
        .arg(all / 60'000 % 60, 2, 10, QLatin1Char('0'))
        .arg(all / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(all % 1000, 3, 10, QLatin1Char('0'));
}

class Writer {
public:
    explicit Writer(const PlayerDisc &disc)
        : m_sets(titleSets(disc.titles))
        , m_format(disc.format)
    {
        m_xml.writeStartDocument();
        m_xml.writeStartElement(u"dvdauthor"_s);
        writeManager();
        for (qsizetype i = 0; i < m_sets.size(); ++i)
            writeSet(i);
        m_xml.writeEndDocument();
    }

    QByteArray bytes() const { return m_bytes; }

private:
    /// Commands of a title reach titles of its own set only; from set to set they go through the manager's menus, of
    /// which there is one without a picture for each set. The first is also what a player's menu button finds.
    void writeManager()
    {
        m_xml.writeStartElement(u"vmgm"_s);
        m_xml.writeTextElement(u"fpc"_s, u"jump title 1;"_s);
        m_xml.writeStartElement(u"menus"_s);
        writeVideo(false);
        for (qsizetype i = 0; i < m_sets.size(); ++i) {
            m_xml.writeStartElement(u"pgc"_s);
            if (i == 0)
                m_xml.writeAttribute(u"entry"_s, u"title"_s);
            m_xml.writeTextElement(u"pre"_s, u"jump title %1;"_s.arg(m_sets.at(i).first));
            m_xml.writeEndElement();
        }
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    void writeSet(qsizetype number)
    {
        const TitleSet &set = m_sets.at(number);
        m_xml.writeStartElement(u"titleset"_s);
        m_xml.writeStartElement(u"titles"_s);
        writeVideo(set.wide);
        m_xml.writeEmptyElement(u"audio"_s);
        m_xml.writeAttribute(u"format"_s, m_format.dolby ? u"ac3"_s : u"mp2"_s);
        m_xml.writeAttribute(u"channels"_s, u"2"_s);
        for (qsizetype i = 0; i < set.titles.size(); ++i) {
            const bool lastOfSet = i + 1 == set.titles.size(), lastSet = number + 1 == m_sets.size();
            writeTitle(set.titles.at(i),
                !lastOfSet    ? u"jump title %1;"_s.arg(i + 2)
                    : lastSet ? u"exit;"_s
                              : u"call vmgm menu %1;"_s.arg(number + 2));
        }
        m_xml.writeEndElement();
        m_xml.writeEndElement();
    }

    void writeTitle(const PlayerTitle &title, const QString &atEnd)
    {
        QStringList chapters;
        for (const double mark : title.chapters)
            chapters.append(timeText(mark));
        m_xml.writeStartElement(u"pgc"_s);
        m_xml.writeEmptyElement(u"vob"_s);
        m_xml.writeAttribute(u"file"_s, title.file);
        m_xml.writeAttribute(u"chapters"_s, chapters.join(u','));
        m_xml.writeTextElement(u"post"_s, atEnd);
        m_xml.writeEndElement();
    }

    void writeVideo(bool wide)
    {
        m_xml.writeEmptyElement(u"video"_s);
        m_xml.writeAttribute(u"format"_s, m_format.ntsc ? u"ntsc"_s : u"pal"_s);
        m_xml.writeAttribute(u"aspect"_s, wide ? u"16:9"_s : u"4:3"_s);
        if (wide) // a narrow screen shows all of it, between black bars
            m_xml.writeAttribute(u"widescreen"_s, u"nopanscan"_s);
    }

    const QList<TitleSet> m_sets;
    const PlayerFormat m_format;
    QByteArray m_bytes;
    QXmlStreamWriter m_xml{ &m_bytes };
};

} // namespace

QList<TitleSet> titleSets(const QList<PlayerTitle> &titles)
{
    QList<TitleSet> sets;
    for (qsizetype i = 0; i < titles.size(); ++i) {
        if (sets.isEmpty() || sets.last().wide != titles.at(i).wide)
            sets.append({ titles.at(i).wide, i + 1, {} });
        sets.last().titles.append(titles.at(i));
    }
    return sets;
}

QByteArray authoringXml(const PlayerDisc &disc)
{
    return Writer(disc).bytes();
}

QStringList authoringArguments(const QString &folder, const QString &xml)
{
    return { u"-o"_s, folder, u"-x"_s, xml };
}

AuthoringLine authoringLine(const QString &line)
{
    AuthoringLine told;
    if (line.startsWith("STAT:"_L1))
        told.doing = line.mid(5).simplified();
    else if (line.startsWith("ERR:"_L1))
        told.failure = line.mid(4).simplified();
    return told;
}

} // namespace writing
