#pragma once

#include "grids/layer/LayerCommands.h"
#include "support/TableForm.h"

namespace tests {

struct LayerForm : TableForm<QV_DOC_CONTROLS::clsJs_Layer> {
    explicit LayerForm(ZolWDoc::ZOLW_Doc &doc) : TableForm(doc, QV_DOC_CONTROLS::kLayerCommands) {}
    ZolWDoc::tLayArr rows() { return TableForm::rows(&ZolWDoc::tLay::LayId); }
};

} // namespace tests
