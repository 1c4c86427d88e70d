#pragma once

#include <QTest>

#include <memory>
#include <type_traits>

namespace tests {

/// Compares what a row of a table gives with what it should. A difference fails the test under the row's
/// name, and the rows after it still have their turn.
template <class T>
bool same(const char *row, const T &seen, const std::type_identity_t<T> &wanted,
          const char *file = __builtin_FILE(), int line = __builtin_LINE())
{
    if (seen == wanted) return true;
    const std::unique_ptr<char[]> is(QTest::toString(seen)), ought(QTest::toString(wanted));
    QTest::qFail(qPrintable(QStringLiteral("%1: %2, not %3").arg(row, is.get(), ought.get())), file, line);
    return false;
}

} // namespace tests
