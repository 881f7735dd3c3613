#include "toolkitoptions.h"

#include <algorithm>

namespace {

bool hasValue(const QString &name) {
  static const QStringList names{QStringLiteral("platform"),        QStringLiteral("platformpluginpath"),
                                 QStringLiteral("platformtheme"),   QStringLiteral("plugin"),
                                 QStringLiteral("qwindowgeometry"), QStringLiteral("geometry"),
                                 QStringLiteral("qwindowtitle"),    QStringLiteral("title"),
                                 QStringLiteral("qwindowicon"),     QStringLiteral("icon"),
                                 QStringLiteral("session"),         QStringLiteral("display"),
                                 QStringLiteral("style"),           QStringLiteral("stylesheet")};
  return names.contains(name);
}

bool isSwitch(const QString &name) {
  static const QStringList names{QStringLiteral("reverse"), QStringLiteral("nograb"), QStringLiteral("dograb"),
                                 QStringLiteral("testability"), QStringLiteral("widgetcount")};
  return names.contains(name) || name.startsWith(QLatin1String("style=")) || name.startsWith(QLatin1String("stylesheet="));
}

bool doesWithoutWindow(const QString &argument) {
  static const QStringList options{QStringLiteral("--info"),  QStringLiteral("--export"), QStringLiteral("--search"),
                                   QStringLiteral("--table"), QStringLiteral("--check"),  QStringLiteral("--jobs")};
  return options.contains(argument.section(QLatin1Char('='), 0, 0));
}

/// With two dashes, and where there is no window or it can be no style of the toolkit.
bool isStyleOfDrawing(const QString &argument, const QString &next, bool isWindow) {
  const bool hasOwnValue = argument.startsWith(QLatin1String("--style="));
  if (argument != QLatin1String("--style") && !hasOwnValue)
    return false;
  const QString value = hasOwnValue ? argument : next;
  return !isWindow || value.endsWith(QLatin1String(".ini")) || value.endsWith(QLatin1String(".csv"));
}

} // namespace

ToolkitOptions ToolkitOptions::split(const QStringList &arguments) {
  const bool isWindow = std::none_of(arguments.begin(), arguments.end(), doesWithoutWindow);
  ToolkitOptions options;
  for (int i = 0; i < arguments.size(); ++i) {
    const QString &argument = arguments[i];
    const QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
    if (i == 0)
      options.toolkit.append(argument);
    const bool isOfToolkit = i > 0 && argument.startsWith(QLatin1Char('-')) && (hasValue(name) || isSwitch(name)) &&
                             !isStyleOfDrawing(argument, arguments.value(i + 1), isWindow);
    if (!isOfToolkit) {
      options.others.append(argument);
      continue;
    }
    options.toolkit.append(argument);
    if (name.startsWith(QLatin1String("style=")))
      options.style = name.section(QLatin1Char('='), 1);
    if (!hasValue(name) || i + 1 == arguments.size())
      continue;
    options.toolkit.append(arguments[++i]);
    if (name == QLatin1String("style"))
      options.style = arguments[i];
  }
  return options;
}
