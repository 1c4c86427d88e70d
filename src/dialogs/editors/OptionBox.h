#pragma once

#include <QGroupBox>

class QButtonGroup;
class QHBoxLayout;

namespace QV_DOC_CONTROLS {

/// A frame with one option button for each choice, side by side; at most one is on.
class OptionBox final : public QGroupBox {
    Q_OBJECT
public:
    explicit OptionBox(QWidget *parent);
    void setChoices(const QStringList &captions);
    int value() const;        ///< of the option that is on; -1 = none
    void setValue(int value); ///< one that there is not = none; raises nothing
signals:
    void chosen(); ///< by the user
private:
    QButtonGroup *m_options;
    QHBoxLayout *m_row;
};

} // namespace QV_DOC_CONTROLS
