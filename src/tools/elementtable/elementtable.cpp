#include "elementtable/elementtablepage.h"

#include <model/netdata.h>
#include <tools/elementtable.h>

#include <QAction>
#include <QApplication>

ElementTable::ElementTable(NetData &net, QWidget *parent)
    : QDockWidget(tr("Table of Elements"), parent)
    , m_net(net)
    , m_open(new QAction(windowTitle(), this)) {
  const QKeySequence key(Qt::CTRL + Qt::Key_T);
  m_open->setShortcut(key);
  m_open->setToolTip(tr("Elements with their properties, one a row (%1)").arg(key.toString(QKeySequence::NativeText)));
  connect(m_open, &QAction::triggered, this, &ElementTable::open);
  toggleViewAction()->setShortcut(key); // for the menu to show
  toggleViewAction()->setShortcutContext(Qt::WidgetShortcut);
}

ElementTable::~ElementTable() = default;

void ElementTable::open() {
  if (isVisible() && isAncestorOf(QApplication::focusWidget())) {
    hide();
    return;
  }
  show();
  raise();
  m_page->setFocus();
}

void ElementTable::forget() {
  m_hasNetwork = false;
  if (m_page != nullptr)
    m_page->forget();
}

void ElementTable::refresh(const QString &directory) {
  m_hasNetwork = true;
  if (m_page != nullptr && directory != m_directory)
    m_page->forgetChoices();
  m_directory = directory;
  m_isStale = true;
  if (isVisible())
    catchUp();
}

void ElementTable::showChanges() {
  if (isFollowing())
    m_page->follow();
  else
    m_isStale = true;
}

void ElementTable::showSelection() {
  if (isFollowing())
    m_page->showSelection();
  else
    m_isStale = true;
}

void ElementTable::showEvent(QShowEvent *event) {
  if (m_page == nullptr) {
    m_page = new ElementTablePage(m_net, this);
    setWidget(m_page);
    connect(m_page, &ElementTablePage::selected, this, &ElementTable::selected);
    connect(m_page, &ElementTablePage::currentChanged, this, &ElementTable::currentChanged);
    connect(m_page, &ElementTablePage::elementWanted, this, &ElementTable::elementWanted);
    m_isStale = true;
  }
  catchUp();
  QDockWidget::showEvent(event);
}

void ElementTable::catchUp() {
  if (!m_hasNetwork || !m_isStale)
    return;
  m_isStale = false;
  m_page->setDirectory(m_directory);
  m_page->refresh();
  m_page->showSelection();
}
