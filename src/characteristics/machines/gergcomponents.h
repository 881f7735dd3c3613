#pragma once

#include <array>
#include <cstddef>

/// The parts of a gas that the equation of state tells apart.
struct GergComponents {
  enum Component { Methane, Nitrogen, CarbonDioxide, Ethane, Propane, Hydrogen };
  static constexpr std::size_t Components = 6;
  using Composition = std::array<double, Components>; ///< molar shares, sum 1
};
