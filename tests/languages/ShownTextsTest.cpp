// Every window in every language, and in two that nobody speaks: nothing is left in English, nothing is cut, no
// sentence is put together from pieces, and no letter chooses two things.
#include "languages/ShownTexts.h"

#include "app/Window_Activity_Log.h"
#include "app/Window_Alert.h"
#include "app/Window_Open_Panel.h"
#include "kit/SheetStage.h"
#include "languages/PseudoLanguage.h"
#include "support/JobApplication.h"
#include "ui/PreviewPlayer.h"
#include "ui/Window_Colors.h"
#include "ui_MainWindow.h"
#include "writing/Window_Video_Settings.h"

#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

constexpr auto pseudo = "pseudo"_L1;
constexpr auto mirrored = "pseudo from right to left"_L1;

/// What is no text of a language: names, paths, numbers and their units, formats.
bool isData(QString text)
{
    static const QRegularExpression data(
        u"http:\\S*|\\bnull\\b|CORVALIS|Virtual Recorder|Corvalis|corvalis|Vendor|/\\S*|#[0-9a-f]{6}|\\b(bytes|KB|MB|GB|TB|mp3)\\b|\\w+\\.mp3"_s);
    static const QRegularExpression word(u"\\p{L}{2}"_s);
    return !text.remove(u'&').remove(data).contains(word);
}

/// What of a text is outside of brackets, and what is wrong with the brackets themselves.
QString faultOf(const QString &text)
{
    QString outside;
    int depth = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == PseudoLanguage::opening) {
            const QString before = text.first(i).trimmed();
            const bool sentenceBefore = before.size() > 1 && u".?!…:"_s.contains(before[before.size() - 2]);
            if (++depth > 1)
                return u"a text in a text"_s;
            if (before.endsWith(PseudoLanguage::closing) && !text.first(i).endsWith(u'\n') && !sentenceBefore)
                return u"two texts make one"_s;
        } else if (text[i] == PseudoLanguage::closing) {
            --depth;
        } else if (depth == 0) {
            outside += text[i];
        }
    }
    return isData(outside) ? QString() : u"not translated"_s;
}

QStringList faultsOf(const QList<ShownText> &texts)
{
    QStringList faults;
    for (const ShownText &shown : texts) {
        if (const QString fault = faultOf(shown.text); !fault.isEmpty())
            faults.append(u"%1: %2: “%3”"_s.arg(fault, shown.where, shown.text));
    }
    return faults;
}

} // namespace

class ShownTextsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase_data();
    void init();
    void cleanup();

    void mainWindow();
    void menus();
    void sheetsThatAsk();
    void sheetsOfJobs();
    void closingSheet();
    void activityLog();
    void player();
    void alerts();
    void panels();

private:
    bool isPseudo() const { return m_language.startsWith(pseudo); }
    /// All that is asked of a window.
    void look(QWidget *window);
    void lookAtAlerts();

    QString m_language;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<TestApplication> m_app;
};

void ShownTextsTest::initTestCase_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : QStringList{ pseudo, mirrored } + translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
}

void ShownTextsTest::init()
{
    QFETCH_GLOBAL(QString, language);
    m_language = language;
    if (isPseudo()) {
        m_translator = std::make_unique<PseudoLanguage>(u"de"_s);
    } else {
        m_translator = std::make_unique<QTranslator>();
        QVERIFY(m_translator->load(
            u"corvalis_"_s + language, builtPrograms() + u"/../share/corvalis/translations"_s));
    }
    QVERIFY(QCoreApplication::installTranslator(m_translator.get()));
    QGuiApplication::setLayoutDirection(language == mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    emptyHome();
    m_app = std::make_unique<TestApplication>();
    m_app->launch();
    m_app->window->resize(1100, 720);
    QTest::qWait(150); // the colours of the start
}

void ShownTextsTest::cleanup()
{
    m_app.reset();
    m_translator.reset();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void ShownTextsTest::look(QWidget *window)
{
    QVERIFY(window);
    QVERIFY(!shown::textsOf(window).isEmpty());
    QTRY_COMPARE(shown::cutIn(window).join(u'\n'), QString());
    if (isPseudo())
        QCOMPARE(faultsOf(shown::textsOf(window)).join(u'\n'), QString());
    QCOMPARE(shown::doubleMnemonics(window).join(u'\n'), QString());
}

void ShownTextsTest::mainWindow()
{
    for (int tab = 0; tab < 5; ++tab) {
        m_app->element<QTabWidget>("tabviewMain")->setCurrentIndex(tab);
        look(m_app->window.get());
    }
    // The languages that are spoken fit into the smallest window too.
    if (!isPseudo())
        m_app->window->resize(m_app->window->minimumSize());
    for (int tab = 0; tab < 5; ++tab) {
        m_app->element<QTabWidget>("tabviewMain")->setCurrentIndex(tab);
        look(m_app->window.get());
    }
}

void ShownTextsTest::menus()
{
    QMenuBar *const bar = m_app->window->menuBar();
    QCOMPARE(shown::doubleMnemonics(shown::itemsOf(bar->actions())).join(u'\n'), QString());
    for (int tab = 0; tab < 5; ++tab) {
        m_app->element<QTabWidget>("tabviewMain")->setCurrentIndex(tab);
        for (const QMenu *menu : m_app->window->findChildren<QMenu *>()) {
            if (menu->isEmpty())
                continue;
            if (isPseudo())
                QCOMPARE(faultsOf(shown::textsOf(menu)).join(u'\n'), QString());
            QCOMPARE(shown::doubleMnemonics(menu).join(u'\n'), QString());
        }
    }
}

void ShownTextsTest::sheetsThatAsk()
{
    AppDelegate &controller = *m_app->controller;
    for (const auto open : { &AppDelegate::ShowNewDiscWindow, &AppDelegate::OnActionVideoSettings,
             &AppDelegate::OnToolsColors }) {
        (controller.*open)();
        Sheet *const sheet = m_app->window->stage()->sheet();
        look(sheet);
        sheet->endSheet();
        QTRY_VERIFY(!m_app->window->stage()->sheet());
    }
}

void ShownTextsTest::sheetsOfJobs()
{
    SheetStage *const stage = m_app->window->stage();
    writing::Progress progress;
    progress.item = u"01.mp3"_s;
    progress.number = 1;
    progress.count = 12;
    progress.itemPercent = 40;
    progress.percent = 30;
    progress.secondsLeft = 600;
    progress.files = 2;
    progress.bytes = 5000;
    progress.bytesExpected = 90000;
    const auto lookAt = [&](auto *sheet, writing::Stage at) {
        progress.stage = at;
        sheet->beginSheet();
        sheet->showProgress(progress);
        sheet->setCostOfStopping(writing::Job(writing::Work{}).costOfStopping());
        look(sheet);
        QTest::keyClick(sheet, Qt::Key_Escape); // asks whether to stop
        look(sheet);
        sheet->endSheet();
    };
    lookAt(new Window_Progress(stage), writing::Stage::Converting);
    lookAt(new Window_Data_Copy_Folders(stage), writing::Stage::Gathering);
    for (const auto at : { writing::Stage::Imaging, writing::Stage::Writing, writing::Stage::Erasing })
        lookAt(new Window_Performing_Operation(stage), at);
    auto *const adding = new Window_Unique_Progress(stage);
    adding->beginSheet();
    adding->showItem(u"01.mp3"_s, 1, 12);
    look(adding);
    adding->endSheet();
}

void ShownTextsTest::closingSheet()
{
    using How = writing::Outcome::How;
    using Result = writing::Work::Result;
    for (const How how : { How::Complete, How::Incomplete, How::NotDone, How::Stopped }) {
        for (const Result result : { Result::Disc, Result::Image, Result::BlankDisc }) {
            writing::Outcome outcome;
            outcome.how = how;
            outcome.heading = writing::Outcome::headingOf(how, result);
            outcome.folder = u"/"_s;
            outcome.leftOut = QStringList(12, u"01.mp3"_s);
            auto *const sheet = new Window_Operation_Terminated(m_app->window->stage(), outcome);
            sheet->beginSheet();
            look(sheet);
            sheet->endSheet();
        }
    }
}

void ShownTextsTest::activityLog()
{
    m_app->controller->OnMenuActivityLog();
    look(m_app->controller->windowActivityLog);
}

void ShownTextsTest::player()
{
    QString whyNot;
    QStringList told;
    const auto tell = [&told](const QString &message, const QString &, QWidget *) { told.append(message); };
    const std::unique_ptr<QDialog> player(
        createPreview(QUrl::fromLocalFile(u"/none/01.mp3"_s), nullptr, tell, &whyNot));
    QVERIFY2(player, qPrintable(whyNot));
    player->show();
    QTRY_VERIFY(!told.isEmpty());
    look(player.get());
    if (isPseudo())
        QCOMPARE(faultOf(told.first()), QString());
}

/// Of each alert since the last look: its texts, and the window that it would have been.
void ShownTextsTest::lookAtAlerts()
{
    QVERIFY(!m_app->questions.alerts.isEmpty());
    for (const Alert &alert : std::as_const(m_app->questions.alerts)) {
        const Alert small{ alert.message, alert.informative, alert.buttons, alert.sign };
        Window_Alert window(alert.report == Alert::Report::None ? alert : small, m_app->window.get());
        window.show();
        look(&window);
    }
    m_app->questions.alerts.clear();
}

void ShownTextsTest::alerts()
{
    AppDelegate &controller = *m_app->controller;
    for (const ProjectType &type : projects::all) {
        controller.i_Type_of_New_Disc = type.code;
        controller.Close_Window_New_Disc();
        controller.OnBtnBurn();
        QCOMPARE(m_app->questions.alerts.size(), 1); // also a title in another language starts its pipeline
        lookAtAlerts();
    }
    m_app->drutil.print(u"status"_s, discs::none);
    for (const auto act : { &AppDelegate::OnToolsFormatFull, &AppDelegate::OnToolsDiscInfo,
             &AppDelegate::DuplicateMedia, &AppDelegate::OnActionAudioPlay, &AppDelegate::OnMenuHelpAbout }) {
        (controller.*act)();
        lookAtAlerts();
    }
    m_app->drutil.print(u"status"_s, discs::pressedCD);
    controller.OnToolsFormatQuick();
    lookAtAlerts();
    makeFile(documents(u"notes.mp3"_s));
    for (const QUrl &url : { QUrl(u"http://corvalis/01.mp3"_s), QUrl::fromLocalFile(u"/none/01.mp3"_s),
             QUrl::fromLocalFile(u"/dev/null"_s) }) {
        controller.addDroppedFiles({ url }, 0);
        lookAtAlerts();
    }
}

void ShownTextsTest::panels()
{
    AppDelegate &controller = *m_app->controller;
    m_app->drutil.print(u"status"_s, discs::blankCD);
    for (const auto act : { &AppDelegate::OnActionAudioAddFiles, &AppDelegate::OnActionAudioAddFolder,
             &AppDelegate::OnActionVideoAddFiles, &AppDelegate::OnActionVideoAddFolder,
             &AppDelegate::OnActionDataAddFolder, &AppDelegate::OnActionISOCreate,
             &AppDelegate::OnActionISOBurn, &AppDelegate::DuplicateMedia })
        (controller.*act)();
    QCOMPARE(m_app->questions.panels.size(), 8);
    for (const OpenPanel &panel : std::as_const(m_app->questions.panels)) {
        const Window_Open_Panel window(panel, documents(), m_app->window.get());
        QVERIFY(!window.windowTitle().isEmpty());
        if (isPseudo()) {
            QCOMPARE(faultOf(window.windowTitle()), QString());
            QCOMPARE(faultOf(window.labelText(QFileDialog::Accept)), QString());
            QCOMPARE(faultOf(window.nameFilters().join(u'\n')), QString());
        }
    }
}

QTEST_MAIN(ShownTextsTest)
#include "ShownTextsTest.moc"
