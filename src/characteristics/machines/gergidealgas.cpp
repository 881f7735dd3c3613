#include "gergidealgas.h"

#include <cmath>

double GergIdealGas::heatCapacity(double temperature) const {
  double cp = polynomial[0] + temperature * (polynomial[1] + temperature * polynomial[2]);
  for (const Term &term : hyperbolicSines)
    cp += term.factor * std::pow(term.temperature / temperature / std::sinh(term.temperature / temperature), 2.0);
  for (const Term &term : hyperbolicCosines)
    cp += term.factor * std::pow(term.temperature / temperature / std::cosh(term.temperature / temperature), 2.0);
  return cp;
}

double GergIdealGas::enthalpy(double temperature) const {
  double h = temperature * (polynomial[0] + temperature * (polynomial[1] / 2.0 + temperature * polynomial[2] / 3.0));
  for (const Term &term : hyperbolicSines)
    h += term.factor * term.temperature / std::tanh(term.temperature / temperature);
  for (const Term &term : hyperbolicCosines)
    h -= term.factor * term.temperature * std::tanh(term.temperature / temperature);
  return h;
}

double GergIdealGas::entropy(double temperature) const {
  double s = polynomial[0] * std::log(temperature) + temperature * (polynomial[1] + temperature * polynomial[2] / 2.0);
  for (const Term &term : hyperbolicSines) {
    const double x = term.temperature / temperature;
    s += term.factor * (x / std::tanh(x) - std::log(std::sinh(x)));
  }
  for (const Term &term : hyperbolicCosines) {
    const double x = term.temperature / temperature;
    s -= term.factor * (x * std::tanh(x) - std::log(std::cosh(x)));
  }
  return s;
}
