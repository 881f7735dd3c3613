#pragma once

#include "shared/tableexport.h"

#include <QCoreApplication>

class FindingFilter;

/// Findings as a table: those that are shown, a row each, with stage or rule, severity, elements, file and line.
class FindingExport {
  Q_DECLARE_TR_FUNCTIONS(FindingExport)
public:
  /// The filter must stay as it is while the table is used.
  static TableExport of(const FindingFilter &shown);
};
