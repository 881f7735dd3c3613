#pragma once

#include "scenarios/scenariolist.h"

#include <base/mailbox.h>

#include <QObject>

/// Looks for the scenarios of a case in a thread of its own: there may be thousands, on a disk that does not answer.
class ScenarioFinder : public QObject {
  Q_OBJECT
public:
  explicit ScenarioFinder(QObject *parent = nullptr);

  /// Begins to look, and returns at once. What an earlier look finds is not told any more.
  void look(const QString &caseFolder, bool isJson);

signals:
  void found(const ScenarioList &list);

private:
  void take(int look, const ScenarioList &list);

  Mailbox m_mailbox;
  int m_look = 0; ///< number of the last one
};
