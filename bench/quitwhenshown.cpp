// A plugin of the toolkit that ends a program as soon as its window is on the screen and there is nothing left to do. So two
// programs can be measured from their start to their end without a word in either.

#include <QGenericPlugin>
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

class QuitWhenShown : public QGenericPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "quitwhenshown.json")

public:
  /// Timers of no time come when all other events are done; before the event loop there is no end to speak of.
  QObject *create(const QString & /*name*/, const QString & /*specification*/) override {
    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [] {
      if (QThread::currentThread()->loopLevel() > 0 && isShown())
        QCoreApplication::quit();
    });
    timer->start(0);
    return timer;
  }
};

#include "quitwhenshown.moc"
