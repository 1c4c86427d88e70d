#include "fonts/frmTrueTypeSel.h"

#include "facade/services/Text.h"
#include "fonts/FontCatalogue.h"
#include "fonts/ScriptList.h"
#include "kit/forms/AccessKeys.h"
#include "kit/forms/QuietWheel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

frmTrueTypeSel::frmTrueTypeSel(QWidget *owner)
    : FaceChooser("frmTrueTypeSel", owner), ComboScript(new QComboBox(this)), m_lblScript(new QLabel(this))
{
    ComboScript->setObjectName(QStringLiteral("ComboScript"));
    quietWheel(*ComboScript);
    m_lblScript->setBuddy(ComboScript);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_lblScript);
    row->addWidget(ComboScript, 1);
    column().addLayout(row);
    setTabOrder(lstFaces, ComboScript);
    connect(ComboScript, &QComboBox::currentIndexChanged, this, [this] {
        m_wanted = charSetOf(*ComboScript);
        say({});
        showSample();
    });
}

bool frmTrueTypeSel::getFace(ScriptedFace &face)
{
    const Trace trace("frmTrueTypeSel", "getFace");
    m_wanted = face.charSet;
    if (!choose(trueTypeFaces(), face.face)) return false;
    face = {this->face(), charSetOf(*ComboScript)};
    return true;
}

void frmTrueTypeSel::faceChosen()
{
    const bool hasScript = fillScripts(*ComboScript, face(), m_wanted);
    FaceChooser::faceChosen();
    if (!face().isEmpty() && !hasScript)
        say(txt(Text{3458, u"A kiválasztott betűtípus nem támogatja a kívánt irásrendszert!"}));
}

void frmTrueTypeSel::readCaptions()
{
    setWindowTitle(txt(Text{22450, u"TrueType betűtípus választása"}));
    const QString caption = txt(Text{20103, u" Karakterkészlet:"}).trimmed();
    m_lblScript->setText(withAccessKeys({txt(Text{22455, u"Keresés:"}), caption}).last());
    ComboScript->setAccessibleName(caption);
    FaceChooser::readCaptions();
}

std::shared_ptr<CharacterSource> frmTrueTypeSel::charactersOf(const QString &face)
{
    return trueTypeCharacters({face, charSetOf(*ComboScript)});
}

} // namespace QV_DOC_CONTROLS
