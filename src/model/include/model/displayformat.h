#pragma once

#include <QString>

#include <functional>

/// Numbers as people read them, in the form that they chose in the general settings: how many digits, which decimal sign,
/// how thousands are parted; once for the screen and once for files. What is computed or stored keeps its exact text.
namespace DisplayFormat {

/// A number to the chosen digits, without needless zeros where significant ones are counted: 83.84299999999999 reads
/// 83.843, 0.0003 stays 0.0003 and 1234567 stays 1234567. Powers of ten are written only below 1e-5 and from 1e15 on.
QString number(double value);
/// To some significant digits, whatever was chosen.
QString number(double value, int digits);

/// The exact text of a value as a table shows it: a number with more digits than were chosen is rounded, a shorter one and
/// what is no number stay as they are, but for the signs. \param isQuantity it has a unit: then whole numbers, which may
/// else be names and years, have their thousands parted as well
QString shown(const QString &exact, bool isQuantity);

/// A number as the screen and files would have it with other values of the general settings, asked for by their keys.
using ValueOf = std::function<QString(const QString &key)>;
QString sampleOnScreen(double value, const ValueOf &valueOf);
QString sampleInLabels(double value, const ValueOf &valueOf);
QString sampleInFiles(const QString &exact, const ValueOf &valueOf);

/// The exact text of a value as it goes into a file: \param useComma with a decimal comma, also where it is no number.
QString inFile(const QString &exact, bool useComma);

QChar decimalSign();
/// What a person typed, with the decimal sign or a point and with or without parted thousands, as a number with a point;
/// what is no number stays as it is. \param sign of when the text was shown
QString typed(const QString &text, QChar sign = decimalSign());
/// A number with a point as it stands in a field where it can be changed: with the chosen decimal sign.
QString editable(const QString &text);

/// Digits of labels in the drawing, where there is less room.
int digitsOfLabels();
/// As labels write it. \param decimals at most, as neighbours have them; -1 for as many as it takes
QString inLabel(double value, int decimals = -1);

/// Decimals with which numbers up to this magnitude show that many significant digits, so that a column or a drawing of
/// them can be written alike (79.70 beside 79.84). Never negative.
int decimals(double largestMagnitude, int digits);
/// Decimals that number() writes for this one.
int decimalsNeeded(double value, int digits);

/// A number with just these decimals. One too small to show any digit that way falls back to number(): it is not 0.
QString fixed(double value, int decimals);

} // namespace DisplayFormat
