#pragma once

#include "networkloader.h"
#include "outcomestyle.h"
#include "unsavededits.h"
#include "workspacememory.h"

#include <base/onceperturn.h>
#include <model/elementchange.h>
#include <model/netdata.h>
#include <view/netpicker.h>

#include <QMainWindow>

#include <memory>
#include <vector>

class Appearance;
class CategoryList;
class Commands;
class LayerKeeper;
class LoadProgress;
class NetVisControl;
class OpeningClock;
class ReloadOffer;
class SubnetWindow;
class ToolDocks;

namespace Ui {
class NivraViewer;
}

/// The window: opens workspaces and connects what shows them.
class NivraViewer : public QMainWindow {
  Q_OBJECT
public:
  explicit NivraViewer(QWidget *parent = nullptr);
  ~NivraViewer() override;

  /// A ".qss" file restyles the program; anything else is resolved as a workspace and opened.
  void open(const QString &path);

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
  void setUpReloading();
  void acceptStyleFiles();
  void setUpCommands();
  void applyStyleSheet(const QString &path);
  void openWorkspace(const QString &path);
  void showWorkspace(bool isRead);
  bool resolve(NetworkLoader &loader, const QString &path);
  void showOutcome(bool isRead, const OpeningClock &clock);
  void comeBack();
  std::vector<UnsavedEdits::Kind> unsavedInSubnets() const;
  UnsavedEdits::Answer settleChanges();
  void loadSettings();
  ReadFiles::Stamps filesShown() const;
  void closeIfWanted();
  void useLastScenario();
  OutcomeStyle::Outcome outcome(bool isDone) const;
  bool readWorkspace();
  void askForIncludeLists(NetworkLoader::ReadOptions &options);
  void openSubnet(const QString &name);
  QList<SubnetWindow *> subnetWindows() const;
  void addChange(const ElementChange &change);
  void showChanges();
  void takeSettings();
  void showTitle();
  void setBusy(bool busy);

  std::unique_ptr<Ui::NivraViewer> m_ui;
  NetData m_net;
  std::unique_ptr<NetVisControl> m_control;
  NetworkLoader m_loader;
  std::shared_ptr<CategoryList> m_categories;
  Appearance *m_appearance = nullptr;
  ToolDocks *m_tools = nullptr;
  LayerKeeper *m_layers;
  WorkspaceMemory *m_memory = nullptr;
  ReloadOffer *m_reloadOffer;
  QAction *m_reload;
  Commands *m_commands = nullptr;
  std::vector<ElementChange> m_changes; ///< since the last showChanges()
  OncePerTurn m_showingChanges;
  LoadProgress *m_progress = nullptr; ///< while a workspace is being read
  FileStamp m_settingsRead;           ///< of the general settings of the workspace
  bool m_isRead = false;              ///< what is shown: the last reading yielded a network
  bool m_closesThen = false;          ///< once reading has ended
};
