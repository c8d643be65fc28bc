#include "compilation/DiscRoom.h"

#include "compilation/GaugeText.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace compilation {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DiscRoom)
};

constexpr qint64 blockBytes = 2048, framesPerSecond = 75; // ECMA-130, 14: a block of data is a frame of sound
constexpr qint64 mp3BytesPerSecond = 192'000 / 8; // as the files are converted

/// How a list becomes a disc of its kind.
struct Row {
    Page page;
    qint64 kind;
    QLatin1StringView family; ///< a disc of another one cannot be written with it
    bool seconds; ///< the measure that a person is told
    qint64
        plainBlocks; ///< of the plain disc of which capacity() tells; 0: the amount can be reckoned exactly
};
constexpr std::array rows{
    Row{ Page::Audio, 0, QLatin1StringView("CD"), true, 0 },
    Row{ Page::Audio, 1, QLatin1StringView("CD"), false, 0 },
    Row{ Page::Audio, 2, QLatin1StringView("DVD"), false, 0 },
    Row{ Page::Video, 0, QLatin1StringView("DVD"), true, 2'298'496 }, // ECMA-359, 12 cm
    Row{ Page::Video, 1, QLatin1StringView("BD"), true, 12'219'392 }, // BD-R, single layer
    Row{ Page::Data, 0, QLatin1StringView("CD"), false, 0 },
    Row{ Page::Data, 1, QLatin1StringView("DVD"), false, 0 },
    Row{ Page::Data, 2, QLatin1StringView("BD"), false, 0 },
};

/// What the disc holds and what the list needs, in seconds or bytes.
struct Amounts {
    qint64 holds, needs;
};

Amounts amounts(const Row &row, qint64 blocks, qint64 total)
{
    if (row.plainBlocks > 0)
        return { blocks * capacity(row.page, row.kind) / row.plainBlocks, total };
    if (row.seconds)
        return { blocks / framesPerSecond, total };
    const qint64 unit = row.page == Page::Data ? 1024 : mp3BytesPerSecond;
    return { blocks * blockBytes, total * unit };
}

QString amountText(const Row &row, qint64 amount, const QLocale &locale)
{
    return row.seconds ? timeText(amount, locale) : sizeText(amount, locale);
}

QString holdsText(const Row &row, const QString &type, const QString &amount)
{
    return row.plainBlocks > 0 ? Texts::tr("The %1 in the drive holds about %2.").arg(type, amount)
                               : Texts::tr("The %1 in the drive holds %2.").arg(type, amount);
}

/// Whether the list fits. A disc needs a little room for its own tables too.
QString verdict(const Row &row, const Amounts &amounts, const QLocale &locale)
{
    if (amounts.needs == 0)
        return {};
    if (amounts.needs > amounts.holds) {
        const QString missing = amountText(row, amounts.needs - amounts.holds, locale);
        return row.seconds ? Texts::tr("The list is too long by %1.").arg(missing)
                           : Texts::tr("The list is too large by %1.").arg(missing);
    }
    const bool hardly = amounts.needs * 100 > amounts.holds * 99;
    return hardly ? Texts::tr("The list just about fits.") : Texts::tr("The list fits.");
}

qint64 blocksOf(const QString &status, const QString &label)
{
    const QRegularExpression line(
        u"^ *%1:.*blocks: +([0-9]{1,12}) "_s.arg(label), QRegularExpression::MultilineOption);
    const auto match = line.match(status);
    return match.hasMatch() ? match.captured(1).toLongLong() : -1;
}

} // namespace

std::optional<DiscRoom> readDiscRoom(const QString &status)
{
    static const QRegularExpression line(
        u"^ *Type: +(\\S.{0,30}?) *(?: Name:.*)?$"_s, QRegularExpression::MultilineOption);
    const auto match = line.match(status);
    if (!match.hasMatch() || status.contains("No Media Inserted"_L1))
        return std::nullopt;
    const bool now = status.contains("overwritable"_L1);
    const qint64 free = blocksOf(status, u"Space Free"_s);
    return DiscRoom{ match.captured(1), now || status.contains("erasable"_L1), now ? free : -1 };
}

QString discRoomText(const DiscRoom &room, Page page, qint64 kind, qint64 total, const QLocale &locale)
{
    const auto row = std::ranges::find_if(rows,
        [page, kind](const Row &candidate) { return candidate.page == page && candidate.kind == kind; });
    if (row == rows.end())
        return {};
    if (!room.writable)
        return Texts::tr("The %1 in the drive cannot be written.").arg(room.type);
    if (!room.type.contains(row->family))
        return Texts::tr("In the drive is a %1; this list needs a %2.").arg(room.type, row->family);
    if (room.blocks < 0)
        return Texts::tr("The %1 in the drive is erased before it is written.").arg(room.type);
    const Amounts found = amounts(*row, room.blocks, total);
    const QString holds = holdsText(*row, room.type, amountText(*row, found.holds, locale));
    const QString fits = verdict(*row, found, locale);
    return fits.isEmpty() ? holds : holds + u' ' + fits;
}

} // namespace compilation
