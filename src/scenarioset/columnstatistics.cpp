#include "columnstatistics.h"

#include "tdigest.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double None = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t FewScenarios = 256; // a digest takes about as much memory as so many numbers

/// Of sorted numbers, between two neighbours linearly.
double quantileOf(const std::vector<double> &sorted, double share) {
  const double position = share * static_cast<double>(sorted.size() - 1);
  const auto below = static_cast<std::size_t>(position);
  const std::size_t above = std::min(below + 1, sorted.size() - 1);
  return sorted[below] + (position - std::floor(position)) * (sorted[above] - sorted[below]);
}

} // namespace

void ColumnStatistics::Running::add(double number, Index scenario) {
  if (std::isnan(number))
    return;
  ++figures.count;
  const auto isFirstOf = [&](double extreme, Index at) {
    return number == extreme && scenario < at; // of equal ones, in whichever order they come
  };
  if (figures.count == 1 || number < figures.minimum || isFirstOf(figures.minimum, figures.minimumAt)) {
    figures.minimum = number;
    figures.minimumAt = scenario;
  }
  if (figures.count == 1 || number > figures.maximum || isFirstOf(figures.maximum, figures.maximumAt)) {
    figures.maximum = number;
    figures.maximumAt = scenario;
  }
  const double off = number - figures.mean;
  figures.mean += off / figures.count;
  squares += off * (number - figures.mean);
}

ColumnStatistics::ColumnStatistics(std::size_t scenarios, std::size_t room)
    : m_scenarios(scenarios)
    , m_room(room) {
  m_done.reserve(scenarios);
}

bool ColumnStatistics::hasRoom(std::size_t columns) const {
  return m_scenarios <= FewScenarios || columns * m_scenarios <= m_room;
}

Index ColumnStatistics::addColumn(double before) {
  const Index column = toIndex(columns());
  Running &running = m_running.emplace_back();
  for (const Index scenario : m_done)
    running.add(before, scenario);
  if (m_isExact && !hasRoom(columns()))
    estimate();
  if (m_isExact) {
    std::vector<double> &series = m_series.emplace_back(m_scenarios, None);
    for (const Index scenario : m_done)
      series[scenario] = before;
  } else {
    TDigest &digest = m_digests.emplace_back();
    for (std::size_t i = 0; i < m_done.size() && !std::isnan(before); ++i)
      digest.add(before);
  }
  return column;
}

void ColumnStatistics::estimate() {
  m_isExact = false;
  m_digests.reserve(m_series.size());
  for (std::vector<double> &series : m_series) {
    TDigest &digest = m_digests.emplace_back();
    for (const Index scenario : m_done) {
      if (!std::isnan(series[scenario]))
        digest.add(series[scenario]);
    }
    series = {}; // gives its memory back
  }
  m_series = {};
}

void ColumnStatistics::addScenario(Index scenario, const std::vector<double> &numbers) {
  m_done.push_back(scenario);
  for (std::size_t column = 0; column < numbers.size(); ++column) {
    const double number = numbers[column];
    m_running[column].add(number, scenario);
    if (m_isExact)
      m_series[column][scenario] = number;
    else if (!std::isnan(number))
      m_digests[column].add(number);
  }
}

const std::vector<double> &ColumnStatistics::series(Index column) const {
  static const std::vector<double> none;
  return m_isExact ? m_series[column] : none;
}

SetFigures ColumnStatistics::figures(Index column) const {
  const Running &running = m_running[column];
  SetFigures figures = running.figures;
  if (figures.count > 1)
    figures.deviation = std::sqrt(running.squares / (figures.count - 1));
  if (figures.count == 0)
    return figures;
  std::vector<double> sorted;
  if (m_isExact) {
    std::copy_if(m_series[column].begin(), m_series[column].end(), std::back_inserter(sorted),
                 [](double number) { return !std::isnan(number); });
    std::sort(sorted.begin(), sorted.end());
  }
  for (std::size_t i = 0; i < SetFigures::Quantiles; ++i)
    figures.quantiles[i] = m_isExact ? quantileOf(sorted, SetFigures::Shares[i])
                                     : m_digests[column].quantile(SetFigures::Shares[i], figures.minimum, figures.maximum);
  return figures;
}
