#pragma once

#include <QString>

/// Which scenario of a case was opened last. Kept in the data folder of the user ("lastscenarios.json"), never in the
/// workspace.
namespace LastScenario {

/// Path of the scenario file; empty when none is known or it is no longer there.
QString of(const QString &caseDirectory);
/// A file outside of the case is not remembered. Of many cases those that were opened longest ago are forgotten.
void remember(const QString &caseDirectory, const QString &scenarioFile);

} // namespace LastScenario
