#pragma once

#include <base/finding.h>
#include <io/scenariosummary.h>
#include <model/netdata.h>

#include <QCoreApplication>
#include <QString>

#include <machines/gaslaw.h>
#include <map>
#include <memory>

/// What a scenario says of its gases, beside what stands at the nodes.
struct ScenarioGas {
  GasTable gases;                            ///< of the gas file
  GasLaw::Wanted law = GasLaw::Wanted::Dc92; ///< "ntype_gasLaw"
  double temperature = 283.15;               ///< K, of gas at nodes without one: that of the soil
};

/// Which gas flows where: that of a node itself, else the one of the gas file that the node names, else the scenario's. The
/// scenario's is the first of the gas file, else that of the first node that states one, else methane.
class GasSource {
  Q_DECLARE_TR_FUNCTIONS(GasSource)
public:
  struct Gas {
    std::shared_ptr<const GasLaw> law = GasLaw::assumed();
    double normDensity = 0.0; ///< kg/m3
    double fuelValue = 0.0;   ///< MJ/m3 at norm conditions, the inferior calorific value
    QString origin;           ///< for a person: whose gas it is
  };

  explicit GasSource(const NetData &net)
      : m_net(net) {}

  void set(ScenarioGas scenario);
  /// To be called when nodes have changed: their gases are looked up anew.
  void forget() { m_scenarioGas.reset(); }
  Gas at(const element &node) const;
  /// The gas of nodes that say nothing of theirs.
  const Gas &scenario() const;
  /// In K: the temperature that the node states, else that of the scenario. One that no gas in a network has is left out,
  /// with a remark.
  double temperatureAt(const element &node, QStringList *remarks = nullptr) const;
  /// What is doubtful about the scenario's gas.
  Findings findings() const;

private:
  Gas findScenario() const; ///< for scenario()
  Gas gasOf(const GasData &data, const QString &origin) const;

  const NetData &m_net;
  ScenarioGas m_scenario;
  mutable std::map<QString, Gas> m_gasesByData; ///< one law serves many nodes
  mutable std::optional<Gas> m_scenarioGas;
};
