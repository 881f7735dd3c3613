#include "casescenarios.h"
#include "networkloader.h"
#include "workspacefixture.h"

#include <base/fileaccess.h>
#include <base/nivramsg.h>
#include <io/scenariofiles.h>
#include <support/answers.h>
#include <support/nivratest.h>

class TestNetworkLoader : public QObject {
  Q_OBJECT

private slots:
  void everythingReadIsReachable();
  void nothingOutsideTheWorkspaceIsRead();
  void whatIsNoFileIsNamed_data();
  void whatIsNoFileIsNamed();
  void assemblingCanBeCancelled();
  void scenariosBesideTheOpenOneAreReadQuietly();
};

void TestNetworkLoader::everythingReadIsReachable() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"Hydrogen\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n}\n");
  workspace.write(QStringLiteral("CASE/S1/S1.scen.cfg.jsn"), "{\"tsoil\":280,\"GeneralProps\":{\"mode\":\"fast\"}}");
  NetData net;
  NetworkLoader loader(net);
  QVERIFY(loader.resolve(workspace.scenario()));
  loader.readConfiguration();
  QVERIFY(loader.readNetwork({}));
  QCOMPARE(loader.gases().size(), std::size_t(1));
  QStringList told;
  for (const ScenarioSummary::Row &row : loader.scenarioSummary().rows)
    told.append(QStringLiteral("%1=%2 %3").arg(row.name, row.value, QFileInfo(row.source).fileName()));
  QCOMPARE(QFileInfo(loader.scenarioSummary().gasFile).fileName(), QStringLiteral("S1.gas.jsn"));
  for (const char *expected : {"tsoil=280 S1.scen.cfg.jsn", "mode=fast S1.scen.cfg.jsn", "workDir=S1 scenconfig.jsn",
                               "tamb=285.15 ", "scenFile=S1.scen S1.scen.jsn"})
    QVERIFY2(told.contains(QLatin1String(expected)), qPrintable(told.join(QLatin1Char('\n'))));
}

void TestNetworkLoader::nothingOutsideTheWorkspaceIsRead() {
  const WorkspaceFixture workspace;
  const WorkspaceFixture stranger;
  stranger.write(QStringLiteral("CASE/S1/S1.res.jsn"), "{\n\"A\":{\"secret\":1}\n}\n");
  QVERIFY(QFile::link(stranger.path(QStringLiteral("CASE/S1/S1.res.jsn")),
                      workspace.path(QStringLiteral("CASE/S1/S1.res.jsn"))));
  NetData net;
  NetworkLoader loader(net);
  QVERIFY(loader.resolve(workspace.scenario()));
  loader.readConfiguration();
  QVERIFY(loader.readNetwork({}));
  QVERIFY(!net.element(QStringLiteral("A"))->contains(QStringLiteral("secret")));
  QString told;
  for (const FindingList::Group &group : loader.noticed()) {
    for (const Finding &finding : group.findings)
      told += finding.logText();
  }
  QVERIFY2(told.contains(QStringLiteral("leads out of the workspace")), qPrintable(told));
  QVERIFY(!FileAccess::confinementFault(stranger.scenario()).isEmpty());
  QVERIFY(FileAccess::confinementFault(workspace.geometry()).isEmpty());
}

void TestNetworkLoader::whatIsNoFileIsNamed_data() {
  QTest::addColumn<QString>("name");
  for (const char *name : {"CASE/CASE.geom.jsn", "CASE/own.formulas", "CASE/S1/own.constraints", "CASE/S1/solverconfig.jsn"})
    QTest::addRow("%s", name) << QString::fromLatin1(name);
}

void TestNetworkLoader::whatIsNoFileIsNamed() {
  QFETCH(QString, name);
  const WorkspaceFixture workspace;
  QFile::remove(workspace.path(name));
  QVERIFY(QDir(workspace.root()).mkpath(name));
  NetData net;
  NetworkLoader loader(net);
  const NivraMsg::Recorder recorder;
  QVERIFY(loader.resolve(workspace.scenario()));
  loader.readConfiguration();
  loader.readNetwork({});
  QString told = recorder.lines().join(QLatin1Char('\n')) + loader.error();
  for (const FindingList::Group &group : loader.noticed()) {
    for (const Finding &finding : group.findings)
      told += finding.logText();
  }
  QVERIFY2(told.contains(workspace.path(name) + QStringLiteral(": is a directory")), qPrintable(told));
}

void TestNetworkLoader::scenariosBesideTheOpenOneAreReadQuietly() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::soundGeometry().replace("\n}\n",
                                                                    "\n,\"P9\":{\"obj_type\":\"pipe\",\"node1\":\"A\","
                                                                    "\"node2\":\"nobody\"}\n}\n"));
  for (const char *file : {"S2/S2.scen.json", "S3/other.scen.jsn", "S4/S4.scen"}) {
    const QString path = QStringLiteral("CASE/") + QLatin1String(file);
    QDir(workspace.root()).mkpath(QFileInfo(path).path());
    workspace.write(path, "{\n}\n");
  }
  NetData open;
  NetworkLoader loader(open);
  QVERIFY(loader.resolve(workspace.scenario()));
  std::map<QString, FindingList> noticed;
  const ScenarioSource scenarios = CaseScenarios::of(
      loader.workspace(), [&](const QString &scenario, const auto &groups) { noticed[scenario].set(groups); });
  QCOMPARE(scenarios.names(), (QStringList{QStringLiteral("S1"), QStringLiteral("S2"), QStringLiteral("S3")}));
  QCOMPARE(ScenarioFiles::in(workspace.path(QStringLiteral("CASE/S4")), ScenarioFiles::Form::Any),
           workspace.path(QStringLiteral("CASE/S4/S4.scen")));
  const Answers none({}); // what the check has to say stops nobody
  for (const char *name : {"S1", "S2"}) {
    NetData net;
    QString reason;
    QVERIFY2(scenarios.read(QLatin1String(name), net, {}, &reason), qPrintable(reason));
    QVERIFY(net.element(QStringLiteral("P1")) != nullptr);
    QVERIFY(noticed[QLatin1String(name)].count() > 0); // which somebody can look through afterwards
  }
  QVERIFY2(none.areGiven(), qPrintable(none.texts().join(QLatin1Char('\n'))));
  QVERIFY(NivraMsg::showsBoxes());
}

void TestNetworkLoader::assemblingCanBeCancelled() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  NetData net;
  NetworkLoader loader(net);
  QVERIFY(loader.resolve(workspace.scenario()));
  loader.readConfiguration();
  bool isAssembling = false;
  int asked = 0; // since the assembling began
  NetworkLoader::ReadOptions options;
  options.told = [&](const QString &text) {
    isAssembling = isAssembling || text.contains(QStringLiteral("Creating Subnets"));
  };
  options.progress = [&](double) {
    asked += isAssembling ? 1 : 0;
    return asked != 1; // who asks again gets another answer
  };
  QVERIFY(!loader.readNetwork(options));
  QVERIFY(loader.wasCancelled());
  QCOMPARE(loader.error(), QStringLiteral("Reading was cancelled."));
  QCOMPARE(asked, 1);
  QCOMPARE(loader.seconds().last().first, QStringLiteral("check")); // nothing came after it
  QVERIFY(!net.element(QStringLiteral("M"))->contains(QStringLiteral("elements")));
}

NIVRA_TEST(TestNetworkLoader);
#include "tst_networkloader.moc"
