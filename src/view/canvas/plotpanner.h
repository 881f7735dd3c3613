#pragma once

#include <qwt_plot_panner.h>

class QwtFastPlot;

/// Moves the view with the mouse: a picture of the drawing, marks included, follows until the button is let go. The middle
/// button always does; so does the button that a person chose, and the left one while it is asked to.
class PlotPanner : public QwtPlotPanner {
public:
  explicit PlotPanner(QwtFastPlot &plot);

  /// The button, with these keys held, that moves the view beside the middle one.
  void setOwnButton(Qt::MouseButton button, Qt::KeyboardModifiers keys = Qt::NoModifier);
  /// Whether the left button alone moves the view.
  void setLeftPans(bool pans) { m_leftPans = pans; }
  bool pansWith(Qt::MouseButton button, Qt::KeyboardModifiers keys) const;

  bool eventFilter(QObject *watched, QEvent *event) override;

protected:
  void widgetMousePressEvent(QMouseEvent *event) override;
  QPixmap grab() const override;

private:
  QwtFastPlot &m_plot;
  Qt::MouseButton m_button = Qt::MiddleButton;
  Qt::KeyboardModifiers m_keys = Qt::NoModifier;
  bool m_leftPans = false;
};
