#include "drive/Mounts.h"

#include "base/Words.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <spawn.h>
#include <sstream>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace engine::drive {

namespace {

using namespace std::chrono_literals;

std::string unescaped(const std::string &field)
{
    std::string text;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            text += static_cast<char>(std::strtol(field.substr(i + 1, 3).c_str(), nullptr, 8));
            i += 3;
        } else {
            text += field[i];
        }
    }
    return text;
}

/// As the system's calls want a list: pointers into `words`, which has to live as long, and a null pointer.
std::vector<char *> pointersTo(std::vector<std::string> &words)
{
    std::vector<char *> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

/// Runs a program without output and waits half a minute for it; false when it fails or takes longer.
bool run(std::vector<std::string> arguments)
{
    const std::vector<char *> argv = pointersTo(arguments);
    std::vector<std::string> variables = unmountersEnvironment(environ);
    const std::vector<char *> environment = pointersTo(variables);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    for (const int fd : { 0, 1, 2 })
        posix_spawn_file_actions_addopen(&actions, fd, "/dev/null", O_RDWR, 0);
    pid_t child = 0;
    const int failure =
        ::posix_spawnp(&child, argv.front(), &actions, nullptr, argv.data(), environment.data());
    posix_spawn_file_actions_destroy(&actions);
    if (failure != 0)
        return false;
    int status = 0;
    for (auto waited = 0ms; waited < 30s; waited += 20ms) {
        if (::waitpid(child, &status, WNOHANG) == child)
            return WIFEXITED(status) && WEXITSTATUS(status) == 0;
        std::this_thread::sleep_for(20ms);
    }
    ::kill(child, SIGKILL);
    ::waitpid(child, &status, 0);
    return false;
}

} // namespace

std::vector<std::string> mountPointsIn(std::string_view mountInfo, unsigned major, unsigned minor)
{
    const std::string wanted = std::to_string(major) + ':' + std::to_string(minor);
    std::vector<std::string> points;
    std::istringstream lines{ std::string(mountInfo) };
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string id, parent, device, root, point;
        if (fields >> id >> parent >> device >> root >> point && device == wanted)
            points.push_back(unescaped(point));
    }
    return points;
}

std::optional<WholeMount> mountedWholeAt(std::string_view mountInfo, const std::string &point)
{
    std::optional<WholeMount> found;
    std::istringstream lines{ std::string(mountInfo) };
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        std::string id, parent, device, root, at, options, field, type, source;
        if (!(fields >> id >> parent >> device >> root >> at >> options) || unescaped(at) != point)
            continue;
        // Any number of optional fields, and a dash behind them (proc(5)).
        while (fields >> field && field != "-") { }
        fields >> type >> source;
        WholeMount mount;
        char colon = 0;
        std::istringstream numbers(device);
        const bool whole = root == "/" && numbers >> mount.major >> colon >> mount.minor;
        mount.source = unescaped(source);
        found = whole ? std::optional(mount) : std::nullopt;
    }
    return found;
}

std::vector<std::string> unmountersEnvironment(const char *const *environment)
{
    constexpr std::array names{ "PATH", "HOME", "USER", "LOGNAME", "LANG", "LC_ALL", "LC_MESSAGES",
        "XDG_RUNTIME_DIR", "XDG_SESSION_ID", "DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS" };
    std::vector<std::string> chosen;
    for (; *environment; ++environment) {
        const std::string_view variable(*environment);
        const std::string_view name = variable.substr(0, variable.find('='));
        if (std::ranges::find(names, name) != names.end())
            chosen.emplace_back(variable);
    }
    return chosen;
}

std::vector<std::string> mountPoints(const std::string &device)
{
    struct stat info { };
    if (::stat(device.c_str(), &info) != 0 || !S_ISBLK(info.st_mode))
        return {};
    std::ifstream file("/proc/self/mountinfo", std::ios::binary);
    const std::string text{ std::istreambuf_iterator<char>(file), {} };
    return mountPointsIn(text, major(info.st_rdev), minor(info.st_rdev));
}

Result<void> unmount(const std::string &device, const std::string &driveName)
{
    // One command takes away one mount; a device may be mounted at several places.
    for (auto points = mountPoints(device); !points.empty();) {
        if (!run({ "udisksctl", "unmount", "--no-user-interaction", "-b", device }))
            run({ "umount", "--", device });
        const auto left = mountPoints(device);
        if (left.size() >= points.size())
            return Error{ Exit::failed,
                "The disc in " + driveName + " is mounted at " + engine::quoted(left.front())
                    + " and cannot be unmounted: close the programs that use it, or unmount it by hand." };
        points = left;
    }
    return {};
}

} // namespace engine::drive
