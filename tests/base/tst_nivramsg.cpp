#include <base/finding.h>
#include <base/nivramsg.h>
#include <support/answers.h>
#include <support/nivratest.h>

#include <QThread>

#include <atomic>
#include <thread>

class TestNivraMsg : public QObject {
  Q_OBJECT

private slots:
  void switches();
  void batchModeLogs();
  void boxesOfKinds();
  void boxesFromOtherThreadsAreShownByTheGuiThread();
  void consoleHearsEveryMessage();
  void recorderIsThreadSafeAndBounded();
  void manyFindingsGiveOneBox();
  void findingsOfBoxesAloneAreLogged();
  void waitingForAnAnswerIsCounted();
};

void TestNivraMsg::switches() {
  QVERIFY(!NivraMsg::isInteractive());
  const Answers nobody({});
  QVERIFY(NivraMsg::isInteractive() && NivraMsg::showsBoxes());
  qputenv("NIVRA_CUSTOM", "1");
  QVERIFY(!NivraMsg::isInteractive() && !NivraMsg::showsBoxes());
  qputenv("NIVRA_CUSTOM", "true"); // the comparison is exact
  QVERIFY(NivraMsg::isInteractive());
  qunsetenv("NIVRA_CUSTOM");
  NivraMsg::setInteractive(false);
  QVERIFY(!NivraMsg::isInteractive());
  NivraMsg::setInteractive(true);
  NivraMsg::setBoxSink({});
  QVERIFY(NivraMsg::isInteractive() && !NivraMsg::showsBoxes());
  NivraMsg::Recorder recorder;
  QCOMPARE(NivraMsg::message(NivraMsg::Kind::Question, QStringLiteral("Is anybody there?")), NivraMsg::Answer::None);
  NivraMsg::message(NivraMsg::Kind::Critical, QStringLiteral("nobody"));
  QCOMPARE(recorder.lines(), QStringList{QStringLiteral("nobody")});
}

void TestNivraMsg::batchModeLogs() {
  NivraMsg::Recorder recorder;
  for (const auto kind :
       {NivraMsg::Kind::Information, NivraMsg::Kind::Warning, NivraMsg::Kind::Critical, NivraMsg::Kind::Question})
    QCOMPARE(NivraMsg::message(kind, QStringLiteral("text")), NivraMsg::Answer::None);
  QCOMPARE(recorder.lines().size(), 2); // the warning and the critical one
}

void TestNivraMsg::boxesOfKinds() {
  using NivraMsg::Answer;
  const Answers answers({Answer::No, Answer::Ok});
  QCOMPARE(NivraMsg::message(NivraMsg::Kind::Question, QStringLiteral("Really?")), Answer::No);
  QCOMPARE(NivraMsg::message(NivraMsg::Kind::Warning, QStringLiteral("Beware")), Answer::Ok);
  QCOMPARE(answers.texts(), (QStringList{QStringLiteral("Really?"), QStringLiteral("Beware")}));
  const NivraMsg::Box &question = answers.boxes().front();
  QCOMPARE(question.buttons, (std::vector<Answer>{Answer::Yes, Answer::No, Answer::Cancel}));
  QCOMPARE(question.preferred, Answer::Cancel);
  QCOMPARE(answers.boxes().back().buttons, std::vector<Answer>{Answer::Ok});
}

void TestNivraMsg::boxesFromOtherThreadsAreShownByTheGuiThread() {
  const Answers interactive({});
  const QThread *thread = nullptr;
  NivraMsg::setBoxSink([&thread](const NivraMsg::Box &) {
    thread = QThread::currentThread();
    return NivraMsg::Answer::Ok;
  });
  std::atomic<NivraMsg::Answer> answer{NivraMsg::Answer::None};
  std::thread worker([&] { answer = NivraMsg::message(NivraMsg::Kind::Warning, QStringLiteral("from a worker")); });
  QTRY_VERIFY(answer == NivraMsg::Answer::Ok);
  worker.join();
  QCOMPARE(thread, QCoreApplication::instance()->thread());
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
  const Answers answers({NivraMsg::Answer::Ok});
  Findings findings(3);
  for (Finding &finding : findings) {
    finding.text = QStringLiteral("bad line");
    finding.file = QStringLiteral("/a/b.jsn");
    finding.line = 7;
    finding.box = QStringLiteral("There is a bad line");
  }
  NivraMsg::Recorder recorder;
  report(findings);
  QVERIFY2(answers.texts().value(0).startsWith(QStringLiteral("There is a bad line\n\n(and 2 further")),
           qPrintable(answers.texts().value(0)));
  QCOMPARE(recorder.lines().value(2), QStringLiteral("bad line (/a/b.jsn:7)"));
}

void TestNivraMsg::findingsOfBoxesAloneAreLogged() {
  const Answers answers({NivraMsg::Answer::Ok});
  Findings findings(3);
  findings[0].box = QStringLiteral("first box");
  findings[1].box = QStringLiteral("second box");
  findings[1].file = QStringLiteral("/a/b.jsn");
  findings[2].box = QStringLiteral("third box");
  findings[2].text = QStringLiteral("third line");
  NivraMsg::Recorder recorder;
  report(findings);
  QVERIFY(answers.texts().value(0).startsWith(QStringLiteral("first box\n\n(and 2 further")));
  const QStringList said = recorder.lines().filter(QRegularExpression(QStringLiteral("box|line"))); // the toolkit warns too
  QCOMPARE(said, (QStringList{QStringLiteral("first box"), QStringLiteral("second box (/a/b.jsn)"),
                              QStringLiteral("third line")}));
}

void TestNivraMsg::waitingForAnAnswerIsCounted() {
  constexpr int PersonMs = 100;
  const Answers answers({NivraMsg::Answer::Ok}, PersonMs);
  const qint64 before = NivraMsg::waitedForAnswers();
  NivraMsg::information(QStringLiteral("wait"));
  QVERIFY(NivraMsg::waitedForAnswers() - before >= PersonMs - 10);
}

NIVRA_TEST(TestNivraMsg);
#include "tst_nivramsg.moc"
