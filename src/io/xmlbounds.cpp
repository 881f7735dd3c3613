#include "xmlbounds.h"

#include <io/gaslibxml.h>

#include <QCoreApplication>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("XmlBounds", text);
}

/// Walks over the marks of a text.
class Walk {
public:
  explicit Walk(const QString &text)
      : m_text(text) {}

  XmlBounds::Fault run() {
    while (m_fault.isEmpty() && (m_at = m_text.indexOf(QLatin1Char('<'), m_at)) >= 0) {
      if (begins("<!--"))
        skipBehind("-->");
      else if (begins("<![CDATA["))
        skipBehind("]]>");
      else if (begins("<?"))
        skipBehind("?>");
      else if (begins("<!"))
        m_fault = tr("The file has a document type, which is not allowed");
      else
        takeTag();
    }
    if (m_fault.isEmpty())
      return {};
    return {m_fault, 1 + m_text.leftRef(m_begin < 0 ? m_at : m_begin).count(QLatin1Char('\n'))};
  }

private:
  bool begins(const char *mark) const { return m_text.midRef(m_at).startsWith(QLatin1String(mark)); }

  void skipBehind(const char *mark) {
    const int end = m_text.indexOf(QLatin1String(mark), m_at + 2);
    m_at = end < 0 ? m_text.size() : end + 1;
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
    if (attributes > GasLibXml::MostAttributes)
      m_fault = tr("An element has %1 attributes, more than %2").arg(attributes).arg(GasLibXml::MostAttributes);
    else if (m_depth > GasLibXml::DeepestNesting)
      m_fault = tr("Elements are nested more than %1 deep").arg(GasLibXml::DeepestNesting);
    else if (m_namespaces > GasLibXml::MostNamespaces)
      m_fault = tr("There are more than %1 namespaces").arg(GasLibXml::MostNamespaces);
  }

  const QString &m_text;
  QString m_fault;
  int m_at = 0;
  int m_begin = -1; ///< of the tag that was looked at last
  int m_depth = 0;
  int m_namespaces = 0;
};

} // namespace

XmlBounds::Fault XmlBounds::check(const QString &text) {
  return Walk(text).run();
}
