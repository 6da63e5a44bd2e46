// A program that needs Widgets: the sample that the check for them must refuse.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget widget;
  widget.show();
  return 0;
}
