#include "scenariofields.h"

#include <io/nivragasparams.h>
#include <io/nivrascenario.h>

#include <functional>

namespace {

using Setter = std::function<void(const QString &, NivraScenario &, NivraGasParams &)>;

Setter text(QString NivraScenario::*field) {
  return [field](const QString &value, NivraScenario &scenario, NivraGasParams &) {
    scenario.*field = value;
  };
}

template <typename T>
void assign(T &target, const QString &value) {
  if constexpr (std::is_same_v<T, QString>)
    target = value;
  else if constexpr (std::is_same_v<T, int>)
    target = value.toInt();
  else if constexpr (std::is_same_v<T, bool>)
    target = value.endsWith(QLatin1Char('1'));
  else
    target = value.toDouble();
}

template <typename T>
Setter gas(T NivraGasParams::*field) {
  return [field](const QString &value, NivraScenario &, NivraGasParams &params) {
    assign(params.*field, value);
  };
}

template <typename T>
Setter positional(T NivraGasParams::Positional::*field) {
  return [field](const QString &value, NivraScenario &, NivraGasParams &params) {
    assign(params.positional.*field, value);
  };
}

const QVector<Setter> &setters() {
  using S = NivraScenario;
  using G = NivraGasParams;
  using X = NivraGasParams::Positional;
  static const QVector<Setter> list{text(&S::workDir),
                                    text(&S::scenFile),
                                    text(&S::gasFile),
                                    text(&S::furtherFile),
                                    gas(&G::ntype_gasLaw),
                                    gas(&G::ntype_hydraulicsFormula),
                                    gas(&G::ntype_gasMix),
                                    gas(&G::ntype_temperature),
                                    gas(&G::ntype_transient),
                                    gas(&G::ntype_steady),
                                    gas(&G::timeIntegration_start),
                                    gas(&G::timeIntegration_end),
                                    gas(&G::timeIntegration_scal),
                                    gas(&G::ntype_nonlinsolver),
                                    gas(&G::ntype_jacobian),
                                    gas(&G::ntype_linsolver),
                                    positional(&X::field16),
                                    positional(&X::field17),
                                    positional(&X::field18),
                                    positional(&X::field19),
                                    positional(&X::field20),
                                    positional(&X::field21),
                                    gas(&G::tsoil),
                                    positional(&X::field23),
                                    positional(&X::field24),
                                    positional(&X::field25),
                                    positional(&X::field26),
                                    positional(&X::field27),
                                    text(&S::pyFile),
                                    text(&S::logFile),
                                    text(&S::resRoot),
                                    text(&S::comprDatabase),
                                    text(&S::statusFile),
                                    gas(&G::tamb)};
  return list;
}

/// Status file and ambient temperature may be missing, so that the first key stands in their place.
bool isOptional(int position) {
  return position >= ScenarioFields::Count - 2;
}

} // namespace

void ScenarioFields::apply(const QStringList &fields, NivraScenario &scenario, NivraGasParams &gasParams) {
  int position = 0;
  for (; position < fields.size() && position < setters().size(); ++position) {
    if (isOptional(position) && fields[position].contains(QLatin1Char('=')))
      break;
    setters()[position](fields[position], scenario, gasParams);
  }
  for (; position < fields.size(); ++position) {
    const int equals = fields[position].indexOf(QLatin1Char('='));
    if (equals < 0)
      return;
    const QString key = fields[position].left(equals);
    const QString value = fields[position].mid(equals + 1);
    if (key == QLatin1String("NivraVersion_used"))
      scenario.version = value;
    else if (!gasParams.setFromText(key, value))
      scenario.generalProps.insert(key, value);
  }
}
