#pragma once

#include <QString>

#include <array>
#include <vector>

/// f(x) = c1 + c2 x + c3 x^2.
struct Quadratic {
  std::array<double, 3> c{};
  double operator()(double x) const { return c[0] + x * (c[1] + x * c[2]); }
};

/// f(x, y) = (c1 + c2 y + c3 y^2) + (c4 + c5 y + c6 y^2) x + (c7 + c8 y + c9 y^2) x^2, the form in which gas network models
/// state heads and efficiencies over flow and speed, and powers over temperature and speed (Pfetsch et al., "Validation of
/// Nominations in Gas Network Optimization", ZIB-Report 12-41, 2012).
struct Biquadratic {
  std::array<double, 9> c{};
  double operator()(double x, double y) const { return inX(y)(x); }
  /// As a function of x at a fixed y.
  Quadratic inX(double y) const {
    const auto part = [&](std::size_t i) {
      return c[i] + y * (c[i + 1] + y * c[i + 2]);
    };
    return {{part(0), part(3), part(6)}};
  }
  /// As a function of y at a fixed x.
  Quadratic inY(double x) const {
    const auto part = [&](std::size_t i) {
      return c[i] + x * (c[i + 3] + x * c[i + 6]);
    };
    return {{part(0), part(1), part(2)}};
  }
};

struct FitPoint {
  double x = 0.0;
  double y = 0.0; ///< not used for functions of x alone
  double z = 0.0; ///< the value
};

/// Least squares by Eigen.
namespace Fits {

/// How good a fit is.
struct Quality {
  bool ok = false;
  QString reason;               ///< why there is none
  double largestResidual = 0.0; ///< in the unit of the values, as the following
  double meanResidual = 0.0;    ///< root of the mean square
  double condition = 0.0;       ///< of the scaled equations; large ones mean that the points do not tell the coefficients
};

Quality fit(const std::vector<FitPoint> &points, Quadratic &fitted);
Quality fit(const std::vector<FitPoint> &points, Biquadratic &fitted);
/// Of coefficients that come from elsewhere.
Quality compare(const std::vector<FitPoint> &points, const Biquadratic &given);

/// Where the quadratic has the value: none, one or two arguments in ascending order.
std::vector<double> solve(const Quadratic &function, double value);

} // namespace Fits
