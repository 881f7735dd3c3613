#pragma once

#include "scenarios/scenariolist.h"

#include <QObject>

#include <memory>

/// Looks for the scenarios of a case in a thread of its own: there may be thousands, on a disk that does not answer.
class ScenarioFinder : public QObject {
  Q_OBJECT
public:
  explicit ScenarioFinder(QObject *parent = nullptr);
  ~ScenarioFinder() override;

  /// Begins to look, and returns at once. What an earlier look finds is not told any more.
  void look(const QString &caseFolder, bool isJson);

signals:
  void found(const ScenarioList &list);

private:
  struct Receiver;
  void take(int look, const ScenarioList &list);

  std::shared_ptr<Receiver> m_receiver;
  int m_look = 0; ///< number of the last one
};
