#include "window/ImportCommand.h"

#include "import/DxfImport.h"
#include "window/BackgroundWork.h"

#include "facade/services/Prompts.h"
#include "facade/services/Text.h"

#include <QFileInfo>
#include <QWidget>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

QString captionFor(const QString &path)
{
    return join(Text{30511, u"A(z) '"}, QFileInfo(path).fileName(), Text{30512, u"' fájl beolvasása…"});
}

/// False = the user gave it up.
bool askUnit(QWidget &window, const QString &path, ImportGuess &guess)
{
    Choice question;
    question.title = txt(Text{30510, u"DXF importálása"});
    question.text = join(Text{30513, u"Milyen egységben vannak a(z) '"}, QFileInfo(path).fileName(),
                         Text{30514, u"' fájl koordinátái?"});
    if (!guess.note.isEmpty()) question.text += u'\n' + guess.note;
    for (const LengthUnit &unit : lengthUnits()) question.items << txt(unit.name);
    question.preset = guess.unit;
    const std::optional<int> unit = prompts().choose(question, &window);
    guess.unit = unit.value_or(guess.unit);
    return unit.has_value();
}

} // namespace

std::unique_ptr<OpenDrawing> importedDrawing(QWidget &window, const QString &path, bool ask, QString &report)
{
    ImportGuess guess;
    runWithProgress(window, captionFor(path),
                    [&](const WorkProgress &) { guess = DxfImport::guessOf(path); });
    if (ask && !askUnit(window, path, guess)) return nullptr;

    auto folder = OpenDrawing::newFolder();
    const QString target = OpenDrawing::pathIn(*folder);
    ImportReport counts;
    try {
        runWithProgress(window, captionFor(path), [&](const WorkProgress &progress) {
            DxfImport::into(target, path, guess.options(), counts,
                            progress); // closed in the thread that opened it
        });
    } catch (const ImportCancelled &) {
        return nullptr;
    }
    report = join(Text{30604, u"Egység: "}, lengthUnits()[size_t(guess.unit)].name,
                  Text{30605, u", méretarány 1:"}, int(guess.scale), QStringLiteral("\n"));
    if (!ask && !guess.note.isEmpty()) report += guess.note + u'\n';
    report += counts.text();
    return OpenDrawing::unsaved(std::move(folder), QFileInfo(path).completeBaseName());
}

} // namespace refhost
