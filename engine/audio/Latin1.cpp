#include "audio/Latin1.h"

#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

namespace engine::audio {

namespace {

/// Spellings of the characters from `first` on, with blanks between; '_' stands for nothing. In ISO 8859-1.
struct Alphabet {
    char32_t first;
    std::string_view spellings;
};

constexpr std::array alphabets{
    // Latin Extended-A. A double acute is next to a diaeresis, which Hungarian means by it where it cannot be had.
    Alphabet{ 0x100,
        "A a A a A a C c C c C c C c D d D d E e E e E e E e E e G g G g G g G g H h H h I i I i I i I i I i "
        "IJ ij J j K k k "
        "L l L l L l L l L l N n N n N n 'n N n O o O o \xd6 \xf6 OE oe R r R r R r S s S s S s S s T t T t "
        "T t U u U u U u "
        "U u \xdc \xfc U u W w Y y Y Z z Z z Z z s" },
    Alphabet{ 0x18f, "E" }, // Azerbaijani
    Alphabet{ 0x1a0, "O o" }, // Vietnamese
    Alphabet{ 0x1af, "U u" },
    Alphabet{ 0x1cd, "A a I i O o U u \xdc \xfc \xdc \xfc \xdc \xfc \xdc \xfc" }, // Pinyin
    Alphabet{ 0x1e6, "G g K k" },
    Alphabet{ 0x218, "S s T t" }, // Romanian
    Alphabet{ 0x259, "e" },
    Alphabet{ 0x386,
        "A . E I I ? O ? Y O i A B G D E Z I Th I K L M N X O P R ? S T Y F Ch Ps O I Y a e i i y "
        "a b g d e z i th i k l m n x o p r s s t y f ch ps o i y o y o" },
    Alphabet{ 0x400,
        "E Yo Dj G Ye Dz I Yi J Lj Nj C K I U Dzh A B V G D E Zh Z I Y K L M N O P R S T U F Kh Ts Ch Sh "
        "Shch _ Y _ E Yu Ya "
        "a b v g d e zh z i y k l m n o p r s t u f kh ts ch sh shch _ y _ e yu ya e yo dj g ye dz i yi j lj "
        "nj c k i u dzh" },
    Alphabet{ 0x490, "G g" },
    // Latin Extended Additional, which Vietnamese uses most of
    Alphabet{ 0x1e00,
        "A a B b B b B b C c D d D d D d D d D d E e E e E e E e E e F f G g H h H h H h H h H h I i I i K k "
        "K k K k L l L l "
        "L l L l M m M m M m N n N n N n N n O o O o O o O o P p P p R r R r R r R r S s S s S s S s S s T t "
        "T t T t T t U u "
        "U u U u U u U u V v V v W w W w W w W w W w X x X x Y y Z z Z z Z z h t w y a s s s SS d A a A a A "
        "a A a A a A a A a "
        "A a A a A a A a A a E e E e E e E e E e E e E e E e I i I i O o O o O o O o O o O o O o O o O o O o "
        "O o O o U u U u "
        "U u U u U u U u U u Y y Y y Y y Y y" },
    Alphabet{ 0x200b, "_ _ _ _ _ - - - - - - ? ? ' ' ' ' \" \" \" \" ? ? \xb7 ? ? ? ..." },
    Alphabet{ 0x2032, "' \"" },
    Alphabet{ 0x2039, "' '" },
    Alphabet{ 0x2044, "/" },
    Alphabet{ 0x20ac, "EUR" },
    Alphabet{ 0x2116, "No." },
    Alphabet{ 0x2122, "TM" },
    Alphabet{ 0x2212, "-" },
    Alphabet{ 0xfb00, "ff fi fl ffi ffl" },
    Alphabet{ 0xfeff, "_" },
};

/// What a combining mark makes of letters: those of ISO 8859-1 that are both in one.
struct Mark {
    char32_t mark;
    std::string_view letters;
    std::string_view joined;
};

constexpr std::array marks{
    Mark{ 0x300, "AEIOUaeiou", "\xc0\xc8\xcc\xd2\xd9\xe0\xe8\xec\xf2\xf9" },
    Mark{ 0x301, "AEIOUYaeiouy", "\xc1\xc9\xcd\xd3\xda\xdd\xe1\xe9\xed\xf3\xfa\xfd" },
    Mark{ 0x302, "AEIOUaeiou", "\xc2\xca\xce\xd4\xdb\xe2\xea\xee\xf4\xfb" },
    Mark{ 0x303, "ANOano", "\xc3\xd1\xd5\xe3\xf1\xf5" },
    Mark{ 0x308, "AEIOUaeiouy", "\xc4\xcb\xcf\xd6\xdc\xe4\xeb\xef\xf6\xfc\xff" },
    Mark{ 0x30a, "Aa", "\xc5\xe5" },
    Mark{ 0x327, "Cc", "\xc7\xe7" },
};

/// Bytes 80h to 9Fh of Windows-1252; 0 where it has nothing.
constexpr std::array<std::uint16_t, 32> windows1252{ 0x20ac, 0, 0x201a, 0x192, 0x201e, 0x2026, 0x2020, 0x2021,
    0x2c6, 0x2030, 0x160, 0x2039, 0x152, 0, 0x17d, 0, 0, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013,
    0x2014, 0x2dc, 0x2122, 0x161, 0x203a, 0x153, 0, 0x17e, 0x178 };

void append(std::string &utf8, char32_t character)
{
    const auto byte = [&utf8](char32_t bits) { utf8 += static_cast<char>(static_cast<unsigned char>(bits)); };
    if (character < 0x80) {
        byte(character);
    } else if (character < 0x800) {
        byte(0xc0 | character >> 6);
        byte(0x80 | (character & 0x3f));
    } else {
        byte(0xe0 | character >> 12);
        byte(0x80 | (character >> 6 & 0x3f));
        byte(0x80 | (character & 0x3f));
    }
}

bool isUtf8(std::string_view text)
{
    while (!text.empty()) {
        const std::size_t length = utf8Length(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

/// Takes the first character off `utf8`, which is not empty.
char32_t takeCharacter(std::string_view &utf8)
{
    const std::size_t length = std::max<std::size_t>(utf8Length(utf8), 1);
    constexpr std::array<unsigned char, 5> leadBits{ 0, 0x7f, 0x1f, 0x0f, 0x07 };
    char32_t character = static_cast<unsigned char>(utf8.front()) & leadBits.at(length);
    for (const char next : utf8.substr(1, length - 1))
        character = character << 6 | (static_cast<unsigned char>(next) & 0x3fU);
    utf8.remove_prefix(length);
    return character;
}

bool isPrintable(char32_t character)
{
    constexpr char32_t softHyphen = 0xad;
    return (character >= 0x20 && character < 0x7f)
        || (character > 0xa0 && character < 0x100 && character != softHyphen);
}

bool isBlank(char32_t character)
{
    return character == 0xa0 || (character >= 0x2000 && character <= 0x200a) || character == 0x202f
        || character == 0x3000;
}

std::string_view word(std::string_view words, std::size_t number)
{
    for (; number > 0; --number) {
        const std::size_t blank = words.find(' ');
        if (blank == std::string_view::npos)
            return {};
        words.remove_prefix(blank + 1);
    }
    return words.substr(0, words.find(' '));
}

/// How a character that ISO 8859-1 does not have is spelled.
std::string_view spellingOf(char32_t character)
{
    static constexpr std::string_view unknown = "?";
    if (isBlank(character))
        return " ";
    for (const Alphabet &alphabet : alphabets) {
        if (character < alphabet.first)
            break;
        const std::string_view found = word(alphabet.spellings, character - alphabet.first);
        if (!found.empty())
            return found == "_" ? std::string_view() : found;
    }
    return unknown;
}

bool isMark(char32_t character)
{
    return character >= 0x300 && character < 0x370;
}

/// The letter that `mark` makes of the last one of `text`.
std::optional<char> joinedWith(const std::string &text, char32_t mark)
{
    const auto row = std::ranges::find(marks, mark, &Mark::mark);
    const std::size_t at =
        row == marks.end() || text.empty() ? std::string_view::npos : row->letters.find(text.back());
    return at == std::string_view::npos ? std::nullopt : std::optional(row->joined[at]);
}

constexpr char32_t fullWidthFirst = 0xff01, fullWidthLast = 0xff5e; // ASCII from '!' on, once more

} // namespace

std::string oneLine(std::string_view text)
{
    text = text.substr(0, text.find('\0'));
    const bool utf8 = isUtf8(text);
    std::string line;
    for (const char letter : text) {
        const auto byte = static_cast<unsigned char>(letter);
        if (byte <= 0x20 || byte == 0x7f) {
            if (!line.empty() && line.back() != ' ')
                line += ' ';
        } else if (byte < 0x80 || utf8) {
            line += letter;
        } else {
            const std::uint16_t character = byte < 0xa0 ? windows1252[byte - 0x80] : byte;
            append(line, character == 0 ? U'?' : char32_t{ character });
        }
    }
    while (line.ends_with(' '))
        line.pop_back();
    return line;
}

Spelling latin1Of(std::string_view utf8)
{
    Spelling spelling;
    while (!utf8.empty()) {
        char32_t character = takeCharacter(utf8);
        if (character >= fullWidthFirst && character <= fullWidthLast) {
            character = character - fullWidthFirst + '!';
            spelling.exact = false;
        }
        if (isPrintable(character)) {
            spelling.text += static_cast<char>(static_cast<unsigned char>(character));
        } else if (const auto joined = joinedWith(spelling.text, character)) {
            spelling.text.back() = *joined;
        } else {
            if (!isMark(character))
                spelling.text += spellingOf(character);
            spelling.exact = false;
        }
    }
    return spelling;
}

std::string utf8OfLatin1(std::string_view latin1)
{
    std::string utf8;
    for (const char letter : latin1)
        append(utf8, static_cast<unsigned char>(letter));
    return utf8;
}

} // namespace engine::audio
