#pragma once

#include "workspacememory.h"

#include <base/onceperturn.h>
#include <model/elementchange.h>
#include <model/netdata.h>
#include <view/netpicker.h>

#include <QMainWindow>

#include <memory>
#include <vector>

class Appearance;
class CaseOpening;
class CategoryList;
class Commands;
class LanguageChoice;
class LayerKeeper;
class NetVisControl;
class NetworkCheck;
class SubnetWindows;
class ToolDocks;
class WhyDock;

namespace Ui {
class NivraViewer;
}

/// The window: holds the network and connects what opens, shows and changes it.
class NivraViewer : public QMainWindow {
  Q_OBJECT
public:
  explicit NivraViewer(QWidget *parent = nullptr);
  ~NivraViewer() override;

  /// A ".qss" file restyles the program; anything else is resolved as a workspace and opened.
  void open(const QString &path);

  /// Whether the window was closed to come back in a process of its own, which speaks another language.
  bool restarts() const { return m_restarts; }
  QString openFile() const; ///< empty when nothing is open

  /// What is kept of the workspaces that are opened from now on; nothing by default.
  void remember(WorkspaceMemory::Keeps keeps);

  /// Light and dark.
  Appearance &appearance() const { return *m_appearance; }
  NetVisControl *visControl() const { return m_control.get(); }
  static QString openDialogStart(const QString &applicationDir);

signals:
  void currentEleChanged(const QString &element);

public slots:
  void elementAction(const QString &eleName, NetPicker::EleAction eleAction);
  void on_actionAboutNivra_triggered();
  void on_actionElement_Table_triggered();
  void on_actionExit_triggered();
  void on_actionHelp_triggered();
  void on_actionMetadataTable_triggered();
  void on_actionOpen_triggered();
  void on_actionSettings_triggered();
  /// Reads the files of the case again; view, selection, style, layers and what is not saved stay.
  void reload();

protected:
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;
  void closeEvent(QCloseEvent *event) override;

private:
  void setUpForm();
  void setUpFileMenu();
  void setUpOpening();
  void setUpSubnets();
  void setUpExplanations();
  void setUpCommands();
  void setUpCheck();
  void applyStyleSheet(const QString &path);
  void closeIfWanted();
  void addChange(const ElementChange &change);
  void showChanges();
  void showTitle();
  void setBusy(bool busy);

  std::unique_ptr<Ui::NivraViewer> m_ui;
  NetData m_net;
  std::unique_ptr<NetVisControl> m_control;
  std::shared_ptr<CategoryList> m_categories;
  Appearance *m_appearance = nullptr;
  SubnetWindows *m_subnets;
  ToolDocks *m_tools = nullptr;
  WhyDock *m_why = nullptr; ///< null before the first network
  LayerKeeper *m_layers;
  WorkspaceMemory *m_memory = nullptr;
  std::unique_ptr<CaseOpening> m_opening;
  QAction *m_reload;
  Commands *m_commands = nullptr;
  NetworkCheck *m_check = nullptr;
  std::vector<ElementChange> m_changes; ///< since the last showChanges()
  OncePerTurn m_showingChanges;
  LanguageChoice *m_language = nullptr;
  bool m_restarts = false;
  bool m_closesThen = false; ///< once reading has ended
};
