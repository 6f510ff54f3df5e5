#include "platform/qt/Look.h"

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char **argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VEXT_MONITOR);
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);
  return RUN_ALL_TESTS();
}
