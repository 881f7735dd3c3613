#include "messagebox.h"

#include "logo.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTextBlock>

#include <algorithm>

namespace {

QString boxTitle(NivraMsg::Kind kind) {
  switch (kind) {
  case NivraMsg::Kind::Information:
    return MessageBox::tr("Information");
  case NivraMsg::Kind::Warning:
    return MessageBox::tr("Warning");
  case NivraMsg::Kind::Critical:
    return MessageBox::tr("Critical");
  case NivraMsg::Kind::Question:
    break;
  }
  return MessageBox::tr("Question");
}

QMessageBox::Icon boxIcon(NivraMsg::Kind kind) {
  switch (kind) {
  case NivraMsg::Kind::Information:
    return QMessageBox::Information;
  case NivraMsg::Kind::Warning:
    return QMessageBox::Warning;
  case NivraMsg::Kind::Critical:
    return QMessageBox::Critical;
  case NivraMsg::Kind::Question:
    break;
  }
  return QMessageBox::Question;
}

bool isLong(const QString &text) {
  constexpr int MostLines = 12;
  constexpr int MostCharacters = 1000;
  return text.size() > MostCharacters || text.count(QLatin1Char('\n')) >= MostLines;
}

/// Shows the box's text in an area that scrolls, as large as the text or half of the screen, whichever is smaller.
void scrollText(QMessageBox &box) {
  auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
  auto *grid = qobject_cast<QGridLayout *>(box.layout());
  if (label == nullptr || grid == nullptr)
    return;
  auto *area = new QPlainTextEdit(box.text());
  area->setReadOnly(true);
  area->setTabChangesFocus(true);
  const QFontMetrics metrics = area->fontMetrics();
  const QSize available = box.screen()->availableSize() / 2;
  const int lines = area->document()->blockCount();
  int widest = 0;
  for (QTextBlock block = area->document()->firstBlock(); block.isValid() && widest < available.width();
       block = block.next())
    widest = std::max(widest, metrics.horizontalAdvance(block.text()));
  constexpr int Smallest = 320; // pixels
  constexpr int Frame = 40;     // with the scroll bar
  area->setFixedSize(qBound(Smallest, widest + Frame, std::max(Smallest, available.width())),
                     qBound(Smallest / 2, (lines + 2) * metrics.lineSpacing(), std::max(Smallest / 2, available.height())));
  int row = 0;
  int column = 0;
  int rows = 0;
  int columns = 0;
  grid->getItemPosition(grid->indexOf(label), &row, &column, &rows, &columns);
  label->hide();
  grid->addWidget(area, row, column, rows, columns);
}

QMessageBox::StandardButton buttonOf(NivraMsg::Answer answer) {
  static_assert(int(NivraMsg::Answer::Ok) == QMessageBox::Ok && int(NivraMsg::Answer::Save) == QMessageBox::Save &&
                int(NivraMsg::Answer::Yes) == QMessageBox::Yes && int(NivraMsg::Answer::No) == QMessageBox::No &&
                int(NivraMsg::Answer::Cancel) == QMessageBox::Cancel &&
                int(NivraMsg::Answer::Discard) == QMessageBox::Discard);
  return static_cast<QMessageBox::StandardButton>(answer);
}

/// The toolkit's own texts of these buttons mostly have no key.
QString buttonText(NivraMsg::Answer answer) {
  switch (answer) {
  case NivraMsg::Answer::Ok:
    return MessageBox::tr("&OK");
  case NivraMsg::Answer::Save:
    return MessageBox::tr("&Save");
  case NivraMsg::Answer::Yes:
    return MessageBox::tr("&Yes");
  case NivraMsg::Answer::No:
    return MessageBox::tr("&No");
  case NivraMsg::Answer::Cancel:
    return MessageBox::tr("&Cancel");
  case NivraMsg::Answer::Discard:
    return MessageBox::tr("&Discard");
  case NivraMsg::Answer::None:
    break;
  }
  return QString();
}

} // namespace

NivraMsg::Answer MessageBox::show(const NivraMsg::Box &content) {
  QWidget *parent = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
  // On the heap, because the parent may be deleted while the box is open.
  const QPointer<QMessageBox> box = new QMessageBox(parent);
  box->setTextFormat(Qt::PlainText); // names of a workspace are in it
  box->setIcon(boxIcon(content.kind));
  box->setWindowTitle(content.title.isEmpty() ? boxTitle(content.kind) : content.title);
  box->setText(content.text);
  box->setWindowIcon(productLogo());
  for (const NivraMsg::Answer answer : content.buttons)
    box->addButton(buttonOf(answer))->setText(buttonText(answer));
  if (content.preferred != NivraMsg::Answer::None)
    box->setDefaultButton(buttonOf(content.preferred));
  if (isLong(content.text))
    scrollText(*box);
  const auto answer = static_cast<NivraMsg::Answer>(box->exec());
  delete box.data();
  return answer;
}
