#include "canvas/qwtfastplot.h"
#include "interaction/plotzoom.h"
#include "mnemonics.h"
#include "nivraviewer.h"
#include "workspacefixture.h"

#include <support/nivratest.h>
#include <tools/nivrapropviewer.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QDockWidget>
#include <QMenu>

#include <algorithm>
#include <cmath>

/// The drawing in the real window, with docks that come and go, by mouse and keys.
class TestCanvasInWindow : public QObject {
  Q_OBJECT

private slots:
  void homeShowsTheWholeNetworkAfterADockOpened_data() { networks(); }
  void homeShowsTheWholeNetworkAfterADockOpened();
  void whatComesIntoViewIsLabelled();
  void dockThatComesAndGoesLeavesTheView();
  void keysWorkAsSoonAsTheNetworkIsThere();
  void symbolsOfTheFirstViewAreTheirElements();
  void machinesUnderTheCursorAreOffered();
  void editPropertiesOfBringsTheViewer();

private:
  static QString file(const QString &number) {
    return QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/GasLib-%1/N1/N1.scen.jsn").arg(number);
  }
  void networks() const {
    QTest::addColumn<QString>("scenario");
    QTest::newRow("three nodes") << m_workspace.scenario();
    for (const char *number : {"11", "40", "135"}) {
      if (QFile::exists(file(QLatin1String(number))))
        QTest::newRow(number) << file(QLatin1String(number));
    }
  }
  static NetPlot &plotOf(NivraViewer &viewer) { return *viewer.visControl()->plot(); }
  static QPoint pixel(NetPlot &plot, const QPointF &place) {
    return QPointF(plot.plot()->transform(QwtPlot::xBottom, place.x()), plot.plot()->transform(QwtPlot::yLeft, place.y()))
        .toPoint();
  }
  /// Opens or closes the dock, and waits until the canvas has its new size.
  static bool setDock(NivraViewer &viewer, bool isShown) {
    const QWidget *canvas = plotOf(viewer).plot()->canvas();
    const QSize before = canvas->size();
    viewer.findChild<QDockWidget *>(QStringLiteral("configureDraw"))->setVisible(isShown);
    return QTest::qWaitFor([&] { return canvas->size() != before; }, 5000);
  }
  static bool legendIsInItsCorner(NetPlot &plot) {
    const QRectF area = plot.functionLegendArea();
    return std::abs(area.left() - 10.0) < 2.0 && std::abs(area.top() - 10.0) < 2.0;
  }
  static void showLegend(NetPlot &plot) {
    PlotSettings settings = plot.settings();
    settings.legendPos = 1; // top left
    plot.setSettings(settings);
    plot.update().updatePlot();
  }

  const WorkspaceFixture m_workspace;
};

void TestCanvasInWindow::homeShowsTheWholeNetworkAfterADockOpened() {
  QFETCH(QString, scenario);
  NivraViewer viewer;
  viewer.open(scenario);
  NetPlot &plot = plotOf(viewer);
  PlotZoom &zoomer = *plot.zoomer();
  const QRectF extent = plot.update().geometry().mainExtent();
  showLegend(plot);
  const QPointF corner = extent.topLeft() + QPointF(extent.width(), extent.height()) * 0.2;
  for (int i = 0; i < 4; ++i)
    zoomer.zoomIn(corner);
  QVERIFY(!plot.plot()->visibleRect().contains(extent));

  for (const bool isShown : {true, false}) { // narrower, then broad again
    QVERIFY(setDock(viewer, isShown));
    QVERIFY(legendIsInItsCorner(plot));
    QTest::keyClick(plot.plot()->canvas(), Qt::Key_Home);
    const QRectF shown = plot.plot()->visibleRect();
    QVERIFY(shown.contains(extent));
    QVERIFY(shown.width() < extent.width() * 1.2 || shown.height() < extent.height() * 1.2); // as large as there is room
    QVERIFY(legendIsInItsCorner(plot));
    zoomer.zoomIn(corner);
    zoomer.zoomIn(corner);
  }
  viewer.resize(700, 900); // another shape altogether
  QVERIFY(QTest::qWaitFor([&] { return plot.width() <= 700; }));
  QTest::keyClick(plot.plot()->canvas(), Qt::Key_Home);
  QVERIFY(plot.plot()->visibleRect().contains(extent));
  for (int i = 0; i < 3; ++i) // and out again step by step
    zoomer.zoomIn(corner);
  for (int i = 0; i < 4; ++i)
    zoomer.zoomOut(corner);
  QVERIFY(plot.plot()->visibleRect().contains(extent));
}

void TestCanvasInWindow::whatComesIntoViewIsLabelled() {
  const QString scenario = file(QStringLiteral("135"));
  if (!QFile::exists(scenario))
    QSKIP("the public network is not there");
  NivraViewer viewer;
  viewer.open(scenario);
  NetPlot &plot = plotOf(viewer);
  QVERIFY(setDock(viewer, true));
  for (int i = 0; i < 4; ++i)
    plot.zoomer()->zoomIn(plot.update().geometry().mainExtent().center());
  plot.update().relabelNow();
  QTRY_VERIFY(!plot.update().pixtest().isPending());
  const QRectF before = plot.plot()->visibleRect();
  const auto labelledOutside = [&] {
    std::vector<NetGeometry::Item> items = plot.update().unplacedLabels();
    for (const Label &label : plot.update().labels())
      items.push_back(label.candidate.item);
    return std::count_if(items.begin(), items.end(), [&](NetGeometry::Item item) {
      return !before.contains(plot.update().geometry().center(item).value_or(before.center()));
    });
  };
  const auto known = labelledOutside(); // those whose middle lies outside
  QVERIFY(setDock(viewer, false));
  QTRY_VERIFY(labelledOutside() > known);
}

void TestCanvasInWindow::dockThatComesAndGoesLeavesTheView() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  NetPlot &plot = plotOf(viewer);
  plot.zoomer()->zoomIn({30, 30});
  plot.zoomer()->zoomIn({30, 30});
  const QRectF before = plot.plot()->visibleRect();
  for (int i = 0; i < 3; ++i) {
    QVERIFY(setDock(viewer, true));
    QCOMPARE(plot.zoomer()->zoomRect(), plot.plot()->visibleRect()); // what later steps go out from
    QVERIFY(setDock(viewer, false));
  }
  QVERIFY((plot.plot()->visibleRect().topLeft() - before.topLeft()).manhattanLength() < 1e-6);
  QVERIFY((plot.plot()->visibleRect().bottomRight() - before.bottomRight()).manhattanLength() < 1e-6);
}

void TestCanvasInWindow::keysWorkAsSoonAsTheNetworkIsThere() {
  NivraViewer viewer;
  viewer.open(m_workspace.scenario());
  QApplication::setActiveWindow(&viewer);
  QVERIFY(QTest::qWaitForWindowActive(&viewer));
  NetPlot &plot = plotOf(viewer);
  QCOMPARE(QApplication::focusWidget(), plot.plot()->canvas());
  const double left = plot.plot()->visibleRect().left();
  QTest::keyClick(viewer.windowHandle(), Qt::Key_Right); // where the window system sends it
  QVERIFY(plot.plot()->visibleRect().left() > left);
  QTest::keyClick(viewer.windowHandle(), Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(viewer.visControl()->net().selection().size(), 5);
}

void TestCanvasInWindow::symbolsOfTheFirstViewAreTheirElements() {
  const QString scenario = file(QStringLiteral("135"));
  if (!QFile::exists(scenario))
    QSKIP("the public network is not there");
  NivraViewer viewer;
  viewer.open(scenario);
  NetPlot &plot = plotOf(viewer);
  const NetData &net = viewer.visControl()->net();
  int compressors = 0;
  for (const SymbolLayer::Placed &symbol : plot.update().determineVisibleSymbols()) {
    const element &source = *plot.update().geometry().source(symbol.item);
    QTest::mouseClick(plot.plot()->canvas(), Qt::LeftButton, Qt::NoModifier, symbol.center.toPoint());
    QCOMPARE(net.selection().names(), Selection::Names{source.value(QStringLiteral("name"))});
    compressors += source.value(QStringLiteral("type")) == QLatin1String("c") ? 1 : 0;
  }
  QVERIFY(compressors > 10);
}

void TestCanvasInWindow::machinesUnderTheCursorAreOffered() {
  const QString scenario = file(QStringLiteral("135"));
  if (!QFile::exists(scenario))
    QSKIP("the public network is not there");
  NivraViewer viewer;
  viewer.open(scenario);
  NetPlot &plot = plotOf(viewer);
  NetVisControl &control = *viewer.visControl();
  QWidget *canvas = plot.plot()->canvas();
  const auto symbols = plot.update().determineVisibleSymbols();
  const auto compressor = std::find_if(symbols.begin(), symbols.end(), [&](const SymbolLayer::Placed &symbol) {
    return plot.update().geometry().source(symbol.item)->value(QStringLiteral("type")) == QLatin1String("c");
  });
  QVERIFY(compressor != symbols.end());
  const QString name = plot.update().geometry().source(compressor->item)->value(QStringLiteral("name"));
  const auto offered = [&] { // by the menu of a right click
    QTest::mouseClick(canvas, Qt::RightButton, Qt::NoModifier, compressor->center.toPoint());
    auto *shown = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QStringList texts;
    for (const QAction *entry : shown->actions()) {
      const QString text = Mnemonics::plain(entry->text());
      if (!entry->isEnabled() || !text.startsWith(QLatin1String("Open Characteristics")))
        continue;
      texts.append(text);
      if (entry->menu() == nullptr)
        continue;
      for (const QAction *machine : entry->menu()->actions())
        texts.append(Mnemonics::plain(machine->text()).section(QLatin1Char('\t'), 0, 0));
    }
    shown->close();
    return texts;
  };
  QVERIFY2(!offered().filter(name).isEmpty(), "for the compressor that is drawn there");
  QCOMPARE(control.net().selection().names(), Selection::Names{name});
  control.picker()->selectAll(); // machines are buried in the selection, but they lie under the cursor
  QVERIFY2(offered().contains(name), qPrintable(offered().join(QLatin1Char('\n'))));
}

void TestCanvasInWindow::editPropertiesOfBringsTheViewer() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(
      "{\n\"A\":{\"obj_type\":\"node\",\"x\":0,\"y\":0}\n,\"B\":{\"obj_type\":\"node\",\"x\":90,\"y\":0}\n"
      ",\"R\":{\"obj_type\":\"regulator\",\"node1\":\"A\",\"node2\":\"B\"}\n"
      ",\"M\":{\"obj_type\":\"subnet\",\"variant\":\"metering_station\",\"pins\":\"A;B\",\"x\":45,\"y\":60,"
      "\"elements\":\"R\"}\n}\n");
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  NetVisControl &control = *viewer.visControl();
  auto *properties = viewer.findChild<NivraPropViewer *>();
  QVERIFY(!properties->isVisible());
  emit control.editPropertiesRequested({QStringLiteral("R")});
  QVERIFY(properties->isVisible());
  QCOMPARE(properties->elementName(), QStringLiteral("R"));
  QMenu contextMenu;
  control.picker()->markElement(QStringLiteral("M"));
  emit control.plot()->contextMenuRequested(&contextMenu);
  bool isOffered = false;
  for (const QMenu *sub : contextMenu.findChildren<QMenu *>())
    isOffered = isOffered || (sub->title() == QLatin1String("Edit Properties of") && sub->isEnabled());
  QVERIFY(isOffered);
}

NIVRA_TEST(TestCanvasInWindow);
#include "tst_canvasinwindow.moc"
