#include "masterdata/Form3.h"

#include "core/RecordFiles.h"
#include "masterdata/AthleteRegister.h"
#include "masterdata/ClubRegister.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/qt/RecordText.h"
#include "ui_Form3.h"

#include <QKeyEvent>

namespace {

bool isArrow(const QEvent *event) {
  if (event->type() != QEvent::KeyPress)
    return false;
  const int key = static_cast<const QKeyEvent *>(event)->key();
  return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right;
}

// Taking away the choice of an option button needs its group to be open for a moment.
void setChosen(QRadioButton *option, bool chosen) {
  option->setAutoExclusive(false);
  option->setChecked(chosen);
  option->setAutoExclusive(true);
}

} // namespace

Form3::Form3(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form3"), 3), m_store(store), ui(std::make_unique<Ui::Form3>()) {
  ui->setupUi(this);
  setUp();
  fillList();
  fillClubs();
  connectNavigation();
  connectFields();
  LaeuferZeigen(lastAthlete(m_store));
  ui->List1->setFocus();
}

Form3::~Form3() = default;

void Form3::fillClubs() {
  const QStringList choices = clubChoices(m_store);
  for (auto *combo : {ui->Combo1, ui->Combo2, ui->Combo3}) {
    combo->clear();
    combo->addItems(choices);
  }
}

void Form3::connectNavigation() {
  connect(ui->Text1, &QLineEdit::textChanged, this, [this](const QString &text) { showRecord(wholeNumber(text)); });
  connect(ui->Command2, &QPushButton::clicked, this, [this] {
    if (const auto n = previousAthlete(m_store, wholeNumber(ui->Text1->text())))
      LaeuferZeigen(*n);
  });
  connect(ui->Command3, &QPushButton::clicked, this, [this] {
    const int before = m_store.LaeuferAnzahl;
    const qint64 shown = wholeNumber(ui->Text1->text());
    if (const auto n = nextAthlete(m_store, shown, RecordText::of(ui->Text2), ui->Text4->text()))
      LaeuferZeigen(*n);
    if (m_store.LaeuferAnzahl > before)
      enterField(ui->Text2);
  });
  connect(ui->Command4, &QPushButton::clicked, this, [this] {
    if (!looksUndated(ui->Text4->text()))
      showRecord(m_store.LaeuferAnzahl);
  });
  connect(ui->List1, &LineList::chosen, this, [this](int line) { showRecord(numberAtEnd(ui->List1->lines()[line])); });
  ui->List1->saveAs([this] { return athleteTable(m_store); });
  ui->List1->addAction(QStringLiteral("Meldungen aus Tabelle einlesen …"), this, [this] { Q_EMIT entriesRequested(); });
  connect(ui->Command1, &QPushButton::clicked, this, &Form3::close);
}

void Form3::connectFields() {
  onLeave(ui->Text2, [this] {
    change([this](LaeuferSatz &athlete) { athlete.Name = trimmedBlanks(RecordText::of(ui->Text2)); });
    fillList();
  });
  onLeave(ui->Text3, [this] {
    change([this](LaeuferSatz &athlete) { athlete.OesvNr = trimmedBlanks(RecordText::of(ui->Text3)); });
  });
  onLeave(ui->Text4, [this] { ui->Text4->setText(storeBirthDate(m_store, m_shown, ui->Text4->text())); });
  onLeave(ui->Text5, [this] { storePoints(); });
  connect(ui->Option1, &QRadioButton::clicked, this, [this] { setSex(Sex::Male); });
  connect(ui->Option2, &QRadioButton::clicked, this, [this] { setSex(Sex::Female); });
  connectClub(ui->Combo1, &LaeuferSatz::Verein1);
  connectClub(ui->Combo2, &LaeuferSatz::Verein2);
  connectClub(ui->Combo3, &LaeuferSatz::Verein3);
}

void Form3::connectClub(QComboBox *combo, qint16 LaeuferSatz::*club) {
  onLeave(combo, [this, combo, club] {
    if (combo->currentIndex() >= 0)
      change([&](LaeuferSatz &athlete) { athlete.*club = qint16(combo->currentIndex()); });
  });
}

LaeuferSatz Form3::change(const std::function<void(LaeuferSatz &)> &change) {
  return changeAthlete(m_store, m_shown, change);
}

// Quirk: athlete points lose their fraction. They are shown with a comma and read only up to it. A number that the box
// could not give back is not taken.
void Form3::storePoints() {
  const auto points = typedSingle(ui->Text5->text());
  const auto take = [points](LaeuferSatz &athlete) { athlete.LaeuferPunkte = points.value_or(athlete.LaeuferPunkte); };
  const LaeuferSatz athlete = change(take);
  if (points)
    return;
  m_store.umgebung.beep();
  ui->Text5->setText(plainText(athlete.LaeuferPunkte));
}

void Form3::setSex(int sex) {
  change([sex](LaeuferSatz &athlete) { athlete.Geschlecht = qint16(sex); });
}

// Qt moves between option buttons only when one is chosen, and only along their row; here each arrow key goes to the
// other one and chooses it.
bool Form3::eventFilter(QObject *watched, QEvent *event) {
  const bool option = watched == ui->Option1 || watched == ui->Option2;
  if (!option || !isArrow(event))
    return Screen::eventFilter(watched, event);
  auto *other = watched == ui->Option1 ? ui->Option2 : ui->Option1;
  other->setFocus();
  other->click();
  return true;
}

void Form3::showRecord(qint64 record) {
  LaeuferZeigen(heldAthlete(m_store, record));
}

void Form3::startNewEntry(const QString &name) {
  showRecord(firstFreeAthlete(m_store));
  ui->Text2->setText(name);
  ui->Text2->setFocus();
}

// Setting another number into Text1 reads and shows the record once more.
void Form3::LaeuferZeigen(int n) {
  m_shown = n;
  ui->Text1->setText(plainText(n));
  const LaeuferSatz athlete = LaeuferLesen(m_store, n);
  RecordText::show(ui->Text2, athlete.Name);
  RecordText::show(ui->Text3, trimmedBlanks(athlete.OesvNr));
  showSex(athlete.Geschlecht);
  ui->Text4->setText(shortDate(fromDays(athlete.Geburtsdatum)));
  ui->Text5->setText(plainText(athlete.LaeuferPunkte));
  ui->Combo1->setCurrentIndex(athlete.Verein1);
  ui->Combo2->setCurrentIndex(athlete.Verein2);
  ui->Combo3->setCurrentIndex(athlete.Verein3);
  ui->List1->chooseByNumber(m_shown);
}

// The Tab key arrives at the one that is chosen, else at the first: the same keys give the same sex, whoever was
// entered before.
void Form3::showSex(int sex) {
  const bool female = sex == Sex::Female;
  setChosen(ui->Option1, sex == Sex::Male);
  setChosen(ui->Option2, female);
  ui->Option1->setFocusPolicy(female ? Qt::ClickFocus : Qt::StrongFocus);
  ui->Option2->setFocusPolicy(female ? Qt::StrongFocus : Qt::ClickFocus);
}

void Form3::showEntered() {
  fillClubs();
  fillList();
  LaeuferZeigen(m_shown);
}

void Form3::fillList() {
  ui->List1->refill(LaeuferListeFuellen(m_store), m_shown);
}
