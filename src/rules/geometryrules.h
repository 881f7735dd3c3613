#pragma once

#include "rule.h"

/// Rules about lengths, heights and positions.
namespace GeometryRules {

void findLengths(const RuleSubject &subject, RuleHits &hits);
QString ofLength(const RuleHit &hit, const RuleTexts &texts);
void findJumps(const RuleSubject &subject, RuleHits &hits);
QString ofJump(const RuleHit &hit, const RuleTexts &texts);
void findCrowds(const RuleSubject &subject, RuleHits &hits);
QString ofCrowd(const RuleHit &hit, const RuleTexts &texts);

} // namespace GeometryRules
