#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

#include <functional>
#include <machines/compression.h>
#include <machines/machinedata.h>
#include <map>
#include <optional>
#include <vector>

/// What a station can do from its present inlet: which pressure ratios at which volume flows, by its configurations.
///
/// All machines of a configuration run. Those of a stage work between the same pressures, so that their flows add at equal
/// head; stages carry the same mass flow, so that their ratios multiply, each at the inlet that the one before leaves it,
/// cooled to the temperature of the station's inlet. How stages share the ratio is free here. Speeds, surge and choke lines
/// and the power of the drives bound each machine.
class StationReach {
public:
  using Drives = std::function<const Drive *(const QString &machine)>;

  /// \param data must outlive this
  StationReach(const MachineData &data, Drives drives, const Compression &inlet);
  ~StationReach();
  StationReach(const StationReach &) = delete;
  StationReach &operator=(const StationReach &) = delete;

  /// Volume flow at the inlet of the station in m3/s and pressure ratio; empty when the machines cannot work together.
  QVector<QPointF> outline(const StationConfiguration &configuration);

private:
  struct Row {
    double ratio = 0.0;
    double least = 0.0; ///< mass flow, kg/s
    double most = 0.0;
  };
  using Rows = std::vector<Row>; ///< by ratio
  struct Inlet;
  struct Range {
    double low = 0.0;
    double high = 0.0;
  };

  const Inlet &inletAt(double pressure);
  std::optional<Range> flows(const StationConfiguration::Unit &unit, const Inlet &inlet, double ratio) const;
  std::optional<Row> row(const StationConfiguration::Stage &stage, const Inlet &inlet, double ratio) const;
  Rows rows(const StationConfiguration::Stage &stage, const Inlet &inlet) const;
  bool contains(const QString &machine, const Inlet &inlet, double ratio, double head, double flow) const;
  /// The ratios of a stage at a mass flow.
  static std::optional<Range> ratios(const Rows &rows, double massFlow);
  std::optional<Range> through(const std::vector<std::map<double, Rows>> &stages, double massFlow) const;

  const MachineData &m_data;
  Drives m_drives;
  Compression m_inlet;
  std::map<double, std::unique_ptr<Inlet>> m_inlets; ///< by pressure, bar
};
