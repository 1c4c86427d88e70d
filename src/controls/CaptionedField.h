#pragma once

#include "kit/forms/SystemColor.h"

#include <QWidget>

#include <array>

class QLabel;

namespace QV_DOC_CONTROLS {

/// A field for a value with a caption before it, a unit behind it, arrows beside it and a border around: how
/// an input box looks, and where its children stand. Lengths are twips, cut to 16 bits; a negative one counts
/// as none.
class CaptionedField : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor Backcolor READ Backcolor WRITE setBackcolor RESET resetBackcolor)
    Q_PROPERTY(QColor ForeColor READ ForeColor WRITE setForeColor RESET resetForeColor)
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ Font WRITE setFont RESET resetFont)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(QString BeforeString READ BeforeString WRITE setBeforeString)
    Q_PROPERTY(int BeforeStringAlign READ BeforeStringAlign WRITE setBeforeStringAlign)
    Q_PROPERTY(int WidthBeforeString READ WidthBeforeString WRITE setWidthBeforeString)
    Q_PROPERTY(int WidthValue READ WidthValue WRITE setWidthValue)
    Q_PROPERTY(QString AfterString READ AfterString WRITE setAfterString RESET resetAfterString)
    Q_PROPERTY(int WidthAfterString READ WidthAfterString WRITE setWidthAfterString)
    Q_PROPERTY(bool InfoMode READ InfoMode WRITE setInfoMode)
    Q_PROPERTY(bool UpDownVisible READ UpDownVisible WRITE setUpDownVisible)
public:
    QColor Backcolor() const { return propertyColor(m_backcolor); }
    void setBackcolor(const QColor &color);     ///< of the value; propertyColor() makes a desktop's
    void resetBackcolor() { setBackcolor(propertyColor(kWindowBackground)); }
    QColor ForeColor() const { return propertyColor(m_foreColor); }
    void setForeColor(const QColor &color);     ///< of the value and the captions
    void resetForeColor() { setForeColor(propertyColor(kWindowText)); }
    bool Enabled() const;
    void setEnabled(bool on);                   ///< with all children
    QFont Font() const { return font(); }
    void setFont(const QFont &font) { QWidget::setFont(font); }
    void resetFont() { setFont(QFont()); }      ///< back to that of the widget around
    int BorderStyle() const { return m_borderStyle; }
    void setBorderStyle(int style);             ///< 0 none, any other a frame
    QString BeforeString() const { return m_before; }
    void setBeforeString(const QString &caption); ///< "&" marks an access key
    int BeforeStringAlign() const { return m_align; }
    void setBeforeStringAlign(int align);       ///< 0 left, 1 right, 2 centred
    int WidthBeforeString() const { return m_widthBefore; }
    void setWidthBeforeString(int twips);       ///< a longer caption takes more while there is room
    int WidthValue() const { return m_widthValue; }
    void setWidthValue(int twips);
    QString AfterString() const { return m_after; }
    void setAfterString(const QString &caption);
    void resetAfterString();                    ///< "mm" in the current language
    int WidthAfterString() const { return m_widthAfter; }
    void setWidthAfterString(int twips);        ///< a longer caption takes more while there is room
    bool InfoMode() const { return m_infoMode; }
    void setInfoMode(bool on);                  ///< the value is a label that cannot be edited
    bool UpDownVisible() const { return m_upDownVisible; }
    void setUpDownVisible(bool on);             ///< arrows that step the value

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    QLabel *const picValue;                     ///< the value, in information mode

protected:
    explicit CaptionedField(QWidget *parent);
    void surround(QWidget *value, QWidget *arrows);     ///< its children too; once, when made
    void arrange();
    void translateUnit() { if (!m_ownAfter) resetAfterString(); } ///< after a language change
    QString spokenName() const;                         ///< the captions as a screen reader says them
    virtual void captionsChanged() = 0;

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    using Widths = std::array<int, 4>;                  ///< caption, value, arrows, caption
    void setShort(int &property, int value);
    void colorChildren();
    void showCaption(QLabel &label, const QString &caption);
    int pixels(int twips) const;
    int frame() const;                                  ///< width of the border and of the room within it
    static int around(const QLabel &label);
    Widths widths(bool least) const;
    Widths widthsIn(int room) const;
    QSize sizeOf(const Widths &widths) const;

    QLabel *m_lblBefore, *m_lblAfter;
    QWidget *m_field = nullptr, *m_arrows = nullptr;
    SystemColor m_backcolor = kWindowBackground, m_foreColor = kWindowText;
    QString m_before, m_after;
    bool m_ownAfter = false;                            ///< the unit is not the translated default
    bool m_enabled = true, m_infoMode = false, m_upDownVisible = false;
    int m_borderStyle = 0, m_align = 0, m_widthBefore = 1200, m_widthValue = 1200, m_widthAfter = 300;
};

} // namespace QV_DOC_CONTROLS
