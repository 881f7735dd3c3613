#pragma once

#include <model/propertykey.h>
#include <model/propertytext.h>

#include <QString>

#include <vector>

struct Property {
  PropertyKey key;
  PropertyText value;
};

/// One network object: a map from property name to text, in the case-insensitive order of the names, held flat.
class element {
public:
  using const_iterator = std::vector<Property>::const_iterator;

  /// Moves properties in any order out of the vector, which the caller may use again; of equal names the last value wins
  /// and its key is added to duplicates when given.
  static element fromProperties(std::vector<Property> &properties, std::vector<PropertyKey> *duplicates = nullptr);

  /// Unchecked lookup: null when there is no such property. The pointer lives until the element is changed.
  const PropertyText *find(PropertyKey key) const noexcept;
  const PropertyText *find(const QString &key) const { return find(PropertyKey::find(key)); }
  /// The value as text, empty when there is no such property.
  QString value(PropertyKey key) const;
  QString value(const QString &key) const { return value(PropertyKey::find(key)); }
  bool contains(const QString &key) const { return find(key) != nullptr; }

  /// Checked lookup; throws element_out_of_range.
  const PropertyText &at(const QString &key) const;
  /// Checked insert; throws element_insert_exception when the property exists.
  void insert(const QString &key, const QString &value);

  /// Inserts or overwrites.
  void set(PropertyKey key, PropertyText value);
  void set(const QString &key, const QString &value) { set(PropertyKey::intern(key), PropertyText(value)); }
  /// Another value for the property at an index of the iteration.
  void replace(std::size_t index, PropertyText value) { m_properties[index].value = std::move(value); }
  bool erase(PropertyKey key);
  bool erase(const QString &key) { return erase(PropertyKey::find(key)); }
  void clear() { m_properties.clear(); }
  void reserve(std::size_t count) { m_properties.reserve(count); }

  std::size_t size() const noexcept { return m_properties.size(); }
  bool isEmpty() const noexcept { return m_properties.empty(); }
  const_iterator begin() const noexcept { return m_properties.begin(); }
  const_iterator end() const noexcept { return m_properties.end(); }

  /// Has the processor fetch the first properties, which lie anywhere in the memory, ahead of their use.
  void prefetch() const noexcept {
    constexpr std::size_t FetchedBytes = 128; // two cache lines, which processors fetch together
    constexpr std::size_t Fetches = 4;
    const auto *properties = reinterpret_cast<const char *>(m_properties.data());
    for (std::size_t i = 0; i < Fetches; ++i)
      __builtin_prefetch(properties + i * FetchedBytes);
  }

  /// One line "    e[name] = value\n" per property, in key order.
  QString lines() const;

private:
  std::vector<Property>::iterator lowerBound(PropertyKey key) noexcept;

  std::vector<Property> m_properties;
};
