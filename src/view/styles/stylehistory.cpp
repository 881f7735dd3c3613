#include "styles/stylehistory.h"

#include "styles/stylechange.h"

#include <view/netplot.h>

#include <utility>

/// One step; it was drawn already when it is kept.
class StyleHistory::Command : public QUndoCommand {
public:
  Command(StyleHistory &history, Step before, Step after, const QString &text)
      : QUndoCommand(text)
      , m_history(history)
      , m_before(std::move(before))
      , m_after(std::move(after)) {}

  void undo() override { m_history.draw(m_before); }
  void redo() override {
    if (!std::exchange(m_isNew, false))
      m_history.draw(m_after);
  }

private:
  StyleHistory &m_history;
  Step m_before;
  Step m_after;
  bool m_isNew = true;
};

StyleHistory::StyleHistory(NetPlot &plot)
    : m_plot(plot)
    , m_now{plot.appliedStyle(), QString()} {
  constexpr int MostSteps = 100;
  m_stack.setUndoLimit(MostSteps);
  connect(&m_stack, &QUndoStack::indexChanged, this, &StyleHistory::changed);
}

/// A stack that goes with steps in it tells of them.
StyleHistory::~StyleHistory() {
  m_stack.disconnect(this);
}

void StyleHistory::reset() {
  if (m_isHeld)
    return;
  m_stack.clear();
  m_now = {m_plot.appliedStyle(), QString()};
  m_named = Step();
  emit changed();
}

void StyleHistory::hold() {
  m_isHeld = true;
  emit changed();
}

void StyleHistory::release() {
  m_isHeld = false;
  record();
  emit changed();
}

void StyleHistory::nameBeginning(const QString &style) {
  if (m_stack.count() > 0)
    return;
  m_now.name = style;
  emit changed();
}

void StyleHistory::record(const QString &style) {
  Step after{m_plot.appliedStyle(), style};
  if (style.isEmpty() && after.style == m_named.style)
    after.name = m_named.name; // as it was before something was changed and changed back
  if (after.style == m_now.style) {
    if (!style.isEmpty() && style != m_now.name) {
      m_now.name = style;
      emit changed();
    }
    return;
  }
  const QString text = style.isEmpty() ? StyleChange::text(m_now.style, after.style, m_plot.update().netData())
                                       : tr("style \"%1\"").arg(style);
  if (!m_now.name.isEmpty())
    m_named = m_now;
  const Step before = std::exchange(m_now, after);
  m_stack.push(new Command(*this, before, std::move(after), text));
}

void StyleHistory::rename(const QString &from, const QString &to) {
  if (m_named.name == from)
    m_named.name = to;
  if (m_now.name != from)
    return;
  m_now.name = to;
  emit changed();
}

void StyleHistory::draw(const Step &step) {
  m_now = step;
  m_plot.setStyle(step.style);
  emit drawn();
}
