#include "printing/Form16.h"

#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "platform/qt/RecordText.h"
#include "ui_Form16.h"

Form16::Form16(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form16"), 16), ui(std::make_unique<Ui::Form16>()), m_store(store) {
  ui->setupUi(this);
  setUp();
  ui->Label1->setText(shownText(m_store.Rennen.RennenName));
  bind(ui->Text1, &RennenSatz::RennenOrt);
  bind(ui->Text2, &RennenSatz::RennenKurz);
  bind(ui->Text4, &RennenSatz::Veranstalter);
  bind(ui->Text5, &RennenSatz::DurchfVerein);
  bind(ui->Text6, &RennenSatz::Startzeit);
  bind(ui->Text7, &RennenSatz::Kurssetzung);
  bind(ui->Text8, &RennenSatz::Rennleiter);
  bind(ui->Text9, &RennenSatz::Tore);
  bind(ui->Text10, &RennenSatz::Zeitnehmung);
  bind(ui->Text11, &RennenSatz::Chefkampfrichter);
  bind(ui->Text12, &RennenSatz::Zielrichter);
  bind(ui->Text13, &RennenSatz::Startrichter);
  bind(ui->Text14, &RennenSatz::Sponsor1);
  bind(ui->Text15, &RennenSatz::Sponsor2);
  bind(ui->Text16, &RennenSatz::Sponsor3);
  bind(ui->Text17, &RennenSatz::Sponsor4);
  bind(ui->Text18, &RennenSatz::Sponsor5);
  bind(ui->Text19, &RennenSatz::Sponsor6);
  onLeave(ui->Text3, [this] { storeDate(); });
  connect(ui->Command10, &QPushButton::clicked, this, &Form16::bannersRequested);
  connect(ui->Command1, &QPushButton::clicked, this, &QWidget::close);
  ui->Command1->setFocus();
}

Form16::~Form16() = default;

void Form16::bind(QLineEdit *box, QString RennenSatz::*field) {
  m_bindings.append({box, field});
  onLeave(box, [this, box, field] { m_store.Rennen.*field = trimmedBlanks(RecordText::of(box)); });
}

void Form16::becomeActive() {
  for (const Binding &binding : m_bindings)
    RecordText::show(binding.box, m_store.Rennen.*binding.field);
  ui->Text3->setText(shortDate(fromDays(m_store.Rennen.RennenDatum)));
}

void Form16::storeDate() {
  if (const auto date = typedDate(trimmedBlanks(ui->Text3->text())))
    m_store.Rennen.RennenDatum = toDays(*date);
  else
    m_store.umgebung.beep();
}

void Form16::closing() {
  writeOpenRace(m_store);
}
