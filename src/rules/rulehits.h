#pragma once

#include <model/elements.h>

#include <array>
#include <utility>
#include <vector>

/// A place where a rule is broken.
struct RuleHit {
  using Entries = std::vector<const elements::Entry *>;

  Entries entries{};              ///< the first one stands for all
  std::array<double, 4> values{}; ///< what the rule's text says of it
  bool isMinor = false;           ///< for information, whatever the rule is otherwise
};

/// What one rule found. A network that is wrong altogether must not fill the memory: of very many only the first are kept.
class RuleHits {
public:
  static constexpr std::size_t MostHits = 5000;
  static constexpr std::size_t MostElements = 10000; ///< of one hit

  void add(RuleHit hit) {
    ++m_count;
    if (m_hits.size() < MostHits)
      m_hits.push_back(std::move(hit));
  }
  /// The entries at these indices, as far as a hit has room for them.
  template <typename Items>
  static RuleHit::Entries entriesOf(const Items &items, const std::vector<Index> &indices) {
    RuleHit::Entries entries;
    const std::size_t count = std::min(indices.size(), MostElements);
    entries.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
      entries.push_back(items[indices[i]].entry);
    return entries;
  }

  const std::vector<RuleHit> &hits() const { return m_hits; }
  std::size_t count() const { return m_count; } ///< with those that were not kept

private:
  std::vector<RuleHit> m_hits;
  std::size_t m_count = 0;
};
