#pragma once

#include <QList>
#include <QSize>
#include <QString>

/// The settings file of this person, VEXT.ini: what belongs to the machine and not to the event. A file that cannot be
/// written is no fault.
namespace Settings {

/// A data folder that was worked in.
struct Folder {
  QString path;
  /// The organisation that holds its event; empty where none was told.
  QString organisation;
  bool operator==(const Folder &) const = default;
};

/// The data folders that were worked in, the last one first.
QList<Folder> folders();
/// Makes a folder the last one; an empty organisation leaves the one that is kept for it.
void noteFolder(const QString &path, const QString &organisation = {});
/// The organisation of a data folder, or that of all where it has none of its own, or "Rennbüro". One text whatever it
/// holds, commas and quotes too.
QString organisationName(const QString &folder);
/// The size that the operator gave a screen, without frame; invalid if none.
QSize windowSize(const QString &screen);
void setWindowSize(const QString &screen, QSize size);
/// How much larger a window is with its frame, as it was last; invalid if never seen.
QSize windowFrame();
void setWindowFrame(QSize frame);

} // namespace Settings
