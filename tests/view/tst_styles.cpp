#include "configure/plotsettingsfile.h"
#include "styles/styledialog.h"
#include "styles/stylestore.h"
#include "viewfixture.h"

#include <drawing/drawvalues.h>
#include <model/netmetadata.h>
#include <support/answers.h>
#include <support/nivratest.h>
#include <support/smallfiles.h>
#include <view/styleactions.h>

#include <QAbstractItemModelTester>
#include <QAction>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

/// Named styles, those of the program and a person's own, and the way back from changes.
class TestStyles : public QObject {
  Q_OBJECT

private slots:
  void init() { QFile::remove(StyleStore::file()); }
  void cleanup() { QFile::remove(StyleStore::file()); }
  void showWhatTheNetworkHas();
  void followTheVocabularyOfTheCase();
  void loadIsComputedFromBounds();
  void greyedWithTheReason();
  void ownStylesComeBack();
  void ownStylesLieOverAnotherCase();
  void storeKeepsWhatItCannotRead();
  void namesThatNoStyleCanHave();
  void managedInTheDialog();
  void everyChangeCanBeUndone();
  void undoByKeys();
  void openingIsNoChange();

private:
  static QAction *entry(ViewFixture &f, const QString &text) {
    emit f.control.styles().menu()->aboutToShow();
    for (QAction *action : f.control.styles().menu()->actions()) {
      if (action->text() == text)
        return action;
    }
    return nullptr;
  }
  static void choose(ViewFixture &f, const QString &text) {
    QAction *action = entry(f, text);
    QVERIFY2(action != nullptr && action->isEnabled(), qPrintable(text));
    action->trigger();
  }
  static void saveAs(ViewFixture &f, const QString &name) {
    QTimer::singleShot(0, [name] {
      auto *asked = qobject_cast<QInputDialog *>(QApplication::activeModalWidget());
      QVERIFY(asked != nullptr);
      asked->setTextValue(name);
      asked->accept();
    });
    choose(f, QStringLiteral("Save Style As …"));
  }
  static QString function(ViewFixture &f, Aspect aspect) { return f.plot().settings().functions[aspect].name; }
};

void TestStyles::showWhatTheNetworkHas() {
  ViewFixture f;
  f.show();
  const int nodeMag = f.plot().settings().nodeMag;
  for (const auto &[title, property] : {std::pair("Flow", "q"), {"Diameter", "diameter"}, {"Pressure", "p"}}) {
    choose(f, QLatin1String(title));
    QCOMPARE(function(f, Aspect::EdgeColor), QLatin1String(property));
    QCOMPARE(function(f, Aspect::NodeColor), QLatin1String(property));
    QCOMPARE(f.control.styles().inUse(), QLatin1String(title));
    QVERIFY(entry(f, QLatin1String(title))->isChecked());
    QVERIFY(f.plot().update().values().of(Aspect::EdgeColor).isAny());
  }
  QCOMPARE(f.plot().settings().nodeMag, nodeMag);
  QString reason;
  QVERIFY(f.control.styles().use(QStringLiteral("flow"), &reason)); // as the command line calls it
  QVERIFY(!f.control.styles().use(QStringLiteral("velocity"), &reason) && reason.contains(QLatin1String("\"v\"")));
  QVERIFY(!f.control.styles().use(QStringLiteral("nosuch"), &reason) && reason.contains(QLatin1String("nosuch")));
  QCOMPARE(f.control.styles().inUse(), QStringLiteral("Flow"));
}

void TestStyles::followTheVocabularyOfTheCase() {
  ViewFixture f;
  auto vocabulary = std::make_shared<NetMetaData>(*f.net.metaData());
  NetMetaData::Attribute speed;
  speed.type = QStringLiteral("p");
  speed.property = QStringLiteral("tempo");
  speed.longName = QStringLiteral("tempo of the gas");
  speed.group = QStringLiteral("results");
  speed.quantity = QStringLiteral("velocity");
  vocabulary->add(speed);
  f.net.setMetaData(vocabulary);
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("tempo"), QStringLiteral("12"));
  f.show();
  choose(f, QStringLiteral("Velocity"));
  QCOMPARE(function(f, Aspect::EdgeColor), QStringLiteral("tempo"));
}

void TestStyles::loadIsComputedFromBounds() {
  ViewFixture f;
  const auto set = [&f](const char *name, const char *property, const char *value) {
    f.net.element(QString::fromLatin1(name))->set(QString::fromLatin1(property), QString::fromLatin1(value));
  };
  set("AB", "qmax", "20"); // a quarter of it flows
  set("BC", "q", "-5");    // backwards, which has a bound of its own
  set("BC", "qmax", "500");
  set("BC", "qmin", "-4");
  set("A", "pmin", "10");
  set("A", "pmax", "90"); // p is 20: 30 below the middle, of 40
  set("B", "pmin", "30"); // no upper bound
  f.show();
  choose(f, QStringLiteral("Load"));
  const auto load = [&f](Aspect aspect, const char *name) {
    const auto item = f.plot().update().geometry().find(f.net, QString::fromLatin1(name));
    return f.plot().update().values().of(aspect).ofElements[item->index];
  };
  QCOMPARE(load(Aspect::EdgeColor, "AB"), 25.0);
  QCOMPARE(load(Aspect::EdgeColor, "BC"), 125.0);
  QCOMPARE(load(Aspect::EdgeColor, "CD"), NetData::NoValue);
  QCOMPARE(load(Aspect::NodeColor, "A"), 75.0);
  QCOMPARE(load(Aspect::NodeColor, "B"), NetData::NoValue);
  const QwtInterval range = f.plot().update().values().of(Aspect::EdgeColor).range; // so that the legend has every class
  QVERIFY(range.minValue() == 0.0 && qFuzzyCompare(range.maxValue(), 110.0));
  set("AB", "load", "7"); // what an element says itself counts more
  f.show();
  choose(f, QStringLiteral("Load"));
  QCOMPARE(load(Aspect::EdgeColor, "AB"), 7.0);
  QCOMPARE(load(Aspect::EdgeColor, "BC"), 125.0);
  QCOMPARE(load(Aspect::NodeColor, "A"), 75.0);
}

void TestStyles::greyedWithTheReason() {
  ViewFixture f;
  emit f.control.styles().menu()->aboutToShow(); // without a network
  QVERIFY(f.control.styles().menu()->actions().isEmpty());
  f.show();
  const QAction *power = entry(f, QStringLiteral("Machine power (no values)"));
  QVERIFY(power != nullptr && !power->isEnabled() && power->toolTip().contains(QLatin1String("power")));
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("power"), QStringLiteral("2"));
  f.control.redraw(); // after values have changed
  QVERIFY(entry(f, QStringLiteral("Machine power"))->isEnabled());
}

void TestStyles::ownStylesComeBack() {
  ViewFixture f;
  f.show();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].name = QStringLiteral("diameter");
  settings.functions[Aspect::EdgeColor].minimum = 100.0;
  settings.colorRamp = QStringLiteral("batlow");
  settings.edgeMag = 2.5;
  settings.label_mode = QStringLiteral("name only");
  f.plot().setSettings(settings);
  saveAs(f, QStringLiteral("Große & dicke"));
  QCOMPARE(f.control.styles().inUse(), QStringLiteral("Große & dicke"));
  choose(f, QStringLiteral("Pressure"));
  ViewFixture later; // as after another start
  later.show();
  choose(later, QStringLiteral("Große && dicke"));
  const PlotSettings &again = later.plot().settings();
  QCOMPARE(again.functions[Aspect::EdgeColor].name, QStringLiteral("diameter"));
  QCOMPARE(again.functions[Aspect::EdgeColor].minimum, 100.0);
  QCOMPARE(again.colorRamp, QStringLiteral("batlow"));
  QCOMPARE(again.edgeMag, 2.5);
  QCOMPARE(again.label_mode, QStringLiteral("name only"));
  Answers answers({NivraMsg::Answer::No, NivraMsg::Answer::Yes});
  const QByteArray before = StyleStore().find(QStringLiteral("große & dicke"))->settings;
  choose(later, QStringLiteral("Flow"));
  saveAs(later, QStringLiteral("große & Dicke")); // is not replaced unasked
  QCOMPARE(StyleStore().all().front().settings, before);
  saveAs(later, QStringLiteral("große & Dicke"));
  QVERIFY(answers.areGiven());
  QCOMPARE(StyleStore().all().size(), std::size_t(1));
  QVERIFY(StyleStore().all().front().settings != before);
}

/// Of another case stay its layers, its ground and where its legend stands.
void TestStyles::ownStylesLieOverAnotherCase() {
  ViewFixture f;
  f.show();
  saveAs(f, QStringLiteral("mine"));
  PlotSettings other = f.plot().settings();
  other.layerProp = QStringLiteral("level");
  other.bgrColor = Qt::black;
  other.legendPos = 4;
  other.nodeMag = 11;
  f.plot().setSettings(other);
  choose(f, QStringLiteral("mine"));
  QCOMPARE(f.plot().settings().layerProp, QStringLiteral("level"));
  QCOMPARE(f.plot().settings().bgrColor, QColor(Qt::black));
  QCOMPARE(f.plot().settings().legendPos, 4);
  QVERIFY(f.plot().settings().nodeMag != 11);
  PlotSettings settings = f.plot().settings();
  QVERIFY(PlotSettingsFile::readText("[drawing]\nlegend=false\n", {}, settings, {}, PlotSettingsFile::Missing::Kept));
  QVERIFY(!settings.showsLegend);
  settings.showsLegend = f.plot().settings().showsLegend;
  QVERIFY(settings == f.plot().settings()); // one key changes one thing
  settings.functions[Aspect::EdgeColor].minimum = 10.0;
  settings.functions[Aspect::EdgeColor].maximum = 85.0;
  QVERIFY(PlotSettingsFile::readText("colorFunc=diameter\n", {}, settings, {}, PlotSettingsFile::Missing::Kept));
  QCOMPARE(settings.functions[Aspect::EdgeColor].minimum, PlotSettings::OpenMinimum); // those were of another function
  QCOMPARE(settings.functions[Aspect::EdgeColor].maximum, PlotSettings::OpenMaximum);
}

void TestStyles::storeKeepsWhatItCannotRead() {
  for (const char *text : {"no list", "{\"version\":99,\"styles\":[]}", "[1,2]", "{\"version\":1,\"styles\":{}}"}) {
    SmallFiles::write(StyleStore::file(), text);
    StyleStore store;
    QString reason;
    QVERIFY(store.all().empty() && store.fault().contains(StyleStore::file()));
    QVERIFY(!store.put({QStringLiteral("a"), "colorFunc=p\n"}, &reason) && !reason.isEmpty());
    QVERIFY(!store.remove(QStringLiteral("a"), &reason));
    QCOMPARE(SmallFiles::contents(StyleStore::file()), QByteArray(text));
  }
  SmallFiles::write(StyleStore::file(), "{\"version\":1,\"styles\":[7,{\"name\":\"\"},{\"name\":\"Flow\"},{\"name\":\"x\","
                                        "\"settings\":\"nodeMag=@Variant(\"},{\"name\":\"X\"}]}");
  StyleStore store;
  QCOMPARE(store.all().size(), std::size_t(1));
  StyleStore other; // of another window
  QString reason;
  QVERIFY(other.put({QStringLiteral("y"), {}}, &reason) && store.put({QStringLiteral("z"), {}}, &reason));
  QCOMPARE(other.all().size(), std::size_t(3));
}

void TestStyles::namesThatNoStyleCanHave() {
  for (const QString &name : {QString(), QStringLiteral("  "), QString(200, QLatin1Char('a')), QStringLiteral("PRESSURE"),
                              QStringLiteral("machine power"), QStringLiteral("dark.INI"), QStringLiteral("a\nb")})
    QVERIFY2(!StyleStore::faultOf(name).isEmpty(), qPrintable(name));
  QVERIFY(StyleStore::faultOf(QStringLiteral("Pressure 2")).isEmpty());
}

void TestStyles::managedInTheDialog() {
  StyleStore store;
  QString reason;
  for (const char *name : {"b", "a"})
    QVERIFY(store.put({QString::fromLatin1(name), "[magnitudes]\nnodeMag=7\n"}, &reason));
  StyleDialog dialog(store);
  dialog.show();
  auto *list = dialog.findChild<QListView *>();
  const QAbstractItemModelTester tester(list->model());
  const auto press = [&dialog](const char *name) {
    dialog.findChild<QPushButton *>(QLatin1String(name))->click();
  };
  const auto names = [&store] {
    QString joined;
    for (const StyleStore::Style &style : store.all())
      joined += style.name + QLatin1Char(' ');
    return joined;
  };
  press("rename");
  auto *editor = qobject_cast<QLineEdit *>(list->indexWidget(list->currentIndex()));
  if (editor == nullptr)
    editor = list->findChild<QLineEdit *>();
  QVERIFY(editor != nullptr);
  editor->setText(QStringLiteral("c"));
  QTest::keyClick(editor, Qt::Key_Return);
  QTRY_COMPARE(names(), QStringLiteral("b c "));
  QTRY_COMPARE(list->currentIndex().data().toString(), QStringLiteral("c"));
  {
    Answers answers({NivraMsg::Answer::Ok, NivraMsg::Answer::No, NivraMsg::Answer::Yes});
    QVERIFY(!list->model()->setData(list->currentIndex(), QStringLiteral("B"))); // is taken
    press("remove");
    QCOMPARE(names(), QStringLiteral("b c "));
    press("remove");
    QVERIFY(answers.areGiven());
  }
  QCOMPARE(names(), QStringLiteral("b "));
  QCOMPARE(list->currentIndex().data().toString(), QStringLiteral("b"));
}

void TestStyles::everyChangeCanBeUndone() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.styles().reset();
  StyleActions &styles = f.control.styles();
  QVERIFY(!styles.undoAction()->isEnabled());
  const QImage first = f.picture();
  QMenu *colors = f.control.actions().functionMenu(Aspect::EdgeColor);
  emit colors->aboutToShow();
  for (QAction *action : colors->actions()) {
    if (action->text().startsWith(QLatin1String("diameter")))
      action->trigger();
  }
  QCOMPARE(styles.undoAction()->text(), QStringLiteral("Undo Style Change: edge colour diameter"));
  f.control.actions()[PlotActions::Command::Labels]->trigger();
  QCOMPARE(styles.undoAction()->text(), QStringLiteral("Undo Style Change: labels"));
  f.plot().legendAction()->trigger();
  QCOMPARE(styles.undoAction()->text(), QStringLiteral("Undo Style Change: legend"));
  choose(f, QStringLiteral("Flow"));
  QCOMPARE(styles.undoAction()->text(), QStringLiteral("Undo Style Change: style \"Flow\""));
  const PlotSettings last = f.plot().settings();
  styles.undoAction()->trigger();
  QCOMPARE(styles.inUse(), QString());
  QCOMPARE(styles.redoAction()->text(), QStringLiteral("Redo Style Change: style \"Flow\""));
  styles.redoAction()->trigger();
  QCOMPARE(styles.inUse(), QStringLiteral("Flow"));
  QVERIFY(f.plot().settings() == last);
  int steps = 0;
  for (; styles.undoAction()->isEnabled(); ++steps)
    styles.undoAction()->trigger();
  QCOMPARE(steps, 4);
  QTRY_COMPARE(f.picture(), first);
}

void TestStyles::undoByKeys() {
  ViewFixture f;
  f.plot().show();
  f.show();
  f.control.styles().reset();
  f.plot().activateWindow();
  f.plot().setFocus();
  QVERIFY(QTest::qWaitForWindowActive(&f.plot()));
  choose(f, QStringLiteral("Diameter"));
  QTest::keyClick(f.plot().focusProxy(), Qt::Key_Z, Qt::ControlModifier);
  QCOMPARE(function(f, Aspect::EdgeColor), QStringLiteral("p"));
  QTest::keyClick(f.plot().focusProxy(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  QCOMPARE(function(f, Aspect::EdgeColor), QStringLiteral("diameter"));
}

void TestStyles::openingIsNoChange() {
  ViewFixture f;
  f.show();
  choose(f, QStringLiteral("Diameter"));
  const NetVisControl::OwnStyle own = f.control.ownStyle();
  f.showAtFirst(); // the same case anew, and what was kept of it
  f.control.setOwnStyle(own);
  QCOMPARE(function(f, Aspect::EdgeColor), QStringLiteral("diameter"));
  QVERIFY(!f.control.styles().undoAction()->isEnabled());
}

NIVRA_TEST(TestStyles);
#include "tst_styles.moc"
