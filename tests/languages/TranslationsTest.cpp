// The files of the translations, and which of them is chosen.
#include "app/Languages.h"
#include "compilation/SpaceOccupiedView.h"
#include "languages/TranslationFile.h"
#include "runner/TimeLeft.h"
#include "support/TestApplication.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/// The sorted matches of a pattern.
QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    for (const QRegularExpressionMatch &match : QRegularExpression(pattern).globalMatch(text))
        found.append(match.captured());
    found.sort();
    return found;
}

QString folderOfTranslations()
{
    return QDir::cleanPath(builtPrograms() + u"/../share/corvalis/translations"_s);
}

/// Why `translation` cannot stand for `source`; empty when it can.
QString faultOf(const TranslatedText &text, const QString &translation)
{
    const QString &source = text.source;
    const auto differ = [&](const QString &pattern) {
        return matches(source, pattern) != matches(translation, pattern);
    };
    if (translation.trimmed().isEmpty())
        return u"it is empty"_s;
    if (differ(u"%\\d"_s) || (!text.plural && differ(u"%L?n"_s)))
        return u"it has other placeholders"_s;
    if (matches(source, u"(*UCP)&(?=\\w|\\+)"_s).size()
        != matches(translation, u"(*UCP)&(?=\\w|\\+)"_s).size())
        return u"it has no mnemonic, or one too many"_s;
    if (source.endsWith(u'…') != translation.endsWith(u'…')
        || source.endsWith(u'.') != translation.endsWith(u'.'))
        return u"it ends in another way"_s;
    if (source.startsWith(u'\n') != translation.startsWith(u'\n')
        || source.count(u'\n') != translation.count(u'\n'))
        return u"its lines are others"_s;
    if (differ(u"--\\w+|\"--\"|<project>|ffmpeg|\\.iso|\\b[0-9]{2,}\\b"_s) && !text.plural)
        return u"a name or a number is missing"_s;
    return {};
}

} // namespace

class TranslationsTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void areWhole_data();
    void areWhole();
    void haveNoFaults_data() { areWhole_data(); }
    void haveNoFaults();
    void burnTitlesDiffer_data() { areWhole_data(); }
    void burnTitlesDiffer();
    void areChosen_data();
    void areChosen();
    void directionFollows();
    void gaugeFillsFromWhereReadingBegins();
    void programSpeaks_data();
    void programSpeaks();
    void toolsDoNot_data();
    void toolsDoNot();

private:
    /// Takes away what speak() installed.
    static void forget();
    /// What a tool prints where German is spoken, or where no language is.
    QByteArray printed(const QString &locale, const QString &program, const QStringList &arguments) const;

    QTemporaryDir m_locales;
};

void TranslationsTest::forget()
{
    for (QTranslator *translator : QCoreApplication::instance()->findChildren<QTranslator *>())
        delete translator;
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void TranslationsTest::areWhole_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : translatedLanguages())
        QTest::newRow(qPrintable(language)) << language;
    QVERIFY(translatedLanguages().size() >= 5);
}

void TranslationsTest::areWhole()
{
    QFETCH(QString, language);
    const QList<TranslatedText> texts = textsOfLanguage(language);
    QVERIFY(!texts.isEmpty());
    for (const TranslatedText &text : texts)
        QVERIFY2(text.finished, qPrintable(text.context + u": "_s + text.source));
}

void TranslationsTest::haveNoFaults()
{
    QFETCH(QString, language);
    QStringList faults;
    for (const TranslatedText &text : textsOfLanguage(language)) {
        for (const QString &translation : text.translations) {
            if (const QString fault = faultOf(text, translation); !fault.isEmpty())
                faults.append(u"%1: “%2”: “%3”"_s.arg(fault, text.source, translation));
        }
    }
    QCOMPARE(faults.join(u'\n'), QString());
}

void TranslationsTest::burnTitlesDiffer()
{
    QFETCH(QString, language);
    languages::speak(QLocale(language), folderOfTranslations());
    QSet<QString> titles;
    for (const ProjectType &type : projects::all)
        titles.insert(type.shownBurnTitle());
    forget();
    QCOMPARE(titles.size(), static_cast<qsizetype>(projects::all.size()));
}

void TranslationsTest::areChosen_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("said");
    QTest::newRow("English") << u"en_GB"_s << u"About 2 minutes left"_s;
    QTest::newRow("none") << u"C"_s << u"About 2 minutes left"_s;
    QTest::newRow("one that there is not") << u"is_IS"_s << u"About 2 minutes left"_s;
    QTest::newRow("German of Austria") << u"de_AT"_s << u"Noch etwa 2 Minuten"_s;
    QTest::newRow("French of Canada") << u"fr_CA"_s << u"Environ 2 minutes restantes"_s;
    QTest::newRow("Spanish of Mexico") << u"es_MX"_s << u"Quedan unos 2 minutos"_s;
    QTest::newRow("Portuguese of Brazil") << u"pt_BR"_s << u"Faltam cerca de 2 minutos"_s;
}

void TranslationsTest::areChosen()
{
    QFETCH(QString, locale);
    QFETCH(QString, said);
    languages::speak(QLocale(locale), folderOfTranslations());
    const QString text = runner::TimeLeft::text(110);
    forget();
    QCOMPARE(text, said);
}

void TranslationsTest::directionFollows()
{
    // A person whose language there is not reads English, from the left.
    languages::speak(QLocale(u"ar_EG"_s), folderOfTranslations());
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    forget();
    QTemporaryDir folder;
    QVERIFY(QFile::copy(folderOfTranslations() + u"/corvalis_en.qm"_s, folder.filePath(u"corvalis_en.qm"_s)));
    const QString ts = folder.filePath(u"corvalis_he.ts"_s);
    makeFile(ts,
        "<!DOCTYPE TS><TS version=\"2.1\" "
        "language=\"he\"><context><name>TimeLeft</name><message><source>Less than a "
        "minute left</source><translation>פחות מדקה</translation></message></context></TS>");
    QCOMPARE(QProcess::execute(QStringLiteral(LRELEASE), { u"-silent"_s, ts }), 0);
    languages::speak(QLocale(u"he_IL"_s), folder.path());
    const Qt::LayoutDirection direction = QGuiApplication::layoutDirection();
    const QString text = runner::TimeLeft::text(10);
    forget();
    QCOMPARE(text, u"פחות מדקה"_s);
    QCOMPARE(direction, Qt::RightToLeft);
}

void TranslationsTest::gaugeFillsFromWhereReadingBegins()
{
    SpaceOccupiedView gauge;
    gauge.setColourSource([] { return QColor(Qt::blue); });
    gauge.setI_Percentage(95);
    gauge.setFixedSize(200, 20);
    gauge.setLayoutDirection(Qt::LeftToRight);
    const QImage fromLeft = gauge.grab().toImage();
    gauge.setLayoutDirection(Qt::RightToLeft);
    QCOMPARE(fromLeft.pixelColor(5, 10), QColor(Qt::blue));
    QCOMPARE(gauge.grab().toImage().mirrored(true, false), fromLeft);
}

void TranslationsTest::programSpeaks_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("said");
    QTest::newRow("English") << u"en"_s << u"there is no project"_s;
    QTest::newRow("German") << u"de"_s << u"es gibt kein Projekt"_s;
    QTest::newRow("the second of two") << u"is:de"_s << u"es gibt kein Projekt"_s;
}

void TranslationsTest::programSpeaks()
{
    QFETCH(QString, language);
    QFETCH(QString, said);
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"LANGUAGE"_s, language);
    program.setProcessEnvironment(environment);
    program.start(builtPrograms() + u"/corvalis"_s, { u"--burn"_s, u"Nothing"_s });
    QVERIFY(program.waitForFinished());
    QCOMPARE(program.exitCode(), 2); // in every language
    const QString told = QString::fromUtf8(program.readAllStandardError());
    QVERIFY2(told.startsWith(u"corvalis: "_s) && told.contains(said) && told.contains(u"\"Audio CD\""_s),
        qPrintable(told));
}

void TranslationsTest::toolsDoNot_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");
    const QString bin = builtPrograms() + u'/';
    QTest::newRow("list") << bin + u"drutil"_s << QStringList{ u"list"_s };
    QTest::newRow("status") << bin + u"drutil"_s << QStringList{ u"status"_s, u"-drive"_s, u"1"_s };
    QTest::newRow("failure") << bin + u"hdiutil"_s << QStringList{ u"burn"_s, u"/none.iso"_s };
    QTest::newRow("help") << bin + u"drutil"_s << QStringList{ u"--help"_s };
    QTest::newRow("media") << bin + u"../libexec/corvalis/ffmpeg"_s
                           << QStringList{ u"-f"_s, u"lavfi"_s, u"-i"_s, u"sine=duration=1.5"_s };
}

QByteArray TranslationsTest::printed(
    const QString &locale, const QString &program, const QStringList &arguments) const
{
    QProcess tool;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LOCPATH"_s, m_locales.path());
    environment.insert(u"LC_ALL"_s, locale);
    environment.insert(u"LANGUAGE"_s, locale.left(2));
    tool.setProcessEnvironment(environment);
    tool.setProcessChannelMode(QProcess::MergedChannels);
    tool.start(program, arguments);
    tool.waitForFinished();
    return tool.readAll();
}

/// What is read of the tools has one form, whatever the person's locale is.
void TranslationsTest::toolsDoNot()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    const QString german = u"de_DE.UTF-8"_s;
    if (!QFile::exists(m_locales.filePath(german))) {
        QProcess::execute(u"localedef"_s,
            { u"--no-warnings=ascii"_s, u"-c"_s, u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s,
                m_locales.filePath(german) });
    }
    QCOMPARE(printed(german, u"/usr/bin/printf"_s, { u"%.1f"_s, u"1,5"_s }), QByteArray("1,5"));
    const QByteArray neutral = printed(u"C"_s, program, arguments);
    QVERIFY(!neutral.isEmpty());
    QCOMPARE(printed(german, program, arguments), neutral);
}

QTEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
