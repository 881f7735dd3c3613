#pragma once

#include <QApplication>
#include <QFontMetricsF>

#include <algorithm>

/// How much broader the letters of this machine are than those for which the limits of tests are meant; at least 1.
inline double letterScale() {
  constexpr double Usual = 228.0; // px of the words, in DejaVu Sans
  const QFontMetricsF metrics(QApplication::font());
  return std::max(1.0, metrics.horizontalAdvance(QStringLiteral("The quick brown fox jumps")) / Usual);
}
