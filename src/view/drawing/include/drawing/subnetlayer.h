#pragma once

#include <drawing/elementfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>
#include <drawing/stationsymbols.h>

#include <QColor>
#include <qwt_plot_item.h>

/// Assembled subnets as boxes: the symbol of their kind on a ground that tells how they are controlled, in a ring that
/// tells what was found of them, joined to their pins. Colours and sizes are general settings of category "subnets".
class SubnetLayer : public QwtPlotItem {
public:
  static constexpr double LargerThanSymbols = 1.6; ///< that a box is that nobody gave a size

  SubnetLayer();

  void setTable(const SymbolTable &table);
  /// Returns what was wrong with their symbols.
  Findings setSubnets(const NetData &net, const NetGeometry &geometry);
  /// \param size px, of the box of a subnet that says nothing of its own
  /// \param alpha opacity of the ground, 0 to 255
  void setLook(double size, int alpha);
  void setGround(const QColor &ground);
  void clear() { m_records.clear(); }

  void setFilter(const ElementFilter &filter) { m_filter = filter; }

  int rtti() const override { return Rtti_PlotUserItem + 5; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

  struct Placed {
    Index subnet = 0; ///< in the subnets of the geometry
    QRectF box;       ///< px
    int others = 0;   ///< that stand behind it
  };
  /// What is drawn on this canvas; boxes that would overlap share one.
  std::vector<Placed> layOut(const Projection &projection) const;
  /// The boxes alone.
  std::vector<QRectF> boxes(const Projection &projection) const;
  /// Px, the side of the box.
  double sizeOf(Index subnet, const Projection &projection) const { return sizeOf(m_records[subnet], projection); }
  /// Adds the subnets whose box lies under the point.
  void find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const;

private:
  struct Record {
    QPointF center; ///< plot coordinates, as the following
    std::vector<QPointF> pins;
    double width = 0.0;
    double visSize = 0.0; ///< px, 0 when it says nothing
    Index symbol = NoIndex;
    QColor ring;
    QColor ground;
    bool isRingKnown = false; ///< it tells something, as the following
    bool isGroundKnown = false;
  };

  bool isHidden(Index subnet) const { return m_filter.hides({NetData::AssembledSubnet, subnet}); }
  double sizeOf(const Record &record, const Projection &projection) const;
  void drawBox(QPainter &painter, const Record &record, const QRectF &box) const;
  void drawPins(QPainter &painter, const Record &record, const QRectF &box, const Projection &projection) const;

  mutable StationSymbols m_symbols; ///< a cache of pixmaps
  DrawingTheme m_theme;
  std::vector<Record> m_records; ///< as in the geometry
  ElementFilter m_filter;
  double m_size = 32.0;
  double m_typicalLength = 0.0; ///< plot units, of an edge
  int m_alpha = 100;
  double m_penWidth = 3.0;
  double m_groundMargin = 15.0; ///< px of ground around the box
  bool m_drawsPinLines = true;
  bool m_takesWidth = false;
  bool m_takesVisSize = true;
};
