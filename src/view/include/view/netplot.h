#pragma once

#include <base/finding.h>
#include <drawing/drawnstyle.h>
#include <drawing/netupdate.h>
#include <drawing/selectionlayer.h>

#include <QWidget>
#include <qwt_plot_grid.h>
#include <qwt_plot_marker.h>
#include <qwt_plot_textlabel.h>

#include <memory>
#include <optional>

class CanvasLegend;
class FunctionLegend;
class PlotPanner;
class PlotZoom;
class QAction;
class QMenu;
class QwtFastPlot;
class SmoothZoom;

/// The widget in which the network is drawn: the plot, its settings, the update engine, zoom and pan tools, a grid and a
/// legend that names the draw functions.
class NetPlot : public QWidget {
  Q_OBJECT
public:
  /// \param told what drawing does and what it found on the way
  explicit NetPlot(QWidget *parent = nullptr, Told told = {});
  ~NetPlot() override;

  const Told &told() const { return m_told; }
  QwtFastPlot *plot() const { return m_plot; }
  PlotZoom *zoomer() const { return m_zoomer; }
  PlotPanner *panner() const { return m_panner; }
  NetUpdate &update() { return *m_update; }
  SelectionLayer &selection() { return m_selection; }
  QwtPlotGrid &grid() { return m_grid; }
  const QwtPlotMarker &legend() const;

  /// As they are seen, which may be a preview.
  const PlotSettings &settings() const { return m_settings; }
  /// Takes over the settings; what depends on them is drawn with the next updatePlot(). A preview ends.
  void setSettings(const PlotSettings &settings);
  /// What holds: that of settings() and the label table, unless there is a preview.
  const PlotSettings &appliedSettings() const { return m_applied ? m_applied->settings : m_settings; }
  DrawnStyle appliedStyle() const;
  /// Takes over the style and draws it. A preview ends.
  void setStyle(const DrawnStyle &style);
  /// Draws a style for the eye alone, until it is taken over or the preview ends.
  void preview(const DrawnStyle &style);
  void endPreview();
  bool isPreview() const { return m_applied.has_value(); }

  /// While a picture is made: what leaves the screen is on white, whatever the screen has.
  void setOnPaper(bool isOnPaper);

  /// "plotsettings.ini". False, and nothing is changed, when there is no such file or it cannot be read.
  bool readPlotSettings(const QString &path);
  bool writePlotSettings(const QString &path, QString *error = nullptr) const;

  /// Takes the general setting "MousePattern_Panning" for the button that moves the view.
  void readMousePattern();
  /// The button with these keys moves the view when it is dragged.
  bool pansWith(Qt::MouseButton button, Qt::KeyboardModifiers keys) const;
  /// Draws the network anew and fits its main body to the window; a hint tells how many nodes lie far outside.
  void showNetwork();
  /// Takes what it reads of the general settings and draws anew; the view stays.
  void takeSettings();
  /// Takes the extent of the network that was just read for the whole view.
  void fitNetwork();
  /// What the window shows, and what it is to show, in the network's own coordinates.
  QRectF visibleArea() const;
  void showArea(const QRectF &area);
  /// Nobody has zoomed to a part of the network.
  bool showsAll() const;
  /// What the canvas shows, without marks of the selection, at most so large.
  QImage picture(const QSize &largest) const;
  /// What the legend of the functions covers of the canvas, px; empty when it is hidden.
  QRectF functionLegendArea() const;
  /// The legend that says what colours, widths and symbols mean.
  CanvasLegend &canvasLegend() const { return *m_canvasLegend; }
  /// Shows and hides that legend.
  QAction *legendAction() const;
  /// Which case and scenario are shown; the legend says it.
  void setCaption(const QString &caption);
  /// Where on the canvas a menu stands that was asked for by a key: at what is selected, where that is seen, else in the
  /// middle.
  QPoint keyboardPlace() const;
  /// A plot of its own for one subnet places labels without waiting.
  void setShowsSubnet(bool shows) { m_showsSubnet = shows; }
  bool hasStragglers() const { return m_stragglers > 0; }
  /// Fits the window to everything, however far it lies.
  void showStragglers();
  /// Brings the element into the middle, as large as the general setting "zoom to element: factor" allows.
  void zoomToElement(NetGeometry::Item item);
  /// Fits the window to the items, with some room around; false when none of them is drawn.
  bool zoomToItems(const std::vector<NetGeometry::Item> &items);

signals:
  void viewChanged();                            ///< another part of the network is shown
  void drawConfigurationRequested();             ///< the colour scale was double-clicked
  void contextMenuRequested(QMenu *contextMenu); ///< to be filled before it is shown at the cursor
  void settingsChanged();                        ///< by a person or a file
  void legendSettingsChosen();                   ///< at the legend, by a person; they are drawn

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void changeEvent(QEvent *event) override;

private:
  void showHint();
  void take(const PlotSettings &settings);
  void draw(const DrawnStyle &style);
  void setUpUpdate();
  void setUpLegend();
  NetUpdate::View view() const;
  void placeLegend();
  void showAxes();
  void setUpZoom();
  void zoomByWheel(int steps, QPointF anchor);
  void refresh(int delay);
  void setUpPlot();
  void setUpPanner();
  void applyColors();
  void drawAsShown();
  bool canvasEvent(QEvent *event);
  void showContextMenu(const QPoint &place);

  Told m_told;
  QwtFastPlot *m_plot;
  PlotSettings m_settings;
  PlotSettings m_shown; ///< the settings as this screen, or paper, has them
  bool m_isOnPaper = false;
  std::optional<DrawnStyle> m_applied; ///< while there is a preview of another style
  PlotZoom *m_zoomer;
  PlotPanner *m_panner;
  std::unique_ptr<NetUpdate> m_update;
  std::unique_ptr<FunctionLegend> m_functionLegend;
  std::unique_ptr<CanvasLegend> m_canvasLegend;
  SmoothZoom *m_smoothZoom;
  SelectionLayer m_selection;
  bool m_mouseMoved = false; ///< since the last button press
  QwtPlotGrid m_grid;
  QwtPlotTextLabel m_hint; ///< why there is nothing to see, or what lies outside
  bool m_showsSubnet = false;
  int m_stragglers = 0; ///< nodes far outside of the zoom base
};
