#pragma once

#include "batchtask.h"
#include "networkloader.h"
#include "stagetimes.h"

#include <base/nivramsg.h>
#include <model/netdata.h>
#include <view/netviscontrol.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

/// Opens one network and does with it what a task says. One part that fails leaves the others alone.
class BatchRun {
  Q_DECLARE_TR_FUNCTIONS(Batch)
public:
  struct Outcome {
    QStringList failures; ///< each with its reason; empty when all went well
    int pictures = 0;     ///< written
    int lists = 0;        ///< searches and tables that were written or answered
    bool isChecked = false;
    int findings = 0;   ///< of the check, violated bounds not among them
    int violations = 0; ///< of bounds
    QByteArray answers; ///< for the standard output
    QByteArray checked; ///< lines of the check, when no file was named for them
  };

  /// \param language that pictures have their texts in; English when it is empty
  explicit BatchRun(QString language);

  Outcome perform(const BatchTask &task);

private:
  bool open(const QString &file, bool isDrawn);
  void writePictures(const BatchTask &task);
  /// False with the reason.
  bool writePicture(const BatchTask::Picture &picture, QString *reason);
  bool applyStyles(const QStringList &files, QString *reason);
  bool applyFunctions(const BatchTask::Picture &picture, QString *reason);
  bool gatherSet(const BatchTask &task);
  void answerLists(const BatchTask &task);
  bool answerList(const BatchTask::List &list, QString *reason);
  void check(const BatchTask::Output &output);
  void tellInfo(const BatchTask::Output &output);
  void showCase();
  bool deliver(const QString &path, const QByteArray &content, QString *reason);

  const NivraMsg::Recorder m_recorder;
  QString m_language; ///< of pictures
  NetData m_net;
  NetVisControl m_control;
  NetworkLoader m_loader;
  StageTimes m_times;
  Outcome m_outcome;
};
