#pragma once

#include <base/finding.h>
#include <model/netdata.h>

#include <QStringList>

#include <functional>
#include <machines/machinedata.h>

/// The scenarios of the case, read for a few elements alone.
struct ScenarioMachines {
  std::function<QStringList()> names; ///< of all; looked up when somebody asks
  /// Puts these elements as the geometry has them into an empty network; it may lack some. False with the reason.
  std::function<bool(const QStringList &elements, NetData &net, const Progress &progress, QString *reason)> geometry;
  /// Sets what a scenario says of the elements that the network has, and what machines it has; false with the reason.
  std::function<bool(const QString &scenario, NetData &net, MachineData &machines, const Progress &progress,
                     QString *reason)>
      read;
};
