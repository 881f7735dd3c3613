#pragma once

#include <machines/machinedata.h>

/// Reads machine data: the XML of public gas network instances (compressor stations with their compressors and drives), and
/// the text tables of our own. What is wrong is told by line and left out, the rest is read. Fits are made.
namespace MachineReader {

struct Result {
  MachineData data;
  Findings findings;
  bool ok = false; ///< the file could be read; faults in it do not count
};

/// By its beginning: XML when the first character is "<".
Result read(const QString &path);

} // namespace MachineReader
