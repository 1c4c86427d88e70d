#include "pictures/Scene.h"

#include "facade/contract/FontPicker.h"
#include "facade/contract/HostServices.h"
#include "facade/services/Services.h"
#include "fonts/StrokeFonts.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

using namespace QV_DOC_CONTROLS;

namespace tests {
namespace {

struct Host final : ZolWDoc::HostServices {
    refhost::StrokeFonts fonts;
    ZolWDoc::VectorFontProvider *vectorFonts(const ZolWDoc::ZOLW_Doc *) override { return &fonts; }
};

/// The dialog while the host offers vector fonts.
std::function<void()> with(const std::function<void(FontPicker &)> &pick)
{
    return [pick] {
        Host host;
        setHostServices(&host);
        pick(*fontPicker());
        setHostServices(nullptr);
    };
}

std::function<void()> trueType(const char *face, qint32 charSet)
{
    return with([=](FontPicker &p) { p.pickTrueType({QString::fromUtf8(face), charSet}, nullptr); });
}

std::function<void()> characters(FontKind kind, const char *face, qint32 charSet, qint32 code)
{
    const FontCharacter first{kind, QString::fromUtf8(face), charSet, code};
    return with([=](FontPicker &p) { p.pickCharacter(nullptr, first, nullptr); });
}

} // namespace

std::vector<Scene> fontScenes()
{
    return {
        {"truetype", trueType("DejaVu Sans", 238)},
        {"truetype-no-script", trueType("DejaVu Serif", 178)},
        {"truetype-unknown", trueType("ZolW_DAT1_M2", 238)},
        {"vector", with([](FontPicker &p) {
             p.pickVector(nullptr, QStringLiteral("Hershey Times Italic"), nullptr);
         })},
        {"viewer", characters(FontKind::TrueType, "DejaVu Sans", 238, 245)},
        {"viewer-wide", characters(FontKind::TrueType, "DejaVu Serif", 204, 0x3a9)},
        {"viewer-unreadable",
         [] {
             QTimer::singleShot(0, qApp, [] {
                 auto *const code = QApplication::activeModalWidget()->findChild<QLineEdit *>(
                     QStringLiteral("txtCode"));
                 code->setText(QStringLiteral("65536"));
                 emit code->textEdited(code->text());
             });
             characters(FontKind::TrueType, "DejaVu Sans Mono", 0, 0xe000)();
         }},
        {"viewer-vector", characters(FontKind::Vector, "Hershey Roman Simplex", 0, 0x1ebf)},
        {"viewer-signs", characters(FontKind::Vector, "Hershey Markers", 0, 65)},
    };
}

} // namespace tests
