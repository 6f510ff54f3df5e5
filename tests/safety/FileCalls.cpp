// Stands between a program and the disk (LD_PRELOAD): counts the file calls that concern given folders, and dies, fails
// or waits at the one that it is told. By environment:
//
//   FILECALLS_FOLDERS  absolute paths, separated by colons; calls on other files are neither counted nor touched
//   FILECALLS_LOG      a file to which a line for each call is added: count, milliseconds, kind, path
//   FILECALLS_AT       the count of the call at which something happens
//   FILECALLS_DO       kill   the program is killed before the call
//                      half   a write writes half of its bytes, then the program is killed
//                      cut    as kill, and of all files that have not been synced what is not on the disk is lost
//                      short  a write writes half of its bytes and says so
//                      28     this error comes instead of the call, if the system may give it there
//                      28+    the same, for all calls from this one on
//   FILECALLS_DELAY    each sync waits that many milliseconds
//   FILECALLS_CLOCK    if set, time stands still while anything works and jumps to the next timer when all are idle

#include "CallKinds.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <ftw.h>
#include <map>
#include <mutex>
#include <poll.h>
#include <string>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

using Inode = std::pair<dev_t, ino_t>;
using Folder = DIR *;

constexpr long NanosecondsOfSecond = 1'000'000'000;
constexpr time_t FirstSecond = 1000;
constexpr timespec NoTime{};

const char *setting(const char *name) {
  const char *value = std::getenv(name);
  return value ? value : "";
}

std::vector<std::string> folders() {
  std::vector<std::string> all;
  for (std::string rest = setting("FILECALLS_FOLDERS"); !rest.empty();) {
    const auto end = std::min(rest.find(':'), rest.size());
    all.push_back(rest.substr(0, end));
    rest.erase(0, end + 1);
  }
  return all;
}

int openLog() {
  const char *path = setting("FILECALLS_LOG");
  return *path ? int(syscall(SYS_openat, AT_FDCWD, path, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600)) : -1;
}

[[noreturn]] void die() {
  kill(getpid(), SIGKILL);
  for (;;)
    pause();
}

/// The sizes up to which files are on the disk that have been written to since their last sync.
std::map<Inode, off_t> &unsynced() {
  static auto *all = new std::map<Inode, off_t>;
  return *all;
}

int forget(const char *path, const struct stat *found, int, FTW *) {
  if (const auto file = unsynced().find({found->st_dev, found->st_ino}); file != unsynced().end())
    syscall(SYS_truncate, path, std::min(file->second, found->st_size));
  return 0;
}

class Clock {
public:
  timespec now() const { return m_now; }
  bool runs(clockid_t id) const {
    return m_on &&
           (id == CLOCK_MONOTONIC || id == CLOCK_MONOTONIC_RAW || id == CLOCK_MONOTONIC_COARSE || id == CLOCK_BOOTTIME);
  }
  /// Whether the calling thread waits by this clock.
  bool isMine() const { return m_on && getpid() == gettid(); }
  void advance(const timespec &by) {
    m_now.tv_sec += by.tv_sec + (m_now.tv_nsec + by.tv_nsec) / NanosecondsOfSecond;
    m_now.tv_nsec = (m_now.tv_nsec + by.tv_nsec) % NanosecondsOfSecond;
  }

private:
  bool m_on = *setting("FILECALLS_CLOCK");
  timespec m_now{FirstSecond, 0};
};

struct Verdict {
  int error = 0;
  bool half = false;
};

/// Made at the first call, which may come before any constructor, and never destroyed.
class Device {
public:
  static Device &it() {
    static auto *device = new Device;
    return *device;
  }

  /// The absolute path, if it concerns the folders; empty otherwise.
  std::string at(int folder, const char *path) const {
    if (!path || m_folders.empty())
      return {};
    const std::string whole = *path == '/' ? path : folderPath(folder) + '/' + path;
    const bool concerned = std::any_of(m_folders.begin(), m_folders.end(), [&](const std::string &each) {
      return whole.compare(0, each.size(), each) == 0 && (whole.size() == each.size() || whole[each.size()] == '/');
    });
    return concerned ? whole : std::string();
  }
  std::string of(int file) {
    const std::scoped_lock lock(m_guard);
    const auto found = m_open.find(file);
    return found == m_open.end() ? std::string() : found->second;
  }
  void opened(int file, const std::string &path, bool fresh) {
    const std::scoped_lock lock(m_guard);
    m_open[file] = path;
    if (fresh)
      unsynced()[inode(file).first] = 0;
  }
  void closed(int file) {
    const std::scoped_lock lock(m_guard);
    m_open.erase(file);
  }
  void written(int file) {
    const std::scoped_lock lock(m_guard);
    unsynced().insert(inode(file));
  }
  void synced(int file) {
    const std::scoped_lock lock(m_guard);
    unsynced().erase(inode(file).first);
  }

  /// Counts the call; what is to become of it.
  Verdict ask(const char *name, const std::string &path) {
    const std::scoped_lock lock(m_guard);
    const CallKind &kind = callKind(name);
    const bool now = ++m_count == m_at, fails = (now || (m_forGood && m_count > m_at)) && canFail(kind, m_error);
    if (m_log >= 0)
      dprintf(m_log, "%d %ld %s %s%s\n", m_count, milliseconds(), name, path.c_str(), fails ? " !" : now ? " *" : "");
    if (now && m_act == "cut")
      for (const auto &folder : m_folders)
        nftw(folder.c_str(), forget, 16, FTW_PHYS);
    if (now && (m_act == "cut" || m_act == "kill"))
      die();
    return {fails ? m_error : 0, now && (m_act == "half" || m_act == "short")};
  }
  bool diesInTheMiddle() const { return m_act == "half"; }
  int delay() const { return m_delay; }
  Clock clock;

private:
  static std::pair<Inode, off_t> inode(int file) {
    struct stat found {};
    syscall(SYS_fstat, file, &found);
    return {{found.st_dev, found.st_ino}, found.st_size};
  }
  static std::string folderPath(int folder) {
    char path[4096] = {};
    const std::string link = folder == AT_FDCWD ? "/proc/self/cwd" : "/proc/self/fd/" + std::to_string(folder);
    return std::string(path, size_t(std::max<ssize_t>(0, readlink(link.c_str(), path, sizeof path))));
  }
  long milliseconds() const { return (clock.now().tv_sec - FirstSecond) * 1000 + clock.now().tv_nsec / 1'000'000; }

  const std::vector<std::string> m_folders = folders();
  const int m_log = openLog(), m_at = atoi(setting("FILECALLS_AT")), m_delay = atoi(setting("FILECALLS_DELAY"));
  const std::string m_act = setting("FILECALLS_DO");
  const int m_error = atoi(m_act.c_str());
  const bool m_forGood = !m_act.empty() && m_act.back() == '+';
  int m_count = 0;
  std::map<int, std::string> m_open;
  std::mutex m_guard;
};

std::string at(int folder, const char *path) {
  return Device::it().at(folder, path);
}

std::string of(int file) {
  return Device::it().of(file);
}

template <typename Call> long ask(const char *kind, const std::string &path, Call call) {
  const Verdict verdict = path.empty() ? Verdict() : Device::it().ask(kind, path);
  if (verdict.error == 0)
    return call();
  errno = verdict.error;
  return -1;
}

int openFile(int folder, const char *path, int flags, mode_t mode) {
  const std::string place = at(folder, path);
  const auto call = [&] { return syscall(SYS_openat, folder, path, flags, mode); };
  if (place.empty())
    return int(call());
  const bool there = syscall(SYS_faccessat, folder, path, F_OK) == 0;
  const bool fresh = (flags & O_TMPFILE) == O_TMPFILE || ((flags & O_CREAT) && !there) || (flags & O_TRUNC);
  const int file = int(ask(fresh ? "create" : "open", place, call));
  if (file >= 0)
    Device::it().opened(file, place, fresh);
  return file;
}

template <typename Put> ssize_t writeSome(int file, size_t count, Put put) {
  const std::string place = of(file);
  if (place.empty())
    return put(count);
  Device &device = Device::it();
  const Verdict verdict = device.ask("write", place);
  if (verdict.error != 0)
    return errno = verdict.error, -1;
  device.written(file);
  const ssize_t written = put(verdict.half ? (count + 1) / 2 : count);
  if (verdict.half && device.diesInTheMiddle())
    die();
  return written;
}

int syncFile(int file, long call) {
  const std::string place = of(file);
  if (!place.empty() && Device::it().delay() > 0)
    usleep(useconds_t(Device::it().delay()) * 1000);
  return int(ask("sync", place, [&] {
    const long result = syscall(call, file);
    if (result == 0 && !place.empty())
      Device::it().synced(file);
    return result;
  }));
}

// As the system does it: the file is closed also where that gives an error.
int closeFile(int file) {
  const std::string place = of(file);
  Device::it().closed(file);
  const long result = syscall(SYS_close, file);
  return int(ask("close", place, [&] { return result; }));
}

Folder openFolder(const char *path) {
  static const auto next = reinterpret_cast<Folder (*)(const char *)>(dlsym(RTLD_NEXT, "opendir"));
  return ask("list", at(AT_FDCWD, path), [] { return 0; }) == 0 ? next(path) : nullptr;
}

bool isBusy(const char *thread) {
  char stat[512] = {};
  const int file =
      int(syscall(SYS_openat, AT_FDCWD, ("/proc/self/task/" + std::string(thread) + "/stat").c_str(), O_RDONLY));
  syscall(SYS_read, file, stat, sizeof stat - 1);
  syscall(SYS_close, file);
  const char *end = std::strrchr(stat, ')');
  return end && (end[2] == 'R' || end[2] == 'D');
}

// Whether another thread than the calling one works.
bool othersWork() {
  DIR *threads = opendir("/proc/self/task");
  bool busy = false;
  while (const dirent *thread = readdir(threads))
    busy = busy || (atoi(thread->d_name) > 0 && atoi(thread->d_name) != gettid() && isBusy(thread->d_name));
  closedir(threads);
  return busy;
}

int pollFor(pollfd *files, nfds_t count, timespec timeout, const sigset_t *signals) {
  return int(syscall(SYS_ppoll, files, count, &timeout, signals, size_t(8)));
}

// A thread that hands over to another one may look idle in between; so all must be seen idle twice.
int pollUntilIdle(pollfd *files, nfds_t count, const timespec &timeout, const sigset_t *signals) {
  for (int seen = 0;;) {
    seen = othersWork() ? 0 : seen + 1;
    const bool idle = seen == 2;
    if (const int ready = pollFor(files, count, idle ? NoTime : timespec{0, 200'000}, signals))
      return ready;
    if (!idle)
      continue;
    Device::it().clock.advance(timeout);
    return 0;
  }
}

} // namespace

// A definition under the name that the program calls; the label keeps it apart from the declaration of the C library.
#define CALL(result, symbol, parameters, ...)                                                                          \
  extern "C" __attribute__((visibility("default"))) result call_##symbol parameters asm(#symbol);                      \
  result call_##symbol parameters {                                                                                    \
    return result(__VA_ARGS__);                                                                                        \
  }
#define SYS(...) [&] { return syscall(__VA_ARGS__); }

CALL(int, open, (const char *path, int flags, mode_t mode), openFile(AT_FDCWD, path, flags, mode))
CALL(int, open64, (const char *path, int flags, mode_t mode), openFile(AT_FDCWD, path, flags, mode))
CALL(int, openat, (int folder, const char *path, int flags, mode_t mode), openFile(folder, path, flags, mode))
CALL(int, openat64, (int folder, const char *path, int flags, mode_t mode), openFile(folder, path, flags, mode))
CALL(int, creat, (const char *path, mode_t mode), openFile(AT_FDCWD, path, O_CREAT | O_WRONLY | O_TRUNC, mode))
CALL(int, close, (int file), closeFile(file))

CALL(ssize_t, write, (int file, const void *bytes, size_t count),
     writeSome(file, count, [&](size_t n) { return syscall(SYS_write, file, bytes, n); }))
CALL(ssize_t, pwrite, (int file, const void *bytes, size_t count, off_t place),
     writeSome(file, count, [&](size_t n) { return syscall(SYS_pwrite64, file, bytes, n, place); }))
CALL(ssize_t, pwrite64, (int file, const void *bytes, size_t count, off_t place),
     writeSome(file, count, [&](size_t n) { return syscall(SYS_pwrite64, file, bytes, n, place); }))
CALL(ssize_t, sendfile, (int file, int from, off_t *place, size_t count),
     writeSome(file, count, [&](size_t n) { return syscall(SYS_sendfile, file, from, place, n); }))
CALL(ssize_t, writev, (int file, const iovec *parts, int count),
     writeSome(file, size_t(count), [&](size_t n) { return syscall(SYS_writev, file, parts, n); }))
CALL(int, ftruncate, (int file, off_t size), ask("truncate", of(file), SYS(SYS_ftruncate, file, size)))
CALL(int, ftruncate64, (int file, off_t size), ask("truncate", of(file), SYS(SYS_ftruncate, file, size)))
CALL(int, truncate, (const char *path, off_t size), ask("truncate", at(AT_FDCWD, path), SYS(SYS_truncate, path, size)))
CALL(int, truncate64, (const char *path, off_t size),
     ask("truncate", at(AT_FDCWD, path), SYS(SYS_truncate, path, size)))
CALL(int, fsync, (int file), syncFile(file, SYS_fsync))
CALL(int, fdatasync, (int file), syncFile(file, SYS_fdatasync))
CALL(int, syncfs, (int file), syncFile(file, SYS_syncfs))

CALL(int, rename, (const char *from, const char *to), ask("rename", at(AT_FDCWD, to), SYS(SYS_rename, from, to)))
CALL(int, renameat, (int folder, const char *from, int target, const char *to),
     ask("rename", at(target, to), SYS(SYS_renameat2, folder, from, target, to, 0)))
CALL(int, renameat2, (int folder, const char *from, int target, const char *to, unsigned flags),
     ask("rename", at(target, to), SYS(SYS_renameat2, folder, from, target, to, flags)))
CALL(int, link, (const char *from, const char *to), ask("link", at(AT_FDCWD, to), SYS(SYS_link, from, to)))
CALL(int, linkat, (int folder, const char *from, int target, const char *to, int flags),
     ask("link", at(target, to), SYS(SYS_linkat, folder, from, target, to, flags)))
CALL(int, unlink, (const char *path), ask("unlink", at(AT_FDCWD, path), SYS(SYS_unlink, path)))
CALL(int, unlinkat, (int folder, const char *path, int flags),
     ask("unlink", at(folder, path), SYS(SYS_unlinkat, folder, path, flags)))
CALL(int, rmdir, (const char *path), ask("unlink", at(AT_FDCWD, path), SYS(SYS_rmdir, path)))
CALL(int, remove, (const char *path), ask("unlink", at(AT_FDCWD, path), [&] {
       const long result = syscall(SYS_unlink, path);
       return result != 0 && errno == EISDIR ? syscall(SYS_rmdir, path) : result;
     }))
CALL(int, mkdir, (const char *path, mode_t mode), ask("mkdir", at(AT_FDCWD, path), SYS(SYS_mkdir, path, mode)))

CALL(ssize_t, read, (int file, void *bytes, size_t count), ask("read", of(file), SYS(SYS_read, file, bytes, count)))
CALL(ssize_t, pread, (int file, void *bytes, size_t count, off_t place),
     ask("read", of(file), SYS(SYS_pread64, file, bytes, count, place)))
CALL(ssize_t, pread64, (int file, void *bytes, size_t count, off_t place),
     ask("read", of(file), SYS(SYS_pread64, file, bytes, count, place)))
CALL(int, access, (const char *path, int mode), ask("look", at(AT_FDCWD, path), SYS(SYS_access, path, mode)))
CALL(int, stat, (const char *path, struct stat *found), ask("look", at(AT_FDCWD, path), SYS(SYS_stat, path, found)))
CALL(int, stat64, (const char *path, struct stat *found), ask("look", at(AT_FDCWD, path), SYS(SYS_stat, path, found)))
CALL(int, lstat, (const char *path, struct stat *found), ask("look", at(AT_FDCWD, path), SYS(SYS_lstat, path, found)))
CALL(int, lstat64, (const char *path, struct stat *found), ask("look", at(AT_FDCWD, path), SYS(SYS_lstat, path, found)))
CALL(int, statx, (int folder, const char *path, int flags, unsigned mask, void *found),
     ask("look", at(folder, path), SYS(SYS_statx, folder, path, flags, mask, found)))
CALL(int, flock, (int file, int operation), ask("lock", of(file), SYS(SYS_flock, file, operation)))
CALL(Folder, opendir, (const char *path), openFolder(path))

CALL(int, clock_gettime, (clockid_t id, timespec *time),
     Device::it().clock.runs(id) ? (*time = Device::it().clock.now(), 0) : int(syscall(SYS_clock_gettime, id, time)))
CALL(int, ppoll, (pollfd * files, nfds_t count, const timespec *timeout, const sigset_t *signals),
     timeout &&Device::it().clock.isMine() ? pollUntilIdle(files, count, *timeout, signals)
                                           : int(syscall(SYS_ppoll, files, count, timeout, signals, size_t(8))))
