#pragma once

#include <drawing/netgeometry.h>
#include <drawing/occupancygrid.h>

#include <QHash>
#include <QLineF>

/// Where a label stands: an anchor that moves with the drawing, and the way from there to its middle.
struct LabelSpot {
  double along = 0.5; ///< how far the anchor is from the first to the second end of an edge, 0 to 1; of no effect for points
  QPointF offset;     ///< px, from the anchor to the middle of the label
  double angle = 0.0; ///< degrees, clockwise
};

/// Something that wants a label.
struct LabelCandidate {
  NetGeometry::Item item;
  bool isLine = false;
  QLineF line;            ///< px; of a point both ends are its middle
  double clearance = 0.0; ///< px between the middle and what is drawn of it
  QSizeF size;            ///< px, of the label
  bool isShy = false;     ///< rather none than one that covers a line

  QPointF anchor(double along) const { return isLine ? line.pointAt(along) : line.p1(); }
  TurnedBox box(const LabelSpot &spot) const { return {anchor(spot.along) + spot.offset, size, spot.angle}; }
};

/// Finds spots for labels beside their elements so that none covers another, an obstacle or the edge of the canvas. The
/// first to come is the first served; nothing is ever moved again, so the work grows with the number of candidates.
class LabelPlacement {
public:
  /// \param margin px that labels keep from each other
  LabelPlacement(const QRectF &canvas, double margin);

  void addObstacle(const QRectF &area) { m_obstacles.take({area.center(), area.size(), 0.0}); }
  /// A line that labels had better not cover.
  void addLine(const QLineF &line, double width);
  /// Takes the spot for a label that stood there before; false when there is no longer room.
  bool keep(const LabelCandidate &candidate, const LabelSpot &spot);
  /// Finds a spot; false when there is none.
  bool place(const LabelCandidate &candidate, LabelSpot &spot);

private:
  bool tryLine(const LabelCandidate &candidate, LabelSpot &spot);
  bool tryPoint(const LabelCandidate &candidate, LabelSpot &spot);
  bool tryAt(const LabelCandidate &candidate, const LabelSpot &spot, bool sparesLines);

  QRectF m_canvas;
  double m_margin;
  OccupancyGrid m_labels;
  OccupancyGrid m_obstacles;
  OccupancyGrid m_lines;
  bool m_hasLines = false;
};
