#include "app/Surface.h"

#include <QByteArrayView>
#include <QCoreApplication>
#include <QtGlobal>

#include <cstdio>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace surface {
namespace {

QtMessageHandler toolkitsHandler = nullptr;

void tellOwnMessages(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg || QByteArrayView(context.category).startsWith("corvalis"))
        toolkitsHandler(type, context, text);
}

/// A display that is named but does not answer is fatal to the toolkit. A sentence serves a person better
/// than a core dump.
void endWhereNoDisplayAnswers(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg)
        endWithoutDisplay();
    toolkitsHandler(type, context, text);
}

void install(QtMessageHandler handler)
{
    const QtMessageHandler before = qInstallMessageHandler(handler);
    if (!toolkitsHandler)
        toolkitsHandler = before;
}

Place askedPlace(int argc, char **argv)
{
    bool windowless = false;
    bool shown = false;
    bool platformNamed = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    for (int i = 1; i < argc && qstrcmp(argv[i], "--") != 0; ++i) {
        const QByteArrayView argument(argv[i]);
        shown = shown || argument == "--show";
        windowless = windowless || argument.startsWith("--burn") || argument.startsWith("--help")
            || argument == "-h" || argument == "--version" || argument == "-v";
        platformNamed = platformNamed || argument == "-platform" || argument == "--platform";
    }
    if (windowless && !shown)
        return Place::Nowhere;
    const bool display =
        !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    return display || platformNamed ? Place::Display : Place::DisplayMissing;
}

} // namespace

void knowHome()
{
    if (!qEnvironmentVariableIsEmpty("HOME"))
        return;
    if (const passwd *person = ::getpwuid(::getuid()))
        qputenv("HOME", person->pw_dir);
}

Place choose(int argc, char **argv)
{
    const Place place = askedPlace(argc, argv);
    if (place == Place::Display) {
        install(endWhereNoDisplayAnswers);
    } else {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        hush();
    }
    return place;
}

void chosen(Place place)
{
    if (place == Place::Display)
        install(toolkitsHandler);
}

void hush()
{
    install(tellOwnMessages);
}

QByteArray printable(QString text)
{
    for (QChar &c : text) {
        if (c.category() == QChar::Other_Control && c != u'\n' && c != u'\t')
            c = QChar::ReplacementCharacter;
    }
    return text.toUtf8();
}

void endWithoutDisplay()
{
    const QString sentence = QCoreApplication::translate("Surface",
        "corvalis: there is no display for the window. Start it on a desktop, or use --burn, which needs "
        "none.");
    std::fprintf(stderr, "%s\n", printable(sentence).constData());
    std::_Exit(1);
}

} // namespace surface
