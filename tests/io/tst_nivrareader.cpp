#include <base/nivramsg.h>
#include <io/nivrareader.h>
#include <support/nivratest.h>

#include <QTemporaryDir>

class TestNivraReader : public QObject {
  Q_OBJECT

private slots:
  void values_data();
  void values();
  void badLines_data();
  void badLines();
  void oddFiles_data();
  void oddFiles();
  void unreadableFiles_data();
  void unreadableFiles();
  void linesAcrossBlocks();
  void includeLists();
  void scenarioValuesEndAsTheLinesSay();
  void scenarioUnitsAndUnknownNames();
  void companionFiles();
  void cancelling();
  void textWorkspace();

private:
  QTemporaryDir m_folder;

  QString write(const QString &name, const QByteArray &text) {
    QFile file(m_folder.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return file.fileName();
  }
  NivraReader::Result read(NetData &net, const QByteArray &text, const NivraReader::Options &options = {}) {
    return NivraReader(net).readGeomJsn(write(QStringLiteral("a.geom.jsn"), text), options);
  }
};

void TestNivraReader::values_data() {
  QTest::addColumn<QByteArray>("json");
  QTest::addColumn<QString>("text"); // null: the property is left out
  QTest::addColumn<int>("findings");
  const auto row = [](const char *json, const char *text, int findings = 0) {
    QTest::newRow(json) << QByteArray(json) << QString::fromUtf8(text) << findings;
  };
  row("0.1", "0.1");
  row("12.50", "12.5");
  row("1.0", "1");
  row("-0.0", "-0");
  row("1e20", "1e+20");
  row("1E3", "1000");
  row("0.00001", "1e-05");
  row("0.0001", "0.0001");
  row("100000000000000000", "1e+17");
  row("123456789012345", "123456789012345");
  row("0.123456789012345678901234567890", "0.1234567890123457");
  row("1e400", nullptr, 1);
  row("-1e400", nullptr, 1);
  row("1e-400", "0");
  row("\"12 bar\"", "12 bar");
  row("\"nan\"", "nan");
  row("\"\\u00e4\\n\\\"\"", "\xC3\xA4\n\"");
  row("true", "true");
  row("null", nullptr, 1);
  row("[1,{\"a\":2}]", nullptr, 1);
}

void TestNivraReader::values() {
  QFETCH(QByteArray, json);
  QFETCH(QString, text);
  QFETCH(int, findings);
  NetData net;
  const auto result = read(net, "{\n\"A\":{\"obj_type\":\"node\",\"p\":" + json + "}\n}\n");
  const element *node = net.element(QStringLiteral("A"));
  QVERIFY(node != nullptr);
  QCOMPARE(node->contains(QStringLiteral("p")), !text.isNull());
  QCOMPARE(node->value(QStringLiteral("p")), text);
  QCOMPARE(int(result.findings.size()), findings);
}

void TestNivraReader::badLines_data() {
  QTest::addColumn<QByteArray>("line");
  QTest::addColumn<QString>("message");
  const QString json = QStringLiteral("!!!!!!!!!!!!! Problem with JSON at");
  QTest::newRow("comma behind") << QByteArray(R"("B":{"obj_type":"node"},)") << json;
  QTest::newRow("trailing comma") << QByteArray(R"(,"B":{"obj_type":"node",})") << json;
  QTest::newRow("brace too many") << QByteArray(R"(,"B":{"obj_type":"node"}})") << json;
  QTest::newRow("brace missing") << QByteArray(R"(,"B":{"obj_type":"node")") << json;
  QTest::newRow("not a number") << QByteArray(R"(,"B":{"obj_type":"node","p":nan})") << json;
  QTest::newRow("leading zero") << QByteArray(R"(,"B":{"obj_type":"node","p":012})") << json;
  QTest::newRow("bad escape") << QByteArray(R"(,"B":{"obj_type":"node","p":"\x"})") << json;
  QTest::newRow("not UTF-8") << QByteArray("\"B\":{\"obj_type\":\"node\",\"p\":\"\xff\xfe\"}") << json;
  QTest::newRow("broken inside what is skipped") << QByteArray(R"(,"B":{"obj_type":"node","p":[1,,2]})") << json;
  QTest::newRow("deep") << QByteArray(R"(,"B":{"obj_type":"node","p":)") + QByteArray(10000, '[') + QByteArray(10000, ']') +
                               "}"
                        << json;
  QTest::newRow("no object") << QByteArray(R"(,"B":5)") << json;
  QTest::newRow("binary") << QByteArray("\x01\x02\x03\x00\xff", 5) << json;
  QTest::newRow("unknown type") << QByteArray(R"(,"B":{"obj_type":"airship"})")
                                << QStringLiteral("ERROR: Type airship of element B not known! Element will be erased!");
  QTest::newRow("no type") << QByteArray(R"(,"B":{"x":1})")
                           << QStringLiteral("ERROR: Type  of element B not known! Element will be erased!");
}

void TestNivraReader::badLines() {
  QFETCH(QByteArray, line);
  QFETCH(QString, message);
  NetData net;
  const auto result =
      read(net, "{\n\"A\":{\"obj_type\":\"node\",\"x\":1}\n" + line + "\n,\"C\":{\"obj_type\":\" node \",\"x\":3}\n}");
  QVERIFY(result.ok);
  QCOMPARE(net.nodes().size(), std::size_t(2));
  QCOMPARE(net.element(QStringLiteral("C"))->value(QStringLiteral("x")), QStringLiteral("3"));
  QCOMPARE(result.findings.size(), std::size_t(1));
  QVERIFY2(result.findings[0].text.startsWith(message), qPrintable(result.findings[0].text));
  QCOMPARE(result.findings[0].line, 3);
  QVERIFY(result.findings[0].logText().contains(QStringLiteral("a.geom.jsn:3")));
  QVERIFY(result.findings[0].text.size() < 500);
}

void TestNivraReader::oddFiles_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<int>("nodes");
  QTest::addColumn<int>("findings");
  const QByteArray a = R"("A":{"obj_type":"node","x":1})";
  const QByteArray b = R"("B":{"obj_type":"node","x":2})";
  QTest::newRow("empty") << QByteArray() << 0 << 1;
  QTest::newRow("byte-order mark") << "\xEF\xBB\xBF{\n" + a + "\n,  " + b + "\n}" << 2 << 0;
  QTest::newRow("carriage returns") << "{\r\n" + a + "\r\n," + b + "\r\n}\r\n" << 2 << 0;
  QTest::newRow("no frame, no end of line") << a << 1 << 0;
  QTest::newRow("two on a line") << a + "," + b << 2 << 0;
  QTest::newRow("same name in other case") << a + "\n," + QByteArray(b).replace("\"B\"", "\"a\"") << 1 << 0;
  QTest::newRow("same property in other case") << QByteArray(a).replace("}", ",\"X\":5}") << 1 << 1;
  QTest::newRow("a name of its own") << QByteArray(a).replace("}", ",\"name\":\"Z\"}") << 1 << 1;
  QTest::newRow("UTF-16") << QByteArray("\xff\xfe{\0\n\0\"\0A\0\"\0:\0{\0}\0\n\0", 20) << 0 << 3;
  QTest::newRow("blank lines and lone commas") << "\n\n   \n,\n" + a + "\n,\n,}\n" << 1 << 1;
}

void TestNivraReader::oddFiles() {
  QFETCH(QByteArray, text);
  QFETCH(int, nodes);
  QFETCH(int, findings);
  NetData net;
  const auto result = read(net, text);
  QVERIFY(result.ok);
  QCOMPARE(int(net.nodes().size()), nodes);
  QCOMPARE(int(result.findings.size()), findings);
}

void TestNivraReader::unreadableFiles_data() {
  QTest::addColumn<QString>("name");
  QTest::newRow("missing") << QStringLiteral("none.geom.jsn");
  QTest::newRow("folder") << QString();
}

void TestNivraReader::unreadableFiles() {
  QFETCH(QString, name);
  NetData net;
  const auto result = NivraReader(net).readGeomJsn(m_folder.filePath(name), {});
  QVERIFY(!result.ok);
  QCOMPARE(result.findings.at(0).severity, Finding::Severity::Critical);
  QVERIFY(result.findings.at(0).text.startsWith(m_folder.path()));
}

// Lines longer than a block, lines that end where a block ends, and one that is too long to be kept.
void TestNivraReader::linesAcrossBlocks() {
  QByteArray text = "{\n";
  for (int i = 0; i < 3000; ++i)
    text += (i > 0 ? ",\"N" : "\"N") + QByteArray::number(i) + R"(":{"obj_type":"node","x":)" + QByteArray::number(i) +
            R"(,"comment":")" + QByteArray(i * 37 % 1500, 'c') + "\"}\n";
  text += R"(,"LONG":{"obj_type":"node","comment":")" + QByteArray(3 << 20, 'l') + "\"}\n";
  text += R"(,"ENDLESS":{"obj_type":"node","comment":")" + QByteArray(70 << 20, 'e') + "\"}\n";
  text += R"(,"LAST":{"obj_type":"node"})";
  NetData net;
  const auto result = read(net, text);
  QCOMPARE(net.nodes().size(), std::size_t(3002));
  for (int i = 0; i < 3000; ++i)
    QCOMPARE(net.element(QStringLiteral("N%1").arg(i))->value(QStringLiteral("x")), QString::number(i));
  QCOMPARE(net.element(QStringLiteral("LONG"))->value(QStringLiteral("comment")).size(), 3 << 20);
  QVERIFY(net.element(QStringLiteral("LAST")) != nullptr);
  QCOMPARE(result.findings.size(), std::size_t(1));
  QCOMPARE(result.findings[0].line, 3003);
}

void TestNivraReader::includeLists() {
  const QByteArray text = "\"A\":{\"obj_type\":\"node\",\"x\":1,\"pmin\":2,\"height\":3}\n"
                          ",\"P\":{\"obj_type\":\"pipe\",\"node1\":\"A\",\"node2\":\"A\",\"length\":4}\n";
  NivraReader::Options options;
  options.includeTypes = QStringLiteral("NODE");
  options.includeProperties = QStringLiteral("^p");
  NetData net;
  read(net, text, options);
  QVERIFY(net.edges().isEmpty());
  QCOMPARE(net.element(QStringLiteral("A"))->size(), std::size_t(4)); // name, type, x, pmin
  options.includeTypes = QStringLiteral("(");
  NetData all;
  QCOMPARE(read(all, text, options).findings.size(), std::size_t(1));
  QCOMPARE(all.edges().size(), std::size_t(1));
}

void TestNivraReader::scenarioValuesEndAsTheLinesSay() {
  NetData net;
  QByteArray geometry;
  QByteArray values;
  for (int i = 0; i < 200; ++i)
    geometry += ",\"N" + QByteArray::number(i) + "\":{\"obj_type\":\"node\"}\n";
  for (int round = 0; round < 20; ++round)
    for (int i = 0; i < 200; ++i)
      values +=
          ",\"n" + QByteArray::number(i) + "\":[{\"property\":\"pset\",\"value\":" + QByteArray::number(round) + "}]\n";
  read(net, geometry);
  const auto result =
      NivraReader(net).readScenariofileJsn(write(QStringLiteral("a.scen.jsn"), "{\n" + values + "broken\n}\n"), {});
  QVERIFY(result.ok);
  QCOMPARE(result.properties, 4000);
  QCOMPARE(result.findings.size(), std::size_t(1));
  QVERIFY(result.findings[0].box.startsWith(QStringLiteral("Severe JSON problem! \nInvalid input line(s) ignored!")));
  for (int i = 0; i < 200; ++i)
    QCOMPARE(net.element(QStringLiteral("N%1").arg(i))->value(QStringLiteral("pset")), QStringLiteral("19"));
}

void TestNivraReader::scenarioUnitsAndUnknownNames() {
  NetData net;
  read(net, R"("A":{"obj_type":"node"})");
  const auto result = NivraReader(net).readScenariofileJsn(
      write(QStringLiteral("a.scen.jsn"),
            R"("A":[{"property":"qset","value":-5000,"unit":"m3/h"},{"property":"pset","value":50,"unit":"bar"})"
            R"(,{"property":"tset","value":10,"unit":"furlong"},{"value":3},{"property":"name","value":"Z"}])"
            "\n,\"Z\":[{\"property\":\"pset\",\"value\":1}]\n"),
      {});
  const element &node = *net.element(QStringLiteral("A"));
  QCOMPARE(node.value(QStringLiteral("qset")), QStringLiteral("-5"));
  QCOMPARE(node.value(QStringLiteral("pset")), QStringLiteral("50"));
  QCOMPARE(node.value(QStringLiteral("tset")), QStringLiteral("10"));
  QCOMPARE(result.findings.size(), std::size_t(4));
  QVERIFY(result.findings.back().text.startsWith(QStringLiteral("name not found, is no valid node or element: Z")));
}

void TestNivraReader::companionFiles() {
  NetData net;
  read(net, R"("A":{"obj_type":"node"})");
  const QString base = m_folder.filePath(QStringLiteral("run"));
  write(QStringLiteral("run.scen.jsn"), R"("A":[{"property":"pset","value":1},{"property":"qset","value":1}])");
  write(QStringLiteral("run.fix.jsn"), R"("A":[{"property":"pset","value":2}])");
  write(QStringLiteral("run.res.jsn"), "{\n\"A\":{\"p\":50.5,\"t\":283.15}\n,\"B\":{\"p\":1}\n}");
  write(QStringLiteral("own.gas.jsn"), "{\n\"H2\":{\"obj_type\":\"gas\",\"rhon\":0.09}\n}");
  write(QStringLiteral("run.scen.cfg.jsn"), R"({"tsoil":270.5,"comprDatabase":"own.txt","workDir":"elsewhere"})");
  NivraScenario scenario;
  scenario.gasFile = QStringLiteral("own.gas");
  NivraReader reader(net);
  QStringList log;
  const auto connection = connect(
      &NivraMsg::NivraLogger::instance(), &NivraMsg::NivraLogger::msgConsole, this,
      [&](const QString &text) { log.append(text); }, Qt::DirectConnection);
  const auto result = reader.readScenarioJsn(base + QStringLiteral(".scen"), scenario, {});
  disconnect(connection);
  const element &node = *net.element(QStringLiteral("A"));
  QCOMPARE(node.value(QStringLiteral("pset")), QStringLiteral("2"));
  QCOMPARE(node.value(QStringLiteral("p")), QStringLiteral("50.5"));
  QCOMPARE(reader.gases().at(QStringLiteral("H2")).value(QStringLiteral("rhon")), QStringLiteral("0.09"));
  QCOMPARE(result.findings.size(), std::size_t(1));
  QVERIFY(log.contains(QStringLiteral("NivraReader::readScenariofileJsn [2 threads]")));
  QVERIFY(log.contains(QStringLiteral("Fixes for scenario are loaded!")));
  QVERIFY(log.contains(QStringLiteral("Results for scenario are loaded!")));
  QVERIFY(log.contains(QStringLiteral("Could not find .gaspar.jsn file")));

  QDir(m_folder.path()).mkpath(QStringLiteral("C/S"));
  NivraWorkspace workspace = NivraWorkspace::fromFile(write(QStringLiteral("C/S/run.scen.jsn"), "{\n}"));
  NivraGasParams gas;
  workspace.takeConfiguration(result.configuration, gas);
  QCOMPARE(gas.tsoil, 270.5);
  QCOMPARE(workspace.currentScenario()->comprDatabase, QStringLiteral("own.txt"));
  QCOMPARE(workspace.currentScenario()->workDir, QStringLiteral("S")); // where the file lies
}

void TestNivraReader::cancelling() {
  QByteArray text;
  for (int i = 0; i < 5000; ++i)
    text += ",\"N" + QByteArray::number(i) + "\":{\"obj_type\":\"node\"}\n";
  NivraReader::Options options;
  options.progress = [](double fraction) {
    return fraction < 0.0;
  };
  NetData net;
  const auto result = read(net, text, options);
  QVERIFY(result.cancelled);
  QVERIFY(net.nodes().size() < 5000);
}

void TestNivraReader::textWorkspace() {
  QDir(m_folder.path()).mkpath(QStringLiteral("C/S"));
  write(QStringLiteral("C/a.geom"), "[node]\nname;x;y\nA;0;0\nB;1;0\n[pipe]\nname;node1;node2\nP;A;B\n");
  const QString scenario = write(QStringLiteral("C/S/S.scen"), "name;property;value;unit\nA;pset;7;MPa\n");
  write(QStringLiteral("C/S/S.gas"), "[gas]\nname;rhon\nHydrogen;0.0899\n");
  write(QStringLiteral("C/S/S.fix"), "name;property;value\nB;qset;5\n");
  write(QStringLiteral("C/S/S.res"), "name;p\nA;70\nB;69.5\nname;q;v\nP;5;3.1\n");
  write(QStringLiteral("C/S/S.res.sub"), "name;p\nB;69\n");
  write(QStringLiteral("C/S/S.res.jsn"), "{\n\"A\":{\"p\":1}\n}\n"); // of the other form
  const NivraWorkspace workspace = NivraWorkspace::fromFile(scenario);
  QVERIFY(!workspace.isJson());
  NetData net;
  NivraReader reader(net);
  const auto result = reader.readTopoAndScen(workspace, {});
  QVERIFY2(result.ok && result.findings.empty(), qPrintable(result.findings.empty() ? QString() : result.findings[0].text));
  QCOMPARE(net.nodes().at(QStringLiteral("B")).value(QStringLiteral("p")), QStringLiteral("69.5"));
  QVERIFY(reader.readSubResults(workspace, {}).findings.empty());
  QCOMPARE(net.nodes().at(QStringLiteral("A")).value(QStringLiteral("pset")), QStringLiteral("70"));
  QCOMPARE(net.nodes().at(QStringLiteral("A")).value(QStringLiteral("p")), QStringLiteral("70"));
  QCOMPARE(net.nodes().at(QStringLiteral("B")).value(QStringLiteral("p")), QStringLiteral("69"));
  QCOMPARE(net.nodes().at(QStringLiteral("B")).value(QStringLiteral("qset")), QStringLiteral("5"));
  QCOMPARE(net.edges().at(QStringLiteral("P")).value(QStringLiteral("v")), QStringLiteral("3.1"));
  QCOMPARE(reader.gases().count(QStringLiteral("Hydrogen")), std::size_t(1));
}

NIVRA_TEST(TestNivraReader);
#include "tst_nivrareader.moc"
