#pragma once

#include "facade/services/Trace.h"
#include "kit/forms/SystemColor.h"
#include "rules/LayerSet.h"

#include <QVariantMap>
#include <QWidget>

class QComboBox;
class QLineEdit;

namespace QV_DOC_CONTROLS {

/// A set of layers, typed as "1-3,7" or picked from a list: what the two published layer set controls share.
/// They differ in where their layers come from.
///
/// What the document throws reaches the caller of a member function; while the user types or picks it is told
/// through prompts(), and the set stays as it was. What a form or a bag says of text, entry and set is kept
/// and takes effect when the layers arrive.
class LayerSetControl : public QWidget {
    Q_OBJECT
    Q_PROPERTY(QFont Font READ Font WRITE setFont RESET resetFont)
    Q_PROPERTY(bool SingleLine READ SingleLine WRITE setSingleLine)
    Q_PROPERTY(QColor Backcolor READ Backcolor WRITE setBackcolor)
    Q_PROPERTY(double WidthDiferent READ WidthDiferent WRITE setWidthDiferent) // published spelling
    Q_PROPERTY(QString sLays READ sLays WRITE loadsLays)
    Q_PROPERTY(QString sLayGroup READ sLayGroup WRITE loadsLayGroup)
    Q_PROPERTY(QVariant CollectionLays READ keptLayers WRITE loadCollectionLays)
public:
    ~LayerSetControl() override;

    QFont Font() const { return font(); }               ///< of both children
    void setFont(const QFont &font) { QWidget::setFont(font); }
    void resetFont() { setFont(QFont()); }              ///< back to that of the widget around
    bool SingleLine() const { return m_singleLine; }
    void setSingleLine(bool on);                        ///< text box beside the list instead of below it
    QColor Backcolor() const { return propertyColor(m_backcolor); }
    void setBackcolor(const QColor &color); ///< of the text box; propertyColor() makes a desktop's
    double WidthDiferent() const { return m_widthDiferent; } // published spelling
    void setWidthDiferent(double twips); ///< what the text box takes beyond half the line; single precision

    QString sLays() const { return m_sLays; }           ///< the text last typed or shown
    void setsLays(const QString &text); ///< as if typed and left; throws PropertyError 387 in a designer
    QString sLayGroup() const { return m_sLayGroup; }   ///< caption of the entry last chosen
    void setsLayGroup(const QString &caption); ///< as if chosen; unknown: the current layer; throws too
    LayerSet &CollectionLays() { return m_set; }        ///< the control's own; replaced by the control alone
    [[noreturn]] void setCollectionLays(const LayerSet &) const; ///< PropertyError 383 in a designer or 382
    QVariantMap propertyBag() const;                    ///< by published key, what differs from its default
    void setPropertyBag(const QVariantMap &bag);        ///< what it lacks gets its default
    void AddLay(LayerSet &col, const ZolWDoc::tLay &lay) { col.add(lay); } ///< at its place, once

    static constexpr const char16_t *kFirstEntry = u"(Aktuális réteg)"; ///< in every language, on purpose

    qint32 lDebugId() const { return m_identity; }
    void mFont_FontChanged() { arrange(); }
    void ml_RuntimeSupport_LanguageChanged();           // published spelling

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

    QComboBox *const cboLays;                           ///< each entry's user data is its item data
    QLineEdit *const txtLays;

signals:
    /// The set was built anew. It is the control's own: valid until the next event.
    void ChangeLays(QV_DOC_CONTROLS::LayerSet &colLays);

protected:
    LayerSetControl(const char *type, QWidget *parent);
    void readSet(QString &text);                        ///< runs of commas in `text` become one
    void writeNumber(qint16 number);                    ///< as if typed
    void showChoices();                                 ///< fills the list
    void layersArrived();                               ///< what was kept takes effect
    void layersLeft();                                  ///< the set is empty; to be kept again from now on
    void currentLayerArrived();                         ///< the same, while it is the chosen entry

    // Where the layers come from.
    virtual bool hasLayers() const = 0;                 ///< false: nothing is read, nothing raised
    virtual LayerSet layersWith(std::span<const LayerNumbers> numbers) const = 0;
    virtual std::optional<ZolWDoc::tLay> currentLayer() const = 0;
    virtual ZolWDoc::tLayArr allLayers() const = 0;
    virtual ZolWDoc::tLayArr layersOf(qint32 group) const = 0;
    virtual std::vector<ZolWDoc::tGroup> layerGroups() const = 0;

    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    // For the property system, through which nothing may be thrown.
    void loadsLays(const QString &text);
    void loadsLayGroup(const QString &caption);
    void loadCollectionLays(const QVariant &set);
    QVariant keptLayers() const;                        ///< invalid = none
    template <class Set> void load(const char *property, Set set);

    void chooseNamed(const QString &caption);
    void colorBox();
    bool select(const QVariant &value);                 ///< item data or caption; false = no such entry
    void choose(int entry);
    ZolWDoc::tLayArr layersChosenBy(qint32 itemData) const;
    void takeText();
    void normalise();
    void showSet();
    void writeText(const QString &text);
    void arrange();
    void orderTabs();
    int lineHeight() const;
    void describe();

    const char *m_type;
    DebugIdentity m_identity;
    bool m_singleLine = false;
    float m_widthDiferent = 0;                          ///< twips
    QString m_sLays, m_sLayGroup;
    LayerSet m_set;
    SystemColor m_backcolor = kWindowBackground;
    bool m_writing = false;                             ///< the control itself changes the text
    bool m_loading = false;                             ///< a bag is being read
    bool m_arrived = false;                             ///< the layers have
};

} // namespace QV_DOC_CONTROLS
