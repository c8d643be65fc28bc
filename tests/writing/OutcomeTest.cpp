#include "writing/Outcome.h"

#include <QTest>

using namespace Qt::StringLiterals;
using writing::Outcome;
using How = Outcome::How;
using Result = writing::Work::Result;

class OutcomeTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void isToldInHeadingAndStatus_data();
    void isToldInHeadingAndStatus();
    void linesComeInTheOrderOfImportance_data();
    void linesComeInTheOrderOfImportance();
};

void OutcomeTest::isToldInHeadingAndStatus_data()
{
    QTest::addColumn<How>("how");
    QTest::addColumn<Result>("result");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<int>("status");
    const auto row = [](const char *name, How how, int status, const QString &disc, const QString &image,
                         const QString &blank) {
        QTest::addRow("%s, a disc", name) << how << Result::Disc << disc << status;
        QTest::addRow("%s, an image", name) << how << Result::Image << image << status;
        QTest::addRow("%s, an erasure", name) << how << Result::BlankDisc << blank << status;
    };
    const QString complete = u"Operation complete"_s;
    const QString stopped = u"Stopped"_s;
    row("complete", How::Complete, 0, complete, complete, complete);
    row("incomplete", How::Incomplete, 3, u"The disc was written, but some things are not on it"_s,
        u"The image was made, but some things are not in it"_s,
        u"The disc was erased, but not everything went well"_s);
    row("not done", How::NotDone, 1, u"The disc was not written"_s, u"The image was not made"_s,
        u"The disc was not erased"_s);
    row("stopped", How::Stopped, 1, stopped, stopped, stopped);
}

void OutcomeTest::isToldInHeadingAndStatus()
{
    QFETCH(How, how);
    QFETCH(Result, result);
    QTEST(Outcome::headingOf(how, result), "heading");
    Outcome outcome;
    outcome.how = how;
    QTEST(outcome.exitStatus(), "status");
}

void OutcomeTest::linesComeInTheOrderOfImportance_data()
{
    QTest::addColumn<Outcome>("outcome");
    QTest::addColumn<int>("most");
    QTest::addColumn<QStringList>("lines");

    const QString made = u"MP3 CD, 2 files"_s;
    const QString reason = u"The drive is gone."_s;
    const QStringList names{ u"a"_s, u"b"_s, u"c"_s };
    const auto row = [](const char *name, const Outcome &outcome, int most, const QStringList &lines) {
        QTest::newRow(name) << outcome << most << lines;
    };
    row("nothing to tell", {}, 3, {});
    row("made", { How::Complete, {}, made, {}, {}, {}, {}, false, {}, false, -1 }, 3, { made });
    row("the reason before what was left out",
        { How::NotDone, {}, {}, {}, reason, names, {}, false, {}, false, -1 }, 3,
        { reason, u"a"_s, u"b"_s, u"c"_s });
    row("all", { How::Incomplete, {}, made, {}, reason, names, {}, false, {}, false, -1 }, 4,
        { made, reason, u"a"_s, u"b"_s, u"c"_s });
    row("more than are shown", { How::Incomplete, {}, made, {}, {}, names, {}, false, {}, false, -1 }, 1,
        { made, u"a"_s, u"and 2 more"_s });
    row("none is shown", { How::Incomplete, {}, {}, {}, {}, names, {}, false, {}, false, -1 }, 0,
        { u"and 3 more"_s });
}

void OutcomeTest::linesComeInTheOrderOfImportance()
{
    QFETCH(Outcome, outcome);
    QFETCH(int, most);
    QTEST(outcome.lines(most), "lines");
}

QTEST_APPLESS_MAIN(OutcomeTest)
#include "OutcomeTest.moc"
