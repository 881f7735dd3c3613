#pragma once

#include <base/pattern.h>
#include <model/propertykey.h>
#include <tools/displayvalue.h>
#include <tools/tablemenu.h>

#include <QString>

#include <optional>
#include <string_view>
#include <vector>

/// The properties that a search looks at, asked once a name rather than once an element.
class SearchedProperties {
public:
  explicit SearchedProperties(const QString &pattern = QString())
      : m_pattern(pattern) {}

  bool contains(PropertyKey key);

  /// Marks of the search and leftovers of the drawing, which no pattern finds.
  static bool isNeverSearched(PropertyKey key);

private:
  Pattern m_pattern;
  std::vector<signed char> m_known; ///< by number of the spelling: -1 unknown, else the answer
};

/// The types that a search looks at: a pattern of type codes ("p", "^[vr]$"). One that no code is like is a pattern of the
/// words that people say ("pipe", "valve|regulator").
class SearchedTypes {
public:
  explicit SearchedTypes(const QString &pattern = QString());
  bool matches(const QString &code) const;

private:
  Pattern m_pattern;
  bool m_takesWords = false;
};

/// The values that a search looks for: a pattern, which may as well be read as a comparison with a number (">10", "<= 3"),
/// in the unit that is shown or in one that stands behind it ("> 40 bar").
class SearchedValues {
public:
  explicit SearchedValues(const QString &text = QString());

  /// The pattern. \param value as it is stored
  bool matches(std::string_view value) const { return m_pattern.matches(value); }
  bool compares() const { return m_comparison.has_value(); }
  /// The comparison; false when there is none, and where the unit of the value does not fit the asked one.
  bool holdsFor(const DisplayValue::Shown &shown);

private:
  double inAskedUnit(double number, const DisplayValue::Shown &shown);

  Pattern m_pattern;
  std::optional<CellFilter> m_comparison;
  QString m_unit;                          ///< asked for; empty for the one that is shown
  QString m_lastUnit;                      ///< of the value before, as many follow one another
  std::optional<Units::Linear> m_fromLast; ///< to the asked one
};
