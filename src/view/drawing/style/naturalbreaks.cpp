#include "style/naturalbreaks.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::size_t MostSamples = 300;

/// Sorted, with the ends.
std::vector<double> sampleOf(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  if (values.size() <= MostSamples)
    return values;
  std::vector<double> sample;
  sample.reserve(MostSamples);
  for (std::size_t i = 0; i < MostSamples; ++i)
    sample.push_back(values[i * (values.size() - 1) / (MostSamples - 1)]);
  return sample;
}

/// Of runs of sorted values.
class Spread {
public:
  explicit Spread(const std::vector<double> &values)
      : m_sums(1, 0.0)
      , m_squares(1, 0.0) {
    m_sums.reserve(values.size() + 1);
    m_squares.reserve(values.size() + 1);
    for (const double value : values) { // from the first on, so that large values keep their digits
      const double own = value - values.front();
      m_sums.push_back(m_sums.back() + own);
      m_squares.push_back(m_squares.back() + own * own);
    }
  }
  /// Of those from the first to before the last.
  double of(std::size_t first, std::size_t last) const {
    const double sum = m_sums[last] - m_sums[first];
    return m_squares[last] - m_squares[first] - sum * sum / static_cast<double>(last - first);
  }

private:
  std::vector<double> m_sums;
  std::vector<double> m_squares;
};

} // namespace

std::vector<double> naturalBreaks(std::vector<double> values, int classes) {
  const std::vector<double> sample = sampleOf(std::move(values));
  const std::size_t count = sample.size();
  if (classes < 2 || count < 2)
    return {};
  const Spread spread(sample);
  const std::size_t most = std::min(static_cast<std::size_t>(classes), count);
  std::vector<double> best(count + 1, std::numeric_limits<double>::max()); // of so many values in as many classes as yet
  for (std::size_t end = 1; end <= count; ++end)
    best[end] = spread.of(0, end);
  std::vector<std::vector<std::size_t>> starts; // of the last class, for each number of classes from two on
  for (std::size_t used = 2; used <= most; ++used) {
    std::vector<double> next(count + 1, std::numeric_limits<double>::max());
    std::vector<std::size_t> start(count + 1, 0);
    for (std::size_t end = used; end <= count; ++end) {
      for (std::size_t first = used - 1; first < end; ++first) {
        const double sum = best[first] + spread.of(first, end);
        if (sum < next[end]) {
          next[end] = sum;
          start[end] = first;
        }
      }
    }
    best = std::move(next);
    starts.push_back(std::move(start));
  }
  std::vector<double> breaks;
  std::size_t end = count;
  for (auto start = starts.rbegin(); start != starts.rend(); ++start) {
    end = (*start)[end];
    if (sample[end] > sample.front() && (breaks.empty() || sample[end] < breaks.back()))
      breaks.push_back(sample[end]);
  }
  std::reverse(breaks.begin(), breaks.end());
  return breaks;
}
