#include "platform/qt/FolderChoice.h"

#include "platform/DataFolder.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Settings.h"
#include "platform/qt/Look.h"
#include "platform/qt/NewFolder.h"

#include <QBoxLayout>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

namespace {

constexpr int MostFolders = 8;

QString inWords(const Settings::Folder &folder) {
  const QString path = QDir::toNativeSeparators(folder.path);
  return folder.organisation.isEmpty() ? path : folder.organisation + QLatin1Char('\n') + path;
}

} // namespace

FolderChoice::FolderChoice(const QString &trouble, std::function<QString()> freshExample)
    : m_freshExample(std::move(freshExample)), m_trouble(new QLabel), m_folders(new QListWidget) {
  setObjectName(QStringLiteral("Mappenwahl"));
  setWindowTitle(QStringLiteral("VEXT"));
  m_trouble->setObjectName(QStringLiteral("ungemach"));
  m_trouble->setWordWrap(true);
  m_trouble->setMargin(6);
  auto *buttons = new QVBoxLayout;
  addButtons(*buttons);
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(20, 16, 20, 16);
  row->setSpacing(16);
  row->addLayout(mainColumn(), 1);
  row->addLayout(buttons);
  Look::applyProperties(this);
  tell(trouble);
  resize(QSize(46, 20) * fontMetrics().height());
}

QVBoxLayout *FolderChoice::mainColumn() {
  auto *question = new QLabel(QStringLiteral("Mit welcher Veranstaltungsmappe arbeiten?"));
  question->setProperty("schriftProzent", 130);
  auto *column = new QVBoxLayout;
  column->setSpacing(10);
  column->addWidget(question);
  column->addWidget(m_trouble);
  addLastFolders(*column);
  return column;
}

void FolderChoice::addLastFolders(QVBoxLayout &column) {
  m_folders->setObjectName(QStringLiteral("mappen"));
  m_folders->setAccessibleName(QStringLiteral("Zuletzt verwendete Mappen"));
  m_folders->setSpacing(4);
  for (const auto &folder : Settings::folders())
    if (m_folders->count() < MostFolders && QFileInfo(folder.path).isDir()) {
      auto *line = new QListWidgetItem(inWords(folder), m_folders);
      line->setData(Qt::UserRole, folder.path);
    }
  m_folders->setCurrentRow(0);
  m_folders->setVisible(m_folders->count() > 0);
  column.addWidget(m_folders, 1);
  connect(m_folders, &QListWidget::itemDoubleClicked, this, &FolderChoice::chooseLine);
  if (m_folders->count() > 0)
    return;
  auto *first = new QLabel(QStringLiteral("Alle Dateien einer Veranstaltung liegen in einer Mappe, einem Ordner "
                                          "für sich. Noch gibt es keine: „Neue Mappe …“ legt eine an, „Beispiel "
                                          "ansehen“ öffnet eine fertige, erfundene Veranstaltung zum Ausprobieren."));
  first->setWordWrap(true);
  column.addWidget(first, 1, Qt::AlignTop);
}

void FolderChoice::addButtons(QVBoxLayout &column) {
  const auto add = [this, &column](const char *name, const QString &caption, auto action) {
    auto *button = new QPushButton(caption);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    column.addWidget(button);
    connect(button, &QPushButton::clicked, this, action);
    return button;
  };
  const bool any = m_folders->count() > 0 || !Settings::folders().isEmpty();
  auto *open = add("oeffnen", QStringLiteral("Öffnen"), [this] { chooseLine(); });
  open->setEnabled(any);
  auto *anew =
      add("neu", QStringLiteral("Neue Mappe …"), [this] { makeNew(QDir::toNativeSeparators(DataFolder::proposal())); });
  (any ? open : anew)->setDefault(true);
  add("andere", QStringLiteral("Andere Mappe öffnen …"), [this] { searchOther(); });
  add("beispiel", QStringLiteral("Beispiel ansehen"), [this] { showExample(); });
  column.addStretch();
  add("beenden", QStringLiteral("Beenden"), [this] { reject(); });
}

QString FolderChoice::ask() {
  exec();
  return m_chosen;
}

void FolderChoice::tell(const QString &trouble) {
  m_trouble->setText(trouble);
  Look::setGround(m_trouble, QColor(0xFFF1C9));
  m_trouble->setVisible(!trouble.isEmpty());
}

void FolderChoice::choose(const QString &folder) {
  const QString trouble = DataFolder::troubleWith(folder);
  if (!trouble.isEmpty())
    return tell(trouble);
  m_chosen = folder;
  accept();
}

void FolderChoice::chooseLine() {
  if (const auto *line = m_folders->currentItem())
    choose(line->data(Qt::UserRole).toString());
}

void FolderChoice::makeNew(const QString &proposal) {
  NewFolder dialog(this, proposal);
  if (dialog.exec() != QDialog::Accepted)
    return;
  const QString folder = dialog.folder();
  try {
    makeFolder(folder);
  } catch (const Fault &fault) {
    return tell(fault.report());
  }
  Settings::noteFolder(QDir(folder).canonicalPath(), dialog.organisation());
  choose(folder);
}

// A folder without data becomes a new one, for which the organisation is asked.
void FolderChoice::searchOther() {
  const QString start = QFileInfo(DataFolder::proposal()).path();
  const QString folder = QFileDialog::getExistingDirectory(this, QStringLiteral("Andere Mappe öffnen"), start);
  if (folder.isEmpty())
    return;
  if (DataFolder::holdsData(folder) || !DataFolder::troubleWith(folder).isEmpty())
    choose(folder);
  else
    makeNew(folder);
}

void FolderChoice::showExample() {
  try {
    choose(m_freshExample());
  } catch (const Fault &fault) {
    tell(fault.report());
  }
}
