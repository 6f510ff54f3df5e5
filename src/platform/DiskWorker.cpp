#include "platform/DiskWorker.h"

#include "platform/Files.h"

#include <utility>

DiskWorker::DiskWorker() {
  m_pool.setMaxThreadCount(1);
}

void DiskWorker::run(std::function<void()> job) {
  m_pool.start(std::move(job));
}

void DiskWorker::replace(const QString &path, const QByteArray &bytes) {
  runOrFail([path, bytes] { replaceFile(path, bytes); });
}

void DiskWorker::sync(const QStringList &paths) {
  runOrFail([paths] {
    QStringList folders;
    for (const QString &path : paths) {
      syncFile(path);
      folders << folderOf(path);
    }
    folders.removeDuplicates();
    for (const QString &folder : std::as_const(folders))
      syncFile(folder);
  });
}

void DiskWorker::wait() {
  m_pool.waitForDone();
}

void DiskWorker::rethrow() {
  std::exception_ptr failure;
  {
    const std::scoped_lock lock(m_guard);
    failure = std::exchange(m_failure, nullptr);
  }
  if (failure)
    std::rethrow_exception(failure);
}

void DiskWorker::runOrFail(std::function<void()> job) {
  m_pool.start([this, job = std::move(job)] {
    try {
      job();
    } catch (...) {
      keepFailure();
    }
  });
}

void DiskWorker::keepFailure() {
  {
    const std::scoped_lock lock(m_guard);
    if (!m_failure)
      m_failure = std::current_exception();
  }
  failed();
}
