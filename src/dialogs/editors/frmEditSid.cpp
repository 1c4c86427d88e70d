#include "dialogs/editors/frmEditSid.h"

#include "controls/ZOL3_LayInfo.h"
#include "controls/usInputBox.h"
#include "controls/usSiInfo.h"
#include "controls/usTxAlign.h"
#include "dialogs/editors/OptionBox.h"
#include "facade/contract/FontPicker.h"
#include "facade/services/Prompts.h"
#include "fonts/FontCatalogue.h"
#include "fonts/VectorFonts.h"
#include "grids/SymbolTable.h"
#include "grids/frame/CellEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cstring>

namespace QV_DOC_CONTROLS {

using namespace ZolWDoc;

namespace {

constexpr const char16_t *kMm = u"0.00";
constexpr Text kFontTypes[] = {{20004, u"TrueType"}, {20068, u"ZOL 2.5 készlet"}};
constexpr Text kMarkers[] = {{2890, u"Nincs"}, {2891, u"Kör"}, {2892, u"Téglalap"}, {2893, u"Ellipszis"}};
constexpr NumberBounds kMoves{-1000, 1000, kMm, 0.1, true}, kMarker{0, 1000, kMm, 0.1, true};

const FieldRow<tSid> kFields[] = {
    fieldRow<&tSid::ShortName>({"txtShortName", &kLineField, {22551, u"Név:"}}),
    fieldRow<&tSid::FullName>({"txtFullName", &kLineField, {22552, u"Megnevezés:"}}),
    fieldRow<&tSid::Type>({"optFontType", &kOptionField, {22553, u"Betűkészlet"}, {}, kFontTypes}),
    fieldRow<&tSid::Facename>({"cboFonts", &kFaceField, {22554, u"Készlet:"}}),
    fieldRow<&tSid::Code>({"usNumAscIICode", &kNumberField, {22456, u"Kód:"}, {0, 65535}}),
    fieldRow<&tSid::Size_mm>({"usNumSize",
                              &kNumberField,
                              {22555, u"Méret:"},
                              {kLeastSymbolSize, kMostSymbolSize, kMm, 0.1, true}}),
    fieldRow<&tSid::Weight, 100>({"usNumWidth",
                                  &kNumberField,
                                  {22556, u"Vonalvastagság:"},
                                  {0, kHighestWeight / 100.0, kMm, 0.01, true}}),
    fieldRow<&tSid::MoveXmm>({"usNumXMove", &kNumberField, {22557, u"Vízszintes:"}, kMoves}),
    fieldRow<&tSid::MoveYmm>({"usNumYMove", &kNumberField, {22558, u"Függőleges:"}, kMoves}),
    fieldRow<&tSid::Align>({"usTxAlign1", &kAlignField, {22562, u"Igazítás"}}),
    fieldRow<&tSid::ProtType>({"cboProtType", &kListField, {22559, u"Alak:"}, {}, kMarkers}),
    fieldRow<&tSid::ProtXmm>({"usNumProtParam1", &kNumberField, {20097, u"Sugár"}, kMarker}),
    fieldRow<&tSid::ProtYmm>({"usNumProtParam2", &kNumberField, {20098, u"Y méret"}, kMarker}),
    fieldRow<&tSid::LayId>({"usLayInfo1", &kLayerField, {20034, u"Cél réteg"}}),
};

/// What the two numbers of a marker mean; a number without a caption is not used.
struct MarkerParams {
    Text first, second;
    bool isRatio = false; ///< the second one is no length
};
constexpr MarkerParams kParams[] = {
    {},
    {{20097, u"Sugár"}, {}},
    {{20098, u"Y méret"}, {20099, u"X méret"}},
    {{20097, u"Sugár"}, {20100, u"Y/X arány"}, true},
};
MarkerParams paramsOf(const tSid &s)
{
    return s.ProtType < std::size(kParams) ? kParams[s.ProtType] : MarkerParams();
}

bool isVector(const tSid &s) { return s.Type == kVectorFont; }
bool isDrawn(const tSid &s) { return s.Type <= kVectorFont; } // of another type nothing is drawn

} // namespace

frmEditSid::frmEditSid(QWidget *owner)
    : ModalForm("frmEditSid", owner), m_fields(kFields, *this, m_relay),
      txtShortName(m_fields.control<QLineEdit>("txtShortName")),
      txtFullName(m_fields.control<QLineEdit>("txtFullName")),
      optFontType(m_fields.control<OptionBox>("optFontType")),
      cboFonts(m_fields.control<QComboBox>("cboFonts")),
      usNumAscIICode(m_fields.control<usInputBox>("usNumAscIICode")), cmdChooseChar(new QPushButton(this)),
      usNumSize(m_fields.control<usInputBox>("usNumSize")),
      usNumWidth(m_fields.control<usInputBox>("usNumWidth")), fraMove(new QGroupBox(this)),
      usNumXMove(m_fields.control<usInputBox>("usNumXMove")),
      usNumYMove(m_fields.control<usInputBox>("usNumYMove")), fraAlign(new QGroupBox(this)),
      usTxAlign1(m_fields.control<usTxAlign>("usTxAlign1")),
      cboProtType(m_fields.control<QComboBox>("cboProtType")),
      usNumProtParam1(m_fields.control<usInputBox>("usNumProtParam1")),
      usNumProtParam2(m_fields.control<usInputBox>("usNumProtParam2")),
      usLayInfo1(m_fields.control<ZOL3_LayInfo>("usLayInfo1")), chkGrid(new QCheckBox(this)),
      usSiInfo1(new usSiInfo(this)), cmdNok(cmdCancel), m_marker(new QGroupBox(this))
{
    cmdChooseChar->setObjectName(QStringLiteral("cmdChooseChar"));
    fraMove->setObjectName(QStringLiteral("fraMove"));
    fraAlign->setObjectName(QStringLiteral("fraAlign"));
    chkGrid->setObjectName(QStringLiteral("chkGrid"));
    usSiInfo1->setObjectName(QStringLiteral("usSiInfo1"));
    cmdNok->setObjectName(QStringLiteral("cmdNok"));
    build();
    connectParts();
}

void frmEditSid::connectParts()
{
    m_fields.onChange([this](const char *control) { changed(control); });
    connect(cmdChooseChar, &QPushButton::clicked, this,
            [this] { m_relay.guard([this] { chooseCharacter(); }); });
    connect(chkGrid, &QCheckBox::toggled, this,
            [this](bool on) { m_relay.guard([&] { usSiInfo1->setVisibleGrid(on); }); });
}

void frmEditSid::Init(ZOLW_Doc &doc, const tSid &record)
{
    m_doc = &doc;
    m_before = record;
    m_charSet = record.CharSet;
    m_ok = false;
    usLayInfo1->setoDoc(&doc);
    m_fields.showAll(record);
    fillFaces();
    enableByFont();
    describeMarker();
    usSiInfo1->SetDoc(&doc);
    usSiInfo1->setZoom(previewZoomOf(record));
    showSymbol();
}

bool frmEditSid::edit()
{
    const Trace trace("frmEditSid", "edit");
    txtShortName->selectAll();
    txtShortName->setFocus();
    run(&m_relay);
    return m_ok;
}

void frmEditSid::TearDown()
{
    usSiInfo1->TearDown();
    usLayInfo1->TearDown();
    m_doc = nullptr;
}

void frmEditSid::showSymbol() { usSiInfo1->LetSidRec(m_fields.record()); }

void frmEditSid::changed(const char *control)
{
    if (std::strcmp(control, "optFontType") == 0) fontTypeChanged();
    if (std::strcmp(control, "cboProtType") == 0) resetMarker();
    if (std::strcmp(control, "cboFonts") == 0) followFace();
    showSymbol();
}

/// A face that lacks the wanted character set brings one of its own, as small codes mean characters of it;
/// the next face that has the wanted one gets it back. A number that stands for no script is nothing to lack.
void frmEditSid::followFace()
{
    tSid &s = m_fields.record();
    if (isVector(s)) return;
    s.CharSet = m_charSet;
    const auto &scripts = scriptsOf(s.Facename);
    if (scripts.empty() || !scriptOf(m_charSet)) return;
    if (std::ranges::count(scripts, m_charSet, &Script::charSet) == 0) s.CharSet = scripts.front()->charSet;
}

void frmEditSid::fontTypeChanged()
{
    fillFaces();
    enableByFont();
}

/// The faces of the symbol's kind of font. The record keeps its face, also when it is not among them.
void frmEditSid::fillFaces()
{
    const tSid &s = m_fields.record();
    QStringList faces;
    if (isVector(s))
        faces = vectorFontsOrTold(m_doc, isVisible() ? this : parentWidget());
    else if (isDrawn(s))
        faces = trueTypeFaces();
    m_relay.checkpoint();
    const QSignalBlocker quiet(cboFonts);
    cboFonts->clear();
    cboFonts->addItems(faces);
    m_fields.show("cboFonts");
}

/// A font of strokes has a thickness and starts at its own origin: the alignment is that of letters.
void frmEditSid::enableByFont()
{
    const tSid &s = m_fields.record();
    usNumWidth->setEnabled(isVector(s));
    fraMove->setEnabled(isDrawn(s));
    fraAlign->setEnabled(isDrawn(s) && !isVector(s));
    for (QWidget *w : std::initializer_list<QWidget *>{cboFonts, cmdChooseChar}) w->setEnabled(isDrawn(s));
}

void frmEditSid::resetMarker()
{
    m_fields.record().ProtXmm = m_fields.record().ProtYmm = 0;
    m_fields.show("usNumProtParam1");
    m_fields.show("usNumProtParam2");
    describeMarker();
}

void frmEditSid::describeMarker()
{
    const MarkerParams params = paramsOf(m_fields.record());
    const auto describe = [](usInputBox &box, Text caption, bool isRatio) {
        box.setEnabled(caption.id != 0);
        box.setBeforeString(caption.id != 0 ? txt(caption) : QString());
        if (isRatio)
            box.setAfterString({});
        else
            box.resetAfterString();
    };
    describe(*usNumProtParam1, params.first, false);
    describe(*usNumProtParam2, params.second, params.isRatio);
}

void frmEditSid::chooseCharacter()
{
    tSid &s = m_fields.record();
    if (!fontPicker() || !isDrawn(s)) return;
    const auto chosen =
        fontPicker()->pickCharacter(m_doc, {FontKind(s.Type), s.Facename, s.CharSet, s.Code}, this);
    m_relay.checkpoint();
    if (!chosen) return;
    s.Facename = chosen->face, s.Code = chosen->code;
    if (!isVector(s)) m_charSet = s.CharSet = chosen->charSet; // small codes mean characters of that set
    m_fields.show("cboFonts");
    m_fields.show("usNumAscIICode");
    showSymbol();
}

/// A name that was not changed is none of this form's business.
bool frmEditSid::isNameFree()
{
    const tSid &s = m_fields.record();
    if (s.ShortName == m_before.ShortName) return true;
    const auto &column = SymbolTable::columns[SymbolTable::nameColumn];
    Message why{Icon::Exclamation, txt(column.taken->title), txt(Text{3121, u"Hiányzik a név!"})};
    if (column.takes(s.ShortName)) {
        const auto all = m_doc->symbols().readAll();
        const Refusal *const taken = refusalOf<SymbolTable>(m_before, s, SymbolTable::nameColumn, all);
        if (!taken) return true;
        why = messageOf(*taken);
    }
    prompts().tell(why, this);
    m_relay.checkpoint();
    txtShortName->setFocus();
    txtShortName->selectAll();
    return false;
}

void frmEditSid::accept()
{
    m_relay.guard([this] {
        if (!m_doc || !m_fields.settle() || !isNameFree()) return;
        m_ok = true;
        ModalForm::accept();
    });
}

} // namespace QV_DOC_CONTROLS
