#include <base/pattern.h>
#include <support/nivratest.h>

#include <QElapsedTimer>

class TestPattern : public QObject {
  Q_OBJECT

private slots:
  void plainWordsMatchAsExpressionsDo_data();
  void plainWordsMatchAsExpressionsDo();
  void oddPatterns();
};

void TestPattern::plainWordsMatchAsExpressionsDo_data() {
  QTest::addColumn<QString>("pattern");
  for (const char *pattern :
       {"p", "^p", "p$", "^p$", "PIPE_1", "^pipe", "_1$", "^a:b;c$", "^a.b$", "a|b", "^^p", "^", "$", "10", "ü"})
    QTest::newRow(pattern) << QString::fromUtf8(pattern);
}

void TestPattern::plainWordsMatchAsExpressionsDo() {
  QFETCH(QString, pattern);
  const Pattern asked(pattern);
  const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
  for (const char *bytes : {"", "p", "P", "pp", "xp", "px", "p\n", "x\np", "p\nx", "Pipe_1", "pipe_11", "a:b;c", "a.b",
                            "axb", "B", "1e10", "Ü", "größe"}) {
    const QString text = QString::fromUtf8(bytes);
    const bool expected = expression.match(text).hasMatch();
    QVERIFY2(asked.matches(text) == expected, bytes);
    QVERIFY2(asked.matches(std::string_view(bytes)) == expected, bytes);
  }
}

void TestPattern::oddPatterns() {
  QVERIFY(Pattern().matches(QString()));
  QVERIFY(Pattern(QString()).matchesAll());
  QVERIFY(!Pattern(QStringLiteral("[")).matches(QStringLiteral("[")));
  QElapsedTimer timer;
  timer.start();
  QVERIFY(!Pattern(QStringLiteral("(a+)+$")).matches(QString(40, QLatin1Char('a')) + QLatin1Char('!')));
  QVERIFY(timer.elapsed() < 10000); // it would take years
}

NIVRA_TEST(TestPattern);
#include "tst_pattern.moc"
