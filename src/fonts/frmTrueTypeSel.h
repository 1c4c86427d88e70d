#pragma once

#include "fonts/FaceChooser.h"

class QComboBox;

namespace QV_DOC_CONTROLS {

/// The dialog in which the user picks a TrueType face and the script it is used for.
class frmTrueTypeSel final : public FaceChooser {
    Q_OBJECT
public:
    explicit frmTrueTypeSel(QWidget *owner = nullptr);
    /// `face` is chosen at first; on true it is the result, on false it is unchanged. A script that the face
    /// has no letters for is said, and the face's first one offered; a face that has it takes it again.
    bool getFace(ScriptedFace &face);

    QComboBox *const ComboScript;

private:
    void faceChosen() override;
    void readCaptions() override;
    std::shared_ptr<CharacterSource> charactersOf(const QString &face) override;
    QLabel *m_lblScript;
    qint32 m_wanted = 0;                        ///< the script that the user chose last
};

} // namespace QV_DOC_CONTROLS
