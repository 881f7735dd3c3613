#pragma once

#include "profile/profilepanel.h"

#include <base/mailbox.h>
#include <tools/pathscenarios.h>

#include <QObject>

#include <memory>

class QMenu;

/// Other scenarios that somebody wants to see on the same path. They are read beside the window, for the elements of the
/// path alone.
class ScenarioOverlays : public QObject {
  Q_OBJECT
public:
  static constexpr int MostChosen = 6; ///< more lines nobody tells apart

  explicit ScenarioOverlays(QObject *parent = nullptr);

  /// Of another case, or of the same one; what was chosen and is still there stays.
  void setScenarios(const PathScenarios &scenarios);
  const QString &current() const { return m_scenarios.current; }
  bool isOffered() const { return m_scenarios.names && m_scenarios.read; }
  void fillMenu(QMenu &menu);
  void choose(const QStringList &names);
  /// What is to be read. Asking for the same again reads nothing.
  void setPath(const QSet<QString> &elements, const QSet<QString> &properties);
  /// Those that were read, in the order of their choice.
  std::vector<ProfileOverlay> overlays() const;

signals:
  void changed();
  void told(const QString &text); ///< why one cannot be shown

private:
  void read();
  void take(int request, const QString &scenario, const PathScenarios::Values &values, const QString &reason);

  PathScenarios m_scenarios;
  QStringList m_chosen;
  QSet<QString> m_elements;
  QSet<QString> m_properties;
  QHash<QString, std::shared_ptr<const PathScenarios::Values>> m_values; ///< by scenario
  Mailbox m_mailbox;
  int m_request = 0;
};
