#pragma once

#include "batchtask.h"

#include <QCoreApplication>
#include <QStringList>

#include <memory>

class NetData;
class NivraWorkspace;
class ScenarioSet;

/// The figures over scenarios that a task asks for.
class BatchSet {
  Q_DECLARE_TR_FUNCTIONS(Batch)
public:
  /// Reads the scenarios beside the open one and makes properties of their figures. Null with the reason.
  /// \param warnings of scenarios that could not be read, and of names that the network has already
  static std::unique_ptr<ScenarioSet> gather(const BatchTask::Set &asked, const NivraWorkspace &workspace, NetData &net,
                                             QStringList *warnings, QString *reason);
};
