#include "elementtable/filterheader.h"

#include <tools/plaintip.h>

#include <QAction>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace {

constexpr char FaultAction[] = "filterFault";

QString help() {
  return FilterHeader::tr("A part of the text; or >10, <=3, 5..20, =open, <>open; = for empty cells, <> for others; "
                          "\" & \" joins, \" | \" is for either (Ctrl+Shift+L)");
}

} // namespace

FilterHeader::FilterHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent) {
  setSectionsClickable(true);
  setSectionsMovable(true);
  setFirstSectionMovable(false);
  setHighlightSections(false);
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  connect(this, &QHeaderView::sectionResized, this, &FilterHeader::placeFields);
  connect(this, &QHeaderView::sectionMoved, this, &FilterHeader::placeFields);
}

int FilterHeader::fieldHeight() const {
  return m_fields.isEmpty() ? 0 : m_fields.first()->sizeHint().height();
}

QSize FilterHeader::sizeHint() const {
  const QSize titles = QHeaderView::sizeHint();
  return {titles.width(), titles.height() + fieldHeight()};
}

void FilterHeader::setFilters(const QStringList &texts) {
  while (m_fields.size() > texts.size())
    delete m_fields.takeLast();
  while (m_fields.size() < texts.size())
    m_fields.append(makeField(m_fields.size()));
  for (int section = 0; section < texts.size(); ++section) {
    QLineEdit &field = *m_fields[section];
    const QString title = model()->headerData(section, Qt::Horizontal).toString();
    field.setAccessibleName(tr("Filter of %1").arg(title));
    if (field.text() != texts.at(section) && !field.hasFocus()) {
      const QSignalBlocker blocker(field);
      field.setText(texts.at(section));
    }
    if (section > 0)
      setTabOrder(m_fields[section - 1], &field);
  }
  updateGeometries();
}

QLineEdit *FilterHeader::makeField(int section) {
  auto *field = new QLineEdit(this);
  field->setPlaceholderText(tr("Filter"));
  field->setObjectName(QStringLiteral("filter_%1").arg(section));
  field->installEventFilter(this);
  auto *pause = new QTimer(field);
  constexpr int PauseMs = 250;
  pause->setSingleShot(true);
  pause->setInterval(PauseMs);
  connect(field, &QLineEdit::textChanged, pause, QOverload<>::of(&QTimer::start));
  connect(pause, &QTimer::timeout, this, [this, field, section] { emit filterChanged(section, field->text()); });
  connect(field, &QLineEdit::returnPressed, this, [this, pause, field, section] {
    pause->stop();
    emit filterChanged(section, field->text());
    emit left(section);
  });
  field->setToolTip(help());
  field->show();
  return field;
}

void FilterHeader::setFault(int section, const QString &fault) {
  QLineEdit *field = m_fields.value(section);
  if (field == nullptr)
    return;
  delete field->findChild<QAction *>(QLatin1String(FaultAction));
  field->setToolTip(fault.isEmpty() ? help() : PlainTip::of(fault));
  field->setAccessibleDescription(fault);
  if (fault.isEmpty())
    return;
  QAction *sign = field->addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
  sign->setObjectName(QLatin1String(FaultAction));
  sign->setToolTip(PlainTip::of(fault));
}

void FilterHeader::enter(int section) {
  QLineEdit *field = m_fields.value(section);
  if (field == nullptr)
    return;
  field->setFocus(Qt::ShortcutFocusReason);
  field->selectAll();
}

bool FilterHeader::eventFilter(QObject *watched, QEvent *event) {
  const int section = m_fields.indexOf(qobject_cast<QLineEdit *>(watched));
  if (section < 0)
    return QHeaderView::eventFilter(watched, event);
  if (event->type() == QEvent::FocusIn) // a field that is out of sight comes into it
    emit entered(section);
  if (event->type() == QEvent::ContextMenu) {
    offerExamples(*m_fields[section]);
    return true;
  }
  if (event->type() != QEvent::KeyPress)
    return QHeaderView::eventFilter(watched, event);
  QLineEdit &field = *m_fields[section];
  const int key = static_cast<QKeyEvent *>(event)->key();
  if (key == Qt::Key_Escape && !field.text().isEmpty()) {
    field.clear();
    return true;
  }
  if (key == Qt::Key_Escape || key == Qt::Key_Down) {
    emit left(section);
    return true;
  }
  return false;
}

/// What can be asked, to choose from instead of remembering it.
void FilterHeader::offerExamples(QLineEdit &field) {
  std::unique_ptr<QMenu> menu(field.createStandardContextMenu());
  menu->addSeparator();
  const std::vector<std::pair<QString, QString>> examples{
      {tr("Empty cells"), QStringLiteral("=")},     {tr("Cells that are not empty"), QStringLiteral("<>")},
      {tr("Larger than …"), QStringLiteral(">")},   {tr("Smaller than …"), QStringLiteral("<")},
      {tr("A range …"), QStringLiteral("..")},      {tr("Just this …"), QStringLiteral("=")},
      {tr("Anything but …"), QStringLiteral("<>")},
  };
  for (const auto &[title, text] : examples) {
    connect(menu->addAction(title), &QAction::triggered, &field, [&field, text = text] {
      field.setFocus();
      field.setText(text);
      field.setCursorPosition(text == QLatin1String("..") ? 0 : text.size());
    });
  }
  QAction *none = menu->addAction(tr("No filter"));
  none->setEnabled(!field.text().isEmpty());
  connect(none, &QAction::triggered, &field, &QLineEdit::clear);
  menu->exec(QCursor::pos());
}

void FilterHeader::updateGeometries() {
  setViewportMargins(0, 0, 0, fieldHeight());
  QHeaderView::updateGeometries();
  placeFields();
}

void FilterHeader::placeFields() {
  const int height = fieldHeight();
  const int top = QHeaderView::sizeHint().height();
  for (int section = 0; section < std::min(m_fields.size(), count()); ++section) {
    QLineEdit &field = *m_fields[section];
    field.setVisible(!isSectionHidden(section));
    field.setGeometry(sectionViewportPosition(section), top, sectionSize(section), height);
  }
}
