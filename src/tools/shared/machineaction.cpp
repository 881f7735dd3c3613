#include "shared/machineaction.h"

#include <model/elementtypes.h>
#include <tools/tablemenu.h>

#include <QAction>
#include <QTableView>

MachineAction::MachineAction(QTableView &view, int nameColumn, int typeColumn)
    : QObject(&view)
    , m_view(view)
    , m_nameColumn(nameColumn)
    , m_typeColumn(typeColumn) {
  auto *action = new QAction(tr("Open Characteristics"), &view);
  action->setObjectName(QStringLiteral("actionOpenCharacteristics"));
  view.addAction(action);
  TableMenu::offerActions(view, [this, action] { action->setVisible(!selectedMachines().isEmpty()); });
  connect(action, &QAction::triggered, this, [this] { emit triggered(selectedMachines()); });
}

QStringList MachineAction::selectedMachines() const {
  const QAbstractItemModel &model = *m_view.model();
  QStringList names;
  for (const QItemSelectionRange &range : m_view.selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      if (!m_view.isRowHidden(row) && ElementTypes::hasCharacteristics(model.index(row, m_typeColumn).data().toString()))
        names.append(model.index(row, m_nameColumn).data().toString());
    }
  }
  names.removeDuplicates();
  return names;
}
