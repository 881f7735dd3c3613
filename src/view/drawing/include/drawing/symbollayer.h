#pragma once

#include <drawing/figures.h>
#include <drawing/layerfilter.h>
#include <drawing/layergeometry.h>
#include <drawing/netgeometry.h>
#include <drawing/spatialindex.h>
#include <drawing/stationsymbols.h>
#include <drawing/symbolroom.h>
#include <drawing/visibilityrules.h>

#include <qwt_plot_item.h>

#include <algorithm>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

/// The symbols of stations: edges other than pipes and drives, and the figures that elements bring themselves. What
/// SymbolRoom leaves no room for is not drawn. Those that would overlap share one symbol, that of the most important, with
/// the number of those of its kind.
class SymbolLayer : public QwtPlotItem {
public:
  /// Codes of all types but pipes, which have no symbol; the former cover the latter.
  static constexpr std::string_view TypesByPriority = "crgwkfvsd";

  SymbolLayer();

  /// Symbols of the user's own, for the stations that are set afterwards.
  void setTable(const SymbolTable &table);
  void setFigureFolder(const QString &folder) { m_figures.setFolder(folder); }
  /// Returns what was wrong with their symbols and figures.
  Findings setStations(const NetGeometry &geometry);
  /// \param covers tells for a view the areas (px) behind which no symbol is drawn
  void setCovers(std::function<std::vector<QRectF>(const Projection &)> covers) { m_covers = std::move(covers); }
  /// The size of the symbols, and of those of single element types (by type code) that have another.
  void setSize(double pixels) {
    m_size = pixels;
    m_layout.reset();
  }
  void setGround(const QColor &ground) {
    m_symbols.setGround(ground);
    m_figures.setGround(ground);
    m_theme = DrawingTheme(ground);
  }
  void setSizes(const QHash<QString, double> &sizes) { m_sizes = sizes; }
  /// Colours of discs behind the symbols of edges, one an edge, 0 for none; empty for none at all.
  void setDiscs(std::vector<QRgb> colors) { m_discs = std::move(colors); }
  double size() const { return m_size; }
  /// Symbols that are off are not drawn.
  void setVisibility(const VisibilityRules &rules, const LayerFilter &layers);
  void clear();

  /// A symbol alone, so many pixels across, as a legend shows it. \param symbol from symbolOf()
  void drawKey(QPainter &painter, Index symbol, const QPointF &center, double size) const;

  int rtti() const override { return Rtti_PlotUserItem + 3; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

  /// Adds the elements whose symbols lie under the point, behind each one those that share its symbol.
  void find(const Projection &projection, const QPointF &point, std::vector<Hit> &hits) const;

  /// A symbol that is drawn.
  struct Placed {
    NetGeometry::Item item;
    QPointF center; ///< px
    double size = 0.0;
    QSizeF extent;         ///< px, what the symbol or the figure covers
    double angle = 0.0;    ///< degrees, clockwise
    int others = 0;        ///< of its type that stand behind it
    double presence = 1.0; ///< what comes with the zoom is small and faint at first
    Index record = 0;
    bool isFigure = false;

    /// Whether the point lies on it: in the circle of a symbol, in the rectangle of a figure.
    bool covers(const QPointF &point) const;
    /// What labels keep away from, px.
    QRectF obstacle() const;
    double reach() const { return std::max(extent.width(), extent.height()) * 0.5; }
  };
  char typeOf(const Placed &placed) const { return m_records[placed.record].type; }
  /// A number that drawKey() knows, until the stations are set again.
  Index symbolOf(const Placed &placed) const { return m_records[placed.record].symbol; }
  /// Those of its type that share the symbol of this number in laidOut().
  std::vector<NetGeometry::Item> sharing(const Projection &projection, Index number) const;
  /// The symbols that are drawn, the more important first. Kept until the symbols, their visibility or the view change.
  const std::vector<Placed> &laidOut(const Projection &projection) const;

private:
  struct Record {
    double x = 0.0;
    double y = 0.0;
    double dx = 0.0; ///< line in plot units, of a drive that of its compressor; none for what stands at a point
    double dy = 0.0;
    char type = 0;
    bool isBeside = false; ///< a drive, drawn beside the line
    bool isBetweenLanes = false;
    NetGeometry::Item item;
    Index symbol = NoIndex; ///< of m_symbols
    Index figure = NoIndex; ///< of m_figures, in place of the symbol
    int priority = 0;       ///< lower is more important
    float lane = 0.0F;
    float size = 1.0F; ///< share of the common size
    bool isVisible = true;
  };

  /// What is drawn of one view.
  struct Layout {
    Projection projection;
    std::vector<Placed> placed;
    std::vector<std::pair<Index, Index>> behind; ///< a symbol, by its index in placed, and a record that stands behind it
  };

  Layout layOut(const Projection &projection) const;
  /// What there is room for, the more important first.
  struct Candidate {
    Index record;
    QPointF center; ///< px
    double presence;
  };
  std::vector<Candidate> candidates(const Projection &projection, double size) const;
  double presenceOf(const Record &record, const QPointF &center, double size, const Projection &projection) const;
  /// How far apart, in pixels, it stands from whatever is more important.
  double distanceToOthers(const Record &record, const QPointF &center, double reach, const Projection &projection) const;
  Placed placed(const Candidate &candidate, double size, const Projection &projection) const;
  Record recordOf(const NetGeometry &geometry, Index drive);
  std::vector<Record> records(const NetGeometry &geometry);
  void drawDisc(QPainter &painter, const Placed &placed) const;
  /// From the compressors to the drives beside them.
  void drawShafts(QPainter &painter, const Projection &projection, const std::vector<Placed> &placed) const;
  Index symbolOf(const NetGeometry::Edge &edge);
  static QLineF lineOf(const Record &record, const Projection &projection);
  /// The middle of the line, beside others that join the same nodes.
  QPointF onLane(const Record &record, const Projection &projection) const;
  QPointF centerOf(const Record &record, const Projection &projection) const;

  mutable StationSymbols m_symbols; ///< a cache of pixmaps
  Figures m_figures;
  DrawingTheme m_theme;
  std::vector<Record> m_records; ///< in the order of the index
  SpatialIndex m_index;
  std::function<std::vector<QRectF>(const Projection &)> m_covers;
  QHash<QString, double> m_sizes;
  std::vector<QRgb> m_discs;
  double m_size = 20.0;
  SymbolRoom m_room;
  mutable std::optional<Layout> m_layout; ///< of the view that was asked for last
};
