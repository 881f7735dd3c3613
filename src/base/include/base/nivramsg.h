#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

/// What the program tells its user: message boxes, the message log, debug lines. Everything ends in the log file, because
/// the process's standard error is redirected there.
namespace NivraMsg {

enum class Kind { Information = 0, Warning = 1, Critical = 2, Question = 3 };

/// Emits every logged message; a console view connects to msgConsole.
class NivraLogger : public QObject {
  Q_OBJECT
public:
  static NivraLogger &instance();

signals:
  void msgConsole(const QString &text);

private:
  NivraLogger();
};

/// In interactive mode a modal box, shown by the GUI thread while the caller waits, and the chosen
/// QMessageBox::StandardButton; otherwise a log line and 0. Plain text; what is long can be scrolled through.
int message(Kind kind, const QString &text);
void information(const QString &text);

/// Milliseconds for which boxes have been open since the start of the process.
qint64 waitedForAnswers();

void logTimeStamp(const QString &text); ///< information level, with the time on the console
void log(const QString &text);          ///< information level
void logWarning(const QString &text);   ///< warning level
void logCritical(const QString &text);  ///< critical level
void debug(const QString &text);        ///< log file only, never the console

/// Program-wide switch, consulted before the environment variables NIVRA_BATCH and NIVRA_CUSTOM.
void setInteractive(bool interactive);
bool isInteractive();

struct RecordedLines;

/// Collects what is logged at warning and critical level during its lifetime, from any thread.
class Recorder {
public:
  static constexpr int MaximumLines = 1000; ///< beyond it lines are only counted

  Recorder();
  ~Recorder();
  Recorder(const Recorder &) = delete;
  Recorder &operator=(const Recorder &) = delete;

  QStringList lines() const;
  int dropped() const; ///< lines beyond MaximumLines

private:
  std::unique_ptr<RecordedLines> m_recorded;
};

} // namespace NivraMsg
