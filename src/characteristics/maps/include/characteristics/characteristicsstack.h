#pragma once

#include <base/finding.h>
#include <model/netdata.h>
#include <paper/pagecontent.h>

#include <QDockWidget>
#include <QStringList>

#include <machines/networkmachines.h>

class MachinePage;
class QTabWidget;

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

  /// Opens the page of a compressor or drive of the network, or brings it to the front. False when it has none, and told.
  bool open(const QString &elementName);
  QStringList opened() const;
  /// After properties have changed: pages that have something else to say are made anew.
  void refresh();

  /// What the page of an element says beside the map, as rich text; empty when there is nothing for it.
  QString summary(const QString &elementName) const;

private:
  MachinePage *makePage(const QString &elementName) const;
  void keep() const;
  void warn(const QString &reason) const { tell(m_told, Finding::Severity::Warning, reason); }
  void showHint();

  const NetData &m_net;
  Told m_told;
  NetworkMachines m_machines;
  PageFacts m_facts;
  QString m_path; ///< of the list of open pages, empty for none
  QTabWidget *m_tabs;
};
