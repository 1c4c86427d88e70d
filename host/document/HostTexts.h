#pragma once

namespace refhost {

/// Makes the reference host's own texts known to the library. Documents do it by themselves; a program that
/// shows texts before it has a document calls it first.
void loadHostTexts();

} // namespace refhost
