#pragma once

#include <io/nivraworkspace.h>
#include <model/elementchange.h>

#include <QDockWidget>

class NetData;
class ScenarioSetPage;

/// The dock "Scenario Set": figures over many scenarios of the case as properties, and the series of the current element.
/// What it holds is made when somebody first sees it.
class ScenarioSetDock : public QDockWidget {
  Q_OBJECT
public:
  explicit ScenarioSetDock(NetData &net, QWidget *parent = nullptr);
  ~ScenarioSetDock() override;

  /// Before the elements of the network go.
  void forget();
  /// After a network was read. The figures stay with the case, and go to its elements again.
  void refresh(const NivraWorkspace &workspace);
  void showElement(const QString &name);
  /// After units or the form of numbers have changed.
  void showAgain();

signals:
  void elementsChanged(const ElementChange &change);
  void scenarioWanted(const QString &file);

protected:
  void showEvent(QShowEvent *event) override;

private:
  NetData &m_net;
  NivraWorkspace m_workspace;
  QString m_element;
  ScenarioSetPage *m_page = nullptr;
  bool m_isStale = false; ///< another network, which the page has not been shown
};
