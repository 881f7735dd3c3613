#include "geometry/earth.h"
#include "geometry/earthfit.h"
#include "geometry/pipescale.h"

#include <drawing/mapscale.h>
#include <model/displayformat.h>
#include <model/names.h>
#include <model/netdata.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <QCoreApplication>
#include <QtMath>

#include <cmath>

MapScale MapScale::inMetres(double perUnit, std::optional<double> north) {
  MapScale scale;
  scale.m_coordinates = Coordinates::Metres;
  scale.m_metres = perUnit;
  scale.m_north = north;
  return scale;
}

MapScale MapScale::inDegrees() {
  MapScale scale;
  scale.m_coordinates = Coordinates::Degrees;
  scale.m_north = 0.0;
  return scale;
}

/// By the unit of "x".
std::optional<MapScale> MapScale::ofVocabulary(const NetMetaData &vocabulary) {
  const NetMetaData::Attribute *x = vocabulary.anyAttribute(Names::all().x.name());
  if (x == nullptr || x->storedUnit.isEmpty())
    return std::nullopt;
  if (const std::optional<double> metres = Units::convert(1.0, x->storedUnit, QStringLiteral("m")))
    return inMetres(*metres, std::nullopt);
  return x->storedUnit == QLatin1String("degree") ? std::make_optional(inDegrees()) : std::nullopt;
}

MapScale MapScale::of(const NetData &net, const NetGeometry &geometry) {
  if (const std::optional<EarthFit> fit = EarthFit::of(geometry)) {
    if (fit->isDegrees)
      return inDegrees();
    return fit->metresPerUnit > 0.0 ? inMetres(fit->metresPerUnit, fit->north) : MapScale();
  }
  if (const std::optional<MapScale> told = ofVocabulary(*net.metaData()))
    return *told;
  if (const std::optional<PipeScale> pipes = PipeScale::of(net, geometry))
    return pipes->isDegrees ? inDegrees() : inMetres(pipes->metresPerUnit, std::nullopt);
  return {};
}

double MapScale::metresPerUnit(double y) const {
  constexpr double Farthest = 89.0;
  if (m_coordinates == Coordinates::Degrees)
    return Earth::MetresPerDegree * std::cos(qDegreesToRadians(qBound(-Farthest, y, Farthest)));
  return m_metres;
}

double MapScale::length(const QLineF &line) const {
  return m_coordinates == Coordinates::Degrees ? Earth::distance(line) : line.length() * m_metres;
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
