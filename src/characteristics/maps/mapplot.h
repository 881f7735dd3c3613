#pragma once

#include "mapcanvas.h"

#include <machines/workingpoint.h>

/// The map of a machine, with its name and its working point above it: lines of constant speed and efficiency, the area in
/// which it works, measured points, and where it works now.
class MapPlot : public MapCanvas {
  Q_OBJECT
public:
  using MapCanvas::MapCanvas;

  /// \param storedHead that the results of the network state, in kJ/kg; marked beside the working point where it is another
  /// \param other the machine by the functions that do not count, whose lines are drawn below; null for none
  void show(const TurboCompressor &machine, const std::optional<WorkingPoint> &point,
            const std::optional<double> &storedHead = std::nullopt, const TurboCompressor *other = nullptr);
  /// \param limits the largest pressure ratio over the speed in 1/min; empty when only the machine's own limit is known
  void show(const PistonCompressor &machine, const std::optional<WorkingPoint> &point, const QVector<QPointF> &limits = {});
  /// \param point power and speed of it are shown; \param temperature ambient, degC
  /// \param machineSpeeds of the machine that it drives, 1/min, for drives without measured points
  void show(const Drive &drive, const std::optional<WorkingPoint> &point, double temperature,
            const std::optional<std::pair<double, double>> &machineSpeeds = std::nullopt);
  /// What the drive takes over its power.
  void showConsumption(const Drive &drive, const std::optional<WorkingPoint> &point);

private:
  void addLines(const TurboCompressor &machine);
  void addOtherLines(const TurboCompressor &other, const QString &name);
  void addPowers(const Drive &drive, const std::pair<double, double> &speeds, double temperature);
  /// \param corner where another label stands, beside which there is none
  void addEfficiencies(const TurboCompressor &machine, const QPointF &corner);
};
