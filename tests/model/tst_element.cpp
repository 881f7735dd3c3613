#include "elementexceptions.h"

#include <model/element.h>
#include <model/elements.h>
#include <model/propertycolumns.h>
#include <support/nivratest.h>

#include <atomic>
#include <cmath>

namespace {

QStringList names(const element &e) {
  QStringList list;
  for (const Property &property : e)
    list.append(property.key.name());
  return list;
}

QStringList ids(const elements &collection) {
  QStringList list;
  for (const elements::Entry &entry : collection)
    list.append(entry.name());
  return list;
}

} // namespace

class TestElement : public QObject {
  Q_OBJECT

private slots:
  void textKeepsItsBytes_data();
  void textKeepsItsBytes();
  void numbers_data();
  void numbers();
  void keysAreOneRegardlessOfCase();
  void propertiesStayInAlphabeticalOrder();
  void manyKeysInAnyOrderStaySorted();
  void adverseKeysAreCheap();
  void propertiesOfAReaderAreSortedAndTheLastOfEqualsWins();
  void columnsFindWhatASearchFinds();
  void checkedAccessThrowsTheContents();
  void collectionLooksUpRegardlessOfCase_data();
  void collectionLooksUpRegardlessOfCase();
  void collectionWalksInNameOrder();
  void collectionErasesAndCopies();
};

void TestElement::textKeepsItsBytes_data() {
  QTest::addColumn<QString>("text");
  QTest::newRow("empty") << QString();
  QTest::newRow("longest inside") << QStringLiteral("123456789012345");
  QTest::newRow("shortest outside") << QStringLiteral("1234567890123456");
  QTest::newRow("script") << QStringLiteral("Dr\u00fcsenfj\u00f6r\u00f0ur \u6e29\u5ea6");
  QTest::newRow("zero byte") << QString(QStringLiteral("a") + QChar(0) + QStringLiteral("b"));
  QTest::newRow("long") << QString(100000, QLatin1Char('x'));
}

void TestElement::textKeepsItsBytes() {
  QFETCH(QString, text);
  PropertyText original(text);
  PropertyText copy(original);
  PropertyText moved(std::move(original));
  QCOMPARE(copy.toString(), text);
  QCOMPARE(moved.toString(), text);
  copy = moved;
  QVERIFY(copy == moved);
  moved = PropertyText(QStringLiteral("a text that lies on the heap"));
  QCOMPARE(copy.toString(), text);
}

void TestElement::numbers_data() {
  QTest::addColumn<QString>("text");
  QTest::addColumn<bool>("valid");
  QTest::addColumn<double>("number");
  QTest::newRow("plain") << QStringLiteral("12.5") << true << 12.5;
  QTest::newRow("blanks and sign") << QStringLiteral(" +3e2\t") << true << 300.0;
  QTest::newRow("two signs") << QStringLiteral("+-3") << false << 0.0;
  QTest::newRow("tail") << QStringLiteral("3 bar") << false << 0.0;
  QTest::newRow("decimal comma") << QStringLiteral("3,5") << false << 0.0;
  QTest::newRow("empty") << QString() << false << 0.0;
  QTest::newRow("endless") << QStringLiteral("-1e400") << true << -HUGE_VAL;
  QTest::newRow("vanishing") << QStringLiteral("1e-400") << true << 0.0;
}

void TestElement::numbers() {
  QFETCH(QString, text);
  QFETCH(bool, valid);
  QFETCH(double, number);
  const std::optional<double> parsed = PropertyText(text).toDouble();
  QCOMPARE(parsed.has_value(), valid);
  if (valid)
    QCOMPARE(*parsed, number);
  QCOMPARE(formatNumber(0.1), std::string("0.1"));
  QCOMPARE(formatNumber(1e20), std::string("1e+20"));
}

void TestElement::keysAreOneRegardlessOfCase() {
  element e;
  e.set(QStringLiteral("Length"), QStringLiteral("1"));
  e.set(QStringLiteral("LENGTH"), QStringLiteral("2"));
  QCOMPARE(e.size(), std::size_t(1));
  QCOMPARE(e.value(QStringLiteral("length")), QStringLiteral("2"));
  QCOMPARE(names(e), QStringList{QStringLiteral("Length")});
  e.set(QStringLiteral("\u00c4nderung"), QStringLiteral("3"));
  QCOMPARE(e.value(QStringLiteral("\u00e4NDERUNG")), QStringLiteral("3"));
  QVERIFY(PropertyKey::find("never made").isNull());
  QVERIFY(e.find(QStringLiteral("never made")) == nullptr);
  QVERIFY(e.erase(QStringLiteral("lenGTH")));
  QVERIFY(!e.erase(QStringLiteral("length")));
}

void TestElement::propertiesStayInAlphabeticalOrder() {
  element e;
  for (const char *name : {"type", "B", "a", "vis.layer", "_x", "C", "10", "9"})
    e.set(QLatin1String(name), QString());
  QStringList sorted = names(e);
  std::sort(sorted.begin(), sorted.end(),
            [](const QString &a, const QString &b) { return QString::compare(a, b, Qt::CaseInsensitive) < 0; });
  QCOMPARE(names(e), sorted);
}

// Each new name falls between its predecessors, which uses up the room between two ranks soonest.
void TestElement::manyKeysInAnyOrderStaySorted() {
  element e;
  for (int i = 0; i < 200; ++i)
    e.set(QStringLiteral("dense") + QString(i, QLatin1Char('m')) + QLatin1Char(i % 2 == 0 ? 'a' : 'z'), QString::number(i));
  const QStringList list = names(e);
  QVERIFY(std::is_sorted(list.begin(), list.end()));
  for (int i = 0; i < 200; ++i)
    QCOMPARE(e.value(QStringLiteral("dense") + QString(i, QLatin1Char('m')) + QLatin1Char(i % 2 == 0 ? 'a' : 'z')),
             QString::number(i));
}

// Each falls between the two before it, in one place among all names.
void TestElement::adverseKeysAreCheap() {
  constexpr int Count = 50000;
  std::vector<PropertyKey> keys;
  keys.reserve(Count);
  QElapsedTimer timer;
  timer.start();
  for (int i = 0; i < Count; ++i) // every name comes before the one made last, behind all others
    keys.push_back(PropertyKey::intern(QStringLiteral("adverse%1").arg(Count - i, 6, 10, QLatin1Char('0'))));
  const qint64 adverse = timer.restart();
  for (int i = 0; i < Count; ++i) // each behind all others, where there is always room
    PropertyKey::intern(QStringLiteral("\uffee%1").arg(i, 6, 10, QLatin1Char('0')));
  const qint64 kind = timer.elapsed();
  for (int i = 1; i < Count; ++i)
    QVERIFY(keys[std::size_t(i)] < keys[std::size_t(i - 1)]);
  QVERIFY(keys.front() < PropertyKey::intern("adversf") && PropertyKey::intern("adversd") < keys.back());
  QVERIFY2(adverse < 3 * kind + 50, qPrintable(QStringLiteral("%1 ms, others %2 ms").arg(adverse).arg(kind)));
}

void TestElement::propertiesOfAReaderAreSortedAndTheLastOfEqualsWins() {
  std::vector<Property> read;
  for (const auto &[name, value] : {std::pair("y", "1"), std::pair("X", "2"), std::pair("name", "3"), std::pair("x", "4")})
    read.push_back({PropertyKey::intern(name), PropertyText(std::string_view(value))});
  std::vector<PropertyKey> duplicates;
  const element e = element::fromProperties(read, &duplicates);
  QCOMPARE(e.size(), std::size_t(3));
  QCOMPARE(e.value(QStringLiteral("x")), QStringLiteral("4"));
  QCOMPARE(duplicates.size(), std::size_t(1));
}

// Elements of changing shape, spelling and length, read by several threads.
void TestElement::columnsFindWhatASearchFinds() {
  constexpr int Count = 30000;
  std::vector<element> all(Count);
  for (int i = 0; i < Count; ++i) {
    for (int bit = 0; bit < 8; ++bit) {
      if ((static_cast<unsigned>(i) * 2654435761U >> (bit + 8)) & 1U)
        all[static_cast<std::size_t>(i)].set((i & 64 ? QStringLiteral("Column%1") : QStringLiteral("column%1")).arg(bit),
                                             QString::number(i * 8 + bit));
    }
  }
  std::vector<const element *> sources;
  for (const element &e : all)
    sources.push_back(&e);
  const std::vector<PropertyKey> keys{PropertyKey::find("column3"), PropertyKey(), PropertyKey::find("column0"),
                                      PropertyKey::find("column7"), PropertyKey::find("COLUMN3")};
  std::atomic<int> visited{0};
  std::atomic<int> wrong{0};
  PropertyColumns(keys).forEach(sources, [&](std::size_t i, const PropertyColumns &read) {
    ++visited;
    for (std::size_t column = 0; column < keys.size(); ++column)
      wrong += read[column] == sources[i]->find(keys[column]) ? 0 : 1;
  });
  QCOMPARE(visited.load(), Count);
  QCOMPARE(wrong.load(), 0);
}

void TestElement::checkedAccessThrowsTheContents() {
  element e;
  e.insert(QStringLiteral("name"), QStringLiteral("P1"));
  e.insert(QStringLiteral("Length"), QStringLiteral("5"));
  const QByteArray lines("    e[Length] = 5\n    e[name] = P1\n");
  try {
    e.at(QStringLiteral("width"));
    QFAIL("no exception");
  } catch (const element_out_of_range &error) {
    QCOMPARE(QByteArray(error.what()), "element has no key \"width\". Contents are:\n" + lines);
  }
  try {
    e.insert(QStringLiteral("NAME"), QStringLiteral("P2"));
    QFAIL("no exception");
  } catch (const element_insert_exception &error) {
    QCOMPARE(QByteArray(error.what()), "tried to insert pair (NAME, P2) with already existing key:\n" + lines);
  }
  elements collection(QStringLiteral("edges"));
  collection.insert(QStringLiteral("P1"), e);
  try {
    collection.at(QStringLiteral("P9"));
    QFAIL("no exception");
  } catch (const elements_out_of_range &error) {
    QCOMPARE(QByteArray(error.what()), QByteArray("map edges has no key \"P9\".\n"));
  }
  try {
    element second;
    second.set(QStringLiteral("name"), QStringLiteral("p1"));
    collection.insert(QStringLiteral("p1"), second);
    QFAIL("no exception");
  } catch (const elements_insert_exception &error) {
    QCOMPARE(QByteArray(error.what()), "tried to insert already existing element p1 into edges:\n    e[name] = p1\n"
                                       "Existing element contents:\n" +
                                           lines);
  }
}

void TestElement::collectionLooksUpRegardlessOfCase_data() {
  QTest::addColumn<QString>("stored");
  QTest::addColumn<QString>("asked");
  QTest::addColumn<bool>("found");
  QTest::newRow("ascii") << QStringLiteral("Pipe_1") << QStringLiteral("PIPE_1") << true;
  QTest::newRow("accent") << QStringLiteral("M\u00fcnchen") << QStringLiteral("M\u00dcNCHEN") << true;
  QTest::newRow("kelvin sign") << QStringLiteral("\u212A1") << QStringLiteral("k1") << true;
  QTest::newRow("sharp s is not ss") << QStringLiteral("Stra\u00dfe") << QStringLiteral("strasse") << false;
  QTest::newRow("beyond the first plane") << QString::fromUtf8("\xF0\x90\x90\x80") << QString::fromUtf8("\xF0\x90\x90\xA8")
                                          << true;
  QTest::newRow("long") << QString(300, QLatin1Char('A')) << QString(300, QLatin1Char('a')) << true;
  QTest::newRow("prefix") << QStringLiteral("ab") << QStringLiteral("abc") << false;
}

void TestElement::collectionLooksUpRegardlessOfCase() {
  QFETCH(QString, stored);
  QFETCH(QString, asked);
  QFETCH(bool, found);
  QCOMPARE(QString::compare(stored, asked, Qt::CaseInsensitive) == 0, found); // the rule that the collection follows
  elements collection(QStringLiteral("nodes"));
  collection.insert(stored, element());
  QCOMPARE(collection.find(asked) != nullptr, found);
}

void TestElement::collectionWalksInNameOrder() {
  elements collection(QStringLiteral("nodes"));
  QStringList expected;
  for (const char *name : {"pipe_00000000000000010", "PIPE_00000000000000009", "a", "Z", "\xC3\xA4", "zz", "A1",
                           "\xE2\x84\xAA", "l", "j", "", "pipe_00000000000000010x", "b\xC3\xBC", "bz"}) {
    expected.append(QString::fromUtf8(name));
    collection.insert(expected.last(), element());
    collection.begin(); // the order follows every change
  }
  std::sort(expected.begin(), expected.end(),
            [](const QString &a, const QString &b) { return QString::compare(a, b, Qt::CaseInsensitive) < 0; });
  QCOMPARE(ids(collection), expected);
}

void TestElement::collectionErasesAndCopies() {
  elements collection(QStringLiteral("nodes"));
  for (int i = 0; i < 100; ++i)
    collection.insert(QString::number(i), element());
  elements copy = collection;
  copy.find(QStringLiteral("7"))->set(QStringLiteral("p"), QStringLiteral("1"));
  QVERIFY(!collection.find(QStringLiteral("7"))->contains(QStringLiteral("p")));
  QCOMPARE(collection.eraseIf([](const elements::Entry &entry) { return entry.name().endsWith(QLatin1Char('3')); }),
           std::size_t(10));
  QVERIFY(collection.erase(QStringLiteral("5")));
  QVERIFY(!collection.erase(QStringLiteral("5")));
  QCOMPARE(ids(collection).size(), 89);
  QVERIFY(collection.find(QStringLiteral("33")) == nullptr);
  QCOMPARE(ids(copy).size(), 100);
  const QString added = QStringLiteral("5a");
  collection.insert(added, element()); // after the erasure the order is made anew
  Index index = 0;
  for (const elements::Entry &entry : collection)
    QCOMPARE(entry.index, index++);
  QCOMPARE(index, Index(90));
  QVERIFY(ids(collection).contains(added));
  collection.clear();
  QVERIFY(ids(collection).isEmpty());
}

NIVRA_TEST(TestElement);
#include "tst_element.moc"
