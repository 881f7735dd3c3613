#include <base/generalsettings.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/networksearch.h>
#include <tools/nivrasearch.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeWidget>

class TestNivraSearch : public QObject {
  Q_OBJECT

private slots:
  void init();
  void cleanup() { GeneralSettings::instance().reset(); }
  void restrictions_data();
  void restrictions();
  void badPatternsEnd_data();
  void badPatternsEnd();
  void resultsAreMarked();
  void formulaStopsTheSearch();
  void valuesAreInTheDisplayUnit();
  void panelSearches();
  void formulaModeFollowsTheText();
  void historyKeepsTen();
  void dropSearchesNames();
  void changedElementIsSearchedAgain();
  void selectsRows();
  void exportsTheRows();

private:
  QStringList found(const SearchParams &params) {
    QStringList rows;
    for (const SearchRow &row : NetworkSearch(*m_net, params).run().rows)
      rows.append(row.name + QLatin1Char('.') + row.property);
    return rows;
  }
  static QLineEdit *field(NivraSearch &panel, const char *name) {
    return panel.findChild<QLineEdit *>(QString::fromLatin1(name));
  }
  static QTreeWidget *tree(NivraSearch &panel) { return panel.findChild<QTreeWidget *>(); }

  std::unique_ptr<NetData> m_net;
};

void TestNivraSearch::init() {
  m_net = std::make_unique<NetData>();
  element a = makeNode("A.b");
  a.set(QStringLiteral("p"), QStringLiteral("50.5"));
  a.set(QStringLiteral("t"), QStringLiteral("283.15"));
  a.set(QStringLiteral("pLabel"), QStringLiteral("kept by the drawing"));
  m_net->addElement(a);
  element axb = makeNode("axB");
  axb.set(QStringLiteral("p"), QStringLiteral("20"));
  m_net->addElement(axb);
  element pipe = makeEdge("N-1.2", "A.b", "axB");
  pipe.set(QStringLiteral("p"), QStringLiteral("1.5"));
  m_net->addElement(pipe);
}

void TestNivraSearch::restrictions_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<bool>("regex");
  QTest::addColumn<QString>("type");
  QTest::addColumn<QString>("prop");
  QTest::addColumn<QString>("value");
  QTest::addColumn<QString>("formula");
  QTest::addColumn<QString>("rows");
  const auto row = [](const char *test, const char *name, bool regex, const char *type, const char *prop, const char *value,
                      const char *formula, const char *rows) {
    const auto text = [](const char *t) {
      return QString::fromLatin1(t);
    };
    QTest::newRow(test) << text(name) << regex << text(type) << text(prop) << text(value) << text(formula) << text(rows);
  };
  row("names", "", false, "", "^name$", "", "", "A.b.name axB.name N-1.2.name");
  row("plain name", "a.b", false, "", "^name$", "", "", "A.b.name");
  row("pattern of names", "a.b", true, "", "^NAME$", "", "", "A.b.name axB.name");
  row("type", "", false, "p", "^p$", "", "", "N-1.2.p");
  row("the type is searched", "", false, "", "^type$", "^n$", "", "A.b.type axB.type");
  row("everything of one", "^a[.]b$", true, "", "", "", "", "A.b.name A.b.p A.b.t A.b.type A.b.x A.b.y");
  row("value", "", false, "", "^p$", "5", "", "A.b.p N-1.2.p");
  row("formula", "", false, "", "^name$", "", "p@ELE>10", "A.b.name axB.name");
  row("formula of another", "", false, "n", "^name$", "", "p@ELE>p@N&#45;1&#46;2*20", "A.b.name");
  row("nothing", "zzz", false, "", "", "", "", "");
}

void TestNivraSearch::restrictions() {
  QFETCH(QString, name);
  QFETCH(bool, regex);
  QFETCH(QString, type);
  QFETCH(QString, prop);
  QFETCH(QString, value);
  QFETCH(QString, formula);
  QFETCH(QString, rows);
  QCOMPARE(found({name, value, type, prop, regex, formula}).join(QLatin1Char(' ')), rows);
}

void TestNivraSearch::badPatternsEnd_data() {
  QTest::addColumn<QString>("pattern");
  QTest::newRow("invalid") << QStringLiteral("(");
  QTest::newRow("catastrophic") << QStringLiteral("^(a+)+$");
  QTest::newRow("very catastrophic") << QStringLiteral("(x+x+)+y");
}

void TestNivraSearch::badPatternsEnd() {
  QFETCH(QString, pattern);
  element longOne = makeNode("L");
  longOne.set(QStringLiteral("text"), QString(300, QLatin1Char('a')) + QString(300, QLatin1Char('x')) + QLatin1Char('!'));
  m_net->addElement(longOne);
  QVERIFY(found({QString(), pattern, QString(), QStringLiteral("text"), false, QString()}).isEmpty());
}

void TestNivraSearch::resultsAreMarked() {
  const PropertyKey mark = PropertyKey::intern("isSearchResult");
  found({QStringLiteral("A.b"), QString(), QString(), QString(), false, QString()});
  QCOMPARE(m_net->element(QStringLiteral("A.b"))->value(mark), QStringLiteral("1"));
  found({QStringLiteral("axB"), QString(), QString(), QString(), false, QString()});
  QVERIFY(m_net->element(QStringLiteral("A.b"))->find(mark) == nullptr);
  QVERIFY(m_net->element(QStringLiteral("axB"))->find(mark) != nullptr);
}

void TestNivraSearch::formulaStopsTheSearch() {
  m_net->element(QStringLiteral("axB"))->set(QStringLiteral("p"), QStringLiteral("a text"));
  NetworkSearch search(*m_net,
                       {QString(), QString(), QString(), QStringLiteral("^name$"), false, QStringLiteral("p@ELE>1")});
  const NetworkSearch::Result result = search.run();
  QVERIFY(result.isStopped && !result.error.isEmpty());
  QCOMPARE(result.rows.size(), std::size_t(1)); // what came before
}

void TestNivraSearch::valuesAreInTheDisplayUnit() {
  NetworkSearch search(*m_net, {QString(), QString(), QString(), QStringLiteral("^t$"), false, QString()});
  const SearchRow row = search.run().rows.front();
  QCOMPARE(row.value, QStringLiteral("10"));
  QCOMPARE(row.unit, QStringLiteral("degC"));
}

void TestNivraSearch::panelSearches() {
  NivraSearch panel(*m_net);
  const QSignalSpy completed(&panel, &NivraSearch::searchCompleted);
  QCOMPARE(field(panel, "lineEdit_prop")->text(), QStringLiteral("^name$"));
  QTest::keyClicks(field(panel, "lineEdit_name"), QStringLiteral("a"));
  QTest::keyClick(field(panel, "lineEdit_name"), Qt::Key_Return);
  QCOMPARE(completed.count(), 1);
  QCOMPARE(tree(panel)->topLevelItemCount(), 2);
  QCOMPARE(tree(panel)->topLevelItem(0)->text(0), QStringLiteral("A.b"));
  panel.defineSearch({QStringLiteral("x"), QStringLiteral("n"), QStringLiteral("^p$")}, true); // too few: ignored
  QCOMPARE(completed.count(), 1);
  panel.defineSearch({QStringLiteral("^ax"), QString(), QStringLiteral("^p$"), QString()}, true);
  QCOMPARE(tree(panel)->topLevelItemCount(), 1);
  QVERIFY(panel.searchParams().regex);
  const QSignalSpy marked(&panel, &NivraSearch::markSearchResults);
  panel.on_pushButton_select_and_closure_clicked();
  QCOMPARE(marked.first(), (QVariantList{true, false}));
  auto *mode = panel.findChild<QToolButton *>(QStringLiteral("toolButton_mode"));
  mode->menu()->actions().first()->trigger();
  QCOMPARE(mode->text(), QStringLiteral("add"));
  panel.findChild<QToolButton *>(QStringLiteral("toolButton_select"))->menu()->actions().first()->trigger();
  QCOMPARE(marked.last(), (QVariantList{false, true}));
}

void TestNivraSearch::formulaModeFollowsTheText() {
  NivraSearch panel(*m_net);
  QLineEdit *value = field(panel, "lineEdit_searchString");
  const QColor plain = value->palette().color(QPalette::Base);
  value->setText(QStringLiteral("p@ELE>1.6"));
  QCOMPARE(value->palette().color(QPalette::Base), QColor(173, 255, 173));
  QTest::keyClick(value, Qt::Key_Return);
  QCOMPARE(tree(panel)->topLevelItemCount(), 2);
  QCOMPARE(panel.searchParams().formula, QStringLiteral("p@ELE>1.6"));
  QVERIFY(panel.searchParams().searchString.isEmpty());
  value->setText(QStringLiteral("p@ele"));
  QCOMPARE(value->palette().color(QPalette::Base), plain);
  QVERIFY(panel.searchParams().formula.isEmpty());
}

void TestNivraSearch::historyKeepsTen() {
  NivraSearch panel(*m_net);
  for (int i = 0; i < 12; ++i)
    panel.defineSearch({QString::number(i), QString(), QString(), QString()}, false);
  QCOMPARE(panel.history().entries().size(), 10);
  QVERIFY(panel.history().entries().first().startsWith(QStringLiteral("11  __|__  ")));
  panel.defineSearch({QStringLiteral("5"), QString(), QString(), QString()}, true);
  QVERIFY(panel.history().entries().first().startsWith(QStringLiteral("11"))); // the same is not moved to the front
  auto *history = panel.findChild<QToolButton *>(QStringLiteral("toolButton_history"));
  history->menu()->actions().last()->trigger();
  QCOMPARE(panel.searchParams().name, QStringLiteral("2"));
  QVERIFY(!panel.searchParams().regex);
}

void TestNivraSearch::dropSearchesNames() {
  NivraSearch panel(*m_net);
  panel.searchNames(QStringLiteral(";;"));
  QCOMPARE(tree(panel)->topLevelItemCount(), 0);
  panel.searchNames(QStringLiteral("A.b;;N-1.2"));
  QCOMPARE(panel.searchParams().name, QStringLiteral("^A\\.b$|^N\\-1\\.2$"));
  QVERIFY(panel.searchParams().regex);
  QCOMPARE(tree(panel)->topLevelItemCount(), 2);
}

void TestNivraSearch::changedElementIsSearchedAgain() {
  NivraSearch panel(*m_net);
  panel.defineSearch({QString(), QString(), QStringLiteral("^p$"), QStringLiteral("^[25]0")}, false);
  QCOMPARE(tree(panel)->topLevelItemCount(), 2);
  element &changed = *m_net->element(QStringLiteral("axB"));
  changed.set(QStringLiteral("p"), QStringLiteral("7"));
  panel.updateSearchItems(changed, QString());
  QCOMPARE(tree(panel)->topLevelItemCount(), 1);
  QVERIFY(!changed.contains(QStringLiteral("isSearchResult")));
}

void TestNivraSearch::selectsRows() {
  NivraSearch panel(*m_net);
  panel.searchWithFormula();
  const QSignalSpy marked(&panel, &NivraSearch::elementMarked);
  QVERIFY(panel.select(QStringLiteral("AXB")));
  QCOMPARE(tree(panel)->currentItem()->text(0), QStringLiteral("axB"));
  QCOMPARE(marked.count(), 0);
  QVERIFY(!panel.select(QStringLiteral("ax"))); // the whole name
  QVERIFY(tree(panel)->currentItem() == nullptr);
  tree(panel)->setCurrentItem(tree(panel)->topLevelItem(2));
  QCOMPARE(marked.last().first().toString(), QStringLiteral("N-1.2"));
  const QSignalSpy doubleClicked(&panel, &NivraSearch::itemDoubleClicked);
  panel.on_treeWidget_searchResults_itemDoubleClicked(tree(panel)->topLevelItem(0), 3);
  QCOMPARE(doubleClicked.first().at(1).toInt(), 0);
}

void TestNivraSearch::exportsTheRows() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("searchresults.csv"));
  m_net->element(QStringLiteral("axB"))->set(QStringLiteral("p"), QStringLiteral("say \"20\""));
  NivraSearch panel(*m_net);
  panel.defineSearch({QString(), QString(), QStringLiteral("^p$"), QString()}, false);
  QVERIFY(panel.save(path));
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(file.readAll(), QByteArray("SearchString:;\"\";\n"
                                      "NameRestriction:;\"\";\n"
                                      "TypeRestriction:;\"\";\n"
                                      "PropertyRestriction:;\"^p$\";\n"
                                      "FormulaString:;\"\";\n"
                                      "\n"
                                      "\"name\";\"type\";\"property\";\"value\";\"unit\";\n"
                                      "\"A.b\";\"n\";\"p\";\"50,5\";\"bar\";\n"
                                      "\"axB\";\"n\";\"p\";\"say \"\"20\"\"\";\"bar\";\n"
                                      "\"N-1.2\";\"p\";\"p\";\"1,5\";\"\";\n"));
  QVERIFY(!panel.save(QStringLiteral("/nowhere/searchresults.csv")));
}

NIVRA_TEST(TestNivraSearch);
#include "tst_nivrasearch.moc"
