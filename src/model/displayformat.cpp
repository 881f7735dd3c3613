#include <base/settings.h>
#include <model/displayformat.h>

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace DisplayFormat {

namespace {

constexpr double SmallestPlain = 1e-5;
constexpr double LargestPlain = 1e15;
constexpr int MostDigits = 17;
constexpr QChar Point = QLatin1Char('.');
constexpr QChar Comma = QLatin1Char(',');
constexpr QChar ThinSpace(0x2009);

/// What stands between the digits.
struct Signs {
  QChar decimal = Point;
  QString thousands; ///< empty: they are not parted
};

struct Style {
  Signs signs;
  Signs ofLabels;
  int digits = 6;
  int digitsOfLabels = 4;
  bool countsDecimals = false; ///< else significant digits
};

QString separator(const QString &name, QChar decimal, QChar space) {
  if (name == QLatin1String("space"))
    return space;
  if (name == QLatin1String("apostrophe"))
    return QStringLiteral("'");
  return name == QLatin1String("other sign") ? QString(decimal == Point ? Comma : Point) : QString();
}

QString inForce(const QString &key) {
  return GeneralSettings::instance().value(key);
}

Style styleOf(const ValueOf &valueOf) {
  Style style;
  const QString thousands = valueOf(Settings::Thousands.key());
  style.signs.decimal = valueOf(Settings::DecimalSign.key()) == QLatin1String("comma") ? Comma : Point;
  style.signs.thousands = separator(thousands, style.signs.decimal, ThinSpace);
  style.ofLabels = style.signs;
  if (thousands == QLatin1String("labels only"))
    style.ofLabels.thousands = ThinSpace;
  style.digits = std::clamp(valueOf(Settings::NumberDigits.key()).toInt(), 1, MostDigits);
  style.digitsOfLabels = std::clamp(valueOf(Settings::NumberDigitsInLabels.key()).toInt(), 1, MostDigits);
  style.countsDecimals = valueOf(Settings::NumberForm.key()) == QLatin1String("decimals");
  return style;
}

/// Asked for every number that is painted, by several threads.
const Style &screen() {
  thread_local Style style;
  thread_local unsigned revision = 0;
  const unsigned present = GeneralSettings::instance().revision();
  if (revision != present) {
    style = styleOf(inForce);
    revision = present;
  }
  return style;
}

/// Of the number as it reads once it is rounded: 9.9999996 has the exponent of 10.
int decimalExponent(double magnitude, int digits) {
  const QString scientific = QString::number(magnitude, 'e', std::max(digits - 1, 0));
  return scientific.mid(scientific.indexOf(QLatin1Char('e')) + 1).toInt();
}

QString withoutTrailingZeros(QString text) {
  if (!text.contains(Point))
    return text;
  while (text.endsWith(QLatin1Char('0')))
    text.chop(1);
  if (text.endsWith(Point))
    text.chop(1);
  return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

bool hasPowerOfTen(const QString &text) {
  return text.contains(QLatin1Char('e'), Qt::CaseInsensitive);
}

QString plainNumber(double value, int digits) {
  const double magnitude = std::abs(value);
  if (!std::isfinite(value) || (magnitude > 0 && (magnitude < SmallestPlain || magnitude >= LargestPlain)))
    return QString::number(value, 'g', digits);
  return withoutTrailingZeros(QString::number(value, 'f', decimals(magnitude, digits)));
}

QString plainFixed(double value, int decimals) {
  if (!std::isfinite(value) || std::abs(value) >= LargestPlain)
    return QString::number(value, 'g', std::max(decimals, 2));
  QString text = QString::number(value, 'f', decimals);
  const bool showsNoDigit =
      std::none_of(text.begin(), text.end(), [](QChar c) { return c >= QLatin1Char('1') && c <= QLatin1Char('9'); });
  if (!showsNoDigit)
    return text;
  return value == 0.0 ? QString::number(0.0, 'f', decimals) : plainNumber(value, 2);
}

/// \param text of a number, with a point
QString withSigns(QString text, const Signs &signs) {
  constexpr int Group = 3;
  const int point = text.indexOf(Point);
  const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) {
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || c == Point || c == QLatin1Char('-');
  });
  if (point >= 0)
    text[point] = signs.decimal;
  const int first = text.startsWith(QLatin1Char('-')) ? 1 : 0;
  for (int i = (point < 0 ? text.size() : point) - Group; isPlain && !signs.thousands.isEmpty() && i > first; i -= Group)
    text.insert(i, signs.thousands);
  return text;
}

/// A decimal number as files and programs write it.
bool isNumber(const QString &text) {
  static const QRegularExpression pattern(QStringLiteral("^\\s*[-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][-+]?\\d+)?\\s*$"));
  return pattern.match(text).hasMatch();
}

/// Digits of a number as it is written, without the zeros before the first other one.
int significantDigits(const QString &number) {
  int digits = 0;
  for (const QChar c : number) {
    if (c == QLatin1Char('e') || c == QLatin1Char('E'))
      break;
    if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
      digits += digits > 0 || c != QLatin1Char('0') ? 1 : 0;
  }
  return digits;
}

QString rounded(const QString &exact, bool isQuantity, const Style &style) {
  const bool hasFraction = exact.contains(Point) || hasPowerOfTen(exact);
  const double number = exact.toDouble();
  if (style.countsDecimals)
    return hasFraction || isQuantity ? plainFixed(number, style.digits) : exact;
  return hasFraction && significantDigits(exact) > style.digits ? plainNumber(number, style.digits) : exact;
}

QString onScreen(double value, const Style &style) {
  return withSigns(style.countsDecimals ? plainFixed(value, style.digits) : plainNumber(value, style.digits), style.signs);
}

QString inLabels(double value, int decimalsAtMost, const Style &style) {
  QString text = plainNumber(value, style.digitsOfLabels);
  if (decimalsAtMost >= 0 && !hasPowerOfTen(text))
    text = plainFixed(value, std::min(decimalsAtMost, decimals(value, style.digitsOfLabels)));
  return withSigns(text, style.ofLabels);
}

QString inFiles(const QString &exact, bool useComma, const ValueOf &valueOf) {
  Signs signs;
  signs.decimal = useComma ? Comma : Point;
  if (!isNumber(exact))
    return QString(exact).replace(Point, signs.decimal);
  signs.thousands = separator(valueOf(Settings::ThousandsInFiles.key()), signs.decimal, QLatin1Char(' '));
  const int digits = valueOf(Settings::NumberDigitsInFiles.key()).toInt(); // 0: all
  const bool isRounded = digits > 0 && exact.contains(Point) && significantDigits(exact) > digits;
  return withSigns(isRounded ? plainNumber(exact.toDouble(), digits) : exact, signs);
}

} // namespace

QString number(double value) {
  return onScreen(value, screen());
}

QString sampleOnScreen(double value, const ValueOf &valueOf) {
  return onScreen(value, styleOf(valueOf));
}

QString sampleInLabels(double value, const ValueOf &valueOf) {
  return inLabels(value, -1, styleOf(valueOf));
}

QString sampleInFiles(const QString &exact, const ValueOf &valueOf) {
  return inFiles(exact, valueOf(Settings::UseComma.key()) == QLatin1String("1"), valueOf);
}

QString number(double value, int digits) {
  return withSigns(plainNumber(value, digits), screen().signs);
}

QString shown(const QString &exact, bool isQuantity) {
  if (!isNumber(exact))
    return exact;
  const Style &style = screen();
  Signs signs = style.signs;
  if (!isQuantity)
    signs.thousands.clear();
  return withSigns(rounded(exact, isQuantity, style), signs);
}

QString inFile(const QString &exact, bool useComma) {
  return inFiles(exact, useComma, inForce);
}

QChar decimalSign() {
  return screen().signs.decimal;
}

QString typed(const QString &text, QChar sign) {
  static const QRegularExpression ofPoints(QStringLiteral("^[-+]?\\d{1,3}(?:\\.\\d{3})+(?:,\\d*)?$"));
  static const QRegularExpression ofCommas(QStringLiteral("^[-+]?\\d{1,3}(?:,\\d{3})+(?:\\.\\d*)?$"));
  QString trimmed = text.trimmed();
  if (isNumber(trimmed))
    return trimmed;
  QString number = trimmed;
  for (const QChar parting : {ThinSpace, QChar(QLatin1Char(' ')), QChar(QLatin1Char('\''))})
    number.remove(parting);
  if ((sign == Comma ? ofPoints : ofCommas).match(number).hasMatch())
    number.remove(sign == Comma ? Point : Comma);
  number.replace(sign, Point);
  return isNumber(number) ? number : trimmed;
}

QString editable(const QString &text) {
  return isNumber(text) ? QString(text).replace(Point, screen().signs.decimal) : text;
}

int digitsOfLabels() {
  return screen().digitsOfLabels;
}

QString inLabel(double value, int decimalsAtMost) {
  return inLabels(value, decimalsAtMost, screen());
}

int decimals(double largestMagnitude, int digits) {
  const double magnitude = std::abs(largestMagnitude);
  if (!(magnitude > 0) || !std::isfinite(magnitude))
    return 0;
  return std::max(0, digits - 1 - decimalExponent(magnitude, digits));
}

int decimalsNeeded(double value, int digits) {
  const QString text = plainNumber(value, digits);
  const int point = text.indexOf(Point);
  return point < 0 || hasPowerOfTen(text) ? 0 : text.size() - point - 1;
}

QString fixed(double value, int decimals) {
  return withSigns(plainFixed(value, decimals), screen().signs);
}

} // namespace DisplayFormat
