// A double of the file operations: the real ones, counted, except that operation number k
// (from 1) fails with a plausible error, alone or with every operation after it. Syncs succeed
// without flushing, since no test needs its files on disk; writes take at most chunk bytes,
// so that one file takes several writes.
#pragma once

#include <stdio.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <vector>

#include "base/FileOps.h"

// Which operations of a run fail: number k alone, or k and every one after it.
struct CFault {
    std::size_t k = 0;  // 0: none
    bool onward = false;
    std::string Name(const std::vector<std::string>& ops) const {
        return (onward ? "from " : "only ") + ops[k - 1] + " #" + std::to_string(k) + " of " +
               std::to_string(ops.size());
    }
};

// Every fault of a run of n operations.
inline std::vector<CFault> FaultsOf(std::size_t n) {
    std::vector<CFault> faults;
    for (bool onward : {false, true}) {
        for (std::size_t k = 1; k <= n; ++k) {
            faults.push_back({k, onward});
        }
    }
    return faults;
}

// The operations asked for, joined by ", ", a run of writes named once.
inline std::string Sequence(const std::vector<std::string>& ops) {
    std::string out;
    for (std::size_t i = 0; i < ops.size(); ++i) {
        if (i == 0 || ops[i] != "write" || ops[i - 1] != "write") {
            out += (out.empty() ? "" : ", ") + ops[i];
        }
    }
    return out;
}

// What replacing a file asks for. The faults are made from the operations a run asks for, so
// one the writer drops, or a writer that goes past these operations, is never failed: a dry
// run is checked against this first.
inline const char* const kReplaceOps =
    "open, write, fchmod, fsync, close, open folder, rename, sync folder, close";

class CFailingOps : public CFileOps {
public:
    explicit CFailingOps(CFault fault = {}, std::size_t chunk = 4096)
        : m_real(FileOps()), m_fault(fault), m_nChunk(chunk) {}

    int Open(const std::string& path, int flags, mode_t mode) override {
        return Fails("open", EACCES) ? -1 : m_real.Open(path, flags, mode);
    }
    ssize_t Write(int fd, const char* data, std::size_t size) override {
        return Fails("write", ENOSPC) ? -1 : m_real.Write(fd, data, std::min(size, m_nChunk));
    }
    int Fchmod(int fd, mode_t mode) override {
        return Fails("fchmod", EPERM) ? -1 : m_real.Fchmod(fd, mode);
    }
    int Fsync(int) override { return Fails("fsync", EIO) ? -1 : 0; }
    // A close that reports an error has still closed the descriptor.
    int Close(int fd) override {
        const int result = m_real.Close(fd);
        return Fails("close", EIO) ? -1 : result;
    }
    int Rename(const std::string& from, const std::string& to, unsigned flags) override {
        if (Fails("rename", EXDEV)) {
            return -1;
        }
        if (m_bNoExchange && flags == RENAME_EXCHANGE) {
            errno = EINVAL;
            return -1;
        }
        return m_real.Rename(from, to, flags);
    }
    int OpenFolder(const std::string& path) override {
        return Fails("open folder", EACCES) ? -1 : m_real.OpenFolder(path);
    }
    int SyncFolder(int) override { return Fails("sync folder", EIO) ? -1 : 0; }

    std::vector<std::string> m_ops;  // the operations asked for, in order
    bool m_bNoExchange = false;      // as a file system that cannot exchange two names

private:
    bool Fails(const char* op, int error) {
        m_ops.push_back(op);
        const std::size_t n = m_ops.size();
        const bool fail = m_fault.k != 0 && (n == m_fault.k || (m_fault.onward && n > m_fault.k));
        if (fail) {
            errno = error;
        }
        return fail;
    }

    CFileOps& m_real;
    CFault m_fault;
    std::size_t m_nChunk;
};

// Runs f with ops in force, and gives its result.
template <typename F>
auto WithOps(CFileOps& ops, F f) {
    struct CUse {
        explicit CUse(CFileOps& o) { SetFileOps(&o); }
        ~CUse() { SetFileOps(nullptr); }
    } use(ops);
    return f();
}
