#include <io/networkfileconverter.h>
#include <io/nivrareader.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>

/// The text form of network files, alone and beside the JSON form.
class TestTextForms : public QObject {
  Q_OBJECT

private slots:
  void cells_data();
  void cells();
  void tables();
  void tabulators();
  void faultyLines_data();
  void faultyLines();
  void openQuoteCostsOneLine();
  void reportsAsJsonDoes();
  void decimalCommas();
  void otherEncodings();
  void setPoints();
  void thereAndBack();
  void numbersThereAndBack();
  void manyProperties();
  void setPointsThereAndBack();
  void realNetworksThereAndBack_data();
  void realNetworksThereAndBack();
  void namesThatComeAgain_data();
  void namesThatComeAgain();
  void whatTextCannotSay_data();
  void whatTextCannotSay();
  void whatIsLeftOutIsCounted();
  void recordsThatTextCannotHold();
  void longTextsThereAndBack();
  void conversionsThatFail();

private:
  QString write(const QString &name, const QByteArray &text) const {
    return SmallFiles::write(m_folder.filePath(name), text);
  }
  QByteArray contents(const QString &name) const { return SmallFiles::contents(m_folder.filePath(name)); }
  NivraReader::Result read(NetData &net, const QByteArray &text) const {
    return NivraReader(net).readGeomJsn(write(QStringLiteral("a.geom"), text), {});
  }
  /// Everything that a network holds.
  static QString dump(NetData &net) {
    QString text;
    net.forEach(NetData::AllTypes, [&text](const element &e) { text += e.lines() + QLatin1Char('\n'); });
    return text;
  }

  QTemporaryDir m_folder;
};

void TestTextForms::cells_data() {
  QTest::addColumn<QByteArray>("cell");
  QTest::addColumn<QByteArray>("value"); // null: none
  const auto row = [](const char *cell, const char *value) {
    QTest::newRow(cell) << QByteArray(cell) << (value == nullptr ? QByteArray() : QByteArray(value));
  };
  row("12.50", "12.5"); // as JSON numbers
  row("\"12.50\"", "12.50");
  row("  a b  ", "a b");
  row("\" a b \"", " a b ");
  row("", nullptr);
  row("say \"x\"", "say \"x\"");
  row("\"say \"\"x\"\";\"", "say \"x\";");
  row("\"two\nlines\r\nand three\"", "two\nlines\r\nand three");
  row("نص 🔥", "نص 🔥");
  row("1e400", "1e400"); // no number that can be stored: a text
}

void TestTextForms::cells() {
  QFETCH(QByteArray, cell);
  QFETCH(QByteArray, value);
  NetData net;
  const auto result = read(net, "[node]\nname;note;x\nA;" + cell + ";3\nB;;4\n");
  QVERIFY2(result.findings.empty(), qPrintable(result.findings.empty() ? QString() : result.findings[0].text));
  QCOMPARE(net.nodes().at(QStringLiteral("A")).value(QStringLiteral("note")).toUtf8(), value);
  QCOMPARE(net.nodes().at(QStringLiteral("A")).contains(QStringLiteral("note")), !value.isNull());
  QCOMPARE(net.nodes().at(QStringLiteral("B")).value(QStringLiteral("x")), QStringLiteral("4"));

  NetData empty;
  read(empty, "[node]\nname;note\nA;\"\"\n");
  QVERIFY(empty.nodes().at(QStringLiteral("A")).contains(QStringLiteral("note")));
}

void TestTextForms::tables() {
  NetData net;
  const auto result =
      read(net, "\xEF\xBB\xBF# a network\n\n[node];;\r\nName;x;y;;\r\nA;0;0;;\r\n;;;\r\n\"#B\";1;0\n"
                "[pipe]\nname;node1;node2\nP1;A;#B\nname;node1;node2;\"length;m\"\n\"name\";A;#B;7\nnamely;A;#B\n");
  QVERIFY2(result.findings.empty(), qPrintable(result.findings.empty() ? QString() : result.findings[0].text));
  QCOMPARE(net.nodes().size(), std::size_t(2));
  QCOMPARE(net.edges().size(), std::size_t(3));
  QCOMPARE(net.edges().at(QStringLiteral("name")).value(QStringLiteral("length;m")), QStringLiteral("7"));
  QVERIFY(net.edges().find(QStringLiteral("namely")) != nullptr);
}

void TestTextForms::tabulators() {
  NetData net;
  QVERIFY(read(net, "[node]\nname\tx\ty\tnote\nA\t\t3\ta;b\nname2\t4\n").findings.empty());
  const element &a = net.nodes().at(QStringLiteral("A"));
  QVERIFY(!a.contains(QStringLiteral("x")));
  QCOMPARE(a.value(QStringLiteral("y")), QStringLiteral("3"));
  QCOMPARE(a.value(QStringLiteral("note")), QStringLiteral("a;b"));
  QCOMPARE(net.nodes().at(QStringLiteral("name2")).value(QStringLiteral("x")), QStringLiteral("4"));
}

void TestTextForms::faultyLines_data() {
  QTest::addColumn<QByteArray>("line");
  QTest::addColumn<QString>("reason");
  QTest::newRow("too many cells") << QByteArray("B;1;2;3") << QStringLiteral("more than the 3 columns");
  QTest::newRow("behind a quote") << QByteArray("\"B\" x;1;2") << QStringLiteral("behind a closing quote");
  QTest::newRow("type") << QByteArray("[pipe] x") << QStringLiteral("alone in its line");
  QTest::newRow("column") << QByteArray("name;;x") << QStringLiteral("a column has no name");
}

void TestTextForms::faultyLines() {
  QFETCH(QByteArray, line);
  QFETCH(QString, reason);
  NetData net;
  const auto result = read(net, "[node]\nname;x;y\nA;0;0\n" + line + "\nC;1;1\n");
  QCOMPARE(result.findings.size(), std::size_t(1));
  QCOMPARE(result.findings[0].line, 4);
  QVERIFY2(result.findings[0].text.contains(reason), qPrintable(result.findings[0].text));
  QVERIFY(!result.findings[0].box.isEmpty());
  QCOMPARE(net.nodes().size(), std::size_t(2)); // the rest is shown
  NetData none;
  QVERIFY(read(none, "A;1\n").findings[0].text.contains(QStringLiteral("column names")));
}

void TestTextForms::openQuoteCostsOneLine() {
  QByteArray text = "[node]\nname;x;note\nA;0;\"open\n";
  for (int i = 0; i < 500; ++i)
    text += "N" + QByteArray::number(i) + ";1;\n";
  NetData net;
  const auto result = read(net, text + "Z;1;\"\"\n");
  QCOMPARE(result.findings.size(), std::size_t(1));
  QCOMPARE(result.findings[0].line, 3);
  QCOMPARE(net.nodes().size(), std::size_t(501));
  NetData rest; // a later quote closes nothing
  QCOMPARE(read(rest, text + "Y;1;\"closed\"\n").findings.size(), std::size_t(1));
  QCOMPARE(rest.nodes().size(), std::size_t(501));
}

void TestTextForms::reportsAsJsonDoes() {
  NetData net;
  const auto result = read(net, "[gadget]\nname;x\nA;0\n[node]\nname;x;X\nB;1;2\n");
  QCOMPARE(result.findings.size(), std::size_t(2));
  QCOMPARE(result.findings[0].text, QStringLiteral("ERROR: Type gadget of element A not known! Element will be erased!"));
  QCOMPARE(result.findings[1].text, QStringLiteral("Property X of element B is given twice; the last value counts"));
  NivraReader::Options options;
  options.includeTypes = QStringLiteral("^pipe$");
  NetData pipes;
  NivraReader(pipes).readGeomJsn(write(QStringLiteral("a.geom"), "[node]\nname\nA\n[pipe]\nname;node1;node2\nP;A;A\n"),
                                 options);
  QVERIFY(pipes.nodes().isEmpty() && pipes.edges().size() == 1);
}

// A text it stays, but not without a word.
void TestTextForms::decimalCommas() {
  NetData net;
  const auto result = read(net, "[node]\nname;x;note;height\nA;12,5;\"1,5\";a,b\nB;1;1,2,3;,5\n");
  QCOMPARE(net.nodes().at(QStringLiteral("A")).value(QStringLiteral("x")), QStringLiteral("12,5"));
  QCOMPARE(result.findings.size(), std::size_t(1));
  QCOMPARE(result.findings[0].line, 3);
  QVERIFY2(result.findings[0].text.contains(QStringLiteral("x of element A")), qPrintable(result.findings[0].text));
  const auto values =
      NivraReader(net).readScenariofileJsn(write(QStringLiteral("c.scen"), "name;property;value\nB;pset;50,5\n"), {});
  QCOMPARE(values.findings.size(), std::size_t(1));
  QCOMPARE(values.findings[0].line, 2);
  for (const auto &[from, to] : {std::make_pair("a.geom", "d.geom.jsn"), {"c.scen", "d.scen.jsn"}}) {
    const auto told =
        NetworkFileConverter::convert(m_folder.filePath(QLatin1String(from)), m_folder.filePath(QLatin1String(to)));
    QVERIFY(told.ok && told.findings.size() == 1 && told.findings[0].text.contains(QStringLiteral("decimal point")));
  }
}

void TestTextForms::otherEncodings() {
  NetData net;
  const auto result = read(net, "[node]\nname;x\nM\xfcnster;1\nM\xf6nster;2\n");
  QCOMPARE(net.nodes().size(), std::size_t(2));
  QCOMPARE(net.nodes().at(QStringLiteral("M\u00fcnster")).value(QStringLiteral("x")), QStringLiteral("1"));
  QCOMPARE(result.findings.size(), std::size_t(1));
  QVERIFY(result.findings[0].text.contains(QStringLiteral("not written in UTF-8")));
  QCOMPARE(result.findings[0].line, 3);
  const auto values =
      NivraReader(net).readScenariofileJsn(write(QStringLiteral("l.scen"), "name;property;value\nM\xf6nster;pset;50\n"), {});
  QCOMPARE(values.findings.size(), std::size_t(1));
  QCOMPARE(net.nodes().at(QStringLiteral("M\u00f6nster")).value(QStringLiteral("pset")), QStringLiteral("50"));
}

void TestTextForms::setPoints() {
  NetData net;
  read(net, "[node]\nname\nA\nB\n");
  const auto result = NivraReader(net).readScenariofileJsn(
      write(QStringLiteral("a.scen"), "name;property;value;unit\nA;pset;7;MPa\nB;qset;12.5\nC;pset;1\nA;tset\n"), {});
  QCOMPARE(net.nodes().at(QStringLiteral("A")).value(QStringLiteral("pset")), QStringLiteral("70"));
  QCOMPARE(net.nodes().at(QStringLiteral("B")).value(QStringLiteral("qset")), QStringLiteral("12.5"));
  QCOMPARE(result.findings.size(), std::size_t(2));
  QCOMPARE(result.findings[1].line, 5);
}

void TestTextForms::thereAndBack() {
  const QString json = write(QStringLiteral("b.geom.jsn"),
                             "{\n\"A;1\":{\"obj_type\":\"node\",\"x\":0,\"y\":1e-7,\"z\":\"1.50\",\"empty\":\"\"}\n"
                             ",\"\\\"q\\\"\":{\"obj_type\":\"node\",\"x\":\" 1\",\"note\":\"two\\nlines\\u0007 \\\\ 🔥\"}\n"
                             ",\"name\":{\"obj_type\":\"pipe\",\"node1\":\"A;1\",\"node2\":\"#N\",\"length\":12.50}\n"
                             ",\"#N\":{\"obj_type\":\"node\",\"x\":3,\"flag\":true,\"[k]\":-0.0}\n}\n");
  const QString text = m_folder.filePath(QStringLiteral("b.geom"));
  const auto there = NetworkFileConverter::convert(json, text);
  QVERIFY(there.ok && there.findings.empty());
  QCOMPARE(there.records, 4);
  const QString back = m_folder.filePath(QStringLiteral("c.geom.jsn"));
  QVERIFY(NetworkFileConverter::convert(text, back).ok);
  NetData nets[3];
  NivraReader(nets[0]).readGeomJsn(json, {});
  NivraReader(nets[1]).readGeomJsn(text, {});
  NivraReader(nets[2]).readGeomJsn(back, {});
  QCOMPARE(nets[0].nodes().size(), std::size_t(3));
  QCOMPARE(dump(nets[1]), dump(nets[0]));
  QCOMPARE(dump(nets[2]), dump(nets[0]));
}

/// Numbers come back letter by letter, and what was a text stays one.
void TestTextForms::numbersThereAndBack() {
  const QByteArray geometry = "{\n\"A\":{\"obj_type\":\"node\",\"x\":10396.223600000001,\"y\":12.50,\"z\":1E-7,\"u\":-0.0,"
                              "\"v\":\"12.5\",\"w\":\"12.50\",\"a\":123456789012345678901234567890}\n}\n";
  const QByteArray setPoints = "{\n\"A\":[{\"property\":\"pset\",\"value\":0.30000000000000004,\"unit\":\"bar\"},"
                               "{\"property\":\"t\",\"value\":\"7\"}]\n}\n";
  for (const auto &[name, json] : {std::make_pair("n.geom", geometry), {"n.scen", setPoints}}) {
    const QString text = m_folder.filePath(QLatin1String(name));
    const QString from = write(QLatin1String(name) + QStringLiteral(".jsn"), json);
    const QString back = QStringLiteral("back_") + QLatin1String(name) + QStringLiteral(".jsn");
    QVERIFY(NetworkFileConverter::convert(from, text).ok);
    QVERIFY(NetworkFileConverter::convert(text, m_folder.filePath(back)).ok);
    QCOMPARE(contents(back), json);
  }
}

void TestTextForms::manyProperties() {
  QByteArray line = "\"A\":{\"obj_type\":\"node\",\"x\":1";
  for (int i = 0; i < 60000; ++i)
    line += ",\"p" + QByteArray::number(i) + "\":" + QByteArray::number(i);
  const QString from = write(QStringLiteral("many.geom.jsn"), "{\n" + line + ",\"X\":2}\n}\n");
  const QString text = m_folder.filePath(QStringLiteral("many.geom"));
  QElapsedTimer timer;
  timer.start();
  QVERIFY(NetworkFileConverter::convert(from, text).ok);
  QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
  NetData net;
  NivraReader(net).readGeomJsn(text, {});
  QCOMPARE(net.element(QStringLiteral("A"))->value(QStringLiteral("p59999")), QStringLiteral("59999"));
  QCOMPARE(net.element(QStringLiteral("A"))->value(QStringLiteral("x")), QStringLiteral("2")); // given twice
}

void TestTextForms::setPointsThereAndBack() {
  const QByteArray json =
      "{\n\"A\":[{\"property\":\"pset\",\"value\":70,\"unit\":\"bar\"},{\"property\":\"t\",\"value\":\"x\"}]\n"
      ",\"B\":[{\"property\":\"q\",\"value\":-1.5}]\n}\n";
  const QString from = write(QStringLiteral("d.scen.jsn"), json);
  const QString text = m_folder.filePath(QStringLiteral("d.scen"));
  QVERIFY(NetworkFileConverter::convert(from, text).ok);
  QCOMPARE(contents(QStringLiteral("d.scen")), QByteArray("name;property;value;unit\nA;pset;70;bar\nA;t;x\nB;q;-1.5\n"));
  QVERIFY(NetworkFileConverter::convert(text, m_folder.filePath(QStringLiteral("e.scen.jsn"))).ok);
  QCOMPARE(contents(QStringLiteral("e.scen.jsn")), json);
}

void TestTextForms::realNetworksThereAndBack_data() {
  QTest::addColumn<QString>("file");
  QTest::newRow("example") << QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/DE_H2.geom.jsn");
  for (const char *name : {"GasLib-11", "GasLib-40", "GasLib-135"})
    QTest::newRow(name) << QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/%1/%1.geom.jsn").arg(QLatin1String(name));
}

void TestTextForms::realNetworksThereAndBack() {
  QFETCH(QString, file);
  if (!QFile::exists(file))
    QSKIP("the network is not on this machine");
  const QString text = m_folder.filePath(QStringLiteral("real.geom"));
  const QString back = m_folder.filePath(QStringLiteral("real.geom.jsn"));
  QVERIFY(NetworkFileConverter::convert(file, text).ok);
  QVERIFY(NetworkFileConverter::convert(text, back).ok);
  NetData before;
  NetData between;
  NetData after;
  QVERIFY(NivraReader(before).readGeomJsn(file, {}).findings.empty());
  QVERIFY(NivraReader(between).readGeomJsn(text, {}).findings.empty());
  NivraReader(after).readGeomJsn(back, {});
  QCOMPARE(dump(between), dump(before));
  QCOMPARE(dump(after), dump(before));
}

void TestTextForms::namesThatComeAgain_data() {
  QTest::addColumn<QByteArray>("lines");
  QTest::newRow("another type between") << QByteArray("\"A\":{\"obj_type\":\"node\",\"x\":0}\n"
                                                      ",\"A\":{\"obj_type\":\"pipe\",\"node1\":\"B\",\"node2\":\"B\"}\n"
                                                      ",\"A\":{\"obj_type\":\"node\",\"x\":7}\n");
  QTest::newRow("in other case") << QByteArray("\"\u00e4\":{\"obj_type\":\"node\",\"x\":0}\n"
                                               ",\"P\":{\"obj_type\":\"pipe\",\"node1\":\"\u00e4\",\"node2\":\"B\"}\n"
                                               ",\"\u00c4\":{\"obj_type\":\"valve\",\"node1\":\"B\",\"node2\":\"B\"}\n"
                                               ",\"\u00e4\":{\"obj_type\":\"node\",\"y\":7}\n");
}

/// The last counts in both forms, though text puts what is alike together.
void TestTextForms::namesThatComeAgain() {
  QFETCH(QByteArray, lines);
  const QString geometry = write(QStringLiteral("r.geom.jsn"), "{\n" + lines + ",\"B\":{\"obj_type\":\"node\"}\n}\n");
  const QString results = write(QStringLiteral("r.res.jsn"), "{\n\"B\":{\"p\":1,\"t\":3}\n,\"B\":{\"t\":4}\n"
                                                             ",\"b\":{\"p\":2,\"t\":5}\n}\n");
  for (const QString &json : {geometry, results})
    QVERIFY(NetworkFileConverter::convert(json, json.chopped(4)).ok);
  NetData nets[2];
  for (const bool isText : {false, true}) {
    NivraReader reader(nets[isText]);
    reader.readGeomJsn(isText ? geometry.chopped(4) : geometry, {});
    reader.readGasParmsJsn(isText ? results.chopped(4) : results, {});
  }
  QCOMPARE(nets[0].element(QStringLiteral("B"))->value(QStringLiteral("t")), QStringLiteral("5"));
  QCOMPARE(dump(nets[1]), dump(nets[0]));
}

void TestTextForms::whatTextCannotSay_data() {
  QTest::addColumn<QByteArray>("line");
  QTest::addColumn<QString>("message");
  QTest::addColumn<QString>("value"); // of the element's property x afterwards; null: the element is left out
  const auto row = [](const char *name, const QByteArray &line, const char *message, const char *value = nullptr) {
    QTest::newRow(name) << line << QString::fromLatin1(message) << QString::fromLatin1(value);
  };
  row("no type", R"("E":{"x":5})", "Element E is left out: it has no type");
  row("empty type", R"("E":{"obj_type":" ","x":5})", "Element E is left out: it has no type");
  row("bracket in the type", R"("E":{"obj_type":"no]de","x":5})",
      "Element E is left out: the text form cannot hold such a type");
  row("line break in the type", R"("E":{"obj_type":"no\nde","x":5})", "Element E is left out: the text form");
  row("line break around the type", R"("E":{"obj_type":"\nnode\n","x":5})", nullptr, "5");
  row("property without a name", R"("E":{"obj_type":"node","":"zz","x":5})",
      "Property \"\" of element E is left out: it has no name", "5");
  const QByteArray breaks = QByteArray("\\n").repeated(150);
  row("line breaks in a value", R"("E":{"obj_type":"node","note":")" + breaks + breaks + R"(","x":5})",
      "Property note of element E is left out", "5");
  row("line breaks in two", R"("E":{"obj_type":"node","note":")" + breaks + R"(","more":")" + breaks + R"(","x":5})",
      "Property more of element E is left out", "5");
  row("line breaks in columns", R"("E":{"obj_type":"node","a)" + breaks + R"(":1,"b)" + breaks + R"(":1,"x":5})",
      "of element E is left out", "5");
  row("line breaks in the name", "\"E" + breaks + breaks + R"(":{"obj_type":"node","x":5})", "is left out: a row");
}

/// It is told and left out; whatever stands around it passes.
void TestTextForms::whatTextCannotSay() {
  QFETCH(QByteArray, line);
  QFETCH(QString, message);
  QFETCH(QString, value);
  const QString json = write(QStringLiteral("u.geom.jsn"), "{\n\"A\":{\"obj_type\":\"node\",\"x\":1}\n," + line +
                                                               "\n,\"Z\":{\"obj_type\":\"node\",\"x\":2}\n}\n");
  const auto result = NetworkFileConverter::convert(json, json.chopped(4));
  QVERIFY(result.ok);
  QCOMPARE(result.findings.empty(), message.isEmpty());
  if (!message.isEmpty()) {
    QCOMPARE(result.findings.size(), std::size_t(1));
    QVERIFY2(result.findings[0].text.contains(message), qPrintable(result.findings[0].text));
    QCOMPARE(result.findings[0].line, 3);
  }
  NetData net;
  const auto read = NivraReader(net).readGeomJsn(json.chopped(4), {});
  QVERIFY2(read.findings.empty(), qPrintable(read.findings.empty() ? QString() : read.findings[0].text));
  QCOMPARE(net.nodes().size(), value.isEmpty() ? std::size_t(2) : std::size_t(3));
  QVERIFY(net.nodes().find(QStringLiteral("A")) != nullptr && net.nodes().find(QStringLiteral("Z")) != nullptr);
  if (!value.isEmpty())
    QCOMPARE(net.nodes().at(QStringLiteral("E")).value(QStringLiteral("x")), value);
}

/// By what was written of it, not by what the file said.
void TestTextForms::whatIsLeftOutIsCounted() {
  const QByteArray name(1000, 'N');
  const QString json = write(QStringLiteral("w.res.jsn"), "{\n\"A\":{\"obj_type\":\" node \",\"p\":1}\n"
                                                          ",\"B\":{\"obj_type\":\"no]de\",\"p\":1,\"\":2}\n,\"" +
                                                              name + QByteArray("\\n").repeated(201) + "\":{\"p\":1}\n}\n");
  const auto result = NetworkFileConverter::convert(json, json.chopped(4));
  QVERIFY(result.ok);
  QCOMPARE(result.records, 2);
  QCOMPARE(result.report.of(QStringLiteral("node")).taken, 1);
  QCOMPARE(result.report.of(QStringLiteral("element with values")).taken, 1);
  QCOMPARE(result.report.of(QStringLiteral("obj_type")).dropped, 1);
  QCOMPARE(result.report.of(QStringLiteral("\"\"")).dropped, 1);
  QCOMPARE(result.report.of(QStringLiteral("element")).dropped, 1);
  const Finding &last = result.findings.back(); // of a name that is too large not all is told
  QVERIFY2(last.text.startsWith(QStringLiteral("Element NNN")) && last.text.size() < 400 && last.element.size() < 300,
           qPrintable(last.text));
}

/// A file that would lack something is not written.
void TestTextForms::recordsThatTextCannotHold() {
  const QString breaks(201, QLatin1Char('\n'));
  const NetworkRecord::Value sound{PropertyKey::intern("x"), PropertyText(QStringLiteral("1")), true};
  const NetworkRecord::Value tooLarge{PropertyKey::intern("note"), PropertyText(breaks), false};
  const auto path = [this](const char *name) {
    return m_folder.filePath(QLatin1String(name));
  };
  const std::vector<NetworkRecord> records{{QStringLiteral("A"), QStringLiteral("node"), {sound}},
                                           {QStringLiteral("B"), QStringLiteral("node"), {sound, tooLarge}}};
  const std::vector<NetworkRecord> names{{breaks, QStringLiteral("node"), {sound}}};
  const std::vector<NetworkSetPoint> points{{QStringLiteral("B"), tooLarge, QString()}};
  QString reason;
  QVERIFY(!NetworkFileConverter::write(path("lack.geom"), records, &reason));
  QVERIFY2(reason.contains(QStringLiteral("B does not fit: a row of the text form holds 200")), qPrintable(reason));
  QVERIFY(!NetworkFileConverter::write(path("lack.geom"), names, &reason));
  QVERIFY(!NetworkFileConverter::write(path("lack.scen"), points, &reason));
  QVERIFY2(reason.contains(QStringLiteral("B does not fit")), qPrintable(reason));
  QVERIFY(!QFile::exists(path("lack.geom")) && !QFile::exists(path("lack.scen")));
  QVERIFY2(NetworkFileConverter::write(path("lack.geom.jsn"), records, &reason), qPrintable(reason));
}

void TestTextForms::longTextsThereAndBack() {
  const QByteArray breaks = QByteArray("\\n").repeated(200);
  const QByteArray kept =
      "\"A\":[{\"property\":\"note\",\"value\":\"" + QByteArray(breaks).replace("\\n", "\\u000a") + "\"}]\n";
  const QString from = write(QStringLiteral("l.scen.jsn"),
                             "{\n" + kept + ",\"B\":[{\"property\":\"note\",\"value\":\"\\n" + breaks + "\"}]\n}\n");
  const auto result = NetworkFileConverter::convert(from, from.chopped(4));
  QCOMPARE(result.findings.size(), std::size_t(1));
  QVERIFY(result.findings[0].text.contains(QStringLiteral("note of element B is left out")));
  QVERIFY(NetworkFileConverter::convert(from.chopped(4), m_folder.filePath(QStringLiteral("m.scen.jsn"))).findings.empty());
  QCOMPARE(contents(QStringLiteral("m.scen.jsn")), "{\n" + kept + "}\n");
}

void TestTextForms::conversionsThatFail() {
  const QString good = write(QStringLiteral("g.geom"), "[node]\nname\nA\n");
  QVERIFY(!NetworkFileConverter::convert(good, m_folder.filePath(QStringLiteral("none/g.geom.jsn"))).ok);
  QVERIFY(!NetworkFileConverter::convert(m_folder.filePath(QStringLiteral("gone.geom")), good + QStringLiteral(".jsn")).ok);
  QVERIFY(!NetworkFileConverter::convert(good, m_folder.filePath(QStringLiteral("g.xyz"))).ok);
  QVERIFY(!QFile::exists(good + QStringLiteral(".jsn"))); // whole or not at all
  QCOMPARE(NetworkFileConverter::otherForm(QStringLiteral("a.res.sub.jsn")), QStringLiteral("a.res.sub"));
  QCOMPARE(NetworkFileConverter::otherForm(QStringLiteral("a.scen")), QStringLiteral("a.scen.jsn"));
  QVERIFY(!NetworkFileConverter::isNetworkFile(QStringLiteral("a.scen.cfg.jsn")));
}

NIVRA_TEST(TestTextForms);
#include "tst_textforms.moc"
