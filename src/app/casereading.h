#pragma once

#include "networkloader.h"

#include <QObject>

class LoadProgress;
class NetVisControl;
class QMainWindow;

/// Reads the network of a workspace into a window and draws it. Progress stands in the status bar, where it can be stopped.
class CaseReading : public QObject {
  Q_OBJECT
public:
  CaseReading(NetworkLoader &loader, NetVisControl &control, QMainWindow &window);

  /// False when nothing could be read or somebody stopped it; nothing is drawn then.
  bool read();
  /// Reads another scenario into the network that is there; the drawing, which stays, is not drawn again.
  NetworkLoader::Exchange exchange(const NetworkLoader &wanted);
  /// Reads all of a case that another loader resolved into that loader's own network, which nobody sees yet. Whatever is
  /// noticed goes to the log.
  bool readApart(NetworkLoader &loader);
  bool isRunning() const { return m_progress != nullptr; }
  /// Ends it at its next step.
  void stop();

signals:
  void begins();    ///< the elements that were there are about to go
  void takesLong(); ///< in exchange(): people will want to do something meanwhile
  void ended();

private:
  template <typename Work>
  auto withProgress(const QString &text, const Work &work);
  void askForIncludeLists(NetworkLoader::ReadOptions &options);

  NetworkLoader &m_loader;
  NetVisControl &m_control;
  QMainWindow &m_window;
  LoadProgress *m_progress = nullptr; ///< while it runs
};
