#pragma once

#include <base/finding.h>

#include <QString>

#include <vector>

/// What the stages of an opening noticed, as a person looks through it.
class FindingList {
public:
  struct Group {
    QString name; ///< of the stage
    Findings findings;
  };

  /// Findings that only a box would tell say its text; what says nothing at all is left out.
  void set(std::vector<Group> groups);
  /// Only findings that have the text in them, in their element or file, regardless of case.
  void setFilter(const QString &text) { m_filter = text; }

  /// Groups with what passes the filter; none that would be empty.
  std::vector<Group> shown() const;
  /// Of all, whatever the filter.
  int count() const;

  /// "network.geom.jsn:12", empty when the finding belongs to no file.
  static QString place(const Finding &finding);

private:
  bool passes(const Finding &finding) const;

  std::vector<Group> m_groups;
  QString m_filter;
};
