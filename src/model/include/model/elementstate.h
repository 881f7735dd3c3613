#pragma once

#include <model/element.h>

/// What an element's properties "state" and "active" say. The one place that knows: drawing, menus, traces and formulas ask
/// here, so that they never disagree.
namespace ElementState {

/// Whether a text says that something is switched off: "off", "closed", "inactive", "false", "no" or the number 0, in any
/// case. No text says nothing.
bool saysOff(const PropertyText *text) noexcept;
/// Whether a text says that something works: "active", "on", "open" or "1", in any case. No text says nothing.
bool saysAtWork(const PropertyText *text) noexcept;
/// Whether the text is the state "bypass".
bool saysBypass(const PropertyText *text) noexcept;

/// Nothing flows through the element, or it does not exist in this scenario: "state" or "active" says off.
bool isOutOfUse(const element &e) noexcept;
/// As isOutOfUse(), for properties that were read already.
bool isOutOfUse(const PropertyText *state, const PropertyText *active) noexcept;

} // namespace ElementState
