#pragma once

#include <QCoreApplication>
#include <QString>

#include <machines/compression.h>
#include <machines/machinedata.h>
#include <optional>

/// How the flow and the pressure ratio of a station are shared by its machines.
///
/// Stages share the ratio alike, since the gas is cooled between them to the temperature of the inlet; machines of a stage
/// share its flow in proportion to the largest flow that each carries at its nominal speed, or alike where a map does not
/// tell it.
class StationSplit {
  Q_DECLARE_TR_FUNCTIONS(StationSplit)
public:
  StationSplit(const MachineData &data, const StationConfiguration &configuration)
      : m_data(data)
      , m_configuration(configuration) {}

  struct Part {
    Compression compression;
    std::size_t stage = 0;
    double share = 1.0; ///< of the flow
  };
  /// Nothing for a machine that does not run.
  std::optional<Part> part(const QString &compressor, const Compression &station) const;
  /// For a person: the stages, and what this machine has of them.
  QString text(const QString &compressor, const std::optional<Part> &part) const;

private:
  /// m3/s at the inlet; 0 when the map does not tell it.
  double largestFlow(const StationConfiguration::Unit &unit) const;
  double share(const StationConfiguration::Stage &stage, std::size_t unit) const;

  const MachineData &m_data;
  const StationConfiguration &m_configuration;
};
