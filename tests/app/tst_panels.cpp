#include "panels.h"
#include "workspacefixture.h"

#include <base/generalsettings.h>
#include <support/letters.h>
#include <support/nivratest.h>
#include <tools/nivrafindings.h>
#include <tools/nivrasearch.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QDockWidget>
#include <QScrollArea>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>

/// The panels around the drawing: beside each other in tabs, of a width that is theirs alone, and usable on a small screen.
class TestPanels : public QObject {
  Q_OBJECT

private slots:
  void widthsAreNotThoseOfNames();
  void panelsOfASideShareTabs();
  void smallWindowsLeaveRoomForTheDrawing();

private:
  static QByteArray geometryWith(const QByteArray &name) {
    return "{\n\"A" + name + "\":{\"obj_type\":\"node\",\"x\":0,\"y\":0,\"p\":50,\"vis.layer\":\"" + name +
           "\",\"remark\":\"" + name + "\"}\n,\"B\":{\"obj_type\":\"node\",\"x\":100,\"y\":0,\"p\":48,\"" + name +
           "\":\"1\"}\n,\"P" + name + "\":{\"obj_type\":\"pipe\",\"node1\":\"A" + name +
           "\",\"node2\":\"B\",\"q\":5,\"length\":100}\n,\"K" + name +
           "\":{\"obj_type\":\"compressor\",\"node1\":\"B\",\"node2\":\"A" + name + "\",\"q\":5,\"no such\":\"" + name +
           "\"}\n}\n";
  }
  static QList<QDockWidget *> docksOf(NivraViewer &viewer) {
    return viewer.findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly);
  }
  /// The least and the wanted width of every panel, with an element selected in each way that fills them.
  static QMap<QString, QPair<int, int>> widths(NivraViewer &viewer, const QByteArray &name) {
    WorkspaceFixture files;
    files.writeGeometry(geometryWith(name));
    files.write(QStringLiteral("CASE/catdef.csv"), "\"" + name + "\",\"" + name + "\",\"n\",\"p\",\"" + name + "\"\n");
    viewer.open(files.scenario());
    for (QDockWidget *dock : docksOf(viewer)) {
      dock->show();
      dock->raise();
      QCoreApplication::processEvents();
    }
    const QString element = QStringLiteral("A") + QString::fromUtf8(name);
    viewer.elementAction(element, NetPicker::EleAction::ShowInfo);
    emit viewer.visControl()->openCharacteristicsRequested({QStringLiteral("K") + QString::fromUtf8(name)});
    panelOf<NivraSearch>(viewer).defineSearch(
        {QString::fromUtf8(name), QStringLiteral(".*"), QStringLiteral(".*"), QString()}, false);
    QMap<QString, QPair<int, int>> found;
    for (QDockWidget *dock : docksOf(viewer)) {
      dock->show();
      dock->raise();
      QCoreApplication::processEvents();
      found.insert(dock->objectName(), {dock->minimumSizeHint().width(), dock->sizeHint().width()});
    }
    return found;
  }
};

void TestPanels::widthsAreNotThoseOfNames() {
  NivraViewer viewer;
  viewer.resize(1400, 900);
  const auto usual = widths(viewer, "x");
  QVERIFY(usual.size() >= 9);
  QMap<QString, int> shown;
  for (const QDockWidget *dock : docksOf(viewer))
    shown.insert(dock->objectName(), dock->width());
  const int window = viewer.width();
  const auto filled = widths(viewer, QByteArray(300, 'w'));
  const auto isBelow = [&viewer](const QString &name) {
    return viewer.dockWidgetArea(viewer.findChild<QDockWidget *>(name)) == Qt::BottomDockWidgetArea;
  };
  QStringList faults;
  for (auto panel = usual.cbegin(); panel != usual.cend(); ++panel) {
    const auto now = filled.value(panel.key());
    const QString told = QStringLiteral("%1: least %2 and %3, wanted %4 and %5")
                             .arg(panel.key())
                             .arg(panel->first)
                             .arg(now.first)
                             .arg(panel->second)
                             .arg(now.second);
    if (now != *panel || now.first > (isBelow(panel.key()) ? 860 : 465) * letterScale())
      faults.append(told);
  }
  QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
  for (const QDockWidget *dock : docksOf(viewer))
    QVERIFY2(dock->width() == shown.value(dock->objectName()), qPrintable(dock->objectName()));
  QCOMPARE(viewer.width(), window);
}

void TestPanels::panelsOfASideShareTabs() {
  NivraViewer viewer;
  WorkspaceFixture files;
  viewer.open(files.scenario());
  for (QDockWidget *dock : docksOf(viewer))
    dock->show();
  QCoreApplication::processEvents();
  for (QDockWidget *dock : docksOf(viewer)) {
    const auto area = viewer.dockWidgetArea(dock);
    int beside = 0;
    for (QDockWidget *other : docksOf(viewer))
      beside += viewer.dockWidgetArea(other) == area ? 1 : 0;
    QVERIFY2(viewer.tabifiedDockWidgets(dock).size() == beside - 1, qPrintable(dock->objectName()));
  }
}

void TestPanels::smallWindowsLeaveRoomForTheDrawing() {
  NivraViewer viewer;
  WorkspaceFixture files;
  viewer.open(files.scenario());
  const QSize small = QSize(900, 600) * letterScale();
  viewer.resize(small);
  QVERIFY2(
      viewer.minimumSizeHint().width() <= small.width() && viewer.minimumSizeHint().height() <= small.height(),
      qPrintable(QStringLiteral("%1 x %2").arg(viewer.minimumSizeHint().width()).arg(viewer.minimumSizeHint().height())));
  for (QDockWidget *dock : docksOf(viewer)) {
    dock->show();
    dock->raise();
    QCoreApplication::processEvents();
    const QWidget &drawing = *viewer.visControl()->plot();
    const bool isBelow = viewer.dockWidgetArea(dock) == Qt::BottomDockWidgetArea;
    QVERIFY2(QTest::qWaitFor([&] { return isBelow ? drawing.height() >= 260 : drawing.width() >= 440; }, 1000),
             qPrintable(QStringLiteral("%1: %2 x %3").arg(dock->objectName()).arg(drawing.width()).arg(drawing.height())));
    QVERIFY2(viewer.size() == small, qPrintable(dock->objectName()));
    dock->hide();
  }
}

NIVRA_TEST(TestPanels);
#include "tst_panels.moc"
