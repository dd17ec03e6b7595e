/* Fault injection for the save tests: makes write, fsync, close and rename fail,
 * or a write come back short, for files whose path holds a given text. Loaded with
 * LD_PRELOAD into the command-line tool, or linked into a test program, where its
 * definitions come before the C library's.
 *
 * Controlled by the environment, read at every call:
 *   TB_FAULT_OP     write | short | fsync | close | rename | kill (nothing when unset)
 *   TB_FAULT_MATCH  only files whose path contains this text are affected
 *   TB_FAULT_AFTER  bytes written normally before the fault (write, short, kill)
 *   TB_FAULT_ERRNO  the error number given (default ENOSPC)
 * "short" writes at most half of what is asked, at least one byte, and fails with the
 * error once TB_FAULT_AFTER bytes are written, as a disk does when it fills up.
 * "kill" ends the process with SIGKILL once TB_FAULT_AFTER bytes are written. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/types.h>
#include <unistd.h>

static long long written_so_far;

__attribute__((visibility("default"))) void tbfault_reset(void)
{
    written_so_far = 0;
}

static const char *fault_op(void)
{
    const char *op = getenv("TB_FAULT_OP");
    return op && *op ? op : NULL;
}

static int fault_errno(void)
{
    const char *e = getenv("TB_FAULT_ERRNO");
    return e && *e ? atoi(e) : ENOSPC;
}

static long long fault_after(void)
{
    const char *a = getenv("TB_FAULT_AFTER");
    return a && *a ? atoll(a) : 0;
}

static int path_matches(const char *path)
{
    const char *match = getenv("TB_FAULT_MATCH");
    return match && *match && path && strstr(path, match) != NULL;
}

/* Whether fd is a file opened for writing whose path matches. */
static int fd_matches(int fd)
{
    char link[64];
    char path[4096];
    snprintf(link, sizeof link, "/proc/self/fd/%d", fd);
    const ssize_t n = readlink(link, path, sizeof path - 1);
    if (n <= 0)
        return 0;
    path[n] = 0;
    const int flags = fcntl(fd, F_GETFL);
    if (flags < 0 || (flags & O_ACCMODE) == O_RDONLY)
        return 0;
    return path_matches(path);
}

static int is_op(const char *op, const char *name)
{
    return op && strcmp(op, name) == 0;
}

ssize_t write(int fd, const void *buf, size_t count)
{
    static ssize_t (*real_write)(int, const void *, size_t);
    if (!real_write)
        real_write = (ssize_t (*)(int, const void *, size_t))dlsym(RTLD_NEXT, "write");
    const char *op = fault_op();
    if (!(is_op(op, "write") || is_op(op, "short") || is_op(op, "kill")) || count == 0 || !fd_matches(fd))
        return real_write(fd, buf, count);

    const long long left = fault_after() - written_so_far;
    if (left <= 0) {
        if (is_op(op, "kill"))
            raise(SIGKILL);
        errno = fault_errno();
        return -1;
    }
    size_t n = count;
    if (is_op(op, "short") && n > 1)
        n /= 2;
    if ((long long)n > left)
        n = (size_t)left;
    const ssize_t done = real_write(fd, buf, n);
    if (done > 0)
        written_so_far += done;
    return done;
}

int fsync(int fd)
{
    static int (*real_fsync)(int);
    if (!real_fsync)
        real_fsync = (int (*)(int))dlsym(RTLD_NEXT, "fsync");
    if (is_op(fault_op(), "fsync") && fd_matches(fd)) {
        errno = fault_errno();
        return -1;
    }
    return real_fsync(fd);
}

int fdatasync(int fd)
{
    static int (*real_fdatasync)(int);
    if (!real_fdatasync)
        real_fdatasync = (int (*)(int))dlsym(RTLD_NEXT, "fdatasync");
    if (is_op(fault_op(), "fsync") && fd_matches(fd)) {
        errno = fault_errno();
        return -1;
    }
    return real_fdatasync(fd);
}

int close(int fd)
{
    static int (*real_close)(int);
    if (!real_close)
        real_close = (int (*)(int))dlsym(RTLD_NEXT, "close");
    if (is_op(fault_op(), "close") && fd_matches(fd)) {
        /* As on a network file system: the file is closed, the error reported. */
        real_close(fd);
        errno = fault_errno();
        return -1;
    }
    return real_close(fd);
}

int rename(const char *from, const char *to)
{
    static int (*real_rename)(const char *, const char *);
    if (!real_rename)
        real_rename = (int (*)(const char *, const char *))dlsym(RTLD_NEXT, "rename");
    if (is_op(fault_op(), "rename") && path_matches(to)) {
        errno = fault_errno();
        return -1;
    }
    return real_rename(from, to);
}

int renameat(int fromdir, const char *from, int todir, const char *to)
{
    static int (*real_renameat)(int, const char *, int, const char *);
    if (!real_renameat)
        real_renameat = (int (*)(int, const char *, int, const char *))dlsym(RTLD_NEXT, "renameat");
    if (is_op(fault_op(), "rename") && path_matches(to)) {
        errno = fault_errno();
        return -1;
    }
    return real_renameat(fromdir, from, todir, to);
}
