#include <model/valuejournal.h>

#include <algorithm>
#include <set>
#include <utility>

bool ValueJournal::Less::operator()(const Keys &a, const Keys &b) const {
  const auto isBefore = [](PropertyKey x, PropertyKey y) {
    return x.index() < y.index();
  };
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), isBefore);
}

void ValueJournal::set(element &target, PropertyKey key, PropertyText value) {
  const PropertyText *before = target.find(key);
  if (before != nullptr) {
    if (*before == value)
      return;
    m_overwritten.push_back({&target, key, *before});
  } else {
    if (m_current != &target)
      finishElement();
    m_current = &target;
    m_present.push_back(key);
  }
  target.set(key, std::move(value));
}

void ValueJournal::finishElement() {
  if (m_current == nullptr)
    return;
  const auto [known, isNew] = m_listNumbers.try_emplace(m_present, static_cast<std::uint32_t>(m_lists.size()));
  if (isNew)
    m_lists.push_back(m_present);
  m_added.push_back({m_current, known->second});
  m_current = nullptr;
  m_present.clear();
}

std::vector<PropertyKey> ValueJournal::keys() const {
  std::set<PropertyKey> found(m_present.begin(), m_present.end());
  for (const Keys &list : m_lists)
    found.insert(list.begin(), list.end());
  for (const Overwritten &entry : m_overwritten)
    found.insert(entry.key);
  return {found.begin(), found.end()};
}

bool ValueJournal::touches(const std::vector<PropertyKey> &keys) const {
  const std::vector<PropertyKey> own = this->keys();
  return std::any_of(keys.begin(), keys.end(),
                     [&own](PropertyKey key) { return std::binary_search(own.begin(), own.end(), key); });
}

void ValueJournal::keepOnly(const std::function<bool(const element *)> &isThere) {
  finishElement();
  const auto isGone = [&isThere](const auto &entry) {
    return !isThere(entry.target);
  };
  m_added.erase(std::remove_if(m_added.begin(), m_added.end(), isGone), m_added.end());
  m_overwritten.erase(std::remove_if(m_overwritten.begin(), m_overwritten.end(), isGone), m_overwritten.end());
}

namespace {

/// The value as it is, which is taken out of the element.
std::optional<PropertyText> taken(element &target, PropertyKey key) {
  const PropertyText *value = target.find(key);
  if (value == nullptr)
    return std::nullopt;
  std::optional<PropertyText> copy(*value);
  target.erase(key);
  return copy;
}

void swapIn(element &target, PropertyKey key, std::optional<PropertyText> &value) {
  const PropertyText *present = target.find(key);
  std::optional<PropertyText> before;
  if (present != nullptr)
    before = *present;
  if (value)
    target.set(key, std::move(*value));
  else
    target.erase(key);
  value = std::move(before);
}

} // namespace

// An element may first get a value and then another one: overwritten values go back from the last to the first, before what
// was absent is taken away.
ValueJournal::Shelf ValueJournal::takeOff() {
  finishElement();
  Shelf shelf{std::move(m_added), {}, std::move(m_overwritten), std::move(m_lists)};
  *this = ValueJournal();
  for (auto entry = shelf.overwritten.rbegin(); entry != shelf.overwritten.rend(); ++entry)
    swapIn(*entry->target, entry->key, entry->value);
  for (const Added &added : shelf.added) {
    for (const PropertyKey key : shelf.lists[added.list])
      shelf.values.push_back(taken(*added.target, key));
  }
  return shelf;
}

void ValueJournal::layOver(Shelf shelf) {
  std::size_t next = 0;
  for (const Added &added : shelf.added) {
    for (const PropertyKey key : shelf.lists[added.list]) {
      if (std::optional<PropertyText> &value = shelf.values[next++])
        added.target->set(key, std::move(*value));
    }
  }
  for (Overwritten &entry : shelf.overwritten)
    swapIn(*entry.target, entry.key, entry.value);
  m_added = std::move(shelf.added);
  m_overwritten = std::move(shelf.overwritten);
  m_lists = std::move(shelf.lists);
  for (std::size_t i = 0; i < m_lists.size(); ++i)
    m_listNumbers.emplace(m_lists[i], static_cast<std::uint32_t>(i));
}
