#pragma once

#include <paper/pagecontent.h>
#include <view/scenariosource.h>

#include <QCoreApplication>

class NivraWorkspace;

/// The scenarios that lie beside the open one, for pages of several of them.
class CaseScenarios {
  Q_DECLARE_TR_FUNCTIONS(CaseScenarios)
public:
  static PageFacts facts(const NivraWorkspace &workspace);
  /// Its functions keep what they need of the workspace.
  static ScenarioSource of(const NivraWorkspace &workspace);
};
