#include "scenarioset/seriespanel.h"

#include "scenarioset/serieschart.h"
#include "shared/tablefiledialog.h"

#include <base/nivramsg.h>
#include <model/displayformat.h>
#include <model/displayunits.h>
#include <model/titles.h>
#include <model/units.h>
#include <paper/chartfile.h>
#include <tools/elidedlabel.h>

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>

#include <cmath>
#include <scenarioset/scenarioset.h>

SeriesPanel::SeriesPanel(QWidget *parent)
    : QWidget(parent)
    , m_title(new ElidedLabel)
    , m_property(new QComboBox)
    , m_pages(new QStackedWidget)
    , m_chart(new SeriesChart)
    , m_hint(new QLabel)
    , m_figures(new QLabel) {
  m_property->setAccessibleName(tr("Property of the series"));
  m_hint->setAlignment(Qt::AlignCenter);
  m_hint->setWordWrap(true);
  m_figures->setWordWrap(true);
  m_figures->setTextFormat(Qt::PlainText);
  m_figures->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_hint->setTextFormat(Qt::PlainText);
  m_pages->addWidget(m_hint);
  m_pages->addWidget(m_chart);
  auto *head = new QHBoxLayout;
  head->addWidget(m_title, 1);
  head->addWidget(m_property);
  head->addWidget(addButton(tr("Save picture …"), tr("Save the chart as a picture"), &SeriesPanel::askForPicture));
  head->addWidget(addButton(tr("Save series …"), tr("Save the values as a table"), &SeriesPanel::askForSeries));
  auto *column = new QVBoxLayout(this);
  column->addLayout(head);
  column->addWidget(m_pages, 1);
  column->addWidget(m_figures);
  connect(m_property, QOverload<int>::of(&QComboBox::activated), this, [this] {
    m_chosen = property();
    emit propertyChosen();
  });
  connect(m_chart, &SeriesChart::scenarioWanted, this, &SeriesPanel::scenarioWanted);
  showHint(QString());
}

QToolButton *SeriesPanel::addButton(const QString &text, const QString &tip, void (SeriesPanel::*save)()) {
  auto *button = new QToolButton;
  button->setText(text);
  button->setToolTip(tip);
  connect(button, &QToolButton::clicked, this, save);
  m_saving.push_back(button);
  return button;
}

void SeriesPanel::showHint(const QString &hint) {
  m_hint->setText(hint);
  m_pages->setCurrentWidget(m_hint);
  m_figures->hide();
  m_property->setVisible(m_property->count() > 1);
  for (QToolButton *button : m_saving)
    button->setEnabled(false);
}

void SeriesPanel::offer(const QString &element, const QStringList &properties) {
  m_title->setText(element);
  m_property->clear();
  m_property->addItems(properties);
  m_property->setCurrentIndex(qMax(0, m_property->findText(m_chosen)));
  m_property->setVisible(properties.size() > 1);
}

QString SeriesPanel::property() const {
  return m_property->currentText();
}

void SeriesPanel::show(const ScenarioSet &set, Index column, const std::vector<double> &numbers, const NetMetaData &metaData,
                       const QString &present) {
  const QString &property = set.propertyName(column);
  const NetMetaData::Attribute *attribute = metaData.attribute(set.elementType(column), property);
  const DisplayUnits::Shown shown = DisplayUnits::of(attribute);
  const SetFigures figures = set.figures(column);
  const QString unit = Units::written(shown.unit);
  SeriesChart::Series series;
  series.title = attribute == nullptr ? property : Titles::of(*attribute);
  if (!unit.isEmpty())
    series.title += QStringLiteral(" [%1]").arg(unit);
  series.unit = unit;
  series.present = present;
  series.points.reserve(numbers.size());
  for (Index i = 0; i < numbers.size(); ++i) {
    const SetScenario &scenario = set.request().scenarios[i];
    series.points.push_back({scenario.name, scenario.date, shown.toDisplay(numbers[i])});
  }
  const auto number = [&shown](double stored) {
    return DisplayFormat::number(shown.toDisplay(stored));
  };
  series.lines = {{tr("5 %"), shown.toDisplay(figures.quantiles.front())},
                  {tr("mean"), shown.toDisplay(figures.mean)},
                  {tr("95 %"), shown.toDisplay(figures.quantiles.back())}};
  if (figures.count < 2)
    series.lines.clear();
  m_chart->show(series);
  const QStringList said{
      tr("%1 values in %2: minimum %3 (%4), maximum %5 (%6)")
          .arg(figures.count)
          .arg(unit.isEmpty() ? property : unit, number(figures.minimum), set.scenarioName(figures.minimumAt),
               number(figures.maximum), set.scenarioName(figures.maximumAt)),
      tr("mean %1, standard deviation %2")
          .arg(number(figures.mean), DisplayFormat::number(shown.toDisplay(figures.deviation) - shown.toDisplay(0.0))),
      tr("quantiles 5 % %1, 25 % %2, 50 % %3, 75 % %4, 95 % %5")
          .arg(number(figures.quantiles[0]), number(figures.quantiles[1]), number(figures.quantiles[2]),
               number(figures.quantiles[3]), number(figures.quantiles[4]))};
  m_figures->setText(said.join(QStringLiteral("; ")));
  m_figures->show();
  m_pages->setCurrentWidget(m_chart);
  for (QToolButton *button : m_saving)
    button->setEnabled(true);
}

TableExport SeriesPanel::table() const {
  const SeriesChart::Series &series = m_chart->series();
  TableExport table;
  table.headers = QStringList{QStringLiteral("scenario"), QStringLiteral("date"), series.title};
  table.valueColumns = {2};
  table.rows = toQt(series.points.size());
  table.value = [&series](int row, int column) -> QVariant {
    const SeriesChart::Point &point = series.points[fromQt(row)];
    if (column < 2)
      return column == 0 ? point.scenario : point.date.toString(Qt::ISODate);
    return std::isnan(point.value) ? QVariant(QString()) : QVariant(point.value);
  };
  return table;
}

QString SeriesPanel::proposedName() const {
  QString name = m_title->plainText() + QLatin1Char('_') + property();
  for (QChar &character : name) {
    if (!character.isLetterOrNumber())
      character = QLatin1Char('_');
  }
  return name;
}

void SeriesPanel::askForPicture() {
  const QString path = ChartFile::askForPath(this, proposedName() + QStringLiteral(".png"));
  QString reason;
  if (!path.isEmpty() && !m_chart->save(path, &reason))
    NivraMsg::message(NivraMsg::Kind::Warning, reason);
}

void SeriesPanel::askForSeries() {
  TableFileDialog::askAndSave(this, proposedName(),
                              [this](const QString &path, TableExport::Format format, QString *reason) {
                                return table().save(path, format, reason);
                              });
}
