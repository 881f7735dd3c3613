#pragma once

#include <drawing/drawnsizes.h>
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
    const LayerFilter *layers = nullptr; ///< elements that it hides have no marks
    DrawnSizes sizes;
    double subnetFactor = 0.0; ///< how much larger than a symbol a subnet is marked; its box at least
  };

  ElementMarks(const Drawing &drawing, const Projection &projection);

  /// Adds the mark of an item that lies on the canvas; false when there is none.
  bool add(NetGeometry::Item item);
  std::size_t size() const { return m_count; }
  /// How much narrower than usual lines are drawn in this view, and so what lies round them should be.
  double widthFactor() const { return m_widthFactor; }
  /// Draws all marks in one colour, so many pixels broader to every side than the elements are. Within one colour they
  /// do not cover each other, so it may be transparent where the painter's composition replaces what was there.
  void draw(QPainter &painter, const QBrush &brush, double margin, Qt::PenCapStyle caps = Qt::RoundCap) const;
  /// The same of those elements of which something is seen: what is drawn round nothing stays a dot without a hole.
  void drawSeen(QPainter &painter, const QBrush &brush, double margin, Qt::PenCapStyle caps = Qt::RoundCap) const;

private:
  double widthOf(NetGeometry::Item item) const;
  double symbolSize() const;
  double reachOf(NetGeometry::Item item) const;
  double casingOf(NetGeometry::Item item) const;
  /// What the text covers; empty when it is not drawn.
  QRectF textArea(Index textBox);
  std::optional<QLineF> lineOf(NetGeometry::Item item) const;
  QLineF lineOfEdge(Index number) const;
  QPointF placeOfDrive(NetGeometry::Item drive, Index driven) const;

  const Drawing &m_drawing;
  const Projection &m_projection;
  std::map<NetGeometry::Item, double> m_symbols;  ///< px, how far those that are drawn reach from their middle
  std::optional<std::map<Index, QRectF>> m_texts; ///< px, of the text boxes that are drawn; once somebody asks
  std::map<int, std::vector<QLineF>> m_lines;     ///< by width, in steps
  std::map<int, QPolygonF> m_discs;               ///< by diameter, in steps
  QPolygonF m_dots;                               ///< of elements of which nothing is seen
  std::vector<QRectF> m_boxes;
  std::size_t m_count = 0;
  double m_widthFactor = 1.0;
};
