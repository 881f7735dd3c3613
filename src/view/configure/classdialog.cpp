#include "configure/classdialog.h"

#include "configure/buttoncolumn.h"

#include <base/nivramsg.h>
#include <drawing/classlooks.h>
#include <drawing/colorscale.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTableView>
#include <QVBoxLayout>

ClassDialog::ClassDialog(const PlotSettings &settings, DrawValues::Column values, QWidget *parent)
    : QDialog(parent)
    , m_settings(settings)
    , m_values(std::move(values))
    , m_table(new QTableView(this)) {
  setWindowTitle(tr("Classes of %1").arg(m_values.function.title));
  m_table->setModel(&m_model);
  m_table->setAccessibleName(tr("Classes"));
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setTabKeyNavigation(false);
  m_table->verticalHeader()->hide();
  m_table->installEventFilter(this);
  arrange();
  fill();
  connect(&m_model, &ClassModel::refused, this,
          [](const QString &reason) { NivraMsg::message(NivraMsg::Kind::Warning, reason); });
  connect(m_table, &QTableView::doubleClicked, this, [this](const QModelIndex &cell) {
    if (cell.column() == ClassModel::ColorColumn)
      chooseColor();
  });
  connect(&m_model, &QAbstractItemModel::modelReset, this, &ClassDialog::showButtons);
  connect(&m_model, &QAbstractItemModel::rowsInserted, this, &ClassDialog::showButtons);
  connect(&m_model, &QAbstractItemModel::rowsRemoved, this, &ClassDialog::showButtons);
  showButtons();
}

void ClassDialog::arrange() {
  constexpr QSize Size(470, 340);
  constexpr int ColorWidth = 60; // px
  m_table->setColumnWidth(ClassModel::ColorColumn, ColorWidth);
  m_table->horizontalHeader()->setStretchLastSection(true);
  auto *beside = new ButtonColumn;
  m_add =
      beside->add(QStringLiteral("addClass"), tr("&Add class"), tr("Halve the marked class"), this, &ClassDialog::addClass);
  m_remove = beside->add(QStringLiteral("removeClass"), tr("&Remove class"),
                         tr("Join the marked class with the one below it"), this, &ClassDialog::removeClass);
  beside->add(QStringLiteral("color"), tr("&Colour …"), tr("The colour of the marked class; Del takes that of the ramp"),
              this, &ClassDialog::chooseColor);
  beside->addSpacing(fontMetrics().height());
  for (const auto &[method, text] : {std::pair(PlotSettings::equalClasses(), tr("&Equal intervals")),
                                     {PlotSettings::quantileClasses(), tr("As &many in each")},
                                     {PlotSettings::naturalClasses(), tr("&Natural breaks")}})
    beside->add(method, text, tr("Find the breaks for as many classes anew"), this,
                [this, method = method] { takeBreaks(method); });
  beside->addStretch();
  auto *middle = new QHBoxLayout;
  middle->addWidget(m_table);
  middle->addLayout(beside);
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *whole = new QVBoxLayout(this);
  whole->addLayout(middle);
  whole->addWidget(buttons);
  resize(Size);
}

void ClassDialog::fill() {
  constexpr int RampSteps = 256;
  const auto map = ColorScale::colorMap(m_settings, Aspect::EdgeColor);
  std::vector<QColor> ramp;
  ramp.reserve(RampSteps);
  for (int i = 0; i < RampSteps; ++i)
    ramp.push_back(QColor::fromRgb(map->ramp().color(static_cast<double>(i) / (RampSteps - 1))));
  m_model.setRamp(std::move(ramp));
  constexpr int FirstOffer = 5;
  if (m_settings.colorClasses < 2) {
    m_settings.colorClasses = FirstOffer;
    m_settings.classMethod = PlotSettings::equalClasses();
  }
  const std::vector<double> breaks = ColorScale::breaksOf(m_settings, m_values);
  const std::vector<QColor> colors = ClassLooks::colors(m_settings.classColors);
  const QStringList labels = ClassLooks::labels(m_settings.classLabels);
  std::vector<ClassModel::Class> classes;
  classes.reserve(breaks.size() + 1);
  for (std::size_t i = 0; i <= breaks.size(); ++i)
    classes.push_back(
        {i == 0 ? 0.0 : shown(breaks[i - 1]), i < colors.size() ? colors[i] : QColor(), labels.value(static_cast<int>(i))});
  m_model.setClasses(std::move(classes));
  m_table->setCurrentIndex(m_model.index(0, ClassModel::FromColumn));
}

void ClassDialog::takeBreaks(const QString &method) {
  PlotSettings settings = m_settings;
  settings.classMethod = method;
  settings.colorClasses = std::max(2, m_model.rowCount());
  std::vector<double> breaks = ColorScale::breaksOf(settings, m_values);
  for (double &value : breaks)
    value = shown(value);
  m_model.setBreaks(breaks);
  m_table->setCurrentIndex(m_model.index(0, ClassModel::FromColumn));
}

void ClassDialog::addClass() {
  const int row = m_table->currentIndex().row();
  const QwtInterval &all = m_values.data;
  m_model.split(row, all.isValid() ? shown(all.minValue()) : 0.0, all.isValid() ? shown(all.maxValue()) : 1.0);
  m_table->setCurrentIndex(m_model.index(row + 1, ClassModel::FromColumn));
}

void ClassDialog::removeClass() {
  m_model.remove(m_table->currentIndex().row());
}

void ClassDialog::chooseColor() {
  const QModelIndex cell = m_model.index(m_table->currentIndex().row(), ClassModel::ColorColumn);
  if (!cell.isValid())
    return;
  const QColor chosen = QColorDialog::getColor(m_model.colorAt(cell.row()), this);
  if (chosen.isValid())
    m_model.setData(cell, chosen);
}

void ClassDialog::showButtons() {
  m_add->setEnabled(m_model.rowCount() < ClassModel::MostClasses);
  m_remove->setEnabled(m_model.rowCount() > 1);
}

/// The keys of a cell for colours.
bool ClassDialog::eventFilter(QObject *watched, QEvent *event) {
  if (watched != m_table || event->type() != QEvent::KeyPress || m_table->currentIndex().column() != ClassModel::ColorColumn)
    return QDialog::eventFilter(watched, event);
  switch (static_cast<QKeyEvent *>(event)->key()) {
  case Qt::Key_F2:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    chooseColor();
    return true;
  case Qt::Key_Delete:
    m_model.setData(m_table->currentIndex(), QColor());
    return true;
  default:
    return QDialog::eventFilter(watched, event);
  }
}

PlotSettings ClassDialog::settings() const {
  constexpr int Digits = 12; // what a conversion adds beyond is noise
  PlotSettings settings = m_settings;
  std::vector<QColor> colors;
  QStringList labels;
  QStringList breaks;
  const DrawFunction &function = m_values.function;
  for (const ClassModel::Class &shown : m_model.classes()) {
    if (!colors.empty())
      breaks.append(QString::number(function.toTable(function.toDisplay.inverse(shown.from)), 'g', Digits));
    colors.push_back(shown.color);
    labels.append(shown.label);
  }
  settings.colorClasses = breaks.isEmpty() ? 0 : breaks.size() + 1;
  settings.classMethod = PlotSettings::ownClasses();
  settings.classBreaks = breaks.join(QLatin1Char(';'));
  settings.classColors = ClassLooks::text(colors);
  settings.classLabels = ClassLooks::text(labels);
  return settings;
}
