#pragma once

#include <QElapsedTimer>
#include <QObject>

class QProgressBar;
class QStatusBar;
class QToolButton;

/// Progress of a reading on the status bar: appears once the work takes longer than half a second, keeps the window
/// painting and offers to cancel.
class LoadProgress : public QObject {
  Q_OBJECT
public:
  static constexpr int PatienceMs = 500;
  /// For tests, which cannot wait for a slow machine.
  static void setPatience(int milliseconds) { s_patienceMs = milliseconds; }
  /// For so long the window waits for the work alone.
  static int patience() { return s_patienceMs; }

  /// Starts the clock. The widgets go with the object.
  explicit LoadProgress(QStatusBar *bar);
  ~LoadProgress() override;
  LoadProgress(const LoadProgress &) = delete;
  LoadProgress &operator=(const LoadProgress &) = delete;

  /// False when the user cancelled. Called often; does something only every few dozen milliseconds.
  bool update(double fraction);
  /// What is being done.
  void tell(const QString &text);

public slots:
  void cancel() { m_cancelled = true; }

private:
  void show();

  inline static int s_patienceMs = PatienceMs;

  QStatusBar *m_bar;
  QProgressBar *m_progress = nullptr;
  QToolButton *m_button = nullptr;
  QElapsedTimer m_sinceStart;
  QElapsedTimer m_sinceUpdate;
  QString m_text;
  bool m_cancelled = false;
};
