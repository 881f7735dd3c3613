#pragma once

#include <QObject>
#include <QStringList>

class QTableView;

/// "Open Characteristics" in the menu of a table, there while a machine is among the selected rows.
class MachineAction : public QObject {
  Q_OBJECT
public:
  /// Belongs to the view. The columns hold the names and the types of elements.
  MachineAction(QTableView &view, int nameColumn, int typeColumn);

signals:
  void triggered(const QStringList &machines); ///< names, each once

private:
  QStringList selectedMachines() const;

  QTableView &m_view;
  int m_nameColumn;
  int m_typeColumn;
};
