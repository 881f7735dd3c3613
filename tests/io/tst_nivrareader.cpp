#include <base/fileaccess.h>
#include <io/nivrareader.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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
  void setPointsKeepTheirNumbers_data();
  void setPointsKeepTheirNumbers();
  void massFlowsNeedTheGas_data();
  void massFlowsNeedTheGas();
  void companionFiles();
  void namesWithByteOrderMarks_data();
  void namesWithByteOrderMarks();
  void gasInTheOtherForm();
  void logLines_data();
  void logLines();
  void specialFilesAreRefused_data();
  void specialFilesAreRefused();
  void companionsThatCannotBeRead();
  void readErrorsEndAndAreTold_data();
  void readErrorsEndAndAreTold();
  void manyFindingsOfAKindAreCounted_data();
  void manyFindingsOfAKindAreCounted();
  void cancelling();
  void textWorkspace();

private:
  QTemporaryDir m_folder;

  QString write(const QString &name, const QByteArray &text) { return SmallFiles::write(m_folder.filePath(name), text); }
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
  row("[1],\"z\":1e400", nullptr, 2);
  row("{\"a\":[-1e400,null,true,\"x\"],\"b\":{}}", nullptr, 1);
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
  for (const char *broken : {"[1", "[1}", "[1,]", "[012]", "[tru]", "[nul]", R"(["\x"])", R"(["a":1])", R"({"a" 1})",
                             R"({"a":1,})", R"({"a":1 2})", R"({1:2})", R"([{"a":[}]}])"})
    QTest::newRow(broken) << R"(,"B":{"obj_type":"node","p":)" + QByteArray(broken) + "}" << json;
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

// In either form: to the last bit, and letter by letter where there is nothing to convert.
void TestNivraReader::setPointsKeepTheirNumbers_data() {
  QTest::addColumn<QByteArray>("number");
  QTest::addColumn<QByteArray>("unit");
  QTest::addColumn<QString>("stored");
  QTest::newRow("17 digits") << QByteArray("10396.223600000001") << QByteArray() << QStringLiteral("10396.223600000001");
  QTest::newRow("zeros") << QByteArray("1.50") << QByteArray("1000 m3/h") << QStringLiteral("1.50");
  QTest::newRow("exponent") << QByteArray("1e3") << QByteArray() << QStringLiteral("1e3");
  QTest::newRow("thousands") << QByteArray("5000") << QByteArray("m3/h") << QStringLiteral("5");
  QTest::newRow("odd thousands") << QByteArray("4350.7") << QByteArray("m3/h") << QStringLiteral("4.3507");
  QTest::newRow("seventh") << QByteArray("0.14285714285714285") << QByteArray("m3/h")
                           << QStringLiteral("0.00014285714285714284");
  QTest::newRow("noise") << QByteArray("1e-9") << QByteArray("m3/h") << QStringLiteral("0");
}

void TestNivraReader::setPointsKeepTheirNumbers() {
  QFETCH(QByteArray, number);
  QFETCH(QByteArray, unit);
  QFETCH(QString, stored);
  for (const bool isJson : {true, false}) {
    NetData net;
    read(net, R"("A":{"obj_type":"node"})");
    const QByteArray json = R"("A":[{"property":"qset","value":)" + number + R"(,"unit":")" + unit + "\"}]\n";
    const QByteArray text = "name;property;value;unit\nA;qset;" + number + ";" + unit + "\n";
    const QString file = write(isJson ? QStringLiteral("n.scen.jsn") : QStringLiteral("n.scen"), isJson ? json : text);
    QVERIFY(NivraReader(net).readScenariofileJsn(file, {}).findings.empty());
    QCOMPARE(net.element(QStringLiteral("A"))->value(QStringLiteral("qset")), stored);
  }
}

void TestNivraReader::massFlowsNeedTheGas_data() {
  QTest::addColumn<QByteArray>("node");
  QTest::addColumn<QByteArray>("gases");
  QTest::addColumn<QString>("qset"); // empty: it cannot be known
  // 10 kg/s of a gas of 0.8 kg/m3 are 12.5 m3/s, 45 thousand m3/h.
  QTest::newRow("the only gas") << QByteArray() << QByteArray(R"("G":{"obj_type":"gas","rhon":0.8})")
                                << QStringLiteral("45");
  QTest::newRow("the node's own density") << QByteArray(R"(,"rhon":0.4)")
                                          << QByteArray(R"("G":{"obj_type":"gas","rhon":0.8})") << QStringLiteral("90");
  QTest::newRow("the gas it names") << QByteArray(R"(,"gas":"h")")
                                    << QByteArray("\"G\":{\"obj_type\":\"gas\",\"rhon\":0.8}\n,\"H\":{\"obj_type\":\"gas\","
                                                  "\"rhon\":0.4}")
                                    << QStringLiteral("90");
  QTest::newRow("one of two") << QByteArray()
                              << QByteArray(
                                     "\"G\":{\"obj_type\":\"gas\",\"rhon\":0.8}\n,\"H\":{\"obj_type\":\"gas\",\"rhon\":0.4}")
                              << QString();
  QTest::newRow("no density") << QByteArray() << QByteArray(R"("G":{"obj_type":"gas","hs":40})") << QString();
}

void TestNivraReader::massFlowsNeedTheGas() {
  QFETCH(QByteArray, node);
  QFETCH(QByteArray, gases);
  QFETCH(QString, qset);
  NetData net;
  read(net, R"("A":{"obj_type":"node")" + node + "}\n,\"B\":{\"obj_type\":\"node\"}\n");
  write(QStringLiteral("m.gas.jsn"), gases);
  const QString scenario =
      write(QStringLiteral("m.scen.jsn"), "{\n\"B\":[{\"property\":\"qset\",\"value\":7,\"unit\":\"kg/s\"}]\n"
                                          ",\"A\":[{\"property\":\"qset\",\"value\":10,\"unit\":\"kg/s\"}]\n"
                                          ",\"B\":[{\"property\":\"qset\",\"value\":3}]\n}\n");
  const auto result = NivraReader(net).readScenarioJsn(scenario.chopped(4), NivraScenario(), {});
  QCOMPARE(net.element(QStringLiteral("A"))->value(QStringLiteral("qset")), qset);
  QCOMPARE(net.element(QStringLiteral("B"))->value(QStringLiteral("qset")), QStringLiteral("3")); // the last counts
  QCOMPARE(result.findings.empty(), !qset.isEmpty());
  if (qset.isEmpty()) {
    QCOMPARE(result.findings[0].line, 3);
    QCOMPARE(result.findings[0].file, scenario);
  }
}

void TestNivraReader::namesWithByteOrderMarks_data() {
  QTest::addColumn<QByteArray>("gases");
  QTest::addColumn<QString>("qset");
  QTest::newRow("gas known") << QByteArray(R"("G":{"obj_type":"gas","rhon":0.8})") << QStringLiteral("45");
  QTest::newRow("gas unknown") << QByteArray() << QString();
}

/// In front of a name the mark is a part of it, for values as for messages.
void TestNivraReader::namesWithByteOrderMarks() {
  QFETCH(QByteArray, gases);
  QFETCH(QString, qset);
  const QString name = QStringLiteral("\uFEFFN");
  NetData net;
  read(net, "{\n"
            R"("\uFEFFN":{"obj_type":"node","\uFEFFx":1,"x":2},"N":{"obj_type":"node"})"
            "\n}\n");
  QCOMPARE(net.nodes().size(), std::size_t(2));
  const element *node = net.element(name);
  QVERIFY(node != nullptr && node->value(QStringLiteral("name")) == name);
  QCOMPARE(node->value(QStringLiteral("\uFEFFx")), QStringLiteral("1"));
  write(QStringLiteral("m.gas.jsn"), gases);
  const QString scenario = write(QStringLiteral("m.scen.jsn"), "{\n"
                                                               R"("\uFEFFN":[{"property":"qset","value":10,"unit":"kg/s"}])"
                                                               "\n}\n");
  const auto result = NivraReader(net).readScenarioJsn(scenario.chopped(4), NivraScenario(), {});
  QCOMPARE(node->value(QStringLiteral("qset")), qset);
  QCOMPARE(net.element(QStringLiteral("N"))->value(QStringLiteral("qset")), QString());
  QCOMPARE(result.findings.empty(), !qset.isEmpty());
  if (qset.isEmpty()) {
    QCOMPARE(result.findings[0].element, name);
    QVERIFY2(result.findings[0].text.contains(name), qPrintable(result.findings[0].text));
  }
}

void TestNivraReader::gasInTheOtherForm() {
  NetData net;
  write(QStringLiteral("t.scen.jsn"), "{\n}\n");
  write(QStringLiteral("t.gas"), "[gas]\nname;rhon\nHydrogen;0.0899\n");
  QStringList log;
  NivraReader reader(net, [&log](const Finding &told) { log.append(told.text); });
  const auto result = reader.readScenarioJsn(m_folder.filePath(QStringLiteral("t.scen")), NivraScenario(), {});
  QVERIFY(result.findings.empty());
  QCOMPARE(reader.gases().size(), std::size_t(1));
  QVERIFY(reader.gasFile().endsWith(QStringLiteral("t.gas")));
  QVERIFY(log.contains(QStringLiteral("readScen: cannot find or read JSON gas file, but could read via readGas-function")));
}

void TestNivraReader::logLines_data() {
  QTest::addColumn<QString>("suffix");
  QTest::addColumn<QStringList>("expected");
  QTest::newRow("JSON") << QStringLiteral(".jsn")
                        << QStringList{
                               QStringLiteral("^starting  readTopoAndScenJsn with .*w.geom .*w.scen$"),
                               QStringLiteral("^### To read elements of geom buffer took [-0-9.e]+s$"),
                               QStringLiteral("^starting readScenarioJsn with .*w.scen$"),
                               QStringLiteral("^NivraReader::readScenariofileJsn \\[2 threads\\]$"),
                               QStringLiteral("^### To read elements of scenario jsn file took [-0-9.e]+s$"),
                               QStringLiteral("^### To read elements of scenario jsn buffer took [-0-9.e]+ \\[sec\\] "
                                              "for 1 properties$"),
                               QStringLiteral("^readScen: cannot find or read a gas file$"),
                               QStringLiteral("^There is no scenario fixes file$"),
                               QStringLiteral("^There is no scenario .res.jsn file$"),
                               QStringLiteral("^Could not find .gaspar.jsn file$")};
  QTest::newRow("text") << QString()
                        << QStringList{QStringLiteral("^### To read elements of geom buffer took .*$"),
                                       QStringLiteral("^NivraReader::readScenariofile \\[2 threads\\]$"),
                                       QStringLiteral("^### To read elements of scenario file took .*$"),
                                       QStringLiteral("^There is no scenario .res file$")};
}

void TestNivraReader::logLines() {
  QFETCH(QString, suffix);
  QFETCH(QStringList, expected);
  QDir(m_folder.path()).mkpath(QStringLiteral("L/S"));
  const bool isJson = !suffix.isEmpty();
  write(QStringLiteral("L/w.geom") + suffix, isJson ? "{\n\"A\":{\"obj_type\":\"node\"}\n}\n" : "[node]\nname\nA\n");
  const QString scenario =
      write(QStringLiteral("L/S/w.scen") + suffix,
            isJson ? "{\n\"A\":[{\"property\":\"pset\",\"value\":1}]\n}\n" : "name;property;value\nA;pset;1\n");
  NetData net;
  QStringList lines;
  NivraReader reader(net, [&lines](const Finding &told) { lines.append(told.text); });
  reader.readTopoAndScen(NivraWorkspace::fromFile(scenario), {});
  int at = 0;
  for (const QString &pattern : expected) {
    at = lines.indexOf(QRegularExpression(pattern), at) + 1;
    QVERIFY2(at > 0, qPrintable(pattern + QLatin1Char('\n') + lines.join(QLatin1Char('\n'))));
  }
}

void TestNivraReader::specialFilesAreRefused_data() {
  QTest::addColumn<QString>("file");
  for (const char *file : {"w.geom.jsn", "S/w.scen.jsn", "S/w.gas.jsn", "S/w.fix.jsn", "S/w.res.jsn", "S/w.gaspar.jsn",
                           "S/w.scen.cfg.jsn", "S/w.res.sub.jsn"})
    QTest::newRow(file) << QString::fromLatin1(file);
}

// A pipe would hang for ever, a device fill the memory, a link show a stranger's file.
void TestNivraReader::specialFilesAreRefused() {
  QFETCH(QString, file);
  QTemporaryDir root;
  QTemporaryDir elsewhere;
  QDir(root.path()).mkpath(QStringLiteral("C/S"));
  const QString folder = root.filePath(QStringLiteral("C/"));
  const QString stranger = elsewhere.filePath(QStringLiteral("f"));
  SmallFiles::write(stranger, "{\n\"A\":{\"obj_type\":\"node\",\"p\":99}\n}\n");
  for (const QString &kind : {QStringLiteral("pipe"), QStringLiteral("/dev/zero"), stranger}) {
    SmallFiles::write(folder + QStringLiteral("w.geom.jsn"), "{\n\"A\":{\"obj_type\":\"node\"}\n}\n");
    SmallFiles::write(folder + QStringLiteral("S/w.scen.jsn"), "{\n}\n");
    const NivraWorkspace workspace = NivraWorkspace::fromFile(folder + QStringLiteral("S/w.scen.jsn"));
    QFile::remove(folder + file);
    if (kind == QLatin1String("pipe"))
      QCOMPARE(::mkfifo(QFile::encodeName(folder + file).constData(), 0600), 0);
    else
      QVERIFY(QFile::link(kind, folder + file));
    FileAccess::confineTo(root.path());
    NetData net;
    NivraReader reader(net);
    auto result = reader.readTopoAndScen(workspace, {});
    append(result.findings, reader.readSubResults(workspace, {}).findings);
    FileAccess::confineTo(QString());
    const element *node = net.element(QStringLiteral("A"));
    QCOMPARE(node == nullptr, file == QLatin1String("w.geom.jsn"));
    QVERIFY(node == nullptr || !node->contains(QStringLiteral("p")));
    QString told;
    for (const Finding &finding : result.findings)
      told += finding.text + QLatin1Char('\n');
    const QString reason =
        kind == QLatin1String("pipe") ? QStringLiteral("not a regular file") : QStringLiteral("leads out of the workspace");
    QVERIFY2(told.contains(reason), qPrintable(told));
    QFile::remove(folder + file);
  }
}

/// Which one, and why.
void TestNivraReader::companionsThatCannotBeRead() {
  write(QStringLiteral("u.scen.jsn"), "{\n}\n");
  const QString results = m_folder.filePath(QStringLiteral("u.res.jsn"));
  const QString fixes = m_folder.filePath(QStringLiteral("u.fix.jsn"));
  QVERIFY(QDir().mkdir(results));
  QCOMPARE(::mkfifo(QFile::encodeName(fixes).constData(), 0600), 0);
  QStringList texts; // told at once or returned: whoever reads the log sees both
  NetData net;
  NivraReader reader(net, [&texts](const Finding &told) { texts.append(told.text); });
  for (const Finding &finding :
       reader.readScenarioJsn(m_folder.filePath(QStringLiteral("u.scen")), NivraScenario(), {}).findings) {
    texts.append(finding.text);
    QVERIFY(finding.severity == Finding::Severity::Warning && finding.box.isEmpty());
  }
  for (const QString &reason :
       {results + QStringLiteral(": is a directory"), fixes + QStringLiteral(": is not a regular file")}) {
    const QStringList telling = texts.filter(reason);
    QVERIFY2(telling.size() == 1, qPrintable(texts.join(QLatin1Char('\n'))));
    const QString suffix = reason.startsWith(results) ? QStringLiteral(".res.jsn") : QStringLiteral(".fix.jsn");
    QCOMPARE(telling.first(), QStringLiteral("Could not read %1 file: %2").arg(suffix, reason));
  }
}

void TestNivraReader::readErrorsEndAndAreTold_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QByteArray>("head");
  QTest::addColumn<QByteArray>("line");
  const QByteArray filler(300, 'c'); // so that few lines fill many blocks
  QTest::newRow("geometry") << QStringLiteral("e.geom.jsn") << QByteArray("{\n")
                            << R"("A":{"obj_type":"node","note":")" + filler + "\"}";
  QTest::newRow("geometry, text") << QStringLiteral("e.geom") << QByteArray("[node]\nname;note\n") << "A;" + filler;
  QTest::newRow("set points") << QStringLiteral("e.scen.jsn") << QByteArray("{\n")
                              << R"("A":[{"property":"note","value":")" + filler + "\"}]";
  QTest::newRow("set points, text") << QStringLiteral("e.scen") << QByteArray("name;property;value\n") << "A;note;" + filler;
}

// The file is replaced by a folder behind the descriptor once a block was read; and one fails from the first byte on.
void TestNivraReader::readErrorsEndAndAreTold() {
  QFETCH(QString, name);
  QFETCH(QByteArray, head);
  QFETCH(QByteArray, line);
  const bool isText = !name.endsWith(QStringLiteral(".jsn"));
  QByteArray content = head;
  for (int i = 0; content.size() < (4 << 20); ++i)
    content += (isText || i == 0 ? QByteArray() : QByteArray(",")) + line + "\n";
  const QString path = write(name, content);
  bool isBroken = false;
  NivraReader::Options options;
  options.progress = [&](double) {
    for (const QFileInfo &open : QDir(QStringLiteral("/proc/self/fd")).entryInfoList(QDir::Files | QDir::System)) {
      if (open.symLinkTarget() != path || isBroken)
        continue;
      const int folder = ::open("/", O_RDONLY | O_DIRECTORY);
      isBroken = ::dup2(folder, open.fileName().toInt()) >= 0;
      ::close(folder);
    }
    return true;
  };
  NetData net;
  read(net, R"("A":{"obj_type":"node"})");
  NivraReader reader(net);
  const bool isGeometry = name.contains(QStringLiteral("geom"));
  const auto readAll = [&] {
    return isGeometry ? reader.readGeomJsn(path, options) : reader.readScenariofileJsn(path, options);
  };
  auto result = readAll();
  // On a busy machine the other thread may have read all values before the one that tells the progress had its turn.
  constexpr int MostTries = 100;
  for (int i = 0; i < MostTries && !isBroken && !isGeometry; ++i)
    result = readAll();
  QVERIFY(isBroken);
  QVERIFY(result.ok); // what was read is shown
  QVERIFY(!result.findings.empty());
  const Finding &told = result.findings.back();
  QVERIFY2(told.text.contains(QStringLiteral("could not be read to its end")), qPrintable(told.text));
  QVERIFY(told.text.contains(path) && !told.box.isEmpty());

  const QString never = m_folder.filePath(QStringLiteral("never") + name.mid(1));
  QVERIFY(QFile::link(QStringLiteral("/proc/self/mem"), never));
  const auto none = isGeometry ? reader.readGeomJsn(never, {}) : reader.readScenariofileJsn(never, {});
  QVERIFY(!none.ok);
  QVERIFY(none.findings.at(0).text.startsWith(never));
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
  QStringList log;
  NivraReader reader(net, [&log](const Finding &told) { log.append(told.text); });
  const auto result = reader.readScenarioJsn(base + QStringLiteral(".scen"), scenario, {});
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

void TestNivraReader::manyFindingsOfAKindAreCounted_data() {
  QTest::addColumn<QByteArray>("members");
  QTest::newRow("unknown type") << QByteArray("\"obj_type\":\"nonsense\"}");
  QTest::newRow("dropped property") << QByteArray("\"obj_type\":\"node\",\"note\":null}");
  QTest::newRow("property given twice") << QByteArray("\"obj_type\":\"node\",\"x\":1,\"X\":2}");
  QTest::newRow("bad line") << QByteArray("\"obj_type\":\"node\"");
}

void TestNivraReader::manyFindingsOfAKindAreCounted() {
  QFETCH(QByteArray, members);
  QByteArray text = "{\n\"N\":{\"obj_type\":\"node\",\"name\":\"M\"}\n";
  for (int i = 0; i < 1002; ++i)
    text += ",\"U" + QByteArray::number(i) + "\":{" + members + "\n";
  NetData net;
  const Findings findings = read(net, text + "}\n").findings;
  QCOMPARE(findings.size(), std::size_t(1 + 1000 + 1));
  QCOMPARE(findings.front().text, QStringLiteral("Element N has a property name of its own, M; it is left out"));
  QCOMPARE(findings.back().text,
           QStringLiteral("... and 2 more of this kind (%1)").arg(QLatin1String(QTest::currentDataTag())));
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
