// SPDX-License-Identifier: MIT
// Preloaded into a program, makes its n-th call that changes or opens a file below FAULT_ROOT fail, or kills it there.
//   FAULT_ROOT   the folder; calls elsewhere are left alone
//   FAULT_SKIP   nor do calls count on a path that holds this text
//   FAULT_AT     n, from 1; 0 only counts
//   FAULT_HOW    once, on (this call and all that follow), before, after (killed before or after the call; before a
//                write, half of its bytes are written)
//   FAULT_ERRNO  the error's number
//   FAULT_REPORT file that gets "COUNT" and, when it failed, " CALL PATH" of the first one
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

static long count;
static int report = -1;

static const char* setting(const char* name) {
    const char* value = getenv(name);
    return value ? value : "";
}

static int isBelow(const char* path) {
    const char* root = setting("FAULT_ROOT");
    const char* skip = setting("FAULT_SKIP");
    return *root && strncmp(path, root, strlen(root)) == 0 && !(*skip && strstr(path, skip));
}

static void pathOf(int fd, char* path, size_t size) {
    char link[64];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t length = readlink(link, path, size - 1);
    path[length < 0 ? 0 : length] = 0;
}

static void place(int folder, const char* name, char* path, size_t size) {
    path[0] = 0;
    if (*name != '/' && folder >= 0) pathOf(folder, path, size);
    snprintf(path + strlen(path), size - strlen(path), "%s%s", path[0] ? "/" : "", name);
}

static void tell(const char* call, const char* path) {
    static int failed;
    char line[4200];
    if (report < 0) report = (int)syscall(SYS_openat, AT_FDCWD, setting("FAULT_REPORT"), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const int length = snprintf(line, sizeof line, "%ld%s%s%s%s", count, *call ? " " : "", call, *call ? " " : "", path);
    if (!failed) syscall(SYS_pwrite64, report, line, (size_t)length, 0L);
    if (*call) failed = 1;
}

enum { GoOn, Fail, KillAfter };

// What is to happen to this call. A kill before it happens here.
static int verdict(const char* call, const char* path, int fd, const void* bytes, size_t size) {
    if (!isBelow(path)) return GoOn;
    const long at = atol(setting("FAULT_AT"));
    const char* how = setting("FAULT_HOW");
    ++count;
    const int isHit = at > 0 && (count == at || (count > at && strcmp(how, "on") == 0));
    tell(isHit ? call : "", isHit ? path : "");
    if (!isHit) return GoOn;
    if (strcmp(how, "after") == 0) return KillAfter;
    if (strcmp(how, "before") == 0) {
        if (size > 1) syscall(SYS_write, fd, bytes, size / 2);
        raise(SIGKILL);
    }
    errno = atoi(setting("FAULT_ERRNO"));
    return Fail;
}

#define REAL(name) ((__typeof__(name)*)dlsym(RTLD_NEXT, #name))
#define CALL(type, name, path, fd, bytes, size, ...)                    \
    const int doom = verdict(#name, path, fd, bytes, size);             \
    if (doom == Fail) return -1;                                        \
    const type result = REAL(name)(__VA_ARGS__);                        \
    if (doom == KillAfter) raise(SIGKILL);                              \
    return result
#define ON_PATH(name, path, ...) CALL(int, name, path, -1, NULL, 0, __VA_ARGS__)
#define ON_FD(type, name, fd, bytes, size, ...) \
    char path[4096];                            \
    pathOf(fd, path, sizeof path);              \
    CALL(type, name, path, fd, bytes, size, __VA_ARGS__)
#define MODE(flags)                                        \
    va_list rest;                                          \
    va_start(rest, flags);                                 \
    const mode_t mode = (flags) & O_CREAT ? va_arg(rest, mode_t) : 0; \
    va_end(rest)
#define AT_PLACE(folder, name) \
    char path[4096];           \
    place(folder, name, path, sizeof path)

int open(const char* name, int flags, ...) { MODE(flags); ON_PATH(open, name, name, flags, mode); }
int open64(const char* name, int flags, ...) { MODE(flags); ON_PATH(open64, name, name, flags, mode); }
int openat(int folder, const char* name, int flags, ...) {
    MODE(flags);
    AT_PLACE(folder, name);
    ON_PATH(openat, path, folder, name, flags, mode);
}
int rename(const char* from, const char* to) { ON_PATH(rename, to, from, to); }
int renameat2(int old, const char* from, int folder, const char* to, unsigned flags) {
    AT_PLACE(folder, to);
    ON_PATH(renameat2, path, old, from, folder, to, flags);
}
int unlink(const char* name) { ON_PATH(unlink, name, name); }
int remove(const char* name) { ON_PATH(remove, name, name); }
int rmdir(const char* name) { ON_PATH(rmdir, name, name); }
int mkdir(const char* name, mode_t mode) { ON_PATH(mkdir, name, name, mode); }
int unlinkat(int folder, const char* name, int flags) {
    AT_PLACE(folder, name);
    ON_PATH(unlinkat, path, folder, name, flags);
}
int fsync(int fd) { ON_FD(int, fsync, fd, NULL, 0, fd); }
int fdatasync(int fd) { ON_FD(int, fdatasync, fd, NULL, 0, fd); }
int ftruncate(int fd, off_t length) { ON_FD(int, ftruncate, fd, NULL, 0, fd, length); }
ssize_t write(int fd, const void* bytes, size_t size) { ON_FD(ssize_t, write, fd, bytes, size, fd, bytes, size); }
ssize_t pwrite(int fd, const void* bytes, size_t size, off_t at) { ON_FD(ssize_t, pwrite, fd, NULL, 0, fd, bytes, size, at); }
