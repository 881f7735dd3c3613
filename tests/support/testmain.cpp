#include <support/nivratest.h>

#include <QApplication>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTextStream>

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

namespace {

/// The arguments without those that choose: "tst_view TestNetPicker" runs a class, "tst_view clickSelectsTheNearest" every
/// class that has such a test, and both may be given.
struct Choice {
  QStringList classes;
  QStringList functions; ///< as Qt Test takes them: with ":row" where a row is asked for
  QStringList switches;
};

bool hasTest(const QObject &test, const QString &function) {
  const QByteArray signature = function.section(QLatin1Char(':'), 0, 0).toLatin1() + "()";
  return test.metaObject()->indexOfMethod(signature) >= 0;
}

QString nameOf(const QObject &test) {
  return QString::fromLatin1(test.metaObject()->className());
}

Choice choiceOf(const QStringList &arguments, const QStringList &classNames) {
  static const QStringList withValue{
      QStringLiteral("-o"),        QStringLiteral("-maxwarnings"),  QStringLiteral("-eventdelay"),
      QStringLiteral("-keydelay"), QStringLiteral("-mousedelay"),   QStringLiteral("-iterations"),
      QStringLiteral("-median"),   QStringLiteral("-minimumvalue"), QStringLiteral("-minimumtotal")};
  Choice choice;
  for (int i = 1; i < arguments.size(); ++i) {
    const QString &argument = arguments.at(i);
    if (argument.startsWith(QLatin1Char('-'))) {
      choice.switches << argument;
      if (withValue.contains(argument) && i + 1 < arguments.size())
        choice.switches << arguments.at(++i);
    } else if (classNames.contains(argument)) {
      choice.classes << argument;
    } else {
      choice.functions << argument;
    }
  }
  return choice;
}

/// "report.xml,junitxml" becomes "report.TestNetPicker.xml,junitxml", so that no class overwrites the report of another.
QStringList withOwnReports(QStringList switches, const QString &className) {
  for (int i = 1; i < switches.size(); ++i) {
    QString &target = switches[i];
    if (switches.at(i - 1) != QLatin1String("-o") || target.startsWith(QLatin1String("-,")))
      continue;
    const int comma = target.lastIndexOf(QLatin1Char(','));
    const int dot = target.lastIndexOf(QLatin1Char('.'), comma);
    target.insert(dot > target.lastIndexOf(QLatin1Char('/'), comma) ? dot : comma, QLatin1Char('.') + className);
  }
  return switches;
}

} // namespace

int main(int argc, char **argv) {
  const QTemporaryDir home; // of this process alone: tests run side by side
  qputenv("HOME", QFile::encodeName(home.path()));
  QStandardPaths::setTestModeEnabled(true); // never touch the user's own settings and logs
  qputenv("NIVRA_BATCH", "1");              // a message box would wait for nobody
  const auto application = makeApplication(argc, argv);

  std::vector<std::unique_ptr<QObject>> tests;
  QStringList classNames;
  for (const auto &factory : factories()) {
    tests.push_back(factory());
    classNames << nameOf(*tests.back());
  }
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.mid(1) == QStringList{QStringLiteral("-classes")}) {
    QTextStream(stdout) << classNames.join(QLatin1Char('\n')) << '\n';
    return 0;
  }

  const Choice choice = choiceOf(arguments, classNames);
  int failed = 0;
  QStringList unmatched = choice.functions;
  for (const auto &test : tests) {
    const QString name = nameOf(*test);
    if (!choice.classes.isEmpty() && !choice.classes.contains(name))
      continue;
    QStringList own{arguments.first()};
    for (const QString &function : choice.functions) {
      if (!hasTest(*test, function))
        continue;
      own << function;
      unmatched.removeAll(function);
    }
    if (!choice.functions.isEmpty() && own.size() == 1)
      continue;
    own << (choice.classes.size() == 1 ? choice.switches : withOwnReports(choice.switches, name));
    failed += QTest::qExec(test.get(), own) != 0 ? 1 : 0;
  }
  for (const QString &function : unmatched)
    QTextStream(stderr) << "There is no test class and no test " << function << '\n';
#ifdef __SANITIZE_ADDRESS__
  // The toolkit frees an animation whose widget is gone with its next step: a field's clear button fades for 160 ms.
  constexpr int LongestFadeMs = 250;
  QTest::qWait(LongestFadeMs);
#endif
  return failed + unmatched.size();
}
