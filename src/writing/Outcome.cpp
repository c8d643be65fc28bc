#include "writing/Outcome.h"

namespace writing {

int Outcome::exitStatus() const
{
    switch (how) {
    case How::Complete:
        return 0;
    case How::Incomplete:
        return 3;
    case How::NotDone:
    case How::Stopped:
        break;
    }
    return 1;
}

QStringList Outcome::lines(qsizetype most) const
{
    QStringList lines;
    for (const QString &line : { made, reason }) {
        if (!line.isEmpty())
            lines.append(line);
    }
    const QStringList things = leftOut + changed;
    lines += things.first(qMin(most, things.size()));
    if (things.size() > most)
        lines.append(tr("and %Ln more", nullptr, static_cast<int>(things.size() - most)));
    return lines;
}

QString Outcome::headingOf(How how, Work::Result result)
{
    using Result = Work::Result;
    switch (how) {
    case How::Complete:
        return tr("Operation complete");
    case How::Stopped:
        return tr("Stopped");
    case How::Incomplete:
        switch (result) {
        case Result::Disc:
            return tr("The disc was written, but some things are not on it");
        case Result::Image:
            return tr("The image was made, but some things are not in it");
        case Result::BlankDisc:
            return tr("The disc was erased, but not everything went well");
        }
        break;
    case How::NotDone:
        switch (result) {
        case Result::Disc:
            return tr("The disc was not written");
        case Result::Image:
            return tr("The image was not made");
        case Result::BlankDisc:
            return tr("The disc was not erased");
        }
        break;
    }
    return {};
}

} // namespace writing
