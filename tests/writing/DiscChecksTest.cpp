// What stands between the burn button and a job: the checks of the eight kinds of disc.
#include "support/JobApplication.h"

using namespace Qt::StringLiterals;

namespace {

/// One kind of disc as a person meets it.
struct Kind {
    int code;
    const char *list; ///< "audio", "video" or "data"
    const char *family; ///< of the discs that it takes
    const char *warning; ///< the code of debug mode
};

const Kind kinds[] = {
    { 1, "audio", "CD", "Warning 0060." },
    { 2, "audio", "CD", "Warning 0050." },
    { 3, "audio", "DVD", "Warning 0010." },
    { 4, "video", "DVD", "Warning 0000." },
    { 5, "video", "BD", "Warning 0090." },
    { 6, "data", "CD", "Warning 0070." },
    { 7, "data", "DVD", "Warning 0020." },
    { 8, "data", "BD", "Warning 0090." },
};

QString nothingListed(const Kind &kind)
{
    if (QLatin1StringView(kind.list) == "audio"_L1) {
        return u"No audio files on the list | There are no audio files on the list. Add audio files to the "
               u"list "
               "and try again."_s;
    }
    if (QLatin1StringView(kind.list) == "video"_L1) {
        return u"No video files on the list | There are no video files on the list. Add video files to the "
               u"list "
               "and try again."_s;
    }
    return u"No folders on the list | There are no folders on the list. Add folders to the list and try again."_s;
}

QString wrongMedium(const Kind &kind)
{
    if (QLatin1StringView(kind.family) == "CD"_L1) {
        return u"Media not CD | The media on the drive is not a CD. insert a writable CD on the drive and "
               u"try "
               "again."_s;
    }
    if (QLatin1StringView(kind.family) == "DVD"_L1) {
        return u"Media not DVD | The media on the drive is not a DVD. insert a writable DVD on the drive and "
               u"try "
               "again."_s;
    }
    return u"Media not Blu-ray | The media on the drive is not a Blu-ray. insert a writable Blu-ray on the "
           u"drive "
           "and try again."_s;
}

const QString noDisc =
    u"No disc | There is no disc on the drive. insert a writable media on the drive and try "
    "again."_s;
const QString notWritable =
    u"Media not writable | The media on the drive is not writable. insert a writable media "
    "on the drive and try again."_s;

/// A blank of every family, by the name that the check gives it.
const std::pair<const char *, QByteArray> blanks[] = {
    { "CD", discs::blankCD },
    { "DVD", discs::blankDVD },
    { "BD", discs::blankBD },
    { "Other", discs::blankOther },
};

QByteArray blankOf(const char *family)
{
    for (const auto &[name, status] : blanks) {
        if (QLatin1StringView(name) == QLatin1StringView(family))
            return status;
    }
    return {};
}

} // namespace

class DiscChecksTest : public QObject {
    Q_OBJECT

    /// An application with this kind chosen and, unless told otherwise, one entry on its list.
    static void ready(JobApplication &app, const Kind &kind, bool withEntry = true)
    {
        app.launch();
        app.choose(kind.code);
        app.sheets.clear();
        if (!withEntry)
            return;
        if (QLatin1StringView(kind.list) == "data"_L1)
            app.addFolder(app.media.path());
        else
            QVERIFY(app.add({ app.file(u"clip.mp4"_s) }));
        app.sheets.clear();
    }

    /// Presses the burn button and verifies that nothing but alerts came of it.
    static void pressInVain(JobApplication &app)
    {
        const qsizetype listed =
            app.controller->arrayMediaFiles.size() + app.controller->arrayDataFolders.size();
        const QStringList folders{ app.controller->s_Audio_Folder, app.controller->s_Video_Folder,
            app.controller->s_Data_Folder };
        for (const QString &folder : folders)
            QVERIFY(QDir(folder).mkdir(u"kept"_s));
        const qsizetype converted = app.ffmpeg.runs().size();
        app.press("btnBurn");
        QTest::qWait(150); // longer than the timer that starts a write
        QCOMPARE(app.sheets.order(), QStringList());
        QCOMPARE(app.drutil.runs(u"burn"_s), QList<QStringList>());
        QCOMPARE(app.ffmpeg.runs().size(), converted);
        QCOMPARE(app.controller->arrayMediaFiles.size() + app.controller->arrayDataFolders.size(), listed);
        for (const QString &folder : folders)
            QCOMPARE(app.namesIn(folder), QStringList(u"kept"_s));
        for (const Alert &alert : std::as_const(app.asked.alerts))
            QCOMPARE(alert.buttons, QStringList(u"Close"_s));
    }

    static void rowsOfKinds()
    {
        QTest::addColumn<Kind>("kind");
        for (const Kind &kind : kinds)
            QTest::newRow(projects::byCode(kind.code)->name.data()) << kind;
    }

private Q_SLOTS:
    void anEmptyListIsToldBeforeTheDriveIsAsked_data() { rowsOfKinds(); }
    void anEmptyListIsToldBeforeTheDriveIsAsked()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        app.insert(discs::none);
        ready(app, kind, false);
        app.controller->OnMenuDebugMode();
        pressInVain(app);
        QCOMPARE(app.texts(), QStringList(nothingListed(kind)));
        QCOMPARE(app.drutil.runs(u"status"_s), QList<QStringList>());
    }

    void anEmptyDriveIsToldBeforeAnythingElseIsAsked_data() { rowsOfKinds(); }
    void anEmptyDriveIsToldBeforeAnythingElseIsAsked()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        app.insert(discs::none + "    Writability: overwritable\n");
        ready(app, kind);
        pressInVain(app);
        QCOMPARE(app.texts(), QStringList(noDisc));
        const QList<QStringList> asked{ { u"status"_s, u"-drive"_s, u"1"_s } };
        QCOMPARE(app.drutil.runs(u"status"_s), asked);
    }

    void aDiscThatCannotBeWrittenIsTold_data() { rowsOfKinds(); }
    void aDiscThatCannotBeWrittenIsTold()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        app.insert(discs::pressedCD);
        ready(app, kind);
        pressInVain(app);
        QCOMPARE(app.texts(), QStringList(notWritable));
        QCOMPARE(app.drutil.runs(u"status"_s).size(), 3);
    }

    void debugModeShowsWhatTheProbesOfWritabilityRead_data() { rowsOfKinds(); }
    void debugModeShowsWhatTheProbesOfWritabilityRead()
    {
        QFETCH(Kind, kind);
        JobApplication app;
        app.insert(discs::pressedCD);
        ready(app, kind);
        app.trigger("menuitemDebugMode");
        pressInVain(app);
        const QString report = QString::fromUtf8(discs::pressedCD);
        const QStringList expected{ report + u" | Warning 0030."_s, report + u" | Warning 0040."_s,
            notWritable };
        QCOMPARE(app.texts(), expected);
    }

    void aDiscOfAnotherFamilyIsTold_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("family");
        QTest::addColumn<bool>("debug");
        for (const Kind &kind : kinds) {
            for (const auto &[family, status] : blanks) {
                if (QLatin1StringView(family) == QLatin1StringView(kind.family))
                    continue;
                for (const bool debug : { false, true }) {
                    QTest::addRow("%s in place of %s for %s%s", family, kind.family,
                        projects::byCode(kind.code)->name.data(), debug ? ", debug mode" : "")
                        << kind << QString::fromLatin1(family) << debug;
                }
            }
        }
    }
    void aDiscOfAnotherFamilyIsTold()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, family);
        QFETCH(bool, debug);
        JobApplication app;
        app.insert(blankOf(family.toLatin1().constData()));
        ready(app, kind);
        if (debug)
            app.trigger("menuitemDebugMode");
        pressInVain(app);
        QStringList expected(wrongMedium(kind));
        if (debug)
            expected.append(family + u" | "_s + QString::fromLatin1(kind.warning));
        QCOMPARE(app.texts(), expected);
    }

    void aDriveNamedAfterDvdsMakesEveryDiscOne()
    {
        JobApplication app;
        app.insert("Vendor Product: HL-DT-ST DVDRAM\n" + discs::blankCD);
        ready(app, kinds[0]);
        pressInVain(app);
        QCOMPARE(app.texts(), QStringList(wrongMedium(kinds[0])));
    }

    void anErasableDiscIsTakenAndDebugModeTellsOfTheFirstProbeOnly_data()
    {
        QTest::addColumn<bool>("debug");
        QTest::newRow("debug mode off") << false;
        QTest::newRow("debug mode on") << true;
    }
    void anErasableDiscIsTakenAndDebugModeTellsOfTheFirstProbeOnly()
    {
        QFETCH(bool, debug);
        JobApplication app;
        app.insert(discs::writtenCDRW);
        ready(app, kinds[1]);
        if (debug)
            app.trigger("menuitemDebugMode");
        app.press("btnBurn");
        QVERIFY(app.completes());
        const QString told = QString::fromUtf8(discs::writtenCDRW) + u" | Warning 0030."_s;
        QCOMPARE(app.texts(), debug ? QStringList(told) : QStringList());
        QCOMPARE(app.burned(), QStringList(u"clip.mp3"_s));
    }

    void debugModeSaysNothingOfADiscThatSuits()
    {
        JobApplication app;
        ready(app, kinds[0]);
        app.trigger("menuitemDebugMode");
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.texts(), QStringList());
    }

    void aProbeThatPrintsNothingReadsAsADiscThatCannotBeWritten()
    {
        JobApplication app;
        app.insert({});
        ready(app, kinds[0]);
        app.trigger("menuitemDebugMode");
        pressInVain(app);
        const QStringList expected{ u" | Warning 0030."_s, u" | Warning 0040."_s, notWritable };
        QCOMPARE(app.texts(), expected);
    }

    void aMissingDiscUtilityReadsAsADiscThatCannotBeWritten()
    {
        JobApplication app;
        app.around.drutil = app.folder.filePath(u"not there"_s);
        ready(app, kinds[0]);
        pressInVain(app);
        QCOMPARE(app.texts(), QStringList(notWritable));
        QVERIFY(app.controller->activityLog->text().contains(u"could not be started"_s));
    }

    void everyProbeAsksTheChosenDrive()
    {
        JobApplication app;
        app.drutil.print(u"list"_s,
            "header\n"
            "1  ACME     Reader            1.0   SATA      Supported\n"
            "b  ACME     Writer            1.0   SATA      Supported\n");
        app.insert(discs::blankDVD);
        ready(app, kinds[0]);
        app.trigger("submenuItemDriveSlot2");
        pressInVain(app);
        const QStringList status{ u"status"_s, u"-drive"_s, u"b"_s };
        const QList<QStringList> asked{ status, status, status }; // empty, writable, family
        QCOMPARE(app.drutil.runs(u"status"_s), asked);
    }
};

QTEST_MAIN(DiscChecksTest)
#include "DiscChecksTest.moc"
