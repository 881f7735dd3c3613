#include <drawing/plotsettings.h>

#include <tuple>

namespace {

auto shown(const PlotSettings &s) {
  return std::tie(s.functions, s.edgeShowFlow, s.colorScalePos, s.legendPos, s.label_mode, s.fixAxesRatio, s.showXYaxes,
                  s.zoomFact, s.alphaSubnet, s.layerProp);
}

auto magnitudes(const PlotSettings &s) {
  return std::tie(s.nodeMag, s.nodeMagFlag, s.edgeMag, s.edgeConst, s.labelMargin, s.labelMag, s.arrowMag, s.symMag);
}

auto colors(const PlotSettings &s) {
  return std::tie(s.saturation, s.lightness, s.firstColor, s.lastColor, s.logFactor, s.bgrColor, s.edgeLabelsColor,
                  s.nodeLabelsColor, s.edgeColorInactive, s.edgeColorNoFlow, s.gridMajorColor, s.gridMinorColor);
}

auto drawing(const PlotSettings &s) {
  return std::tie(s.colorRamp, s.colorClasses, s.classMethod, s.classBreaks, s.classColors, s.classLabels, s.showGrid,
                  s.quantileBounds, s.showsLegend, s.legendCorner, s.dimsRest);
}

} // namespace

bool operator==(const PlotSettings::Function &a, const PlotSettings::Function &b) {
  return std::tie(a.name, a.isAbsolute, a.isLogarithmic, a.minimum, a.maximum, a.typed) ==
         std::tie(b.name, b.isAbsolute, b.isLogarithmic, b.minimum, b.maximum, b.typed);
}

bool operator==(const PlotSettings &a, const PlotSettings &b) {
  return shown(a) == shown(b) && magnitudes(a) == magnitudes(b) && colors(a) == colors(b) && drawing(a) == drawing(b);
}
