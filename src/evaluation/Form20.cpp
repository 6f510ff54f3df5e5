#include "evaluation/Form20.h"

#include "core/RaceList.h"
#include "core/RecordFiles.h"
#include "evaluation/Cup.h"
#include "evaluation/CupList.h"
#include "evaluation/Series.h"
#include "platform/Numbers.h"
#include "platform/qt/BusyTime.h"
#include "platform/qt/PrintRun.h"
#include "ui_Form20.h"

#include <QMouseEvent>

Form20::Form20(Desk &desk, Store &store, Printers &printers)
    : Screen(desk, QStringLiteral("Form20"), 20), m_store(store), m_printers(printers),
      ui(std::make_unique<Ui::Form20>()), m_openRace(store.AktRennen) {
  ui->setupUi(this);
  setUp();
  ui->List5->showWholeLines();
  load();
  connectControls();
  ui->List1->setFocus();
}

Form20::~Form20() = default;

void Form20::becomeActive() {
  ui->drucker->setText(QStringLiteral("Drucker: ") + m_printers.DeviceName());
  ui->ausgabe->tell(m_printers.outcome());
}

void Form20::load() {
  ui->List1->fill(raceLines(m_store));
  const CupChoice cup = loadCup(m_store);
  ui->Text4->setText(cup.name);
  const QStringList &lines = ui->List1->lines();
  for (int line = 0; line < lines.size(); ++line)
    if (cup.races.contains(cupRaceOfLine(lines[line])))
      ui->List1->setMarked(line, true);
  ui->Command1->setEnabled(!ui->List1->marked().isEmpty());
  ui->List2->fill(pointsLines(m_store.cup, false));
  m_atOpening = cupBytes(m_store.cup, choice());
}

void Form20::connectControls() {
  connect(ui->List1, &MarkList::markToggled, this, &Form20::marksChanged);
  connect(ui->Text1, &QLineEdit::textChanged, this, &Form20::placeChanged);
  connect(ui->Text2, &QLineEdit::textChanged, this, &Form20::pointsChanged);
  onReturn(ui->Text1, [this] { ui->Text2->setFocus(Qt::TabFocusReason); });
  onReturn(ui->Text2, [this] { nextPlace(); });
  onLeave(ui->Text2, [this] { ui->List2->fill(pointsLines(m_store.cup, true)); });
  ui->Text3->installEventFilter(this);
  connect(ui->Command1, &QPushButton::clicked, this, &Form20::evaluate);
  connect(ui->Command2, &QPushButton::clicked, this, &Form20::print);
  connect(ui->Command3, &QPushButton::clicked, this, &Form20::close);
  onKey(Qt::Key_F5, [this] { press(ui->Command1); });
  onKey(QKeySequence::Print, [this] { press(ui->Command2); });
}

void Form20::lockPrint() {
  setControlEnabled(ui->Command2, false, ui->Command3);
}

// A click into the number of strokes, not the Tab key, makes a new evaluation necessary.
bool Form20::eventFilter(QObject *watched, QEvent *event) {
  if (watched == ui->Text3 && event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
    lockPrint();
  return Screen::eventFilter(watched, event);
}

void Form20::marksChanged() {
  lockPrint();
  setControlEnabled(ui->Command1, !ui->List1->marked().isEmpty(), ui->Command3);
}

int Form20::place() const {
  return heldPlace(ui->Text1->text());
}

void Form20::placeChanged() {
  lockPrint();
  ui->Text2->setEnabled(true);
  if (const QString held = plainText(place()); ui->Text1->text() != held)
    ui->Text1->setText(held);
  ui->Text2->setText(pointsText(m_store.cup, place()));
}

void Form20::pointsChanged() {
  lockPrint();
  if (!storePoints(m_store.cup, place(), ui->Text2->text()))
    m_store.umgebung.beep();
}

void Form20::nextPlace() {
  ui->Text1->setText(plainText(place() + 1));
  ui->Text1->setFocus(Qt::TabFocusReason);
}

void Form20::evaluate() {
  const BusyTime busy;
  Q_EMIT workBegun();
  const qint64 wanted = wholeNumber(trimmedBlanks(ui->Text3->text()));
  const CupResult result = evaluateCup(m_store, markedRaces(ui->List1->lines(), ui->List1->marked()), wanted);
  Q_EMIT workEnded();
  ui->List3->fill(personLines(result.names));
  ui->Label8->setText(plainText(int(result.names.size())));
  if (result.struck < std::abs(wanted))
    ui->Text3->setText(plainText(result.struck));
  ui->List4->fill(result.keys);
  ui->List5->fill(result.lines);
  ui->Command2->setEnabled(true);
}

// One print for each evaluation.
void Form20::print() {
  lockPrint();
  repaint();
  runPrinting(this, m_printers, [this] {
    Druckschicht druck(m_printers);
    Cupliste(m_store, druck, {ui->Text4->text(), ui->Check1->isChecked(), ui->List4->lines()});
  });
  ui->ausgabe->tell(m_printers.outcome());
}

CupChoice Form20::choice() const {
  CupChoice cup{ui->Text4->text(), {}};
  for (const int line : ui->List1->marked())
    cup.races.append(cupRaceOfLine(ui->List1->lines()[line]));
  return cup;
}

QList<SavedFile> Form20::unsaved() const {
  const QByteArray now = cupBytes(m_store.cup, choice());
  return now == m_atOpening ? QList<SavedFile>() : QList<SavedFile>{{QStringLiteral("Cup.dat"), now}};
}

void Form20::closing() {
  saveCup(m_store, choice());
  loadRaceTables(m_store, m_openRace);
  readOpenRace(m_store);
}
