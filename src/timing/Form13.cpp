#include "timing/Form13.h"

#include "ui_Form13.h"

Form13::Form13(Desk &desk, const Store &store)
    : Screen(desk, QStringLiteral("Form13"), 13), ui(std::make_unique<Ui::Form13>()), m_store(store) {
  ui->setupUi(this);
  setUp();
  connect(ui->Command1, &QPushButton::clicked, this, &Form13::close);
  onKey(Qt::Key_Escape, [this] { close(); });
  ui->List2->setFocus();
  showListing();
}

Form13::~Form13() = default;

void Form13::showListing() {
  ui->List2->fill(m_store.ranking.ErgebnisZeilen);
}
