#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <support/nivratest.h>
#include <view/netpicker.h>

#include <QMenu>
#include <QSignalSpy>

class TestNetPicker : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void clickSelectsTheNearest();
  void controlAdds();
  void clickBesideEverythingClears();
  void controlTakesAwayAgain();
  void controlDragOnlyMoves();
  void subnetGoesWithItsNodes_data();
  void subnetGoesWithItsNodes();
  void rightButtonPicksToo();
  void rightButtonKeepsTheSelection();
  void symbolCoversWhatLiesBehind();
  void picksOnReleaseIfAsked();
  void rectangleNeedsItsSetting_data();
  void rectangleNeedsItsSetting();
  void keys();
  void keysBeginNothingElse();
  void rectangleZoomKey();
  void marksByName();
  void selectionIsDrawnWithoutTheNetwork();
  void hoverMarksAndTells();
  void crowdIsListed();
  void parallelEdgesArePickedApart();
  void subnetMenu_data();
  void subnetMenu();
  void subnetMenuKeepsKindsApart();
  void eachSubnetHasItsMenu();
  void selectionMenu();
  void selectionOfAnotherNetworkIsGone();

private:
  static QPoint canvasPoint(ViewFixture &f, double x, double y) {
    const QwtFastPlot &area = *f.plot().plot();
    return QPointF(area.transform(QwtPlot::xBottom, x), area.transform(QwtPlot::yLeft, y)).toPoint();
  }
  static void click(ViewFixture &f, double x, double y, Qt::KeyboardModifiers keys = Qt::NoModifier,
                    Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(f.plot().plot()->canvas(), button, keys, canvasPoint(f, x, y));
    if (QWidget *popup = QApplication::activePopupWidget())
      popup->close();
  }
  static void drag(ViewFixture &f, const QPoint &from, const QPoint &to, Qt::KeyboardModifiers keys) {
    QWidget *canvas = f.plot().plot()->canvas();
    QTest::mousePress(canvas, Qt::LeftButton, keys, from);
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton, keys);
    QApplication::sendEvent(canvas, &move);
    QMouseEvent release(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton, keys);
    QApplication::sendEvent(canvas, &release);
  }
  static void set(const char *key, const char *value) {
    GeneralSettings::instance().setValue(QString::fromLatin1(key), QString::fromLatin1(value));
  }
  static QStringList texts(const QMenu &contextMenu) {
    QStringList list;
    for (const QAction *entry : contextMenu.actions())
      list.append(entry->text());
    return list;
  }
  static QMenu *subMenu(const QMenu &contextMenu, const QString &text) {
    for (const QAction *entry : contextMenu.actions()) {
      if (entry->text().startsWith(text))
        return entry->menu();
    }
    return nullptr;
  }
};

void TestNetPicker::clickSelectsTheNearest() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const QSignalSpy changed(f.control.picker(), &NetPicker::selectionChanged);
  const QSignalSpy picked(f.control.picker(), &NetPicker::picked);
  click(f, 50, 2);
  QCOMPARE(f.net.selection().edges, Selection::Names{QStringLiteral("AB")});
  click(f, 100, 0); // where two edges meet, the node counts more than the lines
  QCOMPARE(f.net.selection().nodes, Selection::Names{QStringLiteral("B")});
  QVERIFY(f.net.selection().edges.isEmpty());
  click(f, 200, 50); // the symbol of the compressor
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("CD")});
  QCOMPARE(changed.count(), 3);
  QCOMPARE(picked.last().first().toString(), QStringLiteral("CD"));
  click(f, 200, 50); // again: nothing changes, but it is told
  QCOMPARE(changed.count(), 3);
  QCOMPARE(picked.count(), 4);
}

void TestNetPicker::controlAdds() {
  ViewFixture f;
  f.plot().show();
  f.show();
  click(f, 50, 0);
  click(f, 150, 0, Qt::ControlModifier);
  QCOMPARE(f.net.selection().edges.size(), 2);
  click(f, 0, 0, Qt::AltModifier); // as without any
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("A")});
  click(f, 50, 0, Qt::ShiftModifier); // means nothing here
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("A")});
}

void TestNetPicker::controlTakesAwayAgain() {
  ViewFixture f;
  f.plot().show();
  f.show();
  click(f, 50, 0);
  click(f, 150, 0, Qt::ControlModifier);
  click(f, 50, 0, Qt::ControlModifier);
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("BC")});
  click(f, 150, 0, Qt::ControlModifier, Qt::RightButton); // its menu is for what is selected
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("BC")});
}

void TestNetPicker::controlDragOnlyMoves() {
  ViewFixture f;
  f.plot().show();
  f.show();
  click(f, 0, 0);
  const QSignalSpy changed(f.control.picker(), &NetPicker::selectionChanged);
  const double left = f.plot().plot()->visibleRect().left();
  drag(f, canvasPoint(f, 150, 0), canvasPoint(f, 180, 20), Qt::ControlModifier); // begins on an edge
  QVERIFY(f.plot().plot()->visibleRect().left() < left - 1.0);
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("A")});
  QCOMPARE(changed.count(), 0);
}

void TestNetPicker::subnetGoesWithItsNodes_data() {
  QTest::addColumn<QString>("setting");
  QTest::addColumn<QStringList>("left");
  QTest::newRow("off") << QStringLiteral("off")
                       << QStringList{QStringLiteral("A"), QStringLiteral("C"), QStringLiteral("D")};
  QTest::newRow("on") << QStringLiteral("on") << QStringList{QStringLiteral("D")};
}

void TestNetPicker::subnetGoesWithItsNodes() {
  QFETCH(QString, setting);
  QFETCH(QStringList, left);
  ViewFixture f;
  f.net.addElement(makeElement({{"name", "Station"}, {"type", "sub"}, {"x", "20"}, {"y", "80"}, {"pins", "A;C"}}));
  f.plot().show();
  f.show();
  set("subnet deselection to its nodes", setting.toLatin1().constData());
  click(f, 0, 0);
  for (const QPointF &at : {QPointF(200, 0), QPointF(200, 100), QPointF(20, 80)})
    click(f, at.x(), at.y(), Qt::ControlModifier);
  QCOMPARE(f.net.selection().size(), 4);
  click(f, 20, 80, Qt::ControlModifier);
  QStringList names = f.net.selection().names().values();
  names.sort();
  QCOMPARE(names, left);
}

void TestNetPicker::clickBesideEverythingClears() {
  ViewFixture f;
  f.plot().show();
  f.show();
  click(f, 50, 0);
  drag(f, canvasPoint(f, 60, 60), canvasPoint(f, 120, 90), Qt::NoModifier); // a zoom rectangle that begins beside
  QCOMPARE(f.net.selection().size(), 1);
  f.plot().zoomer()->fitAll();
  click(f, 60, 60);
  QVERIFY(f.net.selection().isEmpty());
}

void TestNetPicker::rightButtonPicksToo() {
  ViewFixture f;
  f.plot().show();
  f.show();
  set("SelectionModifiers", "ShiftSelect");
  click(f, 50, 0, Qt::NoModifier, Qt::RightButton);
  QCOMPARE(f.net.selection().edges, Selection::Names{QStringLiteral("AB")});
  QTest::mousePress(f.plot().plot()->canvas(), Qt::RightButton, Qt::ShiftModifier, canvasPoint(f, 10, 50));
  QCOMPARE(f.control.picker()->mode(), NetPicker::Mode::None); // never a rectangle
  QTest::mouseRelease(f.plot().plot()->canvas(), Qt::RightButton, Qt::ShiftModifier, canvasPoint(f, 10, 50));
  if (QWidget *popup = QApplication::activePopupWidget())
    popup->close();
}

/// Whoever asks for the menu of a selection does not want to lose it.
void TestNetPicker::rightButtonKeepsTheSelection() {
  ViewFixture f;
  f.plot().show();
  f.show();
  click(f, 50, 0);
  click(f, 150, 0, Qt::ControlModifier);
  const Selection two = f.net.selection();
  const QSignalSpy picked(f.control.picker(), &NetPicker::picked);
  click(f, 60, 60, Qt::NoModifier, Qt::RightButton); // beside everything
  QVERIFY(f.net.selection() == two);
  QCOMPARE(picked.count(), 0);
  click(f, 50, 0, Qt::NoModifier, Qt::RightButton); // on one of them, which becomes the current one
  QVERIFY(f.net.selection() == two);
  QCOMPARE(picked.last().first().toString(), QStringLiteral("AB"));
  click(f, 200, 100, Qt::NoModifier, Qt::RightButton);
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("D")});
}

/// Nodes and drives often lie under the symbol of a compressor.
void TestNetPicker::symbolCoversWhatLiesBehind() {
  ViewFixture f;
  f.addNode("N", "202", "52", "30");
  f.net.addElement(makeElement({{"name", "Drive"}, {"type", "d"}, {"x", "201"}, {"y", "49"}}));
  f.plot().show();
  f.show();
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
    for (const QPointF &at : {QPointF(200, 50), QPointF(202, 52), QPointF(201, 49)}) {
      click(f, 0, 0);
      click(f, at.x(), at.y(), Qt::NoModifier, button);
      QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("CD")});
    }
  }
  // What was chosen among those behind it stays chosen, and the machines are offered one by one.
  f.control.picker()->choose(*f.plot().update().geometry().find(f.net, QStringLiteral("Drive")));
  QTest::mouseClick(f.plot().plot()->canvas(), Qt::RightButton, Qt::NoModifier, canvasPoint(f, 200, 50));
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("Drive")});
  auto *contextMenu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  QVERIFY(contextMenu != nullptr);
  const QMenu *machines = subMenu(*contextMenu, QStringLiteral("Open Characteristics of"));
  QVERIFY(machines != nullptr);
  const QSignalSpy opened(&f.control, &NetVisControl::openCharacteristicsRequested);
  for (QAction *entry : machines->actions()) {
    if (entry->text().startsWith(QStringLiteral("CD")))
      entry->trigger();
  }
  QCOMPARE(opened.count(), 1);
  QCOMPARE(opened[0][0].toStringList(), QStringList{QStringLiteral("CD")});
  contextMenu->close();
}

void TestNetPicker::picksOnReleaseIfAsked() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, canvasPoint(f, 50, 0));
  QCOMPARE(f.net.selection().size(), 1);
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, canvasPoint(f, 50, 0));
  set("pick on Release", "1");
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, canvasPoint(f, 150, 0));
  QVERIFY(f.net.selection().edges.contains(QStringLiteral("AB")));
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, canvasPoint(f, 150, 0));
  QCOMPARE(f.net.selection().edges, Selection::Names{QStringLiteral("BC")});
}

void TestNetPicker::rectangleNeedsItsSetting_data() {
  QTest::addColumn<QString>("setting");
  QTest::addColumn<int>("keys");
  QTest::addColumn<int>("nodes");
  QTest::addColumn<int>("edges");
  const int shift = Qt::ShiftModifier;
  QTest::newRow("replaces") << QStringLiteral("ShiftSelect") << shift << 2 << 1;
  QTest::newRow("adds") << QStringLiteral("ShiftSelect") << int(Qt::ShiftModifier | Qt::ControlModifier) << 3 << 1;
  QTest::newRow("not asked for") << QStringLiteral("DirectSelect") << shift << 1 << 0;
}

void TestNetPicker::rectangleNeedsItsSetting() {
  QFETCH(QString, setting);
  QFETCH(int, keys);
  QFETCH(int, nodes);
  QFETCH(int, edges);
  ViewFixture f;
  f.plot().show();
  f.show();
  set("SelectionModifiers", setting.toLatin1().constData());
  set("UserKey_RectZoom", "0"); // Shift is wanted for something else
  click(f, 200, 100);
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("D")});
  const QRectF view = f.plot().zoomer()->zoomRect();
  drag(f, canvasPoint(f, -8, 8), canvasPoint(f, 110, -8), Qt::KeyboardModifiers(keys)); // around A, B and AB
  QCOMPARE(f.net.selection().nodes.size(), nodes);
  QCOMPARE(f.net.selection().edges.size(), edges);
  QCOMPARE(f.plot().zoomer()->zoomRect(), view);
}

void TestNetPicker::keys() {
  ViewFixture f;
  f.net.addElement(makeElement({{"name", "T"}, {"type", "t"}, {"x", "50"}, {"y", "50"}, {"text", "text"}}));
  f.plot().show();
  f.net.addElement(makeElement({{"name", "Nowhere"}, {"type", "t"}, {"text", "no place"}}));
  f.net.addElement(makeElement({{"name", "Station"}, {"type", "sub"}, {"pins", "A;C"}}));
  f.net.addElement(makeElement({{"name", "N"}, {"type", "n"}}));
  f.show();
  QTest::keyClick(f.plot().plot()->canvas(), Qt::Key_A, Qt::ControlModifier);
  QCOMPARE(f.net.selection().nodes.size(), 5); // wherever they stand, and those that stand nowhere
  QCOMPARE(f.net.selection().edges.size(), 3);
  QCOMPARE(f.net.selection().others, (Selection::Names{QStringLiteral("Nowhere"), QStringLiteral("T")}));
  QCOMPARE(f.net.selection().subnets, Selection::Names{QStringLiteral("Station")});
  f.picture(); // marks what has a place
  QTest::keyClick(f.plot().plot()->canvas(), Qt::Key_Escape);
  QVERIFY(f.net.selection().isEmpty());
  QCOMPARE(f.control.picker()->selectAllAction()->text(), QStringLiteral("Select All (Ctrl+A)"));
}

/// The toolkit's pickers would begin a rectangle with Return and move the cursor with the arrows.
void TestNetPicker::keysBeginNothingElse() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  const QPoint cursor = canvas->mapToGlobal(canvasPoint(f, 50, 50));
  QCursor::setPos(cursor);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Left, Qt::Key_Down}) {
    QTest::keyClick(canvas, key);
    QVERIFY(!f.control.picker()->isActive());
    QVERIFY(!f.plot().zoomer()->isActive());
    QCOMPARE(QCursor::pos(), cursor);
  }
}

void TestNetPicker::rectangleZoomKey() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  const double before = f.plot().zoomer()->zoomRect().width();
  drag(f, canvasPoint(f, 10, 10), canvasPoint(f, 60, 60), Qt::ShiftModifier);
  QCOMPARE(f.plot().zoomer()->zoomRect().width(), before);
  QTest::keyPress(canvas, Qt::Key_Shift);
  drag(f, canvasPoint(f, 10, 10), canvasPoint(f, 60, 60), Qt::ShiftModifier);
  QVERIFY(f.plot().zoomer()->zoomRect().width() < before);
  QVERIFY(f.net.selection().isEmpty());
}

void TestNetPicker::marksByName() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QVERIFY(f.control.picker()->markElement(QStringLiteral("bc"))); // names do not care for case
  QCOMPARE(f.net.selection().edges, Selection::Names{QStringLiteral("BC")});
  QVERIFY(!f.control.picker()->markElement(QStringLiteral("nowhere")));
  QCOMPARE(f.net.selection().size(), 1);
}

void TestNetPicker::selectionIsDrawnWithoutTheNetwork() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const QPoint beside = f.pixel(25, 0) + QPoint(0, -4);
  const QColor before = f.picture().pixelColor(beside);
  click(f, 25, 0);
  f.plot().selection().setHovered(std::nullopt);
  const QColor marked = f.picture().pixelColor(beside);
  QVERIFY(marked != before);
  f.control.picker()->clearSelection();
  QCOMPARE(f.picture().pixelColor(beside), before);
}

void TestNetPicker::hoverMarksAndTells() {
  ViewFixture f;
  f.plot().show();
  f.show();
  QWidget *canvas = f.plot().plot()->canvas();
  QMouseEvent over(QEvent::MouseMove, canvasPoint(f, 50, 0), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(canvas, &over);
  QVERIFY(f.plot().selection().hovered().has_value());
  QCOMPARE(f.plot().selection().hovered()->kind, NetData::Edge);
  QMouseEvent beside(QEvent::MouseMove, canvasPoint(f, 60, 60), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(canvas, &beside);
  QVERIFY(!f.plot().selection().hovered().has_value());
}

void TestNetPicker::crowdIsListed() {
  ViewFixture f;
  f.addNode("B2", "100", "0", "30");
  f.plot().show();
  f.show();
  QTest::mouseClick(f.plot().plot()->canvas(), Qt::RightButton, Qt::NoModifier, canvasPoint(f, 100, 0));
  auto *contextMenu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  QVERIFY(contextMenu != nullptr);
  const QMenu *crowd = subMenu(*contextMenu, QStringLiteral("Select here (4)")); // two nodes, two lines
  QVERIFY(crowd != nullptr);
  for (QAction *entry : crowd->actions()) {
    if (entry->text().startsWith(QStringLiteral("B2")))
      entry->trigger();
  }
  QCOMPARE(f.net.selection().names(), Selection::Names{QStringLiteral("B2")});
  contextMenu->close();
}

void TestNetPicker::parallelEdgesArePickedApart() {
  ViewFixture f;
  f.add(makeEdge("BA", "B", "A"), {{"diameter", "800"}}); // the other way round, yet beside
  f.plot().show();
  f.show();
  QStringList names;
  for (const int aside : {-6, 6}) {
    QTest::mouseClick(f.plot().plot()->canvas(), Qt::LeftButton, Qt::NoModifier, canvasPoint(f, 50, 0) + QPoint(0, aside));
    names.append(f.net.selection().edges.values());
  }
  names.sort();
  QCOMPARE(names, (QStringList{QStringLiteral("AB"), QStringLiteral("BA")}));
}

void TestNetPicker::subnetMenu_data() {
  QTest::addColumn<QString>("elements");
  QTest::addColumn<bool>("isThere");
  QTest::addColumn<QStringList>("edit");
  QTest::addColumn<QStringList>("open");
  const QStringList lost{QStringLiteral("<Could not find subnet>!")};
  const QString compressors = QStringLiteral("compressors");
  const QString regulators = QStringLiteral("regulators");
  const QString all = QStringLiteral("ALL of ");
  const QString active = QStringLiteral("ALL active of ");
  QTest::newRow("removed") << QStringLiteral("CD") << false << lost << lost;
  QTest::newRow("empty") << QString() << true << QStringList{QStringLiteral("<empty element list>!")}
                         << QStringList{QStringLiteral("<empty characteristics list>!")};
  QTest::newRow("regulator") << QStringLiteral("R;AB") << true
                             << QStringList{all + regulators, active + regulators, QString(), QStringLiteral("R")}
                             << QStringList{QStringLiteral("<empty characteristics list>!")};
  QTest::newRow("compressor") << QStringLiteral("CD;R") << true << QStringList{all + compressors,  active + compressors,
                                                                               all + regulators,   active + regulators,
                                                                               QString(),          QStringLiteral("CD"),
                                                                               QStringLiteral("R")}
                              << QStringList{all + compressors, active + compressors, QString(), QStringLiteral("CD")};
}

void TestNetPicker::subnetMenu() {
  QFETCH(QString, elements);
  QFETCH(bool, isThere);
  QFETCH(QStringList, edit);
  QFETCH(QStringList, open);
  ViewFixture f;
  f.add(makeEdge("R", "A", "C", "r"), {});
  element station = makeElement({{"name", "Station"}, {"type", "sub"}, {"x", "20"}, {"y", "80"}, {"pins", "A;C"}});
  station.set(QStringLiteral("elements"), elements);
  f.net.addElement(station);
  f.plot().show();
  f.show();
  click(f, 20, 80);
  QCOMPARE(f.net.selection().subnets, Selection::Names{QStringLiteral("Station")});
  if (!isThere)
    f.net.assembledSubnets().erase(QStringLiteral("Station"));
  const QSignalSpy opened(&f.control, &NetVisControl::openCharacteristicsRequested);
  QMenu contextMenu;
  emit f.plot().contextMenuRequested(&contextMenu);
  const QMenu *subnet = subMenu(contextMenu, QStringLiteral("Subnet"));
  QVERIFY(subnet != nullptr);
  QCOMPARE(texts(*subMenu(*subnet, QStringLiteral("Edit Properties of"))), edit);
  const QMenu *characteristics = subMenu(*subnet, QStringLiteral("Open Characteristics of"));
  QCOMPARE(texts(*characteristics), open);
  characteristics->actions().first()->trigger();
  QCOMPARE(opened.count(), open.size() > 1 ? 1 : 0);
}

/// What acts on all acts on all of a kind: nobody means compressors and regulators together.
void TestNetPicker::subnetMenuKeepsKindsApart() {
  ViewFixture f;
  QStringList inside{QStringLiteral("CD"), QStringLiteral("M"), QStringLiteral("Drive"), QStringLiteral("gone")};
  f.net.addElement(makeElement({{"name", "Drive"}, {"type", "d"}, {"x", "201"}, {"y", "49"}, {"active", "0"}}));
  for (int i = 0; i < 40; ++i) {
    inside.append(QStringLiteral("R%1").arg(i, 2, 10, QLatin1Char('0')));
    f.add(makeEdge(qPrintable(inside.last()), "A", "C", "r"), {{"state", i % 2 == 0 ? "closed" : "open"}});
  }
  element station = makeElement({{"name", "Station"}, {"type", "sub"}, {"x", "20"}, {"y", "80"}, {"pins", "A;C"}});
  station.set(QStringLiteral("elements"), inside.join(QLatin1Char(';')));
  f.net.addElement(station);
  f.plot().show();
  f.show();
  QVERIFY(f.control.picker()->markElement(QStringLiteral("Station")));
  const QSignalSpy edited(&f.control, &NetVisControl::editPropertiesRequested);
  const QSignalSpy opened(&f.control, &NetVisControl::openCharacteristicsRequested);
  QMenu contextMenu;
  emit f.plot().contextMenuRequested(&contextMenu);
  const QMenu &subnet = *subMenu(contextMenu, QStringLiteral("Subnet"));
  const QMenu &edit = *subMenu(subnet, QStringLiteral("Edit Properties of"));
  const QMenu &open = *subMenu(subnet, QStringLiteral("Open Characteristics of"));
  const auto entry = [](const QMenu &of, const QString &text) -> QAction * {
    for (QAction *action : of.actions()) {
      if (action->text() == text)
        return action;
    }
    return nullptr;
  };
  QVERIFY(entry(edit, QStringLiteral("ALL of regulators")) != nullptr);
  entry(edit, QStringLiteral("ALL of regulators"))->trigger();
  entry(edit, QStringLiteral("ALL active of regulators"))->trigger();
  entry(edit, QStringLiteral("ALL of compressors"))->trigger();
  entry(open, QStringLiteral("ALL of drives"))->trigger();
  QCOMPARE(edited.count(), 3);
  QCOMPARE(edited[0][0].toStringList(), inside.mid(4));
  QCOMPARE(edited[1][0].toStringList().size(), 20);
  QCOMPARE(edited[2][0].toStringList(), QStringList{QStringLiteral("CD")});
  QCOMPARE(opened[0][0].toStringList(), QStringList{QStringLiteral("Drive")});
  QVERIFY(!entry(open, QStringLiteral("ALL active of drives"))->isEnabled()); // there are none
  QVERIFY(entry(open, QStringLiteral("ALL active of compressors"))->isEnabled());
  QVERIFY(entry(open, QStringLiteral("ALL of regulators")) == nullptr);
  QCOMPARE(edit.actions().last()->text(), QStringLiteral("… and 12 more")); // of 42 that are there
  QVERIFY(!edit.actions().last()->isEnabled());
}

void TestNetPicker::eachSubnetHasItsMenu() {
  ViewFixture f;
  f.add(makeEdge("R", "A", "C", "r"), {});
  f.add(makeElement({{"name", "East & Co"}, {"type", "sub"}, {"x", "20"}, {"y", "80"}, {"pins", "A"}}),
        {{"elements", "CD"}});
  f.add(makeElement({{"name", "West"}, {"type", "sub"}, {"x", "120"}, {"y", "80"}, {"pins", "C"}}), {{"elements", "R"}});
  f.plot().show();
  f.show();
  f.control.picker()->selectAll();
  const QSignalSpy wanted(&f.control, &NetVisControl::subnetWanted);
  QMenu contextMenu;
  emit f.plot().contextMenuRequested(&contextMenu);
  const QMenu &subnets = *subMenu(contextMenu, QStringLiteral("Subnet"));
  QCOMPARE(texts(subnets), (QStringList{QStringLiteral("East && Co"), QStringLiteral("West")}));
  const QMenu &west = *subMenu(subnets, QStringLiteral("West"));
  QVERIFY(texts(*subMenu(west, QStringLiteral("Edit Properties of"))).contains(QStringLiteral("R")));
  west.actions().first()->trigger();
  QCOMPARE(wanted.count(), 1);
  QCOMPARE(wanted[0][0].toString(), QStringLiteral("West"));
}

/// The entries for what is selected, of which there may be far more than a menu holds.
void TestNetPicker::selectionMenu() {
  ViewFixture f;
  f.plot().show();
  f.show();
  const auto fill = [&f](QMenu &contextMenu) {
    emit f.plot().contextMenuRequested(&contextMenu);
    return texts(contextMenu);
  };
  const QSignalSpy opened(&f.control, &NetVisControl::openCharacteristicsRequested);
  const QString characteristics = QStringLiteral("Open Characteristics of CD");
  QMenu ofPipe;
  f.control.picker()->markElement(QStringLiteral("AB"));
  const QStringList pipe = fill(ofPipe);
  QVERIFY(!pipe.contains(characteristics) && pipe.contains(QStringLiteral("Select upstream")));
  QMenu ofCompressor;
  f.control.picker()->markElement(QStringLiteral("CD"));
  QVERIFY(fill(ofCompressor).contains(characteristics));
  for (QAction *entry : ofCompressor.actions()) {
    if (entry->text() == characteristics)
      entry->trigger();
  }
  QCOMPARE(opened.count(), 1);
  QCOMPARE(opened[0][0].toStringList(), QStringList{QStringLiteral("CD")});
  QMenu ofMany;
  for (int i = 0; i < 200; ++i)
    f.net.selection().nodes.insert(QStringLiteral("n%1").arg(i, 3, 10, QLatin1Char('0')));
  const QStringList many = fill(ofMany);
  QVERIFY(many.contains(characteristics) && !many.contains(QStringLiteral("Select upstream")));
  const QStringList shown = texts(*subMenu(ofMany, QStringLiteral("Show")));
  QCOMPARE(shown.size(), 31);
  QCOMPARE(shown.first(), QStringLiteral("CD")); // regardless of case
  QCOMPARE(shown.at(29), QStringLiteral("n028"));
  QCOMPARE(shown.last(), QStringLiteral("… and 171 more"));
}

void TestNetPicker::selectionOfAnotherNetworkIsGone() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.picker()->selectAll();
  f.control.clear();
  f.net.clear();
  f.picture(); // must not look at what is gone
  QVERIFY(f.net.selection().isEmpty());
  f.addNode("X", "0", "0", "1");
  f.show();
  QVERIFY(f.plot().selection().items().empty());
}

NIVRA_TEST(TestNetPicker);
#include "tst_netpicker.moc"
