#pragma once

#include <drawing/plotsettings.h>
#include <model/netdata.h>

/// Puts another function in the place of the one in use. Each keeps the bounds that a person gave it.
void changeFunction(PlotSettings::Function &function, const QString &name, const NetData &net);
