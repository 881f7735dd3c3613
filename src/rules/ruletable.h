#pragma once

#include "rule.h"

#include <vector>

namespace RuleTable {

/// All rules, in the order in which they are told.
const std::vector<Rule> &all();

} // namespace RuleTable
