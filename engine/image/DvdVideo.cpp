#include "image/DvdVideo.h"

#include "base/Words.h"
#include "image/TreeOpener.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string_view>
#include <sys/stat.h>

namespace engine::image {

namespace {

// Authoring programs leave at most a few ECC blocks between two files. Pointers over a wider gap speak of title sets that are
// not there any more.
constexpr std::uint32_t mostGapBlocks = 1024;

// Where no pointer tells, a backup does not share its ECC block with the information that it backs up.
constexpr std::uint32_t backupDistance = 16;

constexpr unsigned mostTitleSets = 99;
constexpr unsigned mostParts = 9; ///< files of the titles of one set

// Places in an information file, of 32-bit big-endian numbers of sectors (DVD-Video, VMGI_MAT and VTSI_MAT).
constexpr std::size_t lastSectorAt = 0x0c; ///< of the manager or the title set, with its backup
constexpr std::size_t menuAt = 0xc0; ///< counted from the information file, as the next
constexpr std::size_t titlesAt = 0xc4; ///< of a title set
constexpr std::size_t titleTableAt = 0xc4; ///< of the manager, in its information file

constexpr std::size_t titleRowBytes = 12;
constexpr std::size_t titleSetAt = 6; ///< in a row: the number of the title set
constexpr std::size_t titleSetSectorAt = 8; ///< in a row: where that begins, counted from the manager

constexpr std::string_view managerIdentifier = "DVDVIDEO-VMG";
constexpr std::string_view titleSetIdentifier = "DVDVIDEO-VTS";

std::string twoDigits(unsigned number)
{
    return (number < 10 ? "0" : "") + std::to_string(number);
}

/// An information file, read as far as its pointers need it.
class Information {
public:
    Information() = default;
    Information(const Fd &file, std::string_view identifier)
        : m_file(&file)
    {
        std::array<std::byte, 12> start{};
        m_valid = file && readFully(file.get(), start, 0) == std::ptrdiff_t(start.size())
            && identifier == std::string_view(reinterpret_cast<const char *>(start.data()), start.size());
    }

    bool isValid() const { return m_valid; }

    /// A big-endian number; 0 where the file does not reach so far.
    std::uint32_t number(std::uint64_t at, std::size_t size = 4) const
    {
        std::array<std::byte, 4> bytes{};
        const auto wanted = std::span(bytes).first(size);
        if (!m_valid || readFully(m_file->get(), wanted, static_cast<off_t>(at)) != std::ptrdiff_t(size))
            return 0;
        std::uint32_t value = 0;
        for (const std::byte byte : wanted)
            value = value << 8 | std::to_integer<std::uint32_t>(byte);
        return value;
    }

private:
    const Fd *m_file = nullptr;
    bool m_valid = false;
};

/// Puts the files of a video folder one after the other.
class Arrangement {
public:
    explicit Arrangement(FolderTree &tree)
        : m_tree(tree)
        , m_opener(tree)
        , m_numbers(tree.entries().size())
    {
        const Entry &root = tree.entries().front();
        for (std::uint32_t child = root.first; child < root.first + root.count; ++child)
            if (tree.name(tree.entries()[child]) == std::string_view(videoFolder))
                m_folder = child;
        const Entry &folder = tree.entries()[m_folder];
        for (std::uint32_t child = folder.first; child < folder.first + folder.count; ++child)
            if (S_ISREG(tree.entries()[child].mode))
                m_files.emplace(tree.name(tree.entries()[child]), child);
    }

    void run()
    {
        placeManager();
        for (unsigned set = 1; set <= mostTitleSets; ++set)
            placeTitleSet(set);
        placeRest();
        m_tree.arrange(std::move(m_contents), m_numbers);
    }

private:
    void placeManager()
    {
        const std::string name = videoFolder;
        const Fd file = open(name + ".IFO");
        const Information information(file, managerIdentifier);
        check(name, information);
        readTitleTable(information);
        placeSet(name, information, 0, { { name + ".VOB", information.number(menuAt) } });
    }

    void placeTitleSet(unsigned set)
    {
        const std::string name = "VTS_" + twoDigits(set) + '_';
        const bool isThere = m_files.contains(name + "0.IFO") || m_files.contains(name + "1.VOB");
        if (!isThere) {
            if (m_starts.contains(set))
                m_tree.addNote(about(name + "0.IFO")
                    + " is missing, although a title lies there: players will not play it.");
            return;
        }
        const Fd file = open(name + "0.IFO");
        const Information information(file, titleSetIdentifier);
        check(name + '0', information);
        std::vector<Part> parts{ { name + "0.VOB", information.number(menuAt) } };
        for (unsigned part = 1; part <= mostParts; ++part)
            parts.push_back(
                { name + std::to_string(part) + ".VOB", part == 1 ? information.number(titlesAt) : 0 });
        const auto start = m_starts.find(set);
        placeSet(name + '0', information, start == m_starts.end() ? 0 : start->second, parts);
    }

    struct Part {
        std::string name;
        std::uint32_t sector; ///< counted from the information file; 0 right behind what comes before
    };

    /// The information at `start`, counted from the manager's, or right here where that is 0; then the parts and the backup.
    void placeSet(const std::string &name, const Information &information, std::uint32_t start,
        const std::vector<Part> &parts)
    {
        place(name + ".IFO", start);
        const std::uint32_t own = m_lastStart;
        for (const Part &part : parts)
            place(part.name, part.sector == 0 ? 0 : own + part.sector);
        const std::uint32_t blocks = blocksOf(name + ".BUP");
        const std::uint32_t last = information.number(lastSectorAt);
        const std::uint32_t apart = std::max(m_next, own + backupDistance);
        place(name + ".BUP", last + 1 > blocks && last > 0 ? own + last + 1 - blocks : apart);
    }

    /// Puts a file `sector` blocks behind the manager's information, 0 here. Nothing without such a file.
    void place(const std::string &name, std::uint32_t sector)
    {
        const auto found = m_files.find(name);
        if (found == m_files.end())
            return;
        const std::uint32_t entry = found->second;
        const bool fits = sector == 0 || (sector >= m_next && sector - m_next <= mostGapBlocks);
        if (!fits)
            m_tree.addNote(about(name)
                + " does not lie where the information of the disc says: a player may refuse the disc.");
        if (fits && sector > m_next)
            addGap(sector - m_next);
        m_lastStart = m_next;
        add(entry, m_tree.contents()[m_tree.entries()[entry].first].size);
    }

    void addGap(std::uint32_t blocks)
    {
        m_contents.push_back({ Content::gap, std::uint64_t{ blocks } * blockSize });
        m_next += blocks;
    }

    /// Adds data of its own for a name, also where the file has another one elsewhere: a backup that is a link to what it
    /// backs up is still to lie apart.
    void add(std::uint32_t entry, std::uint64_t size)
    {
        m_numbers[entry] = static_cast<std::uint32_t>(m_contents.size());
        m_contents.push_back({ entry, size });
        m_next += static_cast<std::uint32_t>(blocksFor(size));
        m_done.insert(entry);
    }

    /// Everything else in the order in which it was.
    void placeRest()
    {
        const auto &entries = m_tree.entries();
        std::map<std::uint32_t, std::uint32_t> numbers; // of contents that have several names
        for (std::uint32_t entry = 0; entry < entries.size(); ++entry) {
            if (!S_ISREG(entries[entry].mode) || m_done.contains(entry))
                continue;
            const std::uint32_t content = entries[entry].first;
            const auto [known, isNew] =
                numbers.try_emplace(content, static_cast<std::uint32_t>(m_contents.size()));
            if (isNew)
                m_contents.push_back({ entry, m_tree.contents()[content].size });
            m_numbers[entry] = known->second;
        }
    }

    void check(const std::string &name, const Information &information)
    {
        const std::string file = name + ".IFO";
        if (!m_files.contains(file))
            m_tree.addNote(about(file) + " is missing: players will not play the disc.");
        else if (!information.isValid())
            m_tree.addNote(
                about(file) + " is no information of a video disc: players will not play the disc.");
        else if (!m_files.contains(name + ".BUP"))
            m_tree.addNote(about(name + ".BUP")
                + " is missing: players have nothing to fall back on where the disc is scratched.");
    }

    /// Where the title sets begin, by the table of titles.
    void readTitleTable(const Information &manager)
    {
        const std::uint64_t table = std::uint64_t{ manager.number(titleTableAt) } * blockSize;
        const std::uint32_t titles = table == 0 ? 0 : manager.number(table, 2);
        for (std::uint32_t title = 0; title < titles; ++title) {
            const std::uint64_t row = table + 8 + title * titleRowBytes;
            const unsigned set = manager.number(row + titleSetAt, 1);
            if (set >= 1 && set <= mostTitleSets)
                m_starts.emplace(set, manager.number(row + titleSetSectorAt));
        }
    }

    Fd open(const std::string &name)
    {
        const auto found = m_files.find(name);
        return found == m_files.end() ? Fd() : m_opener.openFile(found->second);
    }

    std::uint32_t blocksOf(const std::string &name) const
    {
        const auto found = m_files.find(name);
        return found == m_files.end() ? 0
                                      : static_cast<std::uint32_t>(blocksFor(
                                          m_tree.contents()[m_tree.entries()[found->second].first].size));
    }

    static std::string about(const std::string &name)
    {
        return quoted(std::string(videoFolder) + '/' + name);
    }

    FolderTree &m_tree;
    TreeOpener m_opener;
    std::uint32_t m_folder = 0;
    std::map<std::string, std::uint32_t, std::less<>> m_files; ///< entries of the video folder by their names
    std::map<unsigned, std::uint32_t> m_starts; ///< of title sets, in blocks from the manager's information
    std::vector<Content> m_contents; ///< in their new order
    std::vector<std::uint32_t> m_numbers; ///< of each entry's content there
    std::set<std::uint32_t> m_done; ///< entries that have their place
    std::uint32_t m_next = 0; ///< where the next file begins, in blocks from the manager's information
    std::uint32_t m_lastStart = 0; ///< where the last one does
};

} // namespace

bool isDvdVideo(const FolderTree &tree)
{
    const auto &entries = tree.entries();
    const Entry &root = entries.front();
    return std::any_of(
        entries.begin() + root.first, entries.begin() + root.first + root.count, [&](const Entry &entry) {
            return S_ISDIR(entry.mode) && tree.name(entry) == std::string_view(videoFolder);
        });
}

void arrangeDvdVideo(FolderTree &tree)
{
    Arrangement(tree).run();
}

} // namespace engine::image
