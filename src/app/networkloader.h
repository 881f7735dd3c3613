#pragma once

#include <base/finding.h>
#include <base/readfiles.h>
#include <formulas/networkformulas.h>
#include <io/nivragasparams.h>
#include <io/nivrareader.h>
#include <io/nivraworkspace.h>
#include <io/scenariosummary.h>
#include <model/consistencycheck.h>
#include <model/elementchange.h>
#include <model/netdata.h>
#include <model/valuejournal.h>
#include <tools/findinglist.h>
#include <tools/layeredits.h>

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <machines/machinedata.h>
#include <machines/machinelimits.h>
#include <utility>

/// Brings a chosen file into a NetData: workspace, configuration, network, checks. It knows no widgets; the window and
/// the command line both drive it, stage by stage.
class NetworkLoader {
  Q_DECLARE_TR_FUNCTIONS(NetworkLoader)
public:
  /// Seconds by stage, in the order of the stages.
  using Seconds = QVector<std::pair<QString, double>>;

  explicit NetworkLoader(NetData &net)
      : m_net(net)
      , m_formulas(net)
      , m_machineLimits(net) {}

  /// False when the path yields no usable workspace; the reason is logged and kept for error().
  bool resolve(const QString &path);
  /// Makes the workspace that another loader resolved the current one.
  void useWorkspaceOf(const NetworkLoader &other);
  /// Case configuration and, where there is a scenario, scenario configuration with gas and solver parameters.
  void readConfiguration();

  struct ReadOptions {
    QString includeTypes;      ///< regular expression, empty for all
    QString includeProperties; ///< regular expression, empty for all
    Progress progress;
    std::function<void(const QString &text)> told; ///< what is being done, for a person
  };
  /// Fills the NetData, which must be empty, checks it, assembles its subnets and computes its formulas. False when nothing
  /// could be read or reading was cancelled.
  bool readNetwork(const ReadOptions &options);

  /// What became of another scenario that was to take the place of the one that is shown.
  enum class Exchange {
    Done,
    Failed,    ///< or cancelled: everything is as it was
    Impossible ///< everything is as it was; only reading all files again yields that network
  };
  /// Reads the scenario that another loader resolved, of the same case and geometry, into the network that was read:
  /// elements, subnets, layers and machines stay, values are as reading all files would yield them.
  Exchange exchangeScenario(const NetworkLoader &wanted, const Progress &progress);
  /// What the scenario says beside the geometry, and formulas compute: in these scenarios may differ.
  std::vector<PropertyKey> propertiesOfScenario() const;

  const NivraWorkspace &workspace() const { return m_workspace; }
  const GasTable &gases() const { return m_gases; } ///< of the scenario
  /// What case and scenario carry beside the network, each with the file that says so.
  ScenarioSummary scenarioSummary() const;
  const ConsistencyCheck::PruneResult &removed() const { return m_removed; }
  /// Everything that the stages noticed, in their order.
  const std::vector<FindingList::Group> &noticed() const { return m_noticed; }
  /// Name of the group of violated bounds among them.
  static QString boundsStage() { return tr("Bounds"); }
  /// Where the templates of subnets are; empty when the network has no subnets or there are none.
  const QString &templateFolder() const { return m_templateFolder; }
  const NetworkFormulas &formulas() const { return m_formulas; }
  /// Of the scenario's compressor database; empty without one.
  const MachineData &machines() const { return m_machines; }
  /// Which functions of machines count, for the next reading.
  void setFunctions(FunctionSource source) { m_machines.source = source; }
  /// The same for what is read already. Returns what has changed by it.
  std::vector<ElementChange> useFunctions(FunctionSource source);
  /// The files of the workspace that were read, as they were then, and results and layers that may come beside them.
  const ReadFiles::Stamps &files() const { return m_read; }
  /// Why the network that was read cannot be read again; empty when it can.
  QString fault() const;
  /// Of the case's "layers.csv", which lies over those of the network.
  const LayersOfCase &layers() const { return m_layers; }
  /// Computes what depends on the changes.
  void computeAgain(const std::vector<ElementChange> &changes);
  /// Tells violated bounds anew, as units or numbers are written in another way.
  void tellBoundsAgain();
  const Seconds &seconds() const { return m_seconds; }
  bool wasCancelled() const { return m_cancelled; }
  QString error() const { return m_error; } ///< why the last step failed, for a person

private:
  // The stages; those that return something return whether the next one may begin.
  bool readStages(const ReadOptions &options);
  struct OfScenario;
  bool isExchangeable(const NetworkLoader &wanted) const;
  bool readScenario(OfScenario &before, const Progress &progress);
  void takeBack(OfScenario before);
  void keepFindingsOfGeometry(const std::vector<FindingList::Group> &noticed);
  bool takeRead(const NivraReader::Result &result, const NivraReader &reader);
  NivraReader::Options scenarioOptions(const Progress &progress) const;
  void awaitResults(const NivraReader &reader);
  void readLayers();
  bool readFiles(NivraReader &reader, const NivraReader::Options &options);
  void check();
  bool assembleSubnets(const ReadOptions &options);
  bool readSubResults(NivraReader &reader, const NivraReader::Options &options);
  void readMachines(const NivraReader &reader);
  Findings judgeMachines(std::vector<ElementChange> *changes = nullptr);
  std::vector<FormulaDefinition> definitionsOfFiles(Findings &findings) const;
  bool computeFormulas(const Progress &progress);
  bool computeFormulasAgain(const Progress &progress);
  bool applyFormulas(Findings findings, const Progress &progress);
  bool stop();
  void notice(const QString &stage, Findings findings);
  void noticeViolations();
  void noticeViolationsAgain();

  NetData &m_net;
  NetworkFormulas m_formulas;
  NivraWorkspace m_workspace;
  NivraGasParams m_gasParams;
  GasTable m_gases;
  ScenarioSummary::Files m_files;
  MachineData m_machines;
  MachineLimits m_machineLimits;
  Findings m_machineFaults; ///< of their file
  ReadFiles::Stamps m_read;
  LayersOfCase m_layers;
  QString m_templateFolder;
  ConsistencyCheck::PruneResult m_removed;
  std::vector<FormulaDefinition> m_templateDefinitions; ///< of the assembled subnets
  bool m_hasTemplateFormulas = false;
  std::vector<FormulaDefinition> m_definitions; ///< of the files of case and scenario
  ValueJournal m_journal;                       ///< of what the scenario says
  std::vector<const element *> m_own;           ///< by address: elements of the geometry file where subnets added others
  QString m_machineFile;                        ///< from which the machines were read
  QString m_includeProperties;
  std::vector<FindingList::Group> m_noticed;
  Seconds m_seconds;
  QString m_error;
  bool m_cancelled = false;
};
