// Every kind of disc in the recorder before every kind of job: who is refused, and in which words.
#include "support/WholeMachine.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// A disc as a person may find it in the drive.
struct Found {
    const char *kind; ///< as the recorder takes it
    bool written;
    const char *family;
};

const Found founds[] = {
    { "none", false, "" },
    { "cd-r", false, "CD" },
    { "cd-r", true, "CD" },
    { "cd-rw", false, "CD" },
    { "cd-rw", true, "CD" },
    { "dvd-r", false, "DVD" },
    { "dvd-r", true, "DVD" },
    { "dvd-rw", false, "DVD" },
    { "dvd-rw", true, "DVD" },
    { "dvd+r", false, "DVD" },
    { "dvd+r", true, "DVD" },
    { "dvd+rw", false, "DVD" },
    { "dvd+rw", true, "DVD" },
    { "bd-r", false, "BD" },
    { "bd-r", true, "BD" },
    { "bd-re", false, "BD" },
    { "bd-re", true, "BD" },
};

bool isRewritable(const Found &found)
{
    return QByteArray(found.kind).endsWith("w") || QByteArray(found.kind) == "bd-re";
}

const char *const families[] = { "CD", "CD", "DVD", "DVD", "BD", "CD", "DVD", "BD" };

} // namespace

class WrongDiscsTest : public QObject {
    Q_OBJECT

    static void lay(const Recorder &recorder, const Found &found)
    {
        recorder.insert(QString::fromLatin1(found.kind));
        if (!found.written)
            return;
        QTemporaryDir folder;
        makeFile(folder.filePath(u"file"_s), "content");
        recorder.drutil({ u"burn"_s, folder.path() });
    }

    /// The message of the first alert that is to come; none for a disc that will do.
    static QString expected(const Found &found, const char *family)
    {
        if (QByteArray(found.kind) == "none")
            return u"No disc"_s;
        if (found.written && !isRewritable(found))
            return u"Media not writable"_s;
        if (QByteArray(found.family) == family)
            return {};
        return QByteArray(family) == "BD" ? u"Media not Blu-ray"_s
                                          : u"Media not "_s + QLatin1StringView(family);
    }

private Q_SLOTS:
    void theRightDiscsAreTakenAndTheOthersRefused_data()
    {
        QTest::addColumn<Found>("found");
        for (const Found &found : founds)
            QTest::addRow("%s%s", found.written ? "written " : "", found.kind) << found;
    }
    void theRightDiscsAreTakenAndTheOthersRefused()
    {
        QFETCH(Found, found);
        Recorder recorder;
        lay(recorder, found);
        QTemporaryDir media;
        makeMedia(media.filePath(u"clip.mp4"_s), u"-f lavfi -i testsrc=size=64x64:duration=1 -c:v mpeg4"_s);
        for (int project = 1; project <= 8; ++project) {
            TestApplication app;
            app.useRealTools();
            app.launch();
            const char *family = families[project - 1];
            NodeMediaFile file;
            file.s_File_Path = media.filePath(u"clip.mp4"_s);
            app.controller->arrayMediaFiles = { file };
            app.controller->arrayDataFolders = { { media.path(), 1, u"1 KB"_s } };
            // A disc that will do is not written here: the check is asked, not the burn button.
            const bool taken = expected(found, family).isEmpty();
            if (!taken)
                burn(*app.controller, project);
            else
                QCOMPARE(app.controller->TypeOfMediaInTheDrive(), QLatin1StringView(family));
            if (taken)
                QVERIFY(app.controller->IsMediaOneTimeWritable() || app.controller->IsMediaReWritable());
            const QString told =
                app.questions.alerts.isEmpty() ? QString() : app.questions.alerts.first().message;
            QCOMPARE(told, expected(found, family));
            QCOMPARE(app.questions.alerts.size(), taken ? 0 : 1);
            QCOMPARE(app.controller->activityLog->text().contains(u" burn "_s), false);
        }
    }

    void theErasableDiscsAreErasedAndTheOthersRefused_data()
    {
        theRightDiscsAreTakenAndTheOthersRefused_data();
    }
    void theErasableDiscsAreErasedAndTheOthersRefused()
    {
        QFETCH(Found, found);
        Recorder recorder;
        lay(recorder, found);
        TestApplication app;
        app.useRealTools();
        app.launch();
        app.controller->OnToolsFormatQuick();
        const QString told =
            app.questions.alerts.isEmpty() ? QString() : app.questions.alerts.first().message;
        if (QByteArray(found.kind) == "none") {
            QCOMPARE(told, u"No disc"_s);
        } else if (!isRewritable(found)) {
            QCOMPARE(told, u"Media not rewritable"_s);
        } else {
            QCOMPARE(told, QString());
            QVERIFY(QTest::qWaitFor(
                [&app] { return !app.controller->windowOperationCompleted.isNull(); }, 60'000));
            const auto *heading =
                app.controller->windowOperationCompleted->findChild<QLabel *>(u"labelHeading"_s);
            QCOMPARE(heading->text(), u"Operation complete"_s);
            QVERIFY(!QFile::exists(recorder.iso()));
        }
    }

private:
    static void burn(AppDelegate &controller, int project)
    {
        using Pipeline = void (AppDelegate::*)();
        const Pipeline pipelines[] = { &AppDelegate::Burn_Audio_CD, &AppDelegate::Burn_Audio_MP3_CD,
            &AppDelegate::Burn_Audio_MP3_DVD, &AppDelegate::Burn_Video_DVD, &AppDelegate::Burn_Video_Bluray,
            &AppDelegate::Burn_Data_CD, &AppDelegate::Burn_Data_DVD, &AppDelegate::Burn_Data_Bluray };
        (controller.*pipelines[project - 1])();
    }
};

QTEST_MAIN(WrongDiscsTest)
#include "WrongDiscsTest.moc"
