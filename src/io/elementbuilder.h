#pragma once

#include "readreport.h"
#include "record.h"

#include <model/element.h>

#include <QRegularExpression>

#include <string>
#include <vector>

/// Turns parsed lines into elements: keys are interned, include lists applied, name and type set.
class ElementBuilder {
public:
  ElementBuilder(const QString &includeTypes, const QString &includeProperties, ReadReport &report);

  /// False when the element is left out (unknown type, not in the include list).
  bool buildElement(ElementRecord &parsed, int line, element &built);
  /// The properties alone, in file order, for elements that exist.
  std::vector<Property> &properties(ElementRecord &parsed, int line);

private:
  struct Key {
    std::string raw;
    PropertyKey key;
    bool included = true;
  };

  const Key &key(std::size_t position, std::string_view raw);
  bool isTypeIncluded(const QString &word, const QString &code) const;
  const struct ElementType *knownType(std::string_view word);
  QRegularExpression pattern(const QString &text, const QString &what);

  ReadReport &m_report;
  QRegularExpression m_includeTypes;
  QRegularExpression m_includeProperties;
  void sortAsBefore(std::vector<Property> &list);

  // Elements of one type mostly spell the same properties in the same order, so that position tells the key, and the order
  // that sorted the last element sorts this one.
  std::vector<Key> m_keys;
  std::vector<std::size_t> m_order;
  std::vector<Property> m_sorted;
  std::vector<Property> m_properties;
  std::string m_lastWord;
  const struct ElementType *m_lastType = nullptr;
};
