#pragma once

#include <qwt_plot_panner.h>

class QwtFastPlot;

/// Moves the view with the mouse: a picture of the drawing, marks included, follows until the button is let go.
class PlotPanner : public QwtPlotPanner {
public:
  explicit PlotPanner(QwtFastPlot &plot);

  bool eventFilter(QObject *watched, QEvent *event) override;

protected:
  QPixmap grab() const override;

private:
  QwtFastPlot &m_plot;
};
