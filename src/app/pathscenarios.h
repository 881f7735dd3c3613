#pragma once

#include <tools/pathscenarios.h>

class NivraWorkspace;

/// The scenarios that lie beside the open one, for the values along a path.
namespace PathScenarioFiles {

/// Its functions keep what they need of the workspace.
PathScenarios of(const NivraWorkspace &workspace);

} // namespace PathScenarioFiles
