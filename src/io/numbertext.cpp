#include "numbertext.h"

#include <cmath>

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t digitsFrom(std::string_view text, std::size_t at) {
  std::size_t end = at;
  while (end < text.size() && isDigit(text[end]))
    ++end;
  return end - at;
}

/// Where the parts of a JSON number lie in its text.
struct NumberShape {
  bool valid = false;
  bool exponent = false;
  std::size_t integerAt = 0;
  std::size_t integerDigits = 0;
  std::size_t fractionAt = 0; ///< behind the point, 0 without one
  std::size_t fractionDigits = 0;

  explicit NumberShape(std::string_view text) {
    std::size_t at = integerAt = !text.empty() && text[0] == '-' ? 1 : 0;
    integerDigits = digitsFrom(text, at);
    if (integerDigits == 0 || (integerDigits > 1 && text[at] == '0'))
      return;
    at += integerDigits;
    if (at < text.size() && text[at] == '.') {
      fractionAt = ++at;
      fractionDigits = digitsFrom(text, at);
      if (fractionDigits == 0)
        return;
      at += fractionDigits;
    }
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
      exponent = true;
      ++at;
      if (at < text.size() && (text[at] == '+' || text[at] == '-'))
        ++at;
      const std::size_t digits = digitsFrom(text, at);
      if (digits == 0)
        return;
      at += digits;
    }
    valid = at == text.size();
  }
};

/// The text without superfluous zeros when it is a plain number of few digits; empty when it must be formatted anew.
std::string_view plainNumber(std::string_view text, const NumberShape &shape) {
  constexpr std::size_t SafeDigits = 15;
  if (shape.exponent)
    return {};
  std::size_t fraction = shape.fractionDigits;
  while (fraction > 0 && text[shape.fractionAt + fraction - 1] == '0')
    --fraction;
  std::size_t significant = shape.integerDigits + fraction;
  if (text[shape.integerAt] == '0') {
    std::size_t zeros = 0;
    while (zeros < fraction && text[shape.fractionAt + zeros] == '0')
      ++zeros;
    constexpr std::size_t ZerosBeforeExponent = 3; // 0.0001 is plain, 0.00001 is 1e-05
    if (zeros > ZerosBeforeExponent)
      return {};
    significant = fraction - zeros;
  }
  if (significant > SafeDigits)
    return {};
  return text.substr(0, fraction > 0 ? shape.fractionAt + fraction : shape.integerAt + shape.integerDigits);
}

} // namespace

NumberText numberText(std::string_view token, PropertyText &text) {
  const NumberShape shape(token);
  if (!shape.valid)
    return NumberText::Invalid;
  const std::string_view plain = plainNumber(token, shape);
  if (!plain.empty()) {
    text = PropertyText(plain);
    return NumberText::Taken;
  }
  const std::optional<double> number = parseNumber(token);
  if (!number || !std::isfinite(*number))
    return NumberText::OutOfRange;
  text = PropertyText(std::string_view(formatNumber(*number)));
  return NumberText::Taken;
}
