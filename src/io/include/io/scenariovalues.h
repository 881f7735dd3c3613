#pragma once

#include <base/index.h>
#include <io/elementdirectory.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

class NetMetaData;

/// Reads what scenarios say of a few properties, one pass over each file and none of it kept: no network is filled.
///
/// 1. The values are those that the properties have once the scenario is open: set points in the unit in which they are
///    stored, fixes, results, gas percentages and results inside of subnets lie over one another in this order. What
///    formulas compute is not among them.
/// 2. It is made in the thread of the network and then used by any one thread: neither a network, nor keys of properties,
///    nor settings are touched.
/// 3. Faulty lines are passed over, as are elements that the directory does not know. Opening the scenario tells of them.
class ScenarioValues {
public:
  static constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

  /// Told each value in the order in which they are set: a later one for the same property of the element counts.
  /// NoNumber stands for a text.
  using Take = std::function<void(Index element, Index property, double value)>;
  using GoesOn = std::function<bool()>;

  /// \param properties whose index is told with the values
  /// \param metaData says the units in which they are stored
  ScenarioValues(const ElementDirectory &elements, const QStringList &properties, const NetMetaData &metaData);
  ~ScenarioValues();

  /// What elements have whatever the scenario. \param path of the geometry file, without the suffix of the JSON form
  bool readGeometry(const QString &path, bool isJson, const Take &take, const GoesOn &goesOn, QString *reason);
  /// \param file ".scen", ".scen.jsn" or ".scen.json". False with the reason when it cannot be opened
  bool readScenario(const QString &file, const Take &take, const GoesOn &goesOn, QString *reason);

  /// Names of the properties to which the scenario gives numbers, in alphabetical order. A look at the beginning of each of
  /// its files must do.
  static QStringList numbersIn(const QString &file);

private:
  /// What a text in a file means to whoever reads values.
  struct Known {
    enum class Gas { Nothing, NormDensity, CalorificValue, Name };
    Index property = NoIndex;
    Gas gas = Gas::Nothing;
    bool isIdentity = false; ///< which a scenario cannot set
  };
  struct GasFacts {
    double normDensity = 0.0; ///< kg/m3, and MJ/m3; 0 when it is not known
    double calorificValue = 0.0;
    std::string name;
  };
  using Gases = std::unordered_map<Index, GasFacts>;
  /// A set point that needs the gas to be converted.
  struct Waiting {
    double value = 0.0;
    QString unit;
  };
  class Units;
  class Pass;

  const Known &known(std::string_view property);

  const ElementDirectory &m_elements;
  QStringList m_properties;
  std::unique_ptr<Units> m_units;
  std::unordered_map<std::string, Known> m_known; ///< by spelling
  Gases m_ofGeometry;
};
