#include "pagewriter.h"
#include "ui_pagedialog.h"

#include <base/lastfolder.h>
#include <base/nivramsg.h>
#include <base/suffixoffilter.h>
#include <paper/pagedialog.h>

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QScreen>
#include <QStyle>

#include <array>

namespace {

struct Box {
  QCheckBox *Ui::PageDialog::*box;
  bool PageSetup::*value;
};
constexpr std::array<Box, 6> Boxes{{{&Ui::PageDialog::heading, &PageSetup::hasHeading},
                                    {&Ui::PageDialog::legend, &PageSetup::hasLegend},
                                    {&Ui::PageDialog::scaleBar, &PageSetup::hasScaleBar},
                                    {&Ui::PageDialog::frame, &PageSetup::hasFrame},
                                    {&Ui::PageDialog::labels, &PageSetup::hasLabels},
                                    {&Ui::PageDialog::selection, &PageSetup::marksSelection}}};

} // namespace

PageDialog::PageDialog(PageContent &content, Purpose purpose, QWidget *parent)
    : QDialog(parent)
    , m_content(content)
    , m_ui(std::make_unique<Ui::PageDialog>()) {
  m_ui->setupUi(this);
  setWindowTitle(purpose == Purpose::Print ? tr("Print") : tr("Page"));
  setSizeGripEnabled(true);
  for (const QString &paper : PageSetup::papers())
    m_ui->paper->addItem(paper == PageSetup::ownPaper() ? tr("own size") : paper, paper);
  const PageText proposed = content.text();
  m_ui->title->setText(proposed.title);
  m_facts = proposed.facts;
  m_ui->series->hide();
  const bool isMap = content.isMap();
  for (QWidget *choice :
       std::initializer_list<QWidget *>{m_ui->area, m_ui->legend, m_ui->scaleBar, m_ui->labels, m_ui->selection})
    choice->setVisible(isMap);
  fill(PageSetup::remembered());
  m_ui->choicesForm->installEventFilter(this);
  connectChoices();
  (purpose == Purpose::Print ? m_ui->print : m_ui->save)->setDefault(true);
  constexpr QSize Comfortable(1040, 760);
  resize(Comfortable.boundedTo(screen()->availableSize() * 9 / 10));
  m_ui->title->setFocus(); // what is changed most often
  m_ui->title->selectAll();
  showChoices();
}

PageDialog::~PageDialog() = default;

void PageDialog::fill(const PageSetup &setup) {
  m_ui->paper->setCurrentIndex(m_ui->paper->findData(setup.paper));
  m_ui->orientation->setCurrentIndex(setup.isLandscape ? 0 : 1);
  m_ui->ownWidth->setValue(setup.ownSize.width());
  m_ui->ownHeight->setValue(setup.ownSize.height());
  m_ui->marginLeft->setValue(setup.margins.left());
  m_ui->marginTop->setValue(setup.margins.top());
  m_ui->marginRight->setValue(setup.margins.right());
  m_ui->marginBottom->setValue(setup.margins.bottom());
  m_ui->scale->setValue(setup.scale);
  m_ui->dpi->setValue(setup.dpi);
  m_ui->area->setCurrentIndex(setup.area == PageSetup::Area::Window ? 0 : 1);
  for (const Box &own : Boxes)
    ((*m_ui).*own.box)->setChecked(setup.*own.value);
}

PageSetup PageDialog::setup() const {
  PageSetup setup;
  setup.paper = m_ui->paper->currentData().toString();
  setup.isLandscape = m_ui->orientation->currentIndex() == 0;
  setup.ownSize = {m_ui->ownWidth->value(), m_ui->ownHeight->value()};
  setup.margins = {m_ui->marginLeft->value(), m_ui->marginTop->value(), m_ui->marginRight->value(),
                   m_ui->marginBottom->value()};
  setup.scale = m_ui->scale->value();
  setup.dpi = m_ui->dpi->value();
  setup.area = m_ui->area->currentIndex() == 0 ? PageSetup::Area::Window : PageSetup::Area::Network;
  for (const Box &own : Boxes)
    setup.*own.value = ((*m_ui).*own.box)->isChecked();
  return setup;
}

PageText PageDialog::text() const {
  return {m_ui->title->text().trimmed(), m_facts, m_ui->comment->toPlainText().trimmed()};
}

void PageDialog::connectChoices() {
  for (QComboBox *choice : {m_ui->paper, m_ui->orientation, m_ui->area})
    connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this, &PageDialog::showChoices);
  for (QDoubleSpinBox *number : findChildren<QDoubleSpinBox *>())
    connect(number, qOverload<double>(&QDoubleSpinBox::valueChanged), this, &PageDialog::showChoices);
  for (QCheckBox *box : findChildren<QCheckBox *>())
    connect(box, &QCheckBox::toggled, this, &PageDialog::showChoices);
  connect(m_ui->title, &QLineEdit::textChanged, this, &PageDialog::showChoices);
  connect(m_ui->comment, &QPlainTextEdit::textChanged, this, &PageDialog::showChoices);
  connect(m_ui->print, &QPushButton::clicked, this, &PageDialog::print);
  connect(m_ui->save, &QPushButton::clicked, this, &PageDialog::saveAs);
  connect(m_ui->copy, &QPushButton::clicked, this, &PageDialog::copy);
  connect(m_ui->close, &QPushButton::clicked, this, &PageDialog::reject);
}

void PageDialog::showChoices() {
  const PageSetup chosen = setup();
  const bool isOwn = chosen.paper == PageSetup::ownPaper();
  const QSizeF size = chosen.size();
  if (!isOwn) { // says how large the paper is
    const QSignalBlocker quietWidth(m_ui->ownWidth);
    const QSignalBlocker quietHeight(m_ui->ownHeight);
    m_ui->ownWidth->setValue(size.width());
    m_ui->ownHeight->setValue(size.height());
  }
  m_ui->ownWidth->setEnabled(isOwn);
  m_ui->ownHeight->setEnabled(isOwn);
  m_ui->orientation->setEnabled(!isOwn);
  const bool isPossible = chosen.fault().isEmpty();
  for (QPushButton *button : {m_ui->print, m_ui->save, m_ui->copy, m_ui->series})
    button->setEnabled(isPossible);
  m_ui->preview->setPage(m_content, chosen, text());
}

void PageDialog::setSeries(std::function<void()> run) {
  m_ui->series->show();
  connect(m_ui->series, &QPushButton::clicked, this, [this, run = std::move(run)] {
    run();
    showChoices(); // the pages were other views of the same content
  });
}

void PageDialog::print() {
  QPrinter printer(QPrinter::HighResolution);
  PageWriter::prepare(printer, setup());
  QPrintDialog dialog(&printer, this);
  dialog.setWindowTitle(tr("Print"));
  if (dialog.exec() != QDialog::Accepted)
    return;
  QString reason;
  if (PageWriter::print(printer, setup(), m_content, text(), &reason))
    accept();
  else
    NivraMsg::message(NivraMsg::Kind::Critical, reason);
}

QString PageDialog::proposedName() const {
  static const QRegularExpression marks(QStringLiteral("[^\\w.-]+"), QRegularExpression::UseUnicodePropertiesOption);
  QString name = text().title;
  name.replace(marks, QStringLiteral("_"));
  return name.isEmpty() ? QStringLiteral("page") : name;
}

void PageDialog::saveAs() {
  QStringList filters;
  for (const QString &format : PageWriter::formats())
    filters.append(QStringLiteral("%1 (*.%2)").arg(format.toUpper(), format));
  LastFolder &folder = LastFolder::ofSaving();
  QFileDialog dialog(this, tr("Save Page"), folder.path(), filters.join(QStringLiteral(";;")));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(PageWriter::formats().first());
  dialog.selectFile(proposedName() + QStringLiteral(".pdf"));
  connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
    dialog.setDefaultSuffix(suffixOfFilter(filter));
    const QString chosen = QFileInfo(dialog.selectedFiles().value(0)).completeBaseName();
    if (!chosen.isEmpty())
      dialog.selectFile(chosen + QLatin1Char('.') + dialog.defaultSuffix());
  });
  if (dialog.exec() != QDialog::Accepted)
    return;
  const QString path = dialog.selectedFiles().value(0).trimmed();
  folder.remember(path);
  if (!path.isEmpty() && save(path))
    accept();
}

bool PageDialog::save(const QString &path) {
  QString reason;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const bool isDone = PageWriter::write(path, setup(), m_content, text(), &reason);
  QGuiApplication::restoreOverrideCursor();
  if (!isDone)
    NivraMsg::message(NivraMsg::Kind::Critical, reason);
  return isDone;
}

void PageDialog::copy() {
  const QImage picture = PageWriter::picture(setup(), m_content, text(), setup().dpi);
  if (picture.isNull())
    NivraMsg::message(NivraMsg::Kind::Critical, tr("There is not enough memory for a picture of this page."));
  else
    QGuiApplication::clipboard()->setImage(picture);
}

void PageDialog::remember() const {
  PageSetup chosen = setup();
  if (chosen.paper != PageSetup::ownPaper()) // the fields show the size of the paper
    chosen.ownSize = PageSetup::remembered().ownSize;
  QString reason;
  if (chosen.fault().isEmpty() && !chosen.remember(&reason))
    NivraMsg::logWarning(reason);
}

/// The choices scroll up and down only: the room for them is as wide as they are.
bool PageDialog::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
    m_ui->choices->setFixedWidth(m_ui->choicesForm->minimumSizeHint().width() +
                                 style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2);
  return QDialog::eventFilter(watched, event);
}

void PageDialog::done(int result) {
  remember();
  QDialog::done(result);
}
