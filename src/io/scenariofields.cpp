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

/// One position: the key of the value, as in the JSON forms, and where it goes.
struct Field {
  const char *key;
  bool isOfScenario;
  Setter set;
};

const QVector<Field> &fieldsInOrder() {
  using S = NivraScenario;
  using G = NivraGasParams;
  using X = NivraGasParams::Positional;
  static const QVector<Field> list{{"workDir", true, text(&S::workDir)},
                                   {"scenFile", true, text(&S::scenFile)},
                                   {"gasFile", true, text(&S::gasFile)},
                                   {"furtherFile", true, text(&S::furtherFile)},
                                   {"ntype_gasLaw", false, gas(&G::ntype_gasLaw)},
                                   {"ntype_hydraulicsFormula", false, gas(&G::ntype_hydraulicsFormula)},
                                   {"ntype_gasMix", false, gas(&G::ntype_gasMix)},
                                   {"ntype_temperature", false, gas(&G::ntype_temperature)},
                                   {"ntype_transient", false, gas(&G::ntype_transient)},
                                   {"ntype_steady", false, gas(&G::ntype_steady)},
                                   {"timeIntegration_start", false, gas(&G::timeIntegration_start)},
                                   {"timeIntegration_end", false, gas(&G::timeIntegration_end)},
                                   {"timeIntegration_scal", false, gas(&G::timeIntegration_scal)},
                                   {"ntype_nonlinsolver", false, gas(&G::ntype_nonlinsolver)},
                                   {"ntype_jacobian", false, gas(&G::ntype_jacobian)},
                                   {"ntype_linsolver", false, gas(&G::ntype_linsolver)},
                                   {"field16", false, positional(&X::field16)},
                                   {"field17", false, positional(&X::field17)},
                                   {"field18", false, positional(&X::field18)},
                                   {"field19", false, positional(&X::field19)},
                                   {"field20", false, positional(&X::field20)},
                                   {"field21", false, positional(&X::field21)},
                                   {"tsoil", false, gas(&G::tsoil)},
                                   {"field23", false, positional(&X::field23)},
                                   {"field24", false, positional(&X::field24)},
                                   {"field25", false, positional(&X::field25)},
                                   {"field26", false, positional(&X::field26)},
                                   {"field27", false, positional(&X::field27)},
                                   {"pyFile", true, text(&S::pyFile)},
                                   {"logFile", true, text(&S::logFile)},
                                   {"resRoot", true, text(&S::resRoot)},
                                   {"comprDatabase", true, text(&S::comprDatabase)},
                                   {"statusFile", true, text(&S::statusFile)},
                                   {"tamb", false, gas(&G::tamb)}};
  return list;
}

/// Status file and ambient temperature may be missing, so that the first key stands in their place.
bool isOptional(int position) {
  return position >= ScenarioFields::Count - 2;
}

} // namespace

void ScenarioFields::apply(const QStringList &fields, const QString &file, NivraScenario &scenario,
                           NivraGasParams &gasParams) {
  int position = 0;
  for (; position < fields.size() && position < fieldsInOrder().size(); ++position) {
    if (isOptional(position) && fields[position].contains(QLatin1Char('=')))
      break;
    const Field &field = fieldsInOrder()[position];
    field.set(fields[position], scenario, gasParams);
    (field.isOfScenario ? scenario.origin : gasParams.origin).insert(QLatin1String(field.key), file);
  }
  for (; position < fields.size(); ++position) {
    const int equals = fields[position].indexOf(QLatin1Char('='));
    if (equals < 0)
      return;
    const QString key = fields[position].left(equals);
    const QString value = fields[position].mid(equals + 1);
    if (key == QLatin1String("NivraVersion_used")) {
      scenario.version = value;
      scenario.origin.insert(key, file);
    } else if (!gasParams.setFromText(key, value, file)) {
      scenario.generalProps.insert(key, value);
      scenario.origin.insert(QStringLiteral("GeneralProps/") + key, file);
    }
  }
}
