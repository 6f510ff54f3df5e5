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
  for (int i = 0; i < int(m_controls.size()); ++i)
    makeRow(i);
  setUp();
  fill(loadBanners(m_store));
  m_atOpening = bannerBytes(werbung());
  connect(ui->Command2, &QPushButton::clicked, this, [this] { move(&Controls::right, 2); });
  connect(ui->Command3, &QPushButton::clicked, this, [this] { move(&Controls::right, -2); });
  connect(ui->Command4, &QPushButton::clicked, this, [this] { move(&Controls::down, -1); });
  connect(ui->Command5, &QPushButton::clicked, this, [this] { move(&Controls::down, 1); });
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
  Controls &controls = m_controls[std::size_t(i)];
  controls.check = findChild<QCheckBox *>(named("Check1"));
  controls.file = findChild<QLineEdit *>(named("Text1"));
  controls.right = findChild<QLineEdit *>(named("Text2"));
  controls.down = findChild<QLineEdit *>(named("Text3"));
  controls.size = findChild<QLineEdit *>(named("Text4"));
  controls.image = new Picture(ui->Image3);
  controls.image->setObjectName(named("Image1"));
  controls.image->installEventFilter(this);
  connect(controls.check, &QCheckBox::clicked, this, [this, i] { select(i); });
  onEnter(controls.file, [this, i] { select(i); });
  for (auto *field : {controls.file, controls.right, controls.down, controls.size})
    onReturn(field, [this] { preview(); });
  hold(controls.right, BannerFields::right);
  hold(controls.down, BannerFields::down);
  hold(controls.size, BannerFields::size);
}

// The bound stands in the field at once, also while a number is being typed.
void Form21::hold(QLineEdit *field, const BannerRange &range) {
  connect(field, &QLineEdit::textChanged, this, [field, range](const QString &text) {
    if (const QString held = range.held(text); held != text)
      field->setText(held);
  });
}

void Form21::fill(const Werbung &werbung) {
  for (std::size_t i = 0; i < m_controls.size(); ++i) {
    m_controls[i].check->setChecked(werbung[i].chosen);
    m_controls[i].file->setText(werbung[i].file);
    m_controls[i].right->setText(werbung[i].right);
    m_controls[i].down->setText(werbung[i].down);
    m_controls[i].size->setText(werbung[i].size);
  }
}

Werbung Form21::werbung() const {
  Werbung werbung;
  for (std::size_t i = 0; i < m_controls.size(); ++i)
    werbung[i] = {m_controls[i].check->isChecked(), m_controls[i].file->text(), m_controls[i].right->text(),
                  m_controls[i].down->text(), m_controls[i].size->text()};
  return werbung;
}

void Form21::select(int i) {
  m_selection = i;
  preview();
}

void Form21::move(QLineEdit *Controls::*field, int step) {
  if (m_selection >= 0)
    stepNumber(m_controls[std::size_t(m_selection)].*field, step);
}

void Form21::stepNumber(QLineEdit *box, int step) {
  box->setText(plainText(leadingNumber(box->text()) + step));
  preview();
}

// Their bounds stand in the fields while a number is typed, so that some can only be reached step by step.
bool Form21::stepByKey(QLineEdit *box, int key) {
  const bool numeric = std::none_of(m_controls.begin(), m_controls.end(),
                                    [box](const Controls &controls) { return box == controls.file; });
  if (!numeric || (key != Qt::Key_Up && key != Qt::Key_Down))
    return false;
  stepNumber(box, key == Qt::Key_Up ? 1 : -1);
  return true;
}

void Form21::preview() {
  for (std::size_t i = 0; i < m_controls.size(); ++i)
    showBanner(m_controls[i], int(i) == m_selection);
}

// The fields have the ground of the screen, but for those of the chosen banner.
void Form21::showBanner(const Controls &controls, bool chosen) {
  for (auto *field : {controls.file, controls.right, controls.down, controls.size})
    Look::setGround(field, palette().color(chosen ? QPalette::Base : QPalette::Window));
  const QString path = m_store.DatenOrdner + controls.file->text();
  const bool used = controls.check->isChecked() && !controls.file->text().isEmpty() && QFile::exists(path);
  const QSize natural = used ? pictureSize(path) : QSize();
  controls.image->setVisible(natural.isValid());
  if (!natural.isValid())
    return;
  const double scale = leadingNumber(controls.size->text()) / 100 * m_zoom;
  controls.image->setFile(path);
  controls.image->setGeometry(pixels(leadingNumber(controls.right->text())),
                              pixels(leadingNumber(controls.down->text()) - PageTop),
                              int(std::lround(natural.width() * scale)), int(std::lround(natural.height() * scale)));
}

bool Form21::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::MouseButtonPress && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
    for (std::size_t i = 0; i < m_controls.size(); ++i)
      if (m_controls[i].image == watched)
        select(int(i));
  auto *box = qobject_cast<QLineEdit *>(watched);
  if (box && event->type() == QEvent::KeyPress && stepByKey(box, static_cast<QKeyEvent *>(event)->key()))
    return true;
  return Screen::eventFilter(watched, event);
}

QList<SavedFile> Form21::unsaved() const {
  const QByteArray now = bannerBytes(werbung());
  return now == m_atOpening ? QList<SavedFile>() : QList<SavedFile>{{QStringLiteral("werbung.dat"), now}};
}

void Form21::closing() {
  saveBanners(m_store, werbung());
}
