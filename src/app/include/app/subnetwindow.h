#pragma once

#include <model/netdata.h>

#include <QMainWindow>

#include <memory>

class NetVisControl;

/// A window of its own for one subnet, "Subassembly NAME": its pins, what was made of its template, and what lies between
/// them. It shows a copy, which does not follow later changes.
class SubnetWindow : public QMainWindow {
  Q_OBJECT
public:
  /// \param plotSettingsPath of the case, for the same colours and labels
  SubnetWindow(const NetData &net, const QString &subnet, const QString &plotSettingsPath, QWidget *parent = nullptr);
  ~SubnetWindow() override;

  NetVisControl *visControl() const { return m_control.get(); }

  /// The pins, elements and the edges between them; empty when there is no such subnet.
  static NetData part(const NetData &net, const QString &subnet);

private:
  NetData m_net;
  std::unique_ptr<NetVisControl> m_control;
};
