#pragma once

#include <base/finding.h>
#include <base/index.h>
#include <model/elementkinds.h>

#include <QHash>
#include <QIODevice>
#include <QSet>
#include <QString>
#include <QStringList>

/// The vocabulary of the network model: type names per kind, draw functions and, per element type and property, what
/// "Attribute.csv" says. Read once, from the file beside the program when there is one, else from the resources.
class NetMetaData {
public:
  /// One row of "Attribute.csv".
  struct Attribute {
    QString type; ///< type code, or "*" for every type
    QString property;
    QString longName;
    QString group;       ///< "geometry", "scenario", "results", "gas", "extra" or "hidden"
    QString storedUnit;  ///< empty: a number without unit, or a text
    QString displayUnit; ///< empty: shown as stored
    QString category;
    bool favourite = false;
    QString description;
    QStringList values; ///< that a text may have; empty when it may be anything
    QString quantity{}; ///< of which people choose the unit (Quantities); empty for none or not said
  };

  static const NetMetaData &instance();
  /// Of reading the instance's "Attribute.csv".
  const Findings &findings() const { return m_findings; }

  NetMetaData(); ///< the built-in type names and no attributes
  /// Reads "Attribute.csv" from the device; faulty lines are returned and left out.
  Findings read(QIODevice &device, const QString &fileName);
  /// Adds a row for a type and property that have none.
  void add(const Attribute &row);

  /// Exact lookup, in the order node, edge, text box, subassembly type names.
  ElementKinds::EleType kindOf(const QString &typeName) const;
  const QSet<QString> &nodeTypes() const { return m_nodeTypes; }
  const QSet<QString> &edgeTypes() const { return m_edgeTypes; }
  const QSet<QString> &textBoxTypes() const { return m_textBoxTypes; }
  const QSet<QString> &subassemblyTypes() const { return m_subassemblyTypes; }

  /// Properties by which nodes, respectively edges, can be coloured and sized.
  const QStringList &nodeFunctions() const { return m_nodeFunctions; }
  const QStringList &edgeFunctions() const { return m_edgeFunctions; }

  /// The row for a type and property (regardless of case), the row for every type otherwise; null when there is none.
  const Attribute *attribute(const QString &typeCode, const QString &property) const;
  const std::vector<Attribute> &attributes() const { return m_attributes; }
  /// Of the first row that names the property, whatever the type: for draw functions and their colour scales.
  const Attribute *anyAttribute(const QString &property) const;

private:
  QSet<QString> m_nodeTypes;
  QSet<QString> m_edgeTypes;
  QSet<QString> m_textBoxTypes;
  QSet<QString> m_subassemblyTypes;
  QStringList m_nodeFunctions;
  QStringList m_edgeFunctions;
  std::vector<Attribute> m_attributes;
  Findings m_findings;
  QHash<QString, Index> m_index;         ///< folded type + "\n" + folded property -> index in m_attributes
  QHash<QString, Index> m_propertyIndex; ///< folded property -> index of the first
};
