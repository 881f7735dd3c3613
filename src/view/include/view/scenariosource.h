#pragma once

#include <base/finding.h>

#include <QStringList>

#include <functional>

class NetData;

/// The scenarios of the case, for pages of several of them.
struct ScenarioSource {
  std::function<QStringList()> names; ///< all of the case; looked up when somebody asks
  /// Reads the network with a scenario into an empty one; false with the reason.
  std::function<bool(const QString &name, NetData &net, const Progress &progress, QString *reason)> read;
};
