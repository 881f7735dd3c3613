#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CommandLine {
  enum class Action {
    Window, ///< open the window, with file when given
    Batch,  ///< info and export, without a window or display
    Print,  ///< text is the answer
    Wrong   ///< text says why
  };

  Action action = Action::Window;
  QString file;
  bool info = false;
  QString picture;
  int width = 0; ///< pixels, 0 for the default
  QString text;

  static constexpr int DefaultWidth = 1600;
  static constexpr int LargestWidth = 20000;

  /// Needs no application object. arguments as main gets them, the program name first.
  static CommandLine parse(const QStringList &arguments);
};
