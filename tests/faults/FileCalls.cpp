// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "FileCalls.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace FileCalls {
namespace {

struct Plan
{
  std::string folder;  // empty: nobody watches
  Fault fault = Fault::kNone;
  std::size_t number = 0;
};

Plan plan;
std::vector<Step> steps;
int struck = 0;

bool IsWatched(const std::string& path)
{
  return !plan.folder.empty() && path.compare(0, plan.folder.size(), plan.folder) == 0;
}

std::string PathOf(int file)
{
  if (plan.folder.empty()) {
    return {};
  }
  char path[PATH_MAX];
  const std::string link = "/proc/self/fd/" + std::to_string(file);
  const ssize_t size = readlink(link.c_str(), path, sizeof path);
  return size > 0 ? std::string(path, static_cast<std::size_t>(size)) : std::string();
}

[[noreturn]] void Die()
{
  raise(SIGKILL);
  _exit(EXIT_FAILURE);
}

int ErrorOf(Fault fault)
{
  switch (fault) {
    case Fault::kFullDisk:
    case Fault::kFullWithin:
      return ENOSPC;
    case Fault::kReadOnlyDisk:
      return EROFS;
    case Fault::kNoRights:
      return EACCES;
    default:
      return EIO;
  }
}

// The fault at a step that it has reached. True if the step fails.
bool Strikes(const Step& step, bool isTheStep)
{
  if (plan.fault == Fault::kKill && isTheStep) {
    Die();
  }
  const bool onlyHere = plan.fault == Fault::kDiskError;
  const bool fails = plan.fault != Fault::kNone && plan.fault != Fault::kKill && plan.fault != Fault::kKillWithin &&
                     (isTheStep || !onlyHere) && Concerns(plan.fault, step);
  if (fails) {
    ++struck;
    errno = ErrorOf(plan.fault);
  }
  return fails;
}

// Does the call, unless it is to go wrong. `half` does half of it.
template <typename Call, typename Half>
auto Perform(const Step& step, const Call& call, const Half& half) -> decltype(call())
{
  if (!IsWatched(step.path)) {
    return call();
  }
  steps.push_back(step);
  const bool isTheStep = steps.size() == plan.number;
  if (isTheStep && plan.fault == Fault::kKillWithin) {
    static_cast<void>(half());
    Die();
  }
  if (isTheStep && plan.fault == Fault::kFullWithin) {
    ++struck;
    return half();
  }
  return steps.size() >= plan.number && Strikes(step, isTheStep) ? -1 : call();
}

template <typename Call>
auto Perform(const Step& step, const Call& call) -> decltype(call())
{
  return Perform(step, call, call);
}

}

bool Concerns(Fault fault, const Step& step)
{
  switch (fault) {
    case Fault::kKill:
    case Fault::kDiskError:
      return true;
    case Fault::kKillWithin:
    case Fault::kFullWithin:
      return step.kind == Kind::kWrite;
    case Fault::kFullDisk:
      return step.kind == Kind::kWrite || step.kind == Kind::kCreate;
    case Fault::kReadOnlyDisk:
      return step.kind != Kind::kFlush;
    case Fault::kNoRights:
      return step.kind == Kind::kCreate || step.kind == Kind::kOpen || step.kind == Kind::kName ||
             step.kind == Kind::kMode;
    case Fault::kNone:
      break;
  }
  return false;
}

void Watch(const std::string& folder, Fault fault, int number)
{
  steps.clear();
  struck = 0;
  plan = {folder, fault, static_cast<std::size_t>(number)};
}

void Stop()
{
  plan = {};
}

const std::vector<Step>& Steps()
{
  return steps;
}

int Struck()
{
  return struck;
}

}

// The calls themselves. Being part of the executable, they are found before those of the
// system by every library of the program.

namespace {

using namespace FileCalls;

template <typename Function>
Function Next(const char* name)
{
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

int OpenWatched(const char* call, const char* path, int flags, mode_t mode)
{
  const auto next = Next<int (*)(const char*, int, ...)>(call);
  const auto open = [&] { return next(path, flags, mode); };
  if ((flags & O_ACCMODE) == O_RDONLY && (flags & O_CREAT) == 0) {
    return open();
  }
  const bool makes = (flags & O_CREAT) != 0 && access(path, F_OK) != 0;
  return Perform({makes ? Kind::kCreate : Kind::kOpen, call, path}, open);
}

mode_t ModeOf(int flags, va_list arguments)
{
  return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

template <typename Write>
ssize_t WriteWatched(const char* call, int file, std::size_t size, const Write& write)
{
  return Perform(
      {Kind::kWrite, call, PathOf(file)}, [&] { return write(size); }, [&] { return write(size / 2); });
}

int OnPath(Kind kind, const char* call, const char* path)
{
  const auto next = Next<int (*)(const char*)>(call);
  return Perform({kind, call, path}, [&] { return next(path); });
}

int OnFile(Kind kind, const char* call, int file)
{
  const auto next = Next<int (*)(int)>(call);
  return Perform({kind, call, PathOf(file)}, [&] { return next(file); });
}

int OnNames(const char* call, const char* from, const char* to)
{
  const auto next = Next<int (*)(const char*, const char*)>(call);
  return Perform({Kind::kName, call, from}, [&] { return next(from, to); });
}

}

extern "C" {

int open(const char* path, int flags, ...)
{
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return OpenWatched("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = ModeOf(flags, arguments);
  va_end(arguments);
  return OpenWatched("open64", path, flags, mode);
}

ssize_t write(int file, const void* data, size_t size)
{
  static const auto next = Next<ssize_t (*)(int, const void*, size_t)>("write");
  return WriteWatched("write", file, size, [&](size_t part) { return next(file, data, part); });
}

ssize_t pwrite64(int file, const void* data, size_t size, off64_t place)
{
  static const auto next = Next<ssize_t (*)(int, const void*, size_t, off64_t)>("pwrite64");
  return WriteWatched("pwrite64", file, size, [&](size_t part) { return next(file, data, part, place); });
}

int ftruncate64(int file, off64_t size) noexcept
{
  const auto next = Next<int (*)(int, off64_t)>("ftruncate64");
  return Perform({Kind::kCut, "ftruncate64", PathOf(file)}, [&] { return next(file, size); });
}

int fsync(int file)
{
  return OnFile(Kind::kFlush, "fsync", file);
}

int fdatasync(int file)
{
  return OnFile(Kind::kFlush, "fdatasync", file);
}

int unlink(const char* path) noexcept
{
  return OnPath(Kind::kName, "unlink", path);
}

int rmdir(const char* path) noexcept
{
  return OnPath(Kind::kName, "rmdir", path);
}

int rename(const char* from, const char* to) noexcept
{
  return OnNames("rename", from, to);
}

int link(const char* from, const char* to) noexcept
{
  return OnNames("link", from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept
{
  const auto next = Next<int (*)(int, const char*, int, const char*, int)>("linkat");
  return Perform({Kind::kName, "linkat", to}, [&] { return next(fromFolder, from, toFolder, to, flags); });
}

int fchmod(int file, mode_t mode) noexcept
{
  const auto next = Next<int (*)(int, mode_t)>("fchmod");
  return Perform({Kind::kMode, "fchmod", PathOf(file)}, [&] { return next(file, mode); });
}

int chmod(const char* path, mode_t mode) noexcept
{
  const auto next = Next<int (*)(const char*, mode_t)>("chmod");
  return Perform({Kind::kMode, "chmod", path}, [&] { return next(path, mode); });
}
}
