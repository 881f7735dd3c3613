#pragma once

#include <base/finding.h>

#include <QString>
#include <QStringList>

#include <vector>

/// What the stages of an opening noticed, as a person looks through it.
class FindingList {
public:
  struct Group {
    QString name; ///< of the stage, or of the rule that was broken
    Findings findings;
    QString title{};                     ///< of a rule: what it is about; empty for stages
    std::vector<QStringList> elements{}; ///< of a rule, by finding: all elements that it is about

    bool isRule() const { return !title.isEmpty(); }
  };

  /// Findings that only a box would tell say its text; what says nothing at all is left out, as are stages without any. What
  /// rules find always says something.
  void set(std::vector<Group> groups);
  const std::vector<Group> &groups() const { return m_groups; }
  /// Findings of all stages.
  int count() const;

  /// "network.geom.jsn:12", empty when the finding belongs to no file.
  static QString location(const Finding &finding);
  /// The elements that a finding is about.
  static QStringList elements(const Group &group, int finding);
  /// Whether the finding has the text in it, in its element or its file, regardless of case.
  static bool says(const Finding &finding, const QString &text);

private:
  std::vector<Group> m_groups;
};
