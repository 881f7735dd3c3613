#include <base/generalsettings.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <tools/nivravectable.h>

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QSignalSpy>
#include <QTableWidget>

class TestVectorTable : public QObject {
  Q_OBJECT

private slots:
  void init();
  void rowsOfAProperty();
  void rowsOfACategory_data();
  void rowsOfACategory();
  void numericalSort();
  void exportsRows();
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
  const std::vector<QStringList> rows{{QStringLiteral("A"), QStringLiteral("n"), QStringLiteral("p"), QStringLiteral("1.5"),
                                       QStringLiteral("say \"ü\""), QStringLiteral("1.5")}};
  QVERIFY(VectorRows::write(buffer, {QStringLiteral("name\n(a)"), QStringLiteral("value")}, rows, true));
  QCOMPARE(buffer.data(), QByteArray("\"name (a)\";\"value\";\n\"A\";\"n\";\"p\";\"1,5\";\"say \"\"ü\"\"\";\"1.5\";\n"));
}

void TestVectorTable::tableFollowsItsChoices() {
  NivraVecTable panel(*m_net);
  auto *table = panel.findChild<QTableWidget *>();
  panel.on_pushButtonUpdate_clicked();
  QCOMPARE(table->rowCount(), 3);
  QCOMPARE(table->item(0, 0)->text(), QStringLiteral("C")); // pressures have a unit: by number
  QCOMPARE(table->horizontalHeaderItem(5)->text(), QStringLiteral("result\n(p)"));
  QVERIFY(!(table->item(0, 3)->flags() & Qt::ItemIsEditable));
  const QSignalSpy marked(&panel, &NivraVecTable::elementMarked);
  CatMap map =
      CategoryFile::toMap({{QStringLiteral("ends"), QString(), QString(), QStringLiteral("^node1$"), QString(), false}});
  panel.on_updateCats(map);
  panel.on_showCat(QStringLiteral("ends"));
  QCOMPARE(table->rowCount(), 1);
  QVERIFY(!panel.findChild<QCheckBox *>(QStringLiteral("checkBoxProp"))->isChecked());
  panel.on_updateCats(CatMap());
  QVERIFY(!panel.findChild<QComboBox *>(QStringLiteral("comboBoxCat"))->isEnabled());
  QVERIFY(table->rowCount() > 10); // every property of every element
  panel.setCurrentIndex(1);        // the plot of it
}

void TestVectorTable::clicksMarkElements() {
  NivraVecTable panel(*m_net);
  const QSignalSpy marked(&panel, &NivraVecTable::elementMarked);
  panel.on_updateCats(
      CategoryFile::toMap({{QStringLiteral("ends"), QString(), QString(), QStringLiteral("^node1$"), QString(), false}}));
  panel.on_showCat(QStringLiteral("ends"));
  auto *table = panel.findChild<QTableWidget *>();
  panel.on_tableWidget_itemClicked(table->item(0, 3));
  panel.on_tableWidget_itemClicked(table->item(0, 1));
  panel.on_tableWidget_itemClicked(table->item(0, 0));
  QCOMPARE(marked.count(), 2);
  QCOMPARE(marked.first().first().toString(), QStringLiteral("A"));
  QCOMPARE(marked.last().first().toString(), QStringLiteral("AB"));
}

NIVRA_TEST(TestVectorTable);
#include "tst_vectortable.moc"
