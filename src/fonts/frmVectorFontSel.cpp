#include "fonts/frmVectorFontSel.h"

#include "facade/services/Text.h"
#include "fonts/VectorFonts.h"

#include <QListWidget>

namespace QV_DOC_CONTROLS {

frmVectorFontSel::frmVectorFontSel(QWidget *owner) : FaceChooser("frmVectorFontSel", owner) {}

void frmVectorFontSel::TearDown()
{
    FaceChooser::TearDown();
    m_doc = nullptr;
}

bool frmVectorFontSel::getFont(const ZolWDoc::ZOLW_Doc *doc, QString &name)
{
    const Trace trace("frmVectorFontSel", "getFont");
    const QStringList fonts = vectorFontsOrTold(doc, parentWidget());
    if (fonts.isEmpty()) return false;
    m_doc = doc;
    if (!choose(fonts, name)) return false;
    name = face();
    return true;
}

void frmVectorFontSel::readCaptions()
{
    setWindowTitle(txt(Text{22451, u"Vektor font választása"}));
    FaceChooser::readCaptions();
}

std::shared_ptr<CharacterSource> frmVectorFontSel::charactersOf(const QString &face)
{
    const ZolWDoc::VectorFont *const font = vectorFont(m_doc, face);
    return font ? vectorCharacters(*font) : nullptr;
}

} // namespace QV_DOC_CONTROLS
