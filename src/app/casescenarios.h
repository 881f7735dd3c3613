#pragma once

#include <paper/pagecontent.h>
#include <tools/findinglist.h>
#include <view/scenariosource.h>

#include <QCoreApplication>

#include <functional>
#include <vector>

class NivraWorkspace;

/// The scenarios that lie beside the open one, for pages of several of them.
class CaseScenarios {
  Q_DECLARE_TR_FUNCTIONS(CaseScenarios)
public:
  static PageFacts facts(const NivraWorkspace &workspace);
  /// The file of a scenario of the case, by the name of its folder.
  static QString fileOf(const NivraWorkspace &workspace, const QString &name);
  /// What reading a scenario for a page noticed.
  using Noticed = std::function<void(const QString &scenario, const std::vector<FindingList::Group> &groups)>;
  /// Its functions keep what they need of the workspace.
  static ScenarioSource of(const NivraWorkspace &workspace, const Noticed &noticed);
};
