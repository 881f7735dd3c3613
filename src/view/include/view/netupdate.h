#pragma once

#include <model/netdata.h>
#include <view/edgelayer.h>
#include <view/netgeometry.h>
#include <view/nodelayer.h>
#include <view/plotsettings.h>
#include <view/symbollayer.h>
#include <view/textboxlayer.h>

#include <qwt_interval.h>

class NetPlot;

/// Turns the network and the plot settings into what the plot shows.
class NetUpdate {
public:
  enum class Which { EdgesAndNodes = 1, Edges = 2, Nodes = 3 };

  NetUpdate(NetPlot &plot, const PlotSettings &settings);

  /// The network to show, null for none. It must outlive the drawing or be taken away before; what was drawn of another
  /// network is forgotten. Shown with the next updatePlot() that rebuilds.
  void setNetData(const NetData *net);

  /// Symbols of the user's own, drawn with the next updatePlot() that rebuilds.
  void setSymbolTable(const SymbolTable &table) { m_symbols.setTable(table); }

  /// \param rebuild looks up anew which elements there are and where they lie
  /// \param which whose colours, widths and sizes are made anew
  /// \param relabel asks for new labels
  void updatePlot(bool rebuild, Which which, bool relabel);

  const NetGeometry &geometry() const { return m_geometry; }

private:
  struct Values {
    std::vector<double> ofElements; ///< one an element, NetData::NoValue where there is none
    QwtInterval range;              ///< fixed bounds where there are some; invalid without any value
  };

  void readValues(bool rebuild);
  void compute(NetGeometry::Values &values, const QStringList &ofEdges, const QStringList &ofNodes) const;
  void updateEdges();
  void updateNodes();
  void updateSymbols();

  NetPlot &m_plot;
  const PlotSettings &m_settings;
  const NetData *m_net = nullptr;
  NetGeometry m_geometry;
  struct {
    Values edgeColor;
    Values edgeWidth;
    std::vector<double> flow; ///< of edges, without sign
    Values nodeColor;
    Values nodeSize;
  } m_values; ///< what the draw functions say of this network
  EdgeLayer m_edges;
  NodeLayer m_nodes;
  SymbolLayer m_symbols;
  TextBoxLayer m_textBoxes;
};
