#pragma once

#include <QString>
#include <qwt_interval.h>

#include <vector>

/// Where a scale is marked, and with which numbers.
namespace ScaleTicks {

/// Round numbers within the interval, ascending: at most about so many; the one value of an interval without width.
std::vector<double> within(const QwtInterval &interval, int atMost);
/// A tick with as many digits as tell it from the others.
QString text(double tick, const std::vector<double> &ticks);

} // namespace ScaleTicks
