// Data discs: what is written is read by xorriso, and the rules of each kind of medium are kept.
#include "Drutil.h"

#include <filesystem>
#include <fstream>

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

/// Every file and folder below `root`, by its bytes, with the content of files.
QMap<QByteArray, QByteArray> treeOf(const fs::path &root)
{
    QMap<QByteArray, QByteArray> tree;
    for (const auto &entry : fs::recursive_directory_iterator(root)) {
        const QByteArray name = QByteArray::fromStdString(entry.path().lexically_relative(root).native());
        if (entry.is_directory()) {
            tree.insert(name, "folder");
            continue;
        }
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string content{ std::istreambuf_iterator<char>(file), {} };
        tree.insert(name, QByteArray::fromStdString(content));
    }
    return tree;
}

void put(const fs::path &path, const std::string &content)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

} // namespace

class BurnTest : public QObject {
    Q_OBJECT

    QString source() const { return m_drutil->path(u"source"_s); }
    QString disc() const { return m_drutil->recorder() + u"/disc.iso"_s; }

    QMap<QByteArray, QByteArray> readBack(const QString &image) const
    {
        const QString target = m_drutil->path(u"extracted"_s);
        const Ran ran = runProgram(u"xorriso"_s,
            { u"-osirrox"_s, u"on"_s, u"-indev"_s, u"stdio:"_s + image, u"-extract"_s, u"/"_s, target });
        if (ran.exit != 0)
            qWarning("%s", qPrintable(ran.err));
        return treeOf(target.toStdString());
    }

private Q_SLOTS:
    void aSpeedThatIsNoneIsRefused()
    {
        Drutil drutil;
        QVERIFY(drutil.insert(u"cd-r"_s) && QDir().mkpath(drutil.path(u"data"_s)));
        QVERIFY(writeFile(drutil.path(u"data/file"_s), "content"));
        const Ran option = drutil({ u"burn"_s, drutil.path(u"data"_s), u"-speed"_s, u"fast"_s });
        QCOMPARE(option.exit, 2);
        QVERIFY2(option.err.contains(u"-speed wants a factor such as 8 or 2.4, or max."_s),
            qPrintable(option.err));
        drutil.environment().insert(u"CORVALIS_SPEED"_s, u"fast"_s);
        const Ran variable = drutil({ u"burn"_s, drutil.path(u"data"_s) });
        QCOMPARE(variable.exit, 1);
        QVERIFY2(variable.err.contains(u"CORVALIS_SPEED has the value \"fast\", which is no speed"_s),
            qPrintable(variable.err));
        QCOMPARE(drutil.fact(u"Writability:"_s), u"appendable, blank, overwritable"_s);
        // The option is what counts, and a drive without speeds says so.
        const Ran burnt = drutil({ u"burn"_s, u"-speed"_s, u"16x"_s, drutil.path(u"data"_s) });
        QVERIFY2(burnt.exit == 0, qPrintable(burnt.err));
        QCOMPARE(burnt.out.count(u"The drive names no speeds and writes at one that it chooses.\n"_s), 1);
    }

    void cleanup()
    {
        // Qt's own removal gives up at names that are no text.
        if (m_drutil)
            fs::remove_all(m_drutil->path({}).toStdString());
    }

    void init()
    {
        m_drutil = std::make_unique<Drutil>();
        QVERIFY(QDir().mkpath(source()));
    }

    void anyNameIsWrittenAndReadBack()
    {
        const fs::path root = source().toStdString();
        const std::string big(5000000, '\x5a');
        put(root / "big.bin", big);
        put(root / "empty", "");
        put(root / "-drive", "dash");
        put(root / "quote's \"here\"", "quotes");
        put(root / "line\nbreak", "line");
        put(root / "back\\slash*?:;", "signs");
        put(root / "not utf-8 \xff\xfe", "bytes");
        put(root / std::string(255, 'n'), "long");
        put(root / "Straße ☃ 𝄞", "words");
        put(root / "deep/er/and/deeper/still/and/on/below/the/ninth/level", "deep");
        put(root / "hidden/.dot", "dot");
        fs::create_directories(root / "no files");
        QVERIFY(m_drutil->insert(u"dvd-r"_s));
        const Ran ran = (*m_drutil)({ u"burn"_s, source() });
        QVERIFY2(ran.exit == 0, qPrintable(ran.err));
        QVERIFY(ran.out.endsWith(u" is written and was compared.\n"_s));
        QVERIFY(ran.out.contains(u"Verifying: "_s));
        QCOMPARE(readBack(disc()), treeOf(root));
    }

    void aFolderOfAnyNameIsWritten()
    {
        for (const std::string &name : { std::string("-drive"), std::string("it's \"a\"\nname \xff") }) {
            const fs::path folder = fs::path(m_drutil->path(u"in"_s).toStdString()) / name;
            put(folder / "file", name);
            QVERIFY(m_drutil->insert(u"cd-r"_s));
            // QProcess passes text, which cannot hold these bytes; the shell finds the folder by itself.
            const Ran ran = runProgram(u"/bin/sh"_s,
                { u"-c"_s, u"cd \"$1\" && for f in *; do \"$0\" burn \"./$f\" || exit; done"_s,
                    Drutil::program(), m_drutil->path(u"in"_s) },
                m_drutil->environment());
            QVERIFY2(ran.exit == 0, qPrintable(ran.err));
            fs::remove_all(folder);
        }
        QCOMPARE(QDir(m_drutil->recorder() + u"/discs"_s).entryList(QDir::Files).size(), 1);
    }

    void theStatusFollowsAWrite()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        QCOMPARE(m_drutil->fact(u"Writability:"_s), u"not writable"_s);
        const qint64 blocks = QFileInfo(disc()).size() / 2048;
        QCOMPARE(m_drutil->fact(u"Space Used:"_s)
                     .section(u"blocks:"_s, 1)
                     .trimmed()
                     .section(u' ', 0, 0)
                     .toLongLong(),
            blocks);
        QCOMPARE(m_drutil->fact(u"Space Free:"_s).section(u' ', 0, 0), u"00:00:00"_s);
    }

    void aWrittenDiscIsWrittenOnce()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        for (const auto &kind : { u"cd-r"_s, u"dvd-r"_s, u"dvd+r"_s, u"bd-r"_s }) {
            QVERIFY(m_drutil->insert(kind));
            QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
            const QByteArray before = readFile(disc());
            const Ran again = (*m_drutil)({ u"burn"_s, source() });
            QCOMPARE(again.exit, 1);
            QVERIFY(again.err.contains(u"cannot be written any more"_s));
            QCOMPARE(readFile(disc()), before);
        }
    }

    void aWrittenDiscWhoseStateWasCutOffIsNotWrittenOver()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        const QByteArray written = readFile(disc());
        const QByteArray state = m_drutil->state();
        for (const QByteArray &rest : { QByteArray(), state.left(state.indexOf("state=")) }) {
            QVERIFY(writeFile(m_drutil->recorder() + u"/recorder.ini"_s, rest));
            for (const QStringList &verb :
                { QStringList{ u"status"_s }, QStringList{ u"burn"_s, source() } }) {
                const Ran ran = (*m_drutil)(verb);
                QCOMPARE(ran.exit, 1);
                QVERIFY2(ran.err.contains(u"a new medium repairs it: drutil insert"_s), qPrintable(ran.err));
            }
            QVERIFY((*m_drutil)({ u"list"_s }).out.contains(u"Damaged"_s));
            QCOMPARE(readFile(disc()), written);
        }
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const QDir discs(m_drutil->recorder() + u"/discs"_s);
        QCOMPARE(discs.entryList(QDir::Files).size(), 1);
        QCOMPARE(readFile(discs.filePath(discs.entryList(QDir::Files).first())), written);
    }

    void aRewritableDiscIsErasedFirst()
    {
        const fs::path root = source().toStdString();
        qsizetype aside = 0;
        for (const auto &kind : { u"cd-rw"_s, u"dvd-rw"_s, u"dvd+rw"_s, u"bd-re"_s }) {
            QVERIFY(m_drutil->insert(kind));
            put(root / "file", std::string(3000000, 'a'));
            QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
            const qint64 before = QFileInfo(disc()).size();
            put(root / "file", "small");
            const Ran again = (*m_drutil)({ u"burn"_s, source() });
            QCOMPARE(again.exit, 0);
            QVERIFY(again.out.contains(u"erased first"_s));
            QVERIFY(QFileInfo(disc()).size() < before);
            // What was erased is gone; only the disc of the kind before was put aside.
            QCOMPARE(QDir(m_drutil->recorder() + u"/discs"_s).entryList(QDir::Files).size(), aside++);
        }
    }

    void eraseMakesBlank()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        for (const auto &mode : { u"quick"_s, u"full"_s }) {
            QVERIFY(m_drutil->insert(u"cd-rw"_s));
            QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
            QCOMPARE(m_drutil->fact(u"Writability:"_s), u"erasable"_s);
            QCOMPARE((*m_drutil)({ u"erase"_s, mode }).exit, 0);
            QCOMPARE(m_drutil->fact(u"Writability:"_s), u"appendable, blank, erasable, overwritable"_s);
            QVERIFY(!QFile::exists(disc()));
        }
    }

    void whatIsTooLargeIsRefusedAndTheDiscStaysBlank()
    {
        QVERIFY(sparseFile(source() + u"/large"_s, 800LL * 1000 * 1000));
        for (const auto &kind : { u"cd-r"_s, u"cd-rw"_s }) {
            QVERIFY(m_drutil->insert(kind));
            const Ran ran = (*m_drutil)({ u"burn"_s, source() });
            QCOMPARE(ran.exit, 1);
            QVERIFY2(QRegularExpression(u"The data need 800\\.\\d MB \\(39\\d{4} blocks\\), and the disc in "
                                        u"drive . has room for 737\\.0 MB "
                                        "\\(359844 blocks\\)"_s)
                         .match(ran.err)
                         .hasMatch(),
                qPrintable(ran.err));
            QVERIFY(m_drutil->state().contains("state=blank"));
            QVERIFY(!QFile::exists(disc()));
        }
    }

    void moreBlocksThan32BitsAreNotTakenForFew()
    {
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        QVERIFY(sparseFile(source() + u"/large"_s, 8796093022208));
        const Ran ran = (*m_drutil)({ u"burn"_s, source() });
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"needs 8796093.3 MB (4294967446 blocks)"_s), qPrintable(ran.err));
        QVERIFY(m_drutil->state().contains("state=blank"));
        QVERIFY(!QFile::exists(disc()));
    }

    void theLastBlockFits()
    {
        // The image of one file grows block by block with the file.
        const auto blocks = [this](qint64 fileBlocks) {
            QFile::remove(source() + u"/file"_s);
            if (!sparseFile(source() + u"/file"_s, fileBlocks * 2048) || !m_drutil->insert(u"cd-r"_s))
                return qint64(-1);
            const Ran ran = (*m_drutil)({ u"burn"_s, u"-noverify"_s, source() });
            return ran.exit == 0 ? QFileInfo(disc()).size() / 2048 : qint64(0);
        };
        const qint64 overhead = blocks(1000) - 1000;
        QVERIFY(overhead > 0);
        QCOMPARE(blocks(359844 - overhead), qint64(359844));
        QCOMPARE(blocks(359844 - overhead + 1), qint64(0));
        QVERIFY(m_drutil->state().contains("state=blank"));
    }

    void anEmptyFolderIsRefused()
    {
        for (const auto &kind : { u"cd-r"_s, u"dvd+rw"_s }) {
            QVERIFY(m_drutil->insert(kind));
            const Ran ran = (*m_drutil)({ u"burn"_s, source() });
            QCOMPARE(ran.exit, 1);
            QVERIFY2(ran.err.contains(u"/source\" is empty: put something into it"_s), qPrintable(ran.err));
            QVERIFY(m_drutil->state().contains("state=blank"));
            QVERIFY(!QFile::exists(disc()));
        }
        // A folder is something.
        QVERIFY(QDir().mkpath(source() + u"/inner"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
    }

    void anEmptyFolderDoesNotEraseADisc()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        const QByteArray written = readFile(disc());
        QVERIFY(QDir(source()).remove(u"file"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 1);
        QCOMPARE((*m_drutil)({ u"burn"_s, u"-audio"_s, source() }).exit, 1);
        QCOMPARE(readFile(disc()), written);
    }

    void whatIsLeftOutOrChangedIsNoted()
    {
        const fs::path root = source().toStdString();
        put(root / "file", "content");
        put(root / "deep/a:b", "content");
        put(root / "deep/closed", "secret");
        put(root / "shut/inner", "secret");
        fs::create_symlink(std::string(300, 'x'), root / "deep/link");
        fs::permissions(root / "deep/closed", fs::perms::none);
        fs::permissions(root / "shut", fs::perms::none);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const QStringList command = heedingPermissions({ Drutil::program(), u"burn"_s, source() });
        const Ran ran = runProgram(command.first(), command.mid(1), m_drutil->environment());
        fs::permissions(root / "shut", fs::perms::all);
        QVERIFY2(ran.exit == 0, qPrintable(ran.err));
        QCOMPARE(notesIn(ran.err).join(u'\n'),
            u"\"deep/closed\" is left out: it cannot be read: permission denied.\n"
            "\"deep/link\" is left out: what the link points to is too long for Rock Ridge.\n"
            "What is in \"shut\" is left out: the folder cannot be read: permission denied.\n"
            "Characters that the Joliet names cannot hold are stored as '_' there: \"deep/a:b\"."_s);
        QCOMPARE(ran.err.count(u'\n'), notesIn(ran.err).size()); // nothing else stands there
        QVERIFY(!ran.out.contains(u"note: "_s));
        const auto tree = readBack(disc());
        QCOMPARE(tree.keys(), (QList<QByteArray>{ "deep", "deep/a:b", "file", "shut" }));
    }

    void notesKeepTheirPlaceInOneOutput()
    {
        put((source() + u"/file:1"_s).toStdString(), "content");
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = runProgram(u"/bin/sh"_s,
            { u"-c"_s, u"\"$0\" burn \"$1\" 2>&1"_s, Drutil::program(), source() }, m_drutil->environment());
        const qsizetype noted = ran.out.indexOf(u"\nnote: Characters"_s);
        QVERIFY2(noted > ran.out.indexOf(u"Preparing\n"_s) && noted < ran.out.indexOf(u"\nVerifying"_s),
            qPrintable(ran.out));
    }

    void aFolderOfWhichNothingIsLeft()
    {
        put((source() + u"/inner/closed"_s).toStdString(), "secret");
        fs::permissions((source() + u"/inner/closed"_s).toStdString(), fs::perms::none);
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const QStringList command = heedingPermissions({ Drutil::program(), u"burn"_s, source() });
        const Ran ran = runProgram(command.first(), command.mid(1), m_drutil->environment());
        QCOMPARE(ran.exit, 1);
        QVERIFY2(ran.err.contains(u"Nothing is left of the folder"_s)
                && ran.err.contains(u"\"inner/closed\" is left out"_s)
                && ran.err.endsWith(u"The disc in drive 1 is as it was.\n"_s),
            qPrintable(ran.err));
        QVERIFY(m_drutil->state().contains("state=blank"));
    }

    void theLastLineTellsTheStateOfTheDisc()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        QVERIFY(sparseFile(source() + u"/large"_s, 800LL * 1000 * 1000));
        QVERIFY(m_drutil->insert(u"cd-rw"_s));
        const QList<QStringList> verbs{ { u"burn"_s, source() }, { u"burn"_s, u"/nowhere"_s },
            { u"burn"_s, u"-audio"_s, source() }, { u"burn"_s, u"-audio"_s, u"/nowhere"_s } };
        for (const QStringList &verb : verbs) {
            const Ran ran = (*m_drutil)(verb);
            QCOMPARE(ran.exit, 1);
            QVERIFY2(ran.err.endsWith(u" The disc in drive 1 is as it was.\n"_s), qPrintable(ran.err));
        }
    }

    void comparingCanBeLeftOut()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        QVERIFY(m_drutil->insert(u"cd-r"_s));
        const Ran ran = (*m_drutil)({ u"burn"_s, source(), u"-noverify"_s });
        QCOMPARE(ran.exit, 0);
        QVERIFY(!ran.out.contains(u"Verifying"_s));
        QVERIFY(ran.out.endsWith(u" is written.\n"_s));
    }

    void anEjectedDiscIsKept()
    {
        put((source() + u"/file"_s).toStdString(), "content");
        QVERIFY(m_drutil->insert(u"dvd+rw"_s));
        QCOMPARE((*m_drutil)({ u"burn"_s, source() }).exit, 0);
        const QByteArray written = readFile(disc());
        QCOMPARE((*m_drutil)({ u"tray"_s, u"eject"_s }).exit, 0);
        QVERIFY(m_drutil->state().contains("kind=dvd+rw"));
        QVERIFY(m_drutil->state().contains("state=blank"));
        const QDir discs(m_drutil->recorder() + u"/discs"_s);
        QCOMPARE(discs.entryList(QDir::Files).size(), 1);
        QCOMPARE(readFile(discs.filePath(discs.entryList(QDir::Files).first())), written);
    }

    void recordersDeepInTheFileSystemAreWritten()
    {
        QString deep = m_drutil->path(u"deep"_s);
        while (deep.size() < 2000)
            deep += u'/' + QString(200, u'd');
        m_drutil->environment().insert(u"CORVALIS_RECORDERS"_s, deep);
        QCOMPARE((*m_drutil)({ u"list"_s }).exit, 0);
        put((source() + u"/file"_s).toStdString(), "content");
        const Ran ran = (*m_drutil)({ u"burn"_s, source() });
        QVERIFY2(ran.exit == 0, qPrintable(ran.err));
        QVERIFY(QFileInfo(deep + u"/1/disc.iso"_s).size() > 0);
    }

private:
    std::unique_ptr<Drutil> m_drutil;
};

QTEST_GUILESS_MAIN(BurnTest)
#include "BurnTest.moc"
