#include "raceprep/Form10.h"

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "platform/Numbers.h"
#include "raceprep/ClassRules.h"
#include "ui_Form10.h"

#include <QSignalBlocker>

Form10::Form10(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form10"), 10), m_store(store), ui(std::make_unique<Ui::Form10>()) {
  ui->setupUi(this);
  setUp();
  ui->Label3->setText(shownText(store.Rennen.RennenName));
  connect(ui->List1, &LineList::chosen, this, &Form10::chooseLine);
  connectFields();
  connectButtons();
  ui->List1->setFocus();
}

Form10::~Form10() = default;

void Form10::connectFields() {
  connect(ui->Text5, &QLineEdit::textChanged, this, &Form10::numberChanged);
  connect(ui->Text6, &QLineEdit::textChanged, this, &Form10::nameChanged);
  onReturn(ui->Text5, [this] { enterField(ui->Text6); });
  onReturn(ui->Text6, [this] { enterField(ui->Text1); });
  onReturn(ui->Text1, [this] { enterField(ui->Text2); });
  onLeave(ui->Text5, [this] { refresh(); });
  onLeave(ui->Text6, [this] { refresh(); });
  onLeave(ui->Text1, [this] { storeYear(true); });
  onLeave(ui->Text2, [this] { storeYear(false); });
}

void Form10::connectButtons() {
  connect(ui->Command7, &QPushButton::clicked, this, &Form10::refresh);
  connect(ui->Command5, &QPushButton::clicked, this, &Form10::deleteChosen);
  connect(ui->Command2, &QPushButton::clicked, this, [this] { askForStandard(true); });
  connect(ui->Command3, &QPushButton::clicked, this, &Form10::loadStandard);
  connect(ui->Command4, &QPushButton::clicked, this, [this] { askForStandard(false); });
  connect(ui->Command1, &QPushButton::clicked, this, &Form10::close);
}

void Form10::becomeActive() {
  refresh();
}

void Form10::refresh() {
  ui->List1->fill(KlassenAktualisieren(m_store));
}

int Form10::shownClass() const {
  return int(wholeNumber(ui->Text5->text()));
}

// Quirk: line taken for the class number. An empty row inside the table shifts it. The change rules stay silent: they
// would hold 17 to 20 to 16 and rename that class.
void Form10::chooseLine(int line) {
  const QSignalBlocker number(ui->Text5), name(ui->Text6);
  ui->Text5->setText(plainText(line + 1));
  showClass(line + 1);
  enableFields(true);
}

void Form10::numberChanged() {
  ui->Text6->setEnabled(true);
  const int number = heldClassNumber(ui->Text5->text());
  ui->Text5->setText(plainText(number));
  showClass(number);
}

void Form10::nameChanged() {
  if (shownClass() >= 1 && shownClass() <= LastEditableClass)
    m_store.KlasseName[shownClass()] = trimmedBlanks(ui->Text6->text());
}

void Form10::storeYear(bool first) {
  QLineEdit *field = first ? ui->Text1 : ui->Text2;
  const int year = heldYear(m_store, field->text());
  field->setText(plainText(year));
  (first ? m_store.KlasseVon : m_store.KlasseBis)[shownClass()] = year;
  refresh();
}

void Form10::showClass(int klasse) {
  ui->Text6->setText(m_store.KlasseName[klasse]);
  ui->Text1->setText(plainText(m_store.KlasseVon[klasse]));
  ui->Text2->setText(plainText(m_store.KlasseBis[klasse]));
}

void Form10::enableFields(bool enabled) {
  for (auto *field : {ui->Text6, ui->Text1, ui->Text2})
    setControlEnabled(field, enabled, ui->Command1);
}

void Form10::deleteChosen() {
  const int line = ui->List1->chosenLine();
  if (line < 0)
    return;
  deleteClass(m_store, line + 1);
  enableFields(false);
  refresh();
}

void Form10::askForStandard(bool ask) {
  setControlVisible(ui->Command3, ask, ui->Command1);
  setControlVisible(ui->Command4, ask, ui->Command1);
}

void Form10::loadStandard() {
  takeStandardClasses(m_store);
  refresh();
  askForStandard(false);
  setControlVisible(ui->Command2, false, ui->Command1);
}

void Form10::closing() {
  KlassenZuordnen(m_store);
  RennDatenSpeichern(m_store);
}
