#pragma once

#include <base/index.h>
#include <model/element.h>

#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

class NetData;

/// The elements of some types, in the order of the network, counted from 0.
///
/// 1. The network outlives them: clear() comes before elements go.
/// 2. Values are read from the elements whenever they are asked for; nothing of them is kept here.
class ElementList {
public:
  /// Gathers those that there are now. False when they are the same as before.
  bool gather(NetData &net, const QStringList &types);
  void clear();

  std::size_t size() const { return m_sources.size(); }
  const std::vector<const element *> &sources() const { return m_sources; }
  const element &at(Index row) const { return *m_sources[row]; }
  QString name(Index row) const;

  /// The codes of the types that were gathered.
  const QStringList &types() const { return m_types; }
  /// Index of the element's type in types().
  std::size_t type(Index row) const { return m_typeOf[row]; }
  /// NoIndex when the element is not among them. The first call takes a walk over all.
  Index find(const element *source) const;

private:
  QStringList m_types;
  std::vector<const element *> m_sources;
  std::vector<unsigned short> m_typeOf;
  mutable std::unordered_map<const element *, Index> m_rowOf; ///< made when it is asked for
};
