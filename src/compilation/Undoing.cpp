// The lists as one value: taken, shown again, and gone back to.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "compilation/SavedLists.h"
#include "ui_MainWindow.h"

#include <algorithm>
#include <utility>

Compilation AppDelegate::present() const
{
    const int tab = selectedTable() ? ui->tabviewMain->currentIndex() : m_lists->tab;
    return { tab, variantOf(tab), arrayMediaFiles, arrayDataFolders, s_Disc_Name, m_lists->path };
}

void AppDelegate::show(const Compilation &compilation)
{
    const Compilation saved = compilation.listPath == m_lists->path ? m_lists->saved : Compilation();
    beginKind(*projects::byVariant(compilation.tab, compilation.variant));
    m_lists->path = compilation.listPath;
    m_lists->saved = saved;
    arrayMediaFiles = compilation.media;
    arrayDataFolders = compilation.folders;
    setDiscName(compilation.discName);
    refreshTable(selectedTable());
    focusList();
}

void AppDelegate::listsChanged()
{
    // One action may change the lists several times before it is done; that is one step.
    if (!std::exchange(m_lists->noting, true))
        QMetaObject::invokeMethod(this, &AppDelegate::noteLists, Qt::QueuedConnection);
}

void AppDelegate::noteLists()
{
    m_lists->noting = false;
    if (m_lists->opening)
        return;
    if (selectedTable()) {
        m_lists->tab = ui->tabviewMain->currentIndex();
        m_lists->history.note(present());
    }
    const auto isMissing = [](const auto &record) { return !record.whyNotMeasured.isEmpty(); };
    const bool missing =
        std::ranges::any_of(arrayMediaFiles, isMissing) || std::ranges::any_of(arrayDataFolders, isMissing);
    ui->menuitemUndo->setEnabled(m_lists->history.canUndo());
    ui->menuitemRedo->setEnabled(m_lists->history.canRedo());
    ui->menuitemFindMissing->setEnabled(missing);
}

void AppDelegate::OnMenuUndo()
{
    noteLists();
    if (m_lists->history.canUndo())
        show(m_lists->history.undo());
    noteLists();
}

void AppDelegate::OnMenuRedo()
{
    noteLists();
    if (m_lists->history.canRedo())
        show(m_lists->history.redo());
    noteLists();
}
