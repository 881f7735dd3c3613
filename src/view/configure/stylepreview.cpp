#include "configure/stylepreview.h"

#include "configure/colorbutton.h"

#include <view/netplot.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QLineEdit>

namespace {

constexpr int ShortestPause = 250; // ms

} // namespace

StylePreview::StylePreview(NetPlot &plot, QWidget &form, Typed typed)
    : m_plot(plot)
    , m_form(form)
    , m_typed(std::move(typed)) {
  m_pause.setSingleShot(true);
  m_pause.setInterval(ShortestPause);
  connect(&m_pause, &QTimer::timeout, this, &StylePreview::show);
}

void StylePreview::setWanted(bool isWanted) {
  m_isWanted = isWanted;
  if (isWanted)
    touch();
  else
    end();
}

void StylePreview::watch(QWidget &fields) {
  for (const QSpinBox *field : fields.findChildren<QSpinBox *>())
    connect(field, QOverload<int>::of(&QSpinBox::valueChanged), this, &StylePreview::touch);
  for (const QDoubleSpinBox *field : fields.findChildren<QDoubleSpinBox *>())
    connect(field, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &StylePreview::touch);
  for (const QComboBox *field : fields.findChildren<QComboBox *>())
    connect(field, &QComboBox::currentTextChanged, this, &StylePreview::touch);
  for (const QCheckBox *field : fields.findChildren<QCheckBox *>())
    connect(field, &QCheckBox::toggled, this, &StylePreview::touch);
  for (const QLineEdit *field : fields.findChildren<QLineEdit *>())
    connect(field, &QLineEdit::textChanged, this, &StylePreview::touch);
  for (const ColorButton *field : fields.findChildren<ColorButton *>())
    connect(field, &ColorButton::colorChosen, this, &StylePreview::touch);
}

void StylePreview::touch() {
  if (m_isWanted && m_form.isVisible())
    m_pause.start(); // again, as long as it goes on
}

void StylePreview::end() {
  m_pause.stop();
  m_plot.endPreview();
}

void StylePreview::show() {
  constexpr int LongestPause = 1500; // ms
  constexpr int PausePerDrawing = 2;
  const std::optional<DrawnStyle> typed = m_typed();
  if (!m_isWanted || !m_form.isVisible() || !typed)
    return;
  QElapsedTimer timer;
  timer.start();
  m_plot.preview(*typed);
  m_pause.setInterval(qBound(ShortestPause, PausePerDrawing * static_cast<int>(timer.elapsed()), LongestPause));
}
