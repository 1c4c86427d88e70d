#pragma once

#include "facade/services/Trace.h"

#include <stdexcept>

namespace QV_DOC_CONTROLS {

/// A published property that cannot be written now; thrown to the caller of the setter in C++ only.
class PropertyError : public std::runtime_error {
public:
    enum Number {
        SetNotSupportedAtRunTime = 382,
        SetNotSupported = 383,                  ///< read only
        SetNotPermitted = 387,                  ///< while the form is designed
    };
    /// The text names the property, in the current language and in UTF-8.
    PropertyError(Number number, const char *property);
    Number number() const { return m_number; }
private:
    Number m_number;
};

/// For the property system, through which nothing may be thrown: runs a setter; what it refuses is ignored
/// and left in the trace.
template <class Set> void setQuietly(const char *type, const char *property, Set set)
{
    try {
        set();
    } catch (const PropertyError &refused) {
        Trace(type, property).step(refused.number());
    }
}

} // namespace QV_DOC_CONTROLS
