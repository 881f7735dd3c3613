#include <io/nivrareader.h>
#include <model/consistencycheck.h>
#include <support/nivratest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <convert/caseconverter.h>
#include <convert/gaslibimport.h>

class TestConvert : public QObject {
  Q_OBJECT

private slots:
  void casesThereAndBack();
  void casesThatFail();
  void publicNetwork();
  void faultyNetworks_data();
  void faultyNetworks();
  void program();

private:
  static QString opened(const QString &path) {
    const NivraWorkspace workspace = NivraWorkspace::fromFile(path);
    NetData net;
    if (!NivraReader(net).readTopoAndScen(workspace, {}).ok)
      return QStringLiteral("cannot be read");
    QString text;
    net.forEach(NetData::AllTypes, [&text](const element &e) { text += e.lines(); });
    return text;
  }

  QTemporaryDir m_folder;
};

void TestConvert::casesThereAndBack() {
  const QString source = QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2");
  const QString text = m_folder.filePath(QStringLiteral("text/DE_H2"));
  const QString back = m_folder.filePath(QStringLiteral("back/DE_H2"));
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
  QVERIFY(!CaseConverter::convert(m_folder.filePath(QStringLiteral("none")), m_folder.filePath(QStringLiteral("x"))).ok);
  const QString folder = m_folder.filePath(QStringLiteral("own"));
  QDir().mkpath(folder);
  QVERIFY(!CaseConverter::convert(folder, folder + QStringLiteral("/in")).ok); // would never end
  QVERIFY(!CaseConverter::convert(folder, folder).ok);
}

void TestConvert::publicNetwork() {
  const auto write = [this](const char *name, const QByteArray &text) {
    QFile file(m_folder.filePath(QLatin1String(name)));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
  };
  QByteArray connections;
  for (const char *kind : {"pipe", "shortPipe", "resistor", "valve", "controlValve", "compressorStation"})
    connections += QByteArray("<") + kind + " id=\"" + kind +
                   "_1\" from=\"in\" to=\"out\">"
                   "<flowMin value=\"-100\" unit=\"1000m_cube_per_hour\"/><length value=\"2.5\" unit=\"km\"/>"
                   "<pressureInMin value=\"30\" unit=\"barg\"/></" +
                   kind + ">";
  const QString network =
      write("P.net", "<network xmlns=\"http://gaslib.zib.de/Gas\" xmlns:framework=\"http://gaslib.zib.de/Framework\">"
                     "<framework:information><framework:title>t</framework:title></framework:information><framework:nodes>"
                     "<source id=\"in\" x=\"1\" y=\"2\" geoWGS84Lat=\"51.5\" geoWGS84Long=\"\"><pressureMax value=\"80\" "
                     "unit=\"barg\"/><gasTemperature "
                     "value=\"283.15\" unit=\"K\"/>"
                     "<normDensity value=\"0.785\" unit=\"kg_per_m_cube\"/></source>\n"
                     "<sink id=\"out\" x=\"3\" y=\"4\"><flowMax value=\"5000\" unit=\"m_cube_per_hour\"/></sink><innode "
                     "id=\"mid\" x=\"5\" y=\"6\"/>"
                     "</framework:nodes><framework:connections>" +
                         connections + "</framework:connections></network>");
  write("P.scn", "<boundaryValue xmlns=\"http://gaslib.zib.de/Gas\"><scenario id=\"s\"><node type=\"entry\" id=\"in\">"
                 "<pressure bound=\"lower\" value=\"40\" unit=\"bar\"/><flow bound=\"both\" value=\"160\" "
                 "unit=\"1000m_cube_per_hour\"/></node>"
                 "<node type=\"exit\" id=\"out\"><flow bound=\"both\" value=\"160\" "
                 "unit=\"1000m_cube_per_hour\"/></node></scenario></boundaryValue>");
  write("P.cs", "<compressorStations xmlns=\"http://gaslib.zib.de/CompressorStations\">"
                "<compressorStation id=\"compressorStation_1\"><compressors><turboCompressor drive=\"G\" id=\"T\"><speedMin "
                "value=\"3\"/></turboCompressor><pistonCompressor drive=\"E\" id=\"K\"/></compressors><drives><gasTurbine "
                "id=\"G\"/><electricMotor id=\"E\"/></drives><configurations/></compressorStation>\n"
                "<compressorStation id=\"valve_1\"><drives><gasTurbine id=\"G\"/></drives></compressorStation>"
                "</compressorStations>");
  const QString folder = m_folder.filePath(QStringLiteral("public/Net P"));
  const GasLibImport::Result result = GasLibImport::import(network, QString(), QString(), folder);
  QVERIFY(result.ok);
  QCOMPARE(result.findings.size(), std::size_t(1));
  QVERIFY2(result.findings[0].logText().contains(QStringLiteral("valve_1 is no compressor station")) &&
               result.findings[0].line == 2,
           qPrintable(result.findings[0].logText()));
  QCOMPARE(result.nodes, 3);
  QCOMPARE(result.drives, 2);
  QCOMPARE(result.edges, 6);
  QCOMPARE(result.setPoints, 3);
  QVERIFY(QFile::exists(folder + QStringLiteral("/Net P.cs")));
  const NivraWorkspace workspace = NivraWorkspace::fromFile(folder + QStringLiteral("/N1/N1.scen.jsn"));
  NetData net;
  const NivraReader::Result read = NivraReader(net).readTopoAndScen(workspace, {});
  QVERIFY2(read.ok && read.findings.empty(), qPrintable(read.findings.empty() ? QString() : read.findings[0].text));
  const auto value = [&net](const char *name, const char *property) {
    return net.element(QLatin1String(name))->value(QLatin1String(property));
  };
  QCOMPARE(value("in", "pmax"), QStringLiteral("81.01325"));
  QCOMPARE(value("in", "tset"), QStringLiteral("10"));
  QCOMPARE(value("in", "qset"), QStringLiteral("-160"));
  QCOMPARE(value("in", "pmin"), QStringLiteral("40"));
  QCOMPARE(value("out", "qmax"), QStringLiteral("5"));
  QCOMPARE(value("pipe_1", "length"), QStringLiteral("2500"));
  QCOMPARE(value("controlValve_1", "type"), QStringLiteral("r"));
  QCOMPARE(value("shortPipe_1", "type"), QStringLiteral("s"));
  QCOMPARE(value("compressorStation_1", "pinmin"), QStringLiteral("31.01325"));
  QCOMPARE(value("compressorStation_1", "machine"), QStringLiteral("T"));
  QCOMPARE(value("compressorStation_1", "drive"), QStringLiteral("D_compressorStation_1_G"));
  QCOMPARE(value("D_compressorStation_1_E", "kind"), QStringLiteral("electricMotor"));
  QCOMPARE(value("D_compressorStation_1_E", "machine"), QStringLiteral("E"));
  QCOMPARE(value("D_compressorStation_1_G", "gasnode"), QStringLiteral("in"));
  QCOMPARE(value("D_compressorStation_1_G", "x").toDouble(), 2.4);
  QCOMPARE(value("in", "lat"), QStringLiteral("51.5"));
  QVERIFY(!net.element(QStringLiteral("in"))->contains(QStringLiteral("lon")));
  QCOMPARE(value("in", "vis.layer"), QStringLiteral("entries"));
  QVERIFY(ConsistencyCheck::prune(net).findings.empty());
}

void TestConvert::faultyNetworks_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QString>("message");
  QTest::addColumn<bool>("ok");
  const QByteArray head = "<network xmlns=\"http://gaslib.zib.de/Gas\">\n<nodes>\n";
  const QByteArray node = "<source id=\"a\" x=\"1\" y=\"2\"/>";
  QTest::newRow("bomb") << QByteArray("<!DOCTYPE x [<!ENTITY a \"aaa\">]><network/>") << QStringLiteral("document type")
                        << false;
  QTest::newRow("no XML") << QByteArray("{}") << QStringLiteral("holds no network") << false;
  QTest::newRow("ends early") << head + node << QStringLiteral(":3") << true;
  QTest::newRow("unknown node") << head + node + "\n<well id=\"b\"/></nodes></network>"
                                << QStringLiteral("The node type well is not known and left out (") << true;
  QTest::newRow("unknown unit")
      << head + "<sink id=\"a\" x=\"1\" y=\"2\"><height value=\"3\" unit=\"cubit\"/></sink></nodes></network>"
      << QStringLiteral("\"cubit\" cannot be converted") << true;
  QTest::newRow("text for a number")
      << head + "<sink id=\"a\" x=\"1\" y=\"2\"><height value=\"high\"/></sink></nodes></network>"
      << QStringLiteral("height is no number: \"high\"") << true;
  QTest::newRow("without ends") << head + node + "</nodes><connections><pipe id=\"p\" from=\"a\"/></connections></network>"
                                << QStringLiteral("without id, from or to") << true;
  QTest::newRow("namespace") << QByteArray("<network><nodes>") + node + "</nodes></network>"
                             << QStringLiteral("The namespace is") << true;
}

void TestConvert::faultyNetworks() {
  QFETCH(QByteArray, text);
  QFETCH(QString, message);
  QFETCH(bool, ok);
  QFile file(m_folder.filePath(QStringLiteral("faulty.net")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write(text);
  file.close();
  const GasLibImport::Result result =
      GasLibImport::import(file.fileName(), QString(), QString(), m_folder.filePath(QStringLiteral("faulty")));
  QString texts;
  for (const Finding &finding : result.findings)
    texts += finding.logText() + QLatin1Char('\n');
  QCOMPARE(result.ok, ok);
  QVERIFY2(texts.contains(message), qPrintable(texts));
}

void TestConvert::program() {
  const auto run = [](const QStringList &arguments) {
    QProcess process;
    process.start(QStringLiteral(NIVRA_CONVERT), arguments);
    process.waitForFinished();
    return process.exitCode();
  };
  const QString out = m_folder.filePath(QStringLiteral("s.scen"));
  QCOMPARE(run({QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/S1/S1.scen.jsn"), out}), 0);
  QVERIFY(QFile::exists(out));
  QCOMPARE(run({QStringLiteral("one")}), 2);
  QCOMPARE(run({m_folder.filePath(QStringLiteral("gone.geom")), m_folder.filePath(QStringLiteral("x.geom.jsn"))}), 1);
}

NIVRA_TEST(TestConvert);
#include "tst_convert.moc"
