#pragma once

#include <base/finding.h>

#include <QString>

/// Makes a workspace case of a public gas network instance: its network (".net"), nomination (".scn") and compressor
/// stations (".cs"), all in XML. Document types are refused, so that no entity is expanded or loaded.
namespace GasLibImport {

struct Result {
  bool ok = false; ///< the case was written
  int nodes = 0;
  int drives = 0;
  int edges = 0;
  int setPoints = 0;
  Findings findings;
};

/// \param scenario, compressors paths; empty for those beside the network that have its base name
/// \param to the case folder, which gives the case its name
Result import(const QString &network, const QString &scenario, const QString &compressors, const QString &to);

} // namespace GasLibImport
