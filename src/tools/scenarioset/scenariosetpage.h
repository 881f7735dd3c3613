#pragma once

#include "scenarioset/setjob.h"

#include <base/index.h>
#include <io/nivraworkspace.h>
#include <model/elementchange.h>

#include <QWidget>

#include <memory>
#include <scenarioset/scenarioset.h>
#include <scenarioset/setproperties.h>

class NetData;
class SeriesPanel;
class SetChoice;

/// The contents of the dock "Scenario Set": what goes into the set, and beside it what came out for the current element.
class ScenarioSetPage : public QWidget {
  Q_OBJECT
public:
  explicit ScenarioSetPage(NetData &net, QWidget *parent = nullptr);
  ~ScenarioSetPage() override;

  void forget();
  void refresh(const NivraWorkspace &workspace);
  void showElement(const QString &name);
  bool hasFigures() const { return m_set != nullptr; }

signals:
  void elementsChanged(const ElementChange &change);
  void scenarioWanted(const QString &file);

private:
  void run();
  void stop();
  void end(bool isDone);
  void putProperties();
  void tell(const std::vector<ElementChange> &changes);
  void showSeries();
  void showNumbers(Index column, const std::vector<double> &numbers);
  void open(const QString &scenario);

  NetData &m_net;
  NivraWorkspace m_workspace;
  SetJob *m_job; ///< the set, or a series
  SetChoice *m_choice;
  SeriesPanel *m_series;
  std::shared_ptr<ScenarioSet> m_coming; ///< while it is computed
  std::shared_ptr<ScenarioSet> m_set;    ///< what is shown
  SetProperties m_properties;
  QString m_element;
  std::vector<double> m_read; ///< the series that the job reads
};
