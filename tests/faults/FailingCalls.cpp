// To be preloaded: makes one of a program's file calls fail, or that and all after it.
//
// QUILL_FAILING_CALLS names a file of sizeof(Control) bytes, through which another process says
// which call it is to be and learns what happened; tools/failing_calls.py is its twin. Only calls
// on what lies below a folder count. Without the variable nothing fails.
#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

enum Kind : std::int32_t {
  kOpenToRead = 1,
  kOpenToWrite = 2,
  kWrite = 4,
  kSync = 8,
  kName = 16,  // rename, link, unlink
  kFolder = 32,
  kSize = 64,
};
constexpr std::int32_t kShortWrite = -1;
constexpr std::size_t kFolderSize = 256;
constexpr std::size_t kCallSize = 512;

struct Control {
  std::int64_t At;      // the call that fails, from 1; 0: none, and none is counted
  std::int64_t Seen;    // calls of these kinds so far
  std::int64_t Failed;  // how many of them failed
  std::int32_t Kinds;   // which count
  std::int32_t Error;   // errno; kShortWrite: half of the bytes are written
  std::int32_t GoesOn;  // not 0: all after it fail too
  char Folder[kFolderSize];
  char Call[kCallSize];  // the first that failed
};
Control* g_control = nullptr;

template <typename Function>
Function* Next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

__attribute__((constructor)) void Attach() {
  const char* const file = std::getenv("QUILL_FAILING_CALLS");
  if (!file) return;
  const int handle = Next<int(const char*, int, ...)>("open")(file, O_RDWR);
  if (handle < 0) return;
  void* const place = mmap(nullptr, sizeof(Control), PROT_READ | PROT_WRITE, MAP_SHARED, handle, 0);
  close(handle);
  if (place != MAP_FAILED) g_control = static_cast<Control*>(place);
}

bool IsBelow(const char* path) {
  const std::size_t length = std::strlen(g_control->Folder);
  return std::strncmp(path, g_control->Folder, length) == 0 && path[length] == '/';
}

bool Fails(Kind kind, const char* call, const char* path) {
  if (!g_control || g_control->At == 0 || !(g_control->Kinds & kind) || !IsBelow(path))
    return false;
  const std::int64_t number = __atomic_add_fetch(&g_control->Seen, 1, __ATOMIC_SEQ_CST);
  const bool fails = number == g_control->At || (g_control->GoesOn != 0 && number > g_control->At);
  if (!fails) return false;
  if (__atomic_add_fetch(&g_control->Failed, 1, __ATOMIC_SEQ_CST) == 1)
    std::snprintf(g_control->Call, kCallSize, "%s %s", call, path + std::strlen(g_control->Folder));
  return true;
}

bool Fails(Kind kind, const char* call, int handle) {
  if (!g_control || g_control->At == 0) return false;
  char link[64];
  char path[PATH_MAX];
  std::snprintf(link, sizeof(link), "/proc/self/fd/%d", handle);
  const ssize_t length = readlink(link, path, sizeof(path) - 1);
  if (length < 0) return false;
  path[length] = '\0';
  return Fails(kind, call, path);
}

int Refuse() {
  errno = g_control->Error == kShortWrite ? ENOSPC : g_control->Error;
  return -1;
}

bool IsForWriting(int flags) { return (flags & (O_WRONLY | O_RDWR | O_CREAT)) != 0; }

bool OpenFails(const char* path, int flags) {
  return Fails(IsForWriting(flags) ? kOpenToWrite : kOpenToRead, "open", path);
}

// Of a short write half; the others write nothing. A disk that stays full takes half once.
std::size_t Allowed(std::size_t size) {
  const bool isShort = g_control->Error == kShortWrite && g_control->Failed == 1;
  return isShort ? size / 2 : 0;
}

mode_t ModeOf(int flags, va_list list) {
  const bool hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
  return hasMode ? va_arg(list, mode_t) : 0;
}

}  // namespace

extern "C" {

#define QUILL_OPEN(call)                                               \
  int call(const char* path, int flags, ...) {                         \
    va_list list;                                                      \
    va_start(list, flags);                                             \
    const mode_t mode = ModeOf(flags, list);                           \
    va_end(list);                                                      \
    if (OpenFails(path, flags)) return Refuse();                       \
    return Next<int(const char*, int, ...)>(#call)(path, flags, mode); \
  }
QUILL_OPEN(open)
QUILL_OPEN(open64)

#define QUILL_OPENAT(call)                                                          \
  int call(int folder, const char* path, int flags, ...) {                          \
    va_list list;                                                                   \
    va_start(list, flags);                                                          \
    const mode_t mode = ModeOf(flags, list);                                        \
    va_end(list);                                                                   \
    if (OpenFails(path, flags)) return Refuse();                                    \
    return Next<int(int, const char*, int, ...)>(#call)(folder, path, flags, mode); \
  }
QUILL_OPENAT(openat)
QUILL_OPENAT(openat64)

ssize_t write(int handle, const void* bytes, std::size_t size) {
  auto* const next = Next<ssize_t(int, const void*, std::size_t)>("write");
  if (!Fails(kWrite, "write", handle)) return next(handle, bytes, size);
  const std::size_t allowed = Allowed(size);
  return allowed > 0 ? next(handle, bytes, allowed) : Refuse();
}

#define QUILL_PWRITE(call, offset_t)                                                  \
  ssize_t call(int handle, const void* bytes, std::size_t size, offset_t offset) {    \
    auto* const next = Next<ssize_t(int, const void*, std::size_t, offset_t)>(#call); \
    if (!Fails(kWrite, #call, handle)) return next(handle, bytes, size, offset);      \
    const std::size_t allowed = Allowed(size);                                        \
    return allowed > 0 ? next(handle, bytes, allowed, offset) : Refuse();             \
  }
QUILL_PWRITE(pwrite, off_t)
QUILL_PWRITE(pwrite64, off64_t)

int fsync(int handle) {
  return Fails(kSync, "fsync", handle) ? Refuse() : Next<int(int)>("fsync")(handle);
}

int fdatasync(int handle) {
  return Fails(kSync, "fdatasync", handle) ? Refuse() : Next<int(int)>("fdatasync")(handle);
}

int ftruncate(int handle, off_t size) noexcept {
  if (Fails(kSize, "ftruncate", handle)) return Refuse();
  return Next<int(int, off_t)>("ftruncate")(handle, size);
}

int ftruncate64(int handle, off64_t size) noexcept {
  if (Fails(kSize, "ftruncate64", handle)) return Refuse();
  return Next<int(int, off64_t)>("ftruncate64")(handle, size);
}

int posix_fallocate(int handle, off_t offset, off_t size) {
  if (Fails(kSize, "posix_fallocate", handle)) return Refuse(), errno;
  return Next<int(int, off_t, off_t)>("posix_fallocate")(handle, offset, size);
}

int posix_fallocate64(int handle, off64_t offset, off64_t size) {
  if (Fails(kSize, "posix_fallocate64", handle)) return Refuse(), errno;
  return Next<int(int, off64_t, off64_t)>("posix_fallocate64")(handle, offset, size);
}

int rename(const char* from, const char* to) noexcept {
  if (Fails(kName, "rename", to)) return Refuse();
  return Next<int(const char*, const char*)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
  if (Fails(kName, "renameat2", to)) return Refuse();
  return Next<int(int, const char*, int, const char*, unsigned)>("renameat2")(fromFolder, from,
                                                                              toFolder, to, flags);
}

int link(const char* from, const char* to) noexcept {
  if (Fails(kName, "link", to)) return Refuse();
  return Next<int(const char*, const char*)>("link")(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
  if (Fails(kName, "linkat", to)) return Refuse();
  return Next<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from, toFolder,
                                                                      to, flags);
}

int unlink(const char* path) noexcept {
  return Fails(kName, "unlink", path) ? Refuse() : Next<int(const char*)>("unlink")(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
  if (Fails(kFolder, "mkdir", path)) return Refuse();
  return Next<int(const char*, mode_t)>("mkdir")(path, mode);
}

}  // extern "C"
