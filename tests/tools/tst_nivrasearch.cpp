#include "search/networksearch.h"

#include <base/generalsettings.h>
#include <model/elementtypes.h>
#include <support/contextmenu.h>
#include <support/fulldisk.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/nivrasearch.h>
#include <tools/tablemenu.h>
#include <tools/vectorrows.h>

#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>

namespace {

/// Elements of a geometry file with their results, as far as a search needs them.
void readNetwork(NetData &net, const QString &geometry, const QString &results) {
  const auto objectIn = [](const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
  };
  const QJsonObject elements = objectIn(geometry);
  const QJsonObject values = objectIn(results);
  for (auto it = elements.begin(); it != elements.end(); ++it) {
    QVariantMap properties = it.value().toObject().toVariantMap();
    const ElementType *type = ElementTypes::byWord(properties.take(QStringLiteral("obj_type")).toString());
    if (type == nullptr)
      continue;
    properties.insert(QStringLiteral("name"), it.key());
    properties.insert(QStringLiteral("type"), type->code);
    const QVariantMap computed = values.value(it.key()).toObject().toVariantMap();
    for (auto value = computed.begin(); value != computed.end(); ++value)
      properties.insert(value.key(), value.value());
    element e;
    for (auto property = properties.begin(); property != properties.end(); ++property)
      e.set(property.key(), property.value().toString());
    net.addElement(std::move(e));
  }
}

} // namespace

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
  void formulaOfTheToolTip();
  void valuesAreInTheDisplayUnit();
  void panelSearches();
  void formulaModeFollowsTheText();
  void historyKeepsTen();
  void dropSearchesNames();
  void changedElementIsSearchedAgain();
  void filtersHoldForWhatIsFoundNext();
  void selectsRows();
  void exportsTheRows();
  void exportThatFailsIsTold();
  void exportedTextsAreNoFormulas();
  void numbersAreRoundedForTheEye();
  void saysWhyNothingIsFound_data();
  void saysWhyNothingIsFound();
  void tableUnderstandsTheSame();
  void typedLikeAPerson();
  void machinesOfferTheirMaps();
  void sortsAsTheTableDoes();
  void tellsForTheLogAlone();

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
  static QTableView *table(NivraSearch &panel) { return panel.findChild<QTableView *>(); }
  static int rows(NivraSearch &panel) { return table(panel)->model()->rowCount(); }
  static QModelIndex cell(NivraSearch &panel, int row, int column) { return table(panel)->model()->index(row, column); }

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
  row("formula that some lack", "", false, "", "^name$", "", "p@node1@ELE>10", "N-1.2.name");
  row("formula for what is missing", "", false, "", "^name$", "", "isnull(t@ELE)", "axB.name N-1.2.name");
  row("formula for what is there", "", false, "", "^name$", "", "isnotnull(p@ELE) && p@ELE<2", "N-1.2.name");
  row("word of a type", "", false, "pipe", "^name$", "", "", "N-1.2.name");
  row("words of types", "", false, "^nodes?$|valve", "^name$", "", "", "A.b.name axB.name");
  row("code, though words have the letter", "", false, "p", "^name$", "", "", "N-1.2.name");
  row("no such type", "", false, "pipeline", "^name$", "", "", "");
  row("comparison", "", false, "", "^p$", ">10", "", "A.b.p axB.p");
  row("comparison as it is shown", "", false, "", "^t$", "<= 10", "", "A.b.t"); // 283.15 K
  row("comparison in a unit", "", false, "", "^p$", "> 2.2 MPa", "", "A.b.p");  // 50.5 bar
  row("comparison in a unit with another zero", "", false, "", "^t$", "<= 283.15 K", "", "A.b.t");
  row("comparison in a unit of something else", "", false, "", "^p$", "> 1 kg", "", "");
  row("comparison in no unit", "", false, "", "^p$", "> 1 of them", "", "");
  row("comparison of texts", "", false, "", "^name$", ">10", "", "");
  row("equality", "", false, "", "", "=20", "", "axB.p");
  row("no comparison", "", false, "", "pLabel|name", ">x", "", "");
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
  QVERIFY(result.isStopped);
  QVERIFY2(result.error.contains(QStringLiteral("axB")) && result.error.contains(QStringLiteral("p@ELE is \"a text\"")),
           qPrintable(result.error));
  QCOMPARE(result.rows.size(), std::size_t(1)); // what came before
  for (const char *formula : {"p@ELE>", "nosuch(p@ELE)", "(ones(100,100)*ones(100,100))[0,0]>0"}) {
    const NetworkSearch::Result faulty =
        NetworkSearch(*m_net, {QString(), QString(), QString(), QString(), false, QString::fromLatin1(formula)}).run();
    QVERIFY2(faulty.isStopped && faulty.rows.empty() && !faulty.error.isEmpty(), formula);
  }
  for (const char *formula : {"p@ELE>", "nosuch(p@ELE)"}) { // also where no element is asked
    const NetworkSearch::Result faulty = NetworkSearch(*m_net, {QStringLiteral("nobody"), QString(), QString(), QString(),
                                                                false, QString::fromLatin1(formula)})
                                             .run();
    QVERIFY2(faulty.isStopped && !faulty.error.isEmpty(), formula);
  }
}

/// The formula of the panel's own tool tip, on a network whose drives have no pressure.
void TestNivraSearch::formulaOfTheToolTip() {
  const QString folder = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/GasLib-135/");
  if (!QFile::exists(folder))
    QSKIP("the network is not there");
  NetData net;
  readNetwork(net, folder + QStringLiteral("GasLib-135.geom.jsn"), folder + QStringLiteral("N1/N1.res.jsn"));
  NivraSearch panel(net);
  const QString tip = panel.findChild<QToolButton *>(QStringLiteral("toolButton_formulaMode"))->toolTip();
  QTest::keyClicks(field(panel, "lineEdit_searchString"), tip.section(QStringLiteral("e.g. "), 1));
  QTest::keyClick(field(panel, "lineEdit_searchString"), Qt::Key_Return);
  QVERIFY2(rows(panel) > 100, qPrintable(QString::number(rows(panel))));
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
  QCOMPARE(rows(panel), 2);
  QCOMPARE(cell(panel, 0, 0).data().toString(), QStringLiteral("A.b"));
  panel.defineSearch({QStringLiteral("x"), QStringLiteral("n"), QStringLiteral("^p$")}, true); // too few: ignored
  QCOMPARE(completed.count(), 1);
  panel.defineSearch({QStringLiteral("^ax"), QString(), QStringLiteral("^p$"), QString()}, true);
  QCOMPARE(rows(panel), 1);
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
  QCOMPARE(rows(panel), 2);
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
  QCOMPARE(rows(panel), 0);
  panel.searchNames(QStringLiteral("A.b;;N-1.2"));
  QCOMPARE(panel.searchParams().name, QStringLiteral("^A\\.b$|^N\\-1\\.2$"));
  QVERIFY(panel.searchParams().regex);
  QCOMPARE(rows(panel), 2);
}

void TestNivraSearch::changedElementIsSearchedAgain() {
  NivraSearch panel(*m_net);
  panel.defineSearch({QString(), QString(), QStringLiteral("^p$"), QStringLiteral("^[25]0")}, false);
  QCOMPARE(rows(panel), 2);
  element &changed = *m_net->element(QStringLiteral("axB"));
  changed.set(QStringLiteral("p"), QStringLiteral("7"));
  panel.updateSearchItems(changed, QString());
  QCOMPARE(rows(panel), 1);
  QVERIFY(!changed.contains(QStringLiteral("isSearchResult")));
  changed.set(QStringLiteral("p"), QStringLiteral("50"));
  table(panel)->setCurrentIndex(cell(panel, 0, 1));
  const QString current = cell(panel, 0, 0).data().toString();
  const QSignalSpy marked(&panel, &NivraSearch::elementMarked);
  panel.takeChanges(true);
  QCOMPARE(rows(panel), 2);
  QVERIFY(changed.contains(QStringLiteral("isSearchResult")));
  QCOMPARE(table(panel)->currentIndex().siblingAtColumn(0).data().toString(), current);
  QCOMPARE(marked.count(), 0);
  table(panel)->selectAll();
  panel.takeChanges(true);
  QCOMPARE(table(panel)->selectionModel()->selectedRows().size(), 2); // what was selected stays so
  panel.clearResults();
  panel.takeChanges(true); // for nothing
  QCOMPARE(rows(panel), 0);
}

void TestNivraSearch::filtersHoldForWhatIsFoundNext() {
  NivraSearch panel(*m_net);
  auto *menu = panel.findChild<TableMenu *>();
  const auto shown = [&panel] {
    QStringList names;
    for (int row = 0; row < rows(panel); ++row) {
      if (!table(panel)->isRowHidden(row))
        names.append(cell(panel, row, 0).data().toString());
    }
    return names.join(QLatin1Char(' '));
  };
  panel.searchWithFormula();
  menu->setFilter(0, QStringLiteral("a"));
  QCOMPARE(shown(), QStringLiteral("A.b axB"));
  table(panel)->sortByColumn(0, Qt::DescendingOrder);
  QCOMPARE(shown(), QStringLiteral("axB A.b"));
  panel.searchWithFormula();
  QCOMPARE(shown(), QStringLiteral("A.b axB"));
  panel.updateSearchItems(*m_net->element(QStringLiteral("N-1.2")), QString());
  QCOMPARE(rows(panel), 3);
  QCOMPARE(shown(), QStringLiteral("A.b axB"));
}

void TestNivraSearch::selectsRows() {
  NivraSearch panel(*m_net);
  panel.searchWithFormula();
  const QSignalSpy marked(&panel, &NivraSearch::elementMarked);
  QVERIFY(panel.select(QStringLiteral("AXB")));
  QCOMPARE(table(panel)->currentIndex().data().toString(), QStringLiteral("axB"));
  QCOMPARE(marked.count(), 0);
  QVERIFY(!panel.select(QStringLiteral("ax"))); // the whole name
  QVERIFY(!table(panel)->currentIndex().isValid());
  table(panel)->setCurrentIndex(cell(panel, 2, 1));
  QCOMPARE(marked.last().first().toString(), QStringLiteral("N-1.2"));
  const QSignalSpy doubleClicked(&panel, &NivraSearch::itemDoubleClicked);
  panel.show();
  QVERIFY(QTest::qWaitForWindowExposed(&panel));
  const QPoint value = table(panel)->visualRect(cell(panel, 0, 3)).center();
  QTest::mouseClick(table(panel)->viewport(), Qt::LeftButton, Qt::NoModifier, value);
  QTest::mouseDClick(table(panel)->viewport(), Qt::LeftButton, Qt::NoModifier, value);
  QCOMPARE(doubleClicked.count(), 1);
  QCOMPARE(doubleClicked.first().first().toModelIndex().data().toString(), QStringLiteral("A.b"));
  QCOMPARE(doubleClicked.first().at(1).toInt(), 0);
  QTest::keyClick(table(panel), Qt::Key_End);
  QCOMPARE(table(panel)->currentIndex(), cell(panel, 2, 3));
  QTest::keyClick(table(panel), Qt::Key_Home);
  QCOMPARE(table(panel)->currentIndex(), cell(panel, 0, 3));
}

void TestNivraSearch::exportsTheRows() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("searchresults.csv"));
  m_net->element(QStringLiteral("axB"))->set(QStringLiteral("p"), QStringLiteral("say \"20\""));
  NivraSearch panel(*m_net);
  panel.defineSearch({QString(), QString(), QStringLiteral("^p$"), QString()}, false);
  QString reason;
  QVERIFY2(panel.save(path, &reason), qPrintable(reason));
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
}

void TestNivraSearch::exportThatFailsIsTold() {
  NivraSearch panel(*m_net);
  panel.searchWithFormula();
  QString reason;
  QVERIFY(!panel.save(QStringLiteral("/nowhere/searchresults.csv"), &reason));
  QVERIFY2(reason.contains(QStringLiteral("/nowhere/searchresults.csv")), qPrintable(reason));
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a small disk cannot be mounted here");
  const QString path = disk.path(QStringLiteral("searchresults.csv"));
  QVERIFY(panel.save(path, &reason));
  const qint64 size = QFileInfo(path).size();
  disk.fill();
  QVERIFY(!panel.save(path, &reason));
  QCOMPARE(QFileInfo(path).size(), size); // the one before is still there
}

void TestNivraSearch::exportedTextsAreNoFormulas() {
  m_net->element(QStringLiteral("axB"))->set(QStringLiteral("p"), QStringLiteral("=HYPERLINK(\"http://x\")"));
  m_net->element(QStringLiteral("A.b"))->set(QStringLiteral("p"), QStringLiteral("-5"));
  const QTemporaryDir folder;
  NivraSearch panel(*m_net);
  panel.defineSearch({QString(), QString(), QStringLiteral("^p$"), QString()}, false);
  QString reason;
  QVERIFY2(panel.save(folder.filePath(QStringLiteral("r.csv")), &reason), qPrintable(reason));
  QFile file(folder.filePath(QStringLiteral("r.csv")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray text = file.readAll();
  QVERIFY2(text.contains("\"-5\";"), text.constData());
  QVERIFY2(text.contains("\"'=HYPERLINK("), text.constData());
}

void TestNivraSearch::numbersAreRoundedForTheEye() {
  m_net->element(QStringLiteral("axB"))->set(QStringLiteral("p"), QStringLiteral("83.84299999999999"));
  NivraSearch panel(*m_net);
  panel.resize(700, 500);
  panel.show();
  panel.defineSearch({QStringLiteral("axB"), QString(), QStringLiteral("^p$"), QString()}, false);
  // what is painted is what is painted for a cell of the rounded text
  const auto painted = [&](const char *p) {
    element &changed = *m_net->element(QStringLiteral("axB"));
    changed.set(QStringLiteral("p"), QString::fromLatin1(p));
    panel.updateSearchItems(changed, QString());
    return table(panel)->viewport()->grab(table(panel)->visualRect(cell(panel, 0, 3))).toImage();
  };
  const QImage rounded = painted("83.843");
  QVERIFY(painted("83.842") != rounded);
  QCOMPARE(painted("83.84299999999999"), rounded);
  const QPoint middle = table(panel)->visualRect(cell(panel, 0, 3)).center();
  QHelpEvent help(QEvent::ToolTip, middle, table(panel)->viewport()->mapToGlobal(middle));
  QApplication::sendEvent(table(panel)->viewport(), &help);
  QVERIFY2(QToolTip::text().contains(QStringLiteral("83.84299999999999")), qPrintable(QToolTip::text()));
  panel.activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&panel));
  table(panel)->setFocus();
  table(panel)->setCurrentIndex(cell(panel, 0, 3));
  QTest::keyClick(table(panel), Qt::Key_C, Qt::ControlModifier);
  QVERIFY2(QApplication::clipboard()->text().contains(QStringLiteral("83.84299999999999")),
           qPrintable(QApplication::clipboard()->text()));
}

void TestNivraSearch::saysWhyNothingIsFound_data() {
  QTest::addColumn<QStringList>("definition");
  QTest::addColumn<QString>("said");
  const auto row = [](const char *name, const QStringList &definition, const char *said) {
    QTest::newRow(name) << definition << QString::fromLatin1(said);
  };
  row("no such property", {QString(), QString(), QStringLiteral("pressure"), QString()}, "no such property: \"pressure\"");
  row("no such type", {QString(), QStringLiteral("pipeline"), QString(), QString()}, "of the type \"pipeline\"");
  row("a pattern", {QString(), QString(), QStringLiteral("p"), QString()}, "finds 2 properties");
  row("only names", {QString(), QString(), QStringLiteral("^name$"), QStringLiteral(">10")}, "Only names are searched");
  row("nothing to say", {QStringLiteral("zzz"), QStringLiteral("node"), QStringLiteral("^p$"), QString()}, "");
  row("no such name", {QStringLiteral("zzz"), QString(), QStringLiteral("^name$"), QString()}, "No name fits \"zzz\".");
  row("a type as a name", {QStringLiteral("node"), QString(), QStringLiteral("^name$"), QString()}, "write it into Type");
  row("no pattern", {QString(), QString(), QStringLiteral("("), QString()}, "");
}

void TestNivraSearch::saysWhyNothingIsFound() {
  QFETCH(QStringList, definition);
  QFETCH(QString, said);
  NivraSearch panel(*m_net);
  panel.show();
  panel.defineSearch(definition, false);
  const auto *hint = panel.findChild<QLabel *>(QStringLiteral("label_hint"));
  QCOMPARE(hint->isVisible(), !said.isEmpty());
  QVERIFY2(hint->text().contains(said), qPrintable(hint->text()));
  panel.defineSearch({QString(), QString(), QStringLiteral("^p$"), QString()}, false);
  QVERIFY(!hint->isVisible());
}

/// A search that is taken to the table, or kept as a category, lists what it has found.
void TestNivraSearch::tableUnderstandsTheSame() {
  VectorRows::Request request;
  request.usesProperty = false;
  request.category.type = QStringLiteral("node");
  request.category.prop = QStringLiteral("^[pt]$");
  request.category.value = QStringLiteral("<=20"); // 283.15 K are 10 degrees
  QStringList rows;
  for (const VectorRows::Row &row : VectorRows(*m_net).build(request))
    rows.append(row.name + QLatin1Char('.') + row.property);
  rows.sort();
  QCOMPARE(rows, QStringList({QStringLiteral("A.b.t"), QStringLiteral("axB.p")}));
  SearchParams params;
  params.type = request.category.type;
  params.prop = request.category.prop;
  params.searchString = request.category.value;
  QCOMPARE(found(params), rows);
}

/// Ctrl+F, then what one looks for: over the name that was looked for before.
void TestNivraSearch::typedLikeAPerson() {
  NivraSearch panel(*m_net);
  panel.show();
  QVERIFY(QTest::qWaitForWindowExposed(&panel));
  panel.defineSearch({QStringLiteral("A.b"), QString(), QStringLiteral("^name$"), QString()}, false);
  panel.activateWindow();
  panel.enterLastField();
  QCOMPARE(QApplication::focusWidget(), field(panel, "lineEdit_name"));
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("axb"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QCOMPARE(panel.searchParams().name, QStringLiteral("axb"));
  QCOMPARE(rows(panel), 1);
  QVERIFY(!field(panel, "lineEdit_prop")->toolTip().isEmpty());
  QVERIFY(field(panel, "lineEdit_prop")->isClearButtonEnabled());
}

void TestNivraSearch::machinesOfferTheirMaps() {
  m_net->addElement(makeEdge("CS", "A.b", "axB", "c"));
  NivraSearch panel(*m_net);
  panel.defineSearch({QString(), QString(), QString(), QString()}, false); // several rows of each
  const QSignalSpy wanted(&panel, &NivraSearch::characteristicsWanted);
  auto *open = panel.findChild<QAction *>(QStringLiteral("actionOpenCharacteristics"));
  const auto isOffered = [&panel, open] {
    return ContextMenu::texts(*table(panel)).contains(open->text());
  };
  QVERIFY(panel.select(QStringLiteral("axB")));
  QVERIFY(!isOffered());
  QVERIFY(panel.select(QStringLiteral("CS")));
  QVERIFY(isOffered());
  open->trigger();
  QCOMPARE(wanted.value(0).value(0).toStringList(), QStringList{QStringLiteral("CS")});
}

/// Also where numbers and texts stand in one column: an order that contradicts itself would lose or mix rows.
void TestNivraSearch::sortsAsTheTableDoes() {
  for (const auto &[name, own] : std::initializer_list<std::pair<const char *, const char *>>{
           {"S_10", "10"}, {"S_9", "9"}, {"s_1", "5x"}, {"S_2", "-1e3"}, {"S_11", "open"}}) {
    element node = makeNode(name);
    node.set(QStringLiteral("own"), QString::fromLatin1(own));
    m_net->addElement(node);
  }
  NivraSearch panel(*m_net);
  const auto texts = [&panel](int column) {
    QStringList cells;
    for (int row = 0; row < rows(panel); ++row)
      cells.append(cell(panel, row, column).data().toString());
    return cells.join(QLatin1Char(' '));
  };
  panel.defineSearch({QString(), QString(), QStringLiteral("^own$"), QString()}, false);
  QCOMPARE(texts(0), QStringLiteral("s_1 S_2 S_9 S_10 S_11"));
  table(panel)->sortByColumn(3, Qt::AscendingOrder);
  QCOMPARE(texts(3), QStringLiteral("-1e3 9 10 5x open"));
  table(panel)->sortByColumn(0, Qt::DescendingOrder);
  QCOMPARE(texts(0), QStringLiteral("S_11 S_10 S_9 S_2 s_1"));
}

void TestNivraSearch::tellsForTheLogAlone() {
  std::vector<Finding> told;
  NivraSearch panel(*m_net, [&told](const Finding &finding) { told.push_back(finding); });
  panel.on_pushButton_search_clicked();
  const auto isTime = [](const Finding &finding) {
    return finding.severity == Finding::Severity::Debug && finding.text.startsWith(QStringLiteral("Time for search: "));
  };
  QCOMPARE(std::count_if(told.begin(), told.end(), isTime), 1);
  panel.defineSearch({QString(), QString(), QStringLiteral("^name$"), QStringLiteral("p@ELE>")}, false);
  QVERIFY(std::any_of(told.begin(), told.end(), [](const Finding &finding) {
    return finding.severity == Finding::Severity::Warning;
  })); // the box that follows is the panel's own
}

NIVRA_TEST(TestNivraSearch);
#include "tst_nivrasearch.moc"
