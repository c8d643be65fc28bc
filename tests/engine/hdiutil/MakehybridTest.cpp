// hdiutil makehybrid as a person or a program runs it.
#include "../drutil/Drutil.h"
#include "../image/Trees.h"
#include "support/OwnMounts.h"

#include <csignal>

using namespace Qt::StringLiterals;

class MakehybridTest : public QObject {
    Q_OBJECT

    static QString program() { return qEnvironmentVariable("CORVALIS_BIN") + u"/hdiutil"_s; }
    static QString text(const std::string &path) { return QString::fromStdString(path); }

    static Ran make(const std::string &image, const std::string &source)
    {
        return runProgram(
            program(), { u"makehybrid"_s, u"-o"_s, text(image), text(source), u"-iso"_s, u"-joliet"_s });
    }

    /// A folder whose image takes a while to write.
    static void makeSlowFolder(const Scratch &scratch)
    {
        QVERIFY(makeFolder(scratch.path("t")));
        QVERIFY(sparseFile(text(scratch.path("t/large")), 3000LL * 1000 * 1000));
    }

    /// Starts to make i.iso of the folder t and waits until there is something of it, named or not.
    static std::unique_ptr<QProcess> startMaking(const Scratch &scratch)
    {
        auto process = std::make_unique<QProcess>();
        process->start(program(),
            { u"makehybrid"_s, u"-o"_s, text(scratch.path("i.iso")), text(scratch.path("t")), u"-iso"_s,
                u"-joliet"_s });
        const auto begun = [&] {
            const QDir open(u"/proc/%1/fd"_s.arg(process->processId()));
            for (const QFileInfo &file : open.entryInfoList(QDir::Files | QDir::System)) {
                struct stat info { };
                const bool image = file.symLinkTarget().contains(u"/#"_s)
                    || file.symLinkTarget() == text(scratch.path("i.iso"));
                if (image && stat(file.filePath().toLocal8Bit().constData(), &info) == 0 && info.st_size > 0)
                    return true;
            }
            return false;
        };
        if (!QTest::qWaitFor([&] { return begun() || process->state() == QProcess::NotRunning; }, 60000))
            qWarning("no image was begun");
        return process;
    }

private Q_SLOTS:
    void options_data()
    {
        QTest::addColumn<QStringList>("arguments"); // @ image, % source
        QTest::newRow("as the application")
            << QStringList{ u"-o"_s, u"@"_s, u"%"_s, u"-iso"_s, u"-joliet"_s };
        QTest::newRow("options first") << QStringList{ u"-joliet"_s, u"-iso"_s, u"-o"_s, u"@"_s, u"%"_s };
        QTest::newRow("source first") << QStringList{ u"%"_s, u"-iso"_s, u"-joliet"_s, u"-o"_s, u"@"_s };
        QTest::newRow("end of options")
            << QStringList{ u"-iso"_s, u"-joliet"_s, u"-o"_s, u"@"_s, u"--"_s, u"%"_s };
    }

    void options()
    {
        QFETCH(QStringList, arguments);
        Scratch scratch;
        QVERIFY(makePlainTree(scratch.path("Some Folder")));
        arguments.replaceInStrings(u"@"_s, text(scratch.path("i.iso")))
            .replaceInStrings(u"%"_s, text(scratch.path("Some Folder")));
        const Ran ran = runProgram(program(), QStringList{ u"makehybrid"_s } + arguments);
        QCOMPARE(ran.err, QString());
        QCOMPARE(ran.exit, 0);
        QVERIFY2(ran.out.contains(u"\nDone: "), qPrintable(ran.out));
        QVERIFY(extractJoliet(scratch.path("i.iso"), scratch.path("joliet")));
        QCOMPARE(difference(list(scratch.path("Some Folder")), list(scratch.path("joliet"))), QByteArray());
    }

    void wrongArguments_data()
    {
        QTest::addColumn<QStringList>("arguments");
        const QString m = u"makehybrid"_s, o = u"-o"_s, i = u"-iso"_s, j = u"-joliet"_s;
        QTest::newRow("nothing") << QStringList{};
        QTest::newRow("unknown verb") << QStringList{ u"attach"_s, u"x"_s };
        QTest::newRow("no source") << QStringList{ m, o, u"i"_s, i, j };
        QTest::newRow("no image") << QStringList{ m, u"."_s, i, j };
        QTest::newRow("-o at the end") << QStringList{ m, u"."_s, i, j, o };
        QTest::newRow("empty image name") << QStringList{ m, u"."_s, i, j, o, QString() };
        QTest::newRow("two images") << QStringList{ m, o, u"i"_s, o, u"j"_s, u"."_s, i, j };
        QTest::newRow("two sources") << QStringList{ m, o, u"i"_s, u"."_s, u".."_s, i, j };
        QTest::newRow("unknown option") << QStringList{ m, o, u"i"_s, u"."_s, i, j, u"-udf"_s };
        QTest::newRow("no -joliet") << QStringList{ m, o, u"i"_s, u"."_s, i };
        QTest::newRow("burn: nothing") << QStringList{ u"burn"_s };
        QTest::newRow("burn: option") << QStringList{ u"burn"_s, o, u"i"_s };
        QTest::newRow("burn: two images") << QStringList{ u"burn"_s, u"a"_s, u"b"_s };
    }

    void wrongArguments()
    {
        QFETCH(QStringList, arguments);
        const Ran ran = runProgram(program(), arguments);
        QCOMPARE(ran.exit, 2);
        QVERIFY2(ran.err.contains(u"\nUsage: hdiutil "), qPrintable(ran.err));
        QCOMPARE(ran.out, QString());
    }

    void help()
    {
        const Ran ran = runProgram(program(), { u"--help"_s });
        QCOMPARE(ran.exit, 0);
        QVERIFY(ran.out.contains(u"makehybrid -o IMAGE SOURCE -iso -joliet"));
        QCOMPARE(runProgram(program(), { u"help"_s }).out, ran.out);
        const Ran verb = runProgram(program(), { u"burn"_s, u"--help"_s });
        QVERIFY2(verb.exit == 0 && verb.out.startsWith(u"Usage: hdiutil burn "_s), qPrintable(verb.out));
        QCOMPARE(runProgram(program(), { u"--version"_s }).exit, 0);
    }

    void awkwardTree()
    {
        Scratch scratch;
        QVERIFY(makeAwkwardTree(scratch.path("t")));
        QCOMPARE(symlink("README", scratch.path("t/link").c_str()), 0);
        QCOMPARE(symlink("nowhere", scratch.path("t/dangling").c_str()), 0);
        QCOMPARE(symlink("loop", scratch.path("t/loop").c_str()), 0);
        const Ran ran = make(scratch.path("i.iso"), scratch.path("t"));
        QCOMPARE(ran.exit, 0);
        const QStringList notes = notesIn(ran.err);
        QVERIFY2(
            notes.contains(u"\"dangling\" is left out: the link points to nothing."_s), qPrintable(ran.err));
        QVERIFY2(
            notes.contains(u"\"loop\" is left out: the link leads back to itself."_s), qPrintable(ran.err));
        QCOMPARE(ran.err.count(u'\n'), notes.size());
        QVERIFY2(!ran.err.contains(text(scratch.path())), qPrintable(ran.err));
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(difference(list(scratch.path("t"), followLinks), list(scratch.path("out"))), QByteArray());
    }

    void whatCannotBeReadIsLeftOut()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/open"), "data") && makeFile(scratch.path("t/closed"), "secret"));
        QCOMPARE(chmod(scratch.path("t/closed").c_str(), 0), 0);
        const QStringList command = heedingPermissions({ program(), u"makehybrid"_s, u"-o"_s,
            text(scratch.path("i.iso")), text(scratch.path("t")), u"-iso"_s, u"-joliet"_s });
        const Ran ran = runProgram(command.first(), command.mid(1));
        QCOMPARE(ran.err, u"note: \"closed\" is left out: it cannot be read: permission denied.\n"_s);
        QCOMPARE(ran.exit, 0);
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(list(scratch.path("out")).size(), 1U);
        QCOMPARE(contentOf(scratch.path("out/open")), std::string("data"));
        QCOMPARE(unlink(scratch.path("i.iso").c_str()) + unlink(scratch.path("t/open").c_str()), 0);
        const Ran nothing = runProgram(command.first(), command.mid(1));
        QCOMPARE(nothing.exit, 1);
        QVERIFY2(nothing.err.contains(u"/t\": \"closed\" is left out"), qPrintable(nothing.err));
        QVERIFY(access(scratch.path("i.iso").c_str(), F_OK) != 0);
    }

    void whatTurnsOutToBeUnreadableIsLeftOutToo()
    {
        // The kernel lets nobody read such a file, whatever root may do elsewhere.
        QStringList closed;
        QDirIterator files(
            u"/sys/bus"_s, { u"uevent"_s }, QDir::Files | QDir::System, QDirIterator::Subdirectories);
        while (files.hasNext() && closed.size() < 2) {
            const QString path = files.next();
            struct stat info { };
            if (stat(path.toLocal8Bit().constData(), &info) == 0 && (info.st_mode & 0777) == 0200
                && info.st_size > 0)
                closed.append(path);
        }
        if (closed.size() < 2)
            QSKIP("this system has no files that nobody may read");
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/open"), "data") && makeFile(scratch.path("t/z"), "last"));
        QVERIFY(makeFolder(scratch.path("t/inner")));
        QCOMPARE(symlink(closed.at(0).toLocal8Bit().constData(), scratch.path("t/closed").c_str()), 0);
        QCOMPARE(symlink(closed.at(1).toLocal8Bit().constData(), scratch.path("t/inner/closed").c_str()), 0);
        const Ran ran = make(scratch.path("i.iso"), scratch.path("t"));
        QCOMPARE(ran.exit, 0);
        QStringList notes = notesIn(ran.err);
        notes.sort();
        QCOMPARE(notes.size(), 2);
        QVERIFY2(notes.at(0).startsWith(u"\"closed\" is left out: "_s)
                && notes.at(1).startsWith(u"\"inner/closed\" is left out: "_s),
            qPrintable(ran.err));
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(list(scratch.path("out")),
            (Listing{ { "inner", "folder" }, { "open", list(scratch.path("t")).at("open") },
                { "z", list(scratch.path("t")).at("z") } }));
    }

    void existingImageIsRefused()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "x") && makeFile(scratch.path("i.iso"), "precious"));
        const Ran ran = make(scratch.path("i.iso"), scratch.path("t"));
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"i.iso\" exists already"), qPrintable(ran.err));
        QCOMPARE(contentOf(scratch.path("i.iso")), std::string("precious"));
        QCOMPARE(symlink("nowhere", scratch.path("dangling.iso").c_str()), 0);
        QCOMPARE(make(scratch.path("dangling.iso"), scratch.path("t")).exit, 1);
    }

    void imageInsideTheSource()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "x"));
        QCOMPARE(make(scratch.path("t/i.iso"), scratch.path("t")).exit, 0);
        QVERIFY(extractRockRidge(scratch.path("t/i.iso"), scratch.path("out")));
        QCOMPARE(list(scratch.path("out")).size(), 1U);
    }

    void sourceThatIsNoFolder_data()
    {
        QTest::addColumn<QString>("source");
        QTest::newRow("missing") << u"missing"_s;
        QTest::newRow("file") << u"file"_s;
    }

    void sourceThatIsNoFolder()
    {
        QFETCH(QString, source);
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("file"), "x"));
        const Ran ran = make(scratch.path("i.iso"), scratch.path(source.toStdString()));
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u'/' + source + u"\" cannot be read"_s), qPrintable(ran.err));
        QVERIFY(access(scratch.path("i.iso").c_str(), F_OK) != 0);
    }

    void folderThatTakesNoImage()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "x"));
        const Ran missing = make(scratch.path("no such folder/i.iso"), scratch.path("t"));
        QCOMPARE(missing.exit, 1);
        QVERIFY2(missing.err.contains(u"i.iso\" cannot be created: no such file"), qPrintable(missing.err));
        // A folder that not even root may write into.
        const Ran readOnly = make("/proc/i.iso", scratch.path("t"));
        QCOMPARE(readOnly.exit, 1);
        QVERIFY2(readOnly.err.contains(u"/proc/i.iso\" cannot be created"), qPrintable(readOnly.err));
        const Ran longName = make(scratch.path(std::string(256, 'i')), scratch.path("t"));
        QCOMPARE(longName.exit, 1);
        QVERIFY2(longName.err.contains(u"cannot be created: file name too long; choose a shorter name"),
            qPrintable(longName.err));
    }

    void destinationWithoutRoom()
    {
        Scratch scratch;
        QVERIFY(makeFolder(scratch.path("t")));
        QVERIFY(sparseFile(text(scratch.path("t/huge")), 1LL << 42));
        const Ran ran = make(scratch.path("i.iso"), scratch.path("t"));
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"free some space or choose another place"), qPrintable(ran.err));
        QVERIFY(access(scratch.path("i.iso").c_str(), F_OK) != 0);
    }

    void destinationThatFillsUp()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/small"), std::string(100000, 's'))
            && makeFile(scratch.path("t/large"), std::string(5000000, 'l')));
        // A limit on the size of files stands for a full file system.
        const Ran ran = runProgram(u"sh"_s,
            { u"-c"_s, u"ulimit -f 2000; exec \"$0\" \"$@\""_s, program(), u"makehybrid"_s, u"-o"_s,
                text(scratch.path("i.iso")), text(scratch.path("t")), u"-iso"_s, u"-joliet"_s });
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"i.iso\" cannot be written: file too large"), qPrintable(ran.err));
        QVERIFY(access(scratch.path("i.iso").c_str(), F_OK) != 0);
    }

    void signals_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<int>("exit");
        QTest::newRow("SIGINT") << SIGINT << 130;
        QTest::newRow("SIGTERM") << SIGTERM << 143;
    }

    void signals()
    {
        QFETCH(int, signal);
        QFETCH(int, exit);
        Scratch scratch;
        makeSlowFolder(scratch);
        const auto process = startMaking(scratch);
        kill(pid_t(process->processId()), signal);
        kill(pid_t(process->processId()), signal);
        QVERIFY(process->waitForFinished(60000));
        QCOMPARE(process->exitStatus(), QProcess::NormalExit);
        QCOMPARE(process->exitCode(), exit);
        QVERIFY(access(scratch.path("i.iso").c_str(), F_OK) != 0);
        QVERIFY(process->readAllStandardError().contains("Stopped"));
    }

    void aKilledProgramLeavesNothing()
    {
        Scratch scratch;
        makeSlowFolder(scratch);
        const auto process = startMaking(scratch);
        kill(pid_t(process->processId()), SIGKILL);
        QVERIFY(process->waitForFinished(60000));
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        // Where a file cannot be without a name, nobody is left to remove it.
        const int nameless = open(scratch.path().c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0600);
        QCOMPARE(access(scratch.path("i.iso").c_str(), F_OK) != 0, nameless >= 0);
        close(nameless);
    }

    void whatComesMeanwhileIsNotTouched()
    {
        Scratch scratch;
        makeSlowFolder(scratch);
        const auto process = startMaking(scratch);
        if (access(scratch.path("i.iso").c_str(), F_OK) == 0)
            return; // the name is taken from the start here
        QVERIFY(makeFile(scratch.path("i.iso"), "precious"));
        QVERIFY(process->waitForFinished(240000));
        QCOMPARE(process->exitCode(), 1);
        QVERIFY(process->readAllStandardError().contains("i.iso\" exists already"));
        QCOMPARE(contentOf(scratch.path("i.iso")), std::string("precious"));
    }

    void withoutNamelessFilesTheImageHasItsNameAtOnce_data()
    {
        QTest::addColumn<QString>("limit");
        QTest::addColumn<int>("exit");
        QTest::newRow("well") << u"unlimited"_s << 0;
        QTest::newRow("full") << u"2000"_s << 1;
    }

    void withoutNamelessFilesTheImageHasItsNameAtOnce()
    {
        QFETCH(QString, limit);
        QFETCH(int, exit);
        if (support::ownMounts().isEmpty())
            QSKIP(support::noOwnMounts);
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), std::string(5000000, 'x')));
        // Where its descriptors cannot be seen as files, a file cannot get its name later.
        const QString script = u"mount -t tmpfs none /proc/$$/fd && ulimit -f $4 && "
                               "exec \"$1\" makehybrid -o \"$2\" \"$3\" -iso -joliet"_s;
        const QStringList command = support::ownMounts()
            + QStringList{ u"sh"_s, u"-c"_s, script, u"sh"_s, program(), text(scratch.path("i.iso")),
                  text(scratch.path("t")), limit };
        const Ran ran = runProgram(command.first(), command.mid(1));
        QVERIFY2(ran.exit == exit, qPrintable(ran.err));
        QCOMPARE(access(scratch.path("i.iso").c_str(), F_OK) == 0, exit == 0);
        if (exit == 0)
            QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
    }

    void theWayIsTold()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), std::string(5000000, 'x')));
        const QStringList lines = make(scratch.path("i.iso"), scratch.path("t")).out.split(u'\n');
        QCOMPARE(lines.size(), 5);
        QCOMPARE(lines.at(0), u"Making an image of the folder \"%1\"."_s.arg(text(scratch.path("t"))));
        QCOMPARE(lines.at(1), u"Preparing"_s);
        QVERIFY2(lines.at(2).startsWith(u"Writing: "_s), qPrintable(lines.at(2)));
        QVERIFY2(lines.at(3).endsWith(u" holds 1 file in 5.4 MB."_s), qPrintable(lines.at(3)));
        struct stat info { };
        QCOMPARE(stat(scratch.path("i.iso").c_str(), &info), 0);
        const mode_t mask = umask(0);
        umask(mask);
        QCOMPARE(info.st_mode & 07777, 0666 & ~mask);
    }

    void nobodyReadsTheOutput()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("t/file"), "x"));
        for (int i = 0; i < 50; ++i)
            QCOMPARE(symlink("nowhere", scratch.path("t/dangling" + std::to_string(i)).c_str()), 0);
        const Ran ran = runProgram(u"sh"_s,
            { u"-c"_s, u"\"$0\" \"$@\" | true"_s, program(), u"makehybrid"_s, u"-o"_s,
                text(scratch.path("i.iso")), text(scratch.path("t")), u"-iso"_s, u"-joliet"_s });
        QCOMPARE(ran.exit, 0);
        QVERIFY(extractRockRidge(scratch.path("i.iso"), scratch.path("out")));
    }

    void closedOutputsDoNotEndUpInTheImage()
    {
        Scratch scratch;
        QVERIFY(makePlainTree(scratch.path("t")));
        const Ran ran = runProgram(u"sh"_s,
            { u"-c"_s, u"\"$0\" makehybrid -o \"$1\" \"$2\" -iso -joliet >&- 2>&-"_s, program(),
                text(scratch.path("i.iso")), text(scratch.path("t")) });
        QCOMPARE(ran.exit, 0);
        QVERIFY(extractJoliet(scratch.path("i.iso"), scratch.path("out")));
        QCOMPARE(difference(list(scratch.path("t")), list(scratch.path("out"))), QByteArray());
        const std::string image = contentOf(scratch.path("i.iso"));
        QCOMPARE(image.size() % 2048, std::size_t{ 0 });
        QCOMPARE(image.find("Writing: "), std::string::npos);
    }

    void namesWithDashesAndOddBytes()
    {
        Scratch scratch;
        QVERIFY(makeFile(scratch.path("-rf\xff/file"), "x"));
        QCOMPARE(
            make(scratch.path("-o\n.iso"), scratch.path("-rf\xff")).exit, 1); // QProcess cannot pass the byte
        const Ran ran = runProgram(u"sh"_s,
            { u"-c"_s, u"cd \"$1\" && \"$0\" makehybrid -o ./-o.iso -iso -joliet -- -rf*"_s, program(),
                text(scratch.path()) });
        QCOMPARE(ran.err.count(u'\n'), 1);
        QVERIFY2(ran.err.startsWith(u"note: The name of the disc, \"-rf\\xff\", is stored as \"-rf_\""_s),
            qPrintable(ran.err));
        QCOMPARE(ran.exit, 0);
        QVERIFY(extractRockRidge(scratch.path("-o.iso"), scratch.path("out")));
        QCOMPARE(contentOf(scratch.path("out/file")), std::string("x"));
    }
};

QTEST_GUILESS_MAIN(MakehybridTest)
#include "MakehybridTest.moc"
