#include "caseopening.h"
#include "loadprogress.h"
#include "networkloader.h"
#include "panels.h"
#include "scenarios/referenceview.h"
#include "scenarios/scenariodate.h"
#include "scenarios/scenariolist.h"
#include "scenarios/scenariolistmodel.h"
#include "scenarios/scenariosdock.h"
#include "scenarios/scenariostrip.h"
#include "workspacefixture.h"

#include <base/fileaccess.h>
#include <drawing/colorscale.h>
#include <model/comparison.h>
#include <model/displayunits.h>
#include <model/names.h>
#include <model/netmetadata.h>
#include <support/nivratest.h>
#include <view/netpicker.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QSlider>
#include <QStatusBar>
#include <QTreeView>

#include <algorithm>
#include <cmath>

/// The scenarios of a case: the list, and one in the place of another.
class TestScenarios : public QObject {
  Q_OBJECT

private slots:
  void exchangeIsLikeOpening_data();
  void exchangeIsLikeOpening();
  void exchangeOfWhatFormulasAndFilesOverwrite();
  void failedAndCancelledLeaveWhatWas();
  void movedElementsAreReadAgain();
  void datesOfNames_data();
  void datesOfNames();
  void listOfManyIsInOrder();
  void keysStepAndEverythingStays();
  void panelSwitchesAndFilters();
  void brokenScenarioLeavesTheOldOne();
  void differenceWithItselfIsZero_data();
  void differenceWithItselfIsZero();
  void differenceIsThatOfTwoOpenings();
  void differencesAreDrawnAboutZero();
  void drawingsBesideAreLinked();
  void sliderGoesOverDates();

private:
  static QString example(const char *scenario) {
    return QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/%1/%1.scen.jsn").arg(QLatin1String(scenario));
  }
  static QStringList nominations(const QString &folder);
};

namespace {

/// A network as it is after opening.
struct Opened {
  NetData net;
  NetworkLoader loader{net};

  explicit Opened(const QString &path) {
    if (loader.resolve(path)) {
      loader.readConfiguration();
      loader.readNetwork({});
    }
  }
  NetworkLoader::Exchange exchange(const QString &path, const Progress &progress = {}) {
    NetworkLoader wanted(net);
    return wanted.resolve(path) ? loader.exchangeScenario(wanted, progress) : NetworkLoader::Exchange::Failed;
  }
};

QStringList contents(NetData &net) {
  QStringList lines;
  net.forEach(NetData::AllTypes,
              [&lines](element &e) { lines.append(e.value(Names::all().name) + QLatin1Char('\n') + e.lines()); });
  return lines;
}

QStringList findings(const NetworkLoader &loader) {
  QStringList texts;
  for (const FindingList::Group &group : loader.noticed()) {
    for (const Finding &finding : group.findings)
      texts.append(group.name + QStringLiteral(": ") + finding.logText());
  }
  texts.sort();
  return texts;
}

/// The first that differ, for the log of the test.
QString difference(const QStringList &a, const QStringList &b) {
  for (int i = 0; i < std::max(a.size(), b.size()); ++i) {
    if (a.value(i) != b.value(i))
      return QStringLiteral("%1\n---\n%2").arg(a.value(i), b.value(i));
  }
  return QString();
}

const PropertyKey P = PropertyKey::intern("p");

} // namespace

/// Ten published nominations as a case of ten scenarios; empty where they are not there.
QStringList TestScenarios::nominations(const QString &folder) {
  const QString data = QStringLiteral(NIVRA_SOURCE_DIR "/../shared/data/public/");
  if (!QFileInfo::exists(data + QStringLiteral("GasLib-40-nominations")))
    return {};
  QProcess convert;
  convert.start(QStringLiteral(NIVRA_CONVERT), {data + QStringLiteral("GasLib-40.net"), folder + QStringLiteral("/N40"),
                                                data + QStringLiteral("GasLib-40-nominations")});
  convert.waitForFinished();
  QStringList files;
  const ScenarioList list = ScenarioList::ofCase(folder + QStringLiteral("/N40"), true);
  for (const ScenarioEntry &entry : list.entries())
    files.append(entry.file);
  return files;
}

void TestScenarios::exchangeIsLikeOpening_data() {
  QTest::addColumn<QString>("which");
  QTest::newRow("example: subnets, formulas, bounds, machines") << QStringLiteral("example");
  QTest::newRow("public nominations") << QStringLiteral("nominations");
}

void TestScenarios::exchangeIsLikeOpening() {
  QFETCH(QString, which);
  QTemporaryDir folder;
  const QStringList files = which == QLatin1String("example") ? QStringList{example("S1"), example("S3"), example("S5")}
                                                              : nominations(folder.path());
  if (files.isEmpty())
    QSKIP("the public data are not here");
  Opened changing(files.first());
  QVERIFY(!changing.net.isEmpty());
  QStringList way = files.mid(1);
  way << files.first() << files.last();
  for (const QString &file : qAsConst(way)) {
    QCOMPARE(changing.exchange(file), NetworkLoader::Exchange::Done);
    Opened fresh(file);
    const QStringList now = contents(changing.net);
    const QStringList wanted = contents(fresh.net);
    QVERIFY2(now == wanted, qPrintable(difference(now, wanted)));
    QVERIFY2(findings(changing.loader) == findings(fresh.loader),
             qPrintable(difference(findings(changing.loader), findings(fresh.loader))));
    QCOMPARE(changing.loader.files().size(), fresh.loader.files().size());
    QCOMPARE(changing.loader.gases().size(), fresh.loader.gases().size());
    QCOMPARE(changing.loader.workspace().caption(), fresh.loader.workspace().caption());
  }
  FileAccess::confineTo(QString());
}

/// A scenario overwrites what the geometry says, and a formula what both say; fixes overwrite set points of the same file.
void TestScenarios::exchangeOfWhatFormulasAndFilesOverwrite() {
  WorkspaceFixture files;
  files.write(QStringLiteral("CASE/S1/S1.scen.jsn"),
              "{\n\"A\":[{\"property\":\"p\",\"value\":7},{\"property\":\"p\",\"value\":8}]\n"
              ",\"B\":[{\"property\":\"tset\",\"value\":3}]\n}\n");
  files.write(QStringLiteral("CASE/S1/S1.fix.jsn"), "{\n\"A\":[{\"property\":\"p\",\"value\":9}]\n}\n");
  files.write(QStringLiteral("CASE/S1/S1.res.jsn"), "{\n\"P1\":{\"dp\":4}\n,\"A\":{\"t\":280}\n}\n");
  files.write(QStringLiteral("CASE/CASE.formulas"), "dp(p) = p@node1@ELE - t@node1@ELE\nx2(n) = p * 2\n");
  files.write(QStringLiteral("CASE/CASE.constraints"), "p(n) in 10 .. 55\n");
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n\"C\":[{\"property\":\"p\",\"value\":20}]\n}\n");
  files.write(QStringLiteral("CASE/S2/own.formulas"), "own(n) = p + 1\n");
  const QString second = files.path(QStringLiteral("CASE/S2/S2.scen.jsn"));
  Opened changing(files.geometry());
  for (const QString &file : {files.scenario(), second, files.scenario(), second}) {
    QCOMPARE(changing.exchange(file), NetworkLoader::Exchange::Done);
    Opened fresh(file);
    QVERIFY2(contents(changing.net) == contents(fresh.net),
             qPrintable(difference(contents(changing.net), contents(fresh.net))));
    QCOMPARE(findings(changing.loader), findings(fresh.loader));
    QCOMPARE(changing.net.metaData()->anyAttribute(QStringLiteral("own")) != nullptr, file == second);
  }
  QCOMPARE(changing.net.element(QStringLiteral("A"))->value(P), QStringLiteral("50"));
  QVERIFY(!changing.net.element(QStringLiteral("P1"))->contains(QStringLiteral("dp"))); // without temperature none
  QVERIFY(!changing.net.element(QStringLiteral("B"))->contains(QStringLiteral("tset")));
  FileAccess::confineTo(QString());
}

void TestScenarios::failedAndCancelledLeaveWhatWas() {
  Opened changing(example("S5"));
  const QStringList before = contents(changing.net);
  const QStringList told = findings(changing.loader);
  const auto files = changing.loader.files();
  QCOMPARE(changing.exchange(QStringLiteral(NIVRA_SOURCE_DIR "/example/DE_H2/none/none.scen.jsn")),
           NetworkLoader::Exchange::Failed);
  QCOMPARE(contents(changing.net), before);
  int cancelled = 0;
  for (int stopsAt = 1; changing.loader.workspace().currentScenario()->workDir == QLatin1String("S5"); stopsAt += 7) {
    int asked = 0; // while files are read, and while formulas compute
    if (changing.exchange(example("S1"), [&](double) { return ++asked < stopsAt; }) == NetworkLoader::Exchange::Done)
      break;
    ++cancelled;
    QVERIFY(changing.loader.wasCancelled() && !changing.loader.error().isEmpty());
    QVERIFY2(contents(changing.net) == before, qPrintable(difference(contents(changing.net), before)));
    QCOMPARE(findings(changing.loader), told);
    QVERIFY(changing.loader.files() == files);
  }
  QVERIFY(cancelled > 0);
  FileAccess::confineTo(QString());
}

void TestScenarios::movedElementsAreReadAgain() {
  WorkspaceFixture files;
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n\"A\":[{\"property\":\"x\",\"value\":-50}]\n}\n");
  Opened changing(files.scenario());
  const QStringList before = contents(changing.net);
  QCOMPARE(changing.exchange(files.path(QStringLiteral("CASE/S2/S2.scen.jsn"))), NetworkLoader::Exchange::Impossible);
  QCOMPARE(contents(changing.net), before);
  FileAccess::confineTo(QString());
}

void TestScenarios::datesOfNames_data() {
  QTest::addColumn<QString>("name");
  QTest::addColumn<QString>("date");
  QTest::newRow("day") << QStringLiteral("2024-01-31") << QStringLiteral("2024-01-31T00:00");
  QTest::newRow("in words") << QStringLiteral("gas_day_2024_02_29_cold") << QStringLiteral("2024-02-29T00:00");
  QTest::newRow("compact with hour") << QStringLiteral("N20231005_0630") << QStringLiteral("2023-10-05T06:30");
  QTest::newRow("German") << QStringLiteral("Lauf 5.10.2023") << QStringLiteral("2023-10-05T00:00");
  QTest::newRow("no such day") << QStringLiteral("2023-02-30") << QString();
  QTest::newRow("a number") << QStringLiteral("nomination_202301011") << QString();
  QTest::newRow("none") << QStringLiteral("homogen-south") << QString();
}

void TestScenarios::datesOfNames() {
  QFETCH(QString, name);
  QFETCH(QString, date);
  const ScenarioDate::Date found = ScenarioDate::of(name);
  QCOMPARE(found.isKnown() ? found.at.toString(QStringLiteral("yyyy-MM-ddTHH:mm")) : QString(), date);
}

void TestScenarios::listOfManyIsInOrder() {
  WorkspaceFixture files;
  for (int day = 0; day < 400; ++day) {
    const QString name = QDate(2023, 1, 1).addDays(day).toString(QStringLiteral("dd.MM.yyyy"));
    files.write(QStringLiteral("CASE/%1/a.scen.jsn").arg(name), "not read");
  }
  for (const char *name : {"case10", "case9", "Case1"})
    files.write(QStringLiteral("CASE/%1/a.scen.jsn").arg(QLatin1String(name)), "");
  files.write(QStringLiteral("CASE/notes/a.txt"), "");
  const ScenarioList list = ScenarioList::ofCase(files.path(QStringLiteral("CASE")), true);
  QCOMPARE(int(list.size()), 404);
  QCOMPARE(int(list.dated()), 400);
  QCOMPARE(list[0].name, QStringLiteral("01.01.2023"));
  QCOMPARE(list[31].name, QStringLiteral("01.02.2023"));
  QStringList others;
  for (Index i = list.dated(); i < list.size(); ++i)
    others.append(list[i].name);
  QCOMPARE(others,
           QStringList({QStringLiteral("Case1"), QStringLiteral("case9"), QStringLiteral("case10"), QStringLiteral("S1")}));
  QCOMPARE(list.indexOf(QStringLiteral("case9")), Index(401));
  QCOMPARE(list.indexOf(QStringLiteral("notes")), NoIndex);
}

void TestScenarios::keysStepAndEverythingStays() {
  WorkspaceFixture files;
  files.writeGeometry(WorkspaceFixture::soundGeometry().replace("\"q\":5,", "\"q\":5,\"vis.layer\":\"north\","));
  files.write(QStringLiteral("CASE/S1/S1.res.jsn"), "{\n\"A\":{\"p\":33}\n}\n");
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n\"B\":[{\"property\":\"qset\",\"value\":7}]\n}\n");
  NivraViewer viewer;
  viewer.open(files.scenario());
  QVERIFY(QTest::qWaitForWindowExposed(&viewer));
  auto &dock = panelOf<ScenariosDock>(viewer);
  QTRY_COMPARE(dock.model().rowCount(), 2);
  const QAbstractItemModelTester tester(&dock.model());
  NetVisControl &control = *viewer.visControl();
  viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::Mark);
  control.setHiddenLayers(QStringLiteral("vis.layer"), {QStringLiteral("north")});
  control.plot()->showArea(QRectF(80, -10, 40, 30));
  QTest::qWait(50);
  const QRectF view = control.plot()->visibleArea();
  const PlotSettings style = control.plot()->settings();
  const element *a = control.net().element(QStringLiteral("A"));
  QCOMPARE(a->value(P), QStringLiteral("33"));
  QTest::keyClick(control.plot(), Qt::Key_PageDown, Qt::AltModifier);
  QCOMPARE(control.net().element(QStringLiteral("A")), a); // the same elements
  QCOMPARE(a->value(P), QStringLiteral("50"));
  QVERIFY(!a->contains(QStringLiteral("qset")));
  QVERIFY(viewer.windowTitle().endsWith(QStringLiteral("S2")));
  QCOMPARE(control.plot()->visibleArea(), view);
  QVERIFY(control.plot()->settings() == style);
  QCOMPARE(control.net().selection().names(), Selection::Names{QStringLiteral("A")});
  QCOMPARE(control.currentElement(), QStringLiteral("A"));
  QCOMPARE(control.plot()->update().layers().hidden(), QSet<QString>{QStringLiteral("north")});
  QCOMPARE(control.plot()->update().values().of(Aspect::NodeColor).ofElements.front(), 50.0); // drawn
  const QModelIndex second = dock.model().index(1, ScenarioListModel::MarkColumn);
  QCOMPARE(second.data().toString(), QStringLiteral("shown"));
  QTest::keyClick(control.plot(), Qt::Key_PageDown, Qt::AltModifier); // there is no further one
  QVERIFY(viewer.windowTitle().endsWith(QStringLiteral("S2")));
  QTest::keyClick(control.plot(), Qt::Key_PageUp, Qt::AltModifier);
  QCOMPARE(a->value(P), QStringLiteral("33"));
  QCOMPARE(a->value(PropertyKey::intern("qset")), QStringLiteral("-5"));
}

void TestScenarios::panelSwitchesAndFilters() {
  WorkspaceFixture files;
  for (const char *name : {"cold", "mild", "warm"})
    files.write(QStringLiteral("CASE/%1/%1.scen.jsn").arg(QLatin1String(name)), "{\n}\n");
  NivraViewer viewer;
  viewer.open(files.scenario());
  auto &dock = panelOf<ScenariosDock>(viewer);
  QTRY_COMPARE(dock.model().rowCount(), 4);
  QTest::keyClick(&viewer, Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
  QVERIFY(dock.isVisible());
  auto *filter = dock.findChild<QLineEdit *>();
  auto *tree = dock.findChild<QTreeView *>();
  QTest::keyClicks(filter, QStringLiteral("MIL"));
  QCOMPARE(tree->model()->rowCount(), 1);
  QTest::keyClick(filter, Qt::Key_Return);
  QVERIFY(viewer.windowTitle().endsWith(QStringLiteral("mild")));
  filter->clear();
  const QModelIndex warm = tree->model()->index(3, 0);
  QCOMPARE(warm.data().toString(), QStringLiteral("warm"));
  tree->scrollTo(warm);
  QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, tree->visualRect(warm).center());
  QVERIFY(viewer.windowTitle().endsWith(QStringLiteral("warm")));
}

void TestScenarios::brokenScenarioLeavesTheOldOne() {
  WorkspaceFixture files;
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n}\n");
  NivraViewer viewer;
  viewer.open(files.scenario());
  auto &dock = panelOf<ScenariosDock>(viewer);
  QTRY_COMPARE(dock.model().rowCount(), 2);
  QVERIFY(QFile::remove(files.path(QStringLiteral("CASE/S2/S2.scen.jsn"))));
  QVERIFY(QFile::link(QStringLiteral("/etc/passwd"), files.path(QStringLiteral("CASE/S2/S2.scen.jsn"))));
  QTest::keyClick(&viewer, Qt::Key_PageDown, Qt::AltModifier);
  QVERIFY(viewer.windowTitle().endsWith(QStringLiteral("S1")));
  QVERIFY2(viewer.statusBar()->currentMessage().contains(QStringLiteral("S2.scen.jsn")),
           qPrintable(viewer.statusBar()->currentMessage()));
  const PropertyKey qset = PropertyKey::intern("qset");
  QCOMPARE(viewer.visControl()->net().element(QStringLiteral("A"))->value(qset), QStringLiteral("-5"));
  QCOMPARE(dock.model().index(0, ScenarioListModel::MarkColumn).data().toString(), QStringLiteral("shown"));
}

void TestScenarios::differenceWithItselfIsZero_data() {
  exchangeIsLikeOpening_data();
}

void TestScenarios::differenceWithItselfIsZero() {
  QFETCH(QString, which);
  QTemporaryDir folder;
  const QStringList files = which == QLatin1String("example") ? QStringList{example("S3")} : nominations(folder.path());
  if (files.isEmpty())
    QSKIP("the public data are not here");
  Opened opened(files.first());
  const std::vector<PropertyKey> keys = opened.loader.propertiesOfScenario();
  Comparison comparison;
  comparison.takeReference(opened.net, opened.net);
  const QStringList before = contents(opened.net);
  comparison.apply(opened.net, {keys.begin(), keys.end()}, QStringLiteral("itself"));
  int zeros = 0;
  opened.net.forEach(NetData::AllTypes, [&](const element &e) {
    for (const Property &property : e) {
      const QString name = property.key.name();
      const Comparison::Kind kind = Comparison::kindOf(name);
      if (kind == Comparison::Kind::None)
        continue;
      QCOMPARE(property.value.toString(), kind == Comparison::Kind::Difference ? QStringLiteral("0") : QStringLiteral("1"));
      QVERIFY(e.contains(Comparison::compared(name)));
      ++zeros;
    }
  });
  QVERIFY(zeros > 50);
  comparison.remove(opened.net);
  QCOMPARE(contents(opened.net), before);
  FileAccess::confineTo(QString());
}

void TestScenarios::differenceIsThatOfTwoOpenings() {
  Opened shown(example("S1"));
  Opened reference(example("S5"));
  const std::vector<PropertyKey> keys = shown.loader.propertiesOfScenario();
  Comparison comparison;
  comparison.takeReference(shown.net, reference.net);
  comparison.apply(shown.net, {keys.begin(), keys.end()}, QStringLiteral("S5"));
  int compared = 0;
  shown.net.forEach(NetData::AllTypes, [&](const element &e) {
    const element *other = reference.net.element(e.value(Names::all().name));
    for (const PropertyKey key : keys) {
      const QString property = key.name();
      const double now = NetData::number(e.find(property));
      const double before = NetData::number(other->find(property));
      const bool isBoth = now != NetData::NoValue && before != NetData::NoValue;
      const QString difference = Comparison::property(property, Comparison::Kind::Difference);
      QCOMPARE(e.contains(difference), isBoth); // no value is not zero
      QCOMPARE(e.contains(Comparison::property(property, Comparison::Kind::Ratio)), isBoth && before != 0.0);
      if (!isBoth)
        continue;
      QVERIFY(std::abs(NetData::number(e.find(difference)) - (now - before)) <=
              1e-7 * std::max({1.0, std::abs(now), std::abs(before)}));
      compared += now != before ? 1 : 0;
    }
  });
  QVERIFY(compared > 100);
  const NetMetaData::Attribute &kelvins = *shown.net.metaData()->anyAttribute(QStringLiteral("t.diff"));
  QCOMPARE(double(DisplayUnits::of(kelvins).toDisplay(5.0)), 5.0); // whatever zero degrees are
  FileAccess::confineTo(QString());
}

void TestScenarios::differencesAreDrawnAboutZero() {
  WorkspaceFixture files;
  files.write(QStringLiteral("CASE/S1/S1.res.jsn"), "{\n\"A\":{\"p\":52}\n,\"B\":{\"p\":45}\n,\"C\":{\"p\":61}\n}\n");
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n}\n");
  NivraViewer viewer;
  viewer.open(files.scenario());
  auto &dock = panelOf<ScenariosDock>(viewer);
  QTRY_COMPARE(dock.model().rowCount(), 2);
  NetPlot &plot = *viewer.visControl()->plot();
  const element *a = viewer.visControl()->net().element(QStringLiteral("A"));
  QTest::keyClick(&viewer, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier); // S1 is the reference
  QCOMPARE(dock.model().index(0, ScenarioListModel::MarkColumn).data().toString(), QStringLiteral("shown, reference"));
  QTest::keyClick(&viewer, Qt::Key_PageDown, Qt::AltModifier);
  QCOMPARE(a->value(PropertyKey::intern("p.diff")), QStringLiteral("-2"));
  const DrawValues::Column &nodes = plot.update().values().of(Aspect::NodeColor);
  QCOMPARE(nodes.function.title, QStringLiteral("pressure: difference to S1 [bar]"));
  QCOMPARE(nodes.ofElements, (std::vector<double>{-2.0, 3.0, -1.0}));
  QCOMPARE(nodes.range.minValue(), -nodes.range.maxValue());
  QCOMPARE(nodes.range.maxValue(), 3.0);
  const auto colors = ColorScale::nodeColors(plot.settings(), plot.update().values());
  QVERIFY(qBlue(colors->rgb(nodes.range, -3.0)) > qRed(colors->rgb(nodes.range, -3.0)));
  QVERIFY(qRed(colors->rgb(nodes.range, 3.0)) > qBlue(colors->rgb(nodes.range, 3.0)));
  viewer.reload(); // the reference is read again
  QCOMPARE(viewer.visControl()->net().element(QStringLiteral("A"))->value(PropertyKey::intern("p.diff")),
           QStringLiteral("-2"));
  for (QAction *action : viewer.findChildren<QAction *>()) {
    if (action->text().remove(QLatin1Char('&')) == QLatin1String("Compare no more"))
      action->trigger();
  }
  QVERIFY(!viewer.visControl()->net().element(QStringLiteral("A"))->contains(QStringLiteral("p.diff")));
  QCOMPARE(plot.settings().functions[Aspect::NodeColor].name, QStringLiteral("p"));
}

void TestScenarios::drawingsBesideAreLinked() {
  WorkspaceFixture files;
  files.write(QStringLiteral("CASE/S2/S2.scen.jsn"), "{\n}\n");
  files.write(QStringLiteral("CASE/S2/S2.res.jsn"), "{\n\"A\":{\"p\":33}\n}\n");
  NivraViewer viewer;
  viewer.resize(1200, 800);
  viewer.open(files.scenario());
  auto &dock = panelOf<ScenariosDock>(viewer);
  QTRY_COMPARE(dock.model().rowCount(), 2);
  QTest::keyClick(&viewer, Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
  QTest::keyClick(&viewer, Qt::Key_PageDown, Qt::AltModifier);
  QTest::keyClick(&viewer, Qt::Key_B, Qt::ControlModifier | Qt::ShiftModifier);
  auto *reference = viewer.findChild<ReferenceView *>();
  QVERIFY(reference != nullptr && reference->isVisible());
  QCOMPARE(reference->net().element(QStringLiteral("A"))->value(P), QStringLiteral("50"));
  NetPlot &own = *viewer.visControl()->plot();
  NetPlot &beside = *reference->findChild<NetPlot *>();
  const auto isSame = [&] {
    const QRectF a = own.visibleArea();
    const QRectF b = beside.visibleArea();
    return std::abs(a.height() - b.height()) < 0.1 && (a.center() - b.center()).manhattanLength() < 0.2;
  };
  own.showArea(QRectF(40, 10, 30, 30));
  QTRY_VERIFY(isSame());
  beside.showArea(QRectF(60, 0, 20, 40));
  QTRY_VERIFY(isSame());
  QVERIFY(std::abs(own.visibleArea().center().x() - 70.0) < 0.5);
  viewer.elementAction(QStringLiteral("B"), NetPicker::EleAction::Mark);
  QCOMPARE(reference->net().selection().names(), Selection::Names{QStringLiteral("B")});
  beside.findChild<NetPicker *>()->markElement(QStringLiteral("C"));
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("C")});
  const QPointer<ReferenceView> gone(reference);
  viewer.reload();
  QVERIFY(gone.isNull());
}

void TestScenarios::sliderGoesOverDates() {
  WorkspaceFixture files;
  for (int day = 1; day <= 9; ++day)
    files.write(QStringLiteral("CASE/2024-01-0%1/a.scen.jsn").arg(day),
                "{\n\"A\":[{\"property\":\"qset\",\"value\":" + QByteArray::number(day) + "}]\n}\n");
  NivraViewer viewer;
  viewer.open(files.scenario());
  auto &dock = panelOf<ScenariosDock>(viewer);
  QTRY_COMPARE(dock.model().rowCount(), 10);
  auto *slider = viewer.findChild<ScenarioStrip *>()->findChild<QSlider *>();
  QVERIFY(slider->isVisible());
  QCOMPARE(slider->maximum(), 8); // S1 has no date
  slider->setSliderPosition(3);
  slider->setSliderPosition(6);
  QTRY_VERIFY(viewer.windowTitle().endsWith(QStringLiteral("2024-01-07")));
  QTest::keyClick(slider, Qt::Key_Left);
  QTRY_VERIFY(viewer.windowTitle().endsWith(QStringLiteral("2024-01-06")));
  const element *a = viewer.visControl()->net().element(QStringLiteral("A"));
  QCOMPARE(a->value(PropertyKey::intern("qset")), QStringLiteral("6"));
  QTest::keyClick(&viewer, Qt::Key_PageDown, Qt::AltModifier);
  QCOMPARE(slider->value(), 6);
  const WorkspaceFixture without;
  viewer.open(without.scenario());
  QTRY_VERIFY(!slider->isVisible());
}

NIVRA_TEST(TestScenarios);
#include "tst_scenarios.moc"
