#pragma once

#include <tools/layers.h>

#include <QAbstractTableModel>

/// A row for each layer. An edit changes nothing by itself: the model tells it by cellEdited(), and whoever is connected
/// changes the layers or what is hidden, and then the model.
class LayerModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Columns { VisibleColumn, LayerColumn, CountColumn, ColumnCount };
  enum Roles { SortRole = Qt::UserRole }; ///< by which a column is sorted: counts as numbers

  /// \param layers must outlive the model
  explicit LayerModel(const Layers &layers, QObject *parent = nullptr);

  /// After the layers have changed.
  void refresh();
  void setHidden(const QSet<QString> &hidden);
  const QSet<QString> &hidden() const { return m_hidden; }
  void setRenamable(bool isRenamable);

  QString layer(int row) const { return m_names.at(row); }
  /// -1 when there is no such layer.
  int row(const QString &layer) const { return m_names.indexOf(layer); }

  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  Qt::ItemFlags flags(const QModelIndex &index) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) final;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

signals:
  /// \param value a check state of VisibleColumn, a name of LayerColumn
  void cellEdited(int row, int column, const QVariant &value);

private:
  const Layers &m_layers;
  QStringList m_names; ///< by row
  QSet<QString> m_hidden;
  bool m_isRenamable = true;
};
