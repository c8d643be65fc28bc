// The data of a write as libburn reads them, on a thread of its own. Nothing else makes sources for libburn: what is
// written only has to be readable (engine::Read).
#pragma once

#include "base/Read.h"
#include "base/Result.h"
#include "drive/BlockDigests.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <span>

namespace burn {
struct burn_source;
}

namespace engine::drive {

/// What passes from the sources of one attempt at a write to libburn. libburn's thread tells it, any other asks.
class Supply {
public:
    /// Takes no digests.
    Supply()
        : Supply(BlockDigests(false))
    {
    }
    explicit Supply(BlockDigests digests);

    /// Forgets everything for another attempt; `blocks` are to come.
    void start(std::uint64_t blocks);

    /// `piece` goes out: whole blocks, but at the end, if digests are kept.
    void pass(std::span<const std::byte> piece);

    /// The data cannot be read on. The first reason counts.
    void fail(const Error &why);

    bool failed() const { return !outcome(); }
    /// How the reading went so far: the error says why it failed.
    Result<void> outcome() const;
    /// Bytes that went out.
    std::uint64_t bytes() const;
    /// Takes the digests of what went out.
    BlockDigests takeDigests();

private:
    mutable std::mutex m_mutex;
    BlockDigests m_digests;
    std::uint64_t m_bytes = 0;
    Result<void> m_outcome;
};

/// Gives back a reference to a source.
struct SourceRelease {
    void operator()(burn::burn_source *source) const;
};
using Source = std::unique_ptr<burn::burn_source, SourceRelease>;

/// A source of the first `bytes` bytes that `read` gives, which is called on libburn's thread. `read` lives as long as
/// the source and may be called until awaitUser() has returned. libburn fills up a track whose source fails or ends
/// early with zeros, and asks no more: it is `supply` that notices.
Source newSource(Read read, std::uint64_t bytes, std::shared_ptr<Supply> supply);

/// Waits until the other thread that has used `source` is gone; half a minute at most. libburn calls a drive that it has
/// lost idle while its writing thread still reads on.
void awaitUser(burn::burn_source *source);

/// Zeros without end.
Read zeros();

} // namespace engine::drive
