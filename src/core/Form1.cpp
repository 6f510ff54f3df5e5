#include "core/Form1.h"

#include "core/RecordFiles.h"
#include "core/WebAdresse.h"
#include "platform/Numbers.h"
#include "platform/qt/OpenOutside.h"
#include "platform/qt/Picture.h"
#include "ui_Form1.h"

#include <QDir>

#include <chrono>

using namespace std::chrono_literals;

Form1::Form1(Desk &desk, Store &store)
    : Screen(desk, QStringLiteral("Form1"), 1), ui(std::make_unique<Ui::Form1>()), m_store(store), m_timer(this) {
  ui->setupUi(this);
  setWindowTitle(store.ProgrammName + QStringLiteral("  V") + store.Version);
  makePictures();
  makeFolderLine();
  resize(QSize(62, 39) * fontMetrics().height());
  setUp();
  showName();
  ui->Label1->installEventFilter(this);
  m_timer.setObjectName(QStringLiteral("Timer1"));
  m_timer.setSingleShot(true);
  m_timer.setInterval(2000ms);
  connect(&m_timer, &QTimer::timeout, this, &Form1::showName);
  connect(ui->Command1, &QPushButton::clicked, this, [this] { Q_EMIT openRequested(QStringLiteral("Form3")); });
  connect(ui->Command2, &QPushButton::clicked, this, [this] { Q_EMIT openRequested(QStringLiteral("Form2")); });
  connect(ui->Command3, &QPushButton::clicked, this, [this] { Q_EMIT openRequested(QStringLiteral("Form4")); });
  connect(ui->Command4, &QPushButton::clicked, this, &Form1::close);
  ui->Command3->setFocus();
}

Form1::~Form1() = default;

void Form1::makePictures() {
  for (int i = 0; i < PictureCount; ++i) {
    auto *picture = m_pictures.at(std::size_t(i)) = new Picture(ui->bildRahmen);
    picture->setObjectName(QStringLiteral("Image") + plainText(i + 1));
    picture->setFile(QStringLiteral(":/bild%1.jpg").arg(i + 1));
    picture->hide();
    ui->bildLayout->addWidget(picture);
  }
}

void Form1::makeFolderLine() {
  const QString folder = QDir(m_store.DatenOrdner).absolutePath();
  ui->mappe->setText(QDir::toNativeSeparators(folder));
  connect(ui->mappeOeffnen, &QPushButton::clicked, this, [this, folder] { openOutside(this, folder); });
  connect(ui->hilfe, &QPushButton::clicked, this, &Form1::hilfeVerlangt);
}

void Form1::becomeActive() {
  ui->Label2->setText(plainText(m_store.LaeuferAnzahl));
  ui->Label3->setText(plainText(m_store.VereinAnzahl));
  ui->Label4->setText(plainText(m_store.RennenAnzahl));
  for (auto *picture : m_pictures)
    picture->hide();
  m_pictures.at(size_t(m_store.umgebung.randomNumber() * PictureCount))->show();
}

void Form1::closing() {
  VereinSchliessen(m_store);
  LaeuferSchliessen(m_store);
  RennenSchliessen(m_store);
}

bool Form1::eventFilter(QObject *watched, QEvent *event) {
  if (watched == ui->Label1 && event->type() == QEvent::MouseMove && !m_timer.isActive())
    showAddress();
  return Screen::eventFilter(watched, event);
}

void Form1::showAddress() {
  ui->Label1->setText(QString::fromLatin1(WebAdresse));
  m_timer.start();
}

void Form1::showName() {
  ui->Label1->setText(m_store.OrganisationName);
}
