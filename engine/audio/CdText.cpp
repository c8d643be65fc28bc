#include "audio/CdText.h"

#include "audio/Latin1.h"

#include <algorithm>
#include <iconv.h>
#include <map>
#include <optional>
#include <string_view>

namespace engine::audio {

namespace {

constexpr std::size_t payloadAt = 4, payloadSize = 12, checksumAt = 16;
constexpr unsigned char sizesType = 0x8f;
constexpr std::size_t sizePacks = 3;
constexpr std::size_t mostTextPacks = mostPacks - sizePacks;
constexpr std::size_t longestName = 160;

/// One kind of name.
struct Kind {
    unsigned char type;
    std::string Texts::*name;
};

constexpr std::array kinds{ Kind{ 0x80, &Texts::title }, Kind{ 0x81, &Texts::performer } };

enum class Code : unsigned char { latin1 = 0x00, ascii = 0x01, msJis = 0x80 };

/// The names of one kind, that of the disc first; none where nothing has one.
std::vector<std::string> namesOf(const CdText &text, const Kind &kind)
{
    std::vector<std::string> names{ text.disc.*kind.name };
    for (const Texts &track : text.tracks)
        names.push_back(track.*kind.name);
    const bool any = std::ranges::any_of(names, [](const std::string &name) { return !name.empty(); });
    return any ? names : std::vector<std::string>();
}

/// CRC of 16 bits with the polynomial 11021h, inverted (MMC-3 annex J).
std::uint16_t checksum(const Pack &pack)
{
    std::uint16_t crc = 0;
    for (std::size_t at = 0; at < checksumAt; ++at) {
        crc ^= static_cast<std::uint16_t>(pack[at] << 8);
        for (int bit = 0; bit < 8; ++bit)
            crc = static_cast<std::uint16_t>(crc & 0x8000 ? crc << 1 ^ 0x1021 : crc << 1);
    }
    return static_cast<std::uint16_t>(~crc);
}

/// Collects packs, numbers them and seals each.
class Packer {
public:
    void addNames(unsigned char type, const std::vector<std::string> &latin1)
    {
        std::size_t used = payloadSize;
        for (std::size_t track = 0; track < latin1.size(); ++track) {
            const std::string text = latin1[track] + '\0';
            for (std::size_t done = 0; done < text.size(); ++done) {
                if (used == payloadSize) {
                    constexpr std::size_t mostTold = 15;
                    start(type, track, std::min(done, mostTold));
                    used = 0;
                }
                m_packs.back()[payloadAt + used++] = static_cast<unsigned char>(text[done]);
            }
        }
    }

    void addSizes(std::size_t tracks)
    {
        constexpr std::size_t countsAt = 4, lastNumbersAt = 20, languagesAt = 28;
        constexpr unsigned char english = 0x09; // what players that show one language ask for
        std::array<unsigned char, sizePacks * payloadSize> record{};
        record[0] = static_cast<unsigned char>(Code::latin1);
        record[1] = 1;
        record[2] = static_cast<unsigned char>(tracks);
        for (const Pack &pack : m_packs)
            ++record[countsAt + (pack[0] & 0x0f)];
        record[countsAt + (sizesType & 0x0f)] = sizePacks;
        record[lastNumbersAt] = static_cast<unsigned char>(m_packs.size() + sizePacks - 1);
        record[languagesAt] = english;
        for (std::size_t part = 0; part < sizePacks; ++part) {
            start(sizesType, part, 0);
            std::copy_n(&record[part * payloadSize], payloadSize, &m_packs.back()[payloadAt]);
        }
    }

    std::vector<Pack> sealed() &&
    {
        for (Pack &pack : m_packs) {
            const std::uint16_t sum = checksum(pack);
            pack[checksumAt] = static_cast<unsigned char>(sum >> 8);
            pack[checksumAt + 1] = static_cast<unsigned char>(sum);
        }
        return std::move(m_packs);
    }

private:
    void start(unsigned char type, std::size_t track, std::size_t position)
    {
        const std::size_t number = m_packs.size();
        m_packs.push_back({ type, static_cast<unsigned char>(track), static_cast<unsigned char>(number),
            static_cast<unsigned char>(position) });
    }

    std::vector<Pack> m_packs;
};

std::size_t packsFor(const CdText &text, std::size_t longest)
{
    std::size_t packs = 0;
    for (const Kind &kind : kinds) {
        std::size_t bytes = 0;
        for (const std::string &name : namesOf(text, kind))
            bytes += std::min(latin1Of(name).text.size(), longest) + 1;
        packs += (bytes + payloadSize - 1) / payloadSize;
    }
    return packs;
}

/// Calls `change` with each name of `text`.
template <class F>
void forEachName(CdText &text, F change)
{
    for (const Kind &kind : kinds) {
        change(text.disc.*kind.name);
        for (Texts &track : text.tracks)
            change(track.*kind.name);
    }
}

/// Text in the Japanese code of CD-TEXT as UTF-8, as far as it can be read.
std::string utf8OfMsJis(std::string text)
{
    iconv_t way = iconv_open("UTF-8", "CP932");
    if (way == iconv_t(-1)) // NOLINT(performance-no-int-to-ptr): how iconv_open(3) says no
        return {};
    std::string utf8(text.size() * 3, '\0');
    char *in = text.data();
    char *out = utf8.data();
    std::size_t inLeft = text.size();
    std::size_t outLeft = utf8.size();
    iconv(way, &in, &inLeft, &out, &outLeft);
    iconv_close(way);
    utf8.resize(utf8.size() - outLeft);
    return utf8;
}

unsigned blockOf(const Pack &pack)
{
    return pack[3] >> 4 & 7;
}

/// The blocks that `packs` have, with the code of their texts.
std::map<unsigned, Code> codesOf(std::span<const Pack> packs)
{
    std::map<unsigned, Code> codes;
    for (const Pack &pack : packs) {
        codes.try_emplace(blockOf(pack), Code::latin1);
        if (pack[0] == sizesType && pack[1] == 0)
            codes[blockOf(pack)] = static_cast<Code>(pack[payloadAt]);
    }
    return codes;
}

/// The texts of one kind in one block, by their tracks. A pack tells the track of its first text, so that a pack that is
/// missing spoils no other.
std::map<std::size_t, std::string> textsIn(
    std::span<const Pack> packs, unsigned char type, unsigned block, std::size_t width)
{
    std::map<std::size_t, std::string> texts;
    for (const Pack &pack : packs) {
        if (pack[0] != type || blockOf(pack) != block)
            continue;
        std::size_t track = pack[1] & 0x7f;
        for (std::size_t at = payloadAt; at + width <= checksumAt; at += width) {
            const std::string letter(reinterpret_cast<const char *>(&pack[at]), width);
            if (letter == std::string(width, '\0'))
                ++track;
            else
                texts[track] += letter;
        }
    }
    return texts;
}

} // namespace

bool CdText::empty() const
{
    return std::ranges::all_of(kinds, [this](const Kind &kind) { return namesOf(*this, kind).empty(); });
}

FittedText fittedText(const CdText &text)
{
    FittedText fitted{ text, {} };
    std::size_t longest = longestName;
    while (longest > 0 && packsFor(text, longest) > mostTextPacks)
        --longest;
    forEachName(fitted.text, [&](std::string &name) {
        Spelling spelling = latin1Of(name);
        if (spelling.text.size() > longest) {
            spelling.text.resize(longest);
            fitted.changes.cut.push_back(name);
        } else if (!spelling.exact) {
            fitted.changes.respelled.push_back(name);
        }
        name = utf8OfLatin1(spelling.text);
    });
    return fitted;
}

std::vector<Pack> packsOf(const CdText &text)
{
    if (text.empty())
        return {};
    Packer packer;
    for (const Kind &kind : kinds) {
        std::vector<std::string> names = namesOf(text, kind);
        for (std::string &name : names)
            name = latin1Of(name).text;
        packer.addNames(kind.type, names);
    }
    packer.addSizes(text.tracks.size());
    return std::move(packer).sealed();
}

CdText textOf(std::span<const Pack> packs, std::size_t tracks)
{
    CdText text{ {}, std::vector<Texts>(tracks) };
    const std::map<unsigned, Code> codes = codesOf(packs);
    if (codes.empty())
        return text;
    auto block = std::ranges::find_if(codes, [](const auto &row) { return row.second != Code::msJis; });
    if (block == codes.end())
        block = codes.begin();
    const bool japanese = block->second == Code::msJis;
    for (const Kind &kind : kinds) {
        const std::size_t width = japanese ? 2 : 1;
        const std::string repeat(width, '\t'); // the text of the track before once more
        std::string before;
        auto texts = textsIn(packs, kind.type, block->first, width);
        for (std::size_t track = 0; track <= tracks; ++track) {
            const std::string raw = texts[track] == repeat ? before : texts[track];
            before = raw;
            (track == 0 ? text.disc : text.tracks[track - 1]).*kind.name =
                oneLine(japanese ? utf8OfMsJis(raw) : utf8OfLatin1(raw));
        }
    }
    return text;
}

} // namespace engine::audio
