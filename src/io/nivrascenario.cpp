#include <io/nivrascenario.h>

#include <QJsonValue>

namespace {

struct Named {
  const char *key;
  QString NivraScenario::*field;
};

using S = NivraScenario;

const Named Texts[] = {{"workDir", &S::workDir},
                       {"scenFile", &S::scenFile},
                       {"gasFile", &S::gasFile},
                       {"comprDatabase", &S::comprDatabase},
                       {"pyFile", &S::pyFile},
                       {"logFile", &S::logFile},
                       {"resRoot", &S::resRoot},
                       {"statusFile", &S::statusFile},
                       {"NivraVersion_used", &S::version}};

Finding missing(const char *key) {
  return {Finding::Severity::Information, QString(), 0,
          QStringLiteral("NivraScenario::fromJson: key ") + QLatin1String(key) + QStringLiteral(" does not exist")};
}

} // namespace

bool NivraScenario::isAbsent() const {
  return workDir.isEmpty() || workDir == QLatin1String("EMPTY") || workDir == QLatin1String(".");
}

Findings NivraScenario::fromJson(const QJsonObject &object, const QString &file) {
  Findings findings;
  for (const auto &[key, field] : Texts) {
    const auto member = object.constFind(QLatin1String(key));
    if (member == object.constEnd()) {
      findings.push_back(missing(key));
    } else if (member->isString()) {
      this->*field = member->toString();
      origin.insert(QLatin1String(key), file);
    }
  }
  const auto general = object.constFind(QLatin1String("GeneralProps"));
  if (general == object.constEnd()) {
    findings.push_back(missing("GeneralProps"));
    return findings;
  }
  const QJsonObject properties = general->toObject();
  for (auto property = properties.begin(); property != properties.end(); ++property) {
    generalProps.insert(property.key(), property.value().toVariant().toString());
    origin.insert(QStringLiteral("GeneralProps/") + property.key(), file);
  }
  return findings;
}

QVector<QPair<QString, QString>> NivraScenario::entries() const {
  QVector<QPair<QString, QString>> list;
  for (const auto &[key, field] : Texts)
    list.append({QLatin1String(key), this->*field});
  list.append({QStringLiteral("furtherFile"), furtherFile});
  return list;
}
