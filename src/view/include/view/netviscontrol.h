#pragma once

#include <view/netplot.h>

#include <QObject>
#include <QPointer>

class NetData;

/// Brings a network and its plot together.
class NetVisControl : public QObject {
  Q_OBJECT
public:
  /// \param name of the view; empty for the main one
  NetVisControl(NetData &net, const QString &name, QObject *parent = nullptr);
  ~NetVisControl() override;

  const QString &name() const { return m_name; }
  /// Owned by this object until a window takes it as its child.
  NetPlot *plot() const { return m_plot; }

  /// Forgets what is drawn; to be called before the network changes.
  void clear();
  /// Draws the network with the settings of the file or, where there is none, with settings that suit the network. The
  /// folder "symbols" beside the file may hold symbols of the user's own.
  void showNetData(const QString &plotSettingsPath);

private:
  NetData &m_net;
  QString m_name;
  QPointer<NetPlot> m_plot;
};
