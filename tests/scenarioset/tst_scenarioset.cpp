#include "gaslibimport.h"

#include <base/fileaccess.h>
#include <io/nivrareader.h>
#include <io/scenariovalues.h>
#include <model/displayunits.h>
#include <model/netmetadata.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QTemporaryDir>
#include <QXmlStreamReader>

#include <algorithm>
#include <cmath>
#include <scenarioset/scenarioset.h>
#include <scenarioset/setproperties.h>
#include <scenarioset/settable.h>

class TestScenarioSet : public QObject {
  Q_OBJECT

private slots:
  void choices();
  void asNominationsSay();
  void asOpened_data();
  void asOpened();
  void whatCannotBeRead();
  void figuresAsProperties();

private:
  static ScenarioSet::Request requestOf(const QString &file, const QStringList &properties) {
    const NivraWorkspace workspace = NivraWorkspace::fromFile(file);
    return {workspace.geometryPath(), workspace.isJson(), SetScenarios::of(workspace), properties};
  }
  static void open(const QString &file, NetData &net) {
    NivraWorkspace workspace = NivraWorkspace::fromFile(file);
    Findings findings;
    NivraGasParams gas;
    workspace.readScenarioConfiguration(gas, findings);
    NivraReader reader(net);
    QVERIFY(reader.readTopoAndScen(workspace, {}).ok);
    reader.readSubResults(workspace, {});
  }
  void writeMade() const;
  QString made(const QString &name) const { return m_folder.filePath(QStringLiteral("root/MADE/") + name); }

  QTemporaryDir m_folder;
};

void TestScenarioSet::choices() {
  QCOMPARE(SetScenarios::dateIn(QStringLiteral("day_20150131")), QDate(2015, 1, 31));
  QCOMPARE(SetScenarios::dateIn(QStringLiteral("2015.02.01 cold")), QDate(2015, 2, 1));
  QVERIFY(!SetScenarios::dateIn(QStringLiteral("case 120150131")).isValid());
  QVERIFY(!SetScenarios::dateIn(QStringLiteral("2015-02-30")).isValid());
  std::vector<SetScenario> all;
  for (const char *name : {"2015-01-01", "2015-01-02", "2015-02-01", "cold"})
    all.push_back({QLatin1String(name), QString(), SetScenarios::dateIn(QLatin1String(name))});
  const auto chosen = [&all](const char *text) {
    SetScenarios::Choice choice;
    QString reason;
    return choice.take(QLatin1String(text), &reason) ? static_cast<int>(choice.of(all).size()) : -1;
  };
  QCOMPARE(chosen(""), 4);
  QCOMPARE(chosen("2015-01*"), 2);
  QCOMPARE(chosen("*-02-*, COLD"), 2);
  QCOMPARE(chosen("2015-01-02.."), 2);
  QCOMPARE(chosen("..2015-01-31"), 2);
  QCOMPARE(chosen("January..March"), -1);
}

/// The figures of ten published nominations, from their XML by a way of its own.
void TestScenarioSet::asNominationsSay() {
  const QString shared = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/public/");
  const QDir folder(shared + QStringLiteral("GasLib-40-nominations"));
  if (!folder.exists())
    QSKIP("the nominations are not on this machine");
  GasLibImport::Request import;
  import.network = shared + QStringLiteral("GasLib-40.net");
  import.nominations = QStringList{folder.path()};
  import.to = m_folder.filePath(QStringLiteral("ten"));
  const GasLibImport::Result imported = GasLibImport::import(import);
  QVERIFY(imported.ok);
  std::map<QString, std::vector<std::pair<double, QString>>> flows; // by node: value and nomination
  for (const QString &file : folder.entryList({QStringLiteral("*.scn")})) {
    QFile xml(folder.filePath(file));
    QVERIFY(xml.open(QIODevice::ReadOnly));
    QXmlStreamReader reader(&xml);
    QString node;
    double sign = 1.0;
    while (!reader.atEnd()) {
      if (reader.readNext() != QXmlStreamReader::StartElement)
        continue;
      if (reader.name() == QLatin1String("node")) {
        node = reader.attributes().value(QLatin1String("id")).toString();
        sign = reader.attributes().value(QLatin1String("type")) == QLatin1String("entry") ? -1.0 : 1.0;
      } else if (reader.name() == QLatin1String("flow") &&
                 reader.attributes().value(QLatin1String("bound")) == QLatin1String("both")) {
        flows[node].push_back(
            {sign * reader.attributes().value(QLatin1String("value")).toDouble(), QFileInfo(file).completeBaseName()});
      }
    }
  }
  const QString first = QStringLiteral("%1/%2/%2.scen.jsn").arg(import.to, imported.scenarios.first());
  NetData net;
  open(first, net);
  ScenarioSet set(net, requestOf(first, {QStringLiteral("qset")}));
  QVERIFY(set.run({}));
  QCOMPARE(set.columns().size(), flows.size());
  QVERIFY(flows.size() > 30);
  for (auto &[node, values] : flows) {
    const Index column = set.column(node, QStringLiteral("qset"));
    QVERIFY2(column != NoIndex, qPrintable(node));
    const SetFigures figures = set.figures(column);
    std::sort(values.begin(), values.end());
    QCOMPARE(static_cast<std::size_t>(figures.count), values.size());
    QCOMPARE(figures.minimum, values.front().first);
    QCOMPARE(figures.maximum, values.back().first);
    const auto isAt = [&](Index scenario, double value) {
      return std::count(values.begin(), values.end(), std::pair(value, set.scenarioName(scenario))) == 1;
    };
    QVERIFY(isAt(figures.minimumAt, figures.minimum) && isAt(figures.maximumAt, figures.maximum));
    double sum = 0.0;
    for (const auto &[value, nomination] : values)
      sum += value;
    QVERIFY(std::abs(figures.mean * figures.count - sum) < 1e-6);
    // Of ten numbers the median is between the fifth and the sixth, the 25 % quantile a quarter of the way from the third.
    QVERIFY(std::abs(figures.quantiles[2] - (values[4].first + values[5].first) / 2.0) < 1e-9);
    QVERIFY(std::abs(figures.quantiles[1] - (values[2].first * 0.75 + values[3].first * 0.25)) < 1e-9);
    QVERIFY(std::abs(figures.quantiles[4] - (values[8].first * 0.45 + values[9].first * 0.55)) < 1e-9);
  }
}

/// Scenarios that say things in all the ways that there are.
void TestScenarioSet::writeMade() const {
  const auto write = [this](const char *name, const QByteArray &text) {
    SmallFiles::write(made(QLatin1String(name)), text);
  };
  for (const char *scenario : {"A", "B", "C.x"})
    QDir().mkpath(made(QLatin1String(scenario)));
  write("MADE.geom.jsn", "{\n"
                         "\"N1\":{\"obj_type\":\"node\",\"x\":0,\"y\":0,\"pmax\":80,\"rhon\":0.8}\n"
                         ",\"N2\":{\"obj_type\":\"node\",\"x\":9,\"y\":0,\"pmax\":70,\"gas\":\"h\",\"P\":1}\n"
                         ",\"Größe\":{\"obj_type\":\"node\",\"x\":9,\"y\":9}\n"
                         ",\"L\":{\"obj_type\":\"pipe\",\"node1\":\"N2\",\"node2\":\"N1\",\"q\":3,\"length\":5}\n}\n");
  write("A/A.scen.jsn",
        "{\n"
        "\"n1\":[{\"property\":\"qset\",\"value\":2,\"unit\":\"kg/"
        "s\"},{\"property\":\"pmax\",\"value\":6000000,\"unit\":\"Pa\"}]\n"
        ",\"N2\":[{\"property\":\"qset\",\"value\":10,\"unit\":\"MW\"},{\"property\":\"p\",\"value\":50}]\n"
        ",\"N2\":[{\"property\":\"qset\",\"value\":11,\"unit\":\"MW\"}]\n"
        "this is no line\n"
        ",\"nobody\":[{\"property\":\"qset\",\"value\":1}]\n"
        ",\"GRÖßE\":[{\"property\":\"qset\",\"value\":1,\"unit\":\"kg/s\"},{\"property\":\"type\",\"value\":4}]\n}\n");
  write("A/A.gas.jsn",
        "{\n\"H\":{\"obj_type\":\"gas\",\"hs\":11.1,\"rhon\":0.9}\n,\"L\":{\"obj_type\":\"gas\",\"hs\":9}\n}\n");
  write("A/A.res.jsn", "{\n\"N2\":{\"p\":51.5,\"t\":280,\"p\":52}\n,\"L\":{\"q\":7,\"state\":\"open\"}\n}\n");
  write("B/B.scen.jsn",
        "{\n\"N2\":[{\"property\":\"qset\",\"value\":4000,\"unit\":\"m3/h\"},{\"property\":\"pmax\",\"value\":\"none\"}]\n"
        ",\"Größe\":[{\"property\":\"qset\",\"value\":2,\"unit\":\"kg/s\"}]\n}\n");
  write("B/B.fix.jsn", "{\n\"N2\":[{\"property\":\"qset\",\"value\":5}]\n}\n");
  write("B/B.gas.jsn", "{\n\"only\":{\"obj_type\":\"gas\",\"rhon\":0.7}\n}\n");
  write("B/B.gaspar.jsn", "{\n\"N1\":{\"rhon\":0.75,\"t\":\"cold\"}\n}\n");
  write("C.x/C.x.scen.json", "{\n\"N1\":[{\"property\":\"qset\",\"value\":1,\"unit\":\"kg/s\"}]\n}\n");
  write("C.x/C.x.res.json", "{\n\"N1\":{\"t\":284,\"p\":1e30}\n}\n");
  write("C.x/C.x.res.sub.json", "{\n\"L\":{\"t\":285}\n}\n");
  write("C.x/other.gas.jsn", "{\n\"Z\":{\"obj_type\":\"gas\",\"rhon\":0.6}\n}\n");
  write("C.x/scenconfig.jsn", "{\"gasFile\":\"other.gas.jsn\"}");
  write("C.x/solverconfig.jsn", "{}");
}

void TestScenarioSet::asOpened_data() {
  writeMade();
  QTest::addColumn<QString>("file");
  QTest::newRow("the example") << QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/S5/S5.scen.jsn");
  QTest::newRow("made") << made(QStringLiteral("A/A.scen.jsn"));
}

/// The numbers of each scenario are those that opening it alone yields, whichever is open; so is a series that is read
/// again.
void TestScenarioSet::asOpened() {
  QFETCH(const QString, file);
  const ScenarioSet::Request request = requestOf(file, {});
  QStringList properties;
  for (const SetScenario &scenario : request.scenarios) {
    for (const QString &name : ScenarioValues::numbersIn(scenario.file)) {
      if (!properties.contains(name, Qt::CaseInsensitive))
        properties.append(name);
    }
  }
  QVERIFY(properties.size() >= 4);
  NetData net;
  open(file, net);
  ScenarioSet set(net, requestOf(file, properties));
  QVERIFY(set.run({}));
  QVERIFY(set.isExact());
  for (std::size_t i = 0; i < request.scenarios.size(); ++i) {
    NetData alone;
    open(request.scenarios[i].file, alone);
    for (Index column = 0; column < set.columns().size(); ++column) {
      const element *opened = alone.element(set.elementName(column));
      const double expected = NetData::number(opened->find(set.propertyName(column)));
      const double found = set.series(column)[i];
      const QString what = QStringLiteral("%1 of %2 in %3: %4, opened %5")
                               .arg(set.propertyName(column), set.elementName(column), request.scenarios[i].name)
                               .arg(found)
                               .arg(expected);
      QVERIFY2(expected == NetData::NoValue ? std::isnan(found) : found == expected, qPrintable(what));
    }
  }
  const Index some = set.column(set.elementName(0), set.propertyName(0));
  const std::vector<double> again = set.readSeries(some, {});
  QVERIFY(std::equal(again.begin(), again.end(), set.series(some).begin(), set.series(some).end(),
                     [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }));
}

void TestScenarioSet::whatCannotBeRead() {
  writeMade();
  const QString file = made(QStringLiteral("A/A.scen.jsn"));
  QFile::remove(made(QStringLiteral("B/B.scen.jsn")));
  QVERIFY(QFile::link(QStringLiteral("/etc/passwd"), made(QStringLiteral("B/B.scen.jsn"))));
  NetData net;
  open(file, net);
  FileAccess::confineTo(m_folder.filePath(QStringLiteral("root")));
  ScenarioSet set(net, requestOf(file, {QStringLiteral("qset")}));
  const bool isRead = set.run({});
  FileAccess::confineTo(QString());
  QVERIFY(isRead);
  QCOMPARE(static_cast<int>(set.unread().size()), 1);
  QVERIFY(set.unread().front().reason.contains(QStringLiteral("leads out of the workspace")));
  QCOMPARE(static_cast<int>(set.figures(set.column(QStringLiteral("N1"), QStringLiteral("qset"))).count), 2);
  int steps = 0;
  ScenarioSet stopped(net, requestOf(file, {QStringLiteral("qset")}));
  QVERIFY(!stopped.run([&steps](double) { return ++steps < 2; }));
  QFile::remove(made(QStringLiteral("B/B.scen.jsn")));
}

void TestScenarioSet::figuresAsProperties() {
  const QString file = QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/S5/S5.scen.jsn");
  NetData net;
  open(file, net);
  element *node = net.element(QStringLiteral("N_Emden"));
  QVERIFY(node != nullptr);
  node->set(QStringLiteral("t.mean"), QStringLiteral("own"));
  ScenarioSet set(net, requestOf(file, {QStringLiteral("p"), QStringLiteral("t")}));
  QVERIFY(set.run({}));
  SetProperties properties;
  const std::vector<SetStatistic::Kind> kinds{SetStatistic::Kind::Maximum, SetStatistic::Kind::MaximumAt,
                                              SetStatistic::Kind::Mean, SetStatistic::Kind::Deviation};
  properties.put(set, kinds, net);
  properties.put(set, kinds, net); // in place of those before
  QCOMPARE(properties.leftOut(), QStringList{QStringLiteral("t.mean")});
  QCOMPARE(node->value(QStringLiteral("t.mean")), QStringLiteral("own"));
  const SetFigures figures = set.figures(set.column(QStringLiteral("N_Emden"), QStringLiteral("p")));
  QCOMPARE(node->value(QStringLiteral("p.max")).toDouble(), figures.maximum);
  QCOMPARE(node->value(QStringLiteral("p.maxAt")), set.scenarioName(figures.maximumAt));
  // A temperature is converted to degC, its deviation keeps its size.
  const NetMetaData &metaData = *net.metaData();
  QCOMPARE(DisplayUnits::of(metaData.attribute(QStringLiteral("n"), QStringLiteral("t.max"))).unit, QStringLiteral("degC"));
  const DisplayUnits::Shown deviation = DisplayUnits::of(metaData.attribute(QStringLiteral("n"), QStringLiteral("t.sd")));
  QCOMPARE(deviation.toDisplay(2.0), 2.0);
  QVERIFY(metaData.nodeFunctions().contains(QStringLiteral("p.max")));
  const SetTable table = SetTable::of(set, metaData);
  QCOMPARE(table.rows.size(), set.columns().size());
  properties.takeOut(net);
  QVERIFY(!node->contains(QStringLiteral("p.max")) && node->contains(QStringLiteral("t.mean")));
}

NIVRA_TEST(TestScenarioSet);

#include "tst_scenarioset.moc"
