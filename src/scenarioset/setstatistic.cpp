#include <scenarioset/setstatistic.h>

namespace {

struct Named {
  const char *suffix;
  const char *title;
};

/// In the order of SetStatistic::All.
constexpr std::array<Named, SetStatistic::All.size()> Names{
    {{"count", QT_TRANSLATE_NOOP("SetStatistic", "number of values")},
     {"min", QT_TRANSLATE_NOOP("SetStatistic", "minimum")},
     {"minAt", QT_TRANSLATE_NOOP("SetStatistic", "scenario of the minimum")},
     {"max", QT_TRANSLATE_NOOP("SetStatistic", "maximum")},
     {"maxAt", QT_TRANSLATE_NOOP("SetStatistic", "scenario of the maximum")},
     {"mean", QT_TRANSLATE_NOOP("SetStatistic", "mean")},
     {"sd", QT_TRANSLATE_NOOP("SetStatistic", "standard deviation")},
     {"q05", QT_TRANSLATE_NOOP("SetStatistic", "5 % quantile")},
     {"q25", QT_TRANSLATE_NOOP("SetStatistic", "25 % quantile")},
     {"median", QT_TRANSLATE_NOOP("SetStatistic", "median")},
     {"q75", QT_TRANSLATE_NOOP("SetStatistic", "75 % quantile")},
     {"q95", QT_TRANSLATE_NOOP("SetStatistic", "95 % quantile")}}};

const Named &named(SetStatistic::Kind kind) {
  return Names[static_cast<std::size_t>(kind)];
}

} // namespace

QString SetStatistic::suffix(Kind kind) {
  return QString::fromLatin1(named(kind).suffix);
}

QString SetStatistic::title(Kind kind) {
  return tr(named(kind).title);
}

QString SetStatistic::titleInFiles(Kind kind) {
  return QString::fromLatin1(named(kind).title);
}

double SetStatistic::of(const SetFigures &figures, Kind kind) {
  switch (kind) {
  case Kind::Count:
    return figures.count;
  case Kind::Minimum:
    return figures.minimum;
  case Kind::Maximum:
    return figures.maximum;
  case Kind::MinimumAt:
    return figures.minimumAt;
  case Kind::MaximumAt:
    return figures.maximumAt;
  case Kind::Mean:
    return figures.mean;
  case Kind::Deviation:
    return figures.deviation;
  default:
    return figures.quantiles[static_cast<std::size_t>(kind) - static_cast<std::size_t>(Kind::Q05)];
  }
}
