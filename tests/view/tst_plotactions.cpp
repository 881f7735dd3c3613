#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <support/nivratest.h>
#include <view/plotactions.h>

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QSignalSpy>

using Command = PlotActions::Command;

/// What the mouse does in its modes, and the commands of a drawing.
class TestPlotActions : public QObject {
  Q_OBJECT

private slots:
  void middleButtonAndSpaceMoveTheView();
  void modesOfTheLeftButton();
  void rectangleSelectsInItsMode();
  void measuresAlongClicks();
  void measuresByKeys();
  void measuringLeavesTheSelection();
  void goesToWhatIsSelected();
  void labelsComeAndGo();
  void functionsOfTheNetwork();
  void copiesThePicture();
  void greysWhatCannotBeDone();
  void menuByKey();

private:
  static QAction *action(ViewFixture &f, Command command) { return f.control.actions()[command]; }
  static QWidget *canvas(ViewFixture &f) { return f.plot().plot()->canvas(); }
  static QPoint place(ViewFixture &f, double x, double y) { return canvas(f)->mapFrom(&f.plot(), f.pixel(x, y)); }
  static void drag(ViewFixture &f, const QPoint &from, const QPoint &to, Qt::MouseButton button = Qt::LeftButton,
                   Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QTest::mousePress(canvas(f), button, keys, from);
    for (const QPoint &point : {(from + to) / 2, to}) {
      QMouseEvent move(QEvent::MouseMove, point, Qt::NoButton, button, keys);
      QApplication::sendEvent(canvas(f), &move);
    }
    QTest::mouseRelease(canvas(f), button, keys, to);
  }
  static void show(ViewFixture &f) {
    f.plot().show();
    f.show();
    f.plot().setFocus();
  }
  static double movedBy(ViewFixture &f, const QRectF &before) {
    return (before.left() - f.plot().plot()->visibleRect().left()) / f.plot().plot()->unitsPerPixel().width();
  }
};

void TestPlotActions::middleButtonAndSpaceMoveTheView() {
  for (const char *pattern : {"Left_Ctrl", "RightButton", "MidButton"}) { // whatever else does
    ViewFixture f;
    GeneralSettings::instance().setValue(QStringLiteral("MousePattern_Panning"), QString::fromLatin1(pattern));
    show(f);
    GeneralSettings::instance().reset();
    const QRectF whole = f.plot().plot()->visibleRect();
    drag(f, {100, 100}, {150, 100}, Qt::MiddleButton);
    QVERIFY(qAbs(movedBy(f, whole) - 50.0) < 1.5);

    const QRectF before = f.plot().plot()->visibleRect();
    QTest::keyPress(canvas(f), Qt::Key_Space);
    QCOMPARE(canvas(f)->cursor().shape(), Qt::OpenHandCursor);
    drag(f, {150, 100}, {100, 100});
    QTest::keyRelease(canvas(f), Qt::Key_Space);
    QVERIFY(qAbs(movedBy(f, before) + 50.0) < 1.5);
    QVERIFY(canvas(f)->cursor().shape() != Qt::OpenHandCursor);
    QVERIFY(f.net.selection().isEmpty());

    drag(f, {100, 60}, {350, 160}); // and without Space it zooms again
    QVERIFY(f.plot().plot()->visibleRect().width() < whole.width() * 0.7);

    const QRectF near = f.plot().plot()->visibleRect();
    QTest::keyPress(canvas(f), Qt::Key_Space);
    QFocusEvent gone(QEvent::FocusOut); // the release goes to another window
    QApplication::sendEvent(canvas(f), &gone);
    drag(f, {100, 60}, {350, 160});
    QVERIFY(f.plot().plot()->visibleRect().width() < near.width() * 0.7);
  }
}

void TestPlotActions::modesOfTheLeftButton() {
  ViewFixture f;
  show(f);
  const QRectF whole = f.plot().plot()->visibleRect();
  action(f, Command::DragPans)->trigger();
  QVERIFY(action(f, Command::DragPans)->isChecked() && !action(f, Command::DragZooms)->isChecked());
  drag(f, {100, 100}, {150, 100});
  QVERIFY(qAbs(movedBy(f, whole) - 50.0) < 1.5);
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 50, 0)); // a click selects all the same
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("AB")});

  QTest::keyPress(canvas(f), Qt::Key_Shift); // which draws a rectangle to zoom to in this mode as well
  drag(f, {100, 60}, {350, 160}, Qt::LeftButton, Qt::ShiftModifier);
  QTest::keyRelease(canvas(f), Qt::Key_Shift, Qt::ShiftModifier);
  QVERIFY(f.plot().plot()->visibleRect().width() < whole.width() * 0.7);
  QCOMPARE(canvas(f)->cursor().shape(), Qt::OpenHandCursor);
  const QRectF near = f.plot().plot()->visibleRect();
  drag(f, {100, 100}, {150, 100}); // not left behind: dragging moves
  QVERIFY(qAbs(movedBy(f, near) - 50.0) < 1.5);

  f.control.clear(); // another network begins as ever
  QVERIFY(action(f, Command::DragZooms)->isChecked());
}

void TestPlotActions::rectangleSelectsInItsMode() {
  ViewFixture f;
  show(f);
  action(f, Command::DragSelects)->trigger();
  drag(f, place(f, -20, 30), place(f, 120, -30));
  QCOMPARE(f.net.selection().names(), (Selection::Names{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("AB")}));
  drag(f, place(f, 180, 120), place(f, 220, 80), Qt::LeftButton, Qt::ShiftModifier);
  QVERIFY(f.net.selection().nodes.contains(QStringLiteral("D")) && f.net.selection().nodes.contains(QStringLiteral("A")));
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 150, 0));
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("BC")});
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::ShiftModifier, place(f, 50, 0));
  QCOMPARE(f.net.selection().edges, (Selection::Names{QStringLiteral("AB"), QStringLiteral("BC")}));
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 100, 80)); // beside everything
  QVERIFY(f.net.selection().isEmpty());
}

void TestPlotActions::measuresAlongClicks() {
  ViewFixture f;
  show(f);
  QSignalSpy told(&f.control.actions(), &PlotActions::told);
  const QRectF view = f.plot().plot()->visibleRect();
  action(f, Command::Measure)->trigger();
  QVERIFY(!told.last()[0].toString().isEmpty());                                               // what to do
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 0, 0) + QPoint(3, 3)); // near A: from A
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 200, 0));
  QCOMPARE(told.last()[0].toString(), QStringLiteral("Distance 200"));
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 200, 100));
  QCOMPARE(told.last()[0].toString(), QStringLiteral("Distance 300, last leg 100"));
  QImage drawn = f.picture();
  QTest::keyClick(canvas(f), Qt::Key_Backspace);
  QCOMPARE(told.last()[0].toString(), QStringLiteral("Distance 200"));
  QVERIFY(f.picture() != drawn);
  QTest::mouseDClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 200, 100)); // ends it
  QTest::mouseMove(canvas(f), place(f, 0, 0));
  QVERIFY(told.last()[0].toString().startsWith(QStringLiteral("Distance")));
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 0, 0)); // another path
  QVERIFY(told.last()[0].toString().isEmpty());
  QTest::keyClick(canvas(f), Qt::Key_Escape);
  QVERIFY(action(f, Command::DragZooms)->isChecked());
  QVERIFY(f.net.selection().isEmpty());
  QCOMPARE(f.plot().plot()->visibleRect(), view);
}

void TestPlotActions::measuresByKeys() {
  ViewFixture f;
  show(f);
  QSignalSpy told(&f.control.actions(), &PlotActions::told);
  action(f, Command::Measure)->trigger();
  for (const char *name : {"A", "C", "D"}) {
    f.control.mark(QString::fromLatin1(name));
    QTest::keyClick(canvas(f), Qt::Key_Return);
  }
  QCOMPARE(told.last()[0].toString(), QStringLiteral("Distance 300, last leg 100"));
}

void TestPlotActions::measuringLeavesTheSelection() {
  ViewFixture f;
  show(f);
  f.control.mark(QStringLiteral("AB"));
  action(f, Command::Measure)->trigger();
  QTest::mouseClick(canvas(f), Qt::LeftButton, Qt::NoModifier, place(f, 100, 60));
  QTest::keyClick(canvas(f), Qt::Key_Escape);
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("AB")});
}

void TestPlotActions::goesToWhatIsSelected() {
  ViewFixture f;
  show(f);
  QVERIFY(!action(f, Command::ToSelection)->isEnabled());
  Selection selection;
  selection.nodes = {QStringLiteral("C"), QStringLiteral("D")};
  f.control.picker()->setSelection(selection);
  action(f, Command::ToSelection)->trigger();
  const QRectF shown = f.plot().plot()->visibleRect();
  QVERIFY(shown.contains(QPointF(200, 0)) && shown.contains(QPointF(200, 100)));
  QVERIFY(!shown.contains(QPointF(0, 0)));
  QVERIFY(shown.height() < 150.0);
  action(f, Command::Back)->trigger();
  QCOMPARE(f.plot().zoomer()->zoomRectIndex() > 0, true); // the stack goes on; the view is the first again
  QVERIFY(f.plot().plot()->visibleRect().contains(QPointF(0, 0)));
  QVERIFY(!action(f, Command::Back)->isEnabled() && action(f, Command::Forward)->isEnabled());
}

void TestPlotActions::labelsComeAndGo() {
  ViewFixture f;
  show(f);
  action(f, Command::Labels)->setChecked(false);
  action(f, Command::Labels)->trigger();
  QVERIFY(action(f, Command::Labels)->isChecked());
  QVERIFY(!f.plot().update().labels().empty());
  const QString mode = f.plot().settings().label_mode;
  action(f, Command::Labels)->trigger();
  QVERIFY(f.plot().update().labels().empty());
  QCOMPARE(f.plot().settings().label_mode, QStringLiteral("no label"));
  action(f, Command::Labels)->trigger();
  QCOMPARE(f.plot().settings().label_mode, mode);
  PlotSettings none = f.plot().settings(); // chosen elsewhere
  none.label_mode = QStringLiteral("no label");
  f.plot().setSettings(none);
  QVERIFY(!action(f, Command::Labels)->isChecked());
}

void TestPlotActions::functionsOfTheNetwork() {
  ViewFixture f;
  show(f);
  QMenu *menu = f.control.actions().functionMenu(Aspect::EdgeColor);
  const auto entry = [menu](const QString &beginning) -> QAction * {
    emit menu->aboutToShow();
    for (QAction *function : menu->actions()) {
      if (function->text().startsWith(beginning))
        return function;
    }
    return nullptr;
  };
  QVERIFY(entry(QStringLiteral("pressure"))->isChecked());  // as chosen at first sight
  QVERIFY(entry(QStringLiteral("temperature")) == nullptr); // of which the network has none
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].minimum = 25.0; // as out of a file
  f.plot().setSettings(settings);
  QSignalSpy chosen(&f.control.actions(), &PlotActions::settingsChosen);
  const QImage before = f.picture();
  entry(QStringLiteral("diameter"))->trigger();
  QCOMPARE(chosen.count(), 1);
  QVERIFY(f.picture() != before);
  QVERIFY(entry(QStringLiteral("diameter"))->isChecked());
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].minimum, PlotSettings::OpenMinimum);
  entry(QStringLiteral("pressure"))->trigger();
  QCOMPARE(f.plot().settings().functions[Aspect::EdgeColor].minimum, 25.0); // each keeps its bounds
  QVERIFY(f.control.actions().functionInUse(Aspect::EdgeColor).contains(QStringLiteral("pressure")));
}

void TestPlotActions::copiesThePicture() {
  ViewFixture f;
  show(f);
  action(f, Command::CopyPicture)->trigger();
  QCOMPARE(QApplication::clipboard()->image().size(), f.plot().size());
}

void TestPlotActions::greysWhatCannotBeDone() {
  ViewFixture f;
  QVERIFY(!action(f, Command::WholeNetwork)->isEnabled()); // there is none
  show(f);
  QVERIFY(action(f, Command::WholeNetwork)->isEnabled());
  f.control.mark(QStringLiteral("CD"));
  f.control.refreshActions();
  QVERIFY(!action(f, Command::Characteristics)->isEnabled()); // nobody would answer
  const QSignalSpy opened(&f.control, &NetVisControl::openCharacteristicsRequested);
  const QSignalSpy subnets(&f.control, &NetVisControl::subnetWanted);
  f.control.refreshActions();
  QVERIFY(action(f, Command::Characteristics)->isEnabled());
  QVERIFY(!action(f, Command::SubnetWindow)->isEnabled()); // no subnet
  action(f, Command::Characteristics)->trigger();
  QCOMPARE(opened.count(), 1);
  f.control.clear();
  for (int i = 0; i < static_cast<int>(Command::Count); ++i)
    QVERIFY(!action(f, static_cast<Command>(i))->isEnabled());
}

void TestPlotActions::menuByKey() {
  ViewFixture f;
  show(f);
  f.control.mark(QStringLiteral("B"));
  QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {1, 1});
  QApplication::sendEvent(canvas(f), &byKey);
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  QVERIFY(menu != nullptr);
  const int across = canvas(f)->mapToGlobal(place(f, 100, 0)).x();
  QVERIFY(menu->geometry().left() <= across + 4 && menu->geometry().right() > across); // where the screen has room for it
  QVERIFY(menu->actions().first()->text().startsWith(QStringLiteral("Select here")));  // the edges that end there
  menu->close();
}

NIVRA_TEST(TestPlotActions);
#include "tst_plotactions.moc"
