#pragma once

#include <drawing/drawfunctions.h>
#include <model/comparison.h>

/// Whether the function of an aspect shows a comparison with another scenario.
inline Comparison::Kind comparisonOf(const PlotSettings &settings, Aspect aspect) {
  return Comparison::kindOf(DrawFunction::propertyName(settings.functions[aspect].name));
}
