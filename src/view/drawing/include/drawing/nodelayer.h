#pragma once

#include <drawing/layergeometry.h>
#include <drawing/looks.h>
#include <drawing/netgeometry.h>
#include <drawing/spatialindex.h>
#include <drawing/visibilityrules.h>

#include <qwt_plot_item.h>

#include <algorithm>
#include <array>
#include <bitset>

/// All nodes as one plot item: discs for junctions and for what neither supplies nor takes anything, triangles for supplies
/// and demands, squares for held pressures. From afar they are dots that leave the picture to the lines, or nothing; they
/// grow with the zoom.
class NodeLayer : public QwtPlotItem {
public:
  NodeLayer();

  /// Takes over where the nodes lie; drives have symbols of their own and are left out.
  void setNodes(const NetGeometry &geometry);
  /// One look a node of the geometry, in its order.
  void setLooks(const std::vector<NodeLook> &looks);
  /// Nodes that are off are not drawn.
  void setVisibility(const VisibilityRules &rules);
  void clear();

  /// The shape alone, so many pixels across, as a legend shows it.
  static void drawKey(QPainter &painter, NetGeometry::NodeShape shape, const QPointF &center, double size);

  int rtti() const override { return Rtti_PlotUserItem + 2; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

  /// Adds the nodes that stand within so many pixels of the point.
  void find(const Projection &projection, const QPointF &point, double tolerance, std::vector<Hit> &hits) const;
  /// Px, across; 0 of a node that is not drawn.
  double sizeOf(Index node, const Projection &projection) const;
  /// How large junctions are drawn in this view, of the size that their looks give; 0 where they are left out.
  double junctionScale(const Projection &projection) const {
    return sizesIn(projection)[static_cast<std::size_t>(NetGeometry::NodeShape::Junction)];
  }
  /// Which shapes are drawn as such on the canvas, by NetGeometry::NodeShape; of small ones nobody tells the shape.
  using ShapesSeen = std::bitset<4>;
  ShapesSeen shapesSeen(const Projection &projection) const;
  /// Calls visit(node, center, size) for every node on the canvas, with its middle and size in pixels.
  template <typename Visitor>
  void forEachVisible(const Projection &projection, const Visitor &visit) const {
    const Sizes sizes = sizesIn(projection);
    if (!m_hasEmphasised && !isAnySeen(sizes))
      return;
    m_index.query(projection.visible(0.0), [&](Index i) {
      const Record &record = m_records[i];
      const QPointF center = projection.map(record.x, record.y);
      if (record.isDrawn() && isSeen(sizeOf(record, sizes)) && projection.canvas().contains(center))
        visit(record.node, center, sizeOf(record, sizes));
    });
  }

private:
  struct Record {
    double x = 0.0;
    double y = 0.0;
    Index node = 0; ///< in the nodes of the geometry
    NetGeometry::NodeShape shape = NetGeometry::NodeShape::Junction;
    NodeLook look;
    bool isOff = false;

    bool isDrawn() const { return !look.isHidden && !isOff; }
  };
  struct VisibleNode {
    QPointF center;
    double size;
    const Record *record;
  };
  static constexpr std::size_t Shapes = 4;
  using Sizes = std::array<double, Shapes>; ///< of a shape in one view, of the size that the look of a node gives

  Sizes sizesIn(const Projection &projection) const;
  static double sizeOf(const Record &record, const Sizes &sizes) {
    const double size = record.look.size * sizes[static_cast<std::size_t>(record.shape)];
    return record.look.isEmphasised ? std::max(size, SmallestEmphasised) : size;
  }
  static bool isSeen(double size) { return size >= SmallestDot; }
  static bool isAnySeen(const Sizes &sizes) {
    return std::any_of(sizes.begin(), sizes.end(), [](double size) { return size > 0.0; });
  }
  std::vector<VisibleNode> visibleNodes(const Projection &projection, const Sizes &sizes) const;
  static void drawDots(QPainter &painter, const std::vector<VisibleNode> &nodes, const QRectF &canvas);
  static void drawStations(QPainter &painter, const std::vector<VisibleNode> &nodes, const QRectF &canvas);

  static constexpr double SmallestEmphasised = 5.0; ///< px
  static constexpr double SmallestDot = 1.2;        ///< px: smaller ones would only make the lines look dirty

  std::vector<Record> m_records; ///< in the order of the index
  std::vector<Index> m_ofNodes;  ///< which record is that of a node of the geometry; NoIndex for none
  SpatialIndex m_index;
  double m_typicalLength = 0.0;                ///< plot units, of an edge
  std::array<double, Shapes> m_roomOfShapes{}; ///< plot units, how far apart the nodes of a shape stand
  bool m_hasEmphasised = false;
  bool m_isSizedByValue = false; ///< the sizes tell something
};
