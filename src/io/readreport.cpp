#include "readreport.h"

#include "linereader.h"

#include <array>

QString ReadReport::name(Kind kind) {
  static constexpr std::array Names{QT_TRANSLATE_NOOP("ReadReport", "bad line"),
                                    QT_TRANSLATE_NOOP("ReadReport", "doubtful value"),
                                    QT_TRANSLATE_NOOP("ReadReport", "dropped element"),
                                    QT_TRANSLATE_NOOP("ReadReport", "dropped property"),
                                    QT_TRANSLATE_NOOP("ReadReport", "empty"),
                                    QT_TRANSLATE_NOOP("ReadReport", "encoding"),
                                    QT_TRANSLATE_NOOP("ReadReport", "gas"),
                                    QT_TRANSLATE_NOOP("ReadReport", "identity"),
                                    QT_TRANSLATE_NOOP("ReadReport", "include list"),
                                    QT_TRANSLATE_NOOP("ReadReport", "incomplete value"),
                                    QT_TRANSLATE_NOOP("ReadReport", "other name"),
                                    QT_TRANSLATE_NOOP("ReadReport", "property given twice"),
                                    QT_TRANSLATE_NOOP("ReadReport", "unit"),
                                    QT_TRANSLATE_NOOP("ReadReport", "unknown name"),
                                    QT_TRANSLATE_NOOP("ReadReport", "unknown type")};
  static_assert(Names.size() == static_cast<std::size_t>(Kind::UnknownType) + 1);
  return tr(Names.at(static_cast<std::size_t>(kind))); // in the order of the kinds
}

void ReadReport::add(Kind kind, int line, const QString &text, const QString &box, const QString &element) {
  if (++m_counts[kind] <= KeptOfAKind)
    m_findings.push_back({Finding::Severity::Warning, m_file, line, text, box, false, element});
}

void ReadReport::addWithBox(const Record &record, const QString &text, const QString &box) {
  const std::size_t before = m_findings.size();
  add(Kind::BadLine, record.line, text, box);
  if (m_findings.size() > before)
    m_findings.back().isForInformation = true;
}

QString ReadReport::quoted(std::string_view line) {
  constexpr std::size_t LongestQuote = 200;
  QString quote = decoded(line.substr(0, LongestQuote));
  for (QChar &c : quote) {
    if (!c.isPrint())
      c = QChar(QChar::ReplacementCharacter);
  }
  return line.size() > LongestQuote ? quote + QStringLiteral(" ...") : quote;
}

QString ReadReport::lineTooLong() {
  static_assert(LineReader::LongestLine == std::size_t(64) << 20, "the text names it");
  return tr("the line is longer than 64 MB");
}

void ReadReport::badRow(const Record &record) {
  addWithBox(record, tr("Problem with line %1: %2").arg(record.quote, record.fault),
             tr("Severe problem with line: %1\nCheck console for info!").arg(record.quote));
}

void ReadReport::badLine(const Record &record) {
  addWithBox(record, tr("!!!!!!!!!!!!! Problem with JSON at %1: %2").arg(record.quote, record.fault),
             tr("!!!! Severe JSON problem with line: %1\nCheck console for info!").arg(record.quote));
}

void ReadReport::badSetPoints(const Record &record) {
  const bool isFirst = m_counts.count(Kind::BadLine) == 0;
  add(Kind::BadLine, record.line,
      tr("!!!!!!!!!!!!! Problem with JSON at %1: %2 (Severe JSON problem! Input line invalid, ignored!)")
          .arg(record.quote, record.fault),
      isFirst ? tr("Severe JSON problem! \nInvalid input line(s) ignored! Check console for info!") : QString());
}

void ReadReport::values(const ElementRecord &element, int line) {
  if (element.dropped.empty() && element.doubtful.empty())
    return;
  const QString name = decoded(element.name);
  for (const RecordRemark &dropped : element.dropped)
    leftOut(decoded(dropped.key), name, dropped.reason, line);
  for (const RecordRemark &doubtful : element.doubtful)
    doubt(decoded(doubtful.key), name, doubtful.reason, line);
}

void ReadReport::leftOut(const QString &element, const char *reason, int line) {
  add(Kind::DroppedElement, line, tr("Element %1 is left out: %2").arg(element, tr(reason)), QString(), element);
}

void ReadReport::leftOut(const QString &property, const QString &element, const char *reason, int line) {
  add(Kind::DroppedProperty, line, tr("Property %1 of element %2 is left out: %3").arg(property, element, tr(reason)),
      QString(), element);
}

void ReadReport::unknownType(const QString &word, const QString &element, int line) {
  add(Kind::UnknownType, line, tr("ERROR: Type %1 of element %2 not known! Element will be erased!").arg(word, element));
}

void ReadReport::doubt(const QString &property, const QString &element, const char *reason, int line) {
  add(Kind::DoubtfulValue, line, tr("Property %1 of element %2 %3").arg(property, element, tr(reason)), QString(), element);
}

void ReadReport::unknownName(const QString &name, int line) {
  add(Kind::UnknownName, line, tr("name not found, is no valid node or element: %1").arg(name));
}

void ReadReport::incompleteValue(const QString &element, int line) {
  add(Kind::IncompleteValue, line, tr("A value of element %1 is left out: it needs \"property\" and \"value\"").arg(element),
      QString(), element);
}

void ReadReport::readFault(const QString &reason) {
  if (reason.isEmpty())
    return;
  const QString text = tr("The file could not be read to its end, what follows is missing: %1").arg(reason);
  m_findings.push_back({Finding::Severity::Critical, QString(), 0, text, text});
}

void ReadReport::notUtf8(int line) {
  if (line > 0)
    add(Kind::Encoding, line, tr("The file is not written in UTF-8; it is read as Windows-1252 (Latin-1)"));
}

Findings ReadReport::take() {
  for (const auto &[kind, count] : m_counts) {
    if (count > KeptOfAKind)
      m_findings.push_back({Finding::Severity::Warning, m_file, 0,
                            tr("... and %1 more of this kind (%2)").arg(count - KeptOfAKind).arg(name(kind))});
  }
  m_counts.clear();
  return std::move(m_findings);
}
