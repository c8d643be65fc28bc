// Erase, eject, load and disc information, from the tools tab and the menu.
#include "app/BarButton.h"
#include "app/Window_Alert.h"
#include "support/JobApplication.h"
#include "support/Person.h"

#include <QClipboard>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>

using namespace Qt::StringLiterals;

class DiscToolsTest : public QObject {
    Q_OBJECT

    static void ready(JobApplication &app, const QByteArray &status)
    {
        app.insert(status);
        app.launch();
        app.trigger("submenuItemTabTools");
        app.sheets.clear();
    }

    static QList<QStringList> runsAfterList(const JobApplication &app)
    {
        QList<QStringList> runs = app.drutil.runs();
        runs.removeFirst();
        return runs;
    }

private Q_SLOTS:
    void aRewritableDiscIsErased_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("extent");
        QTest::newRow("full") << QByteArray("menuitemEraseFull") << u"full"_s;
        QTest::newRow("quick") << QByteArray("menuitemEraseQuick") << u"quick"_s;
    }
    void aRewritableDiscIsErased()
    {
        QFETCH(QByteArray, item);
        QFETCH(QString, extent);
        JobApplication app;
        ready(app, discs::writtenCDRW);
        app.trigger(item.constData());
        QCOMPARE(app.sheets.order(), QStringList(u"+Window_Performing_Operation"_s)); // at once
        QVERIFY(app.completes());
        const QStringList status{ u"status"_s, u"-drive"_s, u"1"_s };
        const QList<QStringList> runs{ status, status, { u"erase"_s, extent, u"-drive"_s, u"1"_s } };
        QCOMPARE(runsAfterList(app), runs);
        QCOMPARE(app.texts(), QStringList()); // nobody is asked first
        const QStringList sheets{ u"+Window_Performing_Operation"_s, u"-Window_Performing_Operation"_s,
            u"+Window_Operation_Terminated"_s };
        QCOMPARE(app.sheets.order(), sheets);
        QCOMPARE(app.trouble(), QString());
    }

    void anEraseThatFailsIsTold()
    {
        JobApplication app;
        app.drutil.run("[ \"$1\" = erase ] && { echo 'The disc is worn out.'; exit 1; }\n");
        ready(app, discs::writtenCDRW);
        app.trigger("menuitemEraseQuick");
        QVERIFY(app.completes());
        QCOMPARE(app.trouble(), u"The disc is worn out."_s);
    }

    void aDiscThatCannotBeErasedIsTold_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QByteArray>("status");
        QTest::addColumn<bool>("debug");
        QTest::addColumn<QStringList>("told");
        const QString noDisc =
            u"No disc | There is no disc on the drive. insert a rewritable media on the drive and "
            "try again."_s;
        const QString notRewritable =
            u"Media not rewritable | The media on the drive is not rewritable. insert a "
            "rewritable media on the drive and try again."_s;
        const QString blank = QString::fromUtf8(discs::blankCD) + u" | Warning 0040."_s;
        for (const QByteArray item : { "menuitemEraseFull", "menuitemEraseQuick" }) {
            const char *name = item.constData();
            QTest::addRow("%s, no disc", name) << item << discs::none << false << QStringList(noDisc);
            QTest::addRow("%s, no disc, debug mode", name)
                << item << discs::none << true << QStringList(noDisc);
            QTest::addRow("%s, write-once blank", name)
                << item << discs::blankCD << false << QStringList(notRewritable);
            QTest::addRow("%s, write-once blank, debug mode", name)
                << item << discs::blankCD << true << QStringList{ blank, notRewritable };
            QTest::addRow("%s, pressed", name)
                << item << discs::pressedCD << false << QStringList(notRewritable);
            QTest::addRow("%s, nothing printed", name)
                << item << QByteArray() << false << QStringList(notRewritable);
        }
    }
    void aDiscThatCannotBeErasedIsTold()
    {
        QFETCH(QByteArray, item);
        QFETCH(QByteArray, status);
        QFETCH(bool, debug);
        QFETCH(QStringList, told);
        JobApplication app;
        ready(app, status);
        if (debug)
            app.trigger("menuitemDebugMode");
        app.trigger(item.constData());
        QCOMPARE(app.texts(), told);
        for (const Alert &alert : std::as_const(app.asked.alerts))
            QCOMPARE(alert.buttons, QStringList(u"Close"_s));
        QTest::qWait(50);
        QCOMPARE(app.drutil.runs(u"erase"_s), QList<QStringList>());
        QCOMPARE(app.sheets.order(), QStringList());
    }

    void theEraseButtonOpensAMenuUnderThePointer()
    {
        JobApplication app;
        ready(app, discs::writtenCDRW);
        auto *menu = app.element<QMenu>("popupmenuErase");
        app.window->move(40, 30);
        const auto *button = app.element<QAbstractButton>("toolbar_btn_Tools_Erase_Disc");
        const QPoint pointer = button->mapToGlobal(button->rect().center());
        QCursor::setPos(pointer);
        app.press("toolbar_btn_Tools_Erase_Disc");
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->pos(), pointer);
        QCOMPARE(menu->actions().size(), 2);
        QCOMPARE(menu->actions().at(0)->objectName(), u"menuitemEraseFull"_s);
        QCOMPARE(menu->actions().at(1)->objectName(), u"menuitemEraseQuick"_s);
        for (const QAction *action : menu->actions())
            QVERIFY2(
                action->text().contains(u"Erase"_s, Qt::CaseInsensitive), qUtf8Printable(action->text()));
        QVERIFY(!menu->activeAction());
        QCOMPARE(runsAfterList(app), QList<QStringList>());

        QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(menu->actions().at(1)).center());
        QVERIFY(app.completes());
        const QList<QStringList> erased{ { u"erase"_s, u"quick"_s, u"-drive"_s, u"1"_s } };
        QCOMPARE(app.drutil.runs(u"erase"_s), erased);
        QVERIFY(!menu->isVisible());
    }

    void theTrayIsMovedWithoutAnyCheck_data()
    {
        QTest::addColumn<QByteArray>("control");
        QTest::addColumn<QString>("direction");
        QTest::newRow("eject button") << QByteArray("toolbar_btn_Tools_Eject_Disc") << u"eject"_s;
        QTest::newRow("eject menu") << QByteArray("menuitemEject") << u"eject"_s;
        QTest::newRow("load button") << QByteArray("toolbar_btn_Tools_Load_Disc") << u"close"_s;
        QTest::newRow("load menu") << QByteArray("menuitemLoad") << u"close"_s;
    }
    void theTrayIsMovedWithoutAnyCheck()
    {
        QFETCH(QByteArray, control);
        QFETCH(QString, direction);
        JobApplication app;
        ready(app, discs::none);
        app.drutil.run("echo 'The tray is stuck.'; exit 1\n");
        app.trigger("menuitemDebugMode");
        if (control.startsWith("menu"))
            app.trigger(control.constData());
        else
            app.press(control.constData());
        const QList<QStringList> runs{ { u"tray"_s, direction, u"-drive"_s, u"1"_s } };
        QCOMPARE(runsAfterList(app), runs); // it has ended when control is back
        QCOMPARE(app.texts(), QStringList());
        QCOMPARE(app.sheets.order(), QStringList());
        QVERIFY(app.controller->activityLog->text().contains(u"The tray is stuck."_s));
    }

    void discInformationShowsTheReportAsItIs()
    {
        const QByteArray report = "\n  Type: CD-R\t Name: <b>x</b> &amp;\n\n  Größe: 1\r\n%1 trailing  \n\n";
        JobApplication app;
        ready(app, report);
        app.press("toolbar_btn_Tools_Disc_Info");
        QCOMPARE(app.asked.alerts.size(), 1);
        QCOMPARE(app.asked.alerts.first().message, u"Disc Information"_s);
        QCOMPARE(app.asked.alerts.first().informative, QString::fromUtf8(report));
        QCOMPARE(app.asked.alerts.first().buttons, QStringList(u"OK"_s));
        const QStringList status{ u"status"_s, u"-drive"_s, u"1"_s };
        const QList<QStringList> runs{ status, status };
        QCOMPARE(runsAfterList(app), runs);
        QCOMPARE(app.sheets.order(), QStringList());
    }

    void discInformationOfAnEmptyDriveIsRefused()
    {
        JobApplication app;
        ready(app, discs::none);
        app.trigger("menuitemDiscInfo");
        QCOMPARE(app.texts(),
            QStringList(u"No disc | There is no disc on the drive. Insert a media on the drive and "
                        "try again."_s));
        QCOMPARE(app.asked.alerts.first().buttons, QStringList(u"Close"_s));
        QCOMPARE(runsAfterList(app).size(), 1);
    }

    void whatTheDiscUtilityComplainsOfIsShownAsInformation()
    {
        JobApplication app;
        app.drutil.run("[ \"$1\" = status ] && echo 'There is no drive 1.' >&2 && exit 3\n");
        ready(app, {});
        app.press("toolbar_btn_Tools_Disc_Info");
        QCOMPARE(app.texts(), QStringList(u"Disc Information | There is no drive 1.\n"_s));
    }

    void theReportStandsInASelectableFieldOfFixedWidth()
    {
        JobApplication app;
        WindowQuestions windows;
        app.around.questions = &windows;
        ready(app, discs::blankCD);
        person::Expect<Window_Alert> information([](Window_Alert *alert) {
            const auto *field = alert->findChild<QPlainTextEdit *>();
            QVERIFY(field && field->isVisible());
            QCOMPARE(field->toPlainText(), QString::fromUtf8(discs::blankCD));
            QVERIFY(field->isReadOnly());
            const QFontMetrics metrics = field->fontMetrics();
            QCOMPARE(metrics.horizontalAdvance(u"iiii"_s), metrics.horizontalAdvance(u"MMMM"_s));
            QVERIFY(field->textInteractionFlags() & Qt::TextSelectableByMouse);
            QVERIFY(field->textInteractionFlags() & Qt::TextSelectableByKeyboard);
            QCOMPARE(field->verticalScrollBar()->maximum(), 0);
            QCOMPARE(field->horizontalScrollBar()->maximum(), 0);
            QVERIFY(field->height() < metrics.lineSpacing() * 8); // two lines need no empty page
            const auto buttons = alert->findChildren<QPushButton *>();
            QCOMPARE(buttons.size(), 1);
            QVERIFY(buttons.first()->mapTo(alert, QPoint()).y()
                > field->mapTo(alert, QPoint(0, field->height())).y());
            QVERIFY(alert->findChild<QLabel *>(u"labelMessage"_s)->height() < metrics.lineSpacing() * 3);
            QCOMPARE(buttons.first()->text(), u"OK"_s);
            QTest::keyClick(alert, Qt::Key_Return);
        });
        app.press("toolbar_btn_Tools_Disc_Info");
        QVERIFY(information.happened());
    }

    void theReportIsCopied_data()
    {
        QTest::addColumn<bool>("marked");
        QTest::newRow("a part that is marked") << true;
        QTest::newRow("all of it") << false;
    }
    void theReportIsCopied()
    {
        QFETCH(bool, marked);
        JobApplication app;
        WindowQuestions windows;
        app.around.questions = &windows;
        ready(app, discs::blankCD);
        QGuiApplication::clipboard()->clear();
        person::Expect<Window_Alert> information([marked](Window_Alert *alert) {
            auto *field = alert->findChild<QPlainTextEdit *>();
            if (marked) {
                QTextCursor line(field->document());
                line.select(QTextCursor::LineUnderCursor);
                field->setFocus();
                field->setTextCursor(line);
            }
            QVERIFY(person::awaitKeyboard(alert));
            QTest::keySequence(alert->windowHandle(), QKeySequence::Copy);
            QTest::keyClick(alert, Qt::Key_Escape);
        });
        app.press("toolbar_btn_Tools_Disc_Info");
        QVERIFY(information.happened());
        const QByteArray expected =
            marked ? discs::blankCD.left(discs::blankCD.indexOf('\n')) : discs::blankCD;
        QCOMPARE(QGuiApplication::clipboard()->text(), QString::fromUtf8(expected));
    }

    void theButtonsFillTheirTab_data()
    {
        QTest::addColumn<QByteArray>("tab");
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("share");
        const QSize sizes[] = { { 700, 400 }, { 1000, 640 }, { 1600, 1000 } };
        for (const QSize &size : sizes) {
            QTest::addRow("ISO, %d x %d", size.width(), size.height())
                << QByteArray("submenuItemTabISO") << QByteArray("page_ISO") << size << 0.3;
            QTest::addRow("Tools, %d x %d", size.width(), size.height())
                << QByteArray("submenuItemTabTools") << QByteArray("page_Tools") << size << 0.6;
        }
    }
    void theButtonsFillTheirTab()
    {
        QFETCH(QByteArray, tab);
        QFETCH(QByteArray, page);
        QFETCH(QSize, size);
        QFETCH(double, share);
        JobApplication app;
        ready(app, discs::blankCD);
        app.trigger(tab.constData());
        app.window->resize(size);
        QVERIFY(QTest::qWaitForWindowExposed(app.window.get()));
        const auto *area = app.element<QWidget>(page.constData());
        qint64 filled = 0;
        QRegion taken;
        for (const BarButton *button : area->findChildren<BarButton *>()) {
            const QRect place(button->mapTo(area, QPoint()), button->size());
            QVERIFY(area->rect().contains(place));
            QVERIFY(!taken.intersects(place));
            taken += place;
            filled += qint64(place.width()) * place.height();
            QVERIFY(button->description().endsWith(u'.'));
            const QRect narrow(0, 0, place.width() - 120, 1000);
            const int sentence =
                button->fontMetrics().boundingRect(narrow, Qt::TextWordWrap, button->description()).height();
            QVERIFY(sentence + button->fontMetrics().height() * 1.2 <= place.height());
        }
        QVERIFY2(
            double(filled) > share * area->width() * area->height(), qPrintable(QString::number(filled)));
    }

    void theEraseButtonAndItsItemsSayWhatTheyDestroy()
    {
        JobApplication app;
        ready(app, discs::writtenCDRW);
        const auto *button = app.element<BarButton>("toolbar_btn_Tools_Erase_Disc");
        QVERIFY(button->description().contains(u"Destroys everything on the rewritable disc"_s));
        QVERIFY(button->description().contains(u"does not ask again"_s));
        for (const char *item : { "menuitemEraseFull", "menuitemEraseQuick" })
            QVERIFY(app.element<QAction>(item)->text().contains(u"everything on the disc"_s));
    }

    void everyToolSpeaksToTheChosenDrive()
    {
        JobApplication app;
        app.drutil.print(u"list"_s,
            "header\n"
            "1  ACME     Reader            1.0   SATA      Supported\n"
            "a  ACME     Writer            1.0   SATA      Supported\n");
        ready(app, discs::writtenCDRW);
        app.trigger("submenuItemDriveSlot2");
        app.press("toolbar_btn_Tools_Eject_Disc");
        app.press("toolbar_btn_Tools_Load_Disc");
        app.press("toolbar_btn_Tools_Disc_Info");
        app.trigger("menuitemEraseFull");
        QVERIFY(app.completes());
        for (const QStringList &run : runsAfterList(app)) {
            QCOMPARE(run.at(run.size() - 2), u"-drive"_s);
            QCOMPARE(run.last(), u"a"_s);
        }
        QCOMPARE(runsAfterList(app).size(), 7);
    }

    void withoutADiscUtilityEveryToolEnds()
    {
        JobApplication app;
        app.around.drutil = app.folder.filePath(u"none"_s);
        ready(app, {});
        app.press("toolbar_btn_Tools_Eject_Disc");
        app.press("toolbar_btn_Tools_Load_Disc");
        app.press("toolbar_btn_Tools_Disc_Info");
        QCOMPARE(app.texts().size(), 3);
        for (const QString &text : app.texts())
            QVERIFY2(
                text.startsWith(u"The disc utility cannot be used | "_s) && text.contains(app.around.drutil),
                qUtf8Printable(text));
        app.trigger("menuitemEraseQuick");
        QCOMPARE(app.texts().size(), 4);
        QVERIFY(app.texts().last().startsWith(u"Media not rewritable"_s));
    }
};

QTEST_MAIN(DiscToolsTest)
#include "DiscToolsTest.moc"
