// Project types, mode buttons, tabs, and what the burn button starts.
#include "app/AppDelegate.h"
#include "app/MainWindow.h"
#include "app/Window_New_Disc.h"
#include "ui_MainWindow.h"

using namespace Qt::StringLiterals;

namespace {

/// What a project type has in the window and in the controller, in the order of its codes.
struct ModeRow {
    BarButton *Ui::MainWindow::*button;
    void (AppDelegate::*pipeline)();
};
const std::array<ModeRow, 8> modes{ {
    { &Ui::MainWindow::btnAudioCD, &AppDelegate::Burn_Audio_CD },
    { &Ui::MainWindow::btnMP3CD, &AppDelegate::Burn_Audio_MP3_CD },
    { &Ui::MainWindow::btnMP3DVD, &AppDelegate::Burn_Audio_MP3_DVD },
    { &Ui::MainWindow::btnVideoDVD, &AppDelegate::Burn_Video_DVD },
    { &Ui::MainWindow::btnVideoBluray, &AppDelegate::Burn_Video_Bluray },
    { &Ui::MainWindow::btnDataCD, &AppDelegate::Burn_Data_CD },
    { &Ui::MainWindow::btnDataDVD, &AppDelegate::Burn_Data_DVD },
    { &Ui::MainWindow::btnDataBluray, &AppDelegate::Burn_Data_Bluray },
} };

/// What a list tab has, by its index.
struct ListTabRow {
    qint64 AppDelegate::*variant;
    void (AppDelegate::*refresh)();
};
const std::array<ListTabRow, 3> listTabs{ {
    { &AppDelegate::i_Audio_Type, &AppDelegate::refreshTableAudioFiles },
    { &AppDelegate::i_Video_Type, &AppDelegate::refreshTableVideoFiles },
    { &AppDelegate::i_Data_Type, &AppDelegate::refreshTableDataFolders },
} };

const ListTabRow &listTab(int index)
{
    return listTabs.at(static_cast<std::size_t>(index));
}

} // namespace

void AppDelegate::setModeDefaults()
{
    i_Audio_Type = i_Video_Type = i_Data_Type = 0;
    for (const int code : { 1, 4, 6 })
        markVariant(code);
    ui->tabviewMain->setCurrentIndex(0);
    QStringList titles;
    for (const ProjectType &type : projects::all)
        titles.append(type.shownBurnTitle());
    ui->btnBurn->setPossibleTexts(titles); // the gauge beside it keeps its width
    ui->btnBurn->setText(projects::byCode(1)->shownBurnTitle());
}

void AppDelegate::ShowNewDiscWindow()
{
    Show_Window_New_Disc();
}

void AppDelegate::Show_Window_New_Disc()
{
    delete windowNewDisc;
    windowNewDisc = new Window_New_Disc(
        window->stage(), i_Type_of_New_Disc, !arrayMediaFiles.isEmpty() || !arrayDataFolders.isEmpty());
    const auto closeWith = [this](std::optional<int> code) {
        i_Type_of_New_Disc = code.value_or(i_Type_of_New_Disc);
        Close_Window_New_Disc();
    };
    connect(windowNewDisc, &Window_New_Disc::confirmed, this, closeWith);
    connect(
        windowNewDisc, &Window_New_Disc::dismissed, this, [closeWith] { closeWith(projects::cancelled); });
    windowNewDisc->beginSheet();
}

void AppDelegate::Close_Window_New_Disc()
{
    if (windowNewDisc)
        windowNewDisc->endSheet();
    windowNewDisc = nullptr;
    if (i_Type_of_New_Disc == projects::cancelled) {
        i_Type_of_New_Disc = 1;
        return;
    }
    setDiscName({});
    if (const ProjectType *type = projects::byCode(i_Type_of_New_Disc))
        beginKind(*type);
    else
        emptyAllLists();
}

void AppDelegate::beginKind(const ProjectType &type)
{
    this->*listTab(type.tab).variant = type.variant;
    emptyAllLists();
    ui->tabviewMain->setCurrentIndex(type.tab);
    markVariant(type.code);
    ui->btnBurn->setText(type.shownBurnTitle());
    offerDiscName();
}

qint64 AppDelegate::variantOf(int tab) const
{
    return this->*listTab(tab).variant;
}

void AppDelegate::emptyAllLists()
{
    forgetListFile();
    // The name goes with what it was typed for. One that stands there before anything is listed is for what comes.
    if (!arrayMediaFiles.isEmpty() || !arrayDataFolders.isEmpty())
        setDiscName({});
    arrayDataFolders.clear();
    refreshTableDataFolders();
    arrayMediaFiles.clear();
    refreshTableVideoFiles();
    refreshTableAudioFiles();
    forgetSorting();
}

void AppDelegate::markVariant(int code)
{
    const ProjectType *chosen = projects::byCode(code);
    for (const ProjectType &type : projects::all) {
        if (type.tab == chosen->tab)
            (ui->*modes.at(static_cast<std::size_t>(type.code - 1)).button)->setBordered(type.code == code);
    }
}

void AppDelegate::chooseVariant(int code)
{
    const ProjectType *type = projects::byCode(code);
    this->*listTab(type->tab).variant = type->variant;
    markVariant(code);
    ui->btnBurn->setText(type->shownBurnTitle());
    offerDiscName();
    (this->*listTab(type->tab).refresh)();
}

void AppDelegate::OnActionAudioCD()
{
    chooseVariant(1);
}

void AppDelegate::OnActionMP3CD()
{
    chooseVariant(2);
}

void AppDelegate::OnActionMP3DVD()
{
    chooseVariant(3);
}

void AppDelegate::OnActionVideoDVD()
{
    chooseVariant(4);
}

void AppDelegate::OnActionVideoBluray()
{
    chooseVariant(5);
}

void AppDelegate::OnActionDataCD()
{
    chooseVariant(6);
}

void AppDelegate::OnActionDataDVD()
{
    chooseVariant(7);
}

void AppDelegate::OnActionDataBluray()
{
    chooseVariant(8);
}

QString AppDelegate::selectedPage() const
{
    return ui->tabviewMain->currentWidget()->property("identifier").toString();
}

void AppDelegate::tabView_didSelectTabViewItem(const QString &identifier)
{
    const QStringList identifiers{ u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s };
    const qsizetype index = identifiers.indexOf(identifier);
    if (index >= 0)
        didSelectTab(static_cast<int>(index));
}

void AppDelegate::didSelectTab(int index)
{
    const bool isList = index < static_cast<int>(listTabs.size());
    ui->customviewSpaceOccupied->setVisible(isList);
    ui->customviewButtonBurn->setVisible(isList);
    if (isList) {
        emptyAllLists();
        if (const ProjectType *type = projects::byVariant(index, this->*listTab(index).variant))
            ui->btnBurn->setText(type->shownBurnTitle());
    }
    QAction *const items[] = { ui->submenuItemTabAudio, ui->submenuItemTabVideo, ui->submenuItemTabData,
        ui->submenuItemTabISO, ui->submenuItemTabTools };
    for (int i = 0; i < 5; ++i)
        items[i]->setChecked(i == index);
    offerListActions(index);
    offerDiscName();
    focusList();
}

void AppDelegate::offerDiscName()
{
    constexpr int iso = 3;
    const int tab = ui->tabviewMain->currentIndex();
    const bool isList = tab < static_cast<int>(listTabs.size());
    const ProjectType *type = isList ? projects::byVariant(tab, this->*listTab(tab).variant) : nullptr;
    constexpr int margin = 10; // below it is the bar of the gauge, or the edge of the window
    ui->customviewDiscName->setContentsMargins(0, 0, 0, isList ? 0 : margin);
    ui->customviewDiscName->setVisible(tab == iso || (type && projects::hasDiscName(*type)));
}

void AppDelegate::offerKinds(int tab)
{
    QAction *const items[] = { ui->menuitemKind1, ui->menuitemKind2, ui->menuitemKind3 };
    for (int variant = 0; variant < 3; ++variant) {
        const ProjectType *type = projects::byVariant(tab, variant);
        items[variant]->setVisible(type);
        if (type)
            items[variant]->setText(type->shownName());
    }
    ui->submenuKind->menuAction()->setEnabled(tab <= 2);
}

void AppDelegate::offerListActions(int tab)
{
    offerKinds(tab);
    const bool media = tab <= 1;
    const bool list = tab <= 2;
    for (QAction *action :
        { ui->menuitemAddFolder, ui->menuitemCopyDisc, ui->menuitemBurn, ui->menuitemDelete,
            ui->menuitemClear, ui->menuitemSelectAll, ui->menuitemMoveUp, ui->menuitemMoveDown })
        action->setEnabled(list);
    for (QAction *action : { ui->menuitemAddOther, ui->menuitemPlay, ui->menuitemSort3, ui->menuitemSort4 })
        action->setEnabled(media);
    for (QAction *action : { ui->menuitemAddFiles, ui->menuitemSort1, ui->menuitemSort2 })
        action->setEnabled(list);
    ui->menuitemEditTitle->setEnabled(tab == 0 && ui->menuitemNameColumns->isChecked());
    ui->menuitemAddFiles->setText(tab == 2 ? tr("&Add Folder…") : tr("&Add Files…"));
    ui->menuitemAddFolder->setVisible(tab != 2);
    ui->menuitemAddDataFiles->setVisible(tab == 2);
    ui->submenuSort->menuAction()->setEnabled(list);
    ui->menuitemSort1->setText(media ? tr("&File") : tr("&Folder"));
    ui->menuitemSort2->setText(media ? tr("&Duration") : tr("&Size"));
    ui->menuitemSort3->setVisible(media);
    ui->menuitemSort4->setVisible(media);
}

void AppDelegate::OnMenuTabAudio()
{
    showTab(0);
}

void AppDelegate::OnMenuTabVideo()
{
    showTab(1);
}

void AppDelegate::OnMenuTabData()
{
    showTab(2);
}

void AppDelegate::OnMenuTabISO()
{
    showTab(3);
}

void AppDelegate::OnMenuTabTools()
{
    showTab(4);
}

void AppDelegate::showTab(int index)
{
    // Selecting another tab has its consequences by itself; choosing the shown one from the menu has
    // them too.
    if (ui->tabviewMain->currentIndex() == index)
        didSelectTab(index);
    else
        ui->tabviewMain->setCurrentIndex(index);
}

void AppDelegate::OnBtnBurn()
{
    if (isJobPending())
        return;
    const QString title = ui->btnBurn->text();
    for (const ProjectType &type : projects::all) {
        if (title == type.shownBurnTitle())
            return (this->*modes.at(static_cast<std::size_t>(type.code - 1)).pipeline)();
    }
}
