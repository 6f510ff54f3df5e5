#include "raceprep/Form4.h"

#include "core/RaceList.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"
#include "platform/print/Printers.h"
#include "platform/qt/RecordText.h"
#include "raceprep/RaceRegister.h"
#include "ui_Form4.h"

#include <QMouseEvent>

Form4::Form4(Desk &desk, Store &store, Printers &printers)
    : Screen(desk, QStringLiteral("Form4"), 4), ui(std::make_unique<Ui::Form4>()), m_store(store),
      m_printers(printers) {
  ui->setupUi(this);
  setUp();
  resize(sizeHint().width(), fontMetrics().height() * 32);
  connectRegister();
  for (const auto &function : functions())
    connectFunction(function);
  refillRaces();
  ui->List1->setFocus();
}

Form4::~Form4() = default;

void Form4::connectRegister() {
  connect(ui->Text1, &QLineEdit::textChanged, this, &Form4::openRace);
  connect(ui->Command2, &QPushButton::clicked, this,
          [this] { ui->Text1->setText(previousRaceText(m_store, ui->Text1->text())); });
  connect(ui->Command3, &QPushButton::clicked, this, &Form4::nextRace);
  connect(ui->Command7, &QPushButton::clicked, this, &Form4::enterName);
  connect(ui->Command9, &QPushButton::clicked, this, &Form4::askDeletion);
  connect(ui->List1, &LineList::chosen, this, [this](int line) { chooseRace(raceOfLine(ui->List1->lines()[line])); });
  connect(ui->Command1, &QPushButton::clicked, this, [this] {
    RennenSchliessen(m_store);
    close();
  });
  ui->Text2->installEventFilter(this);
}

QList<Form4::Function> Form4::functions() const {
  return {
      {ui->Command4, QStringLiteral("Form5"), true, true},       {ui->Command5, QStringLiteral("Form6"), true, true},
      {ui->Command6, QStringLiteral("Form7"), true, true},       {ui->Command8, QStringLiteral("Form8"), true, true},
      {ui->Command10, QStringLiteral("Form11"), true, true},     {ui->Command11, QStringLiteral("Form12"), true, true},
      {ui->Command12, QStringLiteral("Form16"), true, true},     {ui->Command13, QStringLiteral("Form10"), true, true},
      {ui->Command14, QStringLiteral("Form14"), true, true},     {ui->Command15, QStringLiteral("Form15"), true, true},
      {ui->Command16, QStringLiteral("CupKopie"), false, false}, {ui->Command17, QStringLiteral("Form20"), false, true},
      {ui->Command18, QStringLiteral("Form19"), false, false}};
}

void Form4::connectFunction(const Function &function) {
  connect(function.button, &QPushButton::clicked, this, [this, function] {
    if (isReady(function))
      Q_EMIT openRequested(function.screen);
  });
}

bool Form4::isReady(const Function &function) const {
  if (function.button == ui->Command8 && m_printers.isEmpty())
    return false;
  return !function.needsName || !trimmedBlanks(typedName()).isEmpty();
}

void Form4::becomeActive() {
  m_store.AktRennen = m_store.RennenIdx;
}

QString Form4::waiting() const {
  const QString typed = ui->Text2->text();
  if (typed == m_shownName)
    return {};
  return QStringLiteral("%1: %2 „%3“\n").arg(windowTitle(), ui->Text2->accessibleName(), typed);
}

void Form4::chooseRace(int number) {
  ui->Text1->setText(plainText(number));
}

QString Form4::typedName() const {
  return RecordText::of(ui->Text2);
}

// The emptied list is painted before the records are read; clicks and keys wait.
void Form4::refillRaces() {
  ui->List1->fill({});
  ui->List1->viewport()->repaint();
  ui->List1->fill(RennenListeFuellen(m_store));
}

void Form4::showDeleted() {
  refillRaces();
  ui->Text2->setText(QStringLiteral("leer"));
  m_shownName = ui->Text2->text();
}

// A number out of range stays as it was typed.
void Form4::openRace() {
  openRaceNumbered(m_store, ui->Text1->text());
  RecordText::show(ui->Text2, m_store.Rennen.RennenName);
  m_shownName = ui->Text2->text();
}

void Form4::nextRace() {
  if (const auto next = nextRaceText(m_store, ui->Text1->text(), typedName()))
    ui->Text1->setText(*next);
}

void Form4::enterName() {
  enterRaceName(m_store, typedName());
  m_shownName = ui->Text2->text();
  refillRaces();
  lockFunctions(false);
}

void Form4::askDeletion() {
  if (m_store.RennenIdx < 1 || m_store.RennenIdx > m_store.RennenAnzahl)
    return;
  m_store.AktRennen = m_store.RennenIdx;
  Q_EMIT openRequested(QStringLiteral("Form9"));
}

void Form4::lockFunctions(bool locked) {
  for (const auto &function : functions())
    if (function.locked)
      function.button->setEnabled(!locked);
}

// A click into the name, not the Tab key, locks the functions: the new name is to be stored first.
bool Form4::eventFilter(QObject *watched, QEvent *event) {
  if (watched == ui->Text2 && event->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
    lockFunctions(true);
  return Screen::eventFilter(watched, event);
}
