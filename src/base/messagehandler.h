#pragma once

#include <QString>
#include <QStringList>

namespace NivraMsg {

/// What a Recorder has seen so far; guarded by the message handler's lock.
struct RecordedLines {
  explicit RecordedLines(int maximumLines)
      : maximum(maximumLines) {}

  int maximum; ///< number of lines that are kept
  QStringList lines;
  int dropped = 0; ///< number of lines beyond
};

/// The process's Qt message handler: every message, of whatever origin, as plain text and a newline on standard error.
/// A foreign handler that was installed in the meantime (a test framework's) is kept and fed instead.
namespace MessageHandler {

void install(); ///< cheap, thread-safe, may be called before every message

void writeLine(const QString &text); ///< straight to standard error, as one write
void record(const QString &text);    ///< to all recorders alive

void add(RecordedLines *recorder);
void remove(RecordedLines *recorder);
RecordedLines copy(const RecordedLines &recorder);

} // namespace MessageHandler

} // namespace NivraMsg
