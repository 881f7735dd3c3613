#pragma once

#include <QObject>
#include <QtTest>

#include <functional>
#include <memory>

namespace NivraTest {

using Factory = std::function<std::unique_ptr<QObject>()>;

/// Adds a test class to the executable; NIVRA_TEST calls it before main.
bool registerTest(Factory factory);

} // namespace NivraTest

/// Registers a Qt Test class. Put it once behind the class, followed by the #include of the moc file.
#define NIVRA_TEST(Class)                                                                                                   \
  static const bool registered_##Class =                                                                                    \
      NivraTest::registerTest([]() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); })
