#include "elementfinder.h"

#include <base/pattern.h>
#include <model/names.h>

#include <algorithm>

std::vector<element *> ElementFinder::find(const QStringList &types, const QString &namePattern) {
  std::vector<element *> &found = m_found[{types, namePattern}];
  if (!found.empty())
    return found;
  if (m_byType.isEmpty())
    sortByType();
  const Pattern pattern(namePattern);
  for (const QString &type : types.isEmpty() ? QStringList(m_byType.keys()) : types) {
    for (const auto &[name, e] : m_byType[type]) {
      if (pattern.matches(name))
        found.push_back(e);
    }
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::vector<element *> ElementFinder::named(const QStringList &names, const QStringList &types) const {
  std::vector<element *> found;
  for (const QString &name : names) {
    element *e = m_net.element(name);
    if (e != nullptr && (types.isEmpty() || types.contains(e->value(Names::all().type))))
      found.push_back(e);
  }
  std::sort(found.begin(), found.end());
  return found;
}

void ElementFinder::sortByType() {
  for (const elements *collection : {&m_net.nodes(), &m_net.edges(), &m_net.assembledSubnets(), &m_net.textBoxes()}) {
    for (const elements::Entry &entry : *collection)
      m_byType[entry.value.value(Names::all().type)].emplace_back(entry.name(), &entry.value);
  }
}
