#include "casemachines.h"

#include "casescenarios.h"
#include "machinefile.h"

#include <io/nivrareader.h>
#include <io/scenariofiles.h>

#include <QDir>

#include <machines/machinereader.h>
#include <map>
#include <memory>
#include <utility>

namespace {

QString firstText(const Findings &findings) {
  return findings.empty() ? QString() : findings.front().text;
}

/// Machine data by path: scenarios mostly share theirs.
using KnownMachines = std::map<QString, MachineData>;

void takeMachines(const NivraWorkspace &workspace, KnownMachines &known, MachineData &machines) {
  const QString path = MachineFile::of(workspace);
  if (path.isEmpty())
    return;
  const QString name = QDir::cleanPath(path);
  auto found = known.find(name);
  if (found == known.end())
    found = known.emplace(name, MachineReader::read(path).data).first;
  machines = found->second;
}

bool readScenario(NivraWorkspace workspace, KnownMachines &known, NetData &net, MachineData &machines,
                  const Progress &progress, QString *reason) {
  Findings findings; // they are told when the scenario itself is opened
  NivraGasParams params;
  workspace.readCaseConfiguration(findings);
  workspace.readScenarioConfiguration(params, findings);
  NivraReader reader(net);
  NivraReader::Options options;
  options.progress = progress;
  reader.readSubResults(workspace, options);
  const NivraReader::Result result = reader.readScenarioJsn(workspace.scenarioPath(), *workspace.currentScenario(), options);
  if (!result.configuration.isEmpty())
    workspace.takeConfiguration(result.configuration, params, result.configurationFile);
  if (!result.ok || result.cancelled) {
    *reason = firstText(result.findings);
    return false;
  }
  takeMachines(workspace, known, machines);
  MachineFile::takeScenario(machines, params, reader.gases());
  return true;
}

} // namespace

ScenarioMachines CaseMachines::of(const NivraWorkspace &workspace) {
  const QString folder = workspace.caseDirectory();
  const QString geometry = workspace.geometryPath();
  const bool isJson = workspace.isJson();
  ScenarioMachines source;
  source.names = CaseScenarios::of(workspace, {}).names;
  source.geometry = [geometry, isJson](const QStringList &elements, NetData &net, const Progress &progress,
                                       QString *reason) {
    NetData whole;
    NivraReader reader(whole);
    NivraReader::Options options;
    options.progress = progress;
    const NivraReader::Result result = reader.readGeomJsn(isJson ? reader.networkPath(geometry) : geometry, options);
    for (const QString &name : elements) {
      if (const element *e = whole.element(name))
        net.addElement(*e);
    }
    if (!result.ok)
      *reason = firstText(result.findings);
    return result.ok && !result.cancelled;
  };
  const auto known = std::make_shared<KnownMachines>();
  source.read = [folder, geometry, isJson, known](const QString &name, NetData &net, MachineData &machines,
                                                  const Progress &progress, QString *reason) {
    const auto form = isJson ? ScenarioFiles::Form::Json : ScenarioFiles::Form::Text;
    NivraWorkspace other = NivraWorkspace::fromFile(ScenarioFiles::in(QDir(folder).filePath(name), form));
    if (!other.hasScenario() || other.geometryPath() != geometry) {
      *reason = other.hasScenario() ? tr("The scenario belongs to another geometry, %1.").arg(other.geometryPath())
                                    : firstText(other.findings());
      return false;
    }
    return readScenario(std::move(other), *known, net, machines, progress, reason);
  };
  return source;
}
