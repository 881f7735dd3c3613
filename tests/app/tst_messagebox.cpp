#include "messagebox.h"

#include <support/nivratest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

namespace {

/// Presses a button of the box that is about to open, and remembers what the box said.
class Clicker : public QObject {
public:
  explicit Clicker(QMessageBox::StandardButton button) {
    connect(&m_timer, &QTimer::timeout, this, [this, button] {
      auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      if (box == nullptr)
        return;
      title = box->windowTitle();
      text = box->text();
      size = box->size();
      if (const auto *area = box->findChild<QPlainTextEdit *>())
        scrolled = area->toPlainText();
      if (const auto *label = box->findChild<QLabel *>(QStringLiteral("qt_msgbox_label")))
        isLabelShown = label->isVisible();
      format = box->textFormat();
      buttons = box->standardButtons();
      isCancelPreferred = box->defaultButton() == box->button(QMessageBox::Cancel);
      box->button(button)->click();
    });
    m_timer.start(5);
  }

  QString title;
  QString text;
  QString scrolled; ///< text of the area, null without one
  QSize size;
  bool isLabelShown = false;
  Qt::TextFormat format = Qt::AutoText;
  QMessageBox::StandardButtons buttons;
  bool isCancelPreferred = false;

private:
  QTimer m_timer;
};

} // namespace

Q_DECLARE_METATYPE(NivraMsg::Answer)

/// The boxes of the toolkit, as a person sees them.
class TestMessageBox : public QObject {
  Q_OBJECT

private slots:
  void boxesAnswer();
  void ownTitleAndButtons();
  void keysAnswer_data();
  void keysAnswer();
  void longMessagesScroll();
};

void TestMessageBox::boxesAnswer() {
  NivraMsg::setBoxSink(MessageBox::show);
  qunsetenv("NIVRA_BATCH");
  Clicker clicker(QMessageBox::No);
  QCOMPARE(NivraMsg::message(NivraMsg::Kind::Question, QStringLiteral("Really?")), NivraMsg::Answer::No);
  NivraMsg::setBoxSink({});
  qputenv("NIVRA_BATCH", "1");
  QCOMPARE(clicker.title, QStringLiteral("Question"));
  QCOMPARE(clicker.text, QStringLiteral("Really?"));
  QCOMPARE(clicker.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
  QVERIFY(clicker.isCancelPreferred);
}

void TestMessageBox::ownTitleAndButtons() {
  using NivraMsg::Answer;
  Clicker clicker(QMessageBox::Discard);
  const NivraMsg::Box box{NivraMsg::Kind::Question,
                          QStringLiteral("Save them?"),
                          QStringLiteral("Changes"),
                          {Answer::Save, Answer::Discard, Answer::Cancel}};
  QCOMPARE(MessageBox::show(box), Answer::Discard);
  QCOMPARE(clicker.title, QStringLiteral("Changes"));
  QCOMPARE(clicker.buttons, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
}

void TestMessageBox::keysAnswer_data() {
  QTest::addColumn<Qt::Key>("key");
  QTest::addColumn<NivraMsg::Answer>("answer");
  QTest::newRow("Save") << Qt::Key_S << NivraMsg::Answer::Save;
  QTest::newRow("Discard") << Qt::Key_D << NivraMsg::Answer::Discard;
  QTest::newRow("Cancel") << Qt::Key_C << NivraMsg::Answer::Cancel;
  QTest::newRow("Yes") << Qt::Key_Y << NivraMsg::Answer::Yes;
  QTest::newRow("No") << Qt::Key_N << NivraMsg::Answer::No;
}

/// With Alt, as in menus.
void TestMessageBox::keysAnswer() {
  using NivraMsg::Answer;
  QFETCH(Qt::Key, key);
  QFETCH(Answer, answer);
  QTimer timer;
  connect(&timer, &QTimer::timeout, this, [key] {
    if (QWidget *box = QApplication::activeModalWidget())
      QTest::keyClick(box, key, Qt::AltModifier);
  });
  timer.start(5);
  QTimer deadline; // when no key answers
  deadline.setSingleShot(true);
  connect(&deadline, &QTimer::timeout, this, [] {
    if (QWidget *box = QApplication::activeModalWidget())
      box->close();
  });
  deadline.start(2000);
  const NivraMsg::Box box{NivraMsg::Kind::Question,
                          QStringLiteral("Save them?"),
                          QStringLiteral("Changes"),
                          {Answer::Save, Answer::Discard, Answer::Yes, Answer::No, Answer::Cancel},
                          answer == Answer::Save ? Answer::Discard : Answer::Save};
  QElapsedTimer waited;
  waited.start();
  QCOMPARE(MessageBox::show(box), answer);
  QVERIFY(waited.elapsed() < 2000);
}

void TestMessageBox::longMessagesScroll() {
  Clicker clicker(QMessageBox::Ok);
  QString text = QStringLiteral("Check with findings!");
  for (int i = 0; i < 300; ++i)
    text += QStringLiteral("\nPipe %1 <img src=\"file:///dev/zero\"> has the same name as another element of the network")
                .arg(i);
  QCOMPARE(MessageBox::show({NivraMsg::Kind::Warning, text}), NivraMsg::Answer::Ok);
  QCOMPARE(clicker.scrolled, text); // whole
  QVERIFY(!clicker.isLabelShown);
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  QVERIFY2(clicker.size.height() < screen.height() && clicker.size.width() < screen.width(),
           qPrintable(QStringLiteral("%1 x %2").arg(clicker.size.width()).arg(clicker.size.height())));
  clicker.scrolled = QString();
  MessageBox::show({NivraMsg::Kind::Warning, QStringLiteral("<b>short</b>")});
  QVERIFY(clicker.scrolled.isNull() && clicker.isLabelShown);
  QCOMPARE(clicker.format, Qt::PlainText);
}

NIVRA_TEST(TestMessageBox);
#include "tst_messagebox.moc"
