#pragma once

#include <model/element.h>

#include <QColor>
#include <QPainter>

#include <functional>

/// Where and how the symbol of an element is to be drawn.
struct SymbolPlace {
  QPointF center;
  double size = 0.0;  ///< px, across
  double angle = 0.0; ///< degrees, clockwise from the direction in which it points right
  QColor ground;      ///< on which it stands
};

/// Draws the symbol of an element as the drawing of the network shows it; false where it has none.
using SymbolPainter = std::function<bool(QPainter &painter, const element &e, const SymbolPlace &place)>;
