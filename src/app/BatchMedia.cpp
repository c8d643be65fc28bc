#include "app/BatchMedia.h"

#include "compilation/MediaReport.h"
#include "runner/ActivityLog.h"
#include "runner/ToolRun.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using compilation::Refusal;
using compilation::Wanted;
using ListKind = AppDelegate::ListKind;

namespace batch {
namespace {

/// Where translators find the texts of this file.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(BatchMedia)
};

QString objectionToFound(const compilation::Found &found, const QStringList &accepted)
{
    if (!found.unreadable.isEmpty()) {
        return Texts::tr("%1: the name is not valid UTF-8 text. Rename the file and try again.")
            .arg(found.unreadable.first().toDisplayString());
    }
    if (found.refused.isEmpty())
        return {};
    const auto &[refusal, url, place] = found.refused.first();
    const QString name = url.isLocalFile() ? url.toLocalFile() : url.toDisplayString();
    if (refusal == Refusal::Missing)
        return Texts::tr("%1: there is no such file or folder.").arg(name);
    return Texts::tr("%1: %2").arg(name, compilation::sentence(refusal, accepted));
}

bool holds(ListKind kind, const QString &path)
{
    const Surroundings around = Surroundings::ofThisMachine(nullptr);
    ActivityLog log; // of this look alone: the run that adds the file has its own
    runner::ToolRun probe(around.resources + u"/ffmpeg"_s, { u"-i"_s, path }, &log);
    const auto report = compilation::mediaReport(probe.capture(around.probeLimit), path);
    return kind == ListKind::Audio ? report.hasSound : report.hasFilm;
}

} // namespace

QString objectionToMedia(ListKind kind, const QList<Wanted> &wanted)
{
    const QStringList &accepted = AppDelegate::acceptedExtensions(kind);
    const compilation::Found found = compilation::filesOf(wanted, accepted, false);
    if (const QString objection = objectionToFound(found, accepted); !objection.isEmpty())
        return objection;
    const QString sentence = kind == ListKind::Audio
        ? Texts::tr(
            "%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no sound in it.")
        : Texts::tr(
            "%1 is not a file that this disc can take. Accepted are: %2. ffmpeg finds no film in it.");
    for (const Wanted &file : found.files) {
        const QString path = file.url.toLocalFile();
        if (file.way == Wanted::Way::Probed && !holds(kind, path))
            return sentence.arg(path, accepted.join(u", "_s));
    }
    return {};
}

} // namespace batch
