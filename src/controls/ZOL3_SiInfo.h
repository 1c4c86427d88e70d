#pragma once

#include "controls/SymbolPreview.h"

namespace QV_DOC_CONTROLS {

/// The twin of usSiInfo for a host's own forms: its captions follow the language and its buttons the font. It
/// looks disabled only when it is, and hands out no window.
class ZOL3_SiInfo final : public SymbolPreview {
    Q_OBJECT
public:
    explicit ZOL3_SiInfo(QWidget *parent = nullptr);
    ~ZOL3_SiInfo() override { TearDown(); }

    void mFont_FontChanged();
    void ml_RuntimeSupport_LanguageChanged();   // published spelling

protected:
    void changeEvent(QEvent *event) override;
};

} // namespace QV_DOC_CONTROLS
