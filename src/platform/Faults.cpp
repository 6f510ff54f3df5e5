#include "platform/Faults.h"

#include <cerrno>
#include <cstring>

namespace {

// The system's own texts are English here; the operator reads German.
QString reasonOf(int error) {
  switch (error) {
  case ENOSPC:
  case EDQUOT:
    return QStringLiteral("auf dem Datenträger ist kein Platz mehr");
  case EFBIG:
    return QStringLiteral("die Datei darf nicht größer werden");
  case EACCES:
  case EPERM:
    return QStringLiteral("die Berechtigung dazu fehlt");
  case EROFS:
    return QStringLiteral("der Datenträger ist schreibgeschützt");
  case EISDIR:
    return QStringLiteral("unter diesem Namen liegt ein Ordner");
  case ENOENT:
    return QStringLiteral("Datei oder Ordner gibt es nicht");
  case EIO:
    return QStringLiteral("der Datenträger meldet einen Fehler");
  default:
    return QStringLiteral("Fehler %1 des Betriebssystems (%2)").arg(error).arg(QString::fromLocal8Bit(strerror(error)));
  }
}

} // namespace

Fault::Fault(QString report) : m_report(std::move(report)), m_utf8(m_report.toUtf8()) {}

FileFault::FileFault(const QString &path, const QString &action) : FileFault(path, action, reasonOf(errno)) {}

FileFault::FileFault(const QString &path, const QString &action, const QString &reason)
    : Fault(QStringLiteral("Die Datei \"%1\" konnte nicht %2 werden: %3.").arg(path, action, reason)) {}

ConversionFault::ConversionFault(const QString &path, int line, const QString &text, const QString &why)
    : Fault(QStringLiteral("In der Datei \"%1\" steht in Zeile %2 \"%3\": %4.").arg(path).arg(line).arg(text, why)) {}

RangeFault::RangeFault(const QString &table, int index, int first, int last, const QString &about)
    : Fault(QStringLiteral("Der Index %1 liegt außerhalb der Tabelle %2 (%3 bis %4).%5")
                .arg(index)
                .arg(table)
                .arg(first)
                .arg(last)
                .arg(about.isEmpty() ? QString() : QLatin1Char(' ') + about)) {}
