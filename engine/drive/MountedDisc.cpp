#include "drive/MountedDisc.h"

#include "base/Words.h"
#include "drive/Mounts.h"
#include "image/IsoImage.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <linux/cdrom.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

namespace engine::drive {

namespace {

constexpr unsigned opticalMajor = 11; // SCSI CD-ROM devices (Linux, devices.txt)

// Drives take this as the slowest that they know for the disc.
constexpr int slowest = 1;

/// Whether the films of a DVD are scrambled: READ DISC STRUCTURE, format 01h (MMC-6 6.22).
bool isScrambled(int file)
{
    constexpr unsigned contentScrambling = 1;
    dvd_struct question{};
    question.type = DVD_STRUCT_COPYRIGHT;
    return ::ioctl(file, DVD_READ_STRUCT, &question) == 0 && question.copyright.cpst == contentScrambling;
}

std::uint64_t blocksOf(int file)
{
    std::uint64_t bytes = 0;
    return ::ioctl(file, BLKGETSIZE64, &bytes) == 0 ? bytes / image::blockSize : 0;
}

bool hasSeveralSessions(int file)
{
    cdrom_multisession last{};
    last.addr_format = CDROM_LBA;
    return ::ioctl(file, CDROMMULTISESSION, &last) == 0 && last.xa_flag != 0 && last.addr.lba > 0;
}

std::string realPath(const std::string &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr), std::free);
    return real ? real.get() : path;
}

} // namespace

MountedDisc::MountedDisc(std::string device, Fd file)
    : m_device(std::move(device))
    , m_file(std::move(file))
{
}

Result<std::unique_ptr<MountedDisc>> MountedDisc::at(const std::string &folder)
{
    std::ifstream mounts("/proc/self/mountinfo", std::ios::binary);
    const std::string text{ std::istreambuf_iterator<char>(mounts), {} };
    const auto mounted = mountedWholeAt(text, realPath(folder));
    if (!mounted || mounted->major != opticalMajor)
        return std::unique_ptr<MountedDisc>();
    Fd file(::open(mounted->source.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    // Whoever may read the files only gets an image of these.
    if (!file && (errno == EACCES || errno == EPERM))
        return std::unique_ptr<MountedDisc>();
    struct stat info { };
    if (!file || ::fstat(file.get(), &info) != 0)
        return Error{ Exit::failed,
            "The disc in " + mounted->source + " cannot be copied: " + reasonAndAdvice(errno) + "." };
    // A name may have been given to another device since.
    if (!S_ISBLK(info.st_mode) || info.st_rdev != makedev(mounted->major, mounted->minor))
        return std::unique_ptr<MountedDisc>();
    if (isScrambled(file.get()))
        return Error{ Exit::failed,
            "The video disc in " + mounted->source
                + " is protected: its films are scrambled, and a copy of it would not play." };
    ::posix_fadvise(file.get(), 0, 0, POSIX_FADV_SEQUENTIAL);
    return std::unique_ptr<MountedDisc>(new MountedDisc(mounted->source, std::move(file)));
}

image::DiscSource MountedDisc::source()
{
    image::DiscSource source;
    source.name = m_device;
    source.read = readAtOf(m_file, m_failure);
    source.blocks = blocksOf(m_file.get());
    source.severalSessions = hasSeveralSessions(m_file.get());
    source.slowDown = [this] { ::ioctl(m_file.get(), CDROM_SELECT_SPEED, slowest); };
    return source;
}

} // namespace engine::drive
