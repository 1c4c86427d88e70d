#pragma once

#include "facade/contract/HostServices.h"

#include <QMap>

namespace tests {

/// A settings store in memory, its content as "application/section/key" -> value.
struct MemoryStore final : ZolWDoc::SettingsStore {
    QMap<QString, QString> values;
    int written = 0;                            ///< how often
    static QString place(const QString &a, const QString &s, const QString &k)
    {
        return a + u'/' + s + u'/' + k;
    }
    QString read(const QString &a, const QString &s, const QString &k, const QString &fallback) const override
    {
        return values.value(place(a, s, k), fallback);
    }
    void write(const QString &a, const QString &s, const QString &k, const QString &v) override
    {
        ++written, values[place(a, s, k)] = v;
    }
    void remove(const QString &a, const QString &s, const QString &k) override
    {
        values.remove(place(a, s, k));
    }
    QStringList dump() const
    {
        QStringList out;
        for (auto i = values.begin(); i != values.end(); ++i) out << i.key() + u'=' + i.value();
        return out;
    }
};

} // namespace tests
