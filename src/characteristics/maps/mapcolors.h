#pragma once

#include <QColor>
#include <QPalette>

/// The colours of a map: those that were chosen for white paper, or for a dark screen others in their place.
class MapColors {
public:
  // Those of maps, on white.
  static inline const QColor Blue{31, 93, 138};
  static inline const QColor PaleBlue{120, 160, 190};
  static inline const QColor Green{46, 125, 50};
  static inline const QColor Red{178, 34, 34};
  static inline const QColor Orange{196, 98, 16};

  static MapColors onWhite() { return MapColors(false); }
  static MapColors onScreen(const QPalette &palette);

  QColor ground() const;
  QColor ink() const; ///< of letters and axes
  /// What of a palette letters, axes and frames are drawn with.
  void applyTo(QPalette &palette) const;
  QColor grid() const;
  QColor warning() const; ///< of letters on the ground of a window
  /// What stands for a colour of the map.
  QColor of(const QColor &onWhite) const;

private:
  explicit MapColors(bool isDark)
      : m_isDark(isDark) {}

  bool m_isDark;
};
