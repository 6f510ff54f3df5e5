// The guided tour: drives the real screens over a copy of the example event, as an operator would, and leaves numbered
// pictures of them. Arguments: the folder of the example and the folder for the pictures.

#include "Programm.h"
#include "core/Start.h"
#include "platform/Faults.h"
#include "platform/print/PdfFile.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Look.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

namespace {

/// What the steps work with.
class Tour {
public:
  Tour(Store &store, Printers &printers, QDir pictures) : m_programm(store, printers), m_pictures(std::move(pictures)) {
    m_programm.start();
  }

  void press(const char *screen, const char *button) { QTest::mouseClick(control(screen, button), Qt::LeftButton); }
  void type(const char *screen, const char *field, const QString &text) {
    QTest::mouseClick(control(screen, field), Qt::LeftButton);
    QTest::keySequence(control(screen, field), QKeySequence(QKeySequence::SelectAll));
    QTest::keyClicks(control(screen, field), text);
  }
  void chooseLine(const char *screen, const char *list, int line) {
    auto *view = static_cast<LineList *>(control(screen, list));
    const QModelIndex index = view->model()->index(line, 0);
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
  }
  void takePicture(const char *screen, const char *name) {
    const QString file = QStringLiteral("%1-%2.png").arg(++m_count, 2, 10, QLatin1Char('0')).arg(QLatin1String(name));
    QApplication::processEvents();
    if (!window(screen)->grab().save(m_pictures.filePath(file)))
      throw Fault(QStringLiteral("Das Bild %1 konnte nicht geschrieben werden.").arg(m_pictures.filePath(file)));
  }

private:
  static QWidget *window(const char *screen) {
    for (auto *widget : QApplication::topLevelWidgets())
      if (widget->objectName() == QLatin1String(screen) && widget->isVisible())
        return widget;
    throw Fault(QStringLiteral("%1 ist nicht offen.").arg(QLatin1String(screen)));
  }
  static QWidget *control(const char *screen, const char *name) {
    if (auto *found = window(screen)->findChild<QWidget *>(QLatin1String(name)))
      return found;
    throw Fault(QStringLiteral("%1 hat kein %2.").arg(QLatin1String(screen), QLatin1String(name)));
  }

  Programm m_programm;
  QDir m_pictures;
  int m_count = 0;
};

void menu(Tour &tour) {
  tour.takePicture("Form1", "menue");
}

void registers(Tour &tour) {
  tour.press("Form1", "Command1");
  tour.takePicture("Form3", "laeufer");
  tour.press("Form3", "Command1");
  tour.press("Form1", "Command2");
  tour.takePicture("Form2", "vereine");
  tour.press("Form2", "Command1");
}

void raceRegister(Tour &tour) {
  tour.press("Form1", "Command3");
  tour.type("Form4", "Text1", QStringLiteral("1"));
  tour.takePicture("Form4", "veranstaltungen");
}

/// Opens a screen of the race register, takes its picture and closes it by the given button.
struct Function {
  const char *button, *screen, *name, *closing;
};
constexpr Function Functions[] = {
    {"Command4", "Form5", "teilnehmerliste", "Command1"},
    {"Command10", "Form11", "mannschaften", "Command4"},
    {"Command13", "Form10", "klassen-regeln", "Command1"},
    {"Command14", "Form14", "auswertungskriterien", "Command1"},
    {"Command15", "Form15", "klassen-reihenfolge", "Command1"},
    {"Command5", "Form6", "startnummern", "Command1"},
    {"Command6", "Form7", "zeitnehmung", "Command3"},
    {"Command8", "Form8", "ausdrucke", "Command1"},
    {"Command11", "Form12", "mannschaftswertung", "Command1"},
    {"Command12", "Form16", "titelblatt", "Command1"},
    {"Command17", "Form20", "cupwertung", "Command3"},
    {"Command18", "Form19", "zeitsumme", "Command1"},
};

void functions(Tour &tour) {
  for (const auto &function : Functions) {
    tour.press("Form4", function.button);
    tour.takePicture(function.screen, function.name);
    tour.press(function.screen, function.closing);
  }
}

void newRace(Tour &tour) {
  tour.press("Form4", "Command3");
  tour.type("Form4", "Text2", QStringLiteral("Kinderskirennen"));
  tour.takePicture("Form4", "neue-veranstaltung");
  tour.press("Form4", "Command7");
}

void deleteRace(Tour &tour) {
  tour.press("Form4", "Command9");
  tour.takePicture("Form9", "veranstaltung-loeschen");
  tour.press("Form9", "Command1");
}

void theEnd(Tour &tour) {
  tour.press("Form4", "Command1");
  tour.press("Form1", "Command4");
}

constexpr void (*Steps[])(Tour &) = {menu, registers, raceRegister, functions, newRace, deleteRace, theEnd};

void copyFiles(const QDir &from, const QDir &to) {
  for (const auto &name : from.entryList(QDir::Files))
    if (!QFile::copy(from.filePath(name), to.filePath(name)))
      throw Fault(QStringLiteral("%1 konnte nicht kopiert werden.").arg(from.filePath(name)));
}

void makeTour(const QDir &example, const QDir &pictures) {
  const QTemporaryDir data;
  copyFiles(example, QDir(data.path()));
  Umgebung umgebung;
  umgebung.heute = [] { return QDate(2026, 1, 15); };
  Store store(umgebung);
  store.OrganisationName = QStringLiteral("Rennbüro");
  store.DatenOrdner = data.path() + QLatin1Char('/');
  storeStarten(store);
  Printers printers([] { return SystemPrinters(); }, {pdfPrinter(pictures.path(), [] {
                      return QDateTime({2026, 1, 15}, {12, 0});
                    })});
  Tour tour(store, printers, pictures);
  for (const auto step : Steps)
    step(tour);
}

} // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);
  const QStringList folders = QApplication::arguments().sliced(1);
  if (folders.size() != 2 || !QDir().mkpath(folders[1])) {
    std::fputs("Aufruf: vext_rundgang <Beispielordner> <Bilderordner>\n", stderr);
    return 2;
  }
  try {
    makeTour(QDir(folders[0]), QDir(folders[1]));
  } catch (const Fault &fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
