#include "readreport.h"

void ReadReport::add(const char *kind, int line, const QString &text, const QString &box, const QString &element) {
  int &count = m_counts[QString::fromLatin1(kind)];
  if (++count <= KeptOfAKind)
    m_findings.push_back({Finding::Severity::Warning, m_file, line, text, box, false, element});
}

QString ReadReport::quoted(std::string_view line) {
  constexpr std::size_t Longest = 200;
  QString quote = decoded(line.substr(0, Longest));
  for (QChar &c : quote) {
    if (!c.isPrint())
      c = QChar(QChar::ReplacementCharacter);
  }
  return line.size() > Longest ? quote + QStringLiteral(" ...") : quote;
}

void ReadReport::badRow(const Record &record) {
  const std::size_t before = m_findings.size();
  add(BadLine, record.line, QStringLiteral("Problem with line %1: %2").arg(record.quote, record.fault),
      QStringLiteral("Severe problem with line: ") + record.quote + QStringLiteral("\nCheck console for info!"));
  if (m_findings.size() > before)
    m_findings.back().isForInformation = true;
}

void ReadReport::values(const ElementRecord &element, int line) {
  if (element.dropped.empty() && element.doubtful.empty())
    return;
  const QString name = decoded(element.name);
  for (const RecordRemark &dropped : element.dropped)
    add("dropped property", line,
        QStringLiteral("Property %1 of element %2 is left out: %3")
            .arg(QString::fromStdString(dropped.key), name, QString::fromUtf8(dropped.reason)),
        QString(), name);
  for (const RecordRemark &doubtful : element.doubtful)
    doubt(QString::fromStdString(doubtful.key), name, doubtful.reason, line);
}

void ReadReport::doubt(const QString &property, const QString &element, const char *reason, int line) {
  add("doubtful value", line,
      QStringLiteral("Property %1 of element %2 %3").arg(property, element, QString::fromUtf8(reason)), QString(), element);
}

void ReadReport::badLine(const Record &record) {
  const std::size_t before = m_findings.size();
  add(BadLine, record.line, QStringLiteral("!!!!!!!!!!!!! Problem with JSON at %1: %2").arg(record.quote, record.fault),
      QStringLiteral("!!!! Severe JSON problem with line: ") + record.quote + QStringLiteral("\nCheck console for info!"));
  if (m_findings.size() > before)
    m_findings.back().isForInformation = true;
}

void ReadReport::badSetPoints(const Record &record) {
  const bool isFirst = m_counts.value(QLatin1String(BadLine)) == 0;
  add(BadLine, record.line,
      QStringLiteral("!!!!!!!!!!!!! Problem with JSON at %1: %2 (Severe JSON problem! Input line invalid, ignored!)")
          .arg(record.quote, record.fault),
      isFirst ? QStringLiteral("Severe JSON problem! \nInvalid input line(s) ignored! Check console for info!") : QString());
}

void ReadReport::incompleteValue(const QString &element, int line) {
  add("incomplete value", line,
      QStringLiteral("A value of element %1 is left out: it needs \"property\" and \"value\"").arg(element), QString(),
      element);
}

void ReadReport::readFault(const QString &reason) {
  if (reason.isEmpty())
    return;
  const QString text = QStringLiteral("The file could not be read to its end, what follows is missing: ") + reason;
  m_findings.push_back({Finding::Severity::Critical, QString(), 0, text, text});
}

void ReadReport::notUtf8(int line) {
  if (line > 0)
    add("encoding", line, QStringLiteral("The file is not written in UTF-8; it is read as Windows-1252 (Latin-1)"));
}

Findings ReadReport::take() {
  for (auto kind = m_counts.begin(); kind != m_counts.end(); ++kind) {
    if (kind.value() > KeptOfAKind)
      m_findings.push_back(
          {Finding::Severity::Warning, m_file, 0,
           QStringLiteral("... and %1 more of this kind (%2)").arg(kind.value() - KeptOfAKind).arg(kind.key()), QString()});
  }
  m_counts.clear();
  return std::move(m_findings);
}
