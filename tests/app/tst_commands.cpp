#include "commandlist.h"
#include "commandpalette.h"
#include "elementfield.h"
#include "elementnames.h"
#include "language/language.h"
#include "mnemonics.h"
#include "nivraviewer.h"
#include "svgicon.h"
#include "toolbar.h"
#include "workspacefixture.h"

#include <support/letters.h>
#include <support/modelfixture.h>
#include <support/nivratest.h>
#include <view/netviscontrol.h>

#include <QAbstractButton>
#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QCompleter>
#include <QDockWidget>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>

/// Menus, tool bar and the list of commands in the real window, by mouse and keys.
class TestCommands : public QObject {
  Q_OBJECT

private slots:
  void menusHaveLettersWithoutCollisions_data();
  void menusHaveLettersWithoutCollisions();
  void keysDoNotCollide_data();
  void keysDoNotCollide();
  void everyControlHasAName();
  void whatTheToolBarHasStandsInAMenu();
  void toolBarTipsNameTheKey();
  void toolBarIsHiddenByTheViewMenu();
  void toolBarFitsASmallWindow();
  void paletteFindsAndRuns();
  void paletteIsMadeWhenAsked();
  void fieldGoesToAnElement();
  void choosersFollowTheDrawing();
  void menuKeyBringsTheMenu();
  void panelsByKey();
  void nothingWorksWhileANetworkIsRead();
  void iconsAreLegible_data();
  void iconsAreLegible();
  void lettersAreChosenWell();
  void commandsAreRanked();
  void namesByAnyPart();

private:
  static void open(NivraViewer &viewer, const QString &file) {
    viewer.open(file);
    viewer.activateWindow();
    viewer.visControl()->plot()->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&viewer));
  }
  static QAction *command(const NivraViewer &viewer, const QString &text) {
    for (const Command &known : CommandList::of(viewer.menuBar()->actions(), viewer)) {
      if (known.text == text)
        return known.action;
    }
    return nullptr;
  }
  static QString collision(const QString &menu, const QList<QAction *> &entries);
  static QWidget *canvas(const NivraViewer &viewer) { return viewer.visControl()->plot()->focusProxy(); }
  static void showAllDocks(NivraViewer &viewer) {
    emit viewer.menuBar()->actions().last()->menu()->aboutToShow();
    for (QDockWidget *dock : viewer.findChildren<QDockWidget *>())
      dock->show();
  }

  const WorkspaceFixture m_workspace;
};

/// What is wrong with the letters of a menu and of those behind its entries; each is shown as a person would.
QString TestCommands::collision(const QString &menu, const QList<QAction *> &entries) {
  QHash<QChar, QString> taken;
  for (QAction *entry : entries) {
    if (entry->isSeparator() || !entry->isVisible())
      continue;
    const QChar letter = Mnemonics::of(entry->text());
    constexpr int MostLetters = 15; // of longer menus some may be left without
    if (letter.isNull() && entries.size() < MostLetters)
      return QStringLiteral("%1: \"%2\" has no letter").arg(menu, entry->text());
    if (!letter.isNull() && taken.contains(letter))
      return QStringLiteral("%1: %2 and %3").arg(menu, taken.value(letter), entry->text());
    taken.insert(letter, entry->text());
    if (entry->menu() == nullptr)
      continue;
    entry->menu()->popup({10, 10});
    const QString within = collision(menu + QStringLiteral(" > ") + entry->text(), entry->menu()->actions());
    entry->menu()->close();
    if (!within.isEmpty())
      return within;
  }
  return QString();
}

void TestCommands::menusHaveLettersWithoutCollisions_data() {
  QTest::addColumn<QString>("language");
  QTest::newRow("English") << QStringLiteral("en");
  QTest::newRow("German") << QStringLiteral("de");
}

void TestCommands::menusHaveLettersWithoutCollisions() {
  QFETCH(QString, language);
  const Language spoken(language);
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  QCOMPARE(collision(QStringLiteral("menu bar"), viewer.menuBar()->actions()), QString());
  viewer.visControl()->picker()->selectAll();
  QMenu contextMenu;
  emit viewer.visControl()->plot()->contextMenuRequested(&contextMenu);
  contextMenu.popup({10, 10});
  QCOMPARE(collision(QStringLiteral("context menu"), contextMenu.actions()), QString());
  contextMenu.close();
  for (int i = 0; i < 3; ++i) // and they stay as they are
    QCOMPARE(collision(QStringLiteral("again"), viewer.menuBar()->actions()), QString());
}

void TestCommands::keysDoNotCollide_data() {
  menusHaveLettersWithoutCollisions_data();
}

void TestCommands::keysDoNotCollide() {
  QFETCH(QString, language);
  const Language spoken(language);
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  showAllDocks(viewer);
  CommandList::of(viewer.menuBar()->actions(), viewer); // fills the menus
  QHash<QString, QString> taken;
  const auto add = [&taken](const QKeySequence &key, const QString &who) {
    if (key.isEmpty())
      return QString();
    const QString before = taken.value(key.toString());
    taken.insert(key.toString(), who);
    return before.isEmpty() ? QString() : QStringLiteral("%1: %2 and %3").arg(key.toString(), before, who);
  };
  // Keys of the drawing, which come after those of the window.
  for (const int key : {int(Qt::Key_Plus), int(Qt::Key_Minus), int(Qt::Key_Left), int(Qt::Key_Right), int(Qt::Key_Up),
                        int(Qt::Key_Down), int(Qt::Key_Home), int(Qt::Key_Space), int(Qt::Key_Escape), int(Qt::Key_Return),
                        int(Qt::Key_Backspace), int(Qt::CTRL) + int(Qt::Key_A)})
    QCOMPARE(add(QKeySequence(key), QStringLiteral("the drawing")), QString());
  for (const QAction *action : viewer.findChildren<QAction *>() + viewer.visControl()->actions().findChildren<QAction *>()) {
    if (action->shortcutContext() == Qt::WidgetShortcut || action->shortcutContext() == Qt::WidgetWithChildrenShortcut)
      continue; // holds where the others do not
    for (const QKeySequence &key : action->shortcuts())
      QCOMPARE(add(key, action->text()), QString());
  }
  for (const QAbstractButton *button : viewer.findChildren<QAbstractButton *>()) {
    if (button->shortcut().toString().startsWith(QStringLiteral("Alt+")) && button->window() != &viewer)
      continue;
    // Docks behind one another may have the same letters, the menu bar's are everybody's.
    const QChar letter = Mnemonics::of(button->text());
    for (const QAction *menu : viewer.menuBar()->actions())
      QVERIFY2(letter.isNull() || Mnemonics::of(menu->text()) != letter, qPrintable(button->text()));
    if (letter.isNull())
      QCOMPARE(add(button->shortcut(), button->objectName() + button->text()), QString());
  }
}

void TestCommands::everyControlHasAName() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  showAllDocks(viewer);
  QStringList nameless;
  for (QWidget *widget : viewer.findChildren<QWidget *>()) {
    const bool isControl =
        qobject_cast<QAbstractButton *>(widget) != nullptr || qobject_cast<QLineEdit *>(widget) != nullptr ||
        qobject_cast<QComboBox *>(widget) != nullptr || qobject_cast<QAbstractSpinBox *>(widget) != nullptr ||
        (qobject_cast<QAbstractItemView *>(widget) != nullptr && qobject_cast<QHeaderView *>(widget) == nullptr) ||
        qobject_cast<QTextEdit *>(widget) != nullptr ||
        (qobject_cast<QAbstractSlider *>(widget) != nullptr && qobject_cast<QScrollBar *>(widget) == nullptr);
    const QString own = widget->objectName();
    // What the toolkit makes for itself, such as the field inside of a list.
    const bool isInner = own.startsWith(QStringLiteral("qt_")) || own.contains(QStringLiteral("QDockWidget")) ||
                         qobject_cast<QComboBox *>(widget->parentWidget()) != nullptr ||
                         qobject_cast<QAbstractSpinBox *>(widget->parentWidget()) != nullptr ||
                         qobject_cast<QAbstractItemView *>(widget->parentWidget()) != nullptr ||
                         qobject_cast<QLineEdit *>(widget->parentWidget()) != nullptr ||
                         qobject_cast<QTabBar *>(widget->parentWidget()) != nullptr ||
                         widget->inherits("QComboBoxListView") ||
                         widget->parentWidget()->inherits("QComboBoxPrivateContainer");
    if (!isControl || isInner)
      continue;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    if (accessible == nullptr || accessible->text(QAccessible::Name).trimmed().isEmpty()) {
      QStringList path;
      for (const QWidget *at = widget; at != nullptr && at != &viewer; at = at->parentWidget())
        path.prepend(at->objectName().isEmpty() ? QString::fromLatin1(at->metaObject()->className()) : at->objectName());
      nameless.append(path.join(QLatin1Char('/')));
    }
  }
  QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
}

void TestCommands::whatTheToolBarHasStandsInAMenu() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  const std::vector<Command> commands = CommandList::of(viewer.menuBar()->actions(), viewer);
  const auto isListed = [&commands](const QAction *action) {
    return std::any_of(commands.begin(), commands.end(), [action](const Command &known) { return known.action == action; });
  };
  int buttons = 0;
  for (const QToolButton *button : viewer.findChild<ToolBar *>()->findChildren<QToolButton *>()) {
    if (button->defaultAction() == nullptr || button->parentWidget() != viewer.findChild<ToolBar *>())
      continue; // of the field
    QVERIFY2(isListed(button->defaultAction()), qPrintable(button->defaultAction()->text()));
    ++buttons;
  }
  QVERIFY(buttons >= 12);
  for (const QDockWidget *dock : viewer.findChildren<QDockWidget *>())
    QVERIFY(isListed(dock->toggleViewAction()));
  for (const QAction *action : viewer.visControl()->actions().findChildren<QAction *>())
    QVERIFY2(isListed(action) || !action->isVisible(), qPrintable(action->text()));
  QVERIFY(command(viewer, QStringLiteral("SearchElements")) != nullptr); // has a key and no menu
}

void TestCommands::toolBarTipsNameTheKey() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  ToolBar &bar = *viewer.findChild<ToolBar *>();
  QVERIFY(bar.isMovable());
  const auto tipOf = [&bar](QAction *action) {
    QWidget *button = bar.widgetForAction(action);
    QHelpEvent ask(QEvent::ToolTip, {3, 3}, button->mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(button, &ask);
    return QToolTip::text();
  };
  QCOMPARE(tipOf(command(viewer, QStringLiteral("Open Geom or Scen"))), QStringLiteral("Open Geom or Scen File (Ctrl+O)"));
  QVERIFY(tipOf(viewer.visControl()->actions()[PlotActions::Command::Measure]).endsWith(QStringLiteral("(Ctrl+M)")));
}

void TestCommands::toolBarIsHiddenByTheViewMenu() {
  NivraViewer viewer;
  viewer.show();
  ToolBar &bar = *viewer.findChild<ToolBar *>();
  QVERIFY(bar.isVisible());
  command(viewer, bar.windowTitle())->trigger();
  QVERIFY(!bar.isVisible());
  open(viewer, m_workspace.scenario());
  QTest::keyClick(canvas(viewer), Qt::Key_G, Qt::ControlModifier); // which needs its field
  QVERIFY(bar.isVisible());
}

void TestCommands::toolBarFitsASmallWindow() {
  NivraViewer viewer;
  const double scale = letterScale();
  viewer.resize(qRound(900 * scale), 600);
  open(viewer, m_workspace.scenario());
  const ToolBar &bar = *viewer.findChild<ToolBar *>();
  QTRY_VERIFY(bar.width() <= viewer.width());
  constexpr int MostBehind = 2; // the last of them, behind the button at the end of the bar
  const QList<QAction *> all = bar.actions();
  for (QAction *action : all.mid(0, all.size() - MostBehind)) {
    if (!action->isSeparator())
      QVERIFY2(bar.widgetForAction(action)->isVisible(), qPrintable(action->text()));
  }
  const auto *more = bar.findChild<QToolButton *>(QStringLiteral("qt_toolbar_ext_button"));
  QVERIFY(bar.widgetForAction(all.constLast())->isVisible() || (more != nullptr && more->isVisible()));
  viewer.resize(qRound(1000 * scale), 600);
  QTRY_VERIFY(bar.widgetForAction(all.constLast())->isVisible());
}

void TestCommands::paletteFindsAndRuns() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  NetPlot &plot = *viewer.visControl()->plot();
  const auto ask = [&viewer] {
    if (!QTest::qWaitFor([&viewer] { return QApplication::activeWindow() == &viewer; })) // again
      return static_cast<CommandPalette *>(nullptr);
    QTest::keyClick(canvas(viewer), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    return viewer.findChild<CommandPalette *>();
  };
  CommandPalette *palette = ask();
  QVERIFY(palette != nullptr && palette->isVisible());
  auto *query = palette->findChild<QLineEdit *>();
  auto *list = palette->findChild<QTreeView *>();
  QAbstractItemModelTester tester(list->model());
  QTest::keyClicks(query, QStringLiteral("edge leng"));
  QCOMPARE(list->currentIndex().data().toString(), QStringLiteral("Edge colour: length [km]"));
  QTest::keyClick(query, Qt::Key_Return);
  QVERIFY(!palette->isVisible());
  QTRY_COMPARE(plot.settings().functions[Aspect::EdgeColor].name, QStringLiteral("pipe length"));

  QVERIFY(ask() == palette && palette->isVisible()); // begins with what was used last
  QVERIFY(query->text().isEmpty());
  QVERIFY(list->model()->index(0, 0).data().toString().startsWith(QStringLiteral("Edge colour: length [km]")));
  QTest::keyClick(query, Qt::Key_Down);
  QCOMPARE(list->currentIndex().row(), 1);
  QStringList texts; // whatever it does is told by its text alone
  for (const Command &known : CommandList::of(viewer.menuBar()->actions(), viewer)) {
    QVERIFY2(!texts.contains(known.text), qPrintable(known.id()));
    texts.append(known.text);
  }
  QTest::keyClicks(query, QStringLiteral("no such words"));
  QVERIFY(!list->isVisible());
  QTest::keyClick(query, Qt::Key_Return);
  QVERIFY(palette->isVisible());
  QTest::keyClick(query, Qt::Key_Escape);
  QVERIFY(!palette->isVisible());

  QVERIFY(ask() == palette && palette->isVisible());
  QTest::keyClicks(query, QStringLiteral("whole"));
  QCOMPARE(list->model()->index(0, 2).data().toString(), QStringLiteral("Ctrl+0"));
  QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualRect(list->model()->index(0, 0)).center());
  QVERIFY(!palette->isVisible());
}

void TestCommands::paletteIsMadeWhenAsked() {
  NivraViewer viewer;
  QVERIFY(viewer.findChild<CommandPalette *>() == nullptr);
}

void TestCommands::fieldGoesToAnElement() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  auto &field = *viewer.findChild<ElementField *>();
  const auto *completer = field.findChild<QCompleter *>();
  QTest::keyClick(canvas(viewer), Qt::Key_G, Qt::ControlModifier);
  QVERIFY(field.hasFocus());
  QTest::keyClicks(&field, QStringLiteral("1"));
  QTRY_COMPARE(completer->popup()->model()->rowCount(), 2); // K1 and P1
  QVERIFY(completer->popup()->isVisible());
  QTest::keyClick(completer->popup(), Qt::Key_Down);
  QTest::keyClick(completer->popup(), Qt::Key_Down);
  QTest::keyClick(completer->popup(), Qt::Key_Return);
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("P1")});
  QCOMPARE(viewer.visControl()->currentElement(), QStringLiteral("P1"));
  QVERIFY(viewer.visControl()->plot()->visibleArea().contains(QPointF(50, 0)));
  QVERIFY(canvas(viewer)->hasFocus()); // the keys are for the drawing again

  QTest::keyClick(canvas(viewer), Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(&field, QStringLiteral("k")); // in place of the name before, before the list comes
  QTest::keyClick(&field, Qt::Key_Return);
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("K1")});
  QTest::keyClick(canvas(viewer), Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(&field, QStringLiteral("nowhere"));
  QTest::keyClick(&field, Qt::Key_Return);
  QVERIFY(viewer.statusBar()->currentMessage().contains(QStringLiteral("nowhere")));
  QCOMPARE(viewer.visControl()->net().selection().names(), Selection::Names{QStringLiteral("K1")});
  QTest::keyClick(&field, Qt::Key_Escape);
  QVERIFY(canvas(viewer)->hasFocus());
  viewer.visControl()->setHiddenLayers(QStringLiteral("type"), {QStringLiteral("p")});
  QCoreApplication::processEvents();
  QTest::keyClick(canvas(viewer), Qt::Key_G, Qt::ControlModifier);
  QTest::keyClicks(&field, QStringLiteral("P1"));
  QTest::keyClick(&field, Qt::Key_Return);
  QVERIFY2(viewer.statusBar()->currentMessage().contains(QStringLiteral("hidden")),
           qPrintable(viewer.statusBar()->currentMessage()));
}

void TestCommands::choosersFollowTheDrawing() {
  NivraViewer viewer;
  ToolBar &bar = *viewer.findChild<ToolBar *>();
  const auto textOf = [&bar](const QString &name) {
    for (const QToolButton *button : bar.findChildren<QToolButton *>()) {
      if (button->accessibleName() == name)
        return button->text();
    }
    return QString();
  };
  QCOMPARE(textOf(QStringLiteral("Edge colour")), QStringLiteral("Edge colour")); // without a network
  open(viewer, m_workspace.scenario());
  QCOMPARE(textOf(QStringLiteral("Edge colour")), QStringLiteral("pressure"));
  PlotSettings settings = viewer.visControl()->plot()->settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("length");
  viewer.visControl()->plot()->setSettings(settings);
  QCOMPARE(textOf(QStringLiteral("Edge colour")), QStringLiteral("length"));
}

void TestCommands::menuKeyBringsTheMenu() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  viewer.visControl()->mark(QStringLiteral("K1"));
  QTest::keyClick(canvas(viewer), Qt::Key_F10, Qt::ShiftModifier);
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  QVERIFY(menu != nullptr);
  bool hasMaps = false;
  for (const QAction *entry : menu->actions())
    hasMaps = hasMaps || Mnemonics::plain(entry->text()) == QStringLiteral("Open Characteristics of K1");
  QVERIFY(hasMaps);
  menu->close();
}

void TestCommands::panelsByKey() {
  NivraViewer viewer;
  open(viewer, m_workspace.scenario());
  auto *dock = viewer.findChild<QDockWidget *>(QStringLiteral("search"));
  dock->show();
  QTRY_VERIFY(!dock->visibleRegion().isEmpty());
  QTest::keyClick(canvas(viewer), Qt::Key_F6);
  QVERIFY(dock->isAncestorOf(QApplication::focusWidget()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  QVERIFY(canvas(viewer)->hasFocus());
  QTest::keyClick(canvas(viewer), Qt::Key_F6, Qt::ShiftModifier);
  QVERIFY(dock->isAncestorOf(QApplication::focusWidget()));

  // One that is brought takes the keys, of which its list is the first to have use.
  emit viewer.menuBar()->actions().last()->menu()->aboutToShow();
  command(viewer, QStringLiteral("Layers Editor"))->trigger();
  auto *layers = viewer.findChild<QDockWidget *>(QStringLiteral("layers"));
  QTRY_VERIFY(layers->isAncestorOf(QApplication::focusWidget()));
}

void TestCommands::nothingWorksWhileANetworkIsRead() {
  NivraViewer viewer;
  for (const Command &known : CommandList::of(viewer.menuBar()->actions(), viewer)) { // nor before there is one
    if (known.menu == QStringLiteral("Drawing") || known.text == QStringLiteral("Save picture …"))
      QVERIFY2(!known.isEnabled(), qPrintable(known.text));
  }
}

void TestCommands::iconsAreLegible_data() {
  QTest::addColumn<QColor>("ground");
  QTest::addColumn<QColor>("ink");
  QTest::newRow("light") << QColor(240, 240, 240) << QColor(20, 20, 20);
  QTest::newRow("dark") << QColor(45, 45, 48) << QColor(230, 230, 230);
}

void TestCommands::iconsAreLegible() {
  QFETCH(QColor, ground);
  QFETCH(QColor, ink);
  NivraViewer viewer; // with its resources
  const QPalette before = QApplication::palette();
  QPalette palette = before;
  palette.setColor(QPalette::ButtonText, ink);
  QApplication::setPalette(palette);
  for (const char *name :
       {"open", "back", "forward", "zoom-all", "zoom-selection", "drag-zooms", "drag-selects", "drag-pans", "measure",
        "labels", "edge-colour", "node-colour", "save-picture", "copy-picture", "search", "commands"}) {
    const QImage icon = svgIcon(QString::fromLatin1(name)).pixmap(20, 20).toImage();
    int legible = 0;
    for (int y = 0; y < icon.height(); ++y) {
      for (int x = 0; x < icon.width(); ++x) {
        const QColor pixel = icon.pixelColor(x, y);
        legible += pixel.alpha() > 128 && qAbs(qGray(pixel.rgb()) - qGray(ground.rgb())) > 60 ? 1 : 0;
      }
    }
    QVERIFY2(legible > 30, name);
  }
  QApplication::setPalette(before);
}

void TestCommands::lettersAreChosenWell() {
  QObject owner;
  QList<QAction *> entries;
  for (const char *text : {"Save picture", "Save", "Select &All", "Smith && Sons", "S", "a\tb"})
    entries.append(new QAction(QString::fromLatin1(text), &owner));
  Mnemonics::assign(entries);
  QStringList texts;
  for (const QAction *entry : qAsConst(entries))
    texts.append(entry->text());
  QCOMPARE(texts, (QStringList{QStringLiteral("&Save picture"), QStringLiteral("Sa&ve"), QStringLiteral("Select &All"),
                               QStringLiteral("S&mith && Sons"), QStringLiteral("S"), QStringLiteral("a\tb")}));
  QCOMPARE(Mnemonics::plain(texts[3]), QStringLiteral("Smith & Sons"));
}

void TestCommands::commandsAreRanked() {
  QObject owner;
  std::vector<Command> commands;
  for (const auto &[text, menu] : {std::pair("Zoom in", "Go"), std::pair("Select in a rectangle", "Drawing"),
                                   std::pair("input pressure", "Drawing › Edge colour"),
                                   std::pair("pressure", "Drawing › Edge colour"), std::pair("Save picture", "File")})
    commands.push_back({QString::fromUtf8(text), QString::fromUtf8(menu), QString(), new QAction(&owner)});
  using Found = std::vector<int>;
  QCOMPARE(CommandList::matching(commands, QStringLiteral("press edge"), {}), (Found{3, 2}));
  QCOMPARE(CommandList::matching(commands, QStringLiteral("IN zo"), {}), Found{0});
  QCOMPARE(CommandList::matching(commands, QStringLiteral("nothing"), {}), Found{});
  QCOMPARE(CommandList::matching(commands, QString(), {commands[4].id(), commands[1].id()}), (Found{4, 1, 0, 2, 3}));
  commands[4].action->setEnabled(false);
  QCOMPARE(CommandList::matching(commands, QString(), {commands[4].id()}), (Found{0, 1, 2, 3, 4}));
}

void TestCommands::namesByAnyPart() {
  NetData net;
  for (const char *name : {"N_Emden", "Emden", "emden_2", "West", "MÜNCHEN"})
    net.addElement(makeNode(name));
  net.addElement(makeEdge("P_Emden", "N_Emden", "West"));
  QCOMPARE(ElementNames::namesWith(net, QStringLiteral("EMDEN"), 10),
           (QStringList{QStringLiteral("Emden"), QStringLiteral("emden_2"), QStringLiteral("N_Emden"),
                        QStringLiteral("P_Emden")}));
  QCOMPARE(ElementNames::namesWith(net, QStringLiteral("emden"), 2),
           (QStringList{QStringLiteral("Emden"), QStringLiteral("emden_2")}));
  QCOMPARE(ElementNames::namesWith(net, QStringLiteral("ünch"), 10), QStringList{QStringLiteral("MÜNCHEN")});
  QVERIFY(ElementNames::namesWith(net, QStringLiteral("x"), 10).isEmpty());
  QVERIFY(ElementNames::namesWith(net, QString(), 10).isEmpty());
}

NIVRA_TEST(TestCommands);
#include "tst_commands.moc"
