#pragma once

#include <QString>

#include <cstdint>
#include <cstring>

/// Ends the run with the input that broke the promise.
#define PROMISE(condition)                                                                                   \
    do {                                                                                                     \
        if (!(condition)) __builtin_trap();                                                                  \
    } while (false)

namespace tests {

/// What the fuzzer gives, in pieces; zeros and nothing when it is used up.
class Feed {
public:
    Feed(const uint8_t *data, size_t size) : m_at(data), m_end(data + size) {}
    bool atEnd() const { return m_at == m_end; }
    template <class T> T take()
    {
        T value{};
        const size_t n = std::min(sizeof value, size_t(m_end - m_at));
        std::memcpy(&value, m_at, n);
        m_at += n;
        return value;
    }
    QString text(size_t longest)
    {
        const size_t n = std::min(longest, size_t(m_end - m_at));
        const QString out = QString::fromUtf8(reinterpret_cast<const char *>(m_at), qsizetype(n));
        m_at += n;
        return out;
    }
private:
    const uint8_t *m_at, *m_end;
};

} // namespace tests
