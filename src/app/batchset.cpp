#include "batchset.h"

#include <io/nivraworkspace.h>
#include <model/netdata.h>

#include <scenarioset/scenarioset.h>
#include <scenarioset/setproperties.h>

std::unique_ptr<ScenarioSet> BatchSet::gather(const BatchTask::Set &asked, const NivraWorkspace &workspace, NetData &net,
                                              QStringList *warnings, QString *reason) {
  SetScenarios::Choice choice;
  if (!choice.take(asked.scenarios, reason))
    return nullptr;
  ScenarioSet::Request request{workspace.geometryPath(), workspace.isJson(), choice.of(SetScenarios::of(workspace)),
                               asked.properties};
  if (request.scenarios.empty()) {
    *reason = asked.scenarios.isEmpty() ? tr("The case has no scenario.")
                                        : tr("No scenario of the case is like \"%1\".").arg(asked.scenarios);
    return nullptr;
  }
  if (request.properties == QStringList{QStringLiteral("all")})
    request.properties = SetScenarios::propertiesIn(request.scenarios);
  auto set = std::make_unique<ScenarioSet>(net, std::move(request));
  if (!set->run({}) || set->columns().empty()) {
    *reason = set->unread().empty() ? tr("The scenarios give no element any of these properties.")
                                    : tr("No scenario can be read: %1").arg(set->unread().front().reason);
    return nullptr;
  }
  for (const ScenarioSet::Unread &unread : set->unread())
    warnings->append(tr("The scenario %1 is left out: %2").arg(set->scenarioName(unread.scenario), unread.reason));
  SetProperties properties;
  properties.put(*set, {SetStatistic::All.begin(), SetStatistic::All.end()}, net);
  for (const QString &name : properties.leftOut())
    warnings->append(tr("The network has a property %1 of its own, which stays.").arg(name));
  return set;
}
