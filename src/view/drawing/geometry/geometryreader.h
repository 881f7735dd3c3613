#pragma once

#include <drawing/netgeometry.h>
#include <model/propertykey.h>

#include <vector>

/// Properties whose numbers are asked for.
struct ValueRequest {
  struct Wanted {
    PropertyKey property;
    bool absolute = false;
  };

  std::vector<Wanted> ofEdges;
  std::vector<Wanted> ofNodes;
};

/// One column a wanted property; in it one value an element, NetData::NoValue where there is none.
struct ElementValues {
  using Columns = std::vector<std::vector<double>>;

  Columns ofEdges; ///< an edge without the property has the mean of its end nodes, as NetData::edgeValue has it
  Columns ofEnds;  ///< what nodes say to the wanted properties of edges
  Columns ofNodes;
};

/// Reads what is drawn from a network.
namespace GeometryReader {

/// Where everything lies and, in the same walk over the elements, the values that are wanted.
ElementValues read(const NetData &net, const ValueRequest &request, NetGeometry &geometry);
/// What nodes supply and take now, of the network that the geometry was read from. True when nodes are shown otherwise.
bool readFlows(const NetData &net, NetGeometry &geometry);
/// The values alone, of the network that the geometry was read from.
ElementValues readValues(const NetGeometry &geometry, const ValueRequest &request);

} // namespace GeometryReader
