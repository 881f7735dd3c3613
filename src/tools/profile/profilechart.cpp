#include "profile/profilechart.h"

#include "profile/stationaxis.h"

#include <tools/plaintip.h>

#include <QFontInfo>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QRubberBand>
#include <QToolTip>
#include <QVBoxLayout>
#include <qwt_plot_canvas.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr int DragDistance = 5; // px
constexpr double ReachPixels = 5.0;

/// Lets the mouse through to what lies below it.
class Overlay : public QWidget {
public:
  Overlay(std::function<void(QPainter &)> paint, QWidget *parent)
      : QWidget(parent)
      , m_paint(std::move(paint)) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
  }

protected:
  void paintEvent(QPaintEvent *event) override {
    Q_UNUSED(event)
    QPainter painter(this);
    m_paint(painter);
  }

private:
  std::function<void(QPainter &)> m_paint;
};

} // namespace

ProfileChart::ProfileChart(SymbolPainter symbols, QWidget *parent)
    : QWidget(parent)
    , m_symbols(std::move(symbols))
    , m_overlay(new Overlay([this](QPainter &painter) { paintCursor(painter); }, this))
    , m_band(new QRubberBand(QRubberBand::Rectangle, this)) {
  auto *column = new QVBoxLayout(this);
  constexpr int Right = 10; // px, for what is written at the end of the axis
  column->setContentsMargins(0, 0, Right, 0);
  column->setSpacing(3);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Profile along the path"));
}

ProfileChart::~ProfileChart() = default;

/// What suits a dock; plots of their own would like to be much higher.
QSize ProfileChart::sizeHint() const {
  constexpr QSize Usual(600, 280);
  return Usual.expandedTo(minimumSizeHint());
}

std::vector<QwtPlot *> ProfileChart::plots() const {
  std::vector<QwtPlot *> all(m_panels.begin(), m_panels.end());
  if (m_axisPlot != nullptr)
    all.push_back(m_axisPlot);
  return all;
}

void ProfileChart::show(Content content) {
  const bool isSamePath = m_content.profile != nullptr && content.profile != nullptr && !m_panels.empty() &&
                          m_content.profile->length() == content.profile->length() &&
                          m_content.wayPoints == content.wayPoints;
  for (QwtPlot *plot : plots())
    delete plot;
  m_panels.clear();
  m_axisPlot = nullptr;
  m_axis = nullptr;
  m_content = std::move(content);
  clearCursor();
  if (m_content.profile == nullptr || m_content.profile->isEmpty())
    return;
  for (std::size_t i = 0; i < m_content.quantities.size(); ++i)
    addPanel(i);
  addAxis();
  alignPanels();
  color(ProfileColors::onScreen(palette()));
  if (isSamePath)
    setRange(m_range);
  else
    showWhole();
  m_overlay->raise();
}

void ProfileChart::addPanel(std::size_t number) {
  const QString title = number == 0 && !m_content.overlays.empty() ? m_content.title : QString();
  auto *panel = new ProfilePanel(
      {*m_content.profile, m_content.quantities[number], m_content.hasBounds, title, m_content.overlays}, this);
  panel->canvas()->installEventFilter(this);
  static_cast<QVBoxLayout *>(layout())->addWidget(panel, 1);
  m_panels.push_back(panel);
}

void ProfileChart::addAxis() {
  constexpr double Smaller = 0.9;
  m_axisPlot = new QwtPlot(this);
  m_axisPlot->plotLayout()->setAlignCanvasToScales(true);
  m_axisPlot->enableAxis(QwtPlot::xBottom, false);
  m_axisPlot->axisScaleDraw(QwtPlot::yLeft)->enableComponent(QwtAbstractScaleDraw::Labels, false);
  m_axisPlot->axisScaleDraw(QwtPlot::yLeft)->enableComponent(QwtAbstractScaleDraw::Ticks, false);
  m_axisPlot->axisScaleDraw(QwtPlot::yLeft)->enableComponent(QwtAbstractScaleDraw::Backbone, false);
  static_cast<QwtPlotCanvas *>(m_axisPlot->canvas())->setFrameStyle(QFrame::NoFrame);
  m_axisPlot->canvas()->setMouseTracking(true);
  m_axisPlot->canvas()->installEventFilter(this);
  m_axis = new StationAxis(m_symbols);
  QFont small = font();
  small.setPixelSize(qRound(QFontInfo(small).pixelSize() * Smaller)); // points would grow with the dots of a picture
  m_axis->setFont(small);
  m_axis->setProfile(*m_content.profile, m_content.wayPoints);
  m_axis->attach(m_axisPlot);
  m_axisPlot->setFixedHeight(StationAxis::height(QFontMetrics(small)));
  layout()->addWidget(m_axisPlot);
}

/// Every canvas begins and ends at the same pixel.
void ProfileChart::alignPanels() {
  double widest = 0.0;
  for (ProfilePanel *panel : m_panels) {
    panel->updateAxes();
    const QwtScaleWidget *scale = panel->axisWidget(QwtPlot::yLeft);
    widest = std::max(widest, scale->scaleDraw()->extent(scale->font()));
  }
  for (QwtPlot *plot : plots()) {
    plot->axisScaleDraw(QwtPlot::yLeft)->setMinimumExtent(std::ceil(widest));
    plot->axisWidget(QwtPlot::yLeft)->updateGeometry();
    plot->updateLayout();
  }
}

void ProfileChart::color(const ProfileColors &colors) {
  for (ProfilePanel *panel : m_panels)
    panel->setColors(colors);
  if (m_axisPlot == nullptr)
    return;
  m_axis->setColors(colors);
  m_axisPlot->setCanvasBackground(colors.ground);
  QPalette own = m_axisPlot->palette();
  colors.applyTo(own);
  m_axisPlot->setPalette(own);
}

void ProfileChart::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || m_panels.empty())
    return;
  color(ProfileColors::onScreen(palette()));
  for (QwtPlot *plot : plots())
    plot->replot();
}

void ProfileChart::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  m_overlay->setGeometry(rect());
}

void ProfileChart::setRange(const QwtInterval &range) {
  m_range = range;
  for (QwtPlot *plot : plots()) {
    plot->setAxisScale(QwtPlot::xBottom, range.minValue(), range.maxValue());
    plot->replot();
  }
  m_overlay->update();
}

void ProfileChart::showWhole() {
  constexpr double Margin = 0.01; // of the length, for symbols at the ends
  if (m_content.profile == nullptr)
    return;
  const double length = m_content.profile->length();
  const double beside = length > 0.0 ? Margin * length : 1.0;
  setRange({-beside, length + beside});
}

void ProfileChart::zoom(double factor, double about) {
  constexpr double Smallest = 1e-5; // of the length
  const double length = std::max(m_content.profile->length(), 1e-6);
  const double width = m_range.width() * factor;
  if (width < Smallest * length)
    return;
  if (width > length)
    return showWhole();
  const double share = (about - m_range.minValue()) / m_range.width();
  const double from = about - share * width;
  setRange({from, from + width});
}

double ProfileChart::lengthAt(int x) const {
  return m_axisPlot->invTransform(QwtPlot::xBottom, x);
}

void ProfileChart::point(const QPoint &onCanvas) {
  const double length = lengthAt(onCanvas.x());
  const double reach = std::abs(lengthAt(onCanvas.x() + 1) - length) * ReachPixels;
  const Index row = m_content.profile->rowAt(length, reach);
  if (row == NoIndex)
    return clearCursor(), emit pointed(NoIndex, 0.0);
  const PathProfile::Row &at = m_content.profile->rows()[row];
  const double share = at.to > at.from ? (length - at.from) / (at.to - at.from) : 0.5;
  pointAt(row, std::min(std::max(share, 0.0), 1.0));
}

void ProfileChart::pointAt(Index row, double share) {
  setCursor(row, share);
  emit pointed(row, share);
}

void ProfileChart::setCursor(Index row, double share) {
  m_cursorRow = row;
  m_cursorShare = share;
  m_overlay->update();
}

void ProfileChart::clearCursor() {
  setCursor(NoIndex, 0.0);
}

void ProfileChart::paintCursor(QPainter &painter) const {
  constexpr double Radius = 3.5;
  if (m_cursorRow == NoIndex || m_axisPlot == nullptr)
    return;
  const ProfileColors colors = ProfileColors::onScreen(palette());
  const PathProfile::Row &row = m_content.profile->rows()[m_cursorRow];
  const double length = row.from + m_cursorShare * (row.to - row.from);
  const QRect area = m_axisPlot->canvas()->geometry();
  const double x = m_axisPlot->x() + area.x() + m_axisPlot->transform(QwtPlot::xBottom, length);
  if (x < area.left() || x > area.right() + 1)
    return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colors.ink, 1.0, Qt::DotLine));
  painter.drawLine(QLineF(x, 0.0, x, m_axisPlot->y() + area.bottom()));
  painter.setPen(QPen(colors.ground, 1.0));
  painter.setBrush(colors.own);
  for (const ProfilePanel *panel : m_panels) {
    const double value = m_content.profile->value(row, panel->quantity());
    if (value != NetData::NoValue)
      painter.drawEllipse(QPointF(x, panel->y() + panel->canvas()->y() + panel->transform(QwtPlot::yLeft, value)), Radius,
                          Radius);
  }
}

/// To the next row, and beyond what is seen.
void ProfileChart::step(int by) {
  const int count = toQt(m_content.profile->rows().size());
  const int row = m_cursorRow == NoIndex ? (by > 0 ? 0 : count - 1) : static_cast<int>(m_cursorRow) + by;
  const auto next = toIndex(fromQt(std::min(std::max(row, 0), count - 1)));
  const PathProfile::Row &at = m_content.profile->rows()[next];
  const double middle = (at.from + at.to) / 2.0;
  if (!m_range.contains(middle))
    setRange({middle - m_range.width() / 2.0, middle + m_range.width() / 2.0});
  pointAt(next, 0.5);
}

/// Where the chart has the keys these mean the chart, whatever they mean in the window.
bool ProfileChart::event(QEvent *event) {
  if (event->type() == QEvent::ShortcutOverride && !isEmpty()) {
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::Print) || key->key() == Qt::Key_Home) {
      event->accept();
      return true;
    }
  }
  return QWidget::event(event);
}

void ProfileChart::keyPressEvent(QKeyEvent *event) {
  constexpr double In = 0.7;
  if (isEmpty())
    return QWidget::keyPressEvent(event);
  if (event->matches(QKeySequence::Copy))
    return emit copyWanted();
  if (event->matches(QKeySequence::Print))
    return emit printWanted();
  const double middle = (m_range.minValue() + m_range.maxValue()) / 2.0;
  switch (event->key()) {
  case Qt::Key_Left:
    return step(-1);
  case Qt::Key_Right:
    return step(1);
  case Qt::Key_Home:
    return showWhole();
  case Qt::Key_Plus:
    return zoom(In, middle);
  case Qt::Key_Minus:
    return zoom(1.0 / In, middle);
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (m_cursorRow != NoIndex)
      emit activated(m_cursorRow);
    return;
  default:
    QWidget::keyPressEvent(event);
  }
}

void ProfileChart::dragTo(const QwtPlot &panel, int x) {
  const QRect area = panel.canvas()->geometry().translated(panel.pos());
  const int from = std::min(*m_pressed, x) + area.left();
  const int to = std::max(*m_pressed, x) + area.left();
  m_band->setGeometry(QRect(QPoint(from, 0), QPoint(to, height())));
  m_band->show();
}

bool ProfileChart::mouse(const QwtPlot &panel, const QMouseEvent &event) {
  const int x = event.pos().x();
  switch (event.type()) {
  case QEvent::MouseButtonPress:
    if (event.button() == Qt::LeftButton)
      m_pressed = x;
    setFocus(Qt::MouseFocusReason);
    return false;
  case QEvent::MouseMove:
    if (m_pressed && std::abs(x - *m_pressed) >= DragDistance)
      dragTo(panel, x);
    else if (event.buttons() == Qt::NoButton)
      point(event.pos());
    return false;
  case QEvent::MouseButtonDblClick:
    m_pressed.reset();
    if (event.button() == Qt::LeftButton && m_cursorRow != NoIndex)
      emit activated(m_cursorRow);
    return true;
  case QEvent::MouseButtonRelease: {
    const std::optional<int> pressed = m_pressed;
    m_pressed.reset();
    m_band->hide();
    if (!pressed || event.button() != Qt::LeftButton)
      return false;
    if (std::abs(x - *pressed) >= DragDistance) {
      setRange(QwtInterval(lengthAt(*pressed), lengthAt(x)).normalized());
    } else {
      point(event.pos());
      if (m_cursorRow != NoIndex)
        emit clicked(m_cursorRow);
    }
    return true;
  }
  default:
    return false;
  }
}

bool ProfileChart::eventFilter(QObject *watched, QEvent *event) {
  constexpr double WheelFactor = 0.8;
  const auto *panel = qobject_cast<const QwtPlot *>(watched->parent());
  if (panel == nullptr || m_axisPlot == nullptr)
    return QWidget::eventFilter(watched, event);
  switch (event->type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonRelease:
  case QEvent::MouseButtonDblClick:
  case QEvent::MouseMove:
    return mouse(*panel, *static_cast<QMouseEvent *>(event)) || QWidget::eventFilter(watched, event);
  case QEvent::Leave:
    clearCursor();
    emit pointed(NoIndex, 0.0);
    break;
  case QEvent::Wheel: {
    const auto *wheel = static_cast<QWheelEvent *>(event);
    if (wheel->angleDelta().y() == 0)
      break;
    zoom(wheel->angleDelta().y() > 0 ? WheelFactor : 1.0 / WheelFactor, lengthAt(wheel->position().toPoint().x()));
    return true;
  }
  case QEvent::ToolTip: {
    const auto *help = static_cast<QHelpEvent *>(event);
    const QString names =
        panel == m_axisPlot ? m_axis->namesAt(panel->canvasMap(QwtPlot::xBottom), help->pos().x()) : QString();
    QToolTip::showText(help->globalPos(), names.isEmpty() ? QString() : PlainTip::of(names), this);
    return true;
  }
  default:
    break;
  }
  return QWidget::eventFilter(watched, event);
}

void ProfileChart::paintOnWhite(QPainter &painter, const QRectF &area) {
  if (isEmpty())
    return;
  color(ProfileColors::onWhite());
  QwtPlotRenderer renderer;
  renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
  const double dots = static_cast<double>(painter.device()->logicalDpiY()) / logicalDpiY();
  const double axisHeight = m_axisPlot->height() * dots;
  const double panelHeight = (area.height() - axisHeight) / static_cast<double>(m_panels.size());
  double top = area.top();
  for (QwtPlot *plot : plots()) {
    const double height = plot == m_axisPlot ? axisHeight : panelHeight;
    renderer.render(plot, &painter, QRectF(area.left(), top, area.width(), height));
    top += height;
  }
  color(ProfileColors::onScreen(palette()));
}
