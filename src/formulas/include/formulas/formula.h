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
  enum class Kind {
    Fault,
    MissingValue, ///< it reads something that does not exist for the element
    TooCostly     ///< this evaluation went beyond what one may cost; the formula is given up, later ones are faults
  };

  explicit FormulaError(const QString &text, Kind kind = Kind::Fault)
      : std::runtime_error(text.toStdString())
      , m_kind(kind) {}
  QString text() const { return QString::fromUtf8(what()); }
  Kind kind() const { return m_kind; }
  bool isForMissingValue() const { return m_kind == Kind::MissingValue; }

private:
  Kind m_kind;
};

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
  PropertyKey property;
  std::vector<PropertyKey> path; ///< from the element to the one that has the property, in the order of going
  QString elementName;           ///< empty for the current element
  bool isText = false;           ///< also a number is taken as text: isnull() and its like ask for texts

  /// Where the path begins; null when there is no such element. \param names null for none
  const element *start(const NetData &net, const element *current, const FormulaNames *names) const;
  /// As it is written in formulas, but without escapes.
  QString written() const;
};

class FormulaParsers;

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
  /// \param parsers shared with other formulas of one thread; null for one of its own
  Formula(const QString &text, const NetData &net, Bare bare = Bare::Refused,
          std::shared_ptr<FormulaParsers> parsers = nullptr);
  ~Formula();
  Formula(Formula &&other) noexcept;
  Formula &operator=(Formula &&other) noexcept;

  /// Throws FormulaError when the expression cannot be computed with these values, or costs more than about a millisecond.
  /// \param names that stand for other elements; null for none
  Result evaluate(const element &current, const FormulaNames *names = nullptr) const;
  /// Whether the result is anything but "0", which saves making its text. Throws as evaluate().
  bool accepts(const element &current) const;

  const std::vector<FormulaReference> &references() const;

  /// The name as it is written in a formula.
  static QString escaped(const QString &name);

private:
  struct Engine;
  std::unique_ptr<Engine> m_engine;
};
