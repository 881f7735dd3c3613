// The reader of scenario values.
//
// 1. Two threads take raw records from one queue, by a critical section, and parse them side by side. Each has its own
//    parser, its own raw record and its own list of what it parsed.
// 2. While they work nobody touches the network or makes property keys: names and properties stay texts until then. The
//    network is changed by one thread at a time.
// 3. What was parsed is applied by the calling thread in the order of the lines, so that of values given twice the last
//    counts, whichever thread parsed it, and messages stand in the order of the file.
// 4. Only the calling thread tells the progress, outside of the critical section: whoever is told may touch the window.
//    When it is asked to stop, both threads get no more records; what they have is applied.
// 5. A value whose unit needs the gas waits until all files are read that may tell of gases. What is set for the same
//    property of the same element meanwhile replaces it (set()).

#include "readreport.h"
#include "recordstream.h"
#include "setpointunits.h"

#include <io/nivrareader.h>
#include <model/names.h>
#include <model/netmetadata.h>

#include <QElapsedTimer>
#include <QRegularExpression>

#include <algorithm>
#include <atomic>
#include <exception>
#include <omp.h>

namespace {

constexpr int Threads = 2;
constexpr double Nano = 1e-9;

/// The raw records of a file as one queue for several threads.
class RecordQueue {
public:
  RecordQueue(RecordStream &stream, const Progress &progress)
      : m_stream(stream)
      , m_progress(progress) {}

  /// Takes the next one into the thread's own room.
  bool take(RawRecord &raw) {
    bool taken = false;
    bool tells = false;
    double fraction = 0.0;
#pragma omp critical(nivra_reader_lines)
    {
      taken = !m_cancelled && m_stream.take(raw);
      if (taken) {
        raw.keep();
        // Only the calling thread may touch the window, however many records the others take.
        tells = ++m_sinceProgress >= RecordsBetweenProgress && omp_get_thread_num() == 0 && m_progress;
        if (tells)
          m_sinceProgress = 0;
      }
      fraction = m_stream.fraction();
    }
    if (tells && !m_progress(fraction))
      m_cancelled = true;
    return taken;
  }

  RecordParser parser() const {
    return m_stream.parser();
  }
  bool isJson() const {
    return m_stream.form() == RecordForm::Json;
  }
  bool wasCancelled() const {
    return m_cancelled;
  }

private:
  static constexpr int RecordsBetweenProgress = 1000;

  RecordStream &m_stream;
  const Progress &m_progress;
  int m_sinceProgress = 0;
  std::atomic<bool> m_cancelled{false};
};

/// Adds the records of a thread. Those of each thread are in the order of the file, and so are all together.
void join(std::vector<Record> &records, std::vector<Record> own) {
  if (records.empty()) {
    records = std::move(own);
    return;
  }
  const auto middle = static_cast<std::ptrdiff_t>(records.size());
  records.insert(records.end(), std::make_move_iterator(own.begin()), std::make_move_iterator(own.end()));
  std::inplace_merge(records.begin(), records.begin() + middle, records.end(),
                     [](const Record &a, const Record &b) { return a.line < b.line; });
}

std::vector<Record> parseAll(RecordQueue &queue, const Told &told) {
  std::vector<Record> records;
  std::exception_ptr trouble;
#pragma omp parallel num_threads(Threads) default(none) shared(queue, records, trouble, told)
  {
#pragma omp single
    tell(told, Finding::Severity::Information,
         QStringLiteral("NivraReader::%1 [%2 threads]")
             .arg(queue.isJson() ? QStringLiteral("readScenariofileJsn") : QStringLiteral("readScenariofile"))
             .arg(omp_get_num_threads()));
    std::vector<Record> own;
    try {
      RecordParser parser = queue.parser();
      RawRecord raw;
      while (queue.take(raw))
        parser.parse(raw, own.emplace_back());
    } catch (...) {
#pragma omp critical(nivra_reader_lines)
      trouble = std::current_exception();
    }
#pragma omp critical(nivra_reader_lines)
    join(records, std::move(own));
  }
  if (trouble)
    std::rethrow_exception(trouble);
  return records;
}

} // namespace

/// Sets the parsed values, in the unit in which the property is stored.
class NivraReader::SetPointApplier {
public:
  SetPointApplier(NivraReader &reader, const QString &file, const Options &options)
      : report(file)
      , m_reader(reader)
      , m_file(file)
      , m_options(options)
      , m_include(options.includeProperties, QRegularExpression::CaseInsensitiveOption) {}

  void apply(Record &record) {
    for (SetPointsRecord &setPoints : record.setPoints) {
      const QString name = decoded(setPoints.name);
      element *target = m_reader.target(setPoints.name, m_options);
      if (target == nullptr) {
        report.unknownName(name, record.line);
        continue;
      }
      for (SetPointRecord &point : setPoints.points)
        apply(*target, name, point, record.line);
    }
  }

  qint64 properties() const { return m_properties; }

  ReadReport report;

private:
  void apply(element &target, const QString &name, SetPointRecord &point, int line) {
    const QString property = decoded(point.property);
    if (!point.isComplete) {
      report.incompleteValue(name, line);
      return;
    }
    if (!m_include.pattern().isEmpty() && m_include.isValid() && !m_include.match(property).hasMatch())
      return;
    if (property.compare(QLatin1String("name"), Qt::CaseInsensitive) == 0 ||
        property.compare(QLatin1String("type"), Qt::CaseInsensitive) == 0) {
      report.add(ReadReport::Kind::Identity, line,
                 ReadReport::tr("The %1 of element %2 cannot be set by a scenario").arg(property, name), QString(), name);
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
  bool toStoredUnit(element &target, const QString &name, PropertyKey key, SetPointRecord &point, int line) {
    if (point.unit.empty())
      return true;
    const NetMetaData::Attribute *attribute =
        m_reader.m_net.metaData()->attribute(target.value(Names::all().type), key.name());
    if (attribute == nullptr)
      return true;
    const QString unit = decoded(point.unit);
    switch (m_units.convert(point.value, unit, attribute->storedUnit)) {
    case SetPointUnits::Outcome::AsItIs:
    case SetPointUnits::Outcome::Converted:
      return true;
    case SetPointUnits::Outcome::NeedsGas:
      m_reader.m_waiting.insert_or_assign(
          {&target, key}, WaitingSetPoint{std::move(point.value), unit, attribute->storedUnit, m_file, line});
      return false;
    case SetPointUnits::Outcome::Impossible:
      break;
    }
    report.add(ReadReport::Kind::Unit, line,
               ReadReport::tr("%1 of element %2 is given in \"%3\", which cannot be converted to \"%4\"; the value is kept")
                   .arg(key.name(), name, unit, attribute->storedUnit),
               QString(), name);
    return true;
  }

  NivraReader &m_reader;
  QString m_file;
  const Options &m_options;
  QRegularExpression m_include;
  SetPointUnits m_units;
  qint64 m_properties = 0;
};

void NivraReader::set(element &target, PropertyKey key, PropertyText value) {
  if (!m_waiting.empty())
    m_waiting.erase({&target, key}); // what comes later counts
  put(target, key, std::move(value));
}

void NivraReader::put(element &target, PropertyKey key, PropertyText value) {
  if (m_journal != nullptr)
    m_journal->set(target, key, std::move(value));
  else
    target.set(key, std::move(value));
}

void NivraReader::convertWaiting(Findings &findings) {
  std::vector<std::pair<SetPointTarget, WaitingSetPoint>> waiting(std::make_move_iterator(m_waiting.begin()),
                                                                  std::make_move_iterator(m_waiting.end()));
  m_waiting.clear();
  std::sort(waiting.begin(), waiting.end(), [](const auto &a, const auto &b) { return a.second.line < b.second.line; });
  const SetPointUnits units;
  std::map<QString, ReadReport> reports; // by file
  for (auto &[set, point] : waiting) {
    const auto &[target, key] = set;
    const Units::Gas gas = SetPointUnits::gasAt(*target, m_net, m_gases);
    if (units.convert(point.value, point.unit, point.storedUnit, gas) == SetPointUnits::Outcome::Converted) {
      put(*target, key, std::move(point.value));
      continue;
    }
    const QString name = target->value(Names::all().name);
    reports.try_emplace(point.file, point.file)
        .first->second.add(ReadReport::Kind::Gas, point.line,
                           ReadReport::tr("%1 of element %2 is given in \"%3\"; to convert it to \"%4\" the norm density or "
                                          "the calorific value of the gas must be known. The value is left out")
                               .arg(key.name(), name, point.unit, point.storedUnit),
                           QString(), name);
  }
  for (auto &[file, report] : reports)
    append(findings, report.take());
}

NivraReader::Result NivraReader::readSetPoints(const QString &path, const Options &options) {
  Result result;
  RecordStream stream(path, {RecordStream::formOf(path), RecordContent::SetPoints, RecordNumbers::AsWritten});
  QString reason;
  if (!stream.open(&reason)) {
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, reason});
    return result;
  }
  QElapsedTimer timer;
  timer.start();
  RecordQueue queue(stream, options.progress);
  std::vector<Record> records = parseAll(queue, m_told);
  result.ok = true;
  result.cancelled = queue.wasCancelled();
  result.readingSeconds = stream.readingSeconds();
  const QString kind = queue.isJson() ? QStringLiteral("scenario jsn") : QStringLiteral("scenario");
  log(QStringLiteral("### To read elements of %1 file took %2s").arg(kind).arg(result.readingSeconds));
  SetPointApplier applier(*this, path, options);
  for (Record &record : records) {
    if (record.fault.isEmpty())
      applier.apply(record);
    else if (queue.isJson())
      applier.report.badSetPoints(record);
    else
      stream.tell(record, applier.report);
  }
  stream.tellEnd(applier.report);
  result.properties = applier.properties();
  log(QStringLiteral("### To read elements of %1 buffer took %2 [sec] for %3 properties")
          .arg(kind)
          .arg(static_cast<double>(timer.nsecsElapsed()) * Nano - result.readingSeconds)
          .arg(result.properties));
  result.findings = applier.report.take();
  return result;
}

NivraReader::Result NivraReader::readScenariofileJsn(const QString &path, const Options &options) {
  Result result = readSetPoints(path, options);
  convertWaiting(result.findings);
  return result;
}
