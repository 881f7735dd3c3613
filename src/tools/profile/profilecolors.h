#pragma once

#include <QColor>
#include <QPalette>

#include <array>

/// The colours of a profile on paper, and on a dark screen.
struct ProfileColors {
  QColor ground;
  QColor ink;
  QColor grid;
  QColor bound;                 ///< of the lines of bounds
  QColor violation;             ///< of values beyond them
  QColor own;                   ///< of the scenario that is shown
  std::array<QColor, 6> others; ///< of overlaid ones, which colour-blind eyes tell apart

  static ProfileColors onWhite() {
    return {Qt::white,
            Qt::black,
            {0xd3, 0xd7, 0xdb},
            {0x8a, 0x6d, 0x3b},
            {0xb2, 0x22, 0x22},
            {0x1f, 0x5d, 0x8a},
            {{{0xd5, 0x5e, 0x00},
              {0x00, 0x9e, 0x73},
              {0xcc, 0x79, 0xa7},
              {0xb3, 0x8b, 0x00},
              {0x56, 0xb4, 0xe9},
              {0x66, 0x66, 0x66}}}};
  }
  static ProfileColors onScreen(const QPalette &palette) {
    constexpr int Middle = 128;
    if (palette.color(QPalette::Window).lightness() >= Middle)
      return onWhite();
    return {{0x1e, 0x22, 0x26},
            {0xe6, 0xe9, 0xec},
            {0x4a, 0x52, 0x5a},
            {0xc8, 0xa9, 0x6e},
            {0xf4, 0x72, 0x72},
            {0x70, 0xae, 0xe0},
            {{{0xee, 0x9c, 0x52},
              {0x4c, 0xc9, 0xa4},
              {0xe2, 0xa3, 0xc5},
              {0xe0, 0xc4, 0x4a},
              {0x8f, 0xcf, 0xf5},
              {0xaa, 0xaa, 0xaa}}}};
  }

  /// Letters, axes and frames.
  void applyTo(QPalette &palette) const {
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Window, ground);
    for (const QPalette::ColorRole role : {QPalette::Light, QPalette::Midlight, QPalette::Mid, QPalette::Dark})
      palette.setColor(role, grid);
  }
};
