#include "desktop/Opening.h"

#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "desktop/OpenedFiles.h"
#include "desktop/Raising.h"
#include "desktop/WaitingNote.h"
#include "desktop/Window_Opened_Image.h"
#include "kit/SheetStage.h"
#include "ui_MainWindow.h"

#include <QTimer>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace desktop {
namespace {

constexpr int imageTab = 3;

/// The items of the View menu that show the tabs.
using ShowTab = void (AppDelegate::*)();
constexpr ShowTab showTabs[] = { &AppDelegate::OnMenuTabAudio, &AppDelegate::OnMenuTabVideo,
    &AppDelegate::OnMenuTabData, &AppDelegate::OnMenuTabISO };

QString namesOf(const QList<QUrl> &urls)
{
    constexpr qsizetype most = 10;
    constexpr qsizetype longest = 60;
    QStringList names;
    for (const QUrl &url : urls.first(qMin(most, urls.size())))
        names.append(
            (url.isLocalFile() ? url.toLocalFile() : url.toDisplayString()).simplified().right(longest));
    if (urls.size() > most)
        names.append(Opening::tr("and %n more", nullptr, static_cast<int>(urls.size() - most)));
    return names.join(u'\n');
}

} // namespace

struct Opening::ActionRow {
    QString id;
    const char *title;
    void (Opening::*start)();
};

const QList<Opening::ActionRow> &Opening::rows()
{
    static const QList<ActionRow> all{
        { u"new-audio-cd"_s, QT_TR_NOOP("New Audio CD"), &Opening::newAudioDisc },
        { u"new-data-disc"_s, QT_TR_NOOP("New Data Disc"), &Opening::newDataDisc },
        { u"write-image"_s, QT_TR_NOOP("Write an Image"), &Opening::writeImage },
        { u"copy-disc"_s, QT_TR_NOOP("Copy a Disc"), &Opening::copyDisc },
    };
    return all;
}

const Opening::ActionRow *Opening::rowOf(const QString &action)
{
    const auto row = std::ranges::find(rows(), action, &ActionRow::id);
    return row == rows().end() ? nullptr : &*row;
}

QStringList Opening::actions()
{
    QStringList ids;
    for (const ActionRow &row : rows())
        ids.append(row.id);
    return ids;
}

Opening::Opening(AppDelegate *controller)
    : m_controller(controller)
{
    connect(controller->window->stage(), &SheetStage::occupiedChanged, this, &Opening::takeNext,
        Qt::QueuedConnection);
}

bool Opening::open(const Request &request)
{
    if (m_waiting.size() >= mostWaiting)
        return false;
    m_waiting.append(request);
    QTimer::singleShot(0, this, &Opening::takeNext);
    return true;
}

void Opening::raiseWindow(const QString &token)
{
    raise(m_controller->window, token);
}

void Opening::takeNext()
{
    const bool free =
        !m_busy && !m_controller->isJobPending() && !m_controller->window->stage()->isOccupied();
    if (!free || m_waiting.isEmpty())
        return tellWaiting();
    const Request request = m_waiting.takeFirst();
    tellWaiting();
    m_busy = true;
    carryOut(request);
    m_busy = false;
    QTimer::singleShot(0, this, &Opening::takeNext);
}

void Opening::carryOut(const Request &request)
{
    if (const ActionRow *row = rowOf(request.action))
        (this->*row->start)();
    if (!request.files.isEmpty())
        openFiles(request.files);
}

void Opening::openFiles(const QList<QUrl> &files)
{
    const OpenedFiles opened = sortedOut(files);
    switch (opened.destination) {
    case Destination::None:
        break;
    case Destination::List:
        m_controller->openList(opened.taken.first().toLocalFile());
        break;
    case Destination::Image:
        askToWrite(opened.taken.first().toLocalFile());
        break;
    case Destination::Audio:
        return addTo(0, opened.taken);
    case Destination::Video:
        return addTo(1, opened.taken);
    case Destination::Data:
        return addTo(2, opened.taken);
    }
    if (opened.left.isEmpty())
        return;
    m_controller->alert(tr("Not everything can be opened"),
        (opened.destination == Destination::None
                ? tr("Files of this computer can be opened: music, films, folders, one disc image or one "
                     "saved list.")
                : tr("One disc image or one saved list can be opened at a time."))
            + u"\n\n"_s + namesOf(opened.left));
}

void Opening::addTo(int tab, const QList<QUrl> &files)
{
    if (showTab(tab))
        m_controller->addDroppedFiles(files, -1);
}

void Opening::askToWrite(const QString &image)
{
    showTab(imageTab);
    auto *sheet = new Window_Opened_Image(m_controller->window->stage(), image);
    connect(sheet, &Window_Opened_Image::confirmed, m_controller, [this, sheet, image] {
        sheet->endSheet();
        m_controller->burnImage(image);
    });
    sheet->beginSheet();
}

bool Opening::showTab(int index)
{
    if (m_controller->ui->tabviewMain->currentIndex() == index)
        return true;
    if (index != imageTab && !m_controller->mayReplaceList())
        return false;
    (m_controller->*showTabs[index])();
    return true;
}

void Opening::newAudioDisc()
{
    if (!m_controller->mayReplaceList())
        return;
    m_controller->OnMenuTabAudio();
    m_controller->OnActionAudioCD();
}

void Opening::newDataDisc()
{
    if (m_controller->mayReplaceList())
        m_controller->OnMenuTabData();
}

void Opening::writeImage()
{
    showTab(imageTab);
    m_controller->OnActionISOBurn();
}

void Opening::copyDisc()
{
    m_controller->OnActionAudioCopyDisc(); // the same on every tab
}

QString Opening::nameOf(const Request &request)
{
    if (const ActionRow *row = rowOf(request.action))
        return tr(row->title);
    return request.files.size() == 1 ? request.files.first().fileName().simplified()
                                     : tr("%n file(s)", nullptr, static_cast<int>(request.files.size()));
}

void Opening::tellWaiting()
{
    if (m_waiting.isEmpty()) {
        delete m_note;
        return;
    }
    QStringList names;
    for (const Request &request : std::as_const(m_waiting))
        names.append(nameOf(request));
    if (!m_note)
        m_note = new WaitingNote(m_controller->window->stage());
    m_note->setText(m_controller->isJobPending()
            ? tr("Opened when the job has ended: %1").arg(names.join(u", "_s))
            : tr("Opened when this is answered: %1").arg(names.join(u", "_s)));
}

} // namespace desktop
