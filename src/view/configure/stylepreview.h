#pragma once

#include <drawing/drawnstyle.h>

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

class NetPlot;

/// Shows in the drawing what is typed in a form and not applied yet: once a person pauses, and no sooner than the drawing
/// can follow.
class StylePreview : public QObject {
  Q_OBJECT
public:
  /// What is typed; nothing while it makes no sense.
  using Typed = std::function<std::optional<DrawnStyle>()>;

  /// \param form while it is hidden nothing is shown
  StylePreview(NetPlot &plot, QWidget &form, Typed typed);

  void setWanted(bool isWanted);
  /// Every field within tells of its changes.
  void watch(QWidget &fields);
  /// Something was typed, or may have been.
  void touch();
  /// The drawing is as it was before.
  void end();

private:
  void show();

  NetPlot &m_plot;
  QWidget &m_form;
  Typed m_typed;
  QTimer m_pause;
  bool m_isWanted = true;
};
