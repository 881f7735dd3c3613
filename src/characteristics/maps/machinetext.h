#pragma once

#include <QCoreApplication>
#include <QString>

#include <machines/networkmachines.h>

/// What stands beside the map of a machine, as rich text.
class MachineText {
  Q_DECLARE_TR_FUNCTIONS(MachinePage)
public:
  static QString of(const NetworkMachines::Machine &machine);
  /// What each machine of a station has of its flow and ratio.
  static QString station(const NetworkMachines::Station &station);
  /// A point that a person tries, beside that of the scenario.
  static QString moved(const WorkingPoint &scenario, const WorkingPoint &at);
};
