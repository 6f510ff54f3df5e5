#pragma once

#include <QSize>
#include <QString>

/// The settings file of this person, VEXT.ini: what belongs to the machine and not to the event. A file that cannot be
/// written is no fault.
namespace Settings {

/// One text whatever it holds, commas and quotes too; "Rennbüro" where none is set.
QString organisationName();
/// The size that the operator gave a screen, without frame; invalid if none.
QSize windowSize(const QString &screen);
void setWindowSize(const QString &screen, QSize size);

} // namespace Settings
