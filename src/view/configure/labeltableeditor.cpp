#include "configure/labeltableeditor.h"

#include <base/nivramsg.h>
#include <model/netmetadata.h>

#include <QColorDialog>
#include <QFontDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QPainter>
#include <QTableWidget>

#include <drawing/stationsymbols.h>

namespace {

constexpr int IconSize = 20; // px
constexpr int IconRole = Qt::UserRole;

QIcon iconOf(const QString &type) {
  static StationSymbols symbols;
  const int number = symbols.find(type);
  if (number < 0)
    return QIcon();
  QPixmap picture(IconSize, IconSize);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  symbols.draw(painter, number, QPointF(IconSize, IconSize) * 0.5, IconSize, 0.0);
  painter.end();
  return QIcon(picture);
}

bool isColumn(int column, LabelRow::Column wanted) {
  return column == static_cast<int>(wanted);
}

/// What such a cell may hold is chosen rather than typed.
bool hasDialog(int column) {
  switch (column) {
  case LabelRow::Show:
  case LabelRow::Contents:
  case LabelRow::Color:
  case LabelRow::BgrColor:
  case LabelRow::BordColor:
  case LabelRow::Font:
    return true;
  default:
    return false;
  }
}

QString comma() {
  return QStringLiteral("&#44;");
}

QColor withAlpha(QColor color, const QString &alpha) {
  constexpr int Opaque = 255;
  bool isNumber = false;
  const int number = alpha.toInt(&isNumber);
  color.setAlpha(isNumber ? qBound(0, number, Opaque) : Opaque);
  return color;
}

} // namespace

LabelTableEditor::LabelTableEditor(QTableWidget &widget)
    : QObject(&widget)
    , m_widget(widget) {
  widget.setColumnCount(LabelRow::Columns);
  widget.setHorizontalHeaderLabels(LabelTable::headers());
  widget.setSelectionBehavior(QAbstractItemView::SelectItems);
  widget.setIconSize({IconSize, IconSize});
  // A double click, F2 and Return are answered by edit(), which alone opens the one editor that suits the cell.
  widget.setEditTriggers(QAbstractItemView::AnyKeyPressed);
  widget.installEventFilter(this);
  connect(&widget, &QTableWidget::cellDoubleClicked, this, &LabelTableEditor::edit);
  connect(&widget, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *cell) { showLook(cell->row()); });
  connect(widget.verticalHeader(), &QHeaderView::sectionDoubleClicked, this, [] {
    NivraMsg::message(NivraMsg::Kind::Information, tr("Currently, changing symbol only via property vis.symbol allowed!"));
  });
}

void LabelTableEditor::setTable(const LabelTable &table) {
  m_widget.setRowCount(0);
  m_types = static_cast<int>(table.types.size());
  for (const std::vector<LabelRow> *rows : {&table.types, &table.templates}) {
    for (const LabelRow &row : *rows) {
      m_widget.insertRow(m_widget.rowCount());
      showRow(m_widget.rowCount() - 1, row, rows == &table.templates);
    }
  }
  m_widget.resizeColumnsToContents();
}

void LabelTableEditor::showRow(int row, const LabelRow &cells, bool isTemplate) {
  const QSignalBlocker blocker(&m_widget);
  for (int column = 0; column < LabelRow::Columns; ++column) {
    auto *cell = new QTableWidgetItem(cells.cells[static_cast<std::size_t>(column)]);
    const bool isFixed = !isTemplate && (isColumn(column, LabelRow::LongName) || isColumn(column, LabelRow::Short));
    if (isFixed || hasDialog(column))
      cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
    m_widget.setItem(row, column, cell);
  }
  const QString type = isTemplate ? cells.icon : cells[LabelRow::Short];
  auto *header = new QTableWidgetItem(iconOf(type), QString());
  header->setData(IconRole, type);
  m_widget.setVerticalHeaderItem(row, header);
  showLook(row);
}

void LabelTableEditor::showLook(int row) {
  const QSignalBlocker blocker(&m_widget);
  const LabelRow cells = rowAt(row);
  const auto cell = [&](LabelRow::Column column) {
    return m_widget.item(row, column);
  };
  const QColor text(cells[LabelRow::Color]);
  cell(LabelRow::Color)->setForeground(text.isValid() ? QBrush(text) : QBrush());
  const QColor background(cells[LabelRow::BgrColor]);
  cell(LabelRow::BgrColor)
      ->setBackground(background.isValid() ? QBrush(withAlpha(background, cells[LabelRow::BgrAlpha])) : QBrush());
  const QColor border(cells[LabelRow::BordColor]);
  cell(LabelRow::BordColor)
      ->setBackground(border.isValid() ? QBrush(withAlpha(border, cells[LabelRow::BordAlpha])) : QBrush());
  QFont font;
  if (!cells[LabelRow::Font].isEmpty() && font.fromString(cells[LabelRow::Font]))
    cell(LabelRow::Font)->setFont(font);
}

LabelRow LabelTableEditor::rowAt(int row) const {
  LabelRow cells;
  for (int column = 0; column < LabelRow::Columns; ++column) {
    const QTableWidgetItem *cell = m_widget.item(row, column);
    cells.cells[static_cast<std::size_t>(column)] = cell == nullptr ? QString() : cell->text();
  }
  cells[LabelRow::Contents].replace(QLatin1Char(','), comma());
  if (row >= m_types)
    cells.icon = m_widget.verticalHeaderItem(row)->data(IconRole).toString();
  return cells;
}

LabelTable LabelTableEditor::table() const {
  LabelTable table;
  table.types.clear();
  for (int row = 0; row < m_widget.rowCount(); ++row)
    (row < m_types ? table.types : table.templates).push_back(rowAt(row));
  return table;
}

QStringList LabelTableEditor::visibilityValues() {
  const NetMetaData::Attribute *vis = NetMetaData::instance().anyAttribute(QStringLiteral("vis"));
  if (vis != nullptr && !vis->values.isEmpty())
    return vis->values;
  NivraMsg::message(NivraMsg::Kind::Warning, tr("Error - allowed values for property vis missing! Defaults used!"));
  return {QStringLiteral("on"), QStringLiteral("symbol"), QStringLiteral("off"), QStringLiteral("auto")};
}

bool LabelTableEditor::eventFilter(QObject *watched, QEvent *event) {
  const QTableWidgetItem *cell = m_widget.currentItem();
  const bool isKey = watched == &m_widget && event->type() == QEvent::KeyPress;
  if (!isKey || cell == nullptr || !m_widget.hasFocus()) // without it, an editor is open and passes on what ends it
    return QObject::eventFilter(watched, event);
  switch (static_cast<QKeyEvent *>(event)->key()) {
  case Qt::Key_F2:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    edit(cell->row(), cell->column());
    return true;
  case Qt::Key_Delete:
  case Qt::Key_Backspace:
    if (!hasDialog(cell->column()) || isColumn(cell->column(), LabelRow::Show))
      return false;
    m_widget.item(cell->row(), cell->column())->setText(QString()); // which no dialog of colours or fonts offers
    return true;
  default:
    return false;
  }
}

void LabelTableEditor::edit(int row, int column) {
  QTableWidgetItem &cell = *m_widget.item(row, column);
  bool isTaken = false;
  if (isColumn(column, LabelRow::Show)) {
    const QStringList values = visibilityValues();
    const QString chosen = QInputDialog::getItem(&m_widget, tr("Show"), tr("Symbols and labels of this type are"), values,
                                                 std::max(0, values.indexOf(cell.text())), false, &isTaken);
    if (isTaken)
      cell.setText(chosen);
  } else if (isColumn(column, LabelRow::Contents)) {
    editContents(cell);
  } else if (isColumn(column, LabelRow::Color) || isColumn(column, LabelRow::BgrColor) ||
             isColumn(column, LabelRow::BordColor)) {
    const QColor chosen = QColorDialog::getColor(QColor(cell.text()), &m_widget);
    if (chosen.isValid())
      cell.setText(chosen.name());
  } else if (isColumn(column, LabelRow::Font)) {
    QFont font;
    font.fromString(cell.text());
    font = QFontDialog::getFont(&isTaken, font, &m_widget);
    if (isTaken)
      cell.setText(font.toString());
  } else if ((cell.flags() & Qt::ItemIsEditable) != 0) {
    m_widget.editItem(&cell);
  }
}

void LabelTableEditor::editContents(QTableWidgetItem &cell) {
  bool isTaken = false;
  const QString text =
      QInputDialog::getMultiLineText(&m_widget, tr("Label Contents"), tr("Enter description of label contents:"),
                                     QString(cell.text())
                                         .replace(comma(), QStringLiteral(","))
                                         .replace(QStringLiteral("<br />"), QStringLiteral("<br />\n")),
                                     &isTaken);
  if (isTaken)
    cell.setText(QString(text)
                     .replace(QStringLiteral("<br />\n"), QStringLiteral("<br />"))
                     .replace(QLatin1Char('\n'), QStringLiteral("<br />"))
                     .replace(QLatin1Char(','), comma()));
}

void LabelTableEditor::addTemplate() {
  const int current = m_widget.currentRow();
  if (current < 0)
    return;
  LabelRow row = rowAt(current);
  row.icon = m_widget.verticalHeaderItem(current)->data(IconRole).toString();
  row[LabelRow::LongName] = tr("template %1").arg(m_widget.rowCount() - m_types + 1);
  m_widget.insertRow(m_widget.rowCount());
  showRow(m_widget.rowCount() - 1, row, true);
  m_widget.setCurrentCell(m_widget.rowCount() - 1, 0);
}

void LabelTableEditor::applyTemplate() {
  const int current = m_widget.currentRow();
  if (current < 0)
    return;
  QStringList types{tr("all types")};
  for (int row = 0; row < m_types; ++row)
    types.append(m_widget.item(row, LabelRow::LongName)->text());
  bool isTaken = false;
  const QString chosen =
      QInputDialog::getItem(&m_widget, tr("Apply to …"), tr("Give this look to"), types, 0, false, &isTaken);
  if (!isTaken)
    return;
  const LabelRow look = rowAt(current);
  for (int row = 0; row < m_types; ++row) {
    LabelRow cells = rowAt(row);
    if (chosen != types.first() && chosen != cells[LabelRow::LongName])
      continue;
    for (int column = LabelRow::Size; column < LabelRow::Columns; ++column)
      cells.cells[static_cast<std::size_t>(column)] = look.cells[static_cast<std::size_t>(column)];
    showRow(row, cells, false);
  }
}

void LabelTableEditor::deleteRow() {
  const int current = m_widget.currentRow();
  if (current >= m_types)
    m_widget.removeRow(current);
  else
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Deleting this row is not allowed!"));
}
