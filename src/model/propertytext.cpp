#include <base/textdecoding.h>
#include <base/utf8view.h>
#include <model/propertytext.h>

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <string>

namespace {

bool isBlank(char c) noexcept {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

} // namespace

PropertyText::PropertyText(std::string_view utf8) {
  assign(utf8);
}

PropertyText::PropertyText(const QString &text) {
  const QByteArray utf8 = text.toUtf8();
  assign(viewOf(utf8));
}

PropertyText::PropertyText(const PropertyText &other) {
  if (other.onHeap())
    assign(other.utf8());
  else
    std::memcpy(m_bytes, other.m_bytes, sizeof m_bytes);
}

PropertyText &PropertyText::operator=(const PropertyText &other) {
  if (this != &other)
    *this = PropertyText(other);
  return *this;
}

void PropertyText::assign(std::string_view utf8) {
  if (utf8.size() <= InlineCapacity) {
    if (!utf8.empty())
      std::memcpy(m_bytes, utf8.data(), utf8.size());
    m_bytes[InlineCapacity] = static_cast<char>(utf8.size());
    return;
  }
  const auto size =
      static_cast<std::uint32_t>(std::min<std::size_t>(utf8.size(), std::numeric_limits<std::uint32_t>::max()));
  char *data = new char[size];
  std::memcpy(data, utf8.data(), size);
  std::memcpy(m_bytes, &data, sizeof data);
  std::memcpy(m_bytes + sizeof data, &size, sizeof size);
  m_bytes[InlineCapacity] = static_cast<char>(HeapTag);
}

std::string_view PropertyText::heapText() const noexcept {
  const char *data = nullptr;
  std::uint32_t size = 0;
  std::memcpy(&data, m_bytes, sizeof data);
  std::memcpy(&size, m_bytes + sizeof data, sizeof size);
  return {data, size};
}

QString PropertyText::toString() const {
  return TextDecoding::decoded(utf8());
}

PropertyText PropertyText::ofNumber(double number, int significantDigits) {
  return PropertyText(std::string_view(formatNumber(number, significantDigits)));
}

PropertyText PropertyText::shortest(double number) {
  constexpr int Enough = 17; // digits, for any number
  for (int digits = 15; digits < Enough; ++digits) {
    const std::string text = formatNumber(number, digits);
    if (parseNumber(text) == number)
      return PropertyText(std::string_view(text));
  }
  return ofNumber(number, Enough);
}

std::optional<double> PropertyText::toDouble() const noexcept {
  return parseNumber(utf8());
}

std::optional<double> parseNumber(std::string_view utf8) noexcept {
  while (!utf8.empty() && isBlank(utf8.front()))
    utf8.remove_prefix(1);
  while (!utf8.empty() && isBlank(utf8.back()))
    utf8.remove_suffix(1);
  if (utf8.size() > 1 && utf8.front() == '+' && utf8[1] != '-' && utf8[1] != '+')
    utf8.remove_prefix(1);
  double value = 0.0;
  const auto [end, error] = std::from_chars(utf8.data(), utf8.data() + utf8.size(), value);
  if (utf8.empty() || end != utf8.data() + utf8.size())
    return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    // from_chars leaves the value alone: the exponent's sign tells a vanishing number from an endless one.
    const auto exponent = utf8.find_first_of("eE");
    const bool tiny = (exponent != std::string_view::npos && exponent + 1 < utf8.size() && utf8[exponent + 1] == '-') ||
                      (exponent == std::string_view::npos && utf8.find('.') < 3);
    value = tiny ? 0.0 : std::numeric_limits<double>::infinity();
    return utf8.front() == '-' ? -value : value;
  }
  if (error != std::errc())
    return std::nullopt;
  return value;
}

std::string formatNumber(double value, int significantDigits) {
  char text[64];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value, std::chars_format::general, significantDigits);
  return error == std::errc() ? std::string(text, end) : std::string();
}
