#include <base/finding.h>
#include <base/nivramsg.h>
#include <support/nivratest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QThread>
#include <QTimer>

#include <thread>

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
      thread = QThread::currentThread();
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
  QThread *thread = nullptr;

private:
  QTimer m_timer;
};

class Interactive {
public:
  Interactive() { qunsetenv("NIVRA_BATCH"); }
  ~Interactive() { qputenv("NIVRA_BATCH", "1"); }
  Interactive(const Interactive &) = delete;
  Interactive &operator=(const Interactive &) = delete;
};

} // namespace

class TestNivraMsg : public QObject {
  Q_OBJECT

private slots:
  void switches();
  void batchModeLogs();
  void boxesAnswer();
  void boxesFromOtherThreadsOpenOnTheGuiThread();
  void consoleHearsEveryMessage();
  void recorderIsThreadSafeAndBounded();
  void manyFindingsGiveOneBox();
  void findingsOfBoxesAloneAreLogged();
  void longMessagesScroll();
  void waitingForAnAnswerIsCounted();
};

void TestNivraMsg::switches() {
  QVERIFY(!NivraMsg::isInteractive());
  const Interactive interactive;
  QVERIFY(NivraMsg::isInteractive());
  qputenv("NIVRA_CUSTOM", "1");
  QVERIFY(!NivraMsg::isInteractive());
  qputenv("NIVRA_CUSTOM", "true"); // the comparison is exact
  QVERIFY(NivraMsg::isInteractive());
  qunsetenv("NIVRA_CUSTOM");
  NivraMsg::setInteractive(false);
  QVERIFY(!NivraMsg::isInteractive());
  NivraMsg::setInteractive(true);
}

void TestNivraMsg::batchModeLogs() {
  NivraMsg::Recorder recorder;
  for (const auto kind :
       {NivraMsg::Kind::Information, NivraMsg::Kind::Warning, NivraMsg::Kind::Critical, NivraMsg::Kind::Question})
    QCOMPARE(NivraMsg::message(kind, QStringLiteral("text")), 0);
  QCOMPARE(recorder.lines().size(), 2); // the warning and the critical one
}

void TestNivraMsg::boxesAnswer() {
  const Interactive interactive;
  Clicker clicker(QMessageBox::No);
  QCOMPARE(NivraMsg::message(NivraMsg::Kind::Question, QStringLiteral("Really?")), int(QMessageBox::No));
  QCOMPARE(clicker.title, QStringLiteral("Question"));
  QCOMPARE(clicker.text, QStringLiteral("Really?"));
}

void TestNivraMsg::boxesFromOtherThreadsOpenOnTheGuiThread() {
  const Interactive interactive;
  Clicker clicker(QMessageBox::Ok);
  int answer = 0;
  std::thread worker([&] { answer = NivraMsg::message(NivraMsg::Kind::Warning, QStringLiteral("from a worker")); });
  QTRY_COMPARE(clicker.text, QStringLiteral("from a worker"));
  worker.join();
  QCOMPARE(clicker.thread, qApp->thread());
  QCOMPARE(answer, int(QMessageBox::Ok));
}

void TestNivraMsg::consoleHearsEveryMessage() {
  QStringList heard;
  const auto connection = connect(&NivraMsg::NivraLogger::instance(), &NivraMsg::NivraLogger::msgConsole, this,
                                  [&](const QString &text) { heard.append(text); });
  NivraMsg::log(QStringLiteral("a \"quoted\" text"));
  NivraMsg::debug(QStringLiteral("for the file alone"));
  NivraMsg::logTimeStamp(QStringLiteral("timed"));
  disconnect(connection);
  QCOMPARE(heard.size(), 2);
  QCOMPARE(heard[0], QStringLiteral("a \"quoted\" text"));
  QVERIFY(QRegularExpression(QStringLiteral("^<i>\\d{4}-\\d\\d-\\d\\d, \\d\\d:\\d\\d:\\d\\d: </i>timed$"))
              .match(heard[1])
              .hasMatch());
}

void TestNivraMsg::recorderIsThreadSafeAndBounded() {
  NivraMsg::Recorder recorder;
  const auto work = [] {
    for (int i = 0; i < NivraMsg::Recorder::MaximumLines; ++i)
      NivraMsg::logWarning(QString::number(i));
  };
  std::thread worker(work);
  work();
  worker.join();
  QCOMPARE(recorder.lines().size(), NivraMsg::Recorder::MaximumLines);
  QCOMPARE(recorder.dropped(), NivraMsg::Recorder::MaximumLines);
}

void TestNivraMsg::manyFindingsGiveOneBox() {
  const Interactive interactive;
  Clicker clicker(QMessageBox::Ok);
  Findings findings(3);
  for (Finding &finding : findings) {
    finding.text = QStringLiteral("bad line");
    finding.file = QStringLiteral("/a/b.jsn");
    finding.line = 7;
    finding.box = QStringLiteral("There is a bad line");
  }
  NivraMsg::Recorder recorder;
  report(findings);
  QVERIFY2(clicker.text.startsWith(QStringLiteral("There is a bad line\n\n(and 2 further")), qPrintable(clicker.text));
  QCOMPARE(recorder.lines().value(2), QStringLiteral("bad line (/a/b.jsn:7)"));
}

void TestNivraMsg::findingsOfBoxesAloneAreLogged() {
  const Interactive interactive;
  Clicker clicker(QMessageBox::Ok);
  Findings findings(3);
  findings[0].box = QStringLiteral("first box");
  findings[1].box = QStringLiteral("second box");
  findings[1].file = QStringLiteral("/a/b.jsn");
  findings[2].box = QStringLiteral("third box");
  findings[2].text = QStringLiteral("third line");
  NivraMsg::Recorder recorder;
  report(findings);
  QVERIFY(clicker.text.startsWith(QStringLiteral("first box\n\n(and 2 further")));
  const QStringList said = recorder.lines().filter(QRegularExpression(QStringLiteral("box|line"))); // the toolkit warns too
  QCOMPARE(said, (QStringList{QStringLiteral("first box"), QStringLiteral("second box (/a/b.jsn)"),
                              QStringLiteral("third line")}));
}

void TestNivraMsg::longMessagesScroll() {
  const Interactive interactive;
  Clicker clicker(QMessageBox::Ok);
  QString text = QStringLiteral("Check with findings!");
  for (int i = 0; i < 300; ++i)
    text += QStringLiteral("\nPipe %1 <img src=\"file:///dev/zero\"> has the same name as another element of the network")
                .arg(i);
  QCOMPARE(NivraMsg::message(NivraMsg::Kind::Warning, text), int(QMessageBox::Ok));
  QCOMPARE(clicker.scrolled, text); // whole
  QVERIFY(!clicker.isLabelShown);
  const QSize screen = QGuiApplication::primaryScreen()->availableSize();
  QVERIFY2(clicker.size.height() < screen.height() && clicker.size.width() < screen.width(),
           qPrintable(QStringLiteral("%1 x %2").arg(clicker.size.width()).arg(clicker.size.height())));
  clicker.scrolled = QString();
  NivraMsg::message(NivraMsg::Kind::Warning, QStringLiteral("<b>short</b>"));
  QVERIFY(clicker.scrolled.isNull() && clicker.isLabelShown);
  QCOMPARE(clicker.format, Qt::PlainText);
}

void TestNivraMsg::waitingForAnAnswerIsCounted() {
  const Interactive interactive;
  const qint64 before = NivraMsg::waitedForAnswers();
  QTimer::singleShot(100, qApp, [] { qobject_cast<QMessageBox *>(QApplication::activeModalWidget())->accept(); });
  NivraMsg::information(QStringLiteral("wait"));
  QVERIFY(NivraMsg::waitedForAnswers() - before >= 90);
}

NIVRA_TEST(TestNivraMsg);
#include "tst_nivramsg.moc"
