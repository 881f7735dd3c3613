#include "commandlist.h"
#include "elementfield.h"
#include "panels.h"
#include "subnetwindow.h"
#include "workspacefixture.h"

#include <support/answers.h>
#include <support/nivratest.h>
#include <tools/nivrafindings.h>
#include <tools/nivranetlayerseditor.h>
#include <tools/nivrapropviewer.h>
#include <tools/nivrasearch.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace {

/// A layer of the first nodes and one of the last, a formula for all nodes and a bound of it.
struct Case {
  Case() {
    workspace.writeGeometry(WorkspaceFixture::soundGeometry()
                                .replace("\"p\":50", "\"p\":50,\"vis.layer\":\"west\"")
                                .replace("\"p\":48", "\"p\":48,\"vis.layer\":\"west\"")
                                .replace("\"p\":60", "\"p\":60,\"vis.layer\":\"east\""));
    workspace.write(QStringLiteral("CASE/own.formulas"), "half(n) = p / 2\nhalf(n) in .. 100\n");
    viewer.open(workspace.geometry());
    QApplication::processEvents();
  }

  NetData &net() { return viewer.visControl()->net(); }
  const NetUpdate &scene() { return viewer.visControl()->plot()->update(); }
  NivraNetLayersEditor &layers() { return *viewer.findChild<NivraNetLayersEditor *>(); }
  bool isDrawn(double x, double y) {
    const std::vector<Hit> hits = scene().elementsAt(scene().projection().map(x, y), 4.0);
    return std::any_of(hits.begin(), hits.end(), [](const Hit &hit) { return hit.item.kind == NetData::Node; });
  }

  /// As a tool does.
  void setPressure(const char *node, const char *value) {
    const QString name = QString::fromLatin1(node);
    net().element(name)->set(QStringLiteral("p"), QString::fromLatin1(value));
    emit layers().elementsChanged({{name}, PropertyKey::find("p")});
  }

  WorkspaceFixture workspace;
  NivraViewer viewer;
};

/// Counts how often the drawing of a window is made anew.
class Updates {
public:
  explicit Updates(const NetVisControl &control)
      : m_spy(&control.plot()->update(), &NetUpdate::legendChanged) {}
  /// Those that come of what has happened since the last time.
  int take() {
    constexpr int Rounds = 3; // an edit in a cell is itself work of the next round
    for (int i = 0; i < Rounds; ++i)
      QApplication::processEvents();
    const int count = m_spy.count();
    m_spy.clear();
    return count;
  }

private:
  QSignalSpy m_spy;
};

QString rowOf(const QAbstractItemModel &model, const QString &name, int column) {
  for (int row = 0; row < model.rowCount(); ++row) {
    if (model.index(row, 0).data().toString() == name)
      return model.index(row, column).data().toString();
  }
  return QString();
}

} // namespace

/// A change travels once: whatever happens in one turn of the event loop is drawn once, and everything follows it.
class TestChanges : public QObject {
  Q_OBJECT

private slots:
  void layersAreDrawnOncePerEdit();
  void severalChangesAreDrawnOnce();
  void everythingFollowsAValue();
  void windowsOfSubnetsFollow();
  void windowsOfSubnetsHaveCommands();
  void anotherCaseForgetsWhatWaits();
  void everyWindowHasOneCurrentElement();
};

void TestChanges::layersAreDrawnOncePerEdit() {
  Case c;
  NivraNetLayersEditor &layers = c.layers();
  layers.show();
  auto *table = layers.findChild<QTableView *>();
  QAbstractItemModel &model = *table->model();
  Updates updates(*c.viewer.visControl());
  model.setData(model.index(1, 0), Qt::Unchecked, Qt::CheckStateRole);
  QCOMPARE(model.index(1, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked)); // at once
  QCOMPARE(updates.take(), 1);
  QVERIFY(!c.isDrawn(0, 0) && c.isDrawn(100, 80));
  layers.on_toolButtonHideAll_clicked();
  QCOMPARE(updates.take(), 1);
  layers.on_toolButtonHideAll_clicked(); // as they are already
  QCOMPARE(updates.take(), 0);
  {
    const Answers yes({NivraMsg::Answer::Yes});
    model.setData(model.index(1, 1), QStringLiteral("abroad")); // a hidden one, which stays hidden
    QCOMPARE(updates.take(), 1);
    QVERIFY(yes.areGiven());
  }
  QCOMPARE(c.net().element(QStringLiteral("A"))->value(QStringLiteral("vis.layer")), QStringLiteral("abroad"));
  QVERIFY(!c.isDrawn(0, 0));
  table->selectRow(0);
  const Answers yes({NivraMsg::Answer::Yes});
  layers.on_toolButtonDel_clicked();
  QVERIFY(yes.areGiven());
  QCOMPARE(updates.take(), 1);
  QVERIFY(c.isDrawn(0, 0));
  layers.setLayerProperty(QStringLiteral("type"));
  QCOMPARE(updates.take(), 1);
}

void TestChanges::severalChangesAreDrawnOnce() {
  Case c;
  Updates updates(*c.viewer.visControl());
  c.layers().on_toolButtonHideAll_clicked();
  c.layers().on_toolButtonInvert_clicked();
  QCOMPARE(updates.take(), 1);
  c.layers().on_toolButtonHideAll_clicked();
  c.setPressure("A", "20");
  c.setPressure("B", "30");
  c.viewer.findChild<NivraSearch *>()->searchWithFormula();
  c.viewer.visControl()->setShowsSearchResults(true);
  QVERIFY(c.net().element(QStringLiteral("A"))->value(QStringLiteral("half")) == QLatin1String("25")); // not yet
  QCOMPARE(updates.take(), 1);
  QCOMPARE(c.net().element(QStringLiteral("A"))->value(QStringLiteral("half")), QStringLiteral("10"));
  QCOMPARE(c.net().element(QStringLiteral("B"))->value(QStringLiteral("half")), QStringLiteral("15"));
}

void TestChanges::everythingFollowsAValue() {
  Case c;
  auto &properties = *c.viewer.findChild<NivraPropViewer *>();
  properties.show();
  c.viewer.visControl()->mark(QStringLiteral("A"));
  PlotSettings settings = c.viewer.visControl()->plot()->settings();
  settings.label_mode = QStringLiteral("selected properties");
  c.viewer.visControl()->plot()->setSettings(settings);
  LabelTable labels = c.scene().labelTable();
  for (LabelRow &row : labels.types) {
    if (row[LabelRow::Short] == QLatin1String("n"))
      row[LabelRow::Contents] = QStringLiteral("@half");
  }
  c.viewer.visControl()->plot()->update().setLabelTable(labels);
  c.viewer.visControl()->relabelNow();
  c.viewer.on_actionElement_Table_triggered();
  NivraVecTable *table = vectorTable();
  QVERIFY(table != nullptr && table->isVisible());
  auto *search = c.viewer.findChild<NivraSearch *>();
  search->defineSearch({QString(), QStringLiteral("^n$"), QStringLiteral("^half$"), QString()}, false);
  const auto labelled = [&c](const char *text) {
    const auto &all = c.scene().labels();
    return std::any_of(all.begin(), all.end(), [&](const Label &label) {
      return !label.lines.empty() && label.lines.front().text().contains(QLatin1String(text));
    });
  };
  const auto *findings = c.viewer.findChild<NivraFindings *>();
  const int findingsBefore = findings->count();
  QVERIFY(labelled("25"));
  Updates updates(*c.viewer.visControl());
  c.setPressure("A", "300");
  QCOMPARE(updates.take(), 1);
  QCOMPARE(findings->count(), findingsBefore + 1);
  QVERIFY(labelled("150") && !labelled("25"));
  QCOMPARE(rowOf(*table->findChild<QTableView *>()->model(), QStringLiteral("A"), 3), QStringLiteral("300"));
  const QAbstractItemModel &results = *search->findChild<QTableView *>()->model();
  QCOMPARE(rowOf(results, QStringLiteral("A"), 3), QStringLiteral("25")); // nobody sees it, so nothing was sought
  search->show();
  QCOMPARE(rowOf(results, QStringLiteral("A"), 3), QStringLiteral("150"));
  search->hide();
  const auto *tree = properties.findChild<QTreeView *>();
  const QModelIndexList found = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, QStringLiteral("half"), 1,
                                                     Qt::MatchExactly | Qt::MatchRecursive);
  QCOMPARE(found.size(), 1);
  QCOMPARE(found.first().siblingAtColumn(1).data().toString(), QStringLiteral("150"));
  properties.hide();
  c.viewer.findChild<QDockWidget *>(QStringLiteral("elementInformation"))->show();
  const auto *bounds = c.viewer.findChild<QLabel *>(QStringLiteral("labelBounds"));
  QVERIFY(bounds->text().contains(QStringLiteral("150")));
  c.setPressure("A", "400");
  QCOMPARE(updates.take(), 1);
  QVERIFY(bounds->text().contains(QStringLiteral("200")));
  table->close();
}

void TestChanges::windowsOfSubnetsFollow() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  constexpr int NodeSize = 13;
  PlotSettings settings = viewer.visControl()->plot()->appliedSettings();
  settings.nodeMag = NodeSize;
  viewer.visControl()->plot()->setSettings(settings);
  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  auto *window = viewer.findChild<SubnetWindow *>();
  QCOMPARE(window->visControl()->plot()->appliedSettings().nodeMag, NodeSize); // as the whole is drawn
  QApplication::processEvents();
  Updates whole(*viewer.visControl());
  Updates part(*window->visControl());
  auto *layers = window->findChild<NivraNetLayersEditor *>();
  layers->setLayerProperty(QStringLiteral("type"));
  layers->on_toolButtonHideAll_clicked();
  QCOMPARE(part.take(), 1); // of its own
  QCOMPARE(whole.take(), 0);
  layers->on_toolButtonShowAll_clicked();
  window->visControl()->net().element(QStringLiteral("M_V1"))->set(QStringLiteral("type"), QStringLiteral("p"));
  emit layers->elementsChanged({{QStringLiteral("M_V1")}, PropertyKey::find("type")});
  QCOMPARE(whole.take(), 1);
  QCOMPARE(part.take(), 1);
  QCOMPARE(viewer.visControl()->net().element(QStringLiteral("M_V1"))->value(QStringLiteral("type")), QStringLiteral("p"));
  auto *search = window->findChild<NivraSearch *>();
  search->defineSearch({QString(), QStringLiteral("^p$"), QStringLiteral("^name$"), QString()}, false);
  window->visControl()->setShowsSearchResults(true);
  QApplication::processEvents();
  const auto look = [&] {
    return window->visControl()->plot()->grab().toImage();
  };
  const QImage before = look();
  viewer.visControl()->net().element(QStringLiteral("M_V1"))->set(QStringLiteral("type"), QStringLiteral("v"));
  emit viewer.findChild<NivraNetLayersEditor *>(QString(), Qt::FindDirectChildrenOnly)
      ->elementsChanged({{QStringLiteral("M_V1")}, PropertyKey::find("type")});
  QApplication::processEvents();
  const QImage after = look();
  QVERIFY(before != after); // it is no longer found
  window->visControl()->redraw();
  QVERIFY(look() == after);
}

void TestChanges::windowsOfSubnetsHaveCommands() {
  const WorkspaceFixture workspace;
  workspace.writeGeometry(WorkspaceFixture::geometryWithSubnet());
  NivraViewer viewer;
  viewer.open(workspace.geometry());
  emit viewer.visControl()->subnetWanted(QStringLiteral("M"));
  auto *window = viewer.findChild<SubnetWindow *>();
  QApplication::setActiveWindow(window);
  QStringList missing; // as compared with the whole network
  const std::vector<Command> known = CommandList::of(window->menuBar()->actions(), *window);
  const QStringList ofTheProgram{QStringLiteral("Open Geom or Scen"),  QStringLiteral("Reload"),
                                 QStringLiteral("Settings …"),         QStringLiteral("Exit"),
                                 QStringLiteral("About Nivra Reader"), QStringLiteral("Messages"),
                                 QStringLiteral("Findings"),           QStringLiteral("Scenario"),
                                 QStringLiteral("Characteristics"),    QStringLiteral("Open subnet in a window of its own"),
                                 QStringLiteral("Check the network"),  QStringLiteral("Balance"),
                                 QStringLiteral("Scenario Set"),       QStringLiteral("Why This Value"),
                                 QStringLiteral("Scenarios")};
  const QStringList menusOfTheProgram{QStringLiteral("Open Recent"), QStringLiteral("Appearance"),
                                      QStringLiteral("Language"), QStringLiteral("Scenario")};
  for (const Command &command : CommandList::of(viewer.menuBar()->actions(), viewer)) {
    const bool isThere = std::any_of(known.begin(), known.end(), [&](const Command &other) {
      return other.text == command.text && (other.key == command.key || command.key.isEmpty());
    });
    const QString menu = command.menu.section(QStringLiteral(" › "), -1);
    if (!isThere && !ofTheProgram.contains(command.text) && !menusOfTheProgram.contains(menu))
      missing.append(command.id());
  }
  QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
  NetPlot &plot = *window->visControl()->plot();
  const auto selectsByDragging = [](const NetVisControl &control) {
    return control.actions()[PlotActions::Command::DragSelects]->isChecked();
  };
  QTest::keyClick(plot.focusProxy(), Qt::Key_2, Qt::ControlModifier);
  QVERIFY2(selectsByDragging(*window->visControl()), qPrintable(QApplication::activeWindow()->windowTitle()));
  QVERIFY(!selectsByDragging(*viewer.visControl()));
  QTest::keyClick(plot.focusProxy(), Qt::Key_G, Qt::ControlModifier);
  auto *field = window->findChild<ElementField *>();
  QTRY_VERIFY(field->hasFocus());
  QTest::keyClicks(field, QStringLiteral("M_V1"));
  QTest::keyClick(field, Qt::Key_Return);
  QCOMPARE(window->visControl()->currentElement(), QStringLiteral("M_V1"));
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("M_V1"));
  QTest::keyClick(plot.focusProxy(), Qt::Key_T, Qt::ControlModifier);
  const auto *types = window->findChild<QComboBox *>(QStringLiteral("comboBox_types"));
  QVERIFY(types != nullptr && types->count() > 2);
  const QString counts = window->statusBar()->findChild<QLabel *>()->text();
  for (int i = 0; i < types->count(); ++i) { // its table and its status bar count alike
    const QStringList words = types->itemText(i).remove(QLatin1Char('(')).remove(QLatin1Char(')')).split(QLatin1Char(' '));
    const QString told = words.last() + QLatin1Char(' ') + words.first().toLower();
    const bool isOfOneType = !words.first().startsWith(QStringLiteral("All"));
    QVERIFY2(!isOfOneType || counts.contains(words.last() == QLatin1String("1") ? told.chopped(1) : told),
             qPrintable(counts));
  }
  plot.setFocus();
  QTest::keyClick(plot.focusProxy(), Qt::Key_W, Qt::ControlModifier);
  QTRY_VERIFY(viewer.findChild<SubnetWindow *>() == nullptr);
}

void TestChanges::anotherCaseForgetsWhatWaits() {
  Case c;
  c.setPressure("A", "20");
  c.layers().on_toolButtonHideAll_clicked();
  c.viewer.visControl()->setShowsSearchResults(true);
  c.viewer.open(c.workspace.geometry());
  QVERIFY(!c.viewer.visControl()->showsSearchResults()); // all of it would be grey
  Updates updates(*c.viewer.visControl());
  QCOMPARE(updates.take(), 0);
  QCOMPARE(c.net().element(QStringLiteral("A"))->value(QStringLiteral("half")), QStringLiteral("25"));
}

void TestChanges::everyWindowHasOneCurrentElement() {
  Case c;
  const QSignalSpy current(&c.viewer, &NivraViewer::currentEleChanged);
  NetVisControl &control = *c.viewer.visControl();
  emit c.viewer.findChild<NivraSearch *>()->elementMarked(QStringLiteral("A"));
  QCOMPARE(control.currentElement(), QStringLiteral("A"));
  QCOMPARE(c.net().selection().names(), Selection::Names{QStringLiteral("A")});
  c.viewer.elementAction(QStringLiteral("A"), NetPicker::EleAction::ShowInfo);
  QCOMPARE(current.count(), 1); // it is still the same
  emit control.elementAction(QStringLiteral("C"), NetPicker::EleAction::Mark);
  QCOMPARE(current.count(), 2);
  QCOMPARE(c.viewer.findChild<NivraPropViewer *>()->elementName(), QStringLiteral("C"));
  c.viewer.open(c.workspace.geometry());
  QVERIFY(control.currentElement().isEmpty());
}

NIVRA_TEST(TestChanges);
#include "tst_changes.moc"
