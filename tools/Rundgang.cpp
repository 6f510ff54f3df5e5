// The guided tour: drives the real screens over a copy of the example event, as an operator would, and leaves numbered
// pictures of them and the printed documents. Arguments: the folder of the example and the folder for the pictures.

#include "Programm.h"
#include "core/Start.h"
#include "person/Person.h"
#include "platform/Faults.h"
#include "platform/print/PdfFile.h"
#include "platform/qt/FolderChoice.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Look.h"
#include "platform/qt/Preview.h"

#include <QDir>
#include <QIcon>
#include <QLabel>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

namespace {

/// What the steps work with.
class Tour {
public:
  Tour(Store &store, const QDir &pictures) : m_programm(store, m_printers), m_pictures(pictures) {
    m_preview.offer(m_printers);
    m_programm.start();
  }

  void press(const char *screen, const char *control) { Person::press(find(screen, control)); }
  void type(const char *screen, const char *field, const QString &text) { Person::type(find(screen, field), text); }
  void enter(const char *screen, const char *field) { QTest::keyClick(find(screen, field), Qt::Key_Return); }
  void closeWindow(const char *screen) { window(screen)->close(); }
  /// Position of the first line that contains the text.
  int lineWith(const char *screen, const char *list, const QString &text) {
    const QStringList &lines = find<LineList>(screen, list)->lines();
    for (int line = 0; line < lines.size(); ++line)
      if (lines[line].contains(text))
        return line;
    throw Fault(QStringLiteral("%1 steht nicht in %2.").arg(text, QLatin1String(list)));
  }
  void chooseLine(const char *screen, const char *list, int line) {
    Person::chooseLine(find<LineList>(screen, list), line);
  }
  void doubleClickLine(const char *screen, const char *list, int line) {
    Person::doubleClickLine(find<LineList>(screen, list), line);
  }
  /// The visible members of a control group, in order.
  static QList<QWidget *> members(const char *screen, const char *group, int count) {
    QList<QWidget *> found;
    for (int i = 0; i < count; ++i)
      if (auto *member = window(screen)->findChild<QWidget *>(QStringLiteral("%1_%2").arg(QLatin1String(group)).arg(i));
          member && member->isVisible())
        found.append(member);
    return found;
  }
  void openRace(int number) { type("Form4", "Text1", QString::number(number)); }
  void takePicture(const char *screen, const char *name) {
    const QString file = QStringLiteral("%1-%2-%3.png")
                             .arg(++m_count, 2, 10, QLatin1Char('0'))
                             .arg(QLatin1String(screen), QLatin1String(name));
    nameFolder(*window(screen));
    QApplication::processEvents();
    m_programm.hints().renew();
    if (!window(screen)->grab().save(m_pictures.filePath(file)))
      throw Fault(QStringLiteral("Das Bild %1 konnte nicht geschrieben werden.").arg(m_pictures.filePath(file)));
  }

private:
  // The folder of the tour has another name each time, and the pictures are to be the same.
  static void nameFolder(const QWidget &screen) {
    for (auto *label : screen.findChildren<QLabel *>())
      if (const QString text = label->text().remove(QChar(0x200B)); text.contains(QDir::currentPath()))
        label->setText(QString(text).replace(QDir::currentPath(), QStringLiteral("/home/rennen/VEXT")));
  }
  static QWidget *window(const char *screen) {
    if (auto *found = Person::window(QLatin1String(screen)))
      return found;
    throw Fault(QStringLiteral("%1 ist nicht offen.").arg(QLatin1String(screen)));
  }
  template <typename Control = QWidget> static Control *find(const char *screen, const char *name) {
    if (auto *found = Person::find<Control>(window(screen), QLatin1String(name)))
      return found;
    throw Fault(QStringLiteral("%1 hat kein %2.").arg(QLatin1String(screen), QLatin1String(name)));
  }

  Preview m_preview;
  Printers m_printers{
      [] { return SystemPrinters(); },
      {pdfPrinter(QStringLiteral("Ausdrucke"), [] { return QDateTime(QDate(2026, 1, 15), QTime(12, 0)); }),
       m_preview.printer()}};
  Programm m_programm;
  QDir m_pictures;
  int m_count = 0;
};

// The question before the menu, as it looks at the very first start.
void choiceOfFolder(Tour &tour) {
  FolderChoice choice({}, [] { return QString(); });
  choice.show();
  tour.takePicture("Mappenwahl", "mappenwahl");
}

void menu(Tour &tour) {
  tour.takePicture("Form1", "menue");
}

void clubs(Tour &tour) {
  tour.press("Form1", "Command2");
  tour.chooseLine("Form2", "List1", 3);
  tour.takePicture("Form2", "vereine");
  tour.press("Form2", "Command1");
}

void athletes(Tour &tour) {
  tour.press("Form1", "Command1");
  tour.chooseLine("Form3", "List1", 12);
  tour.takePicture("Form3", "laeufer");
  tour.press("Form3", "Command1");
}

void raceRegister(Tour &tour) {
  tour.press("Form1", "Command3");
  tour.takePicture("Form4", "veranstaltungen");
}

// The third race is prepared from the register to drawn numbers.

void participants(Tour &tour) {
  tour.openRace(3);
  tour.press("Form4", "Command4");
  for (int line = 1; line < 58; line += 2) {
    tour.chooseLine("Form5", "List1", line);
    tour.press("Form5", "Command2");
  }
  tour.chooseLine("Form5", "List1", tour.lineWith("Form5", "List1", QStringLiteral("FRÜHAUF Kilian")));
  tour.press("Form5", "Command2");
  tour.chooseLine("Form5", "List2", 4);
  tour.takePicture("Form5", "teilnehmerliste");
  tour.press("Form5", "Command1");
}

// One of them has no birth date: the save reminds of it, and it is mended on top of the list of participants.
void missingBirthDate(Tour &tour) {
  tour.takePicture("Form17", "erinnerung");
  tour.press("Form4", "Command4");
  tour.doubleClickLine("Form5", "List1", tour.lineWith("Form5", "List1", QStringLiteral("FRÜHAUF Kilian")));
  tour.type("Form3", "Text4", QStringLiteral("14.3.2014"));
  tour.takePicture("Form3", "geburtsdatum-nachtragen");
  tour.press("Form3", "Command1");
  tour.press("Form5", "Command1");
}

void criteria(Tour &tour) {
  tour.press("Form4", "Command14");
  tour.takePicture("Form14", "auswertungskriterien");
  tour.press("Form14", "Command1");
}

void classRules(Tour &tour) {
  tour.press("Form4", "Command13");
  tour.chooseLine("Form10", "List1", 6);
  tour.takePicture("Form10", "klassen-bildungs-regeln");
  tour.press("Form10", "Command1");
}

void classOrder(Tour &tour) {
  tour.press("Form4", "Command15");
  for (auto *cell : Tour::members("Form15", "Label3", 160))
    Person::press(cell);
  tour.takePicture("Form15", "klassen-start-reihenfolge");
  tour.press("Form15", "Command1");
}

void teams(Tour &tour) {
  tour.press("Form4", "Command10");
  tour.type("Form11", "Text1", QStringLiteral("1"));
  tour.type("Form11", "Text2", QStringLiteral("Tannberg 1"));
  tour.takePicture("Form11", "mannschaften-und-gruppen");
  tour.press("Form11", "Command4");
}

void startNumbers(Tour &tour) {
  tour.press("Form4", "Command5");
  tour.press("Form6", "Command2");
  tour.type("Form6", "Text2", QStringLiteral("3"));
  tour.takePicture("Form6", "auslosung");
  tour.press("Form6", "Command3");
  tour.chooseLine("Form6", "List1", 2);
  tour.takePicture("Form6", "startnummern");
  tour.press("Form6", "Command1");
}

void timing(Tour &tour) {
  tour.openRace(2);
  tour.press("Form4", "Command6");
  tour.takePicture("Form7", "zeitnehmung-beginn");
  tour.chooseLine("Form7", "List2", 8);
  tour.type("Form7", "Text1", QStringLiteral("46.38"));
  tour.enter("Form7", "Text1");
  tour.takePicture("Form7", "zeitnehmung");
  tour.press("Form7", "Check1");
  tour.takePicture("Form13", "vorlaeufiges-ergebnis");
  tour.press("Form7", "Command7");
  tour.type("Form18", "Text1", QStringLiteral("100"));
  tour.type("Form18", "Text6", QStringLiteral("146,38"));
  tour.enter("Form18", "Text6");
  tour.takePicture("Form18", "hilfszeitnehmung");
  tour.press("Form7", "Option5");
  tour.takePicture("Form7", "zweiter-durchgang");
  tour.press("Form7", "Command3");
}

void choosePrinter(Tour &tour, const char *screen, const QString &printer) {
  tour.press(screen, "Command6");
  tour.chooseLine("Form28", "List1", tour.lineWith("Form28", "List1", printer));
  tour.takePicture("Form28", "drucker");
  tour.press("Form28", "Command2");
}

void lists(Tour &tour) {
  tour.openRace(1);
  tour.press("Form4", "Command8");
  choosePrinter(tour, "Form8", QStringLiteral("PDF-Datei"));
  for (const char *list : {"Command3", "Command4", "Command9", "Command7"})
    tour.press("Form8", list);
  for (const int line : {0, 3, 4})
    tour.chooseLine("Form8", "List2", line);
  tour.press("Form8", "Command5");
  tour.takePicture("Form8", "ausdrucke");
}

void banners(Tour &tour) {
  tour.press("Form8", "Command10");
  tour.press("Form21", "Check1_0");
  tour.press("Form21", "Check1_1");
  tour.takePicture("Form21", "werbebanner");
  tour.press("Form21", "Command1");
  tour.press("Form8", "Command8");
}

void preview(Tour &tour) {
  choosePrinter(tour, "Form8", QStringLiteral("Vorschau am Bildschirm"));
  tour.press("Form8", "Command3");
  tour.takePicture("Vorschau", "vorschau");
  tour.closeWindow("Vorschau");
  choosePrinter(tour, "Form8", QStringLiteral("PDF-Datei"));
  tour.press("Form8", "Command1");
}

void twoRuns(Tour &tour) {
  tour.openRace(2);
  tour.press("Form4", "Command8");
  for (const char *list : {"Command3", "Command2", "Command7"})
    tour.press("Form8", list);
  tour.press("Form8", "Command1");
}

void titlePageData(Tour &tour) {
  tour.openRace(1);
  tour.press("Form4", "Command12");
  tour.takePicture("Form16", "daten-fuer-titelblatt");
  tour.press("Form16", "Command1");
}

void teamResults(Tour &tour) {
  tour.press("Form4", "Command11");
  tour.press("Form12", "Check2");
  tour.press("Form12", "Option3");
  tour.press("Form12", "Command2");
  tour.chooseLine("Form12", "List2", 0);
  tour.takePicture("Form12", "mannschafts-ergebnisse");
  tour.press("Form12", "Command3");
  tour.press("Form12", "Command1");
}

void cup(Tour &tour) {
  tour.press("Form4", "Command17");
  for (const char *race : {"3. Lauf", "2. Lauf", "1. Lauf"})
    tour.chooseLine("Form20", "List1", tour.lineWith("Form20", "List1", QLatin1String(race)));
  tour.type("Form20", "Text4", QStringLiteral("Tannberg-Cup 2026"));
  tour.press("Form20", "Command1");
  tour.takePicture("Form20", "cupwertung");
  tour.press("Form20", "Command2");
  tour.press("Form20", "Command3");
}

void timeSum(Tour &tour) {
  tour.press("Form4", "Command18");
  for (const char *race : {"2. Lauf", "1. Lauf"})
    tour.chooseLine("Form19", "List1", tour.lineWith("Form19", "List1", QLatin1String(race)));
  tour.takePicture("Form19", "zeitsumme");
  tour.press("Form19", "Command2");
  tour.press("Form1", "Command3");
  tour.press("Form4", "Command8");
  tour.press("Form8", "Command3");
  tour.press("Form8", "Command1");
}

void copyOfARace(Tour &tour) {
  tour.press("Form4", "Command16");
  tour.takePicture("CupKopie", "kopie");
  tour.press("CupKopie", "Command1");
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

constexpr void (*Steps[])(Tour &) = {
    choiceOfFolder, menu,       clubs,      athletes,      raceRegister, participants, missingBirthDate,
    criteria,       classRules, classOrder, teams,         startNumbers, timing,       lists,
    banners,        preview,    twoRuns,    titlePageData, teamResults,  cup,          timeSum,
    copyOfARace,    newRace,    deleteRace, theEnd};

void copyFiles(const QDir &from, const QDir &to) {
  for (const auto &name : from.entryList(QDir::Files))
    if (!QFile::copy(from.filePath(name), to.filePath(name)))
      throw Fault(QStringLiteral("%1 konnte nicht kopiert werden.").arg(from.filePath(name)));
}

// The printed documents are kept beside the pictures, as PDF and, where pdftoppm is installed, as pages.
void keepDocuments(const QDir &printed, const QDir &pictures) {
  for (const auto &name : printed.entryList({QStringLiteral("*.pdf")}, QDir::Files, QDir::Name)) {
    const QString target = pictures.filePath(name);
    QFile::copy(printed.filePath(name), target);
    QProcess::execute(QStringLiteral("pdftoppm"),
                      {QStringLiteral("-r"), QStringLiteral("90"), QStringLiteral("-png"), target, target.chopped(4)});
  }
}

// As the program does it, the tour works in the data folder.
void makeTour(const QDir &example, const QDir &pictures) {
  const QTemporaryDir data;
  copyFiles(example, QDir(data.path()));
  QDir::setCurrent(data.path());
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, data.path());
  Umgebung umgebung;
  umgebung.today = [] { return QDate(2026, 1, 15); };
  Store store(umgebung);
  store.OrganisationName = QStringLiteral("Schiclub Tannberg");
  startStore(store);
  Tour tour(store, pictures);
  for (const auto step : Steps)
    step(tour);
  keepDocuments(QDir(QStringLiteral("Ausdrucke")), pictures);
}

// A window that nobody sees cannot be raised, and a folder for one session is not needed; Qt says so each time.
void tell(QtMsgType, const QMessageLogContext &, const QString &text) {
  if (!text.startsWith(QStringLiteral("This plugin does not support")) &&
      !text.startsWith(QStringLiteral("QStandardPaths: XDG_RUNTIME_DIR")))
    std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

} // namespace

int main(int argc, char **argv) {
  qInstallMessageHandler(tell);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" VEXT_MONITOR);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  Look::apply(application);
  const QStringList folders = QApplication::arguments().sliced(1);
  if (folders.size() != 2 || !QDir().mkpath(folders[1])) {
    std::fputs("Aufruf: vext_rundgang <Beispielordner> <Bilderordner>\n", stderr);
    return 2;
  }
  try {
    makeTour(QDir(QDir(folders[0]).absolutePath()), QDir(QDir(folders[1]).absolutePath()));
  } catch (const Fault &fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  return 0;
}
