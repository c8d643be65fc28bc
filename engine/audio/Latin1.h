// ISO 8859-1, the alphabet of CD-TEXT, and what is written in its place for other letters.
#pragma once

#include <string>
#include <string_view>

namespace engine::audio {

/// `text` as one line of UTF-8: up to its first NUL, what is not UTF-8 taken for Windows-1252, control characters and
/// runs of blanks as one blank, none at the ends.
std::string oneLine(std::string_view text);

/// A text in ISO 8859-1.
struct Spelling {
    std::string text; ///< printable characters only
    bool exact = true; ///< false where another spelling or a '?' had to stand in
};

/// How UTF-8 is spelled in ISO 8859-1: letters of other Latin alphabets without their marks, typographic signs as those
/// of a typewriter, Greek and Cyrillic letter by letter in Latin ones, anything else as '?'. Marks that follow their
/// letter (Unicode's decomposed form) are joined with it where the result is a letter of ISO 8859-1.
Spelling latin1Of(std::string_view utf8);

/// ISO 8859-1 as UTF-8.
std::string utf8OfLatin1(std::string_view latin1);

} // namespace engine::audio
