#include "raceprep/Form15.h"

#include "core/RaceFiles.h"
#include "platform/Numbers.h"
#include "platform/qt/CellLabel.h"
#include "platform/qt/FarbTabelle.h"
#include "platform/qt/Look.h"
#include "ui_Form15.h"

namespace {

constexpr QRgb ChosenLetters = 0x00C000;

} // namespace

Form15::Form15(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form15"), 15), m_store(store), ui(std::make_unique<Ui::Form15>()) {
  ui->setupUi(this);
  buildGrid();
  setUp();
  ui->Label1->setText(shownText(store.Rennen.RennenName));
  loadGrid(store, m_raster);
  showNames();
  showCells();
  showHeadings();
  connectControls();
  if (m_cells[0]->isHidden())
    ui->Command1->setFocus();
  else
    m_cells[0]->setFocus();
}

Form15::~Form15() = default;

void Form15::buildGrid() {
  for (int klasse = 1; klasse <= Rows; ++klasse)
    addName(klasse);
  for (int column = 0; column < Columns; ++column)
    addHeading(column);
  for (int cell = 0; cell < Cells; ++cell)
    addCell(cell);
  ui->gridLayout->setRowStretch(Rows + 1, 1);
  orderTabs();
}

void Form15::addName(int klasse) {
  auto *name = m_names[klasse] = new QLabel(ui->gridCard);
  name->setObjectName(QStringLiteral("Label2_%1").arg(klasse - 1));
  ui->gridLayout->addWidget(name, klasse, 0);
}

void Form15::addHeading(int column) {
  auto *heading = m_headings[column] = new QLabel(ui->gridCard);
  heading->setObjectName(QStringLiteral("Label4_%1").arg(column));
  heading->setProperty("leise", true);
  heading->setAlignment(Qt::AlignCenter);
  ui->gridLayout->addWidget(heading, 0, column + 1);
}

void Form15::addCell(int cell) {
  auto *label = m_cells[cell] = new CellLabel(ui->gridCard);
  label->setObjectName(QStringLiteral("Label3_%1").arg(cell));
  label->setText(QStringLiteral("0"));
  label->setProperty("zeichen", 4);
  label->setMargin(1);
  label->setFrameShape(QFrame::StyledPanel);
  Look::setGround(label, QColor(FarbTabelle::Weiss));
  ui->gridLayout->addWidget(label, cell / Columns + 1, cell % Columns + 1);
  connect(label, &CellLabel::pressed, this, [this, cell] { selectCell(cell); });
  connect(label, &CellLabel::stepped, this,
          [this, cell](int columns, int rows) { focusNeighbour(cell, columns, rows); });
}

// The grid comes first, as the work does.
void Form15::orderTabs() {
  for (int cell = 1; cell < Cells; ++cell)
    setTabOrder(m_cells[cell - 1], m_cells[cell]);
  QWidget *before = m_cells[Cells - 1];
  for (QWidget *next : std::initializer_list<QWidget *>{ui->Text1, ui->Text2, ui->Command2, ui->Command4, ui->Command5,
                                                        ui->Command6, ui->Command1}) {
    setTabOrder(before, next);
    before = next;
  }
}

void Form15::connectControls() {
  onLeave(ui->Text1, [this] { storeName(); });
  onLeave(ui->Text2, [this] { storeNumber(); });
  connect(ui->Command2, &QPushButton::clicked, this, [this] {
    if (selected() >= 0)
      showNumber(selected());
  });
  connect(ui->Command4, &QPushButton::clicked, this, [this] { askToClear(true); });
  connect(ui->Command5, &QPushButton::clicked, this, &Form15::clearAll);
  connect(ui->Command6, &QPushButton::clicked, this, [this] { askToClear(false); });
  connect(ui->Command1, &QPushButton::clicked, this, &Form15::close);
}

void Form15::showNames() {
  for (int klasse = 1; klasse <= Rows; ++klasse) {
    m_names[klasse]->setText(m_store.KlasseName[klasse]);
    m_names[klasse]->setHidden(m_store.KlasseName[klasse].isEmpty());
  }
}

void Form15::showCells() {
  const auto cells = gridCells(m_store);
  for (int cell = 0; cell < Cells; ++cell) {
    const bool used = cell < cells.size();
    m_cells[cell]->setVisible(used && applies(m_store.Rennen, cells[cell]));
    if (used)
      m_cells[cell]->setAccessibleName(m_store.KlasseGenauName[cell]);
    showNumber(cell);
  }
  setTabStop(0);
}

void Form15::showHeadings() {
  const auto headings = gridHeadings(m_store.Rennen);
  for (int column = 0; column < Columns; ++column) {
    m_headings[column]->setText(headings[column]);
    m_headings[column]->setHidden(headings[column].isEmpty());
  }
}

int Form15::selected() const {
  return ui->Label5->text().toInt();
}

void Form15::showNumber(int cell) {
  m_cells[cell]->setText(plainText(m_raster[cell]));
}

void Form15::showSelected() {
  ui->Text1->setText(m_store.KlasseGenauName[selected()]);
  ui->Text2->setText(plainText(m_raster[selected()]));
}

void Form15::selectCell(int cell) {
  ui->Label5->setText(plainText(cell));
  const bool numbered = m_raster[cell] >= 1;
  if (!numberCell(m_raster, cell))
    m_store.umgebung.beep();
  else if (!numbered)
    showNumber(cell);
  showSelected();
  for (int other = 0; other < Cells; ++other)
    m_cells[other]->setChosen(other == cell, QColor(ChosenLetters));
  setTabStop(cell);
}

// Only one cell at a time is reached by Tab: the grid would else take up to 160 steps.
void Form15::setTabStop(int cell) {
  for (int other = 0; other < Cells; ++other)
    m_cells[other]->setFocusPolicy(other == cell ? Qt::StrongFocus : Qt::ClickFocus);
}

void Form15::focusNeighbour(int cell, int columns, int rows) {
  int column = cell % Columns + columns, row = cell / Columns + rows;
  for (; column >= 0 && column < Columns && row >= 0 && row < Rows; column += columns, row += rows) {
    const int next = row * Columns + column;
    if (m_cells[next]->isHidden())
      continue;
    setTabStop(next);
    m_cells[next]->setFocus();
    return;
  }
}

void Form15::storeName() {
  if (selected() >= 0)
    m_store.KlasseGenauName[selected()] = trimmedBlanks(ui->Text1->text());
}

void Form15::storeNumber() {
  if (selected() < 0)
    return;
  if (const auto number = shortNumber(ui->Text2->text()))
    m_raster[selected()] = *number;
  else
    m_store.umgebung.beep();
}

void Form15::askToClear(bool ask) {
  setControlVisible(ui->Command5, ask, ui->Command1);
  setControlVisible(ui->Command6, ask, ui->Command1);
}

void Form15::clearAll() {
  askToClear(false);
  clearGrid(m_store, m_raster);
  for (int cell = 0; cell < Cells; ++cell)
    showNumber(cell);
  if (selected() >= 0)
    showSelected();
}

QList<SavedFile> Form15::unsaved() const {
  return {{raceFileName(m_store, 'K', m_store.AktRennen).mid(m_store.DatenOrdner.size()),
           classFile(m_store, gridOrder(m_store, m_raster))}};
}

void Form15::closing() {
  storeGrid(m_store, m_raster);
  Q_EMIT saving();
  RennDatenSpeichern(m_store);
}
