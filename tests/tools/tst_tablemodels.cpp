#include "search/searchresultsmodel.h"
#include "table/vectormodel.h"

#include <support/nivratest.h>

#include <QAbstractItemModelTester>
#include <QIcon>

namespace {

constexpr auto Reporting = QAbstractItemModelTester::FailureReportingMode::QtTest;

/// "name value" each.
std::vector<SearchRow> rowsOf(const std::vector<const char *> &texts) {
  std::vector<SearchRow> rows;
  for (const char *text : texts) {
    const QStringList parts = QString::fromLatin1(text).split(QLatin1Char(' '));
    rows.push_back({parts[0], QStringLiteral("n"), QStringLiteral("p"), parts[1], QStringLiteral("bar")});
  }
  return rows;
}

QString texts(const QAbstractItemModel &model, int column) {
  QStringList cells;
  for (int row = 0; row < model.rowCount(); ++row)
    cells.append(model.index(row, column).data().toString());
  return cells.join(QLatin1Char(' '));
}

} // namespace

/// The models below the tables, without the tables.
class TestTableModels : public QObject {
  Q_OBJECT

private slots:
  void searchResults();
  void replacedRowsStandAsIfSorted_data();
  void replacedRowsStandAsIfSorted();
  void vectors();
  void filtersMarkTheHeader();
};

void TestTableModels::searchResults() {
  SearchResultsModel model;
  const QAbstractItemModelTester tester(&model, Reporting);
  model.setRows(rowsOf({"N_10 5", "n_2 x", "N_1 5", "N_2 -1e3"}));
  QCOMPARE(texts(model, SearchResultsModel::NameColumn), QStringLiteral("N_1 n_2 N_2 N_10"));
  const QPersistentModelIndex kept = model.index(3, SearchResultsModel::ValueColumn); // of N_10
  model.sort(SearchResultsModel::ValueColumn, Qt::DescendingOrder);
  QCOMPARE(texts(model, SearchResultsModel::NameColumn), QStringLiteral("n_2 N_1 N_10 N_2")); // equal ones as before
  QCOMPARE(kept.row(), 2);
  QCOMPARE(kept.data(SearchResultsModel::ElementRole).toString(), QStringLiteral("N_10"));
  QCOMPARE(model.find(QStringLiteral("N_2")).row(), 0); // regardless of case
  QVERIFY(!model.find(QStringLiteral("N_")).isValid());
  model.sort(-1); // a header without an indicator
  QCOMPARE(kept.row(), 2);
  model.setRows({});
  QVERIFY(!kept.isValid());
  model.setRows(rowsOf({"A 1", "B 2"}));
  QCOMPARE(texts(model, SearchResultsModel::NameColumn), QStringLiteral("B A")); // sorted as before
}

void TestTableModels::replacedRowsStandAsIfSorted_data() {
  QTest::addColumn<int>("column");
  QTest::addColumn<Qt::SortOrder>("order");
  QTest::newRow("names") << int(SearchResultsModel::NameColumn) << Qt::AscendingOrder;
  QTest::newRow("names down") << int(SearchResultsModel::NameColumn) << Qt::DescendingOrder;
  QTest::newRow("values") << int(SearchResultsModel::ValueColumn) << Qt::AscendingOrder; // the element's rows lie apart
  QTest::newRow("values down") << int(SearchResultsModel::ValueColumn) << Qt::DescendingOrder;
  QTest::newRow("types") << int(SearchResultsModel::TypeColumn) << Qt::DescendingOrder; // all equal
}

void TestTableModels::replacedRowsStandAsIfSorted() {
  QFETCH(int, column);
  QFETCH(Qt::SortOrder, order);
  SearchResultsModel model;
  const QAbstractItemModelTester tester(&model, Reporting);
  model.setRows(rowsOf({"A 5", "B 1", "b 7", "B 3", "C 3", "D 9", "E open"}));
  model.sort(column, order);
  model.replace(QStringLiteral("B"), rowsOf({"C_2 3", "C_2 8", "C_2 0"}));
  const QString names = texts(model, SearchResultsModel::NameColumn);
  QVERIFY2(!names.contains(QLatin1Char('B')) && names.count(QStringLiteral("C_2")) == 3, qPrintable(names));
  QCOMPARE(model.rowCount(), 7);
  const QString values = texts(model, SearchResultsModel::ValueColumn);
  model.sort(column, order);
  QCOMPARE(texts(model, SearchResultsModel::NameColumn), names);
  QCOMPARE(texts(model, SearchResultsModel::ValueColumn), values);
  model.replace(QStringLiteral("nobody"), {});
  QCOMPARE(model.rowCount(), 7);
}

void TestTableModels::vectors() {
  VectorModel model;
  const QAbstractItemModelTester tester(&model, Reporting);
  model.setTitles({QStringLiteral("name\n(^N)")});
  QCOMPARE(model.headerData(0, Qt::Horizontal).toString(), QStringLiteral("name\n(^N)"));
  VectorRows::Row end{QStringLiteral("P_10"), QStringLiteral("p"), QStringLiteral("node1"), QStringLiteral("N_3"), QString(),
                      QStringLiteral("N"),    QStringLiteral("x")};
  VectorRows::Row length = end;
  length.name = QStringLiteral("P_9");
  length.property = QStringLiteral("length");
  length.numsort = VectorRows::padded(2);
  model.setRows({end, length});
  QCOMPARE(texts(model, VectorModel::NameColumn), QStringLiteral("P_9 P_10"));
  const auto element = [&model](int row, int column) {
    return model.index(row, column).data(VectorModel::ElementRole).toString();
  };
  QCOMPARE(element(1, VectorModel::NameColumn), QStringLiteral("P_10"));
  QCOMPARE(element(1, VectorModel::ValueColumn), QStringLiteral("N_3"));
  QVERIFY(element(1, VectorModel::ResultColumn).isEmpty());
  QVERIFY(element(0, VectorModel::ValueColumn).isEmpty()); // a length names nothing
  model.sort(VectorModel::NumsortColumn, Qt::DescendingOrder);
  QCOMPARE(texts(model, VectorModel::NameColumn), QStringLiteral("P_10 P_9"));
}

void TestTableModels::filtersMarkTheHeader() {
  SearchResultsModel model;
  const QAbstractItemModelTester tester(&model, Reporting);
  const QString title = model.headerData(1, Qt::Horizontal).toString();
  QVERIFY(model.setHeaderData(1, Qt::Horizontal, QStringLiteral("Filter: p"), Qt::ToolTipRole));
  QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString(), QStringLiteral("Filter: p"));
  QVERIFY(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isNull());
  QVERIFY(!model.setHeaderData(1, Qt::Horizontal, QStringLiteral("other"), Qt::DisplayRole));
  QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), title);
}

NIVRA_TEST(TestTableModels);
#include "tst_tablemodels.moc"
