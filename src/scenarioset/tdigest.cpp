#include "tdigest.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double Pi = 3.14159265358979323846;

/// The share up to which a mean may reach that begins at this one: one unit of the scale Size / 2π · asin(2 q - 1).
double reachFrom(double share) {
  constexpr double Unit = 2.0 * Pi / static_cast<double>(TDigest::Size);
  const double angle = std::asin(2.0 * std::clamp(share, 0.0, 1.0) - 1.0) + Unit;
  return angle >= Pi / 2.0 ? 1.0 : (std::sin(angle) + 1.0) / 2.0;
}

} // namespace

void TDigest::add(double number) {
  constexpr std::size_t Together = Size / 2;
  m_new.push_back(number);
  if (m_new.size() >= Together)
    merge();
}

void TDigest::merge() {
  if (m_new.empty())
    return;
  std::vector<Mean> all = std::move(m_means);
  all.reserve(all.size() + m_new.size());
  for (const double number : m_new)
    all.push_back({number, 1.0});
  m_new.clear();
  std::stable_sort(all.begin(), all.end(), [](const Mean &a, const Mean &b) { return a.at < b.at; });
  double total = 0.0;
  for (const Mean &mean : all)
    total += mean.weight;
  m_means.clear();
  m_means.reserve(Size);
  double before = 0.0; // weight of the means that are complete
  double reach = reachFrom(0.0);
  for (const Mean &next : all) {
    Mean *last = m_means.empty() ? nullptr : &m_means.back();
    if (last != nullptr && (before + last->weight + next.weight) / total <= reach) {
      last->weight += next.weight;
      last->at += (next.at - last->at) * next.weight / last->weight;
      continue;
    }
    if (last != nullptr) {
      before += last->weight;
      reach = reachFrom(before / total);
    }
    m_means.push_back(next);
  }
}

double TDigest::quantile(double share, double smallest, double largest) {
  merge();
  double total = 0.0;
  for (const Mean &mean : m_means)
    total += mean.weight;
  const double wanted = share * total;
  // Half of a mean's weight lies on each side of it.
  double left = smallest;
  double leftRank = 0.0;
  double rank = 0.0;
  for (const Mean &mean : m_means) {
    const double middle = rank + mean.weight / 2.0;
    if (wanted < middle)
      return left + (mean.at - left) * (wanted - leftRank) / (middle - leftRank);
    left = mean.at;
    leftRank = middle;
    rank += mean.weight;
  }
  return total > leftRank ? left + (largest - left) * (wanted - leftRank) / (total - leftRank) : largest;
}
