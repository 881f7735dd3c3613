#pragma once

#include <tools/pathprofiledock.h>

#include <QObject>

#include <memory>

class NetVisControl;
class NivraWorkspace;
class PathMark;
class StationSymbols;
class QMainWindow;

/// Joins the panel of the path profile with the drawing: commands and way points from it, the path and the place that
/// somebody points at into it, and the other way round.
class PathProfileLink : public QObject {
  Q_OBJECT
public:
  PathProfileLink(NetVisControl &control, QMainWindow &window);
  ~PathProfileLink() override;

  PathProfileDock *dock() const { return m_dock; }
  /// After a network was read. \param directory of its case
  void refresh(const NivraWorkspace &workspace, const QString &directory);

signals:
  void elementMarked(const QString &name);

private:
  SymbolPainter symbols() const;
  QStringList selectedNodes() const;
  void showPath(const QStringList &wayPoints, const std::vector<PathLeg> &legs);

  NetVisControl &m_control;
  std::shared_ptr<StationSymbols> m_symbols;
  PathMark *m_mark; ///< belongs to the drawing
  PathProfileDock *m_dock;
};
