#include "facade/contract/FontPicker.h"

#include <utility>

namespace QV_DOC_CONTROLS {
namespace {

FontPicker *s_picker = nullptr;

} // namespace

FontPicker *fontPicker() { return s_picker; }
FontPicker *setFontPicker(FontPicker *picker) { return std::exchange(s_picker, picker); }

} // namespace QV_DOC_CONTROLS
