#include "timing/Form18.h"

#include "core/ValueFormats.h"
#include "platform/Numbers.h"
#include "timing/TimeDifference.h"
#include "ui_Form18.h"

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
  onKey(Qt::Key_Escape, [this] { close(); });
}

Form18::~Form18() = default;

void Form18::becomeActive() {
  ui->Text1->setFocus(Qt::TabFocusReason);
}

void Form18::subtract() {
  tidy(ui->Text6);
  tidy(ui->Text1);
  if (const auto difference = timeDifference(ui->Text1->text(), ui->Text6->text())) {
    ui->Text2->setText(plainText(*difference));
    ui->Command4->setFocus();
  }
}

void Form18::carryOver() {
  const QString difference = ui->Text2->text();
  if (!isTimeToTake(difference))
    return;
  Q_EMIT differenceTaken(difference);
  close();
}
