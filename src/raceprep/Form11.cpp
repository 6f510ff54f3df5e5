#include "raceprep/Form11.h"

#include "core/RaceFiles.h"
#include "platform/Numbers.h"
#include "raceprep/NameLists.h"
#include "ui_Form11.h"

Form11::Form11(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form11"), 11), m_store(store), ui(std::make_unique<Ui::Form11>()) {
  ui->setupUi(this);
  setUp();
  ui->Label1->setText(shownText(store.Rennen.RennenName));
  connectSide({ui->Text1, ui->Text2, ui->List1, store.MannschaftName});
  connectSide({ui->Text4, ui->Text3, ui->List2, store.GruppeName});
  connect(ui->Command4, &QPushButton::clicked, this, &QWidget::close);
  enterField(ui->Text1);
}

Form11::~Form11() = default;

void Form11::connectSide(const Side &side) {
  const auto number = [side] { return nameNumber(side.number->text()); };
  connect(side.number, &QLineEdit::textChanged, this, [side, number] {
    side.name->setEnabled(true);
    side.number->setText(plainText(number()));
    side.name->setText(side.names[number()]);
  });
  connect(side.name, &QLineEdit::textChanged, this,
          [side, number](const QString &text) { side.names[number()] = trimmedBlanks(text); });
  onReturn(side.number, [side] { enterField(side.name); });
  onReturn(side.name, [side, number] {
    side.number->setText(plainText(number() + 1));
    enterField(side.number);
  });
  side.list->showWholeLines(); // a name may end in a number of its own
  const auto fill = [side] { side.list->fill(nameLines(side.names)); };
  onLeave(side.name, fill);
  fill();
}

void Form11::closing() {
  RennDatenSpeichern(m_store);
}
