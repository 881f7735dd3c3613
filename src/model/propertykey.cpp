#include <base/textdecoding.h>
#include <base/utf8view.h>
#include <model/propertykey.h>

#include <map>
#include <memory>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <unordered_map>

namespace {

struct CaseInsensitiveLess {
  bool operator()(const QString &a, const QString &b) const { return QString::compare(a, b, Qt::CaseInsensitive) < 0; }
};

using Spelling = PropertyKey::Spelling;

class KeyTable {
public:
  static KeyTable &instance() {
    static KeyTable table;
    return table;
  }

  /// Null when the spelling, and with anyCase every other spelling of the name, is unknown.
  const Spelling *find(std::string_view utf8) const {
    const std::shared_lock lock(m_mutex);
    const auto exact = m_spellings.find(utf8);
    if (exact != m_spellings.end())
      return exact->second.get();
    const auto group = m_groups.find(TextDecoding::decoded(utf8));
    return group == m_groups.end() ? nullptr : group->second.representative;
  }

  const Spelling *intern(std::string_view utf8) {
    {
      const std::shared_lock lock(m_mutex);
      const auto found = m_spellings.find(utf8);
      if (found != m_spellings.end())
        return found->second.get();
    }
    const std::unique_lock lock(m_mutex);
    return add(utf8);
  }

private:
  struct NamedGroup {
    std::unique_ptr<PropertyKey::Group> group;
    const Spelling *representative = nullptr;
  };
  using Groups = std::map<QString, NamedGroup, CaseInsensitiveLess>;

  static constexpr unsigned long long Spacing = 1ULL << 32;

  const Spelling *add(std::string_view utf8) {
    const auto found = m_spellings.find(utf8);
    if (found != m_spellings.end())
      return found->second.get();
    auto spelling = std::make_unique<Spelling>();
    spelling->utf8 = utf8;
    spelling->index = m_spellings.size();
    spelling->name = TextDecoding::decoded(utf8);
    auto [position, isNew] = m_groups.try_emplace(spelling->name);
    if (isNew) {
      position->second.group = std::make_unique<PropertyKey::Group>();
      position->second.representative = spelling.get();
      rank(position);
    }
    spelling->group = position->second.group.get();
    const Spelling *result = spelling.get();
    m_spellings.emplace(std::string_view(result->utf8), std::move(spelling));
    return result;
  }

  /// Gives the new group a number between those of its neighbours. Where there is none, the numbers around are spread
  /// anew: over the smallest range, of doubling sizes, that is filled sparsely enough for its size. So names that come in
  /// any order cost a few renumberings each. (Bender, Cole, Demaine, Farach-Colton, Zito: Two simplified algorithms for
  /// maintaining order in a list, 2002.)
  void rank(Groups::iterator added) {
    const unsigned long long below = added == m_groups.begin() ? 0 : std::prev(added)->second.group->rank;
    const auto next = std::next(added);
    const unsigned long long above = next == m_groups.end() ? below + 2 * Spacing : next->second.group->rank;
    if (above - below >= 2)
      added->second.group->rank = below + (above - below) / 2;
    else
      spread(added, below);
  }

  void spread(Groups::iterator added, unsigned long long at) {
    constexpr double MostFilled = 1.4; // a range may be filled to one part in so many, to the power of its level
    added->second.group->rank = at;
    auto first = added;
    auto last = added;
    unsigned long long count = 1;
    double capacity = 1.0;
    for (unsigned level = 1; level < 63; ++level) {
      const unsigned long long size = 1ULL << level;
      const unsigned long long low = at & ~(size - 1);
      capacity *= 2.0 / MostFilled;
      for (; first != m_groups.begin() && std::prev(first)->second.group->rank >= low; --first)
        ++count;
      for (; std::next(last) != m_groups.end() && std::next(last)->second.group->rank <= low + (size - 1); ++last)
        ++count;
      const unsigned long long step = size / (count + 1);
      if (static_cast<double>(count) > capacity || step < 2)
        continue;
      unsigned long long rank = low;
      for (auto group = first; group != std::next(last); ++group)
        group->second.group->rank = rank += step;
      return;
    }
  }

  mutable std::shared_mutex m_mutex;
  std::unordered_map<std::string_view, std::unique_ptr<Spelling>> m_spellings; // keyed by a view into the spelling itself
  Groups m_groups;
};

} // namespace

PropertyKey PropertyKey::intern(std::string_view utf8) {
  return PropertyKey(KeyTable::instance().intern(utf8));
}

PropertyKey PropertyKey::intern(const QString &name) {
  const QByteArray utf8 = name.toUtf8();
  return intern(viewOf(utf8));
}

PropertyKey PropertyKey::find(std::string_view utf8) {
  return PropertyKey(KeyTable::instance().find(utf8));
}

PropertyKey PropertyKey::find(const QString &name) {
  const QByteArray utf8 = name.toUtf8();
  return find(viewOf(utf8));
}

QString PropertyKey::name() const {
  return m_spelling == nullptr ? QString() : m_spelling->name;
}

std::string_view PropertyKey::utf8() const noexcept {
  return m_spelling == nullptr ? std::string_view() : std::string_view(m_spelling->utf8);
}
