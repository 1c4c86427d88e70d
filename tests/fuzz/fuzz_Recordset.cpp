// Any bytes as a recordset: no crash, memory and time that grow with the file, and what was read comes back
// from what is written of it, value for value.
#include "../fuzz/Feed.h"
#include "rules/SymbolSet.h"
#include "rules/recordset/RecordsetXml.h"

using namespace QV_DOC_CONTROLS;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto read = recordsetOf(bytes);
    if (const auto *const refusal = std::get_if<RecordsetRefusal>(&read)) {
        PROMISE(!textOf(*refusal).isEmpty());
        return 0;
    }
    const Recordset &set = std::get<Recordset>(read);
    symbolsIn(set);
    const auto again = recordsetOf(bytesOf(set));
    PROMISE(std::holds_alternative<Recordset>(again));
    const Recordset &copy = std::get<Recordset>(again);
    PROMISE(copy.rowCount() == set.rowCount() && copy.fields().size() == set.fields().size());
    return 0;
}
