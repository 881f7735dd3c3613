#pragma once

#include <base/index.h>
#include <model/element.h>

#include <QString>

#include <functional>
#include <memory>
#include <string_view>

/// A named collection of elements of one kind, keyed by name regardless of case: looked up by hash, walked in the
/// case-insensitive order of the names. Elements keep their address until they are erased. A copy is deep.
class elements {
public:
  struct Entry {
    PropertyText id;         ///< the name under which the element was inserted
    mutable element value;   ///< mutable: the key is id, not the contents
    mutable Index index = 0; ///< in name order, from 0; valid from begin() until elements are added or erased
    QString name() const { return id.toString(); }
  };
  class const_iterator;

  explicit elements(QString name);
  elements(const elements &other);
  elements(elements &&other) noexcept;
  elements &operator=(const elements &other);
  elements &operator=(elements &&other) noexcept;
  ~elements();

  const QString &name() const { return m_name; }
  std::size_t size() const noexcept;
  void reserve(std::size_t count); ///< room for so many, to spare growing
  bool isEmpty() const noexcept { return size() == 0; }

  /// Unchecked lookup: null when there is no such name.
  element *find(std::string_view utf8) const;
  element *find(const QString &id) const;
  element *find(const PropertyText &id) const { return find(id.utf8()); }
  /// The entry rather than its element, for the spelling of the name.
  const Entry *findEntry(std::string_view utf8) const;

  /// In name order, those whose names begin with the text, regardless of case; at most so many.
  std::vector<const Entry *> beginningWith(const QString &text, std::size_t most) const;

  /// Checked lookup; throws elements_out_of_range.
  element &at(const QString &id) const;
  /// Throws elements_insert_exception when the name exists.
  element &insert(const PropertyText &id, element value);
  element &insert(const QString &id, element value) { return insert(PropertyText(id), std::move(value)); }

  /// As insert(); null, and the value untouched, when the name exists.
  element *tryInsert(const PropertyText &id, element &&value);

  bool erase(const QString &id);
  /// Linear: erases every entry for which the predicate holds, asked in name order; returns how many.
  std::size_t eraseIf(const std::function<bool(const Entry &)> &predicate);
  void clear();

  /// Name order.
  const_iterator begin() const;
  const_iterator end() const;

private:
  struct Storage;
  void sort() const;

  QString m_name;
  std::unique_ptr<Storage> m_storage;
};

class elements::const_iterator {
public:
  using iterator_category = std::forward_iterator_tag;
  using value_type = Entry;
  using difference_type = std::ptrdiff_t;
  using pointer = const Entry *;
  using reference = const Entry &;

  const_iterator() = default;
  const_iterator(const Entry *const *position, const Entry *const *end)
      : m_position(position)
      , m_end(end) {}
  reference operator*() const { return **m_position; }
  pointer operator->() const { return *m_position; }
  const_iterator &operator++() {
    ++m_position;
    fetchAhead();
    return *this;
  }
  friend bool operator==(const_iterator a, const_iterator b) { return a.m_position == b.m_position; }
  friend bool operator!=(const_iterator a, const_iterator b) { return a.m_position != b.m_position; }

private:
  /// Elements lie all over the memory: those to come are fetched while the present one is looked at.
  void fetchAhead() const {
    constexpr std::ptrdiff_t EntriesAhead = 12;
    constexpr std::ptrdiff_t PropertiesAhead = 6;
    if (m_end - m_position <= EntriesAhead)
      return;
    __builtin_prefetch(m_position[EntriesAhead]);
    m_position[PropertiesAhead]->value.prefetch();
  }

  const Entry *const *m_position = nullptr;
  const Entry *const *m_end = nullptr;
};
