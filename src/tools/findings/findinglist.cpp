#include <base/index.h>
#include <tools/findinglist.h>

#include <algorithm>

void FindingList::set(std::vector<Group> groups) {
  m_groups = std::move(groups);
  for (Group &group : m_groups) {
    for (Finding &finding : group.findings) {
      if (finding.text.isEmpty())
        finding.text = finding.box;
    }
    if (group.isRule())
      continue;
    Findings &findings = group.findings;
    findings.erase(std::remove_if(findings.begin(), findings.end(), [](const Finding &f) { return f.text.isEmpty(); }),
                   findings.end());
  }
  m_groups.erase(std::remove_if(m_groups.begin(), m_groups.end(), [](const Group &group) { return group.findings.empty(); }),
                 m_groups.end());
}

QString FindingList::location(const Finding &finding) {
  const QString file = finding.file.mid(finding.file.lastIndexOf(QLatin1Char('/')) + 1);
  return finding.line > 0 ? QStringLiteral("%1:%2").arg(file).arg(finding.line) : file;
}

QStringList FindingList::elements(const Group &group, int finding) {
  if (!group.elements.empty())
    return group.elements[fromQt(finding)];
  const QString &element = group.findings[fromQt(finding)].element;
  return element.isEmpty() ? QStringList() : QStringList(element);
}

bool FindingList::says(const Finding &finding, const QString &text) {
  return finding.text.contains(text, Qt::CaseInsensitive) || finding.element.contains(text, Qt::CaseInsensitive) ||
         location(finding).contains(text, Qt::CaseInsensitive);
}

int FindingList::count() const {
  int count = 0;
  for (const Group &group : m_groups)
    count += toQt(group.findings.size());
  return count;
}
