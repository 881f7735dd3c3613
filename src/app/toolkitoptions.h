#pragma once

#include <QString>
#include <QStringList>

/// The options of the toolkit (-platform, -style ...), which the application object takes for itself; it knows them with one
/// or two dashes.
struct ToolkitOptions {
  QStringList toolkit; ///< the program name and the options of the toolkit
  QStringList others;  ///< the program name and everything else
  QString style;       ///< the one that was asked for, which the window would replace by its own

  /// \param arguments as main gets them, the program name first. "--style", with two dashes, names a style of the drawing
  /// where one of the options is there that do without a window, or where it is followed by such a file.
  static ToolkitOptions split(const QStringList &arguments);
};
