#pragma once

#include <characteristics/machinedata.h>
#include <characteristics/workingpoint.h>
#include <model/netdata.h>

#include <QPointF>
#include <QStringList>
#include <QVector>

#include <optional>

/// Which machines of the machine data the elements of a network are, and where they work.
class NetworkMachines {
public:
  /// The data of one machine of an element, one of the three, and where it works.
  struct Machine {
    const TurboCompressor *turbo = nullptr;
    const PistonCompressor *piston = nullptr;
    const Drive *drive = nullptr;
    double ambientTemperature = MachineData::UsualTemperature; ///< degC
    std::optional<WorkingPoint> point;
    QVector<QPointF> limits; ///< of a piston compressor: the largest ratio over the speed
    int ofStation = 1;       ///< compressors in its station

    bool isThere() const { return turbo != nullptr || piston != nullptr || drive != nullptr; }
  };

  explicit NetworkMachines(const NetData &net)
      : m_net(net) {}

  void set(MachineData data) { m_data = std::move(data); }

  /// The names of an element's machines, one at least, whether there are data of it or not. A compressor is the one that its
  /// property "machine" names, else the one of its own name, and all others of the station of its name. A drive likewise;
  /// it may also name the compressor that it drives, or nothing.
  QStringList names(const element &e) const;
  Machine machine(const element &e, const QString &name) const;

private:
  /// The drive that a compressor's data name; null when there are none.
  const Drive *driveNamedBy(const QString &compressor) const;
  const Drive *driveOf(const element &compressor, const QString &named) const;
  /// The edge that a drive drives; null for other elements.
  const element *driven(const element &e) const;

  const NetData &m_net;
  MachineData m_data;
};
