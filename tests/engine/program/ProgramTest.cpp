// Command lines: verbs, options, operands, and the exit codes of what goes wrong.
#include "program/Program.h"

#include <QtTest>

#include <new>

using namespace engine;
using namespace engine::program;
using namespace Qt::StringLiterals;

namespace {

QStringList given;

/// Notes the operands, then the options with their values.
Result<void> note(const Arguments &arguments)
{
    for (const std::string &operand : arguments.operands)
        given.append(QString::fromStdString(operand));
    for (const auto &[name, value] : arguments.options)
        given.append(QString::fromStdString(name + '=' + value));
    return {};
}

Result<void> fail(const Arguments &arguments)
{
    return arguments.has("-usage") ? usageError("It is called otherwise.")
                                   : Error{ Exit::noDisc, "There is no disc." };
}

Result<void> runOutOfMemory(const Arguments &)
{
    throw std::bad_alloc();
}

bool isOneCharacter(std::string_view value)
{
    return value.size() == 1;
}

constexpr std::array options{ Option{ "-number", "-number wants one character.", isOneCharacter },
    Option{ "-name", "-name wants a name." }, Option{ "-flag" } };
constexpr std::array failOptions{ Option{ "-usage" } };
constexpr std::array verbs{
    Verb{ "none", "none [OPTION...]", 0, options, note },
    Verb{ "two", "two A B [OPTION...]", 2, options, note },
    Verb{ "fail", "fail [-usage]", 0, failOptions, fail },
    Verb{ "throw", "throw", 0, {}, runOutOfMemory },
};

} // namespace

class ProgramTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void commandLines_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<int>("exit");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *title, const QString &words, int exit,
                             const QStringList &expected = {}) {
            QTest::newRow(title) << words.split(u' ', Qt::SkipEmptyParts) << exit << expected;
        };
        row("nothing", u""_s, 2);
        row("unknown verb", u"three"_s, 2);
        row("help", u"--help"_s, 0);
        row("short help", u"-h"_s, 0);
        row("help as a verb", u"help"_s, 0);
        row("help of a verb", u"help two"_s, 0);
        row("help of an unknown verb", u"help three"_s, 2);
        row("help behind a verb", u"two --help"_s, 0);
        row("help behind operands", u"two a b -h"_s, 0);
        row("a name like help", u"two -- --help -h"_s, 0, { u"--help"_s, u"-h"_s });
        row("version", u"--version"_s, 0);
        row("no operands", u"none"_s, 0);
        row("operands", u"two a b"_s, 0, { u"a"_s, u"b"_s });
        row("too few", u"two a"_s, 2);
        row("too many", u"none a"_s, 2);
        row("options before", u"two -flag -number 1 a b"_s, 0,
            { u"a"_s, u"b"_s, u"-flag="_s, u"-number=1"_s });
        row("options between", u"two a -name x b -flag"_s, 0, { u"a"_s, u"b"_s, u"-flag="_s, u"-name=x"_s });
        row("a flag twice", u"none -flag -flag"_s, 0, { u"-flag="_s });
        row("a value twice", u"none -name x -name x"_s, 2);
        row("a value missing", u"none -name"_s, 2);
        row("a value like an option", u"none -name -flag"_s, 0, { u"-name=-flag"_s });
        row("a wrong value", u"none -number 12"_s, 2);
        row("an unknown option", u"none -other"_s, 2);
        row("the option of another verb", u"fail -flag"_s, 2);
        row("end of options", u"two -- -flag --"_s, 0, { u"-flag"_s, u"--"_s });
        row("a dash is an operand", u"two - b"_s, 0, { u"-"_s, u"b"_s });
        row("failure", u"fail"_s, 3);
        row("usage told by the verb", u"fail -usage"_s, 2);
        row("no memory", u"throw"_s, 1);
    }

    void commandLines()
    {
        QFETCH(QStringList, words);
        QFETCH(int, exit);
        QFETCH(QStringList, expected);
        given.clear();
        QByteArrayList bytes;
        std::vector<const char *> argv;
        for (const QString &word : words)
            bytes.append(word.toUtf8());
        for (const QByteArray &word : bytes)
            argv.push_back(word.constData());
        QCOMPARE(run({ "program", "VERB [OPTION...]", "Help\n", verbs }, argv), exit);
        QCOMPARE(given, expected);
    }
};

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
