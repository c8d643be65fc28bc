#include "ui/ColourScheme.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;
using namespace ColourScheme;

class ColourSchemeTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_file = m_folder.filePath(QString::number(++m_count) + u".conf"_s); }

    void textKeepsEveryDigit_data();
    void textKeepsEveryDigit();
    void unreadableTexts_data();
    void unreadableTexts();
    void firstStartStoresTheShippedScheme();
    void restartKeepsAChosenColour();
    void markerWithoutReadableValueIsUnset_data();
    void markerWithoutReadableValueIsUnset();
    void storingAnUnchangedColourKeepsItsDigits();
    void shippedColourComesBackWithItsDigits();
    void everyEightBitColourSurvives();
    void alternatingRows_data();
    void alternatingRows();

private:
    QTemporaryDir m_folder;
    QString m_file;
    int m_count = 0;
};

void ColourSchemeTest::textKeepsEveryDigit_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("grey") << 0.32156863808631897 << u"0.32156863808631897"_s;
    QTest::newRow("blue-grey red") << 0.29411765933036804 << u"0.29411765933036804"_s;
    QTest::newRow("blue-grey green") << 0.4117647111415863 << u"0.4117647111415863"_s;
    QTest::newRow("blue-grey blue") << 0.5529412031173706 << u"0.5529412031173706"_s;
    QTest::newRow("zero") << 0.0 << u"0"_s;
    QTest::newRow("one") << 1.0 << u"1"_s;
    QTest::newRow("below one") << 0.99999999999999989 << u"0.9999999999999999"_s;
    QTest::newRow("smallest") << std::numeric_limits<double>::denorm_min() << u"5e-324"_s;
}

void ColourSchemeTest::textKeepsEveryDigit()
{
    QFETCH(double, value);
    QFETCH(QString, text);
    const Components components{ value, 0.5, 0.25, 1 };
    QCOMPARE(toText(components), text + u" 0.5 0.25 1"_s);
    QVERIFY(fromText(toText(components)) == components);
}

void ColourSchemeTest::unreadableTexts_data()
{
    QTest::addColumn<QString>("text");
    for (const auto &text : { u""_s, u"red"_s, u"0 0 0"_s, u"0 0 0 1 1"_s, u"0 0  1"_s, u"0 0 nan 1"_s,
             u"inf 0 0 1"_s, u"0 0 1.1 1"_s, u"-0.1 0 0 1"_s, u"0,5 0 0 1"_s, u"#ff0000"_s, u"0 0 0 1 "_s })
        QTest::addRow("'%s'", qPrintable(text)) << text;
}

void ColourSchemeTest::unreadableTexts()
{
    QFETCH(QString, text);
    QVERIFY(!fromText(text));
}

void ColourSchemeTest::firstStartStoresTheShippedScheme()
{
    const QMap<QString, QVariant> expected{
        { u"Quendral_Corvalis_b_List_Alternating_Rows"_s, u"1"_s },
        { u"Quendral_Corvalis_Color_Table_Background"_s,
            u"0.32156863808631897 0.32156863808631897 0.32156863808631897 1"_s },
        { u"Quendral_Corvalis_Color_Table_Background_String"_s, u"Recorded"_s },
        { u"Quendral_Corvalis_Color_Table_Foreground"_s, u"1 1 1 1"_s },
        { u"Quendral_Corvalis_Color_Table_Foreground_String"_s, u"Recorded"_s },
        { u"Quendral_Corvalis_Color_Toolbar"_s,
            u"0.29411765933036804 0.4117647111415863 0.5529412031173706 1"_s },
        { u"Quendral_Corvalis_Color_Toolbar_String"_s, u"Recorded"_s },
        { u"Quendral_Corvalis_Color_Bottom_Bar"_s,
            u"0.29411765933036804 0.4117647111415863 0.5529412031173706 1"_s },
        { u"Quendral_Corvalis_Color_Bottom_Bar_String"_s, u"Recorded"_s },
        { u"Quendral_Corvalis_Color_Space_Occupied_Bar"_s, u"0 0 1 1"_s },
        { u"Quendral_Corvalis_Color_Space_Occupied_Bar_String"_s, u"Recorded"_s },
    };
    {
        QSettings preferences(m_file, QSettings::IniFormat);
        QCOMPARE(loadAlternatingRows(preferences), 1);
        for (const Role role : roles)
            QVERIFY(loadColour(preferences, role) == shipped(role).toColour());
    }
    QSettings stored(m_file, QSettings::IniFormat);
    QMap<QString, QVariant> found;
    for (const auto &key : stored.allKeys())
        found[key] = stored.value(key);
    QCOMPARE(found, expected);
    QCOMPARE(shipped(Role::TableBackground).toColour().name(), u"#525252"_s);
    QCOMPARE(shipped(Role::Toolbar).toColour().name(), u"#4b698d"_s);
}

void ColourSchemeTest::restartKeepsAChosenColour()
{
    const QColor chosen(12, 200, 99);
    {
        QSettings preferences(m_file, QSettings::IniFormat);
        for (const Role role : roles)
            loadColour(preferences, role);
        storeColour(preferences, Role::Toolbar, chosen);
        storeAlternatingRows(preferences, 0);
    }
    QSettings preferences(m_file, QSettings::IniFormat);
    for (const Role role : roles)
        QVERIFY(loadColour(preferences, role) == (role == Role::Toolbar ? chosen : shipped(role).toColour()));
    QCOMPARE(loadAlternatingRows(preferences), 0);
}

void ColourSchemeTest::markerWithoutReadableValueIsUnset_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("missing") << QVariant();
    QTest::newRow("empty") << QVariant(u""_s);
    QTest::newRow("words") << QVariant(u"light blue"_s);
    QTest::newRow("binary") << QVariant(QByteArray::fromHex("62706c6973743030ff00"));
    QTest::newRow("list") << QVariant(QStringList{ u"0"_s, u"0"_s, u"1"_s, u"1"_s });
    QTest::newRow("too many") << QVariant(u"0 0 0 1 0"_s);
}

void ColourSchemeTest::markerWithoutReadableValueIsUnset()
{
    QFETCH(QVariant, value);
    QSettings preferences(m_file, QSettings::IniFormat);
    preferences.setValue(markerKey(Role::Toolbar), u"Recorded"_s);
    if (value.isValid())
        preferences.setValue(valueKey(Role::Toolbar), value);
    QVERIFY(!loadColour(preferences, Role::Toolbar).isValid());
    storeColour(preferences, Role::Toolbar, QColor());
    QCOMPARE(preferences.value(valueKey(Role::Toolbar)), value);
    QCOMPARE(preferences.value(markerKey(Role::Toolbar)).toString(), u"Recorded"_s);
    storeColour(preferences, Role::Toolbar, Qt::red);
    QVERIFY(loadColour(preferences, Role::Toolbar) == QColor(Qt::red));
    storeColour(preferences, Role::Toolbar, QColor());
    QVERIFY(!loadColour(preferences, Role::Toolbar).isValid());
}

void ColourSchemeTest::storingAnUnchangedColourKeepsItsDigits()
{
    const auto text = u"0.12345678901234568 0.1 0.3333333333333333 0.5"_s;
    QSettings preferences(m_file, QSettings::IniFormat);
    preferences.setValue(markerKey(Role::BottomBar), u"Recorded"_s);
    preferences.setValue(valueKey(Role::BottomBar), text);
    storeColour(preferences, Role::BottomBar, loadColour(preferences, Role::BottomBar));
    QCOMPARE(preferences.value(valueKey(Role::BottomBar)).toString(), text);
}

void ColourSchemeTest::shippedColourComesBackWithItsDigits()
{
    QSettings preferences(m_file, QSettings::IniFormat);
    for (const Role role : roles) {
        loadColour(preferences, role);
        storeColour(preferences, role, Qt::magenta);
        QCOMPARE(preferences.value(valueKey(role)).toString(), u"1 0 1 1"_s);
        storeColour(preferences, role, shipped(role).toColour());
        QCOMPARE(preferences.value(valueKey(role)).toString(), toText(shipped(role)));
        storeColour(preferences, role, Qt::magenta);
        QVERIFY(storeShippedColour(preferences, role) == shipped(role).toColour());
        QCOMPARE(preferences.value(valueKey(role)).toString(), toText(shipped(role)));
    }
}

void ColourSchemeTest::everyEightBitColourSurvives()
{
    QSettings preferences(m_file, QSettings::IniFormat);
    preferences.setValue(markerKey(Role::Toolbar), u"Recorded"_s);
    for (int value = 0; value < 256; ++value) {
        const QColor colour(value, 255 - value, (value * 7) % 256, value);
        storeColour(preferences, Role::Toolbar, colour.toHsv());
        QCOMPARE(loadColour(preferences, Role::Toolbar).rgba(), colour.toHsv().toRgb().rgba());
        storeColour(preferences, Role::Toolbar, colour);
        QVERIFY(loadColour(preferences, Role::Toolbar) == colour);
    }
}

void ColourSchemeTest::alternatingRows_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<qint64>("expected");
    QTest::newRow("on") << u"1"_s << qint64(1);
    QTest::newRow("off") << u"0"_s << qint64(0);
    QTest::newRow("neither") << u"2"_s << qint64(2);
    QTest::newRow("negative") << u"-1"_s << qint64(-1);
    QTest::newRow("word") << u"yes"_s << qint64(0);
    QTest::newRow("tail") << u" 7 rows"_s << qint64(7);
    QTest::newRow("too big") << u"99999999999999999999"_s << std::numeric_limits<qint64>::max();
}

void ColourSchemeTest::alternatingRows()
{
    QFETCH(QString, stored);
    QFETCH(qint64, expected);
    QSettings preferences(m_file, QSettings::IniFormat);
    preferences.setValue(u"Quendral_Corvalis_b_List_Alternating_Rows"_s, stored);
    QCOMPARE(loadAlternatingRows(preferences), expected);
    QCOMPARE(preferences.value(u"Quendral_Corvalis_b_List_Alternating_Rows"_s).toString(), stored);
}

QTEST_GUILESS_MAIN(ColourSchemeTest)
#include "ColourSchemeTest.moc"
