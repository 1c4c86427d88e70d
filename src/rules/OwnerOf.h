#pragma once

namespace QV_DOC_CONTROLS {

/// Names the record that a member belongs to: decltype(ownerOf(&tLay::Name)) is tLay.
template <class R, class T> R ownerOf(T R::*); // declared only

} // namespace QV_DOC_CONTROLS
