#include "canvas/canvasoverlay.h"
#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <support/nivratest.h>

#include <QDialog>
#include <QElapsedTimer>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <QTimeLine>
#include <QWheelEvent>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

class TestNetPlot : public QObject {
  Q_OBJECT

private slots:
  void fitsTheNetworkWithOneScale();
  void resizeKeepsOneScale();
  void wheelZoomsAboutTheCursor();
  void wheelCollectsSmallTurns();
  void zoomStopsAtItsLimits();
  void theDeepestViewStays_data();
  void theDeepestViewStays();
  void zoomsBesideScalesOfAnyWidth_data();
  void zoomsBesideScalesOfAnyWidth();
  void stackIsCutBack();
  void keysMoveAndFit();
  void rectangleZoomKeepsItsWholeRectangle();
  void dialogsEndADrag_data();
  void dialogsEndADrag();
  void panningMovesTheView_data();
  void panningMovesTheView();
  void rightClickAsksForAMenu();
  void doubleClickOnTheScale();
  void legend_data();
  void legend();
  void clearForgetsTheNetwork();
  void smoothZoomAddsUp();
  void smoothZoomTurnsBack();
  void slowDrawingsAreMovedAsAPicture();
  void wheelZoomsToElements();
  void viewsBackAndForward();
  void bookmarks();
  void zoomBaseGrows();
  void coordinatesInDegreesZoomAsOthers_data();
  void coordinatesInDegreesZoomAsOthers();
  void peopleReadTheNetworksOwnCoordinates();
  void thresholdsAreJudgedByTheViewOfTheNetwork_data();
  void thresholdsAreJudgedByTheViewOfTheNetwork();
  void thresholdsHoldWithoutAWindowToo();
  void showsAnElement();
  void labelsWaitForWhoeverZooms();

private:
  /// The fixture's network in other coordinates.
  static void scale(ViewFixture &f, double factor) {
    for (const char *name : {"A", "B", "C", "D"}) {
      element &node = *f.net.element(QString::fromLatin1(name));
      for (const QString &key : {QStringLiteral("x"), QStringLiteral("y")})
        node.set(key, QString::number(node.value(key).toDouble() * factor, 'g', 16));
    }
  }
  static void turnWheel(NetPlot &plot, const QPoint &place, int eighths) {
    QWheelEvent event(QPointF(place), plot.plot()->canvas()->mapToGlobal(place), QPoint(), QPoint(0, eighths), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(plot.plot()->canvas(), &event);
  }
  /// Moves the mouse with the button held, then releases it. QTest's own moves come later and without the button.
  static void drag(QWidget *canvas, const QPoint &to, Qt::MouseButton button, Qt::KeyboardModifiers keys = Qt::NoModifier) {
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, button, keys);
    QApplication::sendEvent(canvas, &move);
    QMouseEvent release(QEvent::MouseButtonRelease, to, button, Qt::NoButton, keys);
    QApplication::sendEvent(canvas, &release);
  }
  /// The fixture's network, far higher than wide, in a plot with scales.
  static void showTallBesideScales(ViewFixture &f) {
    for (const char *name : {"B", "C", "D"})
      f.net.element(QString::fromLatin1(name))->set(QStringLiteral("x"), QStringLiteral("100"));
    f.net.element(QStringLiteral("C"))->set(QStringLiteral("y"), QStringLiteral("500"));
    f.net.element(QStringLiteral("D"))->set(QStringLiteral("y"), QStringLiteral("1000"));
    f.plot().show();
    f.show();
    PlotSettings settings = f.plot().settings();
    settings.showXYaxes = true;
    settings.colorScalePos = 0; // nothing at the right leaves room for the last number of the lower scale
    f.plot().setSettings(settings);
    f.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
    f.picture();
  }
  /// For as long as it lives, a wheel step is done at once.
  struct PlainWheel {
    PlainWheel() { GeneralSettings::instance().setValue(QStringLiteral("smooth zoom"), QStringLiteral("0")); }
    ~PlainWheel() { GeneralSettings::instance().reset(); }
  };
  static double unitsRatio(NetPlot &plot) {
    const QSizeF units = plot.plot()->unitsPerPixel();
    return units.width() / units.height();
  }
};

void TestNetPlot::fitsTheNetworkWithOneScale() {
  ViewFixture f;
  f.show();
  f.picture();
  QVERIFY(f.plot().plot()->visibleRect().contains(QRectF(0, 0, 200, 100)));
  QVERIFY(qAbs(unitsRatio(f.plot()) - 1.0) < 1e-6);
  QVERIFY(f.plot().plot()->visibleRect().width() < 300); // and not too small
  QCOMPARE(f.plot().minimumSize(), QSize(200, 200));
}

void TestNetPlot::resizeKeepsOneScale() {
  ViewFixture f;
  f.plot().show();
  f.show();
  for (const QSize size : {QSize(900, 300), QSize(300, 900), QSize(200, 200)}) {
    f.plot().resize(size);
    f.picture();
    QVERIFY(qAbs(unitsRatio(f.plot()) - 1.0) < 1e-6);
    QVERIFY(f.plot().plot()->visibleRect().contains(QRectF(0, 0, 200, 100)));
  }
  f.plot().zoomer()->zoomIn({100, 0});
  const QPointF center = f.plot().plot()->visibleRect().center();
  f.plot().resize(700, 300);
  f.picture();
  QVERIFY(qAbs(unitsRatio(f.plot()) - 1.0) < 1e-6);
  QVERIFY((f.plot().plot()->visibleRect().center() - center).manhattanLength() < 1e-6);
}

void TestNetPlot::wheelZoomsAboutTheCursor() {
  const PlainWheel plain;
  ViewFixture f;
  f.plot().show();
  f.show();
  const QPoint place(100, 80);
  const QPointF under = f.plot().plot()->toPlot(place);
  const double before = f.plot().plot()->visibleRect().width();
  turnWheel(f.plot(), place, 120);
  QVERIFY(qAbs(before / f.plot().plot()->visibleRect().width() - 1.5) < 1e-6);
  QVERIFY((f.plot().plot()->toPlot(place) - under).manhattanLength() < 1e-6 * before);
  turnWheel(f.plot(), place, -120);
  QVERIFY(qAbs(f.plot().plot()->visibleRect().width() - before) < 1e-6 * before);
  QVERIFY((f.plot().plot()->toPlot(place) - under).manhattanLength() < 1e-6 * before);
}

void TestNetPlot::wheelCollectsSmallTurns() {
  const PlainWheel plain;
  ViewFixture f;
  f.plot().show();
  f.show();
  const double before = f.plot().plot()->visibleRect().width();
  turnWheel(f.plot(), {50, 50}, 56); // 7 degrees
  turnWheel(f.plot(), {50, 50}, 56);
  QCOMPARE(f.plot().plot()->visibleRect().width(), before);
  turnWheel(f.plot(), {50, 50}, 8);
  QVERIFY(f.plot().plot()->visibleRect().width() < before);
}

void TestNetPlot::zoomStopsAtItsLimits() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotZoom &zoomer = *f.plot().zoomer();
  zoomer.setZoomLimits(QRectF(0, 0, 200, 0.5), QSizeF(20, 5));
  QCOMPARE(f.plot().zoomer()->limits().largest.width(), 220.0);
  QCOMPARE(f.plot().zoomer()->limits().largest.height(), 1.1);
  QCOMPARE(f.plot().zoomer()->limits().smallest.width(), 2.2);    // the span is not smaller
  QCOMPARE(f.plot().zoomer()->limits().smallest.height(), 0.011); // a span of 5 does not count
  for (int i = 0; i < 100; ++i)
    zoomer.zoomIn({100, 50});
  const QRectF deepest = zoomer.zoomRect();
  zoomer.zoomIn({100, 50});
  QCOMPARE(zoomer.zoomRect(), deepest);
  for (int i = 0; i < 100; ++i)
    zoomer.zoomOut({100, 50});
  QCOMPARE(zoomer.zoomRectIndex(), 0U);
  zoomer.zoomOut({100, 50});
  QCOMPARE(zoomer.zoomRect(), zoomer.zoomBase());
}

void TestNetPlot::theDeepestViewStays_data() {
  QTest::addColumn<QSize>("size");
  QTest::addColumn<bool>("oneScale");
  QTest::newRow("wide plot") << QSize(900, 300) << true;
  QTest::newRow("high plot") << QSize(300, 900) << true;
  QTest::newRow("two scales") << QSize(900, 300) << false;
}

// However the canvas and the network are shaped, what lies under the cursor stays there, also in the step that reaches the
// limit and in those that go no further.
void TestNetPlot::theDeepestViewStays() {
  QFETCH(QSize, size);
  QFETCH(bool, oneScale);
  ViewFixture f;
  f.plot().resize(size);
  f.plot().show();
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.fixAxesRatio = oneScale;
  f.plot().setSettings(settings);
  f.plot().zoomer()->fitBase();
  f.picture();
  const QwtFastPlot &area = *f.plot().plot();
  const QPoint place(area.canvas()->width() / 4, area.canvas()->height() / 5);
  const QPointF anchor = area.toPlot(place);
  for (int i = 0; i < 25; ++i) {
    const QRectF before = area.visibleRect();
    f.plot().zoomer()->zoomIn(anchor);
    const double pixel = qMax(area.unitsPerPixel().width(), area.unitsPerPixel().height());
    QVERIFY2((area.toPlot(place) - anchor).manhattanLength() < 1e-3 * pixel, QByteArray::number(i));
    QVERIFY(area.visibleRect().width() <= before.width());
  }
  const QRectF deepest = area.visibleRect();
  QVERIFY(deepest.width() >= f.plot().zoomer()->limits().smallest.width() * (1.0 - 1e-6));
  QVERIFY(deepest.height() >= f.plot().zoomer()->limits().smallest.height() * (1.0 - 1e-6));
  const uint views = f.plot().zoomer()->zoomRectIndex();
  f.plot().zoomer()->zoomIn(anchor);
  QCOMPARE(area.visibleRect(), deepest);
  QCOMPARE(f.plot().zoomer()->zoomRectIndex(), views);
}

void TestNetPlot::zoomsBesideScalesOfAnyWidth_data() {
  QTest::addColumn<double>("factor"); // 0 for the wheel
  QTest::addColumn<int>("steps");
  QTest::newRow("small steps") << 1.05 << 60;
  QTest::newRow("large steps") << 1.5 << 20;
  QTest::newRow("smooth wheel") << 0.0 << 20;
}

// Other numbers at the scales leave the canvas another size, which asks for another view, which has other numbers.
void TestNetPlot::zoomsBesideScalesOfAnyWidth() {
  QFETCH(double, factor);
  QFETCH(int, steps);
  const bool isWheel = factor == 0.0;
  ViewFixture f;
  showTallBesideScales(f);
  const QwtFastPlot &area = *f.plot().plot();
  GeneralSettings::instance().setValue(QStringLiteral("smooth zoom duration"), QStringLiteral("20"));
  for (int width = isWheel ? 640 : 300; width <= 700; width += isWheel ? 30 : 10) {
    f.plot().resize(width, 400 + width % 37);
    f.plot().zoomer()->fitAll();
    f.picture();
    QVERIFY(area.visibleRect().contains(QRectF(0, 0, 100, 1000)));
    const QPoint place(area.canvas()->width() / 2 + 40, area.canvas()->height() / 2 - 30);
    const QPointF anchor = area.toPlot(place);
    for (int i = 0; i < steps; ++i) {
      if (isWheel) {
        QCursor::setPos(area.canvas()->mapToGlobal(place));
        turnWheel(f.plot(), place, 240);
        QTRY_VERIFY(f.plot().findChild<QTimeLine *>() == nullptr);
      } else {
        f.plot().zoomer()->zoomIn(anchor, factor);
      }
      if (i == steps / 2)
        f.plot().resize(width + 7, 500);
      f.picture();
      QVERIFY2(qAbs(unitsRatio(f.plot()) - 1.0) < 1e-6 && (isWheel || area.visibleRect().contains(anchor)),
               qPrintable(QStringLiteral("%1 %2 %3").arg(width).arg(i).arg(unitsRatio(f.plot()), 0, 'g', 10)));
    }
    QVERIFY(area.visibleRect().height() < (isWheel ? 900.0 : 200.0));
  }
  GeneralSettings::instance().reset();
}

void TestNetPlot::stackIsCutBack() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotZoom &zoomer = *f.plot().zoomer();
  const QRectF base = zoomer.zoomBase();
  for (int i = 0; i < 260; ++i)
    zoomer.zoom(base.translated(i + 1, 0));
  QVERIFY(zoomer.zoomRectIndex() < 10);
  QCOMPARE(zoomer.zoomBase(), base);
  QVERIFY((zoomer.zoomRect().center() - base.translated(260, 0).center()).manhattanLength() < 1e-6);
}

void TestNetPlot::keysMoveAndFit() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  const QRectF before = f.plot().plot()->visibleRect();
  QTest::keyClick(canvas, Qt::Key_Right);
  QVERIFY(qAbs(f.plot().plot()->visibleRect().left() - before.left() - before.width() * 0.25) < 1e-6);
  QTest::keyClick(canvas, Qt::Key_Up);
  QVERIFY(f.plot().plot()->visibleRect().center().y() > before.center().y());
  QTest::keyClick(canvas, Qt::Key_Plus);
  QVERIFY(f.plot().plot()->visibleRect().width() < before.width());
  QTest::keyClick(canvas, Qt::Key_Home);
  QVERIFY(qAbs(f.plot().plot()->visibleRect().left() - before.left()) < 1e-6);
}

void TestNetPlot::rectangleZoomKeepsItsWholeRectangle() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  const QRectF meant(f.plot().plot()->toPlot({50, 100}), f.plot().plot()->toPlot({350, 60})); // broad and low
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, {50, 100});
  drag(canvas, {350, 60}, Qt::LeftButton);
  const QRectF shown = f.plot().plot()->visibleRect();
  QVERIFY(shown.adjusted(-1, -1, 1, 1).contains(meant.normalized()));
  QVERIFY(shown.width() < meant.width() * 1.05);
}

void TestNetPlot::dialogsEndADrag_data() {
  QTest::addColumn<int>("button");
  QTest::newRow("rectangle") << int(Qt::LeftButton);
  QTest::newRow("movement") << int(Qt::MiddleButton);
}

void TestNetPlot::dialogsEndADrag() {
  QFETCH(int, button);
  ViewFixture f;
  f.plot().show();
  GeneralSettings::instance().setValue(QStringLiteral("MousePattern_Panning"), QStringLiteral("MidButton"));
  f.show();
  GeneralSettings::instance().reset();
  NetPlot &plot = f.plot();
  QWidget *canvas = plot.plot()->canvas();
  const QRectF before = plot.zoomer()->zoomRect();
  QTest::mousePress(canvas, Qt::MouseButton(button), Qt::NoModifier, {100, 60});
  QMouseEvent begun(QEvent::MouseMove, QPointF(200, 120), Qt::NoButton, Qt::MouseButtons(button), Qt::NoModifier);
  QApplication::sendEvent(canvas, &begun);
  QVERIFY(button == Qt::MiddleButton || plot.zoomer()->isActive());
  {
    QDialog question(&plot);
    question.setModal(true);
    question.show();
  }
  QVERIFY(!plot.zoomer()->isActive() && !f.control.picker()->isActive());
  QMouseEvent later(QEvent::MouseMove, QPointF(300, 180), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(canvas, &later);
  QTest::mouseRelease(canvas, Qt::MouseButton(button), Qt::NoModifier, {300, 180});
  QCOMPARE(plot.zoomer()->zoomRect(), before);
}

void TestNetPlot::panningMovesTheView_data() {
  QTest::addColumn<QString>("pattern");
  QTest::addColumn<int>("button");
  QTest::addColumn<int>("modifier");
  QTest::newRow("left with Ctrl") << QStringLiteral("Left_Ctrl") << int(Qt::LeftButton) << int(Qt::ControlModifier);
  QTest::newRow("right") << QStringLiteral("RightButton") << int(Qt::RightButton) << int(Qt::NoModifier);
  QTest::newRow("middle") << QStringLiteral("MidButton") << int(Qt::MiddleButton) << int(Qt::NoModifier);
}

void TestNetPlot::panningMovesTheView() {
  QFETCH(QString, pattern);
  QFETCH(int, button);
  QFETCH(int, modifier);
  ViewFixture f;
  f.plot().show();
  GeneralSettings::instance().setValue(QStringLiteral("MousePattern_Panning"), pattern); // as a workspace brings it
  f.show();
  GeneralSettings::instance().reset();
  const QRectF before = f.plot().plot()->visibleRect();
  QWidget *canvas = f.plot().plot()->canvas();
  QTest::mousePress(canvas, Qt::MouseButton(button), Qt::KeyboardModifier(modifier), {100, 100});
  drag(canvas, {150, 100}, Qt::MouseButton(button), Qt::KeyboardModifier(modifier));
  const QRectF after = f.plot().plot()->visibleRect();
  QVERIFY(qAbs((before.left() - after.left()) / f.plot().plot()->unitsPerPixel().width() - 50.0) < 1.5);
  QVERIFY(qAbs(after.width() - before.width()) < 1e-6 * before.width());
  QVERIFY((f.plot().zoomer()->zoomRect().center() - after.center()).manhattanLength() < 1e-6);
}

void TestNetPlot::rightClickAsksForAMenu() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  int asked = 0;
  connect(&f.plot(), &NetPlot::contextMenuRequested, this, [&asked](QMenu *contextMenu) {
    ++asked;
    contextMenu->addAction(QStringLiteral("entry"));
  });
  QTest::mouseClick(canvas, Qt::RightButton, Qt::NoModifier, {20, 20});
  QCOMPARE(asked, 1);
  auto *shown = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  QVERIFY(shown != nullptr);
  shown->close();
  QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, {20, 20});
  drag(canvas, {40, 40}, Qt::RightButton);
  QCOMPARE(asked, 1);
}

void TestNetPlot::doubleClickOnTheScale() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const QSignalSpy asked(&f.plot(), &NetPlot::drawConfigurationRequested);
  QTest::mouseDClick(f.plot().plot()->axisWidget(QwtPlot::xTop), Qt::LeftButton);
  QCOMPARE(asked.count(), 0);
  QTest::mouseDClick(f.plot().plot()->axisWidget(QwtPlot::yRight), Qt::LeftButton);
  QCOMPARE(asked.count(), 1);
}

void TestNetPlot::legend_data() {
  QTest::addColumn<int>("corner");
  QTest::addColumn<bool>("shown");
  QTest::addColumn<bool>("right");
  QTest::addColumn<bool>("top");
  QTest::newRow("hidden") << 0 << false << false << false;
  QTest::newRow("top left") << 1 << true << false << true;
  QTest::newRow("bottom left") << 2 << true << false << false;
  QTest::newRow("top right") << 3 << true << true << true;
  QTest::newRow("bottom right") << 4 << true << true << false;
  QTest::newRow("no corner") << 5 << false << false << false;
}

void TestNetPlot::legend() {
  QFETCH(int, corner);
  QFETCH(bool, shown);
  QFETCH(bool, right);
  QFETCH(bool, top);
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.legendPos = corner;
  settings.functions[Aspect::EdgeColor].isAbsolute = true;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  QCOMPARE(f.plot().legend().isVisible(), shown);
  if (!shown)
    return;
  QCOMPARE(f.plot().legend().label().text(), QStringLiteral("Color: abs. p\nWidth: abs. diameter"));
  for (int i = 0; i < 2; ++i) {
    const QPointF center = f.plot().plot()->visibleRect().center();
    QCOMPARE(f.plot().legend().value().x() > center.x(), right);
    QCOMPARE(f.plot().legend().value().y() > center.y(), top);
    const double width = f.plot().legend().label().textSize().width();
    const double left = f.plot().plot()->transform(QwtPlot::xBottom, f.plot().legend().value().x());
    QVERIFY(right || qAbs(left - width * 0.5 - 10.0) < 1.5);
    f.plot().zoomer()->zoomIn({30, 30}); // it stays in its corner
  }
}

void TestNetPlot::clearForgetsTheNetwork() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.clear();
  f.net.clear();
  f.picture(); // must not look at elements that are gone
  f.plot().update().updatePlot(NetUpdate::Elements::Renewed, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  QVERIFY(f.plot().update().geometry().nodes().empty());
}

void TestNetPlot::smoothZoomAddsUp() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotZoom &zoomer = *f.plot().zoomer();
  const double before = zoomer.zoomRect().width();
  turnWheel(f.plot(), {300, 200}, 120);
  turnWheel(f.plot(), {300, 200}, 120);
  QTRY_VERIFY(zoomer.zoomRect().width() < before / 1.2);
  QTRY_VERIFY(f.plot().findChild<QTimeLine *>() == nullptr);
  QCOMPARE(zoomer.zoomRectIndex(), 1U); // one movement, one entry of the stack
  zoomer.zoom(-1);
  QCOMPARE(zoomer.zoomRect().width(), before);
}

void TestNetPlot::smoothZoomTurnsBack() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotZoom &zoomer = *f.plot().zoomer();
  GeneralSettings::instance().setValue(QStringLiteral("smooth zoom duration"), QStringLiteral("60000"));
  GeneralSettings::instance().setValue(QStringLiteral("smooth zoom steps"), QStringLiteral("6000"));
  turnWheel(f.plot(), {300, 200}, 1200);
  QTRY_VERIFY(zoomer.zoomRect().width() < zoomer.zoomBase().width());
  GeneralSettings::instance().setValue(QStringLiteral("smooth zoom duration"), QStringLiteral("50"));
  GeneralSettings::instance().setValue(QStringLiteral("smooth zoom steps"), QStringLiteral("0")); // no division by it
  turnWheel(f.plot(), {300, 200}, -120); // the long way in ends at once
  QTRY_VERIFY(f.plot().findChild<QTimeLine *>() == nullptr);
  GeneralSettings::instance().reset();
}

void TestNetPlot::slowDrawingsAreMovedAsAPicture() {
  /// Takes as long as a large network, on whatever machine.
  class SlowItem : public QwtPlotItem {
  public:
    void draw(QPainter *, const QwtScaleMap &, const QwtScaleMap &, const QRectF &) const override { QThread::msleep(time); }
    unsigned long time = 20; // ms
  };
  ViewFixture f;
  f.plot().show();
  f.show();
  QwtFastPlot &area = *f.plot().plot();
  PlotZoom &zoomer = *f.plot().zoomer();
  SlowItem slow;
  slow.attach(&area);
  QVERIFY(QTest::qWaitForWindowExposed(&f.plot()));
  area.replot();
  area.canvas()->repaint();
  zoomer.beginMove();
  QVERIFY(area.isFrozen());
  zoomer.zoomIn({100, 50}, 2.0);
  QVERIFY(qAbs(area.findChild<CanvasOverlay *>()->pictureArea().width() / area.canvas()->width() - 2.0) < 0.05);
  zoomer.endMove();
  QVERIFY(!area.isFrozen());
  slow.time = 0;
  area.replot();
  area.canvas()->repaint();
  zoomer.beginMove();
  const bool isMoved = area.isFrozen() && area.frameTime() < 8.0; // quick ones are drawn as they are
  zoomer.endMove();
  QVERIFY(!isMoved);
  slow.detach();
}

void TestNetPlot::wheelZoomsToElements() {
  const PlainWheel plain;
  ViewFixture f;
  f.plot().show();
  f.show();
  GeneralSettings::instance().setValue(QStringLiteral("zoom to element"), QStringLiteral("1"));
  const QPoint node = f.plot().plot()->canvas()->mapFrom(&f.plot(), f.pixel(100, 0));
  turnWheel(f.plot(), node + QPoint(5, 5), 120);
  const QPoint now = f.plot().plot()->canvas()->mapFrom(&f.plot(), f.pixel(100, 0));
  QVERIFY((now - node).manhattanLength() <= 2); // the node kept its place, not the cursor's
}

void TestNetPlot::viewsBackAndForward() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotZoom &zoomer = *f.plot().zoomer();
  QWidget *canvas = f.plot().plot()->canvas();
  const QRectF whole = zoomer.zoomRect();
  zoomer.zoomIn({50, 50});
  const QRectF near = zoomer.zoomRect();
  QTest::keyClick(canvas, Qt::Key_Left, Qt::AltModifier);
  QCOMPARE(zoomer.zoomRect(), whole);
  QTest::keyClick(canvas, Qt::Key_Left, Qt::AltModifier); // no further
  QCOMPARE(zoomer.zoomRect(), whole);
  QTest::keyClick(canvas, Qt::Key_Right, Qt::AltModifier);
  QCOMPARE(zoomer.zoomRect(), near);
}

void TestNetPlot::bookmarks() {
  const QTemporaryDir folder;
  const QString settings = folder.filePath(QStringLiteral("plotsettings.ini"));
  ViewFixture f;
  f.control.showNetData(settings);
  PlotSettings applied = f.plot().settings();
  applied.edgeMag = 7.0; // applied, not saved
  f.plot().setSettings(applied);
  NetData part = f.net;
  NetVisControl window(part, QStringLiteral("a subnet's window"));
  window.showNetData(settings);

  QString reason;
  const ViewBookmarks::Bookmark odd{QStringLiteral("Nord; 50 % | \"x\""), QRectF(1.5, -2e6, 1.0 / 3.0, 4)};
  QVERIFY2(f.control.bookmarks().add(odd, &reason), qPrintable(reason));
  QVERIFY(window.bookmarks().add({QStringLiteral("ü"), QRectF(0, 0, 1e-3, 7)}, &reason));
  QVERIFY(f.control.bookmarks().add({QStringLiteral("ü"), QRectF(0, 0, 2, 7)}, &reason));
  const std::vector<ViewBookmarks::Bookmark> all = window.bookmarks().all();
  QCOMPARE(all.size(), std::size_t(2));
  QCOMPARE(all[0].name, odd.name);
  QCOMPARE(all[0].view, odd.view);
  QCOMPARE(all[1].view.width(), 2.0);
  QVERIFY(f.control.bookmarks().forget(odd.name, &reason));
  QCOMPARE(window.bookmarks().all().size(), std::size_t(1));
  QVERIFY(!QFile::exists(settings)); // which would decide how the network looks
  QFile file(folder.filePath(QStringLiteral("viewbookmarks.csv")));
  QVERIFY(file.open(QIODevice::WriteOnly));
  file.write("a;1;2;3\nb;1;2;0;4\nc;x;inf;3;4\n\n;\n");
  file.close();
  QVERIFY(window.bookmarks().all().empty());

  // What the program does not understand it does not take away.
  QVERIFY(window.bookmarks().add({QStringLiteral("d"), QRectF(0, 0, 1, 1)}, &reason));
  QVERIFY(window.bookmarks().forget(QStringLiteral("d"), &reason));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QCOMPARE(file.readAll(), QByteArray("a;1;2;3\nb;1;2;0;4\nc;x;inf;3;4\n\n;\n"));
  file.close();
  QVERIFY(file.open(QIODevice::WriteOnly));
  const QByteArray large = "e;1;2;3;4\n" + QByteArray(1 << 20, '#'); // more than is read
  file.write(large);
  file.close();
  for (const bool adds : {true, false}) {
    reason.clear();
    QVERIFY(!(adds ? window.bookmarks().add(odd, &reason) : window.bookmarks().forget(odd.name, &reason)));
    QVERIFY2(reason.contains(QStringLiteral("viewbookmarks.csv")), qPrintable(reason));
  }
  QVERIFY(window.bookmarks().all().empty());
  QVERIFY(window.bookmarks().fault().contains(QStringLiteral("viewbookmarks.csv")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QVERIFY(file.readAll() == large);
}

void TestNetPlot::zoomBaseGrows() {
  ViewFixture f;
  f.plot().show();
  f.show();
  PlotZoom &zoomer = *f.plot().zoomer();
  zoomer.zoomIn({0, 0});
  zoomer.resetZoomBase(QRectF(1000, 1000, 10, 10));
  QCOMPARE(zoomer.zoomRectIndex(), 0U);
  QVERIFY(zoomer.zoomBase().contains(QRectF(0, 0, 1009, 1009)));
  QVERIFY(qAbs(f.plot().zoomer()->limits().largest.width() / zoomer.zoomBase().width() - 1.1) < 1e-9);
}

void TestNetPlot::coordinatesInDegreesZoomAsOthers_data() {
  QTest::addColumn<double>("factor");
  QTest::newRow("degrees") << 0.04; // eight of them across
  QTest::newRow("fractions") << 1e-9;
  QTest::newRow("huge") << 1e12;
}

/// As many steps out as in, and as deep as in a network of metres.
void TestNetPlot::coordinatesInDegreesZoomAsOthers() {
  QFETCH(double, factor);
  const PlainWheel plain;
  ViewFixture metres;
  scale(metres, 1e4);
  ViewFixture other;
  scale(other, factor);
  int steps[2] = {0, 0};
  for (ViewFixture *f : {&metres, &other}) {
    f->plot().show();
    f->show();
    PlotZoom &zoomer = *f->plot().zoomer();
    const QPointF center = zoomer.zoomRect().center();
    for (int i = 0; i < 6; ++i)
      zoomer.zoomIn(center);
    for (int i = 0; i < 5; ++i) {
      zoomer.zoomOut(center);
      QVERIFY(zoomer.zoomRectIndex() != 0U);
    }
    QVERIFY(std::abs(zoomer.zoomBase().width() / zoomer.zoomRect().width() - 1.5) < 1e-6);
    zoomer.fitAll();
    int &deep = steps[f == &other ? 1 : 0];
    for (double before = 0.0; before != zoomer.zoomRect().width() && deep < 100; ++deep) {
      before = zoomer.zoomRect().width();
      zoomer.zoomIn(center);
    }
  }
  QVERIFY2(steps[1] >= steps[0] - 6, qPrintable(QString::number(steps[1])));
  QVERIFY2(steps[1] >= 12 && steps[1] < 40, qPrintable(QString::number(steps[1])));
}

void TestNetPlot::peopleReadTheNetworksOwnCoordinates() {
  ViewFixture f;
  scale(f, 0.04); // 8 by 4 degrees
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis"), QStringLiteral("auto"));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.zoom"), QStringLiteral("2"));
  f.plot().show();
  f.show();
  QVERIFY(f.plot().visibleArea().contains(QRectF(0, 0, 8, 4)) && f.plot().visibleArea().width() < 12);
  QVERIFY(f.plot().update().determineVisibleSymbols().empty()); // more than four degrees are in view
  const QRectF part(7, 1, 1, 1);
  f.plot().showArea(part);
  f.plot().update().requestPixtest(-1);
  QVERIFY((f.plot().visibleArea().center() - part.center()).manhattanLength() < 1e-9);
  QVERIFY(f.plot().visibleArea().height() < 1.5);
  QCOMPARE(f.plot().update().determineVisibleSymbols().size(), std::size_t(1));
  const QwtPlot &area = *f.plot().plot();
  QVERIFY(!area.axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick).isEmpty());
  for (const double tick : area.axisScaleDiv(QwtPlot::xBottom).ticks(QwtScaleDiv::MajorTick)) {
    const double told = QLocale().toDouble(area.axisScaleDraw(QwtPlot::xBottom)->label(tick).text());
    QVERIFY(told > 5.0 && told < 10.0);
  }
}

void TestNetPlot::thresholdsAreJudgedByTheViewOfTheNetwork_data() {
  QTest::addColumn<QString>("before");
  QTest::newRow("nothing") << QString();
  QTest::newRow("a small network") << QStringLiteral("small");
  QTest::newRow("a part of it") << QStringLiteral("part");
}

/// What was shown before must not leave a mark on what is visible now.
void TestNetPlot::thresholdsAreJudgedByTheViewOfTheNetwork() {
  QFETCH(QString, before);
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis"), QStringLiteral("auto"));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.zoom"), QStringLiteral("2000"));
  f.plot().show();
  if (before == QLatin1String("small")) {
    f.show();
    QCOMPARE(f.plot().update().determineVisibleSymbols().size(), std::size_t(1));
  }
  f.plot().update().setNetData(nullptr);
  scale(f, 100.0);
  f.show();
  if (before == QLatin1String("part")) {
    f.plot().zoomer()->zoom(QRectF(19500, 4500, 1000, 1000));
    f.plot().update().requestPixtest(-1);
    QCOMPARE(f.plot().update().determineVisibleSymbols().size(), std::size_t(1));
    f.show();
  }
  QVERIFY(f.plot().plot()->visibleRect().height() > 10000);
  QVERIFY(f.plot().update().determineVisibleSymbols().empty());
}

void TestNetPlot::thresholdsHoldWithoutAWindowToo() {
  for (int threshold = 60; threshold < 200; threshold += 10) {
    std::size_t seen[2];
    for (const bool isShown : {false, true}) {
      ViewFixture f;
      f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis"), QStringLiteral("auto"));
      f.net.element(QStringLiteral("CD"))->set(QStringLiteral("vis.zoom"), QString::number(threshold));
      if (isShown)
        f.plot().show();
      f.show();
      f.picture();
      seen[isShown ? 1 : 0] = f.plot().update().determineVisibleSymbols().size();
    }
    QVERIFY2(seen[0] == seen[1], qPrintable(QString::number(threshold)));
  }
}

void TestNetPlot::showsAnElement() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QVERIFY(f.control.showElement(QStringLiteral("D")));
  QVERIFY((f.plot().zoomer()->zoomRect().center() - QPointF(200, 100)).manhattanLength() < 1e-6);
  QVERIFY(f.plot().zoomer()->zoomRect().width() < 60);
  f.control.showElement(QStringLiteral("AB"));
  QVERIFY(f.plot().plot()->visibleRect().contains(QRectF(1, 0, 98, 0.1)));
  QVERIFY(!f.control.showElement(QStringLiteral("nowhere")));
}

/// Whoever zooms says when labels are wanted: no request of the single step comes before and takes its place.
void TestNetPlot::labelsWaitForWhoeverZooms() {
  constexpr int PastThrottle = 150; // ms
  GeneralSettings &general = GeneralSettings::instance();
  general.setValue(QStringLiteral("perform label placement"), QStringLiteral("always"));
  general.setValue(QStringLiteral("perform label placement msec"), QStringLiteral("100"));
  ViewFixture f;
  f.plot().show();
  f.show();
  const auto hasLabels = [&f] {
    return !f.plot().update().labels().empty();
  };
  QVERIFY(hasLabels()); // those of a new network stand at once
  QWidget *canvas = f.plot().plot()->canvas();
  QCursor::setPos(canvas->mapToGlobal(canvas->mapFrom(&f.plot(), f.pixel(100, 0))));
  QTest::qWait(PastThrottle);
  QElapsedTimer timer;
  timer.start();
  QTest::keyPress(canvas, Qt::Key_Plus);
  QVERIFY(!hasLabels()); // those of another scale are gone
  QTRY_VERIFY_WITH_TIMEOUT(hasLabels(), 4000);
  QVERIFY2(timer.elapsed() > 1900, qPrintable(QString::number(timer.elapsed())));
  QTest::keyPress(canvas, Qt::Key_Plus);
  QTest::qWait(PastThrottle);
  timer.start();
  QTest::keyRelease(canvas, Qt::Key_Plus);
  QTRY_VERIFY(hasLabels());
  QVERIFY2(timer.elapsed() > 200 && timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
  QTest::qWait(PastThrottle);
  f.plot().zoomer()->resetZoomBase(QRectF(-20, -20, 300, 200));
  QVERIFY(hasLabels()); // asked for at once
  general.reset();
}

NIVRA_TEST(TestNetPlot);
#include "tst_netplot.moc"
