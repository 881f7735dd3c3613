#pragma once

#include "rule.h"

/// Rules about how elements hang together. What is out of use joins nothing.
namespace ConnectionRules {

void findCutOff(const RuleSubject &subject, RuleHits &hits);
QString ofCutOff(const RuleHit &hit, const RuleTexts &texts);
/// Parts that are cut off are told as such alone.
void findWithoutPressure(const RuleSubject &subject, RuleHits &hits);
QString ofWithoutPressure(const RuleHit &hit, const RuleTexts &texts);
/// Pipes with the same ends, length and diameter; loops that differ in one of these are meant so.
void findDuplicates(const RuleSubject &subject, RuleHits &hits);
QString ofDuplicates(const RuleHit &hit, const RuleTexts &texts);

} // namespace ConnectionRules
