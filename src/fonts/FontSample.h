#pragma once

#include "fonts/CharacterSource.h"

#include <QFrame>

namespace QV_DOC_CONTROLS {

class ErrorRelay;

/// One character of a font as large as there is room, or letters of it beside each other. What a host draws
/// is fetched when it is set, inside the relay.
class FontSample final : public QFrame {
    Q_OBJECT
public:
    FontSample(ErrorRelay &host, QWidget *parent);
    void showLetters(std::shared_ptr<CharacterSource> source);      ///< letters; null = nothing
    void showCharacter(std::shared_ptr<CharacterSource> source, int code); ///< that character
    QSize sizeHint() const override;
protected:
    void paintEvent(QPaintEvent *event) override;
private:
    ErrorRelay &m_host;
    std::shared_ptr<CharacterSource> m_source;
    int m_code = -1;                            ///< -1 = letters
};

} // namespace QV_DOC_CONTROLS
