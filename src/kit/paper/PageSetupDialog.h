#pragma once

#include <QDialog>
#include <QPageLayout>

#include <array>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace QV_DOC_CONTROLS {

class PageThumbnail;

/// Paper size, how it is turned, and margins; needs no printer. Margins that leave too little are told in
/// place, and OK waits for better ones. What was confirmed is remembered for the user.
class PageSetupDialog final : public QDialog {
    Q_OBJECT
public:
    PageSetupDialog(const QPageLayout &page, QWidget *parent);
    QPageLayout page() const;               ///< as the controls say
    void accept() override;                 ///< stores it

private:
    void build();
    QGroupBox *turnedBox();
    QGroupBox *marginsBox();
    void fillPapers(const QPageSize &current);
    void retranslate();
    void follow();                          ///< controls changed: picture, message, OK

    QComboBox *m_paper;
    QLabel *m_paperLabel;
    QGroupBox *m_turnedBox, *m_marginsBox;
    QRadioButton *m_portrait, *m_landscape;
    std::array<QLabel *, 4> m_marginLabels; ///< left, top, right, bottom
    std::array<QDoubleSpinBox *, 4> m_margins;
    QLabel *m_range;
    PageThumbnail *m_thumbnail;
    QLabel *m_refusal;
    QDialogButtonBox *m_buttons;
};

} // namespace QV_DOC_CONTROLS
