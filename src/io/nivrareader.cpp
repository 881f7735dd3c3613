#include "elementbuilder.h"
#include "jsonfile.h"
#include "recordstream.h"

#include <io/nivrareader.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>

namespace {

constexpr double Nano = 1e-9;
constexpr int LinesBetweenProgress = 1000;

NivraReader::Result failure(const QString &text) {
  NivraReader::Result result;
  result.findings.push_back({Finding::Severity::Critical, QString(), 0, text, text});
  return result;
}

void append(NivraReader::Result &result, NivraReader::Result &&part) {
  result.cancelled = result.cancelled || part.cancelled;
  result.properties += part.properties;
  append(result.findings, std::move(part.findings));
}

Findings asWarnings(Findings findings) {
  for (Finding &finding : findings) {
    finding.severity = Finding::Severity::Warning;
    finding.box.clear();
  }
  return findings;
}

/// Tells the progress from time to time; false when it asks to stop.
class ProgressTeller {
public:
  explicit ProgressTeller(const Progress &progress)
      : m_progress(progress) {}

  bool goesOn(const RecordStream &stream) {
    if (++m_lines < LinesBetweenProgress || !m_progress)
      return true;
    m_lines = 0;
    return m_progress(stream.fraction());
  }

private:
  const Progress &m_progress;
  int m_lines = 0;
};

/// Hands each element of a file to take(element, line, fraction).
template <typename Take>
NivraReader::Result readElements(const QString &path, const NivraReader::Options &options, ReadReport &report,
                                 const Take &take) {
  RecordStream stream(path, {RecordStream::formOf(path), RecordContent::Elements, RecordNumbers::AsHeld, options.source});
  QString reason;
  if (!stream.open(&reason))
    return failure(reason);
  NivraReader::Result result;
  result.ok = true;
  ProgressTeller progress(options.progress);
  Record record;
  while (stream.next(record)) {
    if (!record.fault.isEmpty()) {
      stream.tell(record, report);
    } else {
      for (ElementRecord &parsed : stream.elements())
        take(parsed, record.line, stream.fraction());
    }
    if (!progress.goesOn(stream)) {
      result.cancelled = true;
      break;
    }
  }
  stream.tellEnd(report);
  result.readingSeconds = stream.readingSeconds();
  return result;
}

constexpr std::size_t SampledElements = 4096;

/// Networks have about as many edges as nodes, and files mostly list one after the other.
void makeRoom(NetData &net, double fraction) {
  constexpr double SpareRoom = 1.1;       // times what the sample tells
  constexpr double MaximumElements = 5e6; // a file of other shape further down must not claim all memory
  if (!(fraction > 0.0))
    return;
  const double all = std::min(static_cast<double>(SampledElements) / fraction * SpareRoom, MaximumElements);
  net.nodes().reserve(static_cast<std::size_t>(all * 0.5));
  net.edges().reserve(static_cast<std::size_t>(all * 0.5));
}

} // namespace

/// ".jsn" is the suffix; the longer ".json" is taken where only that is there, or where it was chosen. The text form has
/// none.
QString NivraReader::networkPath(const QString &textPath) const {
  if (!m_isJson)
    return textPath;
  return m_chosen.startsWith(textPath + QStringLiteral(".js")) ? m_chosen : jsonPathOf(textPath);
}

NivraReader::Result NivraReader::readTopoAndScen(const NivraWorkspace &workspace, const Options &options) {
  const NivraScenario scenario = workspace.hasScenario() ? *workspace.currentScenario() : NivraScenario();
  m_isJson = workspace.isJson();
  m_chosen = workspace.chosenPath();
  return readTopoAndScenJsn(workspace.geometryPath(), workspace.scenarioPath(), scenario, options);
}

NivraReader::Result NivraReader::readScenario(const NivraWorkspace &workspace, const Options &options) {
  m_isJson = workspace.isJson();
  m_chosen = workspace.chosenPath();
  if (!workspace.hasScenario())
    return failure(QCoreApplication::translate("NivraReader", "There is no scenario"));
  return readScenarioJsn(workspace.scenarioPath(), *workspace.currentScenario(), options);
}

element *NivraReader::target(std::string_view name, const Options &options) const {
  element *found = m_net.element(name);
  return found != nullptr && options.isTarget && !options.isTarget(*found) ? nullptr : found;
}

NivraReader::Result NivraReader::readTopoAndScenJsn(const QString &geometryPath, const QString &scenarioPath,
                                                    const NivraScenario &scenario, const Options &options) {
  if (m_isJson)
    log(QStringLiteral("starting  readTopoAndScenJsn with ") + geometryPath + QLatin1Char(' ') + scenarioPath);
  Result result = readGeomJsn(networkPath(geometryPath), options);
  if (!result.ok) {
    for (Finding &finding : result.findings)
      finding.text = finding.box =
          QCoreApplication::translate("NivraReader", "readTopoAndScen: cannot read %1").arg(finding.text);
    return result;
  }
  if (result.cancelled || scenarioPath.isEmpty())
    return result;
  Result part = readScenarioJsn(scenarioPath, scenario, options);
  result.configuration = part.configuration;
  result.configurationFile = part.configurationFile;
  append(result, std::move(part));
  return result;
}

NivraReader::Result NivraReader::readSubResults(const NivraWorkspace &workspace, const Options &options) {
  const QString base = workspace.scenarioPath().section(QLatin1Char('.'), 0, -2);
  m_isJson = workspace.isJson();
  const QString path = networkPath(base + QStringLiteral(".res.sub"));
  if (workspace.hasScenario() && QFileInfo::exists(path))
    return readGasParmsJsn(path, options);
  Result none;
  none.ok = true;
  return none;
}

NivraReader::Result NivraReader::readGeomJsn(const QString &path, const Options &options) {
  tell(m_told, Finding::Severity::Debug,
       QStringLiteral("starting readGeomJsn with incTypes=") + options.includeTypes + QStringLiteral(" and incProps=") +
           options.includeProperties);
  QElapsedTimer timer;
  timer.start();
  ReadReport report(path);
  ElementBuilder builder(options.includeTypes, options.includeProperties, report);
  qint64 properties = 0;
  element built;
  const auto take = [&](ElementRecord &parsed, int line, double fraction) {
    if (!builder.buildElement(parsed, line, built))
      return;
    if (m_net.nodes().size() + m_net.edges().size() == SampledElements)
      makeRoom(m_net, fraction);
    properties += static_cast<qint64>(built.size());
    m_net.addElement(std::move(built), m_told);
  };
  Result result = readElements(path, options, report, take);
  if (result.ok && !result.cancelled && m_net.isEmpty())
    report.add(ReadReport::Kind::Empty, 0, ReadReport::tr("The file holds no element"));
  result.properties = properties;
  append(result.findings, report.take());
  const QString file = isJsonPath(path) ? QStringLiteral("geom.jsn") : QStringLiteral("geom");
  tell(m_told, Finding::Severity::Debug,
       QStringLiteral("### To read elements of %1 file took %2s").arg(file).arg(result.readingSeconds));
  log(QStringLiteral("### To read elements of geom buffer took %1s")
          .arg(static_cast<double>(timer.nsecsElapsed()) * Nano - result.readingSeconds));
  return result;
}

NivraReader::Result NivraReader::readGasParmsJsn(const QString &path, const Options &options) {
  ReadReport report(path);
  ElementBuilder builder(QString(), options.includeProperties, report);
  qint64 properties = 0;
  Result result = readElements(path, options, report, [&](ElementRecord &parsed, int line, double) {
    element *target = this->target(parsed.name, options);
    if (target == nullptr) {
      report.unknownName(decoded(parsed.name), line);
      return;
    }
    for (Property &property : builder.properties(parsed, line)) {
      set(*target, property.key, std::move(property.value));
      ++properties;
    }
  });
  result.properties = properties;
  append(result.findings, report.take());
  return result;
}

NivraReader::Result NivraReader::readGasJsn(const QString &path) {
  ReadReport report(path);
  ElementBuilder builder(QString(), QString(), report);
  GasTable gases;
  Result result = readElements(path, Options(), report, [&](ElementRecord &parsed, int line, double) {
    gases[decoded(parsed.name)] = element::fromProperties(builder.properties(parsed, line));
  });
  result.ok = result.ok && !gases.empty();
  if (result.ok) {
    m_gases = std::move(gases);
    m_gasFile = path;
  }
  append(result.findings, report.take());
  return result;
}

NivraReader::Result NivraReader::readScenarioJsn(const QString &scenarioPath, const NivraScenario &scenario,
                                                 const Options &options) {
  if (m_isJson)
    log(QStringLiteral("starting readScenarioJsn with ") + scenarioPath);
  m_waiting.clear();
  Result result = readSetPoints(networkPath(scenarioPath), options);
  if (!result.ok) {
    for (Finding &finding : result.findings) {
      finding.severity = Finding::Severity::Warning;
      finding.text = finding.box =
          QCoreApplication::translate("NivraReader", "readScen: cannot read scen file %1").arg(finding.text);
    }
    return result;
  }
  const QString base = scenarioPath.section(QLatin1Char('.'), 0, -2);
  if (!result.cancelled)
    readGas(base, scenario, result);
  if (!result.cancelled)
    readCompanions(base, options, result);
  convertWaiting(result.findings); // now that all is read that may tell of gases
  return result;
}

void NivraReader::readGas(const QString &base, const NivraScenario &scenario, Result &result) {
  QString path = scenario.gasFile.isEmpty() ? base + QStringLiteral(".gas")
                                            : QFileInfo(base).path() + QLatin1Char('/') + scenario.gasFile;
  const QString first = isJsonPath(path) ? path : networkPath(path);
  Result gas = readGasJsn(first);
  if (!gas.ok && isJsonPath(first)) {
    if (isJsonPath(path))
      path = path.section(QLatin1Char('.'), 0, -2);
    Result text = readGasJsn(path);
    if (text.ok) {
      warn(QStringLiteral("readScen: cannot find or read JSON gas file, but could read via readGas-function"));
      if (QFileInfo::exists(first))
        append(result.findings, asWarnings(std::move(gas.findings)));
      gas = std::move(text);
    }
  }
  if (!gas.ok) {
    warn(QStringLiteral("readScen: cannot find or read a gas file"));
    gas.findings = asWarnings(std::move(gas.findings));
  }
  append(result, std::move(gas));
}

void NivraReader::readCompanions(const QString &base, const Options &options, Result &result) {
  static const Companion fixes{".fix", "Fixes for scenario are loaded!", "Could not read .fix.jsn file",
                               "There is no scenario fixes file", &NivraReader::readSetPoints};
  static const Companion results{".res", "Results for scenario are loaded!", "Could not read .res.jsn file",
                                 "There is no scenario .res.jsn file", &NivraReader::readGasParmsJsn};
  static const Companion percentages{
      ".gaspar", "Previously saved gas percentages etc. loaded!", "Could not read .gaspar.jsn file",
      "Could not find .gaspar.jsn file\nUsually this happens if gas percentages etc. were not computed before.",
      &NivraReader::readGasParmsJsn};
  readCompanion(fixes, base, options, result);
  readConfiguration(base, result);
  readCompanion(results, base, options, result);
  readCompanion(percentages, base, options, result);
}

void NivraReader::readCompanion(const Companion &companion, const QString &base, const Options &options, Result &result) {
  if (result.cancelled)
    return;
  const QString path = networkPath(base + QLatin1String(companion.suffix));
  const auto text = [this](const char *json) {
    QString said = QString::fromLatin1(json);
    return m_isJson ? said : said.remove(QStringLiteral(".jsn"));
  };
  if (!QFileInfo::exists(path)) {
    for (const QString &line : text(companion.absent).split(QLatin1Char('\n')))
      log(line);
    return;
  }
  Result part = (this->*companion.read)(path, options);
  if (part.ok) {
    log(QLatin1String(companion.success));
  } else {
    part.findings = asWarnings(std::move(part.findings));
    part.findings.front().text.prepend(text(companion.failed) + QStringLiteral(": ")); // the file was not opened, and why
  }
  append(result, std::move(part));
}

void NivraReader::readConfiguration(const QString &base, Result &result) {
  const QString path = jsonPathOf(base + QStringLiteral(".scen.cfg"));
  if (!m_isJson || result.cancelled || !QFileInfo::exists(path)) // the text form was read with the configuration
    return;
  QString reason;
  const std::optional<QJsonObject> object = readJsonObject(path, &reason);
  result.configurationFile = path;
  if (object)
    result.configuration = *object;
  else
    result.findings.push_back({Finding::Severity::Warning, path, 0, reason});
}
