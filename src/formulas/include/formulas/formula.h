#pragma once

#include <model/netdata.h>

#include <QHash>
#include <QString>

#include <memory>
#include <stdexcept>
#include <vector>

/// What is wrong with a formula.
class FormulaError : public std::runtime_error {
public:
  explicit FormulaError(const QString &text, bool isForMissingValue = false)
      : std::runtime_error(text.toStdString())
      , m_isForMissingValue(isForMissingValue) {}
  QString text() const { return QString::fromUtf8(what()); }
  /// The formula reads something that does not exist for the element.
  bool isForMissingValue() const { return m_isForMissingValue; }

private:
  bool m_isForMissingValue;
};

/// What a formula refers to: a property of an element, perhaps by way of properties that name other elements.
struct FormulaReference {
  PropertyKey property;
  std::vector<PropertyKey> path; ///< from the element to the one that has the property, in the order of going
  QString elementName;           ///< empty for the current element
};

/// An expression over properties of elements: "p@N1" is property p of element N1, "p@ELE" that of the current one,
/// "p@node1@ELE" that of its first node. In names the characters < > * + - . / | are written as &lt; &gt; &#42; &#43;
/// &#45; &#46; &#47; &#124;, and others as &#N; likewise. Parsed once, evaluated for many elements by binding the values
/// anew. Numbers bind as numbers, other texts as texts, and what is missing as "_null_".
class Formula {
public:
  /// Whether a bare name is a property of the current element or an error.
  enum class Bare { Refused, OfCurrent };
  /// As numbers, truth values and texts of the expression engine print: "0" and "1" for false and true.
  struct Result {
    QString text;
    double number = NetData::NoValue; ///< when it is one, or a truth value
  };

  /// Throws FormulaError when the text cannot be parsed, or asks for more than is bearable.
  /// \param net whose elements are named; it must outlive the formula
  Formula(const QString &text, const NetData &net, Bare bare = Bare::Refused);
  ~Formula();
  Formula(Formula &&other) noexcept;
  Formula &operator=(Formula &&other) noexcept;

  /// Throws FormulaError when the expression cannot be computed with these values.
  Result evaluate(const element &current) const;
  /// Whether the result is anything but "0", which saves making its text. Throws as evaluate().
  bool accepts(const element &current) const;

  const std::vector<FormulaReference> &references() const;

  /// The name as it is written in a formula.
  static QString escaped(const QString &name);
  /// The formula with other names of elements, where there are others for them.
  static QString renamed(const QString &text, const QHash<QString, QString> &names);

private:
  struct Engine;
  std::unique_ptr<Engine> m_engine;
};
