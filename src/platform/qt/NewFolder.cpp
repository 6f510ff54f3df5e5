#include "platform/qt/NewFolder.h"

#include "platform/qt/Look.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

NewFolder::NewFolder(QWidget *parent, const QString &proposal)
    : QDialog(parent), m_organisation(new QLineEdit), m_folder(new QLineEdit(proposal)),
      m_make(new QPushButton(QStringLiteral("Anlegen"))) {
  setObjectName(QStringLiteral("NeueMappe"));
  setWindowTitle(QStringLiteral("Neue Mappe"));
  m_organisation->setObjectName(QStringLiteral("veranstalter"));
  m_folder->setObjectName(QStringLiteral("ordner"));
  m_make->setObjectName(QStringLiteral("anlegen"));
  auto *search = new QPushButton(QStringLiteral("suchen …"));
  auto *purpose = new QLabel(QStringLiteral("Der Name steht im Hauptmenü und auf den Urkunden."));
  purpose->setProperty("leise", true);
  auto *organisationTitle = new QLabel(QStringLiteral("&Verein oder Veranstalter"));
  auto *folderTitle = new QLabel(QStringLiteral("&Ordner"));
  auto *grid = new QGridLayout;
  grid->addWidget(organisationTitle, 0, 0);
  grid->addWidget(m_organisation, 0, 1, 1, 2);
  grid->addWidget(purpose, 1, 1, 1, 2);
  grid->addWidget(folderTitle, 2, 0);
  grid->addWidget(m_folder, 2, 1);
  grid->addWidget(search, 2, 2);
  auto *answers = new QDialogButtonBox(QDialogButtonBox::Cancel);
  answers->addButton(m_make, QDialogButtonBox::AcceptRole);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(20, 16, 20, 16);
  column->setSpacing(16);
  column->addLayout(grid);
  column->addWidget(answers);
  Look::applyProperties(this);
  organisationTitle->setBuddy(m_organisation);
  folderTitle->setBuddy(m_folder);
  m_make->setDefault(true);
  resize(40 * fontMetrics().height(), sizeHint().height());
  connect(search, &QPushButton::clicked, this, &NewFolder::search);
  connect(m_folder, &QLineEdit::textChanged, this, [this] { m_make->setEnabled(!folder().isEmpty()); });
  connect(answers, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

// What is no whole path lies in the user's own folder.
QString NewFolder::folder() const {
  QString path = QDir::fromNativeSeparators(m_folder->text().trimmed());
  if (path.startsWith(QStringLiteral("~/")))
    path.remove(0, 2);
  return path.isEmpty() ? path : QDir::cleanPath(QDir::home().absoluteFilePath(path));
}

QString NewFolder::organisation() const {
  return m_organisation->text().trimmed();
}

void NewFolder::search() {
  const QString found = QFileDialog::getExistingDirectory(this, windowTitle(), QFileInfo(folder()).path());
  if (!found.isEmpty())
    m_folder->setText(QDir::toNativeSeparators(found));
}
