#pragma once

#include <QLineF>
#include <QString>

class NetData;
class NetGeometry;

/// How far it is from one place of a drawing to another on the ground, where the network tells.
///
/// Nothing in a file says what its coordinates count. The lengths of the pipes do: where they agree with the distances
/// between their ends, read as metres or as degrees on the globe, that is what the coordinates are; where all of them are
/// the same multiple of these distances, that multiple is the scale. A drawing that obeys none of this is a schematic.
class MapScale {
public:
  enum class Coordinates {
    Plain,   ///< of a schematic: distances are in units of the drawing
    Metres,  ///< or other units of which each is so many metres
    Degrees, ///< longitude and latitude
  };

  MapScale() = default;
  /// Asks some thousand pipes at most.
  static MapScale of(const NetData &net, const NetGeometry &geometry);

  Coordinates coordinates() const { return m_coordinates; }
  /// Metres a unit of the coordinates; 1 except for those of another scale.
  double metresPerUnit() const { return m_metresPerUnit; }
  /// In metres, of Plain coordinates in their units. \param line in the network's own coordinates
  double length(const QLineF &line) const;
  /// A length as a person reads it: "840 m", "12.3 km", or a plain number.
  QString written(double length) const;

private:
  Coordinates m_coordinates = Coordinates::Plain;
  double m_metresPerUnit = 1.0;
};
