#pragma once

#include <QRectF>

/// How far the zoom goes in and out: sizes of a view in plot units.
struct ZoomLimits {
  static constexpr double Margin = 1.1; ///< the base is larger than the network, so that nothing touches the frame

  QSizeF smallest{10.0, 10.0};
  QSizeF largest{10000.0, 10000.0};

  /// Limits that suit an extent. A pixel span (a width and a height in plot units) above 10 allows to zoom in so far.
  static ZoomLimits of(const QRectF &extent, const QSizeF &pixelSpan);
};
