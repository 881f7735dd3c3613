#pragma once

#include <model/netdata.h>
#include <model/propertycolumns.h>

#include <QLineF>
#include <QRectF>

#include <cstdint>
#include <optional>
#include <vector>

/// What the drawing needs to know of a network apart from colours and sizes: where everything lies and which element it
/// is. End nodes are looked up once. Points into the network: clear() before the network changes.
/// Everything here is in plot coordinates. These are the network's own, save where its extent is so small (degrees) or so
/// large that a zoom in whole units would not work: then they are a power of ten of them.
class NetGeometry {
public:
  enum class NodeShape : std::uint8_t { Junction, Supply, Demand, Pressure };

  struct Node {
    const element *source = nullptr;
    double x = 0.0;
    double y = 0.0;
    NodeShape shape = NodeShape::Junction;
    bool isDrive = false;
    bool isPlaced = false; ///< has valid coordinates
  };

  struct Edge {
    const element *source = nullptr;
    int node1 = -1; ///< position in nodes(), -1 when there is no such node
    int node2 = -1;
    char type = 'p';         ///< type code, of which only the first letter matters
    bool isInactive = false; ///< its "state" or "active" says off, closed, false or 0
    bool isBypass = false;   ///< its "state" says bypass
    /// Place among the edges that join the same two nodes, to be drawn side by side: 0 in the middle, positive to the
    /// right of the way from node1 to node2; one unit a line.
    float lane = 0.0F;
  };

  /// A text box or a subnet: something that stands at one point.
  struct Place {
    const element *source = nullptr;
    double x = 0.0;
    double y = 0.0;
    std::vector<int> pins; ///< of a subnet: positions of its pin nodes in nodes(), in its order
  };

  /// Something that can be pointed at: which list it is in, and its position there.
  struct Item {
    NetData::EleType kind = NetData::Unknown;
    int index = -1;

    friend bool operator==(Item a, Item b) { return a.kind == b.kind && a.index == b.index; }
    friend bool operator!=(Item a, Item b) { return !(a == b); }
  };

  /// A property whose numbers are asked for.
  struct Wanted {
    PropertyKey property;
    bool absolute = false;
  };
  struct Request {
    std::vector<Wanted> ofEdges;
    std::vector<Wanted> ofNodes;
  };
  /// One column a wanted property; in it one value an element, NetData::NoValue where there is none.
  using Columns = std::vector<std::vector<double>>;
  struct Values {
    Columns ofEdges; ///< an edge without the property has the mean of its end nodes, as NetData::edgeValue has it
    Columns ofEnds;  ///< what nodes say to the wanted properties of edges
    Columns ofNodes;
  };

  /// Looks up what there is and, on the way, the values that are wanted.
  Values build(const NetData &net, const Request &request);
  /// The values alone, when the network is the same.
  Values values(const Request &request) const;
  /// Gives every edge with two ends the mean of what its ends have.
  void takeMeans(const std::vector<double> &ofEnds, std::vector<double> &ofEdges) const;
  void clear();

  const std::vector<Node> &nodes() const { return m_nodes; }
  const std::vector<Edge> &edges() const { return m_edges; }
  const std::vector<Place> &textBoxes() const { return m_textBoxes; } ///< placed ones only
  const std::vector<Place> &subnets() const { return m_subnets; }     ///< placed ones only
  /// Of everything placed, text boxes and subnets included; it may have no area.
  const QRectF &extent() const { return m_extent; }
  /// Where most of it lies. Stragglers far away, such as nodes without coordinates that were put to the origin, would
  /// otherwise make a dot of the network.
  const QRectF &mainExtent() const { return m_mainExtent; }
  /// Plot units a unit of the network's coordinates.
  double plotUnits() const { return m_plotUnits; }
  /// From the network's own coordinates, which a person reads and writes, and back.
  QRectF toPlot(const QRectF &own) const { return {own.topLeft() * m_plotUnits, own.size() * m_plotUnits}; }
  QRectF toOwn(const QRectF &plot) const { return {plot.topLeft() / m_plotUnits, plot.size() / m_plotUnits}; }
  int nodesOutside(const QRectF &extent) const;
  bool hasExtent() const { return m_hasExtent; } ///< something is placed
  bool isPlaced(const Edge &edge) const;
  /// From the first end node to the second; of a placed edge.
  QLineF line(const Edge &edge) const {
    const Node &from = m_nodes[static_cast<std::size_t>(edge.node1)];
    const Node &to = m_nodes[static_cast<std::size_t>(edge.node2)];
    return {from.x, from.y, to.x, to.y};
  }
  const element *source(Item item) const;
  /// The item of a name among the kinds of the mask; nothing when it is not there or was not drawn.
  std::optional<Item> find(const NetData &net, const QString &name, int kinds = NetData::AllTypes) const;
  /// Middle of the item in plot coordinates; nothing without coordinates.
  std::optional<QPointF> center(Item item) const;
  /// Elements that cannot be drawn for want of coordinates.
  int unplaced() const { return m_unplaced; }

private:
  static double mean(const Edge &edge, const std::vector<double> &ofEnds);
  void addNodes(const NetData &net, const Request &request, Values &values);
  void addEdges(const NetData &net, const Request &request, Values &values);
  static Values emptyValues(const Request &request, std::size_t nodes, std::size_t edges);
  static void takeNode(std::size_t node, const PropertyColumns &read, std::size_t first, const Request &request,
                       Values &values);
  void takeEdge(std::size_t edge, const PropertyColumns &read, std::size_t first, const Request &request,
                Values &values) const;
  void findLanes();
  void findPins(const NetData &net);
  std::vector<Place> places(const elements &collection);
  void extend(double x, double y);
  QRectF findMainExtent() const;
  /// Brings the coordinates to a size that suits the zoom.
  void takePlotUnits();

  std::vector<Node> m_nodes;
  std::vector<Edge> m_edges;
  std::vector<Place> m_textBoxes;
  std::vector<Place> m_subnets;
  QRectF m_extent;
  QRectF m_mainExtent;
  double m_plotUnits = 1.0;
  bool m_hasExtent = false;
  int m_unplaced = 0;
};
