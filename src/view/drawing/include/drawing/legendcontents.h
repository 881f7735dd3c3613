#pragma once

#include <drawing/colorscale.h>
#include <drawing/drawvalues.h>
#include <drawing/netgeometry.h>
#include <drawing/plotsettings.h>

#include <QRgb>
#include <QString>
#include <qwt_interval.h>

#include <optional>
#include <vector>

/// What the legend says of a drawing, in words and numbers; how it looks is the matter of LegendPicture.
struct LegendContents {
  /// The colours of a draw function.
  struct Scale {
    QString title;             ///< whose colours, the quantity and its unit
    QwtInterval range;         ///< in the display unit; one value has no width
    std::vector<QRgb> colors;  ///< at equal steps over the range
    std::optional<QRgb> below; ///< of values beyond the range, where there are some
    std::optional<QRgb> above;
    std::vector<double> breaks; ///< between classes, in the display unit; empty for a smooth scale
  };
  /// A width or size and the value that it stands for.
  struct Sample {
    double size = 0.0; ///< px
    QString text;
  };
  struct Samples {
    QString title;
    std::vector<Sample> samples;
  };
  /// A symbol of edges of a type, or a shape of nodes.
  struct Symbol {
    QString title;
    char type = 'n';
    NetGeometry::NodeShape shape = NetGeometry::NodeShape::Junction; ///< of a node
    Index symbol = NoIndex;                                          ///< of the other types, as their layer counts them
  };

  QString caption; ///< which case and scenario
  std::vector<Scale> scales;
  Samples widths;
  Samples sizes;
  std::vector<ColorScale::Swatch> lines;   ///< colours of lines that stand for no value
  std::vector<ColorScale::Swatch> casings; ///< round elements
  std::vector<Symbol> symbols;             ///< that the view shows, the more important first

  bool isEmpty() const {
    return scales.empty() && widths.samples.empty() && sizes.samples.empty() && lines.empty() && casings.empty() &&
           symbols.empty();
  }

  /// What there is to say of colours, widths and sizes.
  void addFunctions(const PlotSettings &settings, const DrawValues &values, ColorScale::Subject subject, double nodeSize);
};
