#pragma once

#include <array>
#include <vector>

/// cp/R = c0 + c1 T + c2 T^2 + sum n (h/T)^2/sinh^2(h/T) + sum n (h/T)^2/cosh^2(h/T) of the ideal gas.
struct GergIdealGas {
  struct Term {
    double factor;
    double temperature; ///< K
  };
  std::array<double, 3> polynomial{};
  std::vector<Term> hyperbolicSines;
  std::vector<Term> hyperbolicCosines;
  double heatCapacity(double temperature) const; ///< cp/R
  double enthalpy(double temperature) const;     ///< h/R in K, but for a constant
  double entropy(double temperature) const;      ///< s/R at constant pressure, but for a constant
};
