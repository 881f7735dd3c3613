#pragma once

#include "configure/labeltablemodel.h"

class QTableView;

/// Edits the label table in a view: a cell that has a dialog of its own in that alone, whether the mouse or a key asks for
/// it.
class LabelTableEditor : public QObject {
  Q_OBJECT
public:
  explicit LabelTableEditor(QTableView &view);

  void setTable(const LabelTable &table);
  const LabelTable &table() const { return m_model.table(); }

  void addTemplate();   ///< a copy of the current row
  void applyTemplate(); ///< asks for which types
  void deleteRow();

  /// What "vis" may be; the built-in values with a message when the property data do not say it.
  static QStringList visibilityValues();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void edit(const QModelIndex &cell);
  void editVisibility(const QModelIndex &cell);
  void editContents(const QModelIndex &cell);
  void editColor(const QModelIndex &cell);
  void editFont(const QModelIndex &cell);

  QTableView &m_view;
  LabelTableModel m_model;
};
