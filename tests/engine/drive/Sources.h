// Reading a source as libburn does.
#pragma once

#include "drive/Source.h"

#include <cstdint>
#include <span>
#include <sys/types.h>
// libburn.h needs off_t and the fixed-width integers to be known.
#include <libburn/libburn.h>

/// Fills `buffer` in one read after the other; the number of bytes until the end, or -1 when a read fails.
inline std::ptrdiff_t readFrom(burn::burn_source *source, std::span<std::byte> buffer)
{
    std::size_t done = 0;
    while (done < buffer.size()) {
        auto *out = reinterpret_cast<unsigned char *>(buffer.data() + done);
        const int got = source->read_xt(source, out, static_cast<int>(buffer.size() - done));
        if (got <= 0)
            return got < 0 ? got : static_cast<std::ptrdiff_t>(done);
        done += static_cast<std::size_t>(got);
    }
    return static_cast<std::ptrdiff_t>(done);
}
