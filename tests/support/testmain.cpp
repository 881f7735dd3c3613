#include <support/nivratest.h>

#include <QApplication>
#include <QStandardPaths>

#include <vector>

namespace {

std::vector<NivraTest::Factory> &factories() {
  static std::vector<NivraTest::Factory> list;
  return list;
}

} // namespace

bool NivraTest::registerTest(Factory factory) {
  factories().push_back(std::move(factory));
  return true;
}

int main(int argc, char **argv) {
  QStandardPaths::setTestModeEnabled(true); // never touch the user's own settings and logs
  qputenv("NIVRA_BATCH", "1");              // a message box would wait for nobody
  QApplication application(argc, argv);
  int failed = 0;
  for (const auto &factory : factories()) {
    const auto test = factory();
    failed += QTest::qExec(test.get(), argc, argv) != 0 ? 1 : 0;
  }
  return failed;
}
