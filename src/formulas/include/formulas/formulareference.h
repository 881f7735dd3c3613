#pragma once

#include <model/propertykey.h>

#include <QHash>
#include <QString>

#include <vector>

class NetData;
class element;

/// Names in formulas that stand for other elements, such as those of a template for what was made of them.
class FormulaNames {
public:
  void add(const QString &name, const QString &element) { m_elements.insert(name.toCaseFolded(), element); }
  /// The element that the name stands for, which is the name itself when there is no other.
  QString element(const QString &name) const { return m_elements.value(name.toCaseFolded(), name); }

private:
  QHash<QString, QString> m_elements;
};

/// What a formula refers to: a property of an element, perhaps by way of properties that name other elements.
struct FormulaReference {
  /// Whether a bare name is a property of the current element or an error.
  enum class Bare { Refused, OfCurrent };

  PropertyKey property;
  std::vector<PropertyKey> path; ///< from the element to the one that has the property, in the order of going
  QString elementName;           ///< empty for the current element
  bool isText = false;           ///< also a number is taken as text: isnull() and its like ask for texts

  /// Where the path begins; null when there is no such element. \param names null for none
  const element *start(const NetData &net, const element *current, const FormulaNames *names) const;
  /// What stands in an expression for a value that does not exist.
  static constexpr const char *Null = "_null_";
  /// As it is written in formulas, but without escapes.
  QString written() const;
};
