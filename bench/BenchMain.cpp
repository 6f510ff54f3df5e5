// The start of every measurement: off-screen, with the look of the program and a place of its own for safety copies.

#include "platform/qt/Look.h"

#include <QApplication>
#include <QStandardPaths>

#include <benchmark/benchmark.h>

int main(int argc, char **argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QStandardPaths::setTestModeEnabled(true);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
