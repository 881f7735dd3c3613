#include "boundedparser.h"

#include <formulas/formula.h>
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
  void errorsNameWhatIsRead_data();
  void errorsNameWhatIsRead();
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
  BoundedParser parser(nullptr);
  parser.SetExpr("sin(0)+pow(3,2)+abs(-1)");
  QCOMPARE(parser.Eval().GetFloat(), 10.0);
  for (const char *name : {"isnull", "isnotnull", "nonull", "pow", "atan", "sgn", "nodetype", "zeros", "ones", "eye"})
    QVERIFY2(parser.IsFunDefined(name), name);
  const auto &functions = parser.GetFunDef();
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
  row("isnull(v@ELE)", "0");             // these ask for a text, and have to take what is a number
  row("isnotnull( (p@N1) )", "1");
  row("isnotnull(p@ELE)", "0");
  row("nonull(p@N1)", "50.5");
  row("nonull(p@ELE) // \"-\" // nonull(v@ELE)", "-12");
  row("isnotnull(v@ELE) && v@ELE > 10", "1");
  row("isnull(v@ELE) ? 0 : v@ELE * 2", "24");
  row("isnull(p@ELE) ? v@ELE : p@ELE", "12");
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
  QString escaped;
  for (const QChar c : name)
    escaped += c.isLetterOrNumber() ? QString(c) : QStringLiteral("&#%1;").arg(c.unicode());
  const Formula formula(QStringLiteral("p@%1+1").arg(escaped), net);
  QCOMPARE(formula.references().front().elementName, name);
  QCOMPARE(formula.evaluate(element()).text, QStringLiteral("43"));
}

void TestFormula::bareNames() {
  const element &pipe = *m_net.element(QStringLiteral("P1"));
  QCOMPARE(Formula(QStringLiteral("v*2+sin(0)"), m_net, Formula::Bare::OfCurrent).evaluate(pipe).text, QStringLiteral("24"));
  QVERIFY(Formula(QStringLiteral("e"), m_net, Formula::Bare::OfCurrent).evaluate(pipe).number <
          2.8); // Euler's, not the property
  QCOMPARE(Formula(QStringLiteral("e@ELE"), m_net, Formula::Bare::OfCurrent).evaluate(pipe).text, QStringLiteral("3"));
  QVERIFY_EXCEPTION_THROWN(Formula(QStringLiteral("v*2"), m_net).evaluate(pipe), FormulaError);
}

/// As in the formulas of a template: its names stand for what was made of them.
void TestFormula::namesGivenAnew() {
  FormulaNames names;
  names.add(QStringLiteral("In-1"), QStringLiteral("N1"));
  names.add(QStringLiteral("Edge"), QStringLiteral("P1"));
  const Formula formula(QStringLiteral("p@in&#45;1 + v@Edge + p@node2@Edge + 100 * p@N1"), m_net);
  QCOMPARE(formula.evaluate(element(), &names).text, QStringLiteral("5119.5"));
  QVERIFY_EXCEPTION_THROWN(formula.evaluate(element()), FormulaError);
}

void TestFormula::boundAnew() {
  Formula formula(QStringLiteral("v@ELE/2"), m_net);
  QCOMPARE(formula.evaluate(*m_net.element(QStringLiteral("P1"))).number, 6.0);
  QCOMPARE(formula.evaluate(*m_net.element(QStringLiteral("P2"))).number, 1.0);
  m_net.element(QStringLiteral("P2"))->set(QStringLiteral("v"), QStringLiteral("5"));
  const Formula moved = std::move(formula);
  QCOMPARE(moved.evaluate(*m_net.element(QStringLiteral("P2"))).number, 2.5);
}

void TestFormula::errorsNameWhatIsRead_data() {
  QTest::addColumn<QString>("formula");
  QTest::addColumn<QString>("named");
  QTest::newRow("value") << QStringLiteral("isnull(v@ELE+1)") << QStringLiteral("isnull");
  QTest::newRow("index") << QStringLiteral("state@ELE + v@N1 + v@ELE[3]") << QString();
  QTest::newRow("beside another") << QStringLiteral("v@ELE p@node1@ELE") << QStringLiteral("p@node1@ELE");
  QTest::newRow("call") << QStringLiteral("sin(state@ELE)") << QStringLiteral("sin");
}

void TestFormula::errorsNameWhatIsRead() {
  QFETCH(QString, formula);
  QFETCH(QString, named);
  QString text;
  try {
    Formula(formula, m_net).evaluate(*m_net.element(QStringLiteral("P1")));
  } catch (const FormulaError &error) {
    text = error.text();
  }
  QVERIFY2(!text.isEmpty() && text.contains(named) && !text.contains(QStringLiteral("v_")), qPrintable(text));
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
  row("products of matrices",
      QStringLiteral("(ones(100,100)") + QStringLiteral("*ones(100,100)").repeated(250) + QStringLiteral(")[0,0]"));
  row("growing text", QStringLiteral("(state@ELE=state@ELE//state@ELE)//").repeated(39) + QStringLiteral("\"\""));
  row("printed matrix", QStringLiteral("ones(60,60)"));
  row("nesting", QString(5000, QLatin1Char('(')) + QLatin1Char('1') + QString(5000, QLatin1Char(')')));
  row("length", QString(1000000, QLatin1Char('1')));
  row("list", QStringLiteral("{") + QStringLiteral("1,").repeated(1000) + QStringLiteral("1}"));
}

void TestFormula::boundless() {
  QFETCH(QString, formula);
  QVERIFY_EXCEPTION_THROWN(Formula(formula, m_net).evaluate(*m_net.element(QStringLiteral("P1"))), FormulaError);
  QCOMPARE(Formula(QStringLiteral("5!"), m_net).evaluate(element()).text, QStringLiteral("120"));
  QCOMPARE(Formula(QStringLiteral("(ones(20,20)*ones(20,20))[0,0]"), m_net).evaluate(element()).number, 20.0);
  const QString longest =
      QStringLiteral("v@ELE") + QStringLiteral("+v@ELE").repeated(660); // what is allowed can be computed
  QCOMPARE(Formula(longest, m_net).evaluate(*m_net.element(QStringLiteral("P1"))).number, 12.0 * 661);
}

NIVRA_TEST(TestFormula);
#include "tst_formula.moc"
