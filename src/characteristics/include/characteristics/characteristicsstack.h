#pragma once

#include <characteristics/machinedata.h>
#include <characteristics/workingpoint.h>
#include <model/netdata.h>

#include <QDockWidget>
#include <QStringList>

class QTabWidget;

/// The panel "Characteristics": a page for each machine that was opened.
class CharacteristicsStack : public QDockWidget {
  Q_OBJECT
public:
  explicit CharacteristicsStack(const NetData &net, QWidget *parent = nullptr);

  /// Machines of the scenario; pages that are open are made anew.
  void setMachines(MachineData machines);
  /// Where the names of the open pages are kept for the next opening of the case; empty for nowhere.
  void setFile(const QString &path);

  /// Opens the page of a compressor or drive of the network, or brings it to the front. False when it has none; the reason
  /// is shown.
  bool open(const QString &elementName);
  QStringList opened() const;
  /// After properties have changed: pages that have something else to say are made anew.
  void refresh();

  /// What the page of an element says beside the map, as rich text; empty when there is nothing for it.
  QString summary(const QString &elementName) const;

private:
  /// The data of an element's machine, one of the three, and where it works.
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

  Machine machine(const element &e, const QString &machineName) const;
  /// The names of an element's machines: several when it is a station that has them.
  QStringList machinesOf(const element &e) const;
  static QString summary(const Machine &machine);
  static QWidget *makeMap(const Machine &machine);
  /// The name of an element's machine: its property "machine", else its own.
  QString machineOf(const element &e) const;
  const Drive *driveOf(const element &compressor, const QString &named) const;
  QWidget *makePage(const QString &elementName) const;
  void keep() const;
  void showHint();

  const NetData &m_net;
  MachineData m_machines;
  QString m_path;
  QTabWidget *m_tabs;
};
