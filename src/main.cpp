#include "Programm.h"
#include "core/Start.h"
#include "core/Store.h"
#include "evaluation/AllLists.h"
#include "platform/CommandLine.h"
#include "platform/DataFolder.h"
#include "platform/DiskWorker.h"
#include "platform/Settings.h"
#include "platform/Umgebung.h"
#include "platform/print/CsvFile.h"
#include "platform/print/HtmlFile.h"
#include "platform/print/PdfFile.h"
#include "platform/print/Printers.h"
#include "platform/qt/Application.h"
#include "platform/qt/BusyPointer.h"
#include "platform/qt/FaultReport.h"
#include "platform/qt/FolderChoice.h"
#include "platform/qt/Look.h"
#include "platform/qt/Preview.h"
#include "platform/qt/RescueQuestion.h"
#include "platform/qt/SystemPrinters.h"
#include "printing/Protokoll.h"
#include "safety/Safety.h"
#include "safety/SafetyFolder.h"

#include <QDir>
#include <QIcon>
#include <QPointer>

#include <chrono>
#include <cstdio>

namespace {

enum Code { Done = 0, NotStarted = 1, Misused = 2 };

void print(FILE *where, const QString &text) {
  std::fputs(text.toLocal8Bit().constData(), where);
}

void printVersion() {
  Umgebung umgebung;
  const Store store(umgebung);
  print(stdout, store.ProgrammName + QLatin1Char(' ') + store.Version + QLatin1Char('\n'));
}

// Answered before anything needs a screen; what belongs to the window system is no mistake yet.
bool isAnswered(int argc, char **argv) {
  QStringList arguments;
  for (int i = 1; i < argc; ++i)
    arguments.append(QString::fromLocal8Bit(argv[i]));
  const auto line = CommandLine::read(arguments);
  if (line.wantsHelp)
    print(stdout, CommandLine::help());
  else if (line.wantsVersion)
    printVersion();
  return line.wantsHelp || line.wantsVersion;
}

void setUp(Application &application) {
  QApplication::setOrganizationName(QStringLiteral("VEXT"));
  QApplication::setApplicationName(QStringLiteral("VEXT"));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/vext.png")));
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);
}

void setUp(Store &store) {
  store.umgebung.beep = [] { QApplication::beep(); };
  store.umgebung.generator.seed(unsigned(std::chrono::system_clock::now().time_since_epoch().count()));
  store.OrganisationName = Settings::organisationName(QDir::currentPath());
  startStore(store);
}

// A failure of the worker becomes a fault in the event loop.
void connectDisk(DiskWorker &worker, Umgebung &umgebung) {
  umgebung.replaceSoon = [&worker](const QString &path, const QByteArray &bytes) { worker.replace(path, bytes); };
  umgebung.syncSoon = [&worker](const QStringList &paths) { worker.sync(paths); };
  worker.failed = [&worker] {
    QMetaObject::invokeMethod(
        qApp, [&worker] { worker.rethrow(); }, Qt::QueuedConnection);
  };
}

// A copy that somebody works in is opened as it is.
QString freshExample() {
  const QString place = DataFolder::examplePlace();
  if (!SafetyFolder(place).isInUse())
    DataFolder::copyExample();
  Settings::noteFolder(QDir(place).canonicalPath(), DataFolder::exampleOrganisation());
  return place;
}

// From here on the data folder is the working directory. False if the operator wants none.
bool enterDataFolder(const CommandLine &line) {
  QString folder = line.folder.isEmpty() ? QDir::currentPath() : line.folder;
  const QString trouble = DataFolder::troubleWith(folder);
  if (!trouble.isEmpty())
    print(stderr, QStringLiteral("VEXT: ") + trouble + QLatin1Char('\n'));
  if (!trouble.isEmpty() || line.choose || (line.folder.isEmpty() && DataFolder::isAccidental(folder)))
    folder = FolderChoice(trouble, freshExample).ask();
  if (folder.isEmpty() || !QDir::setCurrent(folder))
    return false;
  Settings::noteFolder(QDir::currentPath(), line.organisation);
  return true;
}

bool mayRun(Safety &safety) {
  return safety.claim() ||
         askBeforeMenu(
             QStringLiteral("Zweitstart"),
             QStringLiteral("VEXT läuft in diesem Ordner schon einmal.\n\nWer zweimal zugleich in einem Ordner "
                            "arbeitet, überschreibt sich seine Eingaben; das zweite VEXT sichert auch nicht. "
                            "Trotzdem öffnen?"),
             QStringLiteral("Trotzdem öffnen"), QStringLiteral("nein"), true);
}

void answer(const Safety::Offer &offer) {
  if (askBeforeMenu(QStringLiteral("Rettung"), offer.text, offer.accept, offer.decline))
    offer.accepted();
  else
    offer.declined();
}

void offerRescue(Safety &safety) {
  safety.offerLeftBehind(answer);
  if (const auto offer = safety.lostCounts())
    answer(*offer);
}

int run(Store &store, Safety &safety, DiskWorker &worker) {
  if (!mayRun(safety))
    return 0;
  offerRescue(safety);
  setUp(store);
  connectDisk(worker, store.umgebung);
  Preview preview;
  const QString folder = QStringLiteral("Ausdrucke");
  const auto now = QDateTime::currentDateTime;
  Printers printers(systemPrinters, {pdfPrinter(folder, now), preview.printer()},
                    {htmlPrinter(folder, now), csvPrinter(folder, now)});
  preview.offer(printers);
  const auto isOpen = [&store](int race) {
    return race > 0 && store.TabellenRennen == race && store.AktRennen == race;
  };
  preview.offer({QStringLiteral("alle Listen dieses Rennens (HTML)"), isOpen,
                 [&](int) { printAllLists(store, printers, folder, now); }});
  preview.offer({QStringLiteral("Protokoll dieses Rennens"), isOpen, [&](int race) {
                   Druckschicht druck([&](const Recording &done) { printers.print(done, preview.printer()); });
                   Protokoll(store, druck, race);
                 }});
  Programm programm(store, printers);
  // The screens are gone when a fault of the very end is reported.
  safety.screens = [screens = QPointer(&programm)] { return screens ? screens->openWork() : QList<SavedFile>(); };
  safety.waitAtSave = [&worker] {
    const BusyPointer busy;
    worker.wait();
  };
  safety.hint = [&programm](const QString &line) { programm.showSafetyHint(line); };
  safety.journalHint = [&programm](const QString &line) { programm.showJournalHint(line); };
  programm.start();
  safety.start();
  const int code = QApplication::exec();
  safety.finish();
  return code;
}

// Store and safety outlive the screens, so that a fault can still rescue what is in them.
int workInFolder() {
  Umgebung umgebung;
  Store store(umgebung);
  DiskWorker worker;
  Safety safety(store, worker);
  FaultReport::install([&safety] { return safety.rescue(); });
  try {
    return run(store, safety, worker);
  } catch (...) {
    FaultReport::reportCurrent();
  }
}

} // namespace

int main(int argc, char **argv) {
  if (isAnswered(argc, argv))
    return Done;
  Application application(argc, argv);
  const auto line = CommandLine::read(QApplication::arguments().sliced(1));
  if (!line.mistake.isEmpty()) {
    print(stderr, QStringLiteral("VEXT: unbekannt: %1\n\n").arg(line.mistake) + CommandLine::help());
    return Misused;
  }
  setUp(application);
  return enterDataFolder(line) ? workInFolder() : NotStarted;
}
