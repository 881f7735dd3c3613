#pragma once

#include "batchrun.h"
#include "jobsfile.h"
#include "outputfolder.h"

#include <QCoreApplication>
#include <QString>

#include <deque>
#include <utility>

/// The jobs of a file, one after the other: a job of several scenarios is done for each of them.
class BatchJobs {
  Q_DECLARE_TR_FUNCTIONS(BatchJobs)
public:
  struct Result {
    QString name; ///< "job 1, DE_H2/S5", or "job 2" where the network is not even found
    BatchRun::Outcome outcome;

    QString summary() const; ///< what was written and found, in a line
  };

  /// \param language that pictures have their texts in; English when it is empty
  explicit BatchJobs(QString language)
      : m_language(std::move(language)) {}

  /// \param output folder for what is written; empty for that which the file names
  /// False with the reason when nothing can be done at all.
  bool read(const QString &path, const QString &output, QString *reason);

  bool hasNext() const { return !m_runs.empty(); }
  Result doNext();

private:
  struct Run {
    QString name;
    BatchTask task; ///< names of what is written as the file has them
    QString caseName;
    QString scenario;
    QString error;
  };

  void addRuns(const JobsFile::Job &job);
  void addRun(const JobsFile::Job &job, const QString &file);
  QString beside(const QString &path) const; ///< the jobs file, unless it is absolute
  bool nameOutputs(Run &run, QString *reason);

  QString m_language;
  QString m_folder; ///< of the jobs file
  OutputFolder m_output;
  std::deque<Run> m_runs;
};
