#pragma once

#include <QRegularExpression>
#include <QString>

#include <string_view>

/// A regular expression as people type it into a field: regardless of case, an empty one matches everything, an invalid one
/// nothing, and one that would try every way through a text gives up and does not match. Plain words, with "^" before or "$"
/// behind, are compared without the machinery of expressions. Not for several threads at once.
class Pattern {
public:
  Pattern() = default;
  explicit Pattern(const QString &text);

  bool matches(const QString &text) const;
  bool matches(std::string_view utf8) const;
  bool matchesAll() const { return m_matchesAll; }

private:
  enum class Plain { No, Part, Beginning, End, Whole };

  QRegularExpression m_expression;
  QString m_word;
  Plain m_plain = Plain::No;
  bool m_matchesAll = true;
  mutable QString m_text; ///< room for texts that come as UTF-8
};
