#pragma once

#include <model/netdata.h>

/// What follows from how elements are joined.
namespace Topology {

/// Adds the end nodes of the selected edges, and then the edges whose both ends are selected.
void close(const NetData &net, Selection &selection);

/// The names that a property of a subnet lists, such as "elements" or "pins": set apart by semicolons, blanks around them
/// do not count.
QStringList listed(const element &subnet, PropertyKey list);
/// The parts of such a list as they stand, empty ones too: for pins, which the position in the list tells.
QStringList listedByPosition(const element &subnet, PropertyKey list);

/// Adds a name to the set of its kind; false when the network has no such element.
bool select(const NetData &net, const QString &name, Selection &selection);

enum class Direction { Upstream, Downstream };
/// What lies upstream or downstream of an element along the flow (property "flow" of edges, positive from node1 to node2),
/// up to and with the next element that is closed or controlled (a compressor or regulator). The element itself is part of
/// it. Edges without flow end the trace.
Selection trace(const NetData &net, const QString &name, Direction direction, const QString &flow = QStringLiteral("q"));

} // namespace Topology
