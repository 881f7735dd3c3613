#include "pathscenarios.h"

#include "casescenarios.h"

#include <io/nivraworkspace.h>
#include <io/resultvalues.h>
#include <io/scenariofiles.h>

#include <QDir>

PathScenarios PathScenarioFiles::of(const NivraWorkspace &workspace) {
  if (workspace.currentCase() == nullptr)
    return {};
  const QString folder = workspace.caseDirectory();
  const auto form = workspace.isJson() ? ScenarioFiles::Form::Json : ScenarioFiles::Form::Text;
  const auto read = [folder, form](const QString &scenario, const QSet<QString> &elements, const QSet<QString> &properties,
                                   QString *reason) {
    return ResultValues::read(ScenarioFiles::in(QDir(folder).filePath(scenario), form), elements, properties, reason);
  };
  return {CaseScenarios::facts(workspace).scenario, CaseScenarios::of(workspace, {}).names, read};
}
