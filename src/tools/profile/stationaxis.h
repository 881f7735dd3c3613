#pragma once

#include "profile/pathprofile.h"
#include "profile/profilecolors.h"

#include <tools/symbolpainter.h>

#include <QFont>
#include <qwt_plot_item.h>

#include <vector>

/// The axis of a profile: the symbols of stations where they lie, names of stations and way points below them, and numbers.
/// Those that fall on one another share the symbol of the most important, with their number; names never overlap.
class StationAxis : public QwtPlotItem {
public:
  /// Symbols that stand for one or several rows of the profile.
  struct Placed {
    double place = 0.0;      ///< px, of the middle of the symbol
    std::vector<Index> rows; ///< the most important first
  };

  explicit StationAxis(SymbolPainter painter)
      : m_symbols(std::move(painter)) {}

  /// \param profile must outlive the next call
  void setProfile(const PathProfile &profile, const QStringList &wayPoints);
  void setColors(const ProfileColors &colors) { m_colors = colors; }
  void setFont(const QFont &font) { m_font = font; }
  /// px, that symbols, names and numbers take.
  static int height(const QFontMetrics &metrics);

  /// From left to right.
  std::vector<Placed> layOut(const QwtScaleMap &xMap) const;
  /// The names of what is shown at a place, a line each; empty for nothing.
  QString namesAt(const QwtScaleMap &xMap, double pixel) const;

  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvas) const override;

private:
  struct Name {
    double place;
    QString text;
    bool isWayPoint;
  };

  void drawSymbol(QPainter &painter, const Placed &placed, double y) const;
  void drawTicks(QPainter &painter, const QwtScaleMap &xMap, const QRectF &canvas) const;
  void drawNames(QPainter &painter, const std::vector<Placed> &symbols, const QwtScaleMap &xMap, const QRectF &canvas) const;

  SymbolPainter m_symbols;
  ProfileColors m_colors = ProfileColors::onWhite();
  QFont m_font;
  const PathProfile *m_profile = nullptr;
  std::vector<Index> m_stations; ///< rows, from the start
  std::vector<Index> m_wayPoints;
};
