// WAVE files, whole in memory and read in pieces as short as a byte.
#include "Fuzz.h"
#include "audio/Wave.h"

#include <span>

using namespace engine::audio;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::span<const std::byte> file(reinterpret_cast<const std::byte *>(data), size);
    const auto whole = parseWave(file);
    if (whole) {
        HOLDS(whole.value().size > 0 && whole.value().size % 4 == 0);
        HOLDS(whole.value().offset >= 20 && whole.value().offset + whole.value().size <= size);
    } else {
        HOLDS(!whole.error().message.empty());
    }

    const engine::ReadAt readAt = engine::readAtOf(file);
    const auto again = parseWave(readAt, size);
    HOLDS(static_cast<bool>(again) == static_cast<bool>(whole));
    HOLDS(
        !whole || (again.value().offset == whole.value().offset && again.value().size == whole.value().size));

    for (const std::string &text : { waveText(readAt, size).title, waveText(readAt, size * 2 + 8).album }) {
        HOLDS(text.size() <= 3000 && text.find('\n') == std::string::npos);
    }

    // A file that turned out shorter than its size was said to be: any answer, as long as it is one.
    static_cast<void>(parseWave(readAt, std::uint64_t(size) * 2 + 8));
    return 0;
}
