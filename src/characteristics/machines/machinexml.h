#pragma once

#include <io/gaslibxml.h>
#include <model/units.h>

#include <QCoreApplication>
#include <QHash>

#include <functional>
#include <initializer_list>
#include <machines/machinedata.h>
#include <optional>

/// The XML of compressor stations of public gas network instances (namespace http://gaslib.zib.de/CompressorStations).
class MachineXml : private GasLibXml {
  Q_DECLARE_TR_FUNCTIONS(MachineXml)
public:
  explicit MachineXml(const QString &path)
      : GasLibXml(path, FileAccess::Source::Workspace) {}

  MachineData read();
  using GasLibXml::findings;

private:
  /// How the child of a name is read, to its end.
  struct Child {
    const char *name;
    std::function<void()> read;
  };

  /// Reads what the current element holds; children that are not known are told and left out. \param isRead reads a child
  /// whose name is not a fixed one
  void readChildren(std::initializer_list<Child> known, const std::function<bool()> &isRead = {});
  template <typename Target>
  Child numberIn(const char *name, Target &target);
  /// Takes "surgeline_coeff_3" for "surgeline_coeff_" into the function, and the function for the target; false for another
  /// name or a number beyond the count.
  template <typename Function>
  bool readCoefficient(const char *prefix, Function &function, std::optional<Function> &target);
  void readStation();
  void readTurbo();
  void readPiston();
  void readDrive(Drive::Kind kind);
  void readPowerPoints(Drive &drive);
  void readPowerPoint(Drive &drive, double temperature);
  void readEnergyPoints(Drive &drive);
  void readConfiguration();
  void readPoints(std::vector<MeasuredPoint> &points, double efficiency);
  /// The number that the current element states; no number, and a message, where it states none.
  double valueHere();
  /// The number of the current element in our units. The reader stays at the element.
  double numberHere();
  /// As numberHere(), and passes over the element.
  double number();

  QString m_station;                                    ///< being read
  QHash<QString, std::optional<Units::Linear>> m_units; ///< of the file, to those of machine data
  MachineData m_data;
};
