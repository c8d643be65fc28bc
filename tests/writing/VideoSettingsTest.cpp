// The sheet of the video formats: what it shows, what it keeps, and that it reads the first button of each pair only.
#include "app/Preferences.h"
#include "support/JobApplication.h"
#include "writing/Window_Video_Settings.h"

#include <QCheckBox>
#include <QSettings>

using namespace Qt::StringLiterals;

class VideoSettingsTest : public QObject {
    Q_OBJECT

    /// The states of the four buttons: NTSC, PAL, Dolby Digital, MPEG-2, as "1010".
    static QString shown(const JobApplication &app)
    {
        QString states;
        for (const char *name :
            { "radioVideoNTSC", "radioVideoPal", "radioAudioDolbyDigital", "radioAudioMPEG2" })
            states += QLatin1Char(radio(app, name)->isChecked() ? '1' : '0');
        return states;
    }

    static QRadioButton *radio(const JobApplication &app, const char *name)
    {
        return app.controller->windowVideoSettings->findChild<QRadioButton *>(QLatin1StringView(name));
    }

    static void click(const JobApplication &app, const char *name)
    {
        QRadioButton *button = radio(app, name);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }

    static void close(const JobApplication &app, QDialogButtonBox::StandardButton which)
    {
        QTest::mouseClick(app.button(app.controller->windowVideoSettings, which), Qt::LeftButton);
    }

    /// The two formats as the controller and the settings file have them.
    static QString kept(const JobApplication &app)
    {
        const QSettings file(u"Corvalis"_s, u"Corvalis"_s);
        return app.controller->s_Video_Output_Format + app.controller->s_Audio_Output_Format + u" on disk "_s
            + file.value(u"QuendralVideoFormat18"_s).toString()
            + file.value(u"QuendralAudioFormat18"_s).toString();
    }

    static void open(JobApplication &app)
    {
        app.launch();
        app.choose(4);
        app.press("toolbar_btn_Video_Settings");
        QVERIFY(app.controller->windowVideoSettings);
        QVERIFY(QTest::qWaitForWindowActive(app.controller->windowVideoSettings));
    }

    static void store(const char *key, const char *value)
    {
        QSettings file(u"Corvalis"_s, u"Corvalis"_s);
        if (value)
            file.setValue(QLatin1StringView(key), QLatin1StringView(value));
        else
            file.remove(QLatin1StringView(key));
    }

private Q_SLOTS:
    void init()
    {
        // As after a first run.
        QDir().mkpath(QDir::home().filePath(u"Documents/Corvalis"_s));
        store("QuendralVideoFormat18", "0");
        store("QuendralAudioFormat18", "0");
    }

    void aFirstRunShowsNtscAndDolbyDigital()
    {
        store("QuendralVideoFormat18", "1");
        store("QuendralAudioFormat18", nullptr);
        QVERIFY(QDir(QDir::home().filePath(u"Documents/Corvalis"_s)).removeRecursively());
        JobApplication app;
        open(app);
        QCOMPARE(shown(app), u"1010"_s);
        QCOMPARE(kept(app), u"00 on disk 00"_s);
    }

    void whatIsChosenIsKeptAcrossARestart()
    {
        {
            JobApplication app;
            open(app);
            click(app, "radioVideoPal");
            click(app, "radioAudioMPEG2");
            QCOMPARE(shown(app), u"0101"_s);
            QCOMPARE(kept(app), u"00 on disk 00"_s);
            close(app, QDialogButtonBox::Ok);
            QVERIFY(!app.controller->windowVideoSettings);
            QCOMPARE(kept(app), u"11 on disk 11"_s);
        }
        JobApplication app;
        open(app);
        QCOMPARE(shown(app), u"0101"_s);
        QCOMPARE(kept(app), u"11 on disk 11"_s);
    }

    void leavingWithoutOkKeepsWhatWas_data()
    {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Escape") << true;
    }
    void leavingWithoutOkKeepsWhatWas()
    {
        QFETCH(bool, byEscape);
        JobApplication app;
        open(app);
        click(app, "radioVideoPal");
        click(app, "radioAudioMPEG2");
        if (byEscape)
            QTest::keyClick(app.controller->windowVideoSettings, Qt::Key_Escape);
        else
            close(app, QDialogButtonBox::Cancel);
        QVERIFY(!app.controller->windowVideoSettings);
        QCOMPARE(kept(app), u"00 on disk 00"_s);
        app.press("toolbar_btn_Video_Settings");
        QCOMPARE(shown(app), u"1010"_s);
    }

    void theReturnKeyConfirms()
    {
        JobApplication app;
        open(app);
        click(app, "radioVideoPal");
        QTest::keyClick(app.controller->windowVideoSettings, Qt::Key_Return);
        QVERIFY(!app.controller->windowVideoSettings);
        QCOMPARE(kept(app), u"10 on disk 10"_s);
    }

    void aSettingThatIsMissingReadsAsPalAndMpeg_data()
    {
        QTest::addColumn<QByteArray>("video");
        QTest::addColumn<QByteArray>("audio");
        QTest::addColumn<QString>("states");
        QTest::newRow("video missing") << QByteArray() << QByteArray("0") << u"0110"_s;
        QTest::newRow("audio missing") << QByteArray("0") << QByteArray() << u"1001"_s;
        QTest::newRow("both odd") << QByteArray("NTSC") << QByteArray("0.0") << u"0101"_s;
    }
    void aSettingThatIsMissingReadsAsPalAndMpeg()
    {
        QFETCH(QByteArray, video);
        QFETCH(QByteArray, audio);
        QFETCH(QString, states);
        store("QuendralVideoFormat18", video.isNull() ? nullptr : video.constData());
        store("QuendralAudioFormat18", audio.isNull() ? nullptr : audio.constData());
        JobApplication app;
        open(app);
        QCOMPARE(shown(app), states);
        close(app, QDialogButtonBox::Cancel);

        app.insert(discs::blankDVD);
        QVERIFY(app.add({ app.file(u"clip.mov"_s) }));
        app.press("btnBurn");
        QVERIFY(app.completes());
        QCOMPARE(app.ffmpeg.runs().last().at(3), states.startsWith(u'1') ? u"ntsc-dvd"_s : u"pal-dvd"_s);
        QCOMPARE(app.ffmpeg.runs().last().at(9), states.endsWith(u'0') ? u"ac3"_s : u"mp2"_s);
    }

    void pressingTheButtonThatIsOnChangesNothing()
    {
        JobApplication app;
        open(app);
        click(app, "radioVideoNTSC");
        click(app, "radioAudioDolbyDigital");
        QCOMPARE(shown(app), u"1010"_s);
        click(app, "radioVideoPal");
        click(app, "radioVideoPal");
        QCOMPARE(shown(app), u"0110"_s);
        click(app, "radioVideoNTSC");
        QCOMPARE(shown(app), u"1010"_s);
    }

    void aHandlerOnlyEverSwitchesTheOtherOff()
    {
        JobApplication app;
        open(app);
        Window_Video_Settings *sheet = app.controller->windowVideoSettings;
        using Handler = void (Window_Video_Settings::*)();
        const std::pair<Handler, const char *> handlers[] = {
            { &Window_Video_Settings::OnVideoNTSC, "radioVideoNTSC" },
            { &Window_Video_Settings::OnVideoPal, "radioVideoPal" },
            { &Window_Video_Settings::OnAudioDolbyDigital, "radioAudioDolbyDigital" },
            { &Window_Video_Settings::OnAudioMPEG2, "radioAudioMPEG2" },
        };
        const QStringList allButTheOther{ u"1011"_s, u"0111"_s, u"1110"_s, u"1101"_s };
        for (qsizetype i = 0; i < 4; ++i) {
            const auto &[handler, name] = handlers[i];
            setAll(app, true);
            (sheet->*handler)();
            QCOMPARE(shown(app), allButTheOther.at(i));
            setAll(app, true);
            radio(app, name)->setChecked(false);
            const QString before = shown(app);
            (sheet->*handler)();
            QCOMPARE(shown(app), before);
        }
    }

    void okReadsTheFirstButtonOfEachPairOnly()
    {
        JobApplication app;
        open(app);
        setAll(app, false);
        close(app, QDialogButtonBox::Ok);
        QCOMPARE(kept(app), u"11 on disk 11"_s);
        app.press("toolbar_btn_Video_Settings");
        setAll(app, true);
        close(app, QDialogButtonBox::Ok);
        QCOMPARE(kept(app), u"00 on disk 00"_s);
    }

    void theSwitchForPlayersIsOffAndIsKept()
    {
        const auto box = [](const JobApplication &app) {
            return app.controller->windowVideoSettings->findChild<QCheckBox *>(u"checkForPlayers"_s);
        };
        const auto stored = [] {
            return QSettings(u"Corvalis"_s, u"Corvalis"_s)
                .value(preferences::forPlayers.toString())
                .toString();
        };
        store("Corvalis_Video_DVD_For_Players", nullptr);
        {
            JobApplication app;
            open(app);
            QVERIFY(!box(app)->isChecked());
            box(app)->click();
            close(app, QDialogButtonBox::Cancel);
            QVERIFY(!app.controller->forPlayers);
            QCOMPARE(stored(), QString());
            app.press("toolbar_btn_Video_Settings");
            QVERIFY(!box(app)->isChecked());
            box(app)->click();
            close(app, QDialogButtonBox::Ok);
            QVERIFY(app.controller->forPlayers);
            QCOMPARE(stored(), u"1"_s);
            QCOMPARE(kept(app), u"00 on disk 00"_s);
        }
        JobApplication app;
        open(app);
        QVERIFY(box(app)->isChecked());
        box(app)->click();
        close(app, QDialogButtonBox::Ok);
        QVERIFY(!app.controller->forPlayers);
        QCOMPARE(stored(), u"0"_s);
    }

    void theMenuOpensTheSheetToo()
    {
        JobApplication app;
        app.launch();
        app.trigger("menuitemVideoSettings");
        QVERIFY(app.controller->windowVideoSettings);
        QVERIFY(app.controller->windowVideoSettings->isVisible());
        QCOMPARE(shown(app), u"1010"_s);
    }

private:
    static void setAll(const JobApplication &app, bool on)
    {
        for (const char *name :
            { "radioVideoNTSC", "radioVideoPal", "radioAudioDolbyDigital", "radioAudioMPEG2" })
            radio(app, name)->setChecked(on);
    }
};

QTEST_MAIN(VideoSettingsTest)
#include "VideoSettingsTest.moc"
