#include "platform/Settings.h"

#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(SettingsTest, EachFolderKeepsItsOrganisation) {
  const QTemporaryDir home;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, home.path());
  const auto a = QStringLiteral("/Rennen, Ort/ä"), b = QStringLiteral("/b"),
             name = QStringLiteral("SC \"A\"; B, C = 1");
  EXPECT_EQ(Settings::organisationName(a), QStringLiteral("Rennbüro"));
  Settings::noteFolder(a, name);
  Settings::noteFolder(b);
  QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("VEXT"), QStringLiteral("VEXT"))
      .setValue(QStringLiteral("OrganisationName"), QStringLiteral("Alle"));
  EXPECT_EQ(Settings::organisationName(a), name);
  EXPECT_EQ(Settings::organisationName(b), QStringLiteral("Alle"));
  Settings::noteFolder(a);
  EXPECT_EQ(Settings::folders(), (QList<Settings::Folder>{{a, name}, {b, {}}}));
}

} // namespace
