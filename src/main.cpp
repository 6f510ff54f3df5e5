#include "platform/qt/Look.h"

#include <QApplication>

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  Look::apply(application);
  return 0;
}
