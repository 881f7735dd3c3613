#include <QCoreApplication>

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <machines/fits.h>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Fits)
};

constexpr double WorstCondition = 1e10;

/// Solves for the coefficients of columns(point), scaled so that they are of like size. Singular values tell whether the
/// points determine them.
template <std::size_t Count, typename Columns>
Fits::Quality solveLeastSquares(const std::vector<FitPoint> &points, const Columns &columns,
                                std::array<double, Count> &coefficients) {
  Fits::Quality quality;
  if (points.size() < Count) {
    quality.reason = Texts::tr("%1 points are too few, at least %2 are needed").arg(points.size()).arg(Count);
    return quality;
  }
  const auto rows = static_cast<Eigen::Index>(points.size());
  Eigen::MatrixXd matrix(rows, static_cast<Eigen::Index>(Count));
  Eigen::VectorXd values(rows);
  for (Eigen::Index row = 0; row < rows; ++row) {
    const FitPoint &point = points[static_cast<std::size_t>(row)];
    const std::array<double, Count> entries = columns(point);
    for (std::size_t i = 0; i < Count; ++i)
      matrix(row, static_cast<Eigen::Index>(i)) = entries[i];
    values(row) = point.z;
  }
  const Eigen::VectorXd scale = matrix.colwise().norm();
  if (!matrix.allFinite() || !values.allFinite() || !(scale.array() > 0.0).all()) {
    quality.reason = Texts::tr("the points do not tell the coefficients: numbers are missing or all the same");
    return quality;
  }
  const Eigen::MatrixXd scaled = matrix * scale.cwiseInverse().asDiagonal();
  const Eigen::JacobiSVD<Eigen::MatrixXd> svd(scaled, Eigen::ComputeThinU | Eigen::ComputeThinV);
  const auto &singular = svd.singularValues();
  quality.condition = singular(singular.size() - 1) > 0.0 ? singular(0) / singular(singular.size() - 1) : WorstCondition * 2;
  if (quality.condition > WorstCondition) {
    quality.reason = Texts::tr("the points do not tell the coefficients: they stand at too few different flows or speeds");
    return quality;
  }
  const Eigen::VectorXd solution = scale.cwiseInverse().asDiagonal() * svd.solve(values);
  for (std::size_t i = 0; i < Count; ++i)
    coefficients[i] = solution(static_cast<Eigen::Index>(i));
  const Eigen::VectorXd residuals = matrix * solution - values;
  quality.largestResidual = residuals.cwiseAbs().maxCoeff();
  quality.meanResidual = std::sqrt(residuals.squaredNorm() / static_cast<double>(rows));
  quality.ok = true;
  return quality;
}

} // namespace

Fits::Quality Fits::fit(const std::vector<FitPoint> &points, Quadratic &fitted) {
  return solveLeastSquares<3>(
      points,
      [](const FitPoint &p) {
        return std::array<double, 3>{1.0, p.x, p.x * p.x};
      },
      fitted.c);
}

Fits::Quality Fits::fit(const std::vector<FitPoint> &points, Biquadratic &fitted) {
  return solveLeastSquares<9>(
      points,
      [](const FitPoint &p) {
        const double x2 = p.x * p.x;
        const double y2 = p.y * p.y;
        return std::array<double, 9>{1.0, p.y, y2, p.x, p.x * p.y, p.x * y2, x2, x2 * p.y, x2 * y2};
      },
      fitted.c);
}

Fits::Quality Fits::compare(const std::vector<FitPoint> &points, const Biquadratic &given) {
  Quality quality;
  double squares = 0.0;
  for (const FitPoint &point : points) {
    const double residual = given(point.x, point.y) - point.z;
    quality.largestResidual = std::max(quality.largestResidual, std::abs(residual));
    squares += residual * residual;
  }
  quality.ok = !points.empty();
  quality.meanResidual = quality.ok ? std::sqrt(squares / static_cast<double>(points.size())) : 0.0;
  return quality;
}

std::vector<double> Fits::solve(const Quadratic &function, double value) {
  const double a = function.c[2];
  const double b = function.c[1];
  const double c = function.c[0] - value;
  if (a == 0.0)
    return b == 0.0 ? std::vector<double>() : std::vector<double>{-c / b};
  const double discriminant = b * b - 4.0 * a * c;
  if (discriminant < 0.0)
    return {};
  // Without cancellation: the larger root first, the other by the product of both.
  const double q = -0.5 * (b + std::copysign(std::sqrt(discriminant), b));
  if (q == 0.0)
    return {0.0};
  std::vector<double> roots{q / a, c / q};
  std::sort(roots.begin(), roots.end());
  return roots;
}
