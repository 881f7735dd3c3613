#include "batch.h"
#include "commandline.h"
#include "language/language.h"
#include "messagebox.h"
#include "nivraviewer.h"
#include "theme/appearance.h"

#include <base/crashguard.h>
#include <base/nivramsg.h>

#include <QApplication>
#include <QDesktopServices>
#include <QProcess>
#include <QScreen>
#include <QTimer>
#include <QUrl>

#include <cstdio>
#include <new>
#include <vector>

namespace {

/// The parser needs an application, but which kind the program needs is only known afterwards.
CommandLine parse(int argc, char **argv) {
  const QCoreApplication application(argc, argv);
  return CommandLine::parse(QCoreApplication::arguments());
}

void nameApplication() {
  QCoreApplication::setOrganizationName(QStringLiteral("Nivra"));
  QCoreApplication::setApplicationName(QStringLiteral("NivraReader"));
}

int runBatch(const CommandLine &line) {
  NivraMsg::setInteractive(false);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  if (!qEnvironmentVariableIsSet("QT_FONT_DPI"))
    qputenv("QT_FONT_DPI", "96"); // a screen that is none would have 100, and texts larger than those of the window
  // The application object gets its own options alone: a "--style" of the drawing is none of them.
  std::vector<QByteArray> texts;
  texts.reserve(static_cast<std::size_t>(line.toolkit.size()));
  for (const QString &argument : line.toolkit)
    texts.push_back(argument.toLocal8Bit());
  std::vector<char *> arguments;
  arguments.reserve(texts.size() + 1);
  for (QByteArray &text : texts)
    arguments.push_back(text.data());
  arguments.push_back(nullptr);
  int count = static_cast<int>(texts.size());
  const QApplication application(count, arguments.data());
  CrashGuard::setUp(LogFiles::Run::Batch);
  try {
    return line.action == CommandLine::Action::Jobs ? Batch::runJobs(line) : Batch::run(line);
  } catch (const std::bad_alloc &) {
    return Batch::outOfMemory();
  }
}

/// The usual size may be more than the screen has, as where everything is shown twice as large.
void fitScreen(QWidget &window) {
  constexpr double Most = 0.92; // what the desktop puts round a window needs the rest
  window.resize(window.size().boundedTo(QGuiApplication::primaryScreen()->availableSize() * Most));
}

/// In the language that the settings have now.
void restart(const CommandLine &line, const QString &file) {
  QStringList arguments = line.toolkit.mid(1);
  if (line.isClean)
    arguments.append(QStringLiteral("--clean"));
  if (!file.isEmpty())
    arguments.append(file);
  if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments))
    NivraMsg::logCritical(QStringLiteral("The program could not be started again."));
}

int runWindow(int argc, char **argv, const CommandLine &line) {
  QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  const QApplication application(argc, argv);
  QGuiApplication::setDesktopFileName(QStringLiteral("org.nivra.NivraReader")); // by which a desktop finds the icon
  const Language language(Language::toStartWith(line.language));
  NivraMsg::setBoxSink(MessageBox::show);
  CrashGuard::setUp(LogFiles::Run::Window,
                    [](const QString &path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
  NivraViewer viewer;
  fitScreen(viewer);
  if (!line.style.isEmpty())
    QApplication::setStyle(line.style);
  // Inside the event loop, so that a window that is closed while it reads ends the program.
  if (!line.file.isEmpty())
    QTimer::singleShot(0, &viewer, [&] { viewer.open(line.file); });
  QTimer::singleShot(0, &viewer, [&] { viewer.appearance().followDesktop(); });
  viewer.remember(line.isClean ? WorkspaceMemory::Keeps::RecentFiles : WorkspaceMemory::Keeps::Sessions);
  const int status = QApplication::exec();
  if (viewer.restarts())
    restart(line, viewer.openFile());
  return status;
}

} // namespace

int main(int argc, char **argv) {
  nameApplication();
  const CommandLine line = parse(argc, argv);
  switch (line.action) {
  case CommandLine::Action::Print:
    std::fputs(qPrintable(line.text), stdout);
    return 0;
  case CommandLine::Action::Wrong:
    std::fprintf(stderr, "%s\n", qPrintable(line.text));
    return 2;
  case CommandLine::Action::Batch:
  case CommandLine::Action::Jobs:
    return runBatch(line);
  case CommandLine::Action::Window:
    return runWindow(argc, argv, line);
  }
  return 2;
}
