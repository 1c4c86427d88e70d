#pragma once

#include "facade/contract/HostServices.h"

namespace refhost {

/// The language of the program, remembered from run to run.
class Language : public ZolWDoc::LanguageRuntime {
    Q_OBJECT
public:
    Language();                                     ///< the remembered one, else the desktop's, else English
    int currentLanguage() const override { return m_id; }
    void setCurrent(int localeId); ///< one of the four; the library and every window follow at once
    void setForThisRun(int localeId);               ///< the same, but not remembered
    static const std::vector<int> &all();           ///< locale identifiers, in menu order
    static int idOf(const QString &code);           ///< "hu", "ro", "vi", "en"; 0 = another
private:
    int m_id = 0;
};

} // namespace refhost
