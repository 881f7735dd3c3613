#include "cloudview.h"

#include "cloudmodel.h"
#include "mapplot.h"
#include "pointmover.h"
#include "scenariocloud.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

CloudView::CloudView(std::shared_ptr<ScenarioCloud> cloud, const QString &machine, QWidget *parent)
    : QWidget(parent)
    , m_cloud(std::move(cloud))
    , m_machine(machine)
    , m_plot(new MapPlot)
    , m_model(new CloudModel(this))
    , m_table(new QTableView)
    , m_progress(new QProgressBar)
    , m_again(new QPushButton)
    , m_hint(new QLabel) {
  constexpr int TakingMs = 150;
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(m_plot, 3);
  auto *row = new QHBoxLayout;
  row->addWidget(m_hint, 1);
  row->addWidget(m_progress);
  row->addWidget(m_again);
  column->addLayout(row);
  m_table->setModel(m_model);
  m_table->setAccessibleName(tr("Scenarios"));
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setTabKeyNavigation(false);
  m_table->verticalHeader()->hide();
  m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  column->addWidget(m_table, 2);
  m_hint->setWordWrap(true);
  m_taking.setSingleShot(true);
  m_taking.setInterval(TakingMs);
  connect(&m_taking, &QTimer::timeout, this, &CloudView::take);
  connect(m_cloud.get(), &ScenarioCloud::changed, this, [this] {
    if (!m_taking.isActive())
      m_taking.start();
  });
  connect(m_again, &QPushButton::clicked, this, [this] { m_cloud->isRunning() ? m_cloud->cancel() : m_cloud->start(); });
  connect(m_plot, &MapCanvas::dotClicked, this, &CloudView::scenarioWanted);
  connect(m_table, &QTableView::activated, this, [this](const QModelIndex &index) {
    emit scenarioWanted(index.siblingAtColumn(CloudModel::Name).data().toString());
  });
}

MapCanvas *CloudView::canvas() const {
  return m_plot;
}

void CloudView::show(const TurboCompressor &machine, const std::optional<WorkingPoint> &point) {
  m_hasRatios = false;
  m_plot->show(machine, point);
  m_plot->mover().setHome(std::nullopt); // what it would need there is told beside the machine's own map
  take();
}

void CloudView::show(const PistonCompressor &machine, const std::optional<WorkingPoint> &point) {
  m_hasRatios = true;
  m_plot->show(machine, point);
  m_plot->mover().setHome(std::nullopt); // what it would need there is told beside the machine's own map
  take();
}

void CloudView::take() {
  std::vector<CloudModel::Row> rows;
  std::vector<MapCanvas::Dot> dots;
  rows.reserve(m_cloud->scenarios().size());
  for (const ScenarioCloud::Scenario &scenario : m_cloud->scenarios()) {
    rows.push_back({scenario.name, scenario.fault, scenario.station.pointOf(m_machine)});
    const std::optional<WorkingPoint> &point = rows.back().point;
    if (point && point->isCompressing())
      dots.push_back({{point->flow, m_hasRatios ? point->ratio : point->head}, scenario.name, point->isInside});
  }
  m_model->setRows(std::move(rows));
  m_plot->setDots(std::move(dots));
  tellProgress();
}

void CloudView::tellProgress() {
  const bool isRunning = m_cloud->isRunning();
  const int read = m_model->rowCount();
  m_progress->setVisible(isRunning);
  m_progress->setRange(0, m_cloud->count());
  m_progress->setValue(read);
  m_again->setText(isRunning ? tr("Cancel") : tr("Read again"));
  m_hint->setText(isRunning ? tr("Reading the scenarios of the case …")
                            : tr("%1 of %2 scenarios. A click on a dot, or Return on a row, opens the scenario.")
                                  .arg(read)
                                  .arg(m_cloud->count()));
}
