#pragma once

#include <QObject>

#include <functional>

/// Does a piece of work once in a turn of the event loop, at its end, however often somebody has asked for it. The work
/// belongs to the thread that asks.
class OncePerTurn : public QObject {
public:
  /// What is due in the same turn is done in this order: everything is computed before anything is drawn. So what computes
  /// may flush() the drawings that depend on it, and nothing is drawn twice.
  enum class Stage { Compute, Draw };

  OncePerTurn(Stage stage, std::function<void()> work);

  void request();
  /// Does at once what was asked for; without effect when nothing was.
  void flush();
  /// Forgets what was asked for.
  void cancel();

protected:
  bool event(QEvent *event) override;

private:
  Stage m_stage;
  std::function<void()> m_work;
  bool m_isRequested = false;
};
