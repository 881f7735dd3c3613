#pragma once

#include <qwt_interval.h>

#include <drawing/drawfunctions.h>
#include <drawing/netgeometry.h>
#include <drawing/plotsettings.h>

/// What the draw functions say of the elements of a network.
class DrawValues {
public:
  struct Column {
    DrawFunction function;
    std::vector<double> ofElements; ///< one an element, NetData::NoValue where there is none
    QwtInterval data;               ///< of the values; invalid without any
    /// As drawn: fixed bounds where there are some. Values that differ by less than 0.1 % are one: then it has no width.
    QwtInterval range;

    bool isAny() const { return range.isValid(); }
  };

  /// Reads the values, and on rebuild the geometry as well.
  void read(const NetData &net, const PlotSettings &settings, NetGeometry &geometry, bool rebuild);

  const Column &edgeColor() const { return m_edgeColor; }
  const Column &edgeWidth() const { return m_edgeWidth; }
  const Column &nodeColor() const { return m_nodeColor; }
  const Column &nodeSize() const { return m_nodeSize; }
  const std::vector<double> &flow() const { return m_flow; } ///< of edges, positive from the first to the second node
  const std::vector<double> &flowSize() const { return m_flowSize; } ///< the same without sign
  /// The node colour function says something of nodes; otherwise nodes have plain colours.
  bool colorsNodes() const { return m_nodeColor.isAny(); }

private:
  void compute(const NetGeometry &geometry, const PlotSettings &settings, NetGeometry::Values &values) const;
  void take(NetGeometry::Values &values, const PlotSettings &settings);

  Column m_edgeColor;
  Column m_edgeWidth;
  Column m_nodeColor;
  Column m_nodeSize;
  std::vector<double> m_flow;
  std::vector<double> m_flowSize;
};
