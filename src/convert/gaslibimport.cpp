#include "gaslibnetwork.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <convert/gaslibimport.h>
#include <iterator>

namespace {

QString tr(const char *text) {
  return QCoreApplication::translate("GasLibImport", text);
}

bool writeText(const QString &path, const QByteArray &text, QString *reason) {
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit())
    return true;
  *reason = tr("Cannot write %1: %2").arg(path, file.errorString());
  return false;
}

/// The path that was named, else one beside the network when it is there.
QString companion(const QString &named, const QString &network, const QString &suffix) {
  if (!named.isEmpty())
    return named;
  const QFileInfo info(network);
  const QString path = info.path() + QLatin1Char('/') + info.completeBaseName() + suffix;
  return QFileInfo::exists(path) ? path : QString();
}

QByteArray json(std::initializer_list<QPair<QString, QJsonValue>> members) {
  return QJsonDocument(QJsonObject(members)).toJson();
}

} // namespace

GasLibImport::Result GasLibImport::import(const QString &network, const QString &scenario, const QString &compressors,
                                          const QString &to) {
  Result result;
  const auto fail = [&result](const QString &reason) {
    result.findings.push_back({Finding::Severity::Critical, QString(), 0, reason, QString()});
    return result;
  };
  const auto take = [&result](Findings &findings) {
    std::move(findings.begin(), findings.end(), std::back_inserter(result.findings));
  };
  GasLibNetwork net(network);
  const bool isRead = net.readNetwork();
  take(net.findings);
  if (!isRead)
    return fail(tr("%1 holds no network").arg(network));
  const QString scn = companion(scenario, network, QStringLiteral(".scn"));
  GasLibNetwork nomination(scn);
  if (!scn.isEmpty()) {
    nomination.readScenario();
    take(nomination.findings);
  }
  const QString machines = companion(compressors, network, QStringLiteral(".cs"));

  const QString name = QFileInfo(QDir(to).absolutePath()).fileName();
  const QDir folder(to);
  if (!folder.mkpath(QStringLiteral("N1")))
    return fail(tr("Cannot make the folder %1").arg(to));
  std::vector<NetworkFileConverter::Record> records = net.nodes;
  records.insert(records.end(), net.edges.begin(), net.edges.end());
  QString reason;
  const QByteArray configuration = "geometry configuration\n" + name.toUtf8() + '\n' + name.toUtf8() + ".geom\n0\n{}\n";
  if (!NetworkFileConverter::write(folder.filePath(name + QStringLiteral(".geom.jsn")), records, &reason) ||
      !writeText(folder.filePath(name + QStringLiteral(".geom.cfg")), configuration, &reason) ||
      !NetworkFileConverter::write(folder.filePath(QStringLiteral("N1/N1.scen.jsn")), nomination.setPoints, &reason))
    return fail(reason);
  // The gas of a network stands at its supplies; the first one stands for all.
  NetworkFileConverter::Record gas{QStringLiteral("gas"), QStringLiteral("gas"), {}};
  for (const NetworkFileConverter::Record &node : net.nodes) {
    for (const Property &property : node.values) {
      static const QStringList ofGas{QStringLiteral("hs"), QStringLiteral("rhon"), QStringLiteral("molarmass"),
                                     QStringLiteral("pcrit"), QStringLiteral("tcrit")};
      if (ofGas.contains(property.key.name()))
        gas.values.push_back(property);
    }
    if (!gas.values.empty())
      break;
  }
  QString database;
  if (!machines.isEmpty()) {
    database = QStringLiteral("../") + name + QStringLiteral(".cs");
    QFile source(machines);
    if (!source.open(QIODevice::ReadOnly) ||
        !writeText(folder.filePath(name + QStringLiteral(".cs")), source.readAll(), &reason))
      return fail(reason.isEmpty() ? tr("Cannot read %1: %2").arg(machines, source.errorString()) : reason);
  }
  const QByteArray scenarioConfiguration = json({{QStringLiteral("workDir"), QStringLiteral("N1")},
                                                 {QStringLiteral("scenFile"), QStringLiteral("N1.scen")},
                                                 {QStringLiteral("gasFile"), QStringLiteral("N1.gas")},
                                                 {QStringLiteral("comprDatabase"), database}});
  if (!NetworkFileConverter::write(folder.filePath(QStringLiteral("N1/N1.gas.jsn")), {gas}, &reason) ||
      !writeText(folder.filePath(QStringLiteral("N1/scenconfig.jsn")), scenarioConfiguration, &reason) ||
      !writeText(folder.filePath(QStringLiteral("N1/solverconfig.jsn")), "{}\n", &reason))
    return fail(reason);
  result.nodes = static_cast<int>(net.nodes.size());
  result.edges = static_cast<int>(net.edges.size());
  result.setPoints = static_cast<int>(nomination.setPoints.size());
  result.ok = true;
  return result;
}
