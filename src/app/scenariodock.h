#pragma once

#include <QDockWidget>

class GasModel;
class NetMetaData;
class QLabel;
class QLineEdit;
class QSortFilterProxyModel;
class QTableView;
class QTreeView;
class ScenarioModel;
struct ScenarioSummary;

/// The panel "Scenario": what the opened case and scenario say beside the network, and the gases.
class ScenarioDock : public QDockWidget {
  Q_OBJECT
public:
  explicit ScenarioDock(QWidget *parent = nullptr);

  /// \param metaData says names and units of the gases' properties
  void setScenario(const ScenarioSummary &summary, const NetMetaData &metaData);

private:
  void filter(const QString &text);
  void showHint();

  ScenarioModel *m_settings;
  GasModel *m_gases;
  QSortFilterProxyModel *m_shownSettings;
  QSortFilterProxyModel *m_shownGases;
  QLineEdit *m_filter;
  QTreeView *m_tree;
  QTableView *m_gasTable;
  QLabel *m_hint;
  QString m_missing; ///< what is not there to be shown, and how to come by it
};
