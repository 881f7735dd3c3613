#pragma once

#include "canvas/legenditem.h"
#include "canvas/legendplace.h"

#include <drawing/legendpicture.h>

#include <QObject>
#include <QTimer>

class LegendView;
class NetPlot;
class QAction;
class QMenu;

/// The legend inside the canvas of a plot: what it says, where it stands, and what can be chosen at it. Which corner, and
/// whether it is shown, the plot settings say. It goes before the plot does.
class CanvasLegend : public QObject {
  Q_OBJECT
public:
  explicit CanvasLegend(NetPlot &plot);
  ~CanvasLegend() override;

  /// Which case and scenario are shown.
  void setCaption(const QString &caption);
  /// After the settings, the values or the size of the canvas have changed.
  void refresh();
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

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  template <typename Change>
  void changeSettings(const Change &change);
  void place();
  void choose(LegendPlace::Corner corner);
  void addCorners(QMenu &menu);
  void addColors(QMenu &menu);

  NetPlot &m_plot;
  LegendPicture m_picture;
  LegendItem m_item;
  LegendView *m_view; ///< belongs to the canvas
  QAction *m_action;
  QString m_caption;
  QTimer m_resized; ///< the plot itself follows a new size first
};
