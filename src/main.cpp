#include "Programm.h"
#include "core/Start.h"
#include "platform/qt/Look.h"

#include <QApplication>
#include <QIcon>
#include <QSettings>

#include <chrono>

namespace {

QString organisation() {
  const QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("VEXT"), QStringLiteral("VEXT"));
  return settings.value(QStringLiteral("OrganisationName"), QStringLiteral("Rennbüro")).toString();
}

} // namespace

int main(int argc, char **argv) {
  QApplication application(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("VEXT"));
  QApplication::setApplicationName(QStringLiteral("VEXT"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/vext.png")));
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);

  Umgebung umgebung;
  umgebung.piep = [] { QApplication::beep(); };
  umgebung.zufall.seed(unsigned(std::chrono::system_clock::now().time_since_epoch().count()));
  Store store(umgebung);
  store.OrganisationName = organisation();
  storeStarten(store);
  Programm programm(store);
  programm.start();
  return QApplication::exec();
}
