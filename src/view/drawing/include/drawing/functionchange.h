#pragma once

#include <drawing/plotsettings.h>
#include <model/netdata.h>

/// Puts another function in the place of the one in use. Each keeps the bounds that a person gave it; classes of one's own
/// are those of the former function and go with it.
void changeFunction(PlotSettings &settings, Aspect aspect, const QString &name, const NetData &net);
