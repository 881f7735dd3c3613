#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

/// The index of an element, a record or a vertex in the list that holds it. It takes half the memory of a std::size_t; no
/// list of a network comes near its end.
using Index = std::uint32_t;

/// The index of nothing. It is larger than any other: a comparison with the size of a list leaves it out.
constexpr Index NoIndex = std::numeric_limits<Index>::max();

/// From what the standard library counts in.
constexpr Index toIndex(std::size_t position) {
  return static_cast<Index>(position);
}

/// To what Qt counts in.
constexpr int toQt(std::size_t count) {
  return static_cast<int>(count);
}

/// From what Qt counts in, such as the row of a table: nothing below 0.
constexpr std::size_t fromQt(int position) {
  return static_cast<std::size_t>(position);
}
