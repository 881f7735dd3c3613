#pragma once

#include "interaction/zoomlimits.h"

#include <base/finding.h>
#include <drawing/plotsettings.h>

#include <QStack>
#include <qwt_plot_zoomer.h>

class QwtFastPlot;

/// The views of the network plot that were zoomed to, on a stack above the base, which shows the whole network.
///
/// What holds: 1. while both axes have one scale, every view has the shape that the canvas had when it was zoomed to; 2. a
/// canvas of another shape gives the base that shape at once, and the present view as well, starting from the view that was
/// chosen, so that changes of the canvas do not add up; 3. the stack has 256 entries at most.
class ZoomStack : public QwtPlotZoomer {
  Q_OBJECT
public:
  ZoomStack(QwtFastPlot &plot, const PlotSettings &settings, Told told);

  const ZoomLimits &limits() const { return m_limits; }
  void setZoomLimits(const QRectF &extent, const QSizeF &pixelSpan) { m_limits = ZoomLimits::of(extent, pixelSpan); }

  /// Fits the whole network to the canvas as it is now and forgets the stack.
  void fitBase();
  /// Puts what the plot shows, for instance after panning, on the stack.
  void pushShownView();

  /// Between them zooming is one movement: one entry of the stack, and slow drawings are moved as a picture.
  void beginMove();
  void endMove();

  using QwtPlotZoomer::zoom;
  void zoom(const QRectF &rect) override;

  bool eventFilter(QObject *watched, QEvent *event) override;

protected:
  QwtFastPlot &fastPlot() const { return m_plot; }
  const PlotSettings &settings() const { return m_settings; }
  const Told &told() const { return m_told; }
  bool isMoving() const { return m_move != Move::None; }
  /// True while zoomed() is emitted for a canvas of another shape: nobody chose that view.
  bool isFittingCanvas() const { return m_isFitting; }

  /// Makes the extent of a network, with some margin around, the base and shows it; the limits are made from it.
  void setBase(const QRectF &extent);
  /// Joins the rectangle to the base, goes there and takes the largest view from it.
  void joinToBase(const QRectF &rect);
  /// So much larger that one scale for both axes fills the canvas; as it was where each axis has a scale of its own.
  QSizeF inCanvasRatio(const QSizeF &size) const;

  void rescale() override;
  QSizeF minZoomSize() const override { return m_limits.smallest; }

private:
  QRectF inCanvasRatio(const QRectF &rect) const;
  void cutStack();
  /// Gives the base and the view that was chosen last the shape of the canvas as it is now. Other numbers at the scales
  /// may leave the canvas another size, and that size another view: it is done again until they agree, a few times at most.
  void fitCanvas();
  void fitViews();
  /// Puts the views on the stack without a word to anybody.
  void setStack(const QStack<QRectF> &views, int index);
  void replaceView(const QRectF &rect);
  /// Gives both axes one scale about their centres; false when nothing is to be done.
  bool applyAxesRatio();

  QwtFastPlot &m_plot;
  const PlotSettings &m_settings;
  Told m_told;
  ZoomLimits m_limits;
  QRectF m_wholeNetwork; ///< what the base shows on a canvas of any shape
  QRectF m_chosen;       ///< the view as a person chose it,
  QRectF m_fitted;       ///< and what a canvas of another shape made of it since
  bool m_isRescaling = false;
  bool m_isFitting = false;
  bool m_isCanvasOther = false; ///< than when the view was given its shape
  enum class Move { None, Begun, Running } m_move = Move::None;
};
