#include "raceprep/Form14.h"

#include "core/RecordFiles.h"
#include "platform/Numbers.h"
#include "ui_Form14.h"

Form14::Form14(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form14"), 14), m_store(store), ui(std::make_unique<Ui::Form14>()) {
  ui->setupUi(this);
  setUp();
  RennenLesen(store);
  auto &rennen = store.Rennen;
  ui->Label1->setText(shownText(rennen.RennenName));
  setPair(ui->Check1, ui->Check2, rennen.WertKlassen);
  setSwitch(ui->Check3, rennen.WertGeschlecht);
  setSwitch(ui->Check4, rennen.WertGaeste);
  setSwitch(ui->Check8, rennen.WertBoarder);
  setPair(ui->Check6, ui->Check5, rennen.WertZeit);
  setSwitch(ui->Check7, rennen.ZweiDurchgaenge);
  setSurcharge(ui->Text1, rennen.ZuschlagGast);
  setSurcharge(ui->Text2, rennen.ZuschlagMann);
  connect(ui->Command1, &QPushButton::clicked, this, &QWidget::close);
  ui->Check1->setFocus();
}

Form14::~Form14() = default;

void Form14::setSwitch(QCheckBox *check, quint8 &field) {
  check->setChecked(field == 1);
  connect(check, &QCheckBox::clicked, this, [&field](bool on) { field = on; });
}

// Exactly one of the two stands ticked once either was clicked; a value from elsewhere that is neither 1 nor 0 ticks
// none and stays until then.
void Form14::setPair(QCheckBox *one, QCheckBox *zero, quint8 &field) {
  one->setChecked(field == 1);
  zero->setChecked(field == 0);
  connect(one, &QCheckBox::clicked, this, [zero, &field](bool on) {
    zero->setChecked(!on);
    field = on;
  });
  connect(zero, &QCheckBox::clicked, this, [one, &field](bool on) {
    one->setChecked(!on);
    field = !on;
  });
}

// Quirk: surcharge loses its fraction. Read with a point and shown with a comma: leaving 1,5 once more makes it 1. What
// the box could not give back is not taken.
void Form14::setSurcharge(QLineEdit *text, double &field) {
  text->setText(plainText(field));
  onLeave(text, [this, text, &field] {
    if (const auto seconds = typedNumber(text->text()))
      field = *seconds;
    else
      m_store.umgebung.beep();
    text->setText(plainText(field));
  });
}

void Form14::closing() {
  writeOpenRace(m_store);
}
