#include <base/pattern.h>

// Ordinary patterns need a few hundred steps.
Pattern::Pattern(const QString &text)
    : m_expression(QStringLiteral("(*LIMIT_MATCH=200000)") + text, QRegularExpression::CaseInsensitiveOption)
    , m_matchesAll(text.isEmpty()) {
  if (!m_matchesAll)
    m_expression.optimize();
}

bool Pattern::matches(const QString &text) const {
  return m_matchesAll || (m_expression.isValid() && m_expression.match(text).hasMatch());
}
