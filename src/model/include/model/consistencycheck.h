#pragma once

#include <base/finding.h>
#include <model/netdata.h>

/// The two passes over a network that was just read, always in this order. Afterwards every edge has existing end nodes,
/// every node a name and coordinates, every drive coordinates. They return what they noticed and never throw.
namespace ConsistencyCheck {

struct PruneResult {
  int nodes = 0;     ///< removed, drives included
  int edges = 0;     ///< removed
  Findings findings; ///< why, and what was given a default
};

/// Identity and reference problems of nodes and edges; erases properties without a name.
Findings checkNetData(NetData &net);

/// Removes what cannot be drawn or computed with, gives missing coordinates defaults.
/// \param told the findings and whatever else the log should say of each step
PruneResult prune(NetData &net, const Told &told = {});

} // namespace ConsistencyCheck
