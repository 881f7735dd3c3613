#include "shared/csvfield.h"
#include "table/vectorplot.h"

#include <base/generalsettings.h>
#include <base/settings.h>
#include <support/contextmenu.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/nivravectable.h>
#include <tools/tablemenu.h>

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>

#include <map>

class TestVectorTable : public QObject {
  Q_OBJECT

private slots:
  void init();
  void rowsOfAProperty();
  void rowsOfACategory_data();
  void rowsOfACategory();
  void numericalSort();
  void exportsRows();
  void cellsAreNoFormulas_data();
  void cellsAreNoFormulas();
  void sortsAsPeopleCount();
  void copySaveAndPlotHoldWhatIsShown();
  void meanAndMedianStandApart_data();
  void meanAndMedianStandApart();
  void filtersEndWithTheList();
  void machinesOpenTheirMaps();
  void tableFollowsItsChoices();
  void clicksMarkElements();

private:
  QStringList names(const VectorRows::Request &request) {
    VectorRows rows(*m_net);
    QStringList list;
    for (const VectorRows::Row &row : rows.build(request))
      list.append(row.name + QLatin1Char('=') + row.result);
    return list;
  }
  std::unique_ptr<NetData> m_net;
};

void TestVectorTable::init() {
  m_net = std::make_unique<NetData>();
  const std::pair<const char *, const char *> nodes[] = {{"A", "10"}, {"B", "9"}, {"C", "0"}};
  for (const auto &[name, p] : nodes) {
    element node = makeNode(name);
    node.set(QStringLiteral("p"), QString::fromLatin1(p));
    m_net->addElement(node);
  }
  element edge = makeEdge("AB", "A", "B");
  edge.set(QStringLiteral("text"), QStringLiteral("say \"x\";"));
  m_net->addElement(edge);
}

void TestVectorTable::rowsOfAProperty() {
  VectorRows::Request request;
  request.property = QStringLiteral("p");
  QCOMPARE(names(request).join(QLatin1Char(' ')), QStringLiteral("A=10 B=9 C=0"));
  request.onlyNonZero = true;
  QCOMPARE(names(request).join(QLatin1Char(' ')), QStringLiteral("A=10 B=9"));
  m_net->selection().nodes = {QStringLiteral("B"), QStringLiteral("gone")};
  request.onlySelection = true;
  QCOMPARE(names(request).join(QLatin1Char(' ')), QStringLiteral("B=9"));
  request.property = QStringLiteral("P"); // exactly
  QVERIFY(names(request).isEmpty());
}

void TestVectorTable::rowsOfACategory_data() {
  QTest::addColumn<QStringList>("patterns"); // name, type, property, value or formula
  QTest::addColumn<QString>("rows");
  const auto row = [](const char *name, const char *patterns, const char *rows) {
    QTest::newRow(name) << QString::fromLatin1(patterns).split(QLatin1Char(';')) << QString::fromLatin1(rows);
  };
  row("patterns", "^[ab]$;n;^p$;^1", "A=10");
  row("formula", ";n;^name$;p@ELE*2", "A=20 B=18 C=0");
  row("a formula that fails for some", ";;^name$;p@ELE+1", "A=11 B=10 C=1");
  row("a formula that cannot be parsed", ";;^name$;p@ELE+", "");
  row("never searched", ";;isSearchResult;", "");
}

void TestVectorTable::rowsOfACategory() {
  QFETCH(QStringList, patterns);
  QFETCH(QString, rows);
  m_net->element(QStringLiteral("A"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  const Category category{QStringLiteral("c"), patterns[0], patterns[1], patterns[2], patterns[3], false};
  VectorRows::Request request;
  request.usesProperty = false;
  request.category = CategoryFile::toMap({category}).first();
  QCOMPARE(names(request).join(QLatin1Char(' ')), rows);
}

void TestVectorTable::numericalSort() {
  std::vector<VectorRows::Row> rows(3);
  rows[0].value = QStringLiteral("10");
  rows[1].value = QStringLiteral("9");
  rows[2].value = QStringLiteral("abc");
  VectorRows::sortNumerically(rows);
  QCOMPARE(rows[0].value, QStringLiteral("9"));
  QCOMPARE(rows[0].numsort, QStringLiteral("        1"));
  QCOMPARE(rows[2].numsort, QStringLiteral("x"));
}

void TestVectorTable::exportsRows() {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  const VectorRows::Exported table{
      {QStringLiteral("name\n(a)"), QStringLiteral("value"), QStringLiteral("note"), QStringLiteral("other")},
      {{QStringLiteral("A.1"), QStringLiteral("1.5"), QStringLiteral("say \"ü\""), QStringLiteral("-1.5e-3")}},
      {1, 3}};
  QVERIFY(GeneralSettings::instance().setValue(Settings::UseComma.key(), QStringLiteral("1")));
  const bool isWritten = VectorRows::write(buffer, table);
  GeneralSettings::instance().reset();
  QVERIFY(isWritten);
  QCOMPARE(buffer.data(),
           QByteArray("\"name (a)\";\"value\";\"note\";\"other\";\n\"A.1\";\"1,5\";\"say \"\"ü\"\"\";\"-1,5e-3\";\n"));
}

void TestVectorTable::cellsAreNoFormulas_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<QString>("field");
  const auto row = [](const char *text, const char *field) {
    QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(field);
  };
  row("=1+1", "\"'=1+1\";");
  row("@SUM(1)", "\"'@SUM(1)\";");
  row("+cmd|' /C calc'!A0", "\"'+cmd|' /C calc'!A0\";");
  row("-2+3", "\"'-2+3\";");
  row("-5,3,1", "\"'-5,3,1\";");
  row(" =1", "\"' =1\";");
  row("\t=1", "\"'\t=1\";");
  row("=say \"x\"", "\"'=say \"\"x\"\"\";");
  row("-5", "\"-5\";");
  row("-5,3", "\"-5,3\";");
  row("+1.5E-07", "\"+1.5E-07\";");
  row("-.5", "\"-.5\";");
  row("-1.234.567,25", "\"-1.234.567,25\";");
  row("a=b", "\"a=b\";");
  row("", "\"\";");
}

void TestVectorTable::cellsAreNoFormulas() {
  QFETCH(QString, text);
  QFETCH(QString, field);
  QCOMPARE(CsvField::quoted(text) + QLatin1Char(';'), field);
}

namespace {

QStringList column(const QTableView &table, int column) {
  QStringList texts;
  for (int row = 0; row < table.model()->rowCount(); ++row)
    texts.append(table.model()->index(row, column).data().toString());
  return texts;
}

QByteArray contentOf(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void TestVectorTable::sortsAsPeopleCount() {
  for (const auto &[name, k] : std::initializer_list<std::pair<const char *, const char *>>{
           {"S_10", "89.6"}, {"S_9", "9.6"}, {"s_1", "open"}, {"S_2", "-1e3"}, {"S_11", "9.4"}}) {
    element node = makeNode(name);
    node.set(QStringLiteral("own"), QString::fromLatin1(k));
    m_net->addElement(node);
  }
  NivraVecTable panel(*m_net);
  panel.show();
  auto *table = panel.findChild<QTableView *>();
  panel.findChild<QComboBox *>(QStringLiteral("comboBoxProp"))->setCurrentText(QStringLiteral("own"));
  QCOMPARE(column(*table, 0).join(QLatin1Char(' ')), QStringLiteral("s_1 S_2 S_9 S_10 S_11"));
  const auto clickHeader = [table](int section) {
    QHeaderView *header = table->horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(header->sectionViewportPosition(section) + 20, header->height() / 2));
  };
  clickHeader(3);
  QCOMPARE(column(*table, 3).join(QLatin1Char(' ')), QStringLiteral("-1e3 9.4 9.6 89.6 open"));
  clickHeader(0);
  QCOMPARE(column(*table, 0).join(QLatin1Char(' ')), QStringLiteral("s_1 S_2 S_9 S_10 S_11"));
}

void TestVectorTable::copySaveAndPlotHoldWhatIsShown() {
  GeneralSettings::instance().setValue(QStringLiteral("use comma"), QStringLiteral("1"));
  m_net->element(QStringLiteral("A"))->set(QStringLiteral("p"), QStringLiteral("10.5000000001"));
  NivraVecTable panel(*m_net);
  panel.show();
  auto *table = panel.findChild<QTableView *>();
  panel.on_pushButtonUpdate_clicked();
  panel.findChild<TableMenu *>()->setFilter(3, QStringLiteral("> 5"));
  table->setColumnHidden(1, true);
  QVERIFY(panel.findChild<QLabel *>(QStringLiteral("labelCount"))
              ->text()
              .contains(QStringLiteral("2 of 3 rows, filter: value > 5")));

  const QTemporaryDir folder;
  QString reason;
  QVERIFY2(panel.save(folder.filePath(QStringLiteral("t.csv")), &reason), qPrintable(reason));
  QCOMPARE(contentOf(folder.filePath(QStringLiteral("t.csv"))),
           QByteArray("\"name\";\"property\";\"value\";\"unit\";\"result (p)\";\"numsort\";\n"
                      "\"B\";\"p\";\"9\";\"bar\";\"9\";\"2\";\n"
                      "\"A\";\"p\";\"10,5000000001\";\"bar\";\"10,5000000001\";\"3\";\n"));
  QVERIFY(!panel.save(folder.filePath(QStringLiteral("none/t.csv")), &reason));
  QVERIFY(reason.contains(QStringLiteral("none/t.csv")));

  table->selectAll();
  panel.findChild<QAction *>(QStringLiteral("actionCopy_selectedItems"))->trigger();
  QCOMPARE(QApplication::clipboard()->text().section(QLatin1Char('\n'), 1),
           QStringLiteral("A\tp\t10.5000000001\tbar\t10.5000000001\t        3"));
  const auto plotted = [&panel] {
    panel.setCurrentIndex(1);
    std::size_t count = 0;
    for (const QwtPlot *plot : panel.findChildren<QwtPlot *>())
      for (const QwtPlotItem *item : plot->itemList(QwtPlotItem::Rtti_PlotCurve))
        count += static_cast<const QwtPlotCurve *>(item)->dataSize();
    panel.setCurrentIndex(0);
    return count;
  };
  QCOMPARE(plotted(), std::size_t(2)); // of the selection, which spans the hidden row
  table->clearSelection();
  QCOMPARE(plotted(), std::size_t(2));
}

void TestVectorTable::meanAndMedianStandApart_data() {
  QTest::addColumn<double>("last"); // of 1, 5 and this number
  QTest::newRow("median on the left") << 30.0;
  QTest::newRow("median on the right") << 5.5;
}

/// Each name stands on the side of its line that is turned away from the other line.
void TestVectorTable::meanAndMedianStandApart() {
  QFETCH(double, last);
  VectorPlot plot;
  plot.show(QStringLiteral("p"), {{1, 1.0}, {2, 5.0}, {3, last}}, QStringLiteral("all rows"));
  std::map<QString, const QwtPlotMarker *> markers;
  for (const QwtPlot *each : plot.findChildren<QwtPlot *>())
    for (const QwtPlotItem *item : each->itemList(QwtPlotItem::Rtti_PlotMarker)) {
      const auto *marker = static_cast<const QwtPlotMarker *>(item);
      markers[marker->label().text()] = marker;
    }
  const QwtPlotMarker *mean = markers[QStringLiteral("mean")];
  const QwtPlotMarker *median = markers[QStringLiteral("median")];
  QVERIFY(mean != nullptr && median != nullptr);
  const bool isMeanLeft = mean->xValue() < median->xValue();
  QCOMPARE(mean->labelAlignment().testFlag(Qt::AlignLeft), isMeanLeft);
  QCOMPARE(median->labelAlignment().testFlag(Qt::AlignLeft), !isMeanLeft);
}

void TestVectorTable::filtersEndWithTheList() {
  NivraVecTable panel(*m_net);
  panel.show();
  auto *menu = panel.findChild<TableMenu *>();
  auto *label = panel.findChild<QLabel *>(QStringLiteral("labelCount"));
  panel.on_pushButtonUpdate_clicked();
  menu->setFilter(3, QStringLiteral("> 5"));
  menu->setFilter(3, QStringLiteral("> 4.5")); // leaves the same rows
  QVERIFY2(label->text().contains(QStringLiteral("> 4.5")) && menu->shownRows() == 2, qPrintable(label->text()));
  panel.on_pushButtonUpdate_clicked(); // the same list
  QCOMPARE(menu->shownRows(), 2);
  const Category nodes{QStringLiteral("Cat2"), QString(), QStringLiteral("^n$"), QStringLiteral("^name$"), QString(), false};
  panel.on_updateCats(CategoryFile::toMap({nodes}));
  panel.on_showCat(QStringLiteral("Cat2"));
  QCOMPARE(label->text(), QStringLiteral("3 rows"));
  menu->setFilter(0, QStringLiteral("A"));
  panel.on_pushButtonClose_clicked();
  panel.show();
  QCOMPARE(label->text(), QStringLiteral("3 rows"));
}

void TestVectorTable::machinesOpenTheirMaps() {
  m_net->addElement(makeEdge("K", "A", "B", "c"));
  NivraVecTable panel(*m_net);
  panel.on_updateCats(CategoryFile::toMap(
      {{QStringLiteral("edges"), QString(), QStringLiteral("^[cp]$"), QStringLiteral("^name$"), QString(), false}}));
  panel.on_showCat(QStringLiteral("edges"));
  auto *table = panel.findChild<QTableView *>();
  auto *open = panel.findChild<QAction *>(QStringLiteral("actionOpenCharacteristics"));
  QCOMPARE(column(*table, 0), (QStringList{QStringLiteral("AB"), QStringLiteral("K")}));
  const auto click = [table](int row) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(row, 0)).center());
  };
  click(0);
  QVERIFY(!ContextMenu::texts(*table).contains(open->text()));
  click(1);
  QVERIFY(ContextMenu::texts(*table).contains(open->text()));
  const QSignalSpy wanted(&panel, &NivraVecTable::characteristicsWanted);
  open->trigger();
  QCOMPARE(wanted.value(0).value(0).toStringList(), QStringList{QStringLiteral("K")});
}

void TestVectorTable::tableFollowsItsChoices() {
  NivraVecTable panel(*m_net);
  auto *table = panel.findChild<QTableView *>();
  panel.on_pushButtonUpdate_clicked();
  QCOMPARE(table->model()->rowCount(), 3);
  QCOMPARE(table->model()->index(0, 0).data().toString(), QStringLiteral("C")); // pressures have a unit: by number
  QCOMPARE(table->model()->headerData(5, Qt::Horizontal).toString(), QStringLiteral("result\n(p)"));
  QCOMPARE(table->model()->flags(table->model()->index(0, 3)),
           Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren);
  const QSignalSpy marked(&panel, &NivraVecTable::elementMarked);
  CatMap map =
      CategoryFile::toMap({{QStringLiteral("ends"), QString(), QString(), QStringLiteral("^node1$"), QString(), false}});
  panel.on_updateCats(map);
  panel.on_showCat(QStringLiteral("ends"));
  QCOMPARE(table->model()->rowCount(), 1);
  QVERIFY(!panel.findChild<QCheckBox *>(QStringLiteral("checkBoxProp"))->isChecked());
  panel.on_updateCats(CatMap());
  QVERIFY(!panel.findChild<QComboBox *>(QStringLiteral("comboBoxCat"))->isEnabled());
  QVERIFY(table->model()->rowCount() > 10); // every property of every element
  panel.setCurrentIndex(1);                 // the plot of it
}

void TestVectorTable::clicksMarkElements() {
  NivraVecTable panel(*m_net);
  const QSignalSpy marked(&panel, &NivraVecTable::elementMarked);
  panel.on_updateCats(
      CategoryFile::toMap({{QStringLiteral("ends"), QString(), QString(), QStringLiteral("^node1$"), QString(), false}}));
  panel.on_showCat(QStringLiteral("ends"));
  auto *table = panel.findChild<QTableView *>();
  panel.show();
  for (const int column : {3, 1, 0}) // the value of the property is a name, a type is none
    QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::NoModifier,
                      table->visualRect(table->model()->index(0, column)).center());
  QCOMPARE(marked.count(), 2);
  QCOMPARE(marked.first().first().toString(), QStringLiteral("A"));
  QCOMPARE(marked.last().first().toString(), QStringLiteral("AB"));
}

NIVRA_TEST(TestVectorTable);
#include "tst_vectortable.moc"
