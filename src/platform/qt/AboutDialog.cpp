#include "platform/qt/AboutDialog.h"

#include "platform/qt/ElidedLabel.h"
#include "platform/qt/Look.h"
#include "platform/qt/OpenOutside.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QDir>
#include <QGridLayout>
#include <QPushButton>

namespace {

QString licences() {
  return QStringLiteral("Die Lizenz von VEXT ist noch nicht festgelegt.\n\n"
                        "VEXT steht auf fremder freier Arbeit: Qt %1 (LGPL 3) für Fenster, Druck und PDF, ICU "
                        "(Unicode-Lizenz) für die deutsche Sortierung, die Schriften Liberation (SIL OFL 1.1) und "
                        "Blankenburg (SIL OFL 1.1) auf Listen und Urkunden.")
      .arg(QLatin1String(qVersion()));
}

} // namespace

AboutDialog::AboutDialog(const Facts &facts, QWidget *parent) : QDialog(parent) {
  setObjectName(QStringLiteral("Ueber"));
  setWindowTitle(QStringLiteral("Über VEXT"));
  auto *version = new QLabel(facts.version);
  version->setObjectName(QStringLiteral("version"));
  version->setProperty("schriftProzent", 150);
  auto *text = new QLabel(licences());
  text->setWordWrap(true);
  auto *grid = new QGridLayout;
  grid->setColumnStretch(1, 1);
  addFolder(*grid, QStringLiteral("Datenordner"), QStringLiteral("daten"), facts.dataFolder);
  addFolder(*grid, QStringLiteral("Sicherungen"), QStringLiteral("sicherung"), facts.safetyFolder);
  auto *answers = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(answers, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(20, 16, 20, 16);
  column->setSpacing(14);
  for (auto *part : {version, text})
    column->addWidget(part);
  column->addLayout(grid);
  column->addWidget(answers);
  Look::applyProperties(this);
  resize(38 * fontMetrics().height(), sizeHint().height());
}

void AboutDialog::addFolder(QGridLayout &grid, const QString &title, const QString &name, const QString &path) {
  const int row = grid.rowCount();
  auto *shown = new ElidedLabel(QDir::toNativeSeparators(path));
  shown->setObjectName(name);
  auto *open = new QPushButton(QStringLiteral("öffnen"));
  open->setObjectName(name + QStringLiteral("Oeffnen"));
  open->setAccessibleName(QStringLiteral("%1 öffnen").arg(title));
  open->setEnabled(QDir(path).exists());
  grid.addWidget(new QLabel(title), row, 0);
  grid.addWidget(shown, row, 1);
  grid.addWidget(open, row, 2);
  connect(open, &QPushButton::clicked, this, [this, path] { openOutside(this, path); });
}
