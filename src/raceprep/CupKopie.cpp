#include "raceprep/CupKopie.h"

#include "core/Store.h"
#include "platform/Numbers.h"
#include "raceprep/RaceCopy.h"
#include "ui_CupKopie.h"

CupKopie::CupKopie(Desk &desk, Store &store, std::function<QString()> raceText)
    : Screen(desk, QStringLiteral("CupKopie"), 0), m_store(store), m_raceText(std::move(raceText)),
      ui(std::make_unique<Ui::CupKopie>()) {
  ui->setupUi(this);
  setUp();
  ui->Label1->setText(ui->Label1->text().arg(plainText(store.AktRennen)));
  ui->Text2->setText(plainText(store.AktRennen + 1));
  onReturn(ui->Text2, [this] { ui->Check1->setFocus(); });
  connect(ui->Command16, &QPushButton::clicked, this, &CupKopie::makeCopy);
  connect(ui->Command1, &QPushButton::clicked, this, &CupKopie::close);
  ui->Text2->setFocus();
  ui->Text2->selectAll();
}

CupKopie::~CupKopie() = default;

// A number out of range closes the screen without a word.
void CupKopie::makeCopy() {
  if (const auto number = copyNumber(ui->Text2->text())) {
    copyRace(m_store, *number, m_raceText(), ui->Check1->isChecked());
    Q_EMIT copied();
  }
  close();
}
