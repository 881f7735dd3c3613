#include "machinefile.h"

#include <model/units.h>

#include <QDir>
#include <QFileInfo>

QString MachineFile::of(const NivraWorkspace &workspace) {
  if (!workspace.hasScenario() || workspace.currentScenario()->comprDatabase.isEmpty())
    return QString();
  const QString &database = workspace.currentScenario()->comprDatabase;
  const QString path = QDir(workspace.scenarioDirectory()).filePath(database);
  const bool isNamed = database != NivraScenario().comprDatabase || QFileInfo::exists(path);
  return isNamed ? path : QString();
}

void MachineFile::takeScenario(MachineData &machines, const NivraGasParams &params, const GasTable &gases) {
  machines.ambientTemperature = params.tamb - Units::ZeroCelsius;
  machines.gas = {gases, static_cast<GasLaw::Wanted>(params.ntype_gasLaw), params.tsoil};
}
