#pragma once

#include <io/networkrecord.h>

#include <QString>

#include <vector>

/// Gives every node of a network a position in the diagram.
namespace NodePlaces {

/// Nodes without coordinates get their geographic ones when no node has any, else they are put between their neighbours.
/// What hangs together with no node that has a position stands on a circle.
/// \param edges with "node1" and "node2" that are all there
/// \return what was done, for a person; empty when every node had a position
QString complete(std::vector<NetworkRecord> &nodes, const std::vector<NetworkRecord> &edges);

} // namespace NodePlaces
