#include "platform/qt/Preview.h"

#include "platform/qt/Look.h"
#include "platform/qt/PreviewPages.h"
#include "platform/qt/PrintRun.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>

namespace {

QString deviceName() {
  return QStringLiteral("Vorschau am Bildschirm");
}

QPushButton *addButton(QBoxLayout *row, const QString &name, const QString &caption) {
  auto *button = new QPushButton(caption);
  button->setObjectName(name);
  button->setProperty("zeichen", caption.size() + 1);
  row->addWidget(button);
  return button;
}

} // namespace

Preview::Preview() : m_pages(new PreviewPages), m_position(new QLabel), m_file(new QLabel), m_menu(new QMenu(this)) {
  setObjectName(QStringLiteral("Vorschau"));
  setWindowTitle(deviceName());
  m_position->setObjectName(QStringLiteral("Seite"));
  m_file->setObjectName(QStringLiteral("letzteDatei"));
  m_file->setProperty("leise", true);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(buttons());
  column->addWidget(m_pages, 1);
  Look::applyProperties(this);
  connect(m_menu, &QMenu::aboutToShow, this, &Preview::fillMenu);
  connect(m_pages, &PreviewPages::moved, this, &Preview::showPosition);
}

QBoxLayout *Preview::buttons() {
  auto *row = new QHBoxLayout;
  row->setContentsMargins(14, 10, 14, 10);
  row->setSpacing(8);
  const auto add = [this, row](const char *name, const QString &caption, auto action) {
    connect(addButton(row, QLatin1String(name), caption), &QPushButton::clicked, m_pages, action);
  };
  add("zurueck", QStringLiteral("Seite zurück"), [this] { m_pages->showPage(m_pages->currentPage() - 1); });
  row->addWidget(m_position);
  add("vor", QStringLiteral("Seite vor"), [this] { m_pages->showPage(m_pages->currentPage() + 1); });
  row->addSpacing(16);
  add("kleiner", QStringLiteral("kleiner"), [this] { m_pages->zoom(1 / 1.25); });
  add("groesser", QStringLiteral("größer"), [this] { m_pages->zoom(1.25); });
  add("breite", QStringLiteral("ganze Breite"), [this] { m_pages->fitWidth(); });
  row->addSpacing(16);
  addButton(row, QStringLiteral("drucken"), QStringLiteral("drucken auf"))->setMenu(m_menu);
  row->addWidget(m_file, 1);
  add("fertig", QStringLiteral("fertig"), [this] { close(); });
  return row;
}

Printer Preview::printer() {
  return {deviceName(), [this](const Recording &recording) {
            append(recording);
            return QString();
          }};
}

void Preview::append(const Recording &recording) {
  takeFirstSize();
  m_documents.append(recording);
  m_pages->append(recording);
  show();
  raise();
  activateWindow();
  m_pages->setFocus();
}

// Tall enough to read a page, as far as the monitor allows.
void Preview::takeFirstSize() {
  if (testAttribute(Qt::WA_Resized))
    return;
  const QSize monitor = screen()->availableSize();
  resize(std::min(monitor.width(), sizeHint().width() + 200), monitor.height() * 9 / 10);
}

void Preview::showPosition() {
  m_position->setText(QStringLiteral("Seite %1 von %2").arg(m_pages->currentPage() + 1).arg(m_pages->pageCount()));
}

void Preview::fillMenu() {
  m_menu->clear();
  if (!m_printers)
    return;
  for (const Printer &printer : m_printers->all())
    if (printer.DeviceName != deviceName())
      m_menu->addAction(printer.DeviceName, this, [this, printer] { send(printer); });
}

void Preview::send(const Printer &printer) {
  runPrinting(this, [this, &printer] {
    for (const Recording &recording : m_documents)
      m_printers->print(recording, printer);
  });
  m_file->setText(QFileInfo(m_printers->lastFile()).fileName());
}

void Preview::closeEvent(QCloseEvent *event) {
  m_documents.clear();
  m_pages->clear();
  m_file->clear();
  event->accept();
}

void Preview::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    QWidget::keyPressEvent(event);
}
