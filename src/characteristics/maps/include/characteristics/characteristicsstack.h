#pragma once

#include <base/finding.h>
#include <characteristics/scenariomachines.h>
#include <model/netdata.h>
#include <paper/pagecontent.h>

#include <QDockWidget>
#include <QStringList>

#include <machines/networkmachines.h>
#include <map>
#include <memory>

class MachinePage;
class QTabWidget;
class ScenarioCloud;

/// The panel "Characteristics": a page for each machine that was opened.
class CharacteristicsStack : public QDockWidget {
  Q_OBJECT
public:
  /// \param told why an action failed; a finding with a box answers what the user just did
  explicit CharacteristicsStack(const NetData &net, Told told = {}, QWidget *parent = nullptr);

  /// Machines of the scenario; pages that are open are made anew.
  void setMachines(MachineData machines);
  /// The folder of the case: its open pages are kept among the user's own settings for its next opening, and those of last
  /// time are opened. Empty for no case.
  void setCase(const QString &folder);
  /// What pages with maps say, for the pages that are opened from now on.
  void setPageFacts(PageFacts facts) { m_facts = std::move(facts); }

  /// The scenarios of a case, for clouds; what was read of them stays as long as the case is the same.
  void setScenarios(ScenarioMachines scenarios, const QString &caseFolder);
  /// Before another network is read.
  void cancelReading();

  /// Opens the page of a compressor or drive of the network, or brings it to the front. False when it has none, and told.
  bool open(const QString &elementName);
  QStringList opened() const;
  /// After properties have changed: pages that have something else to say are made anew.
  void refresh();

  /// What the page of an element says beside the map, as rich text; empty when there is nothing for it.
  QString summary(const QString &elementName) const;

signals:
  /// Somebody chose which functions of machines count; the pages follow already.
  void functionsChosen(FunctionSource source);
  void scenarioWanted(const QString &name);

private:
  void useFunctions(FunctionSource source);
  std::vector<MachinePage *> pages() const;
  std::shared_ptr<ScenarioCloud> cloudOf(const element &compressor);
  MachinePage *makePage(const QString &elementName);
  void keep() const;
  void warn(const QString &reason) const { tell(m_told, Finding::Severity::Warning, reason); }
  void showHint();

  const NetData &m_net;
  Told m_told;
  NetworkMachines m_machines;
  PageFacts m_facts;
  QString m_path; ///< of the list of open pages, empty for none
  QTabWidget *m_tabs;
  ScenarioMachines m_scenarios;
  QString m_caseOfScenarios;
  std::map<QString, std::shared_ptr<ScenarioCloud>> m_clouds; ///< by compressor
};
