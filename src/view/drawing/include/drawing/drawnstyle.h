#pragma once

#include <drawing/labeltable.h>
#include <drawing/plotsettings.h>

/// All that a person can choose of how a network is drawn.
struct DrawnStyle {
  PlotSettings settings;
  LabelTable labels;

  friend bool operator==(const DrawnStyle &a, const DrawnStyle &b) {
    return a.settings == b.settings && a.labels == b.labels;
  }
  friend bool operator!=(const DrawnStyle &a, const DrawnStyle &b) { return !(a == b); }
};
