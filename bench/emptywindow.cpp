// The least that a program with a window does: what start-up.sh compares with.

#include <QApplication>
#include <QMainWindow>

int main(int argc, char **argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.show();
  return QApplication::exec();
}
