#include "scenarios/referenceview.h"

#include <base/finding.h>
#include <drawing/drawfunctions.h>
#include <drawing/drawnstyle.h>
#include <io/nivraworkspace.h>
#include <model/comparison.h>
#include <view/netplot.h>
#include <view/netviscontrol.h>

#include <QScopedValueRollback>

#include <cmath>

namespace {

/// Canvases of other shapes show the same when middle and height agree.
bool isSame(const QRectF &a, const QRectF &b) {
  constexpr double Tolerance = 1e-3; // of the height
  const double allowed = std::abs(a.height()) * Tolerance;
  const QPointF apart = a.center() - b.center();
  return std::abs(apart.x()) <= allowed && std::abs(apart.y()) <= allowed && std::abs(a.height() - b.height()) <= allowed;
}

/// By middle and height, whatever shape the canvas has.
void bringInto(NetPlot &plot, const QRectF &area) {
  constexpr double Narrow = 1e-3; // of the height: it becomes as broad as the canvas
  if (isSame(plot.visibleArea(), area))
    return;
  QRectF wanted = area;
  wanted.setWidth(area.height() * Narrow);
  wanted.moveCenter(area.center());
  plot.showArea(wanted);
}

} // namespace

ReferenceView::ReferenceView(NetVisControl &first, QWidget *parent)
    : QDockWidget(tr("Reference"), parent)
    , m_first(first)
    , m_control(std::make_unique<NetVisControl>(m_net, QString(), logFinding))
    , m_style(OncePerTurn::Stage::Draw, [this] { takeStyle(); })
    , m_following(OncePerTurn::Stage::Draw, [this] { followView(); })
    , m_leading(OncePerTurn::Stage::Draw, [this] { leadView(); }) {
  setObjectName(QStringLiteral("referenceView"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWidget(m_control->plot());
}

/// The first drawing may be gone already.
ReferenceView::~ReferenceView() {
  m_control->plot()->disconnect(this);
  m_control->disconnect(this);
}

void ReferenceView::draw(const NivraWorkspace &workspace, const QString &reference) {
  setWindowTitle(tr("Reference: %1").arg(reference));
  m_control->setCaption(tr("reference: %1").arg(reference));
  m_control->showNetData(workspace.filePath(QStringLiteral("plotsettings.ini")));
  takeStyle();
  m_control->picker()->setSelection(m_first.net().selection());
  connectDrawings();
  m_following.request();
}

void ReferenceView::connectDrawings() {
  NetPlot *first = m_first.plot();
  NetPlot *own = m_control->plot();
  connect(first, &NetPlot::viewChanged, this, [this] { follow(m_following); });
  connect(own, &NetPlot::viewChanged, this, [this] { follow(m_leading); });
  connect(&m_first, &NetVisControl::selectionChanged, this,
          [this] { m_control->picker()->setSelection(m_first.net().selection()); });
  connect(m_control.get(), &NetVisControl::selectionChanged, this,
          [this] { m_first.picker()->setSelection(m_net.selection()); });
  connect(&m_first, &NetVisControl::currentElementChanged, m_control.get(), &NetVisControl::setCurrentElement);
  connect(m_control.get(), &NetVisControl::elementAction, this,
          [this](const QString &name, NetPicker::EleAction action) { emit m_first.elementAction(name, action); });
  connect(&m_first, &NetVisControl::hiddenLayersChanged, this, [this] { m_style.request(); });
  connect(&first->update(), &NetUpdate::scalesChanged, this, [this] { m_style.request(); });
}

/// Values that are compared by eye have the colours that they have in the first drawing. Where that shows differences, the
/// reference shows what these were taken of.
void ReferenceView::takeStyle() {
  NetPlot &first = *m_first.plot();
  DrawnStyle style = first.appliedStyle();
  for (const Aspect aspect : AllAspects) {
    PlotSettings::Function &function = style.settings.functions[aspect];
    const QString name = DrawFunction::propertyName(function.name);
    const QwtInterval &range = first.update().values().of(aspect).range;
    if (Comparison::kindOf(name) != Comparison::Kind::None) {
      function.name = Comparison::compared(name);
      function.minimum = PlotSettings::OpenMinimum;
      function.maximum = PlotSettings::OpenMaximum;
    } else if (range.isValid() && range.width() > 0.0) {
      function.minimum = range.minValue();
      function.maximum = range.maxValue();
    }
  }
  m_control->setHiddenLayers(style.settings.layerProp, first.update().layers().hidden());
  m_control->plot()->setStyle(style);
}

/// What one drawing does because of the other is no reason for that to move.
void ReferenceView::follow(OncePerTurn &work) const {
  if (!m_isLinking)
    work.request();
}

void ReferenceView::followView() {
  const QScopedValueRollback<bool> linking(m_isLinking, true);
  bringInto(*m_control->plot(), m_first.plot()->visibleArea());
}

void ReferenceView::leadView() {
  const QScopedValueRollback<bool> linking(m_isLinking, true);
  bringInto(*m_first.plot(), m_control->plot()->visibleArea());
}
