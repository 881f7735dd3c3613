#pragma once

#include "export/pagedrawing.h"

#include <drawing/stationsymbols.h>
#include <paper/pagecontent.h>

#include <set>

/// The legend of a page of a network: what colours, widths and sizes mean, and the symbols that are seen.
class NetworkLegend {
  Q_DECLARE_TR_FUNCTIONS(NetworkLegend)
public:
  explicit NetworkLegend(const PageDrawing &drawing);

  /// For the present view of the drawing, which must outlive them, as must this.
  std::vector<PaperLegendPart> blocks();

private:
  void addColors(std::vector<PaperLegendPart> &blocks) const;
  void addSizes(std::vector<PaperLegendPart> &blocks) const;
  void addSymbols(std::vector<PaperLegendPart> &blocks);
  std::set<QString> visibleTypes() const;
  std::set<NetGeometry::NodeShape> visibleShapes() const;

  const PageDrawing &m_drawing;
  StationSymbols m_symbols;
};
