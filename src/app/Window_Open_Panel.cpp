#include "app/Window_Open_Panel.h"

#include "app/NaturalOrder.h"
#include "compilation/FolderNames.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// The file dialog's filter for extensions in any case, as its patterns distinguish upper and lower case.
QString nameFilter(const QStringList &extensions)
{
    QStringList patterns;
    for (const QString &extension : extensions) {
        QString pattern = u"*."_s;
        for (const QChar c : extension)
            pattern += c.isLetter() ? u"[%1%2]"_s.arg(c.toLower()).arg(c.toUpper()) : QString(c);
        patterns.append(pattern);
    }
    return Window_Open_Panel::tr("Accepted files (%1)").arg(patterns.join(u' '));
}

/// How much of a folder could be chosen but for its name.
int hiddenChoices(const QString &folder, const OpenPanel &panel)
{
    const compilation::FolderNames found = compilation::namesIn(folder);
    const bool folders = panel.choose == OpenPanel::Choose::Folder;
    if (!folders && !panel.extensions.isEmpty())
        return compilation::unreadableFiles(found, panel.extensions, Qt::CaseInsensitive);
    return static_cast<int>(
        std::ranges::count(found.unreadable, folders, &compilation::FolderNames::Unreadable::isFolder));
}

} // namespace

Window_Open_Panel::Window_Open_Panel(const OpenPanel &panel, const QString &start, QWidget *over)
    : QFileDialog(over, panel.message, start)
{
    setUp(panel);
    sortNaturally();
    makeRoom();
    offerPlaces(panel.places);
    if (panel.choose != OpenPanel::Choose::NewFile)
        keepMarksExact();
    tellWhatIsHidden(panel);
}

void Window_Open_Panel::setUp(const OpenPanel &panel)
{
    setSupportedSchemes({ u"file"_s });
    if (panel.choose == OpenPanel::Choose::NewFile)
        return setUpForNewFile(panel);
    setAcceptMode(AcceptOpen);
    if (panel.choose == OpenPanel::Choose::Folder) {
        setFileMode(Directory);
        setOption(ShowDirsOnly);
        setLabelText(Accept, tr("Choose"));
    } else {
        setFileMode(panel.several ? ExistingFiles : ExistingFile);
    }
    if (!panel.extensions.isEmpty()) {
        setNameFilter(nameFilter(panel.extensions));
        setOption(HideNameFilterDetails);
    }
}

void Window_Open_Panel::setUpForNewFile(const OpenPanel &panel)
{
    setAcceptMode(AcceptSave); // asks before it takes the place of a file
    setFileMode(AnyFile);
    setNameFilter(nameFilter(panel.extensions));
    setDefaultSuffix(panel.extensions.first());
    selectFile(panel.newName);
}

// A desktop's own dialog sorts for itself, and takes no notice.
void Window_Open_Panel::sortNaturally()
{
    setProxyModel(new NaturalOrder(this));
    if (auto *const list = findChild<QTreeView *>(u"treeView"_s))
        list->sortByColumn(0, Qt::AscendingOrder);
}

/// For the places at the side, names of some length, and whole sizes, kinds and dates beside them.
void Window_Open_Panel::makeRoom()
{
    auto *const list = findChild<QTreeView *>(u"treeView"_s);
    if (!list)
        return;
    const int unit = fontMetrics().averageCharWidth();
    const QSize room = screen()->availableSize() * 9 / 10;
    resize(QSize(unit * 140, fontMetrics().height() * 38).expandedTo(sizeHint()).boundedTo(room));
    constexpr std::array widths{ 48, 14, 18, 24 }; // name, size, kind, date; in characters
    for (std::size_t column = 0; column < widths.size(); ++column)
        list->header()->resizeSection(static_cast<int>(column), unit * widths[column]);
}

void Window_Open_Panel::offerPlaces(const QList<QUrl> &places)
{
    if (!places.isEmpty())
        setSidebarUrls(places + sidebarUrls());
}

// The dialog writes what is marked into its name field, takes the field's text apart at the quotes, and
// marks what the parts name as well. So a name with quotes would mark other files beside its own. The field
// therefore speaks only while a person types in it.
void Window_Open_Panel::keepMarksExact()
{
    m_field = findChild<QLineEdit *>(u"fileNameEdit"_s);
    if (!m_field)
        return;
    // The focus also changes while the dialog's widgets are destroyed, when nothing of this class is left.
    const auto listenTo = [field = static_cast<QObject *>(m_field)](
                              const QWidget *focused) { field->blockSignals(focused != field); };
    listenTo(QApplication::focusWidget());
    connect(
        qApp, &QApplication::focusChanged, m_field, [listenTo](QWidget *, QWidget *now) { listenTo(now); });
    connect(m_field, &QLineEdit::textChanged, this, &Window_Open_Panel::offerToOpen);
    const auto *const list = findChild<QTreeView *>(u"treeView"_s);
    connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
        &Window_Open_Panel::offerToOpen);
}

/// The path of what a person has typed with quotes in it, where there is something of exactly this name;
/// else null, and the dialog takes the quotes for its own.
QString Window_Open_Panel::typedName() const
{
    if (!m_field || !m_field->isModified() || !m_field->text().contains(u'"'))
        return {};
    const QFileInfo named(directory(), m_field->text());
    return named.exists() ? named.absoluteFilePath() : QString();
}

void Window_Open_Panel::offerToOpen()
{
    const bool fieldDecides = m_field->hasFocus() && m_field->isModified();
    if (fieldDecides ? !typedName().isNull() : fileMode() == Directory || !selectedFiles().isEmpty()) {
        if (auto *const buttons = findChild<QDialogButtonBox *>())
            buttons->button(QDialogButtonBox::Open)->setEnabled(true);
    }
}

void Window_Open_Panel::accept()
{
    const QString typed = typedName();
    if (typed.isNull())
        return QFileDialog::accept();
    if (QFileInfo(typed).isDir() && fileMode() != Directory) {
        setDirectory(typed);
        m_field->clear();
        return;
    }
    m_typed = QUrl::fromLocalFile(typed);
    QDialog::accept();
}

QList<QUrl> Window_Open_Panel::chosen() const
{
    return m_typed.isEmpty() ? selectedUrls() : QList<QUrl>{ m_typed };
}

/// Says below the list of files how many it cannot show. A desktop's own dialog has no place for it, and
/// shows all.
void Window_Open_Panel::tellWhatIsHidden(const OpenPanel &panel)
{
    auto *const grid = qobject_cast<QGridLayout *>(layout());
    const auto *const files = findChild<QFileSystemModel *>();
    if (!grid || !files)
        return;
    auto *const label = new QLabel(this);
    label->setObjectName(u"labelUnreadable"_s);
    label->setWordWrap(true);
    grid->addWidget(label, grid->rowCount(), 0, 1, -1);
    const auto count = [label, panel](const QString &folder) {
        const int hidden = hiddenChoices(folder, panel);
        label->setVisible(hidden > 0);
        label->setText(panel.choose == OpenPanel::Choose::Folder
                ? tr("%n folder(s) cannot be shown here: the names are not valid UTF-8 text. Rename them to "
                     "choose "
                     "them.",
                    nullptr, hidden)
                : tr("%n file(s) of this folder cannot be shown: the names are not valid UTF-8 text. Rename "
                     "them to "
                     "choose them.",
                    nullptr, hidden));
    };
    connect(files, &QFileSystemModel::rootPathChanged, label, count);
    count(files->rootPath());
}
