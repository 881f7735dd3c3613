#pragma once

#include <model/netdata.h>

#include <QCoreApplication>
#include <QString>

#include <set>
#include <vector>

/// How values of one scenario differ from those of another, the reference: properties of the elements like others, by a name
/// that says of what. "p.diff" is the value of "p" less that of the reference, "p.ratio" the one by the other.
class Comparison {
  Q_DECLARE_TR_FUNCTIONS(Comparison)
public:
  enum class Kind { None, Difference, Ratio };

  static Kind kindOf(const QString &property);
  /// The name of the comparison of a property; the property itself for None.
  static QString property(const QString &compared, Kind kind);
  /// What a comparison is of; other names as they are.
  static QString compared(const QString &property);

  /// Keeps the numbers of the reference for the elements of the network, which may be one and the same.
  void takeReference(const NetData &net, const NetData &reference);
  /// Writes the comparisons of these properties into the network, in place of those before, and describes them in its
  /// vocabulary. An element that lacks the number on either side, or whose ratio is to zero, gets none.
  /// The elements must be those of takeReference(); remove() before they go.
  void apply(NetData &net, const std::set<PropertyKey> &properties, const QString &reference);
  /// Takes them off.
  void remove(NetData &net);

private:
  struct Column {
    PropertyKey property;
    std::vector<double> values; ///< by the order in which elements are walked; NetData::NoValue for none
  };
  struct Keys {
    PropertyKey property;
    PropertyKey difference;
    PropertyKey ratio;
    const Column *column;
  };
  void describe(NetData &net, const std::vector<Keys> &keys, const QString &reference) const;

  std::vector<Column> m_columns;
  std::vector<PropertyKey> m_written;
};
