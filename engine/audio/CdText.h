// CD-TEXT: the names of an audio disc and of its tracks in the subcode of its lead-in (IEC 60908; MMC-3 annex J).
#pragma once

#include "medium/Tracks.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace engine::audio {

/// The names of a disc and of each of its tracks, in their order. UTF-8.
struct CdText {
    Texts disc;
    std::vector<Texts> tracks;

    /// True where nothing has a name.
    bool empty() const;
    bool operator==(const CdText &) const = default;
};

/// One record of the lead-in: type, track, number, block and position, 12 bytes of text, checksum.
using Pack = std::array<unsigned char, 18>;

constexpr std::size_t mostPacks = 256; ///< numbers of a block have a byte; the last three tell the sizes

/// What became of a text on its way into packs.
struct TextChanges {
    std::vector<std::string> respelled; ///< as they were given
    std::vector<std::string> cut;
};

/// The text as a disc can hold it, in UTF-8: the spelling of ISO 8859-1, each name of at most 160 characters, and of
/// fewer, the same number for all, where the packs do not suffice. `changes` takes what is not as it was.
struct FittedText {
    CdText text;
    TextChanges changes;
};
FittedText fittedText(const CdText &text);

/// The packs of a text that fittedText() made: one block in ISO 8859-1, and none for an empty text. A kind of name that
/// anything has is there for the disc and for every track, if need be as an empty text.
std::vector<Pack> packsOf(const CdText &text);

/// Reads packs of any disc, in ISO 8859-1, ASCII or MS-JIS: the first block in one of the former, else the first.
/// Whatever the packs hold, there is an answer; unknown kinds are left alone. `tracks` is how many tracks the disc has.
CdText textOf(std::span<const Pack> packs, std::size_t tracks);

} // namespace engine::audio
