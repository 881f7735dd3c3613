#pragma once

#include <characteristics/scenariomachines.h>

#include <QElapsedTimer>
#include <QObject>

#include <machines/networkmachines.h>
#include <memory>
#include <optional>
#include <vector>

/// Where a compressor works in all scenarios of the case, read one after the other while the window stays alive.
class ScenarioCloud : public QObject, public std::enable_shared_from_this<ScenarioCloud> {
  Q_OBJECT
public:
  struct Scenario {
    QString name;
    QString fault;                    ///< why it could not be read; empty when it was
    std::optional<Compression> whole; ///< nothing where no gas flows
    NetworkMachines::Station station;
  };

  /// \param net of the open scenario
  ScenarioCloud(ScenarioMachines source, const NetData &net, const element &compressor, FunctionSource functions);

  void start();  ///< from the beginning
  void cancel(); ///< what was read stays
  bool isRunning() const { return m_isRunning; }
  const std::vector<Scenario> &scenarios() const { return m_scenarios; } ///< those that were read
  int count() const { return static_cast<int>(m_names.size()); }         ///< with those to come
  FunctionSource functions() const { return m_functions; }

signals:
  void changed();

private:
  void step();
  bool prepare(QString *reason);
  Scenario read(const QString &name);
  Progress progress();
  void end();

  ScenarioMachines m_source;
  QString m_compressor;
  FunctionSource m_functions;
  NetData m_own;      ///< the elements that matter, without what the open scenario says of them
  NetData m_skeleton; ///< the same as the geometry has them
  QStringList m_elements;
  QStringList m_names;
  std::vector<Scenario> m_scenarios;
  QElapsedTimer m_sinceEvents;
  bool m_isRunning = false;
};
