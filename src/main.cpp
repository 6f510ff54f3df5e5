#include "Programm.h"
#include "core/Safety.h"
#include "core/Start.h"
#include "platform/print/PdfFile.h"
#include "platform/qt/Application.h"
#include "platform/qt/FaultReport.h"
#include "platform/qt/Look.h"
#include "platform/qt/Preview.h"
#include "platform/qt/RescueQuestion.h"
#include "platform/qt/SystemPrinters.h"

#include <QIcon>
#include <QSettings>

#include <chrono>

namespace {

QString organisation() {
  const QSettings settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("VEXT"), QStringLiteral("VEXT"));
  return settings.value(QStringLiteral("OrganisationName"), QStringLiteral("Rennbüro")).toString();
}

void setUp(Application &application) {
  QApplication::setOrganizationName(QStringLiteral("VEXT"));
  QApplication::setApplicationName(QStringLiteral("VEXT"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/vext.png")));
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);
}

void setUp(Store &store) {
  store.umgebung.piep = [] { QApplication::beep(); };
  store.umgebung.zufall.seed(unsigned(std::chrono::system_clock::now().time_since_epoch().count()));
  store.OrganisationName = organisation();
  storeStarten(store);
}

void offerRescue(Safety &safety) {
  const auto rescue = safety.findRescue();
  if (!rescue)
    return;
  if (askTakeOver(rescue->text))
    safety.takeOver(*rescue);
  safety.settle();
}

int run(Store &store, Safety &safety) {
  offerRescue(safety);
  setUp(store);
  Preview preview;
  Printers printers(systemPrinters,
                    {pdfPrinter(QStringLiteral("Ausdrucke"), QDateTime::currentDateTime), preview.printer()});
  preview.offer(printers);
  Programm programm(store, printers);
  safety.hint = [&programm](const QString &line) { programm.sicherungHinweis(line); };
  programm.start();
  safety.start();
  const int code = QApplication::exec();
  safety.finish();
  return code;
}

} // namespace

// Store and safety outlive the screens, so that a fault can still rescue what is in them.
int main(int argc, char **argv) {
  Application application(argc, argv);
  Umgebung umgebung;
  Store store(umgebung);
  Safety safety(store);
  FaultReport::install([&safety] { return safety.rescue(); });
  try {
    setUp(application);
    return run(store, safety);
  } catch (...) {
    FaultReport::reportCurrent();
  }
}
