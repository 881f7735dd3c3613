#pragma once

#include "gerg2008.h"

#include <vector>

/// The numbers of the equation as published (see gerg2008.h).
namespace GergCoefficients {

/// n delta^d tau^t, times exp(-delta^c) where c is not 0.
struct PureTerm {
  int d;
  double t;
  int c;
  double n;
};

/// n delta^d tau^t, times exp(-eta (delta - epsilon)^2 - beta (delta - gamma)) where beta is not 0.
struct BinaryTerm {
  int d;
  double t;
  double eta;
  double epsilon;
  double beta;
  double gamma;
  double n;
};

struct Pure {
  double criticalDensity;     ///< kmol/m3
  double criticalTemperature; ///< K
  std::vector<PureTerm> terms;
  Gerg2008::IdealGas ideal;
};

struct Pair {
  Gerg2008::Component first;
  Gerg2008::Component second;
  double betaV;
  double gammaV;
  double betaT;
  double gammaT;
  double factor; ///< of the departure function
  std::vector<BinaryTerm> departure;
};

const std::array<Pure, Gerg2008::Components> &pures();
const std::vector<Pair> &pairs();

} // namespace GergCoefficients
