#include "pictures/Scene.h"

#include "facade/contract/FontPicker.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

using namespace QV_DOC_CONTROLS;

namespace {

/// The dialog while the host offers vector fonts.
std::function<void()> with(const std::function<void(FontPicker &)> &pick)
{
    return [pick] {
        const tests::StrokeHost host;
        pick(*fontPicker());
    };
}
std::function<void()> trueType(const char *face, qint32 charSet)
{
    return with([=](FontPicker &p) { p.pickTrueType({face, charSet}, nullptr); });
}
std::function<void()> characters(FontKind kind, const char *face, qint32 charSet, qint32 code)
{
    return with([=](FontPicker &p) { p.pickCharacter(nullptr, {kind, face, charSet, code}, nullptr); });
}
/// The viewer with a number typed that is none of a character.
void unreadable()
{
    QTimer::singleShot(0, qApp, [] {
        auto *const code = QApplication::activeModalWidget()->findChild<QLineEdit *>("txtCode");
        code->setText("65536");
        emit code->textEdited(code->text());
    });
    characters(FontKind::TrueType, "DejaVu Sans Mono", 0, 0xe000)();
}

} // namespace

std::vector<tests::Scene> tests::fontScenes()
{
    return {
        {"truetype", trueType("DejaVu Sans", 238)},
        {"truetype-no-script", trueType("DejaVu Serif", 178)},
        {"truetype-unknown", trueType("ZolW_DAT1_M2", 238)},
        {"vector", with([](FontPicker &p) { p.pickVector(nullptr, "Hershey Times Italic", nullptr); })},
        {"viewer", characters(FontKind::TrueType, "DejaVu Sans", 238, 245)},
        {"viewer-wide", characters(FontKind::TrueType, "DejaVu Serif", 204, 0x3a9)},
        {"viewer-unreadable", unreadable},
        {"viewer-vector", characters(FontKind::Vector, "Hershey Roman Simplex", 0, 0x1ebf)},
        {"viewer-signs", characters(FontKind::Vector, "Hershey Markers", 0, 65)},
    };
}
