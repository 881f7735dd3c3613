#pragma once

#include "mapcanvas.h"

#include <machines/fitresiduals.h>
#include <vector>

/// Residuals of fits and of published coefficients over the flow, each as a dot.
class ResidualPlot : public MapCanvas {
  Q_OBJECT
public:
  using MapCanvas::MapCanvas;

  /// \param quantity and \param factor that residuals are shown in
  void show(const QString &heading, const std::vector<FitResiduals::Point> &points, const MapQuantity &quantity,
            double factor);
};
