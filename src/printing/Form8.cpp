#include "printing/Form8.h"

#include "core/RecordFiles.h"
#include "masterdata/ClubRegister.h"
#include "platform/Numbers.h"
#include "platform/qt/PrintRun.h"
#include "printing/Documents.h"
#include "printing/PrintChoices.h"
#include "timing/Ranking.h"
#include "ui_Form8.h"

namespace {

/// A stored choice beyond the list leaves the first entry shown.
void showChoice(QComboBox *combo, int stored) {
  combo->setCurrentIndex(stored >= 0 && stored < combo->count() ? stored : 0);
}

} // namespace

Form8::Form8(Desk &desk, Store &store, Printers &printers)
    : Screen(desk, QStringLiteral("Form8"), 8), m_store(store), m_printers(printers),
      ui(std::make_unique<Ui::Form8>()) {
  ui->setupUi(this);
  setUp();
  fill();
  connectDocuments();
  connectChoices();
  ui->Command3->setFocus();
}

Form8::~Form8() = default;

void Form8::fill() {
  ui->Label1->setText(shownText(m_store.Rennen.RennenName));
  ui->Combo3->addItems(shortNamesOfClubs(m_store));
  ui->Combo3->setCurrentIndex(-1);
  ui->Combo4->addItems(classNames(m_store));
  for (QWidget *later : {static_cast<QWidget *>(ui->Combo3), ui->alternativerText})
    later->hide();
  ErgebnisRechnen(m_store, clubFilter());
  ui->List2->fill(rankingLines(m_store));
}

void Form8::connectDocuments() {
  connect(ui->Command3, &QPushButton::clicked, this,
          [this] { print([this](Druckschicht &druck) { Ergebnisliste(m_store, druck, clubFilter()); }); });
  connect(ui->Command4, &QPushButton::clicked, this,
          [this] { print([this](Druckschicht &druck) { Teilnehmerliste(m_store, druck); }); });
  connect(ui->Command9, &QPushButton::clicked, this,
          [this] { print([this](Druckschicht &druck) { AlphabetischeListe(m_store, druck); }); });
  connect(ui->Command2, &QPushButton::clicked, this, [this] { printOnce(ui->Command2, StartlisteZweiterDurchgang); });
  connect(ui->Command7, &QPushButton::clicked, this, [this] { printOnce(ui->Command7, NichtInDerWertung); });
  connect(ui->Command5, &QPushButton::clicked, this,
          [this] { print([this](Druckschicht &druck) { printCertificates(druck); }); });
  connect(ui->Command8, &QPushButton::clicked, this,
          [this] { print([this](Druckschicht &druck) { printTitlePage(druck); }); });
}

void Form8::connectChoices() {
  connect(ui->Command1, &QPushButton::clicked, this, &Form8::close);
  connect(ui->Command6, &QPushButton::clicked, this, &Form8::printerRequested);
  onKey(QKeySequence::Print, [this] { press(ui->Command3); });
  connect(ui->Command10, &QPushButton::clicked, this, [this] {
    keepBanners();
    Q_EMIT bannersRequested();
  });
  connect(ui->Check1, &QCheckBox::clicked, this, [this](bool on) { ui->Combo3->setVisible(on); });
  connect(ui->Check2, &QCheckBox::clicked, this, [this](bool on) { ui->alternativerText->setVisible(on); });
  connect(ui->Combo1, &QComboBox::activated, this, [this](int index) { m_store.Rennen.UrkundeBild = qint16(index); });
  connect(ui->Combo2, &QComboBox::activated, this, [this](int index) { m_store.Rennen.BestzeitText = qint16(index); });
  connect(ui->Combo4, &QComboBox::activated, this,
          [this](int index) { m_store.Rennen.BestzeitAbKlasse = quint8(index); });
}

void Form8::becomeActive() {
  keepBanners();
  showPrinter();
  setControlEnabled(ui->Command6, !m_printers.isEmpty(), ui->Command1);
  showChoice(ui->Combo1, m_store.Rennen.UrkundeBild);
  showChoice(ui->Combo2, m_store.Rennen.BestzeitText);
  ui->Combo4->setCurrentIndex(m_store.Rennen.BestzeitAbKlasse);
}

void Form8::showPrinter() {
  ui->Label3->setText(m_printers.DeviceName());
  ui->ausgabe->tell(m_printers.outcome());
}

// Quirk: club filter without a club. Nobody passes.
std::optional<int> Form8::clubFilter() const {
  if (!ui->Check1->isChecked())
    return {};
  return ui->Combo3->currentIndex() + 1;
}

void Form8::print(const std::function<void(Druckschicht &)> &document) {
  repaint(); // the disabled button shows while the document is made
  runPrinting(this, m_printers, [this, &document] {
    Druckschicht druck(m_printers);
    document(druck);
  });
  showPrinter();
}

void Form8::printOnce(QPushButton *button, const std::function<void(Store &, Druckschicht &)> &document) {
  const bool focused = button->hasFocus();
  setControlEnabled(button, false, ui->Command1);
  print([this, &document](Druckschicht &druck) { document(m_store, druck); });
  button->setEnabled(true);
  if (focused)
    button->setFocus();
}

void Form8::printCertificates(Druckschicht &druck) {
  std::optional<UrkundenText> text;
  if (ui->Check2->isChecked())
    text = UrkundenText{ui->Text1->text(), ui->Text2->text(), ui->Text3->text()};
  const QList<int> marked = ui->List2->marked();
  printSeries(marked.size(), [&](qsizetype i) {
    const int row = numberAtEnd(ui->List2->lines().at(marked[i]));
    Urkunde(m_store, druck, row, text);
    return shownText(LaeuferLesen(m_store, m_store.Teilnehmer[row].LaeuferNr).Name);
  });
}

void Form8::printTitlePage(Druckschicht &druck) {
  if (!m_werbung)
    m_werbung = loadBanners(m_store);
  Titelblatt(m_store, druck, *m_werbung);
}

// A title page takes the banners into hand as if their screen were open; they are written back when it would close.
void Form8::keepBanners() {
  if (const auto werbung = std::exchange(m_werbung, {}))
    saveBanners(m_store, *werbung);
}

void Form8::closing() {
  keepBanners();
  writeOpenRace(m_store);
}
