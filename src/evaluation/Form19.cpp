#include "evaluation/Form19.h"

#include "core/RaceList.h"
#include "evaluation/Series.h"
#include "evaluation/TimeSum.h"
#include "platform/Numbers.h"
#include "platform/qt/BusyTime.h"
#include "ui_Form19.h"

Form19::Form19(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form19"), 19), m_store(store), ui(std::make_unique<Ui::Form19>()) {
  ui->setupUi(this);
  setUp();
  // Wrapped lines ask for no height of their own in the smallest window.
  ui->Label3->setMinimumHeight(ui->Label3->heightForWidth(ui->Label3->minimumWidth()));
  ui->List1->fill(raceLines(m_store));
  ui->Label2->setText(plainText(timeSumNumber(ui->List1->lines())));
  connect(ui->List1, &MarkList::markToggled, this,
          [this] { setControlEnabled(ui->Command2, ui->List1->marked().size() >= 2, ui->Command1); });
  connect(ui->Command2, &QPushButton::clicked, this, &Form19::generate);
  connect(ui->Command1, &QPushButton::clicked, this, &Form19::close);
  ui->List1->setFocus();
}

Form19::~Form19() = default;

void Form19::generate() {
  setControlEnabled(ui->List1, false, ui->Command1);
  setControlEnabled(ui->Command2, false, ui->Command1);
  {
    const BusyTime busy;
    Q_EMIT workBegun();
    generateTimeSum(m_store, markedRaces(ui->List1->lines(), ui->List1->marked()),
                    int(wholeNumber(ui->Label2->text())));
    Q_EMIT workEnded();
  }
  Q_EMIT raceGenerated();
  close();
}
