#pragma once

#include <paper/pagecontent.h>

/// A bar of a round length of the drawing.
struct ScaleBar {
  Q_DECLARE_TR_FUNCTIONS(ScaleBar)
public:
  static constexpr double Height = 24.0; ///< with its numbers

  /// The longest round one (1, 2 or 5 times a power of ten) that is at most so many units wide.
  static ScaleBar of(const PaperScale &scale, double mostWidth);

  double length = 0.0; ///< in metres or units of the drawing
  double width = 0.0;  ///< on the page
  int parts = 4;       ///< black and white by turns, each of a round length
  QString text;        ///< such as "50 km"

  /// What it needs on the page with its text.
  double neededWidth() const;
  /// From the left end of the bar at the upper edge.
  void paint(QPainter &painter, const QPointF &at) const;
};

/// An arrow to the north, in a square.
namespace NorthArrow {

constexpr double Size = 34.0;

/// \param angle degrees clockwise from upwards
void paint(QPainter &painter, const QPointF &center, double angle);

} // namespace NorthArrow
