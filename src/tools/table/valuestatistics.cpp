#include "table/valuestatistics.h"

#include <base/index.h>

#include <algorithm>
#include <cmath>

ValueStatistics::ValueStatistics(std::vector<double> values)
    : m_sorted(std::move(values)) {
  const auto isNoNumber = [](double value) {
    return !std::isfinite(value);
  };
  m_sorted.erase(std::remove_if(m_sorted.begin(), m_sorted.end(), isNoNumber), m_sorted.end());
  if (m_sorted.empty())
    return;
  std::sort(m_sorted.begin(), m_sorted.end());
  count = toQt(m_sorted.size());
  minimum = m_sorted.front();
  maximum = m_sorted.back();
  for (std::size_t i = 0; i < m_sorted.size(); ++i) // running, so that sums of huge numbers stay finite
    mean += m_sorted[i] / static_cast<double>(i + 1) - mean / static_cast<double>(i + 1);
  double squares = 0.0;
  for (const double value : m_sorted)
    squares += (value - mean) * (value - mean);
  standardDeviation = count > 1 ? std::sqrt(squares / (count - 1)) : 0.0;
  makeBins();
}

double ValueStatistics::quantile(double share) const {
  const double position = share * (count - 1);
  const auto below = static_cast<std::size_t>(position);
  const std::size_t above = std::min(below + 1, m_sorted.size() - 1);
  return m_sorted[below] + (position - std::floor(position)) * (m_sorted[above] - m_sorted[below]);
}

/// As wide as Freedman and Diaconis advise (On the histogram as a density estimator, 1981): 2 IQR / n^(1/3).
void ValueStatistics::makeBins() {
  constexpr int MaximumBins = 60;
  const double width = 2.0 * (quantile(0.75) - quantile(0.25)) / std::cbrt(count);
  const double wanted = width > 0.0 ? std::ceil((maximum - minimum) / width) : std::ceil(std::sqrt(count));
  const int number = maximum > minimum ? static_cast<int>(std::clamp(wanted, 1.0, static_cast<double>(MaximumBins))) : 1;
  const double step = (maximum - minimum) / number;
  for (int i = 0; i < number; ++i)
    bins.push_back({minimum + i * step, i + 1 == number ? maximum : minimum + (i + 1) * step, 0});
  for (const double value : m_sorted)
    ++bins[step > 0.0 ? std::min(static_cast<std::size_t>((value - minimum) / step), bins.size() - 1) : 0].count;
}
