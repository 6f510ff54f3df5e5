#include "platform/Settings.h"

#include <QSettings>
#include <QStringList>

namespace {

QSettings file() {
  return {QSettings::IniFormat, QSettings::UserScope, QStringLiteral("VEXT"), QStringLiteral("VEXT")};
}

QString sizeKey(const QString &screen) {
  return QStringLiteral("Fenster/") + screen;
}

} // namespace

// Unquoted text with commas is read as a list.
QString Settings::organisationName() {
  const QVariant name = file().value(QStringLiteral("OrganisationName"), QStringLiteral("Rennbüro"));
  return name.toStringList().join(QStringLiteral(", "));
}

QSize Settings::windowSize(const QString &screen) {
  return file().value(sizeKey(screen)).toSize();
}

void Settings::setWindowSize(const QString &screen, QSize size) {
  file().setValue(sizeKey(screen), size);
}
