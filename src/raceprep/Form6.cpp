#include "raceprep/Form6.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "masterdata/ClubRegister.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/qt/FarbTabelle.h"
#include "platform/qt/Look.h"
#include "raceprep/StartNumbers.h"
#include "ui_Form6.h"

namespace {

constexpr unsigned InUse = 0xFF0000;

const auto NothingChosen = QStringLiteral("???");
const auto NobodySelected = QStringLiteral("bitte Teilnehmer anklicken !");

// A value from a file that the combo does not have chooses nothing.
void setPosition(QComboBox *combo, int position) {
  combo->setCurrentIndex(position < combo->count() ? position : -1);
}

// Controls that come and go leave the others where they are.
void keepPlaces(std::initializer_list<QFrame *> cards) {
  for (const QFrame *card : cards)
    for (auto *control : card->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
      QSizePolicy policy = control->sizePolicy();
      policy.setRetainSizeWhenHidden(true);
      control->setSizePolicy(policy);
    }
}

template <int First, int Last> void addNames(QComboBox *combo, const Tabelle<QString, First, Last> &names, int last) {
  for (int row = 1; row <= last; ++row)
    combo->addItem(names[row]);
}

} // namespace

Form6::Form6(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form6"), 6), m_store(store), ui(std::make_unique<Ui::Form6>()) {
  ui->setupUi(this);
  setUp();
  ui->List2->hide();
  keepPlaces({ui->personCard, ui->numberCard});
  ui->Label1->setText(shownText(store.Rennen.RennenName));
  showNobody();
  fillList();
  fillCombos();
  ui->Command6->setEnabled(offersDeletion(store));
  connectParticipant();
  connectDraw();
  connectClassRun();
  connectDeletion();
  ui->List1->setFocus();
}

Form6::~Form6() = default;

void Form6::fillCombos() {
  ui->Combo3->addItem(NothingChosen);
  addNames(ui->Combo3, m_store.MannschaftName, 100);
  ui->Combo4->addItem(NothingChosen);
  addNames(ui->Combo4, m_store.GruppeName, 100);
  if (m_store.Rennen.WertKlassen == 1) {
    addNames(ui->Combo2, m_store.KlasseName, 20);
  } else {
    addNames(ui->Combo2, m_store.GruppeName, 100);
    ui->Command9->setText(QStringLiteral("Nummern für best. Gruppen"));
  }
  ui->Combo2->setCurrentIndex(-1);
}

void Form6::connectParticipant() {
  connect(ui->List1, &LineList::chosen, this, &Form6::showLine);
  onLeave(ui->Text1, [this] { storeNumber(); });
  onReturn(ui->Text1, [this] { ui->List1->setFocus(); });
  storeCombo(ui->Combo1, [](auto &participant, int position) { participant.VereinNr = position; });
  storeCombo(ui->Combo3, [](auto &participant, int position) { participant.MannschaftNr = qint16(position); });
  storeCombo(ui->Combo4, [](auto &participant, int position) { participant.GruppeNr = position; });
  storeCheck(ui->Check1, [](auto &participant, bool on) { participant.Gast = on; });
  storeCheck(ui->Check2, [](auto &participant, bool on) { participant.Bezahlt = on; });
  storeCheck(ui->Check3, [](auto &participant, bool on) { participant.Boarder = on; });
  connect(ui->Command1, &QPushButton::clicked, this, &QWidget::close);
}

void Form6::storeCombo(QComboBox *combo, const std::function<void(TeilnehmerZeile &, int)> &store) {
  onLeave(combo, [this, combo, store] {
    if (combo->currentIndex() >= 0)
      store(m_store.Teilnehmer[m_row], combo->currentIndex());
  });
}

// Quirk: flag after the draw. It goes to the row in work, not to the row shown: after a numbering run that is another.
void Form6::storeCheck(QCheckBox *check, const std::function<void(TeilnehmerZeile &, bool)> &store) {
  onLeave(check, [this, check, store] { store(m_store.Teilnehmer[m_store.TnIdx], check->isChecked()); });
}

void Form6::connectDraw() {
  connect(ui->Command2, &QPushButton::clicked, this, [this] { offerDraw(true); });
  connect(ui->Command4, &QPushButton::clicked, this, [this] { offerDraw(false); });
  connect(ui->Command3, &QPushButton::clicked, this, &Form6::draw);
  offerDraw(false);
}

void Form6::connectClassRun() {
  connect(ui->Command9, &QPushButton::clicked, this, &Form6::offerClasses);
  connect(ui->Combo2, &QComboBox::activated, this, [this] { setShown({ui->Command11, ui->Command10}, true); });
  connect(ui->Command10, &QPushButton::clicked, this, &Form6::endClassRun);
  connect(ui->Command11, &QPushButton::clicked, this, &Form6::numberClass);
  endClassRun();
}

void Form6::connectDeletion() {
  connect(ui->Command6, &QPushButton::clicked, this, [this] { offerDeletion(true); });
  connect(ui->Command8, &QPushButton::clicked, this, [this] { offerDeletion(false); });
  connect(ui->Command7, &QPushButton::clicked, this, &Form6::deleteNumbers);
  offerDeletion(false);
}

// A control that hides itself gives the focus to the list, never to a field that it would then leave.
void Form6::setShown(std::initializer_list<QWidget *> controls, bool shown) {
  for (QWidget *control : controls)
    setControlVisible(control, shown, ui->List1);
}

void Form6::offerDraw(bool offer) {
  setShown({ui->Command3, ui->Command4, ui->Text2, ui->Label9}, offer);
}

void Form6::offerClasses() {
  setShown({ui->Text2, ui->Label9, ui->Label15, ui->Combo2, ui->Text3}, true);
}

void Form6::endClassRun() {
  setShown({ui->Command11, ui->Command10, ui->Text3, ui->Combo2, ui->Text2, ui->Label9, ui->Label15}, false);
}

void Form6::offerDeletion(bool offer) {
  setShown({ui->Command7, ui->Command8}, offer);
}

void Form6::fillList() {
  ui->List1->refill(NummernlisteFuellen(m_store), m_row);
}

void Form6::showLine(int line) {
  showParticipant(numberAtEnd(ui->List1->lines()[line]));
}

void Form6::showParticipant(int row) {
  m_row = m_store.TnIdx = row;
  const auto &participant = m_store.Teilnehmer[row];
  ui->Label6->setText(plainText(row));
  ui->Text1->setText(plainText(participant.StartNr));
  ui->Label16->setText(m_store.KlasseName[participant.KlasseNr]);
  ui->Label13->setText(m_store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau));
  setPosition(ui->Combo3, participant.MannschaftNr);
  setPosition(ui->Combo4, participant.GruppeNr);
  ui->Check1->setChecked(participant.Gast == 1);
  ui->Check2->setChecked(participant.Bezahlt == 1);
  ui->Check3->setChecked(participant.Boarder == 1);
  const LaeuferSatz athlete = LaeuferLesen(m_store, participant.LaeuferNr);
  showAthlete(athlete);
  showFields(true);
  showNumberIs(FarbTabelle::BlassGruen, {});
  fillClubs(athlete, participant.VereinNr);
}

void Form6::showAthlete(const LaeuferSatz &athlete) {
  m_named = !athlete.Name.isEmpty();
  ui->Label2->setText(shownText(athlete.Name));
  ui->Label8->setText(plainText(yearOf(athlete.Geburtsdatum)));
  if (athlete.Geschlecht == Sex::Male)
    Look::setGround(ui->Label2, FarbTabelle::BlassCyan);
  else if (athlete.Geschlecht == Sex::Female)
    Look::setGround(ui->Label2, FarbTabelle::BlassRot);
}

void Form6::fillClubs(const LaeuferSatz &athlete, int position) {
  ui->Combo1->clear();
  ui->Combo1->addItem(NothingChosen);
  for (const int club : {athlete.Verein1, athlete.Verein2, athlete.Verein3})
    ui->Combo1->addItem(clubName(club));
  ui->Combo1->addItem(QStringLiteral("kein Verein"));
  setPosition(ui->Combo1, position);
}

QString Form6::clubName(int club) {
  return isClub(m_store, club) ? shownText(shortNameOfClub(m_store, club)) : QStringLiteral("nicht belegt");
}

void Form6::showFields(bool shown) {
  setShown({ui->Combo1, ui->Combo3, ui->Combo4, ui->Check1, ui->Check2, ui->Check3}, shown);
  setControlEnabled(ui->Text1, shown, ui->List1);
}

void Form6::showNobody() {
  m_row = 0;
  for (QLabel *label : std::initializer_list<QLabel *>{ui->Label6, ui->Label8, ui->Label16, ui->Label13})
    label->clear();
  ui->Label2->setText(NobodySelected);
  Look::resetGround(ui->Label2);
  ui->Text1->clear();
  Look::resetGround(ui->Text1);
  ui->Text1->setToolTip({});
  showFields(false);
}

// The colour in words, too.
void Form6::showNumberIs(QColor ground, const QString &words) {
  Look::setGround(ui->Text1, ground);
  ui->Text1->setToolTip(words);
  ui->Text1->setAccessibleDescription(words);
}

void Form6::storeNumber() {
  if (!m_named)
    return;
  const auto number = shortNumber(ui->Text1->text());
  if (!number)
    return m_store.umgebung.beep();
  // Quirk: own number is red. It counts as in use too; red without harm.
  if (isNumberTaken(m_store, *number)) {
    showNumberIs(InUse, QStringLiteral("schon vergeben"));
    return;
  }
  showNumberIs(FarbTabelle::BlassGruen, {});
  m_store.Teilnehmer[m_row].StartNr = *number;
  fillList();
}

// One draw for each opening.
void Form6::draw() {
  setShown({ui->Command2}, false);
  offerDraw(false);
  const auto reserve = shortNumber(ui->Text2->text());
  if (!reserve)
    return m_store.umgebung.beep();
  ui->List2->fill(drawNumbersForAll(m_store, *reserve));
  fillList();
}

void Form6::numberClass() {
  endClassRun();
  ui->List2->fill(numbersForClass(m_store, ui->Combo2->currentIndex() + 1, firstNumber(ui->Text3->text()),
                                  wholeNumber(ui->Text2->text())));
  fillList();
}

void Form6::deleteNumbers() {
  setControlEnabled(ui->Command6, false, ui->List1);
  offerDeletion(false);
  deleteAllNumbers(m_store);
  fillList();
}

void Form6::chooseParticipant(int row) {
  for (QLabel *label : std::initializer_list<QLabel *>{ui->Label5, ui->Label16, ui->Label14, ui->Label13})
    label->hide();
  if (ui->List1->lineOfNumber(row) < 0) // it may have been filled before he was added
    rowsMoved();
  const int line = ui->List1->lineOfNumber(row);
  if (line < 0)
    return;
  ui->List1->choose(line);
  showLine(line);
}

void Form6::rowsMoved() {
  ui->List1->setFocus();
  showNobody();
  fillList();
}

QString Form6::subject() const {
  return m_row == 0 ? QString() : ui->Label2->text();
}

void Form6::closing() {
  RennDatenSpeichern(m_store);
}
