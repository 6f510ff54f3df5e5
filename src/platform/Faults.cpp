#include "platform/Faults.h"

#include <QFileInfo>

#include <cerrno>
#include <cstring>

namespace {

// The system's own texts are English here; the operator reads German.
QString reasonOf(int error) {
  switch (error) {
  case 0:
    return QStringLiteral("das Betriebssystem nennt keinen Grund");
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
  case EEXIST:
    return QStringLiteral("unter diesem Namen liegt schon etwas anderes");
  case ENOTDIR:
    return QStringLiteral("an der Stelle eines Ordners liegt eine Datei");
  case ENOENT:
    return QStringLiteral("Datei oder Ordner gibt es nicht");
  case ENAMETOOLONG:
    return QStringLiteral("der Name ist zu lang");
  case ELOOP:
    return QStringLiteral("die Verknüpfung führt im Kreis");
  case ENODEV:
  case ENXIO:
    return QStringLiteral("das Gerät ist nicht da");
  case EIO:
    return QStringLiteral("der Datenträger meldet einen Fehler");
  case EMFILE:
  case ENFILE:
    return QStringLiteral("es sind zu viele Dateien geöffnet");
  case ENOMEM:
    return QStringLiteral("der Arbeitsspeicher reicht nicht aus");
  case EINTR:
    return QStringLiteral("das Betriebssystem hat unterbrochen");
  default:
    return QStringLiteral("Fehler %1 des Betriebssystems (%2)").arg(error).arg(QString::fromLocal8Bit(strerror(error)));
  }
}

// Qt finds out by itself that a folder is no file, so errno knows nothing of it. What has been told is forgotten, or
// the next failure without a reason of the system would get this one.
QString takeReason(const QString &path) {
  const int error = std::exchange(errno, 0);
  return reasonOf(QFileInfo(path).isDir() ? EISDIR : error);
}

// A report window takes half a minute to lay out the megabytes of a broken line.
QString shortened(const QString &text) {
  constexpr int Longest = 60;
  return text.size() > Longest ? text.left(Longest) + QStringLiteral("…") : text;
}

} // namespace

Fault::Fault(QString report) : m_report(std::move(report)), m_utf8(m_report.toUtf8()) {}

FileFault::FileFault(const QString &path, const QString &action) : FileFault(path, action, takeReason(path)) {}

FileFault::FileFault(const QString &path, const QString &action, const std::error_code &reason)
    : FileFault(path, action, reasonOf(reason.value())) {}

FileFault::FileFault(const QString &path, const QString &action, const QString &reason)
    : Fault(QStringLiteral("Die Datei „%1“ konnte nicht %2 werden: %3.").arg(path, action, reason)) {}

ConversionFault::ConversionFault(const QString &path, int line, const QString &text, const QString &why)
    : Fault(QStringLiteral("In der Datei „%1“ steht in Zeile %2 „%3“: %4.")
                .arg(path)
                .arg(line)
                .arg(shortened(text), why)) {}

RangeFault::RangeFault(const QString &table, int index, int first, int last, const QString &about)
    : Fault((about.isEmpty() ? QString() : about + QLatin1Char(' ')) +
            QStringLiteral("Der Index %1 liegt außerhalb der Tabelle %2 (%3 bis %4).")
                .arg(index)
                .arg(table)
                .arg(first)
                .arg(last)) {}
