#include "dialogs/values/ValuePrompts.h"

#include "dialogs/values/ChoiceBox.h"
#include "dialogs/values/ColorBox.h"
#include "dialogs/values/ReportBox.h"
#include "dialogs/values/TextBox.h"
#include "dialogs/values/frmValue.h"
#include "kit/ask/runModal.h"

namespace QV_DOC_CONTROLS {
namespace {

Prompts &boxes()
{
    static ValuePrompts all;
    return all;
}
[[maybe_unused]] const bool s_entered = (setDefaultPrompts(&boxes), true);

} // namespace

void ValuePrompts::show(const Report &r, QObject *asker)
{
    ReportBox box(r, windowOf(asker));
    runModal(box);
}

std::optional<int> ValuePrompts::choose(const Choice &c, QObject *asker)
{
    ChoiceBox box(c, windowOf(asker));
    return runModal(box) == QDialog::Accepted ? std::optional(box.chosen()) : std::nullopt;
}

std::optional<QString> ValuePrompts::text(const TextQuestion &q, QObject *asker)
{
    TextBox box(q, windowOf(asker));
    return runModal(box) == QDialog::Accepted ? std::optional(box.answer()) : std::nullopt;
}

std::optional<std::vector<double>> ValuePrompts::numbers(const NumberQuestion &q, QObject *asker)
{
    frmValue box(q, windowOf(asker));
    return runModal(box) == QDialog::Accepted ? std::optional(box.numbers()) : std::nullopt;
}

std::optional<int> ValuePrompts::colorIndex(const ColorIndexQuestion &q, QObject *asker)
{
    ColorBox box(q, windowOf(asker));
    return runModal(box) == QDialog::Accepted ? std::optional(box.index()) : std::nullopt;
}

} // namespace QV_DOC_CONTROLS
