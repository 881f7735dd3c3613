#pragma once

#include <base/index.h>
#include <model/netdata.h>

#include <QLineF>
#include <QRectF>

#include <cstdint>
#include <optional>
#include <vector>

/// What the drawing needs to know of a network apart from colours and sizes: where everything lies and which element it
/// is. It points into the network: clear() before the network changes.
/// Everything here is in plot coordinates. These are the network's own, save where its extent is so small (degrees) or so
/// large that a zoom in whole units would not work: then they are a power of ten of them.
class NetGeometry {
public:
  enum class NodeShape : std::uint8_t { Junction, Supply, Demand, Pressure };

  struct Node {
    const element *source = nullptr;
    double x = 0.0;
    double y = 0.0;
    double flow = 0.0;      ///< that is set, supplies negative; NetData::NoValue where nothing is
    Index driven = NoIndex; ///< of a drive upon the line of its compressor: that edge, beside which it is drawn
    NodeShape shape = NodeShape::Junction;
    bool isIdle = false; ///< supplies or takes nothing, while others of the network do
    bool isDrive = false;
    bool isPlaced = false; ///< has valid coordinates
  };

  /// What of a node changes with what is set for it.
  struct NodeFlow {
    double flow = 0.0;
    NodeShape shape = NodeShape::Junction;
  };

  struct Edge {
    const element *source = nullptr;
    Index node1 = NoIndex; ///< in nodes(); NoIndex when there is no such node
    Index node2 = NoIndex;
    char type = 'p';         ///< type code, of which only the first letter matters
    bool isInactive = false; ///< its "state" or "active" says off, closed, false or 0
    bool isBypass = false;   ///< its "state" says bypass
    /// Which of the edges that join the same two nodes, drawn side by side, this is: 0 in the middle, positive to the right
    /// of the way from node1 to node2; one unit a line.
    float lane = 0.0F;
    bool isBetweenLanes = false; ///< others of them run on both sides

    bool hasEnds() const { return node1 != NoIndex && node2 != NoIndex; }
  };

  /// A text box or a subnet: something that stands at one point.
  struct PointElement {
    const element *source = nullptr;
    double x = 0.0;
    double y = 0.0;
    std::vector<Index> pins; ///< of a subnet: indices of its pin nodes in nodes(), in its order
  };

  /// Something that can be pointed at: which list it is in, and its index there.
  struct Item {
    NetData::EleType kind = NetData::Unknown;
    Index index = NoIndex;

    friend bool operator==(Item a, Item b) { return a.kind == b.kind && a.index == b.index; }
    friend bool operator!=(Item a, Item b) { return !(a == b); }
    friend bool operator<(Item a, Item b) { return a.kind != b.kind ? a.kind < b.kind : a.index < b.index; }
  };

  /// What was read of a network, in its own coordinates.
  struct Records {
    std::vector<Node> nodes; ///< all, in the order of their names, as are the edges
    std::vector<Edge> edges;
    std::vector<PointElement> textBoxes; ///< those that have coordinates, as are the subnets
    std::vector<PointElement> subnets;
  };

  NetGeometry() = default;
  /// \param dropped number of text boxes and subnets without coordinates
  NetGeometry(Records records, int dropped);
  void clear();
  /// One a node. True when nodes are shown otherwise than before.
  bool setFlows(const std::vector<NodeFlow> &flows);

  const std::vector<Node> &nodes() const { return m_records.nodes; }
  const std::vector<Edge> &edges() const { return m_records.edges; }
  const std::vector<PointElement> &textBoxes() const { return m_records.textBoxes; }
  const std::vector<PointElement> &subnets() const { return m_records.subnets; }
  /// Of everything placed, text boxes and subnets included; it may have no area.
  const QRectF &extent() const { return m_extent; }
  /// Where most of it lies. Stragglers far away, such as nodes without coordinates that were put to the origin, would
  /// otherwise make a dot of the network.
  const QRectF &mainExtent() const { return m_mainExtent; }
  /// The length of an edge like most others, in plot units: how much of the plane each element has for itself. 0 when
  /// nothing has a length.
  double typicalLength() const { return m_typicalLength; }
  /// What the main body covers, in square plot units; in one line, a strip as broad as an edge is long.
  double area() const;
  /// Plot units a unit of the network's coordinates.
  double plotUnits() const { return m_plotUnits; }
  /// From the network's own coordinates, which a person reads and writes, and back.
  QRectF toPlot(const QRectF &own) const { return {own.topLeft() * m_plotUnits, own.size() * m_plotUnits}; }
  QRectF toOwn(const QRectF &plot) const { return {plot.topLeft() / m_plotUnits, plot.size() / m_plotUnits}; }
  int nodesOutside(const QRectF &extent) const;
  bool hasExtent() const { return m_hasExtent; } ///< something is placed
  bool isPlaced(const Edge &edge) const;         ///< both ends have coordinates
  /// From the first end node to the second; of a placed edge.
  QLineF line(const Edge &edge) const {
    const Node &from = nodes()[edge.node1];
    const Node &to = nodes()[edge.node2];
    return {from.x, from.y, to.x, to.y};
  }
  const element *source(Item item) const;
  std::size_t count(NetData::EleType kind) const;
  /// Calls visit(item, source) for everything that can be pointed at.
  template <typename Visit>
  void forEachItem(const Visit &visit) const {
    for (const NetData::EleType kind : {NetData::Node, NetData::Edge, NetData::AssembledSubnet, NetData::TextBox}) {
      const std::size_t items = count(kind);
      for (Item item{kind, 0}; item.index < items; ++item.index)
        visit(item, *source(item));
    }
  }
  /// The item of a name among the kinds of the mask; nothing when it is not there or was not drawn.
  std::optional<Item> find(const NetData &net, const QString &name, int kinds = NetData::AllTypes) const;
  /// Middle of the item in plot coordinates; nothing without coordinates.
  std::optional<QPointF> center(Item item) const;
  /// Elements that cannot be drawn for want of coordinates.
  int unplaced() const { return m_unplaced; }
  /// The mean of what the ends of an edge have, NetData::NoValue unless both have something.
  static double meanOfEnds(const Edge &edge, const std::vector<double> &ofNodes);

private:
  template <typename Visit>
  void forEachPoint(const Visit &visit);
  QRectF findMainExtent();
  void countUnplaced();
  void chooseUnits();
  void findTypicalLength();
  bool markIdleNodes();

  Records m_records;
  QRectF m_extent;
  QRectF m_mainExtent;
  double m_plotUnits = 1.0;
  double m_typicalLength = 0.0;
  bool m_hasExtent = false;
  int m_unplaced = 0;
};
