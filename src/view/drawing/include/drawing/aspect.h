#pragma once

#include <array>
#include <cstddef>

/// What a draw function decides of the drawing.
enum class Aspect { EdgeColor, EdgeWidth, NodeColor, NodeSize };

constexpr std::array<Aspect, 4> AllAspects{Aspect::EdgeColor, Aspect::EdgeWidth, Aspect::NodeColor, Aspect::NodeSize};

constexpr bool isOfEdges(Aspect aspect) {
  return aspect == Aspect::EdgeColor || aspect == Aspect::EdgeWidth;
}

constexpr bool isColor(Aspect aspect) {
  return aspect == Aspect::EdgeColor || aspect == Aspect::NodeColor;
}

/// One value for each aspect.
template <typename T>
struct PerAspect {
  std::array<T, AllAspects.size()> values;

  T &operator[](Aspect aspect) { return values[static_cast<std::size_t>(aspect)]; }
  const T &operator[](Aspect aspect) const { return values[static_cast<std::size_t>(aspect)]; }

  friend bool operator==(const PerAspect &a, const PerAspect &b) { return a.values == b.values; }
};
