#include "configure/labeltableeditor.h"

#include <support/nivratest.h>

#include <QInputDialog>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>

class TestLabelTableEditor : public QObject {
  Q_OBJECT

private slots:
  void keysOpenWhatSuitsTheCell_data();
  void keysOpenWhatSuitsTheCell();
  void returnEndsTyping();
  void contentsHoldNoComma();
  void deleteEmptiesACell();

private:
  static bool activate(QTableWidget &table) {
    table.resize(1000, 400);
    table.show();
    table.activateWindow();
    table.setFocus();
    return QTest::qWaitForWindowActive(&table);
  }
  static QLineEdit *editorIn(const QTableWidget &table) {
    for (QLineEdit *editor : table.viewport()->findChildren<QLineEdit *>()) {
      if (editor->isVisible())
        return editor;
    }
    return nullptr;
  }
};

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
  QTableWidget table;
  LabelTableEditor editor(table);
  editor.setTable(LabelTable());
  QVERIFY(activate(table));
  table.setCurrentCell(2, column);
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
  QTableWidget table;
  LabelTableEditor editor(table);
  editor.setTable(LabelTable());
  QVERIFY(activate(table));
  table.setCurrentCell(2, LabelRow::Size);
  QTest::keyClick(&table, Qt::Key_4);
  QVERIFY(editorIn(table) != nullptr);
  QTest::keyClicks(editorIn(table), QStringLiteral("2"));
  QTest::keyClick(editorIn(table), Qt::Key_Return);
  QTRY_VERIFY(editorIn(table) == nullptr);
  QCOMPARE(editor.table().types.at(2)[LabelRow::Size], QStringLiteral("42"));
}

void TestLabelTableEditor::contentsHoldNoComma() {
  QTableWidget table;
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
  QTableWidget table;
  LabelTableEditor editor(table);
  LabelTable styled;
  styled.types.front()[LabelRow::Color] = QStringLiteral("red");
  editor.setTable(styled);
  QVERIFY(activate(table));
  table.setCurrentCell(0, LabelRow::Color);
  QTest::keyClick(&table, Qt::Key_Delete);
  QVERIFY(editor.table().types.front()[LabelRow::Color].isEmpty());
  table.setCurrentCell(0, LabelRow::Show); // which is never empty
  QTest::keyClick(&table, Qt::Key_Delete);
  QCOMPARE(editor.table().types.front()[LabelRow::Show], QStringLiteral("on"));
}

NIVRA_TEST(TestLabelTableEditor);
#include "tst_labeltableeditor.moc"
