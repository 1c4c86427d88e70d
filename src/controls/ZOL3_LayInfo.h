#pragma once

#include "facade/contract/ZOLW_Doc.h"
#include "facade/services/Trace.h"

#include <QVariantMap>
#include <QWidget>

#include <functional>
#include <memory>

class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;

namespace QV_DOC_CONTROLS {

class ErrorRelay;
class LeavingCheck;
struct Message;

/// Shows one layer of a document by number and name, and lets the user choose another: by its number, or from
/// the layer selection behind the button. Nothing happens until there is a document.
///
/// What the document throws reaches the caller of a member function; what it throws while the user types or
/// picks is told through prompts(), on a form of the library it ends the form.
class ZOL3_LayInfo final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool Enabled READ Enabled WRITE setEnabled)
    Q_PROPERTY(QFont Font READ Font WRITE setFont RESET resetFont)
    Q_PROPERTY(bool InfoMode READ InfoMode WRITE setInfoMode)
    Q_PROPERTY(bool VisibleIcon READ VisibleIcon WRITE setVisibleIcon)
    Q_PROPERTY(bool NotSetCurrentLayer READ NotSetCurrentLayer WRITE setNotSetCurrentLayer)
public:
    explicit ZOL3_LayInfo(QWidget *parent = nullptr);
    ~ZOL3_LayInfo() override;

    QFont Font() const { return font(); }               ///< of all children
    void setFont(const QFont &font) { QWidget::setFont(font); }
    void resetFont() { setFont(QFont()); }              ///< back to that of the widget around
    qint16 layNr() const { return m_shown.gNr; }        ///< of the layer shown; 0 while there is none
    bool NotSetCurrentLayer() const { return m_notSetCurrentLayer; }
    void setNotSetCurrentLayer(bool on) { m_notSetCurrentLayer = on; } ///< governs LetLayNr alone
    qint16 LayId() const { return m_shown.LayId; }      ///< of the layer shown; -1 while there is none
    void setLayId(qint16 id) { LetLayId(id, 0); }

    /// Shows the layer of that identifier. A value that is no number, or of no layer, is told and changes
    /// nothing. `ChangeMode` is passed on with ChangeLay.
    void LetLayId(const QVariant &New_LayId, quint8 ChangeMode);
    /// The same by number; unless NotSetCurrentLayer, the layer becomes the document's current one.
    void LetLayNr(const QVariant &New_LayNr, quint8 ChangeMode);

    ZolWDoc::ZOLW_Doc *oDoc() const { return m_doc; }
    void setoDoc(ZolWDoc::ZOLW_Doc *doc);               ///< the host's, until TearDown()
    bool InfoMode() const { return m_infoMode; }
    void setInfoMode(bool on);                          ///< the layer is shown and cannot be changed
    bool Enabled() const { return isEnabledTo(parentWidget()); }
    void setEnabled(bool on) { QWidget::setEnabled(on); } ///< disabled it changes without an event
    void RefreshControls();                             ///< lays the children out again
    bool VisibleIcon() const { return m_visibleIcon; }
    void setVisibleIcon(bool on);                       ///< of the button
    void ml_RuntimeSupport_LanguageChanged();           // published spelling
    void TearDown();                                    ///< drops the document; may be repeated
    /// Where what the document throws while the user types or picks goes; the relay outlives the control.
    void setRelay(ErrorRelay &relay) { m_relay = &relay; }

    QVariantMap propertyBag() const;                    ///< by published key, what differs from its default
    void setPropertyBag(const QVariantMap &bag);        ///< what it lacks gets its default
    qint32 lDebugId() const { return m_identity; }
    QSize sizeHint() const override;                    ///< whatever the layer's name
    bool eventFilter(QObject *watched, QEvent *event) override;

    QLabel *const lblLay;
    QLineEdit *const txtLayNr;
    QLabel *const lblLayId;                             ///< the layer's name
    QFrame *const fraModLay;
    QPushButton *const cmdModLay;

signals:
    void LayIdClickBefore(bool &Cancel);                ///< the button was clicked; true ends it here
    void LayIdClickAfter();                             ///< the click is over, whatever was chosen
    void ChangeLay(quint8 ChangeMode, ZolWDoc::tLay &tLay); ///< another layer is shown; a copy of it

protected:
    void changeEvent(QEvent *event) override;

private:
    using Refusal = std::optional<Message>;
    Refusal takeNumber(const QString &value, quint8 changeMode);
    static Message refusalOf(const QString &value);
    void tell(const Message &refusal);
    void take(const ZolWDoc::tLay &lay, quint8 changeMode);
    void showLayer();
    std::function<void()> leave();                      ///< takes it; what is left to tell
    void click();
    void pick();
    ErrorRelay &relay() const;

    DebugIdentity m_identity{"ZOL3_LayInfo"};
    ErrorRelay *m_relay = nullptr;                      ///< null = errors are told
    ZolWDoc::ZOLW_Doc *m_doc = nullptr;
    ZolWDoc::tLay m_shown;                              ///< -1 = none
    std::unique_ptr<LeavingCheck> m_leaving;
    bool m_notSetCurrentLayer = false, m_infoMode = false, m_visibleIcon = false;
};

} // namespace QV_DOC_CONTROLS
