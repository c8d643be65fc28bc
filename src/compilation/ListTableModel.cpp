#include "compilation/ListTableModel.h"

#include "app/AppDelegate.h"
#include "kit/SymbolIcon.h"

#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

ListTableModel::ListTableModel(Kind kind, const AppDelegate *controller, QObject *parent)
    : QAbstractTableModel(parent)
    , m_kind(kind)
    , m_controller(controller)
{
}

void ListTableModel::reload()
{
    beginResetModel();
    endResetModel();
}

int ListTableModel::rowCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return static_cast<int>(
        m_kind == Kind::Data ? m_controller->arrayDataFolders.size() : m_controller->arrayMediaFiles.size());
}

int ListTableModel::columnCount(const QModelIndex &parent) const
{
    if (parent.isValid())
        return 0;
    return m_kind == Kind::Audio ? int(AudioColumnCount)
        : m_kind == Kind::Video  ? int(MediaColumnCount)
                                 : int(DataColumnCount);
}

QString ListTableModel::text(int row, int column) const
{
    if (m_kind == Kind::Data) {
        const NodeDataFolder &folder = m_controller->arrayDataFolders.at(row);
        return column == DataFolder ? folder.s_Path : folder.s_Size;
    }
    const NodeMediaFile &file = m_controller->arrayMediaFiles.at(row);
    switch (column) {
    case MediaFile:
        return file.s_File_Name_With_Extension;
    case MediaDuration:
        return file.s_Duration;
    case MediaSize:
        return file.s_File_Size;
    case NameTitle:
        return file.title;
    case NamePerformer:
        return file.performer;
    default:
        return file.s_Folder_Path;
    }
}

QString ListTableModel::sortText(int row, int column) const
{
    const bool path = m_kind != Kind::Data && column == MediaPath;
    return path ? m_controller->arrayMediaFiles.at(row).s_File_Path : text(row, column);
}

QStringList ListTableModel::sortTexts(int column) const
{
    QStringList texts;
    const int rows = rowCount();
    texts.reserve(rows);
    for (int row = 0; row < rows; ++row)
        texts.append(sortText(row, column));
    return texts;
}

QString ListTableModel::whyNotMeasured(int row) const
{
    return m_kind != Kind::Data ? m_controller->arrayMediaFiles.at(row).whyNotMeasured
                                : m_controller->arrayDataFolders.at(row).whyNotMeasured;
}

QString ListTableModel::toolTip(int row) const
{
    const QString path = m_kind == Kind::Data ? m_controller->arrayDataFolders.at(row).s_Path
                                              : m_controller->arrayMediaFiles.at(row).s_File_Path;
    // A name may look like rich text, or like a part of it; a tooltip must show it as it is.
    const QString shown = u"<p style=\"white-space:pre\">"_s + path.toHtmlEscaped() + u"</p>"_s;
    const QString why = whyNotMeasured(row);
    return why.isEmpty() ? shown : shown + u"<p>"_s + why.toHtmlEscaped() + u"</p>"_s;
}

/// The mark of a file whose duration is not known, in the cell where it is missing.
QVariant ListTableModel::mark(int row, int column, int role) const
{
    const bool here = column == (m_kind != Kind::Data ? int(MediaDuration) : int(DataSize));
    if (!here || whyNotMeasured(row).isEmpty())
        return {};
    if (role == Qt::AccessibleTextRole)
        return tr("not measured");
    const QColor colour = m_controller->cellTextColour();
    const QPalette palette = QGuiApplication::palette();
    constexpr int side = 64; // drawn smaller
    QIcon mark;
    mark.addPixmap(
        symbolIcon(u"warning"_s, colour.isValid() ? colour : palette.color(QPalette::Text)).pixmap(side));
    mark.addPixmap(
        symbolIcon(u"warning"_s, palette.color(QPalette::HighlightedText)).pixmap(side), QIcon::Selected);
    return mark;
}

bool ListTableModel::isNumber(int column) const
{
    return m_kind == Kind::Data ? column == DataSize : column == MediaDuration || column == MediaSize;
}

QVariant ListTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(index.row(), index.column());
    case SortRole:
        return sortText(index.row(), index.column());
    case Qt::ForegroundRole: {
        const QColor colour = m_controller->cellTextColour();
        return colour.isValid() ? QVariant(colour) : QVariant();
    }
    case Qt::ToolTipRole:
        return toolTip(index.row());
    case Qt::AccessibleDescriptionRole:
        return whyNotMeasured(index.row());
    case Qt::DecorationRole:
    case Qt::AccessibleTextRole:
        return mark(index.row(), index.column(), role);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(
            Qt::AlignVCenter | (isNumber(index.column()) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

Qt::ItemFlags ListTableModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isName = m_kind == Kind::Audio && index.column() >= NameTitle;
    return !index.isValid() ? flags
        : isName            ? flags | Qt::ItemIsDragEnabled | Qt::ItemIsEditable
                            : flags | Qt::ItemIsDragEnabled;
}

bool ListTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable))
        return false;
    const QString name = value.toString().simplified();
    if (name == text(index.row(), index.column()))
        return false;
    Q_EMIT nameTyped(index.row(), index.column(), name);
    Q_EMIT dataChanged(index, index);
    return true;
}

QVariant ListTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | (isNumber(section) ? Qt::AlignRight : Qt::AlignLeft));
    if (role == IdentifierRole)
        return u"key%1"_s.arg(section + 1);
    if (role != Qt::DisplayRole)
        return {};
    if (m_kind == Kind::Data)
        return section == DataFolder ? tr("Folder") : tr("Size");
    const QStringList headings{ tr("File"), tr("Duration"), tr("Size"), tr("Path"), tr("Title"),
        tr("Performer") };
    return headings.at(section);
}
