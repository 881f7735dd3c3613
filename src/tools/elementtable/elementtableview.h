#pragma once

#include <QTableView>

class ElementTableModel;
class FilterHeader;

/// The rows of the element table: fields for filters below the titles, heads of groups that open and close by click, Return,
/// Left and Right, and a hint where there is nothing to show.
class ElementTableView : public QTableView {
  Q_OBJECT
public:
  explicit ElementTableView(QWidget *parent = nullptr);

  void setTable(ElementTableModel *model);
  FilterHeader *filters() const { return m_filters; }
  void numberRows(std::size_t count);
  /// Shown in place of rows.
  void setHint(const QString &hint);
  /// Brings the column into sight.
  void showColumn(int column);
  /// Opens or closes all groups; the group that stood at the top still does.
  void collapseAll(bool areCollapsed);

signals:
  void elementActivated(const QString &name); ///< by a double click or Return
  void columnMoveWanted(int column, int by);  ///< by Alt+Shift+Left and Right

protected:
  void paintEvent(QPaintEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void scrollContentsBy(int dx, int dy) override;

private:
  bool toggle(const QModelIndex &at, bool isCollapsed);
  bool isHead(const QModelIndex &at) const;
  void paintTitles(QPainter &painter) const;

  ElementTableModel *m_model = nullptr;
  FilterHeader *m_filters;
  QString m_hint;
};
