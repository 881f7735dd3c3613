#pragma once

#include "networkparts.h"
#include "rulehits.h"
#include "ruletexts.h"

#include <base/settings.h>

#include <rules/rulesettings.h>

/// What the rules look at.
struct RuleSubject {
  const NetworkFacts &facts;
  const NetworkParts &parts;
  const RuleSettings &settings;
};

/// One rule for networks. Finding is free of texts and settings, so that a thread can do it; it takes time in proportion to
/// the network, sorting included.
struct Rule {
  const char *name;          ///< for people and files, never changed
  const char *title;         ///< what is wrong, to be translated in the context "NetworkRules"
  Setting<QString> severity; ///< "warning", "information" or "off"
  void (*find)(const RuleSubject &subject, RuleHits &hits);
  QString (*text)(const RuleHit &hit, const RuleTexts &texts);
};
