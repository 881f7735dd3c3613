#include "caseconverter.h"
#include "gaslibimport.h"

#include <io/networkfileconverter.h>
#include <io/nivrareader.h>
#include <model/consistencycheck.h>
#include <support/fulldisk.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/stat.h>

class TestConvert : public QObject {
  Q_OBJECT

private slots:
  void init();
  void casesThereAndBack();
  void casesThatFail();
  void everyKindAndUnit();
  void flowsByTheGasOfTheirNode();
  void drivesOfOneName();
  void nodesWithoutPlaces();
  void oddNames();
  void namesWithDots();
  void flowsOfNominations_data();
  void flowsOfNominations();
  void strangersInNominations();
  void faultyNetworks_data();
  void faultyNetworks();
  void failuresLeaveNothing_data();
  void failuresLeaveNothing();
  void fullDisk();
  void whatIsThereStays();
  void hostileFiles_data();
  void hostileFiles();
  void program();

private:
  static QString opened(const QString &path) {
    NetData net;
    if (!open(path, net))
      return QStringLiteral("cannot be read");
    QString text;
    net.forEach(NetData::AllTypes, [&text](const element &e) { text += e.lines(); });
    return text;
  }
  static bool open(const QString &path, NetData &net) {
    const NivraWorkspace workspace = NivraWorkspace::fromFile(path);
    return NivraReader(net).readTopoAndScen(workspace, {}).ok;
  }
  static QString texts(const Findings &findings) {
    QString all;
    for (const Finding &finding : findings)
      all += finding.logText() + QLatin1Char('\n');
    return all;
  }
  QString write(const QString &name, const QByteArray &text) const { return SmallFiles::write(path(name), text); }
  /// Of everything below a folder, with contents.
  static QStringList census(const QString &folder) {
    QStringList names;
    for (QDirIterator all(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
         all.hasNext();) {
      const QString name = all.next();
      names.append(name + QString::fromLatin1(QFileInfo(name).isFile() ? SmallFiles::contents(name) : QByteArray()));
    }
    names.sort();
    return names;
  }
  QString path(const QString &name) const { return m_folder->filePath(name); }

  static QByteArray network(const QByteArray &nodes, const QByteArray &connections = {}) {
    return "<network xmlns=\"http://gaslib.zib.de/Gas\">\n<nodes>\n" + nodes + "</nodes><connections>" + connections +
           "</connections></network>";
  }
  static QByteArray nomination(const QByteArray &nodes) {
    return "<boundaryValue xmlns=\"http://gaslib.zib.de/Gas\"><scenario id=\"s\">"
           "<scenarioProbability>1</scenarioProbability>" +
           nodes + "</scenario></boundaryValue>";
  }
  static QByteArray flow(const QByteArray &node, const QByteArray &type, const QByteArray &bound, const QByteArray &value) {
    return "<node type=\"" + type + "\" id=\"" + node + "\"><flow bound=\"" + bound + "\" value=\"" + value +
           "\" unit=\"1000m_cube_per_hour\"/></node>";
  }
  static QByteArray stations(const QByteArray &of) {
    return "<compressorStations xmlns=\"http://gaslib.zib.de/CompressorStations\">" + of + "</compressorStations>";
  }
  GasLibImport::Request request(const QString &network, const QString &to) const {
    GasLibImport::Request request;
    request.network = network;
    request.to = path(to);
    return request;
  }

  const QByteArray m_ends = "<source id=\"in\" x=\"1\" y=\"2\"/><sink id=\"out\" x=\"3\" y=\"4\"/>";
  std::unique_ptr<QTemporaryDir> m_folder;
};

void TestConvert::init() {
  m_folder = std::make_unique<QTemporaryDir>();
}

void TestConvert::casesThereAndBack() {
  const QString source = QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2");
  const QString text = path(QStringLiteral("text/DE_H2"));
  const QString back = path(QStringLiteral("back/DE_H2"));
  const CaseConverter::Result there = CaseConverter::convert(source, text);
  QVERIFY(there.ok && there.findings.empty());
  QCOMPARE(there.files, 1 + 3 * 4); // geometry; gas, results, sub-results and set points of three scenarios
  QVERIFY(CaseConverter::convert(QDir::current().relativeFilePath(text), QDir::current().relativeFilePath(back)).ok);
  QVERIFY(QFile::exists(text + QStringLiteral("/DE_H2.formulas")));
  const QString before = opened(source + QStringLiteral("/S5/S5.scen.jsn"));
  QVERIFY(before.size() > 10000);
  QCOMPARE(opened(text + QStringLiteral("/S5/S5.scen")), before);
  QCOMPARE(opened(back + QStringLiteral("/S5/S5.scen.jsn")), before);
}

void TestConvert::casesThatFail() {
  // A geometry has more to say than a file of results can.
  const QString geometry = write(QStringLiteral("kind.geom"), "[node]\nname;x\nA;1\n");
  QVERIFY(!NetworkFileConverter::convert(geometry, path(QStringLiteral("kind.res.jsn"))).ok);
  QVERIFY(!QFile::exists(path(QStringLiteral("kind.res.jsn"))));
  QVERIFY(!CaseConverter::convert(path(QStringLiteral("none")), path(QStringLiteral("x"))).ok);
  const QString folder = path(QStringLiteral("own"));
  QDir().mkpath(folder);
  QVERIFY(!CaseConverter::convert(folder, folder + QStringLiteral("/in")).ok); // would never end
  QVERIFY(!CaseConverter::convert(folder, folder).ok);
  // Pipes and links that lead out are left out, the rest is taken.
  write(QStringLiteral("own/own.geom"), "[node]\nname;x\nA;10396.223600000001\n");
  write(QStringLiteral("secret"), "of somebody else");
  QCOMPARE(mkfifo(QFile::encodeName(folder + QStringLiteral("/pipe.ini")).constData(), 0600), 0);
  QVERIFY(QFile::link(path(QStringLiteral("secret")), folder + QStringLiteral("/notes.txt")));
  write(QStringLiteral("own/.hidden"), "mine");
  QVERIFY(QFile::link(m_folder->path(), folder + QStringLiteral("/S2")));
  const CaseConverter::Result result = CaseConverter::convert(folder, path(QStringLiteral("other")));
  QVERIFY2(result.ok && result.findings.size() == 3, qPrintable(texts(result.findings)));
  QCOMPARE(result.report.of(QStringLiteral("file")).dropped, 3);
  QCOMPARE(QDir(path(QStringLiteral("other"))).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
           (QStringList{QStringLiteral(".hidden"), QStringLiteral("own.geom.jsn")}));
}

void TestConvert::everyKindAndUnit() {
  QByteArray connections;
  for (const char *kind : {"pipe", "shortPipe", "resistor", "valve", "controlValve", "compressorStation"})
    connections += QByteArray("<") + kind + " id=\"" + kind +
                   "_1\" from=\"in\" to=\"out\" alias=\"007\" gasPreheaterExisting=\"1\" fuelGasVertex=\"gone\">"
                   "<flowMin value=\"-100\" unit=\"1000m_cube_per_hour\"/><length value=\"0.7342\" unit=\"km\"/>"
                   "<diameter value=\"0.9\" unit=\"m\"/><roughness value=\"0.0501\" unit=\"mm\"/>"
                   "<pressureInMin value=\"30\" unit=\"barg\"/><pressureLoss value=\"0.50\" unit=\"bar\"/>"
                   "<dragFactor value=\"12\"/><pressureDifferentialMin value=\"1\" unit=\"bar\"/><speed value=\"1\"/></" +
                   kind + ">";
  const QString net = write(
      QStringLiteral("P.NET"),
      network("<source id=\"in\" x=\"1\" y=\"2\" geoWGS84Lat=\"51.5\" geoWGS84Long=\"\"><pressureMax value=\"80\" "
              "unit=\"barg\"/><gasTemperature value=\"283.15\" unit=\"K\"/><height value=\"10396.223600000001\"/>"
              "<flowMin value=\"0.0\" unit=\"1000m_cube_per_hour\"/><flowMax value=\"500\" unit=\"1000m_cube_per_hour\"/>"
              "<coefficient-A-heatCapacity value=\"31.8251781464\"/><normDensity value=\"0.785\" "
              "unit=\"kg_per_m_cube\"/></source>\n<sink id=\"out\" x=\"3\" y=\"4\"><flowMax value=\"5000\" "
              "unit=\"m_cube_per_hour\"/></sink><innode id=\"mid\" x=\"5\" y=\"6\"/>",
              connections));
  write(QStringLiteral("P.SCN"), nomination("<node type=\"entry\" id=\"in\"><pressure bound=\"lower\" value=\"40\" "
                                            "unit=\"bar\"/><flow bound=\"both\" value=\"0.785\" unit=\"kg_per_s\"/></node>" +
                                            flow("out", "exit", "both", "160") +
                                            "<pipe id=\"pipe_1\"><soilTemperature value=\"38\" unit=\"Celsius\"/></pipe>"));
  write(QStringLiteral("P.cs"),
        stations("<compressorStation id=\"compressorStation_1\"><compressors><turboCompressor drive=\"G\" id=\"T\"/>"
                 "<pistonCompressor drive=\"E\" id=\"K\"/></compressors><drives><gasTurbine id=\"G\"/><electricMotor "
                 "id=\"E\"/></drives></compressorStation>\n"
                 "<compressorStation id=\"valve_1\"><drives><gasTurbine id=\"G\"/></drives></compressorStation>"));
  const GasLibImport::Result result = GasLibImport::import(request(net, QStringLiteral("public/Net P")));
  QVERIFY2(result.ok, qPrintable(texts(result.findings)));
  QVERIFY2(texts(result.findings).contains(QStringLiteral("valve_1 is no compressor station")) &&
               texts(result.findings).contains(QStringLiteral("takes its fuel at gone")) && result.findings.size() == 2,
           qPrintable(texts(result.findings)));
  QCOMPARE(result.nodes + result.drives + result.edges, 3 + 2 + 6);
  QCOMPARE(result.report.of(QStringLiteral("speed")).dropped, 6);
  QCOMPARE(result.report.of(QStringLiteral("length")).converted, 6);
  QCOMPARE(result.report.of(QStringLiteral("scenarioProbability")).dropped, 1);
  QVERIFY2(result.report.text().contains(QStringLiteral("6 length (km to m), ")), qPrintable(result.report.text()));
  NetData net2;
  QVERIFY(open(path(QStringLiteral("public/Net P/P/P.scen.jsn")), net2));
  const auto value = [&net2](const char *name, const char *property) {
    return net2.element(QLatin1String(name))->value(QLatin1String(property));
  };
  const std::vector<std::array<const char *, 3>> expected{{"in", "pmax", "81.01325"},
                                                          {"in", "tset", "10"},
                                                          {"in", "qset", "-3.6"},
                                                          {"in", "qmin", "-500"},
                                                          {"in", "qmax", "0"},
                                                          {"in", "pmin", "40"},
                                                          {"in", "lat", "51.5"},
                                                          {"in", "lon", ""},
                                                          {"in", "cpa", "31.8251781464"},
                                                          {"in", "vis.layer", "entries"},
                                                          {"out", "qmax", "5"},
                                                          {"out", "qset", "160"},
                                                          {"pipe_1", "length", "734.2"},
                                                          {"pipe_1", "tsoil", "311.15"},
                                                          {"pipe_1", "diameter", "900"},
                                                          {"pipe_1", "roughness", "0.0501"},
                                                          {"pipe_1", "alias", "007"},
                                                          {"resistor_1", "dploss", "0.5"},
                                                          {"resistor_1", "zeta", "12"},
                                                          {"controlValve_1", "type", "r"},
                                                          {"controlValve_1", "preheat", "1"},
                                                          {"controlValve_1", "dpmin", "1"},
                                                          {"shortPipe_1", "type", "s"},
                                                          {"compressorStation_1", "pinmin", "31.01325"},
                                                          {"compressorStation_1", "machine", "T"},
                                                          {"compressorStation_1", "drive", "D_compressorStation_1_G"},
                                                          {"D_compressorStation_1_E", "kind", "electricMotor"},
                                                          {"D_compressorStation_1_E", "machine", "E"},
                                                          {"D_compressorStation_1_G", "gasnode", "in"},
                                                          {"D_compressorStation_1_G", "x", "2.4"}};
  for (const auto &[name, property, wanted] : expected)
    QVERIFY2(value(name, property) == QLatin1String(wanted),
             qPrintable(QLatin1String(name) + QLatin1Char(' ') + QLatin1String(property) + QLatin1Char(' ') +
                        value(name, property)));
  QVERIFY(
      SmallFiles::contents(path(QStringLiteral("public/Net P/Net P.geom.jsn"))).contains("\"height\":10396.223600000001"));
  QVERIFY(ConsistencyCheck::prune(net2).findings.empty());
}

/// A drive gets a name that nobody else has; one that a station names again and again costs no more than its line.
void TestConvert::flowsByTheGasOfTheirNode() {
  const QString net =
      write(QStringLiteral("g.net"),
            network("<source id=\"a\" x=\"1\" y=\"2\"><normDensity value=\"0.8\" unit=\"kg_per_m_cube\"/></source>"
                    "<source id=\"b\" x=\"1\" y=\"3\"><normDensity value=\"1\" unit=\"kg_per_m_cube\"/></source>" +
                    m_ends));
  QByteArray nodes;
  for (const char *name : {"a", "b", "in"})
    nodes +=
        QByteArray("<node type=\"entry\" id=\"") + name + "\"><flow bound=\"both\" value=\"36\" unit=\"kg_per_s\"/></node>";
  write(QStringLiteral("g.scn"), nomination(nodes));
  QVERIFY(GasLibImport::import(request(net, QStringLiteral("g"))).ok);
  NetData opened;
  QVERIFY(open(path(QStringLiteral("g/g/g.scen.jsn")), opened));
  const auto flow = [&opened](const char *name) {
    return opened.element(QLatin1String(name))->value(QStringLiteral("qset")).toDouble();
  };
  QVERIFY(qFuzzyCompare(flow("a"), -36.0 * 3.6 / 0.8) && qFuzzyCompare(flow("b"), -36.0 * 3.6));
  QVERIFY(qFuzzyCompare(flow("in"), flow("a"))); // which says nothing of its gas
}

void TestConvert::drivesOfOneName() {
  const QString net =
      write(QStringLiteral("d.net"), network("<source id=\"a\" x=\"1\" y=\"2\"/><sink id=\"D_c_g\" x=\"3\" y=\"4\"/>",
                                             "<compressorStation id=\"c\" from=\"a\" to=\"D_c_g\"/>"));
  write(QStringLiteral("d.cs"),
        stations("<compressorStation id=\"c\"><drives>" + QByteArray("<gasTurbine id=\"g\"/>").repeated(100000) +
                 "</drives></compressorStation><compressorStation id=\"C\"/>"));
  QElapsedTimer timer;
  timer.start();
  const GasLibImport::Result result = GasLibImport::import(request(net, QStringLiteral("d")));
  QVERIFY2(result.ok && result.drives == 1, qPrintable(texts(result.findings).left(1000)));
  QCOMPARE(result.report.of(QStringLiteral("gasTurbine")).dropped, 99999);
  QCOMPARE(result.report.of(QStringLiteral("compressorStation")).dropped, 1); // described again
  QVERIFY(SmallFiles::contents(path(QStringLiteral("d/d.geom.jsn"))).contains("\"D_c_g_2\""));
  QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
}

void TestConvert::nodesWithoutPlaces() {
  const QByteArray pipes = "<pipe id=\"1\" from=\"a\" to=\"b\"/><pipe id=\"2\" from=\"b\" to=\"c\"/>";
  const auto places = [this](const QByteArray &text) {
    const GasLibImport::Result result =
        GasLibImport::import(request(write(QStringLiteral("n.net"), text), QStringLiteral("n")));
    NetData net;
    open(path(QStringLiteral("n/n.geom.jsn")), net);
    QStringList all;
    net.forEach(NetData::Node, [&all](const element &node) {
      all.append(node.value(QStringLiteral("x")) + QLatin1Char(',') + node.value(QStringLiteral("y")));
    });
    QDir(path(QStringLiteral("n"))).removeRecursively();
    return all.join(QLatin1Char(' ')) + QLatin1Char(' ') + texts(result.findings);
  };
  const QString between = places(network(
      "<source id=\"a\" x=\"0\" y=\"0\"/><innode id=\"b\" x=\"\" y=\"7\"/><sink id=\"c\" x=\"10\" y=\"4\"/>", pipes));
  QVERIFY2(between.startsWith(QStringLiteral("0,0 5,2 10,4 ")) && between.contains(QStringLiteral("1 nodes have no")),
           qPrintable(between));
  const QString byMap =
      places(network("<source id=\"a\" geoWGS84Long=\"6\" geoWGS84Lat=\"50\"/><innode id=\"b\"/><sink id=\"c\"/>", pipes));
  QVERIFY2(byMap.startsWith(QStringLiteral("6,50 6,50 6,50 ")), qPrintable(byMap));
  const QString nowhere = places(network("<source id=\"a\"/><innode id=\"b\"/><sink id=\"c\"/>", pipes));
  const QStringList spots = nowhere.split(QLatin1Char(' ')).mid(0, 3);
  QCOMPARE(QSet<QString>(spots.begin(), spots.end()).size(), 3); // no two on one spot
}

/// They pass through both forms.
void TestConvert::oddNames() {
  const QStringList names{QStringLiteral("[x]"),   QStringLiteral("#1"),      QStringLiteral("a;b"),
                          QStringLiteral("name"),  QStringLiteral("Köln"),    QStringLiteral("=1+1"),
                          QStringLiteral("12.50"), QStringLiteral("a\"b&<c>")};
  QByteArray nodes;
  QByteArray values;
  for (const QString &name : names) {
    nodes += "<sink id=\"" + name.toHtmlEscaped().toUtf8() + "\" x=\"1\" y=\"2\"/>";
    values += flow(name.toHtmlEscaped().toUtf8(), "exit", "both", "7.25");
  }
  GasLibImport::Request wanted = request(write(QStringLiteral("odd.net"), network(nodes)), QStringLiteral("odd"));
  wanted.nominations = QStringList{write(QStringLiteral("Mo.+.scn"), nomination(values))};
  const GasLibImport::Result result = GasLibImport::import(wanted);
  QVERIFY2(result.ok && result.findings.empty(), qPrintable(texts(result.findings)));
  NetData net;
  QVERIFY(open(path(QStringLiteral("odd/Mo.+/Mo_+.scen.jsn")), net));
  for (const QString &name : names)
    QVERIFY2(net.element(name) != nullptr && net.element(name)->value(QStringLiteral("qset")) == QLatin1String("7.25"),
             qPrintable(name));
  QVERIFY(CaseConverter::convert(path(QStringLiteral("odd")), path(QStringLiteral("text/odd"))).ok);
  QCOMPARE(opened(path(QStringLiteral("text/odd/Mo.+/Mo_+.scen"))), opened(path(QStringLiteral("odd/Mo.+/Mo_+.scen.jsn"))));
}

/// The program takes the part before the first dot of a file's name.
void TestConvert::namesWithDots() {
  const QString net = write(QStringLiteral("Net-134.v2.net"), network(m_ends));
  write(QStringLiteral("Net-134.v2.scn"), nomination(flow("in", "entry", "both", "5") + flow("out", "exit", "both", "5")));
  const GasLibImport::Result result = GasLibImport::import(request(net, QStringLiteral("Net-134.v2")));
  QVERIFY(result.ok && result.findings.empty());
  QCOMPARE(result.scenarios, QStringList{QStringLiteral("Net-134.v2")});
  NetData geometry;
  QVERIFY(open(path(QStringLiteral("Net-134.v2/Net-134_v2.geom.jsn")), geometry));
  QCOMPARE(geometry.nodes().size(), std::size_t(2));
  NetData scenario;
  QVERIFY(open(path(QStringLiteral("Net-134.v2/Net-134.v2/Net-134_v2.scen.jsn")), scenario));
  QCOMPARE(scenario.element(QStringLiteral("in"))->value(QStringLiteral("qset")), QStringLiteral("-5"));
}

void TestConvert::flowsOfNominations_data() {
  QTest::addColumn<QByteArray>("bounds");
  QTest::addColumn<QString>("entry"); // qset, qmin, qmax
  QTest::addColumn<QString>("exit");
  const auto bound = [](const QByteArray &which, const QByteArray &value) {
    return "<flow bound=\"" + which + "\" value=\"" + value + "\"/>";
  };
  QTest::newRow("both") << bound("both", "160") << QStringLiteral("-160,,") << QStringLiteral("160,,");
  QTest::newRow("lower is upper") << bound("lower", "160") + bound("upper", "160.00") << QStringLiteral("-160,,")
                                  << QStringLiteral("160,,");
  QTest::newRow("nothing flows") << bound("lower", "0.00") + bound("upper", "0") << QStringLiteral("0,,")
                                 << QStringLiteral("0,,");
  QTest::newRow("range") << bound("lower", "10") + bound("upper", "20") << QStringLiteral(",-20,-10")
                         << QStringLiteral(",10,20");
  QTest::newRow("lower alone") << bound("lower", "10") << QStringLiteral(",,-10") << QStringLiteral(",10,");
  QTest::newRow("no bound") << QByteArray("<flow value=\"3\"/>") << QStringLiteral("-3,,") << QStringLiteral("3,,");
}

void TestConvert::flowsOfNominations() {
  QFETCH(QByteArray, bounds);
  QFETCH(QString, entry);
  QFETCH(QString, exit);
  const QString net = write(QStringLiteral("f.net"), network(m_ends));
  write(QStringLiteral("f.scn"), nomination("<node type=\"entry\" id=\"in\">" + bounds +
                                            "</node><node type=\"exit\" id=\"out\">" + bounds + "</node>"));
  const GasLibImport::Result result = GasLibImport::import(request(net, QStringLiteral("f")));
  QVERIFY2(result.ok && result.findings.empty(), qPrintable(texts(result.findings)));
  NetData made;
  QVERIFY(open(path(QStringLiteral("f/f/f.scen.jsn")), made));
  const auto flows = [&made](const char *node) {
    QStringList numbers; // numbers keep their digits: 160.00 says no more than 160
    for (const char *property : {"qset", "qmin", "qmax"}) {
      const QString text = made.element(QLatin1String(node))->value(QLatin1String(property));
      numbers << (text.isEmpty() ? text : QString::number(text.toDouble()));
    }
    return numbers.join(QLatin1Char(','));
  };
  QCOMPARE(flows("in"), entry);
  QCOMPARE(flows("out"), exit);
}

/// A node that the network lacks is told and left out; the others stay.
void TestConvert::strangersInNominations() {
  const QString net = write(QStringLiteral("s.net"), network(m_ends));
  write(QStringLiteral("s.scn"), nomination(flow("in", "entry", "both", "5") + flow("out", "exit", "both", "5") +
                                            flow("stranger", "exit", "both", "5")));
  const GasLibImport::Result result = GasLibImport::import(request(net, QStringLiteral("s")));
  QVERIFY(result.ok);
  QVERIFY2(texts(result.findings).contains(QStringLiteral("stranger is no node of the network")),
           qPrintable(texts(result.findings)));
  QCOMPARE(result.setPoints, 2);
  QCOMPARE(result.report.of(QStringLiteral("node")).dropped, 1);
}

void TestConvert::faultyNetworks_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QString>("message");
  QTest::addColumn<bool>("ok");
  const QByteArray head = "<network xmlns=\"http://gaslib.zib.de/Gas\">\n<nodes>\n";
  const QByteArray node = "<source id=\"a\" x=\"1\" y=\"2\"/>";
  QTest::newRow("bomb") << QByteArray("<!DOCTYPE x [<!ENTITY a \"aaa\">]><network/>") << QStringLiteral("document type")
                        << false;
  QTest::newRow("no XML") << QByteArray("{}") << QStringLiteral("cannot be taken as a network") << false;
  QTest::newRow("ends early") << head + node << QStringLiteral(":3") << false;
  QTest::newRow("unknown node") << head + node + "\n<well id=\"b\"/></nodes></network>"
                                << QStringLiteral("The element well is not known and left out (") << true;
  QTest::newRow("unknown unit")
      << head + "<sink id=\"a\" x=\"1\" y=\"2\"><height value=\"3\" unit=\"cubit\"/></sink></nodes></network>"
      << QStringLiteral("\"cubit\" cannot be converted") << true;
  QTest::newRow("text for a number")
      << head + "<sink id=\"a\" x=\"1\" y=\"2\"><height value=\"high\"/></sink></nodes></network>"
      << QStringLiteral("height is no number: \"high\"") << true;
  QTest::newRow("text for a place") << head + "<sink id=\"a\" x=\"left\" y=\"2\"/></nodes></network>"
                                    << QStringLiteral("The x of a is no number: left") << true;
  QTest::newRow("without ends") << head + node + "</nodes><connections><pipe id=\"p\" from=\"a\"/></connections></network>"
                                << QStringLiteral("p is left out: it leads from \"a\" to \"\"") << true;
  QTest::newRow("loose end") << head + node +
                                    "</nodes><connections>\n<pipe id=\"p\" from=\"a\" to=\"b\"/></connections></network>"
                             << QStringLiteral("p is left out: it leads from \"a\" to \"b\"") << true;
  QTest::newRow("two of one name") << head + node + "\n<sink id=\"A\" x=\"3\" y=\"4\"/></nodes></network>"
                                   << QStringLiteral("A is left out: one of this name, regardless of case, stands in line 3")
                                   << true;
  QTest::newRow("namespace") << QByteArray("<network><nodes>") + node + "</nodes></network>"
                             << QStringLiteral("The namespace is") << true;
}

void TestConvert::faultyNetworks() {
  QFETCH(QByteArray, text);
  QFETCH(QString, message);
  QFETCH(bool, ok);
  const GasLibImport::Result result =
      GasLibImport::import(request(write(QStringLiteral("faulty.net"), text), QStringLiteral("faulty")));
  QCOMPARE(result.ok, ok);
  QCOMPARE(QFile::exists(path(QStringLiteral("faulty"))), ok);
  QVERIFY2(texts(result.findings).contains(message), qPrintable(texts(result.findings)));
}

void TestConvert::failuresLeaveNothing_data() {
  QTest::addColumn<QStringList>("nominations");
  QTest::addColumn<QString>("compressors");
  QTest::addColumn<QString>("message");
  const auto name = [](const char *text) {
    return QStringList{QLatin1String(text)};
  };
  QTest::newRow("no nomination") << name("gone.scn") << QString() << QStringLiteral("cannot be read");
  QTest::newRow("a nomination of another kind") << name("c.net") << QString() << QStringLiteral("holds network instead of");
  QTest::newRow("a torn nomination") << name("torn.scn") << QString() << QStringLiteral("cannot be read any further");
  QTest::newRow("without a scenario") << name("empty.scn") << QString() << QStringLiteral("holds no scenario");
  QTest::newRow("a nomination of another network")
      << name("other.scn") << QString() << QStringLiteral("belongs to another network");
  QTest::newRow("the second of two") << QStringList{QStringLiteral("c.scn"), QStringLiteral("other.scn")} << QString()
                                     << QStringLiteral("belongs to another network");
  QTest::newRow("two of one name") << QStringList{QStringLiteral("c.scn"), QStringLiteral("twice/C.scn")} << QString()
                                   << QStringLiteral("Two nominations are named C");
  QTest::newRow("an empty folder") << name("none") << QString() << QStringLiteral("holds no nomination");
  QTest::newRow("no machines") << name("c.scn") << QStringLiteral("gone.cs") << QStringLiteral("cannot be read");
  QTest::newRow("torn machines") << name("c.scn") << QStringLiteral("torn.cs")
                                 << QStringLiteral("cannot be read any further");
  QTest::newRow("machines of another kind")
      << name("c.scn") << QStringLiteral("c.scn") << QStringLiteral("holds boundaryValue instead of");
  QTest::newRow("machines of another network") << name("c.scn") << QStringLiteral("other.cs")
                                               << QStringLiteral("cannot be taken as compressor stations of this network");
}

void TestConvert::failuresLeaveNothing() {
  QFETCH(QStringList, nominations);
  QFETCH(QString, compressors);
  QFETCH(QString, message);
  const QByteArray sound = nomination(flow("in", "entry", "both", "5") + flow("out", "exit", "both", "5"));
  const QString net = write(QStringLiteral("from/c.net"), network(m_ends));
  write(QStringLiteral("from/c.scn"), sound);
  write(QStringLiteral("from/twice/C.scn"), sound);
  write(QStringLiteral("from/torn.scn"), sound.left(sound.size() / 2));
  write(QStringLiteral("from/empty.scn"), "<boundaryValue xmlns=\"http://gaslib.zib.de/Gas\"/>");
  write(QStringLiteral("from/other.scn"),
        nomination(flow("entry01", "entry", "both", "5") + flow("out", "exit", "both", "5") +
                   flow("exit01", "exit", "both", "5")));
  write(QStringLiteral("from/torn.cs"), "<compressorStations><compressorStation id=\"x\">");
  write(QStringLiteral("from/other.cs"), stations("<compressorStation id=\"x\"/>"));
  QDir().mkpath(path(QStringLiteral("from/none")));
  QDir().mkpath(path(QStringLiteral("there")));
  GasLibImport::Request wanted = request(net, QStringLiteral("there/new/case"));
  for (const QString &name : nominations)
    wanted.nominations.append(path(QStringLiteral("from/")) + name);
  if (!compressors.isEmpty())
    wanted.compressors = path(QStringLiteral("from/")) + compressors;
  const QStringList before = census(m_folder->path());
  const GasLibImport::Result result = GasLibImport::import(wanted);
  QVERIFY(!result.ok);
  QVERIFY2(texts(result.findings).contains(message), qPrintable(texts(result.findings)));
  QCOMPARE(census(m_folder->path()), before);
}

void TestConvert::fullDisk() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("no small disk can be mounted here");
  QByteArray nodes;
  for (int i = 0; i < 2000; ++i)
    nodes += "<sink id=\"n" + QByteArray::number(i) + "\" x=\"1\" y=\"2\"/>";
  GasLibImport::Request wanted = request(write(QStringLiteral("big.net"), network(nodes)), QString());
  wanted.to = disk.path(QStringLiteral("case"));
  const GasLibImport::Result result = GasLibImport::import(wanted);
  QVERIFY(!result.ok);
  QVERIFY2(texts(result.findings).contains(QStringLiteral("Could not write")), qPrintable(texts(result.findings)));
  QVERIFY2(census(disk.path(QString())).isEmpty(),
           qPrintable(census(disk.path(QString())).join(QLatin1Char('\n')).left(500)));
  // A file that is there stays as it was, also when all that is to be written fits into a buffer.
  const QString source = write(QStringLiteral("s.geom.jsn"), "{\n\"A\":{\"obj_type\":\"node\",\"x\":1,\"y\":2}\n}\n");
  const QString target = disk.path(QStringLiteral("s.geom"));
  QFile old(target);
  QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
  old.close();
  disk.fill();
  const NetworkFileConverter::Result converted = NetworkFileConverter::convert(source, target);
  QVERIFY(!converted.ok);
  QCOMPARE(SmallFiles::contents(target), QByteArray("old"));
}

/// Nominations come in one after another; what a person edited is replaced when that is asked for, if at all.
void TestConvert::whatIsThereStays() {
  const QString net = write(QStringLiteral("c.net"), network(m_ends));
  const auto nominate = [this](const QString &name, const QByteArray &value) {
    return write(name, nomination(flow("in", "entry", "both", value) + flow("out", "exit", "both", value)));
  };
  GasLibImport::Request first = request(net, QStringLiteral("case"));
  first.nominations = QStringList{nominate(QStringLiteral("a.scn"), "5")};
  QVERIFY(GasLibImport::import(first).ok);
  write(QStringLiteral("case/a/solverconfig.jsn"), "{\"tamb\":290}\n");
  write(QStringLiteral("case/plotsettings.ini"), "mine");
  GasLibImport::Request second = first;
  second.nominations = QStringList{nominate(QStringLiteral("b.scn"), "6")};
  QVERIFY(GasLibImport::import(second).ok);
  QVERIFY(opened(path(QStringLiteral("case/a/a.scen.jsn"))).contains(QStringLiteral("e[qset] = -5")));
  QVERIFY(opened(path(QStringLiteral("case/b/b.scen.jsn"))).contains(QStringLiteral("e[qset] = -6")));
  const QStringList before = census(path(QStringLiteral("case")));
  QVERIFY(GasLibImport::import(first).ok); // the same again changes nothing
  QCOMPARE(census(path(QStringLiteral("case"))), before);
  nominate(QStringLiteral("a.scn"), "7");
  nominate(QStringLiteral("c.scn"), "8");
  first.nominations.append(path(QStringLiteral("c.scn")));
  const GasLibImport::Result refused = GasLibImport::import(first);
  QVERIFY2(!refused.ok && texts(refused.findings).contains(QStringLiteral("a/a.scen.jsn")),
           qPrintable(texts(refused.findings)));
  QCOMPARE(census(path(QStringLiteral("case"))), before);
  first.overwrites = true;
  QVERIFY(GasLibImport::import(first).ok);
  QVERIFY(opened(path(QStringLiteral("case/a/a.scen.jsn"))).contains(QStringLiteral("e[qset] = -7")));
  QCOMPARE(SmallFiles::contents(path(QStringLiteral("case/a/solverconfig.jsn"))), QByteArray("{\"tamb\":290}\n"));
  QCOMPARE(SmallFiles::contents(path(QStringLiteral("case/plotsettings.ini"))), QByteArray("mine"));
  // Another case, and a scenario that somebody made.
  write(QStringLiteral("other/other_one.geom"), "[node]\nname\n");
  write(QStringLiteral("made/a/mine.scen"), "name;property;value\n");
  QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("linked/a")));
  QVERIFY(QFile::link(path(QStringLiteral("gone")), path(QStringLiteral("linked/a/a.scen.jsn"))));
  for (const char *taken : {"other", "made", "linked"}) {
    GasLibImport::Request third = first;
    third.to = path(QLatin1String(taken));
    third.overwrites = false;
    const QStringList mine = census(third.to);
    QVERIFY(!GasLibImport::import(third).ok);
    QCOMPARE(census(third.to), mine);
  }
  // The same for cases that are written in the other form.
  const QString text = path(QStringLiteral("text"));
  QVERIFY(CaseConverter::convert(path(QStringLiteral("case")), text).ok);
  QVERIFY(CaseConverter::convert(path(QStringLiteral("case")), text).ok);
  write(QStringLiteral("text/b/b.scen"), "name;property;value;unit\nin;qset;1\n");
  const QStringList edited = census(text);
  QVERIFY(!CaseConverter::convert(path(QStringLiteral("case")), text).ok);
  QCOMPARE(census(text), edited);
  QVERIFY(CaseConverter::convert(path(QStringLiteral("case")), text, true).ok);
  QVERIFY(census(text) != edited);
}

void TestConvert::hostileFiles_data() {
  QTest::addColumn<QByteArray>("inside"); // of the root element
  QTest::addColumn<QString>("message");
  QByteArray attributes;
  for (int i = 0; i < 190000; ++i)
    attributes += " a" + QByteArray::number(i) + "=\"1\"";
  QByteArray spaces;
  for (int i = 0; i < 3000; ++i)
    spaces += "<x xmlns:a" + QByteArray::number(i) + "=\"u\"/>";
  QTest::newRow("attributes") << "\n<source" + attributes + "/>" << QStringLiteral("An element has 190000 attributes");
  QTest::newRow("attributes behind a comment")
      << "<!--><x \"-->\n<source" + attributes + "/>" << QStringLiteral("An element has 190000 attributes");
  QTest::newRow("nesting") << QByteArray("<x>").repeated(1000000) << QStringLiteral("nested more than");
  QTest::newRow("namespaces") << spaces << QStringLiteral("more than 50 namespaces");
  QTest::newRow("size") << QByteArray(65 << 20, ' ') << QStringLiteral("is larger than");
  QTest::newRow("no UTF-8") << QByteArray("<source id=\"M\xFCnster\"/>") << QStringLiteral("not written in UTF-8");
}

void TestConvert::hostileFiles() {
  QFETCH(QByteArray, inside);
  QFETCH(QString, message);
  const QString net = write(QStringLiteral("h.net"), network(inside));
  QElapsedTimer timer;
  timer.start();
  const GasLibImport::Result result = GasLibImport::import(request(net, QStringLiteral("h")));
  QVERIFY(!result.ok);
  QVERIFY2(texts(result.findings).contains(message), qPrintable(texts(result.findings)));
  QVERIFY2(timer.elapsed() < 2000, qPrintable(QString::number(timer.elapsed())));
  QVERIFY(!QFile::exists(path(QStringLiteral("h"))));
}

void TestConvert::program() {
  QString told;
  const auto run = [&told](const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral(NIVRA_CONVERT), arguments);
    process.waitForFinished();
    told = QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
    return process.exitCode();
  };
  const QString out = path(QStringLiteral("s.scen"));
  QCOMPARE(run({QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/S1/S1.scen.jsn"), out}), 0);
  QVERIFY(QFile::exists(out));
  QVERIFY2(told.contains(QStringLiteral(" qset, ")), qPrintable(told));
  QCOMPARE(run({QStringLiteral("one")}), 2);
  QCOMPARE(run({path(QStringLiteral("gone.geom")), path(QStringLiteral("x.geom.jsn"))}), 1);
  const QString net = write(QStringLiteral("p.NET"), network(m_ends));
  const QByteArray sound = nomination(flow("in", "entry", "both", "5") + flow("out", "exit", "both", "5"));
  for (const char *name : {"many/a.scn", "many/b.scn", "c.scn", "d.scn"})
    write(QLatin1String(name), sound);
  const QString scenario = QStringLiteral("--scenario");
  QCOMPARE(run({net, path(QStringLiteral("case")), scenario, path(QStringLiteral("gone.scn"))}), 1);
  QVERIFY(!QFile::exists(path(QStringLiteral("case"))));
  QCOMPARE(run({net, path(QStringLiteral("case")), scenario, path(QStringLiteral("many")), scenario,
                path(QStringLiteral("c.scn")), path(QStringLiteral("d.scn"))}),
           0);
  QVERIFY2(told.contains(QStringLiteral("written: a, b, c, d")) && told.contains(QStringLiteral(", 1 source\n")),
           qPrintable(told));
  QCOMPARE(run({path(QStringLiteral("case")), path(QStringLiteral("text")), scenario, net}), 2);
  write(QStringLiteral("case/a/a.scen.jsn"), "{\n}\n");
  QCOMPARE(run({net, path(QStringLiteral("case")), scenario, path(QStringLiteral("many"))}), 1);
  QCOMPARE(run({net, path(QStringLiteral("case")), scenario, path(QStringLiteral("many")), QStringLiteral("--overwrite")}),
           0);
}

NIVRA_TEST(TestConvert);
#include "tst_convert.moc"
