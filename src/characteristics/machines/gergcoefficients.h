#pragma once

#include "gergcomponents.h"
#include "gergidealgas.h"

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
  GergIdealGas ideal;
};

struct Pair {
  GergComponents::Component first;
  GergComponents::Component second;
  double betaV;
  double gammaV;
  double betaT;
  double gammaT;
  double factor; ///< of the departure function
  std::vector<BinaryTerm> departure;
};

const std::array<Pure, GergComponents::Components> &pures();
const std::vector<Pair> &pairs();

} // namespace GergCoefficients
