#pragma once

#include <machines/machinedata.h>
#include <optional>

/// How far a working point is from the limits of its machine; negative beyond them, nothing where a limit is not known.
///
/// The distance to surge is that along the line of constant speed, (Q - Qs) / Q, which API 617 calls stability; the turndown
/// is the same along the line of constant head. Both refer to the flow of the working point, as in R. Kurz, "The Physics of
/// Centrifugal Compressor Performance", PSIG 2004. The distance to choke is (Qc - Q) / Q along the line of constant speed.
struct MachineMargins {
  std::optional<double> surge; ///< 1 for 100 %, as the following
  std::optional<double> turndown;
  std::optional<double> choke;
  std::optional<double> speed; ///< up to the largest, of the largest
  std::optional<double> power; ///< kW that the drive has left at this speed

  static MachineMargins of(const TurboCompressor &machine, double flow, double head, double speed);
  static MachineMargins of(const PistonCompressor &machine, double speed);
  /// Of each the smaller one.
  void takeNearer(const MachineMargins &other);
};
