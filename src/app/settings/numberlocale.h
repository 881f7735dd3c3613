#pragma once

/// Fields of numbers and axes of diagrams, which the toolkit writes by itself, take the decimal sign of the general
/// settings.
namespace NumberLocale {

/// For widgets that are made from now on, and for all that there are.
void apply();

} // namespace NumberLocale
