#pragma once

#include "configure/settingfields.h"
#include "ui_viewfuncdialog.h"

/// The fields of "Configure Draw" that stand for one plot setting each. The form and its fields live together.
namespace PlotFields {

/// The entries of "viewport".
enum Viewport { IndependentAxes, OriginalRatio, AspectRatio };

void fillChoices(Ui::viewFuncDialog &ui);
void bind(Ui::viewFuncDialog &ui, SettingFields &fields);

} // namespace PlotFields
