#include "pictures/Scene.h"

#include "controls/usInputBox.h"
#include "dialogs/editors/frmEditSid.h"
#include "dialogs/editors/frmSupSid.h"
#include "document/SqliteDoc.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QTimer>

using namespace QV_DOC_CONTROLS;
using ZolWDoc::tSid;

namespace {

tSid letter(const char *name, const char *face, qint32 code)
{
    return {.GroupId = 1, .Code = code, .ShortName = name, .FullName = QString(name) + " – geodézia",
            .Align = 24, .Size_mm = 5, .YwFact = 1, .XwFact = 1, .Facename = face, .CharSet = 238,
            .DspZoom = 6, .LayId = 1};
}
tSid sign(const char *name, qint32 code)
{
    tSid s = letter(name, "Hershey Markers", code);
    s.Type = 1, s.Weight = 25;
    return s;
}

void marked(frmEditSid &f, int type, double x, double y)
{
    f.cboProtType->setCurrentIndex(type);
    f.usNumProtParam1->setValue(x);
    f.usNumProtParam2->setValue(y);
}
struct EditorState {
    tSid symbol;
    void (*make)(frmEditSid &);
};
const EditorState kStates[] = {
    {letter("Kút", "DejaVu Sans", 0x151), [](frmEditSid &) {}},
    {sign("Fa", 66), [](frmEditSid &f) { marked(f, 3, 4, 0.5), f.chkGrid->setChecked(true); }},
    {letter("Alappont", "ZolW_DAT1_M2", 33), [](frmEditSid &f) { marked(f, 2, 12, 8.5); }}, // unknown face
};

/// Three groups, one of them empty, with letters and signs.
std::unique_ptr<refhost::SqliteDoc> drawing()
{
    auto doc = refhost::SqliteDoc::create(":memory:");
    ZolWDoc::SymbolRole &symbols = doc->symbols();
    const qint16 ground = symbols.groups().readAll()[0].GroupId;
    const qint16 trees = symbols.groups().add("Fák és cserjék");
    symbols.groups().add("Vasút");
    for (int i = 0; i < 46; ++i) {
        tSid s = i % 3 ? letter("Kút", "DejaVu Sans", 0x2600 + i) : sign("Alappont", 65 + i / 3);
        s.SidId = qint16(1000 + i), s.GroupId = i < 38 ? ground : trees;
        s.ShortName += QStringLiteral(" %1").arg(i + 1);
        s.DspZoom = 3, s.LayId = doc->layers().readAll()[0].LayId;
        symbols.add(s);
    }
    return doc;
}

const char *const kManagerStates[] = {"miView_Report",    "miView_Icons", "miView_Size+",
                                      "miView_SmallIcon", "miView_List",  "cmdByGroups"};

void takeManager(tests::Sheet &sheet)
{
    const auto doc = drawing();
    for (const enumSetupMode mode : {MODE_SELECT, MODE_EDIT}) {
        frmSupSid form;
        QTimer::singleShot(0, &form, [&] {
            for (const char *tool : kManagerStates) {
                if (mode == MODE_EDIT && qstrcmp(tool, "miView_Icons") != 0) continue;
                form.findChild<QAction *>(QLatin1String(tool))->trigger();
                form.grab();
                QCoreApplication::sendPostedEvents(); // pictures are drawn once they were asked for
                sheet.take(form);
            }
            form.reject();
        });
        qint16 id = mode == MODE_EDIT ? 1002 : -1;
        form.bDoModal(*doc, mode, id);
    }
}

} // namespace

void tests::takeEditors(ZolWDoc::ZOLW_Doc &doc, Sheet &sheet)
{
    const StrokeHost host;
    for (const EditorState &state : kStates) {
        frmEditSid form;
        form.Init(doc, state.symbol);
        state.make(form);
        QTimer::singleShot(0, &form, [&] {
            sheet.take(form);
            form.reject();
        });
        form.edit();
    }
    takeManager(sheet);
}
