#pragma once

#include "batchtask.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

/// What the command line asks for.
struct CommandLine {
  Q_DECLARE_TR_FUNCTIONS(CommandLine)
public:
  enum class Action {
    Window, ///< open the window, with file when given
    Batch,  ///< task, without a window or display
    Jobs,   ///< those of the file jobs, likewise
    Print,  ///< text is the answer
    Wrong   ///< text says why
  };

  Action action = Action::Window;
  QString file;
  bool isClean = false; ///< how the file was left does not come back, nor is it kept now
  QString language;     ///< code of the one that was asked for
  QString style;        ///< of the toolkit, where one was asked for
  QStringList toolkit;  ///< the program name and the options of the toolkit
  BatchTask task;
  QString jobs;   ///< file
  QString output; ///< folder for what the jobs write; empty for that which the file names
  QString text;

  /// arguments as main gets them, the program name first; those of the toolkit (-platform, -style ...) are passed over.
  /// Needs an application object of any kind.
  static CommandLine parse(const QStringList &arguments);
};
