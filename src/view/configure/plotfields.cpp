#include "configure/plotfields.h"

#include "canvas/legendplace.h"
#include "configure/colorbutton.h"

#include <drawing/colormap.h>

#include <QCoreApplication>
#include <qwt_plot.h>

#include <algorithm>
#include <array>
#include <optional>

namespace {

/// Those of the dialog.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(viewFuncDialog)
};

/// Where the colour scale is, in the order of the choices, as the numbers of the axes.
constexpr std::array<int, 3> ScaleAxes{0, QwtPlot::xTop, QwtPlot::yRight};

/// One field for whether the legend is shown and for where it stands.
void bindLegend(Ui::viewFuncDialog &ui, SettingFields &fields) {
  using S = PlotSettings;
  fields.bind<bool>(
      &S::showsLegend,
      [&ui](const S &s) {
        const int corner = ui.legendCorner->findData(s.legendCorner);
        ui.legendCorner->setCurrentIndex(!s.showsLegend ? 0 : std::max(1, corner));
      },
      [&ui] { return ui.legendCorner->currentIndex() > 0; });
  fields.bind<QString>(
      &S::legendCorner, [](const S &) {},
      [&ui] {
        const QString corner = ui.legendCorner->currentData().toString();
        return corner.isEmpty() ? std::nullopt : std::make_optional(corner); // hidden it stays for the next time
      });
}

void bindScale(Ui::viewFuncDialog &ui, SettingFields &fields) {
  using S = PlotSettings;
  fields.bind(*ui.colorRamp, &S::colorRamp);
  fields.bind(*ui.firstColor, &S::firstColor);
  fields.bind(*ui.lastColor, &S::lastColor);
  fields.bind(*ui.saturation, &S::saturation);
  fields.bind(*ui.lightness, &S::lightness);
  fields.bind(*ui.logFactor, &S::logFactor);
  fields.bind(*ui.quantileBounds, &S::quantileBounds);
  bindLegend(ui, fields);
  fields.bind<QString>(
      &S::classMethod,
      [&ui](const S &s) {
        ui.classMethod->setCurrentIndex(
            std::max(0, ui.classMethod->findData(s.colorClasses > 1 ? s.classMethod : QString())));
      },
      [&ui] {
        const QString method = ui.classMethod->currentData().toString();
        return method.isEmpty() ? std::nullopt : std::make_optional(method); // without classes it stays for the next time
      });
  fields.bind<int>(
      &S::colorClasses,
      [&ui](const S &s) {
        constexpr int FirstOffer = 5;
        ui.colorClasses->setValue(s.colorClasses > 1 ? s.colorClasses : FirstOffer);
      },
      [&ui] { return ui.classMethod->currentData().toString().isEmpty() ? 0 : ui.colorClasses->value(); });
  fields.bind<int>(
      &S::colorScalePos,
      [&ui](const S &s) {
        const auto axis = std::find(ScaleAxes.begin(), ScaleAxes.end(), s.colorScalePos);
        ui.colorScalePos->setCurrentIndex(axis == ScaleAxes.end() ? 0 : static_cast<int>(axis - ScaleAxes.begin()));
      },
      [&ui] { return ScaleAxes.at(static_cast<std::size_t>(ui.colorScalePos->currentIndex())); });
  fields.bind<int>(
      &S::legendPos,
      [&ui](const S &s) {
        const bool isCorner = s.legendPos > 0 && s.legendPos < ui.legendPos->count();
        ui.legendPos->setCurrentIndex(isCorner ? s.legendPos : 0);
      },
      [&ui] { return ui.legendPos->currentIndex(); });
}

void bindSizes(Ui::viewFuncDialog &ui, SettingFields &fields) {
  using S = PlotSettings;
  fields.bind(*ui.edgeConst, &S::edgeConst);
  fields.bind(*ui.edgeMag, &S::edgeMag);
  fields.bind(*ui.nodeMag, &S::nodeMag);
  fields.bind(*ui.symMag, &S::symMag);
  fields.bind(*ui.arrowMag, &S::arrowMag);
  fields.bind(*ui.labelMag, &S::labelMag);
  fields.bind(*ui.labelMargin, &S::labelMargin);
  fields.bind(*ui.label_mode, &S::label_mode);
  fields.bind(*ui.alphaSubnet, &S::alphaSubnet);
  fields.bind(*ui.zoomFact, &S::zoomFact);
  fields.bind(*ui.showXYaxes, &S::showXYaxes);
  fields.bind(*ui.edgeShowFlow, &S::edgeShowFlow);
  fields.bind(*ui.layerProp, &S::layerProp);
  fields.bind<bool>(
      &S::fixAxesRatio,
      [&ui](const S &s) {
        ui.viewport->setCurrentIndex(s.fixAxesRatio ? PlotFields::AspectRatio : PlotFields::IndependentAxes);
      },
      [&ui] { return ui.viewport->currentIndex() != PlotFields::IndependentAxes; });
}

void bindColors(Ui::viewFuncDialog &ui, SettingFields &fields) {
  using S = PlotSettings;
  fields.bind(*ui.bgrColor, &S::bgrColor);
  fields.bind(*ui.edgeLabelsColor, &S::edgeLabelsColor);
  fields.bind(*ui.nodeLabelsColor, &S::nodeLabelsColor);
  fields.bind(*ui.edgeColorInactive, &S::edgeColorInactive);
  fields.bind(*ui.edgeColorNoFlow, &S::edgeColorNoFlow);
  fields.bind(*ui.gridMajorColor, &S::gridMajorColor);
  fields.bind(*ui.gridMinorColor, &S::gridMinorColor);
  fields.bind(*ui.showGrid, &S::showGrid);
  fields.bind(*ui.dimsRest, &S::dimsRest);
  for (const ColorButton *ofGrid : {ui.gridMajorColor, ui.gridMinorColor}) // nobody chooses a colour of what is hidden
    QObject::connect(ofGrid, &ColorButton::colorChosen, ui.showGrid, [&ui] { ui.showGrid->setChecked(true); });
}

} // namespace

void PlotFields::fillChoices(Ui::viewFuncDialog &ui) {
  for (const QString &ramp : ColorRamp::names())
    ui.colorRamp->addItem(ColorRamp::title(ColorRamp::kindOf(ramp)), ramp);
  ui.classMethod->addItem(Texts::tr("none, a smooth scale"), QString());
  ui.classMethod->addItem(Texts::tr("equal intervals"), PlotSettings::equalClasses());
  ui.classMethod->addItem(Texts::tr("as many elements in each"), PlotSettings::quantileClasses());
  ui.classMethod->addItem(Texts::tr("natural breaks"), PlotSettings::naturalClasses());
  ui.classMethod->addItem(Texts::tr("breaks of your own"), PlotSettings::ownClasses());
  ui.colorScalePos->addItems({Texts::tr("not shown"), Texts::tr("at the top"), Texts::tr("on the right")});
  ui.legendPos->addItem(Texts::tr("not shown"));
  ui.legendCorner->addItem(Texts::tr("not shown"), QString());
  ui.legendCorner->addItem(Texts::tr("where it hides least"), PlotSettings::automaticCorner());
  for (int i = 0; i < LegendPlace::names().size(); ++i) {
    const QString corner = LegendPlace::title(static_cast<LegendPlace::Corner>(i));
    ui.legendPos->addItem(corner);
    ui.legendCorner->addItem(corner, LegendPlace::names().at(i));
  }
  for (const char *mode : {QT_TRANSLATE_NOOP("viewFuncDialog", "no label"), QT_TRANSLATE_NOOP("viewFuncDialog", "name only"),
                           QT_TRANSLATE_NOOP("viewFuncDialog", "selected properties")})
    ui.label_mode->addItem(Texts::tr(mode), QLatin1String(mode));
  ui.viewport->addItems({Texts::tr("independent axes"), Texts::tr("original ratio"), Texts::tr("aspect ratio")});
}

void PlotFields::bind(Ui::viewFuncDialog &ui, SettingFields &fields) {
  bindScale(ui, fields);
  bindSizes(ui, fields);
  bindColors(ui, fields);
}
