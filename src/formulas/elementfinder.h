#pragma once

#include <model/netdata.h>

#include <QHash>
#include <QStringList>

#include <map>
#include <vector>

/// Elements by type and name. Many formulas are for the same ones, so what was looked for once is kept.
class ElementFinder {
public:
  explicit ElementFinder(const NetData &net)
      : m_net(net) {}

  /// By address. \param types empty for all
  std::vector<element *> find(const QStringList &types, const QString &namePattern);
  /// By address; names that are not there, or not of these types, are left out.
  std::vector<element *> named(const QStringList &names, const QStringList &types) const;

private:
  void sortByType();

  const NetData &m_net;
  QHash<QString, std::vector<std::pair<QString, element *>>> m_byType;
  std::map<std::pair<QStringList, QString>, std::vector<element *>> m_found;
};
