#pragma once

#include <io/nivragasparams.h>
#include <io/nivraworkspace.h>
#include <io/scenariosummary.h>

#include <QString>

#include <machines/machinedata.h>

/// The machine data that a scenario names.
namespace MachineFile {

/// Empty when nobody named one.
QString of(const NivraWorkspace &workspace);
/// What the scenario says beside the machines themselves.
void takeScenario(MachineData &machines, const NivraGasParams &params, const GasTable &gases);

} // namespace MachineFile
