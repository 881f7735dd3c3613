// The reader of scenario values: two threads take the lines of one queue and parse them; what they parsed is applied in the
// order of the lines afterwards, because NetData is changed by one thread at a time.

#include "jsonfile.h"
#include "jsonlineparser.h"
#include "readreport.h"
#include "setpointunits.h"
#include "texttablereader.h"

#include <io/nivrareader.h>
#include <model/netmetadata.h>

#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <exception>
#include <omp.h>

namespace {

constexpr int Threads = 2;
constexpr double Nano = 1e-9;

struct ParsedLine {
  int number = 0;
  std::vector<JsonLineParser::SetPoints> setPoints;
  QString fault; ///< empty when the line is valid
  QString quote;
};

QString decoded(const std::string &text) {
  return QString::fromStdString(text);
}

/// The lines of a file in the JSON form.
class JsonLines {
public:
  struct Line {
    JsonLineReader::Line line;
    std::vector<char> buffer; ///< the thread's own, with room for the parser around the text
  };
  class Parser {
  public:
    ParsedLine parse(const Line &taken) {
      ParsedLine parsed;
      parsed.number = taken.line.number;
      const char *fault =
          taken.line.tooLong ? "the line is longer than 64 MB" : m_parser.parse(taken.line, parsed.setPoints);
      if (fault != nullptr) {
        parsed.fault = QString::fromUtf8(fault);
        parsed.quote = ReadReport::quoted(taken.line);
      }
      return parsed;
    }

  private:
    JsonLineParser m_parser{JsonLineParser::Numbers::AsWritten};
  };

  explicit JsonLines(const QString &path)
      : reader(path) {}

  bool take(Line &taken) {
    JsonLineReader::Line &line = taken.line;
    if (!reader.next(line))
      return false;
    taken.buffer.resize(line.size + 2 + simdjson::SIMDJSON_PADDING + 2);
    std::memcpy(taken.buffer.data() + 1, line.text, line.size);
    line.text = taken.buffer.data() + 1;
    line.capacity = taken.buffer.size() - 1;
    return true;
  }

  static void tell(ReadReport &report, const ParsedLine &line) {
    report.add(
        ReadReport::BadLine, line.number,
        QStringLiteral("!!!!!!!!!!!!! Problem with JSON at %1: %2 (Severe JSON problem! Input line invalid, ignored!)")
            .arg(line.quote, line.fault),
        report.count(ReadReport::BadLine) > 0
            ? QString()
            : QStringLiteral("Severe JSON problem! \nInvalid input line(s) ignored! Check console for info!"));
  }
  void tellOfFile(ReadReport &report) const { report.readFault(reader.readFault()); }

  static constexpr const char *Function = "readScenariofileJsn";
  static constexpr const char *Form = "scenario jsn";

  JsonLineReader reader;
};

/// The rows of a file in the text form.
class TextLines {
public:
  struct Line {
    TextRowParser::Row row;
    QString fault; ///< of the table reader: the row cannot be parsed
    QString quote;
  };
  class Parser {
  public:
    ParsedLine parse(const Line &taken) {
      ParsedLine parsed;
      parsed.number = taken.row.number;
      parsed.fault = taken.fault;
      parsed.quote = taken.quote;
      if (!taken.fault.isEmpty())
        return parsed;
      parsed.fault = m_parser.parse(taken.row, m_element);
      if (!parsed.fault.isEmpty()) {
        parsed.quote = TextTableReader::quoted(taken.row.text);
      } else {
        parsed.setPoints.push_back({std::string(m_element.name), {TextTableReader::setPoint(m_element)}});
      }
      return parsed;
    }

  private:
    TextRowParser m_parser{JsonLineParser::Numbers::AsWritten};
    JsonLineParser::Element m_element;
  };

  explicit TextLines(const QString &path)
      : reader(path) {}

  bool take(Line &taken) {
    taken.fault.clear();
    const TextTableReader::Found found = reader.nextRow(taken.row);
    if (found == TextTableReader::Found::Fault) {
      taken.row.number = reader.line();
      taken.fault = reader.fault();
      taken.quote = reader.quote();
    }
    return found != TextTableReader::Found::End;
  }

  static void tell(ReadReport &report, const ParsedLine &line) { report.badRow(line.number, line.quote, line.fault); }
  void tellOfFile(ReadReport &report) const {
    report.readFault(reader.readFault());
    report.notUtf8(reader.notUtf8Line());
  }

  static constexpr const char *Function = "readScenariofile";
  static constexpr const char *Form = "scenario";

  TextTableReader reader;
};

/// The lines of a file as one queue for several threads.
template <typename Lines>
class LineQueue {
public:
  LineQueue(Lines &lines, const Progress &progress)
      : m_lines(lines)
      , m_progress(progress) {}

  /// Takes the next line into the thread's own room.
  bool take(typename Lines::Line &line) {
    bool taken = false;
    double fraction = 0.0;
#pragma omp critical(nivra_reader_lines)
    {
      taken = !m_cancelled && m_lines.take(line);
      fraction = m_lines.reader.fraction();
    }
    // Only the calling thread may touch the window.
    if (taken && omp_get_thread_num() == 0 && ++m_sinceProgress >= LinesBetweenProgress && m_progress) {
      m_sinceProgress = 0;
      if (!m_progress(fraction))
        m_cancelled = true;
    }
    return taken;
  }

  bool wasCancelled() const {
    return m_cancelled;
  }

private:
  static constexpr int LinesBetweenProgress = 1000;

  Lines &m_lines;
  const Progress &m_progress;
  int m_sinceProgress = 0;
  std::atomic<bool> m_cancelled{false};
};

template <typename Lines>
std::vector<ParsedLine> parseAll(LineQueue<Lines> &queue, const Told &told) {
  std::vector<ParsedLine> lines;
  std::exception_ptr trouble;
#pragma omp parallel num_threads(Threads) default(none) shared(queue, lines, trouble, told)
  {
#pragma omp single
    tell(told, Finding::Severity::Information,
         QStringLiteral("NivraReader::%1 [%2 threads]").arg(QLatin1String(Lines::Function)).arg(omp_get_num_threads()));
    std::vector<ParsedLine> own;
    try {
      typename Lines::Parser parser;
      typename Lines::Line line;
      while (queue.take(line))
        own.push_back(parser.parse(line));
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

} // namespace

/// Sets the parsed values, in the unit in which the property is stored.
class NivraReader::SetPointApplier {
public:
  SetPointApplier(NivraReader &reader, const QString &file, const QString &includeProperties)
      : report(file)
      , m_reader(reader)
      , m_file(file)
      , m_include(includeProperties, QRegularExpression::CaseInsensitiveOption) {}

  void apply(ParsedLine &line) {
    for (JsonLineParser::SetPoints &setPoints : line.setPoints) {
      const QString name = decoded(setPoints.name);
      element *target = m_reader.m_net.element(std::string_view(setPoints.name));
      if (target == nullptr) {
        report.add("unknown name", line.number, QStringLiteral("name not found, is no valid node or element: ") + name);
        continue;
      }
      for (JsonLineParser::SetPoint &point : setPoints.points)
        apply(*target, name, point, line.number);
    }
  }

  qint64 properties() const { return m_properties; }

  ReadReport report;

private:
  void apply(element &target, const QString &name, JsonLineParser::SetPoint &point, int line) {
    const QString property = decoded(point.property);
    if (!point.isComplete) {
      report.add("incomplete value", line,
                 QStringLiteral("A value of element %1 is left out: it needs \"property\" and \"value\"").arg(name),
                 QString(), name);
      return;
    }
    if (!m_include.pattern().isEmpty() && m_include.isValid() && !m_include.match(property).hasMatch())
      return;
    if (property.compare(QLatin1String("name"), Qt::CaseInsensitive) == 0 ||
        property.compare(QLatin1String("type"), Qt::CaseInsensitive) == 0) {
      report.add("identity", line, QStringLiteral("The %1 of element %2 cannot be set by a scenario").arg(property, name),
                 QString(), name);
      return;
    }
    if (point.doubt != nullptr)
      report.doubt(property, name, point.doubt, line);
    const PropertyKey key = PropertyKey::intern(std::string_view(point.property));
    ++m_properties;
    if (!toStoredUnit(target, name, key, point, line))
      return;
    m_reader.set(target, key, std::move(point.value));
  }

  /// False when the value must wait until the gases are known.
  bool toStoredUnit(const element &target, const QString &name, PropertyKey key, JsonLineParser::SetPoint &point, int line) {
    if (point.unit.empty())
      return true;
    const NetMetaData::Attribute *attribute =
        m_reader.m_net.metaData()->attribute(target.value(QStringLiteral("type")), key.name());
    if (attribute == nullptr)
      return true;
    const QString unit = decoded(point.unit);
    switch (m_units.convert(point.value, unit, attribute->storedUnit)) {
    case SetPointUnits::Outcome::AsItIs:
    case SetPointUnits::Outcome::Converted:
      return true;
    case SetPointUnits::Outcome::NeedsGas:
      m_reader.m_waiting.insert_or_assign(
          {&target, key}, WaitingSetPoint{std::move(point.value), unit, attribute->storedUnit, name, m_file, line});
      return false;
    case SetPointUnits::Outcome::Impossible:
      break;
    }
    report.add("unit", line,
               QStringLiteral("%1 of element %2 is given in \"%3\", which cannot be converted to \"%4\"; the value is kept")
                   .arg(key.name(), name, unit, attribute->storedUnit),
               QString(), name);
    return true;
  }

  NivraReader &m_reader;
  QString m_file;
  QRegularExpression m_include;
  SetPointUnits m_units;
  qint64 m_properties = 0;
};

void NivraReader::set(element &target, PropertyKey key, PropertyText value) {
  if (!m_waiting.empty())
    m_waiting.erase({&target, key}); // what comes later counts
  target.set(key, std::move(value));
}

void NivraReader::convertWaiting(Findings &findings) {
  std::vector<std::pair<SetPointPlace, WaitingSetPoint>> waiting(std::make_move_iterator(m_waiting.begin()),
                                                                 std::make_move_iterator(m_waiting.end()));
  m_waiting.clear();
  std::sort(waiting.begin(), waiting.end(), [](const auto &a, const auto &b) { return a.second.line < b.second.line; });
  const SetPointUnits units;
  std::map<QString, ReadReport> reports; // by file
  for (auto &[place, point] : waiting) {
    element &target = *m_net.element(point.element);
    const Units::Gas gas = SetPointUnits::gasAt(target, m_net, m_gases);
    if (units.convert(point.value, point.unit, point.storedUnit, gas) == SetPointUnits::Outcome::Converted) {
      target.set(place.second, std::move(point.value));
      continue;
    }
    reports.try_emplace(point.file, point.file)
        .first->second.add("gas", point.line,
                           QStringLiteral("%1 of element %2 is given in \"%3\"; to convert it to \"%4\" the norm density or "
                                          "the calorific value of the gas must be known. The value is left out")
                               .arg(place.second.name(), point.element, point.unit, point.storedUnit),
                           QString(), point.element);
  }
  for (auto &[file, report] : reports)
    append(findings, report.take());
}

template <typename Lines>
NivraReader::Result NivraReader::readLines(const QString &path, const Options &options) {
  Result result;
  Lines source(path);
  QString reason;
  if (!source.reader.open(&reason)) {
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, reason});
    return result;
  }
  QElapsedTimer timer;
  timer.start();
  LineQueue<Lines> queue(source, options.progress);
  std::vector<ParsedLine> lines = parseAll(queue, m_told);
  result.ok = true;
  result.cancelled = queue.wasCancelled();
  result.readingSeconds = source.reader.readingSeconds();
  log(QStringLiteral("### To read elements of %1 file took %2s").arg(QLatin1String(Lines::Form)).arg(result.readingSeconds));
  SetPointApplier applier(*this, path, options.includeProperties);
  for (ParsedLine &line : lines) {
    if (line.fault.isEmpty())
      applier.apply(line);
    else
      Lines::tell(applier.report, line);
  }
  source.tellOfFile(applier.report);
  result.properties = applier.properties();
  log(QStringLiteral("### To read elements of %1 buffer took %2 [sec] for %3 properties")
          .arg(QLatin1String(Lines::Form))
          .arg(static_cast<double>(timer.nsecsElapsed()) * Nano - result.readingSeconds)
          .arg(result.properties));
  result.findings = applier.report.take();
  return result;
}

NivraReader::Result NivraReader::readSetPoints(const QString &path, const Options &options) {
  return isJsonPath(path) ? readLines<JsonLines>(path, options) : readLines<TextLines>(path, options);
}

NivraReader::Result NivraReader::readScenariofileJsn(const QString &path, const Options &options) {
  Result result = readSetPoints(path, options);
  convertWaiting(result.findings);
  return result;
}
