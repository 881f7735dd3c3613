#pragma once

#include <base/index.h>

#include <QCoreApplication>
#include <QString>

#include <array>

/// The figures of a property of one element over the scenarios of a set.
struct SetFigures {
  static constexpr std::size_t Quantiles = 5;
  static constexpr std::array<double, Quantiles> Shares{0.05, 0.25, 0.5, 0.75, 0.95};

  Index count = 0; ///< scenarios in which it has a number; the rest means something only when there are some
  double minimum = 0.0;
  double maximum = 0.0;
  Index minimumAt = NoIndex; ///< the scenario
  Index maximumAt = NoIndex;
  double mean = 0.0;
  double deviation = 0.0;                    ///< standard deviation of the sample, 0 for one number
  std::array<double, Quantiles> quantiles{}; ///< at the Shares, between the numbers linearly, as spreadsheets have it
};

/// What a figure is called in properties and tables.
class SetStatistic {
  Q_DECLARE_TR_FUNCTIONS(SetStatistic)
public:
  enum class Kind { Count, Minimum, MinimumAt, Maximum, MaximumAt, Mean, Deviation, Q05, Q25, Median, Q75, Q95 };
  static constexpr std::array<Kind, 12> All{Kind::Count,     Kind::Minimum, Kind::MinimumAt, Kind::Maximum,
                                            Kind::MaximumAt, Kind::Mean,    Kind::Deviation, Kind::Q05,
                                            Kind::Q25,       Kind::Median,  Kind::Q75,       Kind::Q95};

  static QString suffix(Kind kind); ///< "max"
  /// "p.max" for p.
  static QString propertyName(const QString &property, Kind kind) { return property + QLatin1Char('.') + suffix(kind); }
  static QString title(Kind kind);                                                                 ///< "maximum", for people
  static QString titleInFiles(Kind kind);                                                          ///< the same in English
  static bool isScenario(Kind kind) { return kind == Kind::MinimumAt || kind == Kind::MaximumAt; } ///< the name of one
  static bool isDifference(Kind kind) { return kind == Kind::Deviation; } ///< of a unit only the factor counts
  static double of(const SetFigures &figures, Kind kind);
};
