#pragma once

#include <drawing/layerfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>

#include <QPolygonF>

#include <map>
#include <optional>
#include <vector>

/// Where elements lie on the canvas and how much of it they cover, for what is drawn round them.
class ElementMarks {
public:
  /// What the elements need to know of the drawing; not owned.
  struct Drawing {
    const NetGeometry *geometry = nullptr;
    const LayerFilter *layers = nullptr;            ///< elements that it hides have no marks
    const std::vector<float> *edgeWidths = nullptr; ///< px, by edge
    double nodeSize = 4.0;                          ///< px
    double symbolSize = 20.0;                       ///< px
    double subnetFactor = 0.8;                      ///< how much larger than a symbol a subnet is marked
  };

  ElementMarks(const Drawing &drawing, const Projection &projection)
      : m_drawing(drawing)
      , m_projection(projection) {}

  /// Adds the mark of an item that lies on the canvas; false when there is none.
  bool add(NetGeometry::Item item);
  std::size_t size() const { return m_count; }
  /// Draws all marks in one colour, so many pixels broader to every side than the elements are. Within one colour they
  /// do not cover each other, so it may be transparent where the painter's composition replaces what was there.
  void draw(QPainter &painter, const QBrush &brush, double margin, Qt::PenCapStyle caps = Qt::RoundCap) const;

private:
  double widthOf(NetGeometry::Item item) const;
  double reachOf(NetGeometry::Item item) const;
  std::optional<QLineF> lineOf(NetGeometry::Item item) const;

  const Drawing &m_drawing;
  const Projection &m_projection;
  std::map<int, std::vector<QLineF>> m_lines; ///< by width, in steps
  std::map<int, QPolygonF> m_discs;           ///< by diameter, in steps
  std::vector<QRectF> m_boxes;
  std::size_t m_count = 0;
};
