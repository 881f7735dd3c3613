#pragma once

#include <QLineF>
#include <QString>

#include <optional>

class NetData;
class NetGeometry;
class NetMetaData;

/// How the coordinates of a drawing lie on the earth, and how far it is on the ground from one place to another, as far as
/// the network says so.
///
/// The rule:
/// 1. Nodes with "lon" and "lat" (numbers, in degrees) tell. Where "x" and "y" are these very degrees, the drawing is one of
///    degrees, with north above. Otherwise the drawing and the earth are laid over one another (turned, shifted, of one
///    scale). Where they fit, this tells the length of a unit and where north is; where they do not, the drawing is a
///    schematic.
/// 2. Without such nodes the unit of "x" in "Attribute.csv" counts: a length, or "degree". A length tells nothing of north.
/// 3. Without that the lengths of the pipes do: where they agree with the distances between their ends, read as metres or as
///    degrees on the globe, that is what the coordinates are; where all of them are the same multiple of these distances,
///    that multiple is the scale. A drawing that obeys none of this is a schematic.
class MapScale {
public:
  enum class Coordinates {
    Plain,   ///< of a schematic: distances are in units of the drawing
    Metres,  ///< or other units of which each is so many metres
    Degrees, ///< longitude and latitude
  };

  MapScale() = default; ///< nothing is known
  /// Asks some thousand nodes and pipes at most.
  static MapScale of(const NetData &net, const NetGeometry &geometry);

  Coordinates coordinates() const { return m_coordinates; }
  /// Metres that a unit of the network's own coordinates means, from left to right, at this height of the drawing; 1 of
  /// Plain ones.
  double metresPerUnit(double y) const;
  /// The direction of north, degrees clockwise from upwards; nothing where it is not known.
  std::optional<double> north() const { return m_north; }
  /// In metres, of Plain coordinates in their units. \param line in the network's own coordinates
  double length(const QLineF &line) const;
  /// A length as a person reads it: "840 m", "12.3 km", or a plain number.
  QString written(double length) const;

private:
  static MapScale inMetres(double perUnit, std::optional<double> north);
  static MapScale inDegrees();
  static std::optional<MapScale> ofVocabulary(const NetMetaData &vocabulary);

  Coordinates m_coordinates = Coordinates::Plain;
  double m_metres = 1.0; ///< a unit; not of Degrees
  std::optional<double> m_north;
};
