#include "image/IsoPlace.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <sys/types.h>
// libisofs.h needs off_t and the fixed-width integers to be known.
#include <libisofs/libisofs.h>

// The public header keeps this structure from C++ because it calls its first member "class"; the
// layout is part of the interface (libisofs.h, "Representation of file contents").
struct iso_stream {
    IsoStreamIface *iface;
    int refcount;
    void *data;
};

namespace engine::image {

namespace {

// Any number that libisofs does not use for streams of its own.
constexpr unsigned int streamFileSystem = 0xc0;

/// The place of one file: what libisofs allocates as a stream, with our own members behind it.
struct Place {
    iso_stream stream;
    std::uint64_t size;
    std::uint64_t left; ///< bytes that libisofs has not asked for yet
    std::uint32_t content;
};

Place &self(IsoStream *stream)
{
    return *static_cast<Place *>(stream->data);
}

int openStream(IsoStream *stream)
{
    self(stream).left = self(stream).size;
    return 1;
}

int closeStream(IsoStream *)
{
    return 1;
}

off_t sizeOf(IsoStream *stream)
{
    return static_cast<off_t>(self(stream).size);
}

int readStream(IsoStream *stream, void *buffer, size_t size)
{
    Place &place = self(stream);
    size = static_cast<size_t>(std::min<std::uint64_t>(size, place.left));
    if (place.left == place.size) {
        const Marker marker = markerOf(place.content);
        std::memcpy(buffer, marker.data(), std::min(size, marker.size()));
    }
    place.left -= size;
    return static_cast<int>(size);
}

int isRepeatable(IsoStream *)
{
    return 1;
}

// Names of equal numbers share their data.
void identify(IsoStream *stream, unsigned int *fileSystem, dev_t *device, ino_t *inode)
{
    *fileSystem = streamFileSystem;
    *device = 0;
    *inode = self(stream).content;
}

void freeStream(IsoStream *)
{
} // the members lie in the block that libisofs frees

int updateSize(IsoStream *)
{
    return 1;
}

IsoStreamIface streamClass{
    1,
    { 'u', 's', 'e', 'r' },
    openStream,
    closeStream,
    sizeOf,
    readStream,
    isRepeatable,
    identify,
    freeStream,
    updateSize,
    nullptr,
    nullptr,
    nullptr,
};

} // namespace

Marker markerOf(std::uint32_t content)
{
    Marker marker{ 'd', 'a', 't', 'a', ' ', 'o', 'f', ' ', 'f', 'i', 'l', 'e' };
    std::memcpy(marker.data() + 12, &content, sizeof content);
    return marker;
}

iso_stream *newPlace(std::uint32_t content, std::uint64_t size)
{
    auto *place = static_cast<Place *>(std::calloc(1, sizeof(Place)));
    if (!place)
        return nullptr;
    place->stream = { &streamClass, 1, place };
    place->size = size;
    place->content = content;
    return &place->stream;
}

} // namespace engine::image
