#pragma once

#include <QString>

#include <functional>
#include <vector>

/// Something that reading or checking noticed: the step returns it, the caller decides who is told.
struct Finding {
  enum class Severity { Debug, Information, Warning, Critical }; ///< Debug is for the log file alone

  Severity severity = Severity::Warning;
  QString file;                  ///< path, empty when the finding belongs to no file
  int line = 0;                  ///< 1-based, 0 when it belongs to no line
  QString text{};                ///< the message as logged; empty when the box says it all
  QString box{};                 ///< what a message box says; empty when a log line is enough
  bool isForInformation = false; ///< the box is one of information, whatever the severity in the log
  QString element{};             ///< name of the element that it is about, where there is one

  /// A warning about an element.
  static Finding about(const QString &element, const QString &text) {
    return {Severity::Warning, {}, 0, text, {}, false, element};
  }

  /// "text (file:line)" as far as they are known, with the box's text where there is no other.
  QString logText() const;
};

using Findings = std::vector<Finding>;

/// Adds further findings behind those that are there.
void append(Findings &findings, Findings more);

/// Told what a step has to say for the log alone, at once and from any thread; may be empty.
using Told = std::function<void(const Finding &finding)>;
void tell(const Told &told, Finding::Severity severity, const QString &text);

/// Logs a finding at its level, and leaves its box alone. As a Told it makes log lines of what it is told.
void logFinding(const Finding &finding);
/// Shows the box of a finding; one without a box is logged. As a Told it serves a window whose actions fail.
void showFinding(const Finding &finding);
/// Logs every finding at its level, also what a box says; texts for a box are shown: the first as it stands, further ones
/// counted behind it.
void report(const Findings &findings);

/// Told how far a step has come (0 to 1); false asks the step to stop.
using Progress = std::function<bool(double fraction)>;
