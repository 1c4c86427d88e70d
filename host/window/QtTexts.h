#pragma once

#include <QHash>
#include <QTranslator>

namespace refhost {

/// Texts that Qt itself shows (its file dialog, context menus, standard buttons) in the program's language,
/// from the string tables; follows a change of language at once. Where the desktop has Qt's own translation
/// into that language, that one is asked first. Lives as long as the application shows windows.
class QtTexts : public QTranslator {
public:
    QtTexts();                                      ///< installs itself
    ~QtTexts() override;
    bool isEmpty() const override { return false; }
    /// Null where there is no text, so that Qt goes on looking.
    QString translate(const char *context, const char *source, const char *disambiguation = nullptr,
                      int n = -1) const override;
private:
    void follow();
    QHash<QByteArray, QString> m_texts;             ///< by context and source, in the current language
    QTranslator m_installed;                        ///< Qt's, empty where there is none
};

} // namespace refhost
