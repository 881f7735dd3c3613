#pragma once

#include "unsavededits.h"

#include <io/scenariosummary.h>
#include <model/elementchange.h>
#include <model/netdata.h>
#include <tools/findinglist.h>

#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>
#include <vector>

class BalanceDock;
class CategoryList;
class CharacteristicsStack;
class ElementPanels;
class ElementTable;
enum class FunctionSource;
struct MachineData;
class NetVisControl;
class NivraFindings;
class NivraNetLayersEditor;
class NivraNetObjectCats;
class NivraSearch;
class NivraVecTable;
class NivraWorkspace;
class PathProfileLink;
class ScenarioDock;
class ScenarioSetDock;
class ScenariosDock;
class ToolWindows;
class QDockWidget;
class QMainWindow;
class QMenu;
class QToolButton;
class viewFuncDialog;

/// The docks around the drawing and what connects them with it. Each is made with the first workspace and used again.
class ToolDocks : public QObject {
  Q_OBJECT
public:
  enum class Extent {
    Program, ///< all of them
    Network  ///< without messages, findings, scenario and machines, of which there is one for all windows
  };

  /// \param categories of all windows; the docks of the program read them
  ToolDocks(QMainWindow &window, NetVisControl &control, std::shared_ptr<CategoryList> categories,
            Extent extent = Extent::Program);
  ~ToolDocks() override;

  /// Whether what was changed in the tools and is not saved stays when the case is read.
  enum class Edits { Dropped, Kept };
  /// Makes what is not there yet and shows the network that was just read.
  void refresh(const NivraWorkspace &workspace, Edits edits = Edits::Dropped);
  /// Before the elements of the network go.
  void forgetElements();
  /// Shows and hides the docks.
  void fillViewMenu(QMenu &menu);
  NivraSearch *search() const { return m_search; } ///< null before the first workspace

  /// A panel of the window, behind the others on its side until it is asked for.
  QDockWidget *addDock(QDockWidget *dock, const QString &name, Qt::DockWidgetArea area);
  /// What a person changed in the tools and did not save.
  std::vector<UnsavedEdits::Kind> unsaved();
  /// Hides the layers in the drawing, and shows this in the editor.
  void setHiddenLayers(const QString &property, const QSet<QString> &layers);
  /// Keeps how the network is drawn with the case; false when it could not be written.
  bool saveStyle();

  /// After properties have changed: shows them in whatever shows values.
  void showChanges();

  /// After general settings have changed: units and numbers in whatever shows values.
  void takeSettings();

  /// The tools that have windows of their own.
  ToolWindows &windows() { return *m_windows; }
  /// What is known of the element, in docks that come to the front.
  void showInfo(const QString &name);
  void showDrawConfiguration();
  /// What the drawing's settings are now, where a command changed them.
  void showDrawSettings();
  /// The maps of compressors and drives, in pages of their own.
  void openCharacteristics(const QStringList &names);
  /// Whether the pages of machines that were open in the case come back.
  enum class Pages { New, Kept };
  void setMachines(const MachineData &machines, Pages pages);
  /// Which case and scenario are shown, for the pages of machines.
  void setCase(const NivraWorkspace &workspace);
  /// What case and scenario say beside the network.
  void setScenario(const ScenarioSummary &summary);
  void setFindings(const std::vector<FindingList::Group> &groups);
  /// Where there are any.
  void bringFindings();
  ScenariosDock *scenarios() const { return m_scenarios; } ///< null before the first workspace
  /// Says how many there are, and brings them; hidden while there are none.
  QToolButton *findingsButton() const { return m_findingsButton; }

signals:
  void elementMarked(const QString &name); ///< in one of the tools
  void whyWanted(const QString &element, const QString &property);
  void saveLayersWanted();
  void loadLayersWanted();
  void elementsChanged(const ElementChange &change); ///< by one of the tools
  void functionsChosen(FunctionSource source);       ///< that machines are computed with
  void figuresChanged(const ElementChange &change);  ///< of a set of scenarios, which nobody edited
  void scenarioWanted(const QString &file);          ///< in place of what is open
  void scenarioNamed(const QString &name);           ///< of the case, to be opened in place of the open one

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  void createReports();
  void createDraw();
  void createElement();
  void createSearch();
  void createLayers();
  void createCategories();
  void createCharacteristics();
  void createElementTable();
  void createBalance();
  void selectElements(const QStringList &names);
  void createScenarioSet();
  void createPathProfile();
  void connectVectorTable(NivraVecTable *table);
  void showSelection();

  QMainWindow &m_window;
  NetVisControl &m_control;
  NetData &m_net;
  std::shared_ptr<CategoryList> m_categoryList;
  Extent m_extent;
  ToolWindows *m_windows;
  QList<QDockWidget *> m_docks; ///< in the order in which they were made
  viewFuncDialog *m_draw = nullptr;
  ElementPanels *m_element = nullptr;
  CharacteristicsStack *m_characteristics = nullptr;
  NivraFindings *m_findings = nullptr;
  ScenarioDock *m_scenario = nullptr;
  ScenariosDock *m_scenarios = nullptr;
  QToolButton *m_findingsButton = nullptr;
  NivraSearch *m_search = nullptr;
  ElementTable *m_elementTable = nullptr;
  BalanceDock *m_balance = nullptr;
  ScenarioSetDock *m_scenarioSet = nullptr;
  PathProfileLink *m_pathProfile = nullptr;
  NivraNetLayersEditor *m_layers = nullptr;
  NivraNetObjectCats *m_categories = nullptr;
  ScenarioSummary m_summary;
  QString m_directory;          ///< of the case
  QStringList m_messagesBefore; ///< those that came before there was a dock for them
};
