#pragma once

#include <drawing/colorscale.h>
#include <drawing/drawnsizes.h>
#include <drawing/drawvalues.h>
#include <drawing/edgelayer.h>
#include <drawing/elementlooks.h>
#include <drawing/labelcontents.h>
#include <drawing/labellayer.h>
#include <drawing/labeltable.h>
#include <drawing/layerfilter.h>
#include <drawing/legendcontents.h>
#include <drawing/netgeometry.h>
#include <drawing/nodelayer.h>
#include <drawing/occupancygrid.h>
#include <drawing/pixtest.h>
#include <drawing/plotsettings.h>
#include <drawing/subnetlayer.h>
#include <drawing/symbollayer.h>
#include <drawing/textboxlayer.h>
#include <drawing/violationlayer.h>
#include <drawing/visibilityrules.h>
#include <model/netdata.h>

#include <QObject>

#include <functional>

class QElapsedTimer;
struct DrawnScene;

/// Turns the network and the plot settings into what the plot shows.
class NetUpdate : public QObject {
  Q_OBJECT
public:
  /// Whether to look up anew what elements are, as after an edit of their properties, or also which there are and where they
  /// lie. Values of draw functions are read in any case.
  enum class Elements { Kept, Reread, Renewed };
  /// Whose colours, widths and sizes are made anew.
  enum class Which { EdgesAndNodes = 1, Edges = 2, Nodes = 3 };
  /// Whether labels that stand are placed anew, at once; others come with the next pass.
  enum class Labels { Kept, Renewed };
  /// How elements are coloured: edges by their function and nodes plainly, both by their functions, or what the search
  /// found in front of the rest.
  enum class DisplayMode { Edges = 0, Functions = 1, SearchResults = 2 };

  /// What the plot shows now.
  struct View {
    QRectF visible;       ///< in plot coordinates
    QSizeF unitsPerPixel; ///< horizontally and vertically
    Projection projection;
    std::vector<QRectF> legends; ///< what they cover of the canvas, px; no labels are placed there
    QSizeF largest;              ///< view that the zoom allows, in plot units
    bool isOfSubnet = false;     ///< a plot of its own for one subnet
  };

  /// \param view asked whenever something depends on it
  /// \param told what is being done, and what was found on the way
  NetUpdate(const PlotSettings &settings, std::function<View()> view, Told told);

  /// What is to be painted, from the bottom to the top.
  std::vector<QwtPlotItem *> items();

  /// The network to show, null for none. It must outlive the drawing or be taken away before; what was drawn of another
  /// network is forgotten. Shown with the next updatePlot() that renews the elements.
  void setNetData(const NetData *net);
  const NetData *netData() const { return m_net; }
  /// The folder of the case: it may hold symbols of the user's own in "symbols", and files of figures. For the next
  /// updatePlot() that renews the elements, as is the following.
  /// \param subnetIcons folder with an icon for each kind of subnet, empty for none
  void setFolder(const QString &folder, const QString &subnetIcons = QString());
  void setLabelTable(const LabelTable &table);
  const LabelTable &labelTable() const { return m_labelTable; }
  /// What labels say; null without a network. Valid until the network, the label table or the drawing changes.
  const LabelContents *labelContents() const;
  /// Layers whose elements are not drawn, by the values of the property; drawn with the next updatePlot().
  /// False when this hides what was hidden before.
  bool setHiddenLayers(const QString &property, const QSet<QString> &layers) { return m_layers.setHidden(property, layers); }
  const LayerFilter &layers() const { return m_layers; }
  /// Hides what another drawing of the same network hides; for the next updatePlot().
  void setLayers(const LayerFilter &layers) { m_layers = layers; }
  void setDisplayMode(DisplayMode mode) { m_displayMode = mode; }
  DisplayMode displayMode() const { return m_displayMode; }

  /// Draws the values as they are now.
  void updatePlot(Elements elements = Elements::Kept, Which which = Which::EdgesAndNodes, Labels labels = Labels::Kept);
  /// What the legend says of the functions as they are drawn.
  QString legendText() const;
  /// What is in colour now, and the colours that stand for no value.
  ColorScale::Subject coloured() const;
  std::vector<ColorScale::Swatch> swatches() const { return looks().swatches(); }
  /// What a legend says of all that is drawn in this view, and draws a symbol of it.
  LegendContents legendContents() const;
  void drawLegendSymbol(QPainter &painter, const LegendContents::Symbol &symbol, const QPointF &center, double size) const;
  /// Where something is drawn in this view; of labels and names nothing is said, as they make room.
  OccupancyGrid drawnPlaces() const;
  DrawnSizes drawnSizes() const;

  /// Asks for a pass that decides which symbols are visible and places labels, after so many milliseconds; at once when
  /// they are negative.
  void requestPixtest(int delay, bool quick = true) { m_pixtest.requestPixtest(delay, quick); }
  const Pixtest &pixtest() const { return m_pixtest; }
  /// Shows and hides what the rules say of the view as it is.
  void showForView() { runPixtest(Pixtest::Labels::Without); }
  /// Places labels for the view as it is; stored ones stay where they are.
  void placeLabelsNow() { runPixtest(Pixtest::Labels::With); }
  void clearLabels();
  /// Whether stations are named while there are no labels; with the next pass.
  void setNamesWanted(bool areWanted) { m_wantsNames = areWanted; }
  /// Places labels at once, whatever the settings say.
  void relabelNow();
  /// Finds the symbols that lie in the visible area; valid until something is drawn anew.
  const std::vector<SymbolLayer::Placed> &determineVisibleSymbols() const;

  const NetGeometry &geometry() const { return m_geometry; }
  const DrawValues &values() const { return m_values; }
  const std::vector<Label> &labels() const { return m_labels.labels(); }
  /// Names that stand in the drawing of stations while there are no labels.
  const std::vector<Label> &names() const { return m_names.labels(); }
  /// Elements in view whose label found no place in the last pass.
  const std::vector<NetGeometry::Item> &unplacedLabels() const { return m_unplaced; }

  /// What is drawn under the point of the canvas: boxes, then symbols, then what stands at a point, then lines; each by
  /// distance.
  std::vector<Hit> elementsAt(const QPointF &point, double tolerance) const;
  /// What lies wholly in the rectangle, in plot coordinates.
  std::vector<NetGeometry::Item> elementsIn(const QRectF &area) const;
  Projection projection() const { return m_view().projection; }

signals:
  // In this order while the plot is updated; who shows it has to be done when the signal returns.
  void scalesChanged(); ///< of colours
  void extentChanged(); ///< of another network, or its coordinates count in other units
  void legendChanged(); ///< also when nodes of a size that tells something grow with the zoom
  void changed();       ///< something is to be painted anew

private:
  void tellAll(const Findings &findings) const;
  void runPixtest(Pixtest::Labels labels);
  /// Of junctions in this view, where their sizes tell something; otherwise 0.
  double junctionScale() const;
  void placeLabels();
  /// Names the stations of the view unless it has labels. True when the names may be others now.
  bool placeNames();
  bool areNamesWanted() const;
  enum class Wanted { Labels, Names };
  void place(Wanted wanted);
  ElementLooks looks() const;
  DrawnScene scene() const;
  /// The size that the label table gives a type, px.
  double sizeOf(const QString &type, double otherwise) const;
  void showWhatIsVisible();
  void updateEdges(bool isSearch);
  void updateLooks(bool rebuild, Which which, const QElapsedTimer &timer);
  void updateSymbols(bool rebuild);
  /// The height of the view in the network's own coordinates, in which thresholds are given.
  double seenHeight() const;

  const PlotSettings &m_settings;
  std::function<View()> m_view;
  Told m_told;
  const NetData *m_net = nullptr;
  bool m_isNew = false;       ///< nothing of the network was drawn yet
  bool m_hasNewNodes = false; ///< where they lie or what they are; the layer is to take it over
  NetGeometry m_geometry;
  DrawValues m_values;
  LabelTable m_labelTable;
  mutable std::unique_ptr<LabelContents> m_contents; ///< made when somebody asks
  VisibilityRules m_visibility;
  LayerFilter m_layers;
  DisplayMode m_displayMode = DisplayMode::Functions;
  double m_legendScale = 0.0; ///< of junctions, when the legend was told of it last
  std::vector<float> m_edgeWidths;
  ViolationLayer m_violations;
  EdgeLayer m_edges;
  NodeLayer m_nodes;
  SymbolLayer m_symbols;
  SubnetLayer m_subnets;
  TextBoxLayer m_textBoxes;
  LabelLayer m_labels;
  LabelLayer m_names;
  std::vector<NetGeometry::Item> m_unplaced;
  bool m_wantsNames = true;
  bool m_hasPlacedLabels = false; ///< for this view; those that stand may be none
  Pixtest m_pixtest;
};
