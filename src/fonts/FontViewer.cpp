#include "fonts/FontViewer.h"

#include "facade/services/Text.h"
#include "fonts/CharacterGrid.h"
#include "fonts/CodeEntry.h"
#include "fonts/FontCatalogue.h"
#include "fonts/ScriptList.h"
#include "fonts/VectorFonts.h"
#include "kit/forms/AccessKeys.h"
#include "kit/forms/QuietWheel.h"
#include "kit/forms/WindowSize.h"
#include "kit/tools/Icons.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace QV_DOC_CONTROLS {

FontViewer::FontViewer(FontKind kind, const ZolWDoc::ZOLW_Doc *doc, QWidget *owner)
    : ModalForm(kind == FontKind::Vector ? "VectorFontViewer" : "TrueTypeViewer", owner),
      cboFonts(new QComboBox(this)), ComboScript(new QComboBox(this)), chkPresent(new QCheckBox(this)),
      cmdZoomIn(new QToolButton(this)), cmdZoomOut(new QToolButton(this)),
      grdCharacters(new CharacterGrid(m_host, this)), txtCode(new QLineEdit(this)), lblCode(new QLabel(this)),
      sample(new FontSample(m_host, this)), m_kind(kind), m_doc(doc), m_lblFont(new QLabel(this)),
      m_lblScript(new QLabel(this)), m_lblCode(new QLabel(this))
{
    cboFonts->setObjectName(QStringLiteral("cboFonts"));
    ComboScript->setObjectName(QStringLiteral("ComboScript"));
    chkPresent->setObjectName(QStringLiteral("chkPresent"));
    grdCharacters->setObjectName(QStringLiteral("grdCharacters"));
    txtCode->setObjectName(QStringLiteral("txtCode"));
    lblCode->setObjectName(QStringLiteral("lblCode"));
    lblCode->setTextFormat(Qt::PlainText);
    lblCode->setWordWrap(true);
    lblCode->setMinimumHeight(3 * fontMetrics().lineSpacing()); // nothing moves when it speaks
    build();
    buildZoom();
    connectParts();
}

void FontViewer::build()
{
    for (QComboBox *list : {cboFonts, ComboScript}) quietWheel(*list);
    m_lblFont->setBuddy(cboFonts);
    m_lblScript->setBuddy(ComboScript);
    m_lblCode->setBuddy(txtCode);
    for (QWidget *w : std::initializer_list<QWidget *>{m_lblScript, ComboScript})
        w->setVisible(m_kind == FontKind::TrueType);
    auto *const fonts = new QHBoxLayout;
    fonts->addWidget(m_lblFont);
    fonts->addWidget(cboFonts, 1);
    fonts->addWidget(m_lblScript);
    fonts->addWidget(ComboScript);
    auto *const shown = new QHBoxLayout;
    shown->addWidget(chkPresent, 1);
    shown->addWidget(cmdZoomOut);
    shown->addWidget(cmdZoomIn);
    auto *const code = new QHBoxLayout;
    code->addWidget(m_lblCode);
    code->addWidget(txtCode);
    txtCode->setFixedWidth(sizeOfLetters(*this, 14, 0).width());
    code->addWidget(lblCode, 1);
    auto *const left = new QVBoxLayout;
    left->addLayout(fonts);
    left->addLayout(shown);
    left->addWidget(grdCharacters, 1);
    left->addLayout(code);
    sample->setFixedWidth(sizeOfLetters(*this, 26, 0).width()); // what is more goes to the cells
    sample->setMinimumHeight(sizeOfLetters(*this, 0, 12).height());
    auto *const right = new QVBoxLayout;
    right->addWidget(sample, 1);
    right->addStretch(1);
    auto *const both = new QHBoxLayout;
    both->addLayout(left, 1);
    both->addLayout(right);
    auto *const all = new QVBoxLayout(this);
    all->addLayout(both, 1);
    all->addWidget(buttons());
}

void FontViewer::buildZoom()
{
    struct Row {
        QToolButton *button;
        const char *name, *icon;
        QKeySequence::StandardKey key;
        int steps;
    };
    for (const Row &row : {Row{cmdZoomIn, "cmdZoomIn", "zoomIn", QKeySequence::ZoomIn, 1},
                           Row{cmdZoomOut, "cmdZoomOut", "zoomOut", QKeySequence::ZoomOut, -1}}) {
        auto *const action = new QAction(toolIcon(row.icon), {}, row.button);
        action->setShortcuts(row.key);
        row.button->setObjectName(QLatin1String(row.name));
        row.button->setDefaultAction(action);
        row.button->setFocusPolicy(Qt::TabFocus);
        connect(action, &QAction::triggered, this, [this, row] { grdCharacters->zoom(row.steps); });
    }
    setTabOrder(chkPresent, cmdZoomOut);
    setTabOrder(cmdZoomOut, cmdZoomIn);
}

void FontViewer::connectParts()
{
    connect(cboFonts, &QComboBox::currentIndexChanged, this, &FontViewer::faceChosen);
    connect(ComboScript, &QComboBox::currentIndexChanged, this, [this] {
        m_wanted = charSetOf(*ComboScript);
        showFont();
    });
    connect(chkPresent, &QCheckBox::toggled, this, [this](bool on) { grdCharacters->setOnlyPresent(on); });
    connect(grdCharacters, &CharacterGrid::codeMoved, this, [this](int code) {
        m_code = code;
        txtCode->setText(QString::number(code));
        showCode();
    });
    connect(grdCharacters, &CharacterGrid::digitsTyped, this, [this](const QString &digits) {
        txtCode->setFocus();
        txtCode->setText(digits);
        codeTyped(digits);
    });
    connect(grdCharacters, &QAbstractItemView::doubleClicked, this, &FontViewer::accept);
    connect(txtCode, &QLineEdit::textEdited, this, &FontViewer::codeTyped);
}

void FontViewer::TearDown()
{
    m_source = nullptr;
    grdCharacters->setSource(nullptr);
    sample->showLetters(nullptr);
    m_doc = nullptr;
}

bool FontViewer::getCharacter(FontCharacter &character)
{
    const Trace trace("FontViewer", "getCharacter");
    const bool isVector = m_kind == FontKind::Vector;
    const QStringList faces = isVector ? vectorFontsOrTold(m_doc, parentWidget()) : trueTypeFaces();
    if (isVector && faces.isEmpty()) return false;
    fill(faces, character);
    const bool confirmed = run(&m_host);
    if (confirmed) {
        const qint32 charSet = isVector ? character.charSet : charSetOf(*ComboScript);
        character = {m_kind, face(), charSet, m_code};
    }
    TearDown();
    return confirmed;
}

void FontViewer::fill(const QStringList &faces, const FontCharacter &first)
{
    m_faces = faces;
    m_wanted = first.charSet;
    m_code = std::clamp(first.code, 0, kCodes - 1);
    const int at = indexOfFace(faces, first.face);
    m_unknown = at < 0 ? first.face : QString();
    {
        const QSignalBlocker quiet(cboFonts);
        cboFonts->addItems(faces);
        cboFonts->setCurrentIndex(at);
    }
    chkPresent->setChecked(m_kind == FontKind::Vector); // they have few of all codes
    txtCode->setText(QString::number(m_code));
    faceChosen();
    if (at < 0) cboFonts->setFocus();
    else grdCharacters->setFocus();
}

void FontViewer::faceChosen()
{
    m_face = cboFonts->currentIndex();
    if (m_kind == FontKind::TrueType) fillScripts(*ComboScript, face(), m_wanted);
    cboFonts->setPlaceholderText(m_unknown.isEmpty() ? QString() : unknownFaceText(m_unknown));
    cmdOk->setEnabled(m_face >= 0);
    showFont();
}

void FontViewer::showFont()
{
    std::shared_ptr<CharacterSource> source;
    m_host.guard([&] {
        if (m_face < 0) return;
        if (m_kind == FontKind::TrueType) source = trueTypeCharacters({face(), charSetOf(*ComboScript)});
        else if (const ZolWDoc::VectorFont *font = vectorFont(m_doc, face()))
            source = vectorCharacters(*font);
    });
    m_source = source;
    grdCharacters->setSource(source);
    grdCharacters->setCode(std::max(0, m_code));
    showCode();
}

void FontViewer::codeTyped(const QString &text)
{
    m_code = codeMeant(text, m_source.get()).value_or(-1);
    if (m_code >= 0) grdCharacters->setCode(m_code);
    showCode();
}

void FontViewer::showCode()
{
    QString said = txt(Text{22459, u"Írj be egy kódot 0 és 65535 között, például 337, 0x151 vagy U+0151, "
                                   u"vagy magát a karaktert!"});
    if (m_code >= 0) {
        const bool isThere = m_source && m_source->has(m_code);
        said = QStringLiteral("%1 = %2").arg(codeText(m_code), QString::number(m_code));
        if (isThere && !m_source->nameOf(m_code).isEmpty())
            said += QStringLiteral("   ") + m_source->nameOf(m_code);
        if (m_source && !isThere) said += u'\n' + txt(Text{22458, u"A készletben nincs ilyen karakter."});
    }
    lblCode->setText(said);
    txtCode->setAccessibleDescription(said);
    if (m_code >= 0) sample->showCharacter(m_source, m_code);
    else sample->showLetters(nullptr);
}

void FontViewer::accept()
{
    if (m_face < 0) return cboFonts->setFocus();
    if (m_code >= 0) return ModalForm::accept();
    txtCode->setFocus();
    txtCode->selectAll();
}

void FontViewer::readCaptions()
{
    const bool isVector = m_kind == FontKind::Vector;
    setWindowTitle(isVector ? txt(Text{22453, u"Vektor font karakterei"})
                            : txt(Text{22452, u"TrueType betűtípus karakterei"}));
    const QStringList captions{isVector ? txt(Text{22461, u"Vektor font:"}) : txt(Text{22454, u"Betűtípus:"}),
                               txt(Text{20103, u" Karakterkészlet:"}).trimmed(), txt(Text{22456, u"Kód:"}),
                               txt(Text{22457, u"Csak a meglévő karakterek"})};
    const QStringList keyed = withAccessKeys(captions);
    m_lblFont->setText(keyed[0]);
    m_lblScript->setText(keyed[1]);
    m_lblCode->setText(keyed[2]);
    chkPresent->setText(keyed[3]);
    cboFonts->setAccessibleName(captions[0]);
    ComboScript->setAccessibleName(captions[1]);
    txtCode->setAccessibleName(captions[2]);
    cmdZoomIn->defaultAction()->setText(txt(Text{22462, u"Karakterek nagyítása"}));
    cmdZoomOut->defaultAction()->setText(txt(Text{22463, u"Karakterek kicsinyítése"}));
    sample->setAccessibleName(txt(Text{3167, u"Minta"}));
    grdCharacters->retranslate();
    if (m_kind == FontKind::TrueType) fillScripts(*ComboScript, face(), charSetOf(*ComboScript));
    showCode();
}

} // namespace QV_DOC_CONTROLS
