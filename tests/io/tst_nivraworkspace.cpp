#include <base/fileaccess.h>
#include <base/generalsettings.h>
#include <io/nivraworkspace.h>
#include <io/scenariosummary.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QDir>
#include <QTemporaryDir>

#include <algorithm>
#include <sys/stat.h>

namespace {

using SmallFiles::write;

/// The number of findings that are not for the log file alone.
int countTold(const Findings &findings) {
  return static_cast<int>(std::count_if(findings.begin(), findings.end(), [](const Finding &finding) {
    return finding.severity != Finding::Severity::Debug;
  }));
}

QStringList boxes(const Findings &findings) {
  QStringList list;
  for (const Finding &finding : findings) {
    if (!finding.box.isEmpty())
      list.append(finding.box);
  }
  return list;
}

} // namespace

class TestNivraWorkspace : public QObject {
  Q_OBJECT

private slots:
  void init();
  void resolves_data();
  void resolves();
  void theChosenFileIsRead_data();
  void theChosenFileIsRead();
  void refuses_data();
  void refuses();
  void tellsWhenAnotherFileIsRead();
  void caseConfiguration_data();
  void caseConfiguration();
  void oneLineScenarioConfiguration();
  void multiLineScenarioConfiguration();
  void unifiedScenarioConfiguration();
  void oddScenarioConfigurations_data();
  void oddScenarioConfigurations();
  void gasParametersKeepWhatIsNotGiven();
  void summaryTellsValuesAndTheirFiles();
  void specialFilesAreRefused_data();
  void specialFilesAreRefused();

private:
  QString path(const QString &name) const { return m_folder->filePath(name); }
  NivraWorkspace scenario() const { return NivraWorkspace::fromFile(path(QStringLiteral("CASE/S1/run.scen.jsn"))); }

  std::unique_ptr<QTemporaryDir> m_folder;
};

void TestNivraWorkspace::init() {
  m_folder = std::make_unique<QTemporaryDir>();
  write(path(QStringLiteral("CASE/net.geom.jsn")), "{\n}\n");
  write(path(QStringLiteral("CASE/S1/run.scen.jsn")), "{\n}\n");
}

void TestNivraWorkspace::resolves_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<bool>("json");
  QTest::addColumn<bool>("scenario");
  QTest::newRow("geometry") << QStringLiteral("CASE/net.geom.jsn") << true << false;
  QTest::newRow("longer suffix") << QStringLiteral("CASE/net.geom.json") << true << false;
  QTest::newRow("text") << QStringLiteral("CASE/net.geom") << false << false;
  QTest::newRow("scenario") << QStringLiteral("CASE/S1/run.scen.jsn") << true << true;
}

void TestNivraWorkspace::resolves() {
  QFETCH(QString, file);
  QFETCH(bool, json);
  QFETCH(bool, scenario);
  write(path(file), "{\n}\n");
  const NivraWorkspace workspace = NivraWorkspace::fromFile(path(file));
  QVERIFY(workspace.isValid());
  QCOMPARE(workspace.root(), m_folder->path());
  QCOMPARE(workspace.isJson(), json);
  QCOMPARE(workspace.hasScenario(), scenario);
  QCOMPARE(workspace.currentCase()->name, QStringLiteral("CASE"));
  QCOMPARE(workspace.geometryPath(), path(QStringLiteral("CASE/net.geom")));
  QCOMPARE(workspace.currentCase()->configFile, QStringLiteral("net.geom.cfg"));
  QCOMPARE(workspace.filePath(QStringLiteral("vfd.csv")), path(QStringLiteral("CASE/vfd.csv")));
  QCOMPARE(workspace.scenarioPath(), scenario ? path(QStringLiteral("CASE/S1/run.scen")) : QString());
}

// Folders list their files in no order, so every one of several must open when it is chosen.
void TestNivraWorkspace::theChosenFileIsRead_data() {
  QTest::addColumn<QString>("file");
  for (const char *file :
       {"CASE/net.geom.jsn", "CASE/variant.geom.jsn", "CASE/other.geom.json", "CASE/b.geom", "CASE/net.v2.geom",
        "CASE/X-134.v2.geom.jsn", "CASE/S1/run.scen.jsn", "CASE/S1/second.scen.jsn", "CASE/S1/N1.v2.scen.jsn"})
    QTest::newRow(file) << QString::fromLatin1(file);
}

void TestNivraWorkspace::theChosenFileIsRead() {
  QFETCH(QString, file);
  for (const char *name : {"variant.geom.jsn", "other.geom.json", "b.geom", "net.v2.geom", "X-134.v2.geom.jsn", "a.geom.jsn",
                           "S1/second.scen.jsn", "S1/N1.v2.scen.jsn"})
    write(path(QStringLiteral("CASE/") + QLatin1String(name)), "{\n}\n");
  write(path(QStringLiteral("CASE/variant.geom.cfg")), "x\nCASE\n");
  write(path(QStringLiteral("CASE/a.geom.cfg")), "x\nCASE\n");
  const NivraWorkspace workspace = NivraWorkspace::fromFile(path(file));
  const QString read = file.contains(QStringLiteral(".scen")) ? workspace.scenarioPath() : workspace.geometryPath();
  const QString textForm = path(file).remove(QRegularExpression(QStringLiteral("\\.jso?n$")));
  QCOMPARE(read, textForm);
  if (file.contains(QStringLiteral("variant")))
    QCOMPARE(workspace.currentCase()->configFile, QStringLiteral("variant.geom.cfg"));
}

void TestNivraWorkspace::refuses_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QString>("message");
  QTest::newRow("format") << QStringLiteral("CASE/net.geo")
                          << QStringLiteral("NivraWorkspace::fromScenFile(): invalid file format");
  QTest::newRow("case of the suffix") << QStringLiteral("CASE/net.GEOM")
                                      << QStringLiteral("NivraWorkspace::fromScenFile(): invalid file format");
  QTest::newRow("missing") << QStringLiteral("CASE/none.geom")
                           << QStringLiteral("NivraWorkspace::fromFile(): File does not exist");
  QTest::newRow("folder") << QStringLiteral("FOLDER.geom")
                          << QStringLiteral("NivraWorkspace::fromFile(): File does not exist");
}

void TestNivraWorkspace::refuses() {
  QFETCH(QString, file);
  QFETCH(QString, message);
  QDir().mkpath(path(QStringLiteral("FOLDER.geom")));
  const NivraWorkspace workspace = NivraWorkspace::fromFile(path(file));
  QVERIFY(!workspace.isValid());
  QCOMPARE(workspace.findings().size(), std::size_t(1));
  const Finding &why = workspace.findings().front();
  QCOMPARE(why.severity, Finding::Severity::Critical);
  QVERIFY2(why.text.startsWith(message), qPrintable(why.text));
}

void TestNivraWorkspace::tellsWhenAnotherFileIsRead() {
  for (const char *name : {"CASE/net.geom", "CASE/net.old.geom"})
    write(path(QLatin1String(name)), "[node]\nname\n");
  const NivraWorkspace workspace = NivraWorkspace::fromFile(path(QStringLiteral("CASE/net.old.geom")));
  QCOMPARE(QFileInfo(workspace.geometryPath()).fileName(), QStringLiteral("net.geom"));
  QCOMPARE(workspace.findings().front().text, QStringLiteral("NivraWorkspace set to ") + workspace.root());
  const Finding &other = workspace.findings().back();
  QCOMPARE(other.severity, Finding::Severity::Warning);
  QVERIFY2(other.text.contains(QStringLiteral("net.old.geom was chosen")), qPrintable(other.text));
}

void TestNivraWorkspace::caseConfiguration_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<bool>("flag");
  QTest::addColumn<int>("findings");
  QTest::newRow("whole") << QByteArray("geometry x y\r\n CASE \r\nnet.geom\r\n1\r\n{\"a\":\"b\"}\r\n") << true << 0;
  QTest::newRow("three lines") << QByteArray("x\nCASE\nnet.geom") << false << 0;
  QTest::newRow("other directory") << QByteArray("x\nELSEWHERE\nnet.geom\n") << false << 1;
  QTest::newRow("one line") << QByteArray("x") << false << 1;
  QTest::newRow("broken properties") << QByteArray("x\nCASE\nnet.geom\n0\n{a}") << false << 1;
  QTest::newRow("binary") << QByteArray("\x00\xff\n\xfe\n", 5) << false << 1;
}

void TestNivraWorkspace::caseConfiguration() {
  QFETCH(QByteArray, text);
  QFETCH(bool, flag);
  QFETCH(int, findings);
  write(path(QStringLiteral("CASE/net.geom.cfg")), text);
  NivraWorkspace workspace = scenario();
  Findings found;
  QCOMPARE(workspace.readCaseConfiguration(found), 0);
  QCOMPARE(countTold(found), findings);
  QCOMPARE(workspace.currentCase()->workDir, QStringLiteral("CASE"));
  QCOMPARE(workspace.currentCase()->flag, flag);

  QFile::remove(path(QStringLiteral("CASE/net.geom.cfg")));
  Findings missing;
  QCOMPARE(workspace.readCaseConfiguration(missing), -1);
  QCOMPARE(boxes(missing),
           QStringList{QStringLiteral("Case config file does not exist: ") + path(QStringLiteral("CASE/net.geom.cfg"))});
  GeneralSettings::instance().setValue(QStringLiteral("PELKA mode"), QStringLiteral("on"));
  Findings quiet;
  workspace.readCaseConfiguration(quiet);
  GeneralSettings::instance().reset();
  QCOMPARE(countTold(quiet), 1);
  QVERIFY(boxes(quiet).isEmpty());
}

void TestNivraWorkspace::oneLineScenarioConfiguration() {
  QStringList fields;
  for (int i = 0; i < 34; ++i)
    fields.append(QString::number(i));
  fields[0] = QStringLiteral("OTHER");
  fields[8] = QStringLiteral("is1");
  write(path(QStringLiteral("CASE/S1/run.scen.cfg")),
        (fields.join(QStringLiteral("  ")) +
         QStringLiteral(" NIVRA_ntype_HTC=3 REG_PAR_eps=0.5 my=key NivraVersion_used=7 stop a=b"))
            .toUtf8());
  NivraWorkspace workspace = scenario();
  NivraGasParams gas;
  Findings findings;
  workspace.readScenarioConfiguration(gas, findings);
  const NivraScenario &read = *workspace.currentScenario();
  QCOMPARE(read.workDir, QStringLiteral("S1"));
  QCOMPARE(boxes(findings),
           QStringList{QStringLiteral(
               "Directory of scenario and config value for it did not match!\nCorrected! Perform a save yourself!")});
  QCOMPARE(read.gasFile, QStringLiteral("2"));
  QCOMPARE(read.comprDatabase, QStringLiteral("31"));
  QCOMPARE(read.statusFile, QStringLiteral("32"));
  QCOMPARE(read.version, QStringLiteral("7"));
  QCOMPARE(read.generalProps, (QMap<QString, QString>{{QStringLiteral("my"), QStringLiteral("key")}}));
  QVERIFY(gas.ntype_transient && !gas.ntype_steady);
  QCOMPARE(gas.tsoil, 22.0);
  QCOMPARE(gas.tamb, 33.0);
  QCOMPARE(gas.positional.field24, 24.0);
  QCOMPARE(gas.ntype_HTC, 3);
  QCOMPARE(gas.REG_PAR_eps, 0.5);
}

void TestNivraWorkspace::multiLineScenarioConfiguration() {
  write(path(QStringLiteral("CASE/S1/run.scen.cfg")), "S1\nrun.scen\nH2 mix.gas\n\nx\n1");
  NivraWorkspace workspace = scenario();
  NivraGasParams gas;
  Findings findings;
  workspace.readScenarioConfiguration(gas, findings);
  QCOMPARE(countTold(findings), 0);
  QCOMPARE(workspace.currentScenario()->gasFile, QStringLiteral("H2 mix.gas"));
  QCOMPARE(gas.ntype_gasLaw, 0); // an unreadable number
  QCOMPARE(gas.ntype_hydraulicsFormula, 1);
  QCOMPARE(gas.ntype_gasMix, 1);
}

void TestNivraWorkspace::unifiedScenarioConfiguration() {
  write(path(QStringLiteral("CASE/S1/solverconfig.jsn")),
        "\xEF\xBB\xBF{\"ntype_gasLaw\":2,\"ntype_transient\":1,\"source\":{\"tamb\":\"file\"}}");
  write(path(QStringLiteral("CASE/S1/scenconfig.jsn")), R"({"workDir":"S1","gasFile":"a.gas","GeneralProps":{"k":"v"}})");
  NivraWorkspace workspace = scenario();
  NivraGasParams gas;
  Findings findings;
  workspace.readScenarioConfiguration(gas, findings);
  QVERIFY(boxes(findings).isEmpty());
  QCOMPARE(findings.size(), std::size_t(7)); // for each key that the file lacks
  QCOMPARE(findings.front().text, QStringLiteral("NivraScenario::fromJson: key scenFile does not exist"));
  QCOMPARE(findings.front().severity, Finding::Severity::Information);
  QCOMPARE(gas.ntype_gasLaw, 2);
  QVERIFY(!gas.ntype_transient); // a number is no truth value
  QCOMPARE(gas.source.value(QStringLiteral("tamb")), QStringLiteral("file"));
  const NivraScenario &read = *workspace.currentScenario();
  QCOMPARE(read.gasFile, QStringLiteral("a.gas"));
  QCOMPARE(read.logFile, QStringLiteral("nivra_run.log"));
  QCOMPARE(read.scenFile, QStringLiteral("run.scen"));
}

void TestNivraWorkspace::oddScenarioConfigurations_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::newRow("empty") << QByteArray();
  QTest::newRow("one word") << QByteArray("S1");
  QTest::newRow("ten thousand fields") << QByteArray("S1 ") + QByteArray("x ").repeated(10000) + "NivraVersion_used=1";
  QTest::newRow("ten thousand lines") << QByteArray("S1\n") + QByteArray("9\n").repeated(10000);
  QTest::newRow("binary") << QByteArray("\x00\x01\xff\n\x00", 5);
}

void TestNivraWorkspace::oddScenarioConfigurations() {
  QFETCH(QByteArray, text);
  write(path(QStringLiteral("CASE/S1/run.scen.cfg")), text);
  NivraWorkspace workspace = scenario();
  NivraGasParams gas;
  Findings findings;
  workspace.readScenarioConfiguration(gas, findings);
  QCOMPARE(workspace.currentScenario()->workDir, QStringLiteral("S1"));
  QVERIFY(workspace.hasScenario());
}

void TestNivraWorkspace::gasParametersKeepWhatIsNotGiven() {
  NivraGasParams gas;
  gas.fromJson({});
  QCOMPARE(gas.ntype_gasLaw, 1);
  gas.fromJson({{QStringLiteral("tamb"), QStringLiteral("warm")},
                {QStringLiteral("CompThermo"), 1e300},
                {QStringLiteral("ntype_gasMix"), 1.5}});
  QCOMPARE(gas.tamb, 285.15);
  QCOMPARE(gas.CompThermo, 0);
  QCOMPARE(gas.ntype_gasMix, 1);
  QCOMPARE(NivraGasParams::names(QStringLiteral("ntype_gasLaw")).value(gas.ntype_gasLaw), QStringLiteral("dc92"));
}

void TestNivraWorkspace::summaryTellsValuesAndTheirFiles() {
  write(path(QStringLiteral("CASE/net.geom.cfg")), "x\nCASE\nnet.geom\n1\n{\"owner\":\"me\"}\n");
  write(path(QStringLiteral("CASE/S1/solverconfig.jsn")),
        R"({"ntype_gasLaw":2,"tsoil":281.5,"source":{"tsoil":"measured"},"comment":{"tsoil":"in May"}})");
  write(
      path(QStringLiteral("CASE/S1/scenconfig.jsn")),
      R"({"workDir":"S1","pyFile":"go.py","statusFile":"go.stat","NivraVersion_used":"3.1","GeneralProps":{"mode":"fast"}})");
  NivraWorkspace workspace = scenario();
  NivraGasParams gas;
  Findings findings;
  workspace.readCaseConfiguration(findings);
  workspace.readScenarioConfiguration(gas, findings);
  element hydrogen;
  hydrogen.set(QStringLiteral("rhon"), QStringLiteral("0.09"));
  const ScenarioSummary summary = ScenarioSummary::of(workspace, gas, {{QStringLiteral("Hydrogen"), hydrogen}},
                                                      {workspace.geometryPath(), QStringLiteral("/gas")});
  const auto row = [&summary](const char *name) {
    QStringList told;
    for (const ScenarioSummary::Row &candidate : summary.rows) {
      if (candidate.name == QLatin1String(name))
        told = QStringList{candidate.section, candidate.value, QFileInfo(candidate.source).fileName(), candidate.comment};
    }
    return told.join(QLatin1Char('|'));
  };
  QCOMPARE(row("owner"), QStringLiteral("Case|me|net.geom.cfg|"));
  QCOMPARE(row("pyFile"), QStringLiteral("Scenario|go.py|scenconfig.jsn|"));
  QCOMPARE(row("statusFile"), QStringLiteral("Scenario|go.stat|scenconfig.jsn|"));
  QCOMPARE(row("logFile"), QStringLiteral("Scenario|nivra_run.log||"));
  QCOMPARE(row("NivraVersion_used"), QStringLiteral("Scenario|3.1|scenconfig.jsn|"));
  QCOMPARE(row("mode"), QStringLiteral("General properties|fast|scenconfig.jsn|"));
  QCOMPARE(row("ntype_gasLaw"), QStringLiteral("Gas law and solver|2 (papay)|solverconfig.jsn|"));
  QCOMPARE(row("tsoil"), QStringLiteral("Gas law and solver|281.5|solverconfig.jsn|measured; in May"));
  QCOMPARE(row("tamb"), QStringLiteral("Gas law and solver|285.15||"));
  QCOMPARE(row("field21"), QStringLiteral("Further fields|1 (on)||"));
  QCOMPARE(summary.gases.at(QStringLiteral("Hydrogen")).value(QStringLiteral("rhon")), QStringLiteral("0.09"));
  QCOMPARE(summary.gasFile, QStringLiteral("/gas"));
  QVERIFY(summary.hasScenario);
  QCOMPARE(summary.root, workspace.root());
}

void TestNivraWorkspace::specialFilesAreRefused_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<bool>("isPipe");
  for (const char *name : {"net.geom.cfg", "S1/run.scen.cfg", "S1/solverconfig.jsn", "S1/scenconfig.jsn"}) {
    QTest::addRow("%s is a pipe", name) << QString::fromLatin1(name) << true;
    QTest::addRow("%s leads out", name) << QString::fromLatin1(name) << false;
  }
}

// Neither hangs nor reads what is not the workspace's.
void TestNivraWorkspace::specialFilesAreRefused() {
  QFETCH(QString, name);
  QFETCH(bool, isPipe);
  QTemporaryDir elsewhere;
  const QString stranger = elsewhere.filePath(QStringLiteral("stranger"));
  write(stranger, R"({"tsoil":1,"pyFile":"stolen"})");
  if (name.endsWith(QStringLiteral("scenconfig.jsn")))
    write(path(QStringLiteral("CASE/S1/solverconfig.jsn")), "{}");
  const QString at = path(QStringLiteral("CASE/") + name);
  if (isPipe)
    QCOMPARE(::mkfifo(QFile::encodeName(at).constData(), 0600), 0);
  else
    QVERIFY(QFile::link(stranger, at));
  FileAccess::confineTo(m_folder->path());
  NivraWorkspace workspace = scenario();
  NivraGasParams gas;
  Findings findings;
  workspace.readCaseConfiguration(findings);
  workspace.readScenarioConfiguration(gas, findings);
  FileAccess::confineTo(QString());
  QString told;
  for (const Finding &finding : findings)
    told += finding.text;
  QCOMPARE(gas.tsoil, NivraGasParams().tsoil);
  QCOMPARE(workspace.currentScenario()->pyFile, NivraScenario().pyFile);
  if (!name.endsWith(QStringLiteral("solverconfig.jsn"))) // the way on to the text form is logged for debugging alone
    QVERIFY2(told.contains(isPipe ? QStringLiteral("not a regular file") : QStringLiteral("leads out")), qPrintable(told));
}

NIVRA_TEST(TestNivraWorkspace);
#include "tst_nivraworkspace.moc"
