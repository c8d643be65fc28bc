// The verbs that write nothing: list, status, insert, tray, erase, and wrong command lines.
#include "Drutil.h"

#include <unistd.h>

using namespace Qt::StringLiterals;

class VerbsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_drutil = std::make_unique<Drutil>(); }

    void listMakesARecorderWithABlank()
    {
        const Ran ran = (*m_drutil)({ u"list"_s });
        QCOMPARE(ran.exit, 0);
        QCOMPARE(ran.err, QString());
        const QStringList lines = ran.out.split(u'\n');
        QCOMPARE(lines.first(), u"   Vendor   Product           Rev   Bus       SupportLevel"_s);
        QCOMPARE(
            lines.at(lines.size() - 2).mid(1), u"  CORVALIS Virtual Recorder  1.0   Virtual   Supported"_s);
        QCOMPARE(m_drutil->fact(u"Type:"_s).section(u' ', 0, 0), u"CD-R"_s);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"appendable, blank, overwritable"_s);
        QCOMPARE((*m_drutil)({ u"list"_s }).out, ran.out);
    }

    void virtualRecordersCanBeHidden()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        m_drutil->environment().insert(u"CORVALIS_VIRTUAL"_s, u"off"_s);
        QVERIFY(!(*m_drutil)({ u"list"_s }).out.contains(u"Virtual"_s));
    }

    void aValueOfTheEnvironmentThatSaysNothingIsRefused()
    {
        m_drutil->environment().insert(u"CORVALIS_VIRTUAL"_s, u"yes please"_s);
        for (const QStringList &verb : { QStringList{ u"list"_s }, QStringList{ u"status"_s } }) {
            const Ran ran = (*m_drutil)(verb);
            QCOMPARE(ran.exit, 1);
            QCOMPARE(ran.out, QString()); // not even the header of a table
            QCOMPARE(ran.err,
                u"drutil: CORVALIS_VIRTUAL has the value \"yes please\", which says nothing: "
                "set it to one of auto, off, always, only.\n"_s);
        }
        QVERIFY(!QFile::exists(m_drutil->recorders()));
    }

    void theAdviceFitsTheEnvironment_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("advice");
        QTest::newRow("only") << u"only"_s
                              << u"There is no drive: let 'drutil list' make a virtual recorder."_s;
        QTest::newRow("off")
            << u"off"_s
            << u"There is no drive: connect one, or unset CORVALIS_VIRTUAL, which hides the virtual recorders."_s;
    }

    void theAdviceFitsTheEnvironment()
    {
        QFETCH(QString, value);
        QFETCH(QString, advice);
        m_drutil->environment().insert(u"CORVALIS_VIRTUAL"_s, value);
        if (value != u"only" && (*m_drutil)({ u"list"_s }).out.count(u'\n') > 1)
            QSKIP("this machine has a drive");
        const Ran ran = (*m_drutil)({ u"status"_s });
        QCOMPARE(ran.exit, 3);
        QCOMPARE(ran.err, u"drutil: "_s + advice + u'\n');
    }

    void aVerbHasItsOwnHelp()
    {
        const QString all = (*m_drutil)({ u"help"_s }).out;
        QCOMPARE((*m_drutil)({ u"--help"_s }).out, all);
        for (const char *verb : { "list", "status", "burn", "erase", "tray", "folder", "insert" }) {
            const QString name = QString::fromLatin1(verb);
            const Ran ran = (*m_drutil)({ name, u"--help"_s });
            QCOMPARE(ran.exit, 0);
            QCOMPARE(ran.out, (*m_drutil)({ u"help"_s, name }).out);
            QVERIFY2(ran.out.startsWith(u"Usage: drutil "_s + name), qPrintable(ran.out));
            const QString told = ran.out.section(u"\n\n"_s, 1, 1);
            QVERIFY2(told.startsWith(u"  "_s + name) && all.contains(told), qPrintable(ran.out));
        }
        QVERIFY(!QFile::exists(m_drutil->recorders())); // nothing else was done
    }

    void onlyListMakesARecorder()
    {
        const Ran ran = (*m_drutil)({ u"status"_s });
        QCOMPARE(ran.exit, 3);
        QVERIFY(!QFile::exists(m_drutil->recorders()));
    }

    void aListThatCannotMakeARecorderIsOneLine()
    {
        // Callers read errors and reports from one pipe: a second line would be taken for a drive.
        QVERIFY(writeFile(m_drutil->recorders(), "in the way"));
        const Ran ran = (*m_drutil)({ u"list"_s });
        QCOMPARE(ran.exit, 1);
        QCOMPARE(ran.out, QString());
        QCOMPARE(ran.err.count(u'\n'), 1);
    }

    void numbersOfRecorders()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        for (int i = 2; i <= 12; ++i) {
            QVERIFY(QDir().mkpath(m_drutil->recorder(i)));
            QVERIFY(writeFile(m_drutil->recorder(i) + u"/recorder.ini"_s,
                "[recorder]\nproduct=Number " + QByteArray::number(i) + "\n[medium]\nkind=none\n"));
        }
        const QStringList lines = (*m_drutil)({ u"list"_s }).out.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 13);
        const QString numbers = u"123456789abc"_s;
        for (int i = 2; i <= 12; ++i) {
            QCOMPARE(lines.at(i).at(0), numbers.at(i - 1));
            QCOMPARE(lines.at(i).mid(12, 16).trimmed(), u"Number %1"_s.arg(i));
        }
        QCOMPARE((*m_drutil)({ u"insert"_s, u"-drive"_s, u"b"_s, u"bd-r"_s }).exit, 0);
        QVERIFY(m_drutil->state(11).contains("kind=bd-r"));
        QVERIFY((*m_drutil)({ u"status"_s, u"-drive"_s, u"b"_s }).out.contains(u"Type: BD-R"_s));
        const Ran ambiguous = (*m_drutil)({ u"status"_s });
        QCOMPARE(ambiguous.exit, 2);
        QVERIFY(ambiguous.err.contains(u"12 drives"_s));
    }

    void commandLines_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("exit");
        const auto row = [](const char *name, const QStringList &arguments, int exit) {
            QTest::newRow(name) << arguments << exit;
        };
        row("nothing", {}, 2);
        row("unknown verb", { u"format"_s }, 2);
        row("status of drive 1", { u"status"_s, u"-drive"_s, u"1"_s }, 0);
        row("option before operand", { u"erase"_s, u"-drive"_s, u"1"_s, u"quick"_s }, 1);
        row("option after operand", { u"erase"_s, u"quick"_s, u"-drive"_s, u"1"_s }, 1);
        row("no such drive", { u"status"_s, u"-drive"_s, u"7"_s }, 3);
        row("no drive character", { u"status"_s, u"-drive"_s, u"A"_s }, 3);
        row("long number", { u"status"_s, u"-drive"_s, u"11"_s }, 2);
        row("number missing", { u"status"_s, u"-drive"_s }, 2);
        row("two numbers", { u"status"_s, u"-drive"_s, u"1"_s, u"-drive"_s, u"1"_s }, 2);
        row("operand missing", { u"burn"_s }, 2);
        row("operands too many", { u"burn"_s, u"a"_s, u"b"_s }, 2);
        row("operand not wanted", { u"list"_s, u"all"_s }, 2);
        row("unknown option", { u"burn"_s, u"-fast"_s, u"x"_s }, 2);
        row("audio elsewhere", { u"status"_s, u"-audio"_s }, 2);
        row("erase what", { u"erase"_s, u"some"_s }, 2);
        row("tray what", { u"tray"_s, u"open"_s }, 2);
        row("insert what", { u"insert"_s, u"floppy"_s }, 2);
        row("folder that is not there", { u"burn"_s, u"/no/such/folder"_s }, 1);
        row("folder after the end of options", { u"burn"_s, u"--"_s, u"-audio"_s }, 1);
        row("help", { u"--help"_s }, 0);
        row("version", { u"--version"_s }, 0);
    }

    void commandLines()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, exit);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = (*m_drutil)(arguments);
        QCOMPARE(ran.exit, exit);
        QCOMPARE(ran.err.isEmpty(), exit == 0);
        QCOMPARE(ran.err.contains(u"\nUsage: drutil "_s), exit == 2);
        QCOMPARE(ran.err.count(u'\n'), exit == 0 ? 0 : exit == 2 ? 2 : 1);
    }

    void aDriveThatIsNotThereIsNamed_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("name");
        QTest::newRow("digit") << u"9"_s << u"drive \"9\""_s;
        QTest::newRow("capital") << u"A"_s << u"drive \"A\""_s;
        QTest::newRow("line break") << u"\n"_s << u"drive \"\\x0a\""_s;
    }

    void aDriveThatIsNotThereIsNamed()
    {
        QFETCH(QString, number);
        QFETCH(QString, name);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        for (const QStringList &verb : { QStringList{ u"status"_s }, QStringList{ u"tray"_s, u"eject"_s },
                 QStringList{ u"erase"_s, u"full"_s }, QStringList{ u"burn"_s, QDir::homePath() } }) {
            const Ran ran = (*m_drutil)(verb + QStringList{ u"-drive"_s, number });
            QCOMPARE(ran.exit, 3);
            QVERIFY2(ran.err.contains(name), qPrintable(ran.err));
        }
    }

    // None of the words that callers search a status for may be in the error of one.
    void errorsOfAStatusHoldNoKeyword()
    {
        QVERIFY(m_drutil->insert(u"dvd-rw"_s));
        const QString path = m_drutil->path(u"DVD CD BD erasable"_s);
        QVERIFY(QFile::rename(m_drutil->recorders(), path));
        m_drutil->environment().insert(u"CORVALIS_RECORDERS"_s, path);
        QVERIFY(writeFile(path + u"/1/recorder.ini"_s, "kind=DVD overwritable"));
        QList<Ran> runs{ (*m_drutil)({ u"status"_s }), (*m_drutil)({ u"status"_s, u"-drive"_s, u"9"_s }) };
        m_drutil->environment().insert(u"CORVALIS_RECORDERS"_s, path + u"/1/recorder.ini"_s);
        runs << (*m_drutil)({ u"status"_s });
        for (const Ran &ran : runs) {
            QVERIFY(ran.exit != 0);
            QVERIFY(!ran.err.isEmpty());
            for (const char *word : { "DVD", "CD", "BD", "overwritable", "erasable", "No Media Inserted" })
                QVERIFY2(!ran.err.contains(QLatin1StringView(word)), qPrintable(ran.err));
        }
    }

    void everyErrorSaysWhatToDo_data()
    {
        QTest::addColumn<QStringList>(
            "arguments"); // % is a folder with a text "1.wav" and the text "file" in it
        QTest::addColumn<QString>("advice");
        const auto row = [](const char *title, const QStringList &arguments, const QString &advice) {
            QTest::newRow(title) << arguments << advice;
        };
        row("no folder", { u"burn"_s, u"%/gone"_s }, u"; check its name."_s);
        row("a file", { u"burn"_s, u"%/file"_s }, u"; name a folder, or put one in the place of the file."_s);
        row("no folder of tracks", { u"burn"_s, u"-audio"_s, u"%/gone"_s }, u"; check its name."_s);
        row("no track", { u"burn"_s, u"-audio"_s, u"%"_s }, u"; convert it or take it out of the folder."_s);
        row("a folder in the way", { u"erase"_s, u"quick"_s }, u"; move the folder of that name away."_s);
    }

    void everyErrorSaysWhatToDo()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, advice);
        const QString folder = m_drutil->path(u"some"_s);
        QVERIFY(QDir().mkpath(folder) && writeFile(folder + u"/file"_s, "x"));
        QVERIFY(writeFile(folder + u"/1.wav"_s, "x"));
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QVERIFY(QDir().mkpath(m_drutil->recorder() + u"/disc.iso"_s));
        const Ran ran = (*m_drutil)(arguments.replaceInStrings(u"%"_s, folder));
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(advice + u" The disc in drive 1 "_s), qPrintable(ran.err));
    }

    void kinds_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("blocks");
        const QString once = u"appendable, blank, overwritable"_s;
        const QString erase = u"appendable, blank, erasable, overwritable"_s;
        const QString over = u"erasable, overwritable"_s;
        QTest::newRow("cd-r") << u"CD-R"_s << once << u"359844"_s;
        QTest::newRow("cd-rw") << u"CD-RW"_s << erase << u"359844"_s;
        QTest::newRow("dvd-r") << u"DVD-R"_s << once << u"2298496"_s;
        QTest::newRow("dvd+r") << u"DVD+R"_s << once << u"2295104"_s;
        QTest::newRow("dvd-rw") << u"DVD-RW"_s << erase << u"2298496"_s;
        QTest::newRow("dvd+rw") << u"DVD+RW"_s << over << u"2295104"_s;
        QTest::newRow("bd-r") << u"BD-R"_s << once << u"12219392"_s;
        QTest::newRow("bd-re") << u"BD-RE"_s << over << u"12219392"_s;
    }

    void kinds()
    {
        QVERIFY(m_drutil->insert(QString::fromLatin1(QTest::currentDataTag())));
        const Ran ran = (*m_drutil)({ u"status"_s });
        QTEST(m_drutil->fact(u"Type:"_s).section(u' ', 0, 0), "type");
        QTEST(m_drutil->fact(u"Writability:"_s), "words");
        QTEST(m_drutil->fact(u"Space Free:"_s).section(u"blocks:"_s, 1).trimmed().section(u' ', 0, 0),
            "blocks");
        QVERIFY(!ran.out.contains(m_drutil->recorders()));
    }

    void anEmptyRecorder()
    {
        QVERIFY(m_drutil->insert(u"none"_s));
        QCOMPARE((*m_drutil)({ u"status"_s }).out, u"           Type: No Media Inserted\n"_s);
        QCOMPARE((*m_drutil)({ u"erase"_s, u"quick"_s }).exit, 3);
        QCOMPARE((*m_drutil)({ u"burn"_s, QDir::homePath() }).exit, 3);
        QCOMPARE((*m_drutil)({ u"tray"_s, u"eject"_s }).exit, 0);
        QVERIFY(m_drutil->state().contains("tray=open"));
        QCOMPARE((*m_drutil)({ u"status"_s }).out, u"           Type: No Media Inserted\n"_s);
        QCOMPARE((*m_drutil)({ u"tray"_s, u"close"_s }).exit, 0);
        QVERIFY(m_drutil->state().contains("tray=closed"));
        QCOMPARE((*m_drutil)({ u"insert"_s, u"cd-r"_s }).exit, 0);
        QCOMPARE(m_drutil->fact(u"Type:"_s).section(u' ', 0, 0), u"CD-R"_s);
    }

    void anEjectedBlankIsFollowedByABlank()
    {
        QVERIFY(m_drutil->insert(u"dvd+r"_s));
        QCOMPARE((*m_drutil)({ u"tray"_s, u"eject"_s }).exit, 0);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"appendable, blank, overwritable"_s);
        QVERIFY(!QFile::exists(m_drutil->recorder() + u"/discs"_s));
    }

    void aRecorderTellsItsFolder()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"folder"_s, u"-drive"_s, u"1"_s }).out, m_drutil->recorder() + u'\n');
        QCOMPARE((*m_drutil)({ u"folder"_s, u"-drive"_s, u"7"_s }).exit, 3);
    }

    void writeOnceMediaAreNotErased()
    {
        for (const auto &kind : { u"cd-r"_s, u"dvd-r"_s, u"dvd+r"_s, u"bd-r"_s }) {
            QVERIFY(m_drutil->insert(kind));
            const Ran ran = (*m_drutil)({ u"erase"_s, u"quick"_s });
            QCOMPARE(ran.exit, 1);
            QVERIFY(ran.err.contains(u"insert a rewritable disc"_s));
        }
    }

    void aBrokenRecorderIsListedAndRepaired()
    {
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QVERIFY(writeFile(m_drutil->recorder() + u"/recorder.ini"_s, QByteArray("\0\1\2", 3)));
        QVERIFY(writeFile(m_drutil->recorder() + u"/disc.iso"_s, "kept"));
        const Ran list = (*m_drutil)({ u"list"_s });
        QCOMPARE(list.exit, 0);
        QVERIFY(list.out.contains(u"  CORVALIS Virtual Recorder  1.0   Virtual   Damaged"_s));
        QVERIFY((*m_drutil)({ u"status"_s })
                    .err.contains(u"cannot be understood in line 1; a new medium repairs it"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, QDir::homePath() }).exit, 1);
        QCOMPARE((*m_drutil)({ u"insert"_s, u"dvd-r"_s }).exit, 0);
        QCOMPARE(m_drutil->fact(u"Type:"_s).section(u' ', 0, 0), u"DVD-R"_s);
        const QDir discs(m_drutil->recorder() + u"/discs"_s);
        QCOMPARE(discs.entryList(QDir::Files).size(), 1);
        QCOMPARE(readFile(discs.filePath(discs.entryList(QDir::Files).first())), "kept");
    }

    void aRecorderThatCannotBeWritten()
    {
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QVERIFY(QFile::setPermissions(m_drutil->recorder(), QFile::ReadOwner | QFile::ExeOwner));
        const auto unprivileged = [this](const QStringList &arguments) {
            const QStringList command = heedingPermissions(QStringList{ Drutil::program() } + arguments);
            return runProgram(command.first(), command.mid(1), m_drutil->environment());
        };
        const QByteArray before = m_drutil->state();
        QCOMPARE(unprivileged({ u"status"_s }).exit, 0);
        for (const QStringList &verb :
            { QStringList{ u"burn"_s, QDir::homePath() }, QStringList{ u"erase"_s, u"full"_s },
                QStringList{ u"tray"_s, u"eject"_s }, QStringList{ u"insert"_s, u"cd-r"_s } }) {
            const Ran ran = unprivileged(verb);
            QCOMPARE(ran.exit, 1);
            QVERIFY2(ran.err.contains(u"cannot be written: "_s), qPrintable(ran.err));
        }
        QCOMPARE(m_drutil->state(), before);
        QVERIFY(QFile::setPermissions(
            m_drutil->recorder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void aFullOutputIsAnError()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = runProgram(u"/bin/sh"_s,
            { u"-c"_s, u"\"$0\" status > /dev/full"_s, Drutil::program() }, m_drutil->environment());
        QCOMPARE(ran.exit, 1);
        QVERIFY(ran.err.contains(u"cannot be written to the output"_s));
    }

private:
    std::unique_ptr<Drutil> m_drutil;
};

QTEST_GUILESS_MAIN(VerbsTest)
#include "VerbsTest.moc"
