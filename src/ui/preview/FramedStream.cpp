#include "ui/preview/FramedStream.h"

#include <QByteArrayList>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <mpv/client.h>
#include <mpv/stream_cb.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr const char *protocol = "corvalis-framed";
constexpr std::int64_t mostBytes = 0xf000'0000; // an index tells places in 32 bits

/// What a unit of a stream is to the picture that it belongs to.
struct Unit {
    bool isSlice; ///< holds a part of a picture
    bool opens; ///< the first of a picture, where the one before has a slice already
    bool isEntry; ///< decoding can begin at this picture
};

/// ITU-T H.264 7.3.1, 7.4.1.2.3. `bytes` follow the start code, two at least.
Unit h264Unit(const unsigned char *bytes)
{
    const int type = bytes[0] & 0x1f;
    const bool isSlice = type >= 1 && type <= 5;
    const bool isFirstSlice = isSlice && (bytes[1] & 0x80); // first_mb_in_slice is 0
    const bool precedes = (type >= 6 && type <= 9) || (type >= 14 && type <= 18);
    // Broadcasts have no IDR pictures and repeat the parameters where decoding can begin.
    return { isSlice, isFirstSlice || precedes, type == 5 || type == 7 };
}

/// ITU-T H.265 7.3.1, 7.4.2.4.4. `bytes` follow the start code, three at least.
Unit h265Unit(const unsigned char *bytes)
{
    const int type = (bytes[0] >> 1) & 0x3f;
    const bool isSlice = type < 32;
    const bool isFirstSlice = isSlice && (bytes[2] & 0x80); // first_slice_segment_in_pic_flag
    const bool precedes = (type >= 32 && type <= 35) || type == 39;
    return { isSlice, isFirstSlice || precedes, type >= 16 && type <= 23 };
}

struct Format {
    const char *name; ///< the library's
    const char *fourCharacters; ///< an AVI file's
    Unit (*unit)(const unsigned char *bytes);
};
constexpr std::array formats{
    Format{ "h264", "H264", h264Unit },
    Format{ "hevc", "HEVC", h265Unit },
};

const Format *formatNamed(const QByteArray &name)
{
    const auto found = std::find_if(
        formats.begin(), formats.end(), [&](const Format &format) { return name == format.name; });
    return found == formats.end() ? nullptr : &*found;
}

struct Picture {
    std::int64_t source; ///< where it begins in the stream
    std::int64_t place; ///< where its chunk begins in the AVI file
    std::uint32_t size;
    bool isEntry;
};

/// Finds the pictures of a stream that is handed over piece by piece.
class PictureFinder {
public:
    explicit PictureFinder(const Format &format)
        : m_format(format)
    {
    }

    /// `bytes` begin at `offset` of the stream. What begins in the last `unitStart` bytes is left for the next
    /// piece, which is to begin with them.
    void look(const unsigned char *bytes, std::size_t size, std::int64_t offset)
    {
        for (std::size_t at = 0; at + unitStart <= size; ++at) {
            if (bytes[at] == 0 && bytes[at + 1] == 0 && bytes[at + 2] == 1)
                meet(m_format.unit(bytes + at + 3), offset + static_cast<std::int64_t>(at));
        }
    }

    /// All pictures of a stream that ends at `end`; their places are still to be given.
    std::vector<Picture> finish(std::int64_t end)
    {
        close(end);
        return std::move(m_pictures);
    }

    static constexpr std::size_t unitStart = 6; ///< a start code and what Format::unit reads

private:
    void meet(const Unit &unit, std::int64_t place)
    {
        if (unit.opens && m_hasSlice)
            close(place);
        m_hasSlice = m_hasSlice || unit.isSlice;
        m_isEntry = m_isEntry || unit.isEntry;
    }

    void close(std::int64_t end)
    {
        if (m_hasSlice)
            m_pictures.push_back({ m_begin, 0, static_cast<std::uint32_t>(end - m_begin), m_isEntry });
        m_begin = end;
        m_hasSlice = m_isEntry = false;
    }

    const Format &m_format;
    std::vector<Picture> m_pictures;
    std::int64_t m_begin = 0;
    bool m_hasSlice = false;
    bool m_isEntry = false;
};

void append(QByteArray &bytes, std::uint32_t value)
{
    for (int shift = 0; shift < 32; shift += 8)
        bytes.append(static_cast<char>(value >> shift & 0xff));
}

void append(QByteArray &bytes, const char *name, std::initializer_list<std::uint32_t> values)
{
    bytes.append(name, 4);
    for (const auto value : values)
        append(bytes, value);
}

QByteArray chunkHead(const char *name, std::uint32_t size)
{
    QByteArray head;
    append(head, name, { size });
    return head;
}

/// One open stream: header, a chunk for each picture, index. Used on one thread of the library at a time.
class FramedFile {
public:
    FramedFile(const QByteArray &path, const Format &format, double frameRate)
        : m_file(::open(path.constData(), O_RDONLY | O_CLOEXEC))
    {
        findPictures(format);
        makeIndex();
        makeHeader(format, frameRate);
    }
    FramedFile(const FramedFile &) = delete;
    FramedFile &operator=(const FramedFile &) = delete;
    ~FramedFile()
    {
        if (m_file >= 0)
            ::close(m_file);
    }

    bool isEmpty() const { return m_pictures.empty(); }
    std::int64_t size() const { return m_indexPlace + m_index.size(); }
    void seek(std::int64_t place) { m_place = place; }

    /// Some of the bytes at the present place, 0 at the end, -1 where the stream cannot be read any more.
    std::int64_t read(char *bytes, std::uint64_t most)
    {
        const auto got = readAt(m_place, bytes, static_cast<std::int64_t>(most));
        m_place += std::max<std::int64_t>(got, 0);
        return got;
    }

private:
    static constexpr std::int64_t headerSize = 224;
    static constexpr std::int64_t chunkHeadSize = 8;

    void findPictures(const Format &format)
    {
        PictureFinder finder(format);
        std::vector<unsigned char> piece(1024 * 1024);
        std::int64_t offset = 0;
        std::size_t kept = 0; // of the piece before
        ssize_t got = 0;
        while (m_file >= 0 && offset < mostBytes
            && (got = ::pread(
                    m_file, piece.data() + kept, piece.size() - kept, offset + static_cast<off_t>(kept)))
                > 0) {
            const auto size = kept + static_cast<std::size_t>(got);
            finder.look(piece.data(), size, offset);
            kept = std::min(size, PictureFinder::unitStart - 1);
            std::memmove(piece.data(), piece.data() + size - kept, kept);
            offset += static_cast<std::int64_t>(size - kept);
        }
        m_pictures = finder.finish(offset + static_cast<std::int64_t>(kept));
    }

    void makeIndex()
    {
        std::int64_t place = headerSize;
        QByteArray entries;
        for (auto &picture : m_pictures) {
            picture.place = place;
            const bool isEntry = picture.isEntry || place == headerSize;
            append(entries, "00dc",
                { isEntry ? 0x10U : 0U, static_cast<std::uint32_t>(place - headerSize + 4), picture.size });
            place += chunkHeadSize + picture.size + picture.size % 2;
        }
        m_indexPlace = place;
        m_index = chunkHead("idx1", static_cast<std::uint32_t>(entries.size())) + entries;
    }

    /// The library takes width and height from the pictures.
    void makeHeader(const Format &format, double frameRate)
    {
        constexpr std::uint32_t scale = 1'000'000;
        constexpr std::uint32_t hasIndex = 0x10;
        const auto count = static_cast<std::uint32_t>(m_pictures.size());
        const auto rate = static_cast<std::uint32_t>(std::lround(frameRate * scale));
        std::uint32_t fourCharacters = 0;
        std::memcpy(&fourCharacters, format.fourCharacters, 4);
        QByteArray main;
        append(main, "avih",
            { 56, static_cast<std::uint32_t>(std::lround(scale / frameRate)), 0, 0, hasIndex, count, 0, 1, 0,
                0, 0, 0, 0, 0, 0 });
        QByteArray stream = QByteArray("strl");
        append(stream, "strh", { 56 });
        append(stream, "vids", { fourCharacters, 0, 0, 0, scale, rate, 0, count, 0, ~0U, 0, 0, 0 });
        append(stream, "strf", { 40, 40, 0, 0, 0x0018'0001, fourCharacters, 0, 0, 0, 0, 0 });
        const QByteArray lists =
            QByteArray("hdrl") + main + chunkHead("LIST", static_cast<std::uint32_t>(stream.size())) + stream;
        m_header = chunkHead("RIFF", static_cast<std::uint32_t>(size() - chunkHeadSize)) + "AVI "
            + chunkHead("LIST", static_cast<std::uint32_t>(lists.size())) + lists
            + chunkHead("LIST", static_cast<std::uint32_t>(m_indexPlace - headerSize + 4)) + "movi";
        Q_ASSERT(m_header.size() == headerSize);
    }

    static std::int64_t copy(const QByteArray &from, std::int64_t at, char *bytes, std::int64_t most)
    {
        const auto count = std::min<std::int64_t>(most, from.size() - at);
        std::memcpy(bytes, from.constData() + at, static_cast<std::size_t>(count));
        return count;
    }

    std::int64_t readAt(std::int64_t place, char *bytes, std::int64_t most) const
    {
        if (place < 0 || place >= size())
            return 0;
        if (place < headerSize)
            return copy(m_header, place, bytes, most);
        if (place >= m_indexPlace)
            return copy(m_index, place - m_indexPlace, bytes, most);
        const auto after = std::upper_bound(m_pictures.begin(), m_pictures.end(), place,
            [](std::int64_t at, const Picture &picture) { return at < picture.place; });
        return readChunk(*std::prev(after), place, bytes, most);
    }

    std::int64_t readChunk(const Picture &picture, std::int64_t place, char *bytes, std::int64_t most) const
    {
        const std::int64_t within = place - picture.place;
        if (within < chunkHeadSize)
            return copy(chunkHead("00dc", picture.size), within, bytes, most);
        const std::int64_t left = picture.size - (within - chunkHeadSize);
        if (left == 0)
            return copy(QByteArray(1, '\0'), 0, bytes, most); // chunks begin at even places
        return ::pread(m_file, bytes, static_cast<std::size_t>(std::min(most, left)),
            picture.source + within - chunkHeadSize);
    }

    const int m_file;
    std::vector<Picture> m_pictures;
    QByteArray m_header;
    QByteArray m_index;
    std::int64_t m_indexPlace = headerSize;
    std::int64_t m_place = 0;
};

FramedFile *asFile(void *cookie)
{
    return static_cast<FramedFile *>(cookie);
}

/// Called on a thread of the library.
int openStream(void *, char *address, mpv_stream_cb_info *info)
{
    const auto words = QByteArray(address).mid(static_cast<qsizetype>(std::strlen(protocol)) + 3).split('/');
    const Format *format = formatNamed(words.value(0));
    if (!format)
        return MPV_ERROR_LOADING_FAILED;
    auto file =
        std::make_unique<FramedFile>(QByteArray::fromHex(words.value(2)), *format, words.value(1).toDouble());
    if (file->isEmpty())
        return MPV_ERROR_LOADING_FAILED;
    info->cookie = file.release();
    info->read_fn = [](void *cookie, char *bytes, std::uint64_t most) {
        return asFile(cookie)->read(bytes, most);
    };
    info->seek_fn = [](void *cookie, std::int64_t place) {
        asFile(cookie)->seek(place);
        return place;
    };
    info->size_fn = [](void *cookie) { return asFile(cookie)->size(); };
    info->close_fn = [](void *cookie) { delete asFile(cookie); };
    return 0;
}

} // namespace

void framed_stream::addTo(mpv_handle *core)
{
    if (const int result = mpv_stream_cb_add_ro(core, protocol, nullptr, openStream); result < 0)
        qWarning("media library: streams: %s", mpv_error_string(result));
}

bool framed_stream::isKnown(const QByteArray &format)
{
    return formatNamed(format) != nullptr;
}

QByteArray framed_stream::address(const QByteArray &path, const QByteArray &format, double frameRate)
{
    // The library would take some signs of a name for its own.
    return QByteArray(protocol) + "://" + format + '/' + QByteArray::number(frameRate, 'f', 6) + '/'
        + path.toHex();
}
