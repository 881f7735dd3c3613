#pragma once

#include "profile/networkpath.h"

#include <model/netdata.h>
#include <model/units.h>

#include <QHash>
#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>
#include <vector>

/// A property along a path.
struct ProfileQuantity {
  PropertyKey property;
  QString title;          ///< as people call it, with the unit in which it is shown
  QString name;           ///< the property, with that unit: for files
  QString unit;           ///< as people write it; empty for a plain number
  bool isOfNodes = true;  ///< else of edges
  bool hasBounds = false; ///< somewhere on the path, of nodes: properties of the same name with "min" and "max" behind it
  PropertyKey lower = {}; ///< these
  PropertyKey upper = {};
};

/// What a network says along a path: nodes and edges in the order in which they are passed, where each lies and what its
/// properties are, in the units that people chose. Of edges that are passed from node2 to node1 flow, velocity and
/// differences change their sign: positive is the direction of the path. It points into the network.
class PathProfile {
public:
  struct Row {
    const elements::Entry *entry = nullptr;
    QString name;
    QString type;      ///< code
    double from = 0.0; ///< shown length from the start of the path; of a node the same as to
    double to = 0.0;
    bool isNode = true;
    bool isForward = true; ///< of an edge: from node1 to node2
    bool isOff = false;    ///< out of use or closed
  };
  /// A stored value; NetData::NoValue for none.
  using ValueOf = std::function<double(const Row &row, PropertyKey property)>;
  /// Points of a curve that hang together: (length, value) as shown.
  using Curve = std::vector<QVector<QPointF>>;

  PathProfile() = default;
  PathProfile(const NetData &net, const NetworkPath &path);

  bool isEmpty() const { return m_rows.empty(); }
  /// A node, then an edge and its far node, and so on.
  const std::vector<Row> &rows() const { return m_rows; }
  /// Of the whole path, as shown, and its unit.
  double length() const { return m_rows.empty() ? 0.0 : m_rows.back().to; }
  const QString &lengthUnit() const { return m_lengthUnit; }
  int stations() const; ///< edges that have no length

  /// Those that have a number somewhere on the path: the pressure, others of nodes, then those of edges.
  std::vector<ProfileQuantity> quantities() const;
  /// As shown; NetData::NoValue for none, and of the wrong kind of row.
  double value(const Row &row, const ProfileQuantity &quantity) const;
  double value(const Row &row, const ProfileQuantity &quantity, PropertyKey property, const ValueOf &valueOf) const;
  /// Nodes are joined by lines; an edge has one value over its length.
  Curve curve(const ProfileQuantity &quantity, const ValueOf &valueOf) const;
  Curve curve(const ProfileQuantity &quantity) const { return curve(quantity, quantity.property); }
  /// The same of a bound.
  Curve curve(const ProfileQuantity &quantity, PropertyKey property) const;
  /// Where values lie beyond their bounds.
  QVector<QPointF> violations(const ProfileQuantity &quantity) const;
  /// What this network says.
  static double stored(const Row &row, PropertyKey property);

  /// The first row of the element; NoIndex when the path does not pass it.
  Index find(const QString &name) const { return m_byName.value(name, NoIndex); }
  /// Which stations count more: 0 for compressors, then regulators and so on.
  static int rank(const QString &type);
  /// What is meant by a place: a station or node within the reach, the nearest first, else the edge there.
  Index rowAt(double length, double reach) const;

private:
  const Units::Linear &toDisplay(const QString &type, PropertyKey property) const;
  Curve curve(const ProfileQuantity &quantity, PropertyKey property, const ValueOf &valueOf) const;
  void addQuantities(const QStringList &types, bool ofNodes, std::vector<ProfileQuantity> &found) const;

  const NetMetaData *m_metaData = nullptr;
  std::vector<Row> m_rows;
  QString m_lengthUnit;
  QHash<QString, Index> m_byName;
  mutable QHash<QString, Units::Linear> m_conversions; ///< by type and property
};
