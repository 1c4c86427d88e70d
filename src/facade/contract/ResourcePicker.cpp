#include "facade/contract/ResourcePicker.h"

#include <utility>

namespace QV_DOC_CONTROLS {
namespace {

ResourcePicker *s_picker = nullptr;

} // namespace

ResourcePicker *resourcePicker() { return s_picker; }
bool canPickResource(ZolWDoc::TableKind kind) { return s_picker && s_picker->canPick(kind); }
ResourcePicker *setResourcePicker(ResourcePicker *picker) { return std::exchange(s_picker, picker); }

} // namespace QV_DOC_CONTROLS
