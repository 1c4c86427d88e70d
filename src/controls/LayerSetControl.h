#pragma once

#include "facade/services/Trace.h"
#include "rules/LayerSet.h"

#include <QWidget>

class QComboBox;
class QLineEdit;

namespace QV_DOC_CONTROLS {

/// A set of layers, typed as "1-3,7" or picked from a list: what the two published layer set controls share.
/// They differ in where their layers come from.
///
/// What the document throws reaches the caller of a member function; while the user types or picks it is told
/// through prompts(), and the set stays as it was.
class LayerSetControl : public QWidget {
    Q_OBJECT
public:
    ~LayerSetControl() override;

    QFont Font() const { return font(); }               ///< of both children
    void setFont(const QFont &font) { QWidget::setFont(font); }
    bool SingleLine() const { return m_singleLine; }
    void setSingleLine(bool on);                        ///< text box beside the list instead of below it
    double WidthDiferent() const { return m_widthDiferent; } // published spelling
    void setWidthDiferent(double twips); ///< what the text box takes beyond half the line; single precision

    QString sLays() const { return m_sLays; }           ///< the text last typed or shown
    void setsLays(const QString &text);                 ///< as if typed and left
    QString sLayGroup() const { return m_sLayGroup; }   ///< caption of the entry last chosen
    void setsLayGroup(const QString &caption);          ///< as if chosen; an unknown one is the current layer
    LayerSet &CollectionLays() { return m_set; }        ///< the control's own; replaced by the control alone
    void AddLay(LayerSet &col, const ZolWDoc::tLay &lay) { col.add(lay); } ///< at its place, once

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
    void layersArrived();                               ///< entry and text of before take effect
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
    bool select(const QVariant &value);                 ///< item data or caption; false = no such entry
    void choose(int entry);
    ZolWDoc::tLayArr layersChosenBy(qint32 itemData) const;
    void takeText();
    void showSet();
    void writeText(const QString &text);
    void arrange();
    void orderTabs();
    int lineHeight() const;
    void describe();

    DebugIdentity m_identity;
    bool m_singleLine = false;
    float m_widthDiferent = 0;                          ///< twips
    QString m_sLays, m_sLayGroup;
    LayerSet m_set;
    bool m_writing = false;                             ///< the control itself changes the text
};

} // namespace QV_DOC_CONTROLS
