#pragma once

#include <model/element.h>

#include <QColor>

/// What the constraints say of an element: its property "CB_info" names the bounds that it violates.
namespace Violations {

enum class State {
  Unknown, ///< nobody has checked
  None,
  Minor,
  Major ///< a message says so
};

State of(const element &source);
/// As the general settings have it for the rings of subnets and the casings of other elements.
QColor color(State state);

} // namespace Violations
