#pragma once

#include <QColor>

/// How well colours can be told apart (WCAG 2, IEC 61966-2-1).
namespace Contrast {

constexpr double OfTexts = 4.5;
constexpr double OfLines = 3.0;

/// Relative luminance, 0 to 1.
double luminance(QRgb color);
/// 1 for the same, up to 21 for black and white.
double ratio(const QColor &a, const QColor &b);
/// The colour where it has this ratio to the ground, else one of its hue that has: lighter on a dark ground, darker on a
/// light one.
QColor legible(const QColor &color, const QColor &ground, double least);
/// What is seen of the colour on a ground that shines through.
QColor over(const QColor &color, const QColor &ground);

} // namespace Contrast
