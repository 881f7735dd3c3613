#pragma once

#include <drawing/aspect.h>

#include <QCoreApplication>
#include <QRectF>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CommandLine {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  enum class Action {
    Window, ///< open the window, with file when given
    Batch,  ///< info and export, without a window or display
    Print,  ///< text is the answer
    Wrong   ///< text says why
  };

  Action action = Action::Window;
  QString file;
  QString style;        ///< of the toolkit, where one was asked for
  bool isClean = false; ///< how the file was left does not come back, nor is it kept now
  bool info = false;
  QString picture;
  int width = 0;      ///< pixels, 0 for the default
  double scale = 1.0; ///< of texts, lines and symbols against those on the screen
  /// Draw functions in place of those of the plot settings, empty to leave them.
  PerAspect<QString> functions{};
  QString labels; ///< label mode of the plot settings, empty to leave it; labels are then placed wherever there is room
  QRectF extent;  ///< what the picture shows, in the network's coordinates; null for everything
  QString text;

  static constexpr int DefaultWidth = 1600;
  static constexpr int LargestWidth = 20000;
  static constexpr double SmallestScale = 0.1;
  static constexpr double LargestScale = 20.0;

  /// arguments as main gets them, the program name first; those of the toolkit (-platform, -style ...) are passed over.
  /// Needs an application object of any kind.
  static CommandLine parse(const QStringList &arguments);
};
