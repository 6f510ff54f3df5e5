#pragma once

#include <algorithm>
#include <array>
#include <cerrno>
#include <iterator>
#include <string_view>

/// A kind of file call as the device counts it: whether it changes what lies on the disk, and the errors that the
/// system may give for it.
struct CallKind {
  std::string_view name;
  bool changes;
  std::array<int, 4> errors;
};

constexpr CallKind CallKinds[] = {
    {"create", true, {ENOSPC, EIO, EACCES, EMFILE}},
    {"write", true, {ENOSPC, EIO, EINTR}},
    {"truncate", true, {ENOSPC, EIO}},
    {"rename", true, {ENOSPC, EIO, EACCES}},
    {"link", true, {ENOSPC, EIO, EACCES}},
    {"unlink", true, {EIO, EACCES}},
    {"mkdir", true, {ENOSPC, EIO, EACCES}},
    {"sync", false, {ENOSPC, EIO, EINTR}},
    {"open", false, {EIO, EACCES, EMFILE, EINTR}},
    {"close", false, {EIO}},
    {"read", false, {EIO, EINTR}},
    {"look", false, {EIO, EACCES}},
    {"list", false, {EIO, EACCES, EMFILE}},
    {"lock", false, {EIO, EINTR}},
};

constexpr const CallKind &callKind(std::string_view name) {
  return *std::find_if(std::begin(CallKinds), std::end(CallKinds),
                       [name](const CallKind &kind) { return kind.name == name; });
}

constexpr bool canFail(const CallKind &kind, int error) {
  return error != 0 && std::find(kind.errors.begin(), kind.errors.end(), error) != kind.errors.end();
}
