#include "platform/System.h"

#include "platform/Faults.h"

#include <QCoreApplication>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isOnDisk(int file) {
  int result = fsync(file);
  while (result != 0 && errno == EINTR)
    result = fsync(file);
  return result == 0 || errno == EINVAL || errno == ENOTSUP;
}

} // namespace

void System::sync(QFile &file) {
  if (!isOnDisk(file.handle()))
    throw FileFault(file.fileName(), QStringLiteral("geschrieben"));
}

void System::syncFolder(const QString &path) {
  const int folder = open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder < 0)
    throw FileFault(path, QStringLiteral("geöffnet"), std::error_code(errno, std::generic_category()));
  const bool done = isOnDisk(folder);
  const int reason = errno;
  close(folder);
  if (!done)
    throw FileFault(path, QStringLiteral("geschrieben"), std::error_code(reason, std::generic_category()));
}

QString System::identityOf(const QString &folder) {
  struct statx found {};
  if (statx(AT_FDCWD, QFile::encodeName(folder).constData(), 0, STATX_INO | STATX_BTIME, &found) != 0)
    return {};
  return QStringLiteral("%1:%2:%3:%4.%5")
      .arg(found.stx_dev_major)
      .arg(found.stx_dev_minor)
      .arg(found.stx_ino)
      .arg(found.stx_btime.tv_sec)
      .arg(found.stx_btime.tv_nsec);
}

QString System::sharedPath(const QString &name) {
  return QCoreApplication::applicationDirPath() + QStringLiteral("/../share/vext/") + name;
}

System::Lock::State System::Lock::take(const QString &path) {
  m_file.setFileName(path);
  if (!m_file.open(QIODevice::ReadWrite, QFileDevice::ReadOwner | QFileDevice::WriteOwner))
    return State::Unknown;
  if (flock(m_file.handle(), LOCK_EX | LOCK_NB) == 0)
    return State::Held;
  const bool taken = errno == EWOULDBLOCK;
  m_file.close();
  return taken ? State::Taken : State::Unknown;
}
