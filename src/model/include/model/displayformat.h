#pragma once

#include <QString>

/// Numbers as people read them. What is computed, stored or copied keeps its exact text; this is for the eye only.
namespace DisplayFormat {

constexpr int Digits = 6; ///< significant ones, unless somebody asks for others

/// A number to some significant digits, without needless zeros: 83.84299999999999 reads 83.843, 0.0003 stays 0.0003 and
/// 1234567 stays 1234567. Powers of ten are written only below 1e-5 and from 1e15 on.
QString number(double value, int digits = Digits);

/// Decimals with which numbers up to this magnitude show that many significant digits, so that a column or a drawing of
/// them can be written alike (79.70 beside 79.84). Never negative.
int decimals(double largestMagnitude, int digits = Digits);

/// A number with just these decimals. One too small to show any digit that way falls back to number(): it is not 0.
QString fixed(double value, int decimals);

} // namespace DisplayFormat
