#include "drive/RecorderFolder.h"

#include "base/Words.h"
#include "drive/SmallFile.h"
#include "medium/Medium.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <pwd.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <thread>
#include <unistd.h>

namespace engine::drive {

namespace {

constexpr const char *stateFile = "recorder.ini";
constexpr const char *reserveFile = "recorder.ini.room";
constexpr const char *archiveFolder = "discs";

std::string homeFolder()
{
    if (const char *home = std::getenv("HOME"); home && *home)
        return home;
    const passwd *user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

bool isNumber(const std::string &name)
{
    return !name.empty() && name.size() <= 9
        && std::ranges::all_of(name, [](char c) { return c >= '0' && c <= '9'; });
}

bool isFolder(int parent, const char *name)
{
    struct stat info { };
    return ::fstatat(parent, name, &info, 0) == 0 && S_ISDIR(info.st_mode);
}

bool exists(int folder, const char *name)
{
    return ::faccessat(folder, name, F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

std::string archiveStem(MediumKind kind, bool spoilt)
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, 40> date{};
    std::strftime(date.data(), date.size(), "%Y-%m-%d-%H%M%S-", &local);
    const char *name = factsOf(kind).insertName;
    return date.data() + std::string(name ? name : "disc") + (spoilt ? "-spoilt" : "");
}

// The sheet names the file beside it, so it has to follow that file's new name.
std::string renamedCueSheet(const std::string &sheet, const std::string &binName)
{
    // A title may look like the name of a file.
    const std::string command = "FILE \"";
    const std::string old = command + audioDiscFile + '"';
    const auto at = sheet.find(old);
    if (at == std::string::npos)
        return sheet;
    return sheet.substr(0, at) + command + binName + '"' + sheet.substr(at + old.size());
}

bool lockPatiently(int fd, int operation)
{
    using namespace std::chrono_literals;
    constexpr int attempts = 40;
    for (int i = 0; i < attempts; ++i) {
        if (::flock(fd, operation | LOCK_NB) == 0)
            return true;
        if (errno != EWOULDBLOCK && errno != EINTR)
            return false;
        std::this_thread::sleep_for(25ms);
    }
    errno = EWOULDBLOCK;
    return false;
}

} // namespace

std::string recordersFolder()
{
    if (const char *own = std::getenv("CORVALIS_RECORDERS"); own && *own)
        return own;
    const char *data = std::getenv("XDG_DATA_HOME");
    const std::string base = data && *data == '/' ? data : homeFolder() + "/.local/share";
    return base + "/corvalis/recorders";
}

Result<std::vector<std::string>> recorderFolders(const std::string &base)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> folder(::opendir(base.c_str()), ::closedir);
    if (!folder) {
        if (errno == ENOENT)
            return std::vector<std::string>{};
        return systemError("The folder of the virtual recorders cannot be read", errno);
    }
    std::vector<std::string> names;
    while (const dirent *entry = ::readdir(folder.get()))
        if (isNumber(entry->d_name) && isFolder(::dirfd(folder.get()), entry->d_name))
            names.emplace_back(entry->d_name);
    std::ranges::sort(names, [](const std::string &a, const std::string &b) {
        const long left = std::strtol(a.c_str(), nullptr, 10);
        const long right = std::strtol(b.c_str(), nullptr, 10);
        return left != right ? left < right : a < b;
    });
    for (std::string &name : names)
        name.insert(0, base + '/');
    return names;
}

Result<void> createFirstRecorder(const std::string &base)
{
    const std::string what = "The virtual recorder cannot be made in " + engine::quoted(base);
    std::error_code failure;
    std::filesystem::create_directories(base, failure);
    if (failure)
        return systemError(what, failure.value());
    std::string fresh = base + "/new-XXXXXX";
    if (!::mkdtemp(fresh.data())) // for its owner only: what is on a person's discs is nobody else's
        return systemError(what, errno);
    RecorderState state;
    state.kind = MediumKind::cdR;
    const Fd folder(::open(fresh.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    Result<void> saved = replaceFile(folder.get(), stateFile, recorderText(state), what);
    // Another process may have been quicker; its recorder is as good, and is never replaced.
    if (saved && ::renameat2(AT_FDCWD, fresh.c_str(), AT_FDCWD, (base + "/1").c_str(), RENAME_NOREPLACE) == 0)
        return {};
    const int why = errno;
    std::filesystem::remove_all(fresh, failure);
    if (saved && why != EEXIST)
        return systemError(what, why);
    return saved;
}

RecorderFolder::RecorderFolder(Fd folder, std::string path, std::string name)
    : m_folder(std::move(folder))
    , m_path(std::move(path))
    , m_name(std::move(name))
{
}

Result<RecorderFolder> RecorderFolder::lock(const std::string &path, const std::string &name, Access access)
{
    const bool change = access == Access::exclusive;
    Fd folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder)
        return systemError("The folder of " + name + " cannot be opened", errno);
    if (!lockPatiently(folder.get(), change ? LOCK_EX : LOCK_SH)) {
        if (errno == EWOULDBLOCK)
            return Error{ Exit::failed,
                "The virtual recorder, " + name
                    + ", is busy with another program; wait until that has ended." };
        return systemError("The folder of " + name + " cannot be locked", errno);
    }
    if (change && ::faccessat(folder.get(), ".", W_OK | X_OK, AT_EACCESS) != 0)
        return systemError(
            "The folder of " + name + ", " + engine::quoted(path) + ", cannot be written", errno);
    return RecorderFolder(std::move(folder), path, name);
}

Result<RecorderState> RecorderFolder::load() const
{
    const std::string file = std::string(stateFile) + " of " + m_name;
    const Result<std::string> text = readSmallFile(m_folder.get(), stateFile, file + " cannot be read");
    if (!text)
        return Error{ Exit::failed, text.error().message + "; a new medium repairs it: drutil insert." };
    Result<RecorderState> state = parseRecorder(*text);
    if (!state)
        return Error{ Exit::failed,
            file + " " + state.error().message + "; a new medium repairs it: drutil insert." };
    return state;
}

Result<void> RecorderFolder::save(const RecorderState &state) const
{
    return replaceFile(m_folder.get(), stateFile, recorderText(state),
        std::string(stateFile) + " of " + m_name + " cannot be written");
}

Result<void> RecorderFolder::moveToArchive(const std::string &stem, bool audio, const Fd &discs) const
{
    const char *from = audio ? audioDiscFile : dataDiscFile;
    const std::string what = "The disc of " + m_name + " cannot be put into its folder " + archiveFolder;
    const bool hasSheet = audio && exists(m_folder.get(), cueSheetFile);
    const Result<std::string> sheet =
        hasSheet ? readSmallFile(m_folder.get(), cueSheetFile, what) : Result<std::string>(std::string());
    if (!sheet)
        return Error{ Exit::failed,
            sheet.error().message + "; remove its " + cueSheetFile + ", the disc keeps its sound without." };
    for (int copy = 1;; ++copy) {
        const std::string name = copy == 1 ? stem : stem + '-' + std::to_string(copy);
        const std::string file = name + (audio ? ".bin" : ".iso");
        const std::string sheetFile = name + ".cue";
        if (exists(discs.get(), sheetFile.c_str()))
            continue;
        // The sheet goes first: nothing has moved when there is no room for it.
        if (hasSheet)
            if (auto saved = replaceFile(discs.get(), sheetFile, renamedCueSheet(*sheet, file), what); !saved)
                return saved;
        if (::renameat2(m_folder.get(), from, discs.get(), file.c_str(), RENAME_NOREPLACE) == 0)
            break;
        const int failure = errno;
        if (hasSheet)
            ::unlinkat(discs.get(), sheetFile.c_str(), 0);
        if (failure != EEXIST)
            return systemError(what, failure);
    }
    if (hasSheet)
        ::unlinkat(m_folder.get(), cueSheetFile, 0);
    return {};
}

Result<void> RecorderFolder::archive(MediumKind kind, bool spoilt) const
{
    const std::array<bool, 2> forms{ false, true };
    for (const bool audio : forms) {
        if (!exists(m_folder.get(), audio ? audioDiscFile : dataDiscFile))
            continue;
        const std::string what =
            "The folder " + std::string(archiveFolder) + " of " + m_name + " cannot be made";
        if (::mkdirat(m_folder.get(), archiveFolder, 0777) != 0 && errno != EEXIST)
            return systemError(what, errno);
        const Fd discs(::openat(m_folder.get(), archiveFolder, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!discs)
            return systemError(what, errno);
        if (auto moved = moveToArchive(archiveStem(kind, spoilt), audio, discs); !moved)
            return moved;
    }
    return {};
}

Result<void> RecorderFolder::clear() const
{
    for (const char *file : { dataDiscFile, audioDiscFile, cueSheetFile })
        if (::unlinkat(m_folder.get(), file, 0) != 0 && errno != ENOENT)
            return systemError("The disc of " + m_name + " cannot be erased", errno);
    return {};
}

Result<std::string> RecorderFolder::cueSheet() const
{
    Result<std::string> text =
        readSmallFile(m_folder.get(), cueSheetFile, "The cue sheet of " + m_name + " cannot be read");
    if (!text)
        return Error{ Exit::failed, text.error().message + "; write the disc again." };
    return text;
}

Result<void> RecorderFolder::saveCueSheet(const std::string &text) const
{
    return replaceFile(
        m_folder.get(), cueSheetFile, text, "The cue sheet of " + m_name + " cannot be written");
}

Result<Fd> RecorderFolder::createDisc(const char *file) const
{
    Fd fd(::openat(m_folder.get(), file, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!fd)
        return systemError("The disc of " + m_name + " cannot be written", errno);
    return fd;
}

Result<Fd> RecorderFolder::openDisc(const char *file) const
{
    Fd fd(::openat(m_folder.get(), file, O_RDONLY | O_CLOEXEC));
    if (!fd)
        return systemError("The disc of " + m_name + " cannot be read", errno);
    return fd;
}

Result<Fd> RecorderFolder::reserve() const
{
    const std::string what = "Room for " + std::string(stateFile) + " of " + m_name + " cannot be kept";
    if (::unlinkat(m_folder.get(), reserveFile, 0) != 0 && errno != ENOENT)
        return systemError(what, errno);
    Fd fd(::openat(m_folder.get(), reserveFile, O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!fd)
        return systemError(what, errno);
    ::unlinkat(m_folder.get(), reserveFile, 0);
    if (const int failure = ::posix_fallocate(fd.get(), 0, smallFileLimit); failure != 0)
        return systemError(what, failure);
    return fd;
}

Result<std::uint64_t> RecorderFolder::room() const
{
    struct statvfs info { };
    if (::fstatvfs(m_folder.get(), &info) != 0)
        return systemError("The folder of " + m_name + " cannot be measured", errno);
    return static_cast<std::uint64_t>(info.f_bavail) * info.f_frsize;
}

RecorderState peek(const std::string &path, bool &readable)
{
    const Fd folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const Result<std::string> text = readSmallFile(folder.get(), stateFile, path);
    const Result<RecorderState> state = text ? parseRecorder(*text) : Result<RecorderState>(text.error());
    readable = static_cast<bool>(state);
    return state ? *state : RecorderState{};
}

} // namespace engine::drive
