// What the three list tables show.
#pragma once

#include <QAbstractTableModel>

class AppDelegate;

/// The media list or the data list of the controller as a table. Read-only but for the names of audio tracks; the
/// controller calls reload() after it has changed a list.
class ListTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum class Kind { Audio, Video, Data };
    enum MediaColumn { MediaFile, MediaDuration, MediaSize, MediaPath, MediaColumnCount };
    /// Behind the others, of audio files only.
    enum NameColumn { NameTitle = MediaColumnCount, NamePerformer, AudioColumnCount };
    enum DataColumn { DataFolder, DataSize, DataColumnCount };
    /// The text by which a column is sorted, where it differs from the one shown too.
    static constexpr int SortRole = Qt::UserRole;
    /// Of a heading: what the column is called in the program, "key1" to "key6".
    static constexpr int IdentifierRole = Qt::UserRole + 1;

    /// `controller` is not owned and outlives the model.
    ListTableModel(Kind kind, const AppDelegate *controller, QObject *parent);

    /// Tells the views that any row may have changed.
    void reload();

    /// The texts of a column that decide its order, of all rows.
    QStringList sortTexts(int column) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    /// Takes a title or a performer: nameTyped() follows at once.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// A person has typed a title or a performer, one line.
    void nameTyped(int row, int column, const QString &name);

private:
    QString text(int row, int column) const;
    QString sortText(int row, int column) const;
    QString whyNotMeasured(int row) const;
    QString toolTip(int row) const;
    QVariant mark(int row, int column, int role) const;
    bool isNumber(int column) const;

    const Kind m_kind;
    const AppDelegate *const m_controller;
};
