#include "image/UdfDescriptor.h"

#include "image/UdfText.h"

#include <algorithm>
#include <cstring>
#include <ctime>

namespace engine::image {

namespace {

constexpr auto crcTable = [] {
    std::array<std::uint16_t, 256> table{};
    for (unsigned value = 0; value < table.size(); ++value) {
        unsigned crc = value << 8;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc << 1) ^ ((crc & 0x8000) ? 0x1021 : 0);
        table[value] = static_cast<std::uint16_t>(crc);
    }
    return table;
}();

// OSTA UDF 1.02 6.3: UNIX, Linux.
constexpr std::uint8_t unixClass = 4;
constexpr std::uint8_t linuxSystem = 5;

} // namespace

std::uint16_t udfCrc(std::span<const std::byte> bytes)
{
    unsigned crc = 0;
    for (const std::byte byte : bytes)
        crc = ((crc << 8) ^ crcTable[(crc >> 8 ^ std::to_integer<unsigned>(byte)) & 0xff]) & 0xffff;
    return static_cast<std::uint16_t>(crc);
}

void UdfDescriptor::put(std::size_t at, std::uint64_t value, std::size_t size)
{
    for (std::size_t byte = 0; byte < size; ++byte)
        m_bytes.at(at + byte) = static_cast<std::byte>(value >> (8 * byte));
}

void UdfDescriptor::putBytes(std::size_t at, std::string_view bytes)
{
    std::ranges::copy(std::as_bytes(std::span(bytes)), std::span(m_bytes).subspan(at, bytes.size()).begin());
}

void UdfDescriptor::putText(std::size_t at, std::size_t size, std::u16string_view text)
{
    const std::string bytes = udfBytes(text);
    putBytes(at, bytes);
    put(at + size - 1, bytes.size(), 1);
}

void UdfDescriptor::putCharacterSet(std::size_t at)
{
    putBytes(at + 1, "OSTA Compressed Unicode");
}

void UdfDescriptor::putEntity(std::size_t at, std::string_view name, UdfSuffix suffix)
{
    constexpr std::size_t suffixAt = 24;
    constexpr std::uint8_t protectedByBoth = 3; // as a medium and as a volume
    putBytes(at + 1, name);
    const std::size_t place = at + suffixAt;
    switch (suffix) {
    case UdfSuffix::none:
        break;
    case UdfSuffix::domain:
        put(place, udfRevision, 2);
        put(place + 2, protectedByBoth, 1);
        break;
    case UdfSuffix::udf:
        put(place, udfRevision, 2);
        put(place + 2, unixClass, 1);
        put(place + 3, linuxSystem, 1);
        break;
    case UdfSuffix::implementation:
        put(place, unixClass, 1);
        put(place + 1, linuxSystem, 1);
        break;
    }
}

void UdfDescriptor::putImplementation(std::size_t at)
{
    putEntity(at, "*Corvalis", UdfSuffix::implementation);
}

void UdfDescriptor::putTime(std::size_t at, std::int64_t seconds)
{
    constexpr std::uint16_t coordinatedTime =
        0x1000; // local time, and its distance from UTC is none (ECMA-167 1/7.3)
    const auto time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    if (!::gmtime_r(&time, &parts) || parts.tm_year < 1 - 1900 || parts.tm_year > 9999 - 1900)
        return; // all zero: no time
    put(at, coordinatedTime, 2);
    put(at + 2, static_cast<std::uint64_t>(parts.tm_year + 1900), 2);
    put(at + 4, static_cast<std::uint64_t>(parts.tm_mon + 1), 1);
    put(at + 5, static_cast<std::uint64_t>(parts.tm_mday), 1);
    put(at + 6, static_cast<std::uint64_t>(parts.tm_hour), 1);
    put(at + 7, static_cast<std::uint64_t>(parts.tm_min), 1);
    put(at + 8, static_cast<std::uint64_t>(std::min(parts.tm_sec, 59)), 1);
}

void UdfDescriptor::putExtent(std::size_t at, std::uint32_t length, std::uint32_t block)
{
    put(at, length, 4);
    put(at + 4, block, 4);
}

void UdfDescriptor::putLongAddress(
    std::size_t at, std::uint32_t length, std::uint32_t block, std::uint32_t uniqueId)
{
    constexpr std::size_t uniqueIdAt = 12; // in the part for implementations (OSTA UDF 1.02 2.3.4.3)
    putExtent(at, length, block);
    put(at + uniqueIdAt, uniqueId, 4);
}

void UdfDescriptor::seal(UdfTag tag, std::uint32_t block, std::size_t used)
{
    constexpr std::uint16_t version = 2;
    constexpr std::size_t checksumAt = 4;
    const std::size_t content = used - udfTagBytes;
    put(0, static_cast<std::uint16_t>(tag), 2);
    put(2, version, 2);
    put(8, udfCrc(bytes().subspan(udfTagBytes, content)), 2);
    put(10, content, 2);
    put(12, block, 4);
    unsigned sum = 0;
    for (std::size_t at = 0; at < udfTagBytes; ++at)
        sum += at == checksumAt ? 0 : std::to_integer<unsigned>(m_bytes[at]);
    put(checksumAt, sum & 0xff, 1);
}

} // namespace engine::image
