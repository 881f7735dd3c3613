#pragma once

#include <QString>

#include <vector>

/// The scenario file that lies in a folder of a case.
namespace ScenarioFiles {

enum class Form {
  Any,
  Json, ///< NAME.scen.jsn or NAME.scen.json
  Text  ///< NAME.scen
};

/// That of the folder's name where there are several, else the first by name; empty when there is none.
QString in(const QString &folder, Form form);

/// Of a scenario file, what the paths of its companions begin with: up to the first dot of its name, unless that is the
/// beginning of no scenario file.
QString base(const QString &file);

struct Scenario {
  QString name; ///< of its folder
  QString file;
};
/// Of all folders of a case that hold a scenario, by name. The files are not opened. It may be asked from any thread.
std::vector<Scenario> ofCase(const QString &caseFolder, Form form);

} // namespace ScenarioFiles
