#include "settingsdialog.h"

#include "settingsdelegate.h"
#include "settingsfilter.h"
#include "settingsmodel.h"
#include "unitspage.h"

#include <base/nivramsg.h>
#include <tools/plaintip.h>

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

SettingsDialog::SettingsDialog(const QString &workspaceDir, QWidget *parent)
    : QDialog(parent)
    , m_draft(workspaceDir)
    , m_model(new SettingsModel(m_draft, this))
    , m_filter(new SettingsFilter(this))
    , m_pages(new QTabWidget)
    , m_findings(new QLabel)
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Apply | QDialogButtonBox::Cancel)) {
  constexpr QSize Size(860, 560);
  setWindowTitle(tr("Settings"));
  m_filter->setSourceModel(m_model);
  m_pages->addTab(makeAllPage(), tr("&All settings"));
  m_pages->addTab(new UnitsPage(*m_model, UnitsPage::Content::Units), tr("&Units"));
  m_pages->addTab(new UnitsPage(*m_model, UnitsPage::Content::Numbers), tr("&Numbers"));
  auto *column = new QVBoxLayout(this);
  column->addWidget(m_findings);
  column->addWidget(m_pages, 1);
  auto *bottom = new QHBoxLayout;
  auto *resetAllButton = new QPushButton(tr("Reset a&ll"));
  resetAllButton->setObjectName(QStringLiteral("resetAll"));
  resetAllButton->setToolTip(tr("Takes back all of your own values; nothing is written before OK or Apply"));
  resetAllButton->setAutoDefault(false);
  connect(resetAllButton, &QPushButton::clicked, this, &SettingsDialog::resetAll);
  bottom->addWidget(resetAllButton);
  bottom->addWidget(m_buttons, 1);
  column->addLayout(bottom);
  connect(m_buttons, &QDialogButtonBox::accepted, this, &SettingsDialog::accept);
  connect(m_buttons, &QDialogButtonBox::rejected, this, &SettingsDialog::reject);
  connect(m_buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &SettingsDialog::apply);
  connect(m_model, &SettingsModel::edited, this, &SettingsDialog::showDirty);
  connect(m_model, &SettingsModel::edited, this, &SettingsDialog::showAbout);
  showFindings();
  showDirty();
  showAbout();
  constexpr QSize Frame(20, 60); // of the window, so that it fits a small screen
  resize(Size.boundedTo(screen()->availableSize() - Frame));
  m_search->setFocus();
}

SettingsDialog::~SettingsDialog() = default;

QWidget *SettingsDialog::makeAllPage() {
  auto *page = new QWidget;
  auto *column = new QVBoxLayout(page);
  auto *top = new QHBoxLayout;
  m_search = new QLineEdit;
  m_search->setObjectName(QStringLiteral("search"));
  m_search->installEventFilter(this);
  m_search->setPlaceholderText(tr("Search in names and descriptions"));
  m_search->setAccessibleName(tr("Search settings"));
  m_search->setToolTip(tr("Settings in which all of these words occur (Ctrl+F)"));
  m_search->setClearButtonEnabled(true);
  m_changedOnly = new QCheckBox(tr("&Changed only"));
  m_changedOnly->setToolTip(tr("Only those that you or the workspace say otherwise than the program"));
  top->addWidget(m_search, 1);
  top->addWidget(m_changedOnly);
  column->addLayout(top);
  makeTree();
  m_nothing = new QLabel(tr("No setting fits."));
  m_nothing->setAlignment(Qt::AlignCenter);
  m_nothing->hide();
  column->addWidget(m_nothing, 1);
  column->addWidget(m_tree, 1);
  column->addWidget(makeDetails());
  connect(m_search, &QLineEdit::textChanged, this, &SettingsDialog::filter);
  connect(m_changedOnly, &QCheckBox::toggled, this, &SettingsDialog::filter);
  const auto *find = new QShortcut(QKeySequence::Find, this);
  connect(find, &QShortcut::activated, this, [this] {
    m_pages->setCurrentIndex(0);
    m_search->setFocus();
    m_search->selectAll();
  });
  return page;
}

void SettingsDialog::makeTree() {
  m_tree = new QTreeView;
  m_tree->installEventFilter(this);
  m_tree->setAccessibleName(tr("Settings"));
  m_tree->setModel(m_filter);
  m_tree->setItemDelegate(new SettingsDelegate(m_tree));
  m_tree->setAlternatingRowColors(true);
  m_tree->setUniformRowHeights(true);
  m_tree->setAllColumnsShowFocus(false); // Space and F2 are for the cell of the value
  m_tree->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed);
  connect(m_tree, &QTreeView::doubleClicked, this, [this](const QModelIndex &clicked) {
    if (clicked.column() != SettingsModel::ValueColumn) // there the view begins to edit by itself
      editCurrent();
  });
  m_tree->expandAll();
  QHeaderView &header = *m_tree->header();
  header.setStretchLastSection(true);
  constexpr int NameWidth = 320;
  constexpr int ValueWidth = 230;
  header.resizeSection(SettingsModel::NameColumn, NameWidth);
  header.resizeSection(SettingsModel::ValueColumn, ValueWidth);
  for (int group = 0; group < m_filter->rowCount(); ++group)
    m_tree->setFirstColumnSpanned(group, QModelIndex(), true);
  // Wherever in its row the keyboard is, it is the value that is edited.
  connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex &current) {
    if (current.parent().isValid() && current.column() != SettingsModel::ValueColumn)
      m_tree->setCurrentIndex(current.siblingAtColumn(SettingsModel::ValueColumn));
    showAbout();
  });
}

QWidget *SettingsDialog::makeDetails() {
  constexpr int Lines = 5;
  auto *details = new QWidget;
  auto *row = new QHBoxLayout(details);
  row->setContentsMargins(0, 0, 0, 0);
  m_about = new QLabel;
  m_about->setTextFormat(Qt::PlainText);
  m_about->setWordWrap(true);
  m_about->setAlignment(Qt::AlignTop);
  m_about->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_about->setMargin(4);
  auto *scroll = new QScrollArea;
  scroll->setWidgetResizable(true);
  scroll->setWidget(m_about);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setFixedHeight(fontMetrics().lineSpacing() * Lines + 2 * scroll->frameWidth() + 2 * m_about->margin());
  m_reset = new QPushButton(tr("&Reset"));
  m_reset->setObjectName(QStringLiteral("reset"));
  m_reset->setAutoDefault(false);
  m_reset->setToolTip(tr("Takes back your own value of this setting"));
  connect(m_reset, &QPushButton::clicked, this, &SettingsDialog::resetCurrent);
  row->addWidget(scroll, 1);
  row->addWidget(m_reset, 0, Qt::AlignTop);
  return details;
}

void SettingsDialog::showFindings() {
  const Findings &findings = m_draft.findings();
  m_findings->setVisible(!findings.empty());
  QStringList lines;
  for (const Finding &finding : findings)
    lines.append(finding.logText());
  constexpr int Shown = 3; // all of them are in the tip and in the log
  m_findings->setObjectName(QStringLiteral("findings"));
  m_findings->setTextFormat(Qt::PlainText);
  m_findings->setWordWrap(true);
  m_findings->setToolTip(PlainTip::of(lines.join(QLatin1Char('\n'))));
  QString text = tr("Not understood, and left as it is:") + QLatin1Char('\n') + lines.mid(0, Shown).join(QLatin1Char('\n'));
  if (lines.size() > Shown)
    text += QLatin1Char('\n') + tr("… and %1 more").arg(lines.size() - Shown);
  m_findings->setText(text);
}

QString SettingsDialog::currentKey() const {
  return m_tree->currentIndex().data(SettingsModel::KeyRole).toString();
}

void SettingsDialog::showAbout() {
  const QString about = m_model->about(m_filter->mapToSource(m_tree->currentIndex()));
  m_about->setText(about.isEmpty()
                       ? tr("Your values are kept in %1. Where a workspace says another one, that holds while it "
                            "is open.\nChoose a setting to read about it; Return, Space or a double click changes it.")
                             .arg(m_draft.userFile())
                       : about);
  m_reset->setEnabled(m_draft.hasOwn(currentKey()));
}

void SettingsDialog::showDirty() {
  m_buttons->button(QDialogButtonBox::Apply)->setEnabled(m_draft.isChanged());
}

void SettingsDialog::filter() {
  m_filter->setWords(m_search->text());
  m_filter->setChangedOnly(m_changedOnly->isChecked());
  m_tree->expandAll();
  for (int group = 0; group < m_filter->rowCount(); ++group)
    m_tree->setFirstColumnSpanned(group, QModelIndex(), true);
  const bool isEmpty = m_filter->rowCount() == 0;
  m_tree->setVisible(!isEmpty);
  m_nothing->setVisible(isEmpty);
}

void SettingsDialog::resetCurrent() {
  m_model->reset(currentKey());
}

void SettingsDialog::resetAll() {
  m_model->resetAll();
}

// Return in the list means the setting, in the search what was found; the dialog would take it for OK.
bool SettingsDialog::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::KeyPress)
    return QDialog::eventFilter(watched, event);
  const int key = static_cast<const QKeyEvent *>(event)->key();
  const bool isReturn = key == Qt::Key_Return || key == Qt::Key_Enter;
  if (watched == m_tree && isReturn) {
    editCurrent();
    return true;
  }
  if (watched == m_search && (isReturn || key == Qt::Key_Down)) {
    enterTree();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

/// To the first setting that is shown.
void SettingsDialog::enterTree() {
  const QModelIndex first = m_filter->index(0, 0, m_filter->index(0, 0));
  if (!first.isValid())
    return;
  m_tree->setFocus();
  m_tree->setCurrentIndex(first);
}

void SettingsDialog::editCurrent() {
  const QModelIndex current = m_tree->currentIndex();
  const QVariant state = current.data(Qt::CheckStateRole);
  if (state.isValid())
    m_filter->setData(current, state.toInt() == Qt::Checked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
  else if (current.parent().isValid())
    m_tree->edit(current);
}

bool SettingsDialog::apply() {
  if (!m_draft.isChanged())
    return true;
  QString reason;
  if (!m_draft.save(&reason)) {
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
    return false;
  }
  showDirty();
  emit applied();
  return true;
}

void SettingsDialog::accept() {
  if (apply())
    QDialog::accept();
}
