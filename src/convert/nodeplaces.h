#pragma once

#include <io/networkfileconverter.h>

#include <QString>

#include <vector>

/// Gives every node of a network a place in the diagram.
namespace NodePlaces {

/// Nodes without coordinates get their geographic ones when no node has any, else they are put between their neighbours.
/// What hangs together with no placed node stands on a circle. \param edges with "node1" and "node2" that are all there
/// \return what was done, for a person; empty when every node had a place
QString complete(std::vector<NetworkFileConverter::Record> &nodes, const std::vector<NetworkFileConverter::Record> &edges);

} // namespace NodePlaces
