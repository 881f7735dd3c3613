#include <formulas/networkformulas.h>
#include <subassembly/subassembler.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QDir>
#include <QTemporaryDir>

#include <cmath>

class TestSubAssembler : public QObject {
  Q_OBJECT

private slots:
  void init();
  void assembles();
  void placement_data();
  void placement();
  void namesStayUnique();
  void namesOfManySubnetsStayUnique();
  void defaultsAreTakenOnce();
  void missingPinsAreMade();
  void pinListIsReset();
  void fallsBackToDefault_data();
  void fallsBackToDefault();
  void erasedWithoutDefault();
  void faultyTemplates_data();
  void faultyTemplates();
  void templatesDoNotNest();
  void formulasAndConstraints();
  void linesOfTemplatesAreToldOnce();
  void foldersAreCached();
  void editedTemplatesAreReadAnew();
  void manySubnets();
  void templatesOfTheProgram();

private:
  void write(const QString &name, const QByteArray &text) const { SmallFiles::write(m_folder->filePath(name), text); }
  /// A template of two pins 100 apart along x, a node between them and above, two edges.
  void writeTemplate(const QString &variant, const QByteArray &more = QByteArray()) const {
    write(variant + QStringLiteral(".geom"), "[node]\nname;x;y;vis.size\nIn;0;0;7\nOut;100;0\nM;50;10\n"
                                             "[pipe]\nname;node1;node2;length\nA;In;M;3\nB;M;Out;4\n"
                                             "[subnet]\nname;pins;p.default;kind\nSUB;\"In;Out\";5;station\n" +
                                                 more);
  }
  element &addSubnet(const char *name, const char *variant, const char *pins) {
    m_net->addElement(makeElement({{"name", name}, {"type", "sub"}, {"variant", variant}, {"pins", pins}}));
    return m_net->assembledSubnets().at(QString::fromUtf8(name));
  }
  SubAssembler::Result assemble() {
    SubAssembler assembler(*m_net, m_folder->path(), m_cache);
    return assembler.createElesOfAssembledSubnets();
  }
  QString value(const char *property, const char *name) const {
    const element *e = m_net->element(QString::fromUtf8(name));
    return e == nullptr ? QStringLiteral("no such element") : e->value(QString::fromUtf8(property));
  }
  static QString texts(const Findings &findings) {
    QStringList list;
    for (const Finding &finding : findings)
      list.append(finding.text + finding.box);
    return list.join(QLatin1Char('\n'));
  }

  std::unique_ptr<QTemporaryDir> m_folder;
  std::unique_ptr<NetData> m_net;
  SubAssemblyCache m_cache;
};

void TestSubAssembler::init() {
  m_folder = std::make_unique<QTemporaryDir>();
  m_net = std::make_unique<NetData>();
  m_cache = SubAssemblyCache();
  m_net->addElement(makeNode("N1", "1000", "500"));
  m_net->addElement(makeNode("N2", "1000", "700"));
  writeTemplate(QStringLiteral("station"));
  writeTemplate(QStringLiteral("default"));
}

void TestSubAssembler::assembles() {
  write(QStringLiteral("station.svg"), "<svg/>");
  addSubnet("S", "station", "N1;N2");
  const SubAssembler::Result result = assemble();
  QCOMPARE(result.assembled, 1);
  QVERIFY2(result.findings.empty(), qPrintable(texts(result.findings)));
  QCOMPARE(m_net->nodes().size(), std::size_t(3));
  QCOMPARE(value("node1", "S_A"), QStringLiteral("N1"));
  QCOMPARE(value("node2", "S_A"), QStringLiteral("S_M"));
  QCOMPARE(value("node2", "S_B"), QStringLiteral("N2"));
  QCOMPARE(value("refEle", "S_B"), QStringLiteral("B"));
  QCOMPARE(value("name", "S_B"), QStringLiteral("S_B"));
  QCOMPARE(value("elements", "S"), QStringLiteral("S_M;S_A;S_B"));
  QCOMPARE(value("icon", "S"), QStringLiteral("station.svg"));
  QCOMPARE(value("vis.size", "N1"), QStringLiteral("7"));
  QCOMPARE(value("width", "S"), QStringLiteral("200"));
  QCOMPARE(value("rotation", "S"), QStringLiteral("90"));
  // twice as large, turned by a quarter: above the line becomes left of it
  QCOMPARE(value("x", "S_M").toDouble(), 980.0);
  QCOMPARE(value("y", "S_M").toDouble(), 600.0);
}

void TestSubAssembler::placement_data() {
  QTest::addColumn<QPointF>("first");
  QTest::addColumn<QPointF>("second");
  QTest::addColumn<double>("rotation");
  QTest::newRow("right") << QPointF(0, 0) << QPointF(10, 0) << 0.0;
  QTest::newRow("left") << QPointF(10, 0) << QPointF(0, 0) << 180.0;
  QTest::newRow("up") << QPointF(0, 0) << QPointF(0, 5) << 90.0;
  QTest::newRow("down") << QPointF(0, 5) << QPointF(0, 0) << -90.0;
  QTest::newRow("aslant") << QPointF(0, 0) << QPointF(-3, -3) << -135.0;
  QTest::newRow("on one point") << QPointF(1, 1) << QPointF(1, 1) << 90.0;
}

void TestSubAssembler::placement() {
  QFETCH(QPointF, first);
  QFETCH(QPointF, second);
  QFETCH(double, rotation);
  const auto text = [](double number) {
    return QString::number(number).toUtf8();
  };
  m_net->addElement(makeNode("F", text(first.x()), text(first.y())));
  m_net->addElement(makeNode("G", text(second.x()), text(second.y())));
  addSubnet("S", "station", "F;G");
  assemble();
  QCOMPARE(value("rotation", "S").toDouble(), rotation);
  // the node between the pins stands left of the way from one to the other, a tenth of it aside
  const QPointF way = second - first;
  const QPointF expected = (first + second) / 2 + QPointF(-way.y(), way.x()) / 10;
  const bool hasWidth = !way.isNull();
  if (hasWidth) {
    QVERIFY(std::abs(value("x", "S_M").toDouble() - expected.x()) < 1e-9);
    QVERIFY(std::abs(value("y", "S_M").toDouble() - expected.y()) < 1e-9);
  }
}

void TestSubAssembler::namesStayUnique() {
  m_net->addElement(makeNode("s_m"));
  addSubnet("S", "station", "N1;N2");
  assemble();
  QCOMPARE(value("refEle", "S_M_2"), QStringLiteral("M"));
  QCOMPARE(value("node1", "S_B"), QStringLiteral("S_M_2"));
}

/// S_M has an element of the name that one of S has; twin has a node and an edge of one name; a pin that is made on the way
/// takes the name of an element to come. Whatever happens, nothing is lost and no name is there twice.
void TestSubAssembler::namesOfManySubnetsStayUnique() {
  writeTemplate(QStringLiteral("nested"), "[pipe]\nname;node1;node2;length\nM_A;In;M;1\n");
  writeTemplate(QStringLiteral("twin"), "[pipe]\nname;node1;node2;length\nM;In;M;1\nM_2;In;M;1\n");
  m_net->addElement(makeNode("T_A_2"));
  addSubnet("S", "nested", "N1;N2");
  addSubnet("s_m", "station", "N1;N2");
  addSubnet("Late", "station", "N1;N2");
  addSubnet("Early", "station", "N1;late_a");
  addSubnet("T", "twin", "N1;N2");
  const SubAssembler::Result result = assemble();
  QCOMPARE(result.assembled, 5);
  QCOMPARE(m_net->edges().size(), std::size_t(3 + 2 + 2 + 2 + 4));
  QCOMPARE(m_net->nodes().size(), std::size_t(2 + 1 + 1 + 5)); // with T_A_2 and the pin
  QSet<QString> names;
  m_net->forEach(NetData::AllTypes,
                 [&names](const element &e) { names.insert(e.value(QStringLiteral("name")).toCaseFolded()); });
  QCOMPARE(names.size(), 13 + 9 + 5);
  QCOMPARE(value("refEle", "S_M_A"), QStringLiteral("M_A"));
  QCOMPARE(value("refEle", "s_m_A_2"), QStringLiteral("A"));
  QCOMPARE(value("refEle", "Late_A_2"), QStringLiteral("A"));
  QCOMPARE(value("refEle", "T_M_3"), QStringLiteral("M"));
  QCOMPARE(value("node2", "T_M_3"), QStringLiteral("T_M"));
}

void TestSubAssembler::defaultsAreTakenOnce() {
  addSubnet("S1", "station", "N1;N2");
  addSubnet("S2", "station", "N1;N2").set(QStringLiteral("p"), QStringLiteral("9"));
  assemble();
  QCOMPARE(value("p", "S1"), QStringLiteral("5"));
  QCOMPARE(value("p", "S2"), QStringLiteral("9"));
  QCOMPARE(value("p.default", "S2"), QStringLiteral("5"));
  QCOMPARE(value("kind", "S1"), QStringLiteral("station"));
  QCOMPARE(value("name", "S1"), QStringLiteral("S1"));
}

void TestSubAssembler::missingPinsAreMade() {
  element &subnet = addSubnet("S", "station", "N1;Gone");
  subnet.set(QStringLiteral("x"), QStringLiteral("10"));
  subnet.set(QStringLiteral("y"), QStringLiteral("20"));
  const SubAssembler::Result result = assemble();
  QVERIFY(result.newPins);
  QCOMPARE(value("doSave", "Gone"), QStringLiteral("false"));
  QCOMPARE(value("vis", "Gone"), QStringLiteral("AUTO"));
  QCOMPARE(value("refEle", "Gone"), QStringLiteral("Out"));
  QCOMPARE(value("x", "Gone"), QStringLiteral("60")); // half of the template's 100 beside the middle
  QVERIFY(texts(result.findings).contains(QStringLiteral("This pin is new and needs saving: Gone")));
  QVERIFY(texts(result.findings).contains(QStringLiteral("Save manually!")));
}

void TestSubAssembler::pinListIsReset() {
  addSubnet("S", "station", "N1;N2;N1");
  addSubnet("T", "station", "");
  const SubAssembler::Result result = assemble();
  QCOMPARE(result.assembled, 2);
  QCOMPARE(value("pins", "S"), QStringLiteral("S_In;S_Out"));
  QCOMPARE(value("pins", "T"), QStringLiteral("T_In;T_Out"));
  QCOMPARE(texts(result.findings).count(QStringLiteral("pinList sizes not consistent! reset tried!")), 1);
}

void TestSubAssembler::fallsBackToDefault_data() {
  QTest::addColumn<QString>("variant");
  for (const char *variant : {"nosuch", "", "../station", "/etc/passwd", "..", "sub\\station", "linked"})
    QTest::newRow(variant) << QString::fromLatin1(variant);
}

void TestSubAssembler::fallsBackToDefault() {
  QFETCH(QString, variant);
  const QTemporaryDir outside;
  QFile::copy(m_folder->filePath(QStringLiteral("station.geom")), outside.filePath(QStringLiteral("s.geom")));
  QFile::link(outside.filePath(QStringLiteral("s.geom")), m_folder->filePath(QStringLiteral("linked.geom")));
  addSubnet("S", variant.toUtf8(), "N1;N2");
  const SubAssembler::Result result = assemble();
  QCOMPARE(result.replaced, 1);
  QCOMPARE(result.erased, 0);
  QCOMPARE(value("variant", "S"), QStringLiteral("default"));
  QCOMPARE(value("node1", "S_A"), QStringLiteral("N1"));
  QVERIFY(
      texts(result.findings).contains(QStringLiteral("1 assembled subnets had to be replaced with default,\n0 assembled")));
}

void TestSubAssembler::erasedWithoutDefault() {
  QFile::remove(m_folder->filePath(QStringLiteral("default.geom")));
  addSubnet("S", "nosuch", "N1;N2");
  const SubAssembler::Result result = assemble();
  QCOMPARE(result.erased, 1);
  QVERIFY(m_net->assembledSubnets().isEmpty());
  QVERIFY(texts(result.findings).contains(QStringLiteral("Problem with assembled subnet S! It will be erased!")));
  QVERIFY(texts(result.findings).contains(QStringLiteral("Error - could not find subassembly:")));

  SubAssembler none(*m_net, QString(), m_cache);
  addSubnet("T", "nosuch", "N1;N2");
  QCOMPARE(none.createElesOfAssembledSubnets().erased, 0); // without templates nothing is touched
}

void TestSubAssembler::faultyTemplates_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QString>("message");
  QTest::newRow("empty") << QByteArray() << QStringLiteral("no subnet named \"SUB\"");
  QTest::newRow("no pins") << QByteArray("[node]\nname\nA\n[subnet]\nname;kind\nSUB;x\n")
                           << QStringLiteral("loaded pins empty! Skipped!");
  QTest::newRow("pins that do not exist") << QByteArray("[node]\nname\nA\n[subnet]\nname;pins\nSUB;X\n")
                                          << QStringLiteral("none of its nodes: X");
  QTest::newRow("text") << QByteArray("\x00\xff\xfe{{{", 6) << QStringLiteral("no subnet named \"SUB\"");
  QTest::newRow("itself inside") << QByteArray("[node]\nname\nA\n[subnet]\nname;variant;pins\nother;bad;A\n")
                                 << QStringLiteral("no subnet named \"SUB\"");
}

void TestSubAssembler::faultyTemplates() {
  QFETCH(QByteArray, text);
  QFETCH(QString, message);
  write(QStringLiteral("bad.geom"), text);
  addSubnet("S", "bad", "N1;N2");
  addSubnet("T", "bad", "N1;N2");
  const SubAssembler::Result result = assemble();
  QVERIFY2(texts(result.findings).contains(message), qPrintable(texts(result.findings)));
  QCOMPARE(result.replaced, 2);
}

/// A template that holds itself would never end.
void TestSubAssembler::templatesDoNotNest() {
  writeTemplate(QStringLiteral("cyclic"), "inner;\"In;Out\";1;x\n[subnet]\nname;variant;pins\ninner2;cyclic;\"In;Out\"\n");
  addSubnet("S", "cyclic", "N1;N2");
  const SubAssembler::Result result = assemble();
  QCOMPARE(result.assembled, 1);
  QVERIFY2(texts(result.findings).contains(QStringLiteral("Templates do not hold other subnets: inner2 is left out")),
           qPrintable(texts(result.findings)));
  QCOMPARE(m_net->edges().size(), std::size_t(2));
  QCOMPARE(m_net->assembledSubnets().size(), std::size_t(1));
}

void TestSubAssembler::formulasAndConstraints() {
  write(QStringLiteral("station.formulas"), "total(sub) = length@A + length@B\ntwice(p: ^A$) = 2 * length@ELE\nbad line\n");
  write(QStringLiteral("station.geom.csv"), "length(p) in .. 3.5 \"long\"\n");
  addSubnet("S-1", "station", "N1;N2");
  addSubnet("T", "station", "N1;N2");
  SubAssembler assembler(*m_net, m_folder->path(), m_cache);
  assembler.createElesOfAssembledSubnets();
  Findings findings;
  const std::vector<FormulaDefinition> definitions = assembler.definitions(findings);
  QCOMPARE(texts(findings).count(QStringLiteral("The line is left out")), 1); // once, not for each subnet
  QCOMPARE(value("constraints", "T"), m_folder->filePath(QStringLiteral("station.geom.csv")));
  NetworkFormulas formulas(*m_net);
  QVERIFY2(formulas.setDefinitions(definitions).empty(), "");
  QVERIFY(formulas.apply().empty());
  QCOMPARE(value("total", "S-1"), QStringLiteral("7"));
  QCOMPARE(value("twice", "T_A"), QStringLiteral("6"));
  QVERIFY(!m_net->element(QStringLiteral("T_B"))->contains(QStringLiteral("twice")));
  QCOMPARE(formulas.violations().size(), std::size_t(2));
  QVERIFY(value("CB_info", "S-1_B").contains(QStringLiteral("long")));
}

void TestSubAssembler::linesOfTemplatesAreToldOnce() {
  constexpr int Subnets = 250;
  write(QStringLiteral("station.formulas"), "total(sub) = length@A + length@b + p@In\nbad(p) = length +* 2\n"
                                            "odd(p) = nosuch@ELE + p@Nowhere\ntext(p: ^A$) = length + refEle\n"
                                            "loop(p) [m/cow] = 1\n");
  m_net->element(QStringLiteral("N1"))->set(QStringLiteral("p"), QStringLiteral("1"));
  for (int i = 0; i < Subnets; ++i)
    addSubnet(QByteArray("S" + QByteArray::number(i)), "station", "N1;N2");
  SubAssembler assembler(*m_net, m_folder->path(), m_cache);
  assembler.createElesOfAssembledSubnets();
  Findings findings;
  NetworkFormulas formulas(*m_net);
  append(findings, formulas.setDefinitions(assembler.definitions(findings)));
  append(findings, formulas.apply());
  QCOMPARE(value("total", "S7"), QStringLiteral("8"));
  QCOMPARE(value("total", "S249"), QStringLiteral("8"));
  const QString all = texts(findings);
  QVERIFY2(findings.size() == 5, qPrintable(all));
  QCOMPARE(all.count(QStringLiteral("bad")), 1);
  QVERIFY2(all.contains(QStringLiteral("\"nosuch\"")) && all.contains(QStringLiteral("\"Nowhere\"")), qPrintable(all));
  QVERIFY2(all.contains(QStringLiteral("text could not be computed for 250 of 250 elements")), qPrintable(all));
}

void TestSubAssembler::foldersAreCached() {
  addSubnet("S", "station", "N1;N2");
  addSubnet("T", "station", "N1;N2");
  assemble();
  const auto templates = m_cache.folder(m_folder->path());
  QCOMPARE(templates->geometry.size(), 1);
  assemble(); // the network is opened again
  QCOMPARE(templates->geometry.size(), 1);
  QCOMPARE(templates->geometry.hits(), 1);
  QVERIFY(m_cache.folder(QString()) == nullptr);
  m_cache.folder(QStringLiteral("/a"));
  m_cache.folder(QStringLiteral("/b"));
  QCOMPARE(m_cache.folder(m_folder->path()), templates); // used again: not the one that goes
  const auto a = m_cache.folder(QStringLiteral("/a"));
  m_cache.folder(QStringLiteral("/c"));
  QCOMPARE(m_cache.size(), 3);
  QCOMPARE(m_cache.folder(QStringLiteral("/a")), a);
  QVERIFY(m_cache.folder(m_folder->path()) == templates);
}

void TestSubAssembler::editedTemplatesAreReadAnew() {
  addSubnet("S", "station", "N1;N2");
  assemble();
  QCOMPARE(value("length", "S_A"), QStringLiteral("3"));
  const QString station = m_folder->filePath(QStringLiteral("station.geom"));
  SmallFiles::write(station, SmallFiles::contents(station).replace("A;In;M;3", "A;In;M;33"));
  m_net->edges().clear();
  m_net->nodes().erase(QStringLiteral("S_M"));
  assemble();
  QCOMPARE(value("length", "S_A"), QStringLiteral("33"));
}

void TestSubAssembler::manySubnets() {
  for (int i = 0; i < 200; ++i)
    addSubnet(QByteArray("S" + QByteArray::number(i)), "station", "N1;N2");
  int told = 0;
  SubAssembler assembler(*m_net, m_folder->path(), m_cache);
  const auto result = assembler.createElesOfAssembledSubnets(SubAssembler::Flag::All, [&told](const QString &, int, int) {
    return ++told < 151; // the first call is before the first subnet
  });
  QCOMPARE(result.assembled, 149);
  QCOMPARE(m_net->edges().size(), std::size_t(2 * 149));
}

void TestSubAssembler::templatesOfTheProgram() {
  const QDir folder(QStringLiteral(NIVRA_SOURCE_DIR "/net_subassemblies"));
  const QStringList files = folder.entryList({QStringLiteral("*.geom")});
  QVERIFY(files.size() >= 5 && files.contains(QStringLiteral("default.geom")));
  m_net->addElement(makeNode("N3", "1200", "600"));
  for (const QString &file : files) {
    const QString variant = QString(file).remove(QStringLiteral(".geom"));
    for (const char *suffix : {".geom.csv", ".formulas", ".svg"})
      QVERIFY2(folder.exists(variant + QLatin1String(suffix)), qPrintable(variant));
    addSubnet(variant.toUtf8(), variant.toUtf8(), variant == QLatin1String("valve_junction") ? "N1;N2;N3" : "N1;N2");
  }
  SubAssembler assembler(*m_net, folder.path(), m_cache);
  const SubAssembler::Result result = assembler.createElesOfAssembledSubnets();
  QCOMPARE(result.assembled, files.size());
  QVERIFY2(result.findings.empty(), qPrintable(texts(result.findings)));
  Findings findings;
  const std::vector<FormulaDefinition> definitions = assembler.definitions(findings);
  QVERIFY2(findings.empty(), qPrintable(texts(findings)));
  QVERIFY(definitions.size() > 8);
  for (const elements::Entry &edge : m_net->edges()) { // every created edge has its ends
    for (const char *end : {"node1", "node2"})
      QVERIFY2(m_net->nodes().find(edge.value.value(QLatin1String(end))) != nullptr, qPrintable(edge.name()));
  }
}

NIVRA_TEST(TestSubAssembler);
#include "tst_subassembler.moc"
