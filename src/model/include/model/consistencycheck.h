#pragma once

#include <base/finding.h>
#include <model/netdata.h>

#include <QString>
#include <QStringList>

/// The two passes over a network that was just read, always in this order. Afterwards every edge has existing end nodes,
/// every node a name and coordinates, every drive coordinates. They report through the program log and never throw.
namespace ConsistencyCheck {

struct PruneResult {
  int nodes = 0;     ///< removed, drives included
  int edges = 0;     ///< removed
  Findings findings; ///< why, and what was given a default; they are logged already
};

/// Identity and reference problems of nodes and edges; erases properties without a name.
Findings problems(NetData &net);
/// problems(), shown in a warning box and logged when there are any; returns them, one line each ending in "\n".
/// \param list takes them too
QString checkNetData(NetData &net, Findings *list = nullptr);

/// Removes what cannot be drawn or computed with, gives missing coordinates defaults.
PruneResult prune(NetData &net);

} // namespace ConsistencyCheck
