#include "jsonfile.h"

#include <io/nivragasparams.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>

#include <cmath>
#include <functional>

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

bool NivraGasParams::readFromFile(const QString &directory, Findings &findings) {
  const QString path = directory + QStringLiteral("/solverconfig.jsn");
  QString reason;
  const std::optional<QJsonObject> object = readJsonObject(path, &reason);
  if (!object) {
    const QString text =
        QCoreApplication::translate("NivraGasParams", "NivraGasParams::readFromFile: cannot open file %1").arg(reason);
    const bool isThere = QFileInfo::exists(path) || QFileInfo(path).isSymLink(); // without it the text form is meant
    findings.push_back({isThere ? Finding::Severity::Warning : Finding::Severity::Debug, QString(), 0, text, QString()});
    return false;
  }
  fromJson(*object, path);
  return true;
}

void NivraGasParams::fromJson(const QJsonObject &object, const QString &file) {
  const auto take = [&](const char *key, auto isRight, auto assign) {
    const QJsonValue value = object.value(QLatin1String(key));
    if (!isRight(value))
      return;
    assign(value);
    origin.insert(QLatin1String(key), file);
  };
  const auto isInteger = [](const QJsonValue &value) {
    const double number = value.toDouble();
    return value.isDouble() && number == std::floor(number) && std::abs(number) < 1e9;
  };
  for (const auto &[key, field] : Integers)
    take(key, isInteger, [this, field = field](const QJsonValue &value) { this->*field = value.toInt(); });
  for (const auto &[key, field] : Reals)
    take(key, std::mem_fn(&QJsonValue::isDouble),
         [this, field = field](const QJsonValue &value) { this->*field = value.toDouble(); });
  for (const auto &[key, field] : Switches)
    take(key, std::mem_fn(&QJsonValue::isBool),
         [this, field = field](const QJsonValue &value) { this->*field = value.toBool(); });
  take("solveType", std::mem_fn(&QJsonValue::isString), [this](const QJsonValue &value) { solveType = value.toString(); });
  readTexts(object.value(QLatin1String("source")), source);
  readTexts(object.value(QLatin1String("comment")), comment);
}

bool NivraGasParams::setFromText(const QString &key, const QString &text, const QString &file) {
  static const QHash<QString, QString> prefixed{{QStringLiteral("NIVRA_ntype_HTC"), QStringLiteral("ntype_HTC")},
                                                {QStringLiteral("NIVRA_HTC_value"), QStringLiteral("HTC_value")}};
  const QString name = prefixed.value(key, key);
  const auto take = [&](const auto &fields, const auto &number) {
    for (const auto &[fieldKey, field] : fields) {
      if (name != QLatin1String(fieldKey))
        continue;
      this->*field = number();
      origin.insert(name, file);
      return true;
    }
    return false;
  };
  return take(Integers, [&] { return text.toInt(); }) || take(Reals, [&] { return text.toDouble(); });
}

QVector<NivraGasParams::Entry> NivraGasParams::entries() const {
  constexpr int Digits = 16;
  const auto real = [](double number) {
    return QString::number(number, 'g', Digits);
  };
  QVector<Entry> list;
  for (const auto &[key, field] : Integers)
    list.append({QLatin1String(key), QString::number(this->*field), names(QLatin1String(key)).value(this->*field)});
  for (const auto &[key, field] : Reals)
    list.append({QLatin1String(key), real(this->*field), QString()});
  for (const auto &[key, field] : Switches)
    list.append({QLatin1String(key), this->*field ? QStringLiteral("true") : QStringLiteral("false"), QString()});
  list.append({QStringLiteral("solveType"), solveType, QString()});
  const auto further = [&list](int position, const QString &value, const QString &meaning = QString()) {
    list.append({QStringLiteral("field%1").arg(position), value, meaning, true});
  };
  const Positional &p = positional;
  further(16, p.field16);
  further(17, QString::number(p.field17));
  further(18, QString::number(p.field18));
  further(19, QString::number(p.field19));
  further(20, real(p.field20));
  further(21, QString::number(p.field21), QStringList{QStringLiteral("off"), QStringLiteral("on")}.value(p.field21));
  further(23, QString::number(p.field23), QStringList{QStringLiteral("qust"), QStringLiteral("isoeuler")}.value(p.field23));
  further(24, real(p.field24));
  further(25, QString::number(p.field25));
  further(26, QString::number(p.field26));
  further(27, QString::number(p.field27));
  return list;
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
