#pragma once

#include <QString>

#include <cstdint>

/// Makes plausible networks of any size for measurements and for trying things out: a branched grid with some meshes,
/// compressor stations with drives, valves, regulators and other station elements, 20 properties an element. The same
/// count and seed give the same files.
namespace NetworkGenerator {

struct Summary {
  int nodes = 0; ///< drives included
  int edges = 0;
};

/// Writes a workspace case into the folder (made when missing): geometry, configuration and one scenario "S1". The case
/// is named after the folder. Throws std::runtime_error when a file cannot be written.
Summary write(const QString &folder, int elements, std::uint64_t seed);

/// The path of the geometry file that write() makes in the folder.
QString geometryFile(const QString &folder);

} // namespace NetworkGenerator
