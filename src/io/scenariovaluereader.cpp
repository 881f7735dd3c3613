// The reader of scenario values: two threads take the lines of one queue and parse them; what they parsed is applied in the
// order of the lines afterwards, because NetData is changed by one thread at a time.

#include "jsonlineparser.h"
#include "readreport.h"
#include "texttablereader.h"

#include <base/nivramsg.h>
#include <io/nivrareader.h>
#include <model/netmetadata.h>
#include <model/units.h>

#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <exception>
#include <omp.h>

namespace {

constexpr int Threads = 2;
constexpr double Milli = 1e-3;

struct ParsedLine {
  int number = 0;
  std::vector<JsonLineParser::SetPoints> setPoints;
  QString fault; ///< empty when the line is valid
  QString quote;
};

QString decoded(const std::string &text) {
  return QString::fromStdString(text);
}

/// The lines of a file as one queue for several threads.
class LineQueue {
public:
  LineQueue(JsonLineReader &reader, const Progress &progress)
      : m_reader(reader)
      , m_progress(progress) {}

  /// Copies the next line into the thread's own buffer, which leaves room for the parser around it.
  bool take(std::vector<char> &buffer, JsonLineReader::Line &line) {
    bool taken = false;
#pragma omp critical(nivra_reader_lines)
    {
      if (!m_cancelled && m_reader.next(line)) {
        buffer.resize(line.size + 2 + simdjson::SIMDJSON_PADDING + 2);
        std::memcpy(buffer.data() + 1, line.text, line.size);
        line.text = buffer.data() + 1;
        line.capacity = buffer.size() - 1;
        taken = true;
      }
    }
    // Only the calling thread may touch the window.
    if (taken && omp_get_thread_num() == 0 && ++m_sinceProgress >= LinesBetweenProgress && m_progress) {
      m_sinceProgress = 0;
      if (!m_progress(m_reader.fraction()))
        m_cancelled = true;
    }
    return taken;
  }

  bool wasCancelled() const {
    return m_cancelled;
  }

private:
  static constexpr int LinesBetweenProgress = 1000;

  JsonLineReader &m_reader;
  const Progress &m_progress;
  int m_sinceProgress = 0;
  std::atomic<bool> m_cancelled{false};
};

ParsedLine parse(JsonLineParser &parser, const JsonLineReader::Line &line) {
  ParsedLine parsed;
  parsed.number = line.number;
  const char *fault = line.tooLong ? "the line is longer than 64 MB" : parser.parse(line, parsed.setPoints);
  if (fault != nullptr) {
    parsed.fault = QString::fromUtf8(fault);
    parsed.quote = ReadReport::quoted(line);
  }
  return parsed;
}

std::vector<ParsedLine> parseAll(LineQueue &queue) {
  std::vector<ParsedLine> lines;
  std::exception_ptr trouble;
#pragma omp parallel num_threads(Threads) default(none) shared(queue, lines, trouble)
  {
#pragma omp single
    NivraMsg::log(QStringLiteral("NivraReader::readScenariofileJsn [%1 threads]").arg(omp_get_num_threads()));
    std::vector<ParsedLine> own;
    try {
      JsonLineParser parser;
      std::vector<char> buffer;
      JsonLineReader::Line line;
      while (queue.take(buffer, line))
        own.push_back(parse(parser, line));
    } catch (...) {
#pragma omp critical(nivra_reader_lines)
      trouble = std::current_exception();
    }
#pragma omp critical(nivra_reader_lines)
    std::move(own.begin(), own.end(), std::back_inserter(lines));
  }
  if (trouble)
    std::rethrow_exception(trouble);
  std::sort(lines.begin(), lines.end(), [](const ParsedLine &a, const ParsedLine &b) { return a.number < b.number; });
  return lines;
}

/// Sets the parsed values, in the unit in which the property is stored.
class Applier {
public:
  Applier(NetData &net, const QString &includeProperties, ReadReport &report)
      : m_net(net)
      , m_include(includeProperties, QRegularExpression::CaseInsensitiveOption)
      , m_report(report) {}

  void apply(ParsedLine &line) {
    for (JsonLineParser::SetPoints &setPoints : line.setPoints) {
      const QString name = decoded(setPoints.name);
      element *target = m_net.element(name);
      if (target == nullptr) {
        m_report.add("unknown name", line.number, QStringLiteral("name not found, is no valid node or element: ") + name);
        continue;
      }
      for (JsonLineParser::SetPoint &point : setPoints.points)
        apply(*target, name, point, line.number);
    }
  }

  qint64 properties() const { return m_properties; }

private:
  void apply(element &target, const QString &name, JsonLineParser::SetPoint &point, int line) {
    const QString property = decoded(point.property);
    if (!point.isComplete) {
      m_report.add("incomplete value", line,
                   QStringLiteral("A value of element %1 is left out: it needs \"property\" and \"value\"").arg(name),
                   QString(), name);
      return;
    }
    if (!m_include.pattern().isEmpty() && m_include.isValid() && !m_include.match(property).hasMatch())
      return;
    if (property.compare(QLatin1String("name"), Qt::CaseInsensitive) == 0 ||
        property.compare(QLatin1String("type"), Qt::CaseInsensitive) == 0) {
      m_report.add("identity", line, QStringLiteral("The %1 of element %2 cannot be set by a scenario").arg(property, name),
                   QString(), name);
      return;
    }
    toStoredUnit(target, name, property, point, line);
    target.set(PropertyKey::intern(std::string_view(point.property)), std::move(point.value));
    ++m_properties;
  }

  void toStoredUnit(const element &target, const QString &name, const QString &property, JsonLineParser::SetPoint &point,
                    int line) {
    if (point.unit.empty())
      return;
    const NetMetaData::Attribute *attribute = m_net.metaData()->attribute(target.value(QStringLiteral("type")), property);
    const QString unit = decoded(point.unit);
    if (attribute == nullptr || attribute->storedUnit.isEmpty() || attribute->storedUnit == unit)
      return;
    const std::optional<double> number = point.value.toDouble();
    if (!number)
      return;
    const std::optional<double> converted = Units::convert(*number, unit, attribute->storedUnit);
    constexpr int Digits = 14; // the last ones are noise of the conversion: 5000 m3/h are 5, not 4.999999999999999
    if (converted)
      point.value = PropertyText(std::string_view(formatNumber(*converted, Digits)));
    else
      m_report.add(
          "unit", line,
          QStringLiteral("%1 of element %2 is given in \"%3\", which cannot be converted to \"%4\"; the value is kept")
              .arg(property, name, unit, attribute->storedUnit),
          QString(), name);
  }

  NetData &m_net;
  QRegularExpression m_include;
  ReadReport &m_report;
  qint64 m_properties = 0;
};

} // namespace

NivraReader::Result NivraReader::readScenariofileJsn(const QString &path, const Options &options) {
  if (!path.endsWith(QStringLiteral(".jsn")) && !path.endsWith(QStringLiteral(".json")))
    return readScenarioRows(path, options);
  Result result;
  JsonLineReader reader(path);
  QString reason;
  if (!reader.open(&reason)) {
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, reason});
    return result;
  }
  QElapsedTimer timer;
  timer.start();
  LineQueue queue(reader, options.progress);
  std::vector<ParsedLine> lines = parseAll(queue);
  NivraMsg::log(QStringLiteral("### To read elements of scenario jsn file took %1s")
                    .arg(static_cast<double>(timer.restart()) * Milli));
  result.ok = true;
  result.cancelled = queue.wasCancelled();
  ReadReport report(path);
  Applier applier(m_net, options.includeProperties, report);
  for (ParsedLine &line : lines) {
    if (line.fault.isEmpty())
      applier.apply(line);
    else
      report.add(
          ReadReport::BadLine, line.number,
          QStringLiteral("!!!!!!!!!!!!! Problem with JSON at %1: %2 (Severe JSON problem! Input line invalid, ignored!)")
              .arg(line.quote, line.fault),
          report.count(ReadReport::BadLine) > 0
              ? QString()
              : QStringLiteral("Severe JSON problem! \nInvalid input line(s) ignored! Check console for info!"));
  }
  result.properties = applier.properties();
  NivraMsg::log(QStringLiteral("### To read elements of scenario jsn buffer took %1 [sec] for %2 properties")
                    .arg(static_cast<double>(timer.elapsed()) * Milli)
                    .arg(result.properties));
  result.findings = report.take();
  return result;
}

NivraReader::Result NivraReader::readScenarioRows(const QString &path, const Options &options) {
  Result result;
  TextTableReader reader(path);
  QString reason;
  if (!reader.open(&reason)) {
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, reason});
    return result;
  }
  result.ok = true;
  ReadReport report(path);
  Applier applier(m_net, options.includeProperties, report);
  JsonLineParser::Element row;
  constexpr int RowsBetweenProgress = 1000;
  int rows = 0;
  for (TextTableReader::Found found = reader.next(row); found != TextTableReader::Found::End; found = reader.next(row)) {
    if (found == TextTableReader::Found::Fault) {
      report.badRow(reader.line(), reader.quote(), reader.fault());
    } else {
      ParsedLine line;
      line.number = reader.line();
      line.setPoints.push_back({std::string(row.name), {TextTableReader::setPoint(row)}});
      applier.apply(line);
    }
    if (++rows % RowsBetweenProgress == 0 && options.progress && !options.progress(reader.fraction())) {
      result.cancelled = true;
      break;
    }
  }
  result.properties = applier.properties();
  result.findings = report.take();
  return result;
}
