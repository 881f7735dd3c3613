#pragma once

#include <drawing/colorscale.h>
#include <drawing/drawvalues.h>
#include <drawing/layerfilter.h>
#include <drawing/looks.h>
#include <drawing/netgeometry.h>

/// How the elements are drawn, after what the draw functions say of them. Elements without a value, without flow and out of
/// use have colours of their own.
class ElementLooks {
public:
  /// \param nodeSize px, of a node that no function makes smaller or larger
  ElementLooks(const NetGeometry &geometry, const DrawValues &values, const PlotSettings &settings,
               const LayerFilter &layers, double nodeSize)
      : m_geometry(geometry)
      , m_values(values)
      , m_settings(settings)
      , m_layers(layers)
      , m_nodeSize(nodeSize) {}

  /// One an edge of the geometry.
  std::vector<EdgeLook> edges() const;
  /// The colours of edges where there are pipes and none has a value, so that symbols cover what is coloured: one an edge, 0
  /// without a value. Else empty.
  std::vector<QRgb> stationColors(const std::vector<EdgeLook> &edges) const;
  /// One a node. \param byFunction in the colours of the node colour function, if it says something of nodes
  std::vector<NodeLook> nodes(bool byFunction) const;
  /// Px, of an edge whose value lies so far along the range of the width function.
  static double edgeWidth(const PlotSettings &settings, double fraction);
  /// Px, of a junction whose value lies so far along the range of the size function.
  static double sizeOfNode(double nodeSize, double fraction);
  /// Of what a search found.
  static QRgb foundColor();
  /// What a search found ("isSearchResult") stands out from the rest.
  std::vector<EdgeLook> searchedEdges() const;
  std::vector<NodeLook> searchedNodes() const;
  /// The colours of edges() that stand for no value, as far as there are such edges.
  std::vector<ColorScale::Swatch> swatches() const;

private:
  template <typename Look>
  void hide(NetData::EleType kind, std::vector<Look> &looks) const;
  std::vector<bool> searchResults(NetData::EleType kind) const;

  const NetGeometry &m_geometry;
  const DrawValues &m_values;
  const PlotSettings &m_settings;
  const LayerFilter &m_layers;
  double m_nodeSize;
};
