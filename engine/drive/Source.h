// Sources of data for libburn, which reads them on its own thread.
#pragma once

#include "base/Result.h"
#include "drive/BlockDigests.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <utility>
#include <vector>

namespace burn {
struct burn_source;
}

namespace engine::drive {

/// Gives back a reference to a source.
struct SourceRelease {
    void operator()(burn::burn_source *source) const;
};
using Source = std::unique_ptr<burn::burn_source, SourceRelease>;

/// Fills a buffer and returns the number of bytes, which is less than its size only at the end, or -1. Runs
/// on libburn's thread.
using Fill = std::function<std::ptrdiff_t(std::span<std::byte>)>;

/// A source of `bytes` bytes that `fill` gives. `fill` lives as long as the source.
Source newSource(std::uint64_t bytes, Fill fill);

/// Waits until the other thread that has used `source`, one of newSource(), is gone; half a minute at most. libburn
/// calls a drive that it has lost idle while its writing thread still reads on.
void awaitUser(burn::burn_source *source);

/// Reads from `source` until `buffer` is full or the source ends; -1 when it fails.
std::ptrdiff_t readSource(burn::burn_source *source, std::span<std::byte> buffer);

/// What went through a tap. The writer thread sets it, the controlling thread asks for it.
struct TapState {
    explicit TapState(BlockDigests taken = BlockDigests())
        : digests(std::move(taken))
    {
    }

    BlockDigests digests;
    std::atomic<std::uint64_t> bytes = 0; ///< released after each digest is in place
    std::atomic<bool> ranDry = false; ///< the source failed, or ended before its last block
};

/// A source that passes on the `blocks` blocks of `inner` and notes each in `state`. libburn fills up a track
/// whose source ends early with zeros, and asks no more: the tap is what notices. `inner` is borrowed.
Source tap(burn::burn_source *inner, std::uint64_t blocks, std::shared_ptr<TapState> state);

/// The sources one after the other.
Source chain(std::vector<Source> parts, std::uint64_t bytes);

/// `bytes` zeros.
Source zeros(std::uint64_t bytes);

} // namespace engine::drive
