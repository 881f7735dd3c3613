#include "ruletable.h"

#include <base/settings.h>

#include <algorithm>
#include <rules/networkrules.h>

namespace {

constexpr Setting<double> Tolerance{"rule: tolerance of balances"};
constexpr Setting<double> SteepestPipe{"rule: steepest pipe"};
constexpr Setting<double> HighestStep{"rule: highest step in a station"};
constexpr Setting<int> Crowd{"rule: nodes at one point"};

} // namespace

struct NetworkRules::Found {
  std::vector<RuleHits> byRule;
};

RuleSettings NetworkRules::settings() {
  constexpr double Percent = 100.0;
  constexpr int Two = 2; // at one point
  RuleSettings settings;
  settings.severities.reserve(RuleTable::all().size());
  for (const Rule &rule : RuleTable::all()) {
    const QString word = rule.severity.value();
    std::optional<Finding::Severity> severity;
    if (word == QLatin1String("warning"))
      severity = Finding::Severity::Warning;
    else if (word == QLatin1String("information"))
      severity = Finding::Severity::Information;
    settings.severities.push_back(severity);
  }
  settings.balanceTolerance = std::max(Tolerance.value(), 0.0) / Percent;
  settings.steepestPipe = SteepestPipe.value();
  settings.highestStep = HighestStep.value();
  settings.crowd = std::max(Crowd.value(), Two);
  return settings;
}

NetworkRules::NetworkRules(const NetData &net, const NetworkFacts &facts, RuleSettings settings)
    : m_net(net)
    , m_facts(facts)
    , m_settings(std::move(settings))
    , m_found(std::make_unique<Found>()) {}

NetworkRules::~NetworkRules() = default;

bool NetworkRules::find(const Progress &progress) {
  const std::vector<Rule> &rules = RuleTable::all();
  const auto goesOn = [&](std::size_t done) {
    return !progress || progress(static_cast<double>(done) / static_cast<double>(rules.size() + 1));
  };
  m_found->byRule.assign(rules.size(), RuleHits());
  const NetworkParts parts(m_facts);
  const RuleSubject subject{m_facts, parts, m_settings};
  for (std::size_t i = 0; i < rules.size(); ++i) {
    if (!goesOn(i + 1))
      return false;
    if (m_settings.severities[i])
      rules[i].find(subject, m_found->byRule[i]);
  }
  return goesOn(rules.size());
}

std::vector<NetworkRules::Told> NetworkRules::tell() const {
  const RuleTexts texts(m_net);
  std::vector<Told> all;
  for (std::size_t i = 0; i < m_found->byRule.size(); ++i) {
    const RuleHits &found = m_found->byRule[i];
    if (found.count() == 0)
      continue;
    const Rule &rule = RuleTable::all()[i];
    Told told{QString::fromLatin1(rule.name), tr(rule.title), {}, {}};
    for (const RuleHit &hit : found.hits()) {
      Finding finding = Finding::about(hit.entries.front()->name(), rule.text(hit, texts));
      finding.severity = hit.isMinor ? Finding::Severity::Information : *m_settings.severities[i];
      told.findings.push_back(std::move(finding));
      QStringList names;
      names.reserve(toQt(hit.entries.size()));
      for (const elements::Entry *entry : hit.entries)
        names.append(entry->name());
      told.elements.push_back(std::move(names));
    }
    if (const std::size_t rest = found.count() - found.hits().size(); rest > 0) {
      Finding finding;
      finding.severity = Finding::Severity::Information;
      finding.text = tr("%1 more of this kind are not listed").arg(rest);
      told.findings.push_back(std::move(finding));
      told.elements.emplace_back();
    }
    all.push_back(std::move(told));
  }
  return all;
}

std::vector<NetworkRules::Told> NetworkRules::check(const NetData &net) {
  const NetworkFacts facts(net);
  NetworkRules rules(net, facts, settings());
  rules.find({});
  return rules.tell();
}

QStringList NetworkRules::names() {
  QStringList names;
  for (const Rule &rule : RuleTable::all())
    names.append(QString::fromLatin1(rule.name));
  return names;
}
