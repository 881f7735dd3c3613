#include "toolwindows.h"

#include "helpwindow.h"
#include "windowplace.h"

#include <base/finding.h>
#include <tools/metadatatable.h>
#include <tools/nivravectable.h>

#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>

ToolWindows::ToolWindows(QMainWindow &window, NetData &net)
    : QObject(&window)
    , m_window(window)
    , m_net(net) {}

ToolWindows::~ToolWindows() = default;

NivraVecTable &ToolWindows::vectorTable() {
  if (m_vectorTable != nullptr)
    return *m_vectorTable;
  m_vectorTable = std::make_unique<NivraVecTable>(m_net, logFinding);
  new WindowPlace(*m_vectorTable, QStringLiteral("vectorTable"), m_window);
  m_vectorTable->setDirectory(m_directory);
  connect(m_vectorTable.get(), &NivraVecTable::helpWanted, this, &ToolWindows::showHelp);
  emit vectorTableMade(m_vectorTable.get());
  m_vectorTable->on_pushButtonUpdate_clicked();
  return *m_vectorTable;
}

void ToolWindows::showVectorTable() {
  NivraVecTable &table = vectorTable();
  table.show();
  table.raise();
  table.activateWindow();
}

void ToolWindows::takeNetwork(const QString &directory) {
  m_directory = directory;
  if (m_vectorTable == nullptr)
    return;
  m_vectorTable->setDirectory(directory);
  m_vectorTable->refresh();
  m_vectorTable->showValues();
}

void ToolWindows::showChanges() {
  if (m_vectorTable != nullptr)
    m_vectorTable->showValues();
}

void ToolWindows::showMetaData() {
  if (m_metaData == nullptr) {
    m_metaData = std::make_unique<MetaDataTable>(m_net);
    new WindowPlace(*m_metaData, QStringLiteral("metaData"), m_window);
  }
  m_metaData->fill(); // formulas of another case may have described other properties
  m_metaData->show();
  m_metaData->raise();
}

void ToolWindows::showHelp(const QString &page) {
  if (m_help == nullptr) {
    m_help = std::make_unique<HelpWindow>();
    new WindowPlace(*m_help, QStringLiteral("guide"), m_window);
  }
  m_help->showPage(page);
}

void ToolWindows::showHelpOfFocus() {
  const QWidget *at = QApplication::focusWidget();
  while (at != nullptr && qobject_cast<const QDockWidget *>(at) == nullptr)
    at = at->parentWidget();
  showHelp(at == nullptr ? QString() : at->objectName());
}
