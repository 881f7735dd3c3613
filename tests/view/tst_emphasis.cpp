#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <base/generalsettings.h>
#include <drawing/violations.h>
#include <support/nivratest.h>
#include <view/plotexport.h>

#include <QFile>
#include <QTemporaryDir>

/// What stands out from the rest: what is selected, and what violates bounds.
class TestEmphasis : public QObject {
  Q_OBJECT

private slots:
  void cleanup() { GeneralSettings::instance().reset(); }
  void selectedStandsOut();
  void theRestIsAsBeforeAfterwards();
  void marksFollowTheView();
  void documentsMarkTheSelection();
  void violationsHaveACasing_data();
  void violationsHaveACasing();

private:
  static void select(ViewFixture &f, const char *edge) {
    Selection selection;
    selection.edges.insert(QString::fromLatin1(edge));
    f.control.picker()->setSelection(selection);
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

NIVRA_TEST(TestEmphasis);
#include "tst_emphasis.moc"
