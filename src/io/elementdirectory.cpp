#include <io/elementdirectory.h>
#include <model/names.h>
#include <model/netdata.h>

ElementDirectory::ElementDirectory(const NetData &net)
    : m_names(QStringLiteral("names")) {
  m_names.reserve(net.nodes().size() + net.edges().size());
  for (const elements *collection : {&net.nodes(), &net.edges(), &net.assembledSubnets(), &net.textBoxes()})
    addAll(*collection);
  m_facts.reserve(m_names.size());
  for (const elements::Entry &entry : m_names)
    m_facts.push_back({&entry, 0, {NoIndex, NoIndex}});
  for (Facts &facts : m_facts) {
    const element *source = net.element(facts.entry->id.utf8());
    facts.type = typeOf(source->value(Names::all().type));
    std::size_t end = 0;
    for (const PropertyKey key : {Names::all().node1, Names::all().node2}) {
      const PropertyText *node = source->find(key);
      facts.ends[end++] = node == nullptr ? NoIndex : find(node->utf8());
    }
  }
}

/// Of those that share a name, the one that the network finds by it comes first.
void ElementDirectory::addAll(const elements &collection) {
  for (const elements::Entry &entry : collection)
    m_names.tryInsert(entry.id, element());
}

Index ElementDirectory::typeOf(const QString &code) {
  int number = m_types.indexOf(code);
  if (number < 0) {
    number = m_types.size();
    m_types.append(code);
  }
  return toIndex(fromQt(number));
}

Index ElementDirectory::find(std::string_view utf8) const {
  const elements::Entry *entry = m_names.findEntry(utf8);
  return entry == nullptr ? NoIndex : entry->index;
}
