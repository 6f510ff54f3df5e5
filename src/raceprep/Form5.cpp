#include "raceprep/Form5.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/qt/Desk.h"
#include "raceprep/ParticipantList.h"
#include "ui_Form5.h"

Form5::Form5(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form5"), 5), m_store(store), ui(std::make_unique<Ui::Form5>()) {
  ui->setupUi(this);
  setUp();
  ui->Label1->setText(shownText(m_store.Rennen.RennenName));
  ui->Combo1->addItems({QStringLiteral("Name"), QStringLiteral("Nenn-ID"), QStringLiteral("INV-Nenn-ID")});
  ui->List2->hideNumbers();
  connectAthletes();
  connectParticipants();
  connectKeys();
  connect(ui->Command1, &QPushButton::clicked, this, &Form5::close);
  fillAthletes();
  fillParticipants();
  ui->List1->setFocus();
}

Form5::~Form5() = default;

void Form5::connectAthletes() {
  onReturn(ui->Text1, [this] { fillAthletes(); });
  onLeave(ui->Text1, [this] { ui->Text1->setText(athleteSearchShown(ui->Text1->text())); });
  connect(ui->Command4, &QPushButton::clicked, this, [this] {
    ui->Text1->clear();
    fillAthletes();
  });
  connect(ui->Command5, &QPushButton::clicked, this, [this] { Q_EMIT newEntryRequested(ui->Text1->text()); });
  connect(ui->List1, &LineList::chosen, this, [this](int line) { showAthlete(numberAtEnd(ui->List1->lines()[line])); });
  connect(ui->List1, &LineList::doubleChosen, this, [this] { openAthlete(); });
  onReturn(ui->List1, [this] { openAthlete(); });
  ui->List1->addAction(QStringLiteral("Meldungen aus Tabelle einlesen …"), this, [this] { Q_EMIT entriesRequested(); });
  connect(ui->Command2, &QPushButton::clicked, this, &Form5::add);
}

void Form5::connectParticipants() {
  onReturn(ui->Text2, [this] {
    ui->Text2->setText(participantSearch(ui->Text2->text()));
    fillParticipants();
  });
  connect(ui->Command6, &QPushButton::clicked, this, [this] {
    ui->Text2->clear();
    fillParticipants();
  });
  connect(ui->Combo1, &QComboBox::activated, this, [this] { fillParticipants(); });
  connect(ui->List2, &LineList::chosen, this, [this](int line) { showParticipant(ui->List2->lines()[line]); });
  connect(ui->List2, &LineList::doubleChosen, this, [this] { openParticipant(); });
  onReturn(ui->List2, [this] { openParticipant(); });
  connect(ui->Command3, &QPushButton::clicked, this, &Form5::remove);
}

void Form5::connectKeys() {
  onKey(Qt::Key_F5, [this] {
    fillAthletes();
    fillParticipants();
  });
  onKey(QKeySequence::Find, [this] { enterField(ui->Text1->hasFocus() ? ui->Text2 : ui->Text1); });
}

void Form5::becomeActive() {
  // Quirk: unfiltered register not renewed. A new athlete appears with "alle zeigen" only.
  if (!athleteSearch(ui->Text1->text()).isEmpty())
    fillAthletes();
  fillParticipants();
}

void Form5::showEntered() {
  fillAthletes();
  fillParticipants();
}

void Form5::fillAthletes() {
  ui->List1->fill(athleteLines(m_store, athleteSearch(ui->Text1->text())));
}

void Form5::fillParticipants() {
  ui->List2->fill(TeilnehmerlisteFuellen(m_store, ui->Text2->text(), ui->Combo1->currentIndex()));
}

void Form5::showAthlete(int record) {
  const LaeuferSatz athlete = LaeuferLesen(m_store, record);
  const AthleteClubs clubs = clubsOfAthlete(m_store, athlete);
  ui->Label4->setText(shownText(athlete.Name));
  ui->Label6->setText(plainText(record));
  ui->Label8->setText(shortDate(fromDays(athlete.Geburtsdatum)));
  ui->Label10->setText(shownText(clubs.text));
  ui->Label11->setText(plainText(clubs.count));
  ui->Label12->setText(plainText(clubs.lastSlot));
  ui->Command2->setEnabled(!isParticipant(m_store, record));
}

void Form5::showParticipant(const QString &line) {
  ui->Label5->setText(shownText(LaeuferLesen(m_store, numberAtEnd(line)).Name));
  ui->Label7->setText(plainText(rowOfLine(line)));
  ui->Command3->setEnabled(true);
}

void Form5::openAthlete() {
  if (const int line = ui->List1->chosenLine(); line >= 0)
    Q_EMIT athleteChosen(numberAtEnd(ui->List1->lines()[line]));
}

void Form5::openParticipant() {
  const int line = ui->List2->chosenLine();
  if (line < 0)
    return;
  ui->Label7->setText(plainText(rowOfLine(ui->List2->lines()[line])));
  Q_EMIT participantChosen(rowOfLine(ui->List2->lines()[line]));
}

void Form5::add() {
  setControlEnabled(ui->Command2, false, ui->List1);
  const auto number = [](const QLabel *label) { return int(wholeNumber(label->text())); };
  addParticipant(m_store, number(ui->Label6), number(ui->Label11), number(ui->Label12));
  fillParticipants();
}

// No question is asked, and times are lost with their participant.
void Form5::remove() {
  setControlEnabled(ui->Command3, false, ui->List2);
  ui->Label5->clear();
  const int line = ui->List2->chosenLine();
  removeParticipant(m_store, int(wholeNumber(ui->Label7->text())));
  fillParticipants();
  ui->List2->startKeysAt(line);
  Q_EMIT participantDeleted();
}

// A field of a screen on top of this one is stored before the race is.
void Form5::closeEvent(QCloseEvent *event) {
  desk().guard().flushOthers(this);
  Screen::closeEvent(event);
}

void Form5::closing() {
  RennDatenSpeichern(m_store);
}
