// Corvalis: options, application, controller, event loop.
#include "app/AppDelegate.h"
#include "app/BatchRun.h"
#include "app/Languages.h"
#include "app/MainWindow.h"
#include "app/StopOnSignals.h"
#include "app/Surface.h"
#include "desktop/ApplicationService.h"
#include "desktop/JobPresence.h"
#include "desktop/SecondStart.h"
#include "kit/SymbolIcon.h"

#include <QApplication>
#include <QByteArrayView>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QTimer>

#include <csignal>
#include <cstdio>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int notWritten = 1;
constexpr int wrongArguments = 2;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

[[noreturn]] void refuse(const QString &sentence)
{
    std::fprintf(stderr, "corvalis: %s\n%s\n", surface::printable(sentence).constData(),
        surface::printable(Texts::tr("Try 'corvalis --help'.")).constData());
    std::exit(wrongArguments);
}

/// Asked to end, the program ends at once and with success, as it does from its menu.
void endOnSignals()
{
    for (const int signal : { SIGINT, SIGTERM, SIGHUP })
        std::signal(signal, [](int) { ::_exit(0); });
}

/// Folder trees are walked with a descriptor for each level.
void allowDeepTrees()
{
    rlimit limit;
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0) {
        limit.rlim_cur = limit.rlim_max;
        ::setrlimit(RLIMIT_NOFILE, &limit);
    }
}

struct UnreadableArgument {
    int number; ///< counted from 1
    QString text; ///< as much as can be read of it
};

/// The first argument that is not text. Asked of the arguments as they were given: the toolkit takes its own out.
std::optional<UnreadableArgument> unreadableArgument(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (!QByteArrayView(argv[i]).isValidUtf8())
            return UnreadableArgument{ i, QString::fromUtf8(argv[i]) };
    }
    return std::nullopt;
}

[[noreturn]] void refuseUnreadable(const UnreadableArgument &argument)
{
    refuse(Texts::tr("argument %1, \"%2\", is not valid UTF-8 text; rename the file and try again.")
               .arg(QString::number(argument.number), argument.text));
}

QString projectNames()
{
    QStringList names;
    for (const ProjectType &type : projects::all)
        names.append(u'"' + QString(type.name) + u'"');
    return names.join(u", "_s);
}

const ProjectType *projectNamed(const QString &name)
{
    for (const ProjectType &type : projects::all) {
        if (name == type.name)
            return &type;
    }
    refuse(Texts::tr("there is no project \"%1\"; it is one of %2.").arg(name, projectNames()));
}

/// What the command line asks for.
struct CommandLine {
    std::optional<BatchJob> job; ///< nothing: a window
    desktop::Request request; ///< what the window is to show
    bool newWindow = false; ///< even where one runs that could show it
};

/// The existing files and the action, for a window.
desktop::Request windowRequest(const QCommandLineParser &parser)
{
    if (parser.isSet(u"show"_s))
        refuse(Texts::tr("--show goes with --burn."));
    if (parser.isSet(u"for-players"_s))
        refuse(BatchRun::playersNeedVideo());
    const QString action = parser.value(u"action"_s);
    if (parser.isSet(u"action"_s) && !desktop::Opening::actions().contains(action))
        refuse(Texts::tr("there is no action \"%1\"; it is one of %2.")
                   .arg(action, desktop::Opening::actions().join(u", "_s)));
    if (parser.isSet(u"action"_s) && !parser.positionalArguments().isEmpty())
        refuse(Texts::tr("--action goes without files."));
    desktop::Request request{ {}, action };
    for (const QString &argument : parser.positionalArguments()) {
        const QString path = BatchRun::meantPath(argument);
        if (argument.isEmpty() || !QFileInfo::exists(path))
            refuse(Texts::tr("%1: there is no such file or folder.").arg(path));
        request.files.append(QUrl::fromLocalFile(path));
    }
    return request;
}

void describeOptions(QCommandLineParser &parser)
{
    parser.setApplicationDescription(Texts::tr(
        "Prepares and writes optical discs.\n\nExit status with --burn: 0 the disc was written and "
        "everything is on "
        "it, 1 it was not written, 2 wrong arguments, 3 it was written but something is not on it; stopped "
        "by a "
        "signal, it ends by that signal.\nA file whose name begins with a dash goes behind \"--\"."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption burn(u"burn"_s,
        Texts::tr("Make a disc of kind <project> from the files and end: %1.").arg(projectNames()),
        Texts::tr("project"));
    const QCommandLineOption show(u"show"_s, Texts::tr("Do so in the window, which stays."));
    const QCommandLineOption newWindow(
        u"new-window"_s, Texts::tr("Open the files in a window of their own, not in the one that runs."));
    const QCommandLineOption action(u"action"_s,
        Texts::tr("Begin <what> in the window: %1.").arg(desktop::Opening::actions().join(u", "_s)),
        Texts::tr("what"));
    const QCommandLineOption players(u"for-players"_s,
        Texts::tr(
            "Make a Video DVD for DVD players, with titles and chapters, whatever the video settings say."));
    parser.addOptions({ burn, show, newWindow, action, players });
    parser.addPositionalArgument(Texts::tr("FILE"),
        Texts::tr("Files, for a data disc also folders; the tracks of an audio CD keep their order. Without "
                  "--burn they are opened in the window: music, films, folders, a disc image or a saved "
                  "list."),
        Texts::tr("[FILE...]"));
}

CommandLine readCommandLine(const QCoreApplication &application)
{
    QCommandLineParser parser;
    describeOptions(parser);
    if (!parser.parse(application.arguments()))
        refuse(
            Texts::tr("%1 A file whose name begins with a dash goes behind \"--\".").arg(parser.errorText()));
    if (parser.isSet(u"help"_s) || parser.isSet(u"help-all"_s))
        parser.showHelp(0);
    if (parser.isSet(u"version"_s))
        parser.showVersion();
    if (!parser.isSet(u"burn"_s))
        return { std::nullopt, windowRequest(parser), parser.isSet(u"new-window"_s) };
    if (parser.isSet(u"new-window"_s) || parser.isSet(u"action"_s))
        refuse(Texts::tr("--new-window and --action go without --burn."));
    if (parser.values(u"burn"_s).size() > 1)
        refuse(Texts::tr("--burn is there more than once."));
    BatchJob job{ projectNamed(parser.value(u"burn"_s)), {}, parser.isSet(u"show"_s),
        parser.isSet(u"for-players"_s) };
    for (const QString &path : parser.positionalArguments())
        job.paths.append(BatchRun::meantPath(path));
    if (const QString objection = BatchRun::objection(job); !objection.isEmpty())
        refuse(objection);
    return { job, {} };
}

int runWindow(const desktop::Request &request)
{
    endOnSignals();
    WindowQuestions questions;
    MainWindow window;
    AppDelegate controller(&window, Surroundings::ofThisMachine(&questions));
    const desktop::JobPresence presence(&controller, desktop::JobPresence::Audience::Person);
    desktop::Opening opening(&controller);
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
    const desktop::ApplicationService service(&opening); // once the window is up, which it must not hold up
    if (!request.isEmpty())
        opening.open(request);
    return QApplication::exec();
}

int runBatch(const BatchJob &job)
{
    surface::hush();
    QLoggingCategory::setFilterRules(u"corvalis.tools.info=false"_s); // the alerts' texts are what is told
    // Whoever reads the progress may stop reading; that is no reason to spoil a disc.
    std::signal(SIGPIPE, SIG_IGN);
    BatchQuestions questions(job.show);
    MainWindow window;
    Surroundings around = Surroundings::ofThisMachine(&questions);
    around.stagingUntilCopied = true;
    around.remembersWindow = job.show;
    const auto exitProcess = around.exitProcess;
    int status = notWritten;
    // However it ends, only a job that came to its end is a success.
    around.exitProcess = [exitProcess, &status](int) { exitProcess(status); };
    AppDelegate controller(&window, around);
    QObject::connect(&controller, &AppDelegate::jobBegan, &window, [&status](writing::Job *begun) {
        QObject::connect(begun, &writing::Job::ended, begun,
            [&status](const writing::Outcome &outcome) { status = outcome.exitStatus(); });
    });
    using desktop::JobPresence;
    const JobPresence presence(
        &controller, job.show ? JobPresence::Audience::Person : JobPresence::Audience::Nobody);
    BatchRun batch(job, &controller, &questions, [exitProcess](int end) {
        StopOnSignals::endByCaughtOne();
        exitProcess(end);
    });
    const StopOnSignals signals([&batch] { return batch.stop(); });
    controller.awakeFromNib();
    controller.applicationDidFinishLaunching();
    QTimer::singleShot(0, &batch, &BatchRun::start);
    return QApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    allowDeepTrees();
    surface::knowHome();
    const std::optional<UnreadableArgument> unreadable = unreadableArgument(argc, argv);
    const surface::Place place = surface::choose(argc, argv);
    const desktop::Activation activation = desktop::Activation::ofThisStart();
    QApplication application(argc, argv);
    surface::chosen(place);
    QCoreApplication::setApplicationName(u"corvalis"_s);
    QGuiApplication::setApplicationDisplayName(u"Corvalis"_s);
    QGuiApplication::setDesktopFileName(desktop::identity);
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVALIS_VERSION));
    QApplication::setWindowIcon(applicationIcon());
    languages::speak();
    if (unreadable)
        refuseUnreadable(*unreadable);
    const CommandLine asked = readCommandLine(application);
    if (place == surface::Place::DisplayMissing)
        surface::endWithoutDisplay();
    if (asked.job)
        return runBatch(*asked.job);
    const bool mayHandOver = !asked.request.isEmpty() && !asked.newWindow;
    if (mayHandOver && desktop::handOver(asked.request, activation))
        return 0;
    return runWindow(asked.request);
}
