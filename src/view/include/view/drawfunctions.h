#pragma once

#include <model/netdata.h>
#include <model/units.h>
#include <view/plotsettings.h>

#include <QString>

/// What a draw function (PlotSettings::colorFunc and its sisters) shows: a property and the unit in which people read it.
struct DrawFunction {
  /// How the values come about when no element carries them.
  enum class Computed { No, Connectivity, AccumulatedLength };

  PropertyKey property;             ///< null when no element has such a property
  QString title;                    ///< long name with the display unit, such as "pressure [bar]"
  Units::Linear toDisplay;          ///< from the stored to the display unit
  bool isOfNodes = false;           ///< a property of nodes; edges take the mean of their ends
  Computed computed = Computed::No; ///< on the graph of the network

  /// Elements have such a property, or it can be computed.
  bool isKnown() const { return !property.isNull() || computed != Computed::No; }

  /// Finds the function by the name in which a person chooses it ("volume flow") or by its property ("q").
  static DrawFunction find(const QString &function, const NetData &net);
  /// The property behind a function's name; other names stand for the property of that name.
  static QString propertyName(const QString &function);
};

/// Functions that show this network at first sight: pressure where it is known, diameter for width. The rest of the
/// settings stays as it is.
void chooseDefaults(PlotSettings &settings, const NetData &net);
