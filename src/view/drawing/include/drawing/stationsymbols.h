#pragma once

#include <base/index.h>
#include <drawing/drawingtheme.h>
#include <drawing/symboltable.h>

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QString>

#include <memory>
#include <utility>

class QSvgRenderer;

/// The SVG symbols of element types and kinds of subnets, kept as pixmaps by size and angle.
class StationSymbols {
public:
  StationSymbols();
  ~StationSymbols();

  /// Symbols of the user's own; indices found before are no longer valid.
  void setTable(const SymbolTable &table);
  /// What they are drawn on.
  void setGround(const QColor &ground);
  /// Index of the symbol for a type code ("c") or a kind of subnet ("compressor_station"); NoIndex when there is none.
  Index find(const QString &key);
  /// The symbol of a type in a state ("_off"): that of both together, else the type's. A symbol of the user's own for the
  /// type goes before a built-in one for the state.
  Index find(const QString &type, const QString &state);
  /// What was wrong with files of the user's own that were looked for since the last call.
  Findings takeFindings() { return std::exchange(m_findings, {}); }

  /// Draws the symbol about the centre. Screens get a prepared pixmap, documents the vectors.
  /// \param size px, across
  /// \param angle degrees, clockwise; screens round it to 5 degrees
  void draw(QPainter &painter, Index symbol, const QPointF &center, double size, double angle);

  /// A badge with the number of those that share a symbol.
  void drawCount(QPainter &painter, const QPointF &center, int count);

private:
  std::unique_ptr<QSvgRenderer> load(const QString &key);
  QPixmap pixmap(Index symbol, int pixels, int angle);

  SymbolTable m_table;
  DrawingTheme m_theme;
  Findings m_findings;
  QHash<QString, Index> m_indices;
  std::vector<std::unique_ptr<QSvgRenderer>> m_renderers;
  QHash<quint64, QPixmap> m_pixmaps;
  QHash<QPair<int, int>, QPixmap> m_badges; ///< by number and hundredths of a pixel ratio
};
