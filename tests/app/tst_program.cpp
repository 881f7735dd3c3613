#include "programrun.h"
#include "workspacefixture.h"

#include <support/nivratest.h>

#include <QElapsedTimer>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cmath>

using ProgramRun::Outcome;
using ProgramRun::run;

/// The program itself, run in a process of its own.
class TestProgram : public QObject {
  Q_OBJECT

private slots:
  void answersWithoutAWorkspace();
  void infoCounts();
  void infoTellsTheScenario();
  void formulasAreComputed();
  void findingsAreSaidOnce();
  void secondsAddUp();
  void commandLineLeavesTheWindowsLogAlone();
  void picture_data();
  void picture();
  void pictureByOtherFunctions();
  void badFiles_data();
  void badFiles();
  void shortMemoryLosesNothingUntold();
  void badNetworks_data();
  void badNetworks();
  void badSurroundings_data();
  void badSurroundings();
  void realNetworks_data();
  void realNetworks();

private:
  WorkspaceFixture m_workspace;
  QTemporaryDir m_data;
};

void TestProgram::answersWithoutAWorkspace() {
  QCOMPARE(run({QStringLiteral("--version")}, m_data.path()).output.left(13), QByteArray("Nivra Reader "));
  QVERIFY(run({QStringLiteral("--help")}, m_data.path()).output.contains("--export"));
  const Outcome wrong = run({QStringLiteral("--nonsense")}, m_data.path());
  QCOMPARE(wrong.status, 2);
  QVERIFY(!wrong.errors.isEmpty());
}

void TestProgram::infoCounts() {
  const Outcome outcome = run({QStringLiteral("--info"), m_workspace.scenario()}, m_data.path());
  QCOMPARE(outcome.status, 0);
  const QJsonObject info = outcome.info();
  QCOMPARE(info[QStringLiteral("case")].toString(), QStringLiteral("CASE"));
  QCOMPARE(info[QStringLiteral("scenario")].toString(), QStringLiteral("S1"));
  QCOMPARE(info[QStringLiteral("nodes")].toInt(), 3);
  QCOMPARE(info[QStringLiteral("edges")].toInt(), 2);
  QCOMPARE(info[QStringLiteral("properties")].toInt(), 27); // 5 of each node, 6 and 5 of the edges, a set point
  QCOMPARE(info[QStringLiteral("types")].toObject()[QStringLiteral("c")].toInt(), 1);
  for (const char *stage : {"read", "check", "formulas", "draw"})
    QVERIFY2(info[QStringLiteral("seconds")].toObject().contains(QLatin1String(stage)), stage);
  QVERIFY(info[QStringLiteral("peakMemoryMB")].toDouble() > 1.0);
}

void TestProgram::infoTellsTheScenario() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/S1/S1.gas.jsn"), "{\n\"Hydrogen\":{\"obj_type\":\"gas\",\"hs\":12.7}\n}\n");
  workspace.write(QStringLiteral("CASE/S1/solverconfig.jsn"), "{\"tsoil\":280,\"comment\":{\"tsoil\":\"in May\"}}");
  const QJsonObject told = run({QStringLiteral("--info"), workspace.scenario()}, m_data.path())
                               .info()[QStringLiteral("scenarioSettings")]
                               .toObject();
  QCOMPARE(told[QStringLiteral("gases")].toObject()[QStringLiteral("Hydrogen")].toObject()[QStringLiteral("hs")].toString(),
           QStringLiteral("12.7"));
  QVERIFY(told[QStringLiteral("gasFile")].toString().endsWith(QStringLiteral("CASE/S1/S1.gas.jsn")));
  QStringList rows;
  for (const QJsonValue &section : told[QStringLiteral("sections")].toArray()) {
    for (const QJsonValue &row : section[QStringLiteral("rows")].toArray())
      rows.append(QStringList{section[QStringLiteral("name")].toString(), row[QStringLiteral("name")].toString(),
                              row[QStringLiteral("value")].toString(),
                              row[QStringLiteral("source")].toString().section(QLatin1Char('/'), -1),
                              row[QStringLiteral("comment")].toString()}
                      .join(QLatin1Char('|')));
  }
  for (const char *expected :
       {"Case|geometry|CASE.geom|CASE.geom.jsn|", "Scenario|workDir|S1|scenconfig.jsn|",
        "Gas law and solver|tsoil|280|solverconfig.jsn|in May", "Gas law and solver|tamb|285.15|default|"})
    QVERIFY2(rows.contains(QLatin1String(expected)), qPrintable(rows.join(QLatin1Char('\n'))));
}

void TestProgram::formulasAreComputed() {
  const WorkspaceFixture workspace;
  workspace.write(QStringLiteral("CASE/a.formulas"), "dp(p) = p@node1@ELE - p@node2@ELE\n[results]\ntwice(p) = 2 * dp\n");
  workspace.write(QStringLiteral("CASE/S1/b.constraints"), "dp(p) in .. 1 \"drop\"\nqset(n) in 0 ..\nnot a line\n");
  const auto ask = [&](const QString &file) {
    return run({QStringLiteral("--info"), file}, m_data.path()).info();
  };
  const QJsonObject with = ask(workspace.scenario());
  QCOMPARE(with[QStringLiteral("properties")].toInt(), 27 + 2 + 2); // dp, twice; CB_info of P1 and A
  const QString warnings = with[QStringLiteral("warnings")].toVariant().toStringList().join(QLatin1Char('\n'));
  const QString findings = with[QStringLiteral("findings")].toVariant().toStringList().join(QLatin1Char('\n'));
  QVERIFY2(findings.contains(QStringLiteral("b.constraints:3")), qPrintable(findings));
  QVERIFY2(findings.contains(QStringLiteral("drop")), qPrintable(findings)); // the bounds that are violated
  QVERIFY2(warnings.contains(QStringLiteral("2 bounds are violated")), qPrintable(warnings));
  QCOMPARE(ask(workspace.geometry())[QStringLiteral("properties")].toInt(), 26 + 1); // no scenario, no results
}

void TestProgram::findingsAreSaidOnce() {
  const WorkspaceFixture workspace;
  QByteArray geometry = WorkspaceFixture::soundGeometry();
  geometry.chop(2);
  for (int i = 0; i < 50; ++i)
    geometry += ",\"E" + QByteArray::number(i) + "\":{\"obj_type\":\"pipe\",\"node1\":\"A\",\"node2\":\"Z\"}\n";
  workspace.writeGeometry(geometry + "}\n");
  const QJsonObject info = run({QStringLiteral("--info"), workspace.geometry()}, m_data.path()).info();
  const QStringList findings = info[QStringLiteral("findings")].toVariant().toStringList();
  const QStringList warnings = info[QStringLiteral("warnings")].toVariant().toStringList();
  QVERIFY(findings.filter(QStringLiteral("E49")).size() >= 1);
  QVERIFY2(warnings.filter(QStringLiteral("E49")).isEmpty(), qPrintable(warnings.join(QLatin1Char('\n'))));
  for (const QString &text : findings + warnings)
    QVERIFY2(!text.contains(QLatin1Char('\n')) && text.size() < 300, qPrintable(text));
}

void TestProgram::secondsAddUp() {
  QElapsedTimer timer;
  timer.start();
  const QJsonObject seconds = run({QStringLiteral("--info"), QStringLiteral("--export"),
                                   m_data.filePath(QStringLiteral("timed.png")), m_workspace.scenario()},
                                  m_data.path())
                                  .info()[QStringLiteral("seconds")]
                                  .toObject();
  const double clock = static_cast<double>(timer.elapsed()) * 1e-3;
  const double total = seconds[QStringLiteral("total")].toDouble();
  double sum = 0.0;
  for (const QJsonValue &stage : seconds)
    sum += stage.toDouble();
  QVERIFY(std::abs(sum - 2.0 * total) < 1e-9);
  QVERIFY2(total > 0.5 * clock && total < clock + 0.02, qPrintable(QStringLiteral("%1 of %2").arg(total).arg(clock)));
}

void TestProgram::commandLineLeavesTheWindowsLogAlone() {
  const QTemporaryDir data;
  const QString folder = data.filePath(QStringLiteral("Nivra/NivraReader/"));
  QVERIFY(QDir().mkpath(folder));
  const auto write = [&](const QString &name, const QByteArray &text) {
    QFile file(folder + name);
    file.open(QIODevice::WriteOnly);
    file.write(text);
  };
  write(QStringLiteral("NivraViewer.log"), "the window's");
  write(QStringLiteral("crash"), QByteArray());
  QCOMPARE(run({QStringLiteral("--info"), m_workspace.scenario()}, data.path()).status, 0);
  QFile log(folder + QStringLiteral("NivraViewer.log"));
  QVERIFY(log.open(QIODevice::ReadOnly));
  QCOMPARE(log.readAll(), QByteArray("the window's"));
  QVERIFY(QFile::exists(folder + QStringLiteral("crash")));
  QVERIFY(QFile(folder + QStringLiteral("NivraViewerBatch.log")).size() > 0);
}

void TestProgram::picture_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<int>("status");
  QTest::addColumn<QByteArray>("begins");
  QTest::newRow("png") << QStringLiteral("a.png") << 0 << QByteArray("\x89PNG");
  QTest::newRow("pdf") << QStringLiteral("a.PDF") << 0 << QByteArray("%PDF");
  QTest::newRow("svg") << QStringLiteral("a.svg") << 0 << QByteArray("<?xml");
  QTest::newRow("no such format") << QStringLiteral("a.xyz") << 1 << QByteArray();
  QTest::newRow("no such folder") << QStringLiteral("none/a.png") << 1 << QByteArray();
}

void TestProgram::picture() {
  QFETCH(QString, name);
  QFETCH(int, status);
  QFETCH(QByteArray, begins);
  const QString path = m_data.filePath(name);
  const Outcome outcome =
      run({QStringLiteral("--export"), path, QStringLiteral("--width"), QStringLiteral("400"), m_workspace.geometry()},
          m_data.path());
  QCOMPARE(outcome.status, status);
  QFile file(path);
  QCOMPARE(file.open(QIODevice::ReadOnly), status == 0);
  QVERIFY(file.isOpen() ? file.readAll().startsWith(begins) : outcome.errors.contains(path.toUtf8()));
}

void TestProgram::pictureByOtherFunctions() {
  const QString path = m_data.filePath(QStringLiteral("by.svg"));
  const auto exported = [&](const QString &property) {
    return run({QStringLiteral("--export"), path, QStringLiteral("--color-by"), property, QStringLiteral("--extent"),
                QStringLiteral("-10,-10,60,60"), m_workspace.geometry()},
               m_data.path());
  };
  QCOMPARE(exported(QStringLiteral("volume flow")).status, 0);
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray text = file.readAll();
  QVERIFY(text.contains("volume flow [1000 m³/h] – edges"));
  QCOMPARE(exported(QStringLiteral("accum. length")).status, 0);
  const Outcome unknown = exported(QStringLiteral("colour"));
  QCOMPARE(unknown.status, 1);
  QVERIFY(unknown.errors.contains("colour"));
}

// Whatever there is memory for: either the whole picture or a failure with its reason.
void TestProgram::shortMemoryLosesNothingUntold() {
#ifdef __SANITIZE_ADDRESS__
  QSKIP("the sanitizer needs more address space than any limit leaves");
#endif
  const QString path = m_data.filePath(QStringLiteral("short.png"));
  const auto exported = [&](const QString &limit) {
    QFile::remove(path);
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), m_data.path());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("ulimit -v %1; exec \"$@\"").arg(limit),
                                         QStringLiteral("sh"), QStringLiteral(NIVRA_PROGRAM), QStringLiteral("--export"),
                                         path, QStringLiteral("--width"), QStringLiteral("8000"), m_workspace.scenario()});
    process.waitForFinished(120000);
    return Outcome{process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
  };
  QCOMPARE(exported(QStringLiteral("unlimited")).status, 0);
  const QImage whole(path);
  QVERIFY(!whole.isNull());
  int failures = 0;
  for (int megabytes = 200; megabytes <= 700; megabytes += 100) {
    const Outcome outcome = exported(QString::number(megabytes * 1024));
    if (outcome.status == 0) {
      QCOMPARE(QImage(path), whole);
      continue;
    }
    ++failures;
    QVERIFY2(!outcome.errors.isEmpty() && !QFile::exists(path), qPrintable(QString::number(megabytes)));
  }
  QVERIFY(failures > 0);
}

void TestProgram::badFiles_data() {
  QTest::addColumn<QString>("path");
  QTest::newRow("missing") << m_workspace.path(QStringLiteral("CASE/none.geom.jsn"));
  QTest::newRow("not a network file") << m_workspace.path(QStringLiteral("CASE/CASE.geom.cfg"));
  QDir(m_workspace.root()).mkpath(QStringLiteral("FOLDER/a.geom.jsn"));
  QTest::newRow("folder in place of a file") << m_workspace.path(QStringLiteral("FOLDER/a.geom.jsn"));
  QTest::newRow("empty name") << QString();
}

void TestProgram::badFiles() {
  QFETCH(QString, path);
  const Outcome outcome = run({QStringLiteral("--info"), path}, m_data.path());
  QCOMPARE(outcome.status, 1);
  QVERIFY(outcome.output.isEmpty());
  QVERIFY2(outcome.errors.contains(path.toUtf8()), outcome.errors.constData());
}

void TestProgram::badNetworks_data() {
  QTest::addColumn<QByteArray>("geometry");
  QTest::addColumn<int>("nodes");
  QTest::addColumn<int>("edges");
  QTest::addColumn<bool>("warned");
  const QByteArray sound = WorkspaceFixture::soundGeometry();
  QTest::newRow("sound") << sound << 3 << 2 << false;
  QTest::newRow("empty") << QByteArray() << 0 << 0 << true;
  QTest::newRow("truncated") << sound.left(sound.size() - 30) << 3 << 1 << true;
  QTest::newRow("binary") << QByteArray("\x00\x01\xff\xfe\n\x89PNG\r\n\x1a\n", 14) << 0 << 0 << true;
  QTest::newRow("self-loop") << QByteArray(sound).replace("\"node2\":\"B\"", "\"node2\":\"A\"") << 3 << 2 << false;
  QTest::newRow("edge to nothing") << QByteArray(sound).replace("\"node2\":\"B\"", "\"node2\":\"Z\"") << 3 << 1 << true;
  QTest::newRow("far apart") << QByteArray(sound).replace("\"x\":100,\"y\":0", "\"x\":1e19,\"y\":-1e19") << 3 << 2 << false;
  QTest::newRow("beyond numbers") << QByteArray(sound).replace("\"x\":100,\"y\":0", "\"x\":\"inf\",\"y\":\"nan\"") << 3 << 2
                                  << false;
  QTest::newRow("overflow") << QByteArray(sound).replace("\"x\":100,\"y\":0", "\"x\":1e400,\"y\":0") << 3 << 2 << true;
  QTest::newRow("one point") << QByteArray(sound).replace("\"x\":100", "\"x\":0").replace("\"y\":80", "\"y\":0") << 3 << 2
                             << false;
  QTest::newRow("unknown type") << QByteArray(sound).replace("compressor", "airship") << 3 << 1 << true;
}

void TestProgram::badNetworks() {
  QFETCH(QByteArray, geometry);
  QFETCH(int, nodes);
  QFETCH(int, edges);
  QFETCH(bool, warned);
  m_workspace.writeGeometry(geometry);
  const Outcome outcome =
      run({QStringLiteral("--info"), QStringLiteral("--export"), m_data.filePath(QStringLiteral("bad.png")),
           QStringLiteral("--width"), QStringLiteral("300"), m_workspace.geometry()},
          m_data.path());
  m_workspace.writeGeometry(WorkspaceFixture::soundGeometry());
  QVERIFY2(outcome.status == 0, outcome.errors.constData());
  QCOMPARE(outcome.info()[QStringLiteral("nodes")].toInt(), nodes);
  QCOMPARE(outcome.info()[QStringLiteral("edges")].toInt(), edges);
  QCOMPARE(!outcome.info()[QStringLiteral("warnings")].toArray().isEmpty() ||
               !outcome.info()[QStringLiteral("findings")].toArray().isEmpty(),
           warned);
}

void TestProgram::badSurroundings_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<QByteArray>("contents");
  const QString settings = QStringLiteral("CASE/plotsettings.ini");
  const QString configuration = QStringLiteral("CASE/CASE.geom.cfg");
  QTest::newRow("settings are binary") << settings << QByteArray("\x00\xff\x01[[[", 6);
  QTest::newRow("settings of wrong types")
      << settings << QByteArray("nodeMag=wide\nzoomFact=0\n[magnitudes]\nedgeMag=-1e300\nsymMag=nan\n");
  QTest::newRow("configuration of one line") << configuration << QByteArray("geometry configuration");
  QTest::newRow("configuration of many fields") << configuration << QByteArray(10000, 'x').replace("x", "x ");
  QTest::newRow("scenario configuration is a list") << QStringLiteral("CASE/S1/scenconfig.jsn") << QByteArray("[1,2]");
  QTest::newRow("gas is broken") << QStringLiteral("CASE/S1/S1.gas.jsn") << QByteArray("{\n\"H\":{,}\n}");
}

void TestProgram::badSurroundings() {
  QFETCH(QString, file);
  QFETCH(QByteArray, contents);
  QFile present(m_workspace.path(file));
  const bool existed = present.open(QIODevice::ReadOnly);
  const QByteArray before = existed ? present.readAll() : QByteArray();
  m_workspace.write(file, contents);
  const Outcome outcome = run({QStringLiteral("--info"), QStringLiteral("--export"),
                               m_data.filePath(QStringLiteral("bad.png")), m_workspace.scenario()},
                              m_data.path());
  if (existed)
    m_workspace.write(file, before);
  else
    present.remove();
  QVERIFY2(outcome.status == 0, outcome.errors.constData());
  QCOMPARE(outcome.info()[QStringLiteral("nodes")].toInt(), 3);
}

void TestProgram::realNetworks_data() {
  QTest::addColumn<QString>("file");
  QTest::addColumn<int>("nodes");
  QTest::addColumn<int>("edges");
  const QString source = QStringLiteral(NIVRA_SOURCE_DIR);
  const QString data = source + QStringLiteral("/../shared/data/GasLib-%1/N1/N1.scen.jsn");
  QTest::newRow("11") << data.arg(11) << 13 << 11;
  QTest::newRow("40") << data.arg(40) << 46 << 45;
  QTest::newRow("135") << data.arg(135) << 164 << 170;
}

void TestProgram::realNetworks() {
  QFETCH(QString, file);
  QFETCH(int, nodes);
  QFETCH(int, edges);
  if (!QFile::exists(file))
    QSKIP("the network is not on this machine");
  const Outcome outcome = run({QStringLiteral("--info"), file}, m_data.path());
  QCOMPARE(outcome.status, 0);
  QCOMPARE(outcome.info()[QStringLiteral("nodes")].toInt(), nodes);
  QCOMPARE(outcome.info()[QStringLiteral("edges")].toInt(), edges);
  QStringList findings = outcome.info()[QStringLiteral("findings")].toVariant().toStringList();
  for (int i = findings.size() - 1; i >= 0; --i) { // the machines may lie elsewhere
    if (findings[i].contains(QStringLiteral("machine data cannot be read")))
      findings.removeAt(i);
  }
  QVERIFY2(findings.isEmpty(), qPrintable(findings.join(QLatin1Char('\n'))));
}

NIVRA_TEST(TestProgram);
#include "tst_program.moc"
