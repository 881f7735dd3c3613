#pragma once

#include <QFrame>

#include <memory>

class QTextDocument;

/// A label of the drawing, which may be HTML of a workspace: nothing that it names is loaded, no link leads anywhere.
class PlotLabelView : public QFrame {
  Q_OBJECT
public:
  explicit PlotLabelView(QWidget *parent = nullptr);
  ~PlotLabelView() override;

  /// \param background invalid for none
  void setLabel(const QString &html, const QFont &font, const QColor &color, const QColor &background = QColor());
  void clear();
  QString plainText() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return {0, 0}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

protected:
  void paintEvent(QPaintEvent *event) override;

private:
  std::unique_ptr<QTextDocument> m_document;
  QColor m_color;
  QColor m_background;
};
