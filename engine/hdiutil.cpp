// hdiutil: disc images, made of folders and written to discs.
#include "base/Words.h"
#include "drive/Burn.h"
#include "drive/Drives.h"
#include "drive/MountedDisc.h"
#include "image/DiscCopy.h"
#include "image/DiskImage.h"
#include "image/ImageFile.h"
#include "image/IsoImage.h"
#include "image/NewFile.h"
#include "image/VolumeName.h"
#include "program/Program.h"
#include "program/Session.h"
#include "program/SpeedOption.h"

#include <array>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

namespace {

using namespace engine;
using program::Arguments;
using program::Option;
using program::Session;
using program::usageError;
using program::Verb;

constexpr const char *helpText = R"(  --help, --version  also 'hdiutil help VERB' and 'hdiutil VERB --help'

Options may stand in any order; '--' ends them. IMAGE must not exist. A symbolic link is stored as what it points to.
An image that is not a whole number of 2048-byte blocks is filled up when it is burned.

Exit status: 0 success, 1 failure, 2 wrong arguments, 3 no disc to burn to,
130 and 143 ended by SIGINT and SIGTERM.
)";

/// Tells how much of `size` bytes is written, which may be set later.
std::function<void(std::uint64_t)> progressOf(Session &session, const std::uint64_t &size)
{
    return [control = session.control(), &size](std::uint64_t bytes) {
        Progress progress;
        progress.phase = Phase::writing;
        progress.done = bytes;
        progress.total = size;
        control.report(progress, 0);
    };
}

/// How the folder is read and its image written, with progress lines and until a signal comes.
image::IsoOptions imageOptions(Session &session, const std::uint64_t &size)
{
    image::IsoOptions options;
    options.volumeName = image::volumeNameFromEnvironment();
    options.links = image::Links::follow;
    options.stop = session.stop();
    options.progress = progressOf(session, size);
    return options;
}

/// One attempt at an image. A file that cannot be read after all is added to those that `options` leave out.
Result<void> tryImage(const std::string &folder, const std::string &path, image::IsoOptions &options,
    std::uint64_t &size, Session &session)
{
    auto image = image::IsoImage::fromFolder(folder, options);
    if (!image)
        return image.error();
    size = std::uint64_t{ image->blockCount() } * image::blockSize;
    auto file = image::NewFile::create(path, size);
    if (!file)
        return file.error();
    if (auto written = image->writeTo(file->fd(), path); !written) {
        if (const auto unreadable = image->unreadable())
            options.leftOut.push_back(*unreadable);
        return written;
    }
    if (auto kept = file->keep(); !kept)
        return kept;
    for (const std::string &note : image->notes())
        session.note(note);
    session.say("Done: " + quoted(path) + " holds " + std::to_string(image->fileCount())
        + (image->fileCount() == 1 ? " file in " : " files in ") + sizeText(size) + ".");
    return {};
}

Result<void> makeImage(const std::string &folder, const std::string &path, Session &session)
{
    std::uint64_t size = 0;
    session.say("Making an image of the folder " + quoted(folder) + '.');
    session.control().report({}, 0);
    image::IsoOptions options = imageOptions(session, size);
    while (true) {
        const std::size_t before = options.leftOut.size();
        auto made = tryImage(folder, path, options, size, session);
        // The places of all files behind it change with one that is left out, so the image is made anew.
        if (made || options.leftOut.size() == before)
            return made;
    }
}

Result<void> copyWholeDisc(const image::DiscSource &disc, const std::string &path, Session &session)
{
    session.say("Copying the disc in " + disc.name + " block for block.");
    session.control().report({}, 0);
    const Result<std::uint64_t> blocks = image::volumeEnd(disc);
    if (!blocks)
        return blocks.error();
    const std::uint64_t size = *blocks * image::blockSize;
    auto file = image::NewFile::create(path, size);
    if (!file)
        return file.error();
    image::ImageFile image(file->fd(), path, session.stop(), progressOf(session, size));
    if (auto copied = image::copyDisc(disc, *blocks, image); !copied)
        return copied;
    if (auto kept = file->keep(); !kept)
        return kept;
    session.say("Done: " + quoted(path) + " holds the disc in " + sizeText(size) + ".");
    return {};
}

/// An image of what is at `source`: the disc itself where that is the mount point of one, else the files of a folder.
Result<void> makeImageOf(const std::string &source, const std::string &path, Session &session)
{
    const auto disc = drive::MountedDisc::at(source);
    if (!disc)
        return disc.error();
    if (!*disc)
        return makeImage(source, path, session);
    image::DiscSource whole = (*disc)->source();
    whole.stop = session.stop();
    return copyWholeDisc(whole, path, session);
}

Result<void> makeHybrid(const Arguments &arguments)
{
    const std::string path = arguments.valueOf("-o");
    if (path.empty())
        return usageError("-o with the name of the image is needed.");
    if (!arguments.has("-iso") || !arguments.has("-joliet"))
        return usageError("Both -iso and -joliet are needed; no other kind of image can be made.");
    if (auto absent = image::checkAbsent(path); !absent)
        return absent;
    Session session;
    auto made = makeImageOf(arguments.operands.front(), path, session);
    if (!made && isStop(made.error()))
        return Error{ made.error().exit, "Stopped: " + quoted(path) + " was not made." };
    return made;
}

Result<void> burnImage(const Arguments &arguments)
{
    const std::string &path = arguments.operands.front();
    if (auto plain = image::checkDiskImage(path); !plain)
        return plain;
    const auto speed = program::wishedSpeed(arguments);
    if (!speed)
        return speed.error();
    Session session;
    const char *preferred = std::getenv("CORVALIS_PREFERRED_DRIVE");
    const auto burner = drive::defaultBurner(preferred ? preferred : "", session.stop());
    if (!burner)
        return burner.error();
    session.sayDrive(**burner);
    auto done = drive::burnImageFile(**burner, path, session.burnOptions(true, *speed));
    if (done)
        session.say("Done: the disc in " + (*burner)->name() + " is written and was compared.");
    return done;
}

constexpr std::array makingOptions{ Option{ "-o", "-o wants the name of the image." }, Option{ "-iso" },
    Option{ "-joliet" } };

constexpr std::array burnOptions{ program::speedOption };

const std::array verbs{
    Verb{ "makehybrid", "makehybrid -o IMAGE SOURCE -iso -joliet", 1, makingOptions, makeHybrid,
        R"(  makehybrid -o IMAGE SOURCE -iso -joliet
                     make an ISO 9660 image with Joliet and Rock Ridge names of the folder SOURCE, or copy
                     the disc block for block that is mounted there
)" },
    Verb{ "burn", "burn [-speed N|max] IMAGE", 1, burnOptions, burnImage,
        R"(  burn IMAGE         write an image to a drive with a blank or erasable disc; a blank disc comes first, and
                     among equals the one in the drive $CORVALIS_PREFERRED_DRIVE (its number in 'drutil list')
  burn -speed N|max IMAGE
                     at the drive's speed that is nearest to N times the single speed of the disc, or at the
                     fastest; without it, $CORVALIS_SPEED says so
)" },
};

} // namespace

int main(int argc, char **argv)
{
    const program::Program hdiutil{ "hdiutil", "VERB ARGUMENT...", helpText, verbs };
    return program::run(hdiutil, { argv + (argc > 0), argv + argc });
}
