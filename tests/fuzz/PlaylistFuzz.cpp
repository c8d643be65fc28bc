// Playlists of every form, where their entries may lie, and the transcoder's report about what is in a file.
#include "Fuzz.h"
#include "compilation/MediaReport.h"
#include "compilation/Playlist.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    for (const char *name : { "a.m3u", "a.m3u8", "a.pls", "a.xspf" }) {
        const compilation::Playlist playlist = compilation::parsePlaylist(QLatin1String(name), content);
        HOLDS(playlist.entries.size() <= compilation::mostPlaylistEntries);
        HOLDS(!playlist.isBroken || playlist.entries.isEmpty());
        for (const QString &entry : playlist.entries) {
            const QList<QUrl> places =
                compilation::placesOf(entry, playlist.areAddresses, QStringLiteral("/music"));
            HOLDS(!places.isEmpty());
            HOLDS(!places.first().isLocalFile() || places.first().host().isEmpty()
                || places.first().host() != QLatin1String("localhost"));
        }
    }
    const compilation::MediaReport report = compilation::mediaReport(content, QStringLiteral("/a"));
    HOLDS(!report.names.title.contains(QLatin1Char('\n')));
    HOLDS(!report.hasSound || content.contains("Audio: "));
    HOLDS(!report.hasFilm || content.contains("Video: "));
    return 0;
}
