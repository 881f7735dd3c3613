#include <base/pattern.h>
#include <base/textdecoding.h>

#include <algorithm>

// Ordinary patterns need a few hundred steps.
Pattern::Pattern(const QString &text)
    : m_expression(QStringLiteral("(*LIMIT_MATCH=200000)") + text, QRegularExpression::CaseInsensitiveOption)
    , m_matchesAll(text.isEmpty()) {
  if (m_matchesAll)
    return;
  m_expression.optimize();
  static const QRegularExpression plain(QStringLiteral("^(\\^?)([A-Za-z0-9_ :;,-]+)(\\$?)$"));
  const QRegularExpressionMatch match = plain.match(text);
  if (!match.hasMatch())
    return;
  const bool isBeginning = !match.captured(1).isEmpty();
  const bool isEnd = !match.captured(3).isEmpty();
  m_word = match.captured(2);
  m_plain = isBeginning && isEnd ? Plain::Whole : isBeginning ? Plain::Beginning : isEnd ? Plain::End : Plain::Part;
}

bool Pattern::matches(const QString &text) const {
  if (m_matchesAll)
    return true;
  const bool endsLine = text.endsWith(QLatin1Char('\n')); // before which "$" matches as well
  switch (endsLine ? Plain::No : m_plain) {
  case Plain::Part:
    return text.contains(m_word, Qt::CaseInsensitive);
  case Plain::Beginning:
    return text.startsWith(m_word, Qt::CaseInsensitive);
  case Plain::End:
    return text.endsWith(m_word, Qt::CaseInsensitive);
  case Plain::Whole:
    return text.compare(m_word, Qt::CaseInsensitive) == 0;
  case Plain::No:
    break;
  }
  return m_expression.isValid() && m_expression.match(text).hasMatch();
}

bool Pattern::matches(std::string_view utf8) const {
  if (m_matchesAll)
    return true;
  const bool isAscii = std::all_of(utf8.begin(), utf8.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
  if (isAscii) { // most values are; their characters go where those of the last one stood
    m_text.resize(static_cast<int>(utf8.size()));
    std::transform(utf8.begin(), utf8.end(), m_text.begin(), [](char c) { return QChar(ushort(c)); });
  } else {
    m_text = TextDecoding::decoded(utf8);
  }
  return matches(m_text);
}
