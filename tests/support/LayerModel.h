#pragma once

#include <QStringList>

#include <algorithm>
#include <set>
#include <vector>

namespace tests {

/// The layer table as its rules were written down, without grid, document or any code of the library.
struct LayerModel {
    struct Row {
        int nr;
        QString name;
        bool visible = true, lines = false, texts = false;
        std::set<QString> groups{};
        int elements = 0;                       ///< that stand on it
        QString values{};                       ///< all others, as the file has them
        QString line() const
        {
            const QStringList in(groups.begin(), groups.end());
            return QStringLiteral("%1 %2 %3%4%5 %6 [%7] %8")
                .arg(nr).arg(name).arg(int(visible)).arg(int(lines)).arg(int(texts)).arg(elements)
                .arg(in.join(u','), values);
        }
    };
    using Places = std::vector<size_t>;
    std::vector<Row> rows;                      ///< in the order in which they were made
    std::set<QString> firstGroups{};            ///< of a new layer: where the document puts it
    QStringList told{};

    QString dump() const
    {
        QStringList out;
        for (const Row &r : rows) out << r.line();
        return out.join(u'\n');
    }
    bool hasNumber(int nr) const { return std::ranges::find(rows, nr, &Row::nr) != rows.end(); }
    bool hasName(const QString &n) const { return std::ranges::find(rows, n, &Row::name) != rows.end(); }
    QString freeName(const QString &wanted) const
    {
        int n = 2;
        while (hasName(QStringLiteral("%1_%2").arg(wanted).arg(n))) ++n;
        return hasName(wanted) ? QStringLiteral("%1_%2").arg(wanted).arg(n) : wanted;
    }
    void addNew(size_t current)
    {
        Row made = rows[current];
        made.nr = std::ranges::max(rows, {}, &Row::nr).nr + 1;
        made.name = freeName(QStringLiteral("Az_új_réteg_neve"));
        made.elements = 0, made.groups = firstGroups;
        if (made.nr <= 32767) rows.push_back(made);
        else told << QStringLiteral("A legnagyobb rétegsorszám már 32767, ezért nem készíthető új réteg. "
                                    "Számozza át a rétegeket!");
    }
    void copy(const Places &chosen, int growth)
    {
        for (const size_t i : chosen) {
            Row made = rows[i];
            const int nr = made.nr + growth;
            if (nr < 1 || nr > 32000)
                told << QStringLiteral("A(z) %1 sorszámú rétegről nem lehet ").arg(made.nr) +
                            QStringLiteral("másolatot csinálni %1 sorszámmal!").arg(nr);
            else if (hasNumber(nr)) told << QStringLiteral("A(z) %1 sorszámú réteg már van !").arg(nr);
            else {
                made.nr = nr;
                made.name = freeName(QStringLiteral("%1_%2").arg(made.name).arg(nr));
                made.elements = 0;
                rows.push_back(made);
            }
        }
    }
    void renumber(const Places &chosen, int start, int growth)
    {
        auto after = rows;
        for (size_t k = 0; k < chosen.size(); ++k) after[chosen[k]].nr = start + int(k) * growth;
        std::set<int> numbers;
        bool refused = false;
        for (const Row &r : after) refused |= !numbers.insert(r.nr).second || r.nr < 1 || r.nr > 32767;
        if (refused) told << QStringLiteral("Létező rétegsorszám !");
        else rows = after;
    }
    void trim(const Places &chosen, bool onlyNumbers)
    {
        int changed = 0, taken = 0;
        for (const size_t i : chosen) {
            QString &name = rows[i].name;
            const QString head = name.section(u'-', 0, 0), rest = name.section(u'-', 1).trimmed();
            bool isNumber = false;
            head.toInt(&isNumber);
            if (head.isEmpty() || rest.isEmpty() || (onlyNumbers && !isNumber)) continue;
            if (hasName(rest)) ++taken;
            else name = rest, ++changed;
        }
        if (changed > 0) return;
        told << QStringLiteral("Egyik kijelölt réteg neve sem változott.");
        if (taken > 0)
            told.last() +=
                QStringLiteral("\nRégi nevükön maradtak, mert az új név már foglalt: %1").arg(taken);
    }
    void remove(const Places &chosen)
    {
        const bool all = chosen.size() == rows.size();
        if (all) told << QStringLiteral("Az utolsó réteget nem lehet törölni!");
        for (size_t k = chosen.size() - (all ? 1 : 0); k-- > 0;) rows.erase(rows.begin() + chosen[k]);
    }
    void flag(const Places &chosen, bool Row::*member, bool on)
    {
        for (const size_t i : chosen) rows[i].*member = on;
    }
};

} // namespace tests
