#pragma once

#include <QCoreApplication>
#include <QString>

#include <cmath>
#include <vector>

/// What a person asks of the cells of a column:
///
/// - `>10`, `>=10`, `<10`, `<=10` compare, numbers by size and texts in natural order;
/// - `5..20`, `..20` and `5..` ask for a range, both ends included;
/// - `=x` and `<>x` (or `!=x`) ask for a value or for any other, where a number is as equal as it reads when it is rounded;
/// - `=` alone asks for empty cells, `<>` alone for others;
/// - any other text must be part of the cell's, regardless of case;
/// - ` & ` joins what must hold together, ` | ` what may hold instead.
///
/// Numbers have a decimal point or comma, and are in the unit of the column.
class RowFilter {
  Q_DECLARE_TR_FUNCTIONS(RowFilter)
public:
  RowFilter() = default;
  /// \param ofNumbers whether the column holds numbers, so that comparing with a text is a mistake
  RowFilter(const QString &text, bool ofNumbers);

  /// Lets every row pass: nothing is asked, or something that makes no sense.
  bool passesAll() const { return m_alternatives.empty(); }
  /// What is wrong with the text, for the person who types it; empty when it is right.
  const QString &fault() const { return m_fault; }

  /// \param number of the cell, NaN when it holds none
  /// \param text tells the text of the cell, which is asked for only when it matters
  template <typename Text>
  bool passes(double number, const Text &text) const {
    if (passesAll())
      return true;
    if (!std::isnan(number) && !m_needsTexts)
      return holds(number, QString());
    return holds(number, text());
  }

private:
  enum class Asks { Part, Equal, Unequal, Less, LessOrEqual, Greater, GreaterOrEqual, Range, Empty, NotEmpty };
  struct Condition {
    Asks asks = Asks::Part;
    QString text;
    bool isNumber = false;
    double low = 0.0; ///< the number of a comparison
    double high = 0.0;
  };

  Condition condition(const QString &text, bool ofNumbers);
  Condition comparison(const QString &sign, const QString &operand, bool ofNumbers);
  bool range(const QString &text, bool ofNumbers, Condition &range);
  bool holds(double number, const QString &text) const;
  static bool holds(const Condition &condition, double number, const QString &text);

  std::vector<std::vector<Condition>> m_alternatives;
  bool m_needsTexts = false; ///< also of cells that hold numbers
  QString m_fault;
};
