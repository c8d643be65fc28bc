// How far back the lists' history goes, and what counts as a step.
#include "compilation/EditHistory.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Compilation withFiles(int count, int tab = 0, qint64 variant = 0)
{
    Compilation compilation;
    compilation.tab = tab;
    compilation.variant = variant;
    for (int i = 0; i < count; ++i) {
        NodeMediaFile file;
        file.s_File_Path = u"/music/%1.mp3"_s.arg(i);
        compilation.media.append(file);
    }
    return compilation;
}

} // namespace

class EditHistoryTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void whatIsAStep_data()
    {
        QTest::addColumn<Compilation>("before");
        QTest::addColumn<Compilation>("after");
        QTest::addColumn<bool>("step");
        Compilation titled = withFiles(2);
        titled.media.last().title = u"Song"_s;
        Compilation named = withFiles(2);
        named.discName = u"Summer"_s;
        Compilation reordered = withFiles(2);
        reordered.media.swapItemsAt(0, 1);
        QTest::newRow("nothing changed") << withFiles(2) << withFiles(2) << false;
        QTest::newRow("added") << withFiles(0) << withFiles(1) << true;
        QTest::newRow("emptied") << withFiles(2) << withFiles(0) << true;
        QTest::newRow("reordered") << withFiles(2) << reordered << true;
        QTest::newRow("title typed") << withFiles(2) << titled << true;
        QTest::newRow("kind changed") << withFiles(2) << withFiles(2, 0, 1) << true;
        QTest::newRow("tab changed, which emptied it") << withFiles(2) << withFiles(0, 1) << true;
        QTest::newRow("tab changed with empty lists") << withFiles(0) << withFiles(0, 2) << false;
        QTest::newRow("name typed, whose field undoes by itself") << withFiles(2) << named << false;
    }
    void whatIsAStep()
    {
        QFETCH(Compilation, before);
        QFETCH(Compilation, after);
        QFETCH(bool, step);
        EditHistory history;
        history.note(before);
        const bool wasThere = history.canUndo();
        history.note(after);
        if (!step)
            QCOMPARE(history.canUndo(), wasThere);
        else
            QVERIFY(history.undo().holdsTheSameAs(before));
    }

    void twentyStepsThereAndBack()
    {
        EditHistory history;
        for (int i = 0; i <= 25; ++i)
            history.note(withFiles(i));
        QVERIFY(!history.canRedo());
        int steps = 0;
        for (; history.canUndo(); ++steps)
            QCOMPARE(history.undo().media.size(), 24 - steps);
        QCOMPARE(steps, 20);
        for (; history.canRedo(); --steps)
            QCOMPARE(history.redo().media.size(), 26 - steps);
        QCOMPARE(steps, 0);
    }

    void whatIsShownAgainIsNoStep()
    {
        EditHistory history;
        history.note(withFiles(1));
        history.note(withFiles(2));
        const Compilation shown = history.undo();
        history.note(shown);
        QVERIFY(history.canRedo());
        QCOMPARE(history.redo().media.size(), 2);
    }

    void aNewChangeEndsWhatWasUndone()
    {
        EditHistory history;
        history.note(withFiles(1));
        history.note(withFiles(2));
        history.undo();
        history.note(withFiles(3));
        QVERIFY(!history.canRedo());
        QCOMPARE(history.undo().media.size(), 1);
    }
};

QTEST_APPLESS_MAIN(EditHistoryTest)
#include "EditHistoryTest.moc"
