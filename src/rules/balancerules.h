#pragma once

#include "rule.h"

/// Rules about what enters and leaves: nodes by the results, connected parts by what the scenario states.
namespace BalanceRules {

void findNodes(const RuleSubject &subject, RuleHits &hits);
QString ofNode(const RuleHit &hit, const RuleTexts &texts);
void findParts(const RuleSubject &subject, RuleHits &hits);
QString ofPart(const RuleHit &hit, const RuleTexts &texts);

} // namespace BalanceRules
