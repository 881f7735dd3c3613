#pragma once

#include <paper/pagecontent.h>
#include <tools/pathleg.h>
#include <tools/pathscenarios.h>
#include <tools/symbolpainter.h>

#include <QDockWidget>
#include <QStringList>

#include <functional>
#include <vector>

class NetData;
class PathProfilePage;

/// The dock "Path Profile": what the network says along a way through it. What it holds is made when somebody first sees it,
/// and follows only while somebody does.
class PathProfileDock : public QDockWidget {
  Q_OBJECT
public:
  PathProfileDock(NetData &net, SymbolPainter symbols, QWidget *parent = nullptr);
  ~PathProfileDock() override;

  /// Before the elements of the network go.
  void forget();
  /// After a network was read. \param directory of the case: while it is the same, the way points are kept
  void refresh(const QString &directory);
  /// After values, or how they are written, have changed.
  void showChanges();
  void setScenarios(const PathScenarios &scenarios);
  void setPageFacts(const PageFacts &facts);

  /// Brings the profile of a way that passes these nodes.
  void showPath(QStringList nodes);
  void setStart(const QString &node);
  void setEnd(const QString &node);
  /// Marks where the element lies on the path; nothing where it does not, or for no name.
  void pointAt(const QString &element);
  /// What to put in when somebody asks for what is selected.
  void setSelected(std::function<QStringList()> selected);

signals:
  /// Another path is shown, or none when it is empty; also when the panel comes and goes.
  void pathShown(const QStringList &wayPoints, const std::vector<PathLeg> &legs);
  /// Somebody points at a place of the path. \param share how far along the edge in its own direction, from 0 to 1;
  /// \param element empty for nothing
  void pointed(const QString &element, double share);
  void elementMarked(const QString &name);
  void elementWanted(const QString &name); ///< in the middle of the drawing

protected:
  void showEvent(QShowEvent *event) override;
  void hideEvent(QHideEvent *event) override;

private:
  PathProfilePage &page();
  void bring();
  void catchUp();
  void tellPath();

  NetData &m_net;
  SymbolPainter m_symbols;
  PathProfilePage *m_page = nullptr; ///< made with the first look
  PathScenarios m_scenarios;
  PageFacts m_facts;
  std::function<QStringList()> m_selected;
  QString m_directory;
  bool m_hasNetwork = false;
  bool m_isStale = false; ///< something has changed while nobody saw it
};
