#include "canvas/qwtfastplot.h"
#include "panels.h"
#include "profile/pathprofile.h"
#include "profile/pathprofilepage.h"
#include "profile/pathsearch.h"
#include "profile/profilefiles.h"
#include "profile/scenariooverlays.h"

#include <support/nivratest.h>
#include <tools/elidedlabel.h>
#include <tools/pathprofiledock.h>
#include <view/netviscontrol.h>
#include <view/pathmark.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTextStream>

#include <cmath>
#include <limits>

namespace {

const QString Example = QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/");
const QString Shared = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/");

QJsonObject json(const QString &path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// What the files of a case say, read without the program.
struct Files {
  QJsonObject geometry;
  QJsonObject results;
  QStringList nodes;

  QJsonObject setPoints;

  Files(const QString &geometryFile, const QString &scenario)
      : geometry(json(geometryFile))
      , results(json(scenario + QStringLiteral(".res.jsn")))
      , setPoints(json(scenario + QStringLiteral(".scen.jsn"))) {
    for (auto it = geometry.begin(); it != geometry.end(); ++it) {
      if (it.value().toObject().value(QStringLiteral("obj_type")) == QLatin1String("node"))
        nodes.append(it.key());
    }
  }
  /// The highest pressure of a node: of the scenario, else of the geometry.
  double bound(const QString &name) const {
    for (const QJsonValue &point : setPoints.value(name).toArray()) {
      if (point.toObject().value(QStringLiteral("property")) == QLatin1String("pmax"))
        return point.toObject().value(QStringLiteral("value")).toDouble();
    }
    return geometry.value(name).toObject().value(QStringLiteral("pmax")).toDouble();
  }
  double number(const QString &name, const char *property) const {
    return results.value(name).toObject().value(QLatin1String(property)).toDouble(NetData::NoValue);
  }
};

/// Shortest lengths in km from a node to all, by the algorithm of Bellman and Ford over the properties of the edges.
QHash<QString, double> lengthsFrom(const QString &start, const NetData &net, bool isAlongFlow) {
  struct Edge {
    QString from, to;
    double length;
  };
  std::vector<Edge> edges;
  for (const elements::Entry &entry : net.edges()) {
    const element &e = entry.value;
    const QString state = e.value(QStringLiteral("state"));
    if (state == QLatin1String("closed") || state == QLatin1String("off"))
      continue;
    const double flow = e.value(QStringLiteral("q")).toDouble();
    Edge edge{e.value(QStringLiteral("node1")), e.value(QStringLiteral("node2")),
              e.value(QStringLiteral("length")).toDouble() / 1000.0};
    if (!isAlongFlow || flow > 1e-10)
      edges.push_back(edge);
    std::swap(edge.from, edge.to);
    if (!isAlongFlow || flow < -1e-10)
      edges.push_back(edge);
  }
  QHash<QString, double> lengths{{start, 0.0}};
  for (bool hasChanged = true; hasChanged;) {
    hasChanged = false;
    for (const Edge &edge : edges) {
      const auto from = lengths.constFind(edge.from);
      if (from == lengths.constEnd())
        continue;
      const double length = *from + edge.length;
      if (length < lengths.value(edge.to, std::numeric_limits<double>::infinity()) - 1e-9) {
        lengths.insert(edge.to, length);
        hasChanged = true;
      }
    }
  }
  return lengths;
}

/// The window with a network, a path and its panel.
struct Window {
  explicit Window(const QString &file) {
    viewer.resize(1200, 900);
    viewer.open(file);
    viewer.show();
    QApplication::setActiveWindow(&viewer);
  }
  NetVisControl &control() { return *viewer.visControl(); }
  PathProfileDock &dock() { return panelOf<PathProfileDock>(viewer); }
  PathProfilePage &page() { return panelOf<PathProfilePage>(viewer); }
  ProfileChart &chart() { return page().chart(); }
  const PathProfile &profile() { return *chart().content().profile; }
  PathMark &mark() { return *control().plot()->findChild<PathMark *>(); }
  QString told() { return page().findChild<ElidedLabel *>()->text(); }
  void select(const QStringList &names) {
    Selection selection;
    for (const QString &name : names)
      Topology::select(control().net(), name, selection);
    control().picker()->setSelection(selection);
  }
  void ask() {
    control().plot()->setFocus();
    QTest::keyClick(control().plot()->focusProxy(), Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
  }
  static void settle() {
    for (int i = 0; i < 5; ++i)
      QApplication::processEvents();
  }
  QWidget *canvas(std::size_t panel) { return chart().panels()[panel]->canvas(); }
  QPoint placeOf(const QString &name) {
    const PathProfile::Row &row = profile().rows()[profile().find(name)];
    return {qRound(chart().panels()[0]->transform(QwtPlot::xBottom, (row.from + row.to) / 2.0)), 10};
  }

  NivraViewer viewer;
};

} // namespace

/// The path profile in the real window, on the example and on public networks.
class TestPathProfileInWindow : public QObject {
  Q_OBJECT

private slots:
  void pathsAreTheShortestAndSayWhatNodesSay_data();
  void pathsAreTheShortestAndSayWhatNodesSay();
  void selectionBecomesAPath();
  void chartAndDrawingPointAtEachOther();
  void wayPointsAreEdited();
  void whatCannotBeIsTold();
  void scenariosLieOverOneAnother();
  void leavesTheProgram();
};

void TestPathProfileInWindow::pathsAreTheShortestAndSayWhatNodesSay_data() {
  QTest::addColumn<QString>("folder");
  QTest::addColumn<QString>("scenario");
  QTest::addColumn<QString>("start");
  QTest::addColumn<QString>("end");
  QTest::addColumn<double>("length");
  // The longest of the shortest ways along the flow, found by a script of its own; in the example three pipes.
  QTest::newRow("GasLib-40") << Shared + QStringLiteral("GasLib-40/GasLib-40") << QStringLiteral("N1")
                             << QStringLiteral("sink_1") << QStringLiteral("innode_5") << 413.92308596702;
  QTest::newRow("GasLib-135") << Shared + QStringLiteral("GasLib-135/GasLib-135") << QStringLiteral("N1")
                              << QStringLiteral("sink_42") << QStringLiteral("sink_89") << 1135.1483989;
  QTest::newRow("example") << Example + QStringLiteral("DE_H2") << QStringLiteral("S5") << QStringLiteral("N_Oldenburg")
                           << QStringLiteral("N_Minden") << 37.6143 + 42.9305 + 49.8423;
}

void TestPathProfileInWindow::pathsAreTheShortestAndSayWhatNodesSay() {
  QFETCH(QString, folder);
  QFETCH(QString, scenario);
  const QString base = QFileInfo(folder).path() + QLatin1Char('/') + scenario + QLatin1Char('/') + scenario;
  const Files files(folder + QStringLiteral(".geom.jsn"), base);
  if (files.nodes.isEmpty())
    QSKIP("the public networks are not there");
  Window window(base + QStringLiteral(".scen.jsn"));
  const NetData &net = window.control().net();
  const PathSearch search(net);
  const auto lengthOf = [&](const QString &from, const QString &to, PathChoice::Way way) {
    const NetworkPath path = search.find({from, to}, {way, false}).path;
    double sum = path.isEmpty() ? -1.0 : 0.0;
    for (const NetworkPath::Step &step : path.steps)
      sum += step.length;
    return sum;
  };
  for (int i = 0; i < files.nodes.size(); i += 7) {
    const QString from = files.nodes[i];
    for (const bool isAlongFlow : {false, true}) {
      const QHash<QString, double> expected = lengthsFrom(from, net, isAlongFlow);
      for (int k = 1; k < files.nodes.size(); k += 11) {
        const QString to = files.nodes[k];
        if (to == from)
          continue;
        const double length = lengthOf(from, to, isAlongFlow ? PathChoice::Way::AlongFlow : PathChoice::Way::Shortest);
        QVERIFY2(std::abs(length - expected.value(to, -1.0)) < 1e-6, qPrintable(from + QLatin1Char(' ') + to));
      }
    }
  }
  QFETCH(QString, start);
  QFETCH(QString, end);
  QFETCH(double, length);
  const PathProfile profile(net, search.find({start, end}, {}).path);
  QVERIFY(std::abs(profile.length() - length) < 1e-6);
  const ProfileQuantity pressure = profile.quantities().front();
  QCOMPARE(pressure.property.name(), QStringLiteral("p"));
  double sum = 0.0;
  int compared = 0;
  for (const PathProfile::Row &row : profile.rows()) {
    QVERIFY(std::abs(row.from - sum) < 1e-6);
    const QJsonObject geometry = files.geometry.value(row.name).toObject();
    if (!row.isNode) {
      sum += geometry.value(QStringLiteral("length")).toDouble() / 1000.0;
      if (files.number(row.name, "q") != NetData::NoValue)
        QVERIFY2((files.number(row.name, "q") > 0.0) == row.isForward, qPrintable(row.name));
    } else if (files.number(row.name, "p") != NetData::NoValue) {
      QCOMPARE(profile.value(row, pressure), files.number(row.name, "p"));
      QCOMPARE(profile.value(row, pressure, pressure.upper, PathProfile::stored), files.bound(row.name));
      ++compared;
    }
  }
  QVERIFY(compared > toQt(profile.rows().size()) / 4);
}

void TestPathProfileInWindow::selectionBecomesAPath() {
  Window window(Example + QStringLiteral("S5/S5.scen.jsn"));
  window.select({QStringLiteral("N_Oldenburg"), QStringLiteral("N_Minden"), QStringLiteral("N_Cloppenburg")});
  window.ask();
  QVERIFY(window.dock().isVisible());
  QVERIFY(!window.chart().isEmpty());
  QCOMPARE(window.page().wayPoints().size(), 3);
  QCOMPARE(window.mark().size(), window.page().legs().size());
  QVERIFY(window.mark().size() > 3);
  // A right click on a node offers both ends.
  window.select({QStringLiteral("N_Cloppenburg")});
  QMenu menu;
  emit window.control().plot()->contextMenuRequested(&menu);
  QAction *from = nullptr;
  for (QAction *action : menu.actions()) {
    if (action->text() == QLatin1String("Profile from here"))
      from = action;
  }
  QVERIFY(from != nullptr && from->isEnabled());
  from->trigger();
  QCOMPARE(window.page().wayPoints().first(), QStringLiteral("N_Cloppenburg"));
  // Closing the panel takes the marks away.
  window.dock().close();
  QCOMPARE(window.mark().size(), std::size_t(0));
  window.dock().show();
  QCOMPARE(window.mark().size(), window.page().legs().size());
  // Reading again keeps the way points.
  const QStringList before = window.page().wayPoints();
  window.viewer.reload();
  QCOMPARE(window.page().wayPoints(), before);
  QCOMPARE(window.mark().size(), window.page().legs().size());
}

void TestPathProfileInWindow::chartAndDrawingPointAtEachOther() {
  Window window(Example + QStringLiteral("S5/S5.scen.jsn"));
  window.select({QStringLiteral("N_Oldenburg"), QStringLiteral("N_Minden")});
  window.ask();
  const QString pipe = QStringLiteral("P_Rehden_Minden_1");
  QTest::mouseMove(window.canvas(0), window.placeOf(pipe));
  QVERIFY2(window.told().contains(pipe), qPrintable(window.told()));
  QCOMPARE(window.profile().rows()[window.chart().cursorRow()].name, pipe);
  QTest::mouseClick(window.canvas(0), Qt::LeftButton, Qt::NoModifier, window.placeOf(pipe));
  QCOMPARE(window.control().net().selection().names(), (Selection::Names{pipe}));
  emit window.control().picker()->hovered(QStringLiteral("CS_Rehden_Out"));
  QCOMPARE(window.profile().rows()[window.chart().cursorRow()].name, QStringLiteral("CS_Rehden_Out"));
  emit window.control().picker()->hovered(QStringLiteral("N_Emden")); // not on the path
  QCOMPARE(window.chart().cursorRow(), NoIndex);
  // By keys from one element to the next; dragging zooms, Home shows everything.
  window.chart().setFocus();
  QTest::keyClick(&window.chart(), Qt::Key_Right);
  QTest::keyClick(&window.chart(), Qt::Key_Right);
  QCOMPARE(window.chart().cursorRow(), Index(1));
  const double whole = window.chart().range().width();
  QTest::mousePress(window.canvas(0), Qt::LeftButton, Qt::NoModifier, {100, 20});
  QTest::mouseMove(window.canvas(0), {150, 20});
  QTest::mouseRelease(window.canvas(0), Qt::LeftButton, Qt::NoModifier, {200, 20});
  QVERIFY(window.chart().range().width() < whole / 2.0);
  QTest::keyClick(&window.chart(), Qt::Key_Home);
  QCOMPARE(window.chart().range().width(), whole);
}

void TestPathProfileInWindow::wayPointsAreEdited() {
  Window window(Example + QStringLiteral("S5/S5.scen.jsn"));
  window.select({QStringLiteral("N_Oldenburg"), QStringLiteral("N_Minden")});
  window.ask();
  auto *list = window.page().findChild<QListView *>(QStringLiteral("listView_wayPoints"));
  const QStringList nodes = window.page().wayPoints();
  const double length = window.profile().length();
  list->setFocus();
  list->setCurrentIndex(list->model()->index(0, 0));
  QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
  QCOMPARE(window.page().wayPoints(), (QStringList{nodes[1], nodes[0]}));
  QVERIFY(window.chart().isEmpty()); // against the flow
  window.page().findChild<QComboBox *>()->setCurrentIndex(1);
  QVERIFY(std::abs(window.profile().length() - length) < 1e-9);
  list->model()->setData(list->model()->index(0, 0), QStringLiteral("N_Huntorf"));
  Window::settle();
  QCOMPARE(window.profile().rows().front().name, QStringLiteral("N_Huntorf"));
  window.select({QStringLiteral("N_Emden")});
  QTest::keyClick(list, Qt::Key_Insert);
  QCOMPARE(window.page().wayPoints().last(), QStringLiteral("N_Emden"));
  list->setCurrentIndex(list->model()->index(2, 0));
  QTest::keyClick(list, Qt::Key_Delete);
  Window::settle();
  QCOMPARE(window.page().wayPoints().size(), 2);
}

void TestPathProfileInWindow::whatCannotBeIsTold() {
  Window window(Example + QStringLiteral("S5/S5.scen.jsn"));
  window.dock().show();
  const auto hint = [&] {
    for (const QLabel *label : window.page().findChildren<QLabel *>()) {
      if (label->isVisible() && label->wordWrap())
        return label->text();
    }
    return QString();
  };
  QVERIFY(hint().contains(QStringLiteral("Path profile from selection")));
  window.page().setWayPoints({QStringLiteral("CS_Rehden_In"), QStringLiteral("N_Nowhere")});
  QCOMPARE(hint(), QStringLiteral("N_Nowhere is no node of this network."));
  QCOMPARE(window.mark().size(), std::size_t(0));
}

void TestPathProfileInWindow::scenariosLieOverOneAnother() {
  Window window(Example + QStringLiteral("S5/S5.scen.jsn"));
  window.select({QStringLiteral("N_Oldenburg"), QStringLiteral("N_Minden")});
  window.ask();
  auto *overlays = window.page().findChild<ScenarioOverlays *>();
  QMenu menu;
  overlays->fillMenu(menu);
  QCOMPARE(menu.actions().size(), 2); // S1 and S3
  overlays->choose({QStringLiteral("S1"), QStringLiteral("S3")});
  QTRY_COMPARE(window.chart().content().overlays.size(), std::size_t(2));
  const QJsonObject results = json(Example + QStringLiteral("S1/S1.res.jsn"));
  int compared = 0;
  for (const PathProfile::Row &row : window.profile().rows()) {
    const QJsonValue expected = results.value(row.name).toObject().value(QStringLiteral("p"));
    if (!row.isNode || expected.isUndefined())
      continue;
    QCOMPARE(window.chart().content().overlays.front().valueOf(row, PropertyKey::find("p")), expected.toDouble());
    QCOMPARE(window.control().net().element(row.name)->value(QStringLiteral("p")).toDouble(),
             window.profile().value(row, window.chart().content().quantities.front())); // nothing of it in the network
    ++compared;
  }
  QVERIFY(compared > 5);
}

void TestPathProfileInWindow::leavesTheProgram() {
  Window window(Example + QStringLiteral("S5/S5.scen.jsn"));
  window.select({QStringLiteral("N_Oldenburg"), QStringLiteral("N_Minden")});
  window.ask();
  auto *files = window.chart().findChild<ProfileFiles *>();
  QTemporaryDir folder;
  QString reason;
  for (const char *suffix : {"png", "svg", "pdf"})
    QVERIFY2(files->savePicture(folder.filePath(QStringLiteral("profile.") + QLatin1String(suffix)), &reason),
             qPrintable(reason));
  QFile table(folder.filePath(QStringLiteral("profile.csv")));
  QVERIFY2(files->saveTable(table.fileName(), TableExport::Format::PointCsv, &reason), qPrintable(reason));
  QVERIFY(table.open(QIODevice::ReadOnly));
  QCOMPARE(QString::fromUtf8(table.readAll()).count(QLatin1Char('\n')), toQt(window.profile().rows().size()) + 1);
  const QImage picture(folder.filePath(QStringLiteral("profile.png")));
  QVERIFY(picture.width() > 2000);
  QVERIFY(QSvgRenderer(folder.filePath(QStringLiteral("profile.svg"))).isValid());
  QTest::keyClick(&window.chart(), Qt::Key_C, Qt::ControlModifier);
  QCOMPARE(QApplication::clipboard()->image().size(), picture.size());
  QVERIFY(!files->savePicture(folder.filePath(QStringLiteral("none/profile.png")), &reason));
  QVERIFY(!reason.isEmpty());
}

NIVRA_TEST(TestPathProfileInWindow);
#include "tst_pathprofileinwindow.moc"
