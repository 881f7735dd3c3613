#include "elementtable/columnchooser.h"

#include <tools/filterfield.h>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QVBoxLayout>

ColumnChooser::ColumnChooser(QWidget *parent)
    : QDialog(parent)
    , m_found(new QSortFilterProxyModel(this))
    , m_search(new FilterField)
    , m_view(new QTreeView) {
  setWindowTitle(tr("Columns"));
  setObjectName(QStringLiteral("columnChooser"));
  m_found->setSourceModel(&m_list);
  m_found->setFilterKeyColumn(-1); // names, meanings and units
  m_found->setFilterCaseSensitivity(Qt::CaseInsensitive);
  m_search->setPlaceholderText(tr("Search for a property"));
  m_search->setAccessibleName(m_search->placeholderText());
  m_search->installEventFilter(this);
  connect(m_search, &QLineEdit::textChanged, m_found, &QSortFilterProxyModel::setFilterFixedString);
  m_view->setModel(m_found);
  m_view->setRootIsDecorated(false);
  m_view->setUniformRowHeights(true);
  m_view->setAlternatingRowColors(true);
  m_view->setDragDropMode(QAbstractItemView::InternalMove);
  m_view->setDragDropOverwriteMode(false);
  m_view->setAccessibleName(tr("Properties"));
  m_view->installEventFilter(this);
  connect(&m_list, &ColumnList::columnsChanged, this, [this] { emit columnsChosen(m_list.shown()); });
  fillLayout();
}

void ColumnChooser::fillLayout() {
  constexpr QSize Size(560, 460);
  auto *hint =
      new QLabel(tr("Space or a click on the box shows a property; dragging, or Alt+Up and Alt+Down, orders the columns."));
  hint->setWordWrap(true);
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  auto *up = buttons->addButton(tr("Move &up"), QDialogButtonBox::ActionRole);
  auto *down = buttons->addButton(tr("Move &down"), QDialogButtonBox::ActionRole);
  auto *usual = buttons->addButton(tr("&Usual columns"), QDialogButtonBox::ResetRole);
  up->setToolTip(tr("The column stands further to the left (Alt+Up)"));
  down->setToolTip(tr("The column stands further to the right (Alt+Down)"));
  usual->setToolTip(tr("The columns with which elements of this type are shown first"));
  for (QPushButton *button : {up, down, usual, buttons->button(QDialogButtonBox::Close)})
    button->setAutoDefault(false); // Return in the search field closes nothing
  connect(up, &QPushButton::clicked, this, [this] { moveCurrent(-1); });
  connect(down, &QPushButton::clicked, this, [this] { moveCurrent(1); });
  connect(usual, &QPushButton::clicked, this, &ColumnChooser::usualWanted);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *column = new QVBoxLayout(this);
  column->addWidget(m_search);
  column->addWidget(m_view);
  column->addWidget(hint);
  column->addWidget(buttons);
  resize(Size);
}

void ColumnChooser::setEntries(std::vector<ColumnList::Entry> entries, const std::vector<PropertyKey> &shown) {
  constexpr int NameWidth = 130;
  constexpr int MeaningWidth = 220;
  constexpr int UnitWidth = 80;
  m_list.setEntries(std::move(entries), shown);
  m_view->header()->resizeSection(ColumnList::NameColumn, NameWidth);
  m_view->header()->resizeSection(ColumnList::MeaningColumn, MeaningWidth);
  m_view->header()->resizeSection(ColumnList::UnitColumn, UnitWidth);
  m_view->setCurrentIndex(m_found->index(0, 0));
}

/// By one place among the columns, past those that the search hides.
void ColumnChooser::moveCurrent(int by) {
  const QModelIndex current = m_found->mapToSource(m_view->currentIndex());
  if (current.isValid())
    m_list.move(current.row(), current.row() + by);
  m_view->scrollTo(m_view->currentIndex());
}

bool ColumnChooser::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress)
    return QDialog::eventFilter(watched, event);
  const auto *key = static_cast<QKeyEvent *>(event);
  const bool isVertical = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
  if (isVertical && key->modifiers() == Qt::AltModifier) {
    moveCurrent(key->key() == Qt::Key_Up ? -1 : 1);
    return true;
  }
  if (watched == m_search && key->key() == Qt::Key_Down) {
    m_view->setFocus();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}
