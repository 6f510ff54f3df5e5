#include "timing/Form7.h"

#include "core/Participants.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/ValueFormats.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/qt/FarbTabelle.h"
#include "platform/qt/LineSeek.h"
#include "platform/qt/Look.h"
#include "timing/Ranking.h"
#include "ui_Form7.h"

#include <QScrollBar>

namespace {

constexpr int StatusCount = 6; // the last two have no text and can be chosen all the same

QStringList textsOf(const std::array<QLineEdit *, 3> &boxes) {
  return {boxes[0]->text(), boxes[1]->text(), boxes[2]->text()};
}

// The seconds box of the parts is put into form but not stored.
void tidySeconds(QLineEdit *box) {
  if (const QString text = secondsEntry(box->text()); text != box->text())
    box->setText(text);
}

// A status that a file may hold and the box does not chooses nothing.
void chooseStatus(QComboBox *combo, int status) {
  combo->setCurrentIndex(status >= 0 && status < StatusCount ? status : -1);
}

void showPair(QLabel *caption, QLabel *value, bool visible, const QString &text) {
  value->setText(text);
  caption->setVisible(visible);
  value->setVisible(visible);
}

} // namespace

Form7::Form7(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form7"), 7), ui(std::make_unique<Ui::Form7>()), m_store(store) {
  ui->setupUi(this);
  m_run1 = {ui->Text1, {ui->Text2, ui->Text3, ui->Text4}, &TeilnehmerZeile::Zeit1, QStringList(3)};
  m_run2 = {ui->Text6, {ui->Text7, ui->Text8, ui->Text9}, &TeilnehmerZeile::Zeit2, QStringList(3)};
  setUp();
  hideUnused();
  Look::setGround(ui->Label11, QColor(FarbTabelle::Hellgrau));
  ui->Label1->setText(shownText(m_store.Rennen.RennenName));
  for (int status = 0; status < StatusCount; ++status)
    for (auto *combo : {ui->Combo1, ui->Combo2})
      combo->addItem(m_store.StatusText[status]);
  for (auto *combo : {ui->Combo1, ui->Combo2})
    combo->setCurrentIndex(-1);
  connectControls();
  refill();
  ui->List2->setFocus();
}

Form7::~Form7() = default;

void Form7::hideUnused() {
  for (QWidget *control : secondRunControls())
    control->hide();
  for (QWidget *control : std::initializer_list<QWidget *>{ui->Label21, ui->Label22, ui->Label23, ui->Label24}) {
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
    control->hide();
  }
  // A long name does not widen the card, or the list beside it would jump from person to person.
  for (QWidget *name : {ui->Label2, ui->Label16, ui->Label19})
    name->setSizePolicy(QSizePolicy::Ignored, name->sizePolicy().verticalPolicy());
  ui->Label11->setSizePolicy(QSizePolicy::Fixed, ui->Label11->sizePolicy().verticalPolicy());
}

QList<QWidget *> Form7::secondRunControls() const {
  return {ui->titel2, ui->Text6, ui->Text7, ui->Text8, ui->Text9, ui->Combo1, ui->Command1, ui->Command6, ui->Option5};
}

void Form7::connectControls() {
  for (auto *option : {ui->Option1, ui->Option2, ui->Option3, ui->Option4, ui->Option5})
    connect(option, &QRadioButton::clicked, this, [this] {
      refill();
      ui->List2->setFocus();
    });
  onKey(Qt::Key_F5, [this] { refillByKey(); });
  connect(ui->List2, &LineList::chosen, this, &Form7::lineChosen);
  connect(ui->List2, &LineList::doubleChosen, this, &Form7::returnInList);
  onReturn(ui->List2, [this] { returnInList(); });
  new LineSeek(*ui->List2, [this](const QString &typed) {
    return lineSought(m_store, ui->List2->lines(), typed, ui->List2->chosenLine());
  });
  connectRun(m_run1, ui->Command4, ui->Command2);
  connectRun(m_run2, ui->Command1, ui->Command6);
  connectStatus(ui->Combo2, &TeilnehmerZeile::Status1);
  connectStatus(ui->Combo1, &TeilnehmerZeile::Status2);
  onLeave(ui->Text5, [this] { takePoints(); });
  connect(ui->Command5, &QPushButton::clicked, this, &Form7::takePoints);
  connect(ui->Check1, &QCheckBox::clicked, this, &Form7::showResult);
  connect(ui->Command7, &QPushButton::clicked, this, &Form7::auxiliaryTimingRequested);
  connect(ui->Command3, &QPushButton::clicked, this, &Form7::close);
}

void Form7::connectRun(RunFields &run, QPushButton *split, QPushButton *join) {
  onReturn(run.seconds, [this] { ui->List2->setFocus(); });
  onLeave(run.seconds, [this, &run] { takeTime(run); });
  onLeave(run.parts[2], [&run] { tidySeconds(run.parts[2]); });
  connect(split, &QPushButton::clicked, this, [this, &run] { showParts(run, selected().*run.time); });
  connect(join, &QPushButton::clicked, this, [this, &run] { joinTime(run); });
}

void Form7::connectStatus(QComboBox *combo, int TeilnehmerZeile::*status) {
  onLeave(combo, [this, combo, status] {
    if (combo->currentIndex() >= 0)
      selected().*status = combo->currentIndex();
  });
}

// As a press on the list mode that is on.
void Form7::refillByKey() {
  for (auto *option : {ui->Option1, ui->Option2, ui->Option3, ui->Option4, ui->Option5})
    if (option->isChecked())
      return press(option);
}

void Form7::becomeActive() {
  if (m_store.Rennen.ZweiDurchgaenge == 0)
    return;
  for (QWidget *control : secondRunControls())
    control->show();
}

QString Form7::subject() const {
  return QStringLiteral("Nr. %1 %2").arg(ui->Label5->text(), ui->Label2->text());
}

QString Form7::waiting() const {
  QString note;
  for (const RunFields *run : {&m_run1, &m_run2})
    if (const QStringList typed = textsOf(run->parts); typed != run->shown)
      note += QStringLiteral("%1: Std:Min:Sek „%2“ bei %3\n").arg(windowTitle(), typed.join(u':'), subject());
  return note;
}

void Form7::closing() {
  RennDatenSpeichern(m_store);
}

// The emptied list is painted before the ranking runs.
void Form7::refill() {
  auto *list = ui->List2;
  const int scrolled = list->verticalScrollBar()->value();
  list->fill({});
  list->viewport()->repaint();
  list->fill(ZeitlisteFuellen(m_store, mode()));
  list->doItemsLayout();
  list->verticalScrollBar()->setValue(scrolled);
  Q_EMIT resultComputed();
}

ListMode Form7::mode() const {
  if (ui->Option5->isChecked())
    return ListMode::ZweiterDurchgang;
  if (ui->Option4->isChecked())
    return ListMode::KlasseZeit;
  if (ui->Option3->isChecked())
    return ListMode::KlasseStartnummer;
  return ui->Option2->isChecked() ? ListMode::Zeiten : ListMode::Startnummer;
}

void Form7::lineChosen(int line) {
  m_store.TnIdx = numberAtEnd(ui->List2->lines()[line]);
  setInputsEnabled(m_store.TnIdx != 0);
  if (m_store.TnIdx == 0)
    return;
  ui->Label11->setText(plainText(m_store.TnIdx));
  ui->Command7->setEnabled(true);
  showPerson(selected());
  showInputs(selected());
  focusTime();
  if (timeBox()->text() == QStringLiteral("0"))
    timeBox()->clear();
}

void Form7::returnInList() {
  const int line = ui->List2->chosenLine();
  if (line >= 0 && numberAtEnd(ui->List2->lines()[line]) != 0)
    focusTime();
}

void Form7::setInputsEnabled(bool enabled) {
  for (QWidget *control : std::initializer_list<QWidget *>{
           ui->Text1, ui->Text2, ui->Text3, ui->Text4, ui->Text5, ui->Text6, ui->Text7, ui->Text8, ui->Text9,
           ui->Command1, ui->Command2, ui->Command4, ui->Command5, ui->Command6, ui->Combo1, ui->Combo2})
    setControlEnabled(control, enabled, ui->List2);
}

void Form7::showPerson(const TeilnehmerZeile &participant) {
  const LaeuferSatz athlete = LaeuferLesen(m_store, participant.LaeuferNr);
  const auto club = clubOf(m_store, athlete, participant);
  ui->Label5->setText(plainText(participant.StartNr));
  ui->Label18->setText(participant.Gast == 1 ? QStringLiteral("JA") : QStringLiteral("-"));
  ui->Label2->setText(shownText(athlete.Name));
  ui->Label14->setText(plainText(yearOf(athlete.Geburtsdatum)));
  ui->Label16->setText(m_store.KlasseName[participant.KlasseNr]);
  // Quirk: colour without a sex. It stays that of the last person.
  if (athlete.Geschlecht != Sex::NotSet)
    Look::setGround(ui->Label2,
                    QColor(athlete.Geschlecht == Sex::Male ? FarbTabelle::BlassCyan : FarbTabelle::BlassRot));
  ui->Label19->setText(club ? shownText(trimmedBlanks(club->VereinKurz)) : QString());
  showPair(ui->Label21, ui->Label22, participant.MannschaftNr != 0, m_store.MannschaftName[participant.MannschaftNr]);
  showPair(ui->Label24, ui->Label23, participant.GruppeNr != 0, m_store.GruppeName[participant.GruppeNr]);
}

void Form7::showInputs(const TeilnehmerZeile &participant) {
  for (RunFields *run : {&m_run1, &m_run2}) {
    const double time = participant.*run->time;
    run->seconds->setText(plainText(time));
    showParts(*run, time);
  }
  ui->Text5->setText(plainText(participant.Punkte));
  chooseStatus(ui->Combo2, participant.Status1);
  chooseStatus(ui->Combo1, participant.Status2);
}

void Form7::showParts(RunFields &run, double time) {
  const ZeitTeile parts = ZeitZerlegen(time);
  run.parts[0]->setText(plainText(parts.ZeitStd));
  run.parts[1]->setText(plainText(parts.ZeitMin));
  run.parts[2]->setText(plainText(parts.ZeitSek));
  run.shown = textsOf(run.parts);
}

QLineEdit *Form7::timeBox() const {
  return mode() == ListMode::ZweiterDurchgang ? ui->Text6 : ui->Text1;
}

// Arriving as by Tab selects the whole time, so that typing replaces it.
void Form7::focusTime() {
  timeBox()->setFocus(Qt::TabFocusReason);
}

TeilnehmerZeile &Form7::selected() {
  m_store.TnIdx = int(wholeNumber(ui->Label11->text()));
  return m_store.Teilnehmer[m_store.TnIdx];
}

void Form7::takeTime(const RunFields &run) {
  const QString typed = KommaEingabe(run.seconds->text());
  run.seconds->setText(typed);
  if (const auto time = regionalNumber(typed))
    store(run, *time);
}

void Form7::joinTime(RunFields &run) {
  const auto time = joinedTime(run.parts[0]->text(), run.parts[1]->text(), run.parts[2]->text());
  if (!time || !store(run, *time))
    return;
  run.seconds->setText(plainText(*time));
  run.shown = textsOf(run.parts);
}

// With a time that its file could not give back the race would never open again.
bool Form7::store(const RunFields &run, double time) {
  const bool kept = readsBack(time);
  if (kept)
    selected().*run.time = time;
  else
    refuse(run.seconds, plainText(selected().*run.time));
  return kept;
}

void Form7::refuse(QLineEdit *field, const QString &before) {
  m_store.umgebung.beep();
  field->setText(before);
}

// Quirk: points lose their fraction. Reading stops at the decimal comma that the box itself shows, so passing through
// it cuts the fraction.
void Form7::takePoints() {
  if (const auto points = typedSingle(ui->Text5->text()))
    selected().Punkte = *points;
  else
    refuse(ui->Text5, plainText(selected().Punkte));
}

// Quirk: difference goes into the first run. Also while the second one is worked on.
void Form7::takeDifference(const QString &difference) {
  if (const auto time = regionalNumber(difference)) {
    selected().Zeit1 = *time;
    ui->Text1->setText(difference);
    ui->List2->setFocus();
  }
}

void Form7::showResult(bool open) {
  Q_EMIT resultRequested(open);
  if (!open)
    return;
  ErgebnisRechnen(m_store);
  Q_EMIT resultComputed();
}
