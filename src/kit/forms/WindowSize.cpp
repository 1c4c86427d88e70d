#include "kit/forms/WindowSize.h"

#include "facade/services/Services.h"
#include "kit/forms/Twips.h"

#include <QFontMetrics>
#include <QScreen>

namespace QV_DOC_CONTROLS {
namespace {

const QString kApplication = QStringLiteral("ZolWOp");
const QString kSection = QStringLiteral("Settings");
QString keyOf(const QString &form, const char *suffix) { return kApplication + form + QLatin1String(suffix); }

int storedPixels(const QWidget &window, const QString &key, int fallback)
{
    bool isNumber = false;
    const int twips = settingsStore().read(kApplication, kSection, key, {}).toInt(&isNumber);
    return isNumber && twips > 0 ? pixelsOf(twips, window) : fallback;
}

void keepPixels(const QWidget &on, const QString &key, int pixels)
{
    settingsStore().write(kApplication, kSection, key, QString::number(twipsOf(pixels, on)));
}

} // namespace

QSize sizeOfLetters(const QWidget &window, int across, int down)
{
    const QFontMetrics letters(window.font());
    return {letters.averageCharWidth() * across, letters.height() * down};
}

void restoreSize(QWidget &window, const QString &form, QSize usual, SizeKeys keys)
{
    if (!usual.isValid()) usual = sizeOfLetters(window, 160, 28);
    const QSize wanted(storedPixels(window, keyOf(form, keys.width), usual.width()),
                       storedPixels(window, keyOf(form, keys.height), usual.height()));
    const QScreen *const screen = window.screen();
    window.resize(screen ? wanted.boundedTo(screen->availableSize()) : wanted);
}

void keepSizeOf(const QWidget &window, const QString &form, SizeKeys keys)
{
    keepPixels(window, keyOf(form, keys.width), window.width());
    keepPixels(window, keyOf(form, keys.height), window.height());
}

int storedWidth(const QWidget &part, const QString &form, const char *suffix, int usual)
{
    return storedPixels(part, keyOf(form, suffix), usual);
}

void keepWidthOf(const QWidget &part, const QString &form, const char *suffix)
{
    keepPixels(part, keyOf(form, suffix), part.width());
}

} // namespace QV_DOC_CONTROLS
