#include "casescenarios.h"

#include "networkloader.h"

#include <base/fileaccess.h>
#include <base/withoutboxes.h>
#include <io/scenariofiles.h>

#include <QDir>

PageFacts CaseScenarios::facts(const NivraWorkspace &workspace) {
  if (workspace.currentCase() == nullptr)
    return {};
  return {workspace.currentCase()->name, workspace.hasScenario() ? workspace.currentScenario()->workDir : QString()};
}

QString CaseScenarios::fileOf(const NivraWorkspace &workspace, const QString &name) {
  const auto form = workspace.isJson() ? ScenarioFiles::Form::Json : ScenarioFiles::Form::Text;
  return ScenarioFiles::in(QDir(workspace.caseDirectory()).filePath(name), form);
}

ScenarioSource CaseScenarios::of(const NivraWorkspace &workspace, const Noticed &noticed) {
  const QString folder = workspace.caseDirectory();
  const QString geometry = workspace.geometryPath();
  const QString &root = workspace.root();
  const auto form = workspace.isJson() ? ScenarioFiles::Form::Json : ScenarioFiles::Form::Text;
  ScenarioSource source;
  source.names = [folder, form] {
    QStringList names;
    for (const ScenarioFiles::Scenario &scenario : ScenarioFiles::ofCase(folder, form))
      names.append(scenario.name);
    return names;
  };
  source.read = [folder, geometry, root, form, noticed](const QString &name, NetData &net, const Progress &progress,
                                                        QString *reason) {
    const NivraMsg::WithoutBoxes quiet; // nobody sits beside a run of many pages; the log says it
    NetworkLoader loader(net);
    const bool isResolved = loader.resolve(ScenarioFiles::in(QDir(folder).filePath(name), form));
    FileAccess::confineTo(root); // as for what is open
    if (!isResolved) {
      *reason = loader.error();
      return false;
    }
    if (loader.workspace().geometryPath() != geometry) {
      *reason = tr("The scenario belongs to another geometry, %1.").arg(loader.workspace().geometryPath());
      return false;
    }
    loader.readConfiguration();
    NetworkLoader::ReadOptions options;
    options.progress = progress;
    const bool isDone = loader.readNetwork(options);
    noticed(name, loader.noticed());
    if (!isDone)
      *reason = loader.error();
    return isDone;
  };
  return source;
}
