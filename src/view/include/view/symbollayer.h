#pragma once

#include <view/netgeometry.h>
#include <view/spatialindex.h>
#include <view/stationsymbols.h>

#include <qwt_plot_item.h>

/// The symbols of stations: edges other than pipes, drives and subnets. Where they would overlap, the more important one
/// is drawn.
class SymbolLayer : public QwtPlotItem {
public:
  SymbolLayer();

  /// Symbols of the user's own, for the stations that are set afterwards.
  void setTable(const SymbolTable &table);
  void setStations(const NetGeometry &geometry);
  void setSize(double pixels) { m_size = pixels; }
  void clear();

  int rtti() const override { return Rtti_PlotUserItem + 3; }
  void draw(QPainter *painter, const QwtScaleMap &xMap, const QwtScaleMap &yMap, const QRectF &canvasRect) const override;

private:
  struct Record {
    double x = 0.0;
    double y = 0.0;
    double dx = 0.0; ///< direction in plot units; none for what stands at a point
    double dy = 0.0;
    int symbol = -1;
    int priority = 0; ///< lower is more important
  };

  mutable StationSymbols m_symbols; ///< a cache of pixmaps
  std::vector<Record> m_records;    ///< in the order of the index
  SpatialIndex m_index;
  double m_size = 20.0;
};
