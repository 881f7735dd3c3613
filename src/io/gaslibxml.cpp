#include <io/gaslibxml.h>

#include <QCoreApplication>
#include <QIODevice>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("GasLibXml", text);
}

} // namespace

void GasLibXml::tell(const QString &text, int line) {
  constexpr std::size_t Most = 1000;
  if (findings.size() < Most)
    findings.push_back({Finding::Severity::Warning, m_path, line, text, QString()});
  else if (findings.size() == Most)
    findings.push_back({Finding::Severity::Warning, m_path, 0, tr("... and more, which are not told"), QString()});
}

bool GasLibXml::start(QIODevice &device, const QString &root, const QString &space) {
  if (!device.isOpen() && !device.open(QIODevice::ReadOnly)) {
    tell(tr("The file cannot be read: %1").arg(device.errorString()));
    return false;
  }
  m_xml.setDevice(&device);
  while (!m_xml.atEnd() && m_xml.readNext() != QXmlStreamReader::StartElement) {
    if (m_xml.isDTD()) { // before anything in it is used
      tell(tr("The file has a document type, which is not allowed: nothing is read."));
      return false;
    }
  }
  finish();
  if (!m_xml.isStartElement())
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

void GasLibXml::finish() {
  if (m_xml.hasError())
    tell(tr("The file cannot be read any further: %1").arg(m_xml.errorString()));
}
