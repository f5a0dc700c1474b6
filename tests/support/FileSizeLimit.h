// No file of this process grows past a size while an object of this lives: a full disk that holds for root, too.
#pragma once

#include <csignal>
#include <sys/resource.h>

class FileSizeLimit
{
public:
    // Writing past the limit fails, or ends the process when `deadly` is set.
    explicit FileSizeLimit(rlim_t bytes, bool deadly = false)
        : m_handler(std::signal(SIGXFSZ, deadly ? SIG_DFL : SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler); // NOLINT(cert-err33-c)
    }

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};
