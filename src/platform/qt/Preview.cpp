#include "platform/qt/Preview.h"

#include "platform/print/Recording.h"
#include "platform/qt/Look.h"
#include "platform/qt/PreviewPages.h"
#include "platform/qt/PrintOutcomeView.h"
#include "platform/qt/PrintRun.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTimer>

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

Preview::Preview()
    : m_pages(new PreviewPages), m_position(new QLabel), m_outcome(new PrintOutcomeView), m_menu(new QMenu(this)) {
  setObjectName(QStringLiteral("Vorschau"));
  setWindowTitle(deviceName());
  m_position->setObjectName(QStringLiteral("Seite"));
  m_outcome->setContentsMargins(14, 0, 14, 10);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(buttons());
  column->addWidget(m_outcome);
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
  add("kleiner", QStringLiteral("kleiner"), [this] { m_pages->zoom(1 / PreviewPages::ZoomStep); });
  add("groesser", QStringLiteral("größer"), [this] { m_pages->zoom(PreviewPages::ZoomStep); });
  add("seite", QStringLiteral("ganze Seite"), [this] { m_pages->fit(PreviewPages::Fit::Page); });
  add("breite", QStringLiteral("ganze Breite"), [this] { m_pages->fit(PreviewPages::Fit::Width); });
  row->addSpacing(16);
  addButton(row, QStringLiteral("drucken"), QStringLiteral("drucken auf"))->setMenu(m_menu);
  row->addStretch();
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
  const int firstPage = m_pages->pageCount();
  m_documents.append(recording);
  m_pages->append(recording);
  show();
  raise();
  activateWindow();
  m_pages->setFocus();
  if (!std::exchange(m_arriving, true)) {
    m_pages->showPage(firstPage);
    QTimer::singleShot(0, this, [this] { m_arriving = false; });
  }
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
  if (!m_more.isEmpty())
    m_menu->addSeparator();
  const int race = m_documents.isEmpty() ? 0 : m_documents.last().race;
  for (const More &more : std::as_const(m_more))
    m_menu->addAction(more.caption, this, [this, more, race] { run(more, race); })->setEnabled(more.possible(race));
}

// It prints and changes nothing, so that no fault of it need end the program.
void Preview::run(const More &more, int race) {
  runPrinting(this, *m_printers, [&more, race] {
    try {
      more.run(race);
    } catch (const Fault &fault) {
      throw PrintFault(fault.report());
    }
  });
  m_outcome->tell(m_printers->outcome());
}

void Preview::send(const Printer &printer) {
  runPrinting(this, *m_printers, [this, &printer] {
    printSeries(m_documents.size(), [this, &printer](qsizetype i) {
      m_printers->print(m_documents[i], printer);
      return m_documents[i].title;
    });
  });
  m_outcome->tell(m_printers->outcome());
}

void Preview::closeEvent(QCloseEvent *event) {
  m_documents.clear();
  m_pages->clear();
  m_outcome->hide();
  event->accept();
}

void Preview::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else if (!m_pages->obey(event->key())) // a button may have the focus
    QWidget::keyPressEvent(event);
}
