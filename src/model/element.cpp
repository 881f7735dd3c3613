#include "elementexceptions.h"

#include <model/element.h>

#include <algorithm>

element element::fromProperties(std::vector<Property> &properties, std::vector<PropertyKey> *duplicates) {
  const auto before = [](const Property &a, const Property &b) {
    return a.key < b.key;
  };
  if (!std::is_sorted(properties.begin(), properties.end(), before))
    std::stable_sort(properties.begin(), properties.end(), before);
  element result;
  result.m_properties.reserve(properties.size());
  for (Property &property : properties) {
    if (!result.m_properties.empty() && result.m_properties.back().key == property.key) {
      if (duplicates != nullptr)
        duplicates->push_back(property.key);
      result.m_properties.back().value = std::move(property.value);
    } else {
      result.m_properties.push_back(std::move(property));
    }
  }
  properties.clear();
  return result;
}

std::vector<Property>::iterator element::lowerBound(PropertyKey key) noexcept {
  return std::lower_bound(m_properties.begin(), m_properties.end(), key,
                          [](const Property &property, PropertyKey wanted) { return property.key < wanted; });
}

const PropertyText *element::find(PropertyKey key) const noexcept {
  if (key.isNull())
    return nullptr;
  const auto position = const_cast<element *>(this)->lowerBound(key);
  return position != m_properties.end() && position->key == key ? &position->value : nullptr;
}

QString element::value(PropertyKey key) const {
  const PropertyText *found = find(key);
  return found == nullptr ? QString() : found->toString();
}

const PropertyText &element::at(const QString &key) const {
  const PropertyText *found = find(key);
  if (found == nullptr)
    throw element_out_of_range(key, lines());
  return *found;
}

void element::insert(const QString &key, const QString &value) {
  if (contains(key))
    throw element_insert_exception(key, value, lines());
  set(key, value);
}

void element::set(PropertyKey key, PropertyText value) {
  if (key.isNull())
    return;
  const auto position = lowerBound(key);
  if (position != m_properties.end() && position->key == key)
    position->value = std::move(value);
  else
    m_properties.insert(position, Property{key, std::move(value)});
}

bool element::erase(PropertyKey key) {
  if (key.isNull())
    return false;
  const auto position = lowerBound(key);
  if (position == m_properties.end() || position->key != key)
    return false;
  m_properties.erase(position);
  return true;
}

QString element::lines() const {
  QString text;
  for (const Property &property : m_properties)
    text += QStringLiteral("    e[%1] = %2\n").arg(property.key.name(), property.value.toString());
  return text;
}
