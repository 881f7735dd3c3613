#include "geometry/earthfit.h"

#include "geometry/earth.h"

#include <drawing/netgeometry.h>

#include <QtMath>

#include <cmath>
#include <complex>
#include <vector>

namespace {

using Complex = std::complex<double>;

/// A node on the drawing, in its own coordinates, and on the earth, in degrees.
struct Placed {
  double x, y, lon, lat;
};

std::vector<Placed> placedNodes(const NetGeometry &geometry) {
  constexpr std::size_t Enough = 2000;
  std::vector<Placed> found;
  const PropertyKey lonKey = PropertyKey::find("lon");
  const PropertyKey latKey = PropertyKey::find("lat");
  if (lonKey.isNull() || latKey.isNull())
    return found;
  const std::size_t step = std::max<std::size_t>(1, geometry.nodes().size() / Enough);
  for (std::size_t i = 0; i < geometry.nodes().size(); i += step) {
    const NetGeometry::Node &node = geometry.nodes()[i];
    const PropertyText *lon = node.isPlaced ? node.source->find(lonKey) : nullptr;
    const PropertyText *lat = node.isPlaced ? node.source->find(latKey) : nullptr;
    const std::optional<double> east = lon == nullptr ? std::nullopt : lon->toDouble();
    const std::optional<double> north = lat == nullptr ? std::nullopt : lat->toDouble();
    if (east && north && std::abs(*east) <= 360.0 && std::abs(*north) < 90.0)
      found.push_back({node.x / geometry.plotUnits(), node.y / geometry.plotUnits(), *east, *north});
  }
  return found;
}

bool areDegrees(const std::vector<Placed> &nodes) {
  constexpr double Rounding = 1e-3;
  constexpr double Share = 0.9; // some nodes may have been moved for the eye
  std::size_t same = 0;
  for (const Placed &node : nodes)
    same += std::abs(node.x - node.lon) < Rounding && std::abs(node.y - node.lat) < Rounding ? 1U : 0U;
  return static_cast<double>(same) >= Share * static_cast<double>(nodes.size());
}

struct Fit {
  Complex turned; ///< drawing over earth: units a metre, and the angle between them
  double likeness = 0.0;
};

/// Least squares of drawing = factor * earth + offset in complex numbers, which turn and scale.
Fit fit(const std::vector<Placed> &nodes) {
  Complex drawn;
  Complex earth;
  double latitude = 0.0;
  for (const Placed &node : nodes)
    latitude += node.lat / static_cast<double>(nodes.size());
  const double narrowing = std::cos(qDegreesToRadians(latitude));
  const auto onEarth = [narrowing](const Placed &node) {
    return Complex(node.lon * narrowing, node.lat) * Earth::MetresPerDegree;
  };
  for (const Placed &node : nodes) {
    drawn += Complex(node.x, node.y) / static_cast<double>(nodes.size());
    earth += onEarth(node) / static_cast<double>(nodes.size());
  }
  Complex both;
  double ofDrawn = 0.0;
  double ofEarth = 0.0;
  for (const Placed &node : nodes) {
    const Complex z = Complex(node.x, node.y) - drawn;
    const Complex w = onEarth(node) - earth;
    both += std::conj(w) * z;
    ofDrawn += std::norm(z);
    ofEarth += std::norm(w);
  }
  if (!(ofDrawn > 0.0) || !(ofEarth > 0.0))
    return {};
  return {both / ofEarth, std::abs(both) / std::sqrt(ofDrawn * ofEarth)};
}

} // namespace

std::optional<EarthFit> EarthFit::of(const NetGeometry &geometry) {
  constexpr std::size_t FewestNodes = 3;
  constexpr double Alike = 0.99;  // projections of a country differ by less
  constexpr double Upright = 0.5; // degrees that nobody sees
  const std::vector<Placed> nodes = placedNodes(geometry);
  if (nodes.size() < FewestNodes)
    return std::nullopt;
  EarthFit found;
  found.isDegrees = areDegrees(nodes);
  if (const Fit laid = found.isDegrees ? Fit() : fit(nodes); laid.likeness >= Alike) {
    const double angle = -qRadiansToDegrees(std::arg(laid.turned));
    found.metresPerUnit = 1.0 / std::abs(laid.turned);
    found.north = std::abs(angle) < Upright ? 0.0 : angle;
  }
  return found;
}
