#pragma once

#include "facade/services/Trace.h"

#include <QVariantMap>
#include <QWidget>

#include <array>

class QRadioButton;

namespace QV_DOC_CONTROLS {

/// Picks which point of a text's box stands on its insertion point: left, centre or right on the top edge,
/// the base line or the bottom edge of a sample text. A click or the arrow keys pick.
///
/// The points are those that text-align numbers can say; there is none halfway up. A number that says none of
/// them is kept until the user picks, and no point is marked.
class usTxAlign final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int Align READ Align WRITE setAlign USER true)
public:
    explicit usTxAlign(QWidget *parent = nullptr);

    quint8 Align() const { return m_align; }    ///< 0 left, 6 centre, 2 right; + 0 top, 8 bottom, 24 baseline
    void setAlign(int align);                   ///< cut to 0..255; raises nothing
    QVariantMap propertyBag() const;            ///< by published key, what differs from its default
    void setPropertyBag(const QVariantMap &bag);///< what it lacks gets its default
    qint32 lDebugId() const { return m_identity; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void ChangeAlign(quint8 Align);             ///< the user picked another point

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Sample;
    Sample sample() const;
    void arrange();
    void pick(quint8 align);
    void reloadCaptions();
    void describe();

    DebugIdentity m_identity{"usTxAlign"};
    std::array<QRadioButton *, 9> m_points;     ///< row by row from the left top one
    quint8 m_align = 24;
};

} // namespace QV_DOC_CONTROLS
