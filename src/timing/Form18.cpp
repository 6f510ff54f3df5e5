#include "timing/Form18.h"

#include "core/ValueFormats.h"
#include "platform/Numbers.h"
#include "ui_Form18.h"

#include <cmath>

namespace {

void tidy(QLineEdit *box) {
  box->setText(KommaEingabe(box->text()));
}

} // namespace

Form18::Form18(Desk &desk) : Screen(desk, QStringLiteral("Form18"), 18), ui(std::make_unique<Ui::Form18>()) {
  ui->setupUi(this);
  setUp();
  onReturn(ui->Text1, [this] {
    tidy(ui->Text1);
    ui->Text6->setFocus(Qt::TabFocusReason);
  });
  onReturn(ui->Text6, [this] { subtract(); });
  connect(ui->Command4, &QPushButton::clicked, this, &Form18::carryOver);
}

Form18::~Form18() = default;

void Form18::becomeActive() {
  ui->Text1->setFocus(Qt::TabFocusReason);
}

void Form18::subtract() {
  tidy(ui->Text6);
  tidy(ui->Text1);
  const auto start = regionalNumber(ui->Text1->text()), finish = regionalNumber(ui->Text6->text());
  if (!start || !finish)
    return;
  ui->Text2->setText(plainText(std::fabs(*start - *finish)));
  ui->Command4->setFocus();
}

// The difference is tested up to its decimal comma, so one below a second is not carried over; this is meant.
void Form18::carryOver() {
  const QString difference = ui->Text2->text();
  if (leadingNumber(difference) == 0)
    return;
  Q_EMIT uebernommen(difference);
  close();
}
