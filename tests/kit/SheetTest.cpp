// A sheet by itself: its keys, what assistive tools are told, its words.
#include "kit/Sheet.h"

#include "StageWindow.h"
#include "kit/StopBar.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QTest>

using namespace Qt::StringLiterals;

class SheetTest : public QObject {
    Q_OBJECT

    std::unique_ptr<StageWindow> m_window;

    void type(Qt::Key key) const { QTest::keyClick(m_window->windowHandle(), key); }

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<StageWindow>();
        QVERIFY(person::awaitKeyboard(m_window.get()));
    }

    void escapeCancels_data()
    {
        QTest::addColumn<int>("dismiss");
        QTest::addColumn<int>("cancels");
        QTest::newRow("where a person may") << static_cast<int>(Sheet::Dismiss::ByPerson) << 1;
        QTest::newRow("and nowhere else") << static_cast<int>(Sheet::Dismiss::ByProgramOnly) << 0;
    }
    void escapeCancels()
    {
        QFETCH(int, dismiss);
        auto *sheet = new PlainSheet(m_window->stage, 1, static_cast<Sheet::Dismiss>(dismiss));
        sheet->beginSheet();
        type(Qt::Key_Escape);
        QTEST(sheet->cancels, "cancels");
        QVERIFY2(sheet->isVisible(), "it goes when its work says so, not with the key");
        sheet->field->setFocus();
        type(Qt::Key_Escape);
        QVERIFY(sheet->isVisible());
    }

    void returnPressesTheDefaultButton_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("Return") << static_cast<int>(Qt::Key_Return);
        QTest::newRow("Enter") << static_cast<int>(Qt::Key_Enter);
    }
    void returnPressesTheDefaultButton()
    {
        QFETCH(int, key);
        auto *sheet = new PlainSheet(m_window->stage);
        sheet->beginSheet();
        sheet->field->setFocus();
        type(static_cast<Qt::Key>(key));
        QCOMPARE(sheet->oks, 1);
    }

    void theFirstKeyboardIsTheDefaultButtons()
    {
        auto *sheet = new PlainSheet(m_window->stage);
        sheet->beginSheet();
        QVERIFY(sheet->ok->hasFocus());
        sheet->endSheet();
        auto *without = new PlainSheet(m_window->stage);
        without->ok->setEnabled(false);
        without->beginSheet();
        QVERIFY(without->other->hasFocus());
    }

    void isNoWindow()
    {
        auto *sheet = new PlainSheet(m_window->stage);
        sheet->beginSheet();
        QVERIFY(!sheet->isWindow());
        QCOMPARE(sheet->window(), m_window.get());
        QCOMPARE(QGuiApplication::topLevelWindows().size(), 1);
    }

    void isAnnouncedAsADialog()
    {
        auto *sheet = new PlainSheet(m_window->stage);
        sheet->beginSheet();
        QAccessibleInterface *face = QAccessible::queryAccessibleInterface(sheet);
        QVERIFY(face);
        QCOMPARE(face->role(), QAccessible::Dialog);
        QCOMPARE(face->text(QAccessible::Name), u"A heading"_s);
        QCOMPARE(face->rect(), QRect(sheet->mapToGlobal(QPoint()), sheet->size()));
        QVERIFY(!face->state().invisible);
        // It is found on the way down from the window, as a screen reader walks.
        QAccessibleInterface *above = face->parent();
        while (above && above->object() != m_window.get())
            above = above->parent();
        QVERIFY(above);
    }

    void signsOnButtonsAreTaken()
    {
        auto *sheet = new PlainSheet(m_window->stage);
        auto *box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, sheet);
        box->button(QDialogButtonBox::Ok)->setIcon(QPixmap(8, 8));
        sheet->beginSheet();
        for (const QAbstractButton *button : box->buttons())
            QVERIFY(button->icon().isNull());
    }

    void longWordsCanBreak_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("places");
        QTest::newRow("none") << QString() << 0;
        QTest::newRow("40 letters") << QString(40, u'a') << 0;
        QTest::newRow("41 letters") << QString(41, u'a') << 1;
        QTest::newRow("short words") << u"short words "_s.repeated(40) << 0;
        QTest::newRow("120 letters") << QString(120, u'a') << 2;
        QTest::newRow("letters of two halves") << u"😀"_s.repeated(50) << 2;
    }
    void longWordsCanBreak()
    {
        QFETCH(QString, text);
        constexpr QChar place(0x200b);
        QString broken = Sheet::wrappable(text);
        QTEST(static_cast<int>(broken.count(place)), "places");
        for (qsizetype at = broken.indexOf(place); at >= 0; at = broken.indexOf(place, at + 1))
            QVERIFY2(!broken.at(at + 1).isLowSurrogate(), "a letter was cut in two");
        QCOMPARE(broken.remove(place), text);
    }

    void headingsAreTextAsItIs()
    {
        SheetHeading heading;
        heading.setText(u"<b>Album</b> & more"_s);
        QCOMPARE(heading.textFormat(), Qt::PlainText);
        QVERIFY(heading.wordWrap());
        QVERIFY(heading.font().bold());
    }
};

QTEST_MAIN(SheetTest)
#include "SheetTest.moc"
