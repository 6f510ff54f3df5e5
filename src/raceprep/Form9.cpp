#include "raceprep/Form9.h"

#include "platform/Numbers.h"
#include "raceprep/RaceRegister.h"
#include "ui_Form9.h"

Form9::Form9(Desk &desk, Store &store) : Screen(desk, QStringLiteral("Form9"), 9), ui(std::make_unique<Ui::Form9>()) {
  ui->setupUi(this);
  setUp();
  ui->Label1->setText(shownText(store.Rennen.RennenName));
  connect(ui->Command1, &QPushButton::clicked, this, [this, &store] {
    eraseRace(store);
    Q_EMIT raceDeleted();
    close();
  });
  connect(ui->Command2, &QPushButton::clicked, this, &Form9::close);
  connect(ui->Command3, &QPushButton::clicked, this, &Form9::close);
  ui->Command2->setFocus();
}

Form9::~Form9() = default;
