#include "elementtable/elementlist.h"

#include <model/names.h>
#include <model/netdata.h>

bool ElementList::gather(NetData &net, const QStringList &types) {
  std::vector<const element *> sources;
  std::vector<unsigned short> typeOf;
  net.forEach(NetData::AllTypes, [&](const element &source) {
    const PropertyText *code = source.find(Names::all().type);
    const int type = types.indexOf(code == nullptr ? QString() : code->toString());
    if (type < 0)
      return;
    sources.push_back(&source);
    typeOf.push_back(static_cast<unsigned short>(type));
  });
  const bool isSame = types == m_types && sources == m_sources;
  m_types = types;
  m_typeOf = std::move(typeOf);
  if (isSame)
    return false;
  m_sources = std::move(sources);
  m_rowOf.clear();
  return true;
}

void ElementList::clear() {
  m_types.clear();
  m_sources.clear();
  m_typeOf.clear();
  m_rowOf.clear();
}

QString ElementList::name(Index row) const {
  return at(row).value(Names::all().name);
}

Index ElementList::find(const element *source) const {
  if (m_rowOf.empty()) {
    m_rowOf.reserve(m_sources.size());
    for (std::size_t row = 0; row < m_sources.size(); ++row)
      m_rowOf.emplace(m_sources[row], toIndex(row));
  }
  const auto found = m_rowOf.find(source);
  return found == m_rowOf.end() ? NoIndex : found->second;
}
