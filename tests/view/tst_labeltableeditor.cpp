#include "configure/labeltableeditor.h"

#include <support/answers.h>
#include <support/nivratest.h>

#include <QAbstractItemModelTester>
#include <QInputDialog>
#include <QLineEdit>
#include <QTableView>
#include <QTimer>

class TestLabelTableEditor : public QObject {
  Q_OBJECT

private slots:
  void modelKeepsItsPromises();
  void keysOpenWhatSuitsTheCell_data();
  void keysOpenWhatSuitsTheCell();
  void returnEndsTyping();
  void whatMeansNothingIsRefused_data();
  void whatMeansNothingIsRefused();
  void contentsHoldNoComma();
  void deleteEmptiesACell();

private:
  static bool activate(QTableView &table) {
    table.resize(1000, 400);
    table.show();
    table.activateWindow();
    table.setFocus();
    return QTest::qWaitForWindowActive(&table);
  }
  static void setCurrentCell(QTableView &table, int row, int column) {
    table.setCurrentIndex(table.model()->index(row, column));
  }
  static QLineEdit *editorIn(const QTableView &table) {
    for (QLineEdit *editor : table.viewport()->findChildren<QLineEdit *>()) {
      if (editor->isVisible())
        return editor;
    }
    return nullptr;
  }
  /// Types the text into the cell and ends with Return.
  static void type(QTableView &table, int row, int column, const QString &text) {
    setCurrentCell(table, row, column);
    QTest::keyClick(&table, Qt::Key_F2);
    QLineEdit *editor = editorIn(table);
    QVERIFY(editor != nullptr);
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_VERIFY(editorIn(table) == nullptr);
  }
};

void TestLabelTableEditor::modelKeepsItsPromises() {
  LabelTableModel model;
  const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
  model.setTable(LabelTable());
  const int types = model.typeCount();
  QVERIFY(model.setData(model.index(1, LabelRow::Color), QStringLiteral("red")));
  QVERIFY(model.setData(model.index(1, LabelRow::BgrColor), QStringLiteral("blue")));
  QVERIFY(model.setData(model.index(1, LabelRow::BgrAlpha), QStringLiteral("40")));
  QVERIFY(!model.setData(model.index(1, LabelRow::Short), QStringLiteral("x"))); // the name of a type
  QCOMPARE(model.index(1, LabelRow::Color).data(Qt::ForegroundRole).value<QBrush>().color(), QColor(Qt::red));
  QCOMPARE(model.index(1, LabelRow::BgrColor).data(Qt::BackgroundRole).value<QBrush>().color(), QColor(0, 0, 255, 40));
  QVERIFY(!model.headerData(1, Qt::Vertical, Qt::DecorationRole).value<QIcon>().isNull());

  const int added = model.addTemplate(1);
  QCOMPARE(added, types);
  QCOMPARE(model.table().templates.front().icon, model.table().types.at(1)[LabelRow::Short]);
  QVERIFY(model.setData(model.index(added, LabelRow::Short), QStringLiteral("x"))); // nobody else's
  model.copyLook(added, 3);
  QCOMPARE(model.table().types.at(3)[LabelRow::BgrAlpha], QStringLiteral("40"));
  QCOMPARE(model.table().types.at(3)[LabelRow::LongName], LabelTable().types.at(3)[LabelRow::LongName]);
  QVERIFY(!model.removeTemplate(types - 1));
  QVERIFY(!model.removeTemplate(-1));
  QVERIFY(model.removeTemplate(added));
  QCOMPARE(model.rowCount(), types);
}

void TestLabelTableEditor::keysOpenWhatSuitsTheCell_data() {
  QTest::addColumn<int>("column");
  QTest::addColumn<int>("key");
  QTest::addColumn<bool>("isDialog");
  QTest::addColumn<bool>("isInPlace");
  for (const int column :
       {LabelRow::Show, LabelRow::Contents, LabelRow::Color, LabelRow::BgrColor, LabelRow::BordColor, LabelRow::Font}) {
    const QByteArray name = LabelTable::headers().at(column).toUtf8();
    QTest::newRow(name + ", F2") << column << int(Qt::Key_F2) << true << false;
    QTest::newRow(name + ", Return") << column << int(Qt::Key_Return) << true << false;
    QTest::newRow(name + ", a letter") << column << int(Qt::Key_X) << false << false;
  }
  QTest::newRow("size, F2") << int(LabelRow::Size) << int(Qt::Key_F2) << false << true;
  QTest::newRow("size, Return") << int(LabelRow::Size) << int(Qt::Key_Return) << false << true;
  QTest::newRow("size, a letter") << int(LabelRow::Size) << int(Qt::Key_X) << false << true;
  QTest::newRow("short name") << int(LabelRow::Short) << int(Qt::Key_F2) << false << false;
}

void TestLabelTableEditor::keysOpenWhatSuitsTheCell() {
  QFETCH(int, column);
  QFETCH(int, key);
  QFETCH(bool, isDialog);
  QFETCH(bool, isInPlace);
  QTableView table;
  LabelTableEditor editor(table);
  editor.setTable(LabelTable());
  QVERIFY(activate(table));
  setCurrentCell(table, 2, column);
  const LabelTable before = editor.table();
  bool wasDialog = false;
  QTimer::singleShot(0, [&wasDialog] {
    if (QWidget *modal = QApplication::activeModalWidget()) {
      wasDialog = true;
      modal->close();
    }
  });
  QTest::keyClick(&table, static_cast<Qt::Key>(key));
  QCoreApplication::processEvents();
  QCOMPARE(wasDialog, isDialog);
  QCOMPARE(editorIn(table) != nullptr, isInPlace);
  QVERIFY(editor.table() == before);
}

void TestLabelTableEditor::returnEndsTyping() {
  QTableView table;
  LabelTableEditor editor(table);
  editor.setTable(LabelTable());
  QVERIFY(activate(table));
  setCurrentCell(table, 2, LabelRow::Size);
  QTest::keyClick(&table, Qt::Key_4);
  QVERIFY(editorIn(table) != nullptr);
  QTest::keyClicks(editorIn(table), QStringLiteral("2"));
  QTest::keyClick(editorIn(table), Qt::Key_Return);
  QTRY_VERIFY(editorIn(table) == nullptr);
  QCOMPARE(editor.table().types.at(2)[LabelRow::Size], QStringLiteral("42"));
}

void TestLabelTableEditor::whatMeansNothingIsRefused_data() {
  QTest::addColumn<int>("column");
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("isGood");
  QTest::newRow("size of letters") << int(LabelRow::Size) << QStringLiteral("abc") << false;
  QTest::newRow("size below 0") << int(LabelRow::Size) << QStringLiteral("-3") << false;
  QTest::newRow("size without end") << int(LabelRow::Size) << QStringLiteral("inf") << false;
  QTest::newRow("size") << int(LabelRow::Size) << QStringLiteral("12.5") << true;
  QTest::newRow("size of all") << int(LabelRow::Size) << QStringLiteral(" ") << true;
  QTest::newRow("opacity of letters") << int(LabelRow::BgrAlpha) << QStringLiteral("half") << false;
  QTest::newRow("opacity above all") << int(LabelRow::BordAlpha) << QStringLiteral("256") << false;
  QTest::newRow("opacity") << int(LabelRow::BordAlpha) << QStringLiteral("255") << true;
}

/// In a template as in a type.
void TestLabelTableEditor::whatMeansNothingIsRefused() {
  QFETCH(int, column);
  QFETCH(QString, text);
  QFETCH(bool, isGood);
  QTableView table;
  LabelTableEditor editor(table);
  LabelTable labels;
  labels.templates.push_back(labels.types.front());
  editor.setTable(labels);
  QVERIFY(activate(table));
  const Answers answers(std::vector<NivraMsg::Answer>(isGood ? 0 : 2, NivraMsg::Answer::Ok));
  for (const int row : {2, table.model()->rowCount() - 1}) {
    const QModelIndex cell = table.model()->index(row, column);
    const QString before = cell.data().toString();
    type(table, row, column, text);
    QCOMPARE(cell.data().toString(), isGood ? text : before);
  }
  QTRY_VERIFY(answers.areGiven());
  for (const QString &said : answers.texts())
    QVERIFY2(said.contains(QLatin1Char('"') + text + QLatin1Char('"')), qPrintable(said));
}

void TestLabelTableEditor::contentsHoldNoComma() {
  QTableView table;
  LabelTableEditor editor(table);
  LabelTable typed;
  typed.types.front()[LabelRow::Contents] = QStringLiteral("@name, @p"); // as another program may store it
  typed.types.front()[LabelRow::Font] = QStringLiteral("Arial,8,-1,5,50,0,0,0,0,0");
  editor.setTable(typed);
  QCOMPARE(editor.table().types.front()[LabelRow::Contents], QStringLiteral("@name&#44; @p"));
  QCOMPARE(editor.table().types.front()[LabelRow::Font], typed.types.front()[LabelRow::Font]);
}

/// An empty cell follows the plot settings, and no dialog offers it.
void TestLabelTableEditor::deleteEmptiesACell() {
  QTableView table;
  LabelTableEditor editor(table);
  LabelTable styled;
  styled.types.front()[LabelRow::Color] = QStringLiteral("red");
  editor.setTable(styled);
  QVERIFY(activate(table));
  setCurrentCell(table, 0, LabelRow::Color);
  QTest::keyClick(&table, Qt::Key_Delete);
  QVERIFY(editor.table().types.front()[LabelRow::Color].isEmpty());
  setCurrentCell(table, 0, LabelRow::Show); // which is never empty
  QTest::keyClick(&table, Qt::Key_Delete);
  QCOMPARE(editor.table().types.front()[LabelRow::Show], QStringLiteral("on"));
}

NIVRA_TEST(TestLabelTableEditor);
#include "tst_labeltableeditor.moc"
