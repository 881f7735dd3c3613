#include "export/seriesdialog.h"

#include "ui_seriesdialog.h"

#include <base/lastfolder.h>
#include <base/nivramsg.h>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// What the combination box offers, in its order; empty for one PDF.
const QStringList &suffixes() {
  static const QStringList list{QString(), QStringLiteral("pdf"), QStringLiteral("svg"), QStringLiteral("png")};
  return list;
}

void addEntry(QListWidget &list, const QString &text, bool isChosen) {
  auto *entry = new QListWidgetItem(text, &list);
  entry->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  entry->setCheckState(isChosen ? Qt::Checked : Qt::Unchecked);
}

QList<int> chosen(const QListWidget &list) {
  QList<int> rows;
  for (int row = 0; row < list.count(); ++row) {
    if (list.item(row)->checkState() == Qt::Checked)
      rows.append(row);
  }
  return rows;
}

} // namespace

SeriesDialog::SeriesDialog(QList<NetworkSeries::View> views, const QStringList &scenarios, const QString &present,
                           const QString &name, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::SeriesDialog>())
    , m_views(std::move(views))
    , m_name(name) {
  m_ui->setupUi(this);
  for (const NetworkSeries::View &view : qAsConst(m_views))
    addEntry(*m_ui->views, view.name, true);
  for (const QString &scenario : scenarios)
    addEntry(*m_ui->scenarios, scenario, scenario == present);
  const bool hasScenarios = scenarios.size() > 1;
  m_ui->scenarioGroup->setVisible(hasScenarios);
  m_ui->keepsScales->setVisible(hasScenarios);
  m_ui->progress->hide();
  proposeTarget();
  for (QListWidget *list : {m_ui->views, m_ui->scenarios}) {
    connect(list, &QListWidget::itemChanged, this, &SeriesDialog::showChoice);
    list->setCurrentRow(0);
  }
  connect(m_ui->format, qOverload<int>(&QComboBox::currentIndexChanged), this, &SeriesDialog::proposeTarget);
  connect(m_ui->target, &QLineEdit::textChanged, this, &SeriesDialog::showChoice);
  connect(m_ui->browse, &QPushButton::clicked, this, &SeriesDialog::browse);
  connect(m_ui->start, &QPushButton::clicked, this, &SeriesDialog::start);
  connect(m_ui->cancel, &QPushButton::clicked, this, &SeriesDialog::reject);
  showChoice();
}

SeriesDialog::~SeriesDialog() = default;

NetworkSeries::Choice SeriesDialog::choice() const {
  NetworkSeries::Choice choice;
  for (const int row : chosen(*m_ui->views))
    choice.views.append(m_views.at(row));
  for (const int row : chosen(*m_ui->scenarios))
    choice.scenarios.append(m_ui->scenarios->item(row)->text());
  choice.keepsScales = m_ui->keepsScales->isChecked();
  return choice;
}

PageSeries::Target SeriesDialog::target() const {
  return {m_ui->target->text().trimmed(), suffixes().value(m_ui->format->currentIndex())};
}

int SeriesDialog::pages() const {
  const int scenarios = m_ui->scenarios->count() == 0 ? 1 : chosen(*m_ui->scenarios).size();
  return chosen(*m_ui->views).size() * scenarios;
}

void SeriesDialog::showChoice() {
  const int count = pages();
  m_ui->count->setText(count == 0   ? tr("Choose at least one view and one scenario.")
                       : count == 1 ? tr("1 page")
                                    : tr("%1 pages").arg(count));
  m_ui->start->setEnabled(!m_isRunning && count > 0 && !target().path.isEmpty());
}

/// The folder stays while the kind of the files changes.
void SeriesDialog::proposeTarget() {
  QString folder = LastFolder::ofSaving().path();
  if (const QString present = target().path; !present.isEmpty())
    folder = QFileInfo(present).isDir() ? present : QFileInfo(present).path();
  if (folder.isEmpty())
    folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  m_ui->target->setText(target().isBook() ? QDir(folder).filePath(m_name + QStringLiteral(".pdf")) : folder);
  m_ui->targetLabel->setText(target().isBook() ? tr("&File:") : tr("&Folder:"));
}

void SeriesDialog::browse() {
  const QString present = target().path;
  const QString path = target().isBook()
                           ? QFileDialog::getSaveFileName(this, tr("Save Pages"), present, tr("PDF (*.pdf)"), nullptr,
                                                          QFileDialog::DontConfirmOverwrite) // asked at the start
                           : QFileDialog::getExistingDirectory(this, tr("Folder of the Pages"), present);
  if (path.isEmpty())
    return;
  LastFolder::ofSaving().remember(target().isBook() ? path : QDir(path).filePath(QStringLiteral("page")));
  m_ui->target->setText(path);
}

bool SeriesDialog::mayReplace() const {
  NetworkSeries::Choice chosenPages = choice();
  std::vector<PageSeries::Page> named;
  const QStringList scenarios = chosenPages.scenarios.isEmpty() ? QStringList(QString()) : chosenPages.scenarios;
  for (const QString &scenario : scenarios) {
    for (const NetworkSeries::View &view : qAsConst(chosenPages.views))
      named.push_back({NetworkSeries::nameOf(scenario, view), {}});
  }
  int present = 0;
  for (const QString &path : PageSeries::files(named, target()))
    present += QFileInfo::exists(path) ? 1 : 0;
  if (present == 0 || !NivraMsg::showsBoxes())
    return true;
  const QString text = present == 1 ? tr("1 of the files is there already. Replace it?")
                                    : tr("%1 of the files are there already. Replace them?").arg(present);
  return NivraMsg::show({NivraMsg::Kind::Question, text, {}, {NivraMsg::Answer::Yes, NivraMsg::Answer::No}}) ==
         NivraMsg::Answer::Yes;
}

void SeriesDialog::start() {
  if (!m_run || !mayReplace())
    return;
  m_isRunning = true;
  m_isCancelled = false;
  m_ui->choices->setEnabled(false);
  m_ui->progress->setMaximum(pages());
  m_ui->progress->setValue(0);
  m_ui->progress->show();
  m_ui->cancel->setText(tr("Cancel"));
  m_ui->cancel->setFocus();
  showChoice();
  const PageSeries::Outcome outcome =
      m_run(choice(), target(), [this](int done, const QString &name) { return goOn(done, name); });
  m_isRunning = false;
  m_ui->choices->setEnabled(true);
  m_ui->progress->hide();
  m_ui->cancel->setText(tr("Close"));
  showChoice();
  tell(outcome);
}

bool SeriesDialog::goOn(int done, const QString &name) {
  m_ui->progress->setValue(done);
  m_ui->count->setText(tr("Page %1 of %2: %3").arg(done + 1).arg(m_ui->progress->maximum()).arg(name));
  QCoreApplication::processEvents();
  return !m_isCancelled;
}

void SeriesDialog::tell(const PageSeries::Outcome &outcome) {
  QStringList lines;
  if (outcome.pages > 0)
    lines.append(outcome.pages == 1 ? tr("1 page is in %1").arg(target().path)
                                    : tr("%1 pages are in %2").arg(outcome.pages).arg(target().path));
  if (outcome.isCancelled)
    lines.append(outcome.pages > 0 ? tr("The rest was cancelled.") : tr("Cancelled: nothing was written."));
  m_ui->count->setText(lines.join(QLatin1Char(' ')));
  if (!outcome.faults.isEmpty())
    NivraMsg::message(NivraMsg::Kind::Warning, (lines + outcome.faults).join(QLatin1Char('\n')));
}

void SeriesDialog::reject() {
  if (m_isRunning)
    m_isCancelled = true;
  else
    QDialog::reject();
}
