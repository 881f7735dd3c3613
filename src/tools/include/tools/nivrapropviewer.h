#pragma once

#include <model/netdata.h>

#include <QDockWidget>

#include <memory>

namespace Ui {
class NivraPropViewer;
}

/// The panel that lists every property of one element.
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

public slots:
  void on_actionCopy_triggered();
  void on_lineEdit_filter_textChanged(const QString &text);

protected:
  void showEvent(QShowEvent *event) override;

private:
  std::unique_ptr<Ui::NivraPropViewer> m_ui;
  const NetData &m_net;
  QString m_elementName;
  bool m_isActive = true;
  bool m_showsHidden = false;
};
