#include "printing/Form21.h"

#include "platform/Numbers.h"
#include "platform/print/PictureFile.h"
#include "platform/qt/Look.h"
#include "platform/qt/Picture.h"
#include "ui_Form21.h"

#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

// The preview shows the page from 163 mm down, 202 × 126 mm.
constexpr double PageTop = 163, PageWidth = 202, PageHeight = 126;
constexpr double DotsAMillimetre = 96 / 25.4;               // before the desktop's scale
constexpr double MonitorWidth = 0.54, MonitorHeight = 0.63; // how much of a monitor the page may take

// On a small monitor the page is shown smaller, so that its fields stay beside it.
double zoomOn(QSize monitor) {
  return std::min({1.0, monitor.width() * MonitorWidth / (PageWidth * DotsAMillimetre),
                   monitor.height() * MonitorHeight / (PageHeight * DotsAMillimetre)});
}

} // namespace

Form21::Form21(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form21"), 21), ui(std::make_unique<Ui::Form21>()), m_store(store) {
  ui->setupUi(this);
  makePage();
  for (int i = 0; i < int(m_rows.size()); ++i)
    makeRow(i);
  setUp();
  fill(WerbungLesen(m_store));
  m_atOpening = werbungBytes(werbung());
  connect(ui->Command2, &QPushButton::clicked, this, [this] { move(&Row::rechts, 2); });
  connect(ui->Command3, &QPushButton::clicked, this, [this] { move(&Row::rechts, -2); });
  connect(ui->Command4, &QPushButton::clicked, this, [this] { move(&Row::runter, -1); });
  connect(ui->Command5, &QPushButton::clicked, this, [this] { move(&Row::runter, 1); });
  connect(ui->Command1, &QPushButton::clicked, this, &QWidget::close);
  ui->Command1->setFocus();
  preview();
}

Form21::~Form21() = default;

int Form21::pixels(double millimetres) const {
  return int(std::lround(millimetres * DotsAMillimetre * m_zoom));
}

void Form21::makePage() {
  m_zoom = zoomOn(screen()->availableSize());
  ui->Image3->setFixedSize(pixels(PageWidth), pixels(PageHeight));
  Look::setGround(ui->Image3, Qt::white);
  auto *line = new QFrame(ui->Image3);
  line->setObjectName(QStringLiteral("Line1"));
  Look::setGround(line, Qt::black);
  line->setGeometry(pixels(Titelfuss::Links), pixels(Titelfuss::LinieY - PageTop),
                    pixels(Titelfuss::Rechts - Titelfuss::Links), 2);
  auto *text = new QLabel(QStringLiteral("Mit freundlicher Unterstützung von"), ui->Image3);
  text->setObjectName(QStringLiteral("Label5"));
  QFont font(QStringLiteral("Times"));
  font.setPointSizeF(8 * m_zoom);
  font.setBold(true);
  text->setFont(font);
  text->adjustSize();
  text->move(pixels(PageWidth / 2) - text->width() / 2, pixels(Titelfuss::TextY - PageTop));
}

void Form21::makeRow(int i) {
  const auto named = [i](const char *name) { return QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(i); };
  Row &row = m_rows[std::size_t(i)];
  row.check = findChild<QCheckBox *>(named("Check1"));
  row.datei = findChild<QLineEdit *>(named("Text1"));
  row.rechts = findChild<QLineEdit *>(named("Text2"));
  row.runter = findChild<QLineEdit *>(named("Text3"));
  row.groesse = findChild<QLineEdit *>(named("Text4"));
  row.image = new Picture(ui->Image3);
  row.image->setObjectName(named("Image1"));
  row.image->installEventFilter(this);
  connect(row.check, &QCheckBox::clicked, this, [this, i] { select(i); });
  onEnter(row.datei, [this, i] { select(i); });
  for (auto *field : {row.datei, row.rechts, row.runter, row.groesse})
    onReturn(field, [this] { preview(); });
  hold(row.rechts, WerbeGrenzen::rechts);
  hold(row.runter, WerbeGrenzen::runter);
  hold(row.groesse, WerbeGrenzen::groesse);
}

// The bound stands in the field at once, also while a number is being typed.
void Form21::hold(QLineEdit *field, const WerbeGrenze &range) {
  connect(field, &QLineEdit::textChanged, this, [field, range](const QString &text) {
    if (const QString held = range.held(text); held != text)
      field->setText(held);
  });
}

void Form21::fill(const Werbung &werbung) {
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    m_rows[i].check->setChecked(werbung[i].gewaehlt);
    m_rows[i].datei->setText(werbung[i].datei);
    m_rows[i].rechts->setText(werbung[i].rechts);
    m_rows[i].runter->setText(werbung[i].runter);
    m_rows[i].groesse->setText(werbung[i].groesse);
  }
}

Werbung Form21::werbung() const {
  Werbung werbung;
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    werbung[i] = {m_rows[i].check->isChecked(), m_rows[i].datei->text(), m_rows[i].rechts->text(),
                  m_rows[i].runter->text(), m_rows[i].groesse->text()};
  return werbung;
}

void Form21::select(int i) {
  m_selection = i;
  preview();
}

void Form21::move(QLineEdit *Row::*field, int step) {
  if (m_selection >= 0)
    stepNumber(m_rows[std::size_t(m_selection)].*field, step);
}

void Form21::stepNumber(QLineEdit *box, int step) {
  box->setText(plainText(leadingNumber(box->text()) + step));
  preview();
}

// Their bounds stand in the fields while a number is typed, so that some can only be reached step by step.
bool Form21::stepByKey(QLineEdit *box, int key) {
  const bool numeric = std::none_of(m_rows.begin(), m_rows.end(), [box](const Row &row) { return box == row.datei; });
  if (!numeric || (key != Qt::Key_Up && key != Qt::Key_Down))
    return false;
  stepNumber(box, key == Qt::Key_Up ? 1 : -1);
  return true;
}

void Form21::preview() {
  for (std::size_t i = 0; i < m_rows.size(); ++i)
    showBanner(m_rows[i], int(i) == m_selection);
}

// The fields have the ground of the screen, but for those of the chosen banner.
void Form21::showBanner(const Row &row, bool chosen) {
  for (auto *field : {row.datei, row.rechts, row.runter, row.groesse})
    Look::setGround(field, palette().color(chosen ? QPalette::Base : QPalette::Window));
  const QString path = m_store.DatenOrdner + row.datei->text();
  const bool used = row.check->isChecked() && !row.datei->text().isEmpty() && QFile::exists(path);
  const QSize natural = used ? pictureSize(path) : QSize();
  row.image->setVisible(natural.isValid());
  if (!natural.isValid())
    return;
  const double scale = leadingNumber(row.groesse->text()) / 100 * m_zoom;
  row.image->setFile(path);
  row.image->setGeometry(pixels(leadingNumber(row.rechts->text())), pixels(leadingNumber(row.runter->text()) - PageTop),
                         int(std::lround(natural.width() * scale)), int(std::lround(natural.height() * scale)));
}

bool Form21::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::MouseButtonPress && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
    for (std::size_t i = 0; i < m_rows.size(); ++i)
      if (m_rows[i].image == watched)
        select(int(i));
  auto *box = qobject_cast<QLineEdit *>(watched);
  if (box && event->type() == QEvent::KeyPress && stepByKey(box, static_cast<QKeyEvent *>(event)->key()))
    return true;
  return Screen::eventFilter(watched, event);
}

QList<SavedFile> Form21::unsaved() const {
  const QByteArray now = werbungBytes(werbung());
  return now == m_atOpening ? QList<SavedFile>() : QList<SavedFile>{{QStringLiteral("werbung.dat"), now}};
}

void Form21::closing() {
  WerbungSchreiben(m_store, werbung());
}
