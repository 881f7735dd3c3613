#include <support/nivratest.h>

#include <QApplication>
#include <QStandardPaths>

#include <memory>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace {

std::vector<NivraTest::Factory> &factories() {
  static std::vector<NivraTest::Factory> list;
  return list;
}

/// The toolkit's offscreen platform never frees its screen, which is no leak of ours.
std::unique_ptr<QApplication> makeApplication(int &argc, char **argv) {
#ifdef __SANITIZE_ADDRESS__
  const __lsan::ScopedDisabler disabler;
#endif
  return std::make_unique<QApplication>(argc, argv);
}

} // namespace

bool NivraTest::registerTest(Factory factory) {
  factories().push_back(std::move(factory));
  return true;
}

int main(int argc, char **argv) {
  QStandardPaths::setTestModeEnabled(true); // never touch the user's own settings and logs
  qputenv("NIVRA_BATCH", "1");              // a message box would wait for nobody
  const auto application = makeApplication(argc, argv);
  int failed = 0;
  for (const auto &factory : factories()) {
    const auto test = factory();
    failed += QTest::qExec(test.get(), argc, argv) != 0 ? 1 : 0;
  }
  return failed;
}
