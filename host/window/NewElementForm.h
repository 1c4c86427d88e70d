#pragma once

#include "window/DrawingPage.h"

#include <QPointer>

class QLabel;

namespace QV_DOC_CONTROLS {
class LayerSet;
class usInputBox;
class ZOL3_LayGroup;
class ZOL3_LayInfo;
} // namespace QV_DOC_CONTROLS

namespace refhost {

/// What new elements get, on the library's controls: current layer, layers, width, rotation and text height.
/// Works on the drawing in front and follows it when somebody else changes its layers.
class NewElementForm : public QWidget {
    Q_OBJECT
public:
    explicit NewElementForm(QWidget *parent = nullptr);
    void setPage(DrawingPage *page);                ///< the one in front; null = none
    const NewElement &attributes() const { return m_attributes; }
signals:
    void failed(const QString &why);
    void done(); ///< Esc: the user goes back to the drawing; what was half typed is dropped
protected:
    void keyPressEvent(QKeyEvent *) override;
private:
    QV_DOC_CONTROLS::usInputBox *addBox(const char *name, const char *format, double max, double step);
    void connectControls();
    void takeSet(const QV_DOC_CONTROLS::LayerSet &);
    void takeNumbers();
    void followDocument();
    void handOver();
    void retranslate();
    void dropTyped();                               ///< a number that is not taken yet
    template <class Act> void guarded(Act);

    QPointer<DrawingPage> m_page;
    NewElement m_attributes;
    QV_DOC_CONTROLS::ZOL3_LayInfo *m_layer;         ///< the current one
    QLabel *m_layersCaption;
    QV_DOC_CONTROLS::ZOL3_LayGroup *m_layers;
    QV_DOC_CONTROLS::usInputBox *m_width, *m_rotation, *m_textHeight;
};

} // namespace refhost
