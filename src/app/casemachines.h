#pragma once

#include <characteristics/scenariomachines.h>

#include <QCoreApplication>

class NivraWorkspace;

/// Reads the scenarios that lie beside the open one for single machines: only what the files say of a few elements.
class CaseMachines {
  Q_DECLARE_TR_FUNCTIONS(CaseMachines)
public:
  /// Its functions keep what they need of the workspace.
  static ScenarioMachines of(const NivraWorkspace &workspace);
};
