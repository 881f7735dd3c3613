#include <model/displayformat.h>
#include <tools/paletteicon.h>
#include <tools/plaintip.h>
#include <tools/tablemenu.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QInputDialog>
#include <QMenu>
#include <QRegularExpression>
#include <QTableView>
#include <QTreeView>

#include <algorithm>

namespace {

QIcon funnel() {
  return paletteIcon(QStringLiteral(":/iconsToolBar/filter.svg"));
}

/// The first line: the others say what the column is about.
QString columnTitle(const QAbstractItemModel &model, int column) {
  return model.headerData(column, Qt::Horizontal).toString().section(QLatin1Char('\n'), 0, 0);
}

} // namespace

CellFilter::CellFilter(const QString &text) {
  static const QRegularExpression comparison(QStringLiteral("^\\s*(<=|>=|!=|<|>|=)\\s*(.*?)\\s*$"));
  const QRegularExpressionMatch match = comparison.match(text);
  m_operator = match.captured(1);
  m_text = match.hasMatch() ? match.captured(2) : text;
  m_number = DisplayFormat::typed(m_text).toDouble(&m_isNumber);
}

bool CellFilter::passes(const QString &cell) const {
  if (m_operator.isEmpty())
    return cell.contains(m_text, Qt::CaseInsensitive);
  bool isNumber = false;
  const double number = cell.toDouble(&isNumber);
  int order = 0; // of the cell, seen from what is asked
  if (isNumber && m_isNumber)
    order = number < m_number ? -1 : number > m_number ? 1 : 0;
  else if (m_isNumber && m_operator != QLatin1String("!="))
    return false; // a text is neither more nor less than a number
  else
    order = QString::compare(cell, m_text, Qt::CaseInsensitive);
  if (m_operator == QLatin1String("="))
    return order == 0;
  if (m_operator == QLatin1String("!="))
    return order != 0;
  if (order == 0)
    return m_operator.endsWith(QLatin1Char('='));
  return m_operator.startsWith(QLatin1Char('<')) == (order < 0);
}

TableMenu::TableMenu(QAbstractItemView &view)
    : QObject(&view)
    , m_view(view) {
  m_header = header(view);
  m_header->setSectionsMovable(true);
  m_header->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(m_header, &QHeaderView::customContextMenuRequested, this, &TableMenu::showMenu);
  // The view hides rows by their numbers, whatever stands in them.
  connect(view.model(), &QAbstractItemModel::modelReset, this, &TableMenu::apply);
  connect(view.model(), &QAbstractItemModel::layoutAboutToBeChanged, this, [this] { updateRows(false); });
  connect(view.model(), &QAbstractItemModel::layoutChanged, this, [this] {
    updateRows(true);
    apply();
  });
  connect(view.model(), &QAbstractItemModel::rowsInserted, this, &TableMenu::apply);
  connect(view.model(), &QAbstractItemModel::rowsRemoved, this, &TableMenu::apply);
  offerCopy(view);
}

void TableMenu::offerCopy(QAbstractItemView &view) {
  for (const QAction *action : view.actions()) {
    if (action->shortcut() == QKeySequence(QKeySequence::Copy))
      return; // the view has one of its own
  }
  auto *copy = new QAction(tr("Copy"), &view);
  copy->setShortcut(QKeySequence::Copy);
  copy->setShortcutContext(Qt::WidgetShortcut);
  connect(copy, &QAction::triggered, &view, [&view] { QApplication::clipboard()->setText(cellTexts(view)); });
  view.addAction(copy);
  if (view.contextMenuPolicy() == Qt::DefaultContextMenu)
    view.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void TableMenu::offerActions(QAbstractItemView &view, std::function<void()> fit) {
  view.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&view, &QWidget::customContextMenuRequested, &view, [&view, fit = std::move(fit)](const QPoint &position) {
    fit();
    auto *menu = new QMenu(&view);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(view.actions());
    menu->popup(view.viewport()->mapToGlobal(position));
  });
}

QString TableMenu::cellTexts(const QAbstractItemView &view) {
  QModelIndexList cells = view.selectionModel()->selectedIndexes();
  const QHeaderView *columns = header(view);
  const auto isUnseen = [&](const QModelIndex &cell) {
    return (columns != nullptr && columns->isSectionHidden(cell.column())) ||
           (!cell.parent().isValid() && isHidden(view, cell.row()));
  };
  cells.erase(std::remove_if(cells.begin(), cells.end(), isUnseen), cells.end());
  std::sort(cells.begin(), cells.end(), [](const QModelIndex &a, const QModelIndex &b) {
    return a.parent() == b.parent() ? a < b : a.parent() < b.parent();
  });
  QString text;
  QModelIndex before;
  for (const QModelIndex &cell : qAsConst(cells)) {
    if (before.isValid())
      text += cell.row() == before.row() && cell.parent() == before.parent() ? QLatin1Char('\t') : QLatin1Char('\n');
    before = cell;
    QString part = cell.data().toString();
    static const QRegularExpression special(QStringLiteral("[\t\r\n\"]"));
    if (part.contains(special))
      part = QLatin1Char('"') + part.replace(QLatin1Char('"'), QStringLiteral("\"\"")) + QLatin1Char('"');
    text += part;
  }
  return text;
}

void TableMenu::showMenu(const QPoint &position) {
  const int column = m_header->logicalIndexAt(position);
  QMenu menu;
  if (column >= 0) {
    connect(menu.addAction(tr("Filter …")), &QAction::triggered, this, [this, column] { askForFilter(column); });
    connect(menu.addAction(tr("Hide column")), &QAction::triggered, this,
            [this, column] { m_header->setSectionHidden(column, true); });
  }
  QAction *none = menu.addAction(tr("Show all rows"));
  none->setEnabled(!m_filters.isEmpty());
  connect(none, &QAction::triggered, this, &TableMenu::clearFilters);
  QAction *all = menu.addAction(tr("Show all columns"));
  all->setEnabled(m_header->hiddenSectionCount() > 0);
  connect(all, &QAction::triggered, this, [this] {
    for (int i = 0; i < m_header->count(); ++i)
      m_header->setSectionHidden(i, false);
  });
  menu.exec(m_header->viewport()->mapToGlobal(position));
}

void TableMenu::askForFilter(int column) {
  bool isTaken = false;
  const QString title = columnTitle(*m_view.model(), column);
  const QString text = QInputDialog::getText(
      &m_view, tr("Filter"), tr("Show rows whose \"%1\" contains a text,\nor compares: > 10, <= 3, = open, != 0").arg(title),
      QLineEdit::Normal, filter(column), &isTaken);
  if (isTaken)
    setFilter(column, text.trimmed());
}

void TableMenu::setFilter(int column, const QString &text) {
  if (text.isEmpty())
    m_filters.remove(column);
  else
    m_filters.insert(column, text);
  markHeader(column);
  filterRows();
  emit filtered(); // also where the same rows are shown: the summary says another filter
}

void TableMenu::clearFilters() {
  for (const int column : m_filters.keys())
    setFilter(column, QString());
}

QString TableMenu::filterSummary() const {
  QStringList parts;
  for (auto it = m_filters.cbegin(); it != m_filters.cend(); ++it)
    parts.append(columnTitle(*m_view.model(), it.key()) + QLatin1Char(' ') + it.value());
  return parts.join(QStringLiteral(", "));
}

/// A filtered column shows it, so that nobody misses rows without knowing why.
void TableMenu::markHeader(int column) {
  QAbstractItemModel *model = m_view.model();
  const QString text = filter(column);
  model->setHeaderData(column, Qt::Horizontal, text.isEmpty() ? QVariant() : funnel(), Qt::DecorationRole);
  model->setHeaderData(column, Qt::Horizontal, PlainTip::of(text.isEmpty() ? QString() : tr("Filter: %1").arg(text)),
                       Qt::ToolTipRole);
  if (!m_header->isSectionHidden(column)) // the funnel needs room beside the title
    m_header->resizeSection(column, std::max(m_header->sectionSize(column), m_header->sectionSizeHint(column)));
}

void TableMenu::apply() {
  if (filterRows() || !m_filters.isEmpty())
    emit filtered();
}

bool TableMenu::filterRows() {
  const QAbstractItemModel &model = *m_view.model();
  QMap<int, CellFilter> filters;
  for (auto it = m_filters.cbegin(); it != m_filters.cend(); ++it)
    filters.insert(it.key(), CellFilter(it.value()));
  if (filters.isEmpty() && !m_hidesRows)
    return false;
  m_hidesRows = !filters.isEmpty();
  bool hasChanged = false;
  updateRows(false);
  for (int row = 0; row < model.rowCount(); ++row) {
    bool isShown = true;
    for (auto it = filters.cbegin(); it != filters.cend() && isShown; ++it)
      isShown = it->passes(model.index(row, it.key()).data().toString());
    if (isShown == isHidden(row)) {
      hideRow(row, !isShown);
      hasChanged = true;
    }
  }
  updateRows(true);
  return hasChanged;
}

/// The header of a table finds out anew where all rows lie whenever one goes, unless it is told to wait.
void TableMenu::updateRows(bool areUpdated) {
  if (auto *table = qobject_cast<QTableView *>(&m_view))
    table->verticalHeader()->setUpdatesEnabled(areUpdated);
}

int TableMenu::shownRows() const {
  if (!m_hidesRows)
    return m_view.model()->rowCount();
  int count = 0;
  for (int row = 0; row < m_view.model()->rowCount(); ++row)
    count += isHidden(row) ? 0 : 1;
  return count;
}

int TableMenu::hiddenRows() const {
  return m_view.model()->rowCount() - shownRows();
}

void TableMenu::hideRow(int row, bool hidden) {
  if (auto *table = qobject_cast<QTableView *>(&m_view))
    table->setRowHidden(row, hidden);
  else if (auto *tree = qobject_cast<QTreeView *>(&m_view))
    tree->setRowHidden(row, QModelIndex(), hidden);
}

bool TableMenu::isHidden(const QAbstractItemView &view, int row) {
  if (const auto *table = qobject_cast<const QTableView *>(&view))
    return table->isRowHidden(row);
  const auto *tree = qobject_cast<const QTreeView *>(&view);
  return tree != nullptr && tree->isRowHidden(row, QModelIndex());
}

/// Null for views without columns.
QHeaderView *TableMenu::header(const QAbstractItemView &view) {
  if (const auto *table = qobject_cast<const QTableView *>(&view))
    return table->horizontalHeader();
  const auto *tree = qobject_cast<const QTreeView *>(&view);
  return tree == nullptr ? nullptr : tree->header();
}
