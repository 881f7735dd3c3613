#include "configure/functionchooser.h"
#include "viewfixture.h"

#include <support/nivratest.h>
#include <view/plotactions.h>
#include <view/viewfuncdialog.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

/// All draw functions of a network, with what is known of their values.
class TestFunctionChooser : public QObject {
  Q_OBJECT

private slots:
  void figuresAreThoseOfTheDrawing();
  void figuresAreFoundWhenLookedAt();
  void wordsLeaveWhatFits();
  void chosenInConfigureDraw();
  void chosenInTheMenu();

private:
  /// What a person does with the chooser that opens next.
  template <typename Act>
  static void whenShown(Act act) {
    QTimer::singleShot(0, [act] {
      auto *chooser = qobject_cast<FunctionChooser *>(QApplication::activeModalWidget());
      QVERIFY(chooser != nullptr);
      act(*chooser);
    });
  }
  /// By keys alone.
  static void typeAndTake(FunctionChooser &chooser, const QString &words) {
    QTest::keyClicks(chooser.findChild<QLineEdit *>(), words);
    QTest::keyClick(chooser.findChild<QLineEdit *>(), Qt::Key_Return);
  }
};

void TestFunctionChooser::figuresAreThoseOfTheDrawing() {
  ViewFixture f;
  f.show();
  const NetGeometry &geometry = f.plot().update().geometry();
  const auto figures = [&](const char *function, Aspect aspect) {
    return FunctionFigures::of(QString::fromLatin1(function), aspect, f.net, geometry, f.plot().settings());
  };
  const FunctionFigures diameters = figures("pipe diameter", Aspect::EdgeColor);
  QCOMPARE(diameters.count, std::size_t(2)); // the compressor has none
  QCOMPARE(diameters.range, QwtInterval(500.0, 1000.0));
  QCOMPARE(diameters.bins.front() + diameters.bins.back(), 2);
  QCOMPARE(figures("p", Aspect::NodeColor).count, std::size_t(4));
  const FunctionFigures means = figures("p", Aspect::EdgeColor); // of the ends
  QCOMPARE(means.range, QwtInterval(25.0, 50.0));
  QCOMPARE(figures("pressure diff", Aspect::EdgeColor).count, std::size_t(3)); // computed from the ends
  const FunctionFigures one = figures("q", Aspect::EdgeColor);
  QCOMPARE(one.bins[FunctionFigures::Bins / 2], 3); // one value stands in the middle
  const FunctionFigures none = figures("nosuch", Aspect::EdgeColor);
  QVERIFY(none.count == 0 && !none.range.isValid());
}

void TestFunctionChooser::figuresAreFoundWhenLookedAt() {
  ViewFixture f;
  f.show();
  FunctionModel model(f.plot().update(), f.plot().settings(), Aspect::EdgeColor);
  const QAbstractItemModelTester tester(&model);
  model.setFunctions({QStringLiteral("pressure"), QStringLiteral("q"), QStringLiteral("nosuch")});
  QCOMPARE(model.rowOf(QStringLiteral("P")), 0);
  QCOMPARE(model.index(0, FunctionModel::Unit).data().toString(), QStringLiteral("bar"));
  const auto count = [&model](int row) {
    return model.index(row, FunctionModel::Elements).data().toString();
  };
  QVERIFY(count(0).isEmpty()); // nobody waits for it
  QTRY_COMPARE(count(0), QStringLiteral("3"));
  QTRY_COMPARE(count(2), QStringLiteral("0"));
  QVERIFY(!model.index(0, FunctionModel::Distribution).data(FunctionModel::BinsRole).value<QVector<int>>().isEmpty());
}

void TestFunctionChooser::wordsLeaveWhatFits() {
  ViewFixture f;
  f.show();
  FunctionChooser chooser(QStringLiteral("Edge colour"), f.plot().update(), f.plot().settings(), Aspect::EdgeColor);
  chooser.setFunctions({QStringLiteral("pressure"), QStringLiteral("pipe diameter"), QStringLiteral("q")},
                       QStringLiteral("q"));
  chooser.show();
  QCOMPARE(chooser.chosen(), QStringLiteral("q"));
  const auto *table = chooser.findChild<QTableView *>();
  auto *words = chooser.findChild<QLineEdit *>();
  QTest::keyClicks(words, QStringLiteral("FLOW")); // its meaning, in any case
  QCOMPARE(table->model()->rowCount(), 1);
  QCOMPARE(chooser.chosen(), QStringLiteral("q"));
  words->setText(QStringLiteral("no such word"));
  QVERIFY(chooser.chosen().isEmpty() && table->model()->rowCount() == 0);
  words->clear();
  table->selectionModel()->setCurrentIndex(table->model()->index(0, 0), QItemSelectionModel::SelectCurrent);
  words->setFocus();
  QTest::keyClick(words, Qt::Key_Down);
  QCOMPARE(chooser.chosen(), QStringLiteral("pipe diameter"));
}

void TestFunctionChooser::chosenInConfigureDraw() {
  ViewFixture f;
  f.show();
  viewFuncDialog dialog(f.plot());
  whenShown([](FunctionChooser &chooser) { typeAndTake(chooser, QStringLiteral("diameter")); });
  dialog.findChild<QPushButton *>(QStringLiteral("choose"))->click(); // of the edge colour
  QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("function"))->currentText(), QStringLiteral("pipe diameter"));
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].name, QStringLiteral("p")); // until it is applied
  whenShown([](FunctionChooser &chooser) { QTest::keyClick(&chooser, Qt::Key_Escape); });
  dialog.findChild<QPushButton *>(QStringLiteral("choose"))->click();
  QCOMPARE(dialog.findChild<QComboBox *>(QStringLiteral("function"))->currentText(), QStringLiteral("pipe diameter"));
}

void TestFunctionChooser::chosenInTheMenu() {
  ViewFixture f;
  f.show();
  QMenu *menu = f.control.actions().functionMenu(Aspect::NodeSize);
  emit menu->aboutToShow();
  whenShown([](FunctionChooser &chooser) { typeAndTake(chooser, QStringLiteral("pressure")); });
  menu->actions().last()->trigger();
  QCOMPARE(f.plot().settings().functions[Aspect::NodeSize].name, QStringLiteral("pressure"));
}

NIVRA_TEST(TestFunctionChooser);
#include "tst_functionchooser.moc"
