#include "jsonfile.h"

#include <base/nivramsg.h>
#include <io/nivragasparams.h>

#include <QHash>

#include <cmath>

namespace {

template <typename T>
struct Named {
  const char *key;
  T NivraGasParams::*field;
};

using P = NivraGasParams;

const Named<int> Integers[] = {{"ntype_gasLaw", &P::ntype_gasLaw},
                               {"ntype_hydraulicsFormula", &P::ntype_hydraulicsFormula},
                               {"ntype_gasMix", &P::ntype_gasMix},
                               {"ntype_temperature", &P::ntype_temperature},
                               {"ntype_nonlinsolver", &P::ntype_nonlinsolver},
                               {"ntype_jacobian", &P::ntype_jacobian},
                               {"ntype_linsolver", &P::ntype_linsolver},
                               {"ntype_HTC", &P::ntype_HTC},
                               {"CompThermo", &P::CompThermo},
                               {"CompAdvanced", &P::CompAdvanced}};

const Named<double> Reals[] = {{"timeIntegration_start", &P::timeIntegration_start},
                               {"timeIntegration_end", &P::timeIntegration_end},
                               {"timeIntegration_scal", &P::timeIntegration_scal},
                               {"tamb", &P::tamb},
                               {"tsoil", &P::tsoil},
                               {"HTC_value", &P::HTC_value},
                               {"solver_simtol", &P::solver_simtol},
                               {"solver_opttol", &P::solver_opttol},
                               {"solver_mixtol", &P::solver_mixtol},
                               {"solver_transtol", &P::solver_transtol},
                               {"FACT_OBJ_COMP_P", &P::FACT_OBJ_COMP_P},
                               {"FACT_OBJ_COMP_M", &P::FACT_OBJ_COMP_M},
                               {"FACT_OBJ_REG_P", &P::FACT_OBJ_REG_P},
                               {"FACT_OBJ_REG_M", &P::FACT_OBJ_REG_M},
                               {"REG_PAR_eps", &P::REG_PAR_eps},
                               {"REG_PAR_eps2", &P::REG_PAR_eps2},
                               {"REG_PAR_R0", &P::REG_PAR_R0},
                               {"REG_PAR_Preg", &P::REG_PAR_Preg},
                               {"REG_PAR_Rlam", &P::REG_PAR_Rlam},
                               {"REG_PAR_atan_fact", &P::REG_PAR_atan_fact},
                               {"REG_PAR_stalled_tol", &P::REG_PAR_stalled_tol},
                               {"delta_flap", &P::delta_flap}};

const Named<bool> Switches[] = {{"ntype_transient", &P::ntype_transient}, {"ntype_steady", &P::ntype_steady}};

void readTexts(const QJsonValue &value, QMap<QString, QString> &texts) {
  if (!value.isObject())
    return;
  const QJsonObject object = value.toObject();
  for (auto member = object.begin(); member != object.end(); ++member) {
    if (member.value().isString())
      texts.insert(member.key(), member.value().toString());
  }
}

} // namespace

bool NivraGasParams::readFromFile(const QString &directory) {
  QString reason;
  const std::optional<QJsonObject> object = readJsonObject(directory + QStringLiteral("/solverconfig.jsn"), &reason);
  if (!object) {
    NivraMsg::debug(QStringLiteral("NivraGasParams::readFromFile: cannot open file ") + reason);
    return false;
  }
  fromJson(*object);
  return true;
}

void NivraGasParams::fromJson(const QJsonObject &object) {
  for (const auto &[key, field] : Integers) {
    const double number = object.value(QLatin1String(key)).toDouble(this->*field);
    if (number == std::floor(number) && std::abs(number) < 1e9)
      this->*field = static_cast<int>(number);
  }
  for (const auto &[key, field] : Reals)
    this->*field = object.value(QLatin1String(key)).toDouble(this->*field);
  for (const auto &[key, field] : Switches)
    this->*field = object.value(QLatin1String(key)).toBool(this->*field);
  solveType = object.value(QLatin1String("solveType")).toString(solveType);
  readTexts(object.value(QLatin1String("source")), source);
  readTexts(object.value(QLatin1String("comment")), comment);
}

bool NivraGasParams::setFromText(const QString &key, const QString &text) {
  static const QHash<QString, QString> prefixed{{QStringLiteral("NIVRA_ntype_HTC"), QStringLiteral("ntype_HTC")},
                                                {QStringLiteral("NIVRA_HTC_value"), QStringLiteral("HTC_value")}};
  const QString name = prefixed.value(key, key);
  for (const auto &[integerKey, field] : Integers) {
    if (name == QLatin1String(integerKey)) {
      this->*field = text.toInt();
      return true;
    }
  }
  for (const auto &[realKey, field] : Reals) {
    if (name == QLatin1String(realKey)) {
      this->*field = text.toDouble();
      return true;
    }
  }
  return false;
}

QStringList NivraGasParams::names(const QString &key) {
  static const QHash<QString, QString> lists{
      {QStringLiteral("ntype_gasLaw"), QStringLiteral("aga,dc92,papay")},
      {QStringLiteral("ntype_hydraulicsFormula"), QStringLiteral("hofer,nikuradze")},
      {QStringLiteral("ntype_gasMix"), QStringLiteral("None,decoupled,strongly-decoupled")},
      {QStringLiteral("ntype_temperature"), QStringLiteral("off,auto,fast,exact")},
      {QStringLiteral("ntype_nonlinsolver"), QStringLiteral("cnewton,brute_force,scipy_solve")},
      {QStringLiteral("ntype_jacobian"), QStringLiteral("exact,numeric")},
      {QStringLiteral("ntype_linsolver"), QStringLiteral("pardiso,samg,yaledirect")}};
  return lists.value(key).split(QLatin1Char(','), Qt::SkipEmptyParts);
}
