#pragma once

#include "facade/contract/HostServices.h"

#include <memory>

namespace refhost {

/// The stroke fonts installed on this machine, under names that drawings keep. A font's file is read when a
/// character of it is first asked for; codes are Unicode, of sets of signs the codes of their file.
class StrokeFonts final : public ZolWDoc::VectorFontProvider {
public:
    StrokeFonts();
    ~StrokeFonts() override;
    QStringList names() const override;         ///< in the order of families
    const ZolWDoc::VectorFont *find(const QString &name) const override;

private:
    class Font;
    std::vector<std::unique_ptr<Font>> m_fonts;
};

} // namespace refhost
