// The order of names in the open panel.
#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

/// Sorts a model of files as the lists are sorted, which a file system's model does in some locales only.
/// Folders stay before files in either direction. The other columns go by what they mean: bytes, dates.
class NaturalOrder : public QSortFilterProxyModel {
    Q_OBJECT
public:
    explicit NaturalOrder(QObject *parent = nullptr);

protected:
    /// The indices are of the source model, a QFileSystemModel.
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override;

private:
    const QCollator m_collator;
};
