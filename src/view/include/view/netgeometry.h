#pragma once

#include <model/netdata.h>

#include <QRectF>

#include <cstdint>
#include <vector>

/// What the drawing needs to know of a network apart from colours and sizes: where everything lies and which element it
/// is. End nodes are looked up once. Points into the network: clear() before the network changes.
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
  };

  /// A text box or a subnet: something that stands at one point.
  struct Place {
    const element *source = nullptr;
    double x = 0.0;
    double y = 0.0;
  };

  void build(const NetData &net);
  void clear();

  const std::vector<Node> &nodes() const { return m_nodes; }
  const std::vector<Edge> &edges() const { return m_edges; }
  const std::vector<Place> &textBoxes() const { return m_textBoxes; } ///< placed ones only
  const std::vector<Place> &subnets() const { return m_subnets; }     ///< placed ones only
  /// Of everything placed, text boxes and subnets included; it may have no area.
  const QRectF &extent() const { return m_extent; }
  bool hasExtent() const { return m_hasExtent; } ///< something is placed
  bool isPlaced(const Edge &edge) const;
  /// Elements that cannot be drawn for want of coordinates.
  int unplaced() const { return m_unplaced; }

  /// A property whose numbers are asked for.
  struct Wanted {
    PropertyKey property;
    bool absolute = false;
  };
  /// One column a wanted property; in it one value an element, NetData::NoValue where there is none.
  using Columns = std::vector<std::vector<double>>;

  Columns nodeValues(const std::vector<Wanted> &wanted) const;
  /// \param ofNodes what nodeValues() said for the same, further columns behind: an edge without the property takes the mean
  /// of its end nodes, as NetData::edgeValue has it
  Columns edgeValues(const std::vector<Wanted> &wanted, const Columns &ofNodes) const;

private:
  void addNodes(const NetData &net);
  void addEdges(const NetData &net);
  std::vector<Place> places(const elements &collection);
  void extend(double x, double y);

  std::vector<Node> m_nodes;
  std::vector<Edge> m_edges;
  std::vector<Place> m_textBoxes;
  std::vector<Place> m_subnets;
  QRectF m_extent;
  bool m_hasExtent = false;
  int m_unplaced = 0;
};
