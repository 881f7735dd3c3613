#include "programrun.h"
#include "workspacefixture.h"

#include <support/nivratest.h>

#include <QDirIterator>
#include <QImage>
#include <QTemporaryDir>

#include <memory>

using ProgramRun::Outcome;

/// Jobs of a JSON file, by the program itself.
class TestJobs : public QObject {
  Q_OBJECT

private slots:
  void init();
  void everythingOfAllScenarios();
  void oneBadJobLeavesTheOthersAlone();
  void statusTellsTheWorst();
  void filesThatAreNoJobs_data();
  void filesThatAreNoJobs();
  void badJobsSayWhere_data();
  void badJobsSayWhere();
  void outputStaysInItsFolder_data();
  void outputStaysInItsFolder();
  void linksLeadNowhere();
  void outputFolders();
  void picturesDoNotMixTheirSettings();
  void exampleReport();

private:
  static QByteArray quoted(QByteArray text) { return text.replace('\'', '"'); } ///< 'a' for "a", to be read by people
  void writeJobs(const QByteArray &text) const { m_workspace->write(QStringLiteral("jobs.json"), quoted(text)); }
  Outcome runJobs(const QStringList &more = {}) const {
    return ProgramRun::run(QStringList{QStringLiteral("--jobs"), m_workspace->path(QStringLiteral("jobs.json"))} + more,
                           m_data.path());
  }
  bool exists(const QString &name) const { return QFile::exists(m_workspace->path(name)); }
  QByteArray content(const QString &name) const {
    QFile file(m_workspace->path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  std::unique_ptr<WorkspaceFixture> m_workspace;
  QTemporaryDir m_data;
};

void TestJobs::init() {
  m_workspace = std::make_unique<WorkspaceFixture>();
  QDir(m_workspace->root()).mkpath(QStringLiteral("CASE/S10"));
  m_workspace->writeBalanced(QStringLiteral("S1"), "5");
  m_workspace->writeBalanced(QStringLiteral("S10"), "7");
  for (const char *scenario : {"S1", "S10"})
    m_workspace->write(QStringLiteral("CASE/%1/%1.gas.jsn").arg(QLatin1String(scenario)),
                       "{\n\"H\":{\"obj_type\":\"gas\",\"hs\":12.7}\n}\n");
}

void TestJobs::everythingOfAllScenarios() {
  writeJobs("{'jobs':[{'file':'CASE/CASE.geom.jsn','scenario':'*',"
            "'exports':[{'export':'{case}/{scenario}.png','width':300,'color-by':'q','labels':'name'},"
            "{'export':'{scenario}.svg','extent':[-10,-10,60,60]}],"
            "'tables':[{'table':['qset','p'],'type':'node','output':'{scenario}-nodes.csv'}],"
            "'searches':[{'search':['type=^p'],'output':'{scenario}.txt'}],"
            "'check':'{scenario}-findings.txt','info':'{scenario}.json'}]}");
  const Outcome outcome = runJobs({QStringLiteral("--output"), m_workspace->path(QStringLiteral("report"))});
  QVERIFY2(outcome.errors.isEmpty() && outcome.status == 0, outcome.errors.constData());
  QCOMPARE(outcome.lines(),
           (QStringList{QStringLiteral("job 1, CASE/S1: 2 pictures, 2 lists, 0 findings, 0 bounds violated"),
                        QStringLiteral("job 1, CASE/S10: 2 pictures, 2 lists, 0 findings, 0 bounds violated")}));
  QCOMPARE(QImage(m_workspace->path(QStringLiteral("report/CASE/S1.png"))).width(), 300);
  QVERIFY(content(QStringLiteral("report/S10.svg")).contains("<svg"));
  QVERIFY2(content(QStringLiteral("report/S1-nodes.csv")).contains("\"-5\""),
           content(QStringLiteral("report/S1-nodes.csv")));
  QVERIFY(content(QStringLiteral("report/S10-nodes.csv")).contains("\"-7\""));
  QCOMPARE(content(QStringLiteral("report/S10.txt")), QByteArray("P1\n"));
  QVERIFY(exists(QStringLiteral("report/S1-findings.txt")));
  QCOMPARE(QJsonDocument::fromJson(content(QStringLiteral("report/S10.json"))).object()[QStringLiteral("nodes")].toInt(), 3);
}

void TestJobs::oneBadJobLeavesTheOthersAlone() {
  writeJobs("{'output':'out','jobs':[{'file':'none/none.geom','check':true},"
            "{'file':'CASE/CASE.geom.jsn','scenario':['S1','S7'],'tables':[{'table':'nix','output':'a.csv'},"
            "{'table':'p','output':'{scenario}.csv'}]},"
            "{'file':'CASE/CASE.geom.jsn','exports':[{'export':'a.png','widht':3}]},"
            "{'file':'CASE/CASE.geom.jsn','searches':[{'search':'A','output':'a.txt'}]}]}");
  const Outcome outcome = runJobs();
  QCOMPARE(outcome.status, 1);
  for (const char *reason : {"job 1: there is no file", "job 2, CASE/S1: No element has the property \"nix\"",
                             "job 2: ", "\"S7\"", "jobs[2].exports[0]: \"widht\" is not known"})
    QVERIFY2(outcome.errors.contains(reason), outcome.errors.constData());
  QVERIFY(exists(QStringLiteral("out/S1.csv"))); // what else the second job does
  QVERIFY(!exists(QStringLiteral("out/a.csv")));
  QCOMPARE(content(QStringLiteral("out/a.txt")), QByteArray("A\n"));
}

void TestJobs::statusTellsTheWorst() {
  m_workspace->write(QStringLiteral("CASE/S10/b.constraints"), "p(n) in .. 55\n");
  const QByteArray checks = "{'file':'CASE/CASE.geom.jsn','scenario':'*','check':true}";
  writeJobs("{'jobs':[" + checks + "]}");
  const Outcome outcome = runJobs();
  QCOMPARE(outcome.status, 4);
  QVERIFY2(outcome.output.contains("CASE/S10: 0 findings, 1 bound violated"), outcome.output.constData());
  QVERIFY2(outcome.output.contains("Bounds: C: "), outcome.output.constData());
  writeJobs("{'jobs':[" + checks + ",{'file':'none.geom','check':true}]}");
  QCOMPARE(runJobs().status, 1);
}

void TestJobs::filesThatAreNoJobs_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QByteArray>("said");
  QTest::newRow("empty") << QByteArray() << QByteArray("line 1");
  QTest::newRow("broken") << QByteArray("{\n'jobs':[\n{,}]}") << QByteArray("line 3");
  QTest::newRow("list") << QByteArray("[1]") << QByteArray("is no object");
  QTest::newRow("no jobs") << QByteArray("{}") << QByteArray("\"jobs\" is missing");
  QTest::newRow("jobs are a text") << QByteArray("{'jobs':'a'}") << QByteArray("is no list");
  QTest::newRow("unknown member") << QByteArray("{'jobs':[],'job':1}") << QByteArray("\"job\" is not known");
  QTest::newRow("folder outside") << QByteArray("{'output':'../x','jobs':[]}") << QByteArray("../x");
  QTest::newRow("absolute folder") << QByteArray("{'output':'/tmp','jobs':[]}") << QByteArray("/tmp");
  QTest::newRow("deep") << "{'jobs':" + QByteArray(100000, '[') << QByteArray("line 1");
}

void TestJobs::filesThatAreNoJobs() {
  QFETCH(QByteArray, text);
  QFETCH(QByteArray, said);
  writeJobs(text);
  const Outcome outcome = runJobs();
  QCOMPARE(outcome.status, 1);
  QVERIFY2(outcome.errors.contains("jobs.json") || outcome.errors.contains("folder"), outcome.errors.constData());
  QVERIFY2(outcome.errors.contains(said), outcome.errors.constData());
}

void TestJobs::badJobsSayWhere_data() {
  QTest::addColumn<QByteArray>("job");
  QTest::addColumn<QByteArray>("said");
  const auto row = [](const char *job, const char *said) {
    QTest::newRow(job) << QByteArray(job) << QByteArray(said);
  };
  row("7", "jobs[0]: is no object");
  row("{'check':true}", "\"file\" is missing");
  row("{'file':7,'check':true}", "jobs[0].file: is no text");
  row("{'file':'CASE/CASE.geom.jsn'}", "nothing to do");
  row("{'file':'CASE/CASE.geom.jsn','check':'yes.exe'}", "ends in none of");
  row("{'file':'CASE/CASE.geom.jsn','check':7}", "jobs[0].check");
  row("{'file':'CASE/CASE.geom.jsn','info':true}", "jobs[0].info: is no name of a file");
  row("{'file':'CASE/CASE.geom.jsn','scenario':'../..','check':true}", "is no name of a scenario");
  row("{'file':'CASE/CASE.geom.jsn','scenario':[],'check':true}", "names none");
  row("{'file':'CASE/CASE.geom.jsn','exports':[{'width':3}]}", "\"export\" is missing");
  row("{'file':'CASE/CASE.geom.jsn','exports':[{'export':'a.png','width':'3'}]}", "exports[0].width: the width");
  row("{'file':'CASE/CASE.geom.jsn','exports':[{'export':'a.png','scale':-1}]}", "the scale");
  row("{'file':'CASE/CASE.geom.jsn','exports':[{'export':'a.png','extent':[1,2,3]}]}", "the extent");
  row("{'file':'CASE/CASE.geom.jsn','exports':[{'export':'a.png','style':'/dev/zero'}]}", "a style is");
  row("{'file':'CASE/CASE.geom.jsn','tables':[{'table':[],'output':'a.csv'}]}", "names no property");
  row("{'file':'CASE/CASE.geom.jsn','tables':[{'table':['p']}]}", "\"output\" is missing");
  row("{'file':'CASE/CASE.geom.jsn','searches':[{'search':'typ=p','output':'a.csv'}]}", "\"typ\"");
}

void TestJobs::badJobsSayWhere() {
  QFETCH(QByteArray, job);
  QFETCH(QByteArray, said);
  writeJobs("{'jobs':[" + job + ",{'file':'CASE/CASE.geom.jsn','searches':[{'search':'B','output':'good.txt'}]}]}");
  const Outcome outcome = runJobs();
  QCOMPARE(outcome.status, 1);
  QVERIFY2(outcome.errors.contains(said) && outcome.errors.startsWith("job 1"), outcome.errors.constData());
  QCOMPARE(content(QStringLiteral("good.txt")), QByteArray("B\n"));
}

void TestJobs::outputStaysInItsFolder_data() {
  QTest::addColumn<QByteArray>("name");
  for (const char *name :
       {"../a.csv", "/tmp/nivra-a.csv", "a/../../a.csv", "", ".hidden.csv", "b/.c/a.csv", "a.sh", "a\\u0007.csv",
        "CASE/a.csv", "CASE/S1/a.csv", "CASE/vfd.csv", "OTHER.scen.csv", "jobs.json", "csv", "CASE", "a.csv/"})
    QTest::newRow(name) << QByteArray(name);
}

void TestJobs::outputStaysInItsFolder() {
  QFETCH(QByteArray, name);
  writeJobs("{'jobs':[{'file':'CASE/CASE.geom.jsn','searches':[{'search':'A','output':'" + name + "'}]}]}");
  const QByteArray jobs = content(QStringLiteral("jobs.json"));
  const auto files = [this] {
    QStringList names;
    QDirIterator it(m_workspace->root(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
      names.append(it.next());
    names.sort();
    return names;
  };
  const QStringList before = files();
  const Outcome outcome = runJobs();
  QCOMPARE(outcome.status, 1);
  QVERIFY2(outcome.errors.startsWith("job 1"), outcome.errors.constData());
  QCOMPARE(files(), before);
  QCOMPARE(content(QStringLiteral("jobs.json")), jobs);
}

void TestJobs::linksLeadNowhere() {
  const QTemporaryDir elsewhere;
  QFile::link(elsewhere.path(), m_workspace->path(QStringLiteral("link")));
  QFile::link(elsewhere.filePath(QStringLiteral("target.csv")), m_workspace->path(QStringLiteral("a.csv")));
  writeJobs("{'jobs':[{'file':'CASE/CASE.geom.jsn','searches':[{'search':'A','output':'link/a.csv'}]},"
            "{'file':'CASE/CASE.geom.jsn','searches':[{'search':'A','output':'a.csv'}]}]}");
  QCOMPARE(runJobs().status, 1);
  QVERIFY(QDir(elsewhere.path()).isEmpty());
}

void TestJobs::outputFolders() {
  writeJobs("{'output':'a/b','jobs':[{'file':'CASE/CASE.geom.jsn','searches':[{'search':'A','output':'c/d.txt'}]},"
            "{'file':'CASE/CASE.geom.jsn','searches':[{'search':'A','output':'c/d.txt'}]}]}");
  const Outcome twice = runJobs();
  QVERIFY2(twice.errors.contains("another result already"), twice.errors.constData());
  QCOMPARE(content(QStringLiteral("a/b/c/d.txt")), QByteArray("A\n"));
  QCOMPARE(runJobs({QStringLiteral("--output"), m_workspace->path(QStringLiteral("wanted"))}).status, 1);
  QVERIFY(exists(QStringLiteral("wanted/c/d.txt")));
  const Outcome none = runJobs({QStringLiteral("--output"), QStringLiteral("/proc/none")});
  QVERIFY2(none.status == 1 && none.errors.contains("/proc/none"), none.errors.constData());
}

void TestJobs::picturesDoNotMixTheirSettings() {
  m_workspace->write(QStringLiteral("dark.ini"), "[color_options]\nbgrColor=#102030\n");
  writeJobs("{'jobs':[{'file':'CASE/CASE.geom.jsn','exports':["
            "{'export':'1.png','width':400},"
            "{'export':'2.png','width':400,'style':'dark.ini','color-by':'q','extent':[0,0,9,9],'labels':'name'},"
            "{'export':'3.png','width':400}]}]}");
  QCOMPARE(runJobs().status, 0);
  const auto picture = [this](const char *name) {
    return QImage(m_workspace->path(QLatin1String(name)));
  };
  QVERIFY(!picture("1.png").isNull());
  QVERIFY(picture("1.png") != picture("2.png"));
  QCOMPARE(picture("3.png"), picture("1.png"));
}

void TestJobs::exampleReport() {
  const QString script = QStringLiteral(NIVRA_SOURCE_DIR "/example/nightly-report.sh");
  const QTemporaryDir report;
  qputenv("NIVRA_VIEWER", NIVRA_PROGRAM);
  const ProgramRun::Outcome outcome = ProgramRun::runProgram(script, {report.path()}, m_data.path());
  QVERIFY2(outcome.status == 4, outcome.errors.constData()); // gas is too fast in winter
  const QDir folder(report.path());
  for (const QString &scenario : {QStringLiteral("S1"), QStringLiteral("S3"), QStringLiteral("S5")}) {
    for (const char *name : {"%1-pressure.png", "%1-velocity.png", "%1-nodes.csv", "%1-pipes.csv", "%1-findings.txt"})
      QVERIFY2(folder.exists(QString::fromLatin1(name).arg(scenario)), name);
  }
  QFile index(folder.filePath(QStringLiteral("report.txt")));
  QVERIFY(index.open(QIODevice::ReadOnly));
  QVERIFY(index.readAll().contains("S5: 2 pictures"));
}

NIVRA_TEST(TestJobs);
#include "tst_jobs.moc"
