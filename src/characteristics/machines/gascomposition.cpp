#include "gascomposition.h"

#include <model/units.h>

#include <QCoreApplication>

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(GasComposition)
};

using Units::NormTemperature;
constexpr double NormPressure = 101.325; // kPa

/// Superior molar calorific values at 25 degC in kJ/mol, ISO 6976:1995 table 3, in the order of the components.
constexpr std::array<double, Gerg2008::Components> CalorificValues{890.63, 0.0, 0.0, 1560.69, 2219.17, 285.83};

/// The inferior ones: less 44.016 kJ for each mol of water.
constexpr std::array<double, Gerg2008::Components> LowerCalorificValues{802.60, 0.0, 0.0, 1428.64, 2043.11, 241.81};

/// In K, in the order of the components. Files state the mean of the parts by their molar shares (Kay's rule).
constexpr std::array<double, Gerg2008::Components> CriticalTemperatures{190.564, 126.192, 304.128, 305.322, 369.825, 33.19};

constexpr std::array<double, Gerg2008::Components> CriticalPressures{45.992, 33.958, 73.773, 48.722, 42.512, 12.964}; // bar

/// What stands for all hydrocarbons heavier than methane: as much ethane as propane. So the real gas
/// factors of the six gases of ISO 12213-3, annex C, come out within 0.1 % at 60 bar and 0.2 % at 120 bar.
constexpr double PropaneOfHeavy = 0.5;
/// Carbon dioxide of natural gases where nobody states it.
constexpr double UsualCarbonDioxide = 0.01;
constexpr double UsualNitrogen = 0.01;

/// Directions in which the composition may change.
enum Unknown { Methane, Heavy, Nitrogen, CarbonDioxide, Hydrogen, Unknowns };

Gerg2008::Composition unit(Unknown which) {
  Gerg2008::Composition shares{};
  switch (which) {
  case Methane:
    shares[Gerg2008::Methane] = 1.0;
    break;
  case Heavy:
    shares[Gerg2008::Ethane] = 1.0 - PropaneOfHeavy;
    shares[Gerg2008::Propane] = PropaneOfHeavy;
    break;
  case Nitrogen:
    shares[Gerg2008::Nitrogen] = 1.0;
    break;
  case CarbonDioxide:
    shares[Gerg2008::CarbonDioxide] = 1.0;
    break;
  case Hydrogen:
  case Unknowns:
    shares[Gerg2008::Hydrogen] = 1.0;
    break;
  }
  return shares;
}

double mean(const std::array<double, Gerg2008::Components> &values, const Gerg2008::Composition &shares) {
  double sum = 0.0;
  for (std::size_t i = 0; i < shares.size(); ++i)
    sum += shares[i] * values[i];
  return sum;
}

double calorificValue(const Gerg2008::Composition &shares) {
  return mean(CalorificValues, shares);
}

/// A value that the shares have to give as the mean of those of the parts.
struct Target {
  const std::array<double, Gerg2008::Components> &parts;
  double value;
};

using Known = std::array<std::optional<double>, Unknowns>;

/// The shares of the unknowns that give the targets beside those that are known.
Gerg2008::Composition solve(const std::vector<Target> &targets, const Known &known) {
  Gerg2008::Composition result{};
  std::vector<Gerg2008::Composition> unknowns;
  double rest = 1.0;
  for (std::size_t i = 0; i < known.size(); ++i) {
    const Gerg2008::Composition of = unit(static_cast<Unknown>(i));
    if (!known[i]) {
      unknowns.push_back(of);
      continue;
    }
    rest -= *known[i];
    for (std::size_t c = 0; c < result.size(); ++c)
      result[c] += *known[i] * of[c];
  }
  // Values that contradict one another are met as well as can be, all to the same part of themselves.
  Eigen::MatrixXd matrix(targets.size() + 1, unknowns.size());
  Eigen::VectorXd right(targets.size() + 1);
  right(0) = rest;
  matrix.row(0).setOnes();
  for (std::size_t i = 0; i < targets.size(); ++i) {
    const auto row = static_cast<Eigen::Index>(i + 1);
    right(row) = 1.0 - mean(targets[i].parts, result) / targets[i].value;
    for (std::size_t column = 0; column < unknowns.size(); ++column)
      matrix(row, static_cast<Eigen::Index>(column)) = mean(targets[i].parts, unknowns[column]) / targets[i].value;
  }
  const Eigen::VectorXd shares = matrix.colPivHouseholderQr().solve(right);
  for (std::size_t column = 0; column < unknowns.size(); ++column) {
    for (std::size_t c = 0; c < result.size(); ++c)
      result[c] += shares(static_cast<Eigen::Index>(column)) * unknowns[column][c];
  }
  return result;
}

/// Shares a little below nothing come from rounded values: they are nothing.
bool tidy(Gerg2008::Composition &shares) {
  constexpr double Tolerated = 0.02;
  double sum = 0.0;
  for (double &share : shares) {
    if (!(share > -Tolerated))
      return false;
    share = std::max(share, 0.0);
    sum += share;
  }
  for (double &share : shares)
    share /= sum;
  return true;
}

/// kmol in a norm cubic metre, times the real gas factor there: molar volumes of the ideal gas.
double molarVolume(const Gerg2008::Composition &shares) {
  return Gerg2008(shares).at(NormPressure, NormTemperature).realGasFactor * Gerg2008::GasConstant * NormTemperature /
         NormPressure;
}

/// Methane and hydrogen with hardly anything else in them.
std::optional<Gerg2008::Composition> pure(const GasData &gas) {
  constexpr double Near = 0.005; // of the value: to three digits, as files state it
  const auto fits = [&gas](Unknown which) {
    const Gerg2008::Composition shares = unit(which);
    const double volume = molarVolume(shares);
    const auto isNear = [](double said, double real) {
      return said <= 0.0 || std::abs(said - real) <= Near * real;
    };
    return isNear(gas.normDensity, Gerg2008::molarMass(shares) / volume) &&
           (gas.normDensity > 0.0 || isNear(gas.molarMass, Gerg2008::molarMass(shares))) &&
           isNear(gas.calorificValue, calorificValue(shares) / volume);
  };
  const auto isStated = [](const std::optional<double> &share) {
    return share && *share > 0.0;
  };
  if (isStated(gas.nitrogen) || isStated(gas.carbonDioxide))
    return std::nullopt;
  if (!isStated(gas.methane) && fits(Hydrogen))
    return unit(Hydrogen);
  if (!isStated(gas.hydrogen) && gas.calorificValue > 0.0 && fits(Methane))
    return unit(Methane);
  return std::nullopt;
}

/// What is stated, and what is usual for as many others as the equations cannot tell.
Known knownShares(const GasData &gas, double molarMass, std::size_t equations) {
  Known known{gas.methane, std::nullopt, gas.nitrogen, gas.carbonDioxide, gas.hydrogen};
  const auto assume = [&](Unknown which, double share) {
    const auto unknowns = static_cast<std::size_t>(std::count(known.begin(), known.end(), std::nullopt));
    if (unknowns > equations && !known[which])
      known[which] = share;
  };
  const bool isLight = molarMass < Gerg2008::MolarMasses[Gerg2008::Methane] * 0.995; // nothing but hydrogen makes it so
  if (isLight) {
    assume(Heavy, 0.0);
    assume(CarbonDioxide, 0.0);
    assume(Nitrogen, 0.0);
  } else {
    assume(Hydrogen, 0.0);
    assume(CarbonDioxide, UsualCarbonDioxide);
    assume(Nitrogen, UsualNitrogen);
  }
  return known;
}

enum class CriticalValues { None, Temperature, Both };

/// By density, calorific value and some critical values; nothing when no gas has these values.
std::optional<Gerg2008::Composition> infer(const GasData &gas, CriticalValues critical) {
  Gerg2008::Composition shares{};
  double volume = Gerg2008::GasConstant * NormTemperature / NormPressure; // of the ideal gas, better at each turn
  constexpr int Turns = 4;
  for (int turn = 0; turn < Turns; ++turn) {
    const double molarMass = gas.normDensity > 0.0 ? gas.normDensity * volume : gas.molarMass;
    std::vector<Target> targets{{Gerg2008::MolarMasses, molarMass}};
    if (gas.calorificValue > 0.0)
      targets.push_back({CalorificValues, gas.calorificValue * volume});
    if (critical != CriticalValues::None)
      targets.push_back({CriticalTemperatures, gas.criticalTemperature});
    if (critical == CriticalValues::Both)
      targets.push_back({CriticalPressures, gas.criticalPressure});
    shares = solve(targets, knownShares(gas, molarMass, targets.size() + 1));
    if (!tidy(shares))
      return std::nullopt;
    volume = molarVolume(shares);
  }
  return shares;
}

} // namespace

std::optional<GasComposition::Inferred> GasComposition::infer(const GasData &gas) {
  if (!gas.isEnough())
    return std::nullopt;
  Inferred result;
  result.basis = gas.calorificValue > 0.0 ? Texts::tr("density and calorific value") : Texts::tr("density alone");
  if (const auto one = pure(gas)) {
    result.shares = *one;
    result.isTold = true;
    return result;
  }
  const bool needsCarbonDioxide = gas.calorificValue > 0.0 && !gas.carbonDioxide && !gas.nitrogen;
  if (needsCarbonDioxide && gas.criticalTemperature > 0.0) {
    if (const auto shares = ::infer(gas, CriticalValues::Temperature)) {
      result.shares = *shares;
      result.isTold = true;
      result.basis = Texts::tr("density, calorific value and critical temperature");
      return result;
    }
  }
  const bool isStated = gas.methane || gas.nitrogen || gas.carbonDioxide || gas.hydrogen;
  const bool isCritical = gas.criticalTemperature > 0.0 && gas.criticalPressure > 0.0;
  if (gas.calorificValue == 0.0 && !isStated && isCritical) {
    if (const auto shares = ::infer(gas, CriticalValues::Both)) {
      result.shares = *shares;
      result.isTold = true;
      result.basis = Texts::tr("molar mass and critical values");
      return result;
    }
  }
  const auto shares = ::infer(gas, CriticalValues::None);
  result.isTold = gas.calorificValue > 0.0 || isStated;
  if (!shares)
    return std::nullopt;
  result.shares = *shares;
  if (needsCarbonDioxide && result.shares[Gerg2008::CarbonDioxide] > 0.0)
    result.remarks.append(
        Texts::tr("Nothing tells the share of carbon dioxide, %1 % are assumed").arg(100.0 * UsualCarbonDioxide));
  return result;
}

double GasComposition::lowerCalorificValue(const GasData &gas) {
  constexpr double MolarVolume = 22.36; // m3/kmol, of natural gas at norm conditions
  if (gas.lowerCalorificValue > 0.0)
    return gas.lowerCalorificValue;
  const std::optional<Inferred> inferred = infer(gas);
  const Gerg2008::Composition shares = inferred ? inferred->shares : Gerg2008::Composition{1.0};
  const double lower = mean(LowerCalorificValues, shares);
  const double upper = calorificValue(shares);
  if (gas.calorificValue > 0.0 && upper > 0.0)
    return gas.calorificValue * lower / upper;
  return lower / MolarVolume; // kJ/mol are MJ/kmol
}
