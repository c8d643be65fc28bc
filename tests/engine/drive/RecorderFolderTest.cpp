// Recorders on a real file system: finding, making, locking, and putting discs aside.
#include "drive/RecorderFolder.h"

#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::drive;

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QFile::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("no file");
}

} // namespace

class RecorderFolderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir.reset(new QTemporaryDir);
        QVERIFY(m_dir->isValid());
        m_path = m_dir->path();
    }

    void foldersAreOrderedByNumber()
    {
        for (const auto &name : { u"10"_s, u"2"_s, u"1"_s, u"new-abc"_s, u"x1"_s, u"discs"_s })
            QVERIFY(QDir(m_path).mkdir(name));
        writeFile(m_path + u"/3"_s, "a file, no recorder");
        const auto folders = recorderFolders(m_path.toStdString());
        QVERIFY(folders);
        const std::string base = m_path.toStdString();
        QVERIFY((*folders == std::vector<std::string>{ base + "/1", base + "/2", base + "/10" }));
        QVERIFY(recorderFolders(base + "/missing")->empty());
        QVERIFY(!recorderFolders(base + "/3"));
    }

    void theFirstRecorderIsMadeOnce()
    {
        const std::string base = m_path.toStdString() + "/deep/er";
        QVERIFY(createFirstRecorder(base));
        writeFile(QString::fromStdString(base) + u"/1/disc.iso"_s, "kept");
        QVERIFY(createFirstRecorder(base));
        QCOMPARE(readFile(QString::fromStdString(base) + u"/1/disc.iso"_s), "kept");
        QCOMPARE(QDir(QString::fromStdString(base)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList(u"1"_s));
        bool readable = false;
        QCOMPARE(int(peek(base + "/1", readable).kind), int(MediumKind::cdR));
        QVERIFY(readable);
    }

    void theFirstRecorderIsItsOwnersOnly()
    {
        QVERIFY(createFirstRecorder(m_path.toStdString()));
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther
            | QFile::WriteOther | QFile::ExeOther;
        QCOMPARE(QFile::permissions(m_path + u"/1"_s) & others, QFile::Permissions());
    }

    void aFileInTheWayIsSaid()
    {
        writeFile(m_path + u"/file"_s, "x");
        const auto made = createFirstRecorder(m_path.toStdString() + "/file/recorders");
        QVERIFY(!made);
        QVERIFY(QString::fromStdString(made.error().message).contains(u"file/recorders"_s));
    }

    void locksKeepWritersApart()
    {
        const std::string path = m_path.toStdString();
        const auto first = RecorderFolder::lock(path, "drive 1", Access::shared);
        QVERIFY(first);
        QVERIFY(RecorderFolder::lock(path, "drive 1", Access::shared));
        const auto writer = RecorderFolder::lock(path, "drive 1", Access::exclusive);
        QVERIFY(!writer);
        QCOMPARE(QString::fromStdString(writer.error().message),
            u"The virtual recorder, drive 1, is busy with another program; wait until that has ended."_s);
    }

    void aMissingFolderIsSaid()
    {
        QVERIFY(!RecorderFolder::lock(m_path.toStdString() + "/9", "drive 9", Access::shared));
    }

    void brokenStateDoesNotHideTheWayOut()
    {
        writeFile(m_path + u"/recorder.ini"_s, "[medium]\nkind=cd-r\nstate=half\n");
        const auto folder = RecorderFolder::lock(m_path.toStdString(), "drive 4", Access::shared);
        QVERIFY(folder);
        const auto state = folder->load();
        QVERIFY(!state);
        QCOMPARE(QString::fromStdString(state.error().message),
            u"recorder.ini of drive 4 cannot be understood in line 3; a new medium repairs it: drutil insert."_s);
        bool readable = true;
        QCOMPARE(peek(m_path.toStdString(), readable), RecorderState());
        QVERIFY(!readable);
    }

    void whatIsInTheWayOfANewStateIsNotWrittenInto_data()
    {
        QTest::addColumn<QString>("make"); // with $0 for what is in the way
        QTest::newRow("hard link") << u"echo precious > elsewhere; ln elsewhere \"$0\""_s;
        QTest::newRow("symbolic link") << u"echo precious > elsewhere; ln -s elsewhere \"$0\""_s;
        QTest::newRow("pipe") << u"echo precious > elsewhere; mkfifo \"$0\""_s;
        QTest::newRow("left behind") << u"echo precious > elsewhere; echo a long text > \"$0\""_s;
    }

    void whatIsInTheWayOfANewStateIsNotWrittenInto()
    {
        QFETCH(QString, make);
        QProcess shell;
        shell.setWorkingDirectory(m_path);
        shell.start(u"sh"_s, { u"-c"_s, make, u"recorder.ini.new"_s });
        QVERIFY(shell.waitForFinished() && shell.exitCode() == 0);
        const auto folder = RecorderFolder::lock(m_path.toStdString(), "drive 1", Access::exclusive);
        QVERIFY(folder);
        QVERIFY(folder->save({}));
        QVERIFY(readFile(m_path + u"/recorder.ini"_s).startsWith("[recorder]"));
        QCOMPARE(readFile(m_path + u"/elsewhere"_s), "precious\n");
        QVERIFY(!QFileInfo::exists(m_path + u"/recorder.ini.new"_s));
        QVERIFY(folder->load());
    }

    void aDiscPutAsideReplacesNone()
    {
        const auto folder = RecorderFolder::lock(m_path.toStdString(), "drive 1", Access::exclusive);
        QVERIFY(folder);
        // Several within one second get the same date.
        const QList<QByteArray> contents{ "one", "two", "three", "four" };
        for (const QByteArray &content : contents) {
            writeFile(m_path + u"/disc.iso"_s, content);
            QVERIFY(folder->archive(MediumKind::dvdPlusRw, false));
            QVERIFY(!QFile::exists(m_path + u"/disc.iso"_s));
        }
        QList<QByteArray> found;
        const QDir discs(m_path + u"/discs"_s);
        for (const QString &name : discs.entryList(QDir::Files)) {
            QVERIFY(QRegularExpression(uR"(^\d{4}-\d\d-\d\d-\d{6}-dvd\+rw(-\d)?\.iso$)"_s)
                        .match(name)
                        .hasMatch());
            found << readFile(discs.filePath(name));
        }
        std::sort(found.begin(), found.end());
        QCOMPARE(found, (QList<QByteArray>{ "four", "one", "three", "two" }));
    }

    void aCueSheetFollowsItsFile()
    {
        const auto folder = RecorderFolder::lock(m_path.toStdString(), "drive 1", Access::exclusive);
        QVERIFY(folder);
        for (int i = 0; i < 2; ++i) {
            writeFile(m_path + u"/disc.bin"_s, "sound");
            QVERIFY(folder->saveCueSheet("FILE \"disc.bin\" BINARY\n  TRACK 01 AUDIO\n"));
            QVERIFY(folder->archive(MediumKind::cdR, true));
        }
        const QDir discs(m_path + u"/discs"_s);
        const QStringList sheets = discs.entryList({ u"*.cue"_s });
        QCOMPARE(sheets.size(), 2);
        for (const QString &sheet : sheets) {
            QVERIFY(sheet.contains(u"-cd-r-spoilt"_s));
            const QString bin = sheet.chopped(3) + u"bin"_s;
            QCOMPARE(QString::fromUtf8(readFile(discs.filePath(sheet))),
                u"FILE \"%1\" BINARY\n  TRACK 01 AUDIO\n"_s.arg(bin));
            QCOMPARE(readFile(discs.filePath(bin)), "sound");
        }
        QVERIFY(!QFile::exists(m_path + u"/disc.cue"_s));
    }

    void withoutRoomForItsSheetADiscStays()
    {
        const auto folder = RecorderFolder::lock(m_path.toStdString(), "drive 1", Access::exclusive);
        QVERIFY(folder);
        writeFile(m_path + u"/disc.bin"_s, "sound");
        const QByteArray sheet = "FILE \"disc.bin\" BINARY\n" + QByteArray("  TRACK 01 AUDIO\n").repeated(99);
        QVERIFY(folder->saveCueSheet(sheet.toStdString()));
        // A limit on the size of files stands for a full file system.
        rlimit before{};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        const rlimit small{ 100, before.rlim_max };
        const auto handler = std::signal(SIGXFSZ, SIG_IGN);
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
        const auto moved = folder->archive(MediumKind::cdR, false);
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &before), 0);
        std::signal(SIGXFSZ, handler);
        QVERIFY(!moved);
        QCOMPARE(readFile(m_path + u"/disc.bin"_s), "sound");
        QCOMPARE(readFile(m_path + u"/disc.cue"_s), sheet);
        const QDir discs(m_path + u"/discs"_s);
        QCOMPARE(discs.entryList(QDir::Files), QStringList());
        QVERIFY(folder->archive(MediumKind::cdR, false));
        QCOMPARE(discs.entryList(QDir::Files).size(), 2);
    }

    void nothingOnTheDiscIsNothingPutAside()
    {
        const auto folder = RecorderFolder::lock(m_path.toStdString(), "drive 1", Access::exclusive);
        QVERIFY(folder);
        QVERIFY(folder->archive(MediumKind::cdR, false));
        QVERIFY(!QFile::exists(m_path + u"/discs"_s));
    }

    void recordersLiveWhereTheUserSays()
    {
        qputenv("CORVALIS_RECORDERS", "/some/where");
        QCOMPARE(recordersFolder(), std::string("/some/where"));
        qunsetenv("CORVALIS_RECORDERS");
        qputenv("XDG_DATA_HOME", "/data");
        QCOMPARE(recordersFolder(), std::string("/data/corvalis/recorders"));
        qputenv("XDG_DATA_HOME", "not/absolute");
        QCOMPARE(recordersFolder(), qgetenv("HOME").toStdString() + "/.local/share/corvalis/recorders");
        qunsetenv("XDG_DATA_HOME");
        QCOMPARE(recordersFolder(), qgetenv("HOME").toStdString() + "/.local/share/corvalis/recorders");
    }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

QTEST_APPLESS_MAIN(RecorderFolderTest)
#include "RecorderFolderTest.moc"
