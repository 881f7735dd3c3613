// Drawing, against the bare painter.

#include "canvas/canvaslegend.h"
#include "canvas/qwtfastplot.h"
#include "interaction/plotzoom.h"
#include "measure.h"

#include <io/nivrareader.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>

#include <benchmark/benchmark.h>
#include <map>

namespace {

constexpr int HundredThousandEdges = 200000; // elements, half of which are edges
constexpr int Few = 1000;
constexpr int Thousands = 10000;
constexpr int Hundred = 100000;
constexpr int Million = 1000000;
constexpr QSize Window(1200, 900);

/// A network and its plot, read once.
struct Scene {
  NetData net;
  NetVisControl control{net, QString()};

  explicit Scene(int elements) {
    NivraReader(net).readGeomJsn(Measure::network(elements), {});
    control.plot()->resize(Window);
    control.plot()->show();
    control.showNetData(QString());
    control.plot()->grab(); // lays out
  }
  NetPlot &plot() { return *control.plot(); }
  QWidget &canvas() { return *plot().plot()->canvas(); }

  static Scene &of(int elements) {
    static auto *scenes = new std::map<int, Scene>; // never destroyed: its widgets would outlive the application
    return scenes->try_emplace(elements, elements).first->second;
  }
};

/// Where the plot puts the edges, in pixels.
QVector<QLineF> edgeLines(Scene &scene) {
  QVector<QLineF> lines;
  const NetGeometry &geometry = scene.plot().update().geometry();
  const QwtScaleMap x = scene.plot().plot()->canvasMap(QwtPlot::xBottom);
  const QwtScaleMap y = scene.plot().plot()->canvasMap(QwtPlot::yLeft);
  for (const NetGeometry::Edge &edge : geometry.edges()) {
    const NetGeometry::Node &a = geometry.nodes()[edge.node1];
    const NetGeometry::Node &b = geometry.nodes()[edge.node2];
    lines.append({x.transform(a.x), y.transform(a.y), x.transform(b.x), y.transform(b.y)});
  }
  return lines;
}

/// The baseline: the same lines with one pen, its width in tenths of a pixel.
void bareLines(benchmark::State &state) {
  constexpr double Tenth = 0.1;
  Scene &scene = Scene::of(HundredThousandEdges);
  const QVector<QLineF> lines = edgeLines(scene);
  QImage image(scene.canvas().size(), QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::blue, static_cast<double>(state.range(0)) * Tenth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(lines);
  }
  state.counters["lines"] = lines.size();
}
BENCHMARK(bareLines)->Arg(10)->Arg(20)->Arg(30)->Unit(benchmark::kMillisecond);

/// The whole drawing, everything on it, at full extent (1) or zoomed in so many times.
void frame(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  scene.plot().zoomer()->fitAll();
  if (state.range(1) > 1) {
    const QRectF base = scene.plot().zoomer()->zoomBase();
    QRectF part(QPointF(), base.size() / static_cast<double>(state.range(1)));
    part.moveCenter(base.center());
    scene.plot().zoomer()->zoom(part);
  }
  QImage image(scene.canvas().size(), QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    scene.plot().plot()->replot(); // drops what is cached
    scene.canvas().render(&image);
  }
  scene.plot().zoomer()->fitAll();
}
BENCHMARK(frame)->Args({HundredThousandEdges, 1})->Args({HundredThousandEdges, 10})->Unit(benchmark::kMillisecond);
BENCHMARK(frame)->Args({Million, 1})->Args({Million, 10})->Unit(benchmark::kMillisecond)->Iterations(3);

/// One step of the mouse while the view is dragged.
void panningStep(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  const auto send = [&](QEvent::Type type, const QPoint &place, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, place, scene.canvas().mapToGlobal(place), button, held, Qt::ControlModifier);
    QApplication::sendEvent(&scene.canvas(), &event);
  };
  constexpr int Start = 200;
  constexpr int Circle = 100;
  send(QEvent::MouseButtonPress, {Start, Start}, Qt::LeftButton, Qt::LeftButton);
  int step = 0;
  for (auto _ : state) {
    ++step;
    send(QEvent::MouseMove, {Start + step % Circle, Start}, Qt::NoButton, Qt::LeftButton);
    QApplication::processEvents(); // paints
  }
  send(QEvent::MouseButtonRelease, {Start, Start}, Qt::LeftButton, Qt::NoButton);
}
BENCHMARK(panningStep)->Arg(HundredThousandEdges)->Unit(benchmark::kMillisecond);

/// One step of a smooth zoom: a slow drawing is moved as a picture.
void smoothZoomStep(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  PlotZoom &zoomer = *scene.plot().zoomer();
  zoomer.fitAll();
  scene.canvas().repaint();
  constexpr double Factor = 1.02;
  zoomer.beginMove();
  bool isIn = true;
  for (auto _ : state) {
    if (isIn)
      zoomer.zoomIn(zoomer.zoomBase().center(), Factor);
    else
      zoomer.zoomOut(zoomer.zoomBase().center(), Factor);
    isIn = !isIn;
    QApplication::processEvents(); // paints
  }
  zoomer.endMove();
  zoomer.fitAll();
}
BENCHMARK(smoothZoomStep)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond);

/// What lies under the cursor.
void hitTest(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  scene.plot().zoomer()->fitAll();
  constexpr int Places = 97;
  int place = 0;
  for (auto _ : state) {
    place = (place + 1) % Places;
    const double share = static_cast<double>(place) / Places;
    const QPointF point(scene.canvas().width() * share, scene.canvas().height() * share);
    benchmark::DoNotOptimize(scene.plot().update().elementsAt(point, 8.0));
  }
}
BENCHMARK(hitTest)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond);

/// Another property for the colours, the elements as they are.
void recolour(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  const PlotSettings before = scene.plot().settings();
  PlotSettings settings = before;
  for (auto _ : state) {
    settings.functions[Aspect::EdgeColor].name =
        settings.functions[Aspect::EdgeColor].name == QLatin1String("q") ? QStringLiteral("length") : QStringLiteral("q");
    scene.plot().setSettings(settings);
    scene.plot().update().updatePlot();
  }
  scene.plot().setSettings(before);
  scene.plot().update().updatePlot();
}
BENCHMARK(recolour)->Arg(Hundred)->Unit(benchmark::kMillisecond);

/// Where the legend hides least, which is looked for when a view has come to rest.
void legendPlaces(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  for (auto _ : state)
    scene.plot().canvasLegend().refresh();
}
BENCHMARK(legendPlaces)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond);

/// Labels for everything in view; how many there were, found a place and overlap.
void labelPass(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  const PlotSettings before = scene.plot().settings();
  PlotSettings settings = before;
  settings.labelMargin = 0;
  settings.label_mode = QStringLiteral("name only");
  if (state.range(1) == 0) { // nothing but lines, dots and labels on 1200 by 900 pixels
    settings.symMag = 0;
    settings.colorScalePos = 0;
    settings.legendPos = 0;
    settings.showsLegend = false;
  }
  scene.plot().setSettings(settings);
  scene.plot().update().updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
  QApplication::processEvents();
  scene.plot().zoomer()->fitAll();
  NetUpdate &update = scene.plot().update();
  for (auto _ : state) {
    state.PauseTiming();
    update.clearLabels(); // a pass that finds its labels in place would be quicker
    state.ResumeTiming();
    update.placeLabelsNow();
  }
  const std::vector<Label> &labels = update.labels();
  int overlaps = 0;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    for (std::size_t k = i + 1; k < labels.size(); ++k)
      overlaps += labels[i].candidate.box(labels[i].spot).overlaps(labels[k].candidate.box(labels[k].spot)) ? 1 : 0;
  }
  state.counters["candidates"] = static_cast<double>(labels.size() + update.unplacedLabels().size());
  state.counters["placed"] = static_cast<double>(labels.size());
  state.counters["overlaps"] = overlaps;
  scene.plot().setSettings(before);
  update.updatePlot(NetUpdate::Elements::Kept, NetUpdate::Which::EdgesAndNodes, NetUpdate::Labels::Renewed);
}
BENCHMARK(labelPass)
    ->ArgNames({"elements", "symbols"})
    ->ArgsProduct({{Few, Thousands}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

/// From the network to everything that a frame needs.
void buildRecords(benchmark::State &state) {
  Scene &scene = Scene::of(static_cast<int>(state.range(0)));
  for (auto _ : state)
    scene.plot().update().updatePlot(NetUpdate::Elements::Renewed, NetUpdate::Which::EdgesAndNodes,
                                     NetUpdate::Labels::Renewed);
}
BENCHMARK(buildRecords)->Arg(Hundred)->Arg(Million)->Unit(benchmark::kMillisecond);

} // namespace
