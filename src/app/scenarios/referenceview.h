#pragma once

#include <base/onceperturn.h>
#include <model/netdata.h>

#include <QDockWidget>

#include <memory>

class NetVisControl;
class NivraWorkspace;

/// A second drawing beside the first, of the scenario that is the reference. View, selection, current element, style and
/// layers go with those of the first drawing; the first two both ways.
class ReferenceView : public QDockWidget {
  Q_OBJECT
public:
  ReferenceView(NetVisControl &first, QWidget *parent);
  ~ReferenceView() override;

  /// To be filled before draw().
  NetData &net() { return m_net; }
  void draw(const NivraWorkspace &workspace, const QString &reference);

private:
  void connectDrawings();
  void takeStyle();
  void follow(OncePerTurn &work) const;
  void followView();
  void leadView();

  NetVisControl &m_first;
  NetData m_net;
  std::unique_ptr<NetVisControl> m_control;
  OncePerTurn m_style;
  OncePerTurn m_following;
  OncePerTurn m_leading;
  bool m_isLinking = false; ///< one is moved because of the other
};
