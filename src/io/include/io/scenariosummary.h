#pragma once

#include <model/element.h>

#include <QString>

#include <map>
#include <vector>

struct NivraGasParams;
class NivraWorkspace;

/// Gas name to the properties of the gas.
using GasTable = std::map<QString, element>;

/// The gas of that name, regardless of case like all names; null when there is none.
const GasTable::value_type *gasNamed(const GasTable &gases, const QString &name);

/// All that the opened case and scenario carry beside the network, for a person to look at: files, versions, solver
/// settings, gases.
struct ScenarioSummary {
  struct Row {
    QString section; ///< for a person; rows of a section stand together
    QString name;    ///< as the files call it
    QString value;   ///< with the word for a number that stands for one, such as "1 (dc92)"
    QString source;  ///< path of the file that says so; empty: the built-in default
    QString comment; ///< of the file, where it has one
  };
  std::vector<Row> rows;
  GasTable gases;           ///< of the scenario
  QString gasFile;          ///< path of the file that they come from
  QString root;             ///< of the workspace; empty when none is open
  bool hasScenario = false; ///< otherwise only the case has rows

  /// Paths of what was read.
  struct Files {
    QString geometry;
    QString gases;
  };
  static ScenarioSummary of(const NivraWorkspace &workspace, const NivraGasParams &params, const GasTable &gases,
                            const Files &files);
};
