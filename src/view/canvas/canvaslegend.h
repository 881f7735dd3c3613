#pragma once

#include "canvas/legenditem.h"
#include "canvas/legendplace.h"

#include <drawing/legendpicture.h>

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

class LegendView;
class NetUpdate;
class PlotZoom;
class QAction;
class QMenu;
class QwtFastPlot;
struct PlotSettings;

/// The legend inside the canvas of a plot: what it says, where it stands, and what can be chosen at it. Which corner, and
/// whether it is shown, the plot settings say; where they leave it open, it stands where it hides least, and follows the
/// view when that has come to rest. It goes before the plot does.
class CanvasLegend : public QObject {
  Q_OBJECT
public:
  /// What it is the legend of; all of it lives longer.
  struct Drawing {
    QwtFastPlot &plot;
    const PlotZoom &zoomer;
    const PlotSettings &settings;
    const PlotSettings &shown; ///< with the colours of this screen
    const NetUpdate &update;
    std::function<QRectF()> taken;         ///< where something else stands on the canvas, px; empty for nowhere
    std::function<PlotSettings()> applied; ///< the settings without a preview of others
  };

  explicit CanvasLegend(Drawing drawing);
  ~CanvasLegend() override;

  /// Which case and scenario are shown.
  void setCaption(const QString &caption);
  /// After the settings, the values or the size of the canvas have changed.
  void refresh();
  /// Where it stands, which it does not leave for little. Nothing where it stands for the first time: for another network,
  /// or a picture of another size.
  const std::optional<LegendPlace::Place> &standing() const { return m_standing; }
  void setStanding(const std::optional<LegendPlace::Place> &standing) { m_standing = standing; }
  /// What it covers of the canvas, px; empty while it is hidden.
  QRectF area() const;
  /// Shows and hides it.
  QAction *action() const { return m_action; }
  /// Fills in what can be chosen for the legend and the colours.
  void fillMenu(QMenu &menu);
  /// The plot draws it itself, as documents need it.
  void setIsInDocument(bool isInDocument);
  /// Leaves it out of pictures of the canvas that are moved in its place.
  void setIsLeftOut(bool isLeftOut);

signals:
  void settingsWanted(const PlotSettings &settings); ///< by what a person chose
  void configurationWanted();
  void entered(); ///< by the mouse
  void moved();   ///< of itself: labels may stand where it was, and not where it is

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  template <typename Change>
  void changeSettings(const Change &change);
  void fill();
  void place();
  void rest();
  void choose(LegendPlace::Corner corner);
  void addCorners(QMenu &menu);
  void addColors(QMenu &menu);

  Drawing m_drawing;
  LegendPicture m_picture;
  LegendItem m_item;
  LegendView *m_view; ///< belongs to the canvas
  QAction *m_action;
  QString m_caption;
  std::optional<LegendPlace::Place> m_standing;
  QTimer m_resized; ///< the plot itself follows a new size first
  QTimer m_resting; ///< the view has been still for a while when it rings
};
