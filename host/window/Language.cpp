#include "window/Language.h"

#include "window/HostServices.h"

#include "facade/services/Language.h"
#include "facade/services/Services.h"

#include <QLocale>

using namespace QV_DOC_CONTROLS;

namespace refhost {
namespace {

struct Code {
    const char16_t *code;
    int id;
};
constexpr Code kCodes[] = {{u"hu", Hungarian}, {u"ro", Romanian}, {u"vi", Vietnamese}, {u"en", English}};
const QString kSection = QStringLiteral("Settings"), kKey = QStringLiteral("Language");

} // namespace

Language::Language()
{
    m_id = settingsStore().read(settingsName(), kSection, kKey, {}).toInt();
    if (!std::ranges::count(all(), m_id)) m_id = idOf(QLocale::system().name().left(2));
    if (m_id == 0) m_id = English;
}

void Language::setCurrent(int localeId)
{
    settingsStore().write(settingsName(), kSection, kKey, QString::number(localeId));
    setForThisRun(localeId);
}

void Language::setForThisRun(int localeId)
{
    if (localeId == m_id) return;
    m_id = localeId;
    emit LanguageChanged();
}

const std::vector<int> &Language::all()
{
    static const std::vector<int> ids{Hungarian, Romanian, Vietnamese, English};
    return ids;
}

int Language::idOf(const QString &code)
{
    const auto row = std::ranges::find_if(kCodes, [&](const Code &c) { return QStringView(c.code) == code; });
    return row == std::end(kCodes) ? 0 : row->id;
}

} // namespace refhost
