#include <formulas/formula.h>
#include <formulas/parserfactory.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>

#include <mpParser.h>

class TestFormula : public QObject {
  Q_OBJECT

private slots:
  void initTestCase();
  void functions_data();
  void functions();
  void libraryFunctionsStay();
  void references_data();
  void references();
  void namesInFormulas_data();
  void namesInFormulas();
  void bareNames();
  void boundAnew();
  void namesGivenAnew();
  void errors_data();
  void errors();
  void boundless_data();
  void boundless();

private:
  NetData m_net;
};

void TestFormula::initTestCase() {
  const auto add = [this](element e, std::initializer_list<std::pair<const char *, const char *>> more) {
    for (const auto &[name, value] : more)
      e.set(QString::fromUtf8(name), QString::fromUtf8(value));
    m_net.addElement(std::move(e));
  };
  add(makeNode("N1"), {{"p", "50.5"}, {"qset", "-5"}});
  add(makeNode("N-1.2 a"), {{"p", "7"}});
  add(makeEdge("P1", "N1", "N-1.2 a"), {{"v", "12"}, {"state", "open"}, {"empty", ""}, {"e", "3"}});
  add(makeEdge("P2", "N1", "nowhere"), {{"v", "2"}});
}

void TestFormula::functions_data() {
  QTest::addColumn<QString>("formula");
  QTest::addColumn<QString>("result");
  const auto row = [](const char *formula, const char *result) {
    QTest::newRow(formula) << QString::fromLatin1(formula) << QString::fromLatin1(result);
  };
  row("isnull(\"_null_\")", "1");
  row("isnull(\"\")", "0");
  row("isnull(\"_NULL_\")", "0");
  row("isnull(\"_null_x\")", "0");
  row("isnotnull(\"_null_\")", "0");
  row("isnotnull(\"abc\")", "1");
  row("nonull(\"_null_\")", "");
  row("nonull(\"abc\")", "abc");
  row("pow(2,10)", "1024");
  row("atan(0)", "0");
  row("4*atan(1)-3 > 0.14", "1");
  row("sgn(-2.5)", "-1");
  row("sgn(0)", "0");
  row("nodetype(\"n1\",\"none\")", "negqset"); // names do not care for case
  row("nodetype(\"N-1.2 a\",\"none\")", "n");
  row("nodetype(\"no node\",\"none\")", "none");
}

void TestFormula::functions() {
  QFETCH(QString, formula);
  QFETCH(QString, result);
  QCOMPARE(Formula(formula, m_net).evaluate(element()).text, result);
}

void TestFormula::libraryFunctionsStay() {
  const auto parser = ParserFactory::create();
  parser->SetExpr("sin(0)+pow(3,2)+abs(-1)");
  QCOMPARE(parser->Eval().GetFloat(), 10.0);
  for (const char *name : {"isnull", "isnotnull", "nonull", "pow", "atan", "sgn", "nodetype", "zeros", "ones", "eye"})
    QVERIFY2(parser->IsFunDefined(name), name);
  const auto &functions = parser->GetFunDef();
  QCOMPARE(std::string(functions.at("isnull")->AsICallback()->GetDesc()),
           std::string("isnull(x) - checking for non-existing value (_isnull_)"));
}

void TestFormula::references_data() {
  QTest::addColumn<QString>("formula");
  QTest::addColumn<QString>("result");
  const auto row = [](const char *formula, const char *result) {
    QTest::newRow(formula) << QString::fromLatin1(formula) << QString::fromLatin1(result);
  };
  row("v@ELE>10", "1");
  row("V@ele_is_no_keyword > 10", "");
  row("p@N1 + p@N1", "101");
  row("p@node1@ELE - p@node2@ELE", "43.5");
  row("isnull(p@ELE)", "1");
  row("isnull(p@node1@node1@ELE)", "1"); // a node has no first node
  row("state@ELE == \"open\"", "1");
  row("\"v@ELE\"", "v@ELE"); // in a text it is a text
  row("empty@ELE == \"\"", "1");
  row("1e3 + 2.5e-1 + v@ELE", "1012.25");
  row("v@ELE>=12 ? 5 : 6", "5");
  row("p@N&#45;1&#46;2&#32;a", "7");
}

void TestFormula::references() {
  QFETCH(QString, formula);
  QFETCH(QString, result);
  const Formula parsed(formula, m_net);
  if (result.isEmpty())
    QVERIFY_EXCEPTION_THROWN(parsed.evaluate(*m_net.element(QStringLiteral("P1"))), FormulaError); // a text is not above 10
  else
    QCOMPARE(parsed.evaluate(*m_net.element(QStringLiteral("P1"))).text, result);
}

void TestFormula::namesInFormulas_data() {
  QTest::addColumn<QString>("name");
  for (const char *name :
       {"N-1.2", "a<b>*+/|c", "with blank", "\"quoted\"", "umlaut ü", "5", "a@b", "tab\tand\nline", "&amp;"})
    QTest::newRow(name) << QString::fromUtf8(name);
}

void TestFormula::namesInFormulas() {
  QFETCH(QString, name);
  NetData net;
  element node = makeNode("x");
  node.set(QStringLiteral("name"), name);
  node.set(QStringLiteral("p"), QStringLiteral("42"));
  net.addElement(node);
  const Formula formula(QStringLiteral("p@%1+1").arg(Formula::escaped(name)), net);
  QCOMPARE(formula.references().front().elementName, name);
  QCOMPARE(formula.evaluate(element()).text, QStringLiteral("43"));
  QCOMPARE(Formula::escaped(QStringLiteral("N-1.2<>*+/|")), QStringLiteral("N&#45;1&#46;2&lt;&gt;&#42;&#43;&#47;&#124;"));
}

void TestFormula::bareNames() {
  const element &pipe = *m_net.element(QStringLiteral("P1"));
  QCOMPARE(Formula(QStringLiteral("v*2+sin(0)"), m_net, Formula::Bare::OfCurrent).evaluate(pipe).text, QStringLiteral("24"));
  QVERIFY(Formula(QStringLiteral("e"), m_net, Formula::Bare::OfCurrent).evaluate(pipe).number <
          2.8); // Euler's, not the property
  QCOMPARE(Formula(QStringLiteral("e@ELE"), m_net, Formula::Bare::OfCurrent).evaluate(pipe).text, QStringLiteral("3"));
  QVERIFY_EXCEPTION_THROWN(Formula(QStringLiteral("v*2"), m_net).evaluate(pipe), FormulaError);
}

void TestFormula::namesGivenAnew() {
  const QHash<QString, QString> names{{QStringLiteral("A"), QStringLiteral("S-1_A")},
                                      {QStringLiteral("B-2"), QStringLiteral("T_B")}};
  QCOMPARE(Formula::renamed(QStringLiteral("p@A - q@node1@B&#45;2 + r@ELE * s@AB + \"@A\" + t@"), names),
           QStringLiteral("p@S&#45;1_A - q@node1@T_B + r@ELE * s@AB + \"@A\" + t@"));
}

void TestFormula::boundAnew() {
  Formula formula(QStringLiteral("v@ELE/2"), m_net);
  QCOMPARE(formula.evaluate(*m_net.element(QStringLiteral("P1"))).number, 6.0);
  QCOMPARE(formula.evaluate(*m_net.element(QStringLiteral("P2"))).number, 1.0);
  m_net.element(QStringLiteral("P2"))->set(QStringLiteral("v"), QStringLiteral("5"));
  const Formula moved = std::move(formula);
  QCOMPARE(moved.evaluate(*m_net.element(QStringLiteral("P2"))).number, 2.5);
}

void TestFormula::errors_data() {
  QTest::addColumn<QString>("formula");
  for (const char *formula :
       {"", "   ", "1+", "(1", "p@", "p@+1", "foo(1)", "\"open", "1 2", "isnull(5)", "{1,2}+{1}", "@ELE"})
    QTest::newRow(formula) << QString::fromLatin1(formula);
}

void TestFormula::errors() {
  QFETCH(QString, formula);
  QVERIFY_EXCEPTION_THROWN(Formula(formula, m_net).evaluate(element()), FormulaError);
}

void TestFormula::boundless_data() {
  QTest::addColumn<QString>("formula");
  const auto row = [](const char *name, const QString &formula) {
    QTest::newRow(name) << formula;
  };
  row("matrix", QStringLiteral("zeros(1000000,1000000)"));
  row("matrix of a property", QStringLiteral("ones(v@ELE*1e6)"));
  row("no size", QStringLiteral("eye(-1)"));
  row("factorial", QStringLiteral("1e15!"));
  row("nesting", QString(5000, QLatin1Char('(')) + QLatin1Char('1') + QString(5000, QLatin1Char(')')));
  row("length", QString(1000000, QLatin1Char('1')));
  row("list", QStringLiteral("{") + QStringLiteral("1,").repeated(1000) + QStringLiteral("1}"));
}

void TestFormula::boundless() {
  QFETCH(QString, formula);
  QVERIFY_EXCEPTION_THROWN(Formula(formula, m_net).evaluate(*m_net.element(QStringLiteral("P1"))), FormulaError);
  QCOMPARE(Formula(QStringLiteral("5!"), m_net).evaluate(element()).text, QStringLiteral("120"));
}

NIVRA_TEST(TestFormula);
#include "tst_formula.moc"
