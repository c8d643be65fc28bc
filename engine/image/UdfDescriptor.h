// One descriptor of UDF: its fields, and the tag in front of it with its checksums.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace engine::image {

/// Kinds of descriptors (ECMA-167 3/7.2.1, 4/7.2.1).
enum class UdfTag : std::uint16_t {
    primaryVolume = 1,
    anchor = 2,
    implementationUse = 4,
    partition = 5,
    logicalVolume = 6,
    unallocatedSpace = 7,
    terminating = 8,
    integrity = 9,
    fileSet = 256,
    fileIdentifier = 257,
    fileEntry = 261,
};

/// The suffixes that UDF puts behind the name of whoever defined something (OSTA UDF 1.02 2.1.4.3).
enum class UdfSuffix {
    none, ///< of ECMA-167 itself
    domain, ///< revision, and that the volume is protected against writing
    udf, ///< revision and system
    implementation, ///< system
};

constexpr std::uint16_t udfRevision = 0x0102;
constexpr std::size_t udfTagBytes = 16;
constexpr std::size_t udfDescriptorBytes = 512; ///< of a volume descriptor (ECMA-167 3/7.2)

/// Collects the bytes of a descriptor, all zero at first. Numbers are little-endian (ECMA-167 1/7.1); places count from
/// the start of the descriptor and have to lie within it.
class UdfDescriptor {
public:
    explicit UdfDescriptor(std::size_t size = udfDescriptorBytes)
        : m_bytes(size)
    {
    }

    void put(std::size_t at, std::uint64_t value, std::size_t size);
    /// A field of a fixed size whose last byte is the length of what stands in it (ECMA-167 1/7.2.12). `text` has to fit.
    void putText(std::size_t at, std::size_t size, std::u16string_view text);
    void putBytes(std::size_t at, std::string_view bytes);
    /// The only character set of UDF, 64 bytes.
    void putCharacterSet(std::size_t at);
    /// Who defined something, 32 bytes.
    void putEntity(std::size_t at, std::string_view name, UdfSuffix suffix);
    /// This program as the one that wrote, 32 bytes.
    void putImplementation(std::size_t at);
    /// Seconds since 1970 as 12 bytes, in UTC.
    void putTime(std::size_t at, std::int64_t seconds);
    /// `length` bytes from a block of the volume on, 8 bytes.
    void putExtent(std::size_t at, std::uint32_t length, std::uint32_t block);
    /// `length` bytes from a block of the partition on, 16 bytes.
    void putLongAddress(
        std::size_t at, std::uint32_t length, std::uint32_t block, std::uint32_t uniqueId = 0);

    /// Puts the tag before everything else: to be called last. `block` is where the descriptor will stand, counted as its
    /// kind counts; `used` its length without what fills it up.
    void seal(UdfTag tag, std::uint32_t block, std::size_t used);

    std::span<const std::byte> bytes() const { return m_bytes; }

private:
    std::vector<std::byte> m_bytes;
};

/// The checksum of a descriptor's content: CRC with x^16 + x^12 + x^5 + 1, beginning with 0 (ECMA-167 1/7.2.6).
std::uint16_t udfCrc(std::span<const std::byte> bytes);

} // namespace engine::image
