#pragma once

#include <base/fileaccess.h>
#include <base/finding.h>
#include <io/nivraworkspace.h>
#include <io/scenariosummary.h>
#include <model/netdata.h>
#include <model/valuejournal.h>

#include <QJsonObject>
#include <QString>

#include <functional>
#include <map>
#include <utility>

/// Fills a NetData from the files of a workspace. It returns what it notices.
class NivraReader {
public:
  struct Options {
    QString includeTypes;      ///< regular expression, matched anywhere in type word or code; empty for all
    QString includeProperties; ///< regular expression, matched anywhere in the name; empty for all
    Progress progress;         ///< told the part of the file that is read
    FileAccess::Source source = FileAccess::Source::Workspace; ///< Trusted for files of the program's own
    std::function<bool(const element &)> isTarget; ///< whether a scenario may set values of the element; empty for all
  };
  struct Result {
    bool ok = false;           ///< the file could be read; faulty lines do not count
    bool cancelled = false;    ///< by the progress callback
    qint64 properties = 0;     ///< taken over
    QJsonObject configuration; ///< of the scenario, from ".scen.cfg.jsn"; empty when there is no such file
    QString configurationFile; ///< its path
    double readingSeconds = 0; ///< spent in taking the bytes from the file
    Findings findings;
  };

  /// \param told what it is doing, how long that took, and what the network says of an element that it takes
  explicit NivraReader(NetData &net, Told told = {})
      : m_net(net)
      , m_told(std::move(told)) {}

  /// What scenarios say of elements is noted there from now on; it must outlive the reader.
  void setJournal(ValueJournal *journal) { m_journal = journal; }

  /// Geometry, then the scenario with its companion files where there is one.
  Result readTopoAndScen(const NivraWorkspace &workspace, const Options &options);
  /// The scenario alone, for a network whose geometry was read before. Not ok when there is no scenario to be read.
  Result readScenario(const NivraWorkspace &workspace, const Options &options);
  /// Values of elements inside of subnets, once these are assembled; nothing when the scenario has no such file.
  Result readSubResults(const NivraWorkspace &workspace, const Options &options);
  /// Paths without the JSON suffix, which is added unless the workspace that was read last is of the text form.
  Result readTopoAndScenJsn(const QString &geometryPath, const QString &scenarioPath, const NivraScenario &scenario,
                            const Options &options);
  /// This and readScenariofileJsn, readGasJsn, readGasParmsJsn take the form from the file's name: those that end in
  /// ".jsn" or ".json" are JSON, others text.
  Result readGeomJsn(const QString &path, const Options &options);
  /// scenarioPath without the JSON suffix; the companion files lie beside it.
  Result readScenarioJsn(const QString &scenarioPath, const NivraScenario &scenario, const Options &options);
  /// Set points: a list of property, value and unit per element name. Two threads parse, the result is as the lines say.
  /// Values are converted to the stored unit; those that need the gas for it (mass for volume) by the gases read before.
  Result readScenariofileJsn(const QString &path, const Options &options);
  Result readGasJsn(const QString &path);
  /// Values per element name, such as gas percentages and results; elements are never made.
  Result readGasParmsJsn(const QString &path, const Options &options);

  const GasTable &gases() const { return m_gases; }
  const QString &gasFile() const { return m_gasFile; } ///< that the gases were read from; empty without one
  /// The file that is read for this path without its JSON suffix, in the form of the workspace that was read.
  QString networkPath(const QString &textPath) const;

private:
  Result readSetPoints(const QString &path, const Options &options);
  class SetPointApplier;
  /// A set point whose unit needs the gas to be converted; of one property the last counts.
  struct WaitingSetPoint {
    PropertyText value;
    QString unit;
    QString storedUnit;
    QString file;
    int line = 0;
  };
  void log(const QString &text) const { tell(m_told, Finding::Severity::Information, text); }
  void warn(const QString &text) const { tell(m_told, Finding::Severity::Warning, text); }
  using SetPointTarget = std::pair<element *, PropertyKey>;
  void set(element &target, PropertyKey key, PropertyText value);
  void put(element &target, PropertyKey key, PropertyText value);
  element *target(std::string_view name, const Options &options) const;
  void convertWaiting(Findings &findings);
  struct Companion {
    const char *suffix;
    const char *success;
    const char *failed;
    const char *absent;
    Result (NivraReader::*read)(const QString &, const Options &);
  };
  void readCompanions(const QString &base, const Options &options, Result &result);
  void readCompanion(const Companion &companion, const QString &base, const Options &options, Result &result);
  void readConfiguration(const QString &base, Result &result);
  void readGas(const QString &base, const NivraScenario &scenario, Result &result);

  NetData &m_net;
  Told m_told;
  ValueJournal *m_journal = nullptr;
  GasTable m_gases;
  QString m_gasFile;
  std::map<SetPointTarget, WaitingSetPoint> m_waiting;
  QString m_chosen;     ///< the file that was opened, whose suffix counts
  bool m_isJson = true; ///< the form in which companion files are looked for
};
