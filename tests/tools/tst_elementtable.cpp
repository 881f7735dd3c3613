#include "elementtable/columnlist.h"
#include "elementtable/elementtablemodel.h"
#include "elementtable/propertycensus.h"
#include "elementtable/rowfilter.h"
#include "shared/tableexport.h"
#include "shared/workbookfile.h"

#include <base/generalsettings.h>
#include <base/settings.h>
#include <model/names.h>
#include <support/fulldisk.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtEndian>

#include <limits>
#include <memory>
#include <zlib.h>

namespace {

constexpr auto Reporting = QAbstractItemModelTester::FailureReportingMode::QtTest;

PropertyKey key(const char *name) {
  return PropertyKey::intern(name);
}

/// Nodes with pressures, temperatures and texts, one of them named like a formula, two pipes and a compressor.
std::unique_ptr<NetData> smallNetwork() {
  auto net = std::make_unique<NetData>();
  const auto add = [&net](std::initializer_list<std::pair<const char *, const char *>> properties) {
    net->addElement(makeElement(properties));
  };
  add({{"name", "N_10"}, {"type", "n"}, {"p", "50"}, {"t", "283.15"}, {"vis.layer", "west"}, {"comment", "=1+1"}});
  add({{"name", "N_2"}, {"type", "n"}, {"p", "7.5"}, {"t", "280.65"}, {"vis.layer", "east"}});
  add({{"name", "n_1"}, {"type", "n"}, {"p", "50"}, {"vis.layer", "west"}, {"comment", "two\nlines; \"quoted\""}});
  add({{"name", "N_3"}, {"type", "n"}, {"p", "-1e+30"}, {"comment", "none"}});
  add({{"name", "N_4"}, {"type", "n"}, {"p", "closed"}, {"vis.layer", "west"}});
  add({{"name", "P1"}, {"type", "p"}, {"node1", "N_2"}, {"node2", "N_10"}, {"length", "1500"}, {"q", "3"}});
  add({{"name", "P2"}, {"type", "p"}, {"node1", "N_2"}, {"node2", "N_3"}, {"length", "20"}, {"q", "-1"}});
  add({{"name", "K1"}, {"type", "c"}, {"node1", "N_2"}, {"node2", "N_3"}, {"length", "20"}, {"q", "4"}});
  return net;
}

/// The first cells of the lines, and what stands in another column.
QString shown(const ElementTableModel &model, int column = 0) {
  QStringList texts;
  for (int row = 0; row < model.rowCount(); ++row)
    texts.append(model.index(row, column).data().toString());
  return texts.join(QLatin1Char('|'));
}

/// A part of an archive, unpacked.
QByteArray part(const QByteArray &archive, const QByteArray &name) {
  for (int at = 0; (at = archive.indexOf("PK\1\2", at)) >= 0; at += 4) {
    const auto number = [&archive](int position) {
      return static_cast<int>(qFromLittleEndian<quint32>(archive.constData() + position));
    };
    const auto small = [&archive](int position) {
      return int(qFromLittleEndian<quint16>(archive.constData() + position));
    };
    if (archive.mid(at + 46, small(at + 28)) != name)
      continue;
    const int header = number(at + 42);
    QByteArray packed = archive.mid(header + 30 + small(header + 26) + small(header + 28), number(at + 20));
    QByteArray content(number(at + 24), Qt::Uninitialized);
    z_stream stream{};
    inflateInit2(&stream, -MAX_WBITS);
    stream.next_in = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_in = static_cast<uInt>(packed.size());
    stream.next_out = reinterpret_cast<Bytef *>(content.data());
    stream.avail_out = static_cast<uInt>(content.size());
    inflate(&stream, Z_FINISH);
    inflateEnd(&stream);
    return content;
  }
  return QByteArray();
}

/// What a spreadsheet makes of a sheet: "A1=text" and "B1:number" in the order of the cells; anything else stands out.
QStringList cellsOf(const QByteArray &sheet) {
  QStringList cells;
  QXmlStreamReader xml(sheet);
  QString cell;
  QString type;
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement())
      continue;
    if (xml.name() == QLatin1String("c")) {
      cell = xml.attributes().value(QLatin1String("r")).toString();
      type = xml.attributes().value(QLatin1String("t")).toString();
    } else if (xml.name() == QLatin1String("v")) {
      cells.append(cell + QLatin1Char(type.isEmpty() ? ':' : '?') + xml.readElementText());
    } else if (xml.name() == QLatin1String("t")) {
      cells.append(cell + QLatin1Char('=') + xml.readElementText());
    } else if (xml.name() == QLatin1String("f")) {
      cells.append(cell + QStringLiteral(" is a formula"));
    }
  }
  return xml.hasError() ? QStringList{xml.errorString()} : cells;
}

TableExport smallTable() {
  TableExport table;
  table.headers = QStringList{QStringLiteral("name"), QStringLiteral("p [bar]")};
  table.rows = 4;
  table.value = [](int row, int column) {
    const std::vector<std::pair<QString, QVariant>> rows{{QStringLiteral("=1+1"), 0.1},
                                                         {QStringLiteral("a;b, \"c\""), 123456789.12345678},
                                                         {QStringLiteral("two\nlines\x01"), -1e-7},
                                                         {QStringLiteral("007"), QVariant(QStringLiteral("closed"))}};
    return column == 0 ? QVariant(rows[fromQt(row)].first) : rows[fromQt(row)].second;
  };
  table.widths = {12, 9};
  return table;
}

} // namespace

/// The element table without its window.
class TestElementTable : public QObject {
  Q_OBJECT

private slots:
  void filters_data();
  void filters();
  void faultsOfFilters_data();
  void faultsOfFilters();
  void census();
  void columnsHaveUnits();
  void sortsAsPeopleCount();
  void filtersSeveralColumns();
  void groupsAndSumsUp();
  void followsChanges();
  void ordersColumns();
  void writesText_data();
  void writesText();
  void writesTheDigitsForFiles();
  void writesWorkbooks();
  void fullDisksAreTold();
};

void TestElementTable::filters_data() {
  QTest::addColumn<QString>("filter");
  QTest::addColumn<QString>("passing"); // of the cells 7.5, 50, -3, 79.69998, open, N_10, n_2 and an empty one
  const auto row = [](const char *filter, const char *passing) {
    QTest::newRow(filter) << QString::fromLatin1(filter) << QString::fromLatin1(passing);
  };
  row(">7.5", "50 79.69998");
  row(" >= 7,5 ", "7.5 50 79.69998");
  row("<0", "-3");
  row("5..50", "7.5 50");
  row("-5 .. 0", "-3");
  row("..7.5", "7.5 -3");
  row("60..", "79.69998");
  row("=79.7", "79.69998"); // as it reads
  row("=OPEN", "open");
  row("=", "");
  row("<>", "7.5 50 -3 79.69998 open N_10 n_2");
  row("<>open", "7.5 50 -3 79.69998 N_10 n_2 ");
  row("!=50", "7.5 -3 79.69998 open N_10 n_2 ");
  row("n_", "N_10 n_2");
  row("5", "7.5 50");
  row("<n_10", "n_2"); // as people count
  row(">5 & <60", "7.5 50");
  row("<0 | open | >60 & <70", "-3 open");
  row("1.2.3", "");
  row("a..b", "");
}

void TestElementTable::filters() {
  QFETCH(QString, filter);
  QFETCH(QString, passing);
  const RowFilter asked(filter, false);
  QCOMPARE(asked.fault(), QString());
  QStringList passed;
  for (const char *cell : {"7.5", "50", "-3", "79.69998", "open", "N_10", "n_2", ""}) {
    const QString text = QString::fromLatin1(cell);
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (asked.passes(isNumber ? number : std::numeric_limits<double>::quiet_NaN(), [&text] { return text; }))
      passed.append(text);
  }
  QCOMPARE(passed.join(QLatin1Char(' ')), passing);
}

void TestElementTable::faultsOfFilters_data() {
  QTest::addColumn<QString>("filter");
  for (const char *filter : {">", "<=  ", ">abc", "5..x", "20..5", "..", "<5 & >"})
    QTest::newRow(filter) << QString::fromLatin1(filter);
}

void TestElementTable::faultsOfFilters() {
  QFETCH(QString, filter);
  const RowFilter asked(filter, true);
  QVERIFY(!asked.fault().isEmpty());
  QVERIFY(asked.passes(1.0, [] { return QString(); })); // nothing vanishes while one types
}

void TestElementTable::census() {
  const auto net = smallNetwork();
  net->element(QStringLiteral("P1"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  net->element(QStringLiteral("P2"))->set(QStringLiteral("Q"), QStringLiteral("5")); // another spelling
  const PropertyCensus census(*net);
  QStringList types;
  for (const PropertyCensus::Type &type : census.types())
    types.append(QStringLiteral("%1 %2").arg(type.title).arg(type.count));
  QCOMPARE(types, (QStringList{QStringLiteral("Nodes 5"), QStringLiteral("Pipes 2"), QStringLiteral("Compressors 1")}));
  QStringList properties;
  for (const PropertyCensus::Property &property : census.properties({QStringLiteral("p"), QStringLiteral("c")}))
    properties.append(QStringLiteral("%1 %2").arg(property.key.name()).arg(property.count));
  QCOMPARE(properties.join(QLatin1Char(',')), QStringLiteral("length 3,name 3,node1 3,node2 3,q 3,type 3"));
}

void TestElementTable::columnsHaveUnits() {
  const auto net = smallNetwork();
  ElementTableModel model(*net);
  model.show({QStringLiteral("n")}, {key("t"), key("p")});
  QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("t [°C]"));
  QCOMPARE(model.headerData(2, Qt::Horizontal).toString(), QStringLiteral("p [bar]"));
  QCOMPARE(shown(model), QStringLiteral("n_1|N_2|N_3|N_4|N_10"));
  QCOMPARE(shown(model, 1), QStringLiteral("|7.5|||10")); // no noise in the last digits
  QCOMPARE(shown(model, 2), QStringLiteral("50|7.5||closed|50"));
  QCOMPARE(model.index(4, 1).data(ElementTableModel::ValueRole), QVariant(10.0));
  QCOMPARE(model.index(3, 2).data(ElementTableModel::ValueRole), QVariant(QStringLiteral("closed")));
  model.show({QStringLiteral("p"), QStringLiteral("c")}, {key("length"), key("type")});
  QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("length [km]"));
  QCOMPARE(shown(model, 1), QStringLiteral("20|1.5|0.02")); // that of the compressor has no unit
  QCOMPARE(shown(model, 2), QStringLiteral("compressor|pipe|pipe"));
}

void TestElementTable::sortsAsPeopleCount() {
  const auto net = smallNetwork();
  ElementTableModel model(*net);
  const QAbstractItemModelTester tester(&model, Reporting);
  model.show({QStringLiteral("n")}, {key("p"), key("vis.layer")});
  model.sort(0, Qt::DescendingOrder);
  QCOMPARE(shown(model), QStringLiteral("N_10|N_4|N_3|N_2|n_1"));
  model.sort(1);
  QCOMPARE(shown(model), QStringLiteral("N_2|N_10|n_1|N_4|N_3")); // 50 twice, in the order before; texts, then nothing
  model.sort(1, Qt::DescendingOrder);
  QCOMPARE(shown(model), QStringLiteral("N_4|N_10|n_1|N_2|N_3")); // nothing stays last
  model.sort(2);
  QCOMPARE(shown(model), QStringLiteral("N_2|N_4|N_10|n_1|N_3"));
  model.setColumns({key("t")});
  QCOMPARE(model.sortedColumn(), -1);
  QCOMPARE(shown(model), QStringLiteral("N_2|N_4|N_10|n_1|N_3"));
}

void TestElementTable::filtersSeveralColumns() {
  const auto net = smallNetwork();
  ElementTableModel model(*net);
  const QAbstractItemModelTester tester(&model, Reporting);
  model.show({QStringLiteral("n")}, {key("p"), key("vis.layer")});
  model.setFilter(2, QStringLiteral("west"));
  QCOMPARE(shown(model), QStringLiteral("n_1|N_4|N_10"));
  model.setFilter(1, QStringLiteral(">10"));
  QCOMPARE(shown(model), QStringLiteral("n_1|N_10"));
  model.setFilter(0, QStringLiteral(">x..")); // no column of numbers: a comparison with a text
  QCOMPARE(shown(model), QString());
  model.setFilter(0, QString());
  model.setFilter(1, QStringLiteral(">"));
  QVERIFY(!model.fault(1).isEmpty());
  QCOMPARE(shown(model), QStringLiteral("n_1|N_4|N_10")); // the others hold
  model.setColumns({key("p")});
  QCOMPARE(model.rowCount(), 5); // what cannot be seen filters nothing
  model.setFilters({});
  Selection selection;
  selection.nodes = {QStringLiteral("N_3"), QStringLiteral("N_2"), QStringLiteral("gone")};
  model.restrictTo(selection);
  QCOMPARE(shown(model), QStringLiteral("N_2|N_3"));
  model.restrictTo(std::nullopt);
  QCOMPARE(model.rowCount(), 5);
}

void TestElementTable::groupsAndSumsUp() {
  const auto net = smallNetwork();
  ElementTableModel model(*net);
  const QAbstractItemModelTester tester(&model, Reporting);
  model.show({QStringLiteral("n")}, {key("p"), key("vis.layer")});
  model.groupBy(ElementTableModel::Grouping::Property, QStringLiteral("vis.layer"));
  QCOMPARE(shown(model), QStringLiteral("east (1)|count|sum|mean|min|max|N_2|west (3)|count|sum|mean|min|max|n_1|N_4|N_10|"
                                        "(empty) (1)|count|sum|mean|min|max|N_3"));
  QCOMPARE(shown(model, 1), QStringLiteral("|1|7.5|7.5|7.5|7.5|7.5||2|100|50|50|50|50|closed|50|||||||"));
  model.setFigures({ColumnFigures::Mean});
  model.setCollapsed(2, true); // by a row of the group
  QCOMPARE(shown(model), QStringLiteral("east (1)|mean|west (3)|mean|n_1|N_4|N_10|(empty) (1)|mean|N_3"));
  QVERIFY(model.isCollapsed(0) && !model.isCollapsed(4));
  QCOMPARE(model.elementsOf(2), (QStringList{QStringLiteral("n_1"), QStringLiteral("N_4"), QStringLiteral("N_10")}));
  model.sort(2, Qt::DescendingOrder);
  QCOMPARE(shown(model), QStringLiteral("west (3)|mean|n_1|N_4|N_10|east (1)|mean|(empty) (1)|mean|N_3"));
  model.collapseAll(true);
  QCOMPARE(shown(model), QStringLiteral("west (3)|mean|east (1)|mean|(empty) (1)|mean"));
  model.setFilter(1, QStringLiteral("..10"));
  QCOMPARE(shown(model), QStringLiteral("east (1)|mean"));
  model.groupBy(ElementTableModel::Grouping::All);
  model.setFilters({});
  QCOMPARE(shown(model, 1), QStringLiteral("|35.833333333333336|50|closed|50|7.5|"));
}

void TestElementTable::followsChanges() {
  const auto net = smallNetwork();
  ElementTableModel model(*net);
  const QAbstractItemModelTester tester(&model, Reporting);
  model.show({QStringLiteral("n")}, {key("p")});
  model.sort(1);
  Selection selection;
  selection.nodes = {QStringLiteral("N_2")};
  model.mark(selection);
  QVERIFY(model.isMarked(0));
  net->element(QStringLiteral("N_2"))->set(QStringLiteral("p"), QStringLiteral("99"));
  net->element(QStringLiteral("N_3"))->erase(QStringLiteral("p"));
  net->element(QStringLiteral("N_4"))->set(QStringLiteral("type"), QStringLiteral("d"));
  model.refresh();
  QCOMPARE(shown(model), QStringLiteral("n_1|N_10|N_2|N_3"));
  QCOMPARE(model.lineOf(QStringLiteral("n_2")), 2);
  QVERIFY(model.isMarked(2) && !model.isMarked(0));
  model.clear();
  net->clear();
  QCOMPARE(model.rowCount() + model.columnCount(), 0);
}

void TestElementTable::ordersColumns() {
  ColumnList list;
  const QAbstractItemModelTester tester(&list, Reporting);
  const QSignalSpy changes(&list, &ColumnList::columnsChanged);
  std::vector<ColumnList::Entry> entries(4);
  entries[0].key = key("length");
  entries[1].key = key("p");
  entries[2].key = key("q");
  entries[3].key = key("t");
  list.setEntries(entries, {key("t"), key("p")});
  const auto order = [&list] {
    QStringList names;
    for (int row = 0; row < list.rowCount(); ++row)
      names.append(list.index(row, 0).data().toString());
    return names.join(QLatin1Char(' '));
  };
  QCOMPARE(order(), QStringLiteral("t p length q"));
  QVERIFY(list.setData(list.index(3, 0), Qt::Checked, Qt::CheckStateRole));
  QCOMPARE(order(), QStringLiteral("t p q length"));
  list.move(2, 0);
  QCOMPARE(order(), QStringLiteral("q t p length"));
  const std::unique_ptr<QMimeData> dragged(list.mimeData({list.index(0, 0)}));
  list.dropMimeData(dragged.get(), Qt::MoveAction, 2, 0, QModelIndex());
  QCOMPARE(order(), QStringLiteral("t q p length"));
  QVERIFY(list.setData(list.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
  QCOMPARE(order(), QStringLiteral("q p length t"));
  list.move(3, 0); // no column
  QCOMPARE(order(), QStringLiteral("q p length t"));
  QCOMPARE(changes.count(), 4);
  QCOMPARE(list.shown().size(), 2U);
}

void TestElementTable::writesText_data() {
  QTest::addColumn<int>("format");
  QTest::addColumn<QByteArray>("content");
  QTest::newRow("point") << int(TableExport::Format::PointCsv)
                         << QByteArray("\xef\xbb\xbfname,p [bar]\n'=1+1,0.1\n\"a;b, \"\"c\"\"\",123456789.12345678\n"
                                       "\"two\nlines\x01\",-1e-07\n007,closed\n");
  QTest::newRow("comma") << int(TableExport::Format::CommaCsv)
                         << QByteArray("\xef\xbb\xbfname;p [bar]\n'=1+1;0,1\n\"a;b, \"\"c\"\"\";123456789,12345678\n"
                                       "\"two\nlines\x01\";-1e-07\n007;closed\n");
  QTest::newRow("tabulators") << int(TableExport::Format::Tabulators)
                              << QByteArray("name\tp [bar]\n'=1+1\t0.1\n\"a;b, \"\"c\"\"\"\t123456789.12345678\n"
                                            "\"two\nlines\x01\"\t-1e-07\n007\tclosed\n");
}

void TestElementTable::writesText() {
  QFETCH(int, format);
  QFETCH(QByteArray, content);
  const QTemporaryDir folder;
  QString reason;
  QVERIFY2(smallTable().save(folder.filePath(QStringLiteral("t")), TableExport::Format(format), &reason),
           qPrintable(reason));
  QCOMPARE(SmallFiles::contents(folder.filePath(QStringLiteral("t"))), content);
}

void TestElementTable::writesTheDigitsForFiles() {
  GeneralSettings &settings = GeneralSettings::instance();
  QVERIFY(settings.setValue(Settings::NumberDigitsInFiles.key(), QStringLiteral("4")));
  QVERIFY(settings.setValue(Settings::ThousandsInFiles.key(), QStringLiteral("other sign")));
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("t"));
  QString reason;
  QVERIFY2(smallTable().save(path, TableExport::Format::PointCsv, &reason), qPrintable(reason));
  const QByteArray saved = SmallFiles::contents(path);
  const QString copied = smallTable().tabbed(true);
  settings.reset();
  QVERIFY2(saved.contains("\"123,456,789\"\n"), saved.constData());
  QVERIFY(copied.contains(QStringLiteral("123456789.12345678")));
}

void TestElementTable::writesWorkbooks() {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("t.xlsx"));
  QString reason;
  TableExport table = smallTable();
  QVERIFY2(table.save(path, TableExport::Format::Workbook, &reason), qPrintable(reason));
  const QByteArray archive = SmallFiles::contents(path);
  const QByteArray sheet = part(archive, "xl/worksheets/sheet1.xml");
  QStringList cells = cellsOf(sheet);
  QCOMPARE(cells.size(), 10);
  QCOMPARE(cells[5].section(QLatin1Char(':'), 1).toDouble(), 123456789.12345678);
  cells.removeAt(5);
  cells.replaceInStrings(QStringLiteral("1E-07"), QStringLiteral("1e-07"));
  QCOMPARE(cells, (QStringList{QStringLiteral("A1=name"), QStringLiteral("B1=p [bar]"), QStringLiteral("A2==1+1"),
                               QStringLiteral("B2:0.1"), QStringLiteral("A3=a;b, \"c\""), QStringLiteral("A4=two\nlines"),
                               QStringLiteral("B4:-1e-07"), QStringLiteral("A5=007"), QStringLiteral("B5=closed")}));
  QVERIFY(sheet.contains("state=\"frozen\"") && sheet.contains("<cols>"));
  QVERIFY(part(archive, "xl/styles.xml").contains("<b/>"));
  QVERIFY(WorkbookFile::isWhole(archive));
  GeneralSettings &settings = GeneralSettings::instance();
  QVERIFY(settings.setValue(Settings::NumberDigitsInFiles.key(), QStringLiteral("12")));
  QVERIFY(settings.setValue(Settings::ThousandsInFiles.key(), QStringLiteral("space")));
  const QString other = folder.filePath(QStringLiteral("rounded.xlsx"));
  const bool isSaved = table.save(other, TableExport::Format::Workbook, &reason);
  settings.reset();
  QVERIFY2(isSaved, qPrintable(reason));
  const QByteArray rounded = SmallFiles::contents(other); // a spreadsheet shows fewer digits than it has
  QVERIFY(part(rounded, "xl/styles.xml").contains("formatCode=\"#,##0.000\""));
  QCOMPARE(cellsOf(part(rounded, "xl/worksheets/sheet1.xml"))[5].section(QLatin1Char(':'), 1).toDouble(),
           123456789.12345678);
  QVERIFY(!WorkbookFile::isWhole(archive.left(archive.size() - 1)) && !WorkbookFile::isWhole(QByteArray()));
  table.value = [](int, int) {
    return QVariant(QString(40000, QLatin1Char('x')));
  };
  QVERIFY(!table.save(path, TableExport::Format::Workbook, &reason));
  QVERIFY2(reason.contains(QStringLiteral("row 1")), qPrintable(reason));
  table.rows = 2000000;
  QVERIFY(!table.save(path, TableExport::Format::Workbook, &reason));
  QVERIFY2(reason.contains(QStringLiteral("1048575")), qPrintable(reason));
  QCOMPARE(SmallFiles::contents(path), archive); // what was there stays
}

void TestElementTable::fullDisksAreTold() {
  const FullDisk disk;
  if (!disk.isMounted())
    QSKIP("a disk of its own cannot be mounted");
  TableExport table = smallTable();
  table.rows = 20000;
  table.value = [](int row, int column) {
    return QVariant(row * 1.000001 + column);
  };
  QString reason;
  for (const auto format : {TableExport::Format::PointCsv, TableExport::Format::Workbook}) {
    const QString path = disk.path(QStringLiteral("t"));
    QVERIFY(!table.save(path, format, &reason));
    QVERIFY(!QFile::exists(path));
    QVERIFY2(reason.contains(path), qPrintable(reason));
  }
  const QTemporaryDir folder;
  const QByteArray before = qgetenv("TMPDIR");
  qputenv("TMPDIR", QFile::encodeName(disk.path(QString())));
  const bool isSaved = table.save(folder.filePath(QStringLiteral("t.xlsx")), TableExport::Format::Workbook, &reason);
  before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
  QVERIFY(!isSaved); // the library does not notice
  QVERIFY(!QFile::exists(folder.filePath(QStringLiteral("t.xlsx"))));
}

NIVRA_TEST(TestElementTable);
#include "tst_elementtable.moc"
