#pragma once

/// Bounds of a draw function as a person gives them.
namespace DrawRange {

enum class State {
  Sound,
  Inverted, ///< the minimum lies above the maximum: they can be swapped
  Tiny      ///< nothing, or next to nothing, lies between them
};

/// Open bounds (PlotSettings::OpenMinimum, OpenMaximum) are always sound.
State check(double minimum, double maximum);
/// Swapped, or with a tiny width about the same middle.
void correct(double &minimum, double &maximum);

} // namespace DrawRange
