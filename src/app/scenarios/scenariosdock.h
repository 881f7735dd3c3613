#pragma once

#include <QDockWidget>

class ElidedLabel;
class FilterField;
class QAction;
class QSortFilterProxyModel;
class QTreeView;
class ScenarioListModel;

/// The panel "Scenarios": all of the case, one click away.
class ScenariosDock : public QDockWidget {
  Q_OBJECT
public:
  explicit ScenariosDock(QWidget *parent = nullptr);

  ScenarioListModel &model() { return m_model; }

  /// For the menu of a scenario, of which current() tells the file.
  void setMenuActions(const QList<QAction *> &actions);
  QString current() const;
  /// Brings the panel, and the keyboard into its filter.
  void bring();
  /// Makes the scenario that is shown the current row.
  void showCurrent(const QString &name);

signals:
  void wanted(const QString &file);

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void want(const QModelIndex &index);
  void showHint();
  void showMenu(const QPoint &at);

  ScenarioListModel &m_model;
  QSortFilterProxyModel *m_shown;
  FilterField *m_filter;
  QTreeView *m_tree;
  ElidedLabel *m_hint;
  QList<QAction *> m_actions;
};
