#include <base/xmlbounds.h>
#include <io/gaslibxml.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextCodec>

#include <memory>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("GasLibXml", text);
}

/// The text of an XML file; nothing when its bytes are none in the encoding that it states. Other encodings than the usual
/// ones count as UTF-8.
std::optional<QString> decoded(const QByteArray &content) {
  constexpr int Looked = 200;
  static const QRegularExpression pattern(
      QStringLiteral("^\\s*<\\?xml[^>]*encoding\\s*=\\s*[\"'](ISO-8859-1|ISO-8859-15|windows-1252)[\"']"),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(content.left(Looked)));
  const QTextCodec *codec = QTextCodec::codecForName(match.hasMatch() ? match.captured(1).toLatin1() : QByteArray("UTF-8"));
  if (codec == nullptr)
    return std::nullopt;
  codec = QTextCodec::codecForUtfText(content, const_cast<QTextCodec *>(codec)); // which is only read
  QTextCodec::ConverterState state;
  QString text = codec->toUnicode(content.constData(), content.size(), &state);
  if (state.invalidChars > 0 || state.remainingChars > 0)
    return std::nullopt;
  return text;
}

} // namespace

void GasLibXml::tell(const QString &text, int line) {
  constexpr std::size_t Most = 1000;
  if (findings.size() < Most)
    findings.push_back({Finding::Severity::Warning, m_path, line, text, QString()});
  else if (findings.size() == Most)
    findings.push_back({Finding::Severity::Warning, m_path, 0, tr("... and more, which are not told"), QString()});
}

bool GasLibXml::load() {
  QString reason;
  const std::optional<QByteArray> content = FileAccess::readWhole(m_path, m_source, LargestFile, &reason);
  if (!content) {
    findings.push_back({Finding::Severity::Warning, QString(), 0, tr("The file cannot be read: %1").arg(reason), QString()});
    return false;
  }
  const std::optional<QString> text = decoded(*content);
  if (!text) {
    tell(tr("The file is not written in UTF-8, nor in what it says: nothing is read."), 0);
    return false;
  }
  if (const XmlBounds::Fault fault = XmlBounds::check(*text, XmlBounds::Limits()); !fault.reason.isEmpty()) {
    tell(fault.reason + tr(": nothing is read."), fault.line);
    return false;
  }
  m_xml.addData(*text);
  return true;
}

bool GasLibXml::start(const QString &root, const QString &space) {
  if (!load())
    return false;
  while (!m_xml.atEnd() && m_xml.readNext() != QXmlStreamReader::StartElement) {
  }
  if (!finish() || !m_xml.isStartElement())
    return false;
  if (m_xml.name() != root) {
    tell(tr("The file holds %1 instead of %2: nothing is read.").arg(m_xml.name().toString(), root));
    return false;
  }
  const QString wanted = QStringLiteral("http://gaslib.zib.de/") + space;
  if (m_xml.namespaceUri() != wanted)
    tell(tr("The namespace is \"%1\" instead of \"%2\".").arg(m_xml.namespaceUri().toString(), wanted));
  return true;
}

bool GasLibXml::finish() {
  if (!m_xml.hasError())
    return true;
  tell(tr("The file cannot be read any further: %1").arg(m_xml.errorString()));
  return false;
}
