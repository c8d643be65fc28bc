// The names on an audio CD: how they are spelled, cut and packed, and how packs of other discs are read.
#include "audio/CdText.h"

#include "audio/CueSheet.h"
#include "audio/Latin1.h"

#include <QtTest>

#include <random>
#include <sys/types.h>
// libburn.h needs off_t and the fixed-width integers to be known.
#include <libburn/libburn.h>

using namespace Qt::StringLiterals;
using namespace engine;
using namespace engine::audio;

namespace {

QByteArray bytesOf(const std::vector<Pack> &packs)
{
    QByteArray all;
    for (const Pack &pack : packs)
        all.append(reinterpret_cast<const char *>(pack.data()), qsizetype(pack.size()));
    return all;
}

/// What libburn makes of the same names.
QByteArray libburnPacks(const CdText &text)
{
    burn::burn_session *session = burn::burn_session_create();
    const auto bytes = [](std::string &latin1) { return reinterpret_cast<unsigned char *>(latin1.data()); };
    const auto put = [&](const std::string &name, const auto &set) {
        std::string latin1 = latin1Of(name).text;
        if (!latin1.empty())
            set(bytes(latin1), int(latin1.size()) + 1);
    };
    std::array<int, 8> codes{}, copyrights{}, languages{};
    languages.fill(-1);
    codes.fill(-1);
    copyrights.fill(-1);
    codes[0] = copyrights[0] = 0;
    languages[0] = 0x09;
    burn::burn_session_set_cdtext_par(session, codes.data(), copyrights.data(), languages.data(), 0);
    for (const auto &[type, name] :
        { std::pair{ 0x80, &Texts::title }, std::pair{ 0x81, &Texts::performer } })
        put(text.disc.*name, [&, kind = type](unsigned char *payload, int size) {
            burn::burn_session_set_cdtext(session, 0, kind, nullptr, payload, size, 0);
        });
    QList<burn::burn_track *> tracks;
    for (const Texts &texts : text.tracks) {
        burn::burn_track *track = burn::burn_track_create();
        tracks.append(track);
        burn::burn_track_define_data(track, 0, 0, 1, 0x40 /* BURN_AUDIO */);
        burn::burn_session_add_track(session, track, BURN_POS_END);
        for (const auto &[type, name] :
            { std::pair{ 0x80, &Texts::title }, std::pair{ 0x81, &Texts::performer } })
            put(texts.*name, [&, kind = type](unsigned char *payload, int size) {
                burn::burn_track_set_cdtext(track, 0, kind, nullptr, payload, size, 0);
            });
    }
    unsigned char *packs = nullptr;
    int count = 0;
    const int made = burn::burn_cdtext_from_session(session, &packs, &count, 0);
    const QByteArray all = made > 0 ? QByteArray(reinterpret_cast<char *>(packs), count * 18) : QByteArray();
    std::free(packs);
    for (burn::burn_track *track : tracks)
        burn::burn_track_free(track);
    burn::burn_session_free(session);
    return all;
}

CdText disc(int tracks, int titleLength, int performerLength = 0)
{
    CdText text{ { "The whole disc", performerLength > 0 ? "Everybody" : "" }, {} };
    for (int i = 0; i < tracks; ++i) {
        const std::string number = std::to_string(i + 100);
        text.tracks.push_back({ number
                + std::string(std::size_t(std::max(titleLength - 3, 0)), char('a' + i % 26)),
            performerLength > 0 ? number + std::string(std::size_t(performerLength - 3), char('A' + i % 26))
                                : "" });
    }
    return text;
}

} // namespace

class CdTextTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(burn::burn_initialize()); }

    void lines_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("plain") << QByteArray("A song") << u"A song"_s;
        QTest::newRow("ended by NUL") << QByteArray("A song\0\0more", 12) << u"A song"_s;
        QTest::newRow("blanks and breaks") << QByteArray("  A\r\n\tlong  song \n") << u"A long song"_s;
        QTest::newRow("UTF-8") << QByteArray("Stra\xc3\x9f"
                                             "e \xe2\x80\x93 \xe6\xad\x8c")
                               << u"Straße – 歌"_s;
        QTest::newRow("ISO 8859-1") << QByteArray("Stra\xdf"
                                                  "e")
                                    << u"Straße"_s;
        QTest::newRow("Windows-1252") << QByteArray("\x93"
                                                    "Stra\xdf"
                                                    "e\x94 \x80\x81")
                                      << u"“Straße” €?"_s;
        QTest::newRow("nothing") << QByteArray() << QString();
    }

    void lines()
    {
        QFETCH(QByteArray, text);
        QTEST(QString::fromStdString(oneLine(text.toStdString())), "line");
    }

    void spellings_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("latin1");
        QTest::addColumn<bool>("exact");
        const auto row = [](const char *title, const char16_t *text, const char *latin1, bool exact) {
            QTest::newRow(title) << QString::fromUtf16(text) << QByteArray(latin1) << exact;
        };
        row("ASCII", u"It's \"A\" & B ~", "It's \"A\" & B ~", true);
        row("Western", u"Ünïcødé ÿ ß ¿¡ ½",
            "\xdcn\xef"
            "c\xf8"
            "d\xe9 \xff \xdf \xbf\xa1 \xbd",
            true);
        row("Polish", u"Zażółć gęślą jaźń", "Zaz\xf3lc gesla jazn", false);
        row("Czech", u"Příliš žluťoučký kůň", "Pr\xedlis zlutouck\xfd kun", false);
        row("Hungarian", u"Tűző Ősz", "T\xfcz\xf6 \xd6sz", false);
        row("Turkish", u"İstanbul ığdır Şişli", "Istanbul igdir Sisli", false);
        row("Romanian", u"Țară și știință", "Tara si stiinta", false);
        row("Icelandic", u"Þórður Æ", "\xde\xf3r\xf0ur \xc6", true);
        row("French", u"Œuvre cœur", "OEuvre coeur", false);
        row("Vietnamese", u"Tiếng Việt", "Tieng Viet", false);
        row("Greek", u"Ελλάδα Ωδή", "Ellada Odi", false);
        row("Russian", u"Щелкунчик, подъезд, ёж", "Shchelkunchik, podezd, yozh", false);
        row("Ukrainian", u"Київ Ґудзик", "Kiyiv Gudzik", false);
        row("typographic", u"“A” ‘b’ – — … „c‟ •", "\"A\" 'b' - - ... \"c\" \xb7", false);
        row("currency and marks", u"€ ™ №5 −1", "EUR TM No.5 -1", false);
        row("full width", u"ＡＢ！", "AB!", false);
        row("Japanese", u"歌う", "??", false);
        row("beyond 16 bits", u"\xd83c\xdfb5 song", "? song", false);
        row("decomposed",
            u"U\x308"
            u"ber cafe\x301 n\x303 C\x327",
            "\xdc"
            "ber caf\xe9 \xf1 \xc7",
            true);
        row("decomposed, not in it", u"z\x301\x301", "z", false);
        row("blanks",
            u"a\xa0"
            u"b\x2009"
            u"c\x200b"
            u"d",
            "a b cd", false);
    }

    void spellings()
    {
        QFETCH(QString, text);
        const Spelling spelling = latin1Of(text.toStdString());
        QTEST(QByteArray::fromStdString(spelling.text), "latin1");
        QTEST(spelling.exact, "exact");
    }

    void everyCharacterHasASpelling()
    {
        for (char32_t character = 1; character < 0x11000; ++character) {
            if (character >= 0xd800 && character < 0xe000)
                continue;
            for (const char letter : latin1Of(QString::fromUcs4(&character, 1).toStdString()).text) {
                const auto byte = static_cast<unsigned char>(letter);
                QVERIFY2((byte >= 0x20 && byte < 0x7f) || (byte > 0xa0 && byte != 0xad),
                    QByteArray::number(quint32(character), 16).constData());
            }
        }
    }

    // Title of the disc and two tracks, worked out by hand from MMC-3 annex J.
    void packsByteForByte()
    {
        const CdText text{ { "Disc", "" }, { { "One", "" }, { "A longer title", "" } } };
        const QByteArray expected = QByteArray::fromHex("80000000"
                                                        "44697363004f6e650041206c"
                                                        "0000"
                                                        "80020103"
                                                        "6f6e676572207469746c6500"
                                                        "0000"
                                                        "8f000200"
                                                        "000102000200000000000000"
                                                        "0000"
                                                        "8f010300"
                                                        "000000000000000304000000"
                                                        "0000"
                                                        "8f020400"
                                                        "000000000900000000000000"
                                                        "0000");
        QByteArray packs = bytesOf(packsOf(text));
        QCOMPARE(packs.size(), expected.size());
        for (qsizetype at = 16; at < packs.size(); at += 18) {
            QVERIFY(packs.mid(at, 2) != QByteArray(2, '\0'));
            packs.replace(at, 2, QByteArray(2, '\0')); // the checksums are compared with libburn's below
        }
        QCOMPARE(packs.toHex(' '), expected.toHex(' '));
    }

    void packsAreThoseOfLibburn_data()
    {
        QTest::addColumn<int>("tracks");
        QTest::addColumn<int>("title");
        QTest::addColumn<int>("performer");
        QTest::newRow("one track") << 1 << 8 << 0;
        QTest::newRow("titles that fill packs") << 4 << 11 << 0;
        QTest::newRow("titles over several packs") << 9 << 40 << 13;
        QTest::newRow("as long as may be") << 3 << 160 << 160;
        QTest::newRow("99 tracks") << 99 << 9 << 8;
    }

    void packsAreThoseOfLibburn()
    {
        QFETCH(int, tracks);
        QFETCH(int, title);
        QFETCH(int, performer);
        const CdText text = disc(tracks, title, performer);
        const QByteArray packs = bytesOf(packsOf(text));
        QByteArray theirs = libburnPacks(text);
        QCOMPARE(packs.toHex(' '), theirs.toHex(' '));
    }

    void namesOfOneKindAreThereForAllOrForNone()
    {
        const CdText text{ { "", "" }, { { "One", "" }, { "", "" }, { "Three", "" } } };
        const std::vector<Pack> packs = packsOf(text);
        QVERIFY(std::ranges::none_of(packs, [](const Pack &pack) { return pack[0] == 0x81; }));
        QCOMPARE(bytesOf(packs).mid(4, 12), QByteArray("\0One\0\0Three\0", 12));
        QCOMPARE(textOf(packs, 3), text);
        QVERIFY(packsOf({ {}, std::vector<Texts>(5) }).empty());
    }

    void whatIsPackedIsRead_data()
    {
        packsAreThoseOfLibburn_data();
        QTest::newRow("titles only, empty ones among them") << 12 << 0 << 0;
    }

    void whatIsPackedIsRead()
    {
        QFETCH(int, tracks);
        QFETCH(int, title);
        QFETCH(int, performer);
        CdText text = disc(tracks, title, performer);
        text.tracks.front().title = "Façade, naïve";
        text.tracks.back().performer = text.tracks.front().performer;
        QCOMPARE(textOf(packsOf(text), std::size_t(tracks)), text);
    }

    void longNamesAreCut_data()
    {
        QTest::addColumn<int>("tracks");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("longest");
        QTest::newRow("all fit") << 99 << 14 << 14;
        QTest::newRow("99 tracks") << 99 << 100 << 14;
        QTest::newRow("ten tracks") << 10 << 200 << 149;
        QTest::newRow("one track") << 1 << 200 << 160;
    }

    void longNamesAreCut()
    {
        QFETCH(int, tracks);
        QFETCH(int, length);
        QFETCH(int, longest);
        const FittedText fitted = fittedText(disc(tracks, length, length));
        const std::vector<Pack> packs = packsOf(fitted.text);
        QVERIFY(packs.size() <= mostPacks);
        QCOMPARE(int(fitted.text.tracks.back().title.size()), longest);
        QCOMPARE(int(fitted.text.tracks.front().performer.size()), longest);
        QCOMPARE(fitted.text.disc.performer, std::string("Everybody"));
        QCOMPARE(int(fitted.changes.cut.size()), length > longest ? 2 * tracks : 0);
        QCOMPARE(int(packs.back()[2]), int(packs.size()) - 1);
        QCOMPARE(textOf(packs, std::size_t(tracks)), fitted.text);
    }

    void otherSpellingsAreTold()
    {
        const FittedText fitted = fittedText({ { "Łódź", "Jürgen" }, { { "Plain", "" } } });
        QCOMPARE(fitted.text.disc.title,
            std::string("L\xc3\xb3"
                        "dz"));
        QCOMPARE(fitted.text.disc.performer, std::string("Jürgen"));
        QCOMPARE(fitted.changes.respelled, std::vector<std::string>{ "Łódź" });
        QVERIFY(fitted.changes.cut.empty());
    }

    void repeatedNamesOfOtherDiscs()
    {
        // As many discs are: a tab stands for the name before.
        const CdText text{ { "Disc", "Band" }, { { "One", "\t" }, { "Two", "\t" } } };
        std::vector<Pack> packs = packsOf({ { "Disc", "Band" }, { { "One", "x" }, { "Two", "x" } } });
        for (Pack &pack : packs)
            if (pack[0] == 0x81)
                std::ranges::replace(pack, 'x', '\t');
        const CdText read = textOf(packs, 2);
        QCOMPARE(read.tracks[0], (Texts{ "One", "Band" }));
        QCOMPARE(read.tracks[1], (Texts{ "Two", "Band" }));
    }

    void japaneseDiscs()
    {
        Pack title{ 0x80, 0, 0, 0x80 };
        const QByteArray sjis = QByteArray::fromHex("89cc000083488343");
        std::memcpy(&title[4], sjis.constData(), std::size_t(sjis.size()));
        const Pack sizes{ 0x8f, 0, 1, 0x80, 0x80, 1, 1 };
        const CdText read = textOf(std::array{ title, sizes }, 1);
        QCOMPARE(QString::fromStdString(read.disc.title), u"歌"_s);
        QCOMPARE(QString::fromStdString(read.tracks[0].title), u"ォイ"_s);
    }

    void brokenPacksSpoilNoOthers()
    {
        const CdText text = disc(20, 30, 20);
        std::vector<Pack> packs = packsOf(text);
        packs.erase(packs.begin() + 10);
        const CdText read = textOf(packs, 20);
        int good = 0;
        for (std::size_t i = 0; i < 20; ++i)
            good += int(read.tracks[i] == text.tracks[i]);
        QVERIFY2(good >= 18, QByteArray::number(good).constData());
    }

    void anyPacksHaveAnAnswer()
    {
        std::mt19937 random(1);
        for (int round = 0; round < 3000; ++round) {
            std::vector<Pack> packs(random() % 40);
            for (Pack &pack : packs) {
                for (unsigned char &byte : pack)
                    byte = static_cast<unsigned char>(random());
                pack[0] = static_cast<unsigned char>(0x80 + random() % 3 + (random() % 4 == 0 ? 13 : 0));
            }
            const CdText read = textOf(packs, random() % 100);
            QVERIFY(read.disc.title.find('\n') == std::string::npos);
            QVERIFY(packsOf(fittedText(read).text).size() <= mostPacks);
        }
    }

    void cueSheetsHoldTheNames()
    {
        AudioDisc disc;
        disc.tracks = { { "a", {}, 300 }, { "b", {}, 400 } };
        disc.text = { { "FILE \"disc.bin\"", "Band" }, { { "Ünder", "" }, { "Two", "Other" } } };
        const std::string sheet = cueSheet("disc.bin", disc);
        QCOMPARE(QString::fromLatin1(sheet.c_str()),
            u"TITLE \"FILE 'disc.bin'\"\nPERFORMER \"Band\"\nFILE \"disc.bin\" BINARY\n"
            "  TRACK 01 AUDIO\n    TITLE \"Ünder\"\n    INDEX 00 00:00:00\n    INDEX 01 00:02:00\n"
            "  TRACK 02 AUDIO\n    TITLE \"Two\"\n    PERFORMER \"Other\"\n    INDEX 01 00:06:00\n"_s);
        const DiscTracks tracks = tracksOfSheet(sheet, 850);
        QCOMPARE(tracks.disc, (Texts{ "FILE 'disc.bin'", "Band" }));
        QCOMPARE(tracks.tracks.size(), std::size_t(2));
        QCOMPARE(tracks.tracks[0].texts, (Texts{ "Ünder", "" }));
        QCOMPARE(tracks.tracks[0].start, std::uint64_t(150));
        QCOMPARE(tracks.tracks[0].sectors, std::uint64_t(300));
        QCOMPARE(tracks.tracks[1].start, std::uint64_t(450));
        QCOMPARE(tracks.tracks[1].sectors, std::uint64_t(400));
        QVERIFY(tracks.tracks[1].audio);
    }

    void anySheetHasAnAnswer()
    {
        for (const char *sheet : { "", "TRACK", "INDEX 01 ", "  TRACK 01 AUDIO\nINDEX 01 x:y", "TITLE \"",
                 "TITLE \"a", "TRACK 1\nINDEX 01 99999999999999999999:1:1\nTRACK 2\nINDEX 01 00:00:00" })
            for (const TrackRecord &track : tracksOfSheet(sheet, 100).tracks)
                QVERIFY(track.sectors <= 100);
    }
};

QTEST_APPLESS_MAIN(CdTextTest)
#include "CdTextTest.moc"
