#include "facade/contract/RecordEditors.h"

#include <utility>

namespace QV_DOC_CONTROLS {
namespace {

RecordEditors *s_editors = nullptr;

} // namespace

RecordEditors *recordEditors() { return s_editors; }
RecordEditors *setRecordEditors(RecordEditors *editors) { return std::exchange(s_editors, editors); }

} // namespace QV_DOC_CONTROLS
