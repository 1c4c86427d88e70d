#include "rules/LayerRules.h"

#include "facade/services/Text.h"
#include "rules/Numeric.h"

#include <QHash>

#include <algorithm>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

QString TakenLayers::freeName(const QString &wanted) const
{
    QString name = wanted;
    for (int n = 2; m_names.contains(name); ++n) name = wanted + u'_' + QString::number(n);
    return name;
}

std::variant<tLay, QString> copyOf(const tLay &lay, int growth, const TakenLayers &taken)
{
    const int nr = lay.gNr + growth;
    if (nr > kHighestCopyNumber || nr < 1)
        return join(Text{3420, u"A(z) "}, lay.gNr,
                    Text{3295, u" sorszámú rétegről nem lehet másolatot csinálni "}, nr,
                    Text{3294, u" sorszámmal!"});
    if (taken.hasNumber(nr))
        return join(Text{3420, u"A(z) "}, nr, Text{3293, u" sorszámú réteg már van !"});
    tLay copy = lay;
    copy.LayId = -1;
    copy.gNr = qint16(nr);
    copy.Name = taken.freeName(lay.Name + u'_' + QString::number(nr));
    return copy;
}

int proposedGrowth(std::span<const tLay> layers, const TakenLayers &taken)
{
    for (int growth = 1; growth <= 10000; growth *= 10) {
        const bool isFree = std::ranges::all_of(layers, [&](const tLay &l) {
            return l.gNr + growth <= kHighestCopyNumber && !taken.hasNumber(l.gNr + growth);
        });
        if (isFree) return growth;
    }
    return 1;
}

std::optional<tLay> newLayer(std::span<const tLay> all, const tLay &model)
{
    const auto highest = std::ranges::max_element(all, {}, &tLay::gNr);
    const int nr = highest == all.end() ? 1 : std::max(highest->gNr + 1, 1);
    if (nr > kHighestLayerNumber) return std::nullopt;
    tLay lay = model;
    lay.LayId = -1;
    lay.gNr = qint16(nr);
    lay.Name = TakenLayers(all).freeName(txt(Text{3297, u"Az_új_réteg_neve"}));
    return lay;
}

std::optional<tLayArr> renumbered(std::span<const tLay> selected, int start, int growth,
                                  std::span<const tLay> all)
{
    QSet<qint16> moving;
    for (const tLay &l : selected) moving.insert(l.LayId);
    QSet<qint64> taken;
    for (const tLay &l : all)
        if (!moving.contains(l.LayId)) taken.insert(l.gNr);
    tLayArr out(selected.begin(), selected.end());
    qint64 nr = start;
    for (tLay &l : out) {
        if (nr < 1 || nr > kHighestLayerNumber || taken.contains(nr)) return std::nullopt;
        taken.insert(nr);
        l.gNr = qint16(nr);
        nr += growth;
    }
    return out;
}

QString withoutPrefix(const QString &name, bool onlyNumbers)
{
    const qsizetype dash = name.indexOf(u'-');
    if (dash <= 0 || (onlyNumbers && !isNumeric(QStringView(name).left(dash)))) return name;
    const QString rest = name.mid(dash + 1).trimmed();
    return rest.isEmpty() ? name : rest;
}

ShorterNames withoutPrefixes(std::span<const tLay> layers, bool onlyNumbers, TakenLayers taken)
{
    ShorterNames out;
    for (const tLay &l : layers) {
        tLay renamed = l;
        renamed.Name = withoutPrefix(l.Name, onlyNumbers);
        if (renamed.Name == l.Name) continue;
        if (taken.hasName(renamed.Name)) {
            ++out.taken;
            continue;
        }
        taken.rename(l.Name, renamed.Name);
        out.lines << QStringLiteral("'%1' ---> '%2'").arg(l.Name, renamed.Name);
        out.changed.push_back(std::move(renamed));
    }
    return out;
}

MatchedLayers withVisibilityOf(std::span<const tLay> saved, tLayArr all, LayerMatch match)
{
    QHash<QString, bool> visible;
    const auto key = [match](const tLay &l) {
        return match == LayerMatch::ByName ? l.Name : QString::number(l.gNr);
    };
    for (const tLay &l : saved) visible.insert(key(l), l.Visible);
    MatchedLayers out{std::move(all)};
    for (tLay &l : out.layers) {
        const auto found = visible.constFind(key(l));
        if (found == visible.constEnd()) continue;
        l.Visible = *found;
        ++out.found;
    }
    return out;
}

} // namespace QV_DOC_CONTROLS
