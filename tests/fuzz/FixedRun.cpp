// FixedRun MUTATIONS FOLDER: gives a harness every file of the folder, the empty input, and so many mutations
// of them: always the same ones, so that a failure can be repeated. Where the harness ends the program, the
// input lies in the file "failed-input" of the working folder.
#include "Fuzz.h"

#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Random = std::mt19937;

constexpr Random::result_type seed = 20;
constexpr std::size_t longest = 1 << 16;

std::size_t below(Random &random, std::size_t limit)
{
    return limit == 0 ? 0 : random() % limit;
}

/// The places and values at which parsers are known to stumble.
std::uint8_t interestingByte(Random &random)
{
    static constexpr std::uint8_t values[] = { 0, 1, 0x7f, 0x80, 0xff, '\n', '\r', ' ', ':', '=', '-', '0',
        '9', 0xc3, 0xed };
    return values[below(random, std::size(values))];
}

void mutateOnce(Bytes &bytes, const std::vector<Bytes> &corpus, Random &random)
{
    const std::size_t at = below(random, bytes.size() + 1);
    const auto place = bytes.begin() + static_cast<std::ptrdiff_t>(at);
    const std::size_t room = bytes.size() - at;
    switch (below(random, 7)) {
    case 0:
        if (room > 0)
            bytes[at] ^= static_cast<std::uint8_t>(1U << below(random, 8));
        break;
    case 1:
        if (room > 0)
            bytes[at] = interestingByte(random);
        break;
    case 2:
        bytes.insert(place, interestingByte(random));
        break;
    case 3:
        bytes.erase(
            place, place + static_cast<std::ptrdiff_t>(below(random, std::min<std::size_t>(room, 16) + 1)));
        break;
    case 4:
        bytes.resize(at);
        break;
    case 5: {
        const Bytes &other = corpus[below(random, corpus.size())];
        const std::size_t from = below(random, other.size());
        const std::size_t count = std::min<std::size_t>(below(random, 64), other.size() - from);
        const auto begin = other.begin() + static_cast<std::ptrdiff_t>(from);
        bytes.insert(place, begin, begin + static_cast<std::ptrdiff_t>(count));
        break;
    }
    default: {
        const Bytes piece(
            place, place + static_cast<std::ptrdiff_t>(below(random, std::min<std::size_t>(room, 32) + 1)));
        bytes.insert(bytes.end(), piece.begin(), piece.end());
    }
    }
    bytes.resize(std::min(bytes.size(), longest));
}

std::vector<Bytes> readCorpus(const std::filesystem::path &folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    std::vector<Bytes> corpus;
    for (const auto &file : files) {
        std::ifstream stream(file, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
    return corpus;
}

const Bytes *current = nullptr;

/// Only calls that are allowed in a signal handler.
void keepInput(int kind)
{
    const int file = open("failed-input", O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0 || write(file, current->data(), current->size()) < 0)
        _exit(1);
    std::signal(kind, SIG_DFL);
    raise(kind);
}

/// The sanitizers' own handlers tell more; they end in SIGABRT.
void keepInputOnFailure()
{
    for (const int kind : { SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL }) {
        struct sigaction present = {};
        if (sigaction(kind, nullptr, &present) == 0 && present.sa_handler == SIG_DFL)
            std::signal(kind, keepInput);
    }
}

/// Hands over an exact copy on the heap, so that AddressSanitizer sees a read past the end.
void run(const Bytes &input)
{
    const Bytes exact(input);
    current = &exact;
    LLVMFuzzerTestOneInput(exact.data(), exact.size());
}

} // namespace

int main(int count, char **values)
{
    if (count != 3) {
        std::cerr << "usage: " << values[0] << " MUTATIONS FOLDER\n";
        return 2;
    }
    const std::vector<Bytes> corpus = readCorpus(values[2]);
    if (corpus.empty()) {
        std::cerr << values[2] << " holds no input\n";
        return 1;
    }
    keepInputOnFailure();
    run({});
    for (const Bytes &input : corpus)
        run(input);
    Random random(seed);
    const int mutations = std::stoi(values[1]);
    for (int i = 0; i < mutations; ++i) {
        Bytes input = corpus[below(random, corpus.size())];
        for (std::size_t steps = below(random, 6); steps < 6; ++steps)
            mutateOnce(input, corpus, random);
        run(input);
    }
    std::cout << corpus.size() << " inputs and " << mutations << " mutations\n";
    return 0;
}
