#pragma once

#include "mapcanvas.h"

#include <machines/networkmachines.h>
#include <vector>

/// What a station can do: pressure ratio over the flow at its inlet, an outline for each configuration and one around all,
/// where the scenario has the station work, and the points of its machines.
class StationPlot : public MapCanvas {
  Q_OBJECT
public:
  using MapCanvas::MapCanvas;

  struct Outline {
    QString name;
    QVector<QPointF> points; ///< volume flow in m3/s and ratio
  };
  /// \param present what the scenario has of the station, with the configuration that is taken
  void show(const QString &station, const std::vector<Outline> &outlines, const NetworkMachines::Station &present,
            const Compression &whole);

private:
  void addOutlines(const std::vector<Outline> &outlines, const QString &present);
};
