#include "controls/PropertyError.h"

#include "facade/services/Text.h"

namespace QV_DOC_CONTROLS {
namespace {

std::string messageOf(PropertyError::Number number, const char *property)
{
    const auto text = [property](Text refusal) {
        return join(refusal, QString::fromLatin1(property)).toStdString();
    };
    switch (number) {
    case PropertyError::SetNotSupportedAtRunTime:
        return text({22000, u"A tulajdonság futás közben nem állítható be: "});
    case PropertyError::SetNotSupported: return text({22001, u"A tulajdonság csak olvasható: "});
    case PropertyError::SetNotPermitted: break;
    }
    return text({22002, u"A tulajdonság tervezés közben nem állítható be: "});
}

} // namespace

PropertyError::PropertyError(Number number, const char *property)
    : std::runtime_error(messageOf(number, property)), m_number(number)
{}

} // namespace QV_DOC_CONTROLS
