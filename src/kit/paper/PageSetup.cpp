#include "kit/paper/PageSetup.h"

#include "facade/services/Services.h"
#include "facade/services/Text.h"

#include <QLocale>
#include <QRectF>

#include <array>

namespace QV_DOC_CONTROLS {
namespace {

constexpr QPageSize::PageSizeId kPaperSizes[] = {
    QPageSize::A4, QPageSize::A3, QPageSize::A2, QPageSize::A1, QPageSize::A0, QPageSize::A5, QPageSize::B4,
    QPageSize::B5, QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid,
};
constexpr double kUsualMargin = 15;                 ///< millimetres

const QString kApplication = QStringLiteral("ZolWOp");
const QString kSection = QStringLiteral("Settings");
const QString kPaperKey = QStringLiteral("PagePaper");
const QString kTurnedKey = QStringLiteral("PageLandscape");
constexpr std::array kMarginKeys = {"PageMarginLeft", "PageMarginTop", "PageMarginRight", "PageMarginBottom"};

QString stored(const QString &key) { return settingsStore().read(kApplication, kSection, key, {}); }
void store(const QString &key, const QString &value)
{
    settingsStore().write(kApplication, kSection, key, value);
}

QPageLayout usualSetup()
{
    const bool letter = QLocale().measurementSystem() == QLocale::ImperialUSSystem;
    const QMarginsF margins(kUsualMargin, kUsualMargin, kUsualMargin, kUsualMargin);
    return pageLayoutOf(letter ? QPageSize::Letter : QPageSize::A4, QPageLayout::Portrait, margins);
}

std::optional<QPageSize::PageSizeId> paperOfKey(const QString &key)
{
    for (int id = 0; id <= QPageSize::LastPageSize; ++id) {
        const auto paper = QPageSize::PageSizeId(id);
        if (paper != QPageSize::Custom && QPageSize::key(paper) == key) return paper;
    }
    return {};
}

} // namespace

std::span<const QPageSize::PageSizeId> paperSizes() { return kPaperSizes; }

QString paperName(const QPageSize &paper)
{
    const QSizeF mm = paper.size(QPageSize::Millimeter);
    const auto rounded = [](double length) { return QString::number(qRound(length)); };
    return paper.name().section(QStringLiteral(" ("), 0, 0) + QStringLiteral(" (") + rounded(mm.width())
         + QStringLiteral(" × ") + rounded(mm.height()) + QStringLiteral(" mm)");
}

QPageLayout pageLayoutOf(QPageSize::PageSizeId paper, QPageLayout::Orientation turned,
                         const QMarginsF &margins)
{
    // In full-page mode margins are taken as they are, even those that leave nothing: refusalFor() says so.
    QPageLayout layout(QPageSize(paper), turned, QMarginsF(), QPageLayout::Millimeter);
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins(margins);
    return layout;
}

QString refusalFor(const QPageLayout &layout)
{
    const QMarginsF margins = layout.margins(QPageLayout::Millimeter);
    const QSizeF left = layout.fullRect(QPageLayout::Millimeter).size().shrunkBy(margins);
    if (left.width() >= kLeastPrintable && left.height() >= kLeastPrintable) return {};
    const auto rounded = [](double length) { return QString::number(qRound(std::max(length, 0.0))); };
    return join(Text{21440, u"A margók között csak "}, rounded(left.width()), QStringLiteral(" × "),
                rounded(left.height()), Text{21441, u" mm marad; legalább "}, rounded(kLeastPrintable),
                QStringLiteral(" × "), rounded(kLeastPrintable),
                Text{21442, u" mm kell. Csökkentse a margókat, vagy válasszon nagyobb papírt!"});
}

QPageLayout withinReach(QPageLayout layout)
{
    const QMarginsF asked = layout.margins(), least = layout.minimumMargins();
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins({std::max(asked.left(), least.left()), std::max(asked.top(), least.top()),
                       std::max(asked.right(), least.right()), std::max(asked.bottom(), least.bottom())});
    return layout;
}

QPageLayout storedPageSetup()
{
    const auto paper = paperOfKey(stored(kPaperKey));
    if (!paper) return usualSetup();
    double margins[4];
    for (size_t i = 0; i < kMarginKeys.size(); ++i) {
        bool isNumber = false;
        margins[i] = stored(QLatin1String(kMarginKeys[i])).toDouble(&isNumber);
        if (!isNumber || !(margins[i] >= 0 && margins[i] <= kMostMargin)) return usualSetup();
    }
    const auto turned = stored(kTurnedKey) == QStringLiteral("1") ? QPageLayout::Landscape
                                                                  : QPageLayout::Portrait;
    const QPageLayout layout = pageLayoutOf(*paper, turned, {margins[0], margins[1], margins[2], margins[3]});
    return refusalFor(layout).isEmpty() ? layout : usualSetup();
}

void storePageSetup(const QPageLayout &layout)
{
    const QMarginsF m = layout.margins(QPageLayout::Millimeter);
    const double margins[] = {m.left(), m.top(), m.right(), m.bottom()};
    store(kPaperKey, layout.pageSize().key());
    store(kTurnedKey, QString::number(int(layout.orientation() == QPageLayout::Landscape)));
    for (size_t i = 0; i < kMarginKeys.size(); ++i)
        store(QLatin1String(kMarginKeys[i]), QString::number(margins[i], 'f', 1));
}

} // namespace QV_DOC_CONTROLS
