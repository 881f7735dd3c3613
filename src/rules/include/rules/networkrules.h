#pragma once

#include <base/finding.h>

#include <QCoreApplication>
#include <QStringList>

#include <memory>
#include <rules/networkfacts.h>
#include <rules/rulesettings.h>
#include <vector>

/// Looks for what is wrong with a network and with what a scenario wants of it, rule by rule. Finding may happen in any
/// thread; what was found is told by the thread that owns settings and texts. The elements must stay until then.
class NetworkRules {
  Q_DECLARE_TR_FUNCTIONS(NetworkRules)
public:
  /// What a rule found.
  struct Told {
    QString rule;  ///< its name, the same in all languages
    QString title; ///< what it is about
    Findings findings;
    std::vector<QStringList> elements; ///< by finding: the names of all that it is about
  };

  /// What is in force now.
  static RuleSettings settings();
  /// In the thread that may ask for settings.
  NetworkRules(const NetData &net, const NetworkFacts &facts, RuleSettings settings);
  ~NetworkRules();
  NetworkRules(const NetworkRules &) = delete;
  NetworkRules &operator=(const NetworkRules &) = delete;

  /// False when it was cancelled.
  bool find(const Progress &progress);
  /// By rule, those that found nothing left out.
  std::vector<Told> tell() const;

  /// All at once.
  static std::vector<Told> check(const NetData &net);
  /// Names of all rules.
  static QStringList names();

private:
  struct Found;

  const NetData &m_net;
  const NetworkFacts &m_facts;
  RuleSettings m_settings;
  std::unique_ptr<Found> m_found;
};
