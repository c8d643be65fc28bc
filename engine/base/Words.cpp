#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <system_error>

namespace engine {

namespace {

struct Utf8Lead {
    unsigned char first, last; ///< range of the lead byte
    unsigned char secondFirst, secondLast; ///< range of the byte after it
    std::size_t length;
};

// RFC 3629, 4: the well-formed byte sequences.
constexpr std::array<Utf8Lead, 9> utf8Leads{ {
    { 0x00, 0x7f, 0x00, 0x00, 1 },
    { 0xc2, 0xdf, 0x80, 0xbf, 2 },
    { 0xe0, 0xe0, 0xa0, 0xbf, 3 },
    { 0xe1, 0xec, 0x80, 0xbf, 3 },
    { 0xed, 0xed, 0x80, 0x9f, 3 },
    { 0xee, 0xef, 0x80, 0xbf, 3 },
    { 0xf0, 0xf0, 0x90, 0xbf, 4 },
    { 0xf1, 0xf3, 0x80, 0xbf, 4 },
    { 0xf4, 0xf4, 0x80, 0x8f, 4 },
} };

struct Advice {
    int error;
    const char *text;
};

constexpr const char *choosePlace = "free some space or choose another place";
constexpr const char *getPermission = "get the permission for it or choose another one";
constexpr const char *endPrograms = "end some programs and try again";

constexpr std::array advices{
    Advice{ EACCES, getPermission },
    Advice{ EPERM, getPermission },
    Advice{ ENOENT, "check its name" },
    Advice{ ENOTDIR, "name a folder, or put one in the place of the file" },
    Advice{ EISDIR, "move the folder of that name away" },
    Advice{ EEXIST, "move away what has that name" },
    Advice{ ENOTEMPTY, "move away what lies in it" },
    Advice{ ELOOP, "remove the link that leads back to itself" },
    Advice{ ENAMETOOLONG, "choose a shorter name" },
    Advice{ ENOSPC, choosePlace },
    Advice{ EDQUOT, choosePlace },
    Advice{ EFBIG, "its file system does not take a file of this size, choose another place" },
    Advice{ EROFS, "its file system takes no changes, choose another place" },
    Advice{ EIO, "what it lies on may be damaged, or a cable loose" },
    Advice{ EBUSY, "end the program that uses it" },
    Advice{ EMFILE, endPrograms },
    Advice{ ENFILE, endPrograms },
    Advice{ ENOMEM, endPrograms },
};

unsigned char byteAt(std::string_view text, std::size_t at)
{
    return static_cast<unsigned char>(text[at]);
}

} // namespace

std::size_t utf8Length(std::string_view text)
{
    if (text.empty())
        return 0;
    for (const Utf8Lead &lead : utf8Leads) {
        if (byteAt(text, 0) < lead.first || byteAt(text, 0) > lead.last)
            continue;
        if (text.size() < lead.length)
            return 0;
        if (lead.length > 1 && (byteAt(text, 1) < lead.secondFirst || byteAt(text, 1) > lead.secondLast))
            return 0;
        for (std::size_t at = 2; at < lead.length; ++at) {
            if ((byteAt(text, at) & 0xc0) != 0x80)
                return 0;
        }
        return lead.length;
    }
    return 0;
}

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    while (!text.empty()) {
        std::size_t length = utf8Length(text);
        const unsigned char first = byteAt(text, 0);
        if (length == 0 || first < 0x20 || first == 0x7f) {
            char escape[5];
            std::snprintf(escape, sizeof escape, "\\x%02x", first);
            result += escape;
            length = 1;
        } else {
            result += text.substr(0, length);
        }
        text.remove_prefix(length);
    }
    return result + '"';
}

std::string reason(int error)
{
    std::string text = std::generic_category().message(error);
    if (text.size() > 1 && std::islower(static_cast<unsigned char>(text[1])))
        text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
    return text;
}

std::string reasonAndAdvice(int error)
{
    const auto row = std::ranges::find(advices, error, &Advice::error);
    return reason(error) + "; " + (row == advices.end() ? "try again" : row->text);
}

Error systemError(const std::string &what, int failure)
{
    return { Exit::failed, what + ": " + reasonAndAdvice(failure) + "." };
}

std::string sizeText(std::uint64_t bytes)
{
    static constexpr std::array units{ "bytes", "kB", "MB", "GB", "TB" };
    double value = static_cast<double>(bytes);
    std::size_t unit = 0;
    while (value >= 999.5 && unit + 1 < units.size()) {
        value /= 1000;
        ++unit;
    }
    char text[32];
    std::snprintf(text, sizeof text, unit > 0 && value < 99.95 ? "%.1f %s" : "%.0f %s", value, units[unit]);
    return text;
}

std::string blocksText(std::uint64_t blocks)
{
    constexpr double blockBytes = 2048;
    constexpr double megabyte = 1e6;
    char text[64];
    std::snprintf(text, sizeof text, "%.1f MB (%llu blocks)",
        static_cast<double>(blocks) * blockBytes / megabyte, static_cast<unsigned long long>(blocks));
    return text;
}

} // namespace engine
