#include <base/onceperturn.h>
#include <support/nivratest.h>

#include <QCoreApplication>
#include <QStringList>

class TestOncePerTurn : public QObject {
  Q_OBJECT

private slots:
  void workIsDoneOnceInOrder();
  void workCanBeHurriedAndCancelled();
};

void TestOncePerTurn::workIsDoneOnceInOrder() {
  QStringList done;
  OncePerTurn draw(OncePerTurn::Stage::Draw, [&] { done.append(QStringLiteral("draw")); });
  OncePerTurn compute(OncePerTurn::Stage::Compute, [&] {
    done.append(QStringLiteral("compute"));
    draw.request();
    draw.flush();
  });
  draw.request(); // before the other: it waits nevertheless
  compute.request();
  draw.request();
  compute.request();
  QVERIFY(done.isEmpty());
  QCoreApplication::processEvents();
  QCOMPARE(done.join(QLatin1Char(' ')), QStringLiteral("compute draw"));
  QCoreApplication::processEvents();
  QCOMPARE(done.size(), 2);
  compute.request();
  QCoreApplication::processEvents();
  QCOMPARE(done.join(QLatin1Char(' ')), QStringLiteral("compute draw compute draw"));
}

void TestOncePerTurn::workCanBeHurriedAndCancelled() {
  int runs = 0;
  OncePerTurn work(OncePerTurn::Stage::Compute, [&runs] { ++runs; });
  work.flush();
  QCOMPARE(runs, 0); // nobody has asked
  work.request();
  work.flush();
  QCOMPARE(runs, 1);
  QCoreApplication::processEvents();
  QCOMPARE(runs, 1);
  work.request();
  work.cancel();
  QCoreApplication::processEvents();
  QCOMPARE(runs, 1);
}

NIVRA_TEST(TestOncePerTurn);
#include "tst_onceperturn.moc"
