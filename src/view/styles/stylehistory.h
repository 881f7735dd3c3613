#pragma once

#include <drawing/drawnstyle.h>

#include <QObject>
#include <QUndoStack>

class NetPlot;

/// Every way in which a person drew the network since it was opened, to go back and forth.
class StyleHistory : public QObject {
  Q_OBJECT
public:
  explicit StyleHistory(NetPlot &plot);
  ~StyleHistory() override;

  /// A way to draw, and the name of the style that it is.
  struct Step {
    DrawnStyle style;
    QString name; ///< empty where it has none, or was changed since
  };

  /// As it is drawn now is the beginning, unless the steps are held.
  void reset();
  /// While the network is read anew the steps stay, and none is taken.
  void hold();
  /// The network is back. Where it is drawn otherwise than before, because its files say so, that is a step.
  void release();
  /// The name of the style that it begins with.
  void nameBeginning(const QString &style);
  /// After it was drawn otherwise; nothing happens when it was not.
  /// \param style that was chosen; empty for a change of another kind
  void record(const QString &style = QString());

  const QString &styleName() const { return m_now.name; }
  /// A style has another name now, or none.
  void rename(const QString &from, const QString &to);
  bool canUndo() const { return !m_isHeld && m_stack.canUndo(); }
  bool canRedo() const { return !m_isHeld && m_stack.canRedo(); }
  QString undoText() const { return m_stack.undoText(); }
  QString redoText() const { return m_stack.redoText(); }
  void undo() { m_stack.undo(); }
  void redo() { m_stack.redo(); }

signals:
  void changed(); ///< what can be undone, or the name of the style
  void drawn();   ///< the network, as it was before or after a step

private:
  class Command;
  void draw(const Step &step);

  NetPlot &m_plot;
  Step m_now;
  Step m_named; ///< the last one that had a name
  QUndoStack m_stack;
  bool m_isHeld = false;
};
