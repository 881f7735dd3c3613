#include <base/xmlbounds.h>

#include <QCoreApplication>

namespace {

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(XmlBounds)
};

/// Walks over the marks of a text.
class Walk {
public:
  Walk(const QString &text, const XmlBounds::Limits &limits)
      : m_text(text)
      , m_limits(limits) {}

  XmlBounds::Fault run() {
    while (m_fault.isEmpty() && (m_at = m_text.indexOf(QLatin1Char('<'), m_at)) >= 0) {
      if (begins("<!--"))
        skip("<!--", "-->");
      else if (begins("<![CDATA["))
        skip("<![CDATA[", "]]>");
      else if (begins("<?"))
        skip("<?", "?>");
      else if (begins("<!"))
        takeDeclaration();
      else
        takeTag();
    }
    if (m_fault.isEmpty())
      return {};
    return {m_fault, 1 + m_text.leftRef(m_begin < 0 ? m_at : m_begin).count(QLatin1Char('\n'))};
  }

private:
  bool begins(const char *mark) const { return m_text.midRef(m_at).startsWith(QLatin1String(mark)); }

  void skip(const char *begin, const char *end) {
    const int found = m_text.indexOf(QLatin1String(end), m_at + static_cast<int>(qstrlen(begin)));
    m_at = found < 0 ? m_text.size() : found + 1;
  }

  void takeDeclaration() {
    if (!m_limits.hasDocumentType)
      m_fault = Texts::tr("The file has a document type, which is not allowed");
    QChar quote; // marks in quotes are none; what is declared in brackets is looked at like the rest
    for (++m_at; m_at < m_text.size(); ++m_at) {
      const QChar c = m_text.at(m_at);
      if (!quote.isNull())
        quote = c == quote ? QChar() : quote;
      else if (c == QLatin1Char('"') || c == QLatin1Char('\''))
        quote = c;
      else if (c == QLatin1Char('>') || c == QLatin1Char('[') || c == QLatin1Char('<'))
        break;
    }
  }

  void takeTag() {
    m_begin = m_at;
    const bool isEnd = begins("</");
    QChar quote;
    int attributes = 0;
    for (++m_at; m_at < m_text.size(); ++m_at) {
      const QChar c = m_text.at(m_at);
      if (!quote.isNull()) {
        if (c == quote)
          quote = QChar();
      } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
        quote = c;
      } else if (c == QLatin1Char('=')) {
        ++attributes;
      } else if (c == QLatin1Char('x') && begins("xmlns")) {
        ++m_namespaces;
      } else if (c == QLatin1Char('>')) {
        break;
      }
    }
    if (isEnd)
      --m_depth;
    else if (m_text.at(m_at - 1) != QLatin1Char('/'))
      ++m_depth;
    judge(attributes);
  }

  void judge(int attributes) {
    if (attributes > m_limits.attributes)
      m_fault = Texts::tr("An element has %1 attributes, more than %2").arg(attributes).arg(m_limits.attributes);
    else if (m_depth > m_limits.nesting)
      m_fault = Texts::tr("Elements are nested more than %1 deep").arg(m_limits.nesting);
    else if (m_namespaces > m_limits.namespaces)
      m_fault = Texts::tr("There are more than %1 namespaces").arg(m_limits.namespaces);
  }

  const QString &m_text;
  const XmlBounds::Limits &m_limits;
  QString m_fault;
  int m_at = 0;
  int m_begin = -1; ///< of the tag that was looked at last
  int m_depth = 0;
  int m_namespaces = 0;
};

} // namespace

XmlBounds::Fault XmlBounds::check(const QString &text, const Limits &limits) {
  return Walk(text, limits).run();
}
