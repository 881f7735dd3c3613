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
    std::optional<Compression> compression;          ///< its part of that of its station
    std::optional<Drive> drivenBy;                   ///< of a compressor, where it is known
    QString gas;                                     ///< the law that was taken, and whose gas it is
    QStringList remarks;                             ///< what is doubtful about gas and station
    QString configuration;                           ///< of its station, empty when it has one machine only
    QString split;                                   ///< what the configuration makes of flow and ratio
    std::vector<Comparison> comparisons;

    bool isThere() const { return turbo || piston || drive; }
    bool hasChoice() const { return (turbo && turbo->hasChoice()) || (drive && drive->hasChoice()); }
  };

  /// A machine of a station that runs, and its part.
  struct Unit {
    QString machine;
    std::size_t stage = 0; ///< from 0
    double share = 1.0;    ///< of the flow of its stage
    Compression compression;
    WorkingPoint point;
  };
  struct Station {
    std::optional<StationConfiguration> configuration;                 ///< none where there is one machine only
    std::vector<Unit> units;                                           ///< those that run
    bool isWell() const;                                               ///< some run, and all inside of their maps
    double power() const;                                              ///< kW; 0 when one of them has none
    std::optional<WorkingPoint> pointOf(const QString &machine) const; ///< none where it does not run
  };

  /// How near the machines of an element are to their limits.
  struct Nearness {
    QString element;
    MachineMargins margins; ///< of each the least of its machines
  };
  struct Judgement {
    Findings findings; ///< everything that is doubtful about the working points of all compressors that have data
    std::vector<Nearness> machines; ///< compressors and drives that work
  };

  explicit NetworkMachines(const NetData &net, MachineData data = MachineData());

  void set(MachineData data);
  /// Which functions count, for everything that is asked for from now on.
  void use(FunctionSource source) { m_data.use(source); }
  const MachineData &data() const { return m_data; }
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

  /// All of a compressor's machines by its configuration; nothing without flow and pressures.
  std::optional<Station> station(const element &compressor, const MachineChoice &choice = MachineChoice()) const;
  /// What flows through a compressor, or the one that a drive drives.
  std::optional<Compression> compression(const element &e) const;
  /// The drive of one of the compressor's machines; null when it is not known.
  const Drive *driveOfMachine(const element &compressor, const QString &machine) const;

  /// Looks at every compressor once: the gas, points outside of maps, gas that is not compressed, stored results that part
  /// from computed ones, and how near everything is to its limits.
  Judgement judge() const;
  Findings findings() const { return judge().findings; }

private:
  /// The drive that a compressor's data name; null when there are none.
  const Drive *driveNamedBy(const QString &compressor) const;
  const Drive *driveOf(const element &compressor, const QString &named) const;
  /// The edge that a drive drives; null for other elements.
  const element *driven(const element &e) const;

  std::optional<WorkingPoint> pointOf(const element &compressor, const QString &machine,
                                      const Compression &compression) const;
  Station run(const element &compressor, const StationConfiguration &configuration, const Compression &compression) const;
  Station station(const element &compressor, const Compression &compression, const MachineChoice &choice) const;
  Machine described(const QString &name) const;
  QString drivenBy(const QString &driveName, const element &compressor, const Station &station) const;
  /// Smallest and largest of a compressor, 1/min.
  std::optional<std::pair<double, double>> speeds(const QString &machine) const;
  std::optional<double> stated(const element &e, const char *property) const;
  std::vector<Comparison> compareDrive(const element &drive, const std::optional<WorkingPoint> &point) const;
  std::vector<Comparison> compare(const element &compressor, const Compression &compression, const Station &station) const;
  void judge(const element &compressor, Judgement &judgement) const;
  void takeNearness(const element &compressor, const Station &station, Judgement &judgement) const;

  const NetData &m_net;
  MachineData m_data;
  GasSource m_gases;
};
