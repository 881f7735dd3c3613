#include "ruletable.h"

#include "balancerules.h"
#include "connectionrules.h"
#include "geometryrules.h"
#include "nominationrules.h"

#include <QtGlobal>

const std::vector<Rule> &RuleTable::all() {
  static const std::vector<Rule> rules{
      {"node-balance", QT_TRANSLATE_NOOP("NetworkRules", "What flows to a node does not flow off"), "rule: node-balance",
       BalanceRules::findNodes, BalanceRules::ofNode},
      {"nomination-balance", QT_TRANSLATE_NOOP("NetworkRules", "Entries and exits of a connected part differ"),
       "rule: nomination-balance", BalanceRules::findParts, BalanceRules::ofPart},
      {"nomination-contract", QT_TRANSLATE_NOOP("NetworkRules", "A set flow is outside of its contract"),
       "rule: nomination-contract", NominationRules::findContracts, NominationRules::ofContract},
      {"nomination-bounds", QT_TRANSLATE_NOOP("NetworkRules", "A set flow is outside of its bounds"),
       "rule: nomination-bounds", NominationRules::findBounds, NominationRules::ofBounds},
      {"nomination-capacity", QT_TRANSLATE_NOOP("NetworkRules", "A set flow is larger than the connection can carry"),
       "rule: nomination-capacity", NominationRules::findCapacities, NominationRules::ofCapacity},
      {"set-pressure", QT_TRANSLATE_NOOP("NetworkRules", "A set pressure is outside of its bounds"), "rule: set-pressure",
       NominationRules::findPressures, NominationRules::ofPressure},
      {"crossed-bounds", QT_TRANSLATE_NOOP("NetworkRules", "A lower bound is above the upper one"), "rule: crossed-bounds",
       NominationRules::findCrossed, NominationRules::ofCrossed},
      {"cut-off", QT_TRANSLATE_NOOP("NetworkRules", "Nodes are cut off from every source"), "rule: cut-off",
       ConnectionRules::findCutOff, ConnectionRules::ofCutOff},
      {"no-pressure-set-point", QT_TRANSLATE_NOOP("NetworkRules", "Nothing holds the pressure of a connected part"),
       "rule: no-pressure-set-point", ConnectionRules::findWithoutPressure, ConnectionRules::ofWithoutPressure},
      {"duplicate-pipes", QT_TRANSLATE_NOOP("NetworkRules", "Pipes are alike and lie between the same nodes"),
       "rule: duplicate-pipes", ConnectionRules::findDuplicates, ConnectionRules::ofDuplicates},
      {"zero-length", QT_TRANSLATE_NOOP("NetworkRules", "A pipe has no length"), "rule: zero-length",
       GeometryRules::findLengths, GeometryRules::ofLength},
      {"height-jump", QT_TRANSLATE_NOOP("NetworkRules", "The height jumps between two nodes"), "rule: height-jump",
       GeometryRules::findJumps, GeometryRules::ofJump},
      {"same-position", QT_TRANSLATE_NOOP("NetworkRules", "Many nodes lie at one point"), "rule: same-position",
       GeometryRules::findCrowds, GeometryRules::ofCrowd},
  };
  return rules;
}
