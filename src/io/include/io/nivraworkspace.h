#pragma once

#include <base/finding.h>
#include <io/nivragasparams.h>
#include <io/nivrascenario.h>

#include <QCoreApplication>
#include <QJsonObject>
#include <QString>
#include <QVector>

/// The directory tree of a model, resolved from a geometry or scenario file: root, cases, scenarios. The last case and the
/// last scenario are the current ones.
class NivraWorkspace {
  Q_DECLARE_TR_FUNCTIONS(NivraWorkspace)
public:
  struct Case {
    QString name; ///< of the case directory
    QString baseName;
    QString geometryFile; ///< always ending in ".geom"; the JSON form has a further suffix
    QString configFile;
    QString workDir; ///< as configured
    bool flag = false;
    bool isConfigured = false; ///< the configuration file could be read
    QJsonObject properties;
    QVector<NivraScenario> scenarios;

    void setFilesFromBaseName(const QString &base);
  };

  /// Without a case when the path yields no workspace; findings() says why.
  static NivraWorkspace fromFile(const QString &path);

  bool isValid() const { return !m_cases.isEmpty(); }
  const Findings &findings() const { return m_findings; } ///< of fromFile(), for the log
  const QString &root() const { return m_root; }
  bool isJson() const { return m_json; }
  const QVector<Case> &cases() const { return m_cases; }
  const Case *currentCase() const { return m_cases.isEmpty() ? nullptr : &m_cases.last(); }
  /// Null when no scenario was added, even an absent one; see hasScenario().
  const NivraScenario *currentScenario() const;
  bool hasScenario() const;

  /// The file that the workspace was resolved from, as an absolute path.
  const QString &chosenPath() const { return m_chosen; }
  QString caseDirectory() const;
  QString geometryPath() const;
  QString caption() const;           ///< case and scenario in few words, for people
  QString scenarioDirectory() const; ///< empty without a scenario
  QString scenarioPath() const;      ///< empty without a scenario
  /// In the case directory when a case is open, the bare name otherwise.
  QString filePath(const QString &name) const;

  /// Of the current case: 0, or -1 when the file could not be opened.
  int readCaseConfiguration(Findings &findings);
  /// Of the current scenario: the unified form, else the text form. The configured directory name is checked against the
  /// actual one, which wins, unless skipWorkDirCheck.
  void readScenarioConfiguration(NivraGasParams &gas, Findings &findings, bool skipWorkDirCheck = false);

  /// Lays what a ".scen.cfg.jsn" file holds over the current scenario and its gas parameters; the directory and the opened
  /// file stay. Returns what the log should say.
  Findings takeConfiguration(const QJsonObject &object, NivraGasParams &gas, const QString &file = QString());

private:
  void findCaseFiles();
  void addScenario(const QString &directoryName, const QString &baseName);
  void takeChosenGeometry(const QString &base);
  void readUnifiedConfiguration(const QString &directory, Findings &findings);
  void readTextConfiguration(const QString &path, NivraGasParams &gas, Findings &findings);
  void checkScenarioDirectory(const QString &actualName, Findings &findings);

  QString m_root;
  QString m_chosen;
  bool m_json = false;
  QVector<Case> m_cases;
  Findings m_findings;
};
