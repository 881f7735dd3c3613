#include "canvas/canvaslegend.h"
#include "canvas/legendview.h"
#include "interaction/plotzoom.h"
#include "viewfixture.h"

#include <drawing/legendpicture.h>
#include <drawing/scaleticks.h>
#include <support/nivratest.h>
#include <view/plotexport.h>

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

/// The legend inside the canvas.
class TestLegend : public QObject {
  Q_OBJECT

private slots:
  void saysWhatIsDrawn();
  void nodesHaveTheirOwnScale();
  void sizesAreThoseOfTheView();
  void capsTellOfOutliers();
  void ticksAreRoundAndDistinct_data();
  void ticksAreRoundAndDistinct();
  void breaksAreWrittenAsTheyAre_data();
  void breaksAreWrittenAsTheyAre();
  void breaksBeyondTheRange();
  void aBroadBlockDropsNoOther();
  void casingsLieOnTheGround();
  void staysSmall_data();
  void staysSmall();
  void standsWhereItHidesLeast();
  void isDraggedToAnotherCorner();
  void keyAndMenu();
  void searchResultsHaveNoScale();
  void labelsKeepAway();
  void picturesShowIt();

private:
  static LegendView &viewOf(ViewFixture &f) { return *f.plot().findChild<LegendView *>(); }
  static QAction *entry(const QMenu &menu, const QString &text) {
    for (QAction *action : menu.actions()) {
      if (action->menu() == nullptr && action->text().remove(QLatin1Char('&')).startsWith(text))
        return action;
      if (action->menu() != nullptr) {
        if (QAction *found = entry(*action->menu(), text))
          return found;
      }
    }
    return nullptr;
  }
  static void sendMouse(QWidget &to, QEvent::Type type, const QPoint &place, Qt::MouseButtons buttons) {
    QMouseEvent event(type, place, to.mapToGlobal(place), type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(&to, &event);
  }
};

void TestLegend::saysWhatIsDrawn() {
  ViewFixture f;
  f.net.element(QStringLiteral("CD"))->set(QStringLiteral("diameter"), QStringLiteral("100"));
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("state"), QStringLiteral("off"));
  f.addNode("E", "0", "100", "25");
  f.net.element(QStringLiteral("E"))->set(QStringLiteral("qset"), QStringLiteral("-5"));
  f.control.setCaption(QStringLiteral("Case · S1"));
  f.plot().show();
  f.showAtFirst();
  const LegendContents contents = f.plot().update().legendContents();
  QCOMPARE(contents.scales.size(), std::size_t(1));
  QCOMPARE(contents.scales[0].title, QStringLiteral("pressure [bar] – edges and nodes"));
  QCOMPARE(contents.scales[0].range, QwtInterval(20, 60));
  QVERIFY(!contents.scales[0].below && !contents.scales[0].above);
  QVERIFY(contents.widths.title.startsWith(QStringLiteral("diameter [mm]")));
  QCOMPARE(contents.widths.samples.size(), std::size_t(3));
  QVERIFY(contents.widths.samples[0].size < contents.widths.samples[1].size);
  QVERIFY(contents.widths.samples[1].size < contents.widths.samples[2].size);
  QCOMPARE(contents.widths.samples[2].text, QStringLiteral("1000"));
  QCOMPARE(contents.widths.samples[2].size, 5.0); // as BC is drawn
  QStringList symbols;
  for (const LegendContents::Symbol &symbol : contents.symbols)
    symbols.append(symbol.title);
  QCOMPARE(symbols, (QStringList{QStringLiteral("supply"), QStringLiteral("compressor")}));
  QVERIFY(std::any_of(contents.lines.begin(), contents.lines.end(),
                      [](const ColorScale::Swatch &swatch) { return swatch.text == QLatin1String("off"); }));
  QVERIFY(viewOf(f).isVisible());
  QVERIFY(!f.plot().plot()->axisEnabled(QwtPlot::yRight)); // no bar as high as the window
  f.control.clear();
  QVERIFY(!viewOf(f).isVisible());
}

void TestLegend::nodesHaveTheirOwnScale() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("height"), QStringLiteral("5"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("height"), QStringLiteral("500"));
  f.showAtFirst();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::NodeColor].name = QStringLiteral("height");
  settings.functions[Aspect::NodeSize].name = QStringLiteral("height");
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  const LegendContents contents = f.plot().update().legendContents();
  QCOMPARE(contents.scales.size(), std::size_t(2));
  QCOMPARE(contents.scales[0].title, QStringLiteral("pressure [bar] – edges"));
  QCOMPARE(contents.scales[1].title, QStringLiteral("height [m] – nodes"));
  QVERIFY(contents.sizes.samples.size() > 1);
  QVERIFY(contents.sizes.samples.front().size < contents.sizes.samples.back().size);
}

void TestLegend::sizesAreThoseOfTheView() {
  ViewFixture f;
  f.net.element(QStringLiteral("A"))->set(QStringLiteral("height"), QStringLiteral("0"));
  f.net.element(QStringLiteral("B"))->set(QStringLiteral("height"), QStringLiteral("400"));
  f.plot().show();
  f.showAtFirst();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::NodeSize].name = QStringLiteral("height");
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  NetUpdate &update = f.plot().update();
  const Index b = update.geometry().find(f.net, QStringLiteral("B"))->index;
  const auto sample = [&update] {
    const LegendContents contents = update.legendContents();
    return contents.sizes.samples.empty() ? LegendContents::Sample() : contents.sizes.samples.back();
  };
  const auto drawn = [&update, b] {
    return update.drawnSizes().nodes->sizeOf(b, update.projection());
  };
  QCOMPARE(sample().text, QStringLiteral("400"));
  const double before = sample().size;
  QCOMPARE(before, drawn());
  const QSignalSpy changed(&update, &NetUpdate::legendChanged);
  f.plot().zoomer()->zoomIn({100, 0}, 3.0);
  update.requestPixtest(-1);
  QCOMPARE(sample().size, drawn());
  QVERIFY(drawn() > before && changed.count() > 0);
}

void TestLegend::capsTellOfOutliers() {
  ViewFixture f;
  f.showAtFirst();
  PlotSettings settings = f.plot().settings();
  settings.functions[Aspect::EdgeColor].minimum = 30;
  f.plot().setSettings(settings);
  f.plot().update().updatePlot();
  const LegendContents contents = f.plot().update().legendContents();
  QVERIFY(contents.scales[0].below && !contents.scales[0].above);
  const DrawValues::Column &edges = f.plot().update().values().of(Aspect::EdgeColor);
  QCOMPARE(*contents.scales[0].below, ColorScale::edgeColors(settings, edges)->rgb(edges.range, 25.0)); // as AB is drawn
}

void TestLegend::ticksAreRoundAndDistinct_data() {
  QTest::addColumn<double>("low");
  QTest::addColumn<double>("high");
  const std::pair<double, double> ranges[] = {{43.27, 78.91}, {69.99, 70.0},  {69.999993, 70.0},
                                              {0.0, 0.0004},  {-2e-7, 3e-7},  {-12.5, 1e6 / 7},
                                              {1e6, 9e6},     {1e-12, 7e-12}, {-3e20, 8e20}};
  for (const auto &[low, high] : ranges)
    QTest::newRow(qPrintable(QStringLiteral("%1 to %2").arg(low).arg(high))) << low << high;
}

void TestLegend::ticksAreRoundAndDistinct() {
  QFETCH(double, low);
  QFETCH(double, high);
  for (int count = 2; count < 8; ++count) {
    const std::vector<double> ticks = ScaleTicks::within({low, high}, count);
    QSet<QString> texts;
    for (const double tick : ticks) {
      const QString text = ScaleTicks::text(tick, ticks);
      QVERIFY(tick >= low && tick <= high);
      QVERIFY2(std::abs(text.toDouble() - tick) <= (high - low) * 1e-3, qPrintable(text)); // it says what it marks
      QVERIFY2(text.size() < 12, qPrintable(text));
      texts.insert(text);
    }
    QCOMPARE(texts.size(), static_cast<int>(ticks.size()));
  }
  QVERIFY(ScaleTicks::within({low, high}, 6).size() > 1);
}

void TestLegend::breaksAreWrittenAsTheyAre_data() {
  QTest::addColumn<QVector<double>>("breaks");
  QTest::addColumn<QStringList>("texts");
  const auto row = [](const QVector<double> &breaks, const char *texts) {
    QTest::newRow(texts) << breaks << QString::fromLatin1(texts).split(QLatin1Char(' '));
  };
  row({2.5, 5, 7.5}, "2.5 5.0 7.5");
  row({0.25, 0.5, 0.75}, "0.25 0.50 0.75");
  row({0.05, 50, 100}, "0.05 50 100");
  row({0.0123456, 50.1234, 99.876}, "0.0123 50.1 99.9");
  row({20, 40, 60}, "20 40 60");
  row({-0.5, 0, 0.5}, "-0.5 0.0 0.5");
}

void TestLegend::breaksAreWrittenAsTheyAre() {
  QFETCH(QVector<double>, breaks);
  QFETCH(QStringList, texts);
  const std::vector<double> ticks(breaks.begin(), breaks.end());
  QStringList written;
  for (const double tick : ticks)
    written.append(ScaleTicks::text(tick, ticks));
  QCOMPARE(written, texts);
}

/// A scale whose breaks all lie beyond its values has its numbers all the same.
void TestLegend::breaksBeyondTheRange() {
  LegendContents contents;
  LegendContents::Scale scale;
  scale.title = QStringLiteral("pressure");
  scale.range = QwtInterval(20, 60);
  scale.colors.assign(128, qRgb(0, 90, 200));
  contents.scales.push_back(scale);
  const auto drawn = [&contents] {
    LegendPicture picture;
    picture.setContents(contents, Qt::white, QFont(), {});
    picture.fitInto({400, 400});
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.draw(painter, {});
    return image;
  };
  const QImage smooth = drawn();
  contents.scales[0].breaks = {100, 200};
  QCOMPARE(drawn(), smooth);
}

void TestLegend::aBroadBlockDropsNoOther() {
  LegendContents contents;
  contents.sizes.title = QStringLiteral("size");
  for (int i = 0; i < 3; ++i)
    contents.sizes.samples.push_back({20.0, QString(30, QLatin1Char('8'))});
  contents.lines = {{qRgb(1, 2, 3), QStringLiteral("no flow")}};
  const auto sizeOf = [&contents](double width) {
    LegendPicture picture;
    picture.setContents(contents, Qt::white, QFont(), {});
    picture.fitInto({width, 400});
    return picture.size();
  };
  const QSizeF without = sizeOf(200);
  QVERIFY(!without.isEmpty());
  contents.sizes.samples.clear();
  QCOMPARE(sizeOf(200), without);
  for (const char *word : {"a control valve with its valves", "a compressor station of several machines"})
    contents.lines.push_back({qRgb(1, 2, 3), QString::fromLatin1(word)});
  const QSizeF many = sizeOf(300); // below each other where they do not fit side by side
  QVERIFY(!many.isEmpty() && many.width() <= 300 && many.height() > without.height() * 1.5);
}

void TestLegend::casingsLieOnTheGround() {
  const QColor ground(20, 24, 28);
  LegendContents contents;
  contents.casings = {{qRgb(255, 0, 255), QStringLiteral("beyond bounds")}};
  LegendPicture picture;
  picture.setContents(contents, ground, QFont(), {});
  picture.fitInto({400, 400});
  QImage image(400, 100, QImage::Format_RGB32);
  image.fill(ground);
  QPainter painter(&image);
  picture.draw(painter, {});
  painter.end();
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < 30; ++x)
      QVERIFY(image.pixelColor(x, y) != QColor(Qt::white));
}

void TestLegend::staysSmall_data() {
  QTest::addColumn<QSize>("size");
  QTest::addColumn<bool>("isShown");
  QTest::newRow("1400x900") << QSize(1400, 900) << true;
  QTest::newRow("900x600") << QSize(900, 600) << true;
  QTest::newRow("a narrow dock apart") << QSize(420, 560) << true;
  QTest::newRow("tiny") << QSize(200, 200) << false; // the smallest that a plot can be
}

void TestLegend::staysSmall() {
  QFETCH(QSize, size);
  QFETCH(bool, isShown);
  ViewFixture f;
  f.control.setCaption(QString(80, QLatin1Char('W'))); // nobody's names make it broad
  f.plot().resize(size);
  f.plot().show();
  f.showAtFirst();
  f.picture();
  QTRY_COMPARE(viewOf(f).isVisible(), isShown);
  const QRectF area = f.plot().canvasLegend().area();
  QCOMPARE(area.isEmpty(), !isShown);
  QVERIFY(QRectF(f.plot().plot()->canvas()->contentsRect()).contains(area) || !isShown);
  QVERIFY(area.width() <= 320 && area.width() <= size.width() * 0.5 && area.height() <= size.height() * 0.5);
}

void TestLegend::standsWhereItHidesLeast() {
  for (const bool isRight : {false, true}) {
    ViewFixture f;
    f.plot().resize(800, 600);
    // A broad network whose lines leave one lower corner free.
    f.addNode("L", "-200", "-150", "30");
    f.addNode("R", "400", "-150", "30");
    f.addNode("LT", "-200", "250", "30");
    f.addNode("RT", "400", "250", "30");
    f.add(makeEdge("top", "LT", "RT"), {{"diameter", "300"}});
    f.add(makeEdge("side", isRight ? "LT" : "RT", isRight ? "L" : "R"), {{"diameter", "300"}});
    f.add(makeEdge("across", isRight ? "L" : "R", isRight ? "RT" : "LT"), {{"diameter", "300"}});
    f.plot().show();
    f.showAtFirst();
    f.picture();
    const auto corner = [&f] {
      const QPointF middle = QRectF(f.plot().plot()->canvas()->rect()).center();
      const QPointF legend = f.plot().canvasLegend().area().center();
      return std::make_pair(legend.x() > middle.x(), legend.y() > middle.y());
    };
    QTRY_COMPARE(corner(), std::make_pair(isRight, true));
    f.plot().zoomer()->zoomIn({0, 0}); // it does not jump about
    f.picture();
    QCOMPARE(corner(), std::make_pair(isRight, true));
  }
}

void TestLegend::isDraggedToAnotherCorner() {
  ViewFixture f;
  f.plot().resize(900, 700);
  f.plot().show();
  f.showAtFirst();
  f.picture();
  LegendView &view = viewOf(f);
  const QRect canvas = f.plot().plot()->canvas()->contentsRect();
  const Selection before = f.net.selection();
  const QSignalSpy changed(&f.plot(), &NetPlot::settingsChanged);
  for (const QPoint &target : {canvas.topRight(), canvas.bottomRight(), canvas.topLeft()}) {
    sendMouse(view, QEvent::MouseButtonPress, {20, 20}, Qt::LeftButton);
    sendMouse(view, QEvent::MouseMove, view.mapFromParent(target), Qt::LeftButton);
    QVERIFY(f.plot().plot()->canvas()->rect().contains(view.geometry()));
    sendMouse(view, QEvent::MouseButtonRelease, {20, 20}, Qt::NoButton);
    QVERIFY((view.geometry().center() - target).manhattanLength() < (canvas.center() - target).manhattanLength());
    const QRect stands = view.geometry();
    f.plot().resize(f.plot().size() - QSize(20, 20));
    f.plot().resize(f.plot().size() + QSize(20, 20));
    f.picture();
    QTRY_COMPARE(view.geometry(), stands);
  }
  QCOMPARE(f.plot().settings().legendCorner, QStringLiteral("top left"));
  QCOMPARE(changed.count(), 3);
  QVERIFY(f.net.selection() == before);
  const QSignalSpy wanted(&f.plot(), &NetPlot::drawConfigurationRequested);
  QTest::mouseDClick(&view, Qt::LeftButton);
  QCOMPARE(wanted.count(), 1);
}

void TestLegend::keyAndMenu() {
  ViewFixture f;
  f.plot().show();
  f.showAtFirst();
  f.plot().activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(&f.plot()));
  f.plot().setFocus();
  QTest::keyClick(f.plot().plot()->canvas(), Qt::Key_L);
  QVERIFY(!viewOf(f).isVisible() && !f.plot().settings().showsLegend);
  QTest::keyClick(f.plot().plot()->canvas(), Qt::Key_L);
  QVERIFY(viewOf(f).isVisible() && f.plot().legendAction()->isChecked());

  QMenu menu;
  emit f.plot().contextMenuRequested(&menu);
  const QColor perceptual = f.picture().pixelColor(f.pixel(125, 0));
  entry(menu, ColorRamp::title(ColorRamp::Kind::Hue))->trigger();
  QCOMPARE(f.plot().settings().colorRamp, PlotSettings::hueRamp());
  const QColor hue = f.picture().pixelColor(f.pixel(125, 0));
  QVERIFY(hue != perceptual && hue.saturation() > 200);
  entry(menu, QStringLiteral("upper right"))->trigger();
  QVERIFY(viewOf(f).x() > f.plot().plot()->canvas()->width() / 2);
  entry(menu, QStringLiteral("Colour scale beside"))->trigger();
  QVERIFY(f.plot().plot()->axisEnabled(QwtPlot::yRight));
  entry(menu, QStringLiteral("Legend"))->trigger();
  QVERIFY(!viewOf(f).isVisible());
}

void TestLegend::searchResultsHaveNoScale() {
  ViewFixture f;
  f.net.element(QStringLiteral("AB"))->set(QStringLiteral("isSearchResult"), QStringLiteral("1"));
  f.showAtFirst();
  f.control.setShowsSearchResults(true);
  QApplication::processEvents();
  const LegendContents contents = f.plot().update().legendContents();
  QVERIFY(contents.scales.empty() && contents.widths.samples.empty());
  QCOMPARE(contents.lines.size(), std::size_t(1));
}

void TestLegend::labelsKeepAway() {
  ViewFixture f;
  f.plot().show();
  f.showAtFirst();
  f.plot().canvasLegend().action()->setChecked(true);
  f.plot().zoomer()->zoomIn({100, 50}, 0.6);
  f.plot().update().relabelNow();
  const QRectF legend = f.plot().canvasLegend().area();
  QVERIFY(!legend.isEmpty() && !f.plot().update().labels().empty());
  for (const Label &label : f.plot().update().labels())
    QVERIFY(!legend.intersects(label.candidate.box(label.spot).bounds()));
}

void TestLegend::picturesShowIt() {
  const QTemporaryDir folder;
  ViewFixture f;
  f.control.setCaption(QStringLiteral("Case · S1"));
  f.plot().resize(900, 700);
  f.showAtFirst();
  const auto exported = [&](const char *name) {
    const QString path = folder.filePath(QString::fromLatin1(name));
    QString error;
    if (!exportPlot(f.plot(), path, 900, &error))
      qWarning("%s", qPrintable(error));
    return path;
  };
  QFile svg(exported("a.svg"));
  QVERIFY(svg.open(QIODevice::ReadOnly));
  const QString text = QString::fromUtf8(svg.readAll());
  for (const char *word : {"Case · S1", "pressure [bar]", "compressor"})
    QVERIFY2(text.contains(QString::fromUtf8(word)), word);
  QVERIFY(!text.contains(QStringLiteral("<image")));
  const QImage with(exported("a.png"));
  f.plot().legendAction()->setChecked(false);
  const QImage without(exported("b.png"));
  QVERIFY(with.size() == without.size() && with != without);
  QFile hidden(exported("b.svg"));
  QVERIFY(hidden.open(QIODevice::ReadOnly) && !hidden.readAll().contains("compressor"));
}

NIVRA_TEST(TestLegend);
#include "tst_legend.moc"
