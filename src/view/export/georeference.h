#pragma once

#include <drawing/netgeometry.h>

#include <optional>

/// How the coordinates of a drawing lie on the earth, as far as the network says so.
///
/// The rule:
/// 1. Nodes with "lon" and "lat" (numbers, in degrees) tell. Where "x" and "y" are these very degrees, the drawing is one of
///    degrees: north is up, and a degree from west to east is as long as at the latitude that is looked at.
/// 2. Otherwise the drawing and the earth are laid over one another (turned, shifted, of one scale). Where they fit, this
///    tells the length of a unit and where north is. Where they do not, the drawing is a schematic one and nothing is known.
/// 3. Without such nodes the unit of "x" in "Attribute.csv" counts: a length gives the scale, "degree" what 1. gives. A
///    length tells nothing of north.
class GeoReference {
public:
  GeoReference() = default; ///< nothing is known
  static GeoReference of(const NetGeometry &geometry, const NetMetaData &vocabulary);

  enum class Kind { Unknown, Metres, Degrees };
  Kind kind() const { return m_kind; }
  /// Metres that a unit of the network's own coordinates means, from left to right, at this height of the drawing.
  double metresPerUnit(double y) const;
  /// Degrees clockwise from upwards; nothing where it is not known.
  std::optional<double> north() const { return m_north; }

private:
  Kind m_kind = Kind::Unknown;
  double m_metres = 0.0; ///< a unit, of Kind::Metres
  std::optional<double> m_north;
};
