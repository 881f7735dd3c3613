#include <formulas/networkformulas.h>
#include <model/netmetadata.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <sys/stat.h>

/// A line of three nodes and two pipes: A - P1 - B - P2 - C.
class TestNetworkFormulas : public QObject {
  Q_OBJECT

private slots:
  void init();
  void line();
  void faultyLines_data();
  void faultyLines();
  void sections();
  void computedInOrder();
  void laterFormulaCounts();
  void unitsFollowTheStoredOne();
  void cyclesAndUnknownNames();
  void ownMeansOfEndsIsNoCycle();
  void missingValuesKeepWhatIsThere();
  void constraints();
  void onlyWhatDependsIsComputedAgain();
  void derivedPropertiesAreDescribed();
  void growingTextsAreStopped();
  void costlyFormulasAreGivenUp_data();
  void costlyFormulasAreGivenUp();
  void cancelledWithinALine();
  void manyLines();
  void onlyPlainFilesAreRead();

private:
  Findings define(const QByteArray &text);
  QString value(const char *property, const char *name) const {
    return m_net->element(QString::fromUtf8(name))->value(QString::fromUtf8(property));
  }
  static FormulaFile::Contents parsed(const QByteArray &text);

  std::unique_ptr<NetData> m_net;
  std::unique_ptr<NetworkFormulas> m_formulas;
};

void TestNetworkFormulas::init() {
  m_formulas.reset();
  m_net = std::make_unique<NetData>();
  const auto add = [this](element e, std::initializer_list<std::pair<const char *, const char *>> more) {
    for (const auto &[name, value] : more)
      e.set(QString::fromUtf8(name), QString::fromUtf8(value));
    m_net->addElement(std::move(e));
  };
  add(makeNode("A"), {{"p", "60"}, {"pmax", "55"}});
  add(makeNode("B"), {{"p", "50"}, {"pmax", "70"}});
  add(makeNode("C"), {{"p", "45"}});
  add(makeEdge("P1", "A", "B"), {{"length", "10"}});
  add(makeEdge("P2", "B", "C"), {{"length", "20"}, {"note", "x"}});
  m_formulas = std::make_unique<NetworkFormulas>(*m_net);
}

FormulaFile::Contents TestNetworkFormulas::parsed(const QByteArray &text) {
  return FormulaFile::parse(text, QStringLiteral("t.formulas"), QStringLiteral("geometry"));
}

Findings TestNetworkFormulas::define(const QByteArray &text) {
  return m_formulas->setDefinitions(parsed(text).definitions);
}

void TestNetworkFormulas::line() {
  const FormulaFile::Contents contents =
      parsed("dp(p, compressor: ^(?:A|B\\))) [bar] = p@N&#45;1 - \" # \" # drop # of it\n");
  QVERIFY(contents.findings.empty());
  const FormulaDefinition formula = contents.definitions.front();
  QCOMPARE(formula.property, QStringLiteral("dp"));
  QCOMPARE(formula.types, QStringList({QStringLiteral("p"), QStringLiteral("c")}));
  QCOMPARE(formula.namePattern, QStringLiteral("^(?:A|B\\))"));
  QCOMPARE(formula.unit, QStringLiteral("bar"));
  QCOMPARE(formula.expression, QStringLiteral("p@N&#45;1 - \" # \""));
  QCOMPARE(formula.comment, QStringLiteral("drop # of it"));
  QCOMPARE(formula.category, QStringLiteral("geometry"));
  QCOMPARE(formula.origin(), QStringLiteral("dp(p,c), t.formulas:1"));

  const FormulaDefinition bounds = parsed("v in 0.5*1.2 .. vmax \"too fast\"  # note").definitions.front();
  QVERIFY(bounds.isConstraint);
  QVERIFY(bounds.types.isEmpty());
  QCOMPARE(bounds.lower, QStringLiteral("0.5*1.2"));
  QCOMPARE(bounds.upper, QStringLiteral("vmax"));
  QCOMPARE(bounds.message, QStringLiteral("too fast"));
  QCOMPARE(parsed("v in .. 20").definitions.front().upper, QStringLiteral("20"));
  QCOMPARE(parsed("v in 2 ..").definitions.front().lower, QStringLiteral("2"));
}

void TestNetworkFormulas::faultyLines_data() {
  QTest::addColumn<QByteArray>("text");
  QTest::addColumn<QString>("reason");
  const auto row = [](const char *text, const char *reason) {
    QTest::newRow(text) << QByteArray(text) << QString::fromLatin1(reason);
  };
  row("= 3", "name of a property");
  row("a(p", "closing bracket is missing after the elements");
  row("a(pipeline) = 3", "no element type \"pipeline\"");
  row("a(p: [) = 3", "is none");
  row("a(p) [furlongs per cow] = 3", "is not known");
  row("a(p) [bar = 3", "closing bracket is missing after the unit");
  row("a(p) =", "no expression");
  row("a(p) == b", "");
  row("a(p) 3", "expected at character 6");
  row("a in 3..4", "not parted");
  row("a in .. \"m\"", "no bound");
}

void TestNetworkFormulas::faultyLines() {
  QFETCH(QByteArray, text);
  QFETCH(QString, reason);
  const FormulaFile::Contents contents = parsed("ok = 1\n\n" + text + "\nok2 = 2\n");
  const Findings found = reason.isEmpty() ? define(text) : contents.findings; // the engine's to say
  QCOMPARE(found.size(), std::size_t(1));
  QCOMPARE(found.front().line, reason.isEmpty() ? 1 : 3);
  QVERIFY2(found.front().text.contains(reason), qPrintable(found.front().text));
  QCOMPARE(contents.definitions.size(), std::size_t(reason.isEmpty() ? 3 : 2));
}

void TestNetworkFormulas::sections() {
  const auto definitions = parsed("# comment\na = 1\n[results]\n\nb = 2\r\n").definitions;
  QCOMPARE(definitions[0].category, QStringLiteral("geometry"));
  QCOMPARE(definitions[1].category, QStringLiteral("results"));
  QCOMPARE(definitions[1].line, 5);
}

void TestNetworkFormulas::computedInOrder() {
  QVERIFY(define("worst(p) = sgn(rel - 0.4) > 0 ? \"steep\" : \"flat\"\n"
                 "rel(p) = dp / length + 0*twice@A\n"
                 "dp(p) = p@node1@ELE - p@node2@ELE\n"
                 "twice(n) = 2*p\n")
              .empty());
  QVERIFY(m_formulas->apply().empty());
  QCOMPARE(value("dp", "P1"), QStringLiteral("10"));
  QCOMPARE(value("rel", "P2"), QStringLiteral("0.25"));
  QCOMPARE(value("worst", "P1"), QStringLiteral("steep"));
  QCOMPARE(value("worst", "P2"), QStringLiteral("flat"));
  QCOMPARE(value("twice", "C"), QStringLiteral("90"));
  QVERIFY(!m_net->element(QStringLiteral("A"))->contains(QStringLiteral("dp")));
}

void TestNetworkFormulas::laterFormulaCounts() {
  QVERIFY(define("class = \"all\"\nclass(p) = \"pipe\"\nclass(p: 2$) = \"second\"\nseen(p) = class").empty());
  m_formulas->apply();
  QCOMPARE(value("class", "A"), QStringLiteral("all"));
  QCOMPARE(value("class", "P1"), QStringLiteral("pipe"));
  QCOMPARE(value("seen", "P2"), QStringLiteral("second"));
  QCOMPARE(m_formulas->evaluations(), 3 + 1 + 1 + 2);
}

void TestNetworkFormulas::unitsFollowTheStoredOne() {
  QVERIFY(define("pmin(n) [Pa] = 1e5*2\n").empty());
  m_formulas->apply();
  QCOMPARE(value("pmin", "A"), QStringLiteral("2")); // bar
  const Findings findings = define("pmin(n) [m] = 3\n");
  QCOMPARE(findings.size(), std::size_t(1));
  QVERIFY(findings.front().text.contains(QStringLiteral("does not fit")));
}

void TestNetworkFormulas::cyclesAndUnknownNames() {
  const Findings findings = define("a(n) = b + 1\nb(n) = c\nc(n) = a\nd(n) = a + p\nself(n) = self + 1\n"
                                   "x1(n) = p@Nowhere\nx2(n) = nosuchproperty\nok(n) = p");
  QStringList texts;
  for (const Finding &finding : findings)
    texts.append(QStringLiteral("%1 %2").arg(finding.line).arg(finding.text));
  const QString all = texts.join(QLatin1Char('\n'));
  QCOMPARE(findings.size(), std::size_t(4));
  QVERIFY2(all.contains(QStringLiteral("a(n), t.formulas:1; b(n), t.formulas:2; c(n), t.formulas:3")), qPrintable(all));
  QVERIFY2(all.contains(QStringLiteral("5 The formula needs its own result")), qPrintable(all));
  QVERIFY2(all.contains(QStringLiteral("6 There is no element \"Nowhere\".")), qPrintable(all));
  QVERIFY2(all.contains(QStringLiteral("7 No element has the property \"nosuchproperty\".")), qPrintable(all));
  m_formulas->apply();
  QCOMPARE(value("ok", "A"), QStringLiteral("60"));
  QVERIFY(value("d", "A").isEmpty());
}

void TestNetworkFormulas::ownMeansOfEndsIsNoCycle() {
  QVERIFY(define("p(p) = (p@node1@ELE + p@node2@ELE) / 2").empty());
  m_formulas->apply();
  QCOMPARE(value("p", "P1"), QStringLiteral("55"));
}

void TestNetworkFormulas::missingValuesKeepWhatIsThere() {
  QVERIFY(
      define("pmax(n) = pmax@nextnode@ELE\nload(n) = 100 * p / pmax\nnote(p) = isnull(note) ? \"none\" : note + 1").size() ==
      2); // no "nextnode"; "note" reads itself
  QVERIFY(m_formulas->apply().empty());
  QCOMPARE(value("pmax", "A"), QStringLiteral("55"));
  QVERIFY(!m_net->element(QStringLiteral("C"))->contains(QStringLiteral("load")));
  define("inverse(p) = 1 / (length - 10)\nsum(p) = note + 1");
  const Findings failures = m_formulas->apply();
  QCOMPARE(failures.size(), std::size_t(2));
  QVERIFY2(failures[0].text.contains(QStringLiteral("1 of 2 elements, the first is P")), qPrintable(failures[0].text));
  QVERIFY(value("inverse", "P1").isEmpty());
  QCOMPARE(value("inverse", "P2"), QStringLiteral("0.1"));
}

void TestNetworkFormulas::constraints() {
  QVERIFY(define("p(n) in 48 .. pmax \"pressure; of node\"\np(n) [MPa] in 4.7 ..\nlength in .. 100").empty());
  m_formulas->apply();
  const Findings violations = m_formulas->violations();
  QCOMPARE(value("CB_info", "A"), QStringLiteral("(pressure, of node: p = 60 > 55 bar;)"));
  QCOMPARE(value("CB_info", "C"), QStringLiteral("(pressure, of node: p = 45 < 48 bar;p = 45 < 47 bar;)"));
  QVERIFY(value("CB_info", "B").isEmpty());
  QCOMPARE(violations.size(), std::size_t(3));
  QCOMPARE(violations[0].element, QStringLiteral("A"));
  QCOMPARE(violations[2].line, 2);
}

void TestNetworkFormulas::onlyWhatDependsIsComputedAgain() {
  QVERIFY(define("dp(p) = p@node1@ELE - p@node2@ELE\nrel(p) = dp / length\nother(n) = 3 * x\nhigh(n) = p > 45\n"
                 "rel(p) in .. 0.5")
              .empty());
  m_formulas->apply();
  QCOMPARE(m_formulas->violations().size(), std::size_t(1)); // P1
  element &c = *m_net->element(QStringLiteral("C"));
  const PropertyKey p = PropertyKey::intern("p");
  c.set(QStringLiteral("p"), QStringLiteral("30"));
  QVERIFY(m_formulas->update({{&c, p}}).empty());
  QCOMPARE(m_formulas->violations().size(), std::size_t(2));
  QCOMPARE(value("rel", "P2"), QStringLiteral("1"));
  QVERIFY(value("CB_info", "P2").contains(QStringLiteral("rel = 1 > 0.5")));
  QCOMPARE(m_formulas->evaluations(), 1 + 1 + 1 + 1); // dp and rel of P2, high of C, the bound of P2

  // high stays what it is, so nothing that reads it would be computed
  c.set(QStringLiteral("p"), QStringLiteral("44"));
  m_formulas->update({{&c, p}});
  QCOMPARE(m_formulas->violations().size(), std::size_t(1));
  QVERIFY(value("CB_info", "P2").isEmpty());

  c.erase(QStringLiteral("p")); // what was computed from it goes
  m_formulas->update({{&c, p}});
  QVERIFY(value("dp", "P2").isEmpty());
  QVERIFY(value("rel", "P2").isEmpty());

  m_net->element(QStringLiteral("P2"))->set(QStringLiteral("node2"), QStringLiteral("A")); // another way
  m_formulas->update({{m_net->element(QStringLiteral("P2")), PropertyKey::intern("node2")}});
  QCOMPARE(value("dp", "P2"), QStringLiteral("-10"));
}

void TestNetworkFormulas::derivedPropertiesAreDescribed() {
  QVERIFY(define("gradient(p) [bar/km] = 1 # pressure gradient\n").empty());
  const NetMetaData::Attribute *attribute = m_net->metaData()->attribute(QStringLiteral("p"), QStringLiteral("gradient"));
  QVERIFY(attribute != nullptr);
  QCOMPARE(attribute->longName, QStringLiteral("pressure gradient"));
  QCOMPARE(attribute->displayUnit, QStringLiteral("bar/km"));
  QVERIFY(m_net->metaData()->edgeFunctions().contains(QStringLiteral("gradient")));
  m_net->clear();
  QCOMPARE(m_net->metaData(), &NetMetaData::instance());
}

/// Each line doubles what the one before has made: forty of them would fill the memory.
void TestNetworkFormulas::growingTextsAreStopped() {
  QByteArray text = "t0(p) = \"abcdefghij\"\n";
  for (int i = 1; i <= 40; ++i)
    text += QStringLiteral("t%1(p) = t%2 // t%2\n").arg(i).arg(i - 1).toUtf8();
  QVERIFY(define(text).empty());
  const Findings findings = m_formulas->apply();
  QVERIFY(!findings.empty());
  QVERIFY2(findings.front().text.contains(QStringLiteral("could not be computed for 2 of 2 elements")),
           qPrintable(findings.front().text));
  QVERIFY(findings.front().line > 5 && findings.front().line < 15);
  QCOMPARE(value("t5", "P1").size(), 320);
  m_net->forEach(NetData::Edge, [](const element &e) {
    for (const Property &property : e)
      QVERIFY(property.value.utf8().size() <= 4096);
  });
}

void TestNetworkFormulas::costlyFormulasAreGivenUp_data() {
  QTest::addColumn<QByteArray>("formula");
  QTest::newRow("products of matrices") << "(ones(100,100)" + QByteArray("*ones(100,100)").repeated(250) + ")[0,0]";
  QTest::newRow("sums of matrices") << "(ones(90,90)" + QByteArray("+ones(90,90)").repeated(250) + ")[0,0]";
  QTest::newRow("a text that grows") << QByteArray("(note = note // note)//").repeated(60) + "\"\"";
}

void TestNetworkFormulas::costlyFormulasAreGivenUp() {
  QFETCH(QByteArray, formula);
  for (int i = 0; i < 1000; ++i)
    m_net->addElement(makeEdge(QByteArray("Q" + QByteArray::number(i)), "A", "B"));
  m_net->forEach(NetData::Edge, [](element &e) { e.set(QStringLiteral("note"), QStringLiteral("x")); });
  define("fine(p) = 1\nbad(p) = " + formula + "\nlength(p) in .. " + formula + "\n");
  QElapsedTimer timer;
  timer.start();
  const Findings findings = m_formulas->apply();
  QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
  QVERIFY(!findings.empty());
  QCOMPARE(findings.front().line, 2);
  QVERIFY2(findings.front().text.contains(QStringLiteral("1002 of 1002 elements")), qPrintable(findings.front().text));
  QVERIFY2(findings.front().text.contains(QString::fromUtf8(formula.left(15))), qPrintable(findings.front().text));
  QVERIFY(value("bad", "P1").isEmpty());
  QCOMPARE(value("fine", "Q999"), QStringLiteral("1"));
}

void TestNetworkFormulas::cancelledWithinALine() {
  constexpr int Elements = 20000;
  for (int i = 0; i < Elements; ++i)
    m_net->addElement(makeEdge(QByteArray("Q" + QByteArray::number(i)), "A", "B"));
  define("s(p) = ones(60,60)[0,0]");
  int asked = 0;
  double last = -1.0;
  m_formulas->apply([&](double fraction) {
    last = fraction;
    return ++asked < 3;
  });
  QCOMPARE(asked, 3);
  QVERIFY(last > 0.0 && last < 1.0);
  QVERIFY(m_formulas->evaluations() > 0 && m_formulas->evaluations() < Elements);
}

/// What each line costs must not be what a parser costs.
void TestNetworkFormulas::manyLines() {
  constexpr int Lines = 20000;
  QByteArray text;
  for (int i = 0; i < Lines; ++i)
    text += QStringLiteral("a%1(p) = length + %1\n").arg(i).toUtf8();
  QElapsedTimer timer;
  timer.start();
  QVERIFY(define(text).empty());
  QVERIFY(m_formulas->apply().empty());
  QCOMPARE(value("a2999", "P1"), QStringLiteral("3009"));
  qInfo("%d lines: %lld ms", Lines, timer.elapsed());
  QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed()))); // 1.2 s without optimisation
}

void TestNetworkFormulas::onlyPlainFilesAreRead() {
  const QTemporaryDir folder;
  const auto path = [&folder](const char *name) {
    return folder.filePath(QString::fromLatin1(name));
  };
  QVERIFY(::mkfifo(QFile::encodeName(path("pipe.formulas")).constData(), 0600) == 0);
  const QTemporaryDir outside;
  QFile other(outside.filePath(QStringLiteral("other.formulas")));
  QVERIFY(other.open(QIODevice::WriteOnly) && other.write("a = 1\n") > 0);
  other.close();
  QVERIFY(QFile::link(other.fileName(), path("linked.formulas")));
  QFile longLine(path("long.formulas"));
  QVERIFY(longLine.open(QIODevice::WriteOnly) &&
          longLine.write("a = 1" + QByteArray("+1").repeated(50000) + "\nb = 2\n") > 0);
  longLine.close();
  FileAccess::confineTo(folder.path());
  for (const char *name : {"pipe.formulas", "linked.formulas", "missing.formulas"}) {
    const FormulaFile::Contents contents = FormulaFile::read(path(name), QStringLiteral("geometry"));
    QVERIFY2(contents.definitions.empty() && contents.findings.size() == 1, name);
    QVERIFY2(contents.findings.front().text.contains(QString::fromLatin1(name)), qPrintable(contents.findings.front().text));
  }
  const FormulaFile::Contents contents = FormulaFile::read(path("long.formulas"), QStringLiteral("geometry"));
  FileAccess::confineTo(QString());
  QCOMPARE(contents.findings.size(), std::size_t(1)); // the long line is one, not several
  QCOMPARE(contents.definitions.size(), std::size_t(1));
  QCOMPARE(contents.definitions.front().line, 2);
}

NIVRA_TEST(TestNetworkFormulas);
#include "tst_networkformulas.moc"
