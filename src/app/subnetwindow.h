#pragma once

#include "unsavededits.h"

#include <model/elementchange.h>
#include <model/netdata.h>

#include <QMainWindow>

#include <memory>
#include <vector>

class CategoryList;
class Commands;
class NetVisControl;
class NivraWorkspace;
class ToolDocks;

/// A window of its own for one subnet, "Subassembly NAME": its pins, what was made of its template, and what lies between
/// them, with commands and tools of its own. It shows a copy of that part of the network; what is changed here is changed
/// there too.
class SubnetWindow : public QMainWindow {
  Q_OBJECT
public:
  /// \param net outlives the window
  /// \param workspace whose settings the drawing and the tools take
  /// \param categories of all windows
  SubnetWindow(NetData &net, const QString &subnet, const NivraWorkspace &workspace,
               std::shared_ptr<CategoryList> categories, QWidget *parent = nullptr);
  ~SubnetWindow() override;

  const QString &subnet() const { return m_subnet; }
  NetVisControl *visControl() const { return m_control.get(); }
  /// Takes the properties of its elements from the network again.
  /// What legend and pages say of the case.
  void takeCase(const NivraWorkspace &workspace);
  void takeProperties();
  /// After general settings have changed.
  void takeSettings();
  /// What would go with the window.
  std::vector<UnsavedEdits::Kind> unsaved();

  /// The pins, elements and the edges between them; empty when there is no such subnet.
  static NetData part(const NetData &net, const QString &subnet);

signals:
  void elementMarked(const QString &name);
  void elementsChanged(const ElementChange &change); ///< in the network, as here

protected:
  void closeEvent(QCloseEvent *event) override;

private:
  void fillMenus();
  void mark(const QString &name);
  void giveProperty(const ElementChange &change);

  NetData &m_whole;
  QString m_subnet;
  NetData m_net;
  std::unique_ptr<NetVisControl> m_control;
  ToolDocks *m_tools;
  Commands *m_commands = nullptr;
};
