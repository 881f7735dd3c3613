#include <base/nivramsg.h>

#include <QApplication>

#include <benchmark/benchmark.h>

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  NivraMsg::setInteractive(false);
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // timings of readers would mix in
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
