#include "configure/labeltableeditor.h"

#include <base/nivramsg.h>
#include <model/netmetadata.h>

#include <QColorDialog>
#include <QFontDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QKeyEvent>
#include <QTableView>

LabelTableEditor::LabelTableEditor(QTableView &view)
    : QObject(&view)
    , m_view(view) {
  view.setModel(&m_model);
  view.setSelectionBehavior(QAbstractItemView::SelectItems);
  // A double click, F2 and Return are answered by edit(), which alone opens the one editor that suits the cell.
  view.setEditTriggers(QAbstractItemView::AnyKeyPressed);
  view.installEventFilter(this);
  connect(&view, &QTableView::doubleClicked, this, &LabelTableEditor::edit);
  // Queued: a box would take the focus from the editor, which would then hand over its text once more.
  connect(
      &m_model, &LabelTableModel::refused, this,
      [](const QString &reason) { NivraMsg::message(NivraMsg::Kind::Warning, reason); }, Qt::QueuedConnection);
  connect(view.verticalHeader(), &QHeaderView::sectionDoubleClicked, this, [] {
    NivraMsg::message(NivraMsg::Kind::Information, tr("Currently, changing symbol only via property vis.symbol allowed!"));
  });
}

void LabelTableEditor::setTable(const LabelTable &table) {
  m_model.setTable(table);
  m_view.resizeColumnsToContents();
}

QStringList LabelTableEditor::visibilityValues() {
  const NetMetaData::Attribute *vis = NetMetaData::instance().anyAttribute(QStringLiteral("vis"));
  if (vis != nullptr && !vis->values.isEmpty())
    return vis->values;
  NivraMsg::message(NivraMsg::Kind::Warning, tr("Error - allowed values for property vis missing! Defaults used!"));
  return {QStringLiteral("on"), QStringLiteral("symbol"), QStringLiteral("off"), QStringLiteral("auto")};
}

bool LabelTableEditor::eventFilter(QObject *watched, QEvent *event) {
  const QModelIndex cell = m_view.currentIndex();
  const bool isKey = watched == &m_view && event->type() == QEvent::KeyPress;
  if (!isKey || !cell.isValid() || !m_view.hasFocus()) // without it, an editor is open and passes on what ends it
    return QObject::eventFilter(watched, event);
  switch (static_cast<QKeyEvent *>(event)->key()) {
  case Qt::Key_F2:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    edit(cell);
    return true;
  case Qt::Key_Delete:
  case Qt::Key_Backspace:
    if (!LabelTableModel::hasDialog(cell.column()) || cell.column() == LabelRow::Show)
      return false;
    m_model.setData(cell, QString()); // which no dialog of colours or fonts offers
    return true;
  default:
    return false;
  }
}

void LabelTableEditor::edit(const QModelIndex &cell) {
  switch (cell.column()) {
  case LabelRow::Show:
    return editVisibility(cell);
  case LabelRow::Contents:
    return editContents(cell);
  case LabelRow::Color:
  case LabelRow::BgrColor:
  case LabelRow::BordColor:
    return editColor(cell);
  case LabelRow::Font:
    return editFont(cell);
  default:
    if (cell.flags().testFlag(Qt::ItemIsEditable))
      m_view.edit(cell);
  }
}

void LabelTableEditor::editVisibility(const QModelIndex &cell) {
  bool isAccepted = false;
  const QStringList values = visibilityValues();
  const QString chosen = QInputDialog::getItem(&m_view, tr("Show"), tr("Symbols and labels of this type are"), values,
                                               std::max(0, values.indexOf(cell.data().toString())), false, &isAccepted);
  if (isAccepted)
    m_model.setData(cell, chosen);
}

void LabelTableEditor::editContents(const QModelIndex &cell) {
  bool isAccepted = false;
  QString text = cell.data().toString();
  text.replace(QStringLiteral("&#44;"), QStringLiteral(","));
  text.replace(QStringLiteral("<br />"), QStringLiteral("<br />\n"));
  text = QInputDialog::getMultiLineText(&m_view, tr("Label Contents"), tr("Enter description of label contents:"), text,
                                        &isAccepted);
  text.replace(QStringLiteral("<br />\n"), QStringLiteral("<br />"));
  text.replace(QLatin1Char('\n'), QStringLiteral("<br />"));
  if (isAccepted)
    m_model.setData(cell, text);
}

void LabelTableEditor::editColor(const QModelIndex &cell) {
  const QColor chosen = QColorDialog::getColor(QColor(cell.data().toString()), &m_view);
  if (chosen.isValid())
    m_model.setData(cell, chosen.name());
}

void LabelTableEditor::editFont(const QModelIndex &cell) {
  bool isAccepted = false;
  QFont font;
  font.fromString(cell.data().toString());
  font = QFontDialog::getFont(&isAccepted, font, &m_view);
  if (isAccepted)
    m_model.setData(cell, font.toString());
}

void LabelTableEditor::addTemplate() {
  const QModelIndex current = m_view.currentIndex();
  if (current.isValid())
    m_view.setCurrentIndex(m_model.index(m_model.addTemplate(current.row()), 0));
}

void LabelTableEditor::applyTemplate() {
  const QModelIndex current = m_view.currentIndex();
  if (!current.isValid())
    return;
  QStringList choices{tr("all types")};
  for (int row = 0; row < m_model.typeCount(); ++row)
    choices.append(m_model.titleOf(row));
  bool isAccepted = false;
  const QString chosen =
      QInputDialog::getItem(&m_view, tr("Apply to …"), tr("Give this look to"), choices, 0, false, &isAccepted);
  if (!isAccepted)
    return;
  for (int row = 0; row < m_model.typeCount(); ++row) {
    if (chosen == choices.first() || chosen == choices.at(row + 1))
      m_model.copyLook(current.row(), row);
  }
}

void LabelTableEditor::deleteRow() {
  if (!m_model.removeTemplate(m_view.currentIndex().row()))
    NivraMsg::message(NivraMsg::Kind::Warning, tr("Deleting this row is not allowed!"));
}
