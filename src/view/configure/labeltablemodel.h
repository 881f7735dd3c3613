#pragma once

#include <base/index.h>
#include <drawing/labeltable.h>

#include <QAbstractTableModel>

/// The label table as it is edited: a row for each element type, whose names nobody changes, then one for each template.
/// Cells wear the colour or the font that they name. Contents hold no comma: it is stored as "&#44;".
class LabelTableModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  using QAbstractTableModel::QAbstractTableModel;

  void setTable(const LabelTable &table);
  const LabelTable &table() const { return m_table; }

  int typeCount() const { return toQt(m_table.types.size()); }
  bool isTemplate(int row) const { return row >= typeCount(); }
  QString titleOf(int type) const; ///< what people call the type of the row
  /// The cell's text is chosen in a dialog rather than typed.
  static bool hasDialog(int column);

  /// Adds a copy of the row as a template; returns its row.
  int addTemplate(int row);
  /// Gives one row the look of another: all but its names.
  void copyLook(int from, int to);
  /// False when the row is that of a type.
  bool removeTemplate(int row);

  int rowCount(const QModelIndex &parent = QModelIndex()) const final;
  int columnCount(const QModelIndex &parent = QModelIndex()) const final;
  Qt::ItemFlags flags(const QModelIndex &index) const final;
  QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const final;
  /// Also for cells that have a dialog. False, with refused(), when the text means nothing in its column.
  bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) final;
  /// Rows show the symbol of their type.
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const final;

signals:
  void refused(const QString &reason);

private:
  /// Of the element type whose symbol the row shows.
  const QString &symbolCode(int row) const;
  /// Why the column cannot hold the text; empty when it can.
  static QString fault(int column, const QString &text);
  void tellRow(int row) { emit dataChanged(index(row, 0), index(row, LabelRow::Columns - 1)); }

  LabelTable m_table;
};
