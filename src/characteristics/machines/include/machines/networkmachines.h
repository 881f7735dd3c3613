#pragma once

#include <base/finding.h>
#include <model/netdata.h>

#include <QCoreApplication>
#include <QPointF>
#include <QStringList>
#include <QVector>

#include <machines/machinedata.h>
#include <machines/workingpoint.h>
#include <optional>

/// What a person chose; as it is, what is usual.
struct MachineChoice {
  QString configuration; ///< by name; empty for the usual one
  FunctionSource source = FunctionSource::Fitted;
};

/// Which machines of the machine data the elements of a network are, and where they work.
class NetworkMachines {
  Q_DECLARE_TR_FUNCTIONS(NetworkMachines)
public:
  /// A value that the results of the network state beside the one that the map tells.
  struct Comparison {
    QString property; ///< of the results
    QString name;     ///< for a person
    QString unit;
    double stored = 0.0;
    double computed = 0.0;
    double difference() const { return stored - computed; }
    /// By more than a hundredth.
    bool isApart() const;
  };

  /// The data of one machine of an element, one of the three, and where it works.
  struct Machine {
    std::optional<TurboCompressor> turbo;
    std::optional<PistonCompressor> piston;
    std::optional<Drive> drive;
    double ambientTemperature = MachineData::UsualTemperature; ///< degC
    std::optional<WorkingPoint> point;
    QVector<QPointF> limits;                         ///< of a piston compressor: the largest ratio over the speed
    std::optional<std::pair<double, double>> driven; ///< of a drive: smallest and largest speed of its machine, 1/min
    QString gas;                                     ///< the law that was taken, and whose gas it is
    QStringList remarks;                             ///< what is doubtful about gas and station
    QString configuration;                           ///< of its station, empty when it has one machine only
    QString split;                                   ///< what the configuration makes of flow and ratio
    std::vector<Comparison> comparisons;

    bool isThere() const { return turbo || piston || drive; }
    bool hasChoice() const { return (turbo && turbo->hasChoice()) || (drive && drive->hasChoice()); }
  };

  explicit NetworkMachines(const NetData &net, MachineData data = MachineData());

  void set(MachineData data);
  /// Values of the network have changed.
  void forget() { m_gases.forget(); }

  /// The names of an element's machines, one at least, whether there are data of it or not. A compressor is the one that its
  /// property "machine" names, else the one of its own name, and all others of the station of its name. A drive likewise;
  /// it may also name the compressor that it drives, or nothing.
  QStringList names(const element &e) const;
  /// In which ways the machines of an element's station can work together; empty when there is but one machine. Where the
  /// data say none: all side by side, or each alone.
  std::vector<StationConfiguration> configurations(const element &e) const;
  Machine machine(const element &e, const QString &name, const MachineChoice &choice = MachineChoice()) const;

  /// Everything that is doubtful about the working points of all compressors that have data: the gas, points outside of
  /// maps, gas that is not compressed, stored results that part from computed ones.
  Findings findings() const;

private:
  /// The drive that a compressor's data name; null when there are none.
  const Drive *driveNamedBy(const QString &compressor) const;
  const Drive *driveOf(const element &compressor, const QString &named) const;
  /// The edge that a drive drives; null for other elements.
  const element *driven(const element &e) const;

  std::optional<WorkingPoint> pointOf(const element &compressor, const QString &machine, const Compression &compression,
                                      FunctionSource source) const;
  struct Station {
    std::optional<StationConfiguration> configuration; ///< none where there is one machine only
    std::vector<QString> running;
    std::vector<WorkingPoint> points;                                  ///< of those that run
    double power() const;                                              ///< kW; 0 when one of them has none
    std::optional<WorkingPoint> pointOf(const QString &machine) const; ///< none where it does not run
  };
  Station station(const element &compressor, const Compression &compression, const MachineChoice &choice) const;
  Machine described(const QString &name, FunctionSource source) const;
  QString drivenBy(const QString &driveName, const element &compressor, const Station &station) const;
  /// Smallest and largest of a compressor, 1/min.
  std::optional<std::pair<double, double>> speeds(const QString &machine) const;
  std::optional<double> stated(const element &e, const char *property) const;
  std::vector<Comparison> compareDrive(const element &drive, const std::optional<WorkingPoint> &point) const;
  std::vector<Comparison> compare(const element &compressor, const Compression &compression, const Station &station) const;
  Findings findings(const element &compressor) const;

  const NetData &m_net;
  MachineData m_data;
  GasSource m_gases;
};
