#include "evaluation/Form12.h"

#include "evaluation/TeamList.h"
#include "platform/Numbers.h"
#include "platform/qt/PrintRun.h"
#include "ui_Form12.h"

#include <array>

namespace {

constexpr int FewestTimes = 2, MostTimes = 10;
constexpr std::array Units{Einheit::Verein, Einheit::Mannschaft, Einheit::Gruppe};

std::array<QCheckBox *, 3> unitBoxes(const Ui::Form12 &ui) {
  return {ui.Check1, ui.Check2, ui.Check3};
}

} // namespace

Form12::Form12(Desk &desk, Store &store, Printers &printers)
    : Screen(desk, QStringLiteral("Form12"), 12), m_store(store), m_printers(printers),
      ui(std::make_unique<Ui::Form12>()) {
  ui->setupUi(this);
  setUp();
  fillCombos();
  fill();
  connectControls();
  ui->Command2->setFocus();
}

Form12::~Form12() = default;

void Form12::fillCombos() {
  ui->Combo1->addItems({QStringLiteral("nach Zeit"), QStringLiteral("alphabetisch"), QStringLiteral("nach Klassen")});
  ui->Combo3->addItems({QStringLiteral("gemischt"), QStringLiteral("nur männlich"), QStringLiteral("nur weiblich")});
  for (int times = FewestTimes; times <= MostTimes; ++times)
    ui->Combo2->addItem(spacedText(times));
  ui->Combo2->hide();
}

void Form12::fill() {
  ui->Label1->setText(shownText(m_store.Rennen.RennenName));
  prepareUnits(m_store);
  ui->List1->fill(clubLines(m_store));
  ui->List3->fill(teamLines(m_store));
  ui->Check2->setVisible(!ui->List3->lines().isEmpty());
  ui->List4->fill(groupLines(m_store));
}

void Form12::connectControls() {
  for (int kind = 0; kind < int(Units.size()); ++kind)
    connect(unitBoxes(*ui)[size_t(kind)], &QCheckBox::clicked, this, [this, kind] { unitTicked(kind); });
  for (auto *option : {ui->Option1, ui->Option2, ui->Option3})
    connect(option, &QRadioButton::clicked, this, &Form12::lockPrint);
  connect(ui->Option3, &QRadioButton::clicked, ui->Combo2, &QWidget::show);
  connect(ui->Combo2, &QComboBox::activated, this, &Form12::lockPrint);
  connect(ui->Combo3, &QComboBox::activated, this, &Form12::lockPrint);
  connect(ui->Command2, &QPushButton::clicked, this, &Form12::evaluate);
  connect(ui->List2, &LineList::chosen, this, &Form12::showMembers);
  connect(ui->Command3, &QPushButton::clicked, this, &Form12::print);
  connect(ui->Command6, &QPushButton::clicked, this, &Form12::printerRequested);
  connect(ui->Command1, &QPushButton::clicked, this, &Form12::close);
  onKey(Qt::Key_F5, [this] { press(ui->Command2); });
  onKey(QKeySequence::Print, [this] { press(ui->Command3); });
}

void Form12::becomeActive() {
  ui->Label3->setText(m_printers.DeviceName());
  ui->ausgabe->tell(m_printers.outcome());
}

void Form12::lockPrint() {
  setControlEnabled(ui->Command3, false, ui->Command1);
}

void Form12::unitTicked(int kind) {
  const auto boxes = unitBoxes(*ui);
  if (boxes[size_t(kind)]->isChecked())
    for (auto *other : boxes)
      other->setChecked(other == boxes[size_t(kind)]);
  lockPrint();
}

// The list is painted with the times of each unit while the evaluation runs.
void Form12::evaluate() {
  ui->List2->fill(evaluateUnits(m_store, wertung(), [this](const QStringList &times) {
    ui->List5->fill(times);
    ui->List5->viewport()->repaint();
  }));
  ui->Command3->setEnabled(true);
}

void Form12::showMembers(int line) {
  const int unit = numberAtEnd(ui->List2->lines()[line]);
  ui->List5->fill(memberLines(m_store, wertung(), unit, MemberOrder(ui->Combo1->currentIndex())));
}

void Form12::print() {
  runPrinting(this, m_printers, [this] {
    Druckschicht druck(m_printers);
    Mannschaftsliste(m_store, druck, {wertung(), ui->List2->lines()}, [this](int line) {
      ui->List2->choose(line);
      showMembers(line);
      repaint();
      return ui->List5->lines();
    });
  });
  ui->ausgabe->tell(m_printers.outcome());
}

Wertung Form12::wertung() const {
  return {einheit(), art(), WertungsFilter(ui->Combo3->currentIndex()), ui->Combo2->currentIndex() + FewestTimes};
}

Einheit Form12::einheit() const {
  const auto boxes = unitBoxes(*ui);
  for (size_t kind = 0; kind < boxes.size(); ++kind)
    if (boxes[kind]->isChecked())
      return Units[kind];
  return Einheit::Keine;
}

WertungsArt Form12::art() const {
  if (ui->Option3->isChecked())
    return WertungsArt::ZeitsummeDerBesten;
  return ui->Option2->isChecked() ? WertungsArt::Durchschnitt : WertungsArt::Bestzeit;
}
