#pragma once

#include <QStringList>
#include <QThreadPool>

#include <exception>
#include <functional>
#include <mutex>

/// The one thread that waits for the disk, so that no screen does. It works from bytes that are handed to it, one job
/// after the other in the order of asking; so what stands earlier is on the disk before what stands later.
class DiskWorker {
public:
  DiskWorker();
  /// Finishes what was asked for.
  ~DiskWorker() = default;

  /// A job that keeps its failures to itself.
  void run(std::function<void()> job);
  /// Replaces a file whole (see replaceFile).
  void replace(const QString &path, const QByteArray &bytes);
  /// Brings files that were written in place, and the names in their folders, to the disk.
  void sync(const QStringList &paths);
  /// Waits until all is done.
  void wait();

  /// Called in the thread of the worker when `replace` or `sync` has failed.
  std::function<void()> failed = [] {};
  /// Throws the first failure since the last call.
  void rethrow();

private:
  void runOrFail(std::function<void()> job);
  void keepFailure();

  std::mutex m_guard;
  std::exception_ptr m_failure;
  QThreadPool m_pool;
};
