#pragma once

#include <QSortFilterProxyModel>

/// Rows in another order, which are numbered as they are shown.
class SortedRows final : public QSortFilterProxyModel {
  Q_OBJECT
public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;
};
