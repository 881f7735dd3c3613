#pragma once

#include <base/finding.h>
#include <model/elementkinds.h>
#include <model/elements.h>
#include <model/selection.h>

#include <QList>
#include <QPointF>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class NetMetaData;

/// The in-memory model of one gas-transport network. It has no lock: it may be read from several threads at once, but
/// every change is made by one thread at a time with no readers meanwhile. A copy is deep.
class NetData : public ElementKinds {
public:
  /// What a numeric access yields when there is no valid value.
  static constexpr double NoValue = -1e30;

  NetData();
  NetData(const NetData &other);
  NetData(NetData &&other) noexcept;
  NetData &operator=(const NetData &other);
  NetData &operator=(NetData &&other) noexcept;
  virtual ~NetData();

  /// Inserts the element into the collection of its kind and returns the kind; an element of the same name is
  /// overwritten, which is told. Unknown (0) when "name" or "type" is missing or the type is not known; the latter is told.
  EleType addElement(element added, const Told &told = {});

  /// The first kind of the mask, ascending, whose collection holds the name; (Unknown, null) when none does.
  std::pair<EleType, ::element *> findElement(const QString &name, int mask) const;
  /// Searches nodes, edges, assembled subnets, text boxes in this order; null when there is no such element.
  ::element *element(const QString &name) const;
  ::element *element(std::string_view utf8) const;

  /// Those that any element has, each spelling once, regardless of case in alphabetical order.
  std::vector<PropertyKey> propertyKeys() const;

  QList<elements *> collections(int mask);
  void forEach(int mask, const std::function<void(::element &)> &visit);

  elements &nodes() { return m_nodes; }
  elements &edges() { return m_edges; }
  elements &textBoxes() { return m_tBoxes; }
  elements &assembledSubnets() { return m_assembledSubnets; }
  const elements &nodes() const { return m_nodes; }
  const elements &edges() const { return m_edges; }
  const elements &textBoxes() const { return m_tBoxes; }
  const elements &assembledSubnets() const { return m_assembledSubnets; }
  const std::map<EleType, elements *> &typeMap() const { return m_typeMap; }
  const QList<EleType> &types() const { return m_types; }
  /// The vocabulary; another object once derived properties are described.
  const NetMetaData *metaData() const;
  /// Takes what is known of its properties in place of what was there, until the network is cleared.
  void setMetaData(std::shared_ptr<const NetMetaData> metaData) { m_metaData = std::move(metaData); }

  /// What a person has picked; emptied with the network.
  Selection &selection() { return m_selection; }
  const Selection &selection() const { return m_selection; }

  bool isEmpty() const;
  void clear();

  /// The text as a number strictly between -1e20 and 1e20 (its absolute value on request); NoValue otherwise, and for
  /// no text at all.
  static double number(const PropertyText *text, bool absolute = false);
  /// The property as a number strictly between -1e20 and 1e20 (its absolute value on request); NoValue otherwise.
  double value(const ::element &element, PropertyKey property, bool absolute = false) const;
  /// As value(); an edge without the property yields the mean of its end nodes' values when both have one. Throws
  /// element_out_of_range without "node1" or "node2", elements_out_of_range when an end node does not exist.
  double edgeValue(const ::element &edge, PropertyKey property, bool absolute = false) const;
  /// Where the properties "X" and "Y" put the element; 0 for a coordinate that it lacks.
  QPointF position(const ::element &element) const;
  /// Smallest and largest valid value over all nodes for a node function, over all edges otherwise; (1e30, -1e30)
  /// when there is none.
  std::pair<double, double> range(const QString &property, bool absolute = false) const;

  /// How a node is drawn and listed: "pset", "demand", "negqset" or its type.
  QString nodeCategory(const ::element &node) const;

private:
  void buildTypeMap();

  elements m_nodes;
  elements m_edges;
  elements m_tBoxes;
  elements m_assembledSubnets;
  Selection m_selection;
  std::shared_ptr<const NetMetaData> m_metaData; ///< null for the program's, which is read when somebody asks
  std::map<EleType, elements *> m_typeMap;
  QList<EleType> m_types;
};
