#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

/// When to decide which symbols are visible and to place labels: after the view has come to rest, so that zooming and
/// panning stay fluid. Its switches are general settings of category "zooming".
class Pixtest : public QObject {
  Q_OBJECT
public:
  enum class Labels { Without, With };
  struct View {
    double ratio = 0.0;         ///< what is seen, of the largest zoom: the larger one of width and height
    bool isSubassembly = false; ///< a plot of its own for one subnet
  };

  /// \param run does it; \param view asked at each request
  Pixtest(std::function<void(Labels)> run, std::function<View()> view);

  /// Asks for it after so many milliseconds; at once when they are negative. A new request restarts the time.
  /// \param quick allows a first pass without labels at once
  void requestPixtest(int delay, bool quick);
  void setSuspended(bool suspended) { m_isSuspended = suspended; }
  bool isSuspended() const { return m_isSuspended; }
  /// Of another network: its labels do not keep those to come waiting.
  void forgetPlacement() { m_lastPlacement = -1; }
  /// A test is waiting for its time.
  bool isPending() const { return m_withLabels.isActive() || m_withoutLabels.isActive(); }

private:
  void schedule(int delay, bool quick);
  void scheduleWithoutLabels(int delay);
  /// Milliseconds until labels may be placed again, 0 when they may.
  int patience() const;

  std::function<void(Labels)> m_run;
  std::function<View()> m_view;
  QTimer m_withLabels;
  QTimer m_withoutLabels;
  int m_lastPlacement = -1; ///< time of day in ms, -1 for none
  bool m_isSuspended = false;
};
