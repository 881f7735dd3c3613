// The least that a program with a window does: what start-up.sh compares with.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.resize(1200, 900); // as large as the program's, for the toolkit fills its pixels
  window.show();
  return QApplication::exec();
}
