#include <tools/findinglist.h>

#include <QFileInfo>

#include <algorithm>
#include <iterator>

void FindingList::set(std::vector<Group> groups) {
  m_groups = std::move(groups);
  for (Group &group : m_groups) {
    for (Finding &finding : group.findings) {
      if (finding.text.isEmpty())
        finding.text = finding.box;
    }
    Findings &findings = group.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), [](const Finding &f) { return f.text.isEmpty(); }),
                   findings.end());
  }
}

QString FindingList::place(const Finding &finding) {
  const QString file = QFileInfo(finding.file).fileName();
  return finding.line > 0 ? QStringLiteral("%1:%2").arg(file).arg(finding.line) : file;
}

bool FindingList::passes(const Finding &finding) const {
  return m_filter.isEmpty() || finding.text.contains(m_filter, Qt::CaseInsensitive) ||
         finding.element.contains(m_filter, Qt::CaseInsensitive) || place(finding).contains(m_filter, Qt::CaseInsensitive);
}

std::vector<FindingList::Group> FindingList::shown() const {
  std::vector<Group> groups;
  for (const Group &group : m_groups) {
    Findings found;
    std::copy_if(group.findings.begin(), group.findings.end(), std::back_inserter(found),
                 [this](const Finding &finding) { return passes(finding); });
    if (!found.empty())
      groups.push_back({group.name, std::move(found)});
  }
  return groups;
}

int FindingList::count() const {
  int count = 0;
  for (const Group &group : m_groups)
    count += static_cast<int>(group.findings.size());
  return count;
}
