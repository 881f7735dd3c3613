#include "batch.h"

#include "batchjobs.h"
#include "batchrun.h"

#include <base/logfiles.h>
#include <base/nivramsg.h>

#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <unistd.h>

namespace {

bool writeAll(int descriptor, const QByteArray &text) {
  qint64 done = 0;
  while (done < text.size()) {
    const ssize_t written = ::write(descriptor, text.constData() + done, static_cast<std::size_t>(text.size() - done));
    if (written <= 0)
      return false;
    done += written;
  }
  return true;
}

void tellFailure(const QString &reason) {
  NivraMsg::logCritical(reason);
  writeAll(LogFiles::realStandardError(), reason.toUtf8() + '\n');
}

int statusOf(const BatchRun::Outcome &outcome) {
  if (!outcome.failures.isEmpty())
    return Batch::Failed;
  if (outcome.violations > 0)
    return Batch::ViolatesBounds;
  return outcome.findings > 0 ? Batch::HasFindings : Batch::Done;
}

/// The file that is to be read must not be the one that is written.
bool writesOver(const BatchTask &task, QString *reason) {
  const QString opened = QFileInfo(task.file).canonicalFilePath();
  const auto isOpened = [&](const QString &path) {
    return !path.isEmpty() && !opened.isEmpty() && QFileInfo(path).canonicalFilePath() == opened;
  };
  const bool found =
      std::any_of(task.pictures.begin(), task.pictures.end(), [&](const auto &p) { return isOpened(p.path); }) ||
      std::any_of(task.lists.begin(), task.lists.end(), [&](const auto &list) { return isOpened(list.path); }) ||
      isOpened(task.setTable);
  if (found)
    *reason = Batch::tr("%1 is to be read and cannot be written.").arg(task.file);
  return found;
}

/// Ends the process with what the system does anyway: giving back a large network piece by piece takes as long as drawing
/// it.
[[noreturn]] void exitAtOnce(int status) {
  std::fflush(nullptr);
  _exit(status);
}

} // namespace

int Batch::run(const CommandLine &line) {
  QString reason;
  if (writesOver(line.task, &reason)) {
    tellFailure(reason);
    return Failed;
  }
  BatchRun run(line.language);
  BatchRun::Outcome outcome = run.perform(line.task);
  const int checkedTo = outcome.answers.isEmpty() ? LogFiles::realStandardOutput() : LogFiles::realStandardError();
  if (!writeAll(LogFiles::realStandardOutput(), outcome.answers) || !writeAll(checkedTo, outcome.checked))
    outcome.failures.append(tr("The answer could not be written to the standard output."));
  for (const QString &failure : outcome.failures)
    tellFailure(failure);
  exitAtOnce(statusOf(outcome));
}

int Batch::runJobs(const CommandLine &line) {
  BatchJobs jobs(line.language);
  QString reason;
  if (!jobs.read(line.jobs, line.output, &reason)) {
    tellFailure(reason);
    return Failed;
  }
  int status = Done;
  while (jobs.hasNext()) {
    const BatchJobs::Result result = jobs.doNext();
    for (const QString &failure : result.outcome.failures)
      tellFailure(result.name + QStringLiteral(": ") + failure);
    const int one = statusOf(result.outcome);
    const QByteArray told = result.summary().toUtf8() + '\n' + result.outcome.checked;
    if (one != Failed && !writeAll(LogFiles::realStandardOutput(), told))
      status = Failed;
    status = status == Failed || one == Failed ? static_cast<int>(Failed) : std::max(status, one);
  }
  return status;
}

int Batch::outOfMemory() {
  constexpr char Reason[] = "There is not enough memory for this network and picture.\n";
  const ssize_t written = ::write(LogFiles::realStandardError(), Reason, sizeof Reason - 1);
  static_cast<void>(written);
  return Failed;
}
