#pragma once

#include <model/displayformat.h>

#include <QString>

#include <cmath>

/// Large numbers as whole ones, others to a few digits.
inline QString shownNumber(double number, int digits = 4) {
  constexpr double Whole = 1000.0;
  return std::abs(number) >= Whole ? DisplayFormat::fixed(number, 0) : DisplayFormat::number(number, digits);
}
