#include <drawing/plotsettings.h>
#include <tuple>

namespace {

auto functions(const PlotSettings &s) {
  return std::tie(s.edgeShowFlow, s.colorFunc, s.widthFunc, s.nodeColorFunc, s.nodeSizeFunc, s.colorScalePos, s.legendPos,
                  s.label_mode, s.fixAxesRatio, s.showXYaxes, s.zoomFact, s.alphaSubnet, s.layerProp);
}

auto magnitudes(const PlotSettings &s) {
  return std::tie(s.nodeMag, s.nodeMagFlag, s.edgeMag, s.edgeConst, s.labelMargin, s.labelMag, s.arrowMag, s.symMag);
}

auto colors(const PlotSettings &s) {
  return std::tie(s.saturation, s.lightness, s.firstColor, s.lastColor, s.logFactor, s.bgrColor, s.edgeLabelsColor,
                  s.nodeLabelsColor, s.edgeColorInactive, s.edgeColorNoFlow, s.gridMajorColor, s.gridMinorColor);
}

auto scales(const PlotSettings &s) {
  return std::tie(s.absColor, s.absWidth, s.absNodeColor, s.absNodeSize, s.logScaleColor, s.logScaleWidth,
                  s.logScaleNodeColor, s.logScaleNodeSize);
}

auto bounds(const PlotSettings &s) {
  return std::tie(s.minVal_edgeColor, s.maxVal_edgeColor, s.minVal_nodeColor, s.maxVal_nodeColor, s.minVal_Width,
                  s.maxVal_Width, s.minVal_nodeSize, s.maxVal_nodeSize);
}

auto drawing(const PlotSettings &s) {
  return std::tie(s.colorRamp, s.colorClasses, s.classMethod, s.classBreaks, s.typedBounds, s.showGrid);
}

} // namespace

bool operator==(const PlotSettings &a, const PlotSettings &b) {
  return functions(a) == functions(b) && magnitudes(a) == magnitudes(b) && colors(a) == colors(b) &&
         scales(a) == scales(b) && drawing(a) == drawing(b) && bounds(a) == bounds(b);
}
