#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/Trace.h"
#include "kit/forms/SystemColor.h"

#include <QVariantMap>
#include <QWidget>

class QMouseEvent;
class QPixmap;
class QTimer;
class QToolButton;

namespace QV_DOC_CONTROLS {

class SymbolSurface;

/// One point symbol of a document, enlarged: what the two published symbol previews share. The symbol comes
/// from the document by its number, or as a record that need not be stored.
///
/// Nothing is drawn until there is a document. The document and its fonts are asked when a member here is
/// called, never while something is painted; what they throw reaches that caller. 16-bit and single precision
/// properties are cut to what they hold. Every property that is set draws the symbol again.
class SymbolPreview : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QColor BackColor READ BackColor WRITE setBackColor)
    Q_PROPERTY(int BorderStyle READ BorderStyle WRITE setBorderStyle)
    Q_PROPERTY(double Zoom READ Zoom WRITE setZoom)
    Q_PROPERTY(int SidId READ SidId WRITE loadSidId)
    Q_PROPERTY(QColor SiColor READ SiColor WRITE setSiColor)
    Q_PROPERTY(bool VisibleGrid READ VisibleGrid WRITE setVisibleGrid)
    Q_PROPERTY(bool VisibleZoom READ VisibleZoom WRITE setVisibleZoom)
    Q_PROPERTY(int Appearance READ Appearance WRITE setAppearance)
    Q_PROPERTY(bool VisibleProt READ VisibleProt WRITE setVisibleProt)
    Q_PROPERTY(bool VisibleFrame READ VisibleFrame WRITE setVisibleFrame)
    Q_PROPERTY(QString ToolTipSid READ ToolTipSid WRITE setToolTipSid)
public:
    ~SymbolPreview() override;

    void SetDoc(ZolWDoc::ZOLW_Doc *oDoc);       ///< the host's, until TearDown(); shows the symbol SidId
    void TearDown();                            ///< drops the document; may be repeated
    void ShowSid();                             ///< draws again, with the font that the host has now
    qint16 SidId() const { return m_sidId; }    ///< of the symbol shown; -1 = none
    void setSidId(qint16 id);                   ///< nothing is drawn of a number that no symbol has
    ZolWDoc::tSid GetSidRec() const { return m_record.value_or(ZolWDoc::tSid()); } ///< a copy
    void LetSidRec(const ZolWDoc::tSid &tNew_SidRec); ///< shows a copy, whether or not it is stored
    QPixmap GetSiPicture() const;               ///< what is drawn, in the size of the surface

    QColor BackColor() const { return propertyColor(m_backColor); }
    void setBackColor(const QColor &color);     ///< propertyColor() makes a desktop's
    int BorderStyle() const { return m_borderStyle; }
    void setBorderStyle(int style);             ///< 0 none, any other a border
    double Zoom() const;                        ///< millimetres on the screen for one of the symbol's
    void setZoom(double zoom);                  ///< 0.2 to 100, values beyond become the bound
    QColor SiColor() const { return propertyColor(m_siColor); }
    void setSiColor(const QColor &color);
    bool VisibleGrid() const;
    void setVisibleGrid(bool on);               ///< lines every 1, 5 and 10 mm of the symbol
    bool VisibleZoom() const { return m_visibleZoom; }
    void setVisibleZoom(bool on);               ///< of the two buttons
    int Appearance() const { return m_appearance; }
    void setAppearance(int appearance);         ///< of the border: 0 flat, any other sunken
    bool VisibleProt() const;
    void setVisibleProt(bool on);               ///< of the insertion-point marker
    bool VisibleFrame() const;
    void setVisibleFrame(bool on);              ///< a line inside the border
    QString ToolTipSid() const;
    void setToolTipSid(const QString &text);

    virtual QVariantMap propertyBag() const;    ///< by published key, what differs from its default
    virtual void setPropertyBag(const QVariantMap &bag); ///< what it lacks gets its default
    qint32 lDebugId() const { return m_identity; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QToolButton *const cmdZoomIn;               ///< makes the symbol smaller, published so
    QToolButton *const cmdZoomOut;              ///< makes it larger

signals:
    void OnZoom(float sngZoom);                 ///< the magnification has changed to this
    // Of the surface: buttons 1 left, 2 right, 4 middle; Shift 1, Ctrl 2, Alt 4; X and Y in twips from its
    // left top corner.
    void Click();
    void MouseDown(qint16 Button, qint16 Shift, double X, double Y);
    void MouseMove(qint16 Button, qint16 Shift, double X, double Y);
    void MouseUp(qint16 Button, qint16 Shift, double X, double Y);

protected:
    SymbolPreview(const char *type, QWidget *parent);
    SymbolSurface &surface() const { return *m_surface; }
    void redraw();                              ///< at once
    void arrange() const;                       ///< the children, in the size it has
    void reloadCaptions();

    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    static constexpr float kLeastZoom = 0.2f, kMostZoom = 100;
    void loadSidId(int id);                     ///< for the property system, through which nothing is thrown
    void take(std::optional<ZolWDoc::tSid> record);
    void describe();
    void colorSurface();
    void setShort(int &property, int value);
    void connectButton(QToolButton &button, float sign);
    void zoomBy(float step);
    void zoomTo(float zoom);
    void repeat();
    void raiseMouse(const QMouseEvent &event);

    DebugIdentity m_identity;
    SymbolSurface *m_surface;
    QTimer *m_repeat;
    ZolWDoc::ZOLW_Doc *m_doc = nullptr;
    std::optional<ZolWDoc::tSid> m_record;      ///< nothing = no such symbol
    bool m_let = false;                         ///< the record was given, not read
    qint16 m_sidId = -1;
    float m_zoom = 3, m_step = 0;               ///< the step is that of the button held
    bool m_stepped = false;                     ///< while it was held; letting it go is no click then
    SystemColor m_backColor{0}, m_siColor{0xffffff};
    int m_borderStyle = 0, m_appearance = 0;
    bool m_visibleZoom = true;
};

} // namespace QV_DOC_CONTROLS
