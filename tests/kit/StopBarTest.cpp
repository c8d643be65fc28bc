// The Stop button: one question, and one answer.
#include "kit/StopBar.h"

#include "StageWindow.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// A sheet of work with nothing but its bar.
class BareWork : public WorkSheet {
public:
    StopBar *const bar = new StopBar(this);

    explicit BareWork(SheetStage *stage)
        : WorkSheet(stage, Dismiss::ByPerson)
    {
        auto *column = new QVBoxLayout(this);
        auto *heading = new SheetHeading(this);
        heading->setText(u"Working"_s);
        column->addWidget(heading);
        column->addWidget(bar);
        adopt(bar);
        setCostOfStopping(u"The disc is lost."_s);
    }

    template <class Part>
    Part *part(const char *name) const
    {
        return bar->findChild<Part *>(QLatin1String(name));
    }
};

} // namespace

class StopBarTest : public QObject {
    Q_OBJECT

    std::unique_ptr<StageWindow> m_window;
    BareWork *m_sheet = nullptr;
    std::unique_ptr<QSignalSpy> m_stops;

    QPushButton *button(const char *name) const { return m_sheet->part<QPushButton>(name); }
    void press(const char *name) const { person::click(button(name)); }
    void type(Qt::Key key) const { QTest::keyClick(m_window->windowHandle(), key); }
    QString question() const
    {
        const auto *label = m_sheet->part<QLabel>("labelStopQuestion");
        return label->isVisible() ? label->text() : QString();
    }
    /// The buttons that a person sees, by their names.
    QStringList buttons() const
    {
        QStringList names;
        for (const QPushButton *one : m_sheet->bar->findChildren<QPushButton *>()) {
            if (one->isVisible())
                names.append(one->objectName() + (one->isEnabled() ? QString() : u" off"_s));
        }
        names.sort();
        return names;
    }

    const QStringList m_idle{ u"btnStop"_s };
    const QStringList m_asking{ u"btnGoOn"_s, u"btnStopNow"_s };
    const QStringList m_stopping{ u"btnGoOn off"_s, u"btnStopNow off"_s };

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<StageWindow>();
        m_sheet = new BareWork(m_window->stage);
        m_stops = std::make_unique<QSignalSpy>(m_sheet, &WorkSheet::stopRequested);
        m_sheet->beginSheet();
        QVERIFY(person::awaitKeyboard(m_window.get()));
        QCOMPARE(buttons(), m_idle);
        QCOMPARE(question(), QString());
        QVERIFY(button("btnStop")->hasFocus());
    }

    void asksAndStopsOnce()
    {
        press("btnStop");
        QCOMPARE(buttons(), m_asking);
        QCOMPARE(question(), u"Stop now? The disc is lost."_s);
        QCOMPARE(m_stops->count(), 0);
        press("btnStopNow");
        QCOMPARE(m_stops->count(), 1);
        QCOMPARE(question(), u"Stopping…"_s);
        QCOMPARE(buttons(), m_stopping);
        person::clickAt(button("btnStopNow"), button("btnStopNow")->rect().center());
        button("btnStopNow")->click();
        for (const Qt::Key key : { Qt::Key_Escape, Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape })
            type(key);
        QCOMPARE(m_stops->count(), 1);
        QCOMPARE(buttons(), m_stopping);
        QVERIFY(m_sheet->isVisible());
    }

    void goesOn_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("by its button") << 0;
        QTest::newRow("Escape") << static_cast<int>(Qt::Key_Escape);
        QTest::newRow("Return, the safe answer") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Space") << static_cast<int>(Qt::Key_Space);
    }
    void goesOn()
    {
        QFETCH(int, key);
        for (int round = 0; round < 3; ++round) {
            type(Qt::Key_Escape);
            QCOMPARE(buttons(), m_asking);
            QVERIFY(button("btnGoOn")->hasFocus());
            if (key == 0)
                press("btnGoOn");
            else
                type(static_cast<Qt::Key>(key));
            QCOMPARE(buttons(), m_idle);
            QCOMPARE(question(), QString());
            QVERIFY(button("btnStop")->hasFocus());
        }
        QCOMPARE(m_stops->count(), 0);
    }

    void stopsByKeyboardAlone()
    {
        QTest::keyClick(m_window->windowHandle(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(buttons(), m_asking);
        QTest::keyClick(m_window->windowHandle(), Qt::Key_N, Qt::AltModifier);
        QTRY_COMPARE(m_stops->count(), 1);
    }

    void escapeWorksAfterAClickOnTheVeil()
    {
        m_window->clickVeil();
        type(Qt::Key_Escape);
        QCOMPARE(buttons(), m_asking);
        m_window->clickVeil();
        type(Qt::Key_Escape);
        QCOMPARE(buttons(), m_idle);
    }

    void theCostMayChangeWhileTheQuestionStands()
    {
        press("btnStop");
        m_sheet->setCostOfStopping(u"It is written."_s);
        QCOMPARE(question(), u"Stop now? It is written."_s);
        QVERIFY(button("btnGoOn")->hasFocus());
        press("btnStopNow");
        m_sheet->setCostOfStopping(u"Something else."_s);
        QCOMPARE(question(), u"Stopping…"_s);
    }

    void aLongCostWrapsInsideANarrowWindow()
    {
        m_window->resize(700, 400);
        m_sheet->setCostOfStopping(
            u"What was written so far is lost. The disc has to be erased before it is used again. "_s
                .repeated(3));
        press("btnStop");
        const auto *label = m_sheet->part<QLabel>("labelStopQuestion");
        QTRY_VERIFY(label->height() >= label->heightForWidth(label->width()));
        QTRY_VERIFY(m_sheet->width() < m_window->width());
        QVERIFY(button("btnStopNow")->visibleRegion().boundingRect() == button("btnStopNow")->rect());
    }
};

QTEST_MAIN(StopBarTest)
#include "StopBarTest.moc"
