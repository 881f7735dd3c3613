#pragma once

#include "rule.h"

/// Rules about what a scenario states at single nodes, and about the bounds that it is compared with.
namespace NominationRules {

void findContracts(const RuleSubject &subject, RuleHits &hits);
QString ofContract(const RuleHit &hit, const RuleTexts &texts);
void findBounds(const RuleSubject &subject, RuleHits &hits);
QString ofBounds(const RuleHit &hit, const RuleTexts &texts);
/// Of the connection itself, and of the edges in use that can bring or take the flow.
void findCapacities(const RuleSubject &subject, RuleHits &hits);
QString ofCapacity(const RuleHit &hit, const RuleTexts &texts);
void findPressures(const RuleSubject &subject, RuleHits &hits);
QString ofPressure(const RuleHit &hit, const RuleTexts &texts);
void findCrossed(const RuleSubject &subject, RuleHits &hits);
QString ofCrossed(const RuleHit &hit, const RuleTexts &texts);

} // namespace NominationRules
