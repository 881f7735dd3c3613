#include "residualview.h"

#include "mapquantity.h"
#include "residualmodel.h"
#include "residualplot.h"

#include <QComboBox>
#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>

ResidualView::ResidualView(QWidget *parent)
    : QWidget(parent)
    , m_function(new QComboBox)
    , m_plot(new ResidualPlot)
    , m_model(new ResidualModel(this)) {
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  m_function->addItems({tr("head"), tr("efficiency"), tr("surge line")}); // in the order of FitResiduals::Function
  m_function->setObjectName(QStringLiteral("residualsOf"));
  m_function->setAccessibleName(tr("Function"));
  m_function->setToolTip(tr("The function whose residuals are shown"));
  column->addWidget(m_function);
  column->addWidget(m_plot, 3);
  auto *table = new QTableView;
  table->setModel(m_model);
  table->setAccessibleName(tr("Residuals by speed"));
  table->verticalHeader()->hide();
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  column->addWidget(table, 2);
  connect(m_function, qOverload<int>(&QComboBox::currentIndexChanged), this, &ResidualView::showFunction);
}

MapCanvas *ResidualView::canvas() const {
  return m_plot;
}

void ResidualView::show(const TurboCompressor &machine) {
  m_machine = machine;
  showFunction();
}

void ResidualView::showFunction() {
  constexpr double Percent = 100.0;
  const auto function = static_cast<FitResiduals::Function>(m_function->currentIndex());
  const bool isEfficiency = function == FitResiduals::Function::Efficiency;
  const MapQuantity quantity(isEfficiency ? QStringLiteral("%") : QStringLiteral("kJ/kg"));
  const double factor = isEfficiency ? Percent : 1.0;
  const std::vector<FitResiduals::Point> points = FitResiduals::points(m_machine, function);
  m_plot->show(tr("%1: residuals of the %2\nfunction less measured point").arg(m_machine.name, m_function->currentText()),
               points, quantity, factor);
  m_model->setLines(FitResiduals::lines(points), quantity, factor);
}
