#pragma once

#include <optional>

class NetData;
class NetGeometry;

/// What coordinates count, as the lengths of the pipes tell: where they agree with the distances between their ends, read as
/// metres or as degrees on the globe, that is what the coordinates are; where all of them are the same multiple of these
/// distances, that multiple is the scale.
struct PipeScale {
  /// Asks some thousand pipes at most; nothing where they obey none of this.
  static std::optional<PipeScale> of(const NetData &net, const NetGeometry &geometry);

  bool isDegrees = false;
  double metresPerUnit = 1.0; ///< of coordinates that are no degrees
};
