#include "shared/filternotice.h"

#include <tools/elidedlabel.h>
#include <tools/tablemenu.h>

#include <QHBoxLayout>
#include <QPushButton>

FilterNotice::FilterNotice(QWidget *parent)
    : QWidget(parent)
    , m_label(new ElidedLabel)
    , m_button(new QPushButton(tr("Show &all rows"))) {
  m_label->setObjectName(QStringLiteral("label_filters"));
  m_button->setObjectName(QStringLiteral("pushButton_showAll"));
  m_button->setToolTip(tr("Ends the filters of the columns (Alt+A)"));
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_label, 1);
  row->addWidget(m_button);
  hide();
}

void FilterNotice::watch(TableMenu &menu) {
  connect(&menu, &TableMenu::filtered, this, [this, &menu] { tell(menu); });
  connect(m_button, &QPushButton::clicked, &menu, &TableMenu::clearFilters);
}

void FilterNotice::tell(const TableMenu &menu) {
  const QString filters = menu.filterSummary();
  const int hidden = menu.hiddenRows();
  m_label->setText(hidden == 1 ? tr("1 row hidden by filters: %1").arg(filters)
                               : tr("%1 rows hidden by filters: %2").arg(QString::number(hidden), filters));
  setVisible(!filters.isEmpty());
}
