#include "helpwindow.h"

#include "logo.h"

#include <base/index.h>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextBrowser>
#include <QUrl>

#include <algorithm>

namespace {

/// Shows pictures as wide as the text: those of the guide are made for a page.
class Browser : public QTextBrowser {
public:
  QVariant loadResource(int type, const QUrl &name) override {
    if (type != QTextDocument::ImageResource)
      return QTextBrowser::loadResource(type, name);
    constexpr int Widest = 760;
    QImage image(pictureFolder() + name.path().section(QLatin1Char('/'), -1));
    if (image.isNull()) {
      image = QImage(1, 1, QImage::Format_ARGB32); // a guide without its pictures is still a guide
      image.fill(Qt::transparent);
    }
    return image.width() > Widest ? image.scaledToWidth(Widest, Qt::SmoothTransformation) : image;
  }

private:
  /// Beside the program, as it is delivered and as it is built.
  static QString pictureFolder() { return QCoreApplication::applicationDirPath() + QStringLiteral("/docs/images/"); }
};

} // namespace

HelpWindow::HelpWindow(QWidget *parent)
    : QSplitter(parent)
    , m_list(new QListWidget)
    , m_text(new Browser) {
  constexpr QSize Size(1060, 760);
  constexpr int ListWidth = 220;
  setWindowFlag(Qt::Window);
  setWindowTitle(tr("Nivra Reader – Guide"));
  setWindowIcon(productLogo());
  addWidget(m_list);
  addWidget(m_text);
  setStretchFactor(1, 1);
  constexpr QSize Frame(20, 60); // of the window, so that it fits a small screen
  resize(Size.boundedTo(screen()->availableSize() - Frame));
  setSizes({ListWidth, Size.width() - ListWidth});
  for (const HelpPages::Page &page : m_pages.pages())
    m_list->addItem(page.title);
  m_text->setOpenLinks(false);
  m_text->document()->setDocumentMargin(16);
  connect(m_list, &QListWidget::currentRowChanged, this, &HelpWindow::show);
  connect(m_text, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);
}

void HelpWindow::showPage(const QString &name) {
  m_list->setCurrentRow(std::max(0, m_pages.find(name)));
  QSplitter::show();
  raise();
  activateWindow();
}

void HelpWindow::show(int page) {
  if (page < 0)
    return;
  m_text->setMarkdown(m_pages.pages()[fromQt(page)].markdown);
  // Room between paragraphs and lines, which plain Markdown lacks.
  constexpr int LineHeight = 125; // per cent
  QTextCursor cursor(m_text->document());
  for (QTextBlock block = m_text->document()->begin(); block.isValid(); block = block.next()) {
    QTextBlockFormat format = block.blockFormat();
    format.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
    cursor.setPosition(block.position());
    cursor.setBlockFormat(format);
  }
  m_text->moveCursor(QTextCursor::Start);
}

/// Links were read in the colour of before.
void HelpWindow::changeEvent(QEvent *event) {
  QSplitter::changeEvent(event);
  if (event->type() != QEvent::PaletteChange || m_list->currentRow() < 0)
    return;
  const int place = m_text->verticalScrollBar()->value();
  show(m_list->currentRow());
  m_text->verticalScrollBar()->setValue(place);
}

void HelpWindow::follow(const QUrl &link) {
  const int current = m_list->currentRow();
  const int page = m_pages.follow(link.toString(), current < 0 ? QString() : m_pages.pages()[fromQt(current)].document);
  if (page >= 0)
    m_list->setCurrentRow(page);
  else if (!link.scheme().isEmpty())
    QDesktopServices::openUrl(link);
}
