#pragma once

#include <QCursor>
#include <QObject>

class NetPicker;
class NetPlot;

/// What the left button does in the drawing, beside the buttons and keys that mean the same in every mode. While Space is
/// held over the drawing the button moves the view, whatever the mode.
class MouseModes : public QObject {
  Q_OBJECT
public:
  enum class Mode {
    Zoom,   ///< a click selects, dragging zooms to a rectangle
    Area,   ///< a click selects, dragging selects what lies in a rectangle
    Pan,    ///< a click selects, dragging moves the view
    Measure ///< a click adds a point to a path; the path itself is another's
  };

  MouseModes(NetPlot &plot, NetPicker &picker, QObject *parent = nullptr);

  Mode mode() const { return m_mode; }
  void setMode(Mode mode);

signals:
  void modeChanged();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void setSpaceHeld(bool isHeld);
  void apply();

  NetPlot &m_plot;
  NetPicker &m_picker;
  Mode m_mode = Mode::Zoom;
  bool m_isSpaceHeld = false;
};
