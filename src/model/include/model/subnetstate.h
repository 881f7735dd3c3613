#pragma once

#include <model/netdata.h>

/// How assembled subnets are controlled. It is asked for whenever it is shown, for the values of the main element change.
namespace SubnetState {

/// "substate", by which a subnet says so itself and labels ask for it.
PropertyKey key();

/// What the subnet says itself, else what its main element says: "pressure control" or "flow control" for a station that
/// holds a set point, "maybe in control" for one at work whose aim is not known, else its own "state", such as "closed" or
/// "bypass". The main element is the one that "main_element" names (with or without "SUBNET_" in front), else the first
/// compressor or regulator among "elements". Empty when nothing is known.
QString of(const NetData &net, const element &subnet);

} // namespace SubnetState
