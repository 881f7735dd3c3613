#pragma once

#include "styles/stylestore.h"

#include <QAbstractListModel>

/// A person's own styles, a row each; a name that is edited is kept at once.
class StyleListModel final : public QAbstractListModel {
  Q_OBJECT
public:
  explicit StyleListModel(StyleStore &store, QObject *parent = nullptr);

  /// After the store has changed.
  void refresh();
  const QString &nameAt(int row) const { return m_names[static_cast<std::size_t>(row)]; }
  int rowOf(const QString &name) const;

  int rowCount(const QModelIndex &parent = {}) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
  void refused(const QString &reason);
  void renamed(const QString &from, const QString &to);

private:
  StyleStore &m_store;
  std::vector<QString> m_names;
};
