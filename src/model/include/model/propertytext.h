#pragma once

#include <QString>

#include <cstring>
#include <optional>
#include <string>
#include <string_view>

/// A property value: immutable-sized UTF-8 text of 16 bytes. Up to 15 bytes lie inside, longer text on the heap; most
/// values of a network are numbers that fit. An embedded zero byte is kept.
class PropertyText {
public:
  static constexpr std::size_t InlineCapacity = 15;

  PropertyText() noexcept { m_bytes[InlineCapacity] = 0; }
  explicit PropertyText(std::string_view utf8);
  PropertyText(const QString &text); // NOLINT(google-explicit-constructor): a text is what it is
  PropertyText(const PropertyText &other);
  PropertyText(PropertyText &&other) noexcept { take(other); }
  PropertyText &operator=(const PropertyText &other);
  PropertyText &operator=(PropertyText &&other) noexcept {
    if (this != &other) {
      release();
      take(other);
    }
    return *this;
  }
  ~PropertyText() { release(); }

  /// The number as formatNumber() writes it.
  static PropertyText ofNumber(double number, int significantDigits = 16);
  /// The shortest text that reads as the very same number, so that converting back and forth does not change a bit.
  static PropertyText shortest(double number);

  std::string_view utf8() const noexcept {
    if (onHeap())
      return heapText();
    return {m_bytes, static_cast<std::size_t>(m_bytes[InlineCapacity])};
  }
  QString toString() const;
  bool isEmpty() const noexcept { return utf8().empty(); }

  /// Neither empty nor "0" nor "false": a switch that is on.
  bool isOn() const noexcept { return !isEmpty() && utf8() != "0" && utf8() != "false"; }

  /// The whole text as a floating-point number in the C locale, blanks around it ignored; nothing when it is none.
  /// "inf" and "nan" parse, as do values beyond the range (to infinity).
  std::optional<double> toDouble() const noexcept;

  friend bool operator==(const PropertyText &a, const PropertyText &b) noexcept { return a.utf8() == b.utf8(); }
  friend bool operator!=(const PropertyText &a, const PropertyText &b) noexcept { return !(a == b); }

private:
  static constexpr unsigned char HeapTag = 0xff;

  bool onHeap() const noexcept { return static_cast<unsigned char>(m_bytes[InlineCapacity]) == HeapTag; }
  void assign(std::string_view utf8);
  std::string_view heapText() const noexcept;
  void take(PropertyText &other) noexcept {
    std::memcpy(m_bytes, other.m_bytes, sizeof m_bytes);
    other.m_bytes[InlineCapacity] = 0;
  }
  void release() noexcept {
    if (onHeap())
      delete[] heapText().data();
  }

  // Inline: text in the first bytes, its length in the last. Heap: a pointer, a 32-bit length, HeapTag in the last byte.
  alignas(8) char m_bytes[InlineCapacity + 1] = {};
};

static_assert(sizeof(PropertyText) == 16, "a property value must stay this small: a network has millions of them");

/// Whether the text is the word, regardless of the case of ASCII letters. The word is given in lower case.
constexpr bool sameWord(std::string_view text, std::string_view lower) noexcept {
  if (text.size() != lower.size())
    return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != lower[i])
      return false;
  }
  return true;
}
/// toDouble() for a text that is no property value.
std::optional<double> parseNumber(std::string_view utf8) noexcept;
/// The number as text, 16 significant digits, shortest general notation ("0.1", "1e+20").
std::string formatNumber(double value, int significantDigits = 16);
