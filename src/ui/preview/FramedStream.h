// A stream of bare pictures, given to the media library as a file that has times.
#pragma once

#include <QByteArray>

struct mpv_handle;

/// H.264 and H.265 may lie in a file as the encoder put them out: pictures one after the other, with no times
/// and no index. The library plays such a file from its beginning only, and every seek in it ends at its end.
/// So it gets the same pictures with an AVI file's headers and index around them, made while it reads; the
/// file itself is only read. The index tells places in 32 bits, so of a larger file the first 3.75 GiB are played.
namespace framed_stream {

/// The library opens addresses of ours from now on. To be called before it is initialised.
void addTo(mpv_handle *core);

/// Whether streams of this format of the library's can be opened so.
bool isKnown(const QByteArray &format);

/// The address of a file, named by its absolute path in bytes, that holds pictures in a known format,
/// `frameRate` a second. The library itself tells when there is nothing in it that plays.
QByteArray address(const QByteArray &path, const QByteArray &format, double frameRate);

} // namespace framed_stream
