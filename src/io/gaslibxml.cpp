#include <base/xmlbounds.h>
#include <io/gaslibxml.h>

#include <QHash>
#include <QRegularExpression>
#include <QTextCodec>

namespace {

/// The text of an XML file; nothing when its bytes are none in the encoding that it states. Other encodings than the usual
/// ones count as UTF-8.
std::optional<QString> decoded(const QByteArray &content) {
  constexpr int SearchedBytes = 200;
  static const QRegularExpression pattern(
      QStringLiteral("^\\s*<\\?xml[^>]*encoding\\s*=\\s*[\"'](ISO-8859-1|ISO-8859-15|windows-1252)[\"']"),
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch match = pattern.match(QString::fromLatin1(content.left(SearchedBytes)));
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

QString GasLibXml::unitOf(const QString &name) {
  static const QHash<QString, QString> units{{QStringLiteral("1000m_cube_per_hour"), QStringLiteral("1000 m3/h")},
                                             {QStringLiteral("m_cube_per_hour"), QStringLiteral("m3/h")},
                                             {QStringLiteral("m_cube_per_s"), QStringLiteral("m3/s")},
                                             {QStringLiteral("m_cube_per_second"), QStringLiteral("m3/s")},
                                             {QStringLiteral("m_cube_per_day"), QStringLiteral("m3/day")},
                                             {QStringLiteral("kg_per_s"), QStringLiteral("kg/s")},
                                             {QStringLiteral("kg_per_hour"), QStringLiteral("kg/h")},
                                             {QStringLiteral("W"), QStringLiteral("W")},
                                             {QStringLiteral("kW"), QStringLiteral("kW")},
                                             {QStringLiteral("MW"), QStringLiteral("MW")},
                                             {QStringLiteral("GW"), QStringLiteral("GW")},
                                             {QStringLiteral("bar"), QStringLiteral("bar")},
                                             {QStringLiteral("mbar"), QStringLiteral("mbar")},
                                             {QStringLiteral("Pa"), QStringLiteral("Pa")},
                                             {QStringLiteral("kPa"), QStringLiteral("kPa")},
                                             {QStringLiteral("MPa"), QStringLiteral("MPa")},
                                             {QStringLiteral("km"), QStringLiteral("km")},
                                             {QStringLiteral("m"), QStringLiteral("m")},
                                             {QStringLiteral("meter"), QStringLiteral("m")},
                                             {QStringLiteral("cm"), QStringLiteral("cm")},
                                             {QStringLiteral("mm"), QStringLiteral("mm")},
                                             {QStringLiteral("K"), QStringLiteral("K")},
                                             {QStringLiteral("C"), QStringLiteral("degC")},
                                             {QStringLiteral("Celsius"), QStringLiteral("degC")},
                                             {QStringLiteral("percent"), QStringLiteral("%")},
                                             {QStringLiteral("MJ_per_m_cube"), QStringLiteral("MJ/m3")},
                                             {QStringLiteral("kWh_per_m_cube"), QStringLiteral("kWh/m3")},
                                             {QStringLiteral("kg_per_m_cube"), QStringLiteral("kg/m3")},
                                             {QStringLiteral("kg_per_kmol"), QStringLiteral("g/mol")},
                                             {QStringLiteral("g_per_mol"), QStringLiteral("g/mol")},
                                             {QStringLiteral("W_per_m_square_per_K"), QStringLiteral("W/(m2 K)")},
                                             {QStringLiteral("per_min"), QStringLiteral("1/min")},
                                             {QStringLiteral("per_s"), QStringLiteral("1/s")},
                                             {QStringLiteral("kJ_per_kg"), QStringLiteral("kJ/kg")},
                                             {QStringLiteral("J_per_kg"), QStringLiteral("J/kg")},
                                             {QStringLiteral("m_cube"), QStringLiteral("m3")},
                                             {QStringLiteral("kNm"), QStringLiteral("kN m")},
                                             {QStringLiteral("Nm"), QStringLiteral("N m")}};
  return units.value(name);
}

void GasLibXml::tell(const QString &text, int line) {
  constexpr std::size_t MaximumFindings = 1000;
  if (findings.size() < MaximumFindings)
    findings.push_back({Finding::Severity::Warning, m_path, line, text});
  else if (findings.size() == MaximumFindings)
    findings.push_back({Finding::Severity::Warning, m_path, 0, tr("... and more, which are not told")});
}

bool GasLibXml::load() {
  QString reason;
  const std::optional<QByteArray> content = FileAccess::readWhole(m_path, m_source, LargestFile, &reason);
  if (!content) {
    findings.push_back({Finding::Severity::Warning, {}, 0, tr("The file cannot be read: %1").arg(reason)});
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
