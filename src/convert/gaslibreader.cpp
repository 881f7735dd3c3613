#include "gaslibreader.h"

std::optional<GasLibUnits::Number> GasLibReader::number(const char *unit, const Units::Gas &gas, bool isNegated) {
  const QString kind = m_xml.name().toString();
  const QString text = attribute("value");
  const QString given = attribute("unit");
  const QString wanted = QString::fromLatin1(unit);
  const std::optional<GasLibUnits::Number> read = GasLibUnits::read(text);
  if (!read) {
    tell(tr("%1 is no number: \"%2\"; left out").arg(kind, text));
    drop(tr("no number"));
    return std::nullopt;
  }
  std::optional<GasLibUnits::Number> number = GasLibUnits::convert(*read, given, wanted, gas);
  if (!number) {
    tell(tr("%1: the unit \"%2\" cannot be converted to \"%3\"; left out").arg(kind, given, wanted));
    drop(tr("the unit \"%1\"").arg(given));
    return std::nullopt;
  }
  if (isNegated)
    number = number->negated();
  if (number->isConverted)
    report.convert(kind, tr("%1 to %2").arg(given, wanted));
  else if (isNegated)
    report.convert(kind, tr("supplies are negative"));
  else
    report.take(kind);
  m_xml.skipCurrentElement();
  return number;
}

void GasLibReader::drop(const QString &why) {
  report.drop(m_xml.name().toString(), why);
  for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
    switch (m_xml.readNext()) {
    case QXmlStreamReader::StartElement:
      report.drop(m_xml.name().toString(), why);
      ++depth;
      break;
    case QXmlStreamReader::EndElement:
      --depth;
      break;
    default:
      break;
    }
  }
}

void GasLibReader::add(Record &record, const char *property, const QString &text) {
  record.values.push_back({PropertyKey::intern(property), PropertyText(text), false});
}

void GasLibReader::add(Record &record, const char *property, const GasLibUnits::Number &number) {
  record.values.push_back({PropertyKey::intern(property), number.text, true});
}
