#include "profile/profilepanel.h"

#include <QFontInfo>
#include <QPainter>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_scale_engine.h>
#include <qwt_symbol.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double CaptionZ = 100.0;

/// What the panel shows, and below it which colour is which scenario.
class Caption : public QwtPlotItem {
public:
  using Entry = std::pair<QString, QColor>;

  Caption(QString title, const QFont &font)
      : m_title(std::move(title))
      , m_font(font) {
    m_font.setPixelSize(QFontInfo(font).pixelSize()); // else it would grow with the dots of a picture
    setZ(CaptionZ);
  }
  void setEntries(std::vector<Entry> entries) { m_entries = std::move(entries); }
  void setColors(const ProfileColors &colors) { m_colors = colors; }

  void draw(QPainter *painter, const QwtScaleMap &, const QwtScaleMap &, const QRectF &canvas) const override {
    constexpr double Margin = 3.0; // px
    constexpr double Line = 16.0;  // px, long
    constexpr int GroundAlpha = 200;
    painter->save();
    QFont font = m_font;
    font.setBold(true);
    double x = canvas.left() + 2.0 * Margin;
    QColor ground = m_colors.ground;
    ground.setAlpha(GroundAlpha);
    const auto say = [&](const QString &text, const QColor &color) {
      painter->setFont(font);
      const QFontMetricsF metrics(font);
      const QRectF box(x, canvas.top() + Margin, metrics.horizontalAdvance(text) + Margin, metrics.height());
      painter->fillRect(box, ground);
      painter->setPen(color);
      painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text);
      x = box.right() + 3.0 * Margin;
      return box;
    };
    say(m_title, m_colors.ink);
    font.setBold(false);
    for (const auto &[text, color] : m_entries) {
      const double left = x;
      x += Line + Margin;
      const QRectF box = say(text, m_colors.ink);
      painter->fillRect(QRectF(left, box.center().y() - 1.0, Line, 2.0), color);
    }
    painter->restore();
  }

private:
  QString m_title;
  QFont m_font;
  ProfileColors m_colors = ProfileColors::onWhite();
  std::vector<Entry> m_entries;
};

QColor ownColor(const ProfileColors &colors) {
  return colors.own;
}

QColor boundColor(const ProfileColors &colors) {
  return colors.bound;
}

QColor colorOfOther(const ProfileColors &colors, std::size_t number) {
  return colors.others[number % colors.others.size()];
}

} // namespace

ProfilePanel::ProfilePanel(const Content &content, QWidget *parent)
    : QwtPlot(parent)
    , m_quantity(content.quantity) {
  constexpr int SmallestHeight = 50;
  constexpr double Smaller = 0.9;
  setMinimumHeight(SmallestHeight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // all are of one height
  plotLayout()->setAlignCanvasToScales(true);
  enableAxis(xBottom, false);
  static_cast<QwtPlotCanvas *>(canvas())->setFrameStyle(QFrame::NoFrame);
  canvas()->setCursor(Qt::CrossCursor);
  canvas()->setMouseTracking(true);
  QFont font = this->font();
  font.setPointSizeF(font.pointSizeF() * Smaller);
  setAxisFont(yLeft, font);
  auto *grid = new QwtPlotGrid;
  grid->attach(this);
  m_coloring.emplace_back([grid](const ProfileColors &colors) { grid->setMajorPen(colors.grid, 0.0); });
  const PathProfile &profile = content.profile;
  if (content.hasBounds && m_quantity.hasBounds) {
    for (const PropertyKey bound : {m_quantity.lower, m_quantity.upper})
      addCurve(profile.curve(m_quantity, bound), 1.2, Qt::DashLine, boundColor);
  }
  for (std::size_t i = 0; i < content.overlays.size(); ++i)
    addCurve(profile.curve(m_quantity, content.overlays[i].valueOf), 1.5, Qt::SolidLine,
             [i](const ProfileColors &colors) { return colorOfOther(colors, i); });
  addCurve(profile.curve(m_quantity), 2.0, Qt::SolidLine, ownColor);
  if (content.hasBounds)
    addDots(profile.violations(m_quantity), [](const ProfileColors &colors) { return colors.violation; });
  auto *caption = new Caption(m_quantity.title, font);
  caption->attach(this);
  std::vector<QString> names;
  if (!content.title.isEmpty()) {
    names.push_back(content.title);
    for (const ProfileOverlay &overlay : content.overlays)
      names.push_back(overlay.title);
  }
  m_coloring.emplace_back([caption, names](const ProfileColors &colors) {
    caption->setColors(colors);
    std::vector<Caption::Entry> entries;
    for (std::size_t i = 0; i < names.size(); ++i)
      entries.emplace_back(names[i], i == 0 ? colors.own : colorOfOther(colors, i - 1));
    caption->setEntries(std::move(entries));
  });
  scale();
}

void ProfilePanel::addCurve(const PathProfile::Curve &curve, double width, Qt::PenStyle style, const ColorOf &color) {
  QVector<QPointF> single;
  for (const QVector<QPointF> &points : curve) {
    for (const QPointF &point : points) {
      m_lowest = m_hasPoints ? std::min(m_lowest, point.y()) : point.y();
      m_highest = m_hasPoints ? std::max(m_highest, point.y()) : point.y();
      m_hasPoints = true;
    }
    if (points.size() == 1) {
      single.append(points.first());
      continue;
    }
    auto *line = new QwtPlotCurve;
    line->setSamples(points);
    line->setPaintAttribute(QwtPlotCurve::FilterPoints);
    line->setRenderHint(QwtPlotItem::RenderAntialiased);
    line->attach(this);
    m_coloring.emplace_back(
        [line, width, style, color](const ProfileColors &colors) { line->setPen(color(colors), width, style); });
  }
  if (style == Qt::SolidLine)
    addDots(single, color);
}

void ProfilePanel::addDots(const QVector<QPointF> &points, const ColorOf &color) {
  constexpr int Size = 6; // px
  if (points.isEmpty())
    return;
  auto *dots = new QwtPlotCurve;
  dots->setStyle(QwtPlotCurve::NoCurve);
  dots->setSamples(points);
  dots->setRenderHint(QwtPlotItem::RenderAntialiased);
  dots->setZ(dots->z() + 1.0);
  dots->attach(this);
  m_coloring.emplace_back([dots, color](const ProfileColors &colors) {
    dots->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, color(colors), QPen(colors.ground, 1.0), QSize(Size, Size)));
  });
}

/// All of it with room for the caption; what hardly varies is a level line and not the noise of its last digits.
void ProfilePanel::scale() {
  constexpr int Steps = 4;
  constexpr double Smallest = 1e-3; // of the value
  constexpr double CaptionRoom = 0.22;
  if (!m_hasPoints)
    return;
  const double least = std::max(Smallest * std::max(std::abs(m_lowest), std::abs(m_highest)), 1e-9);
  const double missing = std::max(0.0, least - (m_highest - m_lowest));
  double from = m_lowest - missing / 2.0;
  double to = m_highest + missing / 2.0;
  to += CaptionRoom * (to - from);
  double step = 0.0;
  axisScaleEngine(yLeft)->autoScale(Steps, from, to, step);
  setAxisScale(yLeft, from, to, step);
}

void ProfilePanel::setColors(const ProfileColors &colors) {
  QPalette own = palette();
  colors.applyTo(own);
  setPalette(own);
  setCanvasBackground(colors.ground);
  for (const auto &item : m_coloring)
    item(colors);
}
