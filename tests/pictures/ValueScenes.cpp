#include "pictures/Scene.h"

#include "facade/services/Prompts.h"
#include "facade/services/Text.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTimer>

using namespace QV_DOC_CONTROLS;

namespace tests {
namespace {

/// Six greys and colours in the order of a plotter's pens, then even steps through the colour cube.
std::vector<quint32> palette()
{
    std::vector<quint32> colors = {0x000000, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff,
                                   0xffffff, 0x808080, 0xc0c0c0};
    for (quint32 i = 0; colors.size() < 256; ++i)
        colors.push_back((i % 6 * 51) << 16 | (i / 6 % 6 * 51) << 8 | (i / 36 * 36));
    return colors;
}

/// The text typed into the last number of the box that is about to open.
void typeMeanwhile(const QString &typed)
{
    QTimer::singleShot(0, qApp, [typed] {
        const auto lines =
            QApplication::activeModalWidget()->findChildren<QComboBox *>(QStringLiteral("txtCombo"));
        lines.last()->setEditText(typed);
    });
}

NumberQuestion letterSize()
{
    NumberField size{.label = txt(Text{3373, u"Nagyság="}), .preset = 2.5, .min = 0.01, .max = 100};
    size.decimals = 2;
    size.unit = txt(Text{2820, u"mm"});
    size.presets = {1.8, 2, 2.5, 3.5, 5};
    return {txt(Text{3371, u"Betűnagyság"}), txt(Text{3372, u"A jelkulcstípus betűnagysága mm-ben"}), {size}};
}

NumberQuestion renumbering()
{
    const NumberField first{
        .label = txt(Text{3340, u"Kezdő sorszám"}), .preset = 101, .min = 1, .max = 32767};
    const NumberField step{
        .label = txt(Text{3419, u"Növekmény"}), .preset = 1, .min = -32767, .max = 32767};
    return {txt(Text{3342, u"Átsorszámozás"}), txt(Text{3341, u"A kiválasztott rétegek átsorszámozása"}),
            {first, step}};
}

NumberQuestion copying()
{
    return {txt(Text{3337, u"Réteg másolás"}),
            txt(Text{3338, u"Milyen értékkel akarod megnövelni a másolt rétegek sorszámát?"}),
            {{.label = txt(Text{3339, u"növekmény"}), .preset = 100, .min = 1, .max = 32767}}};
}

Choice matching(int items)
{
    Choice c{txt(Text{3036, u"Réteg azonosítás"}),
             txt(Text{3431, u"A réteg azonosítás történhet sorszám, vagy név alapján"})};
    c.items = {txt(Text{3432, u"sorszám alapján"}), txt(Text{3033, u"név alapján"})};
    for (int i = 3; i <= items; ++i) c.items << txt(Text{3299, u"Rétegnév"}) + QStringLiteral(" %1").arg(i);
    c.preset = items / 2 - 1;
    return c;
}

Message deletion()
{
    return {Icon::Question, txt(Text{3291, u"Réteg törlés"}),
            join(Text{3422, u"A(z) '"}, QStringLiteral("Lakóépület & garázs"),
                 Text{3296, u"' réteg nem üres!"}, Text{3208, u" TÖRLÖD? "})};
}

TextQuestion search(const QStringList &items)
{
    return {txt(Text{3030, u"Keresés"}), txt(Text{3031, u"A keresett érték:"}), QStringLiteral("Szintvonal"),
            items};
}

Report renaming()
{
    Report report{txt(Text{3325, u"Rétegnév módosítás"}), QStringLiteral("40"), {}};
    for (int i = 101; i <= 140; ++i)
        report.lines << QStringLiteral("'%1-Szintvonal' ---> 'Szintvonal %1'").arg(i);
    return report;
}

ColorIndexQuestion color(int preset, size_t count)
{
    auto colors = palette();
    colors.resize(count);
    return {txt(Text{3310, u"Színtoll"}), txt(Text{3412, u"Képernyő szín"}), preset, colors};
}

} // namespace

std::vector<Scene> valueScenes()
{
    return {
        {"number", [] { prompts().numbers(letterSize()); }},
        {"number-refused",
         [] {
             typeMeanwhile(QStringLiteral("1234,567"));
             prompts().numbers(letterSize());
         }},
        {"number-plain", [] { prompts().numbers(copying()); }},
        {"two-numbers", [] { prompts().numbers(renumbering()); }},
        {"two-numbers-refused",
         [] {
             typeMeanwhile(QStringLiteral("1,5"));
             prompts().numbers(renumbering());
         }},
        {"text", [] { prompts().text(search({})); }},
        {"text-offered", [] { prompts().text(search({QStringLiteral("Patak")})); }},
        {"two-way", [] { prompts().choose(matching(2)); }},
        {"list", [] { prompts().choose(matching(20)); }},
        {"report", [] { prompts().show(renaming()); }},
        {"all-yes-no", [] { prompts().allYesNo(deletion()); }},
        {"yes-no-cancel", [] { prompts().yesNoCancel(deletion()); }},
        {"color", [] { prompts().colorIndex(color(37, 256)); }},
        {"color-black", [] { prompts().colorIndex(color(0, 256)); }},
        {"color-few", [] { prompts().colorIndex(color(7, 21)); }},
        {"color-none", [] { prompts().colorIndex(color(300, 256)); }},
    };
}

} // namespace tests
