#include <drawing/mapscale.h>
#include <drawing/netgeometry.h>
#include <model/displayformat.h>
#include <model/netdata.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double RadiansPerDegree = 3.14159265358979323846 / 180.0;

/// Along a great circle, by the haversine formula on a sphere of the mean radius of the earth; metres from degrees.
double onGlobe(const QLineF &line) {
  constexpr double EarthRadius = 6371008.8; // m
  const double latitude1 = line.y1() * RadiansPerDegree;
  const double latitude2 = line.y2() * RadiansPerDegree;
  const double a = std::sin((latitude2 - latitude1) * 0.5);
  const double b = std::sin(line.dx() * RadiansPerDegree * 0.5);
  const double h = a * a + std::cos(latitude1) * std::cos(latitude2) * b * b;
  return 2.0 * EarthRadius * std::asin(std::sqrt(std::min(1.0, h)));
}

bool isOnGlobe(const QLineF &line) {
  constexpr double LargestLongitude = 180.0;
  constexpr double LargestLatitude = 90.0;
  return std::abs(line.x1()) <= LargestLongitude && std::abs(line.x2()) <= LargestLongitude &&
         std::abs(line.y1()) <= LargestLatitude && std::abs(line.y2()) <= LargestLatitude;
}

/// Lengths of pipes over the distances between their ends.
struct Ratios {
  std::vector<double> flat;  ///< over the plain distance
  std::vector<double> globe; ///< over that on the globe; empty when an end is no place on it
};

Ratios ratiosOf(const NetData &net, const NetGeometry &geometry) {
  constexpr std::size_t MostPipes = 5000;
  const PropertyKey length = PropertyKey::find("length");
  Ratios ratios;
  bool canBeGlobe = true;
  for (const NetGeometry::Edge &edge : geometry.edges()) {
    if (ratios.flat.size() >= MostPipes || length.isNull())
      break;
    const PropertyText *text = geometry.isPlaced(edge) ? edge.source->find(length) : nullptr;
    const double stated = text == nullptr ? NetData::NoValue : NetData::number(text);
    if (!(stated > 0.0))
      continue;
    const QString code = edge.source->value(QStringLiteral("type"));
    const NetMetaData::Attribute *attribute = net.metaData()->attribute(code, QStringLiteral("length"));
    const auto toMetres =
        attribute == nullptr ? std::nullopt : Units::conversion(attribute->storedUnit, QStringLiteral("m"));
    const QLineF plot = geometry.line(edge);
    const QLineF line(plot.p1() / geometry.plotUnits(), plot.p2() / geometry.plotUnits());
    if (!(line.length() > 0.0))
      continue;
    const double metres = toMetres ? (*toMetres)(stated) : stated;
    ratios.flat.push_back(metres / line.length());
    canBeGlobe = canBeGlobe && isOnGlobe(line);
    if (canBeGlobe)
      ratios.globe.push_back(metres / onGlobe(line));
  }
  if (!canBeGlobe)
    ratios.globe.clear();
  return ratios;
}

struct Quartiles {
  double low = 0.0;
  double middle = 0.0;
  double high = 0.0;
};

Quartiles quartilesOf(std::vector<double> values) {
  constexpr std::size_t FewestPipes = 5;
  if (values.size() < FewestPipes)
    return {};
  std::sort(values.begin(), values.end());
  return {values[values.size() / 4], values[values.size() / 2], values[values.size() * 3 / 4]};
}

/// Pipes are as long as the way between their ends, or somewhat longer.
bool isTrue(const Quartiles &ratio) {
  return ratio.low > 0.9 && ratio.middle < 1.6 && ratio.high < 2.5;
}

bool isOneScale(const Quartiles &ratio) {
  return ratio.low > 0.0 && ratio.high < ratio.low * 1.1;
}

} // namespace

MapScale MapScale::of(const NetData &net, const NetGeometry &geometry) {
  const Ratios ratios = ratiosOf(net, geometry);
  const Quartiles flat = quartilesOf(ratios.flat);
  MapScale scale;
  if (isTrue(flat)) {
    scale.m_coordinates = Coordinates::Metres;
  } else if (isTrue(quartilesOf(ratios.globe))) {
    scale.m_coordinates = Coordinates::Degrees;
  } else if (isOneScale(flat)) {
    scale.m_coordinates = Coordinates::Metres;
    scale.m_metresPerUnit = flat.middle;
  }
  return scale;
}

double MapScale::length(const QLineF &line) const {
  return m_coordinates == Coordinates::Degrees ? onGlobe(line) : line.length() * m_metresPerUnit;
}

QString MapScale::written(double length) const {
  constexpr double MetresPerKilometre = 1000.0;
  constexpr int Digits = 4;
  if (m_coordinates == Coordinates::Plain)
    return DisplayFormat::number(length, Digits);
  const bool isFar = length >= MetresPerKilometre;
  return DisplayFormat::number(isFar ? length / MetresPerKilometre : length, Digits) +
         (isFar ? QCoreApplication::translate("MapScale", " km") : QCoreApplication::translate("MapScale", " m"));
}
