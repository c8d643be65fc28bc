#include "image/JolietNotes.h"

#include "base/Words.h"
#include "image/JolietName.h"

#include <sys/stat.h>

namespace engine::image {

namespace {

constexpr std::uint32_t mostExamples = 3;

constexpr std::size_t longestExample = 80;

/// The end of a long path, which is what tells it from others.
std::string example(std::string path)
{
    if (path.size() > longestExample) {
        std::size_t cut = path.size() - longestExample;
        while (cut < path.size() && utf8Length(std::string_view(path).substr(cut)) == 0)
            ++cut;
        path.replace(0, cut, "...");
    }
    return quoted(path);
}

/// Collects the names that share a fate.
struct Fate {
    const char *text;
    std::uint32_t count = 0;
    std::string examples;

    void add(const FolderTree &tree, std::uint32_t entry)
    {
        if (++count <= mostExamples)
            examples += (count > 1 ? ", " : "") + example(tree.relativePath(entry));
    }

    void tell(std::vector<std::string> &notes) const
    {
        if (count == 0)
            return;
        const std::string more =
            count > mostExamples ? " and " + std::to_string(count - mostExamples) + " more" : "";
        notes.push_back(text + (": " + examples) + more + ".");
    }
};

} // namespace

void addJolietNotes(const FolderTree &tree, std::vector<std::string> &notes)
{
    Fate changed{ "Characters that the Joliet names cannot hold are stored as '_' there", 0, {} };
    Fate cut{ "The Joliet names are cut to 103 characters", 0, {} };
    Fate unseen{ "Only systems that read Rock Ridge show these links and special files", 0, {} };
    for (std::uint32_t number = 1; number < tree.entries().size(); ++number) {
        const Entry &entry = tree.entries()[number];
        if (!S_ISREG(entry.mode) && !S_ISDIR(entry.mode)) {
            unseen.add(tree, number);
            continue;
        }
        const JolietFit fit = jolietFit(tree.name(entry));
        if (fit != JolietFit::whole)
            (fit == JolietFit::cut ? cut : changed).add(tree, number);
    }
    for (const Fate *fate : { &changed, &cut, &unseen })
        fate->tell(notes);
}

} // namespace engine::image
