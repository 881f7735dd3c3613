#include "scenarioset/setchoice.h"

#include <model/netmetadata.h>
#include <model/titles.h>
#include <tools/filterfield.h>

#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int ValueRole = Qt::UserRole;

void addItem(QStandardItemModel &model, const QString &text, const QVariant &value, bool isChecked) {
  auto *item = new QStandardItem(text);
  item->setData(value, ValueRole);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  item->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
  model.appendRow(item);
}

QVariantList checkedValues(const QStandardItemModel &model) {
  QVariantList values;
  for (int row = 0; row < model.rowCount(); ++row) {
    if (model.item(row)->checkState() == Qt::Checked)
      values.append(model.item(row)->data(ValueRole));
  }
  return values;
}

bool isUsual(SetStatistic::Kind kind) {
  using Kind = SetStatistic::Kind;
  return kind == Kind::Minimum || kind == Kind::Maximum || kind == Kind::Mean || kind == Kind::Deviation ||
         kind == Kind::Q05 || kind == Kind::Q95;
}

} // namespace

SetChoice::SetChoice(QWidget *parent)
    : QWidget(parent)
    , m_pattern(new FilterField)
    , m_from(new QDateEdit)
    , m_to(new QDateEdit)
    , m_count(new QLabel)
    , m_properties(new QStandardItemModel(this))
    , m_figures(new QStandardItemModel(this))
    , m_run(new QPushButton(tr("Compute")))
    , m_stop(new QPushButton(tr("Cancel")))
    , m_progress(new QProgressBar)
    , m_said(new QLabel) {
  m_pattern->setPlaceholderText(tr("All scenarios, or such as 2015-01*, cold*"));
  m_pattern->setAccessibleName(tr("Names of the scenarios"));
  m_pattern->setToolTip(tr("Names with wildcards, separated by commas"));
  m_dates = makeDates();
  m_said->setWordWrap(true);
  m_run->setToolTip(tr("Read the scenarios and make properties of their figures"));
  auto *lists = new QGridLayout;
  lists->addWidget(new QLabel(tr("Properties")), 0, 0);
  lists->addWidget(new QLabel(tr("Figures")), 0, 1);
  lists->addWidget(makeList(*m_properties, tr("Properties of the set")), 1, 0);
  lists->addWidget(makeList(*m_figures, tr("Figures that become properties")), 1, 1);
  auto *buttons = new QHBoxLayout;
  buttons->addWidget(m_run);
  buttons->addWidget(m_progress, 1);
  buttons->addWidget(m_stop);
  buttons->addStretch();
  auto *column = new QVBoxLayout(this);
  column->addWidget(m_pattern);
  auto *which = new QHBoxLayout;
  which->addWidget(m_dates);
  which->addWidget(m_count);
  which->addStretch();
  column->addLayout(which);
  column->addLayout(lists, 1);
  column->addLayout(buttons);
  column->addWidget(m_said);
  for (const SetStatistic::Kind kind : SetStatistic::All)
    addItem(*m_figures, SetStatistic::title(kind), static_cast<int>(kind), isUsual(kind));
  connect(m_pattern, &QLineEdit::textChanged, this, &SetChoice::showCount);
  connect(m_pattern, &QLineEdit::returnPressed, m_run, &QPushButton::click);
  connect(m_properties, &QStandardItemModel::itemChanged, this, &SetChoice::showCount);
  connect(m_run, &QPushButton::clicked, this, &SetChoice::runWanted);
  connect(m_stop, &QPushButton::clicked, this, &SetChoice::stopWanted);
  showRunning(false);
}

QWidget *SetChoice::makeDates() {
  auto *dates = new QWidget;
  auto *row = new QHBoxLayout(dates);
  row->setContentsMargins(0, 0, 0, 0);
  for (const auto &[edit, text] : {std::pair(m_from, tr("From")), std::pair(m_to, tr("to"))}) {
    auto *label = new QLabel(text);
    label->setBuddy(edit);
    row->addWidget(label);
    row->addWidget(edit);
    edit->setCalendarPopup(true);
    edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    edit->setAccessibleName(text);
    connect(edit, &QDateEdit::dateChanged, this, &SetChoice::showCount);
  }
  dates->hide();
  return dates;
}

QListView *SetChoice::makeList(QStandardItemModel &model, const QString &name) {
  auto *view = new QListView;
  view->setModel(&model);
  view->setUniformItemSizes(true);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
  view->setAccessibleName(name);
  return view;
}

void SetChoice::offer(const std::vector<SetScenario> &scenarios, const QStringList &properties,
                      const NetMetaData &metaData) {
  m_all = scenarios;
  const QStringList before = this->properties();
  m_properties->clear();
  for (const QString &property : properties) {
    const NetMetaData::Attribute *attribute = metaData.anyAttribute(property);
    const QString title = attribute == nullptr ? QString() : Titles::of(*attribute);
    const bool isWanted =
        before.isEmpty() ? property == QLatin1String("p") || property == QLatin1String("q") : before.contains(property);
    addItem(*m_properties, title.isEmpty() || title == property ? property : tr("%1 (%2)").arg(title, property), property,
            isWanted);
  }
  if (checkedValues(*m_properties).isEmpty() && m_properties->rowCount() > 0)
    m_properties->item(0)->setCheckState(Qt::Checked);
  std::vector<QDate> dates;
  for (const SetScenario &scenario : scenarios) {
    if (scenario.date.isValid())
      dates.push_back(scenario.date);
  }
  m_dates->setVisible(!dates.empty());
  if (!dates.empty()) {
    const auto [first, last] = std::minmax_element(dates.begin(), dates.end());
    for (QDateEdit *edit : {m_from, m_to})
      edit->setDateRange(*first, *last);
    m_from->setDate(*first);
    m_to->setDate(*last);
  }
  showCount();
}

std::vector<SetScenario> SetChoice::scenarios() const {
  SetScenarios::Choice choice;
  choice.pattern = m_pattern->text();
  // Bounds that bound nothing leave those without a date in.
  if (!m_dates->isHidden() && m_from->date() > m_from->minimumDate())
    choice.from = m_from->date();
  if (!m_dates->isHidden() && m_to->date() < m_to->maximumDate())
    choice.to = m_to->date();
  return choice.of(m_all);
}

QStringList SetChoice::properties() const {
  QStringList names;
  for (const QVariant &name : checkedValues(*m_properties))
    names.append(name.toString());
  return names;
}

std::vector<SetStatistic::Kind> SetChoice::figures() const {
  std::vector<SetStatistic::Kind> kinds;
  for (const QVariant &kind : checkedValues(*m_figures))
    kinds.push_back(static_cast<SetStatistic::Kind>(kind.toInt()));
  return kinds;
}

void SetChoice::showCount() {
  const std::size_t chosen = scenarios().size();
  m_count->setText(tr("%1 of %2 scenarios").arg(chosen).arg(m_all.size()));
  m_run->setEnabled(chosen > 0 && !checkedValues(*m_properties).isEmpty());
}

void SetChoice::showRunning(bool isRunning) {
  m_run->setVisible(!isRunning);
  m_progress->setVisible(isRunning);
  m_stop->setVisible(isRunning);
  m_progress->setValue(0);
}

void SetChoice::showProgress(double fraction) {
  m_progress->setValue(static_cast<int>(fraction * m_progress->maximum()));
}

void SetChoice::say(const QString &text) {
  m_said->setText(text);
  m_said->setVisible(!text.isEmpty());
}
