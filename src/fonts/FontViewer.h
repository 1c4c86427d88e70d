#pragma once

#include "fonts/FontSample.h"
#include "kit/ask/ErrorRelay.h"
#include "kit/forms/ModalForm.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace QV_DOC_CONTROLS {

class CharacterGrid;

/// The viewer of TrueType fonts, or that of vector fonts: a font and a character of it are chosen. The kinds
/// differ in where the faces come from, and in that vector fonts have no scripts.
class FontViewer final : public ModalForm {
    Q_OBJECT
    ErrorRelay m_host;                          ///< before those who run inside it
public:
    FontViewer(FontKind kind, const ZolWDoc::ZOLW_Doc *doc, QWidget *owner = nullptr);
    ~FontViewer() override { TearDown(); }
    void TearDown() override;
    /// `character` is chosen at first; on true it is the result, on false it is unchanged. Without any vector
    /// font the user is told and nothing opens. Throws the host's error.
    bool getCharacter(FontCharacter &character);
    void accept() override;                     ///< not with a code that cannot be read

    QComboBox *const cboFonts, *const ComboScript;
    QCheckBox *const chkPresent;                ///< only the codes that the font has
    QToolButton *const cmdZoomIn, *const cmdZoomOut;
    CharacterGrid *const grdCharacters;
    QLineEdit *const txtCode;
    QLabel *const lblCode;                      ///< the code in both ways of writing, or what is wrong
    FontSample *const sample;

private:
    void build();
    void buildZoom();
    void connectParts();
    void fill(const QStringList &faces, const FontCharacter &first);
    void faceChosen();
    void showFont();
    void showCode();
    void codeTyped(const QString &text);
    void readCaptions() override;
    QString face() const { return m_faces.value(m_face); }

    FontKind m_kind;
    const ZolWDoc::ZOLW_Doc *m_doc;
    QStringList m_faces;
    int m_face = -1;                            ///< index; -1 = none
    QString m_unknown;                          ///< what was asked for and is not there
    qint32 m_wanted = 0;                        ///< the character set that was chosen last
    int m_code = 0;                             ///< -1 = what is typed cannot be read
    std::shared_ptr<CharacterSource> m_source;
    QLabel *m_lblFont, *m_lblScript, *m_lblCode;
};

} // namespace QV_DOC_CONTROLS
