#include "findings/findingmodel.h"
#include "shared/nameaid.h"
#include "table/valuestatistics.h"

#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/nivrafindings.h>
#include <tools/tablemenu.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCompleter>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTreeView>

#include <algorithm>
#include <cmath>
#include <limits>

/// What all tables of the tools have in common, and the panel of findings.
class TestTables : public QObject {
  Q_OBJECT

private slots:
  void cellFilters_data();
  void cellFilters();
  void filtersFollowSorting();
  void copiesForSpreadsheets();
  void namesAhead();
  void statistics();
  void statisticsOfOddColumns();
  void findings();

private:
  static void fill(QTableWidget &table, const QStringList &cells);
};

void TestTables::cellFilters_data() {
  QTest::addColumn<QString>("filter");
  QTest::addColumn<QString>("passing"); // of the cells 10, 9, -1e3, open, Closed and an empty one
  const auto row = [](const char *filter, const char *passing) {
    QTest::newRow(filter) << QString::fromLatin1(filter) << QString::fromLatin1(passing);
  };
  row("", "10 9 -1e3 open Closed ");
  row("1", "10 -1e3");
  row("OSE", "Closed");
  row("> 9", "10");
  row(">=9", "10 9");
  row("< 9.5", "9 -1e3");
  row("<=-1000", "-1e3");
  row("= 10.0", "10");
  row("=open", "open");
  row("!= 10", "9 -1e3 open Closed ");
  row("!= closed", "10 9 -1e3 open ");
  row("=", "");
}

void TestTables::cellFilters() {
  QFETCH(QString, filter);
  QFETCH(QString, passing);
  const CellFilter asked(filter);
  QStringList found;
  for (const char *cell : {"10", "9", "-1e3", "open", "Closed", ""}) {
    if (asked.passes(QString::fromLatin1(cell)))
      found.append(QString::fromLatin1(cell));
  }
  QCOMPARE(found.join(QLatin1Char(' ')), passing);
}

void TestTables::fill(QTableWidget &table, const QStringList &cells) {
  table.setColumnCount(2);
  table.setRowCount(cells.size() / 2);
  for (int i = 0; i < cells.size(); ++i)
    table.setItem(i / 2, i % 2, new QTableWidgetItem(cells.at(i)));
}

void TestTables::filtersFollowSorting() {
  QTableWidget table;
  fill(table, {QStringLiteral("b"), QStringLiteral("1"), QStringLiteral("c"), QStringLiteral("5"), QStringLiteral("a"),
               QStringLiteral("7")});
  table.setHorizontalHeaderLabels({QStringLiteral("name"), QStringLiteral("value")});
  table.resizeColumnsToContents();
  TableMenu menu(table);
  const QSignalSpy filtered(&menu, &TableMenu::filtered);
  menu.setFilter(1, QStringLiteral(">4"));
  QVERIFY(table.isRowHidden(0));
  QCOMPARE(menu.shownRows(), 2);
  QVERIFY(!table.model()->headerData(1, Qt::Horizontal, Qt::DecorationRole).isNull());
  const QHeaderView &header = *table.horizontalHeader();
  QVERIFY(header.sectionSize(1) >= header.sectionSizeHint(1)); // the funnel leaves the title whole
  table.setSortingEnabled(true);
  table.sortByColumn(0, Qt::AscendingOrder);
  QTRY_VERIFY(table.isRowHidden(1)); // b
  QVERIFY(!table.isRowHidden(0));
  menu.setFilter(0, QStringLiteral("a"));
  QCOMPARE(menu.shownRows(), 1);
  menu.setFilter(0, QString());
  menu.setFilter(1, QString());
  QCOMPARE(menu.shownRows(), 3);
  QVERIFY(table.model()->headerData(1, Qt::Horizontal, Qt::DecorationRole).isNull());
  QVERIFY(filtered.count() >= 4);
}

void TestTables::copiesForSpreadsheets() {
  QTableWidget table;
  fill(table, {QStringLiteral("say \"x\""), QStringLiteral("a;b"), QStringLiteral("two\nlines"), QString::fromUtf8("نص 🔥"),
               QStringLiteral("c\td"), QString()});
  TableMenu::offerCopy(table);
  TableMenu::offerCopy(table); // once is enough
  QCOMPARE(table.actions().size(), 1);
  table.selectAll();
  table.actions().first()->trigger();
  QCOMPARE(QApplication::clipboard()->text(), QString::fromUtf8("\"say \"\"x\"\"\"\ta;b\n\"two\nlines\"\tنص 🔥\n\"c\td\"\t"));
  table.setRowHidden(1, true); // nobody sees what a range takes in
  table.setColumnHidden(0, true);
  table.actions().first()->trigger();
  QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("a;b\n"));
}

void TestTables::namesAhead() {
  NetData net;
  for (const char *name : {"Node_B", "node_a", "Other", "NODE_C"})
    net.addElement(makeNode(name));
  net.addElement(makeEdge("node_pipe", "Node_B", "Other"));
  QCOMPARE(NameAid::elementNames(net, QStringLiteral("NODE_"), 10).join(QLatin1Char(' ')),
           QStringLiteral("node_a Node_B NODE_C node_pipe"));
  QCOMPARE(NameAid::elementNames(net, QStringLiteral("node_"), 2).size(), 2);
  QVERIFY(NameAid::elementNames(net, QStringLiteral("x"), 10).isEmpty());
  QCOMPARE(NameAid::propertyNames(net, QStringLiteral("n"), 10).join(QLatin1Char(' ')), QStringLiteral("name node1 node2"));

  QLineEdit field;
  NameAid::attach(field, [&net](const QString &text, int most) { return NameAid::elementNames(net, text, most); });
  QTest::keyClicks(&field, QStringLiteral("oth"));
  QCOMPARE(field.completer()->completionCount(), 1);
  QCOMPARE(field.completer()->currentCompletion(), QStringLiteral("Other"));
}

void TestTables::statistics() {
  const ValueStatistics s({4, 1, 3, 2, 10});
  QCOMPARE(s.count, 5);
  QCOMPARE(s.minimum, 1.0);
  QCOMPARE(s.maximum, 10.0);
  QCOMPARE(s.mean, 4.0);
  QCOMPARE(s.standardDeviation, std::sqrt(50.0 / 4));
  QCOMPARE(s.quantile(0.5), 3.0);
  QCOMPARE(s.quantile(0.25), 2.0);
  QCOMPARE(s.quantile(0.9), 7.6); // 4 + 0.6 * (10 - 4)
  int inBins = 0;
  for (const ValueStatistics::Bin &bin : s.bins)
    inBins += bin.count;
  QCOMPARE(inBins, 5); // the largest value too
  QCOMPARE(s.bins.back().to, 10.0);
}

void TestTables::statisticsOfOddColumns() {
  constexpr double Infinity = std::numeric_limits<double>::infinity();
  QCOMPARE(ValueStatistics({Infinity, std::nan("")}).count, 0);
  const ValueStatistics same({7, 7, 7});
  QCOMPARE(same.bins.size(), std::size_t(1));
  QCOMPARE(same.bins.front().count, 3);
  QCOMPARE(same.standardDeviation, 0.0);
  const ValueStatistics huge({1e308, 1e308, -1e308});
  QVERIFY(std::isfinite(huge.mean));
  std::vector<double> skewed(1000, 0.0); // no spread between the quartiles
  skewed.push_back(1e9);
  const ValueStatistics outlier(skewed);
  QVERIFY(outlier.bins.size() > 1 && outlier.bins.size() <= 60);
  QCOMPARE(outlier.bins.front().count, 1000);
}

void TestTables::findings() {
  NivraFindings panel;
  const QAbstractItemModelTester source(panel.findChild<FindingModel *>());
  auto *tree = panel.findChild<QTreeView *>();
  const QAbstractItemModel &model = *tree->model();
  const QAbstractItemModelTester shown(tree->model());
  const auto group = [&model](int row) {
    return model.index(row, FindingModel::TextColumn);
  };
  const auto cell = [&](int groupRow, int row, int column) {
    return model.index(row, column, group(groupRow));
  };
  const auto says = [&panel](const char *text) {
    const QList<QLabel *> labels = panel.findChildren<QLabel *>();
    return std::any_of(labels.cbegin(), labels.cend(), [&](const QLabel *label) {
      return label->isVisibleTo(&panel) && label->text().startsWith(QString::fromLatin1(text));
    });
  };
  QVERIFY(says("Nothing was found to be wrong."));
  Finding about;
  about.text = QStringLiteral("too fast");
  about.element = QStringLiteral("P1");
  Finding inFile;
  inFile.text = QStringLiteral("bad line");
  inFile.file = QStringLiteral("/x/net.geom.jsn");
  inFile.line = 12;
  inFile.text += QStringLiteral(" <b>x</b>");
  panel.setFindings({{QStringLiteral("Empty"), {}}, {QStringLiteral("Bounds"), {about}}});
  QVERIFY(says("1 finding") && !says("Nothing was found to be wrong."));
  panel.setFindings({{QStringLiteral("Reading"), {inFile, inFile}}, {QStringLiteral("Bounds"), {about}}});
  QCOMPARE(group(0).data().toString(), QStringLiteral("Reading (2)"));
  QVERIFY(tree->isExpanded(group(0)) && tree->isFirstColumnSpanned(1, QModelIndex()));
  QCOMPARE(cell(0, 0, FindingModel::FileColumn).data().toString(), QStringLiteral("net.geom.jsn:12"));
  QCOMPARE(cell(0, 0, FindingModel::TextColumn).data(Qt::ToolTipRole).toString(),
           QStringLiteral("<qt>bad line &lt;b&gt;x&lt;/b&gt;</qt>"));
  QCOMPARE(cell(1, 0, FindingModel::TextColumn).data(Qt::ToolTipRole).toString(), QStringLiteral("too fast"));

  const QSignalSpy wanted(&panel, &NivraFindings::elementWanted);
  for (int i = 0; i < 3; ++i)
    panel.showNext();
  QCOMPARE(tree->currentIndex(), cell(1, 0, FindingModel::TextColumn));
  QCOMPARE(wanted.count(), 1);
  panel.showNext(); // from the last to the first
  QCOMPARE(tree->currentIndex(), cell(0, 0, FindingModel::TextColumn));
  panel.show();
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                    tree->visualRect(cell(1, 0, FindingModel::FileColumn)).center());
  QCOMPARE(wanted.count(), 2);

  auto *filter = panel.findChild<QLineEdit *>();
  filter->setText(QStringLiteral("JSN:12"));
  QCOMPARE(model.rowCount(), 1);
  QVERIFY(says("2 of 3 findings") && tree->isExpanded(group(0)));
  filter->setText(QStringLiteral("nowhere"));
  QCOMPARE(model.rowCount(), 0);
  QVERIFY(says("No finding has the text of the filter."));
  panel.showNext(); // goes nowhere
  QCOMPARE(wanted.count(), 2);
  inFile.element = QStringLiteral("P2");
  panel.setFindings({{QStringLiteral("Reading"), {inFile, about}}});
  filter->setText(QStringLiteral("p2")); // of the elements
  QCOMPARE(group(0).data().toString(), QStringLiteral("Reading (1)"));
}

NIVRA_TEST(TestTables);
#include "tst_tables.moc"
