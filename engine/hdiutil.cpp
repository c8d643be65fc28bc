// hdiutil: disc images, made of folders and written to discs.
#include "base/Words.h"
#include "drive/Burn.h"
#include "drive/Drives.h"
#include "image/DiskImage.h"
#include "image/IsoImage.h"
#include "image/NewFile.h"
#include "report/ProgressText.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace engine;

constexpr std::string_view helpText = R"(Usage: hdiutil VERB ARGUMENT...

  makehybrid -o IMAGE SOURCE -iso -joliet
                     make an ISO 9660 image with Joliet and Rock Ridge names of the folder SOURCE
  burn IMAGE         write an image to the first drive with a blank or erasable disc
  --help, --version

Options may stand in any order; '--' ends them. IMAGE must not exist. A symbolic link is stored as what it points to.
An image that is not a whole number of 2048-byte blocks is filled up when it is burned.

Exit status: 0 success, 1 failure, 2 wrong arguments, 3 no disc to burn to,
130 and 143 ended by SIGINT and SIGTERM.
)";

/// The command line, taken apart.
struct Arguments {
    std::vector<std::string> operands;
    std::vector<std::string> output; ///< one for each -o
    bool iso = false;
    bool joliet = false;
};

struct Verb {
    const char *name;
    const char *usage;
    bool makesImage; ///< takes -o, -iso and -joliet
    Result<void> (*run)(const Arguments &);
};

Error usageError(std::string message)
{
    return { Exit::usage, std::move(message) };
}

void print(const std::string &text)
{
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fflush(stdout);
}

Result<void> makeHybrid(const Arguments &arguments)
{
    const std::string &path = arguments.output.front();
    if (auto absent = image::checkAbsent(path); !absent)
        return absent;
    drive::StopSignals signals;
    image::IsoOptions options;
    options.links = image::Links::follow;
    options.stop = [&signals] { return signals.caught() != 0; };
    const auto stopped = [&](const Error &error) {
        return signals.caught() == 0
            ? error
            : drive::stoppedBy(signals.caught(), "Stopped: " + quoted(path) + " was not made.");
    };
    auto image = image::IsoImage::fromFolder(arguments.operands.front(), options);
    if (!image)
        return stopped(image.error());
    for (const std::string &note : image->notes())
        print(note + '\n');
    const std::uint64_t size = std::uint64_t{ image->blockCount() } * image::blockSize;
    auto file = image::NewFile::create(path, size);
    if (!file)
        return file.error();
    if (auto written = image->writeTo(file->fd(), path); !written)
        return stopped(written.error());
    if (auto kept = file->keep(); !kept)
        return kept;
    print("Done: " + quoted(path) + " holds " + std::to_string(image->fileCount())
        + (image->fileCount() == 1 ? " file in " : " files in ") + sizeText(size) + ".\n");
    return {};
}

Result<void> burnImage(const Arguments &arguments)
{
    const std::string &path = arguments.operands.front();
    if (auto plain = image::checkDiskImage(path); !plain)
        return plain;
    const auto burner = drive::defaultBurner();
    if (!burner)
        return burner.error();
    drive::StopSignals signals;
    report::ProgressPacer pacer;
    drive::BurnOptions options;
    options.note = [](const std::string &line) { print(line + '\n'); };
    options.control.stopSignal = [&signals] { return signals.caught(); };
    options.control.progress = [&pacer](const report::Progress &progress, unsigned unitBytes) {
        if (const auto line = pacer.next(progress, unitBytes, report::ProgressPacer::Clock::now()))
            print(*line + '\n');
    };
    auto done = drive::burnImageFile(**burner, path, options);
    if (done)
        print("Done: the disc in " + (*burner)->name() + " is written and was compared.\n");
    return done;
}

constexpr std::array verbs{
    Verb{ "makehybrid", "makehybrid -o IMAGE SOURCE -iso -joliet", true, makeHybrid },
    Verb{ "burn", "burn IMAGE", false, burnImage },
};

const Verb *verbNamed(std::string_view name)
{
    const auto verb = std::ranges::find(verbs, name, [](const Verb &v) { return std::string_view(v.name); });
    return verb == verbs.end() ? nullptr : &*verb;
}

/// Reads one option at `at`, and moves `at` behind it.
Result<void> readOption(
    const Verb &verb, const std::vector<std::string> &words, std::size_t &at, Arguments &arguments)
{
    const std::string &word = words[at++];
    if (verb.makesImage && word == "-o") {
        if (at == words.size())
            return usageError("-o wants the name of the image.");
        arguments.output.push_back(words[at++]);
    } else if (verb.makesImage && word == "-iso") {
        arguments.iso = true;
    } else if (verb.makesImage && word == "-joliet") {
        arguments.joliet = true;
    } else {
        return usageError(std::string("An option of ") + verb.name + " is not known: " + quoted(word)
            + " (put ./ before a name that begins with '-').");
    }
    return {};
}

Result<void> checkComplete(const Verb &verb, const Arguments &arguments)
{
    if (arguments.operands.size() != 1)
        return usageError(
            arguments.operands.empty() ? "An argument is missing." : "There are too many arguments.");
    if (!verb.makesImage)
        return {};
    if (arguments.output.size() != 1 || arguments.output.front().empty())
        return usageError("One -o with the name of the image is needed.");
    if (!arguments.iso || !arguments.joliet)
        return usageError("Both -iso and -joliet are needed; no other kind of image can be made.");
    return {};
}

Result<Arguments> parse(const Verb &verb, const std::vector<std::string> &words)
{
    Arguments arguments;
    bool options = true;
    for (std::size_t at = 1; at < words.size();) {
        const std::string &word = words[at];
        if (options && word == "--") {
            options = false;
            ++at;
        } else if (options && word.starts_with('-')) {
            if (auto read = readOption(verb, words, at, arguments); !read)
                return read.error();
        } else {
            arguments.operands.push_back(word);
            ++at;
        }
    }
    if (auto complete = checkComplete(verb, arguments); !complete)
        return complete.error();
    return arguments;
}

int fail(const Error &error, const char *usage)
{
    std::string text = "hdiutil: " + error.message + '\n';
    if (error.exit == Exit::usage)
        text += std::string("Usage: hdiutil ") + usage + '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
    return static_cast<int>(error.exit);
}

} // namespace

int main(int argc, char **argv)
{
    // Whoever reads our output may go away at any time; that is no reason to break off a write.
    std::signal(SIGPIPE, SIG_IGN);
    constexpr const char *generalUsage = "makehybrid|burn ARGUMENT...";
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.empty())
        return fail(usageError("A verb is missing."), generalUsage);
    if (words.front() == "--help" || words.front() == "-h") {
        print(std::string(helpText));
        return 0;
    }
    if (words.front() == "--version") {
        print("hdiutil (Corvalis) " CORVALIS_VERSION "\n");
        return 0;
    }
    const Verb *verb = verbNamed(words.front());
    if (!verb)
        return fail(usageError("There is no such verb: " + quoted(words.front()) + "."), generalUsage);
    const Result<Arguments> arguments = parse(*verb, words);
    const Result<void> done = arguments ? verb->run(*arguments) : Result<void>(arguments.error());
    return done ? 0 : fail(done.error(), verb->usage);
}
