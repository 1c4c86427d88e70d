#pragma once

#include "fonts/FaceChooser.h"

namespace QV_DOC_CONTROLS {

/// The dialog in which the user picks one of the host's vector fonts.
class frmVectorFontSel final : public FaceChooser {
    Q_OBJECT
public:
    explicit frmVectorFontSel(QWidget *owner = nullptr);
    ~frmVectorFontSel() override { TearDown(); }
    void TearDown() override;
    /// `name` is chosen at first; on true it is the result, on false it is unchanged. Without any font the
    /// user is told and nothing opens. Throws the host's error.
    bool getFont(const ZolWDoc::ZOLW_Doc *doc, QString &name);

private:
    void readCaptions() override;
    std::shared_ptr<CharacterSource> charactersOf(const QString &face) override;
    const ZolWDoc::ZOLW_Doc *m_doc = nullptr;
};

} // namespace QV_DOC_CONTROLS
