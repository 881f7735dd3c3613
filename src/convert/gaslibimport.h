#pragma once

#include <base/finding.h>
#include <io/conversionreport.h>

#include <QString>
#include <QStringList>

/// Makes a workspace case of a public gas network instance: its network (".net"), nominations (".scn") and compressor
/// stations (".cs"), all in XML. Document types are refused, so that no entity is expanded or loaded.
namespace GasLibImport {

struct Request {
  QString network;
  QStringList nominations; ///< files, and folders of such files; none for the one beside the network that has its base name
  QString compressors;     ///< likewise
  QString to;              ///< the case folder, which gives the case its name; may be there
  bool overwrites = false; ///< whether scenarios and files that are there may be replaced by others
};

struct Result {
  bool ok = false; ///< the case was written; otherwise nothing was
  int nodes = 0;
  int drives = 0;
  int edges = 0;
  int setPoints = 0;
  QStringList scenarios; ///< each named after its nomination
  Findings findings;
  ConversionReport report;
};

Result import(const Request &request);

/// Whether the name is that of a network that can be imported.
bool isNetwork(const QString &name);

} // namespace GasLibImport
