#pragma once

#include <formulas/formulaerror.h>
#include <formulas/formulareference.h>
#include <model/netdata.h>

#include <QString>

#include <memory>
#include <vector>

class FormulaParsers;

/// An expression over properties of elements: "p@N1" is property p of element N1, "p@ELE" that of the current one,
/// "p@node1@ELE" that of its first node. In names the characters < > * + - . / | are written as &lt; &gt; &#42; &#43;
/// &#45; &#46; &#47; &#124;, and others as &#N; likewise. Parsed once, evaluated for many elements by binding the values
/// anew. Numbers bind as numbers, other texts as texts, and what is missing as "_null_".
class Formula {
public:
  using Bare = FormulaReference::Bare;
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

private:
  struct Engine;
  std::unique_ptr<Engine> m_engine;
};
