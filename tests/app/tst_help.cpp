#include "helppages.h"

#include <support/nivratest.h>

#include <QFile>
#include <QRegularExpression>

class TestHelp : public QObject {
  Q_OBJECT

private slots:
  void pages();
  void everyToolHasAPage_data();
  void everyToolHasAPage();
  void linksAndPicturesLeadSomewhere();
};

void TestHelp::pages() {
  HelpPages help;
  const std::size_t before = help.pages().size();
  help.add(QStringLiteral("x.md"), QStringLiteral("# Title\n\n## One: two\ntext\n```\n## no heading\n```\n"
                                                  "<!-- page: a b -->\n## Three\nmore\n"));
  QCOMPARE(help.pages().size(), before + 2);
  QCOMPARE(help.pages()[before].anchors.first(), QStringLiteral("one-two"));
  QVERIFY(help.pages()[before].markdown.contains(QStringLiteral("no heading")));
  QCOMPARE(help.find(QStringLiteral("b")), int(before) + 1);
  QCOMPARE(help.find(QStringLiteral("c")), -1);
  QCOMPARE(help.follow(QStringLiteral("#three"), QStringLiteral("x.md")), int(before) + 1);
  QCOMPARE(help.follow(QStringLiteral("x.md#nothing"), QString()), -1);
}

void TestHelp::everyToolHasAPage_data() {
  QTest::addColumn<QString>("page");
  for (const char *page : {"tab_cat_search.html", "search", "layers", "categories", "propertyViewer", "elementInformation",
                           "findings", "balance", "messages", "configureDraw", "metadata"})
    QTest::newRow(page) << QString::fromLatin1(page);
}

void TestHelp::everyToolHasAPage() {
  QFETCH(QString, page);
  QVERIFY(HelpPages().find(page) >= 0);
}

void TestHelp::linksAndPicturesLeadSomewhere() {
  const HelpPages help;
  static const QRegularExpression link(QStringLiteral("(!?)\\[[^\\]]*\\]\\(([^)]+)\\)"));
  int links = 0;
  for (const HelpPages::Page &page : help.pages()) {
    for (auto it = link.globalMatch(page.markdown); it.hasNext();) {
      const QRegularExpressionMatch match = it.next();
      const QString target = match.captured(2);
      ++links;
      const bool isThere = match.captured(1).isEmpty()
                               ? target.contains(QStringLiteral("://")) || help.follow(target, page.document) >= 0
                               : QFile::exists(QStringLiteral(NIVRA_SOURCE_DIR "/docs/") + target);
      QVERIFY2(isThere, qPrintable(page.title + QStringLiteral(": ") + target));
    }
  }
  QVERIFY(links > 10);
}

NIVRA_TEST(TestHelp);
#include "tst_help.moc"
