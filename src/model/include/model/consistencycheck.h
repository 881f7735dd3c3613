#pragma once

#include <model/netdata.h>

#include <QString>
#include <QStringList>

/// The two passes over a network that was just read, always in this order. Afterwards every edge has existing end nodes,
/// every node a name and coordinates, every drive coordinates. They report through the program log and never throw.
namespace ConsistencyCheck {

struct PruneResult {
  int nodes = 0; ///< removed, drives included
  int edges = 0; ///< removed
};

/// Identity and reference problems of nodes and edges, one line each ending in "\n"; erases properties without a name.
QString findings(NetData &net);
/// findings(), shown in a warning box and logged when there are any; returns them.
QString checkNetData(NetData &net);

/// Removes what cannot be drawn or computed with, gives missing coordinates defaults.
PruneResult prune(NetData &net);

} // namespace ConsistencyCheck
