#pragma once

#include <QSortFilterProxyModel>

/// All groups, and below them the properties that have a text in their name or value, regardless of case.
class PropertyFilter final : public QSortFilterProxyModel {
  Q_OBJECT
public:
  using QSortFilterProxyModel::QSortFilterProxyModel;

  void setText(const QString &text);

protected:
  bool filterAcceptsRow(int row, const QModelIndex &parent) const final;

private:
  QString m_text;
};
