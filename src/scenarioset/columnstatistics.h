#pragma once

#include "tdigest.h"

#include <scenarioset/setstatistic.h>
#include <vector>

/// The numbers of many columns, which come scenario by scenario, each column one number a scenario or none.
///
/// 1. Count, extremes, mean and deviation are running (Welford 1962), whatever the number of scenarios.
/// 2. Quantiles are exact as long as all numbers together fit into the room; the numbers are then also there as series.
/// 3. What grows beyond the room is handed to digests of a fixed size, from then on for all columns.
/// 4. Few scenarios stay exact, as a digest would take as much memory.
class ColumnStatistics {
public:
  static constexpr std::size_t DefaultRoom = std::size_t(3) << 20; ///< numbers, of 8 bytes each

  explicit ColumnStatistics(std::size_t scenarios, std::size_t room = DefaultRoom);

  /// Adds a column that had the same number in the scenarios before. \param before NaN for none
  Index addColumn(double before);
  /// Takes a number for each column, NaN for none.
  void addScenario(Index scenario, const std::vector<double> &numbers);

  std::size_t columns() const { return m_running.size(); }
  bool isExact() const { return m_isExact; }
  SetFigures figures(Index column) const;
  /// By scenario, NaN where there is none; empty unless isExact().
  const std::vector<double> &series(Index column) const;

private:
  struct Running {
    SetFigures figures; ///< but for quantiles
    double squares = 0.0;
    void add(double number, Index scenario);
  };

  bool hasRoom(std::size_t columns) const;
  void estimate();

  std::size_t m_scenarios;
  std::size_t m_room;
  bool m_isExact = true;
  std::vector<Index> m_done; ///< scenarios in the order in which they came
  std::vector<Running> m_running;
  std::vector<std::vector<double>> m_series;
  mutable std::vector<TDigest> m_digests; ///< which sort what is new when they are asked
};
