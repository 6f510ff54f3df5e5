#include "printing/Form28.h"

#include "ui_Form28.h"

Form28::Form28(Desk &desk, Printers &printers)
    : Screen(desk, QStringLiteral("Form28"), 28), ui(std::make_unique<Ui::Form28>()), m_printers(printers) {
  ui->setupUi(this);
  setUp();
  connect(ui->List1, &LineList::chosen, this, [this] { ui->Command2->setEnabled(true); });
  connect(ui->Command2, &QPushButton::clicked, this, &Form28::takeChosen);
  onReturn(ui->List1, [this] { press(ui->Command2); });
  connect(ui->Command1, &QPushButton::clicked, this, &Form28::close);
  ui->List1->setFocus();
}

Form28::~Form28() = default;

void Form28::becomeActive() {
  m_listed = m_printers.all();
  QStringList names;
  for (const Printer &printer : std::as_const(m_listed))
    names.append(printer.DeviceName);
  setControlEnabled(ui->Command2, false, ui->List1);
  ui->List1->fill(names);
}

void Form28::takeChosen() {
  m_printers.makeCurrent(m_listed.at(ui->List1->chosenLine()));
  setControlEnabled(ui->Command2, false, ui->List1);
  close();
}
