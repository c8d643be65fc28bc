#include "drives/MediaStatus.h"

#include <QTest>

using namespace Qt::StringLiterals;

class MediaStatusTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void answersTheFourQuestions_data();
    void answersTheFourQuestions();
};

void MediaStatusTest::answersTheFourQuestions_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("empty");
    QTest::addColumn<bool>("overwritable");
    QTest::addColumn<bool>("erasable");
    QTest::addColumn<QString>("type");

    const QString recorder = u" Vendor   Product           Rev \n MATSHITA UJ-260            1.50\n\n"_s;
    const QString dvdRecorder = u" Vendor   Product           Rev \n HL-DT-ST DVDRAM GH24NSD1   LG00\n\n"_s;
    const QString blank = u"        Writability: appendable, blank, overwritable\n"_s;
    const auto row = [](const char *name, const QString &status, bool empty, bool overwritable, bool erasable,
                         const QString &type) {
        QTest::newRow(name) << status << empty << overwritable << erasable << type;
    };

    row("nothing printed", {}, false, false, false, u"Other"_s);
    row("no medium", recorder + u"           Type: No Media Inserted\n"_s, true, false, false, u"Other"_s);
    row("no medium in a drive named after DVDs", dvdRecorder + u"           Type: No Media Inserted\n"_s,
        true, false, false, u"DVD"_s);
    row("no medium in a drive named after Blu-ray discs", u" PIONEER  BDR-209D\n Type: No Media Inserted\n"_s,
        true, false, false, u"BD"_s);
    row("no medium, and yet overwritable", u"Type: No Media Inserted\n"_s + blank, true, true, false,
        u"Other"_s);
    row("no medium in another case", u"no media inserted"_s, false, false, false, u"Other"_s);
    row("no medium across two lines", u"No Media\nInserted"_s, false, false, false, u"Other"_s);
    row("a blank CD-R", recorder + u"           Type: CD-R\n"_s + blank, false, true, false, u"CD"_s);
    row("a CD-R in a drive named after DVDs", dvdRecorder + u"           Type: CD-R\n"_s + blank, false, true,
        false, u"DVD"_s);
    row("a CD-ROM", recorder + u"           Type: CD-ROM\n"_s, false, false, false, u"CD"_s);
    row("a blank DVD-R", recorder + u"           Type: DVD-R\n"_s + blank, false, true, false, u"DVD"_s);
    row("a blank BD-R", recorder + u"           Type: BD-R\n"_s + blank, false, true, false, u"BD"_s);
    row("a BD-R in a drive that also names CDs", u" MAKER    CD/BD WRITER\n           Type: BD-R\n"_s, false,
        false, false, u"CD"_s);
    row("DVD wins over CD and BD wherever it stands", u"BD CD DVD"_s, false, false, false, u"DVD"_s);
    row("CD wins over BD", u"BD CD"_s, false, false, false, u"CD"_s);
    row("types in another case", u"dvd cd bd"_s, false, false, false, u"Other"_s);
    row("a type inside a word", u"ABDOMEN"_s, false, false, false, u"BD"_s);
    row("a rewritable disc with data", recorder + u"Type: CD-RW\nWritability: erasable, overwritable\n"_s,
        false, true, true, u"CD"_s);
    row("a rewritable disc that must be erased first", recorder + u"Type: DVD-RW\nWritability: erasable\n"_s,
        false, false, true, u"DVD"_s);
    row("the words inside other words", u"nonoverwritable unerasable"_s, false, true, true, u"Other"_s);
    row("the words in another case", u"Overwritable ERASABLE"_s, false, false, false, u"Other"_s);
    row("an unknown drive", u"drutil: there is no drive 9\n"_s, false, false, false, u"Other"_s);
}

void MediaStatusTest::answersTheFourQuestions()
{
    QFETCH(QString, status);
    QTEST(drives::saysEmpty(status), "empty");
    QTEST(drives::saysOverwritable(status), "overwritable");
    QTEST(drives::saysErasable(status), "erasable");
    QTEST(drives::mediaType(status), "type");
}

QTEST_GUILESS_MAIN(MediaStatusTest)
#include "MediaStatusTest.moc"
