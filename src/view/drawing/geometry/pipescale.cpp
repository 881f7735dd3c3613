#include "geometry/pipescale.h"

#include "geometry/earth.h"

#include <drawing/netgeometry.h>
#include <model/netdata.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <algorithm>
#include <vector>

namespace {

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
    canBeGlobe = canBeGlobe && Earth::has(line);
    if (canBeGlobe)
      ratios.globe.push_back(metres / Earth::distance(line));
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

std::optional<PipeScale> PipeScale::of(const NetData &net, const NetGeometry &geometry) {
  const Ratios ratios = ratiosOf(net, geometry);
  const Quartiles flat = quartilesOf(ratios.flat);
  if (isTrue(flat))
    return PipeScale();
  if (isTrue(quartilesOf(ratios.globe)))
    return PipeScale{true, 1.0};
  if (isOneScale(flat))
    return PipeScale{false, flat.middle};
  return std::nullopt;
}
