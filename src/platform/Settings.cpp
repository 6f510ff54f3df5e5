#include "platform/Settings.h"

#include <QSettings>
#include <QStringList>

namespace {

QSettings file() {
  return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("VEXT"), QStringLiteral("VEXT")};
}

const QString FrameKey = QStringLiteral("Fenster/Rahmen");

QString sizeKey(const QString &screen) {
  return QStringLiteral("Fenster/") + screen;
}

// Unquoted text with commas is read as a list.
QString textOf(const QSettings &settings, const QString &key, const QString &otherwise = {}) {
  return settings.value(key, otherwise).toStringList().join(QStringLiteral(", "));
}

const auto Folders = QStringLiteral("Mappen"), Path = QStringLiteral("Ordner"),
           Organisation = QStringLiteral("OrganisationName");

void write(const QList<Settings::Folder> &folders) {
  QSettings settings = file();
  settings.remove(Folders);
  settings.beginWriteArray(Folders, int(folders.size()));
  for (int i = 0; i < folders.size(); ++i) {
    settings.setArrayIndex(i);
    settings.setValue(Path, folders[i].path);
    if (!folders[i].organisation.isEmpty())
      settings.setValue(Organisation, folders[i].organisation);
  }
  settings.endArray();
}

QString organisationOf(const QList<Settings::Folder> &folders, const QString &path) {
  for (const auto &folder : folders)
    if (folder.path == path)
      return folder.organisation;
  return {};
}

} // namespace

QList<Settings::Folder> Settings::folders() {
  QSettings settings = file();
  QList<Folder> found;
  for (int i = 0, count = settings.beginReadArray(Folders); i < count; ++i) {
    settings.setArrayIndex(i);
    found.append({textOf(settings, Path), textOf(settings, Organisation)});
  }
  return found;
}

void Settings::noteFolder(const QString &path, const QString &organisation) {
  const QList<Folder> before = folders();
  QList<Folder> now = before;
  now.removeIf([&path](const auto &folder) { return folder.path == path; });
  now.prepend({path, organisation.isEmpty() ? organisationOf(before, path) : organisation});
  if (now != before)
    write(now);
}

QString Settings::organisationName(const QString &folder) {
  const QString own = organisationOf(folders(), folder);
  return own.isEmpty() ? textOf(file(), Organisation, QStringLiteral("Rennbüro")) : own;
}

QSize Settings::windowSize(const QString &screen) {
  return file().value(sizeKey(screen)).toSize();
}

void Settings::setWindowSize(const QString &screen, QSize size) {
  file().setValue(sizeKey(screen), size);
}

QSize Settings::windowFrame() {
  return file().value(FrameKey).toSize();
}

void Settings::setWindowFrame(QSize frame) {
  file().setValue(FrameKey, frame);
}
