#include "window/CodePageMenu.h"

#include "facade/services/LayerFileCodePage.h"
#include "facade/services/Text.h"

#include <QActionGroup>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

struct Row {
    const char *codePage;       ///< empty = the system's
    Text text;
};
constexpr Row kRows[] = {
    {"", {30519, u"A &rendszeré"}},
    {"windows-1250", {30520, u"windows-125&0 (közép-európai)"}},
    {"windows-1251", {30521, u"windows-125&1 (cirill)"}},
    {"windows-1252", {30522, u"windows-125&2 (nyugat-európai)"}},
    {"windows-1258", {30523, u"windows-125&8 (vietnámi)"}},
    {"UTF-8", {30524, u"&UTF-8"}},
};

} // namespace

CodePageMenu::CodePageMenu(QWidget *parent) : QMenu(parent), m_pages(new QActionGroup(this))
{
    for (const Row &row : kRows)
        if (isCodePage(QLatin1String(row.codePage))) add(QLatin1String(row.codePage));
    connect(this, &QMenu::aboutToShow, this, &CodePageMenu::showChosen);
    retranslate();
}

QAction *CodePageMenu::add(const QString &codePage)
{
    QAction *const a = addAction(codePage);
    a->setData(codePage);
    a->setCheckable(true);
    m_pages->addAction(a);
    connect(a, &QAction::triggered, this, [codePage] { setLayerFileCodePage(codePage); });
    return a;
}

/// The setting may name a code page that is not offered here; it stays as long as nobody chooses another.
void CodePageMenu::showChosen()
{
    const QString chosen = layerFileCodePage();
    for (QAction *a : m_pages->actions())
        if (a->data().toString().compare(chosen, Qt::CaseInsensitive) == 0) return a->setChecked(true);
    add(chosen)->setChecked(true);
}

void CodePageMenu::retranslate()
{
    setTitle(txt(Text{30518, u"Rétegfájlok &kódlapja"}));
    for (QAction *a : m_pages->actions())
        for (const Row &row : kRows)
            if (a->data().toString() == QLatin1String(row.codePage)) a->setText(txt(row.text));
}

} // namespace refhost
