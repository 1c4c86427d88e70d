#pragma once

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

namespace tests {

/// While it stands no file grows beyond these bytes, as on a full disk.
class FullDisk {
#ifdef Q_OS_UNIX
public:
    static constexpr bool isPossible = true;
    explicit FullDisk(qint64 bytes = 100)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit few{rlim_t(bytes), m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &few);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }

private:
    rlimit m_before;
#else
public:
    static constexpr bool isPossible = false;
    explicit FullDisk(qint64 = 0) {}
#endif
};

} // namespace tests
