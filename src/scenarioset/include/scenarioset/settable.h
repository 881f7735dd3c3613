#pragma once

#include <QStringList>
#include <QVector>

#include <vector>

class NetMetaData;
class ScenarioSet;

/// The figures of a set as a table: a row for each property of an element, in the units in which people read it.
struct SetTable {
  QStringList headers;
  std::vector<QStringList> rows;
  QVector<int> valueColumns; ///< which hold numbers

  static SetTable of(const ScenarioSet &set, const NetMetaData &metaData);
};
