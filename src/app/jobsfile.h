#pragma once

#include "batchtask.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// A JSON file of jobs, as it is written: names of files are relative to it, and those of what is written may hold "{case}"
/// and "{scenario}".
struct JobsFile {
  struct Job {
    QString name;          ///< "job 2" for messages
    QString file;          ///< geometry or scenario file
    QStringList scenarios; ///< names of scenarios of the case; empty for the file as it stands
    bool takesAllScenarios = false;
    BatchTask task; ///< without its file
    QString error;  ///< why it cannot be done, with the place in the file; empty when it can
  };

  QString output; ///< folder for what is written; empty for that of the file
  std::vector<Job> jobs;

  /// Nothing, with the reason, when the file cannot be read or is no list of jobs. A job with a fault has its reason and
  /// leaves the others alone.
  static std::optional<JobsFile> read(const QString &path, QString *reason);
};
