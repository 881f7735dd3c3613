#pragma once

#include <base/index.h>
#include <model/elements.h>

#include <QString>
#include <QStringList>

#include <array>
#include <string_view>
#include <vector>

class NetData;

/// The elements of a network by number: name, type and end nodes, without their properties. It is a copy that owes the
/// network nothing, so that another thread may read with it while the network changes or goes.
class ElementDirectory {
public:
  explicit ElementDirectory(const NetData &net);

  std::size_t size() const { return m_facts.size(); }
  /// NoIndex when there is no such element; the case of letters does not matter, as in the network.
  Index find(std::string_view utf8) const;
  QString name(Index element) const { return m_facts[element].entry->name(); }
  /// Numbers of the nodes at the ends of an edge; NoIndex where there are none.
  const std::array<Index, 2> &ends(Index element) const { return m_facts[element].ends; }
  const QString &type(Index element) const { return m_types[toQt(m_facts[element].type)]; }
  std::size_t typeNumber(Index element) const { return m_facts[element].type; }
  const QStringList &types() const { return m_types; } ///< that there are, by number

private:
  struct Facts {
    const elements::Entry *entry = nullptr;
    Index type = 0;
    std::array<Index, 2> ends{NoIndex, NoIndex};
  };

  void addAll(const elements &collection);
  Index typeOf(const QString &code);

  elements m_names; ///< without properties; their index is the number
  std::vector<Facts> m_facts;
  QStringList m_types;
};
