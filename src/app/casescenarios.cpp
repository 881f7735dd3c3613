#include "casescenarios.h"

#include "networkloader.h"

#include <QDir>

namespace {

/// The scenario file of a folder, in the form of the open workspace: that of the folder's name where there are several.
QString scenarioFile(const QString &folder, bool isJson) {
  const QString suffix = isJson ? QStringLiteral(".scen.jsn") : QStringLiteral(".scen");
  const QDir directory(folder);
  const QString own = directory.dirName() + suffix;
  if (QFileInfo(directory.filePath(own)).isFile())
    return directory.filePath(own);
  const QStringList files = directory.entryList({QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
  return files.isEmpty() ? QString() : directory.filePath(files.first());
}

} // namespace

PageFacts CaseScenarios::facts(const NivraWorkspace &workspace) {
  if (workspace.currentCase() == nullptr)
    return {};
  return {workspace.currentCase()->name, workspace.hasScenario() ? workspace.currentScenario()->workDir : QString()};
}

ScenarioSource CaseScenarios::of(const NivraWorkspace &workspace) {
  const QString folder = workspace.caseDirectory();
  const QString geometry = workspace.geometryPath();
  const bool isJson = workspace.isJson();
  ScenarioSource source;
  source.names = [folder, isJson] {
    QStringList names;
    for (const QString &name : QDir(folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::LocaleAware)) {
      if (!scenarioFile(QDir(folder).filePath(name), isJson).isEmpty())
        names.append(name);
    }
    return names;
  };
  source.read = [folder, geometry, isJson](const QString &name, NetData &net, const Progress &progress, QString *reason) {
    NetworkLoader loader(net);
    if (!loader.resolve(scenarioFile(QDir(folder).filePath(name), isJson))) {
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
    if (!isDone)
      *reason = loader.error();
    return isDone;
  };
  return source;
}
