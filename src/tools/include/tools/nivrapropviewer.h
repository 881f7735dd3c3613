#pragma once

#include <model/netdata.h>

#include <QDockWidget>

#include <memory>

class PropertyFilter;
class PropertyModel;

namespace Ui {
class NivraPropViewer;
}

/// The panel that lists every property of one element. Its window title names the element and stands in a line of the
/// panel; the frame and the tab of the dock keep theirs, so that the drawing beside it does not move under the mouse.
class NivraPropViewer : public QDockWidget {
  Q_OBJECT
public:
  explicit NivraPropViewer(const NetData &net, QWidget *parent = nullptr);
  ~NivraPropViewer() override;

  /// Null for none; without effect while the viewer is switched off.
  void showCurrentEleContents(const element *ele);
  void setActive(bool active) { m_isActive = active; }
  void setShowsHidden(bool showsHidden) { m_showsHidden = showsHidden; }
  const QString &elementName() const { return m_elementName; }
  /// Whether somebody answers whyWanted().
  void setExplains(bool explains);

signals:
  void characteristicsWanted(const QStringList &names);
  void whyWanted(const QString &element, const QString &property); ///< it has its value

public slots:
  void on_actionCopy_triggered();
  void on_lineEdit_filter_textChanged(const QString &text);

protected:
  void changeEvent(QEvent *event) override;

private:
  void askWhy();

  std::unique_ptr<Ui::NivraPropViewer> m_ui;
  const NetData &m_net;
  PropertyModel *m_properties;
  PropertyFilter *m_shown;
  QString m_elementName;
  bool m_isActive = true;
  bool m_showsHidden = false;
  bool m_hasFrameTitle = false; ///< which stays from then on
};
