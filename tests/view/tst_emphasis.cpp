#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <drawing/violations.h>
#include <support/nivratest.h>
#include <view/plotexport.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtMath>

/// What stands out from the rest: what is selected, and what violates bounds.
class TestEmphasis : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void selectedStandsOut();
  void theRestIsAsBeforeAfterwards();
  void marksFollowTheView();
  void documentsMarkTheSelection();
  void selectionSparesTheCasings();
  void whatIsNotSeenHasADot();
  void textsAreFramed();
  void violationsHaveACasing_data();
  void violationsHaveACasing();
  void casingsSurroundWhatIsDrawn();
  void casingsOfCrowdsAreNarrow();
  void casingsFollowTheRules();

private:
  static void select(ViewFixture &f, const char *edge) {
    Selection selection;
    selection.edges.insert(QString::fromLatin1(edge));
    f.control.picker()->setSelection(selection);
  }
  static void violate(ViewFixture &f, const QString &name) {
    f.net.element(name)->set(QStringLiteral("CB_info"), QStringLiteral("(Major: pmax exceeded;)"));
  }
  static Index indexOf(ViewFixture &f, const char *node) {
    return f.plot().update().geometry().find(f.net, QString::fromLatin1(node))->index;
  }
  /// The outline beside the place: whether it comes within a few pixels on the way of the step.
  static bool hasOutline(const QImage &picture, const QPoint &place, const QPoint &step) {
    constexpr int Pixels = 5;
    constexpr int Dark = 100;
    for (int i = 0; i < Pixels; ++i) {
      if (picture.pixelColor(place + step * i).lightness() < Dark)
        return true;
    }
    return false;
  }
  static bool hasNear(const QImage &picture, const QPoint &place, const QColor &color, int reach = 9) {
    for (int y = place.y() - reach; y <= place.y() + reach; ++y) {
      const QColor found = picture.pixelColor(place.x(), y);
      if (qAbs(found.red() - color.red()) + qAbs(found.green() - color.green()) + qAbs(found.blue() - color.blue()) < 30)
        return true;
    }
    return false;
  }
};

void TestEmphasis::selectedStandsOut() {
  ViewFixture f;
  f.show();
  const QImage plain = f.picture();
  const QPoint ab = f.pixel(25, 0);
  const QPoint bc = f.pixel(125, 0);
  select(f, "AB");
  const QImage marked = f.picture();
  QCOMPARE(marked.pixelColor(ab), plain.pixelColor(ab)); // keeps its colour
  const QColor ink(0x14, 0x1c, 0x26);
  QVERIFY(hasNear(marked, ab, ink) && !hasNear(plain, ab, ink)); // a dark outline
  const QColor halo = marked.pixelColor(ab + QPoint(0, 7));
  QVERIFY2(halo != Qt::white && halo.lightness() > 150, qPrintable(halo.name()));
  QVERIFY(marked.pixelColor(bc).lightness() > plain.pixelColor(bc).lightness() + 30); // the rest pales
  QCOMPARE(marked.pixelColor(f.pixel(60, 60)), QColor(Qt::white));                    // where nothing is, nothing changes

  PlotSettings settings = f.plot().settings();
  settings.dimsRest = false;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  const QImage undimmed = f.picture();
  QCOMPARE(undimmed.pixelColor(bc), plain.pixelColor(bc));
  QVERIFY(hasNear(undimmed, ab, ink));

  settings.dimsRest = true; // on dark paper the outline is light
  settings.bgrColor = QColor(20, 20, 20);
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  QVERIFY(hasNear(f.picture(), ab, QColor(0xf4, 0xf6, 0xf8)));
}

void TestEmphasis::theRestIsAsBeforeAfterwards() {
  ViewFixture f;
  f.show();
  const QImage plain = f.picture();
  select(f, "AB");
  const QImage one = f.picture();
  select(f, "CD");
  QVERIFY(f.picture() != one);
  select(f, "AB");
  QCOMPARE(f.picture(), one);
  f.control.picker()->setSelection(Selection());
  QCOMPARE(f.picture(), plain);
  f.control.picker()->selectAll(); // all of it: nothing is left to pale
  const QPoint bc = f.pixel(125, 0);
  QCOMPARE(f.picture().pixelColor(bc), plain.pixelColor(bc));
}

void TestEmphasis::marksFollowTheView() {
  ViewFixture f;
  f.show();
  select(f, "AB");
  f.plot().zoomer()->zoomIn({50, 0}, 2.0);
  const QImage zoomed = f.picture();
  QVERIFY(hasNear(zoomed, f.pixel(25, 0), QColor(0x14, 0x1c, 0x26)));
  QVERIFY(!hasNear(zoomed, f.pixel(110, 0), QColor(0x14, 0x1c, 0x26)));
}

/// A document has no pixels to pale: the selection stands out all the same.
void TestEmphasis::documentsMarkTheSelection() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.show();
  const auto svg = [&](const char *name) {
    const QString path = folder.filePath(QString::fromLatin1(name));
    if (!exportPlot(f.plot(), path, 600))
      return QByteArray();
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  QVERIFY(!svg("plain.svg").contains("#141c26"));
  select(f, "AB");
  const QByteArray marked = svg("marked.svg");
  QVERIFY(marked.contains("#141c26") && !marked.contains("<image"));
}

/// A text box is marked where its text stands, not by a circle in the middle of it.
void TestEmphasis::textsAreFramed() {
  ViewFixture f;
  f.add(makeElement({{"name", "T"}, {"type", "t"}, {"x", "60"}, {"y", "60"}}), {{"text", "a text of some length"}});
  f.show();
  f.picture(); // lays out
  const std::optional<NetGeometry::Item> item = f.plot().update().geometry().find(f.net, QStringLiteral("T"));
  QVERIFY(item && item->kind == NetData::TextBox);
  const QRectF area = f.plot().update().drawnSizes().textBoxes->areas(f.plot().update().projection()).front();
  QVERIFY(area.width() > 60.0);
  f.plot().selection().setItems({*item});
  const QImage marked = f.picture();
  const QPoint place = f.plot().plot()->canvas()->mapTo(&f.plot(), QPoint(qFloor(area.left()), qFloor(area.top())));
  QVERIFY(hasOutline(marked, place + QPoint(0, qRound(area.height() / 2.0)), {-1, 0}));
  QVERIFY(hasOutline(marked, place + QPoint(qRound(area.width() / 2.0), 0), {0, -1}));
}

void TestEmphasis::violationsHaveACasing_data() {
  QTest::addColumn<QByteArray>("info");
  QTest::addColumn<QColor>("color");
  QTest::newRow("nobody checked") << QByteArray() << QColor();
  QTest::newRow("none") << QByteArray("()") << QColor();
  QTest::newRow("none, as a list") << QByteArray(" (;) ") << QColor();
  QTest::newRow("minor") << QByteArray("(pmax exceeded;)") << QColor(0xb4, 0x5f, 0x04);
  QTest::newRow("major") << QByteArray("(Major: pmax exceeded;)") << QColor(0xff, 0x00, 0xff);
}

void TestEmphasis::violationsHaveACasing() {
  QFETCH(QByteArray, info);
  QFETCH(QColor, color);
  ViewFixture f;
  if (!info.isEmpty()) {
    for (const char *name : {"BC", "A"})
      f.net.element(QString::fromLatin1(name))->set(QStringLiteral("CB_info"), QString::fromUtf8(info));
  }
  f.net.element(QStringLiteral("BC"))->set(QStringLiteral("vis.layer"), QStringLiteral("north"));
  f.show();
  const LegendContents contents = f.plot().update().legendContents();
  QCOMPARE(contents.casings.size(), std::size_t(color.isValid() ? 1 : 0));
  const QImage picture = f.picture();
  const QPoint bc = f.pixel(125, 0);
  const QPoint a = f.pixel(0, 0);
  for (const QColor &known : {Violations::color(Violations::State::Minor), Violations::color(Violations::State::Major)}) {
    QCOMPARE(hasNear(picture, bc, known), known == color);
    QCOMPARE(hasNear(picture, a, known), known == color);
    QVERIFY(!hasNear(picture, f.pixel(40, 0), known));
  }
  QVERIFY(picture.pixelColor(bc).saturation() > 100); // the line keeps its own colour
  f.plot().update().setHiddenLayers(QStringLiteral("vis.layer"), {QStringLiteral("north")});
  f.plot().update().updatePlot();
  if (color.isValid())
    QVERIFY(!hasNear(f.picture(), bc, color));
  f.net.forEach(NetData::AllTypes, [](element &e) { e.set(QStringLiteral("CB_info"), QStringLiteral("()")); });
  f.plot().update().setHiddenLayers(QStringLiteral("vis.layer"), {});
  f.control.redraw(); // once the constraints are kept, the casing is gone
  QVERIFY(!color.isValid() || !hasNear(f.picture(), bc, color));
}

void TestEmphasis::selectionSparesTheCasings() {
  const QTemporaryDir folder;
  ViewFixture f;
  violate(f, QStringLiteral("AB"));
  f.show();
  f.picture(); // lays out
  const QPoint ab = f.pixel(25, 0);
  const QColor casing = Violations::color(Violations::State::Major);
  const auto pixelsOf = [&ab](const QImage &picture, const QColor &color) {
    QVector<int> rows;
    for (int y = -16; y <= 16; ++y) {
      const QColor found = picture.pixelColor(ab + QPoint(0, y));
      if (qAbs(found.red() - color.red()) + qAbs(found.green() - color.green()) + qAbs(found.blue() - color.blue()) < 40)
        rows.append(y);
    }
    return rows;
  };
  const QVector<int> plain = pixelsOf(f.picture(), casing);
  QVERIFY(plain.size() > 1);
  select(f, "AB");
  const QImage marked = f.picture();
  QCOMPARE(pixelsOf(marked, casing), plain);
  QVERIFY(hasOutline(marked, ab + QPoint(0, plain.first() - 1), {0, -1}));
  QVERIFY(hasOutline(marked, ab + QPoint(0, plain.last() + 1), {0, 1}));
  const QString path = folder.filePath(QStringLiteral("marked.svg"));
  QVERIFY(exportPlot(f.plot(), path, 600));
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadOnly));
  const QByteArray drawn = file.readAll();
  QVERIFY(drawn.contains("#141c26") && drawn.lastIndexOf("#141c26") < drawn.indexOf("#ff00ff"));
}

/// An element of which nothing is drawn is marked by a dot: a circle would surround what is not there.
void TestEmphasis::whatIsNotSeenHasADot() {
  ViewFixture f;
  f.addNode("E", "60", "60", "30"); // far from the lines
  f.net.element(QStringLiteral("E"))->set(QStringLiteral("vis"), QStringLiteral("off"));
  f.show();
  QCOMPARE(f.picture().pixelColor(f.pixel(60, 60)), QColor(Qt::white));
  const QColor ofNode = f.picture().pixelColor(f.pixel(0, 0));
  Selection selection;
  selection.nodes.insert(QStringLiteral("E"));
  f.control.picker()->setSelection(selection);
  const QColor middle = f.picture().pixelColor(f.pixel(60, 60));
  QVERIFY2(middle.lightness() < 60, qPrintable(middle.name()));
  selection.nodes = {QStringLiteral("A")}; // which is seen, and stays so
  f.control.picker()->setSelection(selection);
  QCOMPARE(f.picture().pixelColor(f.pixel(0, 0)), ofNode);
}

/// However large the element is in this view.
void TestEmphasis::casingsSurroundWhatIsDrawn() {
  constexpr double Casing = 5.0; // px
  constexpr double Gap = 1.5;
  const QColor magenta = Violations::color(Violations::State::Major);
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("qset"), QStringLiteral("-5"));
  violate(f, QStringLiteral("A"));
  f.show();
  const NetUpdate &update = f.plot().update();
  const double radius = update.drawnSizes().nodes->sizeOf(indexOf(f, "A"), update.projection()) * 0.5;
  QVERIFY2(radius > 6.0, qPrintable(QString::number(radius))); // a supply is drawn large
  const QImage picture = f.picture();
  const QPoint a = f.pixel(0, 0);
  const int ring = qRound(radius + (Casing + Gap) * 0.5);
  QVERIFY(hasNear(picture, a - QPoint(ring, 0), magenta, 1));
  QVERIFY(!hasNear(picture, a - QPoint(qRound(radius + Casing + 3.0), 0), magenta, 1));
}

/// From afar nodes are not drawn and lines are narrow: a casing as for large ones would hide the neighbours.
void TestEmphasis::casingsOfCrowdsAreNarrow() {
  constexpr int Side = 60;
  ViewFixture f;
  f.net.clear();
  const auto name = [](int x, int y) {
    return QStringLiteral("N%1_%2").arg(x).arg(y).toLatin1();
  };
  for (int y = 0; y < Side; ++y) {
    for (int x = 0; x < Side; ++x) {
      f.addNode(name(x, y), QByteArray::number(x), QByteArray::number(y), "50");
      if (x > 0)
        f.add(makeEdge("H" + name(x, y), name(x - 1, y), name(x, y)), {{"diameter", "500"}});
      if (y > 0)
        f.add(makeEdge("V" + name(x, y), name(x, y - 1), name(x, y)), {{"diameter", "500"}});
    }
  }
  violate(f, QStringLiteral("N30_30"));
  f.show();
  const NetUpdate &update = f.plot().update();
  QVERIFY(update.drawnSizes().nodes->sizeOf(indexOf(f, "N30_30"), update.projection()) < 3.0);
  const QImage picture = f.picture();
  const QPointF center = *update.geometry().center({NetData::Node, indexOf(f, "N30_30")});
  const QPoint middle = f.pixel(center.x(), center.y());
  int pixels = 0;
  int farthest = 0;
  for (int y = -20; y <= 20; ++y) {
    for (int x = -20; x <= 20; ++x) {
      const QColor found = picture.pixelColor(middle + QPoint(x, y));
      const bool isCasing = found.red() - found.green() > 70 && found.blue() - found.green() > 70;
      pixels += isCasing ? 1 : 0;
      farthest = isCasing ? qMax(farthest, qMax(qAbs(x), qAbs(y))) : farthest;
    }
  }
  QVERIFY2(pixels > 8 && farthest < 8, qPrintable(QStringLiteral("%1 %2").arg(pixels).arg(farthest)));
}

/// What is not drawn has none, and the legend does not speak of it.
void TestEmphasis::casingsFollowTheRules() {
  ViewFixture f;
  violate(f, QStringLiteral("A"));
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("vis"), QStringLiteral("off"));
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("vis.layer"), QStringLiteral("north"));
  f.show();
  const QColor magenta = Violations::color(Violations::State::Major);
  QVERIFY(!hasNear(f.picture(), f.pixel(0, 0), magenta, 12));
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("vis"), QStringLiteral("on"));
  f.plot().showNetwork();
  QVERIFY(hasNear(f.picture(), f.pixel(0, 0), magenta, 12));
  QCOMPARE(f.plot().update().legendContents().casings.size(), std::size_t(1));
  f.plot().update().setHiddenLayers(QStringLiteral("vis.layer"), {QStringLiteral("north")});
  f.plot().update().updatePlot();
  QVERIFY(f.plot().update().legendContents().casings.empty());
}

NIVRA_TEST(TestEmphasis);
#include "tst_emphasis.moc"
