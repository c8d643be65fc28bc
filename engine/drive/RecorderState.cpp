#include "drive/RecorderState.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace engine::drive {

namespace {

struct DiscWord {
    DiscState state;
    std::string_view word;
};

constexpr std::array discWords = {
    DiscWord{ DiscState::blank, "blank" },
    DiscWord{ DiscState::writing, "writing" },
    DiscWord{ DiscState::written, "written" },
    DiscWord{ DiscState::spoilt, "spoilt" },
};

constexpr std::string_view noMedium = "none";

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool readKind(std::string_view value, RecorderState &state)
{
    const auto kind = kindOfInsertName(value);
    state.kind = kind.value_or(MediumKind::none);
    return kind || value == noMedium;
}

bool readDisc(std::string_view value, RecorderState &state)
{
    const auto row = std::ranges::find(discWords, value, &DiscWord::word);
    if (row == discWords.end())
        return false;
    state.disc = row->state;
    return true;
}

bool readBlocks(std::string_view value, RecorderState &state)
{
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), state.blocks);
    return error == std::errc{} && end == value.data() + value.size();
}

bool readTray(std::string_view value, RecorderState &state)
{
    state.trayOpen = value == "open";
    return state.trayOpen || value == "closed";
}

/// False when the value of a known key means nothing.
bool readKey(std::string_view key, std::string_view value, RecorderState &state)
{
    if (key == "vendor")
        state.vendor = value;
    else if (key == "product")
        state.product = value;
    else if (key == "revision")
        state.revision = value;
    else if (key == "tray")
        return readTray(value, state);
    else if (key == "kind")
        return readKind(value, state);
    else if (key == "state")
        return readDisc(value, state);
    else if (key == "blocks")
        return readBlocks(value, state);
    return true;
}

std::string_view discWord(DiscState state)
{
    return std::ranges::find(discWords, state, &DiscWord::state)->word;
}

MediumState mediumState(DiscState state)
{
    switch (state) {
    case DiscState::blank:
        return MediumState::blank;
    case DiscState::written:
        return MediumState::closed;
    case DiscState::writing:
    case DiscState::spoilt:
        break;
    }
    return MediumState::spoilt;
}

} // namespace

Result<RecorderState> parseRecorder(std::string_view text)
{
    RecorderState state;
    bool hasKind = false;
    bool hasDisc = false;
    bool ours = true; // keys before the first section are read as well
    for (std::size_t number = 1; !text.empty(); ++number) {
        const auto end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.empty() || line.front() == '#' || line.front() == ';')
            continue;
        if (line.front() == '[' && line.back() == ']') {
            ours = line == "[recorder]" || line == "[medium]";
            continue;
        }
        const auto equals = line.find('=');
        const std::string_view key = trimmed(line.substr(0, equals));
        if (equals == std::string_view::npos
            || (ours && !readKey(key, trimmed(line.substr(equals + 1)), state)))
            return Error{ Exit::failed, "cannot be understood in line " + std::to_string(number) };
        hasKind = hasKind || (ours && key == "kind");
        hasDisc = hasDisc || (ours && key == "state");
    }
    // A text that was cut off must not make a blank of a disc that was written.
    if (!hasKind)
        return Error{ Exit::failed, "does not tell the kind of the disc" };
    if (!hasDisc && state.kind != MediumKind::none)
        return Error{ Exit::failed, "does not tell the state of the disc" };
    return state;
}

std::string recorderText(const RecorderState &state)
{
    const auto &facts = factsOf(state.kind);
    return "[recorder]\nvendor=" + state.vendor + "\nproduct=" + state.product
        + "\nrevision=" + state.revision + "\ntray=" + (state.trayOpen ? "open" : "closed")
        + "\n\n[medium]\nkind=" + (facts.insertName ? facts.insertName : std::string(noMedium))
        + "\nstate=" + std::string(discWord(state.disc)) + "\nblocks=" + std::to_string(state.blocks) + '\n';
}

Medium mediumOf(const RecorderState &state)
{
    if (state.trayOpen || state.kind == MediumKind::none)
        return {};
    const std::uint64_t capacity = factsOf(state.kind).virtualBlocks;
    const std::uint64_t used = state.disc == DiscState::blank ? 0 : state.blocks;
    return engine::mediumOf(state.kind, mediumState(state.disc), capacity, used);
}

} // namespace engine::drive
