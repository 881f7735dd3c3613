#pragma once

#include "shared/tableexport.h"

#include <QCoreApplication>

#include <functional>

class QWidget;

/// Asks into which file, and in which form, a table goes.
class TableFileDialog {
  Q_DECLARE_TR_FUNCTIONS(TableFileDialog)
public:
  /// False with the reason.
  using Save = std::function<bool(const QString &path, TableExport::Format format, QString *reason)>;

  /// Says what went wrong. \param proposed without its suffix
  static void askAndSave(QWidget *parent, const QString &proposed, const Save &save);
};
