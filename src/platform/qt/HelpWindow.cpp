#include "platform/qt/HelpWindow.h"

#include "platform/qt/Look.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextDocument>
#include <QTreeWidget>

namespace {

constexpr int PictureWidth = 640, PrintedPictureWidth = 560;

QUrl addressOf(const Handbook::Place &place) {
  QUrl url(QStringLiteral("seite:%1").arg(place.page));
  url.setFragment(anchorOf(place.section));
  return url;
}

} // namespace

HandbookView::HandbookView(const Handbook &handbook, QWidget *parent) : QTextBrowser(parent), m_handbook(handbook) {
  setObjectName(QStringLiteral("seite"));
  setAccessibleName(QStringLiteral("Seite des Handbuchs"));
  setOpenLinks(false);
  document()->setDocumentMargin(18);
  connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) {
    if (const auto place = m_handbook.placeOf(link.fragment()))
      show(*place);
  });
}

void HandbookView::show(const Handbook::Place &place) {
  setSource(addressOf(place), QTextDocument::MarkdownResource);
}

int HandbookView::page() const {
  return source().path().toInt();
}

// A picture is made as wide as it is shown, since a large one painted small looks torn.
QVariant HandbookView::loadResource(int type, const QUrl &name) {
  if (type == QTextDocument::MarkdownResource)
    return m_handbook.pages().value(name.path().toInt()).markdown;
  QImage picture(Handbook::folder() + name.path());
  const int width = int(PictureWidth * devicePixelRatio());
  if (picture.width() > width)
    picture = picture.scaledToWidth(width, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(devicePixelRatio());
  return picture;
}

void HandbookView::doSetSource(const QUrl &url, QTextDocument::ResourceType type) {
  const bool another = url.path() != source().path();
  QTextBrowser::doSetSource(url, type);
  if (another)
    setHandbookText(*document(), m_handbook.pages().value(page()).markdown, PictureWidth);
  if (url.hasFragment())
    scrollToAnchor(url.fragment());
}

// The attribute tells the guard of the fields that this is no screen to leave a field for.
HelpWindow::HelpWindow() : m_view(new HandbookView(m_handbook)), m_contents(new QTreeWidget), m_sought(new QLineEdit) {
  setObjectName(QStringLiteral("Handbuch"));
  setWindowTitle(QStringLiteral("VEXT – Handbuch"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto *row = new QHBoxLayout;
  row->addLayout(leftColumn());
  row->addWidget(m_view, 1);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(14, 10, 14, 14);
  column->addLayout(buttons());
  column->addLayout(row, 1);
  fillContents();
  Look::applyProperties(this);
  resize(QSize(66, 44) * fontMetrics().height());
  connect(m_view, &QTextBrowser::sourceChanged, this, &HelpWindow::markContents);
}

QBoxLayout *HelpWindow::leftColumn() {
  m_sought->setObjectName(QStringLiteral("suche"));
  m_sought->setAccessibleName(QStringLiteral("Im Handbuch suchen"));
  m_sought->setPlaceholderText(QStringLiteral("suchen"));
  m_sought->setClearButtonEnabled(true);
  connect(m_sought, &QLineEdit::returnPressed, this, &HelpWindow::search);
  m_contents->setObjectName(QStringLiteral("inhalt"));
  m_contents->setAccessibleName(QStringLiteral("Inhalt"));
  m_contents->setHeaderHidden(true);
  auto *column = new QVBoxLayout;
  column->addWidget(m_sought);
  column->addWidget(m_contents, 1);
  for (auto *part : std::initializer_list<QWidget *>{m_sought, m_contents})
    part->setFixedWidth(17 * fontMetrics().height());
  return column;
}

QBoxLayout *HelpWindow::buttons() {
  auto *row = new QHBoxLayout;
  const auto add = [row](const char *name, const QString &caption) {
    auto *button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    row->addWidget(button);
    return button;
  };
  auto *back = add("zurueck", QStringLiteral("zurück"));
  back->setEnabled(false);
  connect(back, &QPushButton::clicked, m_view, &QTextBrowser::backward);
  connect(m_view, &QTextBrowser::backwardAvailable, back, &QPushButton::setEnabled);
  connect(add("drucken", QStringLiteral("drucken …")), &QPushButton::clicked, this, &HelpWindow::print);
  connect(add("ueber", QStringLiteral("Über VEXT")), &QPushButton::clicked, this, &HelpWindow::aboutWanted);
  row->addStretch();
  connect(add("fertig", QStringLiteral("fertig")), &QPushButton::clicked, this, &QWidget::close);
  return row;
}

void HelpWindow::fillContents() {
  const auto add = [](auto *parent, const Handbook::Place &place, const QString &title) {
    auto *line = new QTreeWidgetItem(parent, {title});
    line->setData(0, Qt::UserRole, addressOf(place));
    return line;
  };
  for (int page = 0; page < m_handbook.pages().size(); ++page) {
    auto *top = add(m_contents, {page, {}}, m_handbook.pages()[page].title);
    for (const auto &section : m_handbook.pages()[page].sections)
      add(top, {page, section}, section);
  }
  connect(m_contents, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *line) {
    m_view->setSource(line->data(0, Qt::UserRole).toUrl(), QTextDocument::MarkdownResource);
  });
  connect(m_contents, &QTreeWidget::itemActivated, m_contents, &QTreeWidget::itemClicked);
}

void HelpWindow::markContents() {
  auto *page = m_contents->topLevelItem(m_view->page());
  m_contents->setCurrentItem(page);
  m_contents->expandItem(page);
  for (int i = 0; i < page->childCount(); ++i)
    if (page->child(i)->data(0, Qt::UserRole).toUrl() == m_view->source())
      m_contents->setCurrentItem(page->child(i));
}

// Before a window that lets nothing else be used, the handbook can still be read. A page scrolls to its place only in a
// window that has its size.
void HelpWindow::showFor(const QString &screen) {
  if (!isVisible())
    setWindowModality(QApplication::activeModalWidget() ? Qt::ApplicationModal : Qt::NonModal);
  show();
  m_view->show(m_handbook.placeFor(screen));
  markContents();
  raise();
  activateWindow();
  m_view->setFocus();
}

// Onwards from the place found last, then on the next page that holds the text.
void HelpWindow::search() {
  const QString text = m_sought->text().trimmed();
  if (text.isEmpty() || m_view->find(text))
    return;
  const int page = m_handbook.pageWith(text, m_view->page());
  if (page < 0)
    return;
  m_view->show({page, {}});
  m_view->moveCursor(QTextCursor::Start);
  m_view->find(text);
}

void HelpWindow::print() {
  QPrinter printer(QPrinter::HighResolution);
  if (QPrintDialog(&printer, this).exec() != QDialog::Accepted)
    return;
  QTextDocument whole;
  whole.setMetaInformation(QTextDocument::DocumentUrl, QUrl::fromLocalFile(Handbook::folder()).toString());
  setHandbookText(whole, m_handbook.wholeText(), PrintedPictureWidth);
  whole.print(&printer);
}

void HelpWindow::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Escape)
    close();
  else
    QWidget::keyPressEvent(event);
}
