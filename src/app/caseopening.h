#pragma once

#include "casereading.h"
#include "outcomestyle.h"
#include "unsavededits.h"

#include <base/readfiles.h>
#include <tools/findinglist.h>

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <vector>

class LayerKeeper;
class NetVisControl;
class OpeningClock;
class QMainWindow;
class ReloadOffer;
class SubnetWindows;
class ToolDocks;
class WorkspaceMemory;

/// Opens a case in a window, reads it again, and leaves it: asks for what is not saved, and keeps and puts back what
/// belongs to the case beside its files.
class CaseOpening : public QObject {
  Q_OBJECT
public:
  /// The parts of the window that show a case; they outlive what this object does.
  struct Parts {
    QMainWindow &window;
    NetVisControl &control;
    ToolDocks &tools;
    SubnetWindows &subnets;
    LayerKeeper &layers;
    WorkspaceMemory &memory;
  };

  explicit CaseOpening(const Parts &parts);

  NetworkLoader &loader() { return m_loader; }
  const NivraWorkspace &workspace() const { return m_loader.workspace(); }
  CaseReading &reading() { return m_reading; }

  /// The path of a file of the case. What is shown stays where it names none, or where somebody wants to save first.
  void open(const QString &path);
  /// Reads the files of the case again; view, selection, style, layers and what is not saved stay.
  void reload();
  /// Another scenario of the case takes the place of the one that is shown; view, selection, style, layers, windows of
  /// subnets and what is not saved stay. Where it cannot be read everything stays, and the status bar says why.
  bool switchTo(const QString &path);
  using Look = std::function<void(const NetData &net, const NetworkLoader &loader)>;
  /// Has a look taken at another scenario, or at that which is shown, without showing it. False, and told in the status bar,
  /// when it cannot be read.
  bool visit(const QString &path, const Look &look);
  /// Reads all of a case into a network of its own, which nobody shows yet, and has a look taken at it. False as above.
  bool readApart(const QString &path, NetData &apart, const Look &look);
  /// Has every tool and drawing show the values as they are now.
  void showValues();
  /// Before the case goes; nothing is discarded yet.
  UnsavedEdits::Answer settle();
  /// The case goes, as it was answered.
  void leave(UnsavedEdits::Answer answer);
  /// Those of the user and of the workspace.
  void loadSettings();
  /// A person chose which functions of machines count in this workspace. Returns what has changed by it.
  std::vector<ElementChange> useFunctions(FunctionSource source);
  /// What reading noticed, also of other scenarios for their pages.
  void showFindings();
  /// What the check of the network found, until another one is read.
  void noticeChecked(const std::vector<FindingList::Group> &groups);
  /// Settings were written by the program itself.
  void takeSettings();

signals:
  void shown();    ///< or what is left of it where it could not be read
  void switched(); ///< another scenario is shown
  void settingsLoaded();
  void ended(); ///< reading and whatever follows it

private:
  void connectFiles();
  bool resolve(NetworkLoader &loader, const QString &path);
  bool hasGeometry(const NivraWorkspace &wanted, QString *reason) const;
  void useLastScenario();
  void readAgain(const NetworkLoader &wanted);
  void showScenario();
  void tellFailure();
  void show(bool isRead);
  void showBeside(bool isRead);
  void comeBack();
  void noticeOnPage(const QString &scenario, const std::vector<FindingList::Group> &groups);
  void acceptStyleFiles();
  ReadFiles::Stamps filesShown() const;
  OutcomeStyle::Outcome outcome(bool isRead) const;
  void tellOutcome(bool isRead, const OpeningClock &clock);
  void tellSwitch(const OpeningClock &clock);

  Parts m_parts;
  NetworkLoader m_loader;
  CaseReading m_reading;
  ReloadOffer *m_reloadOffer;
  std::map<QString, std::vector<FindingList::Group>> m_onPages; ///< by scenario
  std::vector<FindingList::Group> m_checked;
  FileStamp m_settingsRead; ///< of the general settings of the workspace
  bool m_isRead = false;    ///< what is shown: the last reading yielded a network
};
