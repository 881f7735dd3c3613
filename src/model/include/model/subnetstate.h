#pragma once

#include <model/netdata.h>

/// How assembled subnets are controlled.
namespace SubnetState {

/// What the main element of the subnet says: "pressure control" or "flow control" for a station that holds a set point,
/// "maybe in control" for one at work whose aim is not known, else its own "state", such as "closed" or "bypass". The
/// main element is the one that "main_element" names (with or without "SUBNET_" in front), else the first compressor or
/// regulator among "elements". Empty when nothing is known.
QString of(const NetData &net, const element &subnet);

/// Gives every subnet without a "substate" of its own the one of its main element.
void derive(NetData &net);

} // namespace SubnetState
