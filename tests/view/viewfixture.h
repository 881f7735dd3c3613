#pragma once

#include "canvas/qwtfastplot.h"

#include <support/modelfixture.h>
#include <view/netviscontrol.h>

#include <QApplication>
#include <QImage>

/// A network of two pipes in a row, one compressor and one text box, and its plot of 600 by 400 pixels.
struct ViewFixture {
  NetData net;
  NetVisControl control{net, QString(), logFinding};

  ViewFixture() {
    addNode("A", "0", "0", "20");
    addNode("B", "100", "0", "30");
    addNode("C", "200", "0", "40");
    addNode("D", "200", "100", "60");
    add(makeEdge("AB", "A", "B"), {{"diameter", "500"}, {"q", "5"}});
    add(makeEdge("BC", "B", "C"), {{"diameter", "1000"}, {"q", "5"}});
    add(makeEdge("CD", "C", "D", "c"), {{"q", "5"}});
    control.plot()->resize(600, 400);
  }

  void addNode(const char *name, const char *x, const char *y, const char *p) { add(makeNode(name, x, y), {{"p", p}}); }
  void add(element e, std::initializer_list<std::pair<const char *, const char *>> more) {
    for (const auto &[name, value] : more)
      e.set(QString::fromUtf8(name), QString::fromUtf8(value));
    net.addElement(std::move(e));
  }

  NetPlot &plot() { return *control.plot(); }
  /// As a case without settings is shown.
  void showAtFirst() { control.showNetData(QStringLiteral("/nowhere/plotsettings.ini")); }
  /// The same functions as settings of old ask for them: hues from blue to red over all values, their scale at the right.
  void show() {
    showAtFirst();
    constexpr int BottomLeft = 2;
    PlotSettings settings = plot().settings();
    settings.colorRamp = PlotSettings::hueRamp();
    settings.quantileBounds = false;
    settings.showsLegend = false;
    settings.colorScalePos = QwtPlot::yRight;
    settings.legendPos = BottomLeft;
    plot().setSettings(settings);
    plot().update().updatePlot();
  }
  QImage picture() { return plot().grab().toImage(); }

  /// The pixel of a place given in plot coordinates, seen from the net plot's corner.
  QPoint pixel(double x, double y) {
    const QwtFastPlot &area = *plot().plot();
    const QPointF onCanvas(area.transform(QwtPlot::xBottom, x), area.transform(QwtPlot::yLeft, y));
    return area.canvas()->mapTo(&plot(), onCanvas.toPoint());
  }
};
