#pragma once

#include <drawing/aspect.h>
#include <drawing/typedbounds.h>

#include <QColor>
#include <QString>

/// How a network is drawn: the record behind "plotsettings.ini". Bounds of -1e30 and 1e30 are taken from the data.
struct PlotSettings {
  static constexpr double OpenMinimum = -1e30;
  static constexpr double OpenMaximum = 1e30;
  static QString hueRamp() { return QStringLiteral("hue"); }
  static QString equalClasses() { return QStringLiteral("equal interval"); }
  static QString quantileClasses() { return QStringLiteral("quantile"); }
  static QString naturalClasses() { return QStringLiteral("natural breaks"); }
  static QString ownClasses() { return QStringLiteral("own breaks"); }
  static QString automaticCorner() { return QStringLiteral("auto"); }
  static QString fixedSize() { return QStringLiteral("--- fixed ---"); } ///< Aspect::NodeSize: all nodes have one size

  /// A draw function, and how its values become colours or sizes.
  struct Function {
    QString name; ///< by which a person chooses it ("volume flow"), or its property ("q")
    bool isAbsolute = true;
    bool isLogarithmic = false;
    double minimum = OpenMinimum; ///< in the stored unit, as is the maximum
    double maximum = OpenMaximum;
    TypedBounds::OfFunctions typed{}; ///< what a person typed for this and for other functions of the aspect

    friend bool operator==(const Function &a, const Function &b);
  };

  PerAspect<Function> functions{
      {{{QStringLiteral("x"), false}, {QStringLiteral("y")}, {QStringLiteral("y")}, {fixedSize()}}}};

  QString edgeShowFlow = QStringLiteral("q"); ///< property whose value 0 means that an edge carries no flow
  int colorScalePos = 1; ///< Qwt axis: 1 right, 3 top; the others are the drawing's own axes and show no scale
  int legendPos = 0;     ///< 0 hidden, 1 top left, 2 bottom left, 3 top right, 4 bottom right
  int nodeMag = 4;
  int nodeMagFlag = 1; ///< of no effect yet, not stored
  double edgeMag = 1.0;
  double edgeConst = 1.0;
  int labelMargin = 30; ///< px
  int labelMag = 8;     ///< pt
  int arrowMag = 5;
  int symMag = 20;      ///< px
  int saturation = 255; ///< 0 to 255
  int lightness = 230;  ///< 0 to 255
  int firstColor = 0;   ///< hue in degrees
  int lastColor = 240;  ///< hue in degrees
  double logFactor = 7.8;
  QColor bgrColor = Qt::white;
  QColor edgeLabelsColor = Qt::black;
  QColor nodeLabelsColor = Qt::black;
  QColor edgeColorInactive = Qt::gray;
  QColor edgeColorNoFlow = Qt::darkGray;
  QColor gridMajorColor{192, 192, 192};
  QColor gridMinorColor{211, 211, 211};
  QString label_mode = QStringLiteral("selected properties");
  bool fixAxesRatio = true;
  bool showXYaxes = false;
  double zoomFact = 1.5;
  int alphaSubnet = 100; ///< 0 to 255
  QString layerProp = QStringLiteral("vis.layer");

  // Kept in the group "drawing" of the file.
  QString colorRamp = hueRamp(); ///< name of a ramp, see ColorRamp
  int colorClasses = 0;          ///< number of classes of the edge colours; 0 or 1 for a continuous scale
  QString classMethod = equalClasses();
  QString classBreaks; ///< breaks of the user's own in the display unit of the property table, ascending, joined by ";"
  QString classColors; ///< of the user's own, see ClassLooks, as are the labels
  QString classLabels;
  bool showGrid = false;
  bool quantileBounds = false;              ///< open bounds leave out 2 % of the values at either end
  bool showsLegend = false;                 ///< the legend inside the canvas
  QString legendCorner = automaticCorner(); ///< of that legend: a name of LegendPlace, or where it hides least
  bool dimsRest = true;                     ///< what is not selected pales while something is

  friend bool operator==(const PlotSettings &a, const PlotSettings &b);
  friend bool operator!=(const PlotSettings &a, const PlotSettings &b) { return !(a == b); }
};
