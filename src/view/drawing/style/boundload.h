#pragma once

#include <model/element.h>

/// How much of what its bounds allow an element uses, in per cent: 100 is at a bound, more is beyond it. Of edges that is
/// the flow "q" against "qmax" or, where it flows backwards, "qmin"; of nodes how far the pressure "p" lies from the middle
/// between "pmin" and "pmax".
namespace BoundLoad {

/// Some element may have one: there are properties of these names.
bool isKnown();
// NetData::NoValue where the element lacks a value or a bound.
double ofEdge(const element &edge);
double ofNode(const element &node);

} // namespace BoundLoad
