#pragma once

#include <base/index.h>
#include <model/propertykey.h>

#include <QAbstractTableModel>

#include <vector>

/// The properties that can be columns of the element table: those that are come first, in their order, the others behind in
/// alphabetical order. The boxes say which are; they are moved by dragging and by move().
class ColumnList final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Column { NameColumn, MeaningColumn, UnitColumn, CountColumn, ColumnCount };
  struct Entry {
    PropertyKey key;
    QString meaning;
    QString unit;
    Index count = 0; ///< of elements that have it
    bool isShown = false;
  };

  using QAbstractTableModel::QAbstractTableModel;

  /// \param entries in alphabetical order \param shown the columns in their order
  void setEntries(std::vector<Entry> entries, const std::vector<PropertyKey> &shown);
  std::vector<PropertyKey> shown() const;
  /// Moves a column to another place among the columns; without effect for what is none.
  void move(int row, int to);

  int rowCount(const QModelIndex &parent = QModelIndex()) const override;
  int columnCount(const QModelIndex &parent = QModelIndex()) const override;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
  bool setData(const QModelIndex &index, const QVariant &value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex &index) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  QStringList mimeTypes() const override;
  QMimeData *mimeData(const QModelIndexList &indexes) const override;
  bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column, const QModelIndex &parent) override;

signals:
  void columnsChanged(); ///< by a person

private:
  int shownCount() const;
  void relocate(int row, int to);

  std::vector<Entry> m_entries;
};
