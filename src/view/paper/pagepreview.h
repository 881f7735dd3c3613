#pragma once

#include <paper/pagecontent.h>

#include <QImage>
#include <QTimer>
#include <QWidget>

/// A page as it will be, as large as there is room.
class PagePreview : public QWidget {
  Q_OBJECT
public:
  explicit PagePreview(QWidget *parent = nullptr);

  /// The content must outlive this. Painted when what happens now is over: somebody may still be typing.
  void setPage(PageContent &content, const PageSetup &setup, const PageText &text);
  const QImage &page() const { return m_page; }
  /// At once, if it waits.
  void flush();

  QSize sizeHint() const override { return {560, 480}; }

protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

private:
  void render();

  PageContent *m_content = nullptr;
  PageSetup m_setup;
  PageText m_text;
  QImage m_page;
  QTimer m_waiting;
};
