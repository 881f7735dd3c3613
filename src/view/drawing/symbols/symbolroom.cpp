#include "style/detail.h"

#include <drawing/symbolroom.h>

#include <algorithm>

SymbolRoom::Tier SymbolRoom::tierOf(char type) {
  switch (type) {
  case 'c':
    return Compressors;
  case 'r':
    return Regulators;
  case 's':
    return ShortPipes;
  case 'd':
    return Drives;
  default:
    return Fittings;
  }
}

void SymbolRoom::read(const NetGeometry &geometry) {
  std::array<std::size_t, Tiers> counts{};
  for (const NetGeometry::Edge &edge : geometry.edges()) {
    if (edge.type != 'p' && geometry.isPlaced(edge))
      ++counts[tierOf(edge.type)];
  }
  for (const NetGeometry::Node &node : geometry.nodes()) {
    if (node.isDrive && node.isPlaced)
      ++counts[Drives];
  }
  m_typicalLength = geometry.typicalLength();
  for (std::size_t tier = 0; tier < Tiers; ++tier)
    m_room[tier] = Detail::roomOf(geometry.area(), counts[tier]);
}

double SymbolRoom::presence(char type, const Place &place) const {
  const Tier tier = tierOf(type);
  const double apart = m_room[tier] * place.scale;
  const double onLine = Detail::presence(place.lineLength / place.size, 1.3, 2.2);
  const double alone = Detail::presence(place.distance / place.size, 1.1, 1.8);
  switch (tier) {
  case Compressors:
    return std::max(onLine, Detail::presence(apart, 30.0, 80.0));
  case Regulators:
    return std::max(onLine, alone * Detail::presence(apart, 60.0, 110.0));
  case ShortPipes:
    return onLine;
  case Drives:
    return place.lineLength > 0.0 ? Detail::presence(place.lineLength / place.size, 2.0, 3.0)
                                  : alone * Detail::presence(apart, 110.0, 200.0);
  default:
    return std::max(onLine, alone * Detail::presence(apart, 110.0, 200.0));
  }
}
