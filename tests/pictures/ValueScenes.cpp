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

/// The text typed into the last number of the box that is about to open.
void typeMeanwhile(const char *typed)
{
    QTimer::singleShot(0, qApp, [typed] {
        QApplication::activeModalWidget()->findChildren<QComboBox *>("txtCombo").last()->setEditText(typed);
    });
}

void letterSize(const char *typed = nullptr)
{
    if (typed) typeMeanwhile(typed);
    NumberField size{.label = txt(Text{3373, u"Nagyság="}), .preset = 2.5, .min = 0.01, .max = 100};
    size.decimals = 2, size.unit = txt(Text{2820, u"mm"}), size.presets = {1.8, 2, 2.5, 3.5, 5};
    prompts().numbers(
        {txt(Text{3371, u"Betűnagyság"}), txt(Text{3372, u"A jelkulcstípus betűnagysága mm-ben"}), {size}});
}

void renumbering(const char *typed = nullptr)
{
    if (typed) typeMeanwhile(typed);
    const QString title = txt(Text{3342, u"Átsorszámozás"}), first = txt(Text{3340, u"Kezdő sorszám"});
    prompts().numbers({title, txt(Text{3341, u"A kiválasztott rétegek átsorszámozása"}),
                       {{.label = first, .preset = 101, .min = 1, .max = 32767},
                        {.label = txt(Text{3419, u"Növekmény"}), .preset = 1, .min = -32767, .max = 32767}}});
}

void copying()
{
    prompts().numbers({txt(Text{3337, u"Réteg másolás"}),
                       txt(Text{3338, u"Milyen értékkel akarod megnövelni a másolt rétegek sorszámát?"}),
                       {{.label = txt(Text{3339, u"növekmény"}), .preset = 100, .min = 1, .max = 32767}}});
}

void matching(int items)
{
    Choice c{txt(Text{3036, u"Réteg azonosítás"}),
             txt(Text{3431, u"A réteg azonosítás történhet sorszám, vagy név alapján"})};
    c.items = {txt(Text{3432, u"sorszám alapján"}), txt(Text{3033, u"név alapján"})};
    for (int i = 3; i <= items; ++i) c.items << txt(Text{3299, u"Rétegnév"}) + QString(" %1").arg(i);
    c.preset = items / 2 - 1;
    prompts().choose(c);
}

Message deletion()
{
    return {Icon::Question, txt(Text{3291, u"Réteg törlés"}),
            join(Text{3422, u"A(z) '"}, QString("Lakóépület & garázs"), Text{3296, u"' réteg nem üres!"},
                 Text{3208, u" TÖRLÖD? "})};
}

void search(const QStringList &items)
{
    prompts().text({txt(Text{3030, u"Keresés"}), txt(Text{3031, u"A keresett érték:"}), "Szintvonal", items});
}

void renaming()
{
    Report report{txt(Text{3325, u"Rétegnév módosítás"}), "40", {}};
    for (int i = 101; i <= 140; ++i) report.lines << QString("'%1-Szintvonal' ---> 'Szintvonal %1'").arg(i);
    prompts().show(report);
}

/// A palette of the primary colours, then even steps through the colour cube.
void color(int preset, size_t count)
{
    std::vector<quint32> colors{0x000000, 0xff0000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff};
    for (quint32 i = 0; colors.size() < count; ++i)
        colors.push_back((i % 6 * 51) << 16 | (i / 6 % 6 * 51) << 8 | (i / 36 * 36));
    prompts().colorIndex({txt(Text{3310, u"Színtoll"}), txt(Text{3412, u"Képernyő szín"}), preset, colors});
}

} // namespace

std::vector<Scene> valueScenes()
{
    return {
        {"number", [] { letterSize(); }},
        {"number-refused", [] { letterSize("1234,567"); }},
        {"number-plain", copying},
        {"two-numbers", [] { renumbering(); }},
        {"two-numbers-refused", [] { renumbering("1,5"); }},
        {"text", [] { search({}); }},
        {"text-offered", [] { search({"Patak"}); }},
        {"two-way", [] { matching(2); }},
        {"list", [] { matching(20); }},
        {"report", renaming},
        {"all-yes-no", [] { prompts().allYesNo(deletion()); }},
        {"yes-no-cancel", [] { prompts().yesNoCancel(deletion()); }},
        {"color", [] { color(37, 256); }},
        {"color-few", [] { color(7, 21); }},
        {"color-none", [] { color(300, 256); }},
    };
}

} // namespace tests
