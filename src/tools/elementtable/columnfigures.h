#pragma once

#include <QCoreApplication>
#include <QString>

#include <cmath>
#include <vector>

/// Count, sum, mean, smallest and largest of numbers.
class ColumnFigures {
  Q_DECLARE_TR_FUNCTIONS(ColumnFigures)
public:
  enum Kind { Count, Sum, Mean, Smallest, Largest };
  static const std::vector<Kind> &kinds();
  static QString title(Kind kind);

  /// NaN, which stands for no number, is not counted.
  void add(double number) {
    if (std::isnan(number))
      return;
    m_smallest = m_count == 0 || number < m_smallest ? number : m_smallest;
    m_largest = m_count == 0 || number > m_largest ? number : m_largest;
    m_sum += number;
    ++m_count;
  }

  std::size_t count() const { return m_count; }
  /// NaN for what there is not: all but the count and the sum of no numbers.
  double value(Kind kind) const;

private:
  std::size_t m_count = 0;
  long double m_sum = 0.0L; // so that a million numbers leave no trace of their order
  double m_smallest = 0.0;
  double m_largest = 0.0;
};
