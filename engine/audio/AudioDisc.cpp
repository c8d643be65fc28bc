#include "audio/AudioDisc.h"

#include "base/Fd.h"
#include "base/Words.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <strings.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

namespace engine::audio {

namespace {

struct Candidate {
    std::int64_t seconds, nanoseconds; ///< time of last modification
    std::string name;

    bool operator<(const Candidate &other) const
    {
        const auto left = std::tie(seconds, nanoseconds);
        const auto right = std::tie(other.seconds, other.nanoseconds);
        return left != right ? left < right : naturalLess(name, other.name);
    }
};

bool endsWith(const std::string &name, std::string_view end)
{
    return name.size() >= end.size()
        && strncasecmp(name.c_str() + name.size() - end.size(), end.data(), end.size()) == 0;
}

bool isWaveName(const std::string &name)
{
    return endsWith(name, ".wav") || endsWith(name, ".wave");
}

/// Whether a file is only what another system noted beside the file of the name without "._": its attributes
/// and icon, under the same ending (RFC 1740).
bool isSidecar(int folder, const std::string &name)
{
    static constexpr std::string_view magic("\0\x05\x16\x07", 4);
    if (!name.starts_with("._"))
        return false;
    const Fd file(openat(folder, name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    char start[magic.size()];
    const auto got = file ? readFully(file.get(), std::as_writable_bytes(std::span(start)), 0) : -1;
    return got == std::ssize(start) && std::string_view(start, sizeof start) == magic;
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::string_view takeDigits(std::string_view &text)
{
    std::size_t end = 0;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    const std::string_view digits = text.substr(0, end);
    text.remove_prefix(end);
    const std::size_t zeros = digits.find_first_not_of('0');
    return zeros == std::string_view::npos ? std::string_view() : digits.substr(zeros);
}

Error folderError(const std::string &folder, int error)
{
    return { Exit::failed,
        "The folder " + quoted(folder) + " cannot be read: " + reasonAndAdvice(error) + "." };
}

Error tooLong(const std::string &folder, std::uint64_t sectors)
{
    return { Exit::failed,
        "The WAVE files in " + quoted(folder) + " make a disc of " + lengthText(sectors)
            + ", and an audio disc counts to " + lengthText(mostSectors) + ": take some out of the folder." };
}

/// The files that can be tracks, in order; the others become notes.
Result<std::vector<Candidate>> listCandidates(const std::string &folder, std::vector<std::string> &notes)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(opendir(folder.c_str()), closedir);
    if (!directory)
        return folderError(folder, errno);
    std::vector<Candidate> candidates;
    errno = 0;
    while (const dirent *item = readdir(directory.get())) {
        const std::string name = item->d_name;
        if (name == "." || name == "..")
            continue;
        struct stat info { };
        const bool maybe = isWaveName(name) && !isSidecar(dirfd(directory.get()), name);
        if (maybe && fstatat(dirfd(directory.get()), name.c_str(), &info, 0) != 0)
            return Error{ Exit::failed,
                "The file " + quoted(folder + '/' + name) + " cannot be read: " + reasonAndAdvice(errno)
                    + "." };
        if (maybe && !S_ISDIR(info.st_mode))
            candidates.push_back({ info.st_mtim.tv_sec, info.st_mtim.tv_nsec, name });
        else
            notes.push_back(quoted(name) + " is left out: only WAVE files become tracks.");
        errno = 0;
    }
    if (errno != 0)
        return folderError(folder, errno);
    std::sort(candidates.begin(), candidates.end());
    std::sort(notes.begin(), notes.end());
    return candidates;
}

/// What all of `texts` say; empty where one says something else.
std::string common(const std::vector<WaveText> &texts, std::string WaveText::*field)
{
    const std::string &first = texts.front().*field;
    const bool same = std::ranges::all_of(texts, [&](const WaveText &text) { return text.*field == first; });
    return same ? first : std::string();
}

/// The names of the tracks, and for the disc those in which all tracks agree.
CdText namesOfDisc(const std::vector<WaveText> &texts)
{
    CdText names{ { common(texts, &WaveText::album), common(texts, &WaveText::artist) }, {} };
    for (const WaveText &text : texts)
        names.tracks.push_back({ text.title, text.artist });
    // A disc whose tracks say nothing of themselves has no text.
    const bool named = std::ranges::any_of(
        texts, [](const WaveText &text) { return !text.title.empty() || !text.artist.empty(); });
    return named ? names : CdText();
}

void addTextNote(const char *what, std::vector<std::string> names, std::vector<std::string> &notes)
{
    constexpr std::size_t mostExamples = 3;
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    if (names.empty())
        return;
    std::string examples;
    for (std::size_t i = 0; i < std::min(names.size(), mostExamples); ++i)
        examples += (i > 0 ? ", " : "") + quoted(names[i]);
    if (names.size() > mostExamples)
        examples += " and " + std::to_string(names.size() - mostExamples) + " more";
    notes.push_back(std::string(what) + ": " + examples + ".");
}

void addTextNotes(const TextChanges &changes, std::vector<std::string> &notes)
{
    addTextNote(
        "CD-TEXT has no letters for these names, which are spelled otherwise", changes.respelled, notes);
    addTextNote("These names are cut, as CD-TEXT has no room for all of them", changes.cut, notes);
}

} // namespace

std::uint32_t AudioDisc::sectorCount() const
{
    std::uint32_t sum = firstPause;
    for (const AudioTrack &track : tracks)
        sum += track.sectors;
    return sum;
}

std::uint64_t sectorsFor(std::uint64_t bytes)
{
    return std::max<std::uint64_t>(bytes / sectorSize + (bytes % sectorSize != 0), shortestTrack);
}

Result<AudioDisc> readAudioFolder(const std::string &folder)
{
    AudioDisc disc;
    const auto candidates = listCandidates(folder, disc.notes);
    if (!candidates)
        return candidates.error();
    if (candidates->empty())
        return Error{ Exit::failed,
            "The folder " + quoted(folder) + " holds no WAVE file: put one for each track into it." };
    if (candidates->size() > mostTracks)
        return Error{ Exit::failed,
            "The folder " + quoted(folder) + " holds " + std::to_string(candidates->size())
                + " WAVE files, but an audio disc has at most " + std::to_string(mostTracks)
                + " tracks: take some out." };
    std::vector<WaveText> texts;
    std::uint64_t total = firstPause; // of 99 files of any size it fits in 64 bits
    for (const Candidate &candidate : *candidates) {
        const std::string path = folder + (folder.ends_with('/') ? "" : "/") + candidate.name;
        const auto wave = readWave(path);
        if (!wave)
            return wave.error();
        const std::uint64_t sectors = sectorsFor(wave->samples.size);
        total += sectors;
        if (wave->samples.size < std::uint64_t{ shortestTrack } * sectorSize)
            disc.notes.push_back(quoted(candidate.name)
                + " is shorter than four seconds: silence fills the track up to that.");
        disc.tracks.push_back({ path, wave->samples, static_cast<std::uint32_t>(sectors) });
        texts.push_back(wave->text);
    }
    if (total > mostSectors)
        return tooLong(folder, total);
    FittedText fitted = fittedText(namesOfDisc(texts));
    disc.text = std::move(fitted.text);
    addTextNotes(fitted.changes, disc.notes);
    return disc;
}

std::string msf(std::uint64_t sector)
{
    const auto twoDigits = [](std::uint64_t number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    const std::uint64_t seconds = sector / sectorsPerSecond;
    return twoDigits(seconds / 60) + ':' + twoDigits(seconds % 60) + ':'
        + twoDigits(sector % sectorsPerSecond);
}

std::string lengthText(std::uint64_t sectors)
{
    const std::string time = msf(sectors);
    return time.substr(0, time.rfind(':')) + " minutes (" + std::to_string(sectors) + " blocks)";
}

bool naturalLess(const std::string &left, const std::string &right)
{
    std::string_view a = left, b = right;
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            const std::string_view x = takeDigits(a), y = takeDigits(b);
            if (x.size() != y.size())
                return x.size() < y.size();
            if (x != y)
                return x < y;
            continue;
        }
        if (a.front() != b.front())
            return static_cast<unsigned char>(a.front()) < static_cast<unsigned char>(b.front());
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    if (a.empty() != b.empty())
        return a.empty();
    return left < right;
}

} // namespace engine::audio
