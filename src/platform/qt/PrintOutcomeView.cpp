#include "platform/qt/PrintOutcomeView.h"

#include "platform/print/Printers.h"
#include "platform/qt/ElidedLabel.h"
#include "platform/qt/OpenOutside.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {

QString captionFor(qsizetype files) {
  return files > 1 ? QStringLiteral("%1 Dateien, die letzte").arg(files) : QStringLiteral("letzte Datei");
}

QString picturesText(const QStringList &paths) {
  QStringList names;
  for (const QString &path : paths)
    names.append(QFileInfo(path).fileName());
  return QStringLiteral("Nicht lesbar, auf dem Ausdruck fehlt: ") + names.join(QStringLiteral(", "));
}

} // namespace

PrintOutcomeView::PrintOutcomeView(QWidget *parent)
    : QWidget(parent), m_caption(addLabel<QLabel>(QStringLiteral("dateiTitel"), true)),
      m_name(addLabel<ElidedLabel>(QStringLiteral("letzteDatei"), false)),
      m_folder(addLabel<ElidedLabel>(QStringLiteral("dateiOrdner"), true)),
      m_pictures(addLabel<QLabel>(QStringLiteral("bilderFehlen"), false)),
      m_open(addButton(QStringLiteral("dateiOeffnen"), QStringLiteral("öffnen"))),
      m_showFolder(addButton(QStringLiteral("ordnerZeigen"), QStringLiteral("Ordner zeigen"))) {
  auto *grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(2);
  grid->addWidget(m_caption, 0, 0);
  grid->addWidget(m_name, 0, 1, 1, 3);
  grid->addWidget(m_folder, 1, 0, 1, 2);
  grid->addWidget(m_open, 1, 2);
  grid->addWidget(m_showFolder, 1, 3);
  grid->addWidget(m_pictures, 2, 0, 1, 4);
  grid->setColumnStretch(1, 1);
  m_pictures->setWordWrap(true);
  for (auto *label : {m_name, m_folder}) // however long, they take the room that is left
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  connect(m_open, &QPushButton::clicked, this, [this] { openOutside(window(), m_path); });
  connect(m_showFolder, &QPushButton::clicked, this, [this] { openOutside(window(), QFileInfo(m_path).path()); });
  hide();
}

template <typename Label> Label *PrintOutcomeView::addLabel(const QString &name, bool pale) {
  auto *label = new Label(this);
  label->setObjectName(name);
  label->setProperty("leise", pale);
  return label;
}

QPushButton *PrintOutcomeView::addButton(const QString &name, const QString &caption) {
  auto *button = new QPushButton(caption, this);
  button->setObjectName(name);
  button->setProperty("zeichen", caption.size());
  return button;
}

void PrintOutcomeView::tell(const PrintOutcome &outcome) {
  const bool anyFile = !outcome.files.isEmpty(), anyPicture = !outcome.unreadablePictures.isEmpty();
  m_path = anyFile ? QFileInfo(outcome.files.last()).absoluteFilePath() : QString();
  m_caption->setText(captionFor(outcome.files.size()));
  m_name->setText(QFileInfo(m_path).fileName());
  m_folder->setText(QDir::toNativeSeparators(QFileInfo(m_path).path()));
  m_pictures->setText(picturesText(outcome.unreadablePictures));
  for (QWidget *part : std::initializer_list<QWidget *>{m_caption, m_name, m_folder, m_open, m_showFolder})
    part->setVisible(anyFile);
  m_pictures->setVisible(anyPicture);
  setVisible(anyFile || anyPicture);
}
