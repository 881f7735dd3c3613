#include "quitwhenshown.h"

#include <QGuiApplication>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace {

bool isShown() {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  return std::any_of(windows.begin(), windows.end(), [](const QWindow *window) { return window->isExposed(); });
}

} // namespace

// A timer of no time fires when all other events are done; before the event loop runs there is none to end.
QObject *QuitWhenShown::create(const QString & /*name*/, const QString & /*arguments*/) {
  auto *timer = new QTimer(this);
  connect(timer, &QTimer::timeout, this, [] {
    if (QThread::currentThread()->loopLevel() > 0 && isShown())
      QCoreApplication::quit();
  });
  timer->start(0);
  return timer;
}
