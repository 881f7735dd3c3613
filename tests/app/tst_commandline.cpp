#include "commandline.h"

#include <support/nivratest.h>

class TestCommandLine : public QObject {
  Q_OBJECT

private slots:
  void parse_data();
  void parse();
  void styleIsKept();
};

void TestCommandLine::parse_data() {
  using Action = CommandLine::Action;
  QTest::addColumn<QString>("arguments");
  QTest::addColumn<int>("action");
  QTest::addColumn<int>("width");
  const auto row = [](const char *arguments, Action action, int width = 0) {
    QTest::newRow(arguments) << QString::fromLatin1(arguments) << static_cast<int>(action) << width;
  };
  row("", Action::Window);
  row("net.geom.jsn", Action::Window);
  row("--help", Action::Print);
  row("--version net.geom", Action::Print);
  row("--info net.geom", Action::Batch);
  row("--info", Action::Wrong);
  row("--info a b", Action::Wrong);
  row("--export a.png net.geom --width 300", Action::Batch, 300);
  row("--export a.png --info net.geom", Action::Batch);
  row("--export a.png --width 99999 net.geom", Action::Batch, BatchTask::Picture::LargestWidth);
  row("--export a.png --width 0 net.geom", Action::Wrong);
  row("--export a.png --width 300 --scale 2.5 net.geom", Action::Batch, 300);
  row("--export a.png --scale nan net.geom", Action::Wrong);
  row("--export a.png --scale 0 net.geom", Action::Wrong);
  row("--info --scale 2 net.geom", Action::Wrong);
  row("--export a.png --width wide net.geom", Action::Wrong);
  row("--width 300 --info net.geom", Action::Wrong);
  row("--export", Action::Wrong);
  row("--export a.png --color-by q --node-size-by qset --extent 0,-5,10.5,1e3 net.geom", Action::Batch);
  row("--export a.png --extent 0,0,10 net.geom", Action::Wrong);
  row("--export a.png --extent 0,0,0,10 net.geom", Action::Wrong);
  row("--export a.png --extent 0,0,nan,10 net.geom", Action::Wrong);
  row("--info --color-by q net.geom", Action::Wrong);
  row("--colour", Action::Wrong);
  row("--search a --search type=^p net.geom", Action::Batch);
  row("--search a --table p,q --output a.csv --check net.geom", Action::Batch);
  row("--search a", Action::Wrong);
  row("--jobs a.json --output folder", Action::Jobs);
  row("--jobs a.json net.geom", Action::Wrong);
  row("--jobs a.json --check", Action::Wrong);
  row("--language de net.geom", Action::Window);
  row("--export a.png --language=en net.geom", Action::Batch);
  row("--language fr net.geom", Action::Wrong);
  row("--export a.png --style a.ini --style=b.csv -style fusion net.geom", Action::Batch);
  row("--style fusion net.geom", Action::Window); // that of the toolkit
  row("--style a.ini net.geom", Action::Wrong);   // of the drawing, which takes --export
  row("-platform offscreen -style fusion -geometry 300x200+0+0 --stylesheet a.qss net.geom", Action::Window);
  row("-style=windows -reverse", Action::Window);
  row("--info net.geom -platform minimal", Action::Batch);
  row("-platforms offscreen", Action::Wrong);
}

void TestCommandLine::parse() {
  QFETCH(QString, arguments);
  QFETCH(int, action);
  QFETCH(int, width);
  const QStringList list =
      QStringList{QStringLiteral("NivraViewer")} + arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
  const CommandLine line = CommandLine::parse(list);
  QCOMPARE(static_cast<int>(line.action), action);
  if (width > 0)
    QCOMPARE(line.task.pictures.front().width, width);
  if (line.action == CommandLine::Action::Window || line.action == CommandLine::Action::Batch)
    QCOMPARE(line.file, list.contains(QStringLiteral("net.geom")) ? QStringLiteral("net.geom") : line.file);
  if (line.action == CommandLine::Action::Wrong)
    QVERIFY(!line.text.isEmpty());
}

void TestCommandLine::styleIsKept() {
  const auto style = [](const QStringList &arguments) {
    return CommandLine::parse(QStringList{QStringLiteral("NivraViewer")} + arguments).style;
  };
  QCOMPARE(style({QStringLiteral("-style=windows"), QStringLiteral("a.geom")}), QStringLiteral("windows"));
  QCOMPARE(style({QStringLiteral("--style"), QStringLiteral("windows")}), QStringLiteral("windows"));
  QCOMPARE(style({QStringLiteral("-stylesheet"), QStringLiteral("a.qss")}), QString());
  QCOMPARE(style({QStringLiteral("-style")}), QString());
  QCOMPARE(style({QStringLiteral("--check"), QStringLiteral("-style"), QStringLiteral("fusion"), QStringLiteral("a.geom")}),
           QStringLiteral("fusion"));
  const CommandLine drawn = CommandLine::parse(
      {QStringLiteral("NivraViewer"), QStringLiteral("--export"), QStringLiteral("a.png"), QStringLiteral("--style"),
       QStringLiteral("b.ini"), QStringLiteral("-platform"), QStringLiteral("minimal"), QStringLiteral("a.geom")});
  QCOMPARE(drawn.task.pictures.front().styles, QStringList{QStringLiteral("b.ini")});
  QCOMPARE(drawn.style, QString());
  QCOMPARE(drawn.toolkit.size(), 3); // with the program name
}

NIVRA_TEST(TestCommandLine);
#include "tst_commandline.moc"
