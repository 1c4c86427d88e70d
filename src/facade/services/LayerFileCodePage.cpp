#include "facade/services/LayerFileCodePage.h"

#include "facade/services/Services.h"

#include <QStringConverter>

namespace QV_DOC_CONTROLS {
namespace {

const QString kApplication = QStringLiteral("ZolWOp"), kSection = QStringLiteral("Settings"),
              kKey = QStringLiteral("LayerFileCodePage");

} // namespace

QString layerFileCodePage() { return settingsStore().read(kApplication, kSection, kKey, {}).trimmed(); }
void setLayerFileCodePage(const QString &name) { settingsStore().write(kApplication, kSection, kKey, name); }
bool isCodePage(const QString &name)
{
    return name.isEmpty() || QStringEncoder(name.toLatin1().constData()).isValid();
}

} // namespace QV_DOC_CONTROLS
