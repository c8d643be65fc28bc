// What sheets do to the window in which they stand.
#include "kit/SheetStage.h"

#include "StageWindow.h"

#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

class SheetStageTest : public QObject {
    Q_OBJECT

    std::unique_ptr<StageWindow> m_window;

    PlainSheet *begin(int lines = 1) const
    {
        auto *sheet = new PlainSheet(m_window->stage, lines);
        sheet->beginSheet();
        return sheet;
    }

    /// The place of a widget in the window.
    QRect placeOf(const QWidget *widget) const
    {
        return { widget->mapTo(m_window.get(), QPoint()), widget->size() };
    }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<StageWindow>();
        QVERIFY(person::awaitKeyboard(m_window.get()));
        m_window->field->setFocus();
        QCOMPARE(m_window->reached(), (QList<int>{ 1, 1, 1 }));
    }

    void nothingReachesTheContent_data()
    {
        QTest::addColumn<bool>("held");
        QTest::addColumn<int>("sheets");
        QTest::newRow("held") << true << 0;
        QTest::newRow("a sheet") << false << 1;
        QTest::newRow("a sheet over a sheet") << false << 2;
        QTest::newRow("held, and a sheet") << true << 1;
    }
    void nothingReachesTheContent()
    {
        QFETCH(bool, held);
        QFETCH(int, sheets);
        const QList<int> nothing{ 0, 0, 0 };
        QList<PlainSheet *> up;
        QSignalSpy changed(m_window->stage, &SheetStage::occupiedChanged);
        if (held)
            m_window->stage->hold();
        for (int i = 0; i < sheets; ++i)
            up.append(begin());
        QVERIFY(m_window->stage->isOccupied());
        QCOMPARE(m_window->reached(), nothing);
        while (!up.isEmpty()) {
            up.takeLast()->endSheet();
            if (held || !up.isEmpty())
                QCOMPARE(m_window->reached(), nothing);
        }
        if (held)
            m_window->stage->release();
        QVERIFY(!m_window->stage->isOccupied());
        QCOMPARE(m_window->reached(), (QList<int>{ 1, 1, 1 }));
        QCOMPARE(changed, (QList<QVariantList>{ { true }, { false } }));
    }

    void everyHoldWantsItsRelease()
    {
        m_window->stage->hold();
        m_window->stage->hold();
        m_window->stage->release();
        QVERIFY(!m_window->content->isEnabled());
        m_window->stage->release();
        QVERIFY(m_window->content->isEnabled());
        QVERIFY(!m_window->stage->isVisible());
    }

    void theKeyboardComesBack_data()
    {
        QTest::addColumn<bool>("held");
        QTest::newRow("after a sheet") << false;
        QTest::newRow("after a job of two sheets") << true;
    }
    void theKeyboardComesBack()
    {
        QFETCH(bool, held);
        m_window->field->setFocus();
        if (held)
            m_window->stage->hold();
        PlainSheet *sheet = begin();
        QVERIFY(sheet->ok->hasFocus());
        sheet->endSheet();
        if (held) {
            QTest::qWait(20); // as between two sheets of a job
            sheet = begin();
            QVERIFY(sheet->ok->hasFocus());
            sheet->endSheet();
            m_window->stage->release();
        }
        QVERIFY(m_window->field->hasFocus());
    }

    void theSheetBelowGetsTheKeyboardBack()
    {
        PlainSheet *first = begin();
        first->field->setFocus();
        PlainSheet *second = begin();
        QCOMPARE(m_window->stage->sheet(), second);
        QVERIFY(second->ok->hasFocus());
        second->endSheet();
        QCOMPARE(m_window->stage->sheet(), first);
        QVERIFY(first->field->hasFocus());
    }

    void tabStaysInside_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("forward") << static_cast<int>(Qt::Key_Tab);
        QTest::newRow("backward") << static_cast<int>(Qt::Key_Backtab);
    }
    void tabStaysInside()
    {
        QFETCH(int, key);
        PlainSheet *sheet = begin();
        QSet<QWidget *> seen;
        for (int i = 0; i < 7; ++i) {
            QTest::keyClick(m_window->windowHandle(), static_cast<Qt::Key>(key));
            QVERIFY2(sheet->isAncestorOf(m_window->focusWidget()), qPrintable(u"after %1"_s.arg(i + 1)));
            seen.insert(m_window->focusWidget());
        }
        QCOMPARE(seen, (QSet<QWidget *>{ sheet->field, sheet->other, sheet->ok }));
    }

    void onlyTheUppermostSheetTakesInput()
    {
        const PlainSheet *lower = begin(12);
        const PlainSheet *upper = begin();
        for (const QPoint place : { placeOf(lower->ok).center(), placeOf(lower->other).center() })
            QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(lower->oks, 0);
        for (int i = 0; i < 7; ++i) {
            QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
            QVERIFY(upper->isAncestorOf(m_window->focusWidget()));
        }
    }

    void keysWorkAfterAClickOnTheVeil()
    {
        PlainSheet *sheet = begin();
        m_window->clickVeil();
        QVERIFY(sheet->isAncestorOf(m_window->focusWidget()));
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        QCOMPARE(sheet->oks, 1);
        m_window->clickVeil();
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
        QCOMPARE(sheet->cancels, 1);
    }

    void keysWorkAfterAClickOnTheSheetItself()
    {
        PlainSheet *sheet = begin();
        person::clickAt(sheet, { 3, 3 });
        person::clickAt(sheet->heading, sheet->heading->rect().center());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Escape);
        QCOMPARE(sheet->oks, 1);
        QCOMPARE(sheet->cancels, 1);
    }

    void theSheetStaysInsideTheWindow_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : { QSize(700, 400), QSize(1000, 640), QSize(1920, 1080) })
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }
    void theSheetStaysInsideTheWindow()
    {
        QFETCH(QSize, size);
        const PlainSheet *sheet = begin();
        m_window->resize(size);
        const auto inside = [&] {
            const QRect sheetPlace = placeOf(sheet);
            return m_window->size() == size && placeOf(m_window->stage) == placeOf(m_window->content)
                && placeOf(m_window->stage).contains(sheetPlace)
                && qAbs(sheetPlace.center().x() - m_window->width() / 2) <= 1;
        };
        QTRY_VERIFY(inside());
        QVERIFY(!m_window->stage->verticalScrollBar()->isVisible());
    }

    void aSheetThatIsTooLargeScrolls()
    {
        const PlainSheet *sheet = begin(60);
        const QScrollBar *bar = m_window->stage->verticalScrollBar();
        QTRY_VERIFY(bar->isVisible());
        QVERIFY(sheet->height() > m_window->stage->height());
        const auto seen = [&](const QWidget *part) {
            return placeOf(m_window->stage->viewport()).contains(placeOf(part));
        };
        QTRY_VERIFY(seen(sheet->heading));
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Tab);
        QTRY_VERIFY2(seen(m_window->focusWidget()), "what has the keyboard is brought into view");
        QTest::qWait(0);
        m_window->resize(700, 2000);
        QTRY_VERIFY(!bar->isVisible());
        QTRY_VERIFY(placeOf(m_window->stage).contains(placeOf(sheet)));
    }

    void aSheetMayEndInItsOwnButton()
    {
        PlainSheet *sheet = begin();
        const QPointer<PlainSheet> gone(sheet);
        connect(sheet->ok, &QPushButton::clicked, sheet, &Sheet::endSheet);
        person::click(sheet->ok);
        QVERIFY(!m_window->stage->isOccupied());
        QTRY_VERIFY(!gone);
    }

    void theWindowMayGoWithItsSheets()
    {
        m_window->stage->hold();
        begin();
        const QPointer<PlainSheet> upper(begin());
        m_window.reset();
        QVERIFY(!upper);
    }

    void isFoundFromAnyWidgetOfItsWindow()
    {
        QCOMPARE(SheetStage::of(m_window->field), m_window->stage);
        QCOMPARE(SheetStage::of(begin()->field), m_window->stage);
        QCOMPARE(SheetStage::of(nullptr), nullptr);
        const QWidget alone;
        QCOMPARE(SheetStage::of(&alone), nullptr);
    }

    void theContentShinesThroughTheVeil()
    {
        m_window->content->setStyleSheet(u"background: #00ff00"_s);
        const QPoint corner(3, m_window->height() - 3);
        const QColor bare = m_window->grab().toImage().pixelColor(corner);
        begin();
        const QColor veiled = m_window->grab().toImage().pixelColor(corner);
        QCOMPARE(bare, QColor(0, 255, 0));
        QVERIFY2(veiled != bare && veiled.green() > 100 && veiled.green() > 2 * veiled.red(),
            qPrintable(veiled.name()));
    }
};

QTEST_MAIN(SheetStageTest)
#include "SheetStageTest.moc"
