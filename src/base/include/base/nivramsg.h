#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

/// What the program tells its user: message boxes, the message log, debug lines. Everything ends in the log file, because
/// the process's standard error is redirected there. The boxes themselves are shown by whoever registers as their sink.
namespace NivraMsg {

enum class Kind { Information = 0, Warning = 1, Critical = 2, Question = 3 };

/// The buttons of boxes, numbered as the toolkit numbers its own. None is the answer where no box was shown.
enum class Answer { None = 0, Ok = 0x400, Save = 0x800, Yes = 0x4000, No = 0x10000, Cancel = 0x400000, Discard = 0x800000 };

struct Box {
  Kind kind = Kind::Information;
  QString text;                            ///< plain; what is long can be scrolled through
  QString title{};                         ///< that of the kind where it is empty
  std::vector<Answer> buttons{Answer::Ok}; ///< at least one
  Answer preferred = Answer::None;         ///< the default button, None for any
};

/// Shows a modal box and returns the chosen button. It is called by the thread of the application object alone.
using BoxSink = std::function<Answer(const Box &box)>;

/// To be registered at the start, before other threads say anything; an empty function takes the sink away again.
void setBoxSink(BoxSink sink);

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

/// Whether a message becomes a box: in interactive mode, where there is an application object and a sink for boxes.
bool showsBoxes();
/// A box where showsBoxes(), shown by the GUI thread while the caller waits, and the chosen button; otherwise the text as a
/// log line, and None.
Answer show(const Box &box);
/// The box of a kind: with the button OK, or with Yes, No and Cancel for a question.
Answer message(Kind kind, const QString &text);
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
