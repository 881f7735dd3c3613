#pragma once

#include <drawing/drawfunctions.h>
#include <drawing/plotsettings.h>

#include <QCoreApplication>

#include <optional>
#include <vector>

/// Styles that come with the program: each colours by one quantity, with the property in which the network has it.
class BuiltInStyles {
  Q_DECLARE_TR_FUNCTIONS(BuiltInStyles)
public:
  struct Style {
    const char *id;                       ///< by which the command line calls it
    const char *title;                    ///< to be translated
    const char *ramp;                     ///< of ColorRamp::names()
    const char *quantity;                 ///< of which results may be, where no property has one of the names
    std::vector<const char *> properties; ///< in which networks have it, the best first
    std::vector<const char *> widths;     ///< properties for the width of edges, likewise
    const char *breaks;                   ///< between classes, in the unit of the property table; empty for a smooth scale
    const char *colors;                   ///< of these classes, see ClassLooks
    bool isAbsolute;
  };

  static const std::vector<Style> &all();
  static QString titleOf(const Style &style) { return tr(style.title); }
  /// By its id or its title, regardless of case; null when there is none.
  static const Style *find(const QString &name);

  /// The property of the network that the style shows; empty when it has none of them.
  static QString propertyOf(const Style &style, const NetData &net, const DrawFunction::OfNetwork &has);
  /// Why the style shows nothing of a network without such a property.
  static QString reasonAgainst(const Style &style);
  /// The settings with the style laid over them: functions keep bounds of their own, sizes and texts stay. Nothing when the
  /// network has no such property.
  static std::optional<PlotSettings> laidOver(const PlotSettings &settings, const Style &style, const NetData &net,
                                              const DrawFunction::OfNetwork &has);
};
