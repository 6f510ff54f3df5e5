#include "masterdata/Form2.h"

#include "core/RecordFiles.h"
#include "masterdata/ClubRegister.h"
#include "platform/Numbers.h"
#include "platform/qt/RecordText.h"
#include "ui_Form2.h"

Form2::Form2(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form2"), 2), m_store(store), ui(std::make_unique<Ui::Form2>()) {
  ui->setupUi(this);
  setUp();
  connectFields();
  connectButtons();
  showAndFill(lastClub(m_store));
  ui->List1->setFocus();
}

Form2::~Form2() = default;

void Form2::connectFields() {
  m_fields = {{ui->Text2, &VereinSatz::VereinName, ui->Text2},
              {ui->Text3, &VereinSatz::VereinKurz, ui->Text3},
              {ui->Text4, &VereinSatz::VereinOrt, ui->Text4},
              {ui->Text5, &VereinSatz::VereinOesvNr, ui->Text5},
              {ui->Text6, &VereinSatz::Ansprechpartner, ui->Text6},
              {ui->Text7, &VereinSatz::Adresse, ui->Text7},
              // Quirk: telephone takes the contact person.
              {ui->Text8, &VereinSatz::Telefon, ui->Text6},
              {ui->Text9, &VereinSatz::Handy, ui->Text9},
              {ui->Text10, &VereinSatz::Homepage, ui->Text10},
              {ui->Text11, &VereinSatz::EMail, ui->Text11}};
  for (const auto &field : m_fields)
    onLeave(field.box, [this, field] { storeField(field); });
}

void Form2::connectButtons() {
  onReturn(ui->Text1, [this] { showAndFill(heldClub(m_store, typedIndex())); });
  connect(ui->Command2, &QPushButton::clicked, this, [this] {
    if (const auto n = previousClub(m_store, typedIndex()))
      showAndFill(*n);
  });
  connect(ui->Command3, &QPushButton::clicked, this, [this] {
    const int before = m_store.VereinAnzahl;
    if (const auto n = nextClub(m_store, typedIndex(), RecordText::of(ui->Text2)))
      showAndFill(*n);
    if (m_store.VereinAnzahl > before)
      enterField(ui->Text2);
  });
  connect(ui->List1, &LineList::chosen, this, [this](int line) {
    const int number = numberAtEnd(ui->List1->lines()[line]);
    if (isClub(m_store, number))
      VereinZeigen(number);
  });
  connect(ui->Command1, &QPushButton::clicked, this, &Form2::close);
}

void Form2::storeField(const Field &field) {
  storeClubField(m_store, m_shown, field.field, RecordText::of(field.source));
  if (field.box == ui->Text2)
    ui->List1->refill(VereinListeFuellen(m_store), m_shown);
}

void Form2::VereinZeigen(int n) {
  m_shown = n;
  const VereinSatz club = VereinLesen(m_store, n);
  ui->Text1->setText(plainText(m_shown));
  for (const auto &field : m_fields)
    RecordText::show(field.box, trimmedBlanks(club.*field.field));
}

void Form2::showAndFill(int n) {
  VereinZeigen(n);
  ui->List1->fill(VereinListeFuellen(m_store));
  ui->List1->chooseByNumber(m_shown);
}

qint64 Form2::typedIndex() const {
  return wholeNumber(ui->Text1->text());
}

void Form2::closing() {
  VereinSchliessen(m_store);
}
