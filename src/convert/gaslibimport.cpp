#include "gaslibimport.h"

#include "gaslibnomination.h"
#include "stagedfolder.h"
#include "stationdrives.h"

#include <base/wholefile.h>
#include <io/networkfileconverter.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>

namespace {

using Record = NetworkRecord;
using SetPoints = std::vector<NetworkSetPoint>;

struct Texts {
  Q_DECLARE_TR_FUNCTIONS(GasLibImport)
};

const QString SolverConfiguration = QStringLiteral("solverconfig.jsn");

/// A file beside the network that has its base name and this suffix in any case; empty when there is none.
QString companion(const QString &network, const QString &suffix) {
  const QFileInfo info(network);
  const QString wanted = info.completeBaseName() + suffix;
  const QStringList names = info.dir().entryList(QDir::Files, QDir::Name);
  for (const QString &name : names) {
    if (name.compare(wanted, Qt::CaseInsensitive) == 0)
      return info.dir().filePath(name);
  }
  return QString();
}

/// What companion files begin with: the program takes the part before the first dot of a name.
QString baseOf(const QString &name) {
  return QString(name).replace(QLatin1Char('.'), QLatin1Char('_'));
}

QByteArray json(std::initializer_list<QPair<QString, QJsonValue>> members) {
  return QJsonDocument(QJsonObject(members)).toJson();
}

/// Brings the parts of an instance together.
class Import {
public:
  explicit Import(const GasLibImport::Request &request)
      : m_request(request)
      , m_net(request.network)
      , m_case(QFileInfo(QDir(request.to).absolutePath()).fileName())
      , m_folder(request.to) {}

  GasLibImport::Result run() {
    m_result.ok = readNetwork() && readNominations() && readStations() && write();
    m_result.nodes = static_cast<int>(m_net.nodes.size());
    m_result.edges = static_cast<int>(m_net.edges.size());
    m_result.drives = static_cast<int>(m_drives.size());
    return std::move(m_result);
  }

private:
  struct Scenario {
    QString name;
    SetPoints setPoints;
  };

  bool fail(const QString &reason) {
    m_result.findings.push_back({Finding::Severity::Critical, {}, 0, reason});
    return false;
  }

  /// Takes what a reader found, which had to be read.
  bool take(GasLibReader &reader, bool isRead, const QString &path, const QString &what) {
    append(m_result.findings, std::move(reader.findings));
    m_result.report.add(reader.report);
    return isRead || fail(Texts::tr("%1 cannot be taken as %2: nothing is written").arg(path, what));
  }

  bool readNetwork() {
    const bool isRead = m_net.read();
    return take(m_net, isRead, m_request.network, Texts::tr("a network"));
  }

  /// Folders become the nominations that lie in them.
  QStringList nominationFiles() {
    QStringList files;
    for (const QString &path : m_request.nominations) {
      if (!QFileInfo(path).isDir()) {
        files.append(path);
        continue;
      }
      const QDir folder(path);
      const QStringList found = folder.entryList({QStringLiteral("*.scn")}, QDir::Files, QDir::Name);
      if (found.isEmpty())
        fail(Texts::tr("%1 holds no nomination (.scn)").arg(path));
      for (const QString &name : found)
        files.append(folder.filePath(name));
    }
    if (m_request.nominations.isEmpty()) {
      if (const QString beside = companion(m_request.network, QStringLiteral(".scn")); !beside.isEmpty())
        files.append(beside);
    }
    return files;
  }

  bool readNominations() {
    const std::size_t before = m_result.findings.size();
    const QStringList files = nominationFiles();
    if (m_result.findings.size() > before)
      return false;
    for (const QString &path : files) {
      GasLibNomination nomination(path, m_net);
      const bool isRead = nomination.read();
      if (!take(nomination, isRead, path, Texts::tr("a nomination of this network")))
        return false;
      const bool isOnly = nomination.scenarios.size() == 1;
      for (GasLibNomination::Scenario &scenario : nomination.scenarios) {
        const QString file = QFileInfo(path).completeBaseName();
        if (!add({isOnly ? file : file + QLatin1Char('_') + scenario.id, std::move(scenario.setPoints)}))
          return false;
      }
    }
    return !m_scenarios.empty() || add({QStringLiteral("N1"), {}}); // so that the machines can be opened
  }

  bool add(Scenario scenario) {
    scenario.name.replace(QLatin1Char('/'), QLatin1Char('_')).replace(QLatin1Char('\\'), QLatin1Char('_'));
    if (scenario.name.isEmpty() || scenario.name.startsWith(QLatin1Char('.')))
      return fail(Texts::tr("\"%1\" cannot be the name of a scenario: nothing is written").arg(scenario.name));
    if (m_result.scenarios.contains(scenario.name, Qt::CaseInsensitive))
      return fail(Texts::tr("Two nominations are named %1: nothing is written").arg(scenario.name));
    m_result.scenarios.append(scenario.name);
    m_result.setPoints += static_cast<int>(scenario.setPoints.size());
    m_scenarios.push_back(std::move(scenario));
    return true;
  }

  bool readStations() {
    m_machines =
        m_request.compressors.isEmpty() ? companion(m_request.network, QStringLiteral(".cs")) : m_request.compressors;
    if (m_machines.isEmpty())
      return true;
    GasLibStations stations(m_machines);
    bool isRead = stations.read();
    if (isRead) {
      const int all = static_cast<int>(stations.stations.size());
      const auto dropped = [&stations] {
        return stations.report.of(QStringLiteral("compressorStation")).dropped;
      };
      const int before = dropped(); // those that are described twice
      m_drives = StationDrives::make(m_net, stations);
      isRead = all == 0 || dropped() - before < all;
    }
    m_result.report.take(Texts::tr("drive"), static_cast<int>(m_drives.size()));
    return take(stations, isRead, m_machines, Texts::tr("compressor stations of this network"));
  }

  bool write() {
    QString reason;
    if (!m_folder.open(&reason))
      return fail(reason);
    if (!isFreeForUs(&reason) || !writeCase(&reason))
      return fail(reason);
    QStringList kept{baseOf(m_case) + QStringLiteral(".geom.cfg")};
    for (const Scenario &scenario : m_scenarios) {
      if (!writeScenario(scenario, &reason))
        return fail(reason);
      kept.append(scenario.name + QLatin1Char('/') + SolverConfiguration);
    }
    return m_folder.commit(m_request.overwrites, kept, &reason) || fail(reason);
  }

  /// Cases and scenarios that are there belong to somebody, whatever they hold.
  bool isFreeForUs(QString *reason) {
    if (m_request.overwrites)
      return true;
    const QString geometry = baseOf(m_case) + QStringLiteral(".geom.jsn");
    const QStringList present =
        QDir(m_request.to).entryList({QStringLiteral("*.geom"), QStringLiteral("*.geom.js*n")}, QDir::Files);
    for (const QString &name : present) {
      if (name == geometry)
        continue;
      *reason = Texts::tr("%1 holds the geometry %2 already; the new one would be %3").arg(m_request.to, name, geometry);
      return false;
    }
    for (const Scenario &scenario : m_scenarios) {
      const QString ours = scenario.name + QLatin1Char('/') + baseOf(scenario.name) + QStringLiteral(".scen.jsn");
      if (m_folder.isThere(ours) || !m_folder.isThere(scenario.name))
        continue;
      *reason = Texts::tr("%1 holds a folder %2 already, which is no scenario of ours").arg(m_request.to, scenario.name);
      return false;
    }
    return true;
  }

  bool writeFile(const QString &name, const QByteArray &content, QString *reason) {
    return WholeFile::write(m_folder.path(name), FileAccess::Source::Trusted, content, reason);
  }

  bool writeCase(QString *reason) {
    std::vector<Record> records = m_net.nodes;
    records.insert(records.end(), m_drives.begin(), m_drives.end());
    records.insert(records.end(), m_net.edges.begin(), m_net.edges.end());
    const QString base = baseOf(m_case);
    const QByteArray configuration = "geometry configuration\n" + m_case.toUtf8() + '\n' + base.toUtf8() + ".geom\n0\n" +
                                     QJsonDocument(m_net.information).toJson(QJsonDocument::Compact) + '\n';
    if (!m_machines.isEmpty()) {
      const auto content = FileAccess::readWhole(m_machines, FileAccess::Source::Trusted, GasLibXml::LargestFile, reason);
      if (!content || !writeFile(base + QStringLiteral(".cs"), *content, reason))
        return false;
    }
    return NetworkFileConverter::write(m_folder.path(base + QStringLiteral(".geom.jsn")), records, reason) &&
           writeFile(base + QStringLiteral(".geom.cfg"), configuration, reason);
  }

  bool writeScenario(const Scenario &scenario, QString *reason) {
    const QString base = baseOf(scenario.name);
    const QString folder = scenario.name + QLatin1Char('/');
    const QByteArray configuration =
        json({{QStringLiteral("workDir"), scenario.name},
              {QStringLiteral("scenFile"), base + QStringLiteral(".scen")},
              {QStringLiteral("gasFile"), base + QStringLiteral(".gas")},
              {QStringLiteral("comprDatabase"),
               m_machines.isEmpty() ? QString() : QStringLiteral("../") + baseOf(m_case) + QStringLiteral(".cs")}});
    return NetworkFileConverter::write(m_folder.path(folder + base + QStringLiteral(".scen.jsn")), scenario.setPoints,
                                       reason) &&
           NetworkFileConverter::write(m_folder.path(folder + base + QStringLiteral(".gas.jsn")),
                                       std::vector<Record>{m_net.gas()}, reason) &&
           writeFile(folder + QStringLiteral("scenconfig.jsn"), configuration, reason) &&
           writeFile(folder + SolverConfiguration, "{}\n", reason);
  }

  const GasLibImport::Request &m_request;
  GasLibImport::Result m_result;
  GasLibNetwork m_net;
  QString m_case;
  StagedFolder m_folder;
  std::vector<Scenario> m_scenarios;
  QString m_machines; ///< path, empty for none
  std::vector<Record> m_drives;
};

} // namespace

GasLibImport::Result GasLibImport::import(const Request &request) {
  return Import(request).run();
}

bool GasLibImport::isNetwork(const QString &name) {
  return name.endsWith(QStringLiteral(".net"), Qt::CaseInsensitive);
}
