#include <base/nivramsg.h>
#include <io/nivrareader.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <app/networkloader.h>

namespace {

constexpr double Milli = 1e-3;

QString tr(const char *text) {
  return QCoreApplication::translate("NetworkLoader", text);
}

QString firstCritical(const Findings &findings) {
  for (const Finding &finding : findings) {
    if (finding.severity == Finding::Severity::Critical)
      return finding.logText();
  }
  return QString();
}

} // namespace

bool NetworkLoader::resolve(const QString &path) {
  m_seconds.clear();
  m_cancelled = false;
  const NivraMsg::Recorder recorder;
  m_workspace = NivraWorkspace::fromFile(path);
  if (m_workspace.isValid())
    return true;
  const QString reasons = recorder.lines().join(QStringLiteral("; "));
  m_error = tr("%1 is no usable workspace: %2").arg(path, reasons);
  return false;
}

void NetworkLoader::takeWorkspace(const NetworkLoader &other) {
  m_workspace = other.m_workspace;
  m_seconds.clear();
  m_cancelled = false;
}

void NetworkLoader::readConfiguration() {
  Findings findings;
  m_workspace.readCaseConfiguration(findings);
  m_gasParams = NivraGasParams();
  if (m_workspace.hasScenario())
    m_workspace.readScenarioConfiguration(m_gasParams, findings);
  report(findings);
}

bool NetworkLoader::readNetwork(const ReadOptions &options) {
  QElapsedTimer timer;
  timer.start();
  NivraReader reader(m_net);
  NivraReader::Options readerOptions;
  readerOptions.includeTypes = options.includeTypes;
  readerOptions.includeProperties = options.includeProperties;
  readerOptions.progress = options.progress;
  const NivraReader::Result result = reader.readTopoAndScen(m_workspace, readerOptions);
  m_seconds.append({QStringLiteral("read"), static_cast<double>(timer.restart()) * Milli});
  if (!result.configuration.isEmpty())
    m_workspace.takeConfiguration(result.configuration, m_gasParams);
  report(result.findings);
  m_cancelled = result.cancelled;
  if (!result.ok || result.cancelled) {
    m_error = result.cancelled ? tr("Reading was cancelled.") : firstCritical(result.findings);
    return false;
  }
  m_checkFindings = ConsistencyCheck::checkNetData(m_net);
  m_removed = ConsistencyCheck::prune(m_net);
  m_seconds.append({QStringLiteral("check"), static_cast<double>(timer.restart()) * Milli});
  return true;
}
