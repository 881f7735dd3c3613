#pragma once

#include "shared/tableexport.h"

#include <QCoreApplication>

#include <vector>

class ElementTableModel;
class ElementTableView;
class QWidget;

/// Copies and files of the element table: what is shown, in its order.
class ElementTableFile {
  Q_DECLARE_TR_FUNCTIONS(ElementTableFile)
public:
  ElementTableFile(const ElementTableModel &model, const ElementTableView &view)
      : m_model(model)
      , m_view(view) {}

  /// These lines with all columns.
  TableExport of(const std::vector<int> &lines) const;
  /// All lines; false with the reason.
  bool save(const QString &path, TableExport::Format format, QString *reason) const;
  /// Asks for the file, and says what went wrong. \param proposed without its suffix
  void askAndSave(QWidget *parent, const QString &proposed) const;

private:
  const ElementTableModel &m_model;
  const ElementTableView &m_view;
};
