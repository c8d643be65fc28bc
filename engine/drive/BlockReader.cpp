#include "drive/BlockReader.h"

#include "drive/Drive.h"

#include <algorithm>
#include <array>
#include <fcntl.h>
#include <linux/fs.h>
#include <scsi/sg.h>
#include <sys/ioctl.h>
#include <utility>

namespace engine::drive {

namespace {

constexpr std::size_t mostBytes = 512 * 1024; // more saves nothing, and a stop has to wait for it
constexpr std::size_t surelyTaken = 32 * 1024; // what libburn reads with
constexpr std::size_t sectorBytes = 512; // in which the kernel counts

/// How much the kernel takes in one command for this drive.
std::size_t limitOf(const Fd &device)
{
    unsigned short sectors = 0;
    if (::ioctl(device.get(), BLKSECTGET, &sectors) != 0)
        return surelyTaken;
    const std::size_t bytes = std::min(sectors * sectorBytes, mostBytes);
    return std::max(bytes - bytes % blockBytes, surelyTaken);
}

} // namespace

std::optional<BlockReader> BlockReader::open(const std::string &device)
{
    Fd fd(::open(device.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!fd)
        return std::nullopt;
    const std::size_t most = limitOf(fd);
    return BlockReader(std::move(fd), most);
}

BlockReader::BlockReader(Fd device, std::size_t mostBytesOfCommand)
    : m_device(std::move(device))
    , m_mostBytes(mostBytesOfCommand)
{
}

bool BlockReader::read(std::uint64_t block, std::span<std::byte> buffer) const
{
    while (!buffer.empty()) {
        const std::span<std::byte> piece = buffer.first(std::min(buffer.size(), m_mostBytes));
        if (!readPiece(block, piece))
            return false;
        block += piece.size() / blockBytes;
        buffer = buffer.subspan(piece.size());
    }
    return true;
}

bool BlockReader::readPiece(std::uint64_t block, std::span<std::byte> piece) const
{
    constexpr unsigned patience = 60'000; // ms; a drive tries long at a bad spot
    const std::size_t count = piece.size() / blockBytes;
    const auto byte = [](std::uint64_t number, int shift) {
        return static_cast<unsigned char>(number >> shift);
    };
    // READ (10), MMC-6 6.16
    std::array<unsigned char, 10> command{ 0x28, 0, byte(block, 24), byte(block, 16), byte(block, 8),
        byte(block, 0), 0, byte(count, 8), byte(count, 0), 0 };
    std::array<unsigned char, 32> sense{};
    sg_io_hdr_t io{};
    io.interface_id = 'S';
    io.dxfer_direction = SG_DXFER_FROM_DEV;
    io.cmdp = command.data();
    io.cmd_len = command.size();
    io.sbp = sense.data();
    io.mx_sb_len = sense.size();
    io.dxferp = piece.data();
    io.dxfer_len = static_cast<unsigned>(piece.size());
    io.timeout = patience;
    return ::ioctl(m_device.get(), SG_IO, &io) == 0 && io.status == 0 && io.host_status == 0
        && io.driver_status == 0 && io.resid == 0;
}

} // namespace engine::drive
