#pragma once

#include <QObject>

#include <drawing/labeltable.h>

class QTableWidget;
class QTableWidgetItem;

/// Shows the label table in a table widget and edits it there: a cell that has a dialog of its own in that alone, whether
/// the mouse or a key asks for it.
class LabelTableEditor : public QObject {
  Q_OBJECT
public:
  explicit LabelTableEditor(QTableWidget &widget);

  void setTable(const LabelTable &table);
  LabelTable table() const;

  void addTemplate();   ///< a copy of the current row
  void applyTemplate(); ///< asks for which types
  void deleteRow();

  /// What "vis" may be; the built-in values with a message when the property data do not say it.
  static QStringList visibilityValues();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void showRow(int row, const LabelRow &cells, bool isTemplate);
  void showLook(int row);
  void edit(int row, int column);
  void editContents(QTableWidgetItem &cell);
  LabelRow rowAt(int row) const;

  QTableWidget &m_widget;
  int m_types = 0; ///< rows of element types, in front of the templates
};
