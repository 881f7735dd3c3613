#include "balance/balancepage.h"

#include <model/netdata.h>
#include <tools/balancedock.h>
#include <tools/categorylist.h>

BalanceDock::BalanceDock(NetData &net, const CategoryList &categories, QWidget *parent)
    : QDockWidget(tr("Balance"), parent)
    , m_net(net)
    , m_categories(categories) {}

BalanceDock::~BalanceDock() = default;

void BalanceDock::forget() {
  m_hasNetwork = false;
  if (m_page != nullptr)
    m_page->forget();
}

void BalanceDock::refresh() {
  m_hasNetwork = !m_net.isEmpty();
  m_isStale = true;
  if (isVisible())
    catchUp();
}

void BalanceDock::showEvent(QShowEvent *event) {
  if (m_page == nullptr) {
    m_page = new BalancePage(m_net, m_categories, this);
    setWidget(m_page);
    connect(m_page, &BalancePage::elementsWanted, this, &BalanceDock::elementsWanted);
    m_isStale = true;
  }
  catchUp();
  QDockWidget::showEvent(event);
}

void BalanceDock::catchUp() {
  if (m_page == nullptr || !m_hasNetwork || !m_isStale)
    return;
  m_isStale = false;
  m_page->refresh();
}
