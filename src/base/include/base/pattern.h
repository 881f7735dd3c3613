#pragma once

#include <QRegularExpression>
#include <QString>

/// A regular expression as people type it into a field: regardless of case, an empty one matches everything, an invalid one
/// nothing, and one that would try every way through a text gives up and does not match.
class Pattern {
public:
  Pattern() = default;
  explicit Pattern(const QString &text);

  bool matches(const QString &text) const;
  bool matchesAll() const { return m_matchesAll; }

private:
  QRegularExpression m_expression;
  bool m_matchesAll = true;
};
