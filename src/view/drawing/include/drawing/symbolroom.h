#pragma once

#include <drawing/netgeometry.h>

#include <array>
#include <cstddef>

/// Which symbols there is room for in a view. Compressors are shown from afar unless they are very many; others only where
/// their symbol is clearly shorter than their line, or where they are few and nothing more important is near.
class SymbolRoom {
public:
  void read(const NetGeometry &geometry);

  /// A symbol in a view, in pixels.
  struct Place {
    double size = 0.0;
    double lineLength = 0.0; ///< of its edge, of a drive that of its compressor; 0 for what stands at a point
    double distance = 0.0;   ///< from the next symbol that is more important
    double scale = 0.0;      ///< pixels a plot unit
  };
  /// How far it is shown, 0 to 1: what comes with the zoom comes small and faint at first.
  double presence(char type, const Place &place) const;

  double typicalLength() const { return m_typicalLength; } ///< plot units, of an edge

private:
  enum Tier : std::size_t { Compressors, Regulators, Fittings, ShortPipes, Drives, Tiers };
  static Tier tierOf(char type);

  std::array<double, Tiers> m_room{}; ///< plot units, how far apart those of a tier stand
  double m_typicalLength = 0.0;
};
