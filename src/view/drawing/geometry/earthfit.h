#pragma once

#include <optional>

class NetGeometry;

/// How a drawing lies on the earth, as its nodes with "lon" and "lat" (numbers, in degrees) tell.
struct EarthFit {
  /// Nothing where too few nodes tell.
  static std::optional<EarthFit> of(const NetGeometry &geometry);

  bool isDegrees = false;     ///< "x" and "y" are these very degrees
  double metresPerUnit = 0.0; ///< otherwise; 0 where drawing and earth, turned, shifted and scaled as a whole, do not fit
  double north = 0.0;         ///< degrees clockwise from upwards
};
