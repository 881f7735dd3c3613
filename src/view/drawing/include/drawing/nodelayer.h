#pragma once

#include <drawing/layergeometry.h>
#include <drawing/looks.h>
#include <drawing/netgeometry.h>
#include <drawing/spatialindex.h>
#include <drawing/visibilityrules.h>

#include <qwt_plot_item.h>

/// All nodes as one plot item: discs for junctions, triangles for supplies and demands, squares for held pressures.
/// Where nodes crowd they shrink and thin out, stations last, so that the lines stay visible.
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
  /// Calls visit(node, center, size) for every node on the canvas, with its middle and size in pixels.
  template <typename Visitor>
  void forEachVisible(const Projection &projection, const Visitor &visit) const {
    m_index.query(projection.visible(0.0), [&](Index i) {
      const Record &record = m_records[i];
      const QPointF center = projection.map(record.x, record.y);
      if (record.isDrawn() && projection.canvas().contains(center))
        visit(record.node, center, sizeOf(record));
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
    const Record *record;
  };

  static double sizeOf(const Record &record);
  std::vector<VisibleNode> visibleNodes(const Projection &projection) const;
  static void drawJunctions(QPainter &painter, const std::vector<VisibleNode> &nodes, double largest, const QRectF &canvas);
  static void drawStations(QPainter &painter, const std::vector<VisibleNode> &nodes, double largest, const QRectF &canvas);

  std::vector<Record> m_records; ///< in the order of the index
  SpatialIndex m_index;
};
