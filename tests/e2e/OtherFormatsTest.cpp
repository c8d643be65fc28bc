// Files of endings that no list names, playlists and trees of folders: onto discs, and read back.
#include "app/ProjectTypes.h"
#include "compilation/ListTableView.h"
#include "support/WholeMachine.h"

using namespace Qt::StringLiterals;

namespace {

struct Kind {
    QString name;
    const char *arguments; ///< that make it
};

const QList<Kind> songs{
    { u"1.flac"_s, "-f lavfi -i sine=frequency=440:duration=4.2 -ac 2 -metadata title=One" },
    { u"2.ogg"_s,
        "-f lavfi -i sine=frequency=500:duration=4.3 -ac 2 -metadata title=Two -metadata artist=Band" },
    { u"3.opus"_s, "-f lavfi -i sine=frequency=550:duration=4.4 -ac 2" },
    { u"4.aiff"_s, "-f lavfi -i sine=frequency=600:duration=4.5 -ac 1" },
    { u"5.wv"_s, "-f lavfi -i sine=frequency=650:duration=4.6 -ar 48000 -ac 2" },
    { u"6 - no ending"_s, "-f lavfi -i sine=frequency=700:duration=4.1 -ac 2 -f flac" },
    { u"7.mka"_s, "-f lavfi -i sine=frequency=750:duration=4.1 -ac 2" },
};
const QList<Kind> films{
    { u"a.mkv"_s, "-f lavfi -i testsrc=size=160x120:duration=2 -f lavfi -i sine=duration=2 -ac 2" },
    { u"b.webm"_s, "-f lavfi -i testsrc=size=160x120:duration=1 -c:v vp8" },
    { u"c.vob"_s,
        "-f lavfi -i testsrc=size=160x120:duration=1 -f lavfi -i sine=duration=1 -target pal-dvd -f vob" },
    { u"d.m4v"_s, "-f lavfi -i testsrc=size=160x120:duration=1" },
};

QByteArray decoded(const QString &path)
{
    return runWell(u"ffmpeg"_s,
        { u"-v"_s, u"error"_s, u"-i"_s, path, u"-f"_s, u"s16le"_s, u"-acodec"_s, u"pcm_s16le"_s, u"-ar"_s,
            u"44100"_s, u"-ac"_s, u"2"_s, u"-"_s });
}

/// What lies on an audio disc of these files: a pause, and then track after track in whole sectors.
QByteArray discOf(const QStringList &paths)
{
    constexpr qsizetype sector = 2352;
    QByteArray disc(150 * sector, 0);
    for (const QString &path : paths) {
        disc += decoded(path);
        disc.append((sector - disc.size() % sector) % sector, 0);
    }
    return disc;
}

QStringList pathsOf(const QList<Kind> &kinds, const QTemporaryDir &folder)
{
    QStringList paths;
    for (const Kind &kind : kinds) {
        paths.append(folder.filePath(kind.name));
        if (!QFile::exists(paths.last()))
            makeMedia(paths.last(), QString::fromLatin1(kind.arguments));
    }
    return paths;
}

/// Lets files go over a list, with keys held.
void letGo(ListTableView *table, const QStringList &paths, Qt::KeyboardModifiers with)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    const QPoint place = table->viewport()->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, with);
    QCoreApplication::sendEvent(table->viewport(), &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, with);
    QCoreApplication::sendEvent(table->viewport(), &drop);
}

} // namespace

class OtherFormatsTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_media;

    static QStringList listed(const WholeMachine &machine)
    {
        QStringList names;
        for (const NodeMediaFile &file : std::as_const(machine.controller->arrayMediaFiles))
            names.append(file.s_File_Name_With_Extension);
        return names;
    }

    /// A machine whose questions a test answers.
    static void answer(WholeMachine &machine) { machine.controller->around.questions = &machine.questions; }

    /// Chooses files by the menu item.
    [[nodiscard]] static bool chooseOther(WholeMachine &machine, const QStringList &paths)
    {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        machine.questions.choices.append(urls);
        QSignalSpy ended(machine.controller.get(), &AppDelegate::addingEnded);
        person::choose(machine.window.get(), "menuitemAddOther");
        return ended.count() > 0 || ended.wait(60'000);
    }

private Q_SLOTS:
    void initTestCase()
    {
        pathsOf(songs, m_media);
        pathsOf(films, m_media);
        makeFile(m_media.filePath(u"words.txt"_s), "no music\n");
        makeMedia(m_media.filePath(u"cover.jpg"_s), u"-f lavfi -i testsrc=size=160x120 -frames:v 1"_s);
    }

    void soundsOfAnyEndingMakeAnAudioCd()
    {
        WholeMachine machine;
        answer(machine);
        machine.recorder.insert(u"cd-r"_s);
        const QStringList paths = pathsOf(songs, m_media);
        QVERIFY(chooseOther(machine, paths));
        QCOMPARE(machine.questions.texts(), QStringList());
        QCOMPARE(machine.questions.panels.last().extensions, QStringList());
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        QVERIFY2(
            contentOf(machine.recorder.path(u"disc.bin"_s)) == discOf(paths), "the sound is another one");
        // FLAC has its names for the whole file, Ogg for the stream only.
        const QByteArray tracks = Recorder::drutil({ u"tracks"_s }).simplified();
        QVERIFY2(tracks.contains(" One 2 ") && tracks.contains(" Two Band 3 "), tracks.constData());
    }

    void filmsOfAnyEndingMakeADvd()
    {
        WholeMachine machine;
        answer(machine);
        machine.recorder.insert(u"dvd+r"_s);
        machine.choose(4);
        QVERIFY(chooseOther(machine, pathsOf(films, m_media)));
        QCOMPARE(machine.questions.texts(), QStringList());
        machine.press("btnBurn");
        QVERIFY(machine.completes());
        QCOMPARE(machine.trouble(), QString());
        const QString tree = reader::extractedByXorriso(machine.recorder.iso(), machine.media.path());
        QCOMPARE(QDir(tree).entryList(QDir::Files, QDir::Name),
            QStringList({ u"a.mpg"_s, u"b.mpg"_s, u"c.mpg"_s, u"d.mpg"_s }));
        for (const QFileInfo &file : QDir(tree).entryInfoList(QDir::Files)) {
            QCOMPARE(reader::stream(file.filePath(), u"v"_s, u"codec_name,width"_s),
                u"codec_name=mpeg2video|width=720"_s);
        }
    }

    void whatHasNoneIsRefusedByName()
    {
        WholeMachine machine;
        answer(machine);
        const QStringList paths{ m_media.filePath(u"words.txt"_s), m_media.filePath(u"b.webm"_s),
            m_media.filePath(u"1.flac"_s), m_media.filePath(u"cover.jpg"_s) };
        QVERIFY(chooseOther(machine, paths));
        QCOMPARE(listed(machine), QStringList(u"1.flac"_s));
        QCOMPARE(machine.questions.alerts.size(), 1);
        const QString told = machine.questions.alerts.first().informative;
        QVERIFY2(
            told.endsWith(u"finds none in these.\n\nwords.txt\nb.webm\ncover.jpg"_s), qUtf8Printable(told));
        machine.questions.alerts.clear();
        machine.choose(4);
        QVERIFY(chooseOther(machine, paths));
        QCOMPARE(listed(machine), QStringList(u"b.webm"_s));
        QVERIFY(machine.questions.alerts.first().informative.endsWith(u"\n\nwords.txt\n1.flac\ncover.jpg"_s));
    }

    void aPlaylistAddsItsFilesInItsOrder()
    {
        WholeMachine machine;
        answer(machine);
        makeFile(m_media.filePath(u"lists/all.m3u8"_s), "#EXTM3U\r\n../5.wv\r\n../gone.mp3\r\n../1.flac\r\n");
        QVERIFY(
            chooseOther(machine, { m_media.filePath(u"4.aiff"_s), m_media.filePath(u"lists/all.m3u8"_s) }));
        QCOMPARE(listed(machine), QStringList({ u"4.aiff"_s, u"5.wv"_s, u"1.flac"_s }));
        QCOMPARE(machine.questions.alerts.size(), 1);
        QVERIFY(machine.questions.alerts.first().informative.endsWith(u"\n\ngone.mp3"_s));
    }

    void aTreeIsDroppedWithCtrl()
    {
        WholeMachine machine;
        answer(machine);
        const QString box = machine.mediaPath(u"box"_s);
        for (const auto &[from, to] :
            { std::pair{ u"1.flac"_s, u"disc 10/a.flac"_s }, { u"2.ogg"_s, u"disc 2/b.ogg"_s },
                { u"3.opus"_s, u"c.opus"_s }, { u"cover.jpg"_s, u"cover.jpg"_s } }) {
            QDir().mkpath(QFileInfo(box + u'/' + to).path());
            QVERIFY(QFile::copy(m_media.filePath(from), box + u'/' + to));
        }
        QDir().mkpath(machine.mediaPath(u"empty/below"_s));
        QSignalSpy ended(machine.controller.get(), &AppDelegate::addingEnded);
        letGo(machine.element<ListTableView>("tableviewAudioFiles"), { box, machine.mediaPath(u"empty"_s) },
            Qt::ControlModifier);
        QVERIFY(ended.count() > 0 || ended.wait(60'000));
        QCOMPARE(listed(machine), QStringList({ u"b.ogg"_s, u"a.flac"_s, u"c.opus"_s }));
        QCOMPARE(machine.questions.alerts.size(), 1);
        QVERIFY(machine.questions.alerts.first().informative.endsWith(u"\n\nempty"_s));
    }

    void filesOfOneNameAreToldBefore()
    {
        WholeMachine machine;
        answer(machine);
        makeMedia(machine.mediaPath(u"1.mp3"_s), QString::fromLatin1(songs.first().arguments));
        QVERIFY(chooseOther(machine, { machine.mediaPath(u"1.mp3"_s), m_media.filePath(u"2.ogg"_s) }));
        QCOMPARE(machine.questions.alerts.size(), 0);
        QVERIFY(chooseOther(machine, { m_media.filePath(u"1.flac"_s) }));
        QCOMPARE(machine.questions.alerts.size(), 1);
        QVERIFY(machine.questions.alerts.first().informative.endsWith(
            machine.mediaPath(u"1.mp3"_s) + u'\n' + m_media.filePath(u"1.flac"_s)));
        QCOMPARE(listed(machine).size(), 3);
    }

    void theBatchFormTakesThemToo()
    {
        const Recorder recorder;
        recorder.insert(u"cd-r"_s);
        const QString corvalis = builtPrograms() + u"/corvalis"_s;
        const auto burn = [&](int code, const QStringList &files) {
            return run(
                corvalis, QStringList{ u"--burn"_s, projects::byCode(code)->name } + files, m_media.path());
        };
        makeFile(m_media.filePath(u"two.pls"_s), "[playlist]\nFile1=3.opus\nFile2=1.flac\n");
        makeFile(m_media.filePath(u"lost.m3u"_s), "3.opus\ngone.mp3\n");
        const std::pair<QStringList, QByteArray> refused[] = {
            { { u"words.txt"_s }, "mpga, m4a. ffmpeg finds no sound in it." },
            { { u"1.flac"_s, u"cover.jpg"_s }, "cover.jpg is not a file that this disc can take." },
            { { u"lost.m3u"_s }, "gone.mp3: there is no such file or folder." },
        };
        for (const auto &[files, reason] : refused) {
            const Printed printed = burn(1, files);
            QCOMPARE(printed.status, 2);
            QVERIFY2(printed.errors.contains(reason), printed.errors.constData());
        }
        const Printed printed = burn(1, { u"two.pls"_s, u"5.wv"_s });
        QVERIFY2(printed.status == 0, printed.errors.constData());
        QVERIFY(contentOf(recorder.path(u"disc.bin"_s))
            == discOf({ m_media.filePath(u"3.opus"_s), m_media.filePath(u"1.flac"_s),
                m_media.filePath(u"5.wv"_s) }));
    }
};

QTEST_MAIN(OtherFormatsTest)
#include "OtherFormatsTest.moc"
