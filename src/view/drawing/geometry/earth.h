#pragma once

#include <QLineF>

/// The earth as a sphere.
namespace Earth {

constexpr double Radius = 6371008.8; ///< m, mean (IUGG)
constexpr double MetresPerDegree = Radius * 3.14159265358979323846 / 180.0;

/// Metres from one end to the other along a great circle, by the haversine formula. \param line longitudes and latitudes,
/// degrees
double distance(const QLineF &line);
/// Both ends are places on it.
bool has(const QLineF &line);

} // namespace Earth
