#include "image/VolumeName.h"

#include "base/Words.h"
#include "image/DvdVideo.h"
#include "image/UdfText.h"
#include "image/Unicode.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <sys/stat.h>

namespace engine::image {

namespace {

constexpr std::size_t isoLength = 32;
constexpr std::size_t jolietLength = 16;
constexpr std::size_t udfField = 32;

bool isControl(char16_t unit)
{
    return unit < 0x20 || unit == 0x7f;
}

std::string isoForm(std::u16string_view wanted)
{
    std::string form;
    for (std::size_t at = 0; at < wanted.size(); ++at) {
        const bool held = wanted[at] >= 0x20 && wanted[at] < 0x7f;
        // The second half of a pair belongs to the '_' of the first.
        if ((wanted[at] & 0xfc00) != 0xdc00)
            form += held ? static_cast<char>(wanted[at]) : '_';
    }
    return form.substr(0, isoLength);
}

bool isForbiddenInJoliet(char16_t unit)
{
    return isControl(unit) || std::u16string_view(u"*/:;?\\").find(unit) != std::u16string_view::npos;
}

std::u16string jolietForm(std::u16string wanted)
{
    std::ranges::replace_if(wanted, isForbiddenInJoliet, u'_');
    return std::u16string(cutTo(wanted, jolietLength));
}

std::u16string udfForm(std::u16string wanted)
{
    std::ranges::replace_if(wanted, isControl, u'_');
    return std::u16string(udfFitting(wanted, udfField - 1));
}

std::string ownName(const std::string &folder)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(folder.c_str(), nullptr), std::free);
    const std::string path = real ? real.get() : folder;
    return path.substr(path.rfind('/') + 1);
}

} // namespace

VolumeName volumeName(std::string_view wanted)
{
    const std::u16string text = utf16(wanted);
    return { isoForm(text), jolietForm(text), udfForm(text) };
}

std::string volumeNameFromEnvironment()
{
    const char *name = std::getenv("CORVALIS_VOLUME");
    return name ? name : "";
}

std::string volumeNameFor(const FolderTree &tree)
{
    const Entry &root = tree.entries().front();
    if (root.count == 1 && !isDvdVideo(tree)) {
        const Entry &only = tree.entries()[root.first];
        if (S_ISDIR(only.mode))
            return tree.name(only);
    }
    const std::string own = ownName(tree.folder());
    return own.empty() ? "DISC" : own;
}

void addVolumeNote(
    std::string_view wanted, const VolumeName &name, bool withUdf, std::vector<std::string> &notes)
{
    struct Form {
        std::string stored;
        const char *where;
        bool used;
    };
    std::string changes;
    for (const Form &form : { Form{ name.iso, "ISO 9660", true }, Form{ utf8(name.joliet), "Joliet", true },
             Form{ utf8(name.udf), "UDF", withUdf } })
        if (form.used && form.stored != wanted)
            changes +=
                (changes.empty() ? " is stored as " : ", as ") + quoted(form.stored) + " in " + form.where;
    if (!changes.empty())
        notes.push_back("The name of the disc, " + quoted(wanted) + ',' + changes + '.');
}

} // namespace engine::image
