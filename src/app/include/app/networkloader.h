#pragma once

#include <base/finding.h>
#include <io/nivragasparams.h>
#include <io/nivraworkspace.h>
#include <model/consistencycheck.h>
#include <model/netdata.h>

#include <QString>
#include <QVector>

#include <utility>

/// Brings a chosen file into a NetData: workspace, configuration, network, checks. It knows no widgets; the window and
/// the command line both drive it, stage by stage.
class NetworkLoader {
public:
  /// Seconds by stage, in the order of the stages.
  using Seconds = QVector<std::pair<QString, double>>;

  explicit NetworkLoader(NetData &net)
      : m_net(net) {}

  /// False when the path yields no usable workspace; the reasons are logged and kept for error().
  bool resolve(const QString &path);
  /// Makes the workspace that another loader resolved the current one.
  void takeWorkspace(const NetworkLoader &other);
  /// Case configuration and, where there is a scenario, scenario configuration with gas and solver parameters.
  void readConfiguration();

  struct ReadOptions {
    QString includeTypes;      ///< regular expression, empty for all
    QString includeProperties; ///< regular expression, empty for all
    Progress progress;
  };
  /// Fills the NetData, which must be empty, and checks it. False when nothing could be read or reading was cancelled.
  bool readNetwork(const ReadOptions &options);

  const NivraWorkspace &workspace() const { return m_workspace; }
  const NivraGasParams &gasParams() const { return m_gasParams; }
  const QString &checkFindings() const { return m_checkFindings; }
  const ConsistencyCheck::PruneResult &removed() const { return m_removed; }
  const Seconds &seconds() const { return m_seconds; }
  bool wasCancelled() const { return m_cancelled; }
  QString error() const { return m_error; } ///< why the last step failed, for a person

private:
  NetData &m_net;
  NivraWorkspace m_workspace;
  NivraGasParams m_gasParams;
  QString m_checkFindings;
  ConsistencyCheck::PruneResult m_removed;
  Seconds m_seconds;
  QString m_error;
  bool m_cancelled = false;
};
