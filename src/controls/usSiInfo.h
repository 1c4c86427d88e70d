#pragma once

#include "controls/SymbolPreview.h"

namespace QV_DOC_CONTROLS {

/// The preview of one point symbol. Its captions are those of the language when it is shown.
class usSiInfo final : public SymbolPreview {
    Q_OBJECT
    Q_PROPERTY(bool ShowEnabled READ ShowEnabled WRITE setShowEnabled)
public:
    explicit usSiInfo(QWidget *parent = nullptr) : SymbolPreview("usSiInfo", parent) {}
    ~usSiInfo() override { TearDown(); }

    bool ShowEnabled() const;
    void setShowEnabled(bool on);               ///< false: looks disabled and works on
    WId hWnd();                                 ///< of the surface; asking makes it a window of its own

    QVariantMap propertyBag() const override;
    void setPropertyBag(const QVariantMap &bag) override;
};

} // namespace QV_DOC_CONTROLS
