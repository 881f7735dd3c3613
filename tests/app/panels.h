#pragma once

#include "nivraviewer.h"

#include <tools/nivravectable.h>

#include <QApplication>
#include <QTableView>

/// A dock of the window, which exists once a workspace was opened.
template <typename Panel>
Panel &panelOf(NivraViewer &viewer) {
  auto *panel = viewer.findChild<Panel *>();
  Q_ASSERT(panel != nullptr);
  return *panel;
}

/// The element table, which is a window of its own; null before it was opened.
inline NivraVecTable *vectorTable() {
  for (QWidget *window : QApplication::topLevelWidgets()) {
    if (auto *table = qobject_cast<NivraVecTable *>(window))
      return table;
  }
  return nullptr;
}

/// The first column of the rows that a table's filters leave.
inline QStringList shownNames(const QWidget &panel) {
  const auto *table = panel.findChild<QTableView *>();
  QStringList texts;
  for (int row = 0; row < table->model()->rowCount(); ++row) {
    if (!table->isRowHidden(row))
      texts.append(table->model()->index(row, 0).data().toString());
  }
  return texts;
}
